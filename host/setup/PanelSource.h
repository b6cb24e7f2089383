// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/panels/PanelSession.h>

namespace host {
inline namespace setup {

enum class PanelErrorKind {
    NoPanel,      ///< no bundle, or one that is of no use here: the dialog goes on without it
    BrokenBundle, ///< the bundle lacks files of its own: printing on would mislead
};
using PanelError = Failure<PanelErrorKind>;

/// A bundle's panels at work for one printer, and the PPD keywords that they take care of.
struct ClaimedPanels {
    /// Null when the panels have nothing to offer for this printer.
    std::unique_ptr<PanelSession> session;
    QStringList keywords;
};

/// Where the panels of the dialog come from: the bundle in a folder, or the installed one, with its texts in
/// the first of the user's languages that it has.
struct PanelSource {
    /// As PanelBundle::find() takes it.
    std::optional<QString> folder = {};
    QStringList languages = {};

    /// Loads the bundle and has it make its panels for the printer. The first panel's view is loaded and
    /// shows what the PPD has marked.
    Result<ClaimedPanels, PanelError> panelsFor(const std::shared_ptr<DialogState> &state) const;
};

} // namespace setup
} // namespace host
