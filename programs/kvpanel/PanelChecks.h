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
/// panelName() returns a title.
void checkName(PanelTrial &trial);
/// panelKind() returns a name.
void checkKind(PanelTrial &trial);
/// panelView() returns the same view, without a parent, at each call.
void checkView(PanelTrial &trial);
/// supportedPPDOptionKeys() lists options of the PPD and of the metadata, each once.
void checkKeywords(PanelTrial &trial);
/// restoreValuesAndReturnError() succeeds, with and without a place for the reason.
void checkRestoring(PanelTrial &trial);
/// willShow() can be called again.
void checkShowing(PanelTrial &trial);
/// saveValuesAndReturnError() saves the same choices each time.
void checkSaving(PanelTrial &trial);
/// shouldPrint() returns the same each time.
void checkPrinting(PanelTrial &trial);
/// summaryInfo() returns titles in display order with their values.
void checkSummary(PanelTrial &trial);
/// PPDOptionKeyValueDidChange() accepts every choice and absent ones.
void checkOutsideChanges(PanelTrial &trial);
/// shouldShowHelp() returns true only for a panel with a help text.
void checkHelp(PanelTrial &trial);
/// The view can have any size.
void checkResizing(PanelTrial &trial);
/// The panel follows every paper, and saves the same choices each time.
void checkPapers(PanelTrial &trial);
/// printWindowWillClose() can be called.
void checkClosing(PanelTrial &trial);

// The optional interfaces. A panel without an interface passes its checks.
/// shownChoices() returns choices of the panel's options.
void checkShownChoices(PanelTrial &trial);
/// combinationsChosen() counts from 0.
void checkCombinations(PanelTrial &trial);
/// applyUserChoices() sets each choice that the controls can show.
void checkAppliedChoices(PanelTrial &trial);
/// summaryInfoFor() returns the same for the same choices.
void checkChoiceSummary(PanelTrial &trial);
/// stripEffects() returns one end for each label, and the same for the same choices.
void checkStrip(PanelTrial &trial);
/// reasonForDisabled() returns a sentence or nothing.
void checkReasons(PanelTrial &trial);
/// panelState() lists every option of the panel.
void checkInspection(PanelTrial &trial);

} // namespace panel_checks
