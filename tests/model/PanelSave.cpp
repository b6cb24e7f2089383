// SPDX-License-Identifier: Apache-2.0
// What the panel saves to the dialog.
#include "Panel.h"

#include <algorithm>

namespace model {

void Panel::save()
{
    for (const Row row : rows)
        saveRow(row);
}

/// The state that is saved of a box that special tape overrules.
int Panel::savedState(Row row) const
{
    return view->isOn(Row::SpecialTape) ? 0 : (*view)[row].value;
}

void Panel::saveRow(Row row)
{
    if (row == Row::RemoveBlkSpace) {
        readTape();
        if (view)
            (*view)[row].enabled = tapeState == 0 || tapeState == 2;
    }
    if (!option(row) || !hasSettings() || (row == Row::AutoCut && !hasOwnAutoCutBox))
        return;
    if (row == Row::CutEvery) {
        saveCutEvery();
        return;
    }
    const bool overruled =
        row == Row::AutoCut || row == Row::HalfCut || row == Row::ChainPrint || row == Row::CutMark;
    if (!view)
        write(*option(row), markedElseDefault(row));
    else
        write(*option(row), overruled ? savedState(row) : (*view)[row].value);
}

void Panel::saveCutEvery()
{
    const auto marked = m_dialog.markedIndex(namesOf(Row::CutEvery).keyword);
    const int index = view ? marked : markedElseDefault(Row::CutEvery);
    if (!hasOwnAutoCutBox && option(Row::AutoCut)) {
        const int on = view ? savedState(Row::CutEvery) : markedElseDefault(Row::AutoCut);
        m_dialog.willChange(option(Row::AutoCut)->keyword, on == 1 ? "ON" : "OFF");
    }
    write(*option(Row::CutEvery), index);
}

void Panel::write(const OptionDescription &known, int index)
{
    if (known.choices.empty())
        return;
    const auto position = std::min(static_cast<std::size_t>(std::max(index, 0)), known.choices.size() - 1);
    m_dialog.willChange(known.keyword, known.choices[position].keyword);
}

} // namespace model
