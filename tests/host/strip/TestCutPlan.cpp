// SPDX-License-Identifier: Apache-2.0

#include <host/strip/CutPlan.h>
#include <host/strip/CutPlanText.h>
#include <tests/samples/SampleCuts.h>

#include <QJsonArray>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>

using host::CutPlan;
using host::LabelEnd;
using host::LabelExtent;
using host::Millimetres;
using host::operator""_mm;

namespace {

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
        const bool trimmed = plan.effects().removeBlank && !extent.whollyBlank;
        const Millimetres removed = trimmed ? extent.leadingBlank + extent.trailingBlank : 0.0_mm;
        EXPECT_NEAR(label.length.number(), (extent.length - removed).number(), 1e-9);
        EXPECT_NEAR(label.trimmedBefore.number(), trimmed ? extent.leadingBlank.number() : 0.0, 1e-9);
    }
}

CutPlan planOf(int count, const SampleCuts &cuts, std::optional<Millimetres> margin)
{
    return CutPlan::make(effectsOn(static_cast<std::size_t>(count), cuts), pagesInTurn(count), pageExtents,
                         margin);
}

} // namespace

TEST(CutPlan, PiecesAndLengthsFollowTheEndsOfTheLabels)
{
    for (unsigned bits = 0; bits < 128; ++bits) {
        const auto isSet = [&](unsigned bit) { return (bits >> bit & 1U) != 0; };
        for (int labelsPerCut = 1; labelsPerCut <= 4; ++labelsPerCut) {
            for (const int count : {1, labelsPerCut, labelsPerCut + 1, 2 * labelsPerCut}) {
                const SampleCuts cuts{isSet(0), labelsPerCut, isSet(1), isSet(2),
                                      isSet(3), isSet(4),     isSet(5), isSet(6)};
                SCOPED_TRACE(testing::Message() << bits << ", " << count << " labels, N=" << labelsPerCut);
                const CutPlan plan = planOf(count, cuts, 2.0_mm);
                for (std::size_t i = 0; i < plan.labels().size(); ++i)
                    EXPECT_EQ(plan.labels()[i].end, (*plan.effects().ends)[i]);
                const auto isPieceEnd = [](const host::PlannedLabel &label) { return label.end.fullCut; };
                const auto ends = std::count_if(plan.labels().begin(), plan.labels().end() - 1, isPieceEnd);
                EXPECT_EQ(plan.pieces().size(), static_cast<std::size_t>(ends) + 1);
                checkInvariants(plan, 2.0_mm);
                if (testing::Test::HasFailure())
                    return;
            }
        }
    }
}

TEST(CutPlan, APanelsLeadingMarginReplacesThatOfThePaper)
{
    host::StripEffects effects = effectsOn(2, {});
    effects.leadingMargin = 7.0_mm;
    const CutPlan plan = CutPlan::make(effects, pagesInTurn(2), pageExtents, 2.0_mm);
    EXPECT_EQ(plan.leadingMargin(), 7.0_mm);
}

TEST(CutPlan, OfNothingIsEmpty)
{
    const CutPlan plan = planOf(0, {.automaticCut = true, .chainPrint = true}, 2.0_mm);
    EXPECT_TRUE(plan.labels().empty());
    EXPECT_TRUE(plan.pieces().empty());
    EXPECT_FALSE(plan.isEndHeld());
    EXPECT_EQ(plan.tapeUsed(), 0.0_mm) << "no margin is fed without a label";
    EXPECT_EQ(host::cutPlanDescription(plan), QStringList{QStringLiteral("Nothing is printed.")});
}

TEST(CutPlan, CountsTapeWithoutAMarginThatThePrinterDoesNotTell)
{
    const CutPlan plan = planOf(2, {}, std::nullopt);
    EXPECT_DOUBLE_EQ(plan.tapeUsed().number(), 102.5);
    EXPECT_TRUE(host::cutPlanJson(plan).value(QStringLiteral("leadingMargin")).isNull());
}

TEST(CutPlan, SaysInWordsWhatHappens)
{
    struct Row {
        SampleCuts cuts;
        const char *sentence;
        bool said;
    };
    const Row rows[] = {
        {{.automaticCut = true}, "Full cut after every label.", true},
        {{.automaticCut = true, .labelsPerCut = 3}, "Full cut after every 3 labels.", true},
        {{.cutAtEnd = true}, "Full cut after the last label.", true},
        // What the printer does counts, not how it is set.
        {{.automaticCut = true, .labelsPerCut = 9}, "Full cut after the last label.", true},
        {{.automaticCut = true, .labelsPerCut = 3, .chainPrint = true},
         "Full cut after every 3 labels.",
         true},
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
        {{.removeBlank = true}, "Blank tape before and after each label is removed.", true},
        {{.mirror = true}, "The labels are mirrored.", true},
    };
    for (const Row &row : rows) {
        const QStringList said = host::cutPlanDescription(planOf(4, row.cuts, 2.0_mm));
        EXPECT_EQ(said.contains(QLatin1String(row.sentence)), row.said)
            << row.sentence << " in: " << said.join(u' ').toStdString();
    }
    const CutPlan plan = planOf(4, {.automaticCut = true, .labelsPerCut = 2}, 2.0_mm);
    EXPECT_EQ(host::cutPlanFigures(plan), QStringLiteral("Labels: 4 \u00b7 Pieces: 2 \u00b7 Tape: 214.8 mm"));
    EXPECT_EQ(host::lengthText(60.0_mm), QStringLiteral("60 mm"));
    EXPECT_EQ(host::lengthText(59.96_mm), QStringLiteral("60 mm"));
    EXPECT_EQ(host::lengthText(0.25_mm), QStringLiteral("0.3 mm"));
}

TEST(CutPlan, TellsProgramsTheSame)
{
    const SampleCuts cuts{.automaticCut = true, .labelsPerCut = 2, .halfCut = true, .chainPrint = true};
    const QJsonObject json = host::cutPlanJson(planOf(3, cuts, 2.0_mm));
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
    const CutPlan plan = CutPlan::make({}, order, extents, std::nullopt);
    EXPECT_EQ(cutPlanFigures(plan), QStringLiteral("Labels: 2 \u00b7 Tape: 120 mm"));
    EXPECT_EQ(
        cutPlanDescription(plan),
        QStringList{QStringLiteral(
            "Cutting is not known: the printer's description does not say whether it cuts the labels.")});
}
