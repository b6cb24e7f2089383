// SPDX-License-Identifier: Apache-2.0
#include "SvgLengths.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <array>

namespace host {
inline namespace documents {

namespace {

struct Unit {
    QStringView name;
    double pixels;
};

constexpr Unit units[] = {
    {u"px", 1.0},         {u"mm", 96.0 / 25.4}, {u"cm", 96.0 / 2.54}, {u"in", 96.0},
    {u"pt", 96.0 / 72.0}, {u"pc", 16.0},        {u"Q", 96.0 / 101.6},
};

double pixelsOf(QStringView unit)
{
    const Unit *const found =
        std::ranges::find_if(units, [unit](const Unit &known) { return known.name == unit; });
    return found == std::end(units) ? 1.0 : found->pixels;
}

} // namespace

std::optional<double> lengthInPixels(const QString &length)
{
    static const QRegularExpression form(
        QStringLiteral("^\\s*([+-]?(?:\\d+\\.?\\d*|\\.\\d+)(?:[eE][+-]?\\d+)?)(px|mm|cm|in|pt|pc|Q)?\\s*$"));
    const QRegularExpressionMatch match = form.match(length);
    if (!match.hasMatch())
        return std::nullopt;
    return match.captured(1).toDouble() * pixelsOf(match.capturedView(2));
}

QString lengthsInPixels(const QString &text)
{
    static const QRegularExpression length(
        QStringLiteral("(?<![\\w.#-])([+-]?(?:\\d+\\.?\\d*|\\.\\d+))(mm|cm|in|pt|pc|Q)(?![\\w-])"));
    QString result;
    qsizetype taken = 0;
    for (QRegularExpressionMatchIterator matches = length.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        result += QStringView(text).sliced(taken, match.capturedStart() - taken);
        result += QString::number(match.captured(1).toDouble() * pixelsOf(match.capturedView(2)), 'g', 10) +
                  QStringLiteral("px");
        taken = match.capturedEnd();
    }
    result += QStringView(text).sliced(taken);
    return result;
}

bool holdsLengths(QStringView attribute)
{
    constexpr QStringView names[] = {
        u"x",
        u"y",
        u"width",
        u"height",
        u"cx",
        u"cy",
        u"r",
        u"rx",
        u"ry",
        u"x1",
        u"y1",
        u"x2",
        u"y2",
        u"fx",
        u"fy",
        u"dx",
        u"dy",
        u"style",
        u"font-size",
        u"stroke-width",
        u"stroke-dasharray",
        u"stroke-dashoffset",
    };
    return std::ranges::find(names, attribute) != std::end(names);
}

std::optional<QRectF> parseViewBox(const QString &text)
{
    static const QRegularExpression separator(QStringLiteral("[\\s,]+"));
    const QStringList numbers = text.split(separator, Qt::SkipEmptyParts);
    if (numbers.size() != 4)
        return std::nullopt;
    std::array<double, 4> values = {};
    for (std::size_t i = 0; i < values.size(); ++i) {
        bool good = false;
        values[i] = numbers[static_cast<qsizetype>(i)].toDouble(&good);
        if (!good)
            return std::nullopt;
    }
    return QRectF(values[0], values[1], values[2], values[3]);
}

} // namespace documents
} // namespace host
