// SPDX-License-Identifier: Apache-2.0
#include "LinguistFile.h"

#include <platform/Bundle.h>
#include <tests/support/PpdBuilder.h>

#include <QDir>
#include <QFontMetricsF>
#include <QGuiApplication>

#include <gtest/gtest.h>

#include <set>

namespace {

const QString stringsFolder = QStringLiteral(KV_SOURCE_DIR "/panels/cutoptions/resources/strings/");

QStringList languages()
{
    return {QStringLiteral("en"), QStringLiteral("de"), QStringLiteral("fr"),
            QStringLiteral("es"), QStringLiteral("it"), QStringLiteral("nl"),
            QStringLiteral("pt"), QStringLiteral("ja"), QStringLiteral("zh_CN")};
}

LinguistFile linguistFile(const QString &language)
{
    return LinguistFile::read(stringsFolder + QStringLiteral("Localizable_") + language +
                              QStringLiteral(".ts"));
}

/// The title of a row and of its summary line, by the keys used when the printer gives no text of its own,
/// and by the text that the sample printers give.
struct TitleKeys {
    const char *row;
    const char *summary;
    const char *ppdText;
};

constexpr TitleKeys titleKeys[] = {
    {"RS_CutAtEvery", "RS_STitle_CutLabels", "Cut Every"},
    {"RS_CutAtEnd", "RS_STitle_CutAtEnd", "Cut at End"},
    {"RS_MirrorPrinting", "RS_STitle_MirrorPrinting", "Mirror Printing"},
    {"RS_AutoTapeCut", "RS_STitle_AutoTapeCut", "Auto Cut"},
    {"RS_HalfCut", "RS_STitle_HalfCut", "Half Cut"},
    {"RS_ChainPrinting", "RS_STitle_ChainPrint", "Chain Printing"},
    {"RS_SpecialTape", "RS_STitle_SpecialTape", "Special Tape"},
    {"RS_RemoveBlkSpace", "RS_STitle_RemoveBlkSpace", "Remove Blank Space"},
    {"RS_CutMark", "RS_STitle_CutMark", "Cut Mark"},
};

constexpr const char *otherKeys[] = {
    "OP_PANEL_NAME",        "RS_Labels", "RS_STitle_Yes", "RS_STitle_No", "RS_Alrt_AutoCutWithHS",
    "RS_Strip_SpecialTape",
};

constexpr const char *tapePictures[] = {
    "AHCMOffOffOffOff", "AHCMOffOffOffOn", "AHCMOffOffOnOff", "AHCMOffOffOnOn",  "AHCMOffOnOffOff",
    "AHCMOffOnOffOn",   "AHCMOffOnOnOff",  "AHCMOffOnOnOn",   "AHCMOnOffOffOff", "AHCMOnOffOffOn",
    "AHCMOnOffOnOff",   "AHCMOnOffOnOn",   "AHCMOnOnOffOff",  "AHCMOnOnOffOn",   "AHCMOnOnOnOff",
    "AHCMOnOnOnOn",     "SPMROnOff",       "SPMROnOn",        "CTMROnOffOff",    "CTMROffOffOff",
    "CTMROnOnOff",      "CTMROffOnOff",
};

constexpr const char *labelPictures[] = {
    "EveryEndMirrorOffOffOff", "EveryEndMirrorOffOnOff", "EveryEndMirrorOnOffOff",
    "EveryEndMirrorOffOffOn",  "EveryEndMirrorOffOnOn",  "EveryEndMirrorOnOffOn",
};

QString pictureKey(const char *name)
{
    return QStringLiteral("OP_PICTURE_") + QString::fromLatin1(name);
}

std::set<QString> expectedKeys()
{
    std::set<QString> keys;
    for (const TitleKeys &title : titleKeys) {
        for (const char *key : {title.row, title.summary, title.ppdText})
            keys.insert(QString::fromLatin1(key));
    }
    for (const char *key : otherKeys)
        keys.insert(QString::fromLatin1(key));
    for (const char *name : tapePictures)
        keys.insert(pictureKey(name));
    for (const char *name : labelPictures)
        keys.insert(pictureKey(name));
    return keys;
}

std::set<QString> keysOf(const LinguistFile &file)
{
    std::set<QString> keys;
    for (const auto &[source, translation] : file.translations)
        keys.insert(source);
    return keys;
}

} // namespace

TEST(Strings, EveryLanguageHasEveryKeyOnceAndFinished)
{
    ASSERT_EQ(expectedKeys().size(), 61U);
    for (const QString &language : languages()) {
        const LinguistFile file = linguistFile(language);
        EXPECT_EQ(file.error, QString());
        EXPECT_EQ(file.language, language);
        EXPECT_EQ(file.contexts, QStringList(QStringLiteral("Localizable"))) << language.toStdString();
        EXPECT_EQ(keysOf(file), expectedKeys()) << language.toStdString();
        EXPECT_EQ(file.repeated, QStringList()) << language.toStdString();
        EXPECT_EQ(file.unfinished, QStringList()) << language.toStdString();
    }
}

