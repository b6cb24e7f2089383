// SPDX-License-Identifier: Apache-2.0
#include "Constraints.h"

#include <QCoreApplication>

#include <algorithm>

namespace host {
inline namespace printer {

namespace {

struct ConstraintsText {
    Q_DECLARE_TR_FUNCTIONS(host::printer::Constraints)
};

QString quoted(const ConflictSide &side)
{
    return ConstraintsText::tr("\"%1: %2\"").arg(side.optionText, side.choiceText);
}

} // namespace

/// Searches for changes that resolve all conflicts, one conflict after the other.
class Constraints::Search {
public:
    Search(const Constraints &constraints, const ConstraintTerms::Marks &marks, std::set<QString> fixed)
        : m_constraints(constraints.m_constraints)
        , m_terms(constraints.m_terms)
        , m_marks(marks)
        , m_fixed(std::move(fixed))
        , m_stepsLeft(looksFor(constraints.m_constraints.size()))
    {
    }

    std::optional<Changes> run()
    {
        constexpr int maxChanges = 6;
        for (int depth = 1; depth <= maxChanges && m_stepsLeft > 0; ++depth) {
            Changes changes;
            if (solve(changes, depth))
                return changes;
        }
        return std::nullopt;
    }

private:
    /// Returns the maximum number of steps, so that the search takes little time with any PPD.
    static int looksFor(std::size_t constraints)
    {
        constexpr std::size_t most = 20'000;
        constexpr std::size_t maxTotalSteps = 20'000'000;
        return static_cast<int>(std::min(most, maxTotalSteps / std::max<std::size_t>(constraints, 1)));
    }

    bool solve(Changes &changes, int depth)
    {
        const Constraint *const conflict = firstConflict(changes);
        if (!conflict)
            return true;
        // At least one side of the conflict must change.
        for (const int term : *conflict) {
            const int option = m_terms.term(term).option;
            if (depth == 0 || !mayChange(option, changes))
                continue;
            for (const int choice : choicesToTry(option)) {
                if (m_terms.holdsWith(term, choice))
                    continue;
                if (--m_stepsLeft < 0)
                    return false;
                changes.emplace_back(option, choice);
                if (solve(changes, depth - 1))
                    return true;
                changes.pop_back();
            }
        }
        return false;
    }

    const Constraint *firstConflict(const Changes &changes) const
    {
        const auto found = std::ranges::find_if(m_constraints, [&](const Constraint &each) {
            return std::ranges::all_of(each, [&](int term) { return holds(term, changes); });
        });
        return found == m_constraints.end() ? nullptr : &*found;
    }

    bool holds(int term, const Changes &changes) const
    {
        const auto change =
            std::ranges::find(changes, m_terms.term(term).option, &Changes::value_type::first);
        return change == changes.end() ? m_marks.holds[static_cast<std::size_t>(term)]
                                       : m_terms.holdsWith(term, change->second);
    }

    bool mayChange(int position, const Changes &changes) const
    {
        const ConstraintTerms::Option &option = m_terms.option(position);
        const bool isChanged =
            std::ranges::find(changes, position, &Changes::value_type::first) != changes.end();
        return !isChanged && !option.isPaper && !option.isInstallable &&
               !m_fixed.contains(QString::fromUtf8(option.keyword));
    }

    /// Returns the choices in the order of preference: the default, those that switch the option off, then
    /// the others in the PPD's order; no free values.
    std::vector<int> choicesToTry(int position) const
    {
        const ConstraintTerms::Option &option = m_terms.option(position);
        const QSet<int> &marked = m_marks.choices[static_cast<std::size_t>(position)];
        const auto name = [&](int choice) { return option.choices[static_cast<std::size_t>(choice)]; };
        // A PPD may contain a choice twice, or with different case: for its constraints, these are the same.
        QSet<QByteArray> known;
        for (const int choice : marked)
            known.insert(name(choice).toLower());
        std::vector<int> choices;
        for (int i = 0; i < static_cast<int>(option.choices.size()); ++i) {
            const bool isFree = name(i).compare(customChoiceName, Qt::CaseInsensitive) == 0;
            if (!isFree && !known.contains(name(i).toLower()))
                choices.push_back(i);
            known.insert(name(i).toLower());
        }
        const auto rank = [&](int choice) {
            return name(choice) == option.defaultChoice ? 0 : ConstraintTerms::isOff(name(choice)) ? 1 : 2;
        };
        std::ranges::stable_sort(choices, {}, rank);
        return choices;
    }

    const std::vector<Constraint> &m_constraints;
    const ConstraintTerms &m_terms;
    const ConstraintTerms::Marks &m_marks;
    std::set<QString> m_fixed;
    int m_stepsLeft;
};

QString Conflict::sentence() const
{
    QStringList texts;
    for (const ConflictSide &side : sides)
        texts.append(quoted(side));
    if (texts.size() == 1)
        return ConstraintsText::tr("This printer does not support %1.").arg(texts.first());
    const QString last = texts.takeLast();
    return ConstraintsText::tr("%1 and %2 conflict.").arg(texts.join(QStringLiteral(", ")), last);
}

QHash<QString, QStringList> sentencesByKeyword(const std::vector<Conflict> &conflicts)
{
    QHash<QString, QStringList> sentences;
    for (const Conflict &conflict : conflicts) {
        const QString sentence = conflict.sentence();
        for (const ConflictSide &side : conflict.sides)
            sentences[side.keyword].append(sentence);
    }
    for (QStringList &each : sentences)
        each.removeDuplicates();
    return sentences;
}

QStringList sentencesAbout(const QStringList &keywords, const std::vector<Conflict> &conflicts)
{
    QStringList sentences;
    for (const Conflict &conflict : conflicts) {
        if (std::ranges::any_of(keywords, [&](const QString &each) { return conflict.involves(each); }))
            sentences.append(conflict.sentence());
    }
    sentences.removeDuplicates();
    return sentences;
}

bool Conflict::involves(const QString &keyword) const
{
    return std::any_of(sides.begin(), sides.end(),
                       [&](const ConflictSide &side) { return side.keyword == keyword; });
}

QString Remedy::sentence() const
{
    QStringList texts;
    for (const Change &change : changes)
        texts.append(ConstraintsText::tr("set \"%1\" to \"%2\"").arg(change.optionText, change.choiceText));
    QString sentence = texts.join(QStringLiteral(", "));
    if (!sentence.isEmpty())
        sentence[0] = sentence[0].toUpper();
    return sentence;
}

Constraints::Constraints(const PpdFile &ppd)
    : m_ppd(ppd)
    , m_terms(ppd)
{
    read(PpdOptions(ppd).constraints());
}

void Constraints::read(const std::vector<PpdConstraint> &constraints)
{
    // PPDs must contain both "A B" and "B A"; for users, this is one constraint.
    QSet<Constraint> known;
    for (const PpdConstraint &each : constraints) {
        const std::optional<Constraint> constraint = numbered(each);
        if (!constraint || constraint->isEmpty())
            continue;
        Constraint sorted = *constraint;
        std::ranges::sort(sorted);
        const qsizetype before = known.size();
        known.insert(sorted);
        if (known.size() > before)
            m_constraints.push_back(*constraint);
    }
}

std::optional<Constraints::Constraint> Constraints::numbered(const PpdConstraint &constraint)
{
    Constraint numbers;
    for (const PpdConstraintSide &side : constraint) {
        const std::optional<int> number = m_terms.add(side);
        if (!number)
            return std::nullopt;
        numbers.append(*number);
    }
    return numbers;
}

ConflictSide Constraints::side(int option, int choice) const
{
    const ConstraintTerms::Option &source = m_terms.option(option);
    const QString keyword = QString::fromUtf8(source.keyword);
    const QString name = QString::fromUtf8(source.choices[static_cast<std::size_t>(choice)]);
    return {keyword, m_ppd.optionText(keyword), m_ppd.choiceText(keyword, name)};
}

std::vector<Conflict> Constraints::conflicts(const PpdChoices &instead) const
{
    const ConstraintTerms::Marks marks = m_terms.marks(instead);
    const auto holds = [&](int number) { return marks.holds[static_cast<std::size_t>(number)]; };
    std::vector<Conflict> conflicts;
    QSet<QStringList> told;
    // A choice may be part of thousands of conflicts; its texts are looked up once.
    QHash<std::pair<int, int>, ConflictSide> sides;
    for (const Constraint &constraint : m_constraints) {
        if (!std::ranges::all_of(constraint, holds))
            continue;
        Conflict conflict;
        QStringList words;
        for (const int number : constraint) {
            const auto &[option, choice] = m_terms.term(number);
            const int shown =
                choice == ConstraintTerms::anyChoice ? *marks.last[static_cast<std::size_t>(option)] : choice;
            auto known = sides.constFind({option, shown});
            if (known == sides.constEnd())
                known = sides.insert({option, shown}, side(option, shown));
            const ConflictSide &added = conflict.sides.emplace_back(*known);
            words << added.keyword << added.choiceText;
        }
        const qsizetype before = told.size();
        told.insert(words);
        if (told.size() > before)
            conflicts.push_back(std::move(conflict));
    }
    return conflicts;
}

std::optional<Remedy> Constraints::remedy(const std::set<QString> &keep, const PpdChoices &instead) const
{
    const ConstraintTerms::Marks marks = m_terms.marks(instead);
    std::optional<Changes> changes = Search(*this, marks, keep).run();
    if (!changes && !keep.empty())
        changes = Search(*this, marks, {}).run();
    if (!changes || changes->empty())
        return std::nullopt;
    Remedy remedy;
    for (const auto &[option, choice] : *changes) {
        const ConflictSide now = side(option, choice);
        const QByteArray &name = m_terms.option(option).choices[static_cast<std::size_t>(choice)];
        remedy.changes.push_back({now.keyword, QString::fromUtf8(name), now.optionText, now.choiceText});
    }
    return remedy;
}

} // namespace printer
} // namespace host
