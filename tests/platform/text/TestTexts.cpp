// SPDX-License-Identifier: Apache-2.0
// Numbers, encodings, points and property lists: texts that come from outside.
#include <platform/Geometry.h>
#include <platform/Numbers.h>
#include <platform/PropertyList.h>
#include <platform/TextEncoding.h>

#include <gtest/gtest.h>

using platform::TextEncoding;

TEST(Numbers, IntegerValueReadsTheLeadingNumber)
{
    struct Row {
        const char *text;
        int value;
    };
    for (const Row &row : std::initializer_list<Row>{{"", 0},
                                                     {"12", 12},
                                                     {"  7", 7},
                                                     {"007", 7},
                                                     {"-3", -3},
                                                     {"+3", 3},
                                                     {"--3", 0},
                                                     {"12abc", 12},
                                                     {"abc12", 0},
                                                     {"1 2", 1},
                                                     {"1.9", 1},
                                                     {"2147483647", 2147483647},
                                                     {"2147483648", 2147483647},
                                                     {"-2147483648", -2147483647 - 1},
                                                     {"-2147483649", -2147483647 - 1},
                                                     {"99999999999999999999999", 2147483647},
                                                     {"\xd9\xa1\xd9\xa2", 0}})
        EXPECT_EQ(platform::integerValue(QString::fromUtf8(row.text)), row.value) << '"' << row.text << '"';
}

TEST(TextEncoding, IsStrictBothWays)
{
    EXPECT_EQ(TextEncoding::utf8().decode("Stra\xc3\x9f"
                                          "e"),
              QString::fromUtf8("Stra\xc3\x9f"
                                "e"));
    EXPECT_EQ(TextEncoding::utf8().decode("Stra\xdf"
                                          "e"),
              std::nullopt);
    EXPECT_EQ(TextEncoding::utf8().decode(""), QString());
    EXPECT_EQ(TextEncoding::utf8().decode(static_cast<const char *>(nullptr)), std::nullopt);
    EXPECT_EQ(TextEncoding::ascii().decode("ON"), QStringLiteral("ON"));
    EXPECT_EQ(TextEncoding::ascii().decode("\xc3\x9f"), std::nullopt);
    EXPECT_FALSE(TextEncoding::ascii().canEncode(QString(QChar(0xe9))));
    EXPECT_TRUE(TextEncoding::macRoman().canEncode(QString(QChar(0xe9))));
    EXPECT_FALSE(TextEncoding::macRoman().canEncode(QString(QChar(0x3042))));
    EXPECT_EQ(TextEncoding::macRoman().encode(QString(QChar(0xe9))), QByteArray("\x8e"));
    EXPECT_TRUE(TextEncoding::ascii().canEncode(QString()));
    EXPECT_FALSE(TextEncoding::utf8().canEncode(QString(QChar(0xd800))))
        << "half a surrogate pair is no text";
}

TEST(TextEncoding, KnowsNothingOfUnknownNames)
{
    EXPECT_FALSE(TextEncoding::named("no-such-encoding"));
    ASSERT_TRUE(TextEncoding::named("EUC-JP"));
    EXPECT_EQ(TextEncoding::named("EUC-JP")->encode(QString(QChar(0x3042)))->size(), 2);
}

TEST(TextEncoding, TheSystemEncodingFollowsTheEnvironment)
{
    EXPECT_EQ(TextEncoding::system().name(), TextEncoding::utf8().name());
    const QByteArray locale = qgetenv("LC_ALL");
    qputenv("LC_ALL", "C");
    TextEncoding::refreshSystem();
    EXPECT_EQ(TextEncoding::system().name(), TextEncoding::ascii().name());
    qputenv("LC_ALL", locale);
    TextEncoding::refreshSystem();
    EXPECT_EQ(TextEncoding::system().name(), TextEncoding::utf8().name());
}

TEST(Geometry, PointFromString)
{
    struct Row {
        const char *text;
        QPointF point;
    };
    for (const Row &row : std::initializer_list<Row>{{"{12, 3.5}", {12, 3.5}},
                                                     {"{12,3.5}", {12, 3.5}},
                                                     {" { -1 , 2e1 } ", {-1, 20}},
                                                     {"{12 3}", {}},
                                                     {"12, 3", {}},
                                                     {"{12, 3", {}},
                                                     {"{1.2.3, 4}", {}},
                                                     {"", {}}})
        EXPECT_EQ(platform::pointFromString(QString::fromUtf8(row.text)), row.point) << row.text;
}

TEST(PropertyList, ReadsBackWhatItWrote)
{
    const QVariantMap map{{QStringLiteral("text"), QStringLiteral("a<b&c")},
                          {QStringLiteral("number"), QVariant::fromValue<qlonglong>(42)},
                          {QStringLiteral("real"), 1.5},
                          {QStringLiteral("flag"), true},
                          {QStringLiteral("bytes"), QByteArray("\x00\x01", 2)},
                          {QStringLiteral("list"), QVariantList{QStringLiteral("x"), QStringLiteral("y")}},
                          {QStringLiteral("map"), QVariantMap{{QStringLiteral("k"), QStringLiteral("v")}}}};
    EXPECT_EQ(platform::fromXmlPropertyList(platform::toXmlPropertyList(map)), QVariant(map));
}

TEST(PropertyList, ReadsTheTicketOfTheHeatShrinkPaper)
{
    const QByteArray ticket = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0"><dict><key>LxPaperName2</key><string>HS 9</string></dict></plist>)";
    const std::optional<QVariant> parsed = platform::fromXmlPropertyList(ticket);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->toMap().value(QStringLiteral("LxPaperName2")), QStringLiteral("HS 9"));
}

TEST(PropertyList, RefusesWhatIsNone)
{
    for (const char *text : {"", "HS 9", "<plist", "bplist00", "<html/>"}) {
        EXPECT_FALSE(platform::fromXmlPropertyList(text)) << text;
        EXPECT_FALSE(platform::stringInXmlPropertyList(text, QStringLiteral("key"))) << text;
    }
}

TEST(PropertyList, ReadsOneStringOfTheTopLevel)
{
    const QVariantMap map{{QStringLiteral("text"), QStringLiteral("a<b&c")},
                          {QStringLiteral("empty"), QString()},
                          {QStringLiteral("number"), 42},
                          {QStringLiteral("map"), QVariantMap{{QStringLiteral("k"), QStringLiteral("v")}}}};
    const auto read = [xml = platform::toXmlPropertyList(map)](const char *key) {
        return platform::stringInXmlPropertyList(xml, QLatin1String(key));
    };
    EXPECT_EQ(read("text"), QStringLiteral("a<b&c"));
    EXPECT_EQ(read("empty"), QString());
    EXPECT_EQ(read("number"), std::nullopt);
    EXPECT_EQ(read("map"), std::nullopt);
    EXPECT_EQ(read("k"), std::nullopt) << "of the top level alone";
    EXPECT_EQ(read("absent"), std::nullopt);
}
