// SPDX-License-Identifier: Apache-2.0

#include <host/strip/CutPlan.h>
#include <host/strip/CutPlanText.h>
#include <tests/samples/SamplePpd.h>

#include <QJsonArray>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>

using host::CutPlan;
using host::CutSettings;
using host::LabelEnd;
using host::LabelExtent;
using host::Millimetres;
using host::operator""_mm;

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
    int pieces() const
    {
        int ends = 0;
        for (int label = 1; label < count; ++label)
            ends += endsAPiece(label) ? 1 : 0;
        return ends + 1;
    }
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

/// Pages of different lengths, one of them wholly blank.
const std::vector<LabelExtent> pageExtents = {{60.0_mm, 5.0_mm, 10.0_mm, false},
                                              {42.5_mm, 0.0_mm, 0.0_mm, false},
                                              {30.0_mm, 15.0_mm, 15.0_mm, true},
                                              {80.25_mm, 12.5_mm, 0.25_mm, false}};

std::vector<int> pagesInTurn(int count)
{
    std::vector<int> pages(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < pages.size(); ++i)
        pages[i] = static_cast<int>(i % pageExtents.size());
    return pages;
}

void checkAgainstRules(const CutPlan &plan, const RuleModel &model)
{
    ASSERT_EQ(plan.labels().size(), static_cast<std::size_t>(model.count));
    for (int label = 1; label <= model.count; ++label) {
        const LabelEnd &end = plan.labels()[static_cast<std::size_t>(label) - 1].end;
        EXPECT_EQ(end.fullCut, model.endsAPiece(label)) << "label " << label;
        EXPECT_EQ(end.halfCut, model.halfCutAfter(label)) << "label " << label;
        EXPECT_EQ(end.cutMark, model.markAfter(label)) << "label " << label;
        EXPECT_EQ(end.held, model.heldAfter(label)) << "label " << label;
    }
    EXPECT_EQ(plan.pieces().size(), static_cast<std::size_t>(model.pieces()));
}

void checkInvariants(const CutPlan &plan, Millimetres margin)
{
    Millimetres pieceLengths;
    std::size_t next = 0;
    for (const host::Piece &piece : plan.pieces()) {
        EXPECT_EQ(piece.firstLabel, next) << "pieces follow each other without a gap";
        EXPECT_GE(piece.labelCount, 1U);
        next += piece.labelCount;
        pieceLengths += piece.length;
        EXPECT_EQ(piece.held, plan.labels()[next - 1].end.held);
    }
    EXPECT_EQ(next, plan.labels().size());
    EXPECT_NEAR(pieceLengths.number(), plan.stripLength().number(), 1e-9);
    EXPECT_NEAR(plan.tapeUsed().number(), (plan.stripLength() + margin).number(), 1e-9);
    for (const host::PlannedLabel &label : plan.labels()) {
        EXPECT_GT(label.length, 0.0_mm);
        EXPECT_FALSE(label.end.fullCut && (label.end.halfCut || label.end.cutMark || label.end.held));
        const LabelExtent &extent = pageExtents[static_cast<std::size_t>(label.page)];
        const bool trimmed = plan.settings().removeBlank && !extent.whollyBlank;
        const Millimetres removed = trimmed ? extent.leadingBlank + extent.trailingBlank : 0.0_mm;
        EXPECT_NEAR(label.length.number(), (extent.length - removed).number(), 1e-9);
        EXPECT_NEAR(label.trimmedBefore.number(), trimmed ? extent.leadingBlank.number() : 0.0, 1e-9);
    }
}

QStringList labelEnds(const CutPlan &plan)
{
    QStringList ends;
    for (const host::PlannedLabel &label : plan.labels()) {
        QString end;
        for (const auto &[happens, letter] :
             {std::pair(label.end.fullCut, 'F'), std::pair(label.end.halfCut, 'h'),
              std::pair(label.end.cutMark, 'm'), std::pair(label.end.held, 'H')})
            end += happens ? QString(QLatin1Char(letter)) : QString();
        ends.append(end);
    }
    return ends;
}

} // namespace

TEST(CutPlan, FollowsTheRulesForEverySettingAndCount)
{
    for (unsigned bits = 0; bits < 256; ++bits) {
        for (int labelsPerCut = 1; labelsPerCut <= 4; ++labelsPerCut) {
            for (const int count : {1, labelsPerCut, labelsPerCut + 1, 2 * labelsPerCut}) {
                const CutSettings settings = settingsFromBits(bits, labelsPerCut);
                SCOPED_TRACE(describe(settings, count));
                const CutPlan plan = CutPlan::make(settings, pagesInTurn(count), pageExtents, 2.0_mm);
                checkAgainstRules(plan, {settings, count});
                checkInvariants(plan, 2.0_mm);
                if (testing::Test::HasFailure())
                    return;
            }
        }
    }
}

