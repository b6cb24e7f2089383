// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <optional>
#include <utility>
#include <vector>

namespace host {

/// The option choices recorded for a job: keyword and choice, each keyword once, in the order in which
/// the keywords were first chosen.
class RecordedChoices {
public:
    using Pair = std::pair<QString, QString>;

    /// Records the choice in place of an earlier one for the keyword.
    void record(const QString &keyword, const QString &choice);
    /// The recorded choice; nothing when the keyword was never chosen.
    std::optional<QString> choice(const QString &keyword) const;
    const std::vector<Pair> &pairs() const { return m_pairs; }

private:
    std::vector<Pair> m_pairs;
};

} // namespace host
