// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/panels/RecordedChoices.h>
#include <host/printer/PpdFile.h>

namespace host {

/// How a job's labels are cut and finished, as its option choices say. What the printer's PPD lacks is off.
struct CutSettings {
    /// Full cuts are made by the printer, one after every labelsPerCut labels.
    bool automaticCut = false;
    /// At least 1.
    int labelsPerCut = 1;
    bool cutAtEnd = false;
    bool halfCut = false;
    bool chainPrint = false;
    /// Tape that the cutter must not touch.
    bool specialTape = false;
    bool mirror = false;
    bool removeBlank = false;
    bool cutMark = false;
    /// False when the PPD has none of these options: such a printer may cut as it likes, and the settings say
    /// nothing about it.
    bool areKnown = true;

    /// Whether the PPD has any option of these.
    static bool areKnownTo(const PpdFile &ppd);

    bool operator==(const CutSettings &) const = default;

    /// The settings of a job: its recorded choices; where it has none, what is marked in the PPD; where
    /// nothing is marked, the PPD's default.
    static CutSettings fromJob(const PpdFile &ppd, const RecordedChoices &recorded);
};

} // namespace host
