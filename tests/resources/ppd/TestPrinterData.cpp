// SPDX-License-Identifier: Apache-2.0
// The odd PPDs that other tests open: each must be odd in the way that its name says, once libcups has
// read it.
#include <tests/support/PpdBuilder.h>

#include <QStringDecoder>

#include <gtest/gtest.h>

using test_support::PpdPointer;

namespace {

std::string path(const char *name)
{
    return std::string(KV_TEST_DATA "/ppd/") + name + ".ppd";
}

PpdPointer open(const char *name)
{
    PpdPointer ppd(ppdOpenFile(path(name).c_str()));
    EXPECT_TRUE(ppd) << name;
    return ppd;
}

int choiceCount(const PpdPointer &ppd, const char *keyword)
{
    const ppd_option_t *const option = ppdFindOption(ppd.get(), keyword);
    return option ? option->num_choices : -1;
}

bool isUtf8(const char *text)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString decoded = decoder(QByteArrayView(text));
    return !decoder.hasError() && !decoded.contains(QChar::ReplacementCharacter);
}

} // namespace

TEST(PrinterData, NoneHasPapersAndNoOptionOfThePanel)
{
    const PpdPointer ppd = open("none");
    ASSERT_TRUE(ppd);
    EXPECT_GT(ppd->num_sizes, 0);
    for (const char *keyword : test_support::panelKeywords)
        EXPECT_FALSE(ppdFindOption(ppd.get(), keyword)) << keyword;
}

TEST(PrinterData, WhatIsNoPpdIsRefused)
{
    for (const char *name : {"empty", "not-a-ppd"})
        EXPECT_FALSE(PpdPointer(ppdOpenFile(path(name).c_str()))) << name;
}

TEST(PrinterData, TheTruncatedOneOpensWithOptionsMissing)
{
    // This is why a host must look for the end of a PPD itself.
    const PpdPointer ppd = open("truncated");
    ASSERT_TRUE(ppd);
    EXPECT_EQ(choiceCount(ppd, "KvCutLabel"), 99);
    EXPECT_EQ(choiceCount(ppd, "KvHalfCut"), 0);
    EXPECT_EQ(choiceCount(ppd, "KvCutMark"), -1);
}

TEST(PrinterData, Latin1TextsBecomeUtf8)
{
    const PpdPointer ppd = open("latin1");
    ASSERT_TRUE(ppd);
    EXPECT_STREQ(ppdFindOption(ppd.get(), "KvCutLabel")->text, "Schneiden für je");
    EXPECT_STREQ(ppdFindChoice(ppdFindOption(ppd.get(), "KvHalfCut"), "ON")->text, "Nötig");
}

TEST(PrinterData, UndecodableTextsStayUndecodable)
{
    const PpdPointer ppd = open("undecodable");
    ASSERT_TRUE(ppd);
    for (const char *keyword : {"KvCutLabel", "KvCutAtEnd", "KvMirror", "KvAutoTapeCut", "KvHalfCut"}) {
        const ppd_option_t *const option = ppdFindOption(ppd.get(), keyword);
        ASSERT_TRUE(option) << keyword;
        EXPECT_FALSE(isUtf8(option->text)) << keyword;
    }
    const ppd_option_t *const halfCut = ppdFindOption(ppd.get(), "KvHalfCut");
    EXPECT_FALSE(isUtf8(halfCut->choices[0].text));
    EXPECT_FALSE(isUtf8(halfCut->choices[1].text));
    EXPECT_TRUE(isUtf8(ppdFindOption(ppd.get(), "KvCutMark")->text));
}

TEST(PrinterData, AnOptionsTextMayBeEmpty)
{
    const PpdPointer ppd = open("emptytext");
    ASSERT_TRUE(ppd);
    EXPECT_STREQ(ppdFindOption(ppd.get(), "KvHalfCut")->text, "");
    EXPECT_STREQ(ppdFindOption(ppd.get(), "KvMirror")->text, "Mirror Printing");
}

TEST(PrinterData, NumbersOfChoices)
{
    struct Row {
        const char *file;
        const char *keyword;
        int choices;
    };
    constexpr Row rows[] = {
        {"onechoice", "KvCutLabel", 1}, {"onechoice", "KvHalfCut", 1},     {"onechoice", "KvMirror", 1},
        {"nochoices", "KvCutLabel", 0}, {"nochoices", "KvAutoTapeCut", 0}, {"nochoices", "KvHalfCut", 0},
        {"nochoices", "KvMirror", 2},   {"count300", "KvCutLabel", 300},   {"count5to8", "KvCutLabel", 4},
    };
    for (const Row &row : rows) {
        const PpdPointer ppd = open(row.file);
        ASSERT_TRUE(ppd);
        EXPECT_EQ(choiceCount(ppd, row.keyword), row.choices) << row.file << ' ' << row.keyword;
    }
    EXPECT_STREQ(ppdFindOption(open("count5to8").get(), "KvCutLabel")->defchoice, "5");
}
