// SPDX-License-Identifier: Apache-2.0
// Choices that the dialog gives back, and their summary before they are made.
#include "PanelFixture.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include <gtest/gtest.h>

using test_support::panelKeywords;
using test_support::PanelTest;
using test_support::PpdBuilder;
using test_support::TestDialog;

namespace {

class UserChoicesTest : public PanelTest {
protected:
    using Pairs = std::initializer_list<std::pair<const char *, const char *>>;

    void apply(Pairs pairs)
    {
        dialog->changes.clear();
        static_cast<PDEUserChoices_v1 *>(panel.get())->applyUserChoices(changes(pairs));
    }

    std::vector<Change> saved()
    {
        dialog->changes.clear();
        panel->saveValuesAndReturnError(nullptr);
        return dialog->changes;
    }

    QVariantMap summaryFor(Pairs pairs) const
    {
        const PDEChoiceSummary_v1 &summaries = *panel;
        return summaries.summaryInfoFor(changes(pairs)).value();
    }

    void open(const PpdBuilder &builder, const char *paper = "24mm")
    {
        PanelTest::open(builder, paper);
        panel->setPDEItems2();
    }
};

PpdBuilder cutting()
{
    return PpdBuilder().autoCutObjHidden().allOptions().defaultChoice("KvAutoTapeCut", "ON");
}

} // namespace

TEST_F(UserChoicesTest, ADialogFindsTheInterfacesByTheirClasses)
{
    show(everything());
    PDEPanel *const found = panel.get();
    EXPECT_NE(dynamic_cast<PDEUserChoices_v1 *>(found), nullptr);
    EXPECT_NE(dynamic_cast<PDEChoiceSummary_v1 *>(found), nullptr);
}

TEST_F(UserChoicesTest, EachChoiceIsMadeOnItsControlAndSaved)
{
    for (const char *keyword : panelKeywords) {
        const bool isCount = QLatin1String(keyword) == QLatin1String("KvCutLabel");
        show(cutting().defaultChoice("KvAutoTapeCut", isCount ? "ON" : "OFF"));
        const char *const choice = isCount ? "7" : "ON";
        apply({{keyword, choice}});
        EXPECT_EQ(dialog->changes, changes({{keyword, choice}}));
        EXPECT_EQ(dialog->marked(keyword), QLatin1String(choice));
        EXPECT_TRUE(std::ranges::count(saved(), changes({{keyword, choice}}).front()) == 1) << keyword;
        apply({{keyword, choice}});
        EXPECT_TRUE(dialog->changes.empty()) << "saved anyway: " << keyword;
        if (isCount)
            continue;
        apply({{keyword, "OFF"}});
        EXPECT_EQ(dialog->changes, changes({{keyword, "OFF"}}));
    }
    EXPECT_EQ(panel->countStepper()->value(), 1);
}

TEST_F(UserChoicesTest, TheCountIsShownInFieldAndStepper)
{
    show(cutting());
    apply({{"KvCutLabel", "42"}});
    EXPECT_EQ(panel->countField()->text(), QStringLiteral("42"));
    EXPECT_EQ(panel->countStepper()->value(), 42);
    EXPECT_EQ(dialog->marked("KvCutLabel"), QStringLiteral("42"));
}

TEST_F(UserChoicesTest, SpecialTapeComesFirstAndItsRulesHold)
{
    show(cutting());
    apply({{"KvMirror", "ON"}, {"KvHalfCut", "ON"}, {"KvSpecialTape", "ON"}});
    EXPECT_EQ(dialog->changes, changes({{"KvSpecialTape", "ON"}, {"KvMirror", "ON"}, {"KvHalfCut", "ON"}}));
    EXPECT_TRUE(box(OptionKind::HalfCut)->isChecked());
    EXPECT_FALSE(isEnabled(OptionKind::HalfCut));
    const auto written = saved();
    EXPECT_EQ(std::ranges::count(written, std::pair(QStringLiteral("KvHalfCut"), QStringLiteral("ON"))), 0)
        << "special tape is saved without half cuts";

    apply({{"KvHalfCut", "OFF"}, {"KvSpecialTape", "OFF"}});
    EXPECT_EQ(dialog->changes, changes({{"KvSpecialTape", "OFF"}, {"KvHalfCut", "OFF"}}));
    EXPECT_TRUE(isEnabled(OptionKind::ChainPrint));
}

