// SPDX-License-Identifier: Apache-2.0
#include "Constraints.h"

#include <QCoreApplication>

#include <algorithm>

namespace host {

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(host::Constraints)
};

bool isPaper(const ppd_option_t *option)
{
    return qstricmp(option->keyword, "PageSize") == 0 || qstricmp(option->keyword, "PageRegion") == 0;
}

/// The choices that a constraint without a choice does not mean.
bool isOff(const ppd_choice_t &choice)
{
    return qstricmp(choice.choice, "None") == 0 || qstricmp(choice.choice, "Off") == 0 ||
           qstricmp(choice.choice, "False") == 0;
}

QString quoted(const ConflictSide &side)
{
    return Text::tr("\"%1: %2\"").arg(side.optionText, side.choiceText);
}

/// The marked choice, the last for options that may have several; null when none is.
const ppd_choice_t *markedChoice(const ppd_option_t *option)
{
    for (int i = option->num_choices; i > 0; --i) {
        if (option->choices[i - 1].marked)
            return &option->choices[i - 1];
    }
    return nullptr;
}

} // namespace

/// Looks for changes that end all conflicts, one conflict after the other.
class Constraints::Search {
public:
    Search(const Constraints &constraints, std::set<QString> fixed)
        : m_constraints(constraints)
        , m_fixed(std::move(fixed))
    {
    }

    std::optional<Changes> run()
    {
        constexpr int mostChanges = 6;
        for (int depth = 1; depth <= mostChanges && m_looks > 0; ++depth) {
            Changes changes;
            if (solve(changes, depth))
                return changes;
        }
        return std::nullopt;
    }

private:
    bool solve(Changes &changes, int depth)
    {
        const Constraint *const conflict = m_constraints.firstConflict(changes);
        if (!conflict)
            return true;
        // At least one side of the conflict must change.
        for (const Term &term : *conflict) {
            if (depth == 0 || !mayChange(term.option, changes))
                continue;
            for (const int choice : choicesToTry(term)) {
                if (--m_looks < 0)
                    return false;
                changes.emplace_back(term.option, choice);
                if (!m_constraints.holds(term, changes) && solve(changes, depth - 1))
                    return true;
                changes.pop_back();
            }
        }
        return false;
    }

    bool mayChange(const ppd_option_t *option, const Changes &changes) const
    {
        const bool changed = std::any_of(changes.begin(), changes.end(),
                                         [&](const auto &change) { return change.first == option; });
        return !changed && !isPaper(option) && !m_constraints.isInstallable(option) &&
               !m_fixed.contains(QString::fromUtf8(option->keyword));
    }

    /// The default first, then what switches off, then the others in the PPD's order; never free values.
    static std::vector<int> choicesToTry(const Term &term)
    {
        const ppd_option_t &option = *term.option;
        std::vector<int> choices;
        for (int i = 0; i < option.num_choices; ++i) {
            if (!option.choices[i].marked && qstricmp(option.choices[i].choice, "Custom") != 0)
                choices.push_back(i);
        }
        const auto rank = [&](int index) {
            const ppd_choice_t &choice = option.choices[index];
            return qstrcmp(choice.choice, option.defchoice) == 0 ? 0 : isOff(choice) ? 1 : 2;
        };
        std::stable_sort(choices.begin(), choices.end(), [&](int a, int b) { return rank(a) < rank(b); });
        return choices;
    }

    const Constraints &m_constraints;
    std::set<QString> m_fixed;
    /// So that no PPD, however tangled, keeps the user waiting.
    int m_looks = 20000;
};

QString Conflict::sentence() const
{
    QStringList texts;
    for (const ConflictSide &side : sides)
        texts.append(quoted(side));
    if (texts.size() == 1)
        return Text::tr("This printer cannot do %1.").arg(texts.first());
    const QString last = texts.takeLast();
    return Text::tr("%1 and %2 exclude each other.").arg(texts.join(QStringLiteral(", ")), last);
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
        texts.append(Text::tr("set \"%1\" to \"%2\"").arg(change.optionText, change.choiceText));
    QString sentence = texts.join(QStringLiteral(", "));
    if (!sentence.isEmpty())
        sentence[0] = sentence[0].toUpper();
    return sentence;
}

Constraints::Constraints(const PpdFile &ppd)
    : m_ppd(ppd)
{
    readPairs();
    readLists();
}

void Constraints::add(Constraint constraint)
{
    // PPDs must say "A B" and "B A"; to people that is one thing.
    const auto isSame = [&](const Constraint &other) {
        return std::is_permutation(other.begin(), other.end(), constraint.begin(), constraint.end());
    };
    if (!constraint.empty() && std::none_of(m_constraints.begin(), m_constraints.end(), isSame))
        m_constraints.push_back(std::move(constraint));
}

