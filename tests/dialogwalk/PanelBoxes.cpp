// SPDX-License-Identifier: Apache-2.0
#include "PanelBoxes.h"

#include <platform/PopUpButton.h>
#include <platform/Stepper.h>

#include <QLineEdit>

#include <algorithm>

namespace dialogwalk {

namespace {

constexpr PanelSwitch switches[] = {
    {"mCutMarkChkBx", "KvCutMark"},
    {"mCutEveryChkBx", "KvAutoTapeCut"},
    {"mAutoCutChkBx", "KvAutoTapeCut"},
    {"mCutAndEndChkBx", "KvCutAtEnd"},
    {"mHalfCutChkBx", "KvHalfCut"},
    {"mSpecialTapeChkBx", "KvSpecialTape"},
    {"mChainPrintChkBx", "KvChainPrint"},
    {"mMirrorPrintChkBx", "KvMirror"},
    {"mRemoveBlkSpaceChkBx", "KvRemoveBlkSpace"},
};

constexpr const char *offOnSpecialTape[] = {"KvAutoTapeCut", "KvHalfCut", "KvChainPrint", "KvCutMark"};

/// What a combination sets, by the tag of its item: one letter for each box in the order of presetBoxes, "1"
/// for on, "0" for off and "." for as it is. Every combination puts mirror printing off.
constexpr const char *presetBoxes[] = {"mCutEveryChkBx", "mCutAndEndChkBx",  "mAutoCutChkBx",
                                       "mHalfCutChkBx",  "mChainPrintChkBx", "mSpecialTapeChkBx",
                                       "mCutMarkChkBx"};
constexpr const char *presetTable[] = {"00.....", "01.....", "10.....", "0.0000.", "0.0010.", "0.0100.",
                                       "0.0110.", "1.1000.", "1.1010.", "1.1100.", "1.1110.", ".....1.",
                                       "....0.1", "....1.1", "....1.0", "....0.0"};

QByteArray text(bool isOn)
{
    return isOn ? "ON" : "OFF";
}

} // namespace

PanelBoxes::PanelBoxes(const QWidget *window)
    : m_window(window)
    , m_presets(window->findChild<platform::PopUpButton *>(QStringLiteral("mOptionPopUpButton")))
    , m_stepper(window->findChild<platform::Stepper *>(QStringLiteral("mCutEveryStpr")))
    , m_count(window->findChild<QLineEdit *>(QStringLiteral("mCutEveryTxBx")))
{
}

QCheckBox *PanelBoxes::box(const char *name) const
{
    auto *const box = m_window->findChild<QCheckBox *>(QLatin1String(name));
    return box && !box->isHidden() ? box : nullptr;
}

std::vector<QCheckBox *> PanelBoxes::boxes() const
{
    std::vector<QCheckBox *> boxes;
    for (const PanelSwitch &each : switches) {
        if (QCheckBox *const found = box(each.box))
            boxes.push_back(found);
    }
    return boxes;
}

bool PanelBoxes::hasCount() const
{
    return m_count && !m_count->isHidden();
}

const char *PanelBoxes::keywordOf(const PanelBoxes &panel, const QCheckBox *box)
{
    for (const PanelSwitch &each : switches) {
        if (box->objectName() != QLatin1String(each.box))
            continue;
        const bool decides = qstrcmp(each.box, "mCutEveryChkBx") != 0 || !panel.box("mAutoCutChkBx");
        return decides ? each.keyword : nullptr;
    }
    return nullptr;
}

OptionTexts PanelBoxes::chosen() const
{
    OptionTexts texts;
    for (const QCheckBox *const each : boxes()) {
        if (const char *const keyword = keywordOf(*this, each))
            texts[keyword] = text(each->isChecked());
    }
    if (hasCount())
        texts["KvCutLabel"] = m_count->text().toLatin1();
    return texts;
}

OptionTexts PanelBoxes::saved() const
{
    return withSpecialTape(chosen());
}

OptionTexts PanelBoxes::ofPreset(int tag) const
{
    OptionTexts texts;
    if (tag < 1 || tag > static_cast<int>(std::size(presetTable)))
        return texts;
    for (std::size_t column = 0; column < std::size(presetBoxes); ++column) {
        const char letter = presetTable[tag - 1][column];
        const QCheckBox *const each = box(presetBoxes[column]);
        const char *const keyword = each ? keywordOf(*this, each) : nullptr;
        if (keyword && letter != '.')
            texts[keyword] = text(letter == '1');
    }
    if (box("mMirrorPrintChkBx"))
        texts["KvMirror"] = "OFF";
    return texts;
}

OptionTexts withSpecialTape(OptionTexts chosen)
{
    if (chosen.value("KvSpecialTape") != "ON")
        return chosen;
    for (const char *const keyword : offOnSpecialTape) {
        if (chosen.contains(keyword))
            chosen[keyword] = "OFF";
    }
    return chosen;
}

} // namespace dialogwalk
