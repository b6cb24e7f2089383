// SPDX-License-Identifier: Apache-2.0
// The driver's replies: what a user does, changes from outside, reading back.
#include "DriverFixture.h"

#include <QImage>

using PanelDriverTest = test_support::PanelDriverTest;
using test_support::noEvents;
using test_support::PpdBuilder;

TEST_F(PanelDriverTest, AClickIsReportedMarkedAndRecorded)
{
    show();
    const QJsonObject reply = ask("{'op':'click','control':'mHalfCutChkBx'}");
    EXPECT_EQ(reply, (QJsonObject{{"ok", true},
                                  {"events", QJsonArray{QJsonArray{"willChange", "KvHalfCut", "ON"}}}}));
    const QJsonObject now = state();
    EXPECT_EQ(now.value("marked").toObject().value("KvHalfCut"), QStringLiteral("ON"));
    EXPECT_EQ(now.value("settings").toObject().value("KvHalfCut"), QStringLiteral("ON"));
    EXPECT_EQ(now.value("selections").toObject().value("mHalfCut_Selection"), QStringLiteral("ON"));
    EXPECT_EQ(control("mHalfCutChkBx").value("state"), 1);
}

TEST_F(PanelDriverTest, WhatAUserCannotReachNeedsForce)
{
    show();
    ask("{'op':'click','control':'mSpecialTapeChkBx'}");
    const QJsonObject before = state();
    EXPECT_TRUE(
        errorOf(ask("{'op':'click','control':'mHalfCutChkBx'}")).contains(QStringLiteral("disabled")));
    EXPECT_TRUE(errorOf(ask("{'op':'type','text':'7'}")).contains(QStringLiteral("disabled")));
    EXPECT_TRUE(errorOf(ask("{'op':'step','value':7}")).contains(QStringLiteral("disabled")));
    EXPECT_EQ(state(), before);
    EXPECT_EQ(ask("{'op':'click','control':'mHalfCutChkBx','force':true}").value("events"),
              (QJsonArray{QJsonArray{"willChange", "KvHalfCut", "ON"}}));
    EXPECT_EQ(ask("{'op':'type','text':'7','force':true}").value("events"),
              (QJsonArray{QJsonArray{"willChange", "KvCutLabel", "7"}}));
    EXPECT_EQ(ask("{'op':'step','value':8,'force':true}").value("events"),
              (QJsonArray{QJsonArray{"willChange", "KvCutLabel", "8"}}));

    usePpd(PpdBuilder().options({"KvMirror"}));
    show();
    EXPECT_TRUE(errorOf(ask("{'op':'click','control':'mHalfCutChkBx'}")).contains(QStringLiteral("hidden")));
    EXPECT_EQ(ask("{'op':'click','control':'mHalfCutChkBx','force':true}").value("events"), noEvents);
    EXPECT_EQ(control("mHalfCutChkBx").value("state"), 1);
}

TEST_F(PanelDriverTest, IllTypedActionsChangeNothing)
{
    show();
    const QJsonObject before = state();
    for (const char *request : {"{'op':'click'}",
                                "{'op':'click','control':7}",
                                "{'op':'click','control':'mNoSuchBox'}",
                                "{'op':'click','control':'mCutEveryTxBx'}",
                                "{'op':'click','control':'mHalfCutChkBx','force':'yes'}",
                                "{'op':'type'}",
                                "{'op':'type','text':7}",
                                "{'op':'step'}",
                                "{'op':'step','value':'7'}",
                                "{'op':'step','value':1.5}",
                                "{'op':'step','value':2147483648}",
                                "{'op':'choosePreset'}",
                                "{'op':'choosePreset','tag':4}",
                                "{'op':'choosePreset','tag':99}",
                                "{'op':'choosePreset','tag':'13'}",
                                "{'op':'paper','paper':7}",
                                "{'op':'paper','paper':{'name':'DC29x90'},'ticket':null}",
                                "{'op':'paper','paper':{'name':'DC29x90','height':1},'ticket':7}",
                                "{'op':'ppdChange','keyword':'KvMirror'}",
                                "{'op':'ppdChange','keyword':'KvMirror','choice':7}",
                                "{'op':'mark','keyword':'KvMirror'}",
                                "{'op':'mark','keyword':'KvMirror','choice':null}",
                                "{'op':'keyWindow'}",
                                "{'op':'keyWindow','height':'tall'}",
                                "{'op':'localized'}",
                                "{'op':'picture'}",
                                "{'op':'screenshot','path':null}",
                                "{'op':'tapeInfo','paper':'24mm'}",
                                "{'op':'formatter','edits':7}"}) {
        EXPECT_FALSE(errorOf(ask(request)).isEmpty()) << request;
        ASSERT_EQ(state(), before) << request;
    }
}

