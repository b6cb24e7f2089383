// SPDX-License-Identifier: Apache-2.0
#pragma once

/// How the labels of a job are cut and finished, according to the choices of the options. Settings whose
/// options are missing in the PPD are off.
struct CutSettings {
    /// The printer makes a full cut after every labelsPerCut labels.
    bool automaticCut = false;
    /// The number of labels between two automatic cuts, at least 1.
    int labelsPerCut = 1;
    /// The printer makes a full cut after the last label.
    bool cutAtEnd = false;
    /// The printer cuts through the label layer, but not the backing, between the labels of a piece.
    bool halfCut = false;
    /// The end of the strip stays in the printer, and the next job continues there.
    bool chainPrint = false;
    /// The tape must not be cut by the cutter: the printer makes no cuts and prints no cut marks.
    bool specialTape = false;
    /// The labels are printed mirrored.
    bool mirror = false;
    /// Blank tape before and after the printed part of each label is removed.
    bool removeBlank = false;
    /// A mark is printed after each label that is not followed by a full cut.
    bool cutMark = false;

    bool operator==(const CutSettings &) const = default;
};
