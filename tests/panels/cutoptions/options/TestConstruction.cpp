// SPDX-License-Identifier: Apache-2.0
// The panel as it is made from a PPD, and its view as it is laid out.
#include "PanelFixture.h"

#include <platform/Geometry.h>
#include <platform/KeyWindow.h>
#include <platform/NotificationCenter.h>

#include <gtest/gtest.h>

#include <set>

using test_support::allPanelKeywords;
using test_support::panelKeywords;
using test_support::PanelTest;
using test_support::PpdBuilder;
using test_support::TestDialog;

namespace {

using ConstructionTest = PanelTest;

constexpr double layoutHeight = 282.0;

bool has(unsigned mask, OptionKind kind)
{
    return (mask >> static_cast<unsigned>(kind) & 1) != 0;
}

/// The rows from top to bottom with their heights.
constexpr std::array<std::pair<OptionKind, double>, OptionCount> rowsOnScreen = {{
    {OptionKind::CutMark, 26},
    {OptionKind::CutLabel, 52},
    {OptionKind::AutoCut, 26},
    {OptionKind::CutAtEnd, 26},
    {OptionKind::HalfCut, 26},
    {OptionKind::SpecialTape, 26},
    {OptionKind::ChainPrint, 26},
    {OptionKind::Mirror, 26},
    {OptionKind::RemoveBlkSpace, 26},
}};

/// The tags that a printer keeps, told tag by tag from what each preset needs.
std::set<int> expectedTags(unsigned mask, bool isDZ, bool ownAutoCutBox)
{
    const bool mark = has(mask, OptionKind::CutMark);
    const bool every = has(mask, OptionKind::CutLabel);
    const bool cuts = every || (has(mask, OptionKind::AutoCut) && ownAutoCutBox);
    const bool half = has(mask, OptionKind::HalfCut);
    const bool chain = has(mask, OptionKind::ChainPrint);
    std::set<int> tags;
    const auto keep = [&tags](int tag, bool kept) {
        if (kept)
            tags.insert(tag);
    };
    keep(1, isDZ);
    keep(2, isDZ && has(mask, OptionKind::CutAtEnd));
    keep(3, isDZ && every);
    keep(4, !isDZ && !mark);
    keep(5, !mark && chain);
    keep(6, half);
    keep(7, !mark && half && chain);
    keep(8, cuts);
    keep(9, !mark && cuts && chain);
    keep(10, cuts && half);
    keep(11, !mark && cuts && half && chain);
    keep(12, has(mask, OptionKind::SpecialTape));
    keep(13, mark);
    keep(14, mark && chain);
    keep(15, mark && chain);
    keep(16, mark);
    return tags;
}

std::set<int> tagsOf(const OptionPDE13_v400_ &panel)
{
    std::set<int> tags;
    for (int position = 0; position < panel.popUp()->count(); ++position) {
        EXPECT_EQ(panel.popUp()->itemText(position), QString());
        tags.insert(panel.popUp()->tagOfItem(position));
    }
    return tags;
}

PpdBuilder printer(unsigned mask, bool isDZ, bool ownAutoCutBox)
{
    PpdBuilder builder;
    if (isDZ)
        builder.paperLabels();
    if (ownAutoCutBox)
        builder.autoCutObjHidden();
    return builder.options(mask);
}

} // namespace

TEST_F(ConstructionTest, EverySubsetOfTheKeywordsIsLaidOutWithoutGapOrOverlap)
{
    for (unsigned mask = 0; mask <= allPanelKeywords; ++mask) {
        for (const int variant : {0, 1, 2, 3}) {
            const bool isDZ = variant & 1;
            const bool ownBox = variant & 2;
            SCOPED_TRACE(testing::Message()
                         << "keywords " << mask << " DZ " << isDZ << " own auto-cut box " << ownBox);
            open(printer(mask, isDZ, ownBox));
            QWidget *const view = panel->panelView();
            ASSERT_TRUE(view);
            double y = layoutHeight - 38;
            double hidden = 0;
            double top = layoutHeight;
            for (const auto &[kind, height] : rowsOnScreen) {
                const bool shown = has(mask, kind) && (kind != OptionKind::AutoCut || ownBox);
                ASSERT_EQ(box(kind)->isHidden(), !shown) << panelKeywords[static_cast<std::size_t>(kind)];
                if (!shown) {
                    hidden += height;
                    continue;
                }
                const QRectF frame = platform::frameFromBottom(box(kind));
                ASSERT_EQ(frame.y() + layoutHeight - view->height(), y);
                ASSERT_LE(frame.bottom() + layoutHeight - view->height(), top);
                top = frame.y() + layoutHeight - view->height();
                y -= height;
            }
            ASSERT_EQ(panel->countField()->isHidden(), !has(mask, OptionKind::CutLabel));
            ASSERT_EQ(panel->countStepper()->isHidden(), !has(mask, OptionKind::CutLabel));
            ASSERT_EQ(panel->countWord()->isHidden(), !has(mask, OptionKind::CutLabel));
            ASSERT_EQ(view->height(), std::max(150.0, layoutHeight - hidden));
            const QRectF preview = platform::frameFromBottom(panel->preview());
            ASSERT_EQ(preview.y(), view->height() - 130);
            ASSERT_TRUE(QRectF(0, 0, view->width(), view->height()).contains(preview));
            ASSERT_FALSE(panel->preview()->geometry().intersects(panel->popUp()->geometry()));
            ASSERT_EQ(panel->preview()->isDZ(), isDZ);
            ASSERT_EQ(tagsOf(*panel), expectedTags(mask, isDZ, ownBox));
        }
    }
}

