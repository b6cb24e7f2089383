// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/panels/PanelSession.h>

namespace host {
inline namespace setup {

/// Why the panels of a bundle cannot be used.
enum class PanelErrorKind {
    NoPanel,      ///< no bundle, or one that is of no use here: the dialog goes on without it
    BrokenBundle, ///< the bundle lacks files of its own: printing on would mislead
};
using PanelError = Failure<PanelErrorKind>;

/// The panels of a bundle for one printer, and the PPD keywords that they handle.
struct ClaimedPanels {
    /// Null if the panels handle no option of this printer.
    std::unique_ptr<PanelSession> session;
    QStringList keywords;
};

/// Where panels are loaded from: a bundle in a folder, or the installed one, with its texts in the first of
/// the user's languages that the bundle has.
struct PanelSource {
    /// The folder for PanelBundle::find(); absent for the installed bundle.
    std::optional<QString> folder = {};
    QStringList languages = {};

    /// Loads the bundle and creates its panels for the printer. The view of the first panel is loaded and
    /// shows the marked choices of the PPD.
    Result<ClaimedPanels, PanelError> panelsFor(const std::shared_ptr<DialogState> &state) const;
};

} // namespace setup
} // namespace host
