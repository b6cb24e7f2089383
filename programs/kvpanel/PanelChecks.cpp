// SPDX-License-Identifier: Apache-2.0
#include "PanelChecks.h"

namespace panel_checks {

namespace {

constexpr PanelCheck table[] = {
    {"panelName", checkName},
    {"panelKind", checkKind},
    {"panelView", checkView},
    {"supportedPPDOptionKeys", checkKeywords, true},
    {"restoreValuesAndReturnError", checkRestoring, true},
    {"willShow", checkShowing, true},
    {"saveValuesAndReturnError", checkSaving, true},
    {"shouldPrint", checkPrinting, true},
    {"summaryInfo", checkSummary, true},
    {"PPDOptionKeyValueDidChange", checkOutsideChanges, true},
    {"shownChoices", checkShownChoices, true},
    {"combinationsChosen", checkCombinations, true},
    {"applyUserChoices", checkAppliedChoices, true},
    {"summaryInfoFor", checkChoiceSummary, true},
    {"stripEffects", checkStrip, true},
    {"reasonForDisabled", checkReasons, true},
    {"shouldShowHelp", checkHelp, true},
    {"panelState", checkInspection, true},
    {"resizing of the view", checkResizing, true},
    {"change of the paper", checkPapers, true},
    {"printWindowWillClose", checkClosing, true},
};

} // namespace

std::span<const PanelCheck> all()
{
    return table;
}

} // namespace panel_checks
