// SPDX-License-Identifier: Apache-2.0
#include "ConstraintTerms.h"

namespace host {
inline namespace printer {

ConstraintTerms::ConstraintTerms(const PpdFile &ppd)
    : m_ppdOptions(ppd)
{
    for (const PpdGroup &group : m_ppdOptions.groups()) {
        if (group.isInstallable)
            m_installable.unite(QSet<QByteArray>(group.keywords.begin(), group.keywords.end()));
    }
}

bool ConstraintTerms::isOff(const QByteArray &choice)
{
    return choice.compare("None", Qt::CaseInsensitive) == 0 ||
           choice.compare("Off", Qt::CaseInsensitive) == 0 ||
           choice.compare("False", Qt::CaseInsensitive) == 0;
}

std::optional<int> ConstraintTerms::add(const PpdConstraintSide &side)
{
    constexpr QByteArrayView custom("Custom");
    const bool isCustom = side.keyword.left(custom.size()).compare(custom, Qt::CaseInsensitive) == 0 &&
                          side.choice.compare("True", Qt::CaseInsensitive) == 0;
    const QByteArray wanted = isCustom ? custom.toByteArray() : side.choice;
    const std::optional<int> option = findOption(isCustom ? side.keyword.mid(custom.size()) : side.keyword);
    const std::optional<int> choice =
        option && !wanted.isEmpty() ? findChoice(*option, wanted) : std::optional<int>(anyChoice);
    if (!option || !choice)
        return std::nullopt;
    const auto known = m_termNumbers.constFind({*option, *choice});
    if (known != m_termNumbers.constEnd())
        return *known;
    const auto number = static_cast<int>(m_terms.size());
    m_terms.push_back({*option, *choice});
    m_termNumbers.insert({*option, *choice}, number);
    return number;
}

std::optional<int> ConstraintTerms::findOption(const QByteArray &keyword)
{
    const QByteArray key = keyword.toLower();
    const auto known = m_optionPositions.constFind(key);
    if (known != m_optionPositions.constEnd())
        return *known;
    const std::optional<PpdOption> option = m_ppdOptions.option(keyword);
    const std::optional<int> position = option ? std::optional(addOption(*option)) : std::nullopt;
    m_optionPositions.insert(key, position);
    return position;
}

int ConstraintTerms::addOption(const PpdOption &option)
{
    const QByteArray keyword = option.keyword.toLower();
    Option added{option.keyword, {}, option.defaultChoice};
    added.isPaper = keyword == "pagesize" || keyword == "pageregion";
    added.isInstallable = m_installable.contains(option.keyword);
    for (const PpdChoice &choice : option.choices)
        added.choices.push_back(choice.name);
    if (option.customText)
        added.choices.emplace_back(customChoiceName);
    QHash<QByteArray, int> positions;
    // The first of several choices with the same name is kept.
    for (std::size_t i = added.choices.size(); i > 0; --i)
        positions.insert(added.choices[i - 1].toLower(), static_cast<int>(i - 1));
    m_options.push_back(std::move(added));
    m_choicePositions.push_back(std::move(positions));
    return static_cast<int>(m_options.size()) - 1;
}

std::optional<int> ConstraintTerms::findChoice(int option, const QByteArray &name) const
{
    const QHash<QByteArray, int> &positions = m_choicePositions[static_cast<std::size_t>(option)];
    const auto found = positions.constFind(name.toLower());
    return found == positions.constEnd() ? std::nullopt : std::optional(*found);
}

QHash<int, int> ConstraintTerms::positions(const PpdChoices &choices) const
{
    QHash<int, int> positions;
    for (const auto &[keyword, choice] : choices) {
        const std::optional<int> option = m_optionPositions.value(keyword.toUtf8().toLower());
        if (const std::optional<int> position = option ? findChoice(*option, choice.toUtf8()) : std::nullopt)
            positions.insert(*option, *position);
    }
    return positions;
}

void ConstraintTerms::readMarks(int option, const QHash<int, int> &instead, Marks &marks) const
{
    if (const auto choice = instead.constFind(option); choice != instead.constEnd()) {
        marks.choices.push_back({*choice});
        marks.last.emplace_back(*choice);
        return;
    }
    const std::vector<QByteArray> marked = m_ppdOptions.markedChoices(this->option(option).keyword);
    const QSet<QByteArray> names(marked.begin(), marked.end());
    const std::vector<QByteArray> &choices = this->option(option).choices;
    QSet<int> &positions = marks.choices.emplace_back();
    std::optional<int> &last = marks.last.emplace_back();
    for (std::size_t i = 0; i < choices.size() && !names.isEmpty(); ++i) {
        if (!names.contains(choices[i]))
            continue;
        last = static_cast<int>(i);
        positions.insert(*last);
    }
}

ConstraintTerms::Marks ConstraintTerms::marks(const PpdChoices &instead) const
{
    const QHash<int, int> choices = positions(instead);
    // PageRegion follows PageSize, regardless of its own marks.
    std::vector<QByteArray> paper = m_ppdOptions.markedChoices("PageSize");
    if (paper.empty())
        paper = m_ppdOptions.markedChoices("PageRegion");
    Marks marks;
    std::vector<std::optional<int>> papers;
    for (int i = 0; i < static_cast<int>(m_options.size()); ++i) {
        readMarks(i, choices, marks);
        const bool hasPaper = option(i).isPaper && !paper.empty();
        papers.push_back(hasPaper ? findChoice(i, paper.front()) : std::nullopt);
    }
    marks.holds.reserve(m_terms.size());
    for (const Term &term : m_terms)
        marks.holds.push_back(holds(term, marks, papers));
    return marks;
}

bool ConstraintTerms::holds(const Term &term, const Marks &marks,
                            const std::vector<std::optional<int>> &papers) const
{
    const auto position = static_cast<std::size_t>(term.option);
    const Option &option = m_options[position];
    if (term.choice == anyChoice) {
        const std::optional<int> last = marks.last[position];
        return last && !isOff(option.choices[static_cast<std::size_t>(*last)]);
    }
    return option.isPaper ? papers[position] == term.choice : marks.choices[position].contains(term.choice);
}

bool ConstraintTerms::holdsWith(int number, int choice) const
{
    const Term &term = this->term(number);
    return term.choice == anyChoice ? !isOff(option(term.option).choices[static_cast<std::size_t>(choice)])
                                    : term.choice == choice;
}

} // namespace printer
} // namespace host
