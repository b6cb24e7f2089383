// SPDX-License-Identifier: Apache-2.0
// The controls as they are first shown.
#include "PanelFixture.h"

#include <gtest/gtest.h>

using test_support::PanelTest;
using test_support::PpdBuilder;

namespace {

using InitializeTest = PanelTest;

constexpr std::array<std::pair<OptionKind, const char *>, OptionCount> boxes = {{
    {OptionKind::CutLabel, "KvCutLabel"},
    {OptionKind::CutAtEnd, "KvCutAtEnd"},
    {OptionKind::Mirror, "KvMirror"},
    {OptionKind::AutoCut, "KvAutoTapeCut"},
    {OptionKind::HalfCut, "KvHalfCut"},
    {OptionKind::ChainPrint, "KvChainPrint"},
    {OptionKind::SpecialTape, "KvSpecialTape"},
    {OptionKind::RemoveBlkSpace, "KvRemoveBlkSpace"},
    {OptionKind::CutMark, "KvCutMark"},
}};

} // namespace

TEST_F(InitializeTest, ABoxStartsAsThePpdsDefaultHasIt)
{
    for (const auto &[kind, keyword] : boxes) {
        if (kind == OptionKind::CutLabel)
            continue;
        for (const bool on : {false, true}) {
            open(everything().defaultChoice(keyword, on ? "ON" : "OFF"));
            panel->panelView();
            dialog->mark(keyword, on ? "OFF" : "ON");
            (panel.get()->*(kind == OptionKind::RemoveBlkSpace
                                ? &OptionPDE13_v400_::initializeUI_RemoveBlkSpace
                            : kind == OptionKind::CutAtEnd    ? &OptionPDE13_v400_::initializeUI_CutAtEnd
                            : kind == OptionKind::Mirror      ? &OptionPDE13_v400_::initializeUI_Mirror
                            : kind == OptionKind::AutoCut     ? &OptionPDE13_v400_::initializeUI_AutoCut
                            : kind == OptionKind::HalfCut     ? &OptionPDE13_v400_::initializeUI_HalfCut
                            : kind == OptionKind::ChainPrint  ? &OptionPDE13_v400_::initializeUI_ChainPrint
                            : kind == OptionKind::SpecialTape ? &OptionPDE13_v400_::initializeUI_SpecialTape
                                                              : &OptionPDE13_v400_::initializeUI_CutMark))();
            EXPECT_EQ(box(kind)->isChecked(), on) << keyword;
        }
    }
}

TEST_F(InitializeTest, CutEveryStartsOnOnlyWithADefaultOfExactlyOne)
{
    struct Row {
        const char *count;
        bool on;
    };
    for (const Row &row :
         std::initializer_list<Row>{{"1", true}, {"2", false}, {"10", false}, {"99", false}}) {
        open(everything().defaultChoice("KvCutLabel", row.count));
        panel->panelView();
        panel->initializeUI_CutLabel();
        EXPECT_EQ(box(OptionKind::CutLabel)->isChecked(), row.on) << row.count;
        EXPECT_EQ(panel->countField()->text(), QLatin1String(row.count));
        EXPECT_EQ(panel->countStepper()->value(), QString::fromLatin1(row.count).toInt());
        EXPECT_FALSE(panel->countField()->hasSelectedText());
    }
}

TEST_F(InitializeTest, OnlyOptionsOfThePpdAreEnabled)
{
    for (const auto &[kind, keyword] : boxes) {
        open(PpdBuilder().autoCutObjHidden().option(keyword));
        panel->panelView();
        panel->initUI();
        for (const auto &[other, otherKeyword] : boxes) {
            if (other == OptionKind::RemoveBlkSpace)
                continue;
            EXPECT_EQ(isEnabled(other), other == kind) << keyword << ' ' << otherKeyword;
        }
        EXPECT_TRUE(isEnabled(OptionKind::RemoveBlkSpace))
            << "by the paper alone, whether or not the option exists";
    }
}

