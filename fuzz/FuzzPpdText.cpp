// SPDX-License-Identifier: Apache-2.0
// The text of a PPD, divided into pieces whose size the first byte states: the result does not depend on the
// pieces, and the lines are those that are counted at once.
#include "FuzzInput.h"

#include <host/printer/PpdText.h>

namespace {

std::string_view viewOf(const QByteArray &bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

host::PpdText scanned(std::string_view text, std::size_t piece)
{
    host::PpdText scan;
    for (std::size_t at = 0; at < text.size(); at += piece)
        scan.add(text.substr(at, piece));
    scan.finish();
    return scan;
}

int lineCount(QByteArray text)
{
    return 1 + static_cast<int>(text.replace("\r\n", "\n").replace('\r', '\n').count('\n'));
}

/// The names that the text could state something of.
QByteArrayList wordsOf(QByteArray text)
{
    for (const char separator : {'/', ':', '"', '\n', '\r', '\t'})
        text.replace(separator, ' ');
    return text.simplified().split(' ').mid(0, 100);
}

void compare(const host::PpdText &left, const host::PpdText &right, const QByteArrayList &words)
{
    if (left.line() != right.line() || left.isInsideValue() != right.isInsideValue())
        qFatal("the end is in lines %d and %d", left.line(), right.line());
    if (left.counts().excess().has_value() != right.counts().excess().has_value())
        qFatal("the statements are counted differently");
    for (const QByteArray &word : words) {
        if (left.paperSizes().size(word) != right.paperSizes().size(word) ||
            left.paperSizes().margins(word) != right.paperSizes().margins(word))
            qFatal("\"%s\" has two sizes", word.constData());
        const auto translation = [&word](const host::PpdText &scan) {
            return scan.translations().text(QStringLiteral("de"), "PageSize", word);
        };
        if (translation(left) != translation(right))
            qFatal("\"%s\" has two translations", word.constData());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    const std::size_t piece = input.byte() + std::size_t{1};
    const QByteArray text = input.bytes(size);
    const host::PpdText whole = scanned(viewOf(text), std::max<std::size_t>(1, size));
    compare(whole, scanned(viewOf(text), piece), wordsOf(text));
    if (whole.line() != lineCount(text))
        qFatal("%d lines, not %d", whole.line(), lineCount(text));
    // An end of line at the end of a complete text changes nothing but the number of the line.
    if (!whole.isInsideValue() && !text.endsWith('\r') && !text.endsWith('\n')) {
        const QByteArray longer = text + '\n';
        const host::PpdText ended = scanned(viewOf(longer), piece);
        if (ended.line() != whole.line() + 1 || ended.isInsideValue())
            qFatal("the last line is read differently without its end");
    }
    return 0;
}
