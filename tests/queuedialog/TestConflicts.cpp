// SPDX-License-Identifier: Apache-2.0
// Settings that exclude each other, from the moment they are made until they are printed all the same.
#include "FullPpd.h"
#include "QueueDialogFixture.h"

#include <QApplication>
#include <QTimer>
#include <QWindow>

namespace {

class ConflictsTest : public QueueDialogTest {
protected:
    static void SetUpTestSuite()
    {
        QueueDialogTest::SetUpTestSuite();
        cupsd->addQueue(QStringLiteral("full"), fullPpd());
    }

    /// Presses Print and answers the question if one appears. Returns whether one appeared.
    bool printAndAnswer(const std::function<void(QWidget *)> &answer) const
    {
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, window.get(), [&look, answer] {
            QWidget *const question = QApplication::activeModalWidget();
            if (!question || !question->windowHandle()->isExposed())
                return;
            look.stop();
            answer(question);
        });
        look.start(20);
        Hands::click(button(QStringLiteral("Print")));
        return !look.isActive();
    }
    bool printAndThinkAgain() const
    {
        return printAndAnswer([](QWidget *question) { Hands::press(question, Qt::Key_Escape); });
    }
    bool printAnyway() const
    {
        return printAndAnswer(
            [](QWidget *question) { Hands::click(button(question, QStringLiteral("Print anyway"))); });
    }

    /// What the filter was given when the dialog has closed.
    test_support::RecordedDocument closedAndPrinted() const
    {
        EXPECT_TRUE(waitUntil([this] { return !window->isVisible(); })) << told().toStdString();
        EXPECT_TRUE(waitUntil([] { return waitingJobs().isEmpty(); }));
        return cupsd->documents().back();
    }
};

/// The constraint, as PPDs say it for both of its sides.
QByteArray excludes(const QByteArray &one, const QByteArray &other)
{
    return "*UIConstraints: *" + one + " *" + other + "\n*UIConstraints: *" + other + " *" + one + '\n';
}

} // namespace

TEST_F(ConflictsTest, AreToldAndRemediedWithoutAnotherPaper)
{
    openAndSettle(QStringLiteral("full"));
    choosePaper(QStringLiteral("Labels 52 mm x 75 mm"));
    Hands::click(panelBox("mMirrorPrintChkBx"));
    EXPECT_EQ(told(), QString());
    chooseTab(QStringLiteral("Options"));
    Hands::pick(control<QComboBox>("Darkness"), QStringLiteral("Dark"));
    EXPECT_EQ(told(), QString());
    Hands::click(control<QCheckBox>("Turbo"));
    const QString sentence = told();
    EXPECT_TRUE(sentence.contains(QStringLiteral("Darkness")) && sentence.contains(QStringLiteral("Turbo")))
        << sentence.toStdString();
    // The sentence stands at the controls too.
    EXPECT_TRUE(control<QCheckBox>("Turbo")->accessibleDescription().contains(QStringLiteral("Darkness")));
    EXPECT_TRUE(control<QComboBox>("Darkness")->accessibleDescription().contains(QStringLiteral("Turbo")));

    // Print asks; Escape goes back to the dialog with everything as it was.
    EXPECT_TRUE(printAndThinkAgain());
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(window->isSending());
    EXPECT_EQ(told(), sentence);

    // The remedy's button says what it does.
    QPushButton *remedy = nullptr;
    for (QPushButton *const each : window->findChildren<QPushButton *>()) {
        if (each->isVisible() && each->text().startsWith(QStringLiteral("Set ")))
            remedy = each;
    }
    Hands::click(remedy);
    EXPECT_EQ(told(), QString());
    EXPECT_EQ(papers()->currentItem()->text(), QStringLiteral("Labels 52 mm x 75 mm"));

    // A conflict between the panel and the options.
    Hands::pick(control<QComboBox>("Darkness"), QStringLiteral("Light"));
    EXPECT_TRUE(told().contains(QStringLiteral("Mirror"))) << told().toStdString();
    EXPECT_TRUE(printAnyway());
    const auto job = closedAndPrinted();
    EXPECT_EQ(job.option("Darkness"), "Light");
    EXPECT_EQ(job.option("KvMirror"), "ON");
    EXPECT_EQ(job.option("PageSize"), "DC52x75");
}

TEST_F(ConflictsTest, ThatThePanelEndsWhenItHandsItsSettingsOverAreNotAskedAbout)
{
    cupsd->addQueue(QStringLiteral("half"), fullPpd() + excludes("KvHalfCut ON", "Turbo True"));
    openAndSettle(QStringLiteral("half"));
    ASSERT_TRUE(panelBox("mHalfCutChkBx")->isChecked());
    // Special tape is not cut half: the box stays as it is, and the job has it off.
    Hands::click(panelBox("mSpecialTapeChkBx"));
    chooseTab(QStringLiteral("Options"));
    Hands::click(control<QCheckBox>("Turbo"));
    EXPECT_FALSE(printAndThinkAgain());
    const auto job = closedAndPrinted();
    EXPECT_EQ(job.option("KvHalfCut"), "OFF");
    EXPECT_EQ(job.option("Turbo"), "true");
}

TEST_F(ConflictsTest, ThatThePanelMakesWhenItHandsItsSettingsOverAreAskedAbout)
{
    cupsd->addQueue(QStringLiteral("whole"), fullPpd() + excludes("KvHalfCut OFF", "Turbo True"));
    openAndSettle(QStringLiteral("whole"));
    Hands::click(panelBox("mSpecialTapeChkBx"));
    chooseTab(QStringLiteral("Options"));
    Hands::click(control<QCheckBox>("Turbo"));
    // Half cut would be saved as off, so the conflict is shown before Print is pressed.
    const QString conflict = QStringLiteral("\"Half Cut: Off\" and \"Turbo: Fast\" conflict.");
    EXPECT_EQ(told(), conflict);
    EXPECT_TRUE(printAndThinkAgain());
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(waitingJobs(), QString());
    EXPECT_EQ(told(), conflict);
    EXPECT_TRUE(printAnyway());
    EXPECT_EQ(closedAndPrinted().option("KvHalfCut"), "OFF");
}
