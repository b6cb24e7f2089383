// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <optional>
#include <utility>
#include <vector>

namespace host {
inline namespace panels {

/// The option choices that are recorded for a job: pairs of keyword and choice, each keyword once, in the
/// order in which the keywords were first recorded.
class RecordedChoices {
public:
    /// A keyword and its choice.
    using Pair = std::pair<QString, QString>;

    /// Records the choice for the keyword and replaces an earlier one.
    void record(const QString &keyword, const QString &choice);
    /// The recorded choice; absent if none was recorded for the keyword.
    std::optional<QString> choice(const QString &keyword) const;
    /// All recorded choices.
    const std::vector<Pair> &pairs() const { return m_pairs; }

private:
    std::vector<Pair> m_pairs;
};

} // namespace panels
} // namespace host
