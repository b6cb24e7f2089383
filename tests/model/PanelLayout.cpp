// SPDX-License-Identifier: Apache-2.0
// The panel's controls when they are loaded: which rows there are, where they stand, which presets remain.
#include "Panel.h"

#include <algorithm>

namespace model {

namespace {

constexpr std::array<Row, 9> screenOrder = {
    Row::CutMark,     Row::CutEvery,   Row::AutoCut, Row::CutAtEnd,       Row::HalfCut,
    Row::SpecialTape, Row::ChainPrint, Row::Mirror,  Row::RemoveBlkSpace,
};

constexpr int rowHeight = 26;

int heightOf(Row row)
{
    return row == Row::CutEvery ? 2 * rowHeight : rowHeight;
}

} // namespace

void Panel::View::removePresets(const QList<int> &tags)
{
    for (const int tag : tags) {
        presets.removeOne(tag);
        if (selectedPreset == tag)
            selectedPreset = presets.value(0);
    }
}

void Panel::loadView()
{
    if (view)
        return;
    view = View();
    const auto bottom = [this](const char *control) {
        const auto frame = m_layout.frame(control);
        return m_layout.viewHeight() - frame.y() - frame.height();
    };
    for (const Row row : rows)
        (*view)[row].y = bottom(namesOf(row).box);
    view->countField.y = bottom("mCutEveryTxBx");
    view->countStepper.y = bottom("mCutEveryStpr");
    view->countWord.y = bottom("mCutEveryStr");
    view->height = m_layout.viewHeight();
    for (int tag = 1; tag <= 16; ++tag)
        view->presets.append(tag);
    view->selectedPreset = 1;
    layOut();
}

bool Panel::isRowShown(Row row) const
{
    return option(row) && (row != Row::AutoCut || hasOwnAutoCutBox);
}

void Panel::layOut()
{
    view->removePresets(m_dialog.isPaperLabelSeries() ? QList{4} : QList{1, 2, 3});
    int y = m_layout.viewHeight() - 38;
    int lost = 0;
    for (const Row row : screenOrder) {
        (*view)[row].hidden = !isRowShown(row);
        if (isRowShown(row)) {
            showRow(row, y);
        } else {
            view->removePresets(presetsLostWithout(row));
            lost += heightOf(row);
        }
    }
    const bool hasCount = isRowShown(Row::CutEvery);
    view->countField.hidden = view->countStepper.hidden = view->countWord.hidden = !hasCount;
    const int height = std::max(150, m_layout.viewHeight() - lost);
    resize(height);
    view->previewY = height - 130;
}

void Panel::showRow(Row row, int &y)
{
    (*view)[row].y = y;
    if (row == Row::CutMark)
        view->removePresets({4, 5, 7, 9, 11});
    if (row == Row::CutEvery) {
        view->countField.y = y - rowHeight - 4;
        view->countStepper.y = y - rowHeight - 5;
        view->countWord.y = y - rowHeight + 2;
    }
    y -= heightOf(row);
}

QList<int> Panel::presetsLostWithout(Row row) const
{
    switch (row) {
    case Row::CutMark:
        return {13, 14, 15, 16};
    case Row::CutEvery:
        return {3};
    case Row::AutoCut:
        return option(Row::CutEvery) ? QList<int>{} : QList{8, 9, 10, 11};
    case Row::CutAtEnd:
        return {2};
    case Row::HalfCut:
        return {6, 7, 10, 11};
    case Row::SpecialTape:
        return {12};
    case Row::ChainPrint:
        return {5, 7, 9, 11, 14, 15};
    case Row::Mirror:
    case Row::RemoveBlkSpace:
        break;
    }
    return {};
}

void Panel::resize(int height)
{
    if (!m_dialog.canResize)
        return;
    view->height = height;
    if (!m_dialog.keyWindowHeight)
        return;
    if (*m_dialog.keyWindowHeight > height + 96.0)
        m_dialog.report({"panelViewDidResize"});
    else
        view->owesResize = true;
}

void Panel::trackingAreasUpdated()
{
    if (std::exchange(view->owesResize, false))
        m_dialog.report({"panelViewDidResize"});
}

} // namespace model
