// SPDX-License-Identifier: Apache-2.0
// Selections, controls, presets and PPD in step.
#include "PanelFixture.h"

#include <gtest/gtest.h>

using test_support::PanelTest;
using test_support::PpdBuilder;
using test_support::TestDialog;

namespace {

class SynchronizeTest : public PanelTest {
protected:
    int selectedTag() const { return panel->popUp()->selectedTag(); }
    void set(OptionKind kind, bool on) { box(kind)->setChecked(on); }
};

PpdBuilder withoutCutMark()
{
    return PpdBuilder().autoCutObjHidden().options(0xff);
}

} // namespace

TEST_F(SynchronizeTest, SelectionsAreWhatIsMarkedElseTheDefault)
{
    openWith(std::make_shared<TestDialog>(everything().defaultChoice("KvMirror", "ON").open()));
    dialog->mark("KvHalfCut", "ON");
    EXPECT_EQ(selected(OptionKind::Mirror), std::nullopt);
    panel->setPDEItems2();
    EXPECT_EQ(selected(OptionKind::Mirror), QStringLiteral("ON"));
    EXPECT_EQ(selected(OptionKind::HalfCut), QStringLiteral("ON"));
    EXPECT_EQ(selected(OptionKind::CutAtEnd), QStringLiteral("OFF"));
    EXPECT_EQ(cutEverySelected(), QStringLiteral("OFF"));
}

TEST_F(SynchronizeTest, OnlyTheNamedItemsAreRead)
{
    open(everything());
    dialog->mark("KvAutoTapeCut", "ON");
    panel->updateMarkedSelections(ItemType::HalfCut | ItemType::CutEvery);
    EXPECT_NE(selected(OptionKind::HalfCut), std::nullopt);
    EXPECT_NE(selected(OptionKind::CutLabel), std::nullopt);
    EXPECT_EQ(selected(OptionKind::Mirror), std::nullopt);
    EXPECT_EQ(selected(OptionKind::AutoCut), std::nullopt);
    EXPECT_EQ(cutEverySelected(), QStringLiteral("ON"));
    panel->updateMarkedSelections(ItemType::OptionPopUp);
    EXPECT_EQ(selected(OptionKind::Mirror), std::nullopt);
}

TEST_F(SynchronizeTest, WithoutTheAutomaticCutTheCutEveryBoxHasNoSelection)
{
    open(PpdBuilder().options({"KvCutLabel"}));
    panel->setPDEItems2();
    EXPECT_EQ(panel->cutEveryAutoCutSelection(), nullptr);
    EXPECT_EQ(selected(OptionKind::CutLabel), QStringLiteral("1"));
}

TEST_F(SynchronizeTest, WithoutCutEveryItsSelectionsStayAbsent)
{
    open(PpdBuilder().options({"KvAutoTapeCut"}));
    panel->setPDEItems2();
    EXPECT_EQ(panel->selection(OptionKind::CutLabel), nullptr);
    EXPECT_EQ(panel->cutEveryAutoCutSelection(), nullptr);
    EXPECT_EQ(selected(OptionKind::AutoCut), QStringLiteral("OFF"));
}

TEST_F(SynchronizeTest, AnotherPanelsChangeIsFollowedByName)
{
    show(everything());
    struct Row {
        const char *keyword;
        OptionKind kind;
        const char *choice;
    };
    for (const Row &row : std::initializer_list<Row>{{"KvCutLabel", OptionKind::CutLabel, "7"},
                                                     {"KvCutAtEnd", OptionKind::CutAtEnd, "ON"},
                                                     {"KvMirror", OptionKind::Mirror, "ON"},
                                                     {"KvAutoTapeCut", OptionKind::AutoCut, "ON"},
                                                     {"KvHalfCut", OptionKind::HalfCut, "ON"},
                                                     {"KvChainPrint", OptionKind::ChainPrint, "ON"},
                                                     {"KvSpecialTape", OptionKind::SpecialTape, "ON"},
                                                     {"KvRemoveBlkSpace", OptionKind::RemoveBlkSpace, "ON"},
                                                     {"KvCutMark", OptionKind::CutMark, "ON"}}) {
        const bool wasOn = box(row.kind)->isChecked();
        panel->PPDOptionKeyValueDidChange(QLatin1String(row.keyword), QLatin1String(row.choice));
        EXPECT_EQ(selected(row.kind), QLatin1String(row.choice));
        EXPECT_EQ(box(row.kind)->isChecked(), wasOn) << "controls follow with the next refresh";
        panel->PPDOptionKeyValueDidChange(QLatin1String(row.keyword), QStringLiteral("no such choice"));
        EXPECT_EQ(selected(row.kind), std::nullopt);
    }
    EXPECT_EQ(cutEverySelected(), QStringLiteral("OFF"));
}

