// SPDX-License-Identifier: Apache-2.0
#include "ConflictBanner.h"

#include <host/setup/SetupKeeper.h>

namespace dialog {

ConflictBanner::ConflictBanner(host::SetupKeeper &keeper, QWidget *parent)
    : Banner(parent)
    , m_keeper(keeper)
{
    connect(this, &Banner::remedyClicked, this, [this] {
        if (m_keeper.setup() && m_shownRemedy)
            m_keeper.setup()->apply(host::Remedy(*m_shownRemedy));
        Q_EMIT remedied();
    });
}

void ConflictBanner::setConflicts(const std::vector<host::Conflict> &conflicts,
                                  const std::optional<host::Remedy> &remedy)
{
    QStringList sentences;
    for (const host::Conflict &conflict : conflicts)
        sentences.append(conflict.sentence());
    m_shownRemedy = remedy;
    setMessage(sentences.join(u'\n'), remedy ? remedy->sentence() : QString());
}

} // namespace dialog
