// SPDX-License-Identifier: Apache-2.0
// The dialog on an X server: mouse and keys come from there, through the whole of the window system.
#include "QueueDialogFixture.h"

#include <tests/samples/SamplePpd.h>

#include <QApplication>
#include <QProcess>
#include <QProcessEnvironment>
#include <QSpinBox>

namespace {

class RealEventsTest : public QueueDialogTest {
protected:
    static void SetUpTestSuite()
    {
        QueueDialogTest::SetUpTestSuite();
        cupsd->addQueue(QStringLiteral("tape"), tapePpd());
        cupsd->addQueue(QStringLiteral("beside"), tapePpd());
    }

    /// Has the X server act as if the mouse or keys were used, while the window goes on.
    static QString xdotool(const QStringList &arguments)
    {
        QString out;
        meanwhile([&] {
            QProcess process;
            process.start(QStringLiteral("xdotool"), arguments);
            EXPECT_TRUE(process.waitForFinished(test_support::failureMilliseconds));
            EXPECT_EQ(process.exitCode(), 0) << arguments.join(u' ').toStdString();
            out = QString::fromUtf8(process.readAllStandardOutput()).trimmed();
        });
        return out;
    }

    static void clickAt(const QPoint &global)
    {
        xdotool({QStringLiteral("mousemove"), QString::number(global.x()), QString::number(global.y()),
                 QStringLiteral("click"), QStringLiteral("1")});
    }
    static void click(const QWidget *target) { clickAt(target->mapToGlobal(target->rect().center())); }
    static void clickSign(const QWidget *box) { clickAt(box->mapToGlobal(QPoint(8, box->height() / 2))); }
    static void key(const QStringList &keys) { xdotool(QStringList{QStringLiteral("key")} + keys); }

    void takeFocus() const
    {
        // There is no window manager to do it.
        xdotool({QStringLiteral("windowfocus"), QString::number(window->winId())});
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get(), test_support::failureMilliseconds));
    }
};

} // namespace

TEST_F(RealEventsTest, AJobIsSetUpAndPrintedWithMouseAndKeys)
{
    openAndSettle(QStringLiteral("tape"));
    takeFocus();
    clickSign(panelBox("mMirrorPrintChkBx"));
    EXPECT_TRUE(waitUntil([this] { return panelBox("mMirrorPrintChkBx")->isChecked(); }));
    QListWidget *const list = papers();
    QListWidgetItem *const paper =
        list->findItems(QStringLiteral("Labels 52 mm x 75 mm"), Qt::MatchExactly).value(0);
    ASSERT_TRUE(paper);
    clickAt(list->viewport()->mapToGlobal(list->visualItemRect(paper).center()));
    EXPECT_TRUE(waitUntil([&] { return list->currentItem() == paper; }));
    click(field<QSpinBox>(QStringLiteral("Copies")));
    key({QStringLiteral("ctrl+a"), QStringLiteral("3")});
    EXPECT_TRUE(waitUntil([this] { return field<QSpinBox>(QStringLiteral("Copies"))->value() == 3; }));

    // Another queue from the list's pop-up, and back by the keyboard.
    click(destinations());
    EXPECT_TRUE(waitUntil([] { return QApplication::activePopupWidget() != nullptr; }));
    key({QStringLiteral("Home"), QStringLiteral("Return")});
    EXPECT_TRUE(waitUntil([this] { return session->chosen()->queue == QStringLiteral("beside"); }));
    EXPECT_TRUE(waitUntil([this] { return isSettled(); }));
    EXPECT_FALSE(panelBox("mMirrorPrintChkBx")->isChecked());
    key({QStringLiteral("Down")});
    EXPECT_TRUE(waitUntil([this] { return session->chosen()->queue == QStringLiteral("tape"); }));
    EXPECT_TRUE(waitUntil([this] { return isSettled(); }));
    EXPECT_TRUE(panelBox("mMirrorPrintChkBx")->isChecked());

    const std::size_t before = cupsd->documents().size();
    click(button(QStringLiteral("Print")));
    EXPECT_TRUE(waitUntil([this] { return !window->isVisible(); })) << told().toStdString();
    const auto job = cupsd->waitForDocuments(before + 1).back();
    EXPECT_EQ(job.option("KvMirror"), "ON");
    EXPECT_EQ(job.option("PageSize"), "DC52x75");
    EXPECT_EQ(job.copies, "3");
}

TEST_F(RealEventsTest, TheProgramPrintsWithOneKeyAndFollowsTheJob)
{
    // The printer is known from last time, so that Print can be pressed as soon as the window is there.
    fillCache(QStringLiteral("tape"));
    const std::size_t before = cupsd->documents().size();
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    program.setProcessEnvironment(environment);
    program.start(
        QStringLiteral(KV_BINARY_DIR "/bin/kvprint"),
        {QStringLiteral("-h"), cupsd->address(), QStringLiteral("-d"), QStringLiteral("tape"), documentPath});
    ASSERT_TRUE(program.waitForStarted());
    const QString id =
        xdotool({QStringLiteral("search"), QStringLiteral("--sync"), QStringLiteral("--onlyvisible"),
                 QStringLiteral("--name"), QStringLiteral("^Print labels")})
            .section(u'\n', 0, 0);
    ASSERT_FALSE(id.isEmpty());
    xdotool({QStringLiteral("windowfocus"), QStringLiteral("--sync"), id});
    key({QStringLiteral("Return")});
    EXPECT_TRUE(waitUntil([&] { return program.state() == QProcess::NotRunning; }));
    EXPECT_EQ(program.exitCode(), 0) << program.readAllStandardError().toStdString();
    EXPECT_TRUE(program.readAllStandardOutput().startsWith("request id is tape-"));
    EXPECT_EQ(cupsd->documents().size(), before + 1);
}
