// SPDX-License-Identifier: Apache-2.0
// Walks in which choices were lost before a fix.
#include "Walk.h"

#include <platform/PopUpButton.h>

#include <gtest/gtest.h>

namespace {

using namespace dialogwalk;

class ChoicesThatStay : public testing::Test {
protected:
    static void SetUpTestSuite() { server = std::make_unique<WalkedServer>(); }
    static void TearDownTestSuite() { server.reset(); }

    void SetUp() override { server->setVariants({}); }

    void open(const char *destination)
    {
        ASSERT_TRUE(dialog.open(QLatin1String(destination)));
        intent.enter(dialog.destination(), dialog.options());
    }
    void expectChosen() { EXPECT_EQ(intent.broken(dialog), QStringList()) << dialog.told().toStdString(); }

    inline static std::unique_ptr<WalkedServer> server;
    WalkedDialog dialog{*server};
    Intent intent;
    Hand hand{dialog, intent};
};

} // namespace

TEST_F(ChoicesThatStay, WhatThePaperReplacesOutlivesTheDescription)
{
    open("few");
    ASSERT_EQ(dialog.options().value("KvAutoTapeCut"), "ON");
    hand.pickPaper("HS6x50");
    EXPECT_EQ(dialog.options().value("KvAutoTapeCut"), "OFF");
    expectChosen();
    hand.perform({Action::ReplacePpd, 0});
    EXPECT_EQ(dialog.options().value("KvAutoTapeCut"), "OFF");
    expectChosen();
    hand.pickPaper("12x50mm");
    EXPECT_EQ(dialog.options().value("KvAutoTapeCut"), "ON");
    expectChosen();
}

TEST_F(ChoicesThatStay, WhatThePaperReplacesOutlivesAnotherQueue)
{
    open("few");
    hand.pickPaper("HS6x50");
    hand.pickQueue(QStringLiteral("dz"));
    hand.pickQueue(QStringLiteral("few"));
    EXPECT_EQ(dialog.options().value("KvAutoTapeCut"), "OFF");
    expectChosen();
    hand.pickPaper("12x50mm");
    EXPECT_EQ(dialog.options().value("KvAutoTapeCut"), "ON");
}

TEST_F(ChoicesThatStay, TheCountLeavesTheCombinationsCut)
{
    open("dz");
    hand.clickBox(QStringLiteral("mCutEveryChkBx"));
    ASSERT_EQ(dialog.options().value("KvAutoTapeCut"), "OFF");
    // "Cut every" is the last of the three combinations.
    hand.pickPreset(2);
    ASSERT_EQ(dialog.options().value("KvAutoTapeCut"), "ON");
    hand.perform({Action::TypeCount, 4});
    EXPECT_EQ(dialog.options().value("KvCutLabel"), "7");
    EXPECT_EQ(dialog.options().value("KvAutoTapeCut"), "ON");
    expectChosen();
}

TEST_F(ChoicesThatStay, ARemedyTellsNothingOfWhatSpecialTapeHid)
{
    open("lx");
    hand.clickBox(QStringLiteral("mHalfCutChkBx"));
    hand.clickBox(QStringLiteral("mSpecialTapeChkBx"));
    ASSERT_EQ(dialog.options().value("KvHalfCut"), "OFF");
    // The printer's own remedy leaves what was chosen last.
    hand.clickBox(QStringLiteral("mCutAndEndChkBx"));
    hand.perform({Action::PressRemedy, 0});
    EXPECT_EQ(dialog.options().value("KvSpecialTape"), "OFF");
    EXPECT_EQ(dialog.options().value("KvHalfCut"), "ON");
    EXPECT_EQ(dialog.told(), QString());
}

