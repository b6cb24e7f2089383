// SPDX-License-Identifier: Apache-2.0
// What is handed to the dialog when it saves and before it prints.
#include "PanelFixture.h"

#include <gtest/gtest.h>

using test_support::PanelTest;
using test_support::PpdBuilder;
using test_support::TestDialog;

namespace {

class SaveTest : public PanelTest {
protected:
    std::vector<Change> saved()
    {
        dialog->changes.clear();
        EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
        return dialog->changes;
    }

    std::optional<QString> savedChoice(const char *keyword)
    {
        std::optional<QString> choice;
        for (const Change &change : saved()) {
            if (change.first == QLatin1String(keyword))
                choice = change.second;
        }
        return choice;
    }

    void tickAll(bool on = true)
    {
        for (std::size_t kind = 0; kind < OptionCount; ++kind)
            box(OptionKind(kind))->setChecked(on);
    }
};

} // namespace

TEST_F(SaveTest, EveryOptionIsWrittenFromItsBoxInTableOrder)
{
    show(everything().counts(1, 9));
    tickAll();
    box(OptionKind::SpecialTape)->setChecked(false);
    dialog->mark("KvCutLabel", "4");
    EXPECT_EQ(saved(), changes({{"KvCutLabel", "4"},
                                {"KvCutAtEnd", "ON"},
                                {"KvMirror", "ON"},
                                {"KvAutoTapeCut", "ON"},
                                {"KvHalfCut", "ON"},
                                {"KvChainPrint", "ON"},
                                {"KvSpecialTape", "OFF"},
                                {"KvRemoveBlkSpace", "ON"},
                                {"KvCutMark", "ON"}}));
}

TEST_F(SaveTest, SpecialTapeWritesCutsAsOffWhateverTheirBoxesShow)
{
    show(everything());
    tickAll();
    EXPECT_EQ(saved(), changes({{"KvCutLabel", "1"},
                                {"KvCutAtEnd", "ON"},
                                {"KvMirror", "ON"},
                                {"KvAutoTapeCut", "OFF"},
                                {"KvHalfCut", "OFF"},
                                {"KvChainPrint", "OFF"},
                                {"KvSpecialTape", "ON"},
                                {"KvRemoveBlkSpace", "ON"},
                                {"KvCutMark", "OFF"}}));
    EXPECT_TRUE(box(OptionKind::HalfCut)->isChecked());
}

TEST_F(SaveTest, AHiddenSpecialTapeBoxHasNoSay)
{
    show(PpdBuilder().options({"KvHalfCut", "KvMirror"}));
    tickAll();
    ASSERT_TRUE(box(OptionKind::SpecialTape)->isHidden());
    EXPECT_EQ(saved(), changes({{"KvMirror", "ON"}, {"KvHalfCut", "ON"}}));
}

TEST_F(SaveTest, WithoutABoxOfItsOwnTheAutomaticCutFollowsCutEveryAndComesFirst)
{
    show(PpdBuilder().options({"KvCutLabel", "KvAutoTapeCut", "KvSpecialTape"}));
    dialog->mark("KvCutLabel", "7");
    box(OptionKind::CutLabel)->setChecked(true);
    EXPECT_EQ(saved(), changes({{"KvAutoTapeCut", "ON"}, {"KvCutLabel", "7"}, {"KvSpecialTape", "OFF"}}));
    box(OptionKind::CutLabel)->setChecked(false);
    EXPECT_EQ(saved(), changes({{"KvAutoTapeCut", "OFF"}, {"KvCutLabel", "7"}, {"KvSpecialTape", "OFF"}}));
    box(OptionKind::CutLabel)->setChecked(true);
    box(OptionKind::SpecialTape)->setChecked(true);
    EXPECT_EQ(saved(), changes({{"KvAutoTapeCut", "OFF"}, {"KvCutLabel", "7"}, {"KvSpecialTape", "ON"}}));
}

