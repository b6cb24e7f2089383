// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "DescriptorCapture.h"

#include <diag/MemoryCheck.h>

#include <limits>
#include <string>
#include <vector>

namespace {

/// Bytes of every value, the first of them 0xab so that a wrong sign would show.
std::vector<unsigned char> sampleBytes(int count)
{
    std::vector<unsigned char> bytes;
    for (int index = 0; index < count; ++index)
        bytes.push_back(static_cast<unsigned char>(0xab + 7 * index));
    return bytes;
}

/// The dump as it is told byte for byte: a buffer of digits, printed when 16 bytes are in it and once more
/// at the end.
std::string expectedDump(const std::vector<unsigned char> &bytes)
{
    std::string output;
    std::string line;
    for (std::size_t index = 0; index < bytes.size(); ++index) {
        char digits[3];
        std::snprintf(digits, sizeof digits, "%02x", bytes[index]);
        line += digits;
        if (line.size() == 32) {
            output += "DEBUG:" + line;
            line.clear();
        }
        if (index + 1 == bytes.size())
            output += "DEBUG:" + line;
    }
    return output;
}

std::string expectedLines(const std::vector<unsigned char> &bytes)
{
    std::string output;
    for (std::size_t index = 0; index < bytes.size(); ++index) {
        char digits[3];
        std::snprintf(digits, sizeof digits, "%02x", bytes[index]);
        output += digits;
        if (index % 16 == 15 || index + 1 == bytes.size())
            output += '\n';
    }
    return output;
}

} // namespace

TEST(MemoryCheck, EveryCountByteForByte)
{
    for (int count = 0; count <= 100; ++count) {
        const auto bytes = sampleBytes(count);
        const char none = 0;
        const void *const first = bytes.empty() ? static_cast<const void *>(&none) : bytes.data();
        EXPECT_EQ(writtenToStandardError([&] { memoryCheck(0, first, count); }).toStdString(),
                  expectedDump(bytes));
        EXPECT_EQ(
            writtenBy([&](int descriptor) { memoryCheckFd(0, descriptor, first, count); }).toStdString(),
            expectedLines(bytes));
    }
}

TEST(MemoryCheck, LinesRunTogetherAndAFullOneIsFollowedByAnEmptyOne)
{
    const unsigned char three[] = {0x01, 0xab, 0xff};
    EXPECT_EQ(writtenToStandardError([&] { memoryCheck(0, three, 3); }), "DEBUG:01abff");
    unsigned char seventeen[17];
    for (unsigned char index = 0; index < 17; ++index)
        seventeen[index] = index;
    EXPECT_EQ(writtenToStandardError([&] { memoryCheck(0, seventeen, 16); }),
              "DEBUG:000102030405060708090a0b0c0d0e0fDEBUG:");
    EXPECT_EQ(writtenToStandardError([&] { memoryCheck(0, seventeen, 17); }),
              "DEBUG:000102030405060708090a0b0c0d0e0fDEBUG:10");
}

TEST(MemoryCheck, DescriptorGetsWholeLines)
{
    const auto bytes = sampleBytes(32);
    const QByteArray output =
        writtenBy([&](int descriptor) { memoryCheckFd(0, descriptor, bytes.data(), 32); });
    EXPECT_EQ(output.size(), 2 * 33);
    EXPECT_EQ(output.count('\n'), 2);
    EXPECT_TRUE(output.endsWith('\n'));
}

TEST(MemoryCheck, NothingToDumpWritesNothing)
{
    const char byte = 'x';
    for (const std::int32_t count : {0, -1, -16, -17, std::numeric_limits<std::int32_t>::min()}) {
        EXPECT_EQ(writtenToStandardError([&] { memoryCheck(0, &byte, count); }), "") << count;
        EXPECT_EQ(writtenBy([&](int descriptor) { memoryCheckFd(0, descriptor, &byte, count); }), "")
            << count;
    }
    for (const std::int32_t count : {1, 16, 17}) {
        EXPECT_EQ(writtenToStandardError([&] { memoryCheck(0, nullptr, count); }), "") << count;
        EXPECT_EQ(writtenBy([&](int descriptor) { memoryCheckFd(0, descriptor, nullptr, count); }), "")
            << count;
    }
}

TEST(MemoryCheck, LevelsAboveZeroAreSilent)
{
    const char bytes[16] = {};
    for (const std::int32_t level : {1, 2, std::numeric_limits<std::int32_t>::max()}) {
        EXPECT_EQ(writtenToStandardError([&] { memoryCheck(level, bytes, 16); }), "");
        EXPECT_EQ(writtenBy([&](int descriptor) { memoryCheckFd(level, descriptor, bytes, 16); }), "");
    }
    for (const std::int32_t level : {0, -5, std::numeric_limits<std::int32_t>::min()}) {
        EXPECT_NE(writtenToStandardError([&] { memoryCheck(level, bytes, 1); }), "");
        EXPECT_NE(writtenBy([&](int descriptor) { memoryCheckFd(level, descriptor, bytes, 1); }), "");
    }
}