TEST_F(SynchronizeTest, AChangeWithoutKeywordOrChoiceIsNone)
{
    show(everything());
    panel->PPDOptionKeyValueDidChange(QStringLiteral("KvMirror"), QStringLiteral("ON"));
    panel->PPDOptionKeyValueDidChange(std::nullopt, QStringLiteral("OFF"));
    panel->PPDOptionKeyValueDidChange(QStringLiteral("KvMirror"), std::nullopt);
    panel->PPDOptionKeyValueDidChange(QStringLiteral("kvmirror"), QStringLiteral("OFF"));
    panel->PPDOptionKeyValueDidChange(QStringLiteral("PageSize"), QStringLiteral("OFF"));
    EXPECT_EQ(selected(OptionKind::Mirror), QStringLiteral("ON"));
}

TEST_F(SynchronizeTest, ARefreshShowsAnotherPanelsChange)
{
    show(everything());
    panel->PPDOptionKeyValueDidChange(QStringLiteral("KvHalfCut"), QStringLiteral("ON"));
    panel->updateUIItem(ItemType::HalfCut);
    EXPECT_TRUE(box(OptionKind::HalfCut)->isChecked());
}

TEST_F(SynchronizeTest, TheCutEveryRowShowsCountAndAutomaticCut)
{
    show(everything());
    dialog->mark("KvCutLabel", "12");
    dialog->mark("KvAutoTapeCut", "ON");
    panel->updateMarkedSelections(ItemType::CutEvery);
    panel->updateUIItem(ItemType::CutEvery);
    EXPECT_EQ(panel->countField()->text(), QStringLiteral("12"));
    EXPECT_EQ(panel->countStepper()->value(), 12);
    EXPECT_TRUE(box(OptionKind::CutLabel)->isChecked());
    EXPECT_FALSE(box(OptionKind::AutoCut)->isChecked());
}

TEST_F(SynchronizeTest, GreyedBlankSpaceAndCutMarkKeepTheirState)
{
    show(everything());
    for (const auto &[kind, keyword, item] :
         {std::tuple{OptionKind::RemoveBlkSpace, "KvRemoveBlkSpace", ItemType::RemoveBlkSpace},
          std::tuple{OptionKind::CutMark, "KvCutMark", ItemType::CutMark}}) {
        dialog->mark(keyword, "ON");
        panel->updateMarkedSelections(item);
        box(kind)->setEnabled(false);
        panel->updateUIItem(item);
        EXPECT_FALSE(box(kind)->isChecked()) << keyword;
        box(kind)->setEnabled(true);
        panel->updateUIItem(item);
        EXPECT_TRUE(box(kind)->isChecked()) << keyword;
    }
    dialog->mark("KvHalfCut", "ON");
    panel->updateMarkedSelections(ItemType::HalfCut);
    box(OptionKind::HalfCut)->setEnabled(false);
    panel->updateUIItem(ItemType::HalfCut);
    EXPECT_TRUE(box(OptionKind::HalfCut)->isChecked()) << "the others do not";
}

TEST_F(SynchronizeTest, TapeCombinationsAndTheirTags)
{
    show(withoutCutMark());
    for (int bits = 0; bits < 16; ++bits) {
        set(OptionKind::ChainPrint, bits & 1);
        set(OptionKind::HalfCut, bits & 2);
        set(OptionKind::AutoCut, bits & 4);
        set(OptionKind::CutLabel, bits & 8);
        EXPECT_EQ(panel->targetPopUpButtonTag(), 4 + (bits & 3) + (bits & 12 ? 4 : 0));
        set(OptionKind::SpecialTape, true);
        EXPECT_EQ(panel->targetPopUpButtonTag(), 12);
        set(OptionKind::SpecialTape, false);
    }
    set(OptionKind::HalfCut, true);
    const int shown = panel->targetPopUpButtonTag();
    box(OptionKind::HalfCut)->hide();
    EXPECT_EQ(panel->targetPopUpButtonTag(), shown - 2) << "a box that cannot be seen is off";
}

