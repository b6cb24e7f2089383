// SPDX-License-Identifier: Apache-2.0
// The driver's replies: opening, the panel protocol, the order of requests.
#include "DriverFixture.h"

#include <QFile>

using PanelDriverTest = test_support::PanelDriverTest;
using test_support::noEvents;
using test_support::PpdBuilder;

TEST_F(PanelDriverTest, OpensAPanel)
{
    EXPECT_EQ(open(), (QJsonObject{{"ok", true}, {"events", noEvents}, {"loaded", true}, {"panels", 1}}));
    EXPECT_EQ(open({{"type", "another type"}}),
              (QJsonObject{{"ok", true}, {"events", noEvents}, {"loaded", true}, {"panels", 0}}));
    EXPECT_TRUE(errorOf(ask("{'op':'view'}")).contains(QStringLiteral("nothing is open")));
}

TEST_F(PanelDriverTest, AFailedOpenLeavesNothingOpen)
{
    for (const QJsonObject &members : std::initializer_list<QJsonObject>{
             {{"ppd", "/nonexistent/x.ppd"}},
             {{"ppd", 7}},
             {{"marks", "KvMirror"}},
             {{"marks", QJsonArray{QJsonArray{"KvMirror"}}}},
             {{"marks", QJsonArray{QJsonArray{"KvMirror", 1}}}},
             {{"paper", "24mm"}},
             {{"paper", QJsonObject{{"name", "x"}}}},
             {{"paper", QJsonObject{{"height", 10}}}},
             {{"paper", QJsonObject{{"name", 1}, {"height", 10}}}},
             {{"paper", QJsonObject{{"name", "x"}, {"height", "tall"}}}},
             {{"paper", QJsonObject{{"name", "x"}, {"height", 1}, {"nameStatus", 1.5}}}},
             {{"ticket", 7}},
             {{"printSettings", "yes"}},
             {{"deviceURI", 7}},
             {{"systemVersion", QJsonArray{11, 0}}},
             {{"systemVersion", QJsonArray{"11", 0, 0}}},
             {{"keyWindowHeight", "500"}},
             {{"canResize", 1}},
             {{"language", QJsonValue()}},
             {{"markDefaults", 0}},
             {{"type", 1}}}) {
        ASSERT_EQ(open().value("ok"), true);
        EXPECT_FALSE(errorOf(open(members)).isEmpty());
        EXPECT_TRUE(errorOf(ask("{'op':'names'}")).contains(QStringLiteral("nothing is open")));
    }
}

TEST_F(PanelDriverTest, APpdThatCannotBeOpenedIsNamedWithLineAndReason)
{
    QFile file(m_ppd);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    QByteArray bytes = file.readAll();
    file.resize(0);
    file.seek(0);
    file.write("*PPD-Adobe: \"4.3\"\nnonsense\n");
    file.close();
    const QString error = errorOf(open());
    EXPECT_TRUE(error.contains(m_ppd)) << error.toStdString();
    EXPECT_TRUE(error.contains(QStringLiteral("2"))) << error.toStdString();
}

TEST_F(PanelDriverTest, EveryRequestIsRefusedWhileNothingIsOpen)
{
    for (const char *op :
         {"close",         "view",      "willShow",  "restore",    "save",      "shouldPrint",
          "supportedKeys", "summary",   "names",     "click",      "type",      "step",
          "choosePreset",  "paper",     "ppdChange", "mark",       "keyWindow", "trackingAreasUpdated",
          "state",         "localized", "picture",   "screenshot", "tapeInfo",  "formatter"})
        EXPECT_TRUE(errorOf(m_driver.handle({{"op", op}})).contains(QStringLiteral("nothing is open"))) << op;
    EXPECT_TRUE(errorOf(ask("{'op':'dance'}")).contains(QStringLiteral("dance")));
    EXPECT_TRUE(errorOf(ask("{}")).contains(QStringLiteral("op")));
    EXPECT_TRUE(errorOf(ask("{'op':7}")).contains(QStringLiteral("op")));
}

TEST_F(PanelDriverTest, BeforeTheViewIsLoadedOnlySomeRequestsAreInOrder)
{
    open();
    for (const char *op : {"willShow", "restore", "click", "type", "step", "choosePreset",
                           "trackingAreasUpdated", "state", "picture", "screenshot"})
        EXPECT_TRUE(errorOf(m_driver.handle({{"op", op}})).contains(QStringLiteral("view is not loaded")))
            << op;
    for (const char *request :
         {"{'op':'supportedKeys'}", "{'op':'save'}", "{'op':'shouldPrint'}", "{'op':'summary'}",
          "{'op':'names'}", "{'op':'mark','keyword':'KvMirror','choice':'ON'}",
          "{'op':'ppdChange','keyword':'KvMirror','choice':'ON'}", "{'op':'paper'}",
          "{'op':'keyWindow','height':null}", "{'op':'localized','key':'RS_HalfCut'}", "{'op':'tapeInfo'}",
          "{'op':'formatter','edits':[]}", "{'op':'view'}", "{'op':'close'}"})
        EXPECT_EQ(ask(request).value("ok"), true) << request;
}