TEST(CutPlan, KnownStrips)
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
        const CutPlan plan = CutPlan::make(row.settings, pagesInTurn(row.count), pageExtents, std::nullopt);
        EXPECT_EQ(labelEnds(plan).join(u','), QLatin1String(row.ends)) << row.name;
    }
}

TEST(CutPlan, OfNothingIsEmpty)
{
    const CutPlan plan = CutPlan::make({.automaticCut = true, .chainPrint = true}, {}, pageExtents, 2.0_mm);
    EXPECT_TRUE(plan.labels().empty());
    EXPECT_TRUE(plan.pieces().empty());
    EXPECT_FALSE(plan.isEndHeld());
    EXPECT_EQ(plan.tapeUsed(), 0.0_mm) << "no margin is fed without a label";
    EXPECT_EQ(host::cutPlanDescription(plan), QStringList{QStringLiteral("Nothing is printed.")});
}

TEST(CutPlan, CountsTapeWithoutAMarginThatThePrinterDoesNotTell)
{
    const CutPlan plan = CutPlan::make({}, pagesInTurn(2), pageExtents, std::nullopt);
    EXPECT_DOUBLE_EQ(plan.tapeUsed().number(), 102.5);
    EXPECT_TRUE(host::cutPlanJson(plan).value(QStringLiteral("leadingMargin")).isNull());
}

TEST(CutPlan, SaysInWordsWhatHappens)
{
    struct Row {
        CutSettings settings;
        const char *sentence;
        bool said;
    };
    const Row rows[] = {
        {{.automaticCut = true}, "Full cut after every label.", true},
        {{.automaticCut = true, .labelsPerCut = 3}, "Full cut after every 3 labels.", true},
        {{.cutAtEnd = true}, "Full cut after the last label.", true},
        {{}, "No full cut: the labels come out as one strip.", true},
        {{.automaticCut = true, .labelsPerCut = 9, .chainPrint = true},
         "No full cut: the labels come out as one strip.",
         true},
        {{.cutAtEnd = true, .halfCut = true}, "Half cut between the labels of a piece.", true},
        {{.automaticCut = true, .halfCut = true}, "Half cut between the labels of a piece.", false},
        {{.cutMark = true}, "Cut marks are printed where there is no full cut.", true},
        {{.automaticCut = true, .cutMark = true}, "Cut marks are printed where there is no full cut.", false},
        {{.chainPrint = true},
         "The end stays in the printer; the next job continues there without a margin.",
         true},
        {{.halfCut = true, .specialTape = true}, "Special tape: the printer cuts nothing.", true},
        {{.removeBlank = true}, "Blank tape before and after each label is removed.", true},
        {{.mirror = true}, "The labels are mirrored.", true},
    };
    for (const Row &row : rows) {
        const QStringList said =
            host::cutPlanDescription(CutPlan::make(row.settings, pagesInTurn(4), pageExtents, 2.0_mm));
        EXPECT_EQ(said.contains(QLatin1String(row.sentence)), row.said)
            << row.sentence << " in: " << said.join(u' ').toStdString();
    }
    const CutPlan plan =
        CutPlan::make({.automaticCut = true, .labelsPerCut = 2}, pagesInTurn(4), pageExtents, 2.0_mm);
    EXPECT_EQ(host::cutPlanFigures(plan), QStringLiteral("Labels: 4 \u00b7 Pieces: 2 \u00b7 Tape: 214.8 mm"));
    EXPECT_EQ(host::lengthText(60.0_mm), QStringLiteral("60 mm"));
    EXPECT_EQ(host::lengthText(59.96_mm), QStringLiteral("60 mm"));
    EXPECT_EQ(host::lengthText(0.25_mm), QStringLiteral("0.3 mm"));
}

TEST(CutPlan, TellsProgramsTheSame)
{
    const CutSettings settings{.automaticCut = true, .labelsPerCut = 2, .halfCut = true, .chainPrint = true};
    const QJsonObject json = host::cutPlanJson(CutPlan::make(settings, pagesInTurn(3), pageExtents, 2.0_mm));
    const QJsonArray labels = json.value(QStringLiteral("labels")).toArray();
    ASSERT_EQ(labels.size(), 3);
    EXPECT_EQ(labels[0].toObject(),
              (QJsonObject{{"page", 1}, {"length", 60.0}, {"after", QJsonArray{"half cut"}}}));
    EXPECT_EQ(labels[1].toObject(),
              (QJsonObject{{"page", 2}, {"length", 42.5}, {"after", QJsonArray{"full cut"}}}));
    EXPECT_EQ(labels[2].toObject(),
              (QJsonObject{{"page", 3}, {"length", 30.0}, {"after", QJsonArray{"held"}}}));
    const QJsonArray pieces = json.value(QStringLiteral("pieces")).toArray();
    ASSERT_EQ(pieces.size(), 2);
    EXPECT_EQ(pieces[1].toObject(),
              (QJsonObject{{"firstLabel", 3}, {"labels", 1}, {"length", 30.0}, {"held", true}}));
    EXPECT_EQ(json.value(QStringLiteral("tapeUsed")).toDouble(), 134.5);
}

