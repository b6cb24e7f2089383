// SPDX-License-Identifier: Apache-2.0
// Every subset of the nine keywords, for both families, with and without a box for automatic cut: which rows
// there are, where they stand, which presets remain, which keywords are claimed, how the first showing
// and a save leave it all.
#include "Walker.h"

#include <gtest/gtest.h>

namespace {

using namespace walk;
using model::Row;

model::PrinterDescription printerWith(std::uint32_t subset, bool isDZ, bool hasAutoCutBox)
{
    model::PrinterDescription printer;
    for (const Row row : model::rows) {
        const QString keyword = namesOf(row).keyword;
        if (!(subset >> static_cast<int>(row) & 1u))
            continue;
        printer.options.push_back(row == Row::CutEvery
                                      ? model::countOption(keyword, keyword, 1, 4, 1)
                                      : model::switchOption(keyword, keyword, row == Row::Mirror));
    }
    printer.papers = {"24mm"};
    if (isDZ)
        printer.tapeType = "DZ";
    if (hasAutoCutBox)
        printer.autoCutObjHidden = "False";
    return printer;
}

TEST(Layout, EverySubsetOfTheKeywords)
{
    Walker walker(KV_BINARY_DIR "/bin/KVLXDZOptions.bundle");
    for (std::uint32_t subset = 0; subset < 512; ++subset) {
        for (const int variant : {0, 1, 2, 3}) {
            const Episode episode{printerWith(subset, variant & 1, variant & 2),
                                  {QJsonObject{{"op", "open"}}, QJsonObject{{"op", "supportedKeys"}},
                                   QJsonObject{{"op", "view"}}, QJsonObject{{"op", "willShow"}},
                                   QJsonObject{{"op", "restore"}}, QJsonObject{{"op", "save"}}}};
            const auto divergence = walker.run(episode);
            ASSERT_FALSE(divergence) << "keywords " << subset << ", variant " << variant << ", request "
                                     << divergence->request << "\n"
                                     << divergence->differences.join('\n').toStdString();
        }
    }
    EXPECT_EQ(walker.coverage().visits("op view"), 2048);
}

} // namespace
