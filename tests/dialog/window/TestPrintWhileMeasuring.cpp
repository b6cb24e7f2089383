// SPDX-License-Identifier: Apache-2.0
// Print is pressed while the blank at the labels' ends is still being measured.
#include "DialogFixture.h"

#include <dialog/job/VirtualSender.h>
#include <tests/support/Waiting.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using test_support::waitUntil;

namespace {

/// The option's value in job.json.
QString choice(const QJsonObject &job, const char *keyword)
{
    const QJsonArray options = job[QStringLiteral("options")].toArray();
    for (const auto &option : options) {
        if (option[QStringLiteral("keyword")] == QLatin1String(keyword))
            return option[QStringLiteral("choice")].toString();
    }
    return {};
}

/// Clicks arrive without a turn of the event loop, and nothing is measured or checked before one.
class PrintWhileMeasuringTest : public DialogTest {
protected:
    void openWith(dialog::JobSender &jobSender)
    {
        window.reset();
        keeper = std::make_unique<host::SetupKeeper>(
            makeSetup(QStringLiteral(KV_BINARY_DIR "/bin/KVLXDZOptions.bundle")));
        auto document = host::LabelDocument::open(documentPath);
        ASSERT_TRUE(document) << document.error().message.toStdString();
        window = std::make_unique<dialog::PrintDialog>(std::move(document).value(), *keeper, jobSender,
                                                       dialog::RequestedSettings());
        window->show();
    }

    void clickAtOnce(QAbstractButton *target) const
    {
        ASSERT_TRUE(target && target->isEnabled());
        QTest::mouseClick(target, Qt::LeftButton, {}, {8, target->height() / 2});
    }

    /// Switches the removing of blank on, presses Print and then mirrors the labels, all at once.
    void printAndGoOnWorking() const
    {
        clickAtOnce(box("mRemoveBlkSpaceChkBx"));
        clickAtOnce(button("Print"));
        EXPECT_TRUE(window->isVisible());
        EXPECT_TRUE(window->isSending());
        EXPECT_TRUE(sender.jobs.empty());
        clickAtOnce(box("mMirrorPrintChkBx"));
    }
};

} // namespace

TEST_F(PrintWhileMeasuringTest, TheVirtualPrinterGetsTheJobThatIsShownWithAllFigures)
{
    const QString folder = sandbox.path(QStringLiteral("printed"));
    dialog::VirtualSender virtualPrinter(folder);
    openWith(virtualPrinter);
    printAndGoOnWorking();
    EXPECT_FALSE(QFile::exists(folder));
    ASSERT_TRUE(waitUntil([this] { return !window->isVisible(); }));
    EXPECT_EQ(window->result(), QDialog::Accepted) << window->error().value_or(QString()).toStdString();
    QFile file(folder + QStringLiteral("/job.json"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QJsonObject job = QJsonDocument::fromJson(file.readAll()).object();
    EXPECT_EQ(choice(job, "KvRemoveBlkSpace"), QStringLiteral("ON"));
    EXPECT_EQ(choice(job, "KvMirror"), QStringLiteral("ON"));
    const QJsonValue tape = job[QStringLiteral("plan")][QStringLiteral("tapeUsed")];
    EXPECT_NEAR(tape.toDouble(), 62.0, 1.0);
    EXPECT_TRUE(stripInWords().contains(QStringLiteral("Tape: 62."))) << stripInWords().toStdString();
    EXPECT_TRUE(stripInWords().contains(QStringLiteral("mirrored"))) << stripInWords().toStdString();
}

TEST_F(PrintWhileMeasuringTest, AQueueGetsTheJobThatIsShownAndWaitsForNoFigures)
{
    const std::vector<QByteArray> pages(5'000, "[0 0 170 68]");
    documentPath = sandbox.write(QStringLiteral("long.pdf"), pdfWithPageBoxes(pages));
    openWith(sender);
    printAndGoOnWorking();
    ASSERT_TRUE(waitUntil([this] { return !window->isVisible(); }));
    ASSERT_EQ(sender.jobs.size(), 1U);
    EXPECT_EQ(sender.sentOption("KvRemoveBlkSpace"), "ON");
    EXPECT_EQ(sender.sentOption("KvMirror"), "ON");
    // Some may be measured between two pieces of the check, but the job does not wait for them.
    EXPECT_LT(sender.measuredCount, std::ssize(pages) / 2);
    EXPECT_TRUE(sender.jobs.front().contains(QStringLiteral("measuring")))
        << sender.jobs.front().toStdString();
}
