// SPDX-License-Identifier: Apache-2.0
#include "ModelBench.h"

#include <gtest/gtest.h>

namespace {

using namespace model;

const QList<Row> excludedBySpecialTape{Row::AutoCut, Row::ChainPrint, Row::HalfCut, Row::CutEvery};

TEST(Rules, FlagLabelsExcludeFourBoxes)
{
    ModelBench bench(fullPrinter());
    bench.show();
    bench.click("mCutEveryChkBx");
    bench.choosePaper("FL01");
    for (const Row row : rows) {
        const bool excluded = row == Row::RemoveBlkSpace || row == Row::HalfCut || row == Row::SpecialTape ||
                              row == Row::ChainPrint;
        EXPECT_EQ(bench.view()[row].enabled, !excluded) << namesOf(row).box;
    }
    bench.choosePaper("24mm");
    for (const Row row : rows)
        EXPECT_TRUE(bench.view()[row].enabled) << namesOf(row).box;
}

TEST(Rules, WithoutSpecialTapeNothingBringsHalfCutBack)
{
    ModelBench bench(printerWithout({"KvSpecialTape"}));
    bench.show();
    bench.choosePaper("FL01");
    EXPECT_FALSE(bench.view()[Row::HalfCut].enabled);
    EXPECT_TRUE(bench.view()[Row::ChainPrint].enabled);
    bench.choosePaper("24mm");
    EXPECT_FALSE(bench.view()[Row::HalfCut].enabled);
}

TEST(Rules, DieCutLabelsExcludeBlankSpaceRemovalOnly)
{
    for (const char *paper : {"DC01", "AV01", "DC99"}) {
        ModelBench bench(fullPrinter());
        bench.show();
        bench.choosePaper(paper);
        for (const Row row : rows)
            EXPECT_EQ(bench.view()[row].enabled, row != Row::RemoveBlkSpace) << paper << namesOf(row).box;
    }
}

TEST(Rules, SpecialTapeExcludesCuttingAndReleasesIt)
{
    for (const bool counting : {false, true}) {
        ModelBench bench(fullPrinter());
        bench.show();
        bench.ask("restore");
        if (counting)
            bench.click("mCutEveryChkBx");
        EXPECT_EQ(bench.view().countField.enabled, counting);
        bench.click("mSpecialTapeChkBx");
        for (const Row row : excludedBySpecialTape)
            EXPECT_FALSE(bench.view()[row].enabled) << namesOf(row).box;
        EXPECT_FALSE(bench.view().countField.enabled);
        EXPECT_FALSE(bench.view().countStepper.enabled);
        EXPECT_TRUE(bench.view().isWordGrey);
        bench.click("mSpecialTapeChkBx");
        for (const Row row : excludedBySpecialTape)
            EXPECT_TRUE(bench.view()[row].enabled) << namesOf(row).box;
        EXPECT_EQ(bench.view().countField.enabled, counting);
        EXPECT_EQ(bench.view().countStepper.enabled, counting);
        EXPECT_EQ(bench.view().isWordGrey, !counting);
    }
}

TEST(Rules, TheCountFollowsItsBoxOnlyWhileItsControlsAgree)
{
    ModelBench bench(fullPrinter());
    bench.show();
    auto &view = bench.view();
    for (const int state : {0, 1}) {
        for (const bool field : {false, true}) {
            for (const bool stepper : {false, true}) {
                view[Row::CutEvery].value = state;
                view.countField.enabled = field;
                view.countStepper.enabled = stepper;
                bench.panel().applyRules();
                const bool agree = field == stepper;
                EXPECT_EQ(view.countField.enabled, agree ? state == 1 : field);
                EXPECT_EQ(view.countStepper.enabled, agree ? state == 1 : stepper);
            }
        }
    }
}

TEST(Rules, TheSharedKeywordTakesBothBoxes)
{
    ModelBench bench(fullPrinter());
    bench.show();
    const QList<std::pair<QString, QString>> on{{"KvAutoTapeCut", "ON"}};
    bench.ask("mark", {{"keyword", "KvAutoTapeCut"}, {"choice", "OFF"}});
    bench.ask("restore");
    EXPECT_EQ(ModelBench::changes(bench.click("mCutEveryChkBx")), on);
    EXPECT_EQ(bench.view()[Row::AutoCut].value, 0) << "not refreshed by the other box";
    bench.click("mCutEveryChkBx");
    EXPECT_EQ(ModelBench::changes(bench.click("mAutoCutChkBx")), on);
}

TEST(Rules, TypedCountsAreHeldWithinTheList)
{
    struct Case {
        int first, last;
        const char *typed, *shown;
    };
    for (const Case &c :
         {Case{1, 99, "0", "1"}, Case{1, 99, "abc", "1"}, Case{1, 99, "150", "99"}, Case{1, 99, " 7x", "7"},
          Case{5, 8, "1", "5"}, Case{5, 8, "7", "7"}, Case{1, 300, "99999999999", "300"}}) {
        auto printer = fullPrinter();
        printer.options[0] = countOption("KvCutLabel", "Cut Every", c.first, c.last, c.first);
        ModelBench bench(printer);
        bench.show();
        const auto reply = bench.ask("type", {{"text", c.typed}, {"force", true}});
        EXPECT_EQ(bench.view().countField.text, c.shown) << c.typed;
        EXPECT_EQ(bench.view().countStepper.value, QString(c.shown).toInt()) << c.typed;
        EXPECT_EQ(ModelBench::changes(reply).value(0), std::pair(QString("KvCutLabel"), QString(c.shown)));
    }
}

TEST(Rules, HeatShrinkTubeWarnsAndSwitchesOnAllTheSame)
{
    for (const char *box : {"mCutEveryChkBx", "mAutoCutChkBx"}) {
        ModelBench bench(fullPrinter(), {{"paper", QJsonObject{{"name", "HS24"}, {"height", 100}}}});
        bench.show();
        bench.ask("mark", {{"keyword", "KvAutoTapeCut"}, {"choice", "OFF"}});
        bench.ask("restore");
        const auto events = bench.click(box)["events"].toArray();
        EXPECT_EQ(events, (QJsonArray{QJsonArray{"alert", "", "RS_Alrt_AutoCutWithHS", QJsonArray{"OK"}},
                                      QJsonArray{"willChange", "KvAutoTapeCut", "ON"}}));
        EXPECT_EQ(bench.click(box)["events"].toArray(),
                  QJsonArray{(QJsonArray{"willChange", "KvAutoTapeCut", "OFF"})});
    }
}

TEST(Rules, HiddenAndDisabledControlsRefuseUnlessForced)
{
    ModelBench bench(printerWithout({"KvCutMark"}));
    bench.show();
    bench.choosePaper("FL01");
    for (const char *box : {"mCutMarkChkBx", "mHalfCutChkBx"}) {
        EXPECT_FALSE(bench.click(box)["ok"].toBool()) << box;
        EXPECT_TRUE(bench.click(box, true)["ok"].toBool()) << box;
    }
    EXPECT_FALSE(bench.ask("choosePreset", {{"tag", 5}})["ok"].toBool());
    EXPECT_TRUE(bench.ask("choosePreset", {{"tag", 5}, {"force", true}})["ok"].toBool());
    EXPECT_FALSE(bench.ask("choosePreset", {{"tag", 13}, {"force", true}})["ok"].toBool());
}

} // namespace
