// SPDX-License-Identifier: Apache-2.0
// Statements of translations, one a line: what is stored is UTF-8, is found for the country of its language,
// and is read as the same when it is written without its hexadecimal bytes.
#include <host/printer/PpdTranslations.h>

#include <cstdint>

namespace {

std::string_view viewOf(const QByteArray &bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

void examine(const host::PpdTranslations &translations, const QByteArray &key, const QByteArray &text)
{
    // Qt removes the mark of an encoding at the start.
    if (text.isEmpty() || (!text.startsWith("\xEF\xBB\xBF") && QString::fromUtf8(text).toUtf8() != text))
        qFatal("a text that cannot be shown for \"%s\"", key.constData());
    const auto inCountry = translations.text(QStringLiteral("de-AT"), "Translation", key);
    if (!inCountry)
        qFatal("\"%s\" is not found in a country of its language", key.constData());
    // Each byte in hexadecimal is the same text.
    host::PpdTranslations again;
    again.addStatement(viewOf("*de.Translation " + key + "/<" + text.toHex() + '>'));
    if (again.text(QStringLiteral("de"), "Translation", key) != text)
        qFatal("\"%s\" is not read back", text.constData());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    host::PpdTranslations translations;
    for (const QByteArray &line : bytes.split('\n')) {
        translations.addStatement(viewOf(line));
        const QByteArray start("*de.Translation ");
        const QByteArray key = line.mid(start.size(), line.indexOf('/') - start.size());
        // A key with blanks around it is stored without them.
        if (!line.startsWith(start) || !line.contains('/') || key != key.simplified() || key.contains('\0'))
            continue;
        if (const auto text = translations.text(QStringLiteral("de"), "Translation", key))
            examine(translations, key, *text);
    }
    return 0;
}