TEST_F(PanelDriverTest, TellsThePanelsNames)
{
    open({{"language", "de"}});
    const QJsonObject names = ask("{'op':'names'}");
    EXPECT_EQ(names.value("panelKind"), QStringLiteral("jp.co.vendor.printer.cups.pde.OptionPDEKind"));
    EXPECT_EQ(names.value("shouldHide"), true);
    EXPECT_EQ(names.value("shouldShowHelp"), false);
    const QString german = names.value("panelName").toString();
    open();
    EXPECT_NE(ask("{'op':'names'}").value("panelName").toString(), german);
}

TEST_F(PanelDriverTest, MarksComeInTheOrderGiven)
{
    open({{"markDefaults", false},
          {"marks", QJsonArray{QJsonArray{"KvMirror", "ON"}, QJsonArray{"KvMirror", "OFF"},
                               QJsonArray{"Unknown", "x"}}}});
    ask("{'op':'view'}");
    const QJsonObject marked = state().value("marked").toObject();
    EXPECT_EQ(marked.size(), 9);
    EXPECT_EQ(marked.value("KvMirror"), QStringLiteral("OFF"));
    EXPECT_EQ(marked.value("KvHalfCut"), QJsonValue());
}

TEST_F(PanelDriverTest, WithoutPrintSettingsNothingIsRecordedThoughMarked)
{
    open({{"printSettings", false}});
    ask("{'op':'view'}");
    ask("{'op':'willShow'}");
    ask("{'op':'click','control':'mHalfCutChkBx'}");
    ask("{'op':'ppdChange','keyword':'KvMirror','choice':'ON'}");
    const QJsonObject now = state();
    EXPECT_EQ(now.value("settings"), QJsonObject());
    EXPECT_EQ(now.value("marked").toObject().value("KvHalfCut"), QStringLiteral("ON"));
    EXPECT_EQ(now.value("marked").toObject().value("KvMirror"), QStringLiteral("ON"));
}

TEST_F(PanelDriverTest, TheViewsSizeReachesTheDialog)
{
    EXPECT_EQ(open({{"keyWindowHeight", 1000}}).value("ok"), true);
    EXPECT_EQ(ask("{'op':'view'}").value("events"), (QJsonArray{QJsonArray{"panelViewDidResize"}}));
    open({{"keyWindowHeight", 100}});
    EXPECT_EQ(ask("{'op':'view'}").value("events"), noEvents);
    EXPECT_EQ(ask("{'op':'trackingAreasUpdated'}").value("events"),
              (QJsonArray{QJsonArray{"panelViewDidResize"}}));
    EXPECT_EQ(ask("{'op':'trackingAreasUpdated'}").value("events"), noEvents);
    open({{"keyWindowHeight", 1000}, {"canResize", false}});
    EXPECT_EQ(ask("{'op':'view'}").value("events"), noEvents);
    open();
    ask("{'op':'keyWindow','height':1000}");
    EXPECT_EQ(ask("{'op':'view'}").value("events"), (QJsonArray{QJsonArray{"panelViewDidResize"}}));
}

TEST_F(PanelDriverTest, TheStateHasEverythingThatIsPromised)
{
    show();
    const QJsonObject now = state();
    EXPECT_EQ(now.keys().join(u' '),
              QStringLiteral("controls flags marked popUp preview selections settings tapeState view"));
    EXPECT_EQ(now.value("controls").toObject().size(), 12);
    EXPECT_EQ(now.value("selections").toObject().size(), 10);
    EXPECT_EQ(now.value("flags").toObject().size(), 7);
    for (const char *member : {"hidden", "enabled", "state", "title", "x", "y", "width", "height"})
        EXPECT_TRUE(control("mHalfCutChkBx").contains(QLatin1String(member))) << member;
    EXPECT_EQ(control("mCutEveryStr").value("textColor").toString().isEmpty(), false);
    EXPECT_EQ(now.value("preview").toObject().value("picture"), QStringLiteral("AHCMOffOffOffOff"));
}

TEST_F(PanelDriverTest, ClosingEndsEverything)
{
    show();
    EXPECT_EQ(ask("{'op':'close'}"), (QJsonObject{{"ok", true}, {"events", noEvents}}));
    EXPECT_TRUE(errorOf(ask("{'op':'state'}")).contains(QStringLiteral("nothing is open")));
    show();
    show();
}
