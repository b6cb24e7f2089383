// SPDX-License-Identifier: Apache-2.0
#include <host/dialog/Translations.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QTranslator>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace {

struct Message {
    QString context;
    QString source;
    QString translation;
};

std::vector<Message> readCatalogue(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QXmlStreamReader xml(&file);
    std::vector<Message> messages;
    Message message;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QStringLiteral("name"))
            message.context = xml.readElementText();
        else if (xml.name() == QStringLiteral("source"))
            message.source = xml.readElementText();
        else if (xml.name() == QStringLiteral("translation")) {
            message.translation = xml.readElementText();
            messages.push_back(message);
        }
    }
    EXPECT_FALSE(xml.hasError()) << path.toStdString();
    return messages;
}

QStringList placeholders(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("%\\d"));
    QStringList found;
    for (const QRegularExpressionMatch &match : form.globalMatch(text))
        found.append(match.captured());
    found.sort();
    return found;
}

bool hasMnemonic(const QString &text)
{
    return text.contains(u'&');
}

QStringList catalogues()
{
    const QDir folder(QStringLiteral(KV_SOURCE_DIR "/host/dialog/translations"));
    QStringList paths;
    for (const QString &name : folder.entryList({QStringLiteral("*.ts")}))
        paths.append(folder.filePath(name));
    return paths;
}

} // namespace

TEST(Translations, SayEverythingThatAWindowOrAMessageSays)
{
    ASSERT_EQ(catalogues().size(), 8);
    for (const QString &path : catalogues()) {
        for (const Message &message : readCatalogue(path)) {
            // The help on the command line is read in English with the man page.
            if (message.translation.isEmpty() && message.context == QStringLiteral("dialog::CommandLine"))
                continue;
            const std::string where = path.toStdString() + ": " + message.source.toStdString();
            EXPECT_FALSE(message.translation.isEmpty()) << where;
            EXPECT_EQ(placeholders(message.translation), placeholders(message.source)) << where;
            EXPECT_EQ(hasMnemonic(message.translation), hasMnemonic(message.source)) << where;
        }
    }
}

TEST(Translations, LetterKeysAreTakenOnlyOnce)
{
    static const QRegularExpression form(QStringLiteral("&(\\w)"));
    for (const QString &path : catalogues()) {
        QStringList keys;
        for (const Message &message : readCatalogue(path)) {
            const QRegularExpressionMatch match = form.match(message.translation);
            if (!match.hasMatch())
                continue;
            const QString key = match.captured(1).toLower();
            EXPECT_FALSE(keys.contains(key))
                << path.toStdString() << ": " << message.translation.toStdString();
            keys.append(key);
        }
        EXPECT_GE(keys.size(), 7) << path.toStdString();
    }
}

TEST(Translations, AreFoundByTheLocale)
{
    dialog::installTranslations(QLocale(QLocale::German, QLocale::Austria));
    EXPECT_EQ(QCoreApplication::translate("dialog::PrintDialog", "&Print"), QStringLiteral("&Drucken"));
    for (QTranslator *const translator : QCoreApplication::instance()->findChildren<QTranslator *>())
        delete translator;
    EXPECT_EQ(QCoreApplication::translate("dialog::PrintDialog", "&Print"), QStringLiteral("&Print"));
}
