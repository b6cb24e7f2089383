// SPDX-License-Identifier: Apache-2.0
#include "PpdTranslations.h"

#include <QStringDecoder>

#include <algorithm>
#include <cctype>

namespace host {
inline namespace printer {

namespace {

bool isLetter(char character)
{
    return std::isalpha(static_cast<unsigned char>(character)) != 0;
}

/// Returns whether the text is a language such as "de" or "pt_BR": two or three letters, optionally followed
/// by an underscore and a country or script.
bool isLanguage(std::string_view text)
{
    const std::string_view language = text.substr(0, text.find('_'));
    return (language.size() == 2 || language.size() == 3) && std::ranges::all_of(language, isLetter);
}

/// Decodes a translation string: PPD 4.3 allows bytes in hexadecimal between angle brackets, as in
/// "Gr<C3B6C39F>e".
QByteArray decoded(std::string_view text)
{
    QByteArray result;
    while (!text.empty()) {
        const std::size_t open = text.find('<');
        const std::size_t close = open == std::string_view::npos ? open : text.find('>', open);
        if (close == std::string_view::npos)
            break;
        result.append(text.data(), static_cast<qsizetype>(open));
        result.append(QByteArray::fromHex(
            QByteArray(text.data() + open + 1, static_cast<qsizetype>(close - open - 1))));
        text.remove_prefix(close + 1);
    }
    result.append(text.data(), static_cast<qsizetype>(text.size()));
    return result;
}

bool isUtf8(const QByteArray &bytes)
{
    // A decoder that keeps a state waits for the rest of a character at the end: "Caf\xE9" in Latin-1 would
    // pass.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(bytes);
    return !decoder.hasError() && !text.isEmpty();
}

} // namespace

void PpdTranslations::addStatement(std::string_view statement)
{
    const std::size_t dot = statement.find('.');
    const std::size_t slash = statement.find('/');
    if (dot == std::string_view::npos || slash == std::string_view::npos || slash < dot ||
        !isLanguage(statement.substr(1, dot - 1)))
        return;
    const QByteArray text = decoded(statement.substr(slash + 1));
    // A text in another encoding cannot be distinguished from damaged data. It is skipped, and the
    // untranslated text of the PPD is shown.
    if (!isUtf8(text))
        return;
    const QByteArray key(statement.data() + 1, static_cast<qsizetype>(slash - 1));
    m_texts.insert(key.simplified(), text);
}

std::optional<QByteArray> PpdTranslations::text(const QString &language, const QByteArray &keyword,
                                                const QByteArray &choice) const
{
    QString full = language;
    full.replace(u'-', u'_');
    for (const QString &name : {full, full.section(u'_', 0, 0)}) {
        const auto found = m_texts.constFind(name.toUtf8() + '.' + keyword + ' ' + choice);
        if (found != m_texts.constEnd())
            return *found;
    }
    return std::nullopt;
}

} // namespace printer
} // namespace host
