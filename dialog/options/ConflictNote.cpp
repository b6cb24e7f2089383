// SPDX-License-Identifier: Apache-2.0
#include "ConflictNote.h"

#include <dialog/widgets/FittedLabel.h>
#include <dialog/widgets/PlainToolTip.h>

#include <QHBoxLayout>
#include <QStyle>

namespace dialog {
inline namespace options {

namespace {

/// The dialog's banner shows more.
constexpr qsizetype maxSentences = 2;

} // namespace

ConflictNote::ConflictNote(QWidget *parent)
    : QWidget(parent)
{
    hide();
}

void ConflictNote::build()
{
    auto *const icon = new QLabel(this);
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    icon->setPixmap(
        style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(QSize(size, size), devicePixelRatioF()));
    m_text = new FittedLabel(1, 6, this);
    auto *const row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->addWidget(icon, 0, Qt::AlignTop);
    row->addWidget(m_text, 1);
}

void ConflictNote::setSentences(const QStringList &sentences)
{
    if (!m_text && sentences.isEmpty())
        return;
    if (!m_text)
        build();
    QStringList shown = sentences.first(qMin(sentences.size(), maxSentences));
    if (shown.size() < sentences.size())
        shown.append(QStringLiteral("\u2026"));
    m_text->setMessage(shown.join(u'\n'));
    setToolTip(plainToolTip(sentences.join(u'\n')));
    setAccessibleName(sentences.join(u' '));
    setVisible(!sentences.isEmpty());
}

} // namespace options
} // namespace dialog
