// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <protocol/PDEUserChoices.h>

namespace host {

/// What a panel would do for a job that is printed now: the choices that it would save, and whether it lets
/// the job pass. Asking a panel for it changes nothing.
struct PanelSettings {
    /// Keyword and choice, each keyword once, in the order in which the panel writes them. A keyword that the
    /// panel does not write is absent.
    PDEChoices choices = {};
    /// How many ready-made combinations the user has chosen (PDEUserChoices_v1); 0 for a panel that does not
    /// say.
    int combinationsChosen = 0;
    /// Why the panel does not let the job be printed; absent when it does.
    std::optional<QString> error = {};

    /// The choice of the keyword; absent when the panel does not write it.
    std::optional<QString> choice(const QString &keyword) const;

    bool operator==(const PanelSettings &) const = default;
};

/// Sets the keyword's choice in place, or appends it.
void setChoice(PDEChoices &choices, const QString &keyword, const QString &choice);
/// The keyword's choice; absent when the keyword is.
std::optional<QString> findChoice(const PDEChoices &choices, const QString &keyword);

} // namespace host
