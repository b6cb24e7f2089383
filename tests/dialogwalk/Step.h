// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <cstdint>

namespace dialogwalk {

/// Something that a user does in the dialog.
enum class Action {
    ClickBox,
    ToggleBoxBySpaceBar,
    ToggleBoxByAccessibility,
    PickPreset,
    StepPresetByKey,
    StepCount,
    StepCountByKey,
    TypeCount,
    SetCountByAccessibility,
    PickPaper,
    StepPaperByKey,
    TurnToPage,
    ChangeBoxByTimer,
    OperateRoll,
    PickQueue,
    PickOption,
    StepOptionByKey,
    PressRemedy,
    TypeCopies,
    StepCopies,
    ClickCollate,
    ClickLastFirst,
    TypePages,
    ReplacePpd,
    Print,
    Reopen,
};

/// An action, and a number that selects its object among those present: boxes, papers, pages. The same steps
/// from the same beginning are the same walk, and every part of them is a walk.
struct Step {
    Action action = Action::ClickBox;
    std::uint32_t number = 0;
};

QString nameOf(Action action);

} // namespace dialogwalk
