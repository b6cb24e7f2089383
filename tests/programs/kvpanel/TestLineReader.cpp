// SPDX-License-Identifier: Apache-2.0
#include <programs/kvpanel/LineReader.h>

#include <QTemporaryFile>

#include <gtest/gtest.h>

#include <unistd.h>

namespace {

using Result = LineReader::Result;
using ReadLines = std::vector<std::pair<Result, QByteArray>>;

/// Everything that is read from a file with these bytes, up to its end.
ReadLines linesOf(const QByteArray &bytes)
{
    QTemporaryFile file;
    EXPECT_TRUE(file.open());
    EXPECT_EQ(file.write(bytes), bytes.size());
    EXPECT_TRUE(file.flush());
    EXPECT_EQ(lseek(file.handle(), 0, SEEK_SET), 0);
    LineReader reader(file.handle());
    ReadLines lines;
    QByteArray line;
    for (Result result = reader.next(&line); result != Result::End; result = reader.next(&line))
        lines.emplace_back(result, line);
    EXPECT_EQ(reader.next(&line), Result::End) << "the end stays the end";
    return lines;
}

} // namespace

TEST(LineReader, SeparatesLines)
{
    const std::pair<QByteArray, QByteArrayList> rows[] = {
        {"", {}},
        {"\n", {""}},
        {"a", {"a"}},
        {"a\n", {"a"}},
        {"a\nb", {"a", "b"}},
        {"\n\na\n\n", {"", "", "a", ""}},
        {"a\r\n", {"a\r"}},
        {QByteArray("\0\n\xFF", 3), {QByteArray("\0", 1), "\xFF"}},
    };
    for (const auto &[bytes, expected] : rows) {
        QByteArrayList lines;
        for (const auto &[result, line] : linesOf(bytes)) {
            EXPECT_EQ(result, Result::Line);
            lines.append(line);
        }
        EXPECT_EQ(lines, expected) << bytes.toHex().constData();
    }
}

TEST(LineReader, JoinsLinesAtTheBoundariesOfReads)
{
    constexpr qsizetype block = 1 << 16;
    for (const qsizetype size : {block - 2, block - 1, block, block + 1, 2 * block}) {
        const QByteArray line(size, 'x');
        EXPECT_EQ(linesOf(line + '\n' + "b"), (ReadLines{{Result::Line, line}, {Result::Line, "b"}})) << size;
    }
}

TEST(LineReader, SkipsLinesThatAreTooLong)
{
    const QByteArray longest(LineReader::maxLineLength, 'x');
    const ReadLines tooLong{{Result::TooLong, {}}};
    EXPECT_EQ(linesOf(longest), (ReadLines{{Result::Line, longest}}));
    EXPECT_EQ(linesOf(longest + 'x'), tooLong);
    EXPECT_EQ(linesOf(longest + "x\n"), tooLong);
    EXPECT_EQ(linesOf(longest + "x\nb"), (ReadLines{{Result::TooLong, {}}, {Result::Line, "b"}}));
}
