// SPDX-License-Identifier: Apache-2.0
// What the user and the rest of the dialog do, and how the controls follow.
#include "Panel.h"

#include <algorithm>

namespace model {

void Panel::click(Row row)
{
    auto &box = (*view)[row];
    box.value = 1 - box.value;
    const bool cutsTape = row == Row::CutEvery || row == Row::AutoCut;
    if (cutsTape && box.value == 1 && m_dialog.isHeatShrink())
        m_dialog.report({"alert", "", m_localize("RS_Alrt_AutoCutWithHS"), QJsonArray{"OK"}});
    const Row edited = cutsTape ? Row::AutoCut : row;
    choose(edited, namesOf(edited).keyword, row, box.value);
    refresh(row);
    applyRules();
}

void Panel::choose(Row list, const QString &keyword, Row changed, int index)
{
    if (withinList(list, index) < 0)
        return;
    m_dialog.willChange(keyword, option(list)->choices[static_cast<std::size_t>(index)].keyword);
    rereadMarks(changed);
}

void Panel::type(const QString &text)
{
    changeCount(leadingNumber(text));
}

void Panel::step(int value)
{
    changeCount(value);
}

void Panel::changeCount(int count)
{
    int low = 1;
    int high = 99;
    if (choiceCount(Row::CutEvery) > 0) {
        low = leadingNumber(option(Row::CutEvery)->choices.front().keyword);
        high = leadingNumber(option(Row::CutEvery)->choices.back().keyword);
    }
    const int clamped = count < low ? low : std::min(count, high);
    view->countField.text = QString::number(clamped);
    view->countStepper.value = clamped;
    choose(Row::CutEvery, namesOf(Row::CutEvery).keyword, Row::CutEvery, clamped - low);
    refresh(Row::CutEvery);
}

void Panel::choosePreset(int tag)
{
    view->selectedPreset = tag;
    applyPreset();
}

void Panel::applyPreset()
{
    if (!view)
        return;
    auto &controls = *view;
    const int tag = controls.selectedPreset;
    const auto set = [&controls](Row row, bool on) { controls[row].value = on ? 1 : 0; };
    if (tag >= 1 && tag <= 3) {
        set(Row::CutEvery, tag == 3);
        set(Row::CutAtEnd, tag == 2);
    } else if (tag >= 4 && tag <= 11) {
        const int bits = tag - 4;
        set(Row::CutEvery, bits & 4);
        set(Row::AutoCut, bits & 4);
        set(Row::HalfCut, bits & 2);
        set(Row::ChainPrint, bits & 1);
        set(Row::SpecialTape, false);
    } else if (tag == 12) {
        set(Row::SpecialTape, true);
    } else if (tag >= 13 && tag <= 16) {
        set(Row::ChainPrint, tag == 14 || tag == 15);
        set(Row::CutMark, tag <= 14);
    }
    if (tag >= 1 && tag <= 16)
        set(Row::Mirror, false);
    applyRules();
}

void Panel::rereadMarks(Row row)
{
    if (!option(row))
        return;
    m_selections[static_cast<std::size_t>(row)] = withinList(row, markedElseDefault(row));
    if (row == Row::CutEvery)
        m_cutEveryBoxSelection = withinList(Row::AutoCut, markedElseDefault(Row::AutoCut));
}

void Panel::pull(Row row)
{
    auto &box = (*view)[row];
    const bool followsOnlyWhenEnabled = row == Row::RemoveBlkSpace || row == Row::CutMark;
    if (row == Row::CutEvery)
        pullCutEvery();
    else if (selection(row) >= 0 && (box.enabled || !followsOnlyWhenEnabled))
        box.value = std::min(selection(row), 1);
}

void Panel::pullCutEvery()
{
    if (selection(Row::CutEvery) < 0)
        return;
    const auto &held = option(Row::CutEvery)->choices[static_cast<std::size_t>(selection(Row::CutEvery))];
    view->countField.text = held.keyword;
    view->countStepper.value = leadingNumber(held.keyword);
    if (m_cutEveryBoxSelection >= 0)
        (*view)[Row::CutEvery].value = std::min(m_cutEveryBoxSelection, 1);
}

void Panel::refresh(Row row)
{
    if (!view)
        return;
    pull(row);
    if (view->presets.contains(presetTag()))
        view->selectedPreset = presetTag();
    applyRules();
}

void Panel::refreshAll()
{
    for (const Row row : rows)
        refresh(row);
    applyPreset();
}

void Panel::keywordChanged(const std::optional<QString> &keyword, const std::optional<QString> &choice)
{
    if (!keyword || !choice)
        return;
    for (const Row row : rows) {
        if (*keyword != namesOf(row).keyword)
            continue;
        auto &held = m_selections[static_cast<std::size_t>(row)];
        held = -1;
        for (int index = choiceCount(row) - 1; index >= 0; --index) {
            if (option(row)->choices[static_cast<std::size_t>(index)].keyword == *choice)
                held = index;
        }
    }
}

void Panel::paperChanged()
{
    if (m_dialog.isHeatShrink()) {
        m_dialog.mark("KvAutoTapeCut", "OFF");
        rereadMarks(Row::CutEvery);
        rereadMarks(Row::AutoCut);
    }
    refreshAll();
    applyRules();
}

} // namespace model
