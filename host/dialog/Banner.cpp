// SPDX-License-Identifier: Apache-2.0
#include "Banner.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

namespace dialog {

Banner::Banner(QWidget *parent)
    : QFrame(parent)
    , m_icon(new QLabel(this))
    , m_text(new QLabel(this))
    , m_remedy(new QPushButton(this))
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    m_text->setForegroundRole(QPalette::ToolTipText);
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    auto *const layout = new QHBoxLayout(this);
    layout->addWidget(m_icon);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_remedy);
    m_remedy->setAutoDefault(false);
    connect(m_remedy, &QPushButton::clicked, this, &Banner::remedyClicked);
    setVisible(false);
}

void Banner::prepare()
{
    // Only now: looking through the icon themes takes longer than building the rest of the dialog, and a text
    // that can be selected needs a text engine.
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    m_icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size));
}

void Banner::setMessage(const QString &message, const QString &remedy)
{
    if (!message.isEmpty() && m_icon->pixmap().isNull())
        prepare();
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
