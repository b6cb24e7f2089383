// SPDX-License-Identifier: Apache-2.0
#include "FormatString.h"

#include "FormatDirective.h"

#include <locale.h>

#include <algorithm>
#include <cstdio>
#include <string>

namespace platform {
inline namespace text {

namespace {

/// Sets the "C" locale for the calling thread while the object exists: a print dialog runs in the user's
/// locale, where printf may write a comma for the decimal point.
class NeutralLocale {
public:
    NeutralLocale()
    {
        static const locale_t neutral = newlocale(LC_ALL_MASK, "C", nullptr);
        m_previous = uselocale(neutral);
    }
    ~NeutralLocale() { uselocale(m_previous); }
    NeutralLocale(const NeutralLocale &) = delete;
    NeutralLocale &operator=(const NeutralLocale &) = delete;

private:
    locale_t m_previous;
};

/// Formats one number with snprintf(). The directive is rebuilt from its validated parts, so that it states
/// exactly the type of the argument.
template<typename Number>
QString printNumber(const FormatDirective &directive, const char *modifier, Number number)
{
    QByteArray format = '%' + directive.flags;
    if (directive.width)
        format += QByteArray::number(*directive.width);
    if (directive.precision)
        format += '.' + QByteArray::number(*directive.precision);
    format += modifier;
    format += static_cast<char>(directive.conversion);

    const NeutralLocale locale;
    const int length = std::snprintf(nullptr, 0, format.constData(), number);
    std::string text(static_cast<std::size_t>(length), '\0');
    std::snprintf(text.data(), text.size() + 1, format.constData(), number);
    return QString::fromStdString(text);
}

/// Returns the number of bytes of the integer that the directive shows.
int shownBytes(const FormatDirective &directive, const FormatArgument::Integer &integer)
{
    switch (directive.length) {
    case FormatDirective::Length::Char:
        return 1;
    case FormatDirective::Length::Short:
        return 2;
    case FormatDirective::Length::Wide:
        return 8;
    case FormatDirective::Length::None:
        break;
    }
    return integer.bytes;
}

QString showInteger(const FormatDirective &directive, const FormatArgument::Integer &integer)
{
    const int unusedBits = 64 - 8 * shownBytes(directive, integer);
    const auto bits = static_cast<std::uint64_t>(integer.value) << unusedBits;
    if (directive.conversion == u'd' || directive.conversion == u'i')
        return printNumber(directive, "ll",
                           static_cast<long long>(static_cast<std::int64_t>(bits) >> unusedBits));
    return printNumber(directive, "ll", static_cast<unsigned long long>(bits >> unusedBits));
}

/// Pads a text to the directive's width with spaces: a zero before a text would look like a part of it.
QString padded(const FormatDirective &directive, const QString &text)
{
    const int width = directive.width.value_or(0);
    return directive.flags.contains('-') ? text.leftJustified(width) : text.rightJustified(width);
}

/// Returns the beginning of the text up to the precision, padded to the width. Does not split a surrogate
/// pair.
QString showText(const FormatDirective &directive, const QString &text)
{
    if (!directive.precision || *directive.precision >= text.size())
        return padded(directive, text);
    qsizetype length = *directive.precision;
    if (length > 0 && text[length - 1].isHighSurrogate() && text[length].isLowSurrogate())
        --length;
    return padded(directive, text.left(length));
}

QString showCharacter(const FormatDirective &directive, const FormatArgument::Integer &integer)
{
    const bool wide = directive.conversion == u'C' || directive.length == FormatDirective::Length::Wide;
    const auto code = static_cast<char16_t>(integer.value & (wide ? 0xffff : 0xff));
    return padded(directive, QString(QChar(code)));
}

/// Formats the argument for the directive. Returns std::nullopt if the argument has another type or the
/// conversion is unknown.
std::optional<QString> show(const FormatDirective &directive, const FormatArgument &argument)
{
    const FormatArgument::Value &value = argument.value();
    const auto *const integer = std::get_if<FormatArgument::Integer>(&value);
    const auto *const real = std::get_if<double>(&value);
    const auto *const object = std::get_if<FormatArgument::Object>(&value);
    switch (directive.conversion) {
    case u'@':
        return showText(directive, argument.description());
    case u's':
    case u'S':
        return object ? std::optional(showText(directive, argument.description())) : std::nullopt;
    case u'p':
        return object
                   ? std::optional(padded(directive, QStringLiteral("0x%1").arg(
                                                         reinterpret_cast<quintptr>(object->address), 0, 16)))
                   : std::nullopt;
    case u'c':
    case u'C':
        return integer ? std::optional(showCharacter(directive, *integer)) : std::nullopt;
    default:
        break;
    }
    if (integer && QStringView(u"diouxX").contains(directive.conversion))
        return showInteger(directive, *integer);
    if (real && QStringView(u"fFeEgGaA").contains(directive.conversion))
        return printNumber(directive, "", *real);
    return std::nullopt;
}

/// The arguments of a call, read in order or by position.
class ArgumentList {
public:
    explicit ArgumentList(std::span<const FormatArgument> arguments)
        : m_arguments(arguments)
    {
    }

    /// Returns the next argument; null if none is left.
    const FormatArgument *next() { return m_next < m_arguments.size() ? &m_arguments[m_next++] : nullptr; }

    /// Returns the argument at the position, counted from 1; null if there is none.
    const FormatArgument *at(int position) const
    {
        const auto index = static_cast<std::size_t>(position) - 1;
        return position >= 1 && index < m_arguments.size() ? &m_arguments[index] : nullptr;
    }

    /// Returns the next argument as the value of a "*"; std::nullopt if no argument is left or it is not an
    /// integer.
    std::optional<int> nextExtent()
    {
        const FormatArgument *const argument = next();
        const auto *const integer =
            argument ? std::get_if<FormatArgument::Integer>(&argument->value()) : nullptr;
        if (!integer)
            return std::nullopt;
        return static_cast<int>(std::clamp<std::int64_t>(integer->value, -FormatDirective::maxExtent,
                                                         FormatDirective::maxExtent));
    }

private:
    std::span<const FormatArgument> m_arguments;
    std::size_t m_next = 0;
};

/// Replaces "*" with the values of the arguments. Returns false if an argument is missing or is not an
/// integer.
bool resolveExtents(FormatDirective *directive, ArgumentList *arguments)
{
    if (directive->starWidth) {
        const std::optional<int> width = arguments->nextExtent();
        if (!width)
            return false;
        if (*width < 0)
            directive->flags.append('-');
        directive->width = std::abs(*width);
    }
    if (directive->starPrecision) {
        const std::optional<int> precision = arguments->nextExtent();
        if (!precision)
            return false;
        directive->precision = *precision < 0 ? std::nullopt : precision;
    }
    return true;
}

bool isKnown(char16_t conversion)
{
    return QStringView(u"@sSpcCdiouxXfFeEgGaA").contains(conversion) && conversion != u'\0';
}

std::optional<QString> fill(FormatDirective directive, ArgumentList *arguments)
{
    if (directive.conversion == u'%')
        return QStringLiteral("%");
    if (!isKnown(directive.conversion) || !resolveExtents(&directive, arguments))
        return std::nullopt;
    const FormatArgument *const argument =
        directive.position ? arguments->at(*directive.position) : arguments->next();
    return argument ? show(directive, *argument) : std::nullopt;
}

} // namespace

QString stringWithFormat(const QString &format, std::span<const FormatArgument> arguments)
{
    ArgumentList remaining(arguments);
    QString result;
    qsizetype at = 0;
    for (;;) {
        const qsizetype percent = format.indexOf(u'%', at);
        result += QStringView(format).mid(at, percent < 0 ? -1 : percent - at);
        if (percent < 0)
            return result;
        const FormatDirective directive = FormatDirective::read(format, percent);
        const QStringView written = QStringView(format).mid(percent, directive.end - percent);
        const std::optional<QString> filled = fill(directive, &remaining);
        result += filled ? QStringView(*filled) : written;
        at = directive.end;
    }
}

} // namespace text
} // namespace platform