TEST_F(SynchronizeTest, CutMarkCombinationsAndTheirTags)
{
    show(everything());
    struct Row {
        bool mark, chain, special;
        int tag;
    };
    for (const Row &row : std::initializer_list<Row>{{true, false, false, 13},
                                                     {true, true, false, 14},
                                                     {false, true, false, 15},
                                                     {false, false, false, 16},
                                                     {true, true, true, 13},
                                                     {false, true, true, 16}}) {
        set(OptionKind::CutMark, row.mark);
        set(OptionKind::ChainPrint, row.chain);
        set(OptionKind::SpecialTape, row.special);
        EXPECT_EQ(panel->targetPopUpButtonTag(), row.tag);
    }
}

TEST_F(SynchronizeTest, LabelCombinationsAndTheirTags)
{
    show(PpdBuilder().paperLabels().autoCutObjHidden().allOptions());
    set(OptionKind::CutMark, true);
    EXPECT_EQ(panel->targetPopUpButtonTag(), 1);
    set(OptionKind::CutAtEnd, true);
    EXPECT_EQ(panel->targetPopUpButtonTag(), 2);
    set(OptionKind::AutoCut, true);
    EXPECT_EQ(panel->targetPopUpButtonTag(), 3);
    set(OptionKind::AutoCut, false);
    set(OptionKind::CutLabel, true);
    EXPECT_EQ(panel->targetPopUpButtonTag(), 3);
    set(OptionKind::SpecialTape, true);
    EXPECT_EQ(panel->targetPopUpButtonTag(), 2);
    dialog->setPaper(QStringLiteral("FL21x45"));
    EXPECT_EQ(panel->targetPopUpButtonTag(), 2) << "flag paper is a matter of tapes";
}

TEST_F(SynchronizeTest, FlagPaperCombinationsAndTheirTags)
{
    show(everything(), "FL21x45");
    struct Row {
        bool every, automatic, half;
        int tag;
    };
    for (const Row &row : std::initializer_list<Row>{{false, false, false, 4},
                                                     {true, false, false, 8},
                                                     {false, true, false, 8},
                                                     {false, false, true, 1},
                                                     {true, true, true, 1}}) {
        set(OptionKind::CutLabel, row.every);
        set(OptionKind::AutoCut, row.automatic);
        set(OptionKind::HalfCut, row.half);
        EXPECT_EQ(panel->targetPopUpButtonTag(), row.tag);
    }
    set(OptionKind::SpecialTape, true);
    EXPECT_EQ(panel->targetPopUpButtonTag(), 4) << "special tape counts before everything that cuts";
}

TEST_F(SynchronizeTest, EveryPresetSetsItsBoxesAndNoOthers)
{
    show(everything());
    for (const Preset &preset : presets) {
        for (const bool before : {false, true}) {
            panel->popUp()->clear();
            panel->popUp()->setItemTags({QString::number(preset.tag)});
            panel->popUp()->addItem(QString());
            for (std::size_t kind = 0; kind < OptionCount; ++kind)
                set(OptionKind(kind), before);
            panel->updateUIItem(ItemType::OptionPopUp);
            for (std::size_t kind = 0; kind < OptionCount; ++kind)
                EXPECT_EQ(box(OptionKind(kind))->isChecked(),
                          preset.stateOf(OptionKind(kind)).value_or(before))
                    << preset.tag << ' ' << kind;
            EXPECT_FALSE(box(OptionKind::Mirror)->isChecked()) << preset.tag;
        }
    }
}

TEST_F(SynchronizeTest, ThePresetTableToTheLetter)
{
    // Cut every, cut at end, auto cut, half cut, chain, special tape, cut mark; a blank leaves the box.
    const std::array<const char *, 16> table = {
        "00     ", "01     ", "10     ", "0 0000 ", "0 0010 ", "0 0100 ", "0 0110 ", "1 1000 ",
        "1 1010 ", "1 1100 ", "1 1110 ", "     1 ", "    0 1", "    1 1", "    1 0", "    0 0"};
    const std::array<OptionKind, 7> columns = {
        OptionKind::CutLabel,   OptionKind::CutAtEnd,    OptionKind::AutoCut, OptionKind::HalfCut,
        OptionKind::ChainPrint, OptionKind::SpecialTape, OptionKind::CutMark};
    for (const Preset &preset : presets) {
        for (std::size_t column = 0; column < columns.size(); ++column) {
            const char expected = table[static_cast<std::size_t>(preset.tag - 1)][column];
            const std::optional<bool> state = preset.stateOf(columns[column]);
            EXPECT_EQ(state ? (*state ? '1' : '0') : ' ', expected) << preset.tag << ' ' << column;
        }
        EXPECT_EQ(preset.stateOf(OptionKind::Mirror), false);
        EXPECT_EQ(preset.stateOf(OptionKind::RemoveBlkSpace), std::nullopt);
    }
}

