// SPDX-License-Identifier: Apache-2.0
#include "FormatDirective.h"

#include <algorithm>

namespace platform {
inline namespace text {

namespace {

/// Parses one directive, with a known or unknown conversion.
class DirectiveReader {
public:
    DirectiveReader(QStringView format, qsizetype start)
        : m_format(format)
        , m_at(start + 1)
    {
    }

    FormatDirective read()
    {
        FormatDirective directive;
        directive.position = readPosition();
        while (QStringView(u"-+ #0'").contains(peek()) && peek() != u'\0')
            directive.flags.append(static_cast<char>(take()));
        readExtent(&directive.width, &directive.starWidth);
        if (peek() == u'.') {
            take();
            directive.precision = 0;
            readExtent(&directive.precision, &directive.starPrecision);
        }
        directive.length = readLength();
        directive.conversion = m_at < m_format.size() ? take() : u'\0';
        directive.end = m_at;
        return directive;
    }

private:
    char16_t peek() const { return m_at < m_format.size() ? m_format[m_at].unicode() : u'\0'; }
    char16_t take() { return m_format[m_at++].unicode(); }

    static bool isDigit(char16_t character) { return character >= u'0' && character <= u'9'; }

    std::optional<int> readNumber()
    {
        if (!isDigit(peek()))
            return std::nullopt;
        int number = 0;
        while (isDigit(peek()))
            number = std::min(number * 10 + (take() - u'0'), FormatDirective::maxExtent);
        return number;
    }

    /// Reads the digits before a "$". Digits without a "$" are a width and are left for readExtent().
    std::optional<int> readPosition()
    {
        const qsizetype start = m_at;
        const std::optional<int> number = readNumber();
        if (number && peek() == u'$') {
            take();
            return number;
        }
        m_at = start;
        return std::nullopt;
    }

    void readExtent(std::optional<int> *extent, bool *star)
    {
        if (peek() == u'*') {
            take();
            *star = true;
            return;
        }
        if (const std::optional<int> number = readNumber())
            *extent = number;
    }

    FormatDirective::Length readLength()
    {
        FormatDirective::Length length = FormatDirective::Length::None;
        for (;;) {
            switch (peek()) {
            case u'h':
                length = length == FormatDirective::Length::Short ? FormatDirective::Length::Char
                                                                  : FormatDirective::Length::Short;
                break;
            case u'l':
            case u'q':
            case u'j':
            case u'z':
            case u't':
            case u'L':
                length = FormatDirective::Length::Wide;
                break;
            default:
                return length;
            }
            take();
        }
    }

    QStringView m_format;
    qsizetype m_at;
};

} // namespace

FormatDirective FormatDirective::read(QStringView format, qsizetype start)
{
    return DirectiveReader(format, start).read();
}

} // namespace text
} // namespace platform
