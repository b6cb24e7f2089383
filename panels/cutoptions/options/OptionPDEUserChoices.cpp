// SPDX-License-Identifier: Apache-2.0
// Applies choices that the user made before or elsewhere to the panel's own controls.
#include "Controls.h"
#include "OptionPDE.h"

#include <platform/Numbers.h>

PDEChoices OptionPDE13_v400_::shownChoices() const
{
    PDEChoices shown;
    for (const OptionRow &row : optionTable) {
        const std::optional<QString> choice = option(row.kind) ? choiceShown(row.kind) : std::nullopt;
        if (choice)
            shown.emplace_back(QLatin1String(row.keyword), *choice);
    }
    return shown;
}

void OptionPDE13_v400_::applyUserChoices(const PDEChoices &choices)
{
    // Special tape is applied first, since the saved choices of the cut options depend on it. A control that
    // the paper has disabled is set, too: its state is saved, and a predefined combination also sets it.
    applyUserChoice(OptionKind::SpecialTape, choices);
    for (const OptionRow &row : optionTable) {
        if (row.kind != OptionKind::SpecialTape)
            applyUserChoice(row.kind, choices);
    }
}

void OptionPDE13_v400_::applyUserChoice(OptionKind kind, const PDEChoices &choices)
{
    const std::optional<QString> choice = choiceGiven(kind, choices);
    if (!choice || !option(kind) || choiceShown(kind) == choice)
        return;
    if (kind == OptionKind::CutLabel)
        applyToCount(indexGiven(kind, choices));
    else
        applyToBox(kind, boxIndexGiven(kind, choices));
}

int OptionPDE13_v400_::boxIndexGiven(OptionKind kind, const PDEChoices &choices) const
{
    // Without its own box, the automatic cut is saved as ON or OFF, which may be missing in its list.
    if (kind == OptionKind::AutoCut && !mAutoCutHideKey_dec) {
        const std::optional<QString> choice = choiceGiven(kind, choices);
        if (choice == QStringLiteral("ON"))
            return 1;
        if (choice == QStringLiteral("OFF"))
            return 0;
    }
    return indexGiven(kind, choices);
}

void OptionPDE13_v400_::applyToBox(OptionKind kind, int index)
{
    // If the automatic cut does not have its own box, saving reads the box of the cut-every row.
    const bool chained = kind == OptionKind::AutoCut && !mAutoCutHideKey_dec;
    const OptionRow &edited = optionRow(chained ? OptionKind::CutLabel : kind);
    QCheckBox *const box = checkBox(edited.kind);
    const bool canShow = index == 0 || index == 1;
    if (!canShow || !controls::isShown(box) || controls::state(box) == index)
        return;
    controls::setState(box, index);
    if (mOptionView)
        mOptionView->update();
    chooseBoxState(edited);
    enabledCheck_OP();
}

void OptionPDE13_v400_::applyToCount(int index)
{
    if (index < 0 || !controls::isShown(mCutEveryTxBx))
        return;
    const QString count =
        (*choices(OptionKind::CutLabel))[static_cast<std::size_t>(index)]->ppdTitle().value_or(QString());
    // In a list with gaps, typing the number of this choice may select another one.
    const CountRange counts = countRange();
    if (counts.indexOf(counts.clamped(platform::integerValue(count))) != index)
        return;
    showCount(count);
    changeCutEveryValue(mCutEveryTxBx);
}
