// SPDX-License-Identifier: Apache-2.0
#include <host/printer/PpdTranslations.h>

#include <gtest/gtest.h>

#include <string>

using host::PpdTranslations;

namespace {

struct StatementRow {
    std::string_view statement;
    /// Absent if the statement is no translation of the paper.
    std::optional<QByteArray> text;
};

} // namespace

TEST(PpdTranslations, ReadLanguageKeywordChoiceAndText)
{
    const StatementRow rows[] = {
        {"*de.PageSize W24/Band", "Band"},
        {"*de.PageSize   W24  /Band", "Band"},
        {"*de.PageSize\tW24/Band", "Band"},
        {"*de.PageSize W24/A/B", "A/B"},
        {"*de.PageSize W24/Nr. 1", "Nr. 1"},
        {"*de.PageSize W24/Gr\xC3\xBC\xC3\x9F"
         "e",
         "Gr\xC3\xBC\xC3\x9F"
         "e"},
        {"*de.PageSize W24/", std::nullopt},
        {"*de.PageSize W24", std::nullopt},
        {"*de.PageSize/W24", std::nullopt},
        {"*PageSize W24/Band", std::nullopt},
        {"*PageSize W24/Band.de", std::nullopt},
        {"*PageSize W2.4/Band", std::nullopt},
        {"*d.PageSize W24/Band", std::nullopt},
        {"*deutsch.PageSize W24/Band", std::nullopt},
        {"*d1.PageSize W24/Band", std::nullopt},
        {"*DE.PageSize W24/Band", std::nullopt},
        {"*.PageSize W24/Band", std::nullopt},
        {"./", std::nullopt},
        {"/.", std::nullopt},
        {".", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto &[statement, text] : rows) {
        PpdTranslations translations;
        translations.addStatement(statement);
        EXPECT_EQ(translations.text(QStringLiteral("de"), "PageSize", "W24"), text) << statement;
    }
}

TEST(PpdTranslations, ALanguageHasTwoOrThreeLetters)
{
    const std::pair<QByteArray, bool> rows[] = {
        {"de", true},    {"gsw", true}, {"zh_Hant", true}, {"d", false},
        {"deut", false}, {"d1", false}, {"", false},
    };
    for (const auto &[language, isRead] : rows) {
        PpdTranslations translations;
        translations.addStatement(("*" + language + ".PageSize W24/Band").toStdString());
        EXPECT_EQ(translations.text(QString::fromUtf8(language), "PageSize", "W24").has_value(), isRead)
            << language.constData();
    }
}

TEST(PpdTranslations, DecodeHexadecimalBytes)
{
    const StatementRow rows[] = {
        {"*de.PageSize W24/Gr<C3BCC39F>e", "Gr\xC3\xBC\xC3\x9F"
                                           "e"},
        {"*de.PageSize W24/<42616E64>", "Band"},
        {"*de.PageSize W24/<42><61><6e><64>", "Band"},
        {"*de.PageSize W24/<42 61 6E 64>", "Band"},
        {"*de.PageSize W24/B<>and", "Band"},
        {"*de.PageSize W24/Band <3", "Band <3"},
        {"*de.PageSize W24/<42616E64><", "Band<"},
        {"*de.PageSize W24/3> Band", "3> Band"},
        {"*de.PageSize W24/<>", std::nullopt},
        // Bytes of Latin-1, half a character, and a surrogate are not UTF-8.
        {"*de.PageSize W24/Gr<FC>n", std::nullopt},
        {"*de.PageSize W24/Gr\xFCn", std::nullopt},
        {"*de.PageSize W24/Gr<C3>", std::nullopt},
        {"*de.PageSize W24/<EDA080>", std::nullopt},
        {"*de.PageSize W24/Caf\xE9", std::nullopt},
    };
    for (const auto &[statement, text] : rows) {
        PpdTranslations translations;
        translations.addStatement(statement);
        EXPECT_EQ(translations.text(QStringLiteral("de"), "PageSize", "W24"), text) << statement;
    }
}

TEST(PpdTranslations, PreferTheCountryToItsLanguage)
{
    PpdTranslations translations;
    translations.addStatement("*pt.PageSize W24/Fita");
    translations.addStatement("*pt_BR.PageSize W24/Etiqueta");
    translations.addStatement("*zh_TW.PageSize W24/Tape");
    const std::pair<const char *, std::optional<QByteArray>> rows[] = {
        {"pt", "Fita"},     {"pt_BR", "Etiqueta"}, {"pt-BR", "Etiqueta"},   {"pt_PT", "Fita"},
        {"zh_TW", "Tape"},  {"zh", std::nullopt},  {"zh_CN", std::nullopt}, {"de", std::nullopt},
        {"", std::nullopt}, {"_BR", std::nullopt}, {"PT", std::nullopt},
    };
    for (const auto &[language, text] : rows)
        EXPECT_EQ(translations.text(QLatin1String(language), "PageSize", "W24"), text) << language;
    EXPECT_FALSE(translations.text(QStringLiteral("pt"), "PageSize", "w24")) << "names are exact";
    EXPECT_FALSE(translations.text(QStringLiteral("pt"), "PageSiz", "W24"));
}

TEST(PpdTranslations, ALaterStatementReplacesAnEarlierOne)
{
    PpdTranslations translations;
    translations.addStatement("*de.Translation PageSize/Format");
    translations.addStatement("*de.Translation PageSize/Papier");
    EXPECT_EQ(translations.text(QStringLiteral("de"), "Translation", "PageSize"), "Papier");
    translations.addStatement("*de.Translation PageSize/<FF>");
    EXPECT_EQ(translations.text(QStringLiteral("de"), "Translation", "PageSize"), "Papier")
        << "a text that is rejected replaces nothing";
}
