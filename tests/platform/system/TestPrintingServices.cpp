// SPDX-License-Identifier: Apache-2.0
#include <platform/PrintingServices.h>
#include <platform/SystemVersion.h>

#include <gtest/gtest.h>

namespace {

constexpr OSStatus gone = -17;

} // namespace

TEST(PrintingServices, AnswerThePaper)
{
    platform::PageFormat format;
    PMPaper paper = nullptr;
    EXPECT_EQ(PMGetPageFormatPaper(&format, &paper), platform::noError);
    EXPECT_EQ(paper, nullptr);

    format.paper = platform::Paper{QStringLiteral("DC 62"), 175.748, platform::noError, platform::noError,
                                   platform::noError};
    ASSERT_EQ(PMGetPageFormatPaper(&format, &paper), platform::noError);
    std::optional<QString> name;
    double height = 0;
    EXPECT_EQ(PMPaperGetPPDPaperName(paper, &name), platform::noError);
    EXPECT_EQ(PMPaperGetHeight(paper, &height), platform::noError);
    EXPECT_EQ(name, QStringLiteral("DC 62"));
    EXPECT_DOUBLE_EQ(height, 175.748);
}

TEST(PrintingServices, AFailureLeavesTheResultAlone)
{
    platform::PageFormat format{platform::Paper{QStringLiteral("x"), 1.0, gone, gone, gone}};
    PMPaper paper = nullptr;
    EXPECT_EQ(PMGetPageFormatPaper(&format, &paper), gone);
    EXPECT_EQ(paper, nullptr);
    std::optional<QString> name;
    EXPECT_EQ(PMPaperGetPPDPaperName(&*format.paper, &name), gone);
    EXPECT_FALSE(name);
    double height = -1;
    EXPECT_EQ(PMPaperGetHeight(&*format.paper, &height), gone);
    EXPECT_EQ(height, -1);
}

TEST(PrintingServices, NullHandlesAreErrorsNotCrashes)
{
    PMPaper paper = nullptr;
    std::optional<QString> name;
    double height = 0;
    QByteArray bytes;
    QString uri;
    std::int32_t number = 7;
    std::uint32_t page = 7;
    EXPECT_NE(PMGetPageFormatPaper(nullptr, &paper), platform::noError);
    EXPECT_NE(PMPaperGetPPDPaperName(nullptr, &name), platform::noError);
    EXPECT_NE(PMPaperGetHeight(nullptr, &height), platform::noError);
    EXPECT_NE(PMPrintSettingsGetValue(nullptr, QStringLiteral("k"), &bytes), platform::noError);
    EXPECT_NE(PMPrintSettingsCreateDataRepresentation(nullptr, &bytes), platform::noError);
    EXPECT_NE(PMSessionGetDataFromSession(nullptr, QStringLiteral("k"), &number), platform::noError);
    EXPECT_NE(PMGetFirstPage(nullptr, &page), platform::noError);
    EXPECT_NE(PMSetFirstPage(nullptr, 1, false), platform::noError);
    EXPECT_NE(PMGetLastPage(nullptr, &page), platform::noError);
    EXPECT_NE(PMSetLastPage(nullptr, 1, false), platform::noError);
    EXPECT_NE(PMPrinterCopyDeviceURI(nullptr, &uri), platform::noError);
    EXPECT_EQ(number, 7);
    EXPECT_EQ(page, 7U);
}

TEST(PrintingServices, SettingsValuesAreBytesOnly)
{
    platform::PrintSettings settings;
    QByteArray bytes("untouched");
    settings.setValue(QStringLiteral("k"), QStringLiteral("text"));
    EXPECT_EQ(PMPrintSettingsGetValue(&settings, QStringLiteral("k"), &bytes), platform::keyNotFound);
    EXPECT_EQ(bytes, "untouched");
    settings.setValue(QStringLiteral("k"), QByteArray("bytes"));
    EXPECT_EQ(PMPrintSettingsGetValue(&settings, QStringLiteral("k"), &bytes), platform::noError);
    EXPECT_EQ(bytes, "bytes");
}

TEST(SystemVersion, IsElevenUnlessTheHostSaysOtherwise)
{
    std::int32_t number = -1;
    EXPECT_EQ(Gestalt("sys1", &number), platform::noError);
    EXPECT_EQ(number, 11);
    EXPECT_NE(Gestalt("sysv", &number), platform::noError);
    EXPECT_EQ(number, 11);
    platform::setSystemVersionQuery([](const char *) -> std::optional<std::int32_t> { return std::nullopt; });
    EXPECT_NE(Gestalt("sys1", &number), platform::noError);
    platform::setSystemVersionQuery({});
    EXPECT_EQ(Gestalt("sys2", &number), platform::noError);
    EXPECT_EQ(number, 0);
}
