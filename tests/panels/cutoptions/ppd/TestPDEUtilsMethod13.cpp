// SPDX-License-Identifier: Apache-2.0
#include <ppd/PDEUtilsMethod13.h>

#include <platform/StaticText.h>
#include <platform/TextEncoding.h>
#include <tests/support/PpdBuilder.h>

#include <QCheckBox>

#include <gtest/gtest.h>

using Utils = PDEUtilsMethod13;
using platform::ControlTextColor;
using platform::TextEncoding;
using test_support::PpdBuilder;

namespace {

constexpr const char *hidingKeyword = "KvAutoCutObjHidden";

} // namespace

TEST(PDEUtilsMethod13, RunsOnEverySystem)
{
    EXPECT_TRUE(Utils::runningOn105OrLater());
}

TEST(PDEUtilsMethod13, AnAttributeMayBeAbsentOrEmpty)
{
    const auto ppd = PpdBuilder().attribute("KvEmpty", "").attribute("KvText", "x y").open();
    EXPECT_EQ(Utils::ppdAttrValStr(ppd.get(), "KvEmpty"), QString());
    EXPECT_FALSE(Utils::isSupportedItem(ppd.get(), "KvEmpty"));
    EXPECT_EQ(Utils::ppdAttrValStr(ppd.get(), "KvText"), QStringLiteral("x y"));
    EXPECT_EQ(Utils::ppdAttrValStr(ppd.get(), "KvAbsent"), std::nullopt);
    EXPECT_EQ(Utils::ppdAttrValStr(nullptr, "KvText"), std::nullopt);
}

TEST(PDEUtilsMethod13, AnItemIsSupportedWhenItsHiddenSwitchSaysFalse)
{
    struct Row {
        const char *value;
        bool supported;
    };
    for (const Row &row : std::initializer_list<Row>{{"False", true},
                                                     {"false", false},
                                                     {"FALSE", false},
                                                     {"True", false},
                                                     {"", false},
                                                     {"False ", false}})
        EXPECT_EQ(
            Utils::isSupportedItem(PpdBuilder().attribute("KvSwitch", row.value).open().get(), "KvSwitch"),
            row.supported)
            << row.value;
    EXPECT_FALSE(Utils::isSupportedItem(PpdBuilder().open().get(), hidingKeyword));
    EXPECT_FALSE(Utils::isSupportedItem(nullptr, hidingKeyword));
}

TEST(PDEUtilsMethod13, OptionTextsAndPoints)
{
    const auto ppd = PpdBuilder()
                         .option("KvHalfCut")
                         .text("KvHalfCut", "Halb\xc3\xa4")
                         .attribute("KvOrigin", "{12, 3.5}")
                         .attribute("KvEmpty", "")
                         .open();
    EXPECT_EQ(Utils::ppdOptionTextStr(ppd.get(), "KvHalfCut"), QString::fromUtf8("Halb\xc3\xa4"));
    EXPECT_EQ(Utils::ppdOptionTextStr(ppd.get(), "KvAbsent"), std::nullopt);
    EXPECT_EQ(Utils::ppdOptionTextStr(nullptr, "KvHalfCut"), std::nullopt);
    EXPECT_EQ(Utils::originItem(ppd.get(), "KvOrigin"), QPointF(12, 3.5));
    EXPECT_EQ(Utils::originItem(ppd.get(), "KvEmpty"), QPointF());
    EXPECT_EQ(Utils::originItem(ppd.get(), "KvAbsent"), QPointF());
}