TEST_F(InitializeTest, TitlesAreLookedUpUnderThePpdsOwnText)
{
    const auto titleOf = [this](const char *text) {
        open(everything().text("KvHalfCut", text));
        panel->panelView();
        panel->initUI();
        return box(OptionKind::HalfCut)->text();
    };
    EXPECT_EQ(titleOf("RS_CutMark"), bundle()->localizedStringForKey(QStringLiteral("RS_CutMark")));
    EXPECT_EQ(titleOf("Pr\xc3\xa4gen"), QString::fromUtf8("Pr\xc3\xa4gen"));
    EXPECT_EQ(titleOf("Cut & Go"), QStringLiteral("Cut && Go")) << "an ampersand is a letter of the title";
    open(everything().emptyText("KvHalfCut"));
    panel->panelView();
    panel->initUI();
    EXPECT_EQ(box(OptionKind::HalfCut)->text(), QString());
}

TEST_F(InitializeTest, ATextThatCannotBeDecodedGivesWayToOurOwn)
{
    open(everything());
    qstrncpy(ppdFindOption(dialog->ppdFile(), "KvHalfCut")->text, "Pr\xe4gen", PPD_MAX_TEXT);
    panel->panelView();
    panel->initUI();
    EXPECT_EQ(box(OptionKind::HalfCut)->text(),
              bundle()->localizedStringForKey(QStringLiteral("RS_HalfCut")));
}

TEST_F(InitializeTest, TheWordAfterTheCountIsOurs)
{
    open(everything());
    panel->panelView();
    panel->initUI();
    EXPECT_EQ(panel->countWord()->text(), bundle()->localizedStringForKey(QStringLiteral("RS_Labels")));
    EXPECT_NE(panel->countWord()->text(), QStringLiteral("RS_Labels"));
}

TEST_F(InitializeTest, FirstInitialisesThenSavesAndNeverAgain)
{
    open(everything().defaultChoice("KvMirror", "ON").defaultChoice("KvCutLabel", "3"));
    panel->panelView();
    panel->initUI();
    EXPECT_EQ(dialog->changes, changes({{"KvCutLabel", "3"},
                                        {"KvCutAtEnd", "OFF"},
                                        {"KvMirror", "ON"},
                                        {"KvAutoTapeCut", "OFF"},
                                        {"KvHalfCut", "OFF"},
                                        {"KvChainPrint", "OFF"},
                                        {"KvSpecialTape", "OFF"},
                                        {"KvRemoveBlkSpace", "OFF"},
                                        {"KvCutMark", "OFF"}}));
    dialog->changes.clear();
    box(OptionKind::Mirror)->setChecked(false);
    panel->initUI();
    EXPECT_FALSE(box(OptionKind::Mirror)->isChecked());
    EXPECT_TRUE(dialog->changes.empty());
}

TEST_F(InitializeTest, BlankSpaceIsRemovedOnlyFromTapeOfFreeLength)
{
    struct Row {
        const char *paper;
        bool enabled;
        int state;
    };
    for (const Row &row : std::initializer_list<Row>{{"24mm", true, 0},
                                                     {"DC29x90", false, 1},
                                                     {"AV20x50", false, 1},
                                                     {"FL21x45", false, 1},
                                                     {"DCunlisted", true, 0}}) {
        open(everything(), row.paper);
        panel->panelView();
        panel->initializeUI_RemoveBlkSpace();
        EXPECT_EQ(isEnabled(OptionKind::RemoveBlkSpace), row.enabled) << row.paper;
        EXPECT_EQ(panel->getTapeState(), row.state) << row.paper;
    }
    open(everything());
    dialog->setTicketPaper(QStringLiteral("DC"));
    panel->panelView();
    panel->initializeUI_RemoveBlkSpace();
    EXPECT_EQ(panel->getTapeState(), 2);
    EXPECT_TRUE(isEnabled(OptionKind::RemoveBlkSpace));
}

TEST_F(InitializeTest, ShortChoiceListsAreNoTrouble)
{
    for (const int count : {0, 1, 2, 300}) {
        std::vector<test_support::PpdChoiceLine> lines;
        for (int index = 0; index < count; ++index)
            lines.push_back({QByteArray("C") + QByteArray::number(index), "text"});
        for (const auto &[kind, keyword] : boxes) {
            PpdBuilder builder = everything();
            builder.choices(keyword, lines);
            if (count == 0)
                builder.noDefault(keyword);
            const auto ppd = builder.open();
            if (!ppd)
                continue;
            show(builder);
            const PDEChoiceList *const list = panel->choices(kind);
            EXPECT_EQ(list ? static_cast<int>(list->size()) : 0, count) << keyword;
            box(kind)->click();
            panel->saveValuesAndReturnError(nullptr);
            panel->summaryInfo();
            panel->shouldPrint();
        }
    }
}
