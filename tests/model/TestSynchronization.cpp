// SPDX-License-Identifier: Apache-2.0
#include "ModelBench.h"

#include <gtest/gtest.h>

namespace {

using namespace model;

TEST(Synchronization, RestoreOfATapePrinterWithAllBoxesOffSelectsTheFirstTapePreset)
{
    ModelBench bench(printerWithout({"KvCutMark"}));
    bench.show();
    bench.ask("restore");
    EXPECT_EQ(bench.view().selectedPreset, 4);
}

TEST(Synchronization, SpecialTapeAloneDecidesThePreset)
{
    ModelBench bench(printerWithout({"KvCutMark"}));
    bench.show();
    for (const Row row : rows)
        bench.view()[row].value = 1;
    EXPECT_EQ(bench.panel().presetTag(), 12);
    bench.view()[Row::SpecialTape].value = 0;
    EXPECT_EQ(bench.panel().presetTag(), 11);
}

TEST(Synchronization, FlagLabelsKnowThreePresets)
{
    ModelBench bench(fullPrinter());
    bench.show();
    bench.choosePaper("FL01");
    auto &view = bench.view();
    for (const auto &[cut, half, tag] : {std::tuple(0, 0, 4), {1, 0, 8}, {0, 1, 1}, {1, 1, 1}}) {
        view[Row::AutoCut].value = cut;
        view[Row::HalfCut].value = half;
        view[Row::CutEvery].value = 0;
        view[Row::SpecialTape].value = 0;
        EXPECT_EQ(bench.panel().presetTag(), tag);
    }
    for (int tag = 1; tag <= 16; ++tag)
        EXPECT_EQ(bench.panel().isPresetAllowed(tag), !((tag >= 5 && tag <= 7) || (tag >= 9 && tag <= 12)));
}

TEST(Synchronization, PresetsSetTheirBoxesAndSwitchMirrorOff)
{
    // Cut every, cut at end, auto cut, half cut, chain, special tape, cut mark; '.' keeps its state.
    const char *const expected[] = {"00.....", "01.....", "10.....", "0.0000.", "0.0010.", "0.0100.",
                                    "0.0110.", "1.1000.", "1.1010.", "1.1100.", "1.1110.", ".....1.",
                                    "....0.1", "....1.1", "....1.0", "....0.0"};
    const Row columns[] = {Row::CutEvery,   Row::CutAtEnd,    Row::AutoCut, Row::HalfCut,
                           Row::ChainPrint, Row::SpecialTape, Row::CutMark};
    for (int tag = 1; tag <= 16; ++tag) {
        for (const int before : {0, 1}) {
            ModelBench bench(fullPrinter());
            bench.show();
            for (const Row row : rows)
                bench.view()[row].value = before;
            bench.panel().choosePreset(tag);
            for (int column = 0; column < 7; ++column) {
                const char wanted = expected[tag - 1][column];
                EXPECT_EQ(bench.view()[columns[column]].value, wanted == '.' ? before : wanted - '0')
                    << tag << namesOf(columns[column]).box;
            }
            EXPECT_EQ(bench.view()[Row::Mirror].value, 0) << tag;
            EXPECT_EQ(bench.view()[Row::RemoveBlkSpace].value, before) << tag;
        }
    }
}

TEST(Synchronization, AFullRefreshAppliesTheSelectedPreset)
{
    ModelBench bench(fullPrinter());
    bench.show();
    bench.click("mMirrorPrintChkBx");
    EXPECT_EQ(bench.view()[Row::Mirror].value, 1);
    bench.ask("restore");
    EXPECT_EQ(bench.view()[Row::Mirror].value, 0);
    EXPECT_EQ(bench.dialog().marked("KvMirror"), QString("ON"));
    bench.view()[Row::Mirror].value = 1;
    bench.view().selectedPreset = 0;
    bench.view().presets.clear();
    bench.ask("willShow");
    EXPECT_EQ(bench.view()[Row::Mirror].value, 1);
}

TEST(Synchronization, HeatShrinkTubeSwitchesTheCutEveryBoxOff)
{
    for (const bool reversed : {false, true}) {
        auto printer = printerWithout({"KvCutMark"});
        if (reversed)
            std::swap(printer.options[3].choices[0], printer.options[3].choices[1]);
        ModelBench bench(printer);
        bench.show();
        bench.ask("mark", {{"keyword", "KvAutoTapeCut"}, {"choice", "ON"}});
        bench.ask("restore");
        const auto reply = bench.choosePaper("HS24");
        EXPECT_EQ(reply["events"].toArray(), QJsonArray());
        EXPECT_EQ(bench.dialog().marked("KvAutoTapeCut"), QString("OFF"));
        EXPECT_EQ(bench.selection("mAutoCut_CutEvery_Selection"), "OFF");
        EXPECT_EQ(bench.view()[Row::CutEvery].value, reversed ? 1 : 0);
    }
}

TEST(Synchronization, AnotherPanelsChangeWaitsForTheNextRefresh)
{
    ModelBench bench(printerWithout({"KvCutMark"}));
    bench.show();
    bench.ask("restore");
    bench.ask("ppdChange", {{"keyword", "KvHalfCut"}, {"choice", "ON"}});
    EXPECT_EQ(bench.view()[Row::HalfCut].value, 0);
    bench.ask("willShow");
    EXPECT_EQ(bench.view()[Row::HalfCut].value, 1);
}

TEST(Synchronization, AnotherPanelsAutomaticCutReachesOnlyItsOwnBox)
{
    ModelBench bench(printerWithout({"KvCutMark"}));
    bench.show();
    bench.ask("restore");
    bench.ask("ppdChange", {{"keyword", "KvAutoTapeCut"}, {"choice", "ON"}});
    EXPECT_EQ(bench.selection("mAutoCut_Selection"), "ON");
    EXPECT_EQ(bench.selection("mAutoCut_CutEvery_Selection"), "OFF");
}

TEST(Synchronization, OtherKeywordsAndNoKeywordsChangeNothing)
{
    ModelBench bench(fullPrinter());
    bench.show();
    bench.ask("restore");
    const auto before = bench.panel().state();
    bench.ask("ppdChange", {{"keyword", QJsonValue()}, {"choice", "ON"}});
    bench.ask("ppdChange", {{"keyword", "KvHalfCut"}, {"choice", QJsonValue()}});
    EXPECT_EQ(bench.panel().state(), before);
    bench.ask("ppdChange", {{"keyword", "kvhalfcut"}, {"choice", "ON"}});
    EXPECT_EQ(bench.panel().state()["selections"].toObject(), before["selections"].toObject());
    bench.ask("ppdChange", {{"keyword", "KvHalfCut"}, {"choice", "Other"}});
    EXPECT_TRUE(bench.selection("mHalfCut_Selection").isNull());
}

TEST(Synchronization, ADisabledBoxOfTheLastTwoRowsKeepsItsState)
{
    for (const Row row : {Row::RemoveBlkSpace, Row::HalfCut}) {
        ModelBench bench(printerWithout({"KvCutMark"}));
        bench.show();
        bench.ask("mark", {{"keyword", namesOf(row).keyword}, {"choice", "ON"}});
        bench.choosePaper("FL01");
        bench.view().presets.clear();
        bench.view().selectedPreset = 0;
        bench.ask("restore");
        EXPECT_FALSE(bench.view()[row].enabled);
        EXPECT_EQ(bench.view()[row].value, row == Row::HalfCut ? 1 : 0);
    }
}

} // namespace
