// SPDX-License-Identifier: Apache-2.0
// What several panels report about the same labels, put together.
#include <host/strip/StripEffects.h>

#include <gtest/gtest.h>

using host::combined;
using host::LabelEnd;
using host::Millimetres;
using host::StripEffects;

namespace {

PDEStripEffects known(std::vector<PDELabelEnd> ends, const char *text = nullptr)
{
    PDEStripEffects effects{.cutting = PDECutting::Known, .ends = std::move(ends)};
    if (text)
        effects.cuttingText = QString::fromLatin1(text);
    return effects;
}

PDEStripEffects notKnown(const char *text)
{
    PDEStripEffects effects{.cutting = PDECutting::NotKnown};
    effects.cuttingText = QString::fromLatin1(text);
    return effects;
}

constexpr PDELabelEnd noCut{};
constexpr PDELabelEnd fullCutEnd{.fullCut = true};
constexpr PDELabelEnd halfCutEnd{.halfCut = true};
constexpr PDELabelEnd markEnd{.cutMark = true};
constexpr PDELabelEnd heldEnd{.held = true};

} // namespace

TEST(StripEffects, TheCuttingIsKnownIfOnePanelKnowsItAndNoneDoesNot)
{
    EXPECT_FALSE(combined({}, 1).ends);
    EXPECT_FALSE(combined({PDEStripEffects{}}, 1).ends);
    EXPECT_TRUE(combined({known({fullCutEnd})}, 1).ends);
    EXPECT_TRUE(combined({PDEStripEffects{}, known({fullCutEnd})}, 1).ends);
    EXPECT_FALSE(combined({notKnown("x"), known({fullCutEnd})}, 1).ends);
    EXPECT_FALSE(combined({known({fullCutEnd, fullCutEnd})}, 1).ends)
        << "a report for another number of labels";
    EXPECT_EQ(combined({known({})}, 0).ends, std::vector<LabelEnd>());
}

TEST(StripEffects, ALabelIsFollowedByWhatAnyPanelReports)
{
    struct Row {
        PDELabelEnd one;
        PDELabelEnd other;
        LabelEnd both;
    };
    const Row rows[] = {
        {noCut, noCut, noCut},
        {noCut, fullCutEnd, fullCutEnd},
        {halfCutEnd, noCut, halfCutEnd},
        {halfCutEnd, markEnd, {.halfCut = true, .cutMark = true}},
        {heldEnd, noCut, heldEnd},
        {markEnd, fullCutEnd, {.fullCut = true, .cutMark = true}},
        // A full cut leaves nothing to cut half and nothing to hold.
        {halfCutEnd, fullCutEnd, fullCutEnd},
        {heldEnd, fullCutEnd, fullCutEnd},
    };
    for (const Row &row : rows) {
        const std::vector<LabelEnd> expected{row.both};
        EXPECT_EQ(combined({known({row.one}), known({row.other})}, 1).ends, expected);
        EXPECT_EQ(combined({known({row.other}), known({row.one})}, 1).ends, expected);
    }
}

TEST(StripEffects, ASentenceAboutCutsHoldsForAllPanelsOrIsLeftOut)
{
    struct Row {
        std::vector<PDEStripEffects> reports;
        QStringList texts;
    };
    const QString torn = QStringLiteral("torn");
    const QString unknown = QStringLiteral("unknown");
    const Row rows[] = {
        {{known({noCut, noCut}, "torn")}, {torn}},
        {{known({noCut, noCut}, "torn"), known({noCut, noCut})}, {torn}},
        {{known({noCut, noCut}, "torn"), known({halfCutEnd, markEnd})}, {torn}},
        {{known({noCut, noCut}, "torn"), known({noCut, fullCutEnd})}, {}},
        {{known({noCut, noCut}, "torn"), notKnown("unknown")}, {unknown}},
        {{notKnown("unknown"), PDEStripEffects{}}, {unknown}},
    };
    for (const Row &row : rows)
        EXPECT_EQ(combined(row.reports, 2).cuttingTexts, row.texts);
}

TEST(StripEffects, OnePanelSufficesForMirroringAndBlanks)
{
    PDEStripEffects mirror{.mirror = true};
    PDEStripEffects blank{.removeBlank = true, .leadingMargin = 72.0};
    PDEStripEffects later{.leadingMargin = 36.0};
    const StripEffects both = combined({mirror, blank, later}, 0);
    EXPECT_TRUE(both.mirror);
    EXPECT_TRUE(both.removeBlank);
    EXPECT_DOUBLE_EQ(both.leadingMargin.value().number(), 25.4) << "the first margin counts";
    EXPECT_EQ(combined({PDEStripEffects{}}, 0), StripEffects());
}
