// SPDX-License-Identifier: Apache-2.0
// What the panel's options do to the strip of labels.
#include "OptionPDE.h"
#include "StripRules.h"

PDEStripEffects OptionPDE13_v400_::stripEffects(const PDEChoices &choices,
                                                std::span<const PDELabel> labels) const
{
    const CutSettings settings = striprules::cutSettings(ppd, choices);
    PDEStripEffects effects = striprules::effects(settings, labels.size());
    if (settings.specialTape)
        effects.cuttingText = localized(QStringLiteral("RS_Strip_SpecialTape"));
    return effects;
}
