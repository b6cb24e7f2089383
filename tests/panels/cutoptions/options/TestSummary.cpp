// SPDX-License-Identifier: Apache-2.0
#include "PanelFixture.h"

#include <gtest/gtest.h>

using test_support::PanelTest;
using test_support::PpdBuilder;
using test_support::TestDialog;

namespace {

class SummaryTest : public PanelTest {
protected:
    void restored(const PpdBuilder &builder, const char *paper = "24mm")
    {
        open(builder, paper);
        panel->setPDEItems2();
    }

    QStringList order() const
    {
        return panel->summaryInfo().value().value(PDESummaryDisplayOrderKey).toStringList();
    }

    QString value(const char *title) const
    {
        return panel->summaryInfo().value().value(text(title)).toString();
    }

    static QString text(const char *key) { return bundle()->localizedStringForKey(QLatin1String(key)); }

    /// Options whose titles are short and not in the catalogue, so that they show as they are.
    static PpdBuilder plainTitles(PpdBuilder builder)
    {
        for (const char *keyword : test_support::panelKeywords)
            builder.text(keyword, QByteArray("t-") + keyword);
        return builder;
    }
};

} // namespace

TEST_F(SummaryTest, LinesStandInTheOrderOfTheStrip)
{
    restored(plainTitles(everything()));
    EXPECT_EQ(order(), (QStringList{QStringLiteral("t-KvCutLabel"), QStringLiteral("t-KvCutAtEnd"),
                                    QStringLiteral("t-KvHalfCut"), QStringLiteral("t-KvSpecialTape"),
                                    QStringLiteral("t-KvChainPrint"), QStringLiteral("t-KvMirror"),
                                    QStringLiteral("t-KvRemoveBlkSpace"), QStringLiteral("t-KvCutMark")}));
    EXPECT_EQ(panel->summaryInfo().value().size(), 9);
}

TEST_F(SummaryTest, TheAutomaticCutHasALineOnlyWithoutCutEvery)
{
    restored(PpdBuilder().text("KvAutoTapeCut", "t-auto").text("KvMirror", "t-mirror"));
    EXPECT_EQ(order(), (QStringList{QStringLiteral("t-auto"), QStringLiteral("t-mirror")}));
    dialog->mark("KvAutoTapeCut", "ON");
    EXPECT_EQ(value("t-auto"), text("RS_STitle_Yes"));
    restored(PpdBuilder().text("KvAutoTapeCut", "t-auto").text("KvCutLabel", "t-every").autoCutObjHidden());
    EXPECT_EQ(order(), QStringList{QStringLiteral("t-every")});
}

TEST_F(SummaryTest, YesAndNoFollowTheMarkNotTheSelection)
{
    restored(plainTitles(everything()));
    EXPECT_EQ(value("t-KvHalfCut"), text("RS_STitle_No"));
    dialog->mark("KvHalfCut", "ON");
    EXPECT_EQ(value("t-KvHalfCut"), text("RS_STitle_Yes"));
    EXPECT_EQ(selected(OptionKind::HalfCut), QStringLiteral("OFF"));
}

TEST_F(SummaryTest, AThirdChoiceOrNoMarkShowsTheSelectionsText)
{
    restored(plainTitles(everything()
                             .choices("KvMirror", {{"OFF", "Off"}, {"ON", "On"}, {"AUTO", "Automatic"}})
                             .defaultChoice("KvMirror", "AUTO")));
    EXPECT_EQ(value("t-KvMirror"), QStringLiteral("Automatic"));
    openWith(std::make_shared<TestDialog>(plainTitles(everything().defaultChoice("KvMirror", "ON")).open()));
    panel->setPDEItems2();
    EXPECT_EQ(value("t-KvMirror"), QStringLiteral("On"));
    EXPECT_EQ(value("t-KvCutLabel"), QStringLiteral("1")) << "no automatic cut is marked";
}

TEST_F(SummaryTest, CutEveryTellsTheCountWhenAutomaticCuttingIsOn)
{
    restored(plainTitles(everything()));
    dialog->mark("KvCutLabel", "3");
    dialog->mark("KvAutoTapeCut", "ON");
    panel->setPDEItems2();
    EXPECT_EQ(value("t-KvCutLabel"), QStringLiteral("3 ") + text("RS_Labels"));
    dialog->mark("KvAutoTapeCut", "OFF");
    EXPECT_EQ(value("t-KvCutLabel"), text("RS_STitle_No"));
}

