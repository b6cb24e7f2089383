// SPDX-License-Identifier: Apache-2.0
// Lengths and custom page sizes, from PPDs and from options that users write: a number is what Qt reads as
// one, and a value that is written is read as the same.
#include <host/printer/PpdNumber.h>

#include <QtNumeric>

#include <cmath>
#include <cstdint>

namespace {

bool isNear(double left, double right)
{
    // Four decimals of a millimetre are written; a double has 15 digits.
    return std::abs(left - right) <= 0.0003 + std::abs(right) * 1e-12;
}

void examineLength(const QByteArray &text)
{
    const auto length = host::parseLength(text);
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    const bool isPlain =
        !text.isEmpty() && QByteArray(text).replace('.', "").replace('-', "").toStdString().find_first_not_of(
                               "0123456789") == std::string::npos;
    if (isPlain && length.has_value() != isNumber)
        qFatal("\"%s\" is a number for one reader only", text.constData());
    if (isPlain && length && length->number() != number)
        qFatal("\"%s\" is %g and %g", text.constData(), length->number(), number);
    if (!length)
        return;
    if (!qIsFinite(length->number()))
        qFatal("\"%s\" is no finite length", text.constData());
    const auto again = host::parseLength(host::ppdLength(*length));
    if (!again || !isNear(again->number(), length->number()))
        qFatal("\"%s\" is not read back as %g", host::ppdLength(*length).constData(), length->number());
}

void examineSize(const QByteArray &name)
{
    const auto size = host::customPaperSize(name);
    if (!size)
        return;
    if (!qIsFinite(size->width()) || !qIsFinite(size->height()))
        qFatal("\"%s\" is no finite size", name.constData());
    const auto again = host::customPaperSize(host::customPaperName(*size));
    if (!again || !isNear(again->width(), size->width()) || !isNear(again->height(), size->height()))
        qFatal("\"%s\" is not read back", name.constData());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray text(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    examineLength(text);
    examineSize(text);
    examineSize("Custom." + text);
    return 0;
}