TEST(PDEUtilsMethod13, PanelTitlesAreUtf8WhateverTheLocaleIs)
{
    const auto ppd = PpdBuilder().option("KvHalfCut").text("KvHalfCut", "Halb\xc3\xa4").open();
    ppd_option_t *const option = ppdFindOption(ppd.get(), "KvHalfCut");
    const QByteArray locale = qgetenv("LC_ALL");
    qputenv("LC_ALL", "C");
    TextEncoding::refreshSystem();
    EXPECT_EQ(Utils::newOptionTitle(option), QString::fromUtf8("Halb\xc3\xa4"));
    EXPECT_EQ(Utils::ppdOptionTextStr(ppd.get(), "KvHalfCut"), std::nullopt) << "ASCII cannot hold it";
    qputenv("LC_ALL", locale);
    TextEncoding::refreshSystem();
    EXPECT_EQ(Utils::newChoiceTitle(&option->choices[1]), QStringLiteral("On"));
    EXPECT_EQ(Utils::newOptionTitle(nullptr), std::nullopt);
    EXPECT_EQ(Utils::newChoiceTitle(nullptr), std::nullopt);
}

TEST(PDEUtilsMethod13, OnlyTheFlagOneEnablesATextsColour)
{
    platform::StaticText text;
    for (const int flag : {0, 2, 255}) {
        Utils::setEnabledForText(1, &text);
        EXPECT_EQ(text.textColor(), ControlTextColor::Enabled);
        Utils::setEnabledForText(static_cast<std::uint8_t>(flag), &text);
        EXPECT_EQ(text.textColor(), ControlTextColor::Disabled) << flag;
    }
    QCheckBox box;
    Utils::setEnabledForText(0, &box);
    EXPECT_TRUE(box.isEnabled());
    Utils::setEnabledForText(0, nullptr);
}

TEST(PDEUtilsMethod13, LengthsAreBytesOfTheSystemEncodingOrOfTheFirstThatFits)
{
    EXPECT_EQ(Utils::stringLengthConvertedToEncoding(std::nullopt), 0U);
    EXPECT_EQ(Utils::stringLengthConvertedToEncoding(QString()), 0U);
    EXPECT_EQ(Utils::stringLengthConvertedToEncoding(QString(QChar(0x3042))), 3U);
    const QByteArray locale = qgetenv("LC_ALL");
    qputenv("LC_ALL", "C");
    TextEncoding::refreshSystem();
    EXPECT_EQ(Utils::stringLengthConvertedToEncoding(QString(QChar(0xe9))), 1U) << "ISO-8859-1 comes first";
    EXPECT_EQ(Utils::stringLengthConvertedToEncoding(QString(QChar(0x3042))), 2U) << "EUC-JP comes first";
    EXPECT_EQ(Utils::stringLengthConvertedToEncoding(QString(QChar(0xd800))), 0U)
        << "nothing can hold half a pair";
    qputenv("LC_ALL", locale);
    TextEncoding::refreshSystem();
}

TEST(PDEUtilsMethod13, ScanningIsLiteral)
{
    EXPECT_TRUE(Utils::scanString(QStringLiteral("1.5"), QStringLiteral(".")));
    EXPECT_FALSE(Utils::scanString(QStringLiteral("15"), QStringLiteral(".")));
    EXPECT_FALSE(Utils::scanString(QStringLiteral("ABC"), QStringLiteral("b")));
    EXPECT_FALSE(Utils::scanString(QString(QChar(0xe9)), QStringLiteral("e\u0301")))
        << "no folding of accents";
    EXPECT_FALSE(Utils::scanString(QString(), QStringLiteral("a")));
    EXPECT_FALSE(Utils::scanString(QStringLiteral("a"), QString()));
}

TEST(PDEUtilsMethod13, DeletesTheFirstOccurrenceOnly)
{
    EXPECT_EQ(Utils::deleteString(QStringLiteral("abcabc"), QStringLiteral("b")), QStringLiteral("acabc"));
    EXPECT_EQ(Utils::deleteString(QStringLiteral("abc"), QStringLiteral("x")), std::nullopt);
    EXPECT_EQ(Utils::deleteString(QString(), QStringLiteral("x")), std::nullopt);
    EXPECT_EQ(Utils::deleteString(QStringLiteral("x"), QStringLiteral("x")), QString());
}