TEST_F(UserChoicesTest, TheOthersComeInTableOrder)
{
    show(everything());
    apply({{"KvCutMark", "ON"},
           {"KvChainPrint", "ON"},
           {"KvHalfCut", "ON"},
           {"KvRemoveBlkSpace", "ON"},
           {"KvAutoTapeCut", "ON"},
           {"KvMirror", "ON"},
           {"KvCutAtEnd", "ON"}});
    EXPECT_EQ(dialog->changes, changes({{"KvCutAtEnd", "ON"},
                                        {"KvMirror", "ON"},
                                        {"KvAutoTapeCut", "ON"},
                                        {"KvHalfCut", "ON"},
                                        {"KvChainPrint", "ON"},
                                        {"KvRemoveBlkSpace", "ON"},
                                        {"KvCutMark", "ON"}}));
}

TEST_F(UserChoicesTest, TheAutomaticCutIsMadeOnTheBoxThatSavingReads)
{
    show(everything());
    apply({{"KvAutoTapeCut", "ON"}});
    EXPECT_TRUE(box(OptionKind::AutoCut)->isChecked());
    EXPECT_FALSE(box(OptionKind::CutLabel)->isChecked());

    show(PpdBuilder().allOptions());
    apply({{"KvAutoTapeCut", "ON"}});
    EXPECT_EQ(dialog->changes, changes({{"KvAutoTapeCut", "ON"}}));
    EXPECT_TRUE(box(OptionKind::CutLabel)->isChecked());
    EXPECT_EQ(saved().front(), changes({{"KvAutoTapeCut", "ON"}}).front());

    show(PpdBuilder().options({"KvAutoTapeCut", "KvMirror"}));
    apply({{"KvAutoTapeCut", "ON"}});
    EXPECT_TRUE(dialog->changes.empty()) << "no box is shown for it";
}

TEST_F(UserChoicesTest, TheChainedAutomaticCutIsGivenBackAsItWasSaved)
{
    show(PpdBuilder()
             .options({"KvCutLabel"})
             .choices("KvAutoTapeCut", {{"None", "None"}, {"Every", "Every"}})
             .defaultChoice("KvAutoTapeCut", "None"));
    apply({{"KvAutoTapeCut", "ON"}});
    EXPECT_EQ(dialog->changes, changes({{"KvAutoTapeCut", "Every"}}));
    EXPECT_EQ(saved().front(), changes({{"KvAutoTapeCut", "ON"}}).front());
    apply({{"KvAutoTapeCut", "None"}});
    EXPECT_EQ(saved().front(), changes({{"KvAutoTapeCut", "OFF"}}).front());
}

TEST_F(UserChoicesTest, TheCountAndTheAutomaticCutAreBothMade)
{
    for (const char *const automatic : {"OFF", "ON"}) {
        show(PpdBuilder().allOptions());
        ASSERT_FALSE(isEnabled(panel->countField()));
        apply({{"KvAutoTapeCut", automatic}, {"KvCutLabel", "7"}});
        EXPECT_EQ(dialog->marked("KvCutLabel"), QStringLiteral("7")) << "though its field is disabled";
        const auto written = saved();
        EXPECT_EQ(std::ranges::count(written, changes({{"KvAutoTapeCut", automatic}}).front()), 1);
        EXPECT_EQ(std::ranges::count(written, changes({{"KvCutLabel", "7"}}).front()), 1);
        EXPECT_EQ(isEnabled(panel->countField()), QLatin1String(automatic) == QLatin1String("ON"));
    }
}

