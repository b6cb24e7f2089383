// SPDX-License-Identifier: Apache-2.0
#include "Refusals.h"

#include <textentry/FormatterTrial.h>

#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

namespace {

QJsonObject parsed(const char *json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << json << ": " << qPrintable(error.errorString());
    return document.object();
}

std::string reply(const char *request)
{
    return QJsonDocument(textentry::tryFormatter(parsed(request)))
        .toJson(QJsonDocument::Compact)
        .toStdString();
}

} // namespace

TEST(FormatterTrial, TriesEditsInOrder)
{
    Refusals choiceErrors;
    EXPECT_EQ(
        reply(R"({"op":"formatter","style":2,"maxLength":3,"minValue":1,"maxValue":255,"edits":[
        {"partial":"2","proposed":[1,0],"original":"","originalSelection":[0,0]},
        {"partial":"256","proposed":[3,0],"original":"25","originalSelection":[2,0]},
        {"partial":"2551","proposed":[4,0],"original":"255","originalSelection":[3,0]},
        {"partial":"é","proposed":[1,0],"original":"","originalSelection":[0,0]},
        {"partial":"日","proposed":[1,0],"original":"","originalSelection":[0,0]},
        {"partial":null,"proposed":[1,0],"original":"2","originalSelection":[0,0]},
        {"partial":"x","proposed":null,"original":"2","originalSelection":[0,0]}]})"),
        R"({"results":[)"
        R"({"accepted":true,"beeps":0,"notification":null,"object":null},)"
        R"({"accepted":false,"beeps":1,"notification":"FormatErrorNotification","object":"formatter"},)"
        R"({"accepted":false,"beeps":1,"notification":"InvalidCharacterNotification","object":"formatter"},)"
        R"({"accepted":false,"beeps":1,"notification":"InvalidCharacterNotification","object":"formatter"},)"
        R"({"accepted":false,"beeps":1,"notification":"InvalidCharacterNotification","object":"日"},)"
        R"({"accepted":true,"beeps":0,"notification":null,"object":null},)"
        R"({"accepted":true,"beeps":0,"notification":null,"object":null}]})");
    EXPECT_EQ(choiceErrors.beeps(), 4u);
    EXPECT_EQ(choiceErrors.notifications.size(), 4u);
}

TEST(FormatterTrial, NotificationObjectAndListOfRefusedTexts)
{
    EXPECT_EQ(
        reply(R"({"style":2,"invalid":["7"],"notificationObject":"count","edits":[
        {"partial":"x","proposed":[1,0],"original":"","originalSelection":[0,0]},
        {"partial":"7","proposed":[1,0],"original":"","originalSelection":[0,0]}]})"),
        R"({"results":[)"
        R"({"accepted":false,"beeps":1,"notification":"InvalidCharacterNotification","object":"count"},)"
        R"({"accepted":false,"beeps":1,"notification":"InvalidCharacterNotification","object":"7"}]})");
}

TEST(FormatterTrial, BoundsAreInForceOnlyWhenGiven)
{
    EXPECT_EQ(
        reply(
            R"({"style":2,"edits":[{"partial":"99","proposed":[2,0],"original":"9","originalSelection":[1,0]}]})"),
        R"({"results":[{"accepted":true,"beeps":0,"notification":null,"object":null}]})");
    EXPECT_EQ(
        reply(
            R"({"style":2,"maxValue":0,"edits":[{"partial":"9","proposed":[1,0],"original":"","originalSelection":[0,0]}]})"),
        R"({"results":[{"accepted":false,"beeps":1,"notification":"FormatErrorNotification","object":"formatter"}]})");
}

TEST(FormatterTrial, Formats)
{
    EXPECT_EQ(
        reply(
            R"({"style":2,"formatString":"%d mm","edits":[{"format":12},{"format":"7x"},{"objectValue":"9 and"}]})"),
        R"({"results":[{"text":"12 mm"},{"text":"7 mm"},{"text":"9 mm"}]})");
    EXPECT_EQ(reply(R"({"edits":[{"format":-3},{"format":"a"},{"objectValue":""}]})"),
              R"({"results":[{"text":"-3"},{"text":"a"},{"text":""}]})");
    EXPECT_EQ(reply(R"({"edits":[]})"), R"({"results":[]})");
}

