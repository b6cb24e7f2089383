// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ConstraintTerms.h"

#include <set>

namespace host {
inline namespace printer {

/// One of the choices of a conflict, with its texts for users.
struct ConflictSide {
    QString keyword;
    QString optionText;
    QString choiceText;

    bool operator==(const ConflictSide &) const = default;
};

/// Marked choices that the printer does not support together; usually two.
struct Conflict {
    std::vector<ConflictSide> sides;

    /// Describes the conflict and names all sides, in the user's language: "Mirror: On" and "Paper: 24 mm"
    /// exclude each other.
    QString sentence() const;
    /// Returns whether the option is one of the sides.
    bool involves(const QString &keyword) const;
};

/// Returns the sentences of the conflicts by the keywords of their options, each sentence once per option.
QHash<QString, QStringList> sentencesByKeyword(const std::vector<Conflict> &conflicts);
/// Returns the sentences of the conflicts that involve at least one of the options, each once.
QStringList sentencesAbout(const QStringList &keywords, const std::vector<Conflict> &conflicts);

/// Changes that resolve all conflicts without changing the paper.
struct Remedy {
    /// An option and its new choice, with their texts for users.
    struct Change {
        QString keyword;
        QString choice;
        QString optionText;
        QString choiceText;
    };
    std::vector<Change> changes;

    /// Describes the changes for the text of a button, in the user's language: Set "Mirror" to "Off".
    QString sentence() const;
};

/// The constraints of a PPD: its UIConstraints, NonUIConstraints and cupsUIConstraints, evaluated as by
/// ppdConflicts(). libcups reports which options have conflicts, but not with which others; and
/// cupsResolveConflicts() changes the paper if that needs the fewest changes.
class Constraints {
public:
    /// Reads the PPD's constraints. The PPD is borrowed.
    explicit Constraints(const PpdFile &ppd);

    /// Returns the conflicts among the marked choices, each once. The choices of the parameter instead
    /// replace what is marked for their options.
    std::vector<Conflict> conflicts(const PpdChoices &instead = {}) const;

    /// Returns the smallest set of changes that resolves all these conflicts. PageSize and the installable
    /// options do not change; options in keep (those just set by the user) change only if there is no other
    /// resolution. Defaults are preferred to other choices. Returns no value if there is no conflict, or no
    /// resolution with up to six changes.
    std::optional<Remedy> remedy(const std::set<QString> &keep = {}, const PpdChoices &instead = {}) const;

private:
    /// The numbers of the terms, in the PPD's order.
    using Constraint = QList<int>;
    /// The option and its new choice, by position.
    using Changes = std::vector<std::pair<int, int>>;
    class Search;

    void read(const std::vector<PpdConstraint> &constraints);
    std::optional<Constraint> numbered(const PpdConstraint &constraint);
    ConflictSide side(int option, int choice) const;

    const PpdFile &m_ppd;
    ConstraintTerms m_terms;
    std::vector<Constraint> m_constraints;
};

} // namespace printer
} // namespace host
