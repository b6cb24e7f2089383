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

/// A character encoding, implemented with ICU. Conversions are strict: a text or a byte sequence that does
/// not fit the encoding yields std::nullopt, not replacement characters, so that an absent text is never
/// mistaken for a real one.
class TextEncoding {
public:
    /// Returns the encoding with the IANA or ICU name ("UTF-8", "macintosh", "EUC-JP"); std::nullopt if ICU
    /// does not know the name.
    static std::optional<TextEncoding> named(const char *name);

    /// Returns the encoding of the user's locale (LC_ALL, LC_CTYPE, LANG), or US-ASCII if ICU does not know
    /// it. The environment is read on the first call. Qt's own 8-bit encoding is not used, because Qt sets it
    /// to UTF-8 in every locale.
    static const TextEncoding &system();
    /// Reads the environment again, for example after a change of the locale.
    static void refreshSystem();

    /// Fixed encodings. Each throws std::runtime_error if ICU has no converter for it.
    static const TextEncoding &utf8();
    static const TextEncoding &ascii();
    static const TextEncoding &macRoman();

    /// Returns the encodings to try, in this order, for a text that the system encoding cannot represent.
    static const std::vector<TextEncoding> &available();

    /// The canonical name of the encoding in ICU.
    const QByteArray &name() const { return m_name; }

    /// Returns true if the encoding has every character of the text, as it always does for an empty text.
    bool canEncode(const QString &text) const;

    /// Returns the encoded text; std::nullopt if the encoding does not have one of its characters.
    std::optional<QByteArray> encode(const QString &text) const;

    /// Returns the decoded text; std::nullopt if the bytes are not valid in the encoding.
    std::optional<QString> decode(const QByteArray &bytes) const;

    /// Decodes a null-terminated C string in the same way; returns std::nullopt for null.
    std::optional<QString> decode(const char *bytes) const;

private:
    explicit TextEncoding(std::shared_ptr<UConverter> converter, QByteArray name);

    std::shared_ptr<UConverter> m_converter;
    QByteArray m_name;
};

} // namespace text
} // namespace platform
