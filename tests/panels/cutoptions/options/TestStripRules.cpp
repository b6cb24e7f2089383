// SPDX-License-Identifier: Apache-2.0
#include "PanelFixture.h"

#include <options/StripRules.h>

#include <gtest/gtest.h>

#include <algorithm>

using test_support::PpdBuilder;

namespace {

/// The rules in another form: a fate for every boundary, decided by asking the questions a user would.
struct RuleModel {
    CutSettings set;
    int count;

    bool endsAPiece(int label) const
    {
        const bool isLast = label == count;
        if (set.specialTape)
            return false;
        if (isLast)
            return !set.chainPrint && (set.automaticCut || set.cutAtEnd);
        return set.automaticCut && label % set.labelsPerCut == 0;
    }
    bool halfCutAfter(int label) const
    {
        return !set.specialTape && set.halfCut && label != count && !endsAPiece(label);
    }
    bool markAfter(int label) const { return !set.specialTape && set.cutMark && !endsAPiece(label); }
    bool heldAfter(int label) const { return !set.specialTape && set.chainPrint && label == count; }
};

CutSettings settingsFromBits(unsigned bits, int labelsPerCut)
{
    CutSettings settings;
    bool CutSettings::*const fields[] = {&CutSettings::automaticCut, &CutSettings::cutAtEnd,
                                         &CutSettings::halfCut,      &CutSettings::chainPrint,
                                         &CutSettings::specialTape,  &CutSettings::mirror,
                                         &CutSettings::removeBlank,  &CutSettings::cutMark};
    for (unsigned i = 0; i < std::size(fields); ++i)
        settings.*fields[i] = (bits >> i & 1U) != 0;
    settings.labelsPerCut = labelsPerCut;
    return settings;
}

std::string describe(const CutSettings &settings, int count)
{
    std::string text = std::to_string(count) + " labels, N=" + std::to_string(settings.labelsPerCut);
    const std::pair<bool, const char *> names[] = {
        {settings.automaticCut, " auto"}, {settings.cutAtEnd, " end"},        {settings.halfCut, " half"},
        {settings.chainPrint, " chain"},  {settings.specialTape, " special"}, {settings.mirror, " mirror"},
        {settings.removeBlank, " blank"}, {settings.cutMark, " mark"}};
    for (const auto &[on, name] : names)
        text += on ? name : "";
    return text;
}

/// A PPD with all options, whose defaults cut every label, cut at the end and half.
class StripRulesTest : public test_support::PanelTest {
protected:
    void SetUp() override { show(PpdBuilder().allOptions()); }

    CutSettings read(const PDEChoices &choices = {}) const
    {
        return striprules::cutSettings(dialog->ppdFile(), choices);
    }
};

QString letters(const PDELabelEnd &end)
{
    QString text;
    for (const auto &[happens, letter] : {std::pair(end.fullCut, 'F'), std::pair(end.halfCut, 'h'),
                                          std::pair(end.cutMark, 'm'), std::pair(end.held, 'H')})
        text += happens ? QString(QLatin1Char(letter)) : QString();
    return text;
}

QStringList endsOf(const CutSettings &settings, std::size_t count)
{
    QStringList ends;
    for (const PDELabelEnd &end : striprules::effects(settings, count).ends)
        ends.append(letters(end));
    return ends;
}

} // namespace

TEST(StripRules, EverySettingAndCount)
{
    for (unsigned bits = 0; bits < 256; ++bits) {
        for (int labelsPerCut = 1; labelsPerCut <= 4; ++labelsPerCut) {
            for (const int count : {1, labelsPerCut, labelsPerCut + 1, 2 * labelsPerCut}) {
                const CutSettings settings = settingsFromBits(bits, labelsPerCut);
                SCOPED_TRACE(describe(settings, count));
                const RuleModel model{settings, count};
                const PDEStripEffects effects =
                    striprules::effects(settings, static_cast<std::size_t>(count));
                EXPECT_EQ(effects.cutting, PDECutting::Known);
                EXPECT_EQ(effects.mirror, settings.mirror);
                EXPECT_EQ(effects.removeBlank, settings.removeBlank);
                ASSERT_EQ(effects.ends.size(), static_cast<std::size_t>(count));
                for (int label = 1; label <= count; ++label) {
                    const PDELabelEnd &end = effects.ends[static_cast<std::size_t>(label) - 1];
                    EXPECT_EQ(end.fullCut, model.endsAPiece(label)) << "label " << label;
                    EXPECT_EQ(end.halfCut, model.halfCutAfter(label)) << "label " << label;
                    EXPECT_EQ(end.cutMark, model.markAfter(label)) << "label " << label;
                    EXPECT_EQ(end.held, model.heldAfter(label)) << "label " << label;
                }
                if (testing::Test::HasFailure())
                    return;
            }
        }
    }
}