TEST_F(PanelDriverTest, TypingIsOneEdit)
{
    show();
    ask("{'op':'click','control':'mCutEveryChkBx'}");
    if (!control("mCutEveryTxBx").value("enabled").toBool())
        ask("{'op':'click','control':'mCutEveryChkBx'}");
    struct Row {
        const char *text;
        const char *count;
    };
    for (const Row &row : std::initializer_list<Row>{{"25", "25"},
                                                     {"25", "25"},
                                                     {"", "1"},
                                                     {"", "1"},
                                                     {"150", "99"},
                                                     {"abc", "1"},
                                                     {"0", "1"},
                                                     {"12", "12"}}) {
        const QJsonObject reply = m_driver.handle({{"op", "type"}, {"text", row.text}});
        EXPECT_EQ(reply.value("events"), (QJsonArray{QJsonArray{"willChange", "KvCutLabel", row.count}}))
            << row.text;
        EXPECT_EQ(control("mCutEveryTxBx").value("text"), QLatin1String(row.count));
        EXPECT_EQ(control("mCutEveryStpr").value("value"), QString::fromLatin1(row.count).toInt());
    }
}

TEST_F(PanelDriverTest, SteppingIsClampedByThePanel)
{
    show();
    if (!control("mCutEveryStpr").value("enabled").toBool())
        ask("{'op':'click','control':'mCutEveryChkBx'}");
    struct Row {
        double value;
        const char *count;
    };
    for (const Row &row : std::initializer_list<Row>{{7, "7"},
                                                     {7, "7"},
                                                     {3, "3"},
                                                     {0, "1"},
                                                     {-2147483648.0, "1"},
                                                     {2147483647.0, "99"},
                                                     {100, "99"}}) {
        const QJsonObject reply = m_driver.handle({{"op", "step"}, {"value", row.value}});
        EXPECT_EQ(reply.value("events"), (QJsonArray{QJsonArray{"willChange", "KvCutLabel", row.count}}))
            << row.value;
        EXPECT_EQ(control("mCutEveryStpr").value("value"), QString::fromLatin1(row.count).toInt());
    }
}

TEST_F(PanelDriverTest, PresetsAreChosenWherePossible)
{
    usePpd(PpdBuilder().autoCutObjHidden().options(0xff));
    show();
    EXPECT_EQ(ask("{'op':'choosePreset','tag':7}").value("ok"), true);
    EXPECT_EQ(state().value("popUp").toObject().value("selectedTag"), 7);
    EXPECT_EQ(control("mHalfCutChkBx").value("state"), 1);
    ask("{'op':'paper','paper':{'name':'FL21x45','height':127}}");
    const QJsonObject before = state();
    EXPECT_TRUE(errorOf(ask("{'op':'choosePreset','tag':5}")).contains(QStringLiteral("5")));
    EXPECT_EQ(state(), before);
    EXPECT_EQ(ask("{'op':'choosePreset','tag':5,'force':true}").value("ok"), true);
    EXPECT_EQ(state().value("popUp").toObject().value("selectedTag"), 5);
    for (const QJsonValue item : state().value("popUp").toObject().value("items").toArray()) {
        const int tag = item.toObject().value("tag").toInt();
        EXPECT_EQ(item.toObject().value("enabled").toBool(), tag == 4 || tag == 8) << tag;
        EXPECT_EQ(item.toObject().value("title"), QString());
    }
}

TEST_F(PanelDriverTest, AnAlertIsReportedAndAnswered)
{
    show();
    ask("{'op':'paper','paper':{'name':'HS11mm','height':90}}");
    const QJsonArray events = ask("{'op':'click','control':'mAutoCutChkBx'}").value("events").toArray();
    ASSERT_EQ(events.size(), 2);
    const QString text = ask("{'op':'localized','key':'RS_Alrt_AutoCutWithHS'}").value("text").toString();
    EXPECT_EQ(events[0], (QJsonArray{"alert", "", text, QJsonArray{"OK"}}));
    EXPECT_EQ(events[1], (QJsonArray{"willChange", "KvAutoTapeCut", "ON"}));
}

TEST_F(PanelDriverTest, AMemberLeftOutOfAPaperChangeKeepsWhatWasThere)
{
    show();
    ask("{'op':'paper','paper':{'name':null,'height':100},'ticket':'<plist><dict><key>LxPaperName2</"
        "key><string>HS</string></dict></plist>'}");
    EXPECT_EQ(state().value("flags").toObject().value("isHSTapePage"), true);
    ask("{'op':'paper','paper':{'name':null,'height':50}}");
    EXPECT_EQ(state().value("flags").toObject().value("isHSTapePage"), true);
    ask("{'op':'paper','ticket':null}");
    EXPECT_EQ(state().value("flags").toObject().value("isHSTapePage"), false);
    ask("{'op':'paper','paper':null}");
    EXPECT_EQ(ask("{'op':'save'}").value("result"), true);
    EXPECT_EQ(state().value("tapeState"), 0);
}

