// SPDX-License-Identifier: Apache-2.0
#include <dialog/translations/Translations.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QLocale>
#include <QRegularExpression>
#include <QTranslator>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

struct Message {
    QString context;
    QString source;
    /// One translation, or one for each plural form of the language.
    QStringList translations;
    bool isFinished = false;
};

/// The text, or the plural forms, of the element that the reader stands at.
QStringList readTranslations(QXmlStreamReader &xml)
{
    QString text;
    QStringList forms;
    while (!xml.atEnd() && xml.readNext() != QXmlStreamReader::EndElement) {
        if (xml.isStartElement())
            forms.append(xml.readElementText());
        else
            text += xml.text();
    }
    return forms.isEmpty() ? QStringList{text} : forms;
}

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
            message.isFinished = !xml.attributes().hasAttribute(QStringLiteral("type"));
            message.translations = readTranslations(xml);
            messages.push_back(message);
        }
    }
    EXPECT_FALSE(xml.hasError()) << path.toStdString();
    return messages;
}

QStringList placeholders(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("%[\\dn]"));
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

/// The letter after the mnemonic mark, in lower case; empty without a mark.
QString letterKey(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("&(\\w)"));
    return form.match(text).captured(1).toLower();
}

/// Contexts whose texts can be on the screen in one window at the same time.
std::vector<QStringList> screens()
{
    // What stands beside the pages; the fields of a custom paper come and go, whatever page is in front.
    const QStringList mainWindow{
        QStringLiteral("dialog::window::PrintDialog"),
        QStringLiteral("dialog::job::DestinationChooser"),
        QStringLiteral("dialog::paper::PaperChooser"),
        QStringLiteral("dialog::paper::PaperList"),
        QStringLiteral("dialog::paper::CustomPaperFields"),
        QStringLiteral("dialog::job::PageOptions"),
        QStringLiteral("dialog::window::DialogPages"),
        QStringLiteral("dialog::window::StripPreview"),
        QStringLiteral("dialog::job::SendBar"),
    };
    std::vector<QStringList> screens;
    for (const char *const page : {"job::JobPage", "options::OptionsPage", "job::TicketPage",
                                   "window::PagePreview", "job::SummaryPage"})
        screens.push_back(mainWindow + QStringList{QStringLiteral("dialog::") + QLatin1String(page)});
    screens.push_back({QStringLiteral("dialog::job::PasswordDialog")});
    screens.push_back({QStringLiteral("dialog::job::DocumentPasswordDialog")});
    screens.push_back({QStringLiteral("dialog::job::JobWindow")});
    return screens;
}

struct LabelledText {
    QString context;
    QString text;
};

void expectLetterKeysOnlyOnce(const std::vector<LabelledText> &texts, const std::string &language)
{
    for (const QStringList &screen : screens()) {
        QHash<QString, QString> taken;
        for (const auto &[context, text] : texts) {
            const QString key = letterKey(text);
            if (key.isEmpty() || !screen.contains(context))
                continue;
            EXPECT_FALSE(taken.contains(key)) << language << ", " << screen.last().toStdString() << ": "
                                              << text.toStdString() << ", " << taken[key].toStdString();
            taken[key] = text;
        }
    }
    for (const LabelledText &each : texts) {
        const auto holds = [&](const QStringList &screen) { return screen.contains(each.context); };
        EXPECT_TRUE(letterKey(each.text).isEmpty() || std::ranges::any_of(screens(), holds))
            << "Which window is " << each.context.toStdString() << " part of?";
    }
}

QStringList catalogues()
{
    const QDir folder(QStringLiteral(KV_SOURCE_DIR "/dialog/translations"));
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
            const std::string where = path.toStdString() + ": " + message.source.toStdString();
            EXPECT_TRUE(message.isFinished) << where;
            // The context of a text is a class; lupdate writes another name where it does not find the class,
            // and the program then finds no translation.
            EXPECT_TRUE(message.context.contains(QStringLiteral("::")))
                << where << message.context.toStdString();
            for (const QString &translation : message.translations) {
                EXPECT_FALSE(translation.isEmpty()) << where;
                EXPECT_EQ(placeholders(translation), placeholders(message.source)) << where;
                EXPECT_EQ(hasMnemonic(translation), hasMnemonic(message.source)) << where;
            }
        }
    }
}

TEST(Translations, LetterKeysAreTakenOnlyOnceInAWindow)
{
    ASSERT_FALSE(catalogues().isEmpty());
    std::vector<LabelledText> english;
    for (const Message &message : readCatalogue(catalogues().constFirst()))
        english.push_back({message.context, message.source});
    expectLetterKeysOnlyOnce(english, "English");
    for (const QString &path : catalogues()) {
        std::vector<LabelledText> texts;
        for (const Message &message : readCatalogue(path))
            texts.push_back({message.context, message.translations.constFirst()});
        expectLetterKeysOnlyOnce(texts, path.toStdString());
    }
}

TEST(Translations, AreFoundByTheLocale)
{
    dialog::installTranslations(QLocale(QLocale::German, QLocale::Austria));
    EXPECT_EQ(QCoreApplication::translate("dialog::window::PrintDialog", "&Print"),
              QStringLiteral("&Drucken"));
    for (QTranslator *const translator : QCoreApplication::instance()->findChildren<QTranslator *>())
        delete translator;
    EXPECT_EQ(QCoreApplication::translate("dialog::window::PrintDialog", "&Print"), QStringLiteral("&Print"));
}
