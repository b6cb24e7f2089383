// SPDX-License-Identifier: Apache-2.0
#include "ModelBench.h"

#include <gtest/gtest.h>

namespace {

using namespace model;
using Changes = QList<std::pair<QString, QString>>;

TEST(Saving, SpecialTapeOverrulesFourOthers)
{
    for (const bool shown : {true, false}) {
        ModelBench bench(printerWithout(shown ? QStringList() : QStringList{"KvSpecialTape"}));
        bench.show();
        for (const Row row : rows)
            bench.view()[row].value = 1;
        const auto changes = ModelBench::changes(bench.ask("save"));
        const auto written = [&changes](const char *keyword) {
            return changes.contains(std::pair(QString(keyword), QString("ON"))) ? 1 : 0;
        };
        for (const char *keyword : {"KvAutoTapeCut", "KvHalfCut", "KvChainPrint", "KvCutMark"})
            EXPECT_EQ(written(keyword), shown ? 0 : 1) << keyword;
        for (const char *keyword : {"KvCutAtEnd", "KvMirror", "KvRemoveBlkSpace"})
            EXPECT_EQ(written(keyword), 1) << keyword;
    }
}

TEST(Saving, AutomaticCutWithoutABoxIsSavedFromTheCutEveryBox)
{
    for (const int state : {0, 1}) {
        ModelBench bench(printerWithout({"KvAutoCutObjHidden"}),
                         {{"marks", QJsonArray{QJsonArray{"KvCutLabel", "3"}}}});
        bench.show();
        bench.view()[Row::CutEvery].value = state;
        const auto changes = ModelBench::changes(bench.ask("save"));
        EXPECT_EQ(changes.mid(0, 2), (Changes{{"KvAutoTapeCut", state ? "ON" : "OFF"}, {"KvCutLabel", "3"}}));
    }
}

TEST(Saving, AutomaticCutWithABoxIsSavedFromIt)
{
    ModelBench bench(fullPrinter());
    bench.show();
    bench.view()[Row::CutEvery].value = 1;
    bench.view()[Row::AutoCut].value = 0;
    const auto changes = ModelBench::changes(bench.ask("save"));
    EXPECT_EQ(
        changes.mid(0, 4),
        (Changes{{"KvCutLabel", "1"}, {"KvCutAtEnd", "OFF"}, {"KvMirror", "OFF"}, {"KvAutoTapeCut", "OFF"}}));
}

TEST(Saving, AnUnmarkedCountIsSavedAsTheFirstOnceTheFieldIsThere)
{
    auto printer = fullPrinter();
    printer.options[0].defaultChoice = "7";
    for (const bool loaded : {false, true}) {
        ModelBench bench(printer, {{"markDefaults", false}});
        if (loaded)
            bench.ask("view");
        EXPECT_EQ(ModelBench::changes(bench.ask("save")).value(0),
                  std::pair(QString("KvCutLabel"), QString(loaded ? "1" : "7")));
    }
}

TEST(Saving, TheTapeKindDecidesOnBlankSpaceRemoval)
{
    struct Case {
        QJsonValue paper;
        int kind;
    };
    const auto paper = [](const QJsonValue &name, double height) {
        return QJsonObject{{"name", name}, {"height", height}};
    };
    for (const Case &c : {Case{QJsonValue(), 0}, Case{paper("24mm", 100), 0}, Case{paper("DC01", 100), 1},
                          Case{paper("DC01", 0), 0}, Case{paper("DC99", 100), 0}, Case{paper("FL01", 100), 1},
                          Case{paper(QJsonValue(), 100), 2}, Case{paper("", 100), 2}}) {
        ModelBench bench(fullPrinter(), {{"paper", c.paper}});
        bench.ask("view");
        bench.ask("save");
        EXPECT_EQ(bench.panel().tapeState, c.kind);
        EXPECT_EQ(bench.view()[Row::RemoveBlkSpace].enabled, c.kind != 1);
    }
}

TEST(Saving, WithoutPrintSettingsNothingIsSaved)
{
    ModelBench bench(fullPrinter(),
                     {{"printSettings", false}, {"paper", QJsonObject{{"name", "DC01"}, {"height", 100}}}});
    bench.show();
    EXPECT_EQ(ModelBench::changes(bench.ask("save")), Changes());
    EXPECT_EQ(bench.panel().tapeState, 1);
}

TEST(Saving, ThePrintCheckMarksOnlyWhatIsUnmarked)
{
    auto printer = fullPrinter();
    printer.options[2].defaultChoice.reset();
    printer.options[4].defaultChoice = "ON";
    ModelBench bench(printer,
                     {{"markDefaults", false}, {"marks", QJsonArray{QJsonArray{"KvCutLabel", "5"}}}});
    const auto reply = bench.ask("shouldPrint");
    EXPECT_TRUE(reply["result"].toBool());
    EXPECT_EQ(ModelBench::changes(reply), (Changes{{"KvCutAtEnd", "OFF"},
                                                   {"KvAutoTapeCut", "OFF"},
                                                   {"KvHalfCut", "ON"},
                                                   {"KvChainPrint", "OFF"},
                                                   {"KvSpecialTape", "OFF"},
                                                   {"KvRemoveBlkSpace", "OFF"},
                                                   {"KvCutMark", "OFF"}}));
    EXPECT_EQ(ModelBench::changes(bench.ask("shouldPrint")), Changes());
}

} // namespace
