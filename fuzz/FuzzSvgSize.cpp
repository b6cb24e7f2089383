// SPDX-License-Identifier: Apache-2.0
// The attributes of an SVG's root: width, height and view box, one a line. A length without a unit is what Qt
// reads as a number, and no size depends on blanks around it.
#include <host/documents/SvgSize.h>

#include <QByteArrayList>
#include <QXmlStreamAttributes>

#include <cmath>
#include <cstdint>

namespace {

bool isEqual(const std::optional<QSizeF> &left, const std::optional<QSizeF> &right)
{
    const auto isSame = [](double one, double other) {
        return one == other || (std::isnan(one) && std::isnan(other));
    };
    return left.has_value() == right.has_value() &&
           (!left || (isSame(left->width(), right->width()) && isSame(left->height(), right->height())));
}

QXmlStreamAttributes attributesOf(const QStringList &values)
{
    QXmlStreamAttributes attributes;
    const char *const names[] = {"width", "height", "viewBox"};
    for (qsizetype i = 0; i < qMin(values.size(), qsizetype(3)); ++i)
        attributes.append(QLatin1String(names[i]), values[i]);
    return attributes;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    QStringList values;
    QStringList spaced;
    for (const QByteArray &line : bytes.split('\n').mid(0, 3)) {
        values.append(QString::fromUtf8(line));
        spaced.append(u' ' + values.last() + u'\t');
    }
    const QXmlStreamAttributes attributes = attributesOf(values);
    const std::optional<QSizeF> natural = host::SvgSize::natural(attributes);
    const std::optional<QSizeF> box = host::SvgSize::viewBox(attributes);
    if (!isEqual(natural, host::SvgSize::natural(attributesOf(spaced))) ||
        !isEqual(box, host::SvgSize::viewBox(attributesOf(spaced))))
        qFatal("blanks change the size");
    if (box && !natural)
        qFatal("the size of the view box is lost");
    bool isNumber = false;
    const double width = values.first().trimmed().toDouble(&isNumber);
    if (natural && isNumber && std::isfinite(width) && natural->width() != width)
        qFatal("the width is %g, not %g", natural->width(), width);
    return 0;
}
