// SPDX-License-Identifier: Apache-2.0
// The choice of the printer, and how the chosen one is.
#include "QueueDialogFixture.h"

#include <dialog/job/PasswordDialog.h>
#include <tests/samples/OptionsPpd.h>
#include <tests/samples/SamplePpd.h>
#include <tests/servers/FaultyServer.h>

#include <QApplication>
#include <QLineEdit>

#include <cups/ipp.h>

namespace {

class DestinationsTest : public QueueDialogTest {
protected:
    static void SetUpTestSuite()
    {
        QueueDialogTest::SetUpTestSuite();
        cupsd->addQueue(QStringLiteral("tape"), tapePpd(),
                        {QStringLiteral("-D"), QStringLiteral("On my desk")});
        cupsd->addQueue(QStringLiteral("other"), optionsPpd());
        cupsd->addRawQueue(QStringLiteral("raw"));
        cupsd->addClass(QStringLiteral("all"), {QStringLiteral("tape")});
        cupsd->run(QStringLiteral("lpadmin"), {QStringLiteral("-d"), QStringLiteral("other")});
    }

    bool isChosen(const QString &name)
    {
        return waitUntil(
            [&] { return session->chosen() && session->chosen()->name() == name && isSettled(); });
    }

    std::vector<dialog::PasswordDialog *> passwordDialogs() const
    {
        std::vector<dialog::PasswordDialog *> shown;
        for (QWidget *const each : QApplication::topLevelWidgets()) {
            if (auto *const question = qobject_cast<dialog::PasswordDialog *>(each))
                if (question->isVisible())
                    shown.push_back(question);
        }
        return shown;
    }

    dialog::PasswordDialog *passwordDialog() const
    {
        EXPECT_TRUE(waitUntil([this] { return !passwordDialogs().empty(); }));
        const auto all = passwordDialogs();
        EXPECT_EQ(all.size(), 1U);
        return all.empty() ? nullptr : all.front();
    }

    static void answer(dialog::PasswordDialog *question, const QString &password)
    {
        ASSERT_TRUE(question);
        ASSERT_TRUE(QTest::qWaitForWindowActive(question, test_support::failureMilliseconds));
        const auto fields = question->findChildren<QLineEdit *>();
        ASSERT_EQ(fields.size(), 2);
        Hands::typeInto(fields[0], QStringLiteral("ann"));
        Hands::typeInto(fields[1], password);
        Hands::press(question, Qt::Key_Return);
    }
};

} // namespace

TEST_F(DestinationsTest, TheDefaultQueueIsChosenAndOthersByMouseAndKeys)
{
    open(std::nullopt);
    ASSERT_TRUE(isChosen(QStringLiteral("other")));
    EXPECT_EQ(destinations()->currentText(), QStringLiteral("other"));
    EXPECT_FALSE(tabs().contains(QStringLiteral("Cut Options")));
    Hands::pick(destinations(), QStringLiteral("tape – On my desk"));
    ASSERT_TRUE(isChosen(QStringLiteral("tape")));
    QApplication::processEvents();
    EXPECT_EQ(tabs().first(), QStringLiteral("Cut Options"));
    destinations()->setFocus();
    Hands::press(window.get(), Qt::Key_Up);
    ASSERT_TRUE(isChosen(QStringLiteral("raw")));
    QApplication::processEvents();
    EXPECT_FALSE(papers());
    Hands::press(window.get(), Qt::Key_Down);
    ASSERT_TRUE(isChosen(QStringLiteral("tape")));
    EXPECT_EQ(printed().option("PageSize"), "W24H60");
}

TEST_F(DestinationsTest, TheAskedForQueueIsChosenThoughItArrivesLast)
{
    fillCache(QStringLiteral("tape"));
    cupsd->addQueue(QStringLiteral("zlate"), tapePpd());
    open(QStringLiteral("zlate"));
    EXPECT_EQ(destinations()->currentText(), QStringLiteral("zlate"));
    ASSERT_TRUE(isChosen(QStringLiteral("zlate")));
    EXPECT_EQ(destinations()->currentText(), QStringLiteral("zlate"));
    close();
    cupsd->removeQueue(QStringLiteral("zlate"));
}

TEST_F(DestinationsTest, AClassTakesTheJob)
{
    openAndSettle(QStringLiteral("all"));
    print();
    EXPECT_TRUE(waitUntil([] { return !cupsd->documents().empty(); }));
}

