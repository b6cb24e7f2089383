// SPDX-License-Identifier: Apache-2.0
#include "PreflightBanner.h"

namespace dialog {
inline namespace window {

PreflightBanner::PreflightBanner(QWidget *parent)
    : Banner(parent)
{
    // The remedies change while the chosen one is applied.
    connect(this, &Banner::remedyClicked, this,
            [this] { Q_EMIT remedyChosen(host::NamedValue(m_remedies.at(0).option)); });
    connect(this, &Banner::alternativeClicked, this,
            [this] { Q_EMIT remedyChosen(host::NamedValue(m_remedies.at(1).option)); });
}

void PreflightBanner::setNotes(const std::vector<host::PreflightNote> &notes)
{
    m_remedies.clear();
    QStringList sentences;
    for (const host::PreflightNote &note : notes) {
        sentences.append(note.sentence);
        if (note.remedy)
            m_remedies.push_back(*note.remedy);
    }
    const auto textOf = [this](std::size_t index) {
        return index < m_remedies.size() ? m_remedies[index].text : QString();
    };
    setMessage(sentences.join(u'\n'), textOf(0), textOf(1));
}

} // namespace window
} // namespace dialog
