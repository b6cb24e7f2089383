// SPDX-License-Identifier: Apache-2.0
// Rules over small spaces, in every point of them. What is left out of a product is left out because it is
// shown to have no say: by a second run with it at the other extreme.
#include "PanelPair.h"

#include <gtest/gtest.h>

#include <bit>

namespace {

using namespace walk;
using model::Row;

constexpr std::uint32_t allRows = 0x1FF;

bool hasBit(std::uint32_t bits, Row row)
{
    return bits >> static_cast<int>(row) & 1u;
}

/// Calls back for each of the 512 combinations of the nine rows, changing one row at a time, since setting a
/// widget costs more than reading it.
template<typename Set, typename Visit>
void forEachCombination(Set set, Visit visit)
{
    for (const Row row : model::rows)
        set(row, false);
    std::uint32_t combination = 0;
    visit(combination);
    for (std::uint32_t count = 1; count <= allRows; ++count) {
        const auto changed = static_cast<Row>(std::countr_zero(count));
        combination ^= 1u << static_cast<int>(changed);
        set(changed, hasBit(combination, changed));
        visit(combination);
    }
}

/// All 2^18 combinations of hidden rows (each is what some PPD's keywords give) and box states.
template<typename Visit>
void forEachHiddenSetAndState(PanelPair &pair, Visit visit)
{
    const auto hide = [&pair](Row row, bool hidden) { pair.setHidden(row, hidden); };
    const auto set = [&pair](Row row, bool on) { pair.setState(row, on); };
    forEachCombination(hide, [&](std::uint32_t hidden) {
        forEachCombination(set, [&](std::uint32_t states) { visit(hidden, states); });
    });
}

class Family : public testing::TestWithParam<bool> {};

INSTANTIATE_TEST_SUITE_P(Families, Family, testing::Values(false, true), [](const auto &family) {
    return std::string(family.param ? "PaperLabels" : "Tape");
});

TEST_P(Family, PresetTagOfEveryCombinationOnEveryPaper)
{
    PanelPair pair(GetParam());
    for (const auto &paper : distinctPapers) {
        pair.setPaper(paper);
        int wrong = 0;
        forEachHiddenSetAndState(pair, [&](std::uint32_t, std::uint32_t) {
            if (pair.real().targetPopUpButtonTag() != pair.expected().presetTag() && wrong++ == 0)
                ADD_FAILURE() << pair.real().targetPopUpButtonTag() << " in place of "
                              << pair.expected().presetTag() << "\n"
                              << pair.description();
        });
        EXPECT_EQ(wrong, 0);
    }
}

// The picture does not depend on the paper, nor on what is enabled: the second run has the paper that
// restricts most and every box disabled.
TEST_P(Family, PictureOfEveryCombination)
{
    for (const bool restricted : {false, true}) {
        PanelPair pair(GetParam());
        pair.setPaper(restricted ? "FL01" : "24mm");
        for (const Row row : model::rows)
            pair.setEnabled(row, !restricted);
        int wrong = 0;
        forEachHiddenSetAndState(pair, [&](std::uint32_t, std::uint32_t) {
            if (pair.picture() != pair.expected().picture() && wrong++ == 0)
                ADD_FAILURE() << pair.picture().toStdString() << " in place of "
                              << pair.expected().picture().toStdString() << "\n"
                              << pair.description();
        });
        EXPECT_EQ(wrong, 0);
    }
}

// The eight enabled flags that the rules read or write, the word's colour, and all that they depend on: the
// paper, whether special tape is there and on, whether cut every is on. The other rows are once all shown
// and on, once all hidden and off.
TEST_P(Family, EnablingRulesFromEveryStateOfTheControls)
{
    PanelPair pair(GetParam());
    constexpr Row ruled[] = {Row::RemoveBlkSpace, Row::HalfCut, Row::SpecialTape,
                             Row::ChainPrint,     Row::AutoCut, Row::CutEvery};
    int wrong = 0;
    for (const auto &paper : distinctPapers) {
        pair.setPaper(paper);
        for (std::uint32_t input = 0; input < 16; ++input) {
            for (const Row row : model::rows) {
                pair.setHidden(row, !(input & 8u));
                pair.setState(row, input & 8u);
            }
            pair.setHidden(Row::SpecialTape, input & 4u);
            pair.setState(Row::SpecialTape, input & 2u);
            pair.setState(Row::CutEvery, input & 1u);
            for (std::uint32_t flags = 0; flags < 512; ++flags) {
                for (std::uint32_t bit = 0; bit < 6; ++bit)
                    pair.setEnabled(ruled[bit], flags >> bit & 1u);
                pair.setCountEnabled(flags & 64u, flags & 128u, flags & 256u);
                pair.real().enabledCheck_OP();
                pair.expected().applyRules();
                if (!pair.agrees() && wrong++ == 0)
                    ADD_FAILURE() << pair.description();
            }
        }
    }
    EXPECT_EQ(wrong, 0);
}

// Every combination of hidden rows and states on every paper. Here the enabled flags are those that the rules
// left in the combination before, as they are for users who click their way through.
TEST_P(Family, EnablingRulesInEveryCombination)
{
    PanelPair pair(GetParam());
    int wrong = 0;
    for (const auto &paper : distinctPapers) {
        pair.setPaper(paper);
        forEachHiddenSetAndState(pair, [&](std::uint32_t, std::uint32_t) {
            pair.real().enabledCheck_OP();
            pair.expected().applyRules();
            if (!pair.agrees() && wrong++ == 0)
                ADD_FAILURE() << pair.description();
        });
    }
    EXPECT_EQ(wrong, 0);
}

/// Chooses each of the sixteen presets in that state and counts those that leave the pair at odds. Enabled
/// flags start from either extreme.
int wrongPresets(PanelPair &pair, std::uint32_t states)
{
    int wrong = 0;
    for (int tag = 1; tag <= 16; ++tag) {
        const bool enabled = (tag + std::popcount(states)) % 2;
        for (const Row row : model::rows) {
            pair.setState(row, hasBit(states, row));
            pair.setEnabled(row, enabled);
        }
        pair.setCountEnabled(enabled, enabled, !enabled);
        pair.choosePreset(tag);
        if (!pair.agrees() && wrong++ == 0)
            ADD_FAILURE() << "preset " << tag << "\n" << pair.description();
    }
    return wrong;
}

// Every preset on every combination of states, and with every set of hidden rows. A preset neither reads a
// state nor asks what is hidden, so that each is crossed with the others' extremes only: no row hidden, all,
// special tape alone, all but special tape, since that row has a say in the rules that follow; all boxes off,
// all on, and every other one. The papers are those of the rules' three cases.
TEST_P(Family, EveryPresetOnEveryCombinationOfStates)
{
    PanelPair pair(GetParam());
    const auto special = 1u << static_cast<int>(Row::SpecialTape);
    int wrong = 0;
    for (const char *paper : {"FL01", "24mm", "DC01"}) {
        pair.setPaper(paper);
        for (std::uint32_t hidden = 0; hidden <= allRows; ++hidden) {
            for (const Row row : model::rows)
                pair.setHidden(row, hasBit(hidden, row));
            const bool extreme =
                hidden == 0 || hidden == special || hidden == allRows || hidden == (allRows & ~special);
            for (std::uint32_t states = 0; states <= allRows; ++states) {
                if (extreme || states == 0 || states == allRows || states == 0x0AAu || states == 0x155u)
                    wrong += wrongPresets(pair, states);
            }
        }
    }
    EXPECT_EQ(wrong, 0);
}

TEST_P(Family, EveryPresetsItemOnEveryPaper)
{
    PanelPair pair(GetParam());
    for (const auto &paper : distinctPapers) {
        pair.setPaper(paper);
        for (int tag = -1; tag <= 18; ++tag)
            EXPECT_EQ(pair.real().validateMenuItem(tag), pair.expected().isPresetAllowed(tag))
                << tag << pair.description();
    }
}

} // namespace
