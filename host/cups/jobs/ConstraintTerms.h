// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/panels/PanelSettings.h>
#include <host/printer/PpdOptions.h>

#include <QHash>
#include <QSet>

namespace host {

/// The terms that a PPD's constraints are made of, "this option has this choice", each kept once under a
/// number. PPDs may have a hundred thousand constraints, so nothing is looked for in a list. Made by
/// Constraints.
class ConstraintTerms {
public:
    struct Option {
        QByteArray keyword;
        /// With the entry that stands for a free choice.
        std::vector<QByteArray> choices;
        QByteArray defaultChoice;
        /// Says which paper there is: PageSize or PageRegion.
        bool isPaper = false;
        /// Says what the printer is fitted with.
        bool isInstallable = false;
    };
    /// An option with one of its choices, both by position; with anyChoice, any choice but "off".
    struct Term {
        int option = 0;
        int choice = anyChoice;
    };
    static constexpr int anyChoice = -1;

    /// What is marked in the PPD at one time.
    struct Marks {
        /// The marked choices of each option, by position.
        std::vector<QSet<int>> choices;
        /// The last one of them; nothing when none is marked.
        std::vector<std::optional<int>> last;
        /// Whether each term is true.
        std::vector<bool> holds;
    };

    /// The PPD is borrowed.
    explicit ConstraintTerms(const PpdFile &ppd);

    /// The term's number; nothing when the PPD lacks the option or the choice. Names in any case of letters,
    /// as libcups reads them here.
    std::optional<int> add(const PpdConstraintSide &side);

    const Term &term(int number) const { return m_terms[static_cast<std::size_t>(number)]; }
    const Option &option(int position) const { return m_options[static_cast<std::size_t>(position)]; }
    const Option &optionOf(int number) const { return option(term(number).option); }
    /// What is marked; an option among the given choices counts as marked with that choice, where it has it.
    Marks marks(const PDEChoices &instead = {}) const;
    /// Whether the term would be true if its option had the choice.
    bool holdsWith(int number, int choice) const;
    /// A choice that a constraint without a choice does not mean.
    static bool isOff(const QByteArray &choice);

private:
    std::optional<int> findOption(const QByteArray &keyword);
    int addOption(const PpdOption &option);
    std::optional<int> findChoice(int option, const QByteArray &name) const;
    void readMarks(int option, const QHash<int, int> &instead, Marks &marks) const;
    QHash<int, int> positions(const PDEChoices &choices) const;
    bool holds(const Term &term, const Marks &marks, const std::vector<std::optional<int>> &papers) const;

    PpdOptions m_ppdOptions;
    QSet<QByteArray> m_installable;
    std::vector<Option> m_options;
    std::vector<Term> m_terms;
    /// By the lower-case keyword; nothing for keywords that the PPD lacks.
    QHash<QByteArray, std::optional<int>> m_optionPositions;
    /// By the lower-case name, the first of several; for each option.
    std::vector<QHash<QByteArray, int>> m_choicePositions;
    QHash<std::pair<int, int>, int> m_termNumbers;
};

} // namespace host