TEST_F(DestinationsTest, AnInstanceBringsItsOptions)
{
    cupsd->run(QStringLiteral("lpoptions"),
               {QStringLiteral("-p"), QStringLiteral("tape/long"), QStringLiteral("-o"),
                QStringLiteral("KvMirror=ON"), QStringLiteral("-o"), QStringLiteral("PageSize=DC52x75")});
    openAndSettle(QStringLiteral("tape/long"));
    EXPECT_EQ(destinations()->currentText(), QStringLiteral("tape/long – On my desk"));
    EXPECT_TRUE(panelBox("mMirrorPrintChkBx")->isChecked());
    EXPECT_EQ(papers()->currentItem()->text(), QStringLiteral("Labels 52 mm x 75 mm"));
    const auto job = printed();
    EXPECT_EQ(job.option("KvMirror"), "ON");
    EXPECT_EQ(job.option("PageSize"), "DC52x75");
}

TEST_F(DestinationsTest, QueuesWithoutCutOptionsHaveNoPageForThemAndPrint)
{
    openAndSettle(QStringLiteral("raw"));
    EXPECT_FALSE(tabs().contains(QStringLiteral("Cut Options")));
    EXPECT_FALSE(tabs().contains(QStringLiteral("Options")));
    EXPECT_EQ(told(), QString());
    print();
    openAndSettle(QStringLiteral("other"));
    EXPECT_FALSE(tabs().contains(QStringLiteral("Cut Options")));
    EXPECT_EQ(told(), QString());
    EXPECT_EQ(printed().option("PageSize"), "Small");
}

TEST_F(DestinationsTest, TheStateIsKeptCurrent)
{
    openAndSettle(QStringLiteral("tape"));
    EXPECT_EQ(state(), QStringLiteral("Ready."));
    meanwhile([] { cupsd->pause(QStringLiteral("tape"), QStringLiteral("Changing the roll")); });
    EXPECT_TRUE(waitUntil([this] { return state().contains(QStringLiteral("paused")); }));
    EXPECT_TRUE(state().contains(QStringLiteral("Changing the roll"))) << state().toStdString();
    meanwhile([] { cupsd->resume(QStringLiteral("tape")); });
    EXPECT_TRUE(waitUntil([this] { return state() == QStringLiteral("Ready."); }));
    cupsd->setMediaEmpty(true);
    meanwhile([this] {
        cupsd->run(QStringLiteral("lp"), {QStringLiteral("-d"), QStringLiteral("tape"), documentPath});
    });
    EXPECT_TRUE(
        waitUntil([this] { return state().contains(QStringLiteral("The label roll or tape is empty.")); }));
    cupsd->setMediaEmpty(false);
    EXPECT_TRUE(waitUntil([this] { return state() == QStringLiteral("Ready."); })) << state().toStdString();
}

TEST_F(DestinationsTest, AQueueThatIsDeletedIsToldAndAnotherCanBeChosen)
{
    cupsd->addQueue(QStringLiteral("doomed"), tapePpd());
    openAndSettle(QStringLiteral("doomed"));
    Hands::click(panelBox("mMirrorPrintChkBx"));
    meanwhile([] { cupsd->removeQueue(QStringLiteral("doomed")); });
    EXPECT_TRUE(waitUntil([this] { return told().contains(QStringLiteral("no queue or class \"doomed\"")); }))
        << told().toStdString();
    EXPECT_TRUE(panelBox("mMirrorPrintChkBx")->isChecked());
    Hands::click(button(QStringLiteral("Print")));
    EXPECT_TRUE(waitUntil([this] { return !window->isSending() && !told().isEmpty(); }));
    EXPECT_TRUE(window->isVisible());
    Hands::pick(destinations(), QStringLiteral("tape – On my desk"));
    ASSERT_TRUE(isChosen(QStringLiteral("tape")));
    QApplication::processEvents();
    // Errors of the other queue are not shown for this one.
    EXPECT_EQ(told(), QString());
    print();
}