TEST_F(SynchronizeTest, ARestoreSelectsThePresetThatDescribesTheBoxes)
{
    show(withoutCutMark());
    EXPECT_EQ(selectedTag(), 4);
    dialog->mark("KvHalfCut", "ON");
    panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(selectedTag(), 6);
    dialog->mark("KvSpecialTape", "ON");
    panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(selectedTag(), 12);
}

TEST_F(SynchronizeTest, AFullRefreshEndsWithMirrorOff)
{
    show(withoutCutMark().defaultChoice("KvMirror", "ON"));
    EXPECT_FALSE(box(OptionKind::Mirror)->isChecked()) << "the preset is applied again";
    dialog->mark("KvMirror", "ON");
    panel->updateMarkedSelections(ItemType::Mirror);
    panel->updateUIItem(ItemType::Mirror);
    EXPECT_TRUE(box(OptionKind::Mirror)->isChecked());
    panel->updateUI();
    EXPECT_FALSE(box(OptionKind::Mirror)->isChecked());
    panel->popUp()->setCurrentIndex(-1);
    panel->popUp()->clear();
    panel->updateUI();
    EXPECT_TRUE(box(OptionKind::Mirror)->isChecked()) << "without a selected preset nothing is applied";
}

TEST_F(SynchronizeTest, ThePresetStaysWhenNoItemDescribesTheBoxes)
{
    show(everything(), "FL21x45");
    const int before = selectedTag();
    set(OptionKind::HalfCut, true);
    ASSERT_EQ(panel->targetPopUpButtonTag(), 1);
    ASSERT_EQ(panel->popUp()->indexOfItemWithTag(1), -1);
    panel->updateUIItem(ItemType::CutAtEnd);
    EXPECT_EQ(selectedTag(), before);
}

TEST_F(SynchronizeTest, HeatShrinkTubeSwitchesAutomaticCuttingOff)
{
    show(withoutCutMark().defaultChoice("KvAutoTapeCut", "ON"));
    ASSERT_TRUE(box(OptionKind::CutLabel)->isChecked());
    dialog->setPaper(QStringLiteral("HS11mm"));
    dialog->postPaperChange();
    EXPECT_EQ(dialog->marked("KvAutoTapeCut"), QStringLiteral("OFF"));
    EXPECT_TRUE(dialog->changes.empty()) << "marked in the PPD, not asked of the dialog";
    EXPECT_FALSE(box(OptionKind::CutLabel)->isChecked());
    EXPECT_FALSE(box(OptionKind::AutoCut)->isChecked());
    EXPECT_EQ(selected(OptionKind::AutoCut), QStringLiteral("OFF"));
    EXPECT_EQ(cutEverySelected(), QStringLiteral("OFF"));
}

TEST_F(SynchronizeTest, AnyOtherPaperOnlyRefreshes)
{
    show(withoutCutMark().defaultChoice("KvAutoTapeCut", "ON"));
    dialog->setPaper(QStringLiteral("DC29x90"));
    dialog->mark("KvHalfCut", "ON");
    dialog->postPaperChange();
    EXPECT_EQ(dialog->marked("KvAutoTapeCut"), QStringLiteral("ON"));
    EXPECT_FALSE(isEnabled(OptionKind::RemoveBlkSpace));
    EXPECT_FALSE(box(OptionKind::HalfCut)->isChecked()) << "other markings are read by a restore";
}

TEST_F(SynchronizeTest, APaperMayChangeBeforeTheViewIsLoaded)
{
    open(everything().defaultChoice("KvAutoTapeCut", "ON"));
    dialog->setPaper(QStringLiteral("HS11mm"));
    dialog->postPaperChange();
    EXPECT_EQ(dialog->marked("KvAutoTapeCut"), QStringLiteral("OFF"));
    EXPECT_EQ(selected(OptionKind::AutoCut), QStringLiteral("OFF"));
    EXPECT_EQ(panel->targetPopUpButtonTag(), 16) << "a mark's box that is not there is not hidden";
}

TEST_F(SynchronizeTest, EmptyHandlersDoNothing)
{
    show(everything());
    panel->printWindowWillClose(nullptr);
    panel->tabView(nullptr, 0);
    panel->initializeUI_OtherStr();
    panel->getValuesFromKey();
    panel->initSetTitleTexts();
    EXPECT_FALSE(panel->shouldShowHelp());
    EXPECT_TRUE(dialog->changes.empty());
}
