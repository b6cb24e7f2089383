// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "DescriptorCapture.h"

#include <diag/DebugLog.h>
#include <diag/DescriptorOutput.h>

#include <limits>

namespace {

/// Counts how often it was described.
struct Costly {
    QString description() const
    {
        ++described;
        return QStringLiteral("costly");
    }
    mutable int described = 0;
};

} // namespace

TEST(DebugLog, WritesPrefixMessageAndLineEnd)
{
    EXPECT_EQ(
        writtenToStandardError([] { debugLog(0, "%@ has %d choices", QStringLiteral("KvCutLabel"), 3); }),
        "DEBUG: KvCutLabel has 3 choices\n");
    EXPECT_EQ(writtenToStandardError([] { debugLog(-5, "plain"); }), "DEBUG: plain\n");
    EXPECT_EQ(writtenToStandardError([] { debugLog(std::numeric_limits<std::int32_t>::min(), ""); }),
              "DEBUG: \n");
}

TEST(DebugLog, DescriptorGetsNoPrefix)
{
    EXPECT_EQ(writtenBy([](int descriptor) { debugLogFd(0, descriptor, "%03d|%@", 7, nullptr); }),
              "007|(null)\n");
    EXPECT_EQ(writtenBy([](int descriptor) { debugLogFd(-1, descriptor, ""); }), "\n");
}

TEST(DebugLog, LevelsAboveZeroAreSilentAndCostNothing)
{
    const Costly costly;
    EXPECT_EQ(writtenToStandardError([&] { debugLog(1, "%@", costly); }), "");
    EXPECT_EQ(writtenBy([&](int descriptor) { debugLogFd(1, descriptor, "%@", costly); }), "");
    EXPECT_EQ(costly.described, 0);
    const platform::FormatArgument argument(5);
    EXPECT_EQ(writtenToStandardError([&] { debugLog(1, "%d", std::span(&argument, 1)); }), "");
    EXPECT_EQ(writtenBy([&](int descriptor) { debugLogFd(1, descriptor, "%d", std::span(&argument, 1)); }),
              "");
    EXPECT_EQ(writtenToStandardError([&] { debugLog(0, "%@", costly); }), "DEBUG: costly\n");
    EXPECT_EQ(costly.described, 1);
}

TEST(DebugLog, ThePrefixIsOutBeforeAnArgumentIsDescribed)
{
    /// Writes itself while it is described.
    struct Outspoken {
        QString description() const
        {
            diag::writeFully(STDERR_FILENO, "describing|");
            return QStringLiteral("described");
        }
    };
    EXPECT_EQ(writtenToStandardError([] { debugLog(0, "%@", Outspoken()); }),
              "DEBUG: describing|described\n");
}

TEST(DebugLog, ExportedFormTakesAListOfArguments)
{
    const platform::FormatArgument arguments[] = {QStringLiteral("a"), 5};
    EXPECT_EQ(writtenToStandardError([&] { debugLog(0, "%@ %d", std::span(arguments)); }), "DEBUG: a 5\n");
}

TEST(DebugLog, WritesUtf8WithQuestionMarksForWhatItCannotSay)
{
    EXPECT_EQ(writtenToStandardError([] { debugLog(0, QStringLiteral("日本 😀")); }), "DEBUG: 日本 😀\n");
    const QString halves = QStringLiteral("a") + QChar(0xd83d) + QStringLiteral("b") + QChar(0xde00);
    EXPECT_EQ(writtenToStandardError([&] { debugLog(0, "%@", halves); }), "DEBUG: a?b?\n");
    EXPECT_EQ(writtenBy([&](int descriptor) { debugLogFd(0, descriptor, "%@", halves); }), "a?b?\n");
}

TEST(DebugLog, WritesTheWholeMessageWhateverIsInIt)
{
    const QString withNull = QStringLiteral("a") + QChar(u'\0') + QStringLiteral("b");
    EXPECT_EQ(writtenToStandardError([&] { debugLog(0, "%@", withNull); }), QByteArray("DEBUG: a\0b\n", 11));
    const QString longText(20000, u'x');
    EXPECT_EQ(writtenToStandardError([&] { debugLog(0, "%@", longText); }),
              "DEBUG: " + longText.toUtf8() + '\n');
}
