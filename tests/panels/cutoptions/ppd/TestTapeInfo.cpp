// SPDX-License-Identifier: Apache-2.0
#include <ppd/TapeInfo.h>

#include <tests/support/PpdBuilder.h>
#include <tests/support/TestDialog.h>

#include <gtest/gtest.h>

using test_support::PpdBuilder;
using test_support::TestDialog;

namespace {

constexpr OSStatus gone = -17;

TapeInfo tapeInfoOf(TestDialog &dialog, OSStatus expected = platform::noError)
{
    TapeInfo info;
    EXPECT_EQ(GetTapeInfo(nullptr, dialog.printSettings(), dialog.pageFormat(), dialog.ppdFile(), &info),
              expected);
    return info;
}

PpdBuilder somePapers()
{
    return PpdBuilder()
        .noPapers()
        .paper("24mm", 68, 170)
        .paper("DC62", 175.748, 175.748)
        .paper("AV20", 57, 142)
        .paper("FL21", 60, 127)
        .paper("HS11", 31, 90)
        .paper("DC", 50, 50);
}

} // namespace

TEST(TapeInfo, KindFollowsTheListedNamesPrefix)
{
    struct Row {
        const char *paper;
        int kind;
    };
    TestDialog dialog(somePapers().open());
    for (const Row &row : std::initializer_list<Row>{{"24mm", 0},
                                                     {"DC62", 1},
                                                     {"AV20", 1},
                                                     {"FL21", 1},
                                                     {"HS11", 0},
                                                     {"DC", 1},
                                                     {"DC99", 0},
                                                     {"DC6", 0},
                                                     {"DC62x", 0},
                                                     {"dc62", 0},
                                                     {"", 2}}) {
        dialog.setPaper(QLatin1String(row.paper));
        EXPECT_EQ(tapeInfoOf(dialog).kind, row.kind) << row.paper;
        EXPECT_EQ(tapeInfoOf(dialog).paperName, QLatin1String(row.paper));
    }
}

TEST(TapeInfo, LengthIsThePapersHeightInMillimetres)
{
    TestDialog dialog(somePapers().open());
    dialog.setPaper(QStringLiteral("DC62"), 175.748);
    EXPECT_NEAR(tapeInfoOf(dialog).length, 62.0, 0.001);
    dialog.setPaper(QStringLiteral("DC62"), 0.0);
    EXPECT_EQ(tapeInfoOf(dialog).length, 100.0);
    EXPECT_EQ(tapeInfoOf(dialog).kind, 0) << "a paper without a height is not looked up";
}

TEST(TapeInfo, WithoutAPaperTheDefaultsStay)
{
    TestDialog dialog(somePapers().open());
    const TapeInfo info = tapeInfoOf(dialog);
    EXPECT_EQ(info.length, 100.0);
    EXPECT_EQ(info.kind, 0);
    EXPECT_EQ(info.paperName, std::nullopt);
}

TEST(TapeInfo, APrinterWithoutPpdOrPageSizesListsNothing)
{
    TestDialog withoutPpd(nullptr);
    withoutPpd.setPaper(QStringLiteral("DC62"));
    EXPECT_EQ(tapeInfoOf(withoutPpd).kind, 0);
    TestDialog withoutSizes(PpdBuilder().noPapers().open());
    withoutSizes.setPaper(QStringLiteral("DC62"));
    EXPECT_EQ(tapeInfoOf(withoutSizes).kind, 0);
}

TEST(TapeInfo, ANamelessPaperTakesTheTicketsName)
{
    TestDialog dialog(somePapers().open());
    dialog.setTicketPaper(QStringLiteral("HS 9"));
    EXPECT_EQ(tapeInfoOf(dialog).kind, 2);
    EXPECT_EQ(tapeInfoOf(dialog).paperName, QStringLiteral("HS 9"));
    dialog.setTicketPaper(QStringLiteral("DC62"));
    EXPECT_EQ(tapeInfoOf(dialog).kind, 2) << "a ticket's name is not looked up in the PPD";
    dialog.setTicketPaper(std::nullopt);
    EXPECT_EQ(tapeInfoOf(dialog).kind, 2);
    EXPECT_EQ(tapeInfoOf(dialog).paperName, std::nullopt);
    dialog.setTicketPaper(QStringLiteral("HS 9"));
    dialog.hasPrintSettings = false;
    EXPECT_EQ(tapeInfoOf(dialog).paperName, std::nullopt);
}