TEST_F(SummaryTest, BlankSpaceShowsOnlyOnTapeOfFreeLength)
{
    for (const int state : {0, 1, 2, 3, -1}) {
        restored(plainTitles(everything()));
        panel->setTapeState(state);
        EXPECT_EQ(order().contains(QStringLiteral("t-KvRemoveBlkSpace")), state == 0 || state == 2) << state;
    }
}

TEST_F(SummaryTest, AnEmptyTitleStillStandsInTheOrder)
{
    restored(PpdBuilder().options({"KvHalfCut", "KvMirror"}).emptyText("KvHalfCut"));
    EXPECT_EQ(order().first(), QString());
    EXPECT_EQ(order().size(), 2);
    EXPECT_TRUE(panel->summaryInfo().value().contains(QString()));
}

TEST_F(SummaryTest, EqualTitlesShareAnEntryButNotAPlace)
{
    restored(
        PpdBuilder().options({"KvHalfCut", "KvMirror"}).text("KvHalfCut", "same").text("KvMirror", "same"));
    dialog->mark("KvMirror", "ON");
    EXPECT_EQ(order(), (QStringList{QStringLiteral("same"), QStringLiteral("same")}));
    EXPECT_EQ(panel->summaryInfo().value().size(), 2);
    EXPECT_EQ(value("same"), text("RS_STitle_Yes")) << "the later line wins";
}

TEST_F(SummaryTest, ATextThatCannotBeDecodedGivesWayToOurOwnTitle)
{
    restored(PpdBuilder().options({"KvHalfCut"}));
    qstrncpy(ppdFindOption(dialog->ppdFile(), "KvHalfCut")->text, "Pr\xe4gen", PPD_MAX_TEXT);
    EXPECT_EQ(order(), QStringList{text("RS_STitle_HalfCut")});
}

TEST_F(SummaryTest, EachLineHasATitleOfItsOwnWhereThePpdHasNone)
{
    // Without a catalogue each text is its key. The catalogues have the same words for a line and for its
    // box.
    const auto keys = platform::Bundle::open(QStringLiteral("/nonexistent"), {});
    const auto summaryKeys = [&](const PpdBuilder &builder) {
        dialog = std::make_shared<TestDialog>(builder.openMarked());
        for (const char *keyword : test_support::panelKeywords) {
            if (ppd_option_t *const option = ppdFindOption(dialog->ppdFile(), keyword))
                qstrncpy(option->text, "\xe9", PPD_MAX_TEXT);
        }
        panel = OptionPDE13_v400_::initWithCallback(dialog, keys);
        panel->setPDEItems2();
        return order();
    };
    EXPECT_EQ(summaryKeys(everything()).join(u' '),
              QStringLiteral("RS_STitle_CutLabels RS_STitle_CutAtEnd RS_STitle_HalfCut RS_STitle_SpecialTape "
                             "RS_STitle_ChainPrint RS_STitle_MirrorPrinting RS_STitle_RemoveBlkSpace "
                             "RS_STitle_CutMark"));
    EXPECT_EQ(summaryKeys(PpdBuilder().option("KvAutoTapeCut")),
              QStringList{QStringLiteral("RS_STitle_AutoTapeCut")});
}

TEST_F(SummaryTest, TheCountIsTheChoicesKeyword)
{
    restored(plainTitles(everything()
                             .choices("KvCutLabel", {{"1", "one"}, {"2", "two"}})
                             .defaultChoice("KvCutLabel", "2")
                             .defaultChoice("KvAutoTapeCut", "ON")));
    EXPECT_EQ(value("t-KvCutLabel"), QStringLiteral("2 ") + text("RS_Labels"));
}

TEST_F(SummaryTest, WithoutSelectionsOnlyTheEmptyOrderIsLeft)
{
    open(everything());
    EXPECT_EQ(panel->summaryInfo(), (QVariantMap{{PDESummaryDisplayOrderKey, QStringList()}}));
}

TEST_F(SummaryTest, TellingChangesNothing)
{
    restored(everything());
    panel->summaryInfo();
    EXPECT_TRUE(dialog->changes.empty());
}