TEST_F(ConstructionTest, TheCountStandsOnItsOwnLineUnderItsBox)
{
    open(everything());
    panel->panelView();
    const double n = layoutHeight - 38 - 26 - 26;
    EXPECT_EQ(platform::frameFromBottom(panel->countField()).y(), n - 4);
    EXPECT_EQ(platform::frameFromBottom(panel->countStepper()).y(), n - 5);
    EXPECT_EQ(platform::frameFromBottom(panel->countWord()).y(), n + 2);
    EXPECT_EQ(platform::frameFromBottom(box(OptionKind::RemoveBlkSpace)).y(), layoutHeight - 272);
    const auto middle = [](const QWidget *control) {
        return platform::frameFromBottom(control).center().y();
    };
    EXPECT_EQ(middle(panel->countField()), middle(panel->countStepper()));
    EXPECT_EQ(middle(panel->countField()), middle(panel->countWord()));
}

TEST_F(ConstructionTest, InAViewThatKeepsItsSizeThePreviewStandsAsInTheSmallerOne)
{
    for (const bool canResize : {false, true}) {
        auto printer = std::make_shared<TestDialog>(PpdBuilder().openMarked());
        printer->canResize = canResize;
        openWith(std::move(printer));
        ASSERT_EQ(panel->panelView()->height(), canResize ? 150 : 282);
        EXPECT_EQ(platform::frameFromBottom(panel->preview()).y(), 150 - 130) << canResize;
    }
}

TEST_F(ConstructionTest, WithoutAnyKeywordNothingIsLeftButThePreview)
{
    open(PpdBuilder());
    for (std::size_t kind = 0; kind < OptionCount; ++kind) {
        EXPECT_EQ(panel->option(OptionKind(kind)), nullptr);
        EXPECT_EQ(panel->choices(OptionKind(kind)), nullptr);
        EXPECT_EQ(panel->selection(OptionKind(kind)), nullptr);
    }
    EXPECT_EQ(panel->panelView()->height(), 150);
    EXPECT_EQ(panel->supportedPPDOptionKeys(), QStringList());
    panel->willShow();
    panel->restoreValuesAndReturnError(nullptr);
    panel->shouldPrint();
    panel->changeCutEveryValue(panel->countStepper());
    EXPECT_EQ(panel->countStepper()->value(), 1) << "without a list the counts are 1 to 99";
    EXPECT_EQ(panel->countField()->text(), QStringLiteral("1"));
    panel->countStepper()->setValue(500);
    panel->changeCutEveryValue(panel->countStepper());
    EXPECT_EQ(panel->countStepper()->value(), 99);
    EXPECT_EQ(panel->countField()->text(), QStringLiteral("99"));
    panel->countField()->setText(QStringLiteral("70"));
    panel->controlTextDidChange(panel->countField());
    EXPECT_EQ(panel->countStepper()->value(), 70);
    EXPECT_TRUE(dialog->changes.empty());
}

TEST_F(ConstructionTest, APrinterWithoutAPpdHasAPanelToo)
{
    openWith(std::make_shared<TestDialog>(nullptr));
    EXPECT_EQ(panel->panelView()->height(), 150);
    showPanel();
    dialog->postPaperChange();
    EXPECT_EQ(panel->supportedPPDOptionKeys(), QStringList());
    EXPECT_EQ(panel->summaryInfo(), (QVariantMap{{PDESummaryDisplayOrderKey, QStringList()}}));
}

TEST_F(ConstructionTest, TheKeywordsThatThePanelClaims)
{
    const auto keysOf = [this](unsigned mask) {
        open(PpdBuilder().options(mask));
        return panel->supportedPPDOptionKeys().value();
    };
    QStringList all;
    for (const char *keyword : panelKeywords)
        all.append(QLatin1String(keyword));
    EXPECT_EQ(keysOf(allPanelKeywords), all);
    EXPECT_EQ(keysOf(1U << 3), QStringList{QStringLiteral("KvAutoTapeCut")});
    EXPECT_EQ(keysOf(1U), (QStringList{QStringLiteral("KvCutLabel"), QStringLiteral("KvAutoTapeCut")}));
    EXPECT_EQ(keysOf(3U), (QStringList{QStringLiteral("KvCutLabel"), QStringLiteral("KvAutoTapeCut"),
                                       QStringLiteral("KvCutAtEnd")}));
    for (unsigned mask = 0; mask <= allPanelKeywords; ++mask) {
        QStringList expected;
        for (std::size_t index = 0; index < panelKeywords.size(); ++index) {
            if (mask >> index & 1)
                expected.append(QLatin1String(panelKeywords[index]));
            if (index == 0 && (mask & 1) && !(mask & 8))
                expected.append(QStringLiteral("KvAutoTapeCut"));
        }
        ASSERT_EQ(keysOf(mask), expected) << mask;
    }
}

