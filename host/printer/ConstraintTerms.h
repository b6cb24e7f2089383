// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PpdOptions.h"

#include <QHash>
#include <QSet>

#include <utility>
#include <vector>

namespace host {
inline namespace printer {

/// The terms of a PPD's constraints, "this option has this choice", each stored once and identified by a
/// number. A PPD may have a hundred thousand constraints, so all lookups use hash tables. Used by
/// Constraints.
class ConstraintTerms {
public:
    /// An option that a term refers to.
    struct Option {
        QByteArray keyword;
        /// The names of the choices, including the entry for a free choice.
        std::vector<QByteArray> choices;
        QByteArray defaultChoice;
        /// Whether the option selects the paper: PageSize or PageRegion.
        bool isPaper = false;
        /// Whether the option describes what is installed in the printer.
        bool isInstallable = false;
    };
    /// An option and one of its choices, by their positions; anyChoice stands for all choices except those of
    /// isOff().
    struct Term {
        int option = 0;
        int choice = anyChoice;
    };
    /// The position that stands for any choice except those of isOff().
    static constexpr int anyChoice = -1;

    /// The choices that are marked in the PPD at one time.
    struct Marks {
        /// The marked choices of each option, by position.
        std::vector<QSet<int>> choices;
        /// The last marked choice of each option; absent if none is marked.
        std::vector<std::optional<int>> last;
        /// Whether each term is true, by number.
        std::vector<bool> holds;
    };

    /// The PPD is borrowed.
    explicit ConstraintTerms(const PpdFile &ppd);

    /// Adds the term, unless it is known, and returns its number; no value if the PPD does not have the
    /// option or the choice. Names are case-insensitive, as in libcups.
    std::optional<int> add(const PpdConstraintSide &side);

    /// The term with the number; the option at the position; the option of the term with the number.
    const Term &term(int number) const { return m_terms[static_cast<std::size_t>(number)]; }
    const Option &option(int position) const { return m_options[static_cast<std::size_t>(position)]; }
    const Option &optionOf(int number) const { return option(term(number).option); }
    /// Returns what is marked. The choices of the parameter instead replace what is marked for their options,
    /// where the options have them.
    Marks marks(const PpdChoices &instead = {}) const;
    /// Returns whether the term would be true if its option had the choice at the position.
    bool holdsWith(int number, int choice) const;
    /// Returns whether a constraint that names no choice does not apply to this one: "None", "Off" or
    /// "False", in any case.
    static bool isOff(const QByteArray &choice);

private:
    std::optional<int> findOption(const QByteArray &keyword);
    int addOption(const PpdOption &option);
    std::optional<int> findChoice(int option, const QByteArray &name) const;
    void readMarks(int option, const QHash<int, int> &instead, Marks &marks) const;
    QHash<int, int> positions(const PpdChoices &choices) const;
    bool holds(const Term &term, const Marks &marks, const std::vector<std::optional<int>> &papers) const;

    PpdOptions m_ppdOptions;
    QSet<QByteArray> m_installable;
    std::vector<Option> m_options;
    std::vector<Term> m_terms;
    /// By lowercase keyword; absent for keywords that the PPD does not have.
    QHash<QByteArray, std::optional<int>> m_optionPositions;
    /// For each option, by lowercase name; the first of several choices with the same name.
    std::vector<QHash<QByteArray, int>> m_choicePositions;
    QHash<std::pair<int, int>, int> m_termNumbers;
};

} // namespace printer
} // namespace host
