// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PDEUserChoices.h"

#include <platform/Export.h>

#include <QString>

#include <optional>
#include <span>
#include <vector>

/// A label of the job, in print order.
struct PDELabel {
    /// Whether it is the last label of one copy of a document. Without collating, the copies of a page follow
    /// each other, and only the last label of the document ends a copy.
    bool endsCopy = false;
    /// Whether it is the last label of a document with all its copies.
    bool endsDocument = false;

    bool operator==(const PDELabel &) const = default;
};

/// What the printer does to the tape after a label; nothing if all members are false.
struct PDELabelEnd {
    /// Cuts through tape and backing.
    bool fullCut = false;
    /// Cuts through the label layer only; the backing holds the strip together.
    bool halfCut = false;
    /// Prints a line along which the user can cut by hand.
    bool cutMark = false;
    /// Keeps the end of the tape in the printer; the next job continues there.
    bool held = false;

    bool operator==(const PDELabelEnd &) const = default;
};

/// Whether the options of a panel determine how the printer cuts.
enum class PDECutting {
    NotConcerned, ///< the panel has no option that affects the cuts
    NotKnown,     ///< the printer cuts as it is set up at its own controls, for example
    Known,
};

/// What the choices of a panel's options do to the labels of a job.
struct PDEStripEffects {
    PDECutting cutting = PDECutting::NotConcerned;
    /// What follows each label, in print order, if the cutting is known: one element for each label.
    std::vector<PDELabelEnd> ends = {};
    /// The labels are printed mirrored, across the tape.
    bool mirror = false;
    /// Blank tape before and after the printed part of each label is removed.
    bool removeBlank = false;
    /// The tape that the printer feeds before the first label, in points; absent if the options do not
    /// determine it. The dialog then uses the margin of the paper.
    std::optional<double> leadingMargin = {};
    /// A sentence in the user's language that the dialog shows instead of its own about full cuts; absent if
    /// the dialog's sentence, which it derives from the ends, is sufficient. The dialog ignores it if the
    /// options of another panel cut elsewhere.
    std::optional<QString> cuttingText = {};
};

/// Optional interface of a panel, version 1: what the choices of its options do to the strip of labels. The
/// dialog draws the strip, counts its pieces and describes the cuts from this. For a printer without such a
/// panel, the dialog shows that the cutting is not known.
class KV_EXPORT PDELabelStrip_v1 {
public:
    virtual ~PDELabelStrip_v1() = default;

    /// Returns the effects of these choices on the labels, which are in print order. The choices are those
    /// that the job contains; for an option that is not among them, the choice that is marked in the PPD is
    /// used, and without a mark the PPD's default. Options of other panels are ignored. Changes nothing. The
    /// dialog calls it after each input, for up to 100,000 labels.
    virtual PDEStripEffects stripEffects(const PDEChoices &choices,
                                         std::span<const PDELabel> labels) const = 0;
};
