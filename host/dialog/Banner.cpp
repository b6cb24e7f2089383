// SPDX-License-Identifier: Apache-2.0
#include "Banner.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

namespace dialog {

Banner::Banner(QWidget *parent)
    : QFrame(parent)
    , m_text(new QLabel(this))
    , m_remedy(new QPushButton(this))
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    auto *const icon = new QLabel(this);
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size));
    m_text->setForegroundRole(QPalette::ToolTipText);
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *const layout = new QHBoxLayout(this);
    layout->addWidget(icon);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_remedy);
    m_remedy->setAutoDefault(false);
    connect(m_remedy, &QPushButton::clicked, this, &Banner::remedyClicked);
    setVisible(false);
}

void Banner::setMessage(const QString &message, const QString &remedy)
{
    m_text->setText(message);
    // An ampersand in a PPD's text is no shortcut.
    m_remedy->setText(QString(remedy).replace(u'&', QStringLiteral("&&")));
    m_remedy->setVisible(!remedy.isEmpty());
    setAccessibleName(message);
    setVisible(!message.isEmpty());
}

QString Banner::message() const
{
    return m_text->text();
}

} // namespace dialog
