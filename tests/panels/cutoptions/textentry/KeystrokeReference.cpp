// SPDX-License-Identifier: Apache-2.0
#include "KeystrokeReference.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace reference {

namespace {

const QString invalidCharacter = QStringLiteral("InvalidCharacterNotification");
const QString formatError = QStringLiteral("FormatErrorNotification");

/// Mac OS Roman 0x80 to 0xFF, from the table that the Unicode Consortium publishes (ROMAN.TXT).
constexpr std::u16string_view upperHalf =
    u"ÄÅÇÉÑÖÜáàâäãåçéèêëíìîïñóòôöõúùûü†°¢£§•¶ß®©™´¨≠ÆØ∞±≤≥¥µ∂∑∏π∫ªºΩæø¿¡¬√ƒ≈∆«»…\u00a0ÀÃÕŒœ–—“”‘’÷◊ÿŸ⁄€‹›ﬁﬂ‡·"
    u"‚„‰ÂÊÁËÈÍÎÏÌÓÔ\uf8ffÒÚÛÙıˆ˜¯˘˙˚¸˝˛ˇ";
static_assert(upperHalf.size() == 128);

bool isAscii(const QString &text)
{
    return std::ranges::all_of(text, [](QChar character) { return character.unicode() < 128; });
}

bool isDigit(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

bool isLetter(char16_t c)
{
    return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
}

bool isOneOf(char16_t c, std::u16string_view characters)
{
    return characters.find(c) != std::u16string_view::npos;
}

bool isBetween(char16_t c, int first, int last)
{
    return c >= first && c <= last;
}

bool isOfStyle(std::int32_t style, char16_t c)
{
    switch (style) {
    case 2:
        return isDigit(c);
    case 4:
        return isDigit(c) || c == u'.';
    case 6:
        return isDigit(c) || isLetter(c) || c == u' ';
    case 7:
        return isLetter(c) || isDigit(c) || isOneOf(c, u" $%+-./");
    case 8:
        return isDigit(c) || isOneOf(c, u"$+-./:");
    case 9:
        return isDigit(c) || isOneOf(c, u"$+-./:ABCDabcd");
    case 10:
        return isLetter(c) || isDigit(c) || c == u' ' || isBetween(c, 33, 47) || isBetween(c, 58, 64) ||
               isBetween(c, 91, 96) || isBetween(c, 123, 126);
    case 11:
        return isLetter(c) || isDigit(c) || c == u' ' || c == 33 || c == 34 || c == 37 ||
               isBetween(c, 39, 47) || isBetween(c, 58, 63) || c == 95;
    default:
        return true;
    }
}

std::int32_t leadingInteger(const QString &text)
{
    qsizetype at = 0;
    while (at < text.size() && text[at].isSpace())
        ++at;
    const bool negative = at < text.size() && text[at] == u'-';
    if (at < text.size() && (text[at] == u'-' || text[at] == u'+'))
        ++at;
    double value = 0;
    for (; at < text.size() && isDigit(text[at].unicode()); ++at)
        value = value * 10 + (text[at].unicode() - u'0');
    return static_cast<std::int32_t>(std::clamp(negative ? -value : value, -2147483648.0, 2147483647.0));
}

/// In bytes of UTF-8; half a surrogate pair does not exist there, and then characters count.
std::int64_t lengthOf(const QString &text)
{
    return text.isValidUtf16() ? text.toUtf8().size() : text.size();
}

} // namespace

bool isMacRoman(const QString &text)
{
    return std::ranges::all_of(text, [](QChar character) {
        return character.unicode() < 128 || isOneOf(character.unicode(), upperHalf);
    });
}

Verdict check(const Settings &settings, const Edit &edit)
{
    if (edit.partial.isEmpty() || edit.proposedLocation <= edit.originalLocation)
        return {};
    const QString inserted =
        edit.partial.mid(edit.originalLocation, edit.proposedLocation - edit.originalLocation);
    const std::int64_t length = lengthOf(edit.partial);
    Verdict verdict;
    for (const QChar character : inserted) {
        const char16_t c = character.unicode();
        if (settings.style != 0 && !isMacRoman(inserted)) {
            verdict.invalidText = QString(character);
            verdict.notification = invalidCharacter;
            continue;
        }
        if (settings.invalid.contains(inserted)) {
            verdict.invalidText = QString(character);
            verdict.notification = invalidCharacter;
            continue;
        }
        if (settings.maxLength != 0 && length > settings.maxLength) {
            verdict.notification = invalidCharacter;
            continue;
        }
        if (settings.style == 0)
            continue;
        if (!isAscii(inserted)) {
            verdict.notification = invalidCharacter;
            continue;
        }
        if (settings.style == 4 && c == u'.' && edit.original.contains(u'.')) {
            verdict.notification = invalidCharacter;
            continue;
        }
        if (!isOfStyle(settings.style, c)) {
            verdict.notification = invalidCharacter;
            continue;
        }
        const bool full = settings.maxLength == 0 || length == settings.maxLength;
        if ((settings.style != 2 && settings.style != 4) || !full)
            continue;
        const std::int32_t value = leadingInteger(edit.partial);
        const bool isTooLarge = settings.maxValue && *settings.maxValue < value;
        const bool isTooSmall = settings.minValue && *settings.minValue > value;
        if (isTooLarge || isTooSmall)
            verdict.notification = formatError;
    }
    verdict.accepted = verdict.notification.isEmpty();
    return verdict;
}

} // namespace reference