TEST_F(ChoicesThatStay, TheBoxThatSharesTheCutLeavesTheSentence)
{
    open("lx");
    ASSERT_EQ(dialog.options().value("KvAutoTapeCut"), "ON");
    hand.pickPaper("HS12x50");
    const QString sentence = dialog.told();
    ASSERT_TRUE(sentence.contains(QStringLiteral("cannot be"))) << sentence.toStdString();
    // Automatic cutting has a box of its own, which is off; this one requests again what the paper excludes.
    hand.clickBox(QStringLiteral("mCutEveryChkBx"));
    EXPECT_EQ(dialog.options().value("KvAutoTapeCut"), "OFF");
    EXPECT_EQ(dialog.told(), sentence);
    hand.clickBox(QStringLiteral("mAutoCutChkBx"));
    EXPECT_EQ(dialog.options().value("KvAutoTapeCut"), "ON");
    EXPECT_FALSE(dialog.told().contains(QStringLiteral("cannot be"))) << dialog.told().toStdString();
}

TEST_F(ChoicesThatStay, ACombinationThatChangesNothingIsTheUsersWordAboutTheCut)
{
    open("few");
    ASSERT_EQ(dialog.options().value("KvAutoTapeCut"), "ON");
    hand.pickPaper("HS12x50");
    ASSERT_TRUE(dialog.told().contains(QStringLiteral("cannot be"))) << dialog.told().toStdString();
    hand.pickPreset(dialog.panel().presets()->currentIndex());
    expectChosen();
    EXPECT_EQ(dialog.told(), QString());
    hand.pickPaper("12x50mm");
    EXPECT_EQ(dialog.options().value("KvAutoTapeCut"), "OFF");
    expectChosen();
}

TEST_F(ChoicesThatStay, LookingAtTheCombinationsChoosesNothing)
{
    open("few");
    hand.pickPaper("HS12x50");
    hand.perform({Action::TurnToPage, 2});
    dialog.chooseTab(QStringLiteral("Cut Options"));
    platform::PopUpButton *const presets = dialog.panel().presets();
    presets->setFocus(Qt::TabFocusReason);
    presets->showPopup();
    ASSERT_TRUE(dialog.refresh());
    presets->hidePopup();
    ASSERT_TRUE(dialog.refresh());
    EXPECT_TRUE(dialog.told().contains(QStringLiteral("cannot be"))) << dialog.told().toStdString();
    hand.pickPaper("12x50mm");
    EXPECT_EQ(dialog.options().value("KvAutoTapeCut"), "ON");
    expectChosen();
}

TEST_F(ChoicesThatStay, AListIsOperatedWhileTheWindowBecomesLarger)
{
    open("bare");
    hand.pickPaper("HS6x50");
    hand.perform({Action::PickPreset, 716703});
    ASSERT_TRUE(dialog.told().contains(QStringLiteral(" conflict."))) << dialog.told().toStdString();
    hand.perform({Action::Print, 513526});
    hand.pickPaper("18x60mm");
    EXPECT_EQ(dialog.options().value("PageSize"), "18x60mm");
    expectChosen();
}

TEST_F(ChoicesThatStay, ACombinationThatChangesNothingOutlivesTheDescription)
{
    open("lx/shelf");
    hand.pickPaper("DC12x25");
    hand.pickPaper("HS12x50");
    hand.perform({Action::PickPreset, 939112});
    hand.pickPaper("12x100mm");
    const QByteArray chosen = dialog.options().value("KvAutoTapeCut");
    EXPECT_EQ(chosen, "OFF");
    hand.perform({Action::ReplacePpd, 255251});
    EXPECT_EQ(dialog.options().value("KvAutoTapeCut"), chosen);
    expectChosen();
}

TEST_F(ChoicesThatStay, CopiesThatAreTypedOutliveAQueueThatHasTheSame)
{
    open("lx/shelf");
    ASSERT_EQ(dialog.options().value("copies"), "2");
    hand.perform({Action::TypeCopies, 677831});
    ASSERT_EQ(dialog.options().value("copies"), "2");
    hand.pickQueue(QStringLiteral("raw"));
    EXPECT_EQ(dialog.options().value("copies"), "2");
}
