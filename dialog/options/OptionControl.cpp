// SPDX-License-Identifier: Apache-2.0
#include "OptionControl.h"

#include "ConflictNote.h"

#include <QVBoxLayout>

namespace dialog {
inline namespace options {

OptionControl::OptionControl(const host::PpdOption &option, QWidget *parent)
    : QWidget(parent)
    , m_keyword(option.keyword)
    , m_column(new QVBoxLayout(this))
{
    setObjectName(QString::fromUtf8(m_keyword));
    m_column->setContentsMargins({});
}

void OptionControl::setConflicts(const QStringList &sentences)
{
    if (!m_note && sentences.isEmpty())
        return;
    if (!m_note) {
        m_note = new ConflictNote(this);
        m_column->addWidget(m_note);
    }
    m_note->setSentences(sentences);
    const QString spokenText = sentences.join(u' ');
    for (QWidget *const widget : spoken())
        widget->setAccessibleDescription(spokenText);
}

} // namespace options
} // namespace dialog
