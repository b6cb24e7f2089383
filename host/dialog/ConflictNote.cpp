// SPDX-License-Identifier: Apache-2.0
#include "ConflictNote.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

namespace dialog {

namespace {

/// More are told in the dialog's banner.
constexpr qsizetype mostSentences = 2;

} // namespace

ConflictNote::ConflictNote(QWidget *parent)
    : QWidget(parent)
{
    hide();
}

void ConflictNote::build()
{
    m_icon = new QLabel(this);
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    m_icon->setPixmap(
        style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(QSize(size, size), devicePixelRatioF()));
    m_text = new QLabel(this);
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    // A long word in a PPD's text makes nothing wider.
    m_text->setMinimumWidth(1);
    auto *const row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->addWidget(m_icon, 0, Qt::AlignTop);
    row->addWidget(m_text, 1);
}

void ConflictNote::setSentences(const QStringList &sentences)
{
    if (!m_text && sentences.isEmpty())
        return;
    if (!m_text)
        build();
    QStringList shown = sentences.first(qMin(sentences.size(), mostSentences));
    if (shown.size() < sentences.size())
        shown.append(QStringLiteral("\u2026"));
    m_text->setText(shown.join(u'\n'));
    setToolTip(sentences.join(u'\n').toHtmlEscaped().replace(u'\n', QStringLiteral("<br>")));
    setAccessibleName(sentences.join(u' '));
    setVisible(!sentences.isEmpty());
    fitText();
}

void ConflictNote::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fitText();
}

void ConflictNote::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    fitText();
}

void ConflictNote::fitText()
{
    // A window takes no notice of what a wrapped text needs, so its height is told; but not for novels.
    constexpr int mostLines = 6;
    if (!m_text)
        return;
    const int line = m_text->fontMetrics().lineSpacing();
    // The text's own width follows only after this widget's.
    const QMargins margins = layout()->contentsMargins();
    const int beside = m_icon->sizeHint().width() + layout()->spacing() + margins.left() + margins.right();
    const int width = qMax(1, contentsRect().width() - beside);
    // Before it is shown, the width is no width that it will have.
    const int needed = isVisible() ? m_text->heightForWidth(width) : line;
    m_text->setFixedHeight(qBound(line, needed, mostLines * line));
}

} // namespace dialog
