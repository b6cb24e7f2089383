// SPDX-License-Identifier: Apache-2.0
#include "PpdNumber.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace host {
inline namespace printer {

namespace {

/// The units that the filters of the server know, and their lengths in points.
constexpr std::pair<const char *, Points> units[] = {
    {"", Points(1.0)},
    {"pt", Points(1.0)},
    {"in", Points(pointsPerInch)},
    {"ft", Points(12.0 * pointsPerInch)},
    {"cm", Points(Millimetres(10.0))},
    {"mm", Points(Millimetres(1.0))},
    {"m", Points(Metres(1.0))},
};

/// Parses digits with an optional sign and decimal point; absent for everything else, including blanks,
/// exponents and infinity.
std::optional<double> decimalNumber(const QByteArray &text)
{
    double number = 0.0;
    const auto [end, error] = std::from_chars(text.begin(), text.end(), number, std::chars_format::fixed);
    const bool isPlain = std::string_view(text.constData(), static_cast<std::size_t>(text.size()))
                             .find_first_not_of("-.0123456789") == std::string_view::npos;
    if (error != std::errc() || end != text.end() || !isPlain)
        return std::nullopt;
    return number;
}

/// Returns the index at which the unit at the end of a length begins.
qsizetype unitStart(const QByteArray &length)
{
    qsizetype start = length.size();
    while (start > 0 && length[start - 1] >= 'a' && length[start - 1] <= 'z')
        --start;
    return start;
}

} // namespace

std::optional<Points> parseLength(const QByteArray &length)
{
    const qsizetype start = unitStart(length);
    const QByteArray unit = length.mid(start);
    const auto *const found =
        std::ranges::find_if(units, [&](const auto &each) { return unit == each.first; });
    const std::optional<double> number = decimalNumber(length.left(start));
    if (!number || found == std::end(units))
        return std::nullopt;
    return *number * found->second;
}

std::optional<QSizeF> customPaperSize(const QByteArray &name)
{
    constexpr QByteArrayView prefix("Custom.");
    const qsizetype cross = name.indexOf('x');
    if (!name.startsWith(prefix) || cross < 0)
        return std::nullopt;
    const QByteArray number = name.mid(prefix.size(), cross - prefix.size());
    const QByteArray unit = name.mid(unitStart(name));
    const std::optional<Points> width = decimalNumber(number) ? parseLength(number + unit) : std::nullopt;
    const std::optional<Points> length = parseLength(name.mid(cross + 1));
    if (!width || !length)
        return std::nullopt;
    return QSizeF(width->number(), length->number());
}

QByteArray ppdNumber(double number)
{
    QByteArray text = QByteArray::number(number, 'f', 4);
    while (text.endsWith('0'))
        text.chop(1);
    if (text.endsWith('.'))
        text.chop(1);
    return text == "-0" ? QByteArray("0") : text;
}

QByteArray ppdLength(Points length)
{
    return ppdNumber(Millimetres(length).number()) + "mm";
}

QByteArray customPaperName(const QSizeF &points)
{
    return "Custom." + ppdNumber(Millimetres(Points(points.width())).number()) + 'x' +
           ppdLength(Points(points.height()));
}

} // namespace printer
} // namespace host