TEST_F(DestinationsTest, APasswordIsAskedForOnceWrongThenRight)
{
    const FaultyServer guarded(cupsd->port(), {.credentials = "ann:secret"});
    host::CupsServer server = serverAt(guarded.address());
    server.user = QStringLiteral("ann");
    open(QStringLiteral("tape"), server);
    answer(passwordDialog(), QStringLiteral("wrong"));
    EXPECT_EQ(session->chosen(), std::nullopt);
    answer(passwordDialog(), QStringLiteral("secret"));
    ASSERT_TRUE(isChosen(QStringLiteral("tape")));
    // The user is not asked again, for the PPD, the state or the job.
    EXPECT_TRUE(waitUntil([&] { return guarded.requestCount(IPP_OP_GET_PRINTER_ATTRIBUTES) > 0; }));
    const auto job = printed();
    EXPECT_EQ(job.user, "ann");
    EXPECT_EQ(passwordQuestions, 2);
}

TEST_F(DestinationsTest, APasswordForPrintingOnlyIsAskedForWhenPrinting)
{
    const FaultyServer guarded(cupsd->port(),
                               {.credentials = "ann:secret", .lockedOperation = IPP_OP_CREATE_JOB});
    host::CupsServer server = serverAt(guarded.address());
    server.user = QStringLiteral("ann");
    openAndSettle(QStringLiteral("tape"), server);
    EXPECT_EQ(passwordQuestions, 0);
    // The server may have been restarted since it was asked last.
    cupsd->kill();
    cupsd->restart();
    Hands::click(button(QStringLiteral("Print")));
    answer(passwordDialog(), QStringLiteral("secret"));
    EXPECT_TRUE(waitUntil([this] { return !window->isSending() && !window->isVisible(); }))
        << told().toStdString();
    EXPECT_EQ(passwordQuestions, 1);
}

TEST_F(DestinationsTest, WithNothingKnownARefusedPasswordCanBeGivenAfterAll)
{
    const FaultyServer guarded(cupsd->port(), {.credentials = "ann:secret"});
    open(QStringLiteral("tape"), serverAt(guarded.address()));
    for (int choiceErrors = 0; choiceErrors < 2; ++choiceErrors) {
        dialog::PasswordDialog *const question = passwordDialog();
        ASSERT_TRUE(question);
        ASSERT_TRUE(QTest::qWaitForWindowActive(question, test_support::failureMilliseconds));
        Hands::press(question, Qt::Key_Escape);
        EXPECT_TRUE(waitUntil([this] { return session->isSettled(); }));
        EXPECT_EQ(state(), QStringLiteral("The print server requires a password."));
        EXPECT_NE(told(), QString());
        EXPECT_FALSE(button(QStringLiteral("Print"))->isEnabled());
        Hands::click(button(QStringLiteral("Try again")));
        EXPECT_EQ(told(), QString());
        EXPECT_EQ(state(), QStringLiteral("Waiting for the print server\u2026"));
    }
    answer(passwordDialog(), QStringLiteral("secret"));
    ASSERT_TRUE(isChosen(QStringLiteral("tape")));
    EXPECT_EQ(state(), QStringLiteral("Ready."));
    EXPECT_EQ(told(), QString());
    EXPECT_EQ(printed().option("PageSize"), "W24H60");
}

TEST_F(DestinationsTest, ARefusedPasswordIsNotAskedForAgainAndAgain)
{
    fillCache(QStringLiteral("tape"));
    const FaultyServer guarded(cupsd->port(), {.credentials = "ann:secret"});
    open(QStringLiteral("tape"), knownServer(guarded.address()));
    dialog::PasswordDialog *const question = passwordDialog();
    ASSERT_TRUE(question);
    ASSERT_TRUE(QTest::qWaitForWindowActive(question, test_support::failureMilliseconds));
    Hands::press(question, Qt::Key_Escape);
    EXPECT_TRUE(waitUntil([this] { return session->isSettled(); }));
    // One request for the queue's state may be in progress; the second request proves that the first is
    // complete.
    const int before = guarded.rejectedCount();
    EXPECT_TRUE(waitUntil([&] { return guarded.rejectedCount() >= before + 2 || passwordQuestions > 1; }));
    test_support::turnEventLoop();
    ASSERT_EQ(passwordQuestions, 1);
    EXPECT_TRUE(passwordDialogs().empty());
    EXPECT_NE(told(), QString());
    // Pressing Print asks for the password again.
    Hands::click(button(QStringLiteral("Print")));
    answer(passwordDialog(), QStringLiteral("secret"));
    EXPECT_TRUE(waitUntil([this] { return !window->isSending() && !window->isVisible(); }))
        << told().toStdString();
}