TEST_F(UserChoicesTest, WhatAUserCouldNotChooseIsSkipped)
{
    show(everything().choices("KvMirror", {{"OFF", "Off"}, {"ON", "On"}, {"AUTO", "Automatic"}}));
    for (const auto &pair : {std::pair{"KvMirror", "AUTO"},
                             {"KvMirror", "SOMETIMES"},
                             {"KvMirror", "on"},
                             {"kvmirror", "ON"},
                             {"PageSize", "24mm"},
                             {"KvCutLabel", "100"},
                             {"KvCutLabel", ""}}) {
        apply({pair});
        EXPECT_TRUE(dialog->changes.empty()) << pair.first << ' ' << pair.second;
    }
    show(everything());
    box(OptionKind::Mirror)->hide();
    apply({{"KvMirror", "ON"}});
    EXPECT_TRUE(dialog->changes.empty()) << "hidden";
    open(everything());
    apply({{"KvMirror", "ON"}});
    EXPECT_TRUE(dialog->changes.empty()) << "not loaded";
}

TEST_F(UserChoicesTest, AControlThatThePaperDisablesReceivesWhatIsSavedFromIt)
{
    show(everything(), "FL21x45");
    ASSERT_FALSE(isEnabled(OptionKind::HalfCut));
    const bool half = box(OptionKind::HalfCut)->isChecked();
    const char *const other = half ? "OFF" : "ON";
    apply({{"KvHalfCut", other}, {"KvRemoveBlkSpace", "ON"}, {"KvChainPrint", "ON"}});
    EXPECT_EQ(dialog->changes,
              changes({{"KvHalfCut", other}, {"KvChainPrint", "ON"}, {"KvRemoveBlkSpace", "ON"}}));
    EXPECT_EQ(box(OptionKind::HalfCut)->isChecked(), !half);
    EXPECT_TRUE(box(OptionKind::RemoveBlkSpace)->isChecked());
    EXPECT_FALSE(isEnabled(OptionKind::HalfCut));
}

TEST_F(UserChoicesTest, ACountThatItsNumberWouldNotChooseIsSkipped)
{
    show(cutting().choices("KvCutLabel", {{"1", "1"}, {"2", "2"}, {"5", "5"}, {"10", "10"}}));
    apply({{"KvCutLabel", "2"}});
    EXPECT_EQ(dialog->changes, changes({{"KvCutLabel", "2"}}));
    for (const char *count : {"5", "10"}) {
        apply({{"KvCutLabel", count}});
        EXPECT_TRUE(dialog->changes.empty()) << count;
        EXPECT_EQ(panel->countField()->text(), QStringLiteral("2"));
    }
    show(cutting().choices("KvCutLabel", {{"1", "1"}, {"3", "3"}, {"5", "5"}}));
    apply({{"KvCutLabel", "3"}});
    EXPECT_TRUE(dialog->changes.empty()) << "typing 3 would choose 5 there";
}

TEST_F(UserChoicesTest, ABoxThatShowsTheChoiceIsNotSwitched)
{
    show(everything().defaultChoice("KvCutMark", "ON").defaultChoice("KvSpecialTape", "ON"));
    ASSERT_TRUE(box(OptionKind::CutMark)->isChecked());
    apply({{"KvCutMark", "ON"}});
    EXPECT_TRUE(box(OptionKind::CutMark)->isChecked()) << "special tape saves it as off all the same";
    EXPECT_TRUE(dialog->changes.empty());
    apply({{"KvCutMark", "OFF"}});
    EXPECT_EQ(dialog->changes, changes({{"KvCutMark", "OFF"}})) << "saved as off before, too, but not shown";
    EXPECT_FALSE(box(OptionKind::CutMark)->isChecked());
}

TEST_F(UserChoicesTest, WhatIsShownIsWhatTheControlsHaveAndComesBack)
{
    show(cutting().autoCutObjHidden());
    const PDEUserChoices_v1 &controls = *panel;
    apply({{"KvChainPrint", "ON"}, {"KvCutMark", "ON"}, {"KvMirror", "ON"}, {"KvCutLabel", "3"}});
    const PDEChoices shown = controls.shownChoices();
    const auto written = saved();
    for (const auto &[keyword, choice] : shown)
        EXPECT_EQ(std::ranges::count(written, Change(keyword, choice)), 1) << keyword.toStdString();
    // Special tape replaces what is saved and leaves the boxes as they are.
    apply({{"KvSpecialTape", "ON"}});
    for (const auto &[keyword, choice] : shown) {
        const auto now = controls.shownChoices();
        const auto found = std::ranges::find(now, keyword, &PDEChoices::value_type::first);
        EXPECT_EQ(found->second == choice, keyword != QStringLiteral("KvSpecialTape"))
            << keyword.toStdString();
    }
    panel->restoreValuesAndReturnError(nullptr);
    panel->applyUserChoices(shown);
    EXPECT_EQ(controls.shownChoices(), shown);
}

