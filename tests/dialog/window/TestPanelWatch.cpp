// SPDX-License-Identifier: Apache-2.0
// The dialog queries its panel again after every change and does not print what the panel rejects.
#include "DialogFixture.h"

#include <dialog/widgets/Banner.h>
#include <dialog/window/PanelWatch.h>
#include <tests/support/Waiting.h>

#include <QEventLoop>
#include <QSignalSpy>
#include <QTimer>

namespace {

class PanelWatchTest : public DialogTest {
protected:
    void openOneBox()
    {
        open(QStringLiteral(KV_BINARY_DIR "/tests/bundles/good/KVLXDZOptions.bundle"));
        // What follows from the opening itself.
        awaitStrip();
        test_support::turnEventLoop();
    }

    QWidget *panelView() const { return keeper->setup()->panels().front()->view(); }
    int askedCount() const { return panelView()->property("askedForJobs").toInt(); }

    /// Whether one of the dialog's banners shows exactly this message.
    bool isTold(const QString &message) const
    {
        const auto banners = window->findChildren<dialog::Banner *>();
        return std::ranges::any_of(banners, [&](const dialog::Banner *banner) {
            return banner->isVisible() && banner->message() == message;
        });
    }
};

/// Lets the event loop wait for events until the condition holds; false when it never does. The loop only
/// waits between two checks.
bool waitIdlyUntil(const std::function<bool()> &holds)
{
    QEventLoop loop;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
        if (holds())
            loop.quit();
    });
    look.start(1);
    QTimer::singleShot(test_support::failureTimeout, &loop, [&] { loop.exit(1); });
    return loop.exec() == 0;
}

} // namespace

TEST_F(PanelWatchTest, AsksBeforeTheEventLoopWaitsThoughNoEventReachesTheView)
{
    QWidget view;
    dialog::PanelWatch watch(nullptr);
    const QSignalSpy touched(&watch, &dialog::PanelWatch::touched);
    EXPECT_TRUE(waitIdlyUntil([turns = 0]() mutable { return ++turns == 3; }));
    EXPECT_EQ(touched.count(), 0) << "there is no view to watch";
    watch.follow({&view});
    EXPECT_TRUE(waitIdlyUntil([&] { return touched.count() > 0; }));
    watch.follow({});
    const auto before = touched.count();
    EXPECT_TRUE(waitIdlyUntil([turns = 0]() mutable { return ++turns == 3; }));
    EXPECT_EQ(touched.count(), before);
}

TEST_F(PanelWatchTest, AChangeOutOfSightIsSeenOnTheStrip)
{
    open();
    chooseTab("Page preview");
    awaitStrip();
    test_support::turnEventLoop();
    ASSERT_FALSE(box("mMirrorPrintChkBx")->isVisible());
    // A timer of the panel may do this: hidden widgets are not painted, and the panel reports nothing.
    box("mMirrorPrintChkBx")->setChecked(true);
    EXPECT_FALSE(stripInWords().contains(QStringLiteral("mirrored"))) << stripInWords().toStdString();
    EXPECT_TRUE(waitIdlyUntil([this] { return stripInWords().contains(QStringLiteral("mirrored")); }));
}

TEST_F(PanelWatchTest, APanelThatRefusesTheJobIsToldAndAskedAgainByTheNextPrint)
{
    const QString message = QStringLiteral("\"One box\" does not allow printing with these settings.");
    openOneBox();
    EXPECT_EQ(window->ticket()->panel.error, std::nullopt);
    panelView()->setProperty("refusesJobs", true);
    for (int time = 0; time < 2; ++time) {
        const int askedBefore = askedCount();
        click(button("Print"));
        EXPECT_GT(askedCount(), askedBefore);
        EXPECT_TRUE(sender.jobs.empty());
        EXPECT_TRUE(window->isVisible());
        EXPECT_FALSE(window->isSending());
        EXPECT_TRUE(button("Print")->isEnabled());
        EXPECT_EQ(window->error(), message);
        EXPECT_TRUE(isTold(message));
    }
    panelView()->setProperty("refusesJobs", false);
    click(button("Print"));
    EXPECT_EQ(sender.jobs.size(), 1U);
    EXPECT_FALSE(window->error());
    EXPECT_EQ(window->result(), QDialog::Accepted);
}
