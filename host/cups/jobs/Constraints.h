// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ConstraintTerms.h"

#include <set>

namespace host {

/// One of the choices that exclude each other, with its texts for people.
struct ConflictSide {
    QString keyword;
    QString optionText;
    QString choiceText;

    bool operator==(const ConflictSide &) const = default;
};

/// Choices that are marked and that the printer cannot do together; mostly two.
struct Conflict {
    std::vector<ConflictSide> sides;

    /// "Mirror: On" and "Paper: 24 mm" exclude each other; in the user's language, naming all sides.
    QString sentence() const;
    bool involves(const QString &keyword) const;
};

/// The sentences of the conflicts by the options that they involve, each once for an option.
QHash<QString, QStringList> sentencesByKeyword(const std::vector<Conflict> &conflicts);
/// The sentences of the conflicts that involve one of the options, each once.
QStringList sentencesAbout(const QStringList &keywords, const std::vector<Conflict> &conflicts);

/// Changes that end all conflicts and leave the paper as it is.
struct Remedy {
    struct Change {
        QString keyword;
        QString choice;
        QString optionText;
        QString choiceText;
    };
    std::vector<Change> changes;

    /// What the remedy does, to be written on its button: Set "Mirror" to "Off".
    QString sentence() const;
};

/// What a PPD says about choices that exclude each other: its UIConstraints, NonUIConstraints and
/// cupsUIConstraints, read as ppdConflicts() reads them. libcups tells which options are in conflict, but
/// not with which others; and cupsResolveConflicts() changes the paper when that is the quickest way.
class Constraints {
public:
    /// Reads the PPD's constraints. The PPD is borrowed.
    explicit Constraints(const PpdFile &ppd);

    /// The conflicts among what is marked now, each once. The given choices count instead of what is marked
    /// for their options.
    std::vector<Conflict> conflicts(const PDEChoices &instead = {}) const;

    /// The fewest changes that end all those conflicts. PageSize stays as it is, and so
    /// does what the printer has installed; options in keep (those just chosen) are changed only when nothing
    /// else helps. Defaults are tried before other choices. Nothing when there is no conflict, or no remedy
    /// of up to six changes.
    std::optional<Remedy> remedy(const std::set<QString> &keep = {}, const PDEChoices &instead = {}) const;

private:
    /// The numbers of its terms, in the PPD's order.
    using Constraint = QList<int>;
    /// A choice by position, for each option that is to be changed.
    using Changes = std::vector<std::pair<int, int>>;
    class Search;

    void read(const std::vector<PpdConstraint> &constraints);
    std::optional<Constraint> numbered(const PpdConstraint &constraint);
    ConflictSide side(int option, int choice) const;

    const PpdFile &m_ppd;
    ConstraintTerms m_terms;
    std::vector<Constraint> m_constraints;
};

} // namespace host