TEST(StripRules, KnownStrips)
{
    struct Row {
        const char *name;
        CutSettings settings;
        int count;
        const char *ends;
    };
    // F full cut, h half cut, m cut mark, H held; one entry a label.
    const Row rows[] = {
        {"nothing set", {}, 3, ",,"},
        {"every label", {.automaticCut = true}, 3, "F,F,F"},
        {"every second of five", {.automaticCut = true, .labelsPerCut = 2}, 5, ",F,,F,F"},
        {"half cuts between", {.automaticCut = true, .labelsPerCut = 3, .halfCut = true}, 4, "h,h,F,F"},
        {"cut at end only", {.cutAtEnd = true}, 3, ",,F"},
        {"half cuts, cut at end", {.cutAtEnd = true, .halfCut = true}, 3, "h,h,F"},
        {"half cuts, no end cut", {.halfCut = true}, 3, "h,h,"},
        {"chained", {.automaticCut = true, .chainPrint = true}, 3, "F,F,H"},
        {"chained against cut at end", {.cutAtEnd = true, .chainPrint = true}, 2, ",H"},
        {"marks", {.cutMark = true}, 3, "m,m,m"},
        {"marks and half cuts", {.cutAtEnd = true, .halfCut = true, .cutMark = true}, 3, "hm,hm,F"},
        {"marks on a held end", {.chainPrint = true, .cutMark = true}, 2, "m,mH"},
        {"special tape",
         {.automaticCut = true,
          .cutAtEnd = true,
          .halfCut = true,
          .chainPrint = true,
          .specialTape = true,
          .cutMark = true},
         3,
         ",,"},
        {"more labels a cut than labels", {.automaticCut = true, .labelsPerCut = 9}, 2, ",F"},
    };
    for (const Row &row : rows) {
        EXPECT_EQ(endsOf(row.settings, static_cast<std::size_t>(row.count)).join(u','),
                  QLatin1String(row.ends))
            << row.name;
    }
}

TEST_F(StripRulesTest, GivenThenMarkedThenDefaultChoicesAreRead)
{
    ppdMarkOption(dialog->ppdFile(), "KvHalfCut", "OFF");
    ppdMarkOption(dialog->ppdFile(), "KvMirror", "ON");
    EXPECT_FALSE(read().halfCut);
    EXPECT_TRUE(read().mirror);
    EXPECT_TRUE(read({{QStringLiteral("KvHalfCut"), QStringLiteral("ON")}}).halfCut);
    EXPECT_EQ(read({{QStringLiteral("KvCutLabel"), QStringLiteral("7")}}).labelsPerCut, 7);
    EXPECT_EQ(read({{QStringLiteral("KvCutLabel"), QStringLiteral("nonsense")}}).labelsPerCut, 1);
}

TEST_F(StripRulesTest, EachSwitchIsReadUnderItsKeyword)
{
    const std::pair<const char *, bool CutSettings::*> rows[] = {
        {"KvAutoTapeCut", &CutSettings::automaticCut},
        {"KvCutAtEnd", &CutSettings::cutAtEnd},
        {"KvHalfCut", &CutSettings::halfCut},
        {"KvChainPrint", &CutSettings::chainPrint},
        {"KvSpecialTape", &CutSettings::specialTape},
        {"KvMirror", &CutSettings::mirror},
        {"KvRemoveBlkSpace", &CutSettings::removeBlank},
        {"KvCutMark", &CutSettings::cutMark}};
    for (const auto &[keyword, field] : rows) {
        for (const bool on : {false, true}) {
            const QString choice = on ? QStringLiteral("ON") : QStringLiteral("OFF");
            EXPECT_EQ(read({{QLatin1String(keyword), choice}}).*field, on) << keyword;
        }
    }
}

TEST_F(StripRulesTest, WithNothingMarkedTheDefaultsHold)
{
    const CutSettings marked = read();
    for (const char *const keyword : {"KvHalfCut", "KvCutLabel", "KvMirror"}) {
        if (ppd_choice_t *const choice = ppdFindMarkedChoice(dialog->ppdFile(), keyword))
            choice->marked = 0;
    }
    ppdMarkDefaults(dialog->ppdFile());
    EXPECT_EQ(read(), striprules::cutSettings(dialog->ppdFile(), {}));
    EXPECT_EQ(read().labelsPerCut, std::max(1, marked.labelsPerCut));
}

TEST(StripRules, TheSecondChoiceIsOnWhateverItIsCalled)
{
    const auto printer =
        PpdBuilder()
            .option({"KvMirror", "Mirror", {{"None", "None"}, {"Reversed", "Reversed"}}, "Reversed"})
            .openMarked();
    EXPECT_TRUE(striprules::cutSettings(printer.get(), {}).mirror);
    EXPECT_FALSE(
        striprules::cutSettings(printer.get(), {{QStringLiteral("KvMirror"), QStringLiteral("None")}})
            .mirror);
}

TEST(StripRules, AMissingOptionIsOffUnlessItsChoiceIsGiven)
{
    const auto printer = PpdBuilder().option("Other").openMarked();
    EXPECT_EQ(striprules::cutSettings(printer.get(), {}), CutSettings());
    EXPECT_EQ(striprules::cutSettings(printer.get(), {{QStringLiteral("KvHalfCut"), QStringLiteral("ON")}}),
              CutSettings{.halfCut = true});
}

TEST_F(StripRulesTest, SpecialTapeHasATextOfItsOwn)
{
    const std::vector<PDELabel> labels(3);
    EXPECT_FALSE(panel->stripEffects({}, labels).cuttingText);
    EXPECT_EQ(
        panel->stripEffects({{QStringLiteral("KvSpecialTape"), QStringLiteral("ON")}}, labels).cuttingText,
        QStringLiteral("Special tape: the printer cuts nothing."));
}
