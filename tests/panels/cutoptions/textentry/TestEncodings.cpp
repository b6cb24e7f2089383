// SPDX-License-Identifier: Apache-2.0
// Lengths in bytes, in locales that are made for the test: a system need not have any of them installed.
#include "Refusals.h"

#include <platform/TextEncoding.h>
#include <ppd/PDEUtilsMethod13.h>

#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <map>

namespace {

struct LocaleRow {
    const char *name;   ///< for LC_ALL
    const char *source; ///< localedef's input
    const char *charmap;
};

constexpr LocaleRow locales[] = {
    {"de_DE.ISO-8859-1", "de_DE", "ISO-8859-1"},
    {"ja_JP.SJIS", "ja_JP", "SHIFT_JIS"},
    {"ja_JP.EUC-JP", "ja_JP", "EUC-JP"},
};

/// Makes the locales in a folder of their own, switches to them, and switches back in the end.
class Encodings : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        folder = new QTemporaryDir;
        for (const LocaleRow &row : locales) {
            QProcess localedef;
            // Shift_JIS maps two ASCII codes elsewhere, which localedef warns of and, with -c, goes past.
            localedef.start("localedef", {"-c", "--no-archive", "-i", row.source, "-f", row.charmap,
                                          folder->filePath(row.name)});
            EXPECT_TRUE(localedef.waitForFinished(60000)) << qPrintable(localedef.errorString());
            EXPECT_TRUE(QDir(folder->filePath(row.name)).exists("LC_CTYPE"))
                << localedef.readAllStandardError().toStdString();
        }
    }
    static void TearDownTestSuite() { delete std::exchange(folder, nullptr); }

    void SetUp() override
    {
        for (const char *name : {"LOCPATH", "LC_ALL"})
            if (qEnvironmentVariableIsSet(name))
                previous[name] = qgetenv(name);
        qputenv("LOCPATH", folder->path().toLocal8Bit());
    }
    void TearDown() override
    {
        for (const char *name : {"LOCPATH", "LC_ALL"}) {
            if (previous.contains(name))
                qputenv(name, previous[name]);
            else
                qunsetenv(name);
        }
        platform::TextEncoding::refreshSystem();
    }

    static void use(const char *locale)
    {
        qputenv("LC_ALL", locale);
        platform::TextEncoding::refreshSystem();
    }

    /// The length in bytes that the formatter sees: the least maximum with which it takes the text.
    static int lengthInFormatter(const QString &text)
    {
        const auto formatter = PDEFormatter::init();
        for (int length = 1;; ++length) {
            formatter->setMaxLength(length);
            if (!formatter->refusalOf(text, PDETextRange{text.size(), 0}, QString(), {0, 0}))
                return length;
        }
    }

    static inline QTemporaryDir *folder = nullptr;
    std::map<std::string, QByteArray> previous;
};

} // namespace

TEST_F(Encodings, LengthsInBytesAgree)
{
    struct Row {
        const char *locale;
        const char *text;
        int bytes;
    };
    const Row rows[] = {
        {"C.UTF-8", "abc", 3},
        {"C.UTF-8", "é", 2},
        {"C.UTF-8", "日本語", 9},
        {"C.UTF-8", "ｶﾅ", 6},
        {"C.UTF-8", "😀", 4},
        {"de_DE.ISO-8859-1", "abc", 3},
        {"de_DE.ISO-8859-1", "Größe é", 7},
        {"ja_JP.SJIS", "abc", 3},
        {"ja_JP.SJIS", "日本語", 6},
        {"ja_JP.SJIS", "ｶﾅ", 2},
        {"ja_JP.SJIS", "表示", 4},
        {"ja_JP.EUC-JP", "abc", 3},
        {"ja_JP.EUC-JP", "日本語", 6},
        {"ja_JP.EUC-JP", "ｶﾅ", 4},
        {"ja_JP.EUC-JP", "é", 3},
    };
    for (const Row &row : rows) {
        use(row.locale);
        const QString text = QString::fromUtf8(row.text);
        EXPECT_EQ(lengthInFormatter(text), row.bytes) << row.locale << ' ' << row.text;
        EXPECT_EQ(PDEUtilsMethod13::stringLengthConvertedToEncoding(text),
                  static_cast<std::size_t>(row.bytes))
            << row.locale << ' ' << row.text;
    }
}

TEST_F(Encodings, WhatTheSystemEncodingLacksCountsInCharacters)
{
    struct Row {
        const char *locale;
        const char *text;
        int characters;
    };
    for (const Row &row : {Row{"de_DE.ISO-8859-1", "日本語", 3}, Row{"de_DE.ISO-8859-1", "5 €", 3},
                           Row{"ja_JP.SJIS", "é日", 2}, Row{"C", "é日", 2}}) {
        use(row.locale);
        EXPECT_EQ(lengthInFormatter(QString::fromUtf8(row.text)), row.characters)
            << row.locale << ' ' << row.text;
    }
}

TEST_F(Encodings, MaximumIsReachedInBytes)
{
    const auto formatter = PDEFormatter::init();
    formatter->setMaxLength(4);
    use("ja_JP.SJIS");
    EXPECT_TRUE(typed(*formatter, QStringLiteral("日"), QStringLiteral("本")));
    EXPECT_FALSE(typed(*formatter, QStringLiteral("日本"), QStringLiteral("x")));
    use("C.UTF-8");
    EXPECT_FALSE(typed(*formatter, QStringLiteral("日"), QStringLiteral("本")));
    EXPECT_TRUE(typed(*formatter, QStringLiteral("日"), QStringLiteral("x")));
}

TEST_F(Encodings, StylesDoNotDependOnTheLocale)
{
    for (const char *locale : {"C.UTF-8", "de_DE.ISO-8859-1", "ja_JP.SJIS", "ja_JP.EUC-JP", "C"}) {
        use(locale);
        const auto formatter = PDEFormatter::initWithStyle(1);
        const auto accent = formatter->refusalOf(QStringLiteral("é"), PDETextRange{1, 0}, QString(), {0, 0});
        ASSERT_TRUE(accent) << locale;
        EXPECT_FALSE(accent->invalidText) << locale;
        const auto kana = formatter->refusalOf(QStringLiteral("ｶ"), PDETextRange{1, 0}, QString(), {0, 0});
        ASSERT_TRUE(kana) << locale;
        EXPECT_EQ(kana->invalidText, QStringLiteral("ｶ")) << locale;
        EXPECT_FALSE(formatter->refusalOf(QStringLiteral("\\~"), PDETextRange{2, 0}, QString(), {0, 0}))
            << locale;
    }
}