TEST(Strings, NoCatalogueIsLeftOutHere)
{
    const QStringList files = QDir(stringsFolder).entryList({QStringLiteral("*.ts")}, QDir::Files);
    EXPECT_EQ(files.size(), languages().size());
}

TEST(Strings, TextsAreNeitherEmptyNorPadded)
{
    for (const QString &language : languages()) {
        for (const auto &[source, translation] : linguistFile(language).translations) {
            EXPECT_FALSE(translation.isEmpty()) << language.toStdString() << ' ' << source.toStdString();
            EXPECT_EQ(translation, translation.trimmed());
            EXPECT_FALSE(translation.startsWith(QStringLiteral("RS_")) ||
                         translation.startsWith(QStringLiteral("OP_")))
                << language.toStdString() << ' ' << source.toStdString();
        }
    }
}

TEST(Strings, TheCompiledCataloguesGiveTheSameTexts)
{
    for (const QString &language : languages()) {
        const auto bundle = platform::Bundle::open(QStringLiteral(KV_TEST_BUNDLE), {language});
        EXPECT_EQ(bundle->language(), language);
        for (const auto &[source, translation] : linguistFile(language).translations)
            EXPECT_EQ(bundle->localizedStringForKey(source), translation) << language.toStdString();
    }
}

TEST(Strings, ARowIsCalledTheSameWhereverItsNameComesFrom)
{
    for (const QString &language : languages()) {
        const LinguistFile file = linguistFile(language);
        for (const TitleKeys &title : titleKeys) {
            const QString row = file.translations.at(QString::fromLatin1(title.row));
            EXPECT_EQ(file.translations.at(QString::fromLatin1(title.summary)), row)
                << language.toStdString();
            EXPECT_EQ(file.translations.at(QString::fromLatin1(title.ppdText)), row)
                << language.toStdString();
        }
    }
}

TEST(Strings, NoTwoRowsHaveTheSameName)
{
    // Summary lines are kept by their titles: equal ones would be one line.
    for (const QString &language : languages()) {
        const LinguistFile file = linguistFile(language);
        std::set<QString> names;
        for (const TitleKeys &title : titleKeys)
            names.insert(file.translations.at(QString::fromLatin1(title.row)));
        EXPECT_EQ(names.size(), std::size(titleKeys)) << language.toStdString();
    }
}

TEST(Strings, RowTitlesFitTheirColumn)
{
    constexpr double column = 230.0;
    constexpr double indicator = 24.0; // a check box with its gap
    const QFontMetricsF metrics(QGuiApplication::font());
    for (const QString &language : languages()) {
        const LinguistFile file = linguistFile(language);
        for (const TitleKeys &title : titleKeys) {
            const QString row = file.translations.at(QString::fromLatin1(title.row));
            EXPECT_LE(metrics.horizontalAdvance(row), column - indicator) << row.toStdString();
        }
    }
}

TEST(Strings, PicturesOfOnePrinterAreToldApart)
{
    for (const QString &language : languages()) {
        const LinguistFile file = linguistFile(language);
        std::set<QString> tape;
        for (const char *name : tapePictures)
            tape.insert(file.translations.at(pictureKey(name)));
        EXPECT_EQ(tape.size(), std::size(tapePictures)) << language.toStdString();
        std::set<QString> labels;
        for (const char *name : labelPictures)
            labels.insert(file.translations.at(pictureKey(name)));
        EXPECT_EQ(labels.size(), std::size(labelPictures)) << language.toStdString();
    }
}

TEST(Strings, EverySentenceIsTranslated)
{
    const LinguistFile english = linguistFile(QStringLiteral("en"));
    for (const QString &language : languages().mid(1)) {
        const LinguistFile file = linguistFile(language);
        for (const auto &[source, translation] : file.translations) {
            // Dutch says "label" too, and "No" is Spanish and Italian as well.
            if (translation.contains(u' ')) {
                EXPECT_NE(translation, english.translations.at(source)) << language.toStdString();
            }
        }
    }
}

TEST(Strings, TheSamplePrintersTextsAreKeys)
{
    const LinguistFile english = linguistFile(QStringLiteral("en"));
    for (const char *model : {"lx900", "lx300", "dz500"}) {
        const std::string path = std::string(KV_SOURCE_DIR "/resources/ppd/kvelland-") + model + ".ppd";
        const test_support::PpdPointer ppd(ppdOpenFile(path.c_str()));
        ASSERT_TRUE(ppd) << path;
        for (const char *keyword : test_support::panelKeywords) {
            if (const ppd_option_t *const option = ppdFindOption(ppd.get(), keyword)) {
                EXPECT_TRUE(english.translations.contains(QString::fromUtf8(option->text))) << option->text;
            }
        }
    }
}
