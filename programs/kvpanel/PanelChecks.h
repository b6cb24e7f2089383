// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <span>

class PanelTrial;

/// The checks of a panel: each calls the panel at one moment of its life and reports the breaches of the
/// protocol. They run in the order of the table, which is that of a dialog.
namespace panel_checks {

/// A check and the call of the protocol that it is about.
struct PanelCheck {
    const char *call;
    void (*run)(PanelTrial &);
    /// The check needs the view. It is skipped if the panel has none.
    bool needsView = false;
};

/// All checks, in the order of a panel's life.
std::span<const PanelCheck> all();

// The calls of PDEPanel.
void checkName(PanelTrial &trial);
void checkKind(PanelTrial &trial);
void checkView(PanelTrial &trial);
void checkKeywords(PanelTrial &trial);
void checkRestoring(PanelTrial &trial);
void checkShowing(PanelTrial &trial);
void checkSaving(PanelTrial &trial);
void checkPrinting(PanelTrial &trial);
void checkSummary(PanelTrial &trial);
void checkOutsideChanges(PanelTrial &trial);
void checkHelp(PanelTrial &trial);
void checkResizing(PanelTrial &trial);
void checkPapers(PanelTrial &trial);
void checkClosing(PanelTrial &trial);

// The optional interfaces. A panel without an interface passes its checks.
void checkShownChoices(PanelTrial &trial);
void checkCombinations(PanelTrial &trial);
void checkAppliedChoices(PanelTrial &trial);
void checkChoiceSummary(PanelTrial &trial);
void checkStrip(PanelTrial &trial);
void checkReasons(PanelTrial &trial);
void checkInspection(PanelTrial &trial);

} // namespace panel_checks
