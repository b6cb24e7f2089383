// SPDX-License-Identifier: Apache-2.0
// Passwords that a server wants for some requests only.

#include <tests/servers/FaultyServer.h>
#include <tests/servers/PrintingTest.h>

#include <cups/ipp.h>

#include <algorithm>

using host::CupsErrorKind;
using host::CupsServer;

namespace {

class PasswordsTest : public PrintingTest {
protected:
    /// More than the system takes for a server that has not read it yet.
    host::JobTicket largeTicket() const
    {
        host::JobTicket job = ticket();
        job.documents = {{document(QStringLiteral("large.txt"), content)}};
        return job;
    }
    CupsServer at(const FaultyServer &faulty, const QStringList &passwords)
    {
        CupsServer guarded = serverAt(faulty.address());
        guarded.askPassword = [this, passwords](const host::PasswordRequest &request) {
            const QString password = passwords.value(asked++);
            password.isNull() ? request.reject() : request.answer(QStringLiteral("anna"), password);
        };
        return guarded;
    }
    void expectPrintedOnce(const Outcome &outcome) const
    {
        ASSERT_TRUE(outcome.jobId) << qPrintable(outcome.error->message);
        EXPECT_EQ(*outcome.jobId, 1);
        EXPECT_EQ(outcome.progress.back().sent, content.size());
        ASSERT_TRUE(waitUntil([this] { return cupsd.documents().size() == 1; }));
        EXPECT_EQ(cupsd.documents().front().content, content);
    }

    const QByteArray content = QByteArray(20'000'000, 'b');
    qsizetype asked = 0;
};

} // namespace

TEST_F(PasswordsTest, OneForDocumentsIsAskedForBeforeTheDocumentIsSent)
{
    const FaultyServer guarded(cupsd.port(),
                               {.credentials = "anna:secret", .lockedOperation = IPP_OP_SEND_DOCUMENT});
    const Outcome outcome = print(largeTicket(), at(guarded, {QStringLiteral("secret")}));
    expectPrintedOnce(outcome);
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(guarded.rejectedCount(), 1);
    EXPECT_EQ(guarded.requestCount(IPP_OP_CREATE_JOB), 1);
    // It was not begun before.
    EXPECT_TRUE(std::ranges::is_sorted(outcome.progress, {}, &host::UploadProgress::sent));
}

TEST_F(PasswordsTest, ADocumentIsSentAgainWithTheOneThatIsWantedAtItsEnd)
{
    const FaultyServer guarded(
        cupsd.port(),
        {.credentials = "anna:secret", .lockedOperation = IPP_OP_SEND_DOCUMENT, .rejectsLate = true});
    expectPrintedOnce(print(largeTicket(), at(guarded, {QStringLiteral("wrong"), QStringLiteral("secret")})));
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(guarded.rejectedCount(), 2);
    EXPECT_EQ(guarded.passwordCount(), 2);
    EXPECT_EQ(guarded.requestCount(IPP_OP_CREATE_JOB), 1);
}

TEST_F(PasswordsTest, WithoutTheOneForDocumentsTheJobIsCanceled)
{
    for (const bool isLate : {false, true}) {
        const FaultyServer guarded(
            cupsd.port(),
            {.credentials = "anna:secret", .lockedOperation = IPP_OP_SEND_DOCUMENT, .rejectsLate = isLate});
        const QStringList none;
        const QStringList wrong{QStringLiteral("wrong"), QStringLiteral("wrong"), QStringLiteral("wrong")};
        for (const QStringList &passwords : {none, wrong}) {
            asked = 0;
            const Outcome outcome = print(ticket(), at(guarded, passwords));
            ASSERT_TRUE(outcome.error);
            EXPECT_EQ(outcome.error->kind, CupsErrorKind::NotAuthorized)
                << qPrintable(outcome.error->message);
            EXPECT_TRUE(outcome.error->message.contains(
                passwords.isEmpty() ? QStringLiteral("none was entered") : QStringLiteral("does not accept")))
                << qPrintable(outcome.error->message);
            EXPECT_EQ(asked, qMax(passwords.size(), qsizetype(1)));
            expectNothingWaits();
        }
        EXPECT_EQ(guarded.passwordCount(), wrong.size());
    }
}

TEST_F(PasswordsTest, OneForCreatingAJobIsAskedForOnce)
{
    const FaultyServer guarded(cupsd.port(),
                               {.credentials = "anna:secret", .lockedOperation = IPP_OP_CREATE_JOB});
    expectPrintedOnce(print(largeTicket(), at(guarded, {QStringLiteral("secret")})));
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(guarded.rejectedCount(), 1);
}

TEST_F(PasswordsTest, AServerThatIsRestartedWhileOneIsTypedPrintsOnce)
{
    const FaultyServer guarded(cupsd.port(),
                               {.credentials = "anna:secret", .lockedOperation = IPP_OP_CREATE_JOB});
    CupsServer restarted = at(guarded, {QStringLiteral("secret")});
    restarted.askPassword = [this, answer = restarted.askPassword](const host::PasswordRequest &request) {
        cupsd.kill();
        cupsd.restart();
        answer(request);
    };
    expectPrintedOnce(print(largeTicket(), restarted));
    // The password is known from now on.
    cupsd.kill();
    cupsd.restart();
    EXPECT_TRUE(print(ticket(), restarted).jobId);
    EXPECT_EQ(asked, 1);
}