TEST_F(UserChoicesTest, OnlyTheUserChoosesCombinations)
{
    show(everything());
    const PDEUserChoices_v1 &controls = *panel;
    apply({{"KvHalfCut", "ON"}, {"KvCutLabel", "3"}});
    panel->willShow();
    panel->restoreValuesAndReturnError(nullptr);
    panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(controls.combinationsChosen(), 0);
    // The one that the pop-up shows already changes nothing, and is a choice all the same.
    const int row = panel->popUp()->currentIndex();
    Q_EMIT panel->popUp()->activated(row);
    Q_EMIT panel->popUp()->activated(row);
    EXPECT_EQ(controls.combinationsChosen(), 2);
}

TEST_F(UserChoicesTest, NoAlertIsShown)
{
    for (const bool ownBox : {false, true}) {
        show(ownBox ? everything() : PpdBuilder().allOptions(), "HS11mm");
        bool alerted = false;
        QTimer::singleShot(0, panel->panelView(), [&alerted] {
            if (auto *const message = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                alerted = true;
                message->close();
            }
        });
        apply({{"KvAutoTapeCut", "ON"}});
        QCoreApplication::processEvents();
        EXPECT_FALSE(alerted);
        EXPECT_EQ(dialog->marked("KvAutoTapeCut"), QStringLiteral("ON"));
    }
}

TEST_F(UserChoicesTest, WhatAFullRefreshDropsComesBack)
{
    show(cutting());
    box(OptionKind::Mirror)->click();
    box(OptionKind::HalfCut)->click();
    panel->countStepper()->stepTo(12);
    const std::vector<Change> before = saved();
    panel->restoreValuesAndReturnError(nullptr);
    ASSERT_NE(saved(), before) << "the refresh switches mirror writing off";
    panel->applyUserChoices(before);
    EXPECT_EQ(saved(), before);
}

TEST_F(UserChoicesTest, TheSummaryIsThatOfTheSameChoicesMarked)
{
    const PpdBuilder builder = everything()
                                   .choices("KvMirror", {{"OFF", "Off"}, {"ON", "On"}, {"AUTO", "Automatic"}})
                                   .choices("KvCutLabel", {{"1", "one"}, {"2", "two"}, {"3", "three"}});
    for (const char *automatic : {"OFF", "ON"}) {
        for (const char *keyword : panelKeywords) {
            for (const char *choice : {"OFF", "ON", "AUTO", "1", "3", "none"}) {
                open(builder);
                const QVariantMap given = summaryFor({{"KvAutoTapeCut", automatic}, {keyword, choice}});
                EXPECT_TRUE(dialog->changes.empty());
                EXPECT_EQ(dialog->marked("KvAutoTapeCut"), QStringLiteral("OFF")) << "nothing is marked";
                EXPECT_EQ(panel->summaryInfo(), panel->summaryInfoFor({}));
                dialog->mark("KvAutoTapeCut", automatic);
                // Each keyword stands once among given choices: the first counts.
                if (qstrcmp(keyword, "KvAutoTapeCut") != 0)
                    dialog->mark(keyword, choice);
                panel->setPDEItems2();
                EXPECT_EQ(given, panel->summaryInfo()) << keyword << ' ' << choice << ' ' << automatic;
            }
        }
    }
}

TEST_F(UserChoicesTest, AGivenChoiceHasALineBeforeAnythingIsSelected)
{
    PanelTest::open(PpdBuilder().text("KvMirror", "t-mirror").text("KvHalfCut", "t-half"));
    EXPECT_EQ(summaryFor({{"KvMirror", "ON"}}),
              (QVariantMap{{QStringLiteral("t-mirror"),
                            bundle()->localizedStringForKey(QStringLiteral("RS_STitle_Yes"))},
                           {PDESummaryDisplayOrderKey, QStringList{QStringLiteral("t-mirror")}}}));
}