TEST(TapeInfo, WhateverATicketHoldsItIsReadOrPassedOver)
{
    const auto nestedArrays = [](int depth) {
        return QByteArray("<array>").repeated(depth) + QByteArray("</array>").repeated(depth);
    };
    const auto plist = [](const QByteArray &content) {
        return QByteArray("<?xml version=\"1.0\"?><plist version=\"1.0\">") + content + "</plist>";
    };
    struct Row {
        QByteArray ticket;
        std::optional<QString> name;
    };
    const std::vector<Row> rows{
        {"not a property list", std::nullopt},
        {"", std::nullopt},
        {plist("<string>HS 9</string>"), std::nullopt},
        {plist("<array><string>LxPaperName2</string></array>"), std::nullopt},
        {plist("<dict/>"), std::nullopt},
        {plist("<dict><key>LxPaperName2</key><integer>9</integer></dict>"), std::nullopt},
        {plist("<dict><key>lxpapername2</key><string>HS 9</string></dict>"), std::nullopt},
        {plist("<dict><key>LxPaperName2</key><string></string></dict>"), QString()},
        {plist("<dict><key>Other</key><true/><key>LxPaperName2</key><string>HS 9</string></dict>"),
         QStringLiteral("HS 9")},
        {plist("<dict><key>LxPaperName2</key><string>a</string><key>LxPaperName2</key>"
               "<string>b</string></dict>"),
         QStringLiteral("b")},
        {plist("<dict><key>Other</key><dict><key>LxPaperName2</key><string>a</string></dict></dict>"),
         std::nullopt},
        {plist(QByteArray("<dict><key>Other</key>" + nestedArrays(100'000) +
                          "<key>LxPaperName2</key><string>HS 9</string></dict>")),
         QStringLiteral("HS 9")},
    };
    TestDialog dialog(somePapers().open());
    for (const Row &row : rows) {
        dialog.setTicketPaper(std::nullopt);
        dialog.settings.setValue(PrintSettingsTicketKey, row.ticket);
        EXPECT_EQ(tapeInfoOf(dialog).paperName, row.name) << row.ticket.left(200).toStdString();
        EXPECT_EQ(tapeInfoOf(dialog).kind, 2);
    }
}

TEST(TapeInfo, FailingQueriesKeepWhatWasFilledUntilThen)
{
    TestDialog dialog(somePapers().open());
    dialog.setPaper(QStringLiteral("DC62"));
    dialog.format.paper->heightStatus = gone;
    TapeInfo info = tapeInfoOf(dialog, gone);
    EXPECT_EQ(info.paperName, QStringLiteral("DC62"));
    EXPECT_EQ(info.length, 100.0);
    EXPECT_EQ(info.kind, 0);

    dialog.setTicketPaper(QStringLiteral("HS 9"));
    dialog.format.paper->name = QStringLiteral("DC62");
    dialog.format.paper->nameStatus = gone;
    info = tapeInfoOf(dialog);
    EXPECT_EQ(info.paperName, QStringLiteral("HS 9")) << "a name that cannot be asked is no name";
    EXPECT_EQ(info.kind, 2);

    dialog.format.paper->paperStatus = gone;
    info = tapeInfoOf(dialog, gone);
    EXPECT_EQ(info.paperName, std::nullopt);
}

TEST(TapeInfo, APaperNameOfAnyLengthIsSafe)
{
    TestDialog dialog(somePapers().open());
    dialog.setPaper(QStringLiteral("FL") + QString(5000, QChar(0x3042)));
    EXPECT_EQ(tapeInfoOf(dialog).kind, 0);
    EXPECT_EQ(ppdPaperName(dialog.pageFormat()).size(), 255);
    EXPECT_TRUE(ppdPaperName(dialog.pageFormat()).startsWith("FL"));
    EXPECT_EQ(ppdPaperName(nullptr), QByteArray());
}

TEST(TapeInfo, TicketsOfTheSession)
{
    platform::PrintSession session;
    session.setData(QStringLiteral("known"), 7);
    std::int32_t value = 5;
    EXPECT_EQ(GetTicketFromSession(&session, QStringLiteral("unknown"), &value), -30891);
    EXPECT_EQ(value, 5);
    EXPECT_EQ(GetTicketFromSession(nullptr, QStringLiteral("known"), &value), -30891);
    EXPECT_EQ(GetTicketFromSession(&session, QStringLiteral("known"), &value), 0);
    EXPECT_EQ(value, 7);
}

TEST(TapeInfo, PageRange)
{
    platform::PrintSettings settings;
    settings.firstPage = 3;
    settings.lastPage = 9;
    PageRangeInfo range{1, 1};
    EXPECT_EQ(GetTapeInfo3(&settings, &range), 0);
    EXPECT_EQ(range.firstPage, 3);
    EXPECT_EQ(range.lastPage, 9);
    EXPECT_NE(GetTapeInfo3(nullptr, &range), 0);
    EXPECT_EQ(range.firstPage, 0);
    EXPECT_EQ(range.lastPage, 0);
}

TEST(TapeInfo, RoundsHalvesAwayFromZero)
{
    struct Row {
        double value;
        long rounded;
    };
    for (const Row &row : std::initializer_list<Row>{{2.5, 3},
                                                     {-2.5, -3},
                                                     {2.49, 2},
                                                     {-2.49, -2},
                                                     {0.5, 1},
                                                     {-0.5, -1},
                                                     {0, 0},
                                                     {0.49, 0},
                                                     {-0.49, 0},
                                                     {62.0, 62}})
        EXPECT_EQ(RoundDouble(row.value), row.rounded) << row.value;
}

TEST(TapeInfo, UnitsGoThereAndBack)
{
    EXPECT_DOUBLE_EQ(MiriToInch(100.0), 3.93701);
    EXPECT_DOUBLE_EQ(InchToMiri(3.93701), 100.0);
    for (const double value : {0.1, 24.0, 62.0, 1000.0})
        EXPECT_DOUBLE_EQ(InchToMiri(MiriToInch(value)), value);
}