TEST_F(SaveTest, TheChainedAutomaticCutIsWrittenInWordsNotFromTheList)
{
    PpdBuilder builder;
    builder.options({"KvCutLabel"}).choices("KvAutoTapeCut", {{"None", "None"}, {"Every", "Every"}});
    show(builder);
    box(OptionKind::CutLabel)->setChecked(true);
    EXPECT_EQ(saved().front(), Change(QStringLiteral("KvAutoTapeCut"), QStringLiteral("ON")));
    builder.autoCutObjHidden();
    show(builder);
    box(OptionKind::AutoCut)->setChecked(true);
    EXPECT_EQ(savedChoice("KvAutoTapeCut"), QStringLiteral("Every")) << "its own box writes from the list";
    EXPECT_EQ(saved().front().first, QStringLiteral("KvCutLabel"));
}

TEST_F(SaveTest, WithoutTheAutomaticCutOptionNothingIsChained)
{
    show(PpdBuilder().options({"KvCutLabel"}));
    box(OptionKind::CutLabel)->setChecked(true);
    EXPECT_EQ(saved(), changes({{"KvCutLabel", "1"}}));
}

TEST_F(SaveTest, WithNothingMarkedALoadedCountIsTheFirstNotTheDefault)
{
    const PpdBuilder builder = PpdBuilder().counts(3, 9).defaultChoice("KvCutLabel", "5");
    openWith(std::make_shared<TestDialog>(builder.open()));
    EXPECT_EQ(savedChoice("KvCutLabel"), QStringLiteral("5")) << "not loaded yet";
    openWith(std::make_shared<TestDialog>(builder.open()));
    panel->panelView();
    EXPECT_EQ(savedChoice("KvCutLabel"), QStringLiteral("3"));
}

TEST_F(SaveTest, BeforeTheViewIsLoadedTheMarkingsAreSavedElseTheDefaults)
{
    const PpdBuilder builder =
        everything().defaultChoice("KvMirror", "ON").defaultChoice("KvAutoTapeCut", "ON");
    openWith(std::make_shared<TestDialog>(builder.open()));
    dialog->mark("KvHalfCut", "ON");
    EXPECT_EQ(saved(), changes({{"KvCutLabel", "1"},
                                {"KvCutAtEnd", "OFF"},
                                {"KvMirror", "ON"},
                                {"KvAutoTapeCut", "ON"},
                                {"KvHalfCut", "ON"},
                                {"KvChainPrint", "OFF"},
                                {"KvSpecialTape", "OFF"},
                                {"KvRemoveBlkSpace", "OFF"},
                                {"KvCutMark", "OFF"}}));
    openWith(std::make_shared<TestDialog>(PpdBuilder().options({"KvCutLabel", "KvAutoTapeCut"}).open()));
    dialog->mark("KvAutoTapeCut", "ON");
    EXPECT_EQ(saved(), changes({{"KvAutoTapeCut", "ON"}, {"KvCutLabel", "1"}}));
}

TEST_F(SaveTest, WithoutSettingsNothingIsSavedButTheTapeIsRead)
{
    auto printer = std::make_shared<TestDialog>(everything().openMarked());
    printer->hasPrintSettings = false;
    openWith(std::move(printer), "DC29x90");
    panel->panelView();
    EXPECT_TRUE(saved().empty());
    EXPECT_EQ(panel->getTapeState(), 1);
    EXPECT_FALSE(isEnabled(OptionKind::RemoveBlkSpace));
}