TEST_F(PanelDriverTest, AnotherPanelsChangeIsRecordedAsItCame)
{
    show();
    EXPECT_EQ(ask("{'op':'ppdChange','keyword':'KvMirror','choice':'ON'}").value("events"), noEvents);
    QJsonObject now = state();
    EXPECT_EQ(now.value("selections").toObject().value("mMirror_Selection"), QStringLiteral("ON"));
    EXPECT_EQ(now.value("marked").toObject().value("KvMirror"), QStringLiteral("ON"));
    ask("{'op':'ppdChange','keyword':'KvMirror','choice':'SOMETIMES'}");
    ask("{'op':'ppdChange','keyword':'Unknown','choice':'x'}");
    now = state();
    EXPECT_EQ(now.value("selections").toObject().value("mMirror_Selection"), QJsonValue());
    EXPECT_EQ(now.value("marked").toObject().value("KvMirror"), QStringLiteral("ON"));
    EXPECT_EQ(now.value("settings").toObject().value("KvMirror"), QStringLiteral("SOMETIMES"));
    EXPECT_EQ(now.value("settings").toObject().value("Unknown"), QStringLiteral("x"));
    ask("{'op':'ppdChange','keyword':null,'choice':'x'}");
    ask("{'op':'ppdChange','keyword':'KvHalfCut','choice':null}");
    EXPECT_EQ(state(), now);
}

TEST_F(PanelDriverTest, AMarkIsToldToNobody)
{
    show();
    ask("{'op':'mark','keyword':'KvMirror','choice':'ON'}");
    const QJsonObject now = state();
    EXPECT_EQ(now.value("marked").toObject().value("KvMirror"), QStringLiteral("ON"));
    EXPECT_EQ(now.value("selections").toObject().value("mMirror_Selection"), QStringLiteral("OFF"));
    EXPECT_EQ(now.value("settings").toObject().value("KvMirror"), QStringLiteral("OFF"));
    EXPECT_EQ(ask("{'op':'mark','keyword':'Unknown','choice':'x'}").value("ok"), true);
}

TEST_F(PanelDriverTest, ReadsThePaperAsThePanelDoes)
{
    open();
    const auto tape = [this](const char *request) {
        QJsonObject reply = ask(request);
        reply.remove(QStringLiteral("ok"));
        reply.remove(QStringLiteral("events"));
        return reply;
    };
    EXPECT_EQ(tape("{'op':'tapeInfo'}"),
              (QJsonObject{{"status", 0}, {"length", 100.0}, {"kind", 0}, {"name", QJsonValue()}}));
    EXPECT_EQ(tape("{'op':'tapeInfo','paper':{'name':'DC29x90','height':0}}").value("kind"), 0);
    EXPECT_EQ(tape("{'op':'tapeInfo','paper':{'name':'DC29x90','height':255}}").value("kind"), 1);
    EXPECT_EQ(tape("{'op':'tapeInfo','paper':{'name':'x','height':1,'heightStatus':-5}}").value("status"),
              -5);
    const QJsonObject ticketed =
        tape("{'op':'tapeInfo','paper':{'name':null,'height':1},"
             "'ticket':'<plist><dict><key>LxPaperName2</key><string>HS 9</string></dict></plist>'}");
    EXPECT_EQ(ticketed.value("kind"), 2);
    EXPECT_EQ(ticketed.value("name"), QStringLiteral("HS 9"));
    EXPECT_EQ(tape("{'op':'tapeInfo'}").value("name"), QJsonValue()) << "nothing of it stays";
}

TEST_F(PanelDriverTest, PicturesAreWrittenWholeOrNotAtAll)
{
    show();
    const QString picture = m_folder.filePath(QStringLiteral("preview.png"));
    const QString screenshot = m_folder.filePath(QStringLiteral("panel.png"));
    EXPECT_EQ(m_driver.handle({{"op", "picture"}, {"path", picture}}).value("ok"), true);
    EXPECT_EQ(m_driver.handle({{"op", "screenshot"}, {"path", screenshot}}).value("ok"), true);
    EXPECT_EQ(QImage(picture).size(), QSize(184, 80));
    EXPECT_EQ(QImage(screenshot).size(), QSize(488, 282));
    const QString nowhere = m_folder.filePath(QStringLiteral("no/such/folder.png"));
    for (const char *op : {"picture", "screenshot"})
        EXPECT_TRUE(errorOf(m_driver.handle({{"op", op}, {"path", nowhere}})).contains(nowhere)) << op;
}

TEST_F(PanelDriverTest, TheFormattersBeepsAndNotificationsAreEvents)
{
    open();
    const QJsonObject reply =
        ask("{'op':'formatter','style':2,'maxLength':3,'notificationObject':'owner','edits':["
            "{'partial':'2','proposed':[1,0],'original':'','originalSelection':[0,0]},"
            "{'partial':'2x','proposed':[2,0],'original':'2','originalSelection':[1,0]},"
            "{'format':7}]}");
    ASSERT_EQ(reply.value("ok"), true);
    EXPECT_EQ(reply.value("results").toArray(),
              (QJsonArray{QJsonObject{{"accepted", true},
                                      {"notification", QJsonValue()},
                                      {"object", QJsonValue()},
                                      {"beeps", 0}},
                          QJsonObject{{"accepted", false},
                                      {"notification", "InvalidCharacterNotification"},
                                      {"object", "owner"},
                                      {"beeps", 1}},
                          QJsonObject{{"text", "7"}}}));
    EXPECT_EQ(reply.value("events").toArray(),
              (QJsonArray{QJsonArray{"beep"}, QJsonArray{"notification", "InvalidCharacterNotification"}}));
}