std::optional<Constraints::Term> Constraints::term(const QByteArray &keyword, const QByteArray &choice) const
{
    const bool isCustom =
        qstrnicmp(keyword.constData(), "Custom", 6) == 0 && qstricmp(choice.constData(), "True") == 0;
    const QByteArray wanted = isCustom ? QByteArray("Custom") : choice;
    ppd_option_t *const option =
        ppdFindOption(m_ppd.handle(), isCustom ? keyword.constData() + 6 : keyword.constData());
    const ppd_choice_t *const found =
        option && !wanted.isEmpty() ? ppdFindChoice(option, wanted.constData()) : nullptr;
    if (!option || (!found && !wanted.isEmpty()))
        return std::nullopt;
    return Term{option, found};
}

void Constraints::readPairs()
{
    for (int i = 0; i < m_ppd.handle()->num_consts; ++i) {
        const ppd_const_t &pair = m_ppd.handle()->consts[i];
        const std::optional<Term> first = term(pair.option1, pair.choice1);
        const std::optional<Term> second = term(pair.option2, pair.choice2);
        if (first && second)
            add({*first, *second});
    }
}

void Constraints::readLists()
{
    for (const ppd_attr_t *each = ppdFindAttr(m_ppd.handle(), "cupsUIConstraints", nullptr); each;
         each = ppdFindNextAttr(m_ppd.handle(), "cupsUIConstraints", nullptr)) {
        // "*Option Choice *Option *Option Choice ..."
        Constraint constraint;
        bool isKnown = each->value != nullptr;
        QByteArrayList words = QByteArray(each->value).simplified().split(' ');
        while (isKnown && !words.isEmpty()) {
            const QByteArray word = words.takeFirst();
            if (!word.startsWith('*'))
                continue;
            const bool hasChoice = !words.isEmpty() && !words.first().startsWith('*');
            const std::optional<Term> read = term(word.mid(1), hasChoice ? words.takeFirst() : QByteArray());
            isKnown = read.has_value();
            if (read)
                constraint.push_back(*read);
        }
        if (isKnown)
            add(std::move(constraint));
    }
}

bool Constraints::holds(const Term &term, const Changes &changes) const
{
    for (const auto &[option, index] : changes) {
        if (option != term.option)
            continue;
        const ppd_choice_t &choice = option->choices[index];
        return term.choice ? &choice == term.choice : !isOff(choice);
    }
    if (term.choice && isPaper(term.option)) {
        // PageRegion follows PageSize, whatever is marked for it.
        const ppd_size_t *const size = ppdPageSize(m_ppd.handle(), nullptr);
        return size && qstricmp(size->name, term.choice->choice) == 0;
    }
    if (term.choice)
        return term.choice->marked != 0;
    const ppd_choice_t *const marked = markedChoice(term.option);
    return marked && !isOff(*marked);
}

const Constraints::Constraint *Constraints::firstConflict(const Changes &changes) const
{
    const auto found = std::find_if(m_constraints.begin(), m_constraints.end(), [&](const Constraint &each) {
        return std::all_of(each.begin(), each.end(), [&](const Term &term) { return holds(term, changes); });
    });
    return found == m_constraints.end() ? nullptr : &*found;
}

bool Constraints::isInstallable(const ppd_option_t *option) const
{
    for (int i = 0; i < m_ppd.handle()->num_groups; ++i) {
        const ppd_group_t &group = m_ppd.handle()->groups[i];
        const bool holdsOption = option >= group.options && option < group.options + group.num_options;
        if (holdsOption)
            return qstricmp(group.name, "InstallableOptions") == 0;
    }
    return false;
}

ConflictSide Constraints::side(const Term &term) const
{
    const QString keyword = QString::fromUtf8(term.option->keyword);
    const ppd_choice_t *const choice = term.choice ? term.choice : markedChoice(term.option);
    return {keyword, m_ppd.optionText(keyword), m_ppd.choiceText(keyword, QString::fromUtf8(choice->choice))};
}

std::vector<Conflict> Constraints::conflicts() const
{
    std::vector<Conflict> conflicts;
    for (const Constraint &constraint : m_constraints) {
        if (!std::all_of(constraint.begin(), constraint.end(),
                         [&](const Term &term) { return holds(term, {}); }))
            continue;
        Conflict conflict;
        for (const Term &term : constraint)
            conflict.sides.push_back(side(term));
        const auto isSame = [&](const Conflict &other) { return other.sides == conflict.sides; };
        if (std::none_of(conflicts.begin(), conflicts.end(), isSame))
            conflicts.push_back(std::move(conflict));
    }
    return conflicts;
}

std::optional<Remedy> Constraints::remedy(const std::set<QString> &keep) const
{
    if (!firstConflict({}))
        return std::nullopt;
    std::optional<Changes> changes = Search(*this, keep).run();
    if (!changes && !keep.empty())
        changes = Search(*this, {}).run();
    if (!changes)
        return std::nullopt;
    Remedy remedy;
    for (const auto &[option, index] : *changes) {
        const ConflictSide now = side({option, &option->choices[index]});
        remedy.changes.push_back(
            {now.keyword, QString::fromUtf8(option->choices[index].choice), now.optionText, now.choiceText});
    }
    return remedy;
}

} // namespace host
