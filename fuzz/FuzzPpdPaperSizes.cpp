// SPDX-License-Identifier: Apache-2.0
// Statements of paper sizes, one a line, their values after the colon: a paper has a usable size, an unusable
// one or none, and its margins are finite and leave a printable area.
#include <host/printer/PpdPaperSizes.h>

#include <QList>

#include <cmath>
#include <cstdint>

namespace {

std::string_view viewOf(const QByteArray &bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

void examine(const host::PpdPaperSizes &sizes, const QByteArray &paper)
{
    const auto size = sizes.size(paper);
    if (size && sizes.unusableSize(paper))
        qFatal("the size of \"%s\" is usable and is not", paper.constData());
    if (size &&
        !(size->width() > 0.0 && size->height() > 0.0 && std::isfinite(size->width() * size->height())))
        qFatal("\"%s\" is %g x %g", paper.constData(), size->width(), size->height());
    const auto margins = sizes.margins(paper);
    if (!margins)
        return;
    if (!size)
        qFatal("\"%s\" has margins and no size", paper.constData());
    const double sum = margins->left() + margins->right() + margins->top() + margins->bottom();
    // Margins may be negative, and so large that the difference of the sides is rounded away.
    const double across = size->width() - margins->left() - margins->right();
    const double along = size->height() - margins->top() - margins->bottom();
    if (!std::isfinite(sum) || across < 0.0 || along < 0.0)
        qFatal("\"%s\" has a printable area of %g x %g", paper.constData(), across, along);
}

/// Qt's reading of the first number, with the precision of float.
void compareWithQt(const host::PpdPaperSizes &sizes, const QByteArray &paper, const QByteArray &value)
{
    const QByteArrayList words = value.simplified().split(' ');
    if (words.size() < 2)
        return;
    bool areNumbers[2] = {};
    const QSizeF expected(words[0].toFloat(&areNumbers[0]), words[1].toFloat(&areNumbers[1]));
    if (!areNumbers[0] || !areNumbers[1] || std::isnan(expected.width()) || std::isnan(expected.height()))
        return;
    const auto found = sizes.size(paper) ? sizes.size(paper) : sizes.unusableSize(paper);
    if (!found || found->width() != expected.width() || found->height() != expected.height())
        qFatal("\"%s\" is not %g x %g", value.constData(), expected.width(), expected.height());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    host::PpdPaperSizes sizes;
    for (const QByteArray &line : bytes.split('\n')) {
        const qsizetype colon = line.indexOf(':');
        const QByteArray statement = line.left(colon);
        const QByteArray value = colon < 0 ? QByteArray() : line.mid(colon + 1);
        sizes.addStatement(viewOf(statement), viewOf(value));
        const QByteArrayList words = statement.left(statement.indexOf('/')).simplified().split(' ');
        if (words.size() != 2)
            continue;
        examine(sizes, words.last());
        if (words.first() == "*PaperDimension" && statement.startsWith('*') && !statement.contains('/'))
            compareWithQt(sizes, words.last(), value);
    }
    return 0;
}
