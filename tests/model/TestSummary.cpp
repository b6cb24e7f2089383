// SPDX-License-Identifier: Apache-2.0
#include "ModelBench.h"

#include <gtest/gtest.h>

namespace {

using namespace model;

QJsonObject summaryOf(ModelBench &bench)
{
    return bench.ask("summary")["summary"].toObject();
}

QStringList orderOf(const QJsonObject &summary)
{
    return summary["Summary Display Order"].toVariant().toStringList();
}

TEST(Summary, LinesStandInTheOrderOfTheSummary)
{
    ModelBench bench(fullPrinter());
    bench.show();
    bench.ask("restore");
    EXPECT_EQ(orderOf(summaryOf(bench)), QStringList({"Cut Every", "CutAtEnd", "HalfCut", "SpecialTape",
                                                      "ChainPrint", "Mirror", "RemoveBlkSpace", "CutMark"}))
        << "automatic cut has no line beside cut every";
    ModelBench uncounted(printerWithout({"KvCutLabel"}));
    uncounted.show();
    uncounted.ask("restore");
    EXPECT_EQ(orderOf(summaryOf(uncounted)).value(0), "AutoTapeCut");
}

TEST(Summary, TheCutEveryLineFollowsTheAutomaticCut)
{
    for (const auto &[choice, value] : {std::pair("OFF", "RS_STitle_No"), std::pair("ON", "3 RS_Labels")}) {
        ModelBench bench(fullPrinter());
        bench.show();
        bench.ask("mark", {{"keyword", "KvCutLabel"}, {"choice", "3"}});
        bench.ask("mark", {{"keyword", "KvAutoTapeCut"}, {"choice", choice}});
        bench.ask("restore");
        EXPECT_EQ(summaryOf(bench)["Cut Every"].toString(), value);
    }
    ModelBench without(printerWithout({"KvAutoTapeCut"}));
    without.show();
    without.ask("restore");
    EXPECT_EQ(summaryOf(without)["Cut Every"].toString(), "1 labels");
}

TEST(Summary, AnUnmarkedOptionIsToldByItsSelection)
{
    ModelBench bench(fullPrinter(), {{"markDefaults", false}});
    bench.ask("ppdChange", {{"keyword", "KvHalfCut"}, {"choice", "ON"}});
    EXPECT_EQ(summaryOf(bench)["HalfCut"].toString(), "RS_STitle_Yes");
    auto printer = fullPrinter();
    printer.options[4].choices.push_back({"DEEP", "Deep"});
    ModelBench third(printer, {{"marks", QJsonArray{QJsonArray{"KvHalfCut", "DEEP"}}}});
    third.ask("view");
    third.ask("restore");
    EXPECT_EQ(summaryOf(third)["HalfCut"].toString(), "Deep");
    ModelBench unmarked(fullPrinter(), {{"markDefaults", false}});
    unmarked.ask("view");
    unmarked.ask("restore");
    EXPECT_EQ(summaryOf(unmarked)["HalfCut"].toString(), "Off");
}

TEST(Summary, BlankSpaceIsLeftOutOnDieCutLabels)
{
    ModelBench bench(fullPrinter(), {{"paper", QJsonObject{{"name", "DC01"}, {"height", 100}}}});
    bench.show();
    bench.ask("restore");
    EXPECT_FALSE(orderOf(summaryOf(bench)).contains("RemoveBlkSpace"));
    EXPECT_EQ(bench.selection("mRemoveBlkSpace_Selection"), "OFF");
}

TEST(Summary, EqualTitlesShareOneEntryAndStandTwice)
{
    auto printer = fullPrinter();
    printer.options[4].text = printer.options[5].text = "Same";
    ModelBench bench(printer, {{"marks", QJsonArray{QJsonArray{"KvHalfCut", "ON"}}}});
    bench.ask("view");
    bench.ask("restore");
    const auto summary = summaryOf(bench);
    EXPECT_EQ(summary["Same"].toString(), "RS_STitle_No");
    EXPECT_EQ(orderOf(summary).count("Same"), 2);
}

TEST(Summary, WithoutSelectionsOnlyTheOrderIsLeft)
{
    ModelBench bench(fullPrinter());
    EXPECT_EQ(summaryOf(bench), (QJsonObject{{"Summary Display Order", QJsonArray()}}));
}

} // namespace
