// SPDX-License-Identifier: Apache-2.0
#include "TextEncoding.h"

#include <unicode/ucnv.h>

#include <langinfo.h>
#include <locale.h>

#include <stdexcept>
#include <string>

namespace platform {
inline namespace text {

namespace {

/// Returns the character set of the locale that the environment selects.
std::string environmentCharset()
{
    const locale_t locale = newlocale(LC_CTYPE_MASK, "", nullptr);
    if (!locale)
        return "US-ASCII"; // an unknown locale name falls back to the C locale
    std::string charset = nl_langinfo_l(CODESET, locale);
    freelocale(locale);
    return charset;
}

std::optional<TextEncoding> &systemEncoding()
{
    static std::optional<TextEncoding> encoding;
    return encoding;
}

const TextEncoding &required(const char *name, std::optional<TextEncoding> encoding)
{
    static std::vector<std::unique_ptr<TextEncoding>> kept;
    if (!encoding)
        throw std::runtime_error(std::string("this ICU has no converter for ") + name);
    return *kept.emplace_back(std::make_unique<TextEncoding>(*std::move(encoding)));
}

/// Leaves the error status of ICU unchanged. ICU's own callback for this purpose skips invisible characters:
/// a soft hyphen would count as ASCII and be missing in the bytes.
void U_CALLCONV stopAtUnencodable(const void *, UConverterFromUnicodeArgs *, const UChar *, int32_t, UChar32,
                                  UConverterCallbackReason, UErrorCode *)
{
}

} // namespace

TextEncoding::TextEncoding(std::shared_ptr<UConverter> converter, QByteArray name)
    : m_converter(std::move(converter))
    , m_name(std::move(name))
{
}

std::optional<TextEncoding> TextEncoding::named(const char *name)
{
    UErrorCode status = U_ZERO_ERROR;
    std::shared_ptr<UConverter> converter(ucnv_open(name, &status), [](UConverter *opened) {
        if (opened)
            ucnv_close(opened);
    });
    if (U_FAILURE(status))
        return std::nullopt;
    ucnv_setFromUCallBack(converter.get(), stopAtUnencodable, nullptr, nullptr, nullptr, &status);
    ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
    const char *const canonical = ucnv_getName(converter.get(), &status);
    if (U_FAILURE(status))
        return std::nullopt;
    return TextEncoding(std::move(converter), QByteArray(canonical));
}

const TextEncoding &TextEncoding::system()
{
    if (!systemEncoding())
        refreshSystem();
    return *systemEncoding();
}

void TextEncoding::refreshSystem()
{
    // If ICU does not know the character set, only its ASCII part can be used.
    std::optional<TextEncoding> encoding = named(environmentCharset().c_str());
    systemEncoding() = encoding ? encoding : ascii();
}

const TextEncoding &TextEncoding::utf8()
{
    static const TextEncoding &encoding = required("UTF-8", named("UTF-8"));
    return encoding;
}

const TextEncoding &TextEncoding::ascii()
{
    static const TextEncoding &encoding = required("US-ASCII", named("US-ASCII"));
    return encoding;
}

const TextEncoding &TextEncoding::macRoman()
{
    static const TextEncoding &encoding = required("macintosh", named("macintosh"));
    return encoding;
}

const std::vector<TextEncoding> &TextEncoding::available()
{
    static const std::vector<TextEncoding> encodings = [] {
        std::vector<TextEncoding> found;
        for (const char *name :
             {"US-ASCII", "ISO-8859-1", "macintosh", "windows-1252", "ISO-8859-2", "ISO-8859-5", "ISO-8859-7",
              "EUC-JP", "Shift_JIS", "ISO-2022-JP", "GB18030", "Big5", "EUC-KR", "UTF-8", "UTF-16"})
            if (std::optional<TextEncoding> encoding = named(name))
                found.push_back(*std::move(encoding));
        return found;
    }();
    return encodings;
}

bool TextEncoding::canEncode(const QString &text) const
{
    return encode(text).has_value();
}

std::optional<QByteArray> TextEncoding::encode(const QString &text) const
{
    UErrorCode status = U_ZERO_ERROR;
    const auto *const source = reinterpret_cast<const UChar *>(text.utf16());
    const auto sourceLength = static_cast<int32_t>(text.size());
    QByteArray bytes(UCNV_GET_MAX_BYTES_FOR_STRING(text.size(), ucnv_getMaxCharSize(m_converter.get())),
                     Qt::Uninitialized);
    const int32_t length = ucnv_fromUChars(m_converter.get(), bytes.data(),
                                           static_cast<int32_t>(bytes.size()), source, sourceLength, &status);
    if (U_FAILURE(status))
        return std::nullopt;
    bytes.truncate(length);
    return bytes;
}

std::optional<QString> TextEncoding::decode(const QByteArray &bytes) const
{
    UErrorCode status = U_ZERO_ERROR;
    // No encoding decodes one byte to more than two UTF-16 units.
    QString text(2 * bytes.size() + 1, Qt::Uninitialized);
    const int32_t length = ucnv_toUChars(m_converter.get(), reinterpret_cast<UChar *>(text.data()),
                                         static_cast<int32_t>(text.size()), bytes.constData(),
                                         static_cast<int32_t>(bytes.size()), &status);
    if (U_FAILURE(status))
        return std::nullopt;
    text.truncate(length);
    return text;
}

std::optional<QString> TextEncoding::decode(const char *bytes) const
{
    if (!bytes)
        return std::nullopt;
    return decode(QByteArray(bytes));
}

} // namespace text
} // namespace platform
