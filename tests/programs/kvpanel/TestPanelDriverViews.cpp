// SPDX-License-Identifier: Apache-2.0
// The driver with a layout in which a control is missing, and with a view that is deleted elsewhere.
#include "DriverFixture.h"

#include <platform/Log.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QWidget>

#include <algorithm>

using test_support::PanelDriverTest;
using test_support::PpdBuilder;

namespace {

constexpr const char *controlNames[] = {
    "mCutEveryChkBx",   "mCutAndEndChkBx",   "mMirrorPrintChkBx",    "mAutoCutChkBx",   "mHalfCutChkBx",
    "mChainPrintChkBx", "mSpecialTapeChkBx", "mRemoveBlkSpaceChkBx", "mCutMarkChkBx",   "mCutEveryTxBx",
    "mCutEveryStpr",    "mCutEveryStr",      "mOptionPopUpButton",   "mOptionDummyView"};

/// A driver with a bundle of its own, linked to the real one but for the layout.
class PanelDriverViewsTest : public PanelDriverTest {
protected:
    void SetUp() override
    {
        PanelDriverTest::SetUp();
        const QDir from(QStringLiteral(KV_BINARY_DIR "/bin/KVLXDZOptions.bundle"));
        ASSERT_TRUE(QDir().mkpath(own(QStringLiteral("Resources"))));
        ASSERT_TRUE(QFile::link(from.filePath(QStringLiteral("KVLXDZOptions.so")),
                                own(QStringLiteral("KVLXDZOptions.so"))));
        const QDir resources(from.filePath(QStringLiteral("Resources")));
        for (const QString &name : resources.entryList(QDir::Files))
            ASSERT_TRUE(QFile::link(resources.filePath(name), own(QStringLiteral("Resources/") + name)));
        platform::setLogSink([](const QString &) {});
    }
    void TearDown() override { platform::setLogSink({}); }

    QString own(const QString &name) const
    {
        return m_folder.filePath(QStringLiteral("KVLXDZOptions.bundle/") + name);
    }

    void renameInLayout(const char *name) const
    {
        QFile real(QStringLiteral(KV_BINARY_DIR "/bin/KVLXDZOptions.bundle/Resources/OptionPDE.ui"));
        ASSERT_TRUE(real.open(QIODevice::ReadOnly));
        const QByteArray layout =
            real.readAll().replace(QByteArray("name=\"") + name + '"', "name=\"renamed\"");
        const QString path = own(QStringLiteral("Resources/OptionPDE.ui"));
        QFile::remove(path);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(layout);
    }

    static QJsonObject askOf(PanelDriver &driver, const char *json)
    {
        return driver.handle(QJsonDocument::fromJson(QByteArray(json).replace('\'', '"')).object());
    }

    /// What is in order without a view works, and the rest answers that there is none.
    void expectWorksWithoutView(PanelDriver &driver)
    {
        for (const char *request :
             {"{'op':'save'}", "{'op':'supportedKeys'}",
              "{'op':'paper','paper':{'name':'HS11mm','height':90}}",
              "{'op':'paper','paper':{'name':'24mm','height':170}}", "{'op':'shouldPrint'}",
              "{'op':'ppdChange','keyword':'KvMirror','choice':'ON'}", "{'op':'summary'}", "{'op':'names'}"})
            EXPECT_EQ(askOf(driver, request).value("ok"), true) << request;
        for (const char *request :
             {"{'op':'restore'}", "{'op':'willShow'}", "{'op':'state'}",
              "{'op':'click','control':'mHalfCutChkBx','force':true}", "{'op':'type','text':'7'}",
              "{'op':'step','value':7}", "{'op':'choosePreset','tag':13}", "{'op':'trackingAreasUpdated'}"})
            EXPECT_TRUE(errorOf(askOf(driver, request)).contains(QStringLiteral("view is not loaded")))
                << request;
    }
};

} // namespace

TEST_F(PanelDriverViewsTest, ALayoutThatLacksAControlIsNoView)
{
    PanelDriver driver(own(QString()));
    for (const char *name : controlNames) {
        SCOPED_TRACE(name);
        renameInLayout(name);
        ASSERT_EQ(driver.handle({{"op", "open"}, {"ppd", m_ppd}}).value("panels"), 1);
        EXPECT_EQ(askOf(driver, "{'op':'view'}").value("view"), false);
        expectWorksWithoutView(driver);
        EXPECT_EQ(askOf(driver, "{'op':'view'}").value("view"), false);
        EXPECT_EQ(askOf(driver, "{'op':'close'}").value("ok"), true);
    }
}

TEST_F(PanelDriverViewsTest, AViewThatSomebodyElseDeletesIsNotLoadedAnyMore)
{
    show();
    ask("{'op':'click','control':'mHalfCutChkBx'}");
    // The windows of the view's own pop-ups are deleted with it.
    const QWidgetList windows = QApplication::topLevelWidgets();
    delete *std::ranges::find(windows, QStringLiteral("kPDEView"), &QWidget::objectName);
    expectWorksWithoutView(m_driver);
    EXPECT_EQ(ask("{'op':'view'}").value("view"), true);
    EXPECT_EQ(control("mHalfCutChkBx").value("state"), 1);
    EXPECT_EQ(ask("{'op':'click','control':'mHalfCutChkBx'}").value("events"),
              (QJsonArray{QJsonArray{"willChange", "KvHalfCut", "OFF"}}));
}