TEST_F(ConstructionTest, TheFirstQuestionForTheKeywordsSavesTheLaterOnesDoNot)
{
    open(everything());
    panel->supportedPPDOptionKeys();
    EXPECT_EQ(dialog->changes.size(), OptionCount);
    dialog->changes.clear();
    panel->supportedPPDOptionKeys();
    EXPECT_TRUE(dialog->changes.empty());
}

TEST_F(ConstructionTest, AutomaticCuttingHasItsOwnBoxOnlyWhereThePpdSaysSo)
{
    open(PpdBuilder().allOptions());
    panel->panelView();
    EXPECT_TRUE(box(OptionKind::AutoCut)->isHidden());
    EXPECT_FALSE(box(OptionKind::CutLabel)->isHidden());
    open(PpdBuilder().autoCutObjHidden("True").allOptions());
    panel->panelView();
    EXPECT_TRUE(box(OptionKind::AutoCut)->isHidden());
    open(PpdBuilder().autoCutObjHidden().option("KvHalfCut"));
    panel->panelView();
    EXPECT_TRUE(box(OptionKind::AutoCut)->isHidden()) << "no option, no box";
}

TEST_F(ConstructionTest, OnHeatShrinkTubeAutomaticCuttingIsOffFromTheStart)
{
    open(everything().defaultChoice("KvAutoTapeCut", "ON"), "HS11mm");
    EXPECT_EQ(dialog->marked("KvAutoTapeCut"), QStringLiteral("OFF"));
    EXPECT_TRUE(dialog->changes.empty()) << "marked in the PPD, not asked of the dialog";
    open(everything().defaultChoice("KvAutoTapeCut", "ON"), "24mm");
    EXPECT_EQ(dialog->marked("KvAutoTapeCut"), QStringLiteral("ON"));
}

TEST_F(ConstructionTest, TheConnectionIsToldFromTheUrisScheme)
{
    struct Row {
        std::optional<QString> uri;
        bool usb;
    };
    for (const Row &row : std::initializer_list<Row>{{QStringLiteral("usb://Kvelland/LX900"), true},
                                                     {QStringLiteral("KVLXUSB://x"), true},
                                                     {QStringLiteral("USB://x"), false},
                                                     {QStringLiteral("kvlxusb://x"), false},
                                                     {QStringLiteral("usbx://x"), false},
                                                     {QStringLiteral("ipp://usb:631/"), false},
                                                     {QStringLiteral("usb"), false},
                                                     {QString(), false},
                                                     {std::nullopt, false}}) {
        auto printer = std::make_shared<TestDialog>(everything().openMarked());
        printer->printer.deviceURI = row.uri;
        openWith(std::move(printer));
        panel->panelView();
        EXPECT_EQ(panel->inspection()["flags"].toObject()["usb_dec"].toBool(), row.usb)
            << row.uri.value_or(QStringLiteral("none")).toStdString();
    }
}

TEST_F(ConstructionTest, EveryPresetIsSpokenAndHasItsPicture)
{
    open(everything());
    panel->panelView();
    for (int position = 0; position < panel->popUp()->count(); ++position) {
        EXPECT_FALSE(panel->popUp()->itemIcon(position).isNull());
        const QString spoken = panel->popUp()->itemData(position, Qt::AccessibleTextRole).toString();
        EXPECT_FALSE(spoken.isEmpty());
        EXPECT_FALSE(spoken.startsWith(QStringLiteral("OP_"))) << spoken.toStdString();
    }
}

TEST_F(ConstructionTest, TwoPresetsNeverHaveTheSameTagOrPicture)
{
    std::set<std::string_view> pictures;
    for (std::size_t index = 0; index < presets.size(); ++index) {
        EXPECT_EQ(presets[index].tag, static_cast<int>(index) + 1);
        EXPECT_EQ(presets[index].boxes.size(), OptionCount);
        pictures.insert(presets[index].picture);
    }
    EXPECT_EQ(pictures.size(), presets.size());
    EXPECT_EQ(presetWithTag(0), nullptr);
    EXPECT_EQ(presetWithTag(17), nullptr);
}

TEST_F(ConstructionTest, AThousandPanelsComeAndGo)
{
    // What is left behind shows as an observer here, and as a leak under the address sanitizer.
    const std::size_t observers = platform::NotificationCenter::defaultCenter().observerCount();
    dialog = std::make_shared<TestDialog>(everything().openMarked());
    for (int round = 0; round < 1000; ++round) {
        const auto opened = OptionPDE13_v400_::initWithCallback(dialog, bundle());
        ASSERT_TRUE(opened->panelView());
    }
    EXPECT_EQ(platform::NotificationCenter::defaultCenter().observerCount(), observers);
}
