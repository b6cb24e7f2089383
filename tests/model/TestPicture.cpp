// SPDX-License-Identifier: Apache-2.0
#include "ModelBench.h"

#include <gtest/gtest.h>

namespace {

using namespace model;

PrinterDescription printerOf(const char *tapeType)
{
    auto printer = fullPrinter();
    printer.tapeType = tapeType;
    return printer;
}

struct PictureCase {
    const char *tapeType;
    QList<Row> on;
    const char *picture;
};

TEST(Picture, ShowsWhatTheBoxesDo)
{
    const PictureCase cases[] = {
        {"LX", {}, "AHCMOffOffOffOff"},
        {"LX", {Row::Mirror}, "AHCMOffOffOffOn"},
        {"LX", {Row::ChainPrint}, "AHCMOffOffOnOff"},
        {"LX", {Row::HalfCut}, "AHCMOffOnOffOff"},
        {"LX", {Row::AutoCut}, "AHCMOnOffOffOff"},
        {"LX", {Row::CutEvery}, "AHCMOnOffOffOff"},
        {"LX", {Row::CutAtEnd, Row::RemoveBlkSpace, Row::CutMark}, "AHCMOffOffOffOff"},
        {"LX", {Row::AutoCut, Row::HalfCut, Row::ChainPrint, Row::Mirror}, "AHCMOnOnOnOn"},
        {"LX", {Row::SpecialTape, Row::AutoCut, Row::HalfCut, Row::ChainPrint}, "SPMROnOff"},
        {"LX", {Row::SpecialTape, Row::Mirror}, "SPMROnOn"},
        {"DZ", {}, "EveryEndMirrorOffOffOff"},
        {"DZ", {Row::CutAtEnd}, "EveryEndMirrorOffOnOff"},
        {"DZ", {Row::CutEvery, Row::CutAtEnd}, "EveryEndMirrorOnOffOff"},
        {"DZ", {Row::AutoCut}, "EveryEndMirrorOnOffOff"},
        {"DZ", {Row::Mirror}, "EveryEndMirrorOffOffOn"},
        {"DZ", {Row::CutAtEnd, Row::Mirror}, "EveryEndMirrorOffOnOn"},
        {"DZ", {Row::CutEvery, Row::Mirror}, "EveryEndMirrorOnOffOn"},
        {"DZ", {Row::SpecialTape, Row::CutEvery, Row::CutAtEnd}, "EveryEndMirrorOffOnOff"},
    };
    for (const auto &c : cases) {
        ModelBench bench(printerOf(c.tapeType));
        bench.ask("view");
        for (const Row row : c.on)
            bench.view()[row].value = 1;
        EXPECT_EQ(bench.panel().picture(), c.picture);
        for (const Row row : c.on)
            bench.view()[row].enabled = false;
        EXPECT_EQ(bench.panel().picture(), c.picture) << "disabled boxes count";
        for (const Row row : c.on)
            bench.view()[row].hidden = true;
        EXPECT_TRUE(bench.panel().picture().endsWith("OffOffOff")) << "hidden boxes do not";
    }
}

} // namespace
