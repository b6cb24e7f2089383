// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

#include <array>
#include <optional>
#include <string_view>

namespace host {
inline namespace printer {

/// Counts those statements of a PPD whose number determines how long libcups takes to read the file. To find
/// an option, a group, a parameter or a paper size, libcups compares its name with all earlier names: a file
/// of some megabytes could block the dialog for minutes.
///
/// Each maximum is at least ten times as large as in the PPD of any known printer: a large PPD has 300
/// options, 500 papers and some thousand constraints. A PPD that reaches all maxima opens within seconds.
class PpdCounts {
public:
    /// The maximum for each of *OpenUI, *JCLOpenUI, *OpenGroup, *OpenSubGroup, *Custom... and
    /// *ParamCustom..., and for each of *PaperDimension and *ImageableArea.
    static constexpr int maxOptions = 5'000;
    /// The maximum number of choices of one option.
    static constexpr int maxChoices = 10'000;
    /// The maximum for each of *UIConstraints, *NonUIConstraints and *cupsUIConstraints.
    static constexpr int maxConstraints = 100'000;
    /// The maximum number of all statements.
    static constexpr int maxStatements = 150'000;

    /// Counts a statement, given as its text up to the colon, including the asterisk.
    void addStatement(std::string_view statement);

    /// A kind of statement whose number exceeds the maximum.
    struct Excess {
        /// The keyword, for instance "*OpenUI"; absent if the number of all statements exceeds the maximum.
        std::optional<QByteArray> keyword;
        /// The number of statements, and its maximum.
        int count = 0;
        int max = 0;
    };
    /// The first exceeded maximum: of a keyword, then of the choices of an option, then of all statements;
    /// absent if the PPD exceeds none.
    std::optional<Excess> excess() const;
    /// Whether the number of all statements exceeds its maximum.
    bool isFull() const { return m_statements > maxStatements; }

private:
    static constexpr std::size_t kinds = 11;

    void countChoice(std::string_view keyword, std::string_view rest);

    std::array<int, kinds> m_counts = {};
    int m_statements = 0;
    /// The keyword of the current option, including the asterisk; empty before the first option.
    QByteArray m_option;
    int m_choices = 0;
    Excess m_maxChoicesFound{{}, 0, maxChoices};
};

} // namespace printer
} // namespace host
