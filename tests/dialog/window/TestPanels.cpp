// SPDX-License-Identifier: Apache-2.0
// Several panels in one dialog, and panels that fail while it is open.
#include "DialogFixture.h"

#include <dialog/window/PanelBanner.h>
#include <host/panels/PanelCallRecord.h>

#include <tests/support/PpdBuilder.h>

#include <QDir>
#include <QFile>
#include <QMessageBox>

namespace {

/// The dialog of a printer with the options of two bundles.
class PanelsTest : public DialogTest {
protected:
    void SetUp() override
    {
        DialogTest::SetUp();
        stateBefore = qgetenv("XDG_STATE_HOME");
        qputenv("XDG_STATE_HOME", sandbox.path(QStringLiteral("state")).toUtf8());
        link(QStringLiteral("KVLXDZOptions"), QStringLiteral(KV_BINARY_DIR "/bin"));
        link(QStringLiteral("Trouble"), QStringLiteral(KV_BINARY_DIR "/tests/bundles/trouble"));
    }
    void TearDown() override
    {
        window.reset();
        keeper.reset();
        qunsetenv("KVTEST_TROUBLE");
        qputenv("XDG_STATE_HOME", stateBefore);
    }

    /// Makes the bundle of another folder visible in the folder of this test.
    void link(const QString &name, const QString &from) const
    {
        const QString bundle = name + QStringLiteral(".bundle");
        ASSERT_TRUE(QDir().mkpath(panels()));
        ASSERT_TRUE(QFile::link(from + u'/' + bundle, panels() + u'/' + bundle));
    }
    QString panels() const { return sandbox.path(QStringLiteral("panels")); }

    void openBoth(const char *trouble = "")
    {
        qputenv("KVTEST_TROUBLE", trouble);
        const QString path = sandbox.path(QStringLiteral("both.ppd"));
        ASSERT_TRUE(test_support::PpdBuilder().allOptions().options({"KvTrouble", "Other"}).writeTo(path));
        auto ppd = host::PpdFile::open(path);
        ASSERT_TRUE(ppd) << ppd.error().message.toStdString();
        show(std::make_unique<host::PrinterSetup>(host::Destination(), std::move(ppd).value(),
                                                  host::SetupRequest(), host::PanelSource{panels(), {}}));
    }

    QStringList tabs() const
    {
        const auto *const pages = window->findChild<QTabWidget *>();
        QStringList titles;
        for (int i = 0; i < pages->count(); ++i)
            titles.append(pages->tabText(i).remove(u'&'));
        return titles;
    }

    QString message() const { return window->findChild<dialog::PanelBanner *>()->message(); }

    QByteArray sent(const char *keyword)
    {
        sender.ticket.reset();
        window->print();
        return sender.sentOption(keyword);
    }

    QByteArray stateBefore;
};

} // namespace

TEST_F(PanelsTest, EachPanelIsAPageAndItsOptionsAreInTheJob)
{
    openBoth();
    EXPECT_EQ(tabs().mid(0, 3), (QStringList{QStringLiteral("Cut Options"), QStringLiteral("Trouble"),
                                             QStringLiteral("Options")}));
    EXPECT_EQ(message(), QString());
    // The other bundle reports a full cut after every label.
    EXPECT_TRUE(stripInWords().contains(QStringLiteral("Full cut after every label.")));
    click(box("mMirrorPrintChkBx"));
    EXPECT_TRUE(stripInWords().contains(QStringLiteral("The labels are mirrored.")));
    EXPECT_EQ(sent("KvMirror"), QByteArray("ON"));
    EXPECT_EQ(sender.sentOption("KvTrouble"), QByteArray("ON"));
}

TEST_F(PanelsTest, APageThatComesToTheFrontKeepsTheChoicesOfTheOtherPanel)
{
    openBoth();
    click(box("mMirrorPrintChkBx"));
    chooseTab("Trouble");
    chooseTab("Cut Options");
    EXPECT_TRUE(box("mMirrorPrintChkBx")->isChecked());
    EXPECT_EQ(sent("KvMirror"), QByteArray("ON"));
}

TEST_F(PanelsTest, APanelThatFailsIsRemovedAndItsOptionsStay)
{
    openBoth();
    click(box("mMirrorPrintChkBx"));
    chooseTab("Trouble");
    qputenv("KVTEST_TROUBLE", "throw stripEffects");
    keeper->setup()->choose("Other", "ON");
    window->findChild<QTabWidget *>()->setCurrentIndex(0);
    QApplication::processEvents();
    QApplication::processEvents();
    EXPECT_FALSE(tabs().contains(QStringLiteral("Trouble")));
    EXPECT_TRUE(tabs().contains(QStringLiteral("Cut Options")));
    EXPECT_TRUE(message().contains(QStringLiteral("the sample error"))) << message().toStdString();
    EXPECT_EQ(keeper->setup()->claimedKeywords().contains(QStringLiteral("KvTrouble")), false);
    EXPECT_EQ(sent("Other"), QByteArray("ON"));
    EXPECT_EQ(sender.jobs.size(), 1U);
}

TEST_F(PanelsTest, APanelThatHasEndedTheProgramIsLoadedAgainOnRequest)
{
    const QString folder = sandbox.path(QStringLiteral("state/kvprint/panels"));
    ASSERT_TRUE(QDir().mkpath(folder));
    sandbox.write(QStringLiteral("state/kvprint/panels/before.call"),
                  "willShow\n" + panels().toUtf8() + "/Trouble.bundle");
    openBoth();
    EXPECT_FALSE(tabs().contains(QStringLiteral("Trouble")));
    EXPECT_TRUE(message().contains(QStringLiteral("\"willShow\""))) << message().toStdString();
    click(button("Load It Again"));
    QApplication::processEvents();
    EXPECT_TRUE(tabs().contains(QStringLiteral("Trouble")));
    EXPECT_EQ(message(), QString());
    EXPECT_TRUE(host::PanelCallRecord::interrupted().empty());
    EXPECT_EQ(sent("KvTrouble"), QByteArray("ON"));
}

TEST_F(PanelsTest, TheHelpOfAPanelIsShownBesideTheDialog)
{
    openBoth();
    EXPECT_EQ(button("Help"), nullptr);
    openBoth("help");
    chooseTab("Trouble");
    click(button("Help"));
    auto *const help = window->findChild<QMessageBox *>();
    ASSERT_TRUE(help);
    EXPECT_TRUE(help->isVisible());
    EXPECT_FALSE(help->isModal());
    EXPECT_EQ(help->text(), QStringLiteral("The sample help."));
    EXPECT_EQ(sent("KvTrouble"), QByteArray("ON"));
}

TEST_F(PanelsTest, AViewThatThePanelDeletesLeavesTheDialogAlive)
{
    openBoth("deletes view");
    chooseTab("Trouble");
    chooseTab("Cut Options");
    EXPECT_EQ(sent("KvTrouble"), QByteArray("ON"));
}

TEST_F(PanelsTest, AHugeViewDoesNotMakeTheDialogLargerThanTheScreen)
{
    openBoth("huge view");
    const QSize screen = window->screen()->availableSize();
    EXPECT_LE(window->minimumSizeHint().width(), 2 * screen.width());
    EXPECT_LE(window->minimumSizeHint().height(), 2 * screen.height());
    EXPECT_EQ(sent("KvTrouble"), QByteArray("ON"));
}
