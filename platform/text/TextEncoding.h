// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

struct UConverter;

namespace platform {
inline namespace text {

/// A character encoding, by ICU. Conversions are strict: a text or a byte sequence that does not
/// fit the encoding yields nothing rather than replacement characters, so that "absent" is never
/// mistaken for a text that somebody wrote.
class TextEncoding {
public:
    /// The encoding of the given IANA or ICU name ("UTF-8", "macintosh", "EUC-JP"); nothing when ICU
    /// does not know it.
    static std::optional<TextEncoding> named(const char *name);

    /// The encoding of the user's locale (LC_ALL, LC_CTYPE, LANG), read from the environment when
    /// first asked. Qt switches its own 8-bit encoding to UTF-8 whatever the locale says, so it is
    /// not asked.
    static const TextEncoding &system();
    /// Reads the environment again, as after a change of locale.
    static void refreshSystem();

    static const TextEncoding &utf8();
    static const TextEncoding &ascii();
    static const TextEncoding &macRoman();

    /// The encodings that a text is tried in, in this order, when the system encoding cannot hold it.
    static const std::vector<TextEncoding> &available();

    /// ICU's canonical name.
    const QByteArray &name() const { return m_name; }

    /// True when every character of the text exists in the encoding; an empty text always does.
    bool canEncode(const QString &text) const;

    /// The text's bytes, or nothing when a character does not exist in the encoding.
    std::optional<QByteArray> encode(const QString &text) const;

    /// The bytes' text, or nothing when they are not valid in the encoding.
    std::optional<QString> decode(const QByteArray &bytes) const;

    /// As decode() of a C string; nothing for null.
    std::optional<QString> decode(const char *bytes) const;

private:
    explicit TextEncoding(std::shared_ptr<UConverter> converter, QByteArray name);

    std::shared_ptr<UConverter> m_converter;
    QByteArray m_name;
};

} // namespace text
} // namespace platform
