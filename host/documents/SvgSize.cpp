// SPDX-License-Identifier: Apache-2.0
#include "SvgSize.h"

#include <host/base/Length.h>

#include <QStringList>
#include <QXmlStreamAttributes>

#include <cmath>

namespace host {
inline namespace documents {

namespace {

struct Unit {
    QStringView name;
    double pixels;
};

constexpr double pixelsPerInch = 96.0;
constexpr double pixelsPerMillimetre = pixelsPerInch / millimetresPerInch;
constexpr double pixelsPerPoint = pixelsPerInch / pointsPerInch;

/// A number without a unit is in px. A pica (pc) is 12 points, a Q is a quarter of a millimetre.
constexpr Unit units[] = {
    {u"px", 1.0},
    {u"mm", pixelsPerMillimetre},
    {u"cm", 10.0 * pixelsPerMillimetre},
    {u"in", pixelsPerInch},
    {u"pt", pixelsPerPoint},
    {u"pc", 12.0 * pixelsPerPoint},
    {u"Q", pixelsPerMillimetre / 4.0},
};

/// Returns the number; infinity if it is too large for one.
std::optional<double> number(QStringView text)
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    // "inf", "nan" and numbers with blanks around them are numbers for Qt, but not in an SVG.
    const bool isQtsOnly = text.isEmpty() || text.back().isLetter() || text.trimmed().size() != text.size();
    return !isQtsOnly && (isNumber || std::isinf(value)) ? std::optional(value) : std::nullopt;
}

/// Returns the length in px; absent for a length that depends on something else, such as a percentage.
std::optional<double> length(QStringView text)
{
    for (const Unit &unit : units) {
        if (text.endsWith(unit.name)) {
            const std::optional<double> value = number(text.chopped(unit.name.size()));
            return value ? std::optional(*value * unit.pixels) : std::nullopt;
        }
    }
    return number(text);
}

} // namespace

std::optional<QSizeF> SvgSize::natural(const QXmlStreamAttributes &root)
{
    const std::optional<double> width = length(root.value(QLatin1String("width")).trimmed());
    const std::optional<double> height = length(root.value(QLatin1String("height")).trimmed());
    const std::optional<QSizeF> box = viewBox(root);
    if (width && height)
        return QSizeF(*width, *height);
    if (width && box)
        return QSizeF(*width, *width * box->height() / box->width());
    if (height && box)
        return QSizeF(*height * box->width() / box->height(), *height);
    return box;
}

std::optional<QSizeF> SvgSize::viewBox(const QXmlStreamAttributes &root)
{
    QString text = root.value(QLatin1String("viewBox")).toString();
    const QStringList numbers = text.replace(u',', u' ').simplified().split(u' ');
    if (numbers.size() != 4 || !number(numbers[0]) || !number(numbers[1]))
        return std::nullopt;
    const std::optional<double> width = number(numbers[2]);
    const std::optional<double> height = number(numbers[3]);
    return width && height ? std::optional(QSizeF(*width, *height)) : std::nullopt;
}

} // namespace documents
} // namespace host
