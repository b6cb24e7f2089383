// SPDX-License-Identifier: Apache-2.0
#include "Banner.h"

#include "ElidedButton.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>

namespace dialog {
inline namespace widgets {

Banner::Banner(QWidget *parent)
    : QFrame(parent)
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setVisible(false);
}

void Banner::build()
{
    auto *const icon = new QLabel(this);
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size));
    m_text = new QLabel;
    m_text->setForegroundRole(QPalette::ToolTipText);
    m_text->setBackgroundRole(QPalette::ToolTipBase);
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_text->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    m_view = new QScrollArea(this);
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setWidget(m_text);
    m_view->setWidgetResizable(true);
    m_view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_view->viewport()->setBackgroundRole(QPalette::ToolTipBase);
    m_remedy = makeButton();
    connect(m_remedy, &QPushButton::clicked, this, &Banner::remedyClicked);
    m_alternative = makeButton();
    connect(m_alternative, &QPushButton::clicked, this, &Banner::alternativeClicked);
    auto *const buttons = new QHBoxLayout;
    buttons->addWidget(m_remedy);
    buttons->addWidget(m_alternative);
    buttons->addStretch();
    auto *const layout = new QGridLayout(this);
    layout->addWidget(icon, 0, 0, Qt::AlignTop);
    layout->addWidget(m_view, 0, 1);
    // The buttons are below the text: beside it, a long button text would leave the message no room.
    layout->addLayout(buttons, 1, 1);
    layout->setColumnStretch(1, 1);
    // Set the height before the banner is shown; otherwise the window reserves the default height of a scroll
    // area.
    fitText();
}

ElidedButton *Banner::makeButton()
{
    auto *const button = new ElidedButton(this);
    button->setAutoDefault(false);
    return button;
}

void Banner::setButton(ElidedButton *button, const QString &text)
{
    // An ampersand in a text of the PPD does not mark a mnemonic.
    button->setText(QString(text).replace(u'&', QStringLiteral("&&")));
    button->setVisible(!text.isEmpty());
}

void Banner::setMessage(const QString &message, const QString &remedy, const QString &alternative)
{
    if (!m_text && message.isEmpty())
        return;
    if (!m_text)
        build();
    if (message != m_text->text())
        m_view->verticalScrollBar()->setValue(0);
    m_text->setText(message);
    setButton(m_remedy, remedy);
    setButton(m_alternative, alternative);
    setAccessibleName(message);
    m_view->setAccessibleName(message);
    setVisible(!message.isEmpty());
    fitText();
}

QString Banner::message() const
{
    return m_text ? m_text->text() : QString();
}

void Banner::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    fitText();
}

void Banner::showEvent(QShowEvent *event)
{
    QFrame::showEvent(event);
    fitText();
}

void Banner::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitText();
}

void Banner::fitText()
{
    // The window's layout ignores the height that a wrapped text needs; set it explicitly.
    constexpr int maxLines = 4;
    if (!m_text)
        return;
    const int line = m_text->fontMetrics().lineSpacing();
    // The width is not known until the banner is laid out in the window.
    const int needed = isVisible() ? m_text->heightForWidth(m_view->width()) : line;
    m_view->setFixedHeight(qBound(line, needed, maxLines * line));
    // A text that needs scrolling accepts the focus, so that it can be scrolled with the keyboard.
    m_view->setFocusPolicy(needed > maxLines * line ? Qt::StrongFocus : Qt::NoFocus);
}

} // namespace widgets
} // namespace dialog
