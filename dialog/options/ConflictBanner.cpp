// SPDX-License-Identifier: Apache-2.0
#include "ConflictBanner.h"

#include <host/setup/SetupKeeper.h>

#include <algorithm>

namespace dialog {
inline namespace options {

namespace {

/// More than a user reads; laying out the text of thousands of conflicts would block the dialog.
constexpr std::size_t maxConflicts = 100;

} // namespace

ConflictBanner::ConflictBanner(host::SetupKeeper &keeper, QWidget *parent)
    : Banner(parent)
    , m_keeper(keeper)
{
    connect(this, &Banner::remedyClicked, this, [this] {
        if (m_keeper.setup() && m_shownRemedy)
            m_keeper.setup()->apply(host::Remedy(*m_shownRemedy));
        Q_EMIT remedyApplied();
    });
}

void ConflictBanner::setConflicts(const std::vector<host::Conflict> &conflicts,
                                  const std::optional<host::Remedy> &remedy)
{
    QStringList sentences;
    for (std::size_t i = 0; i < std::min(conflicts.size(), maxConflicts); ++i)
        sentences.append(conflicts[i].sentence());
    if (conflicts.size() > maxConflicts)
        sentences.append(QStringLiteral("\u2026"));
    m_shownRemedy = remedy;
    setMessage(sentences.join(u'\n'), remedy ? remedy->sentence() : QString());
}

} // namespace options
} // namespace dialog
