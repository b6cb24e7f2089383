// SPDX-License-Identifier: Apache-2.0
#include "FittedLabel.h"

#include <QEvent>

namespace dialog {
inline namespace widgets {

FittedLabel::FittedLabel(int minLines, int maxLines, QWidget *parent)
    : QLabel(parent)
    , m_minLines(minLines)
    , m_maxLines(maxLines)
{
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignLeading | Qt::AlignTop);
    // A long word does not make the window wider.
    setMinimumWidth(1);
    fit();
}

void FittedLabel::setMessage(const QString &words)
{
    setText(words);
    fit();
}

void FittedLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    fit();
}

void FittedLabel::showEvent(QShowEvent *event)
{
    QLabel::showEvent(event);
    fit();
}

void FittedLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fit();
}

void FittedLabel::fit()
{
    const int line = fontMetrics().lineSpacing();
    // Before the label is shown, its width is not the final one.
    // heightForWidth() is never less than the minimum height, and would keep the height of a longer
    // message.
    const QRect room(0, 0, width(), m_maxLines * line);
    const int needed = isVisible() ? fontMetrics().boundingRect(room, Qt::TextWordWrap, text()).height() : 0;
    setFixedHeight(qBound(m_minLines * line, needed, m_maxLines * line));
}

} // namespace widgets
} // namespace dialog
