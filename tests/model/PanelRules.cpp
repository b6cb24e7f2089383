// SPDX-License-Identifier: Apache-2.0
// Which controls are enabled, and which preset and picture describe the boxes.
#include "Panel.h"

namespace model {

void Panel::setCountEnabled(bool enabled)
{
    view->countField.enabled = view->countStepper.enabled = enabled;
    view->isWordGrey = !enabled;
}

void Panel::applyRules()
{
    if (!view)
        return;
    auto &controls = *view;
    const bool flag = m_dialog.paperBeginsWith("FL");
    controls[Row::RemoveBlkSpace].enabled =
        !flag && !m_dialog.paperBeginsWith("DC") && !m_dialog.paperBeginsWith("AV");
    if (flag)
        controls[Row::HalfCut].enabled = false;

    auto &special = controls[Row::SpecialTape];
    if (!special.hidden) {
        special.enabled = !flag;
        if (flag) {
            controls[Row::ChainPrint].enabled = false;
        } else {
            const bool excluded = special.value == 1;
            for (const Row row : {Row::AutoCut, Row::ChainPrint, Row::HalfCut, Row::CutEvery})
                controls[row].enabled = !excluded;
            if (excluded) {
                controls.isWordGrey |= controls.countStepper.enabled;
                controls.countField.enabled = controls.countStepper.enabled = false;
            }
        }
    }

    const auto &cutEvery = controls[Row::CutEvery];
    const bool bothEnabled = controls.countField.enabled && controls.countStepper.enabled;
    const bool bothDisabled = !controls.countField.enabled && !controls.countStepper.enabled;
    if (cutEvery.enabled && (cutEvery.value == 0 ? bothEnabled : bothDisabled))
        setCountEnabled(cutEvery.value == 1);
}

int Panel::presetTag() const
{
    const auto &controls = *view;
    const bool special = controls.isOn(Row::SpecialTape);
    const bool cutting = !special && (controls.isOn(Row::CutEvery) || controls.isOn(Row::AutoCut));
    const bool half = !special && controls.isOn(Row::HalfCut);
    const bool chain = !special && controls.isOn(Row::ChainPrint);
    if (m_dialog.isPaperLabelSeries())
        return cutting ? 3 : controls.isOn(Row::CutAtEnd) ? 2 : 1;
    if (m_dialog.paperBeginsWith("FL"))
        return cutting ? (half ? 1 : 8) : (half ? 1 : 4);
    if (controls[Row::CutMark].hidden)
        return special ? 12 : 4 + (chain ? 1 : 0) + (half ? 2 : 0) + (cutting ? 4 : 0);
    if (controls.isOn(Row::CutMark))
        return chain ? 14 : 13;
    return chain ? 15 : 16;
}

bool Panel::isPresetAllowed(int tag) const
{
    return !m_dialog.paperBeginsWith("FL") || !QList{5, 6, 7, 9, 10, 11, 12}.contains(tag);
}

QString Panel::picture() const
{
    const auto &controls = *view;
    const auto word = [](bool on) { return on ? QStringLiteral("On") : QStringLiteral("Off"); };
    const bool special = controls.isOn(Row::SpecialTape);
    const bool cutting = !special && (controls.isOn(Row::CutEvery) || controls.isOn(Row::AutoCut));
    const auto mirror = word(controls.isOn(Row::Mirror));
    if (m_dialog.isPaperLabelSeries())
        return "EveryEndMirror" + word(cutting) + word(!cutting && controls.isOn(Row::CutAtEnd)) + mirror;
    if (special)
        return "SPMROn" + mirror;
    return "AHCM" + word(cutting) + word(controls.isOn(Row::HalfCut)) + word(controls.isOn(Row::ChainPrint)) +
           mirror;
}

} // namespace model
