// SPDX-License-Identifier: Apache-2.0
#include "CustomChoiceCheck.h"

#include <host/printer/PpdNumber.h>
#include <host/printer/PpdOptions.h>

#include <cups/cups.h>

#include <algorithm>

namespace host {
inline namespace cups {
inline namespace jobs {

namespace {

bool fitsNumber(const PpdParameter &parameter, const QByteArray &value)
{
    bool isNumber = true;
    double number = 0.0;
    // A length that was converted from the unit of the limit may differ from it by a rounding error.
    double slack = 0.0;
    if (parameter.kind == PpdParameterKind::Integer) {
        number = value.toInt(&isNumber);
    } else if (parameter.kind == PpdParameterKind::Points) {
        const std::optional<Points> length = parseLength(value);
        isNumber = length.has_value();
        number = length.value_or(Points()).number();
        slack = 0.01;
    } else {
        number = value.toDouble(&isNumber);
    }
    return isNumber && number >= parameter.minimum - slack && number <= parameter.maximum + slack;
}

bool fits(const PpdParameter &parameter, const QByteArray &value)
{
    if (parameter.isNumber())
        return fitsNumber(parameter, value);
    const QString text = QString::fromUtf8(value);
    const auto isDigit = [](QChar character) { return character >= u'0' && character <= u'9'; };
    const bool isOfDigits = std::ranges::all_of(text, isDigit);
    const auto length = static_cast<double>(text.size());
    return length >= parameter.minimum && length <= parameter.maximum &&
           (parameter.kind != PpdParameterKind::Passcode || isOfDigits);
}

std::vector<NamedValue> namedValues(const QByteArray &collection)
{
    cups_option_t *parsed = nullptr;
    const int count = cupsParseOptions(collection.constData(), 0, &parsed);
    std::vector<NamedValue> values;
    values.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        values.push_back({parsed[i].name, parsed[i].value});
    cupsFreeOptions(count, parsed);
    return values;
}

} // namespace

bool isCustomChoice(const PpdFile &ppd, const NamedValue &choice)
{
    const std::vector<PpdParameter> parameters = PpdOptions(ppd).parameters(choice.name);
    constexpr QByteArrayView prefix("Custom.");
    if (parameters.empty())
        return false;
    if (choice.value.startsWith(prefix))
        return fits(parameters.front(), choice.value.mid(prefix.size()));
    const std::vector<NamedValue> values =
        choice.value.startsWith('{') ? namedValues(choice.value) : std::vector<NamedValue>();
    return !values.empty() && std::ranges::all_of(values, [&](const NamedValue &each) {
        const auto parameter = std::ranges::find(parameters, each.name, &PpdParameter::name);
        return parameter != parameters.end() && fits(*parameter, each.value);
    });
}

} // namespace jobs
} // namespace cups
} // namespace host
