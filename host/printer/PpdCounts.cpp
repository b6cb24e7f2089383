// SPDX-License-Identifier: Apache-2.0
#include "PpdCounts.h"

namespace host {
inline namespace printer {

namespace {

struct CountedStatement {
    std::string_view keyword;
    int max;
    /// Whether the keyword continues with the name of an option, as in *CustomPageSize.
    bool isPrefix;
};

constexpr std::array counted = {
    CountedStatement{"*OpenUI", PpdCounts::maxOptions, false},
    CountedStatement{"*JCLOpenUI", PpdCounts::maxOptions, false},
    CountedStatement{"*OpenGroup", PpdCounts::maxOptions, false},
    CountedStatement{"*OpenSubGroup", PpdCounts::maxOptions, false},
    CountedStatement{"*Custom", PpdCounts::maxOptions, true},
    CountedStatement{"*ParamCustom", PpdCounts::maxOptions, true},
    CountedStatement{"*PaperDimension", PpdCounts::maxOptions, false},
    CountedStatement{"*ImageableArea", PpdCounts::maxOptions, false},
    CountedStatement{"*UIConstraints", PpdCounts::maxConstraints, false},
    CountedStatement{"*NonUIConstraints", PpdCounts::maxConstraints, false},
    CountedStatement{"*cupsUIConstraints", PpdCounts::maxConstraints, false},
};

constexpr std::string_view blanks = " \t";

/// Compares keywords case-insensitively, as libcups does for some of them.
bool isEqual(std::string_view left, std::string_view right)
{
    return left.size() == right.size() && qstrnicmp(left.data(), right.data(), left.size()) == 0;
}

/// Returns the text up to the first blank or the slash that precedes the translation string.
std::string_view firstWord(std::string_view text)
{
    return text.substr(0, text.find_first_of(" \t/"));
}

std::string_view withoutBlanks(std::string_view text)
{
    const std::size_t start = text.find_first_not_of(blanks);
    return start == std::string_view::npos ? std::string_view() : text.substr(start);
}

} // namespace

void PpdCounts::addStatement(std::string_view statement)
{
    static_assert(counted.size() == kinds);
    const std::string_view keyword = firstWord(statement);
    ++m_statements;
    for (std::size_t i = 0; i < counted.size(); ++i) {
        const std::string_view compared =
            counted[i].isPrefix ? keyword.substr(0, counted[i].keyword.size()) : keyword;
        m_counts[i] += isEqual(compared, counted[i].keyword) ? 1 : 0;
    }
    countChoice(keyword, withoutBlanks(statement.substr(keyword.size())));
}

void PpdCounts::countChoice(std::string_view keyword, std::string_view rest)
{
    if (isEqual(keyword, "*OpenUI") || isEqual(keyword, "*JCLOpenUI")) {
        const std::string_view option = firstWord(rest);
        m_option = QByteArray(option.data(), static_cast<qsizetype>(option.size()));
        m_choices = 0;
    } else if (isEqual(keyword, {m_option.constData(), static_cast<std::size_t>(m_option.size())})) {
        if (++m_choices > m_maxChoicesFound.count) {
            m_maxChoicesFound.keyword = m_option;
            m_maxChoicesFound.count = m_choices;
        }
    }
}

std::optional<PpdCounts::Excess> PpdCounts::excess() const
{
    for (std::size_t i = 0; i < counted.size(); ++i) {
        const std::string_view keyword = counted[i].keyword;
        if (m_counts[i] > counted[i].max)
            return Excess{QByteArray(keyword.data(), static_cast<qsizetype>(keyword.size())), m_counts[i],
                          counted[i].max};
    }
    if (m_maxChoicesFound.count > m_maxChoicesFound.max)
        return m_maxChoicesFound;
    if (m_statements > maxStatements)
        return Excess{{}, m_statements, maxStatements};
    return std::nullopt;
}

} // namespace printer
} // namespace host
