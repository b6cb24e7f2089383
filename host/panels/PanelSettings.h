// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <protocol/PDEUserChoices.h>

namespace host {
inline namespace panels {

/// What a panel would do for a job that is printed now: the choices that it would save, and whether it lets
/// the job be printed. Reading it from a panel changes nothing.
struct PanelSettings {
    /// Pairs of keyword and choice, each keyword once, in the order in which the panel writes them. A keyword
    /// that the panel does not write is absent.
    PDEChoices choices = {};
    /// The number of times that the user has chosen a predefined combination (PDEUserChoices_v1); 0 if the
    /// panel does not report it.
    int combinationsChosen = 0;
    /// The reason why the panel does not let the job be printed; absent if it does.
    std::optional<QString> error = {};

    /// The choice for the keyword; absent if the panel does not write the keyword.
    std::optional<QString> choice(const QString &keyword) const;

    bool operator==(const PanelSettings &) const = default;
};

/// Sets the choice for the keyword: replaces its entry, or appends one.
void setChoice(PDEChoices &choices, const QString &keyword, const QString &choice);
/// Returns the choice for the keyword; absent if the list does not contain the keyword.
std::optional<QString> findChoice(const PDEChoices &choices, const QString &keyword);

} // namespace panels
} // namespace host
