// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

#include <array>
#include <optional>
#include <string_view>

namespace host {

/// Counts the statements of a PPD whose number decides how long libcups reads. To find an option, a group, a
/// parameter or a paper size, libcups compares its name with all names before it: a file of some megabytes
/// would keep the dialog waiting for minutes.
///
/// Each maximum is at least ten times what any printer's PPD has: a large one has 300 options, 500 papers,
/// and some thousand constraints. A PPD that reaches all of them opens within seconds.
class PpdCounts {
public:
    /// Of each of *OpenUI, *JCLOpenUI, *OpenGroup, *OpenSubGroup, *Custom... and *ParamCustom...; and of
    /// *PaperDimension and *ImageableArea.
    static constexpr int maxOptions = 5'000;
    /// Of one option.
    static constexpr int maxChoices = 10'000;
    /// Of each of *UIConstraints, *NonUIConstraints and *cupsUIConstraints.
    static constexpr int maxConstraints = 100'000;
    /// Of all statements together.
    static constexpr int maxStatements = 150'000;

    /// Takes a statement up to its colon, asterisk included.
    void addStatement(std::string_view statement);

    /// Statements of which there are more than the maximum.
    struct Excess {
        /// Their keyword, "*OpenUI"; empty for all statements together.
        QByteArray keyword;
        int count = 0;
        int max = 0;
    };
    /// The first excess in the order of the constants above; nothing when the PPD is within all of them.
    std::optional<Excess> excess() const;
    /// Whether there are already more statements than the maximum.
    bool isFull() const { return m_statements > maxStatements; }

private:
    static constexpr std::size_t kinds = 11;

    void countChoice(std::string_view keyword, std::string_view rest);

    std::array<int, kinds> m_counts = {};
    int m_statements = 0;
    /// The keyword of the option that is open, asterisk included; empty when none is.
    QByteArray m_option;
    int m_choices = 0;
    Excess m_mostChoices{{}, 0, maxChoices};
};

} // namespace host