TEST(FormatterTrial, CalendarDates)
{
    EXPECT_EQ(
        reply(R"({"calendarDate":"2024-02-29T13:05:07+02:00","edits":[{"format":"x"},{"objectValue":"x"}]})"),
        R"({"results":[{"text":"2024-02-29 13:05:07 +0200"},{"text":"2024-02-29 13:05:07 +0200"}]})");
    EXPECT_EQ(
        reply(
            R"({"calendarDate":"2024-02-29T13:05:07Z","calendarLocale":{"NSMonthNameArray":["Januar","Februar"]},
                        "formatString":"%e. %B","edits":[{"format":1}]})"),
        R"({"results":[{"text":"29. Februar"}]})");
    EXPECT_EQ(
        reply(
            R"({"calendarDate":"2024-02-29T13:05:07Z","style":1,"formatString":"%@","edits":[{"format":1}]})"),
        R"({"results":[{"text":"1"}]})");
}

TEST(FormatterTrial, IllTypedMembersAreNamedAndNothingIsTried)
{
    struct Row {
        const char *request;
        const char *named;
    };
    const char *const edit = R"({"partial":"x","proposed":[1,0],"original":"","originalSelection":[0,0]})";
    const Row rows[] = {
        {R"({})", "edits"},
        {R"({"edits":{}})", "edits"},
        {R"({"edits":[5]})", "edits"},
        {R"({"style":"2","edits":[]})", "style"},
        {R"({"style":null,"edits":[]})", "style"},
        {R"({"style":1.5,"edits":[]})", "style"},
        {R"({"maxLength":2147483648,"edits":[]})", "maxLength"},
        {R"({"maxValue":-2147483649,"edits":[]})", "maxValue"},
        {R"({"minValue":true,"edits":[]})", "minValue"},
        {R"({"invalid":"a","edits":[]})", "invalid"},
        {R"({"invalid":[1],"edits":[]})", "invalid"},
        {R"({"formatString":1,"edits":[]})", "formatString"},
        {R"({"notificationObject":[],"edits":[]})", "notificationObject"},
        {R"({"calendarDate":"today","edits":[]})", "calendarDate"},
        {R"({"calendarDate":20240229,"edits":[]})", "calendarDate"},
        {R"({"calendarLocale":[],"edits":[]})", "calendarLocale"},
        {R"({"edits":[{"format":1.5}]})", "format"},
        {R"({"edits":[{"format":null}]})", "format"},
        {R"({"edits":[{"objectValue":5}]})", "objectValue"},
        {R"({"edits":[{}]})", "partial"},
        {R"({"edits":[{"partial":5,"proposed":null,"original":"","originalSelection":[0,0]}]})", "partial"},
        {R"({"edits":[{"partial":"","original":"","originalSelection":[0,0]}]})", "proposed"},
        {R"({"edits":[{"partial":"","proposed":[1],"original":"","originalSelection":[0,0]}]})", "proposed"},
        {R"({"edits":[{"partial":"","proposed":[1,-1],"original":"","originalSelection":[0,0]}]})",
         "proposed"},
        {R"({"edits":[{"partial":"","proposed":[-1,0],"original":"","originalSelection":[0,0]}]})",
         "proposed"},
        {R"({"edits":[{"partial":"","proposed":[0.5,1],"original":"","originalSelection":[0,0]}]})",
         "proposed"},
        {R"({"edits":[{"partial":"","proposed":null,"original":null,"originalSelection":[0,0]}]})",
         "original"},
        {R"({"edits":[{"partial":"","proposed":null,"original":"","originalSelection":null}]})",
         "originalSelection"},
    };
    for (const Row &row : rows) {
        // The same request with a refused edit in front: it must not have been tried.
        QJsonObject request = parsed(row.request);
        if (QJsonArray edits = request.value("edits").toArray(); request.value("edits").isArray()) {
            edits.prepend(parsed(edit));
            request.insert("edits", edits);
            if (!request.contains("style"))
                request.insert("style", 2);
        }
        Refusals choiceErrors;
        const QJsonObject reply = textentry::tryFormatter(request);
        EXPECT_EQ(reply.keys(), QStringList{"error"}) << row.request;
        EXPECT_TRUE(reply.value("error").toString().contains(QStringLiteral("\"%1\"").arg(row.named)))
            << row.request << ": " << qPrintable(reply.value("error").toString());
        EXPECT_EQ(choiceErrors.beeps(), 0u) << row.request;
    }
}

TEST(FormatterTrial, PlacesFarBeyondTheTextAreHarmless)
{
    EXPECT_EQ(
        reply(R"({"style":2,"edits":[
        {"partial":"x","proposed":[9007199254740992,9007199254740992],"original":"","originalSelection":[0,0]},
        {"partial":"x","proposed":[9007199254740992,0],"original":"","originalSelection":[9007199254740991,5]}]})"),
        R"({"results":[)"
        R"({"accepted":false,"beeps":1,"notification":"InvalidCharacterNotification","object":"formatter"},)"
        R"({"accepted":true,"beeps":0,"notification":null,"object":null}]})");
}
