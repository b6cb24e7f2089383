// SPDX-License-Identifier: Apache-2.0
#include "ModelBench.h"

#include <gtest/gtest.h>

namespace {

using namespace model;

const QStringList allKeywords{"KvCutLabel",    "KvCutAtEnd",       "KvMirror",
                              "KvAutoTapeCut", "KvHalfCut",        "KvChainPrint",
                              "KvSpecialTape", "KvRemoveBlkSpace", "KvCutMark"};

int bottomOf(Panel &panel, Row row)
{
    const auto controls = panel.state()["controls"].toObject();
    return controls[QLatin1String(namesOf(row).box)].toObject()["y"].toInt();
}

TEST(Construction, AllNineRowsFillTheHeightOfTheLayout)
{
    ModelBench bench(fullPrinter());
    bench.show();
    const int height = LayoutFile::ofSources().viewHeight();
    EXPECT_EQ(bench.view().height, height);
    for (const Row row : rows)
        EXPECT_FALSE(bench.view()[row].hidden) << namesOf(row).box;
    EXPECT_EQ(bottomOf(bench.panel(), Row::CutMark), height - 38);
    EXPECT_EQ(bottomOf(bench.panel(), Row::CutEvery), height - 64);
    EXPECT_EQ(bottomOf(bench.panel(), Row::AutoCut), height - 116);
    EXPECT_EQ(bottomOf(bench.panel(), Row::RemoveBlkSpace), height - 272);
    EXPECT_EQ(bench.view().countField.y, height - 94);
    EXPECT_EQ(bench.view().countStepper.y, height - 95);
    EXPECT_EQ(bench.view().countWord.y, height - 88);
    EXPECT_EQ(bench.view().previewY, height - 130);
}

TEST(Construction, WithoutAnyKeywordEverythingIsHidden)
{
    ModelBench bench(printerWithout(allKeywords));
    bench.show();
    EXPECT_EQ(bench.view().height, std::max(150, LayoutFile::ofSources().viewHeight() - 260));
    for (const Row row : rows)
        EXPECT_TRUE(bench.view()[row].hidden) << namesOf(row).box;
    EXPECT_TRUE(bench.view().countField.hidden);
    EXPECT_TRUE(bench.view().countStepper.hidden);
    EXPECT_TRUE(bench.view().countWord.hidden);
    EXPECT_EQ(bench.view().presets, QList{4});
}

TEST(Construction, AutoCutHasARowOnlyWhenThePpdSaysItIsNotHidden)
{
    for (const auto &value : {std::optional<QString>(), std::optional<QString>(""),
                              std::optional<QString>("false"), std::optional<QString>("True")}) {
        auto printer = fullPrinter();
        printer.autoCutObjHidden = value;
        ModelBench bench(printer);
        bench.show();
        EXPECT_TRUE(bench.view()[Row::AutoCut].hidden) << value.value_or("(absent)").toStdString();
        EXPECT_EQ(bench.view().height, LayoutFile::ofSources().viewHeight() - 26);
    }
}

TEST(Construction, PresetsThatThePrinterCannotDoAreTakenOut)
{
    const auto presets = [](const QStringList &missing, const char *tapeType) {
        auto printer = printerWithout(missing);
        printer.tapeType = tapeType;
        ModelBench bench(printer);
        bench.ask("view");
        EXPECT_EQ(bench.view().selectedPreset, bench.view().presets.value(0));
        return bench.view().presets;
    };
    EXPECT_EQ(presets({}, "LX"), (QList{6, 8, 10, 12, 13, 14, 15, 16}));
    EXPECT_EQ(presets({"KvCutMark"}, "LX"), (QList{4, 5, 6, 7, 8, 9, 10, 11, 12}));
    EXPECT_EQ(presets({"KvCutMark", "KvAutoCutObjHidden"}, "LX"), (QList{4, 5, 6, 7, 8, 9, 10, 11, 12}));
    EXPECT_EQ(presets({"KvCutMark", "KvAutoCutObjHidden", "KvCutLabel"}, "LX"), (QList{4, 5, 6, 7, 12}));
    EXPECT_EQ(presets({"KvCutMark", "KvHalfCut"}, "DZ"), (QList{1, 2, 3, 5, 8, 9, 12}));
    EXPECT_EQ(presets({"KvCutMark", "KvChainPrint", "KvCutAtEnd"}, "DZ"), (QList{1, 3, 6, 8, 10, 12}));
    EXPECT_EQ(presets({"KvChainPrint", "KvSpecialTape"}, "dz"), (QList{6, 8, 10, 13, 16}));
}

TEST(Construction, KeysAreThoseOfThePpdInTableOrder)
{
    const auto keys = [](const QStringList &missing) {
        return ModelBench(printerWithout(missing)).ask("supportedKeys")["keys"].toVariant().toStringList();
    };
    EXPECT_EQ(keys({}), allKeywords);
    EXPECT_EQ(keys({"KvCutLabel"}), allKeywords.mid(1));
    EXPECT_EQ(keys({"KvAutoTapeCut"}),
              QStringList({"KvCutLabel", "KvAutoTapeCut", "KvCutAtEnd", "KvMirror", "KvHalfCut",
                           "KvChainPrint", "KvSpecialTape", "KvRemoveBlkSpace", "KvCutMark"}));
    EXPECT_EQ(keys(allKeywords), QStringList());
}

TEST(Construction, AskingForTheKeysSavesOnce)
{
    ModelBench bench(fullPrinter());
    EXPECT_EQ(ModelBench::changes(bench.ask("supportedKeys")).size(), 9);
    EXPECT_EQ(ModelBench::changes(bench.ask("supportedKeys")).size(), 0);
}

TEST(Construction, HeatShrinkTubeMarksAutomaticCutOffAtOnce)
{
    auto printer = fullPrinter();
    printer.options[3].defaultChoice = "ON";
    ModelBench tape(printer, {{"paper", QJsonObject{{"name", "24mm"}, {"height", 100}}}});
    EXPECT_EQ(tape.dialog().marked("KvAutoTapeCut"), QString("ON"));
    ModelBench tube(printer, {{"paper", QJsonObject{{"name", "HS24"}, {"height", 100}}}});
    EXPECT_EQ(tube.dialog().marked("KvAutoTapeCut"), QString("OFF"));
    EXPECT_TRUE(tube.dialog().settings.isEmpty());
}

TEST(Construction, BoxesStartFromTheDefaultsOfThePpd)
{
    auto printer = fullPrinter();
    printer.options[0].defaultChoice = "10";
    printer.options[1].defaultChoice = "ON";
    printer.options[4].defaultChoice = "on";
    ModelBench bench(printer, {{"marks", QJsonArray{QJsonArray{"KvCutAtEnd", "OFF"}}}});
    bench.show();
    EXPECT_EQ(bench.view()[Row::CutEvery].value, 0) << "the default count must be 1 exactly";
    EXPECT_EQ(bench.view()[Row::CutAtEnd].value, 1) << "the default counts, not the mark";
    EXPECT_EQ(bench.view()[Row::HalfCut].value, 0) << "letters count";
    EXPECT_EQ(bench.view().countField.text, "10");
    EXPECT_EQ(bench.view().countStepper.value, 10);
    EXPECT_EQ(bench.view().countWord.text, "RS_Labels");
}

TEST(Construction, FirstShowingSavesAndLaterOnesDoNot)
{
    ModelBench bench(fullPrinter());
    bench.ask("view");
    EXPECT_EQ(ModelBench::changes(bench.ask("willShow")).size(), 9);
    EXPECT_EQ(ModelBench::changes(bench.ask("willShow")).size(), 0);
}

TEST(Construction, TheDialogHearsOfTheNewSizeWhenItsWindowCanHoldIt)
{
    const int height = LayoutFile::ofSources().viewHeight();
    const QJsonArray resize{QJsonArray{"panelViewDidResize"}};
    for (const auto &[window, atOnce] : {std::pair(height + 96, false), std::pair(height + 97, true)}) {
        ModelBench bench(fullPrinter(), {{"keyWindowHeight", window}});
        EXPECT_EQ(bench.ask("view")["events"].toArray(), atOnce ? resize : QJsonArray());
        EXPECT_EQ(bench.ask("trackingAreasUpdated")["events"].toArray(), atOnce ? QJsonArray() : resize);
        EXPECT_EQ(bench.ask("trackingAreasUpdated")["events"].toArray(), QJsonArray());
    }
    ModelBench unheard(printerWithout(allKeywords), {{"canResize", false}});
    unheard.ask("view");
    EXPECT_EQ(unheard.view().height, height);
}

} // namespace
