// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/strip/StripEffects.h>

/// How a printer of the tests cuts: after every so many labels, at the end, half, marked, held.
struct SampleCuts {
    bool automaticCut = false;
    int labelsPerCut = 1;
    bool cutAtEnd = false;
    bool halfCut = false;
    bool chainPrint = false;
    bool mirror = false;
    bool removeBlank = false;
    bool cutMark = false;
};

/// The effects on this number of labels, as a panel would report them.
inline host::StripEffects effectsOn(std::size_t count, const SampleCuts &cuts)
{
    host::StripEffects effects{
        .ends = std::vector<host::LabelEnd>(count), .mirror = cuts.mirror, .removeBlank = cuts.removeBlank};
    for (std::size_t i = 0; i < count; ++i) {
        host::LabelEnd &end = (*effects.ends)[i];
        const bool isLast = i + 1 == count;
        const bool isTurn = (i + 1) % static_cast<std::size_t>(cuts.labelsPerCut) == 0;
        const bool endsJob = isLast && (cuts.automaticCut || cuts.cutAtEnd);
        end.held = isLast && cuts.chainPrint;
        end.fullCut = !end.held && (endsJob || (cuts.automaticCut && isTurn));
        end.halfCut = cuts.halfCut && !end.fullCut && !isLast;
        end.cutMark = cuts.cutMark && !end.fullCut;
    }
    return effects;
}
