// SPDX-License-Identifier: Apache-2.0
#include "ConflictBanner.h"

#include <host/setup/SetupKeeper.h>

namespace dialog {

ConflictBanner::ConflictBanner(host::SetupKeeper &keeper, QWidget *parent)
    : Banner(parent)
    , m_keeper(keeper)
{
    connect(this, &Banner::remedyClicked, this, [this] {
        if (const std::optional<host::Remedy> remedy = m_keeper.setup()->remedy())
            m_keeper.setup()->apply(*remedy);
        Q_EMIT remedied();
    });
}

void ConflictBanner::setConflicts(const std::vector<host::Conflict> &conflicts)
{
    QStringList sentences;
    for (const host::Conflict &conflict : conflicts)
        sentences.append(conflict.sentence());
    const std::optional<host::Remedy> remedy =
        sentences.isEmpty() ? std::nullopt : m_keeper.setup()->remedy();
    setMessage(sentences.join(u'\n'), remedy ? remedy->sentence() : QString());
}

} // namespace dialog
