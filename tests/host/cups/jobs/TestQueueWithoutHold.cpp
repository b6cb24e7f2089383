// SPDX-License-Identifier: Apache-2.0
// Print servers that cannot hold a job indefinitely: the job is sent without a hold, and after a lost answer
// less is known about it.

#include <host/cups/jobs/JobStatus.h>
#include <tests/servers/PrintingTest.h>
#include <tests/support/FaultProxy.h>

#include <cups/ipp.h>

using host::CupsErrorKind;
using test_support::Direction;
using test_support::FaultProxy;
using test_support::lostAnswer;
using test_support::OtherConnections;
using test_support::ProxyFault;

namespace {

class QueueWithoutHoldTest : public PrintingTest {
protected:
    /// Prints over a server with this fault whose queue knows "no-hold" only.
    Outcome printOver(const ProxyFault &fault, const host::JobTicket &job)
    {
        const FaultProxy faulty(cupsd.port(), fault);
        const FaultProxy proxy(faulty.port(), {.kind = ProxyFault::Kind::Forge,
                                               .operation = IPP_OP_GET_PRINTER_ATTRIBUTES,
                                               .direction = Direction::ToClient,
                                               .forgery = descriptionWithoutHold()});
        address = proxy.address();
        Outcome outcome = print(job, serverAt(address));
        EXPECT_TRUE(proxy.hasStruck());
        EXPECT_EQ(faulty.hasStruck(), fault.kind != ProxyFault::Kind::None);
        return outcome;
    }

    std::string message(const Outcome &outcome) const
    {
        return outcome.error ? outcome.error->message.toStdString() : std::string("sent");
    }

    QString address;

private:
    static QByteArray descriptionWithoutHold()
    {
        // IPP 1.1, successful; the printer's attributes; one keyword; the end.
        const QByteArray content = QByteArray("\x01\x01\x00\x00\x00\x00\x00\x01\x04", 9) +
                                   QByteArray("\x44\x00\x18", 3) + "job-hold-until-supported" +
                                   QByteArray("\x00\x07", 2) + "no-hold" + '\x03';
        return "HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\nContent-Length: " +
               QByteArray::number(content.size()) + "\r\n\r\n" + content;
    }
};

} // namespace

TEST_F(QueueWithoutHoldTest, PrintsAndReleasesNothing)
{
    const Outcome outcome = printOver({}, ticketOfTwo());
    EXPECT_TRUE(outcome.jobId) << message(outcome);
    EXPECT_EQ(cupsd.waitForDocuments(2).back().option("job-hold-until"), QByteArray());
}

TEST_F(QueueWithoutHoldTest, AJobMayHaveBeenPrintedWhenTheServerCannotBeAsked)
{
    const Outcome outcome = printOver(lostAnswer(IPP_OP_SEND_DOCUMENT, OtherConnections::Close), ticket());
    ASSERT_TRUE(outcome.error);
    EXPECT_EQ(outcome.error->kind, CupsErrorKind::OutcomeUnknown) << message(outcome);
    const int job = cupsd.waitForDocuments(1).back().job;
    EXPECT_TRUE(outcome.error->message.contains(
        QStringLiteral("Job tape-%1 on the print server \"%2\" may have been printed").arg(job).arg(address)))
        << message(outcome);
}

TEST_F(QueueWithoutHoldTest, AJobThatTheServerHasIsSent)
{
    const Outcome outcome = printOver(lostAnswer(IPP_OP_SEND_DOCUMENT), ticket());
    ASSERT_TRUE(outcome.jobId) << message(outcome);
    EXPECT_EQ(cupsd.waitForDocuments(1).back().job, *outcome.jobId);
}

TEST_F(QueueWithoutHoldTest, AJobThatLacksADocumentIsCanceled)
{
    const Outcome outcome = printOver(lostAnswer(IPP_OP_SEND_DOCUMENT), ticketOfTwo());
    ASSERT_TRUE(outcome.error);
    EXPECT_EQ(outcome.error->kind, CupsErrorKind::Unreachable) << message(outcome);
    expectNothingWaits();
}