TEST_F(SaveTest, SavingBlankSpaceReadsTheTapeAgain)
{
    struct Row {
        const char *paper;
        int state;
        bool enabled;
    };
    show(everything());
    box(OptionKind::RemoveBlkSpace)->setChecked(true);
    for (const Row &row :
         std::initializer_list<Row>{{"DC29x90", 1, false}, {"24mm", 0, true}, {"FL21x45", 1, false}}) {
        dialog->setPaper(QLatin1String(row.paper));
        EXPECT_EQ(savedChoice("KvRemoveBlkSpace"), QStringLiteral("ON")) << "a greyed box keeps its state";
        EXPECT_EQ(panel->getTapeState(), row.state) << row.paper;
        EXPECT_EQ(isEnabled(OptionKind::RemoveBlkSpace), row.enabled) << row.paper;
    }
    dialog->setTicketPaper(QStringLiteral("HS"));
    saved();
    EXPECT_EQ(panel->getTapeState(), 2);
    EXPECT_TRUE(isEnabled(OptionKind::RemoveBlkSpace));
}

TEST_F(SaveTest, KeywordsAreWrittenAsThePpdSpellsThem)
{
    // libcups finds an option whatever the case of its keyword; the job's filters may not.
    show(PpdBuilder()
             .autoCutObjHidden()
             .options({"KVMIRROR", "KVAUTOTAPECUT"})
             .option({"KVCUTLABEL", "Cut", {{"1", "1"}, {"2", "2"}}, "1"}));
    EXPECT_EQ(saved(), changes({{"KVCUTLABEL", "1"}, {"KVMIRROR", "OFF"}, {"KVAUTOTAPECUT", "OFF"}}));
    show(PpdBuilder().options({"KVAUTOTAPECUT", "KvCutLabel"}));
    EXPECT_EQ(saved(), changes({{"KVAUTOTAPECUT", "OFF"}, {"KvCutLabel", "1"}}));
}

TEST_F(SaveTest, AnIndexBeyondTheListIsItsLastChoice)
{
    show(everything().choices("KvMirror", {{"OFF", "Off"}}));
    box(OptionKind::Mirror)->setChecked(true);
    EXPECT_EQ(savedChoice("KvMirror"), QStringLiteral("OFF"));
}

TEST_F(SaveTest, AListWithoutADefaultSavesItsFirstChoice)
{
    openWith(std::make_shared<TestDialog>(
        PpdBuilder().choices("KvMirror", {{"A", "A"}, {"B", "B"}}).defaultChoice("KvMirror", "C").open()));
    EXPECT_EQ(savedChoice("KvMirror"), QStringLiteral("A"));
}

TEST_F(SaveTest, TheIndexThatSpecialTapeOverrules)
{
    show(everything());
    QCheckBox *const half = box(OptionKind::HalfCut);
    EXPECT_EQ(panel->indexForSaveAutoChain(nullptr), 0);
    EXPECT_EQ(panel->indexForSaveAutoChain(panel->popUp()), 0) << "a control without a state";
    half->setChecked(true);
    EXPECT_EQ(panel->indexForSaveAutoChain(half), 1);
    box(OptionKind::SpecialTape)->setChecked(true);
    EXPECT_EQ(panel->indexForSaveAutoChain(half), 0);
    box(OptionKind::SpecialTape)->hide();
    EXPECT_EQ(panel->indexForSaveAutoChain(half), 1);
    half->setChecked(false);
    EXPECT_EQ(panel->indexForSaveAutoChain(half), 0);
}

TEST_F(SaveTest, BeforePrintingOnlyWhatIsUnmarkedGetsItsDefault)
{
    const PpdBuilder builder =
        everything().defaultChoice("KvMirror", "ON").defaultChoice("KvCutMark", "none");
    openWith(std::make_shared<TestDialog>(builder.open()));
    dialog->mark("KvHalfCut", "ON");
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_EQ(dialog->changes, changes({{"KvCutLabel", "1"},
                                        {"KvCutAtEnd", "OFF"},
                                        {"KvMirror", "ON"},
                                        {"KvAutoTapeCut", "OFF"},
                                        {"KvChainPrint", "OFF"},
                                        {"KvSpecialTape", "OFF"},
                                        {"KvRemoveBlkSpace", "OFF"}}))
        << "half cut is marked, and the cut mark has no default among its choices";
    dialog->changes.clear();
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_TRUE(dialog->changes.empty());
}