TEST(CutPlan, SaysNothingAboutTheCutsOfAPrinterThatDoesNotDescribeThem)
{
    const std::vector<int> order{0, 0};
    const std::vector<LabelExtent> extents{{60.0_mm, 0.0_mm, 0.0_mm, false}};
    const CutPlan plan = CutPlan::make({.areKnown = false}, order, extents, std::nullopt);
    EXPECT_EQ(cutPlanFigures(plan), QStringLiteral("Labels: 2 \u00b7 Tape: 120 mm"));
    EXPECT_EQ(
        cutPlanDescription(plan),
        QStringList{QStringLiteral("The printer's description does not say whether it cuts the labels.")});
}

TEST(CutSettings, ReadsRecordedThenMarkedThenDefault)
{
    const Sandbox sandbox;
    host::PpdFile ppd = openTapePpd(sandbox);
    host::RecordedChoices recorded;
    // The PPD's defaults are marked: every label, cut at end, half cut.
    EXPECT_EQ(CutSettings::fromJob(ppd, recorded),
              (CutSettings{.automaticCut = true, .cutAtEnd = true, .halfCut = true}));
    ppd.mark(QStringLiteral("KvHalfCut"), QStringLiteral("OFF"));
    ppd.mark(QStringLiteral("KvCutLabel"), QStringLiteral("4"));
    EXPECT_EQ(CutSettings::fromJob(ppd, recorded),
              (CutSettings{.automaticCut = true, .labelsPerCut = 4, .cutAtEnd = true}));
    recorded.record(QStringLiteral("KvHalfCut"), QStringLiteral("ON"));
    recorded.record(QStringLiteral("KvCutLabel"), QStringLiteral("7"));
    EXPECT_EQ(CutSettings::fromJob(ppd, recorded),
              (CutSettings{.automaticCut = true, .labelsPerCut = 7, .cutAtEnd = true, .halfCut = true}));
}

TEST(CutSettings, WithNothingMarkedTheDefaultsHold)
{
    const Sandbox sandbox;
    const auto ppd = host::PpdFile::open(sandbox.write(QStringLiteral("tape.ppd"), tapePpd()));
    ASSERT_TRUE(ppd);
    EXPECT_EQ(CutSettings::fromJob(ppd.value(), {}),
              (CutSettings{.automaticCut = true, .cutAtEnd = true, .halfCut = true}));
}

TEST(CutSettings, EverySwitchIsReadUnderItsKeyword)
{
    const Sandbox sandbox;
    const host::PpdFile ppd = openTapePpd(sandbox);
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
            host::RecordedChoices recorded;
            recorded.record(QLatin1String(keyword), on ? QStringLiteral("ON") : QStringLiteral("OFF"));
            EXPECT_EQ(CutSettings::fromJob(ppd, recorded).*field, on) << keyword;
        }
    }
}

TEST(CutSettings, TheSecondChoiceIsOnWhateverItIsCalled)
{
    const Sandbox sandbox;
    QByteArray text = tapePpd();
    text.replace("*KvMirror OFF", "*KvMirror None").replace("*KvMirror ON", "*KvMirror Reversed");
    text.replace("*DefaultKvMirror: OFF", "*DefaultKvMirror: Reversed");
    const auto ppd = host::PpdFile::open(sandbox.write(QStringLiteral("named.ppd"), text));
    ASSERT_TRUE(ppd);
    EXPECT_TRUE(CutSettings::fromJob(ppd.value(), {}).mirror);
}

TEST(CutSettings, WhatThePpdLacksIsOffUnlessAPanelRecordedIt)
{
    const Sandbox sandbox;
    const auto ppd = host::PpdFile::open(
        sandbox.write(QStringLiteral("bare.ppd"), "*PPD-Adobe: \"4.3\"\n*NickName: \"Bare\"\n"));
    ASSERT_TRUE(ppd) << ppd.error().message.toStdString();
    EXPECT_EQ(CutSettings::fromJob(ppd.value(), {}), CutSettings{.areKnown = false});
    host::RecordedChoices recorded;
    recorded.record(QStringLiteral("KvHalfCut"), QStringLiteral("ON"));
    recorded.record(QStringLiteral("KvCutLabel"), QStringLiteral("nonsense"));
    EXPECT_EQ(CutSettings::fromJob(ppd.value(), recorded), (CutSettings{.halfCut = true, .areKnown = false}));
}
