// SPDX-License-Identifier: Apache-2.0
// Print servers that cannot hold a job without end: the job is sent as it is, and an answer that is lost
// leaves more in the dark.
#include "FaultyServer.h"
#include "PrintingTest.h"

#include <host/cups/JobStatus.h>
#include <tests/support/FaultProxy.h>

#include <cups/ipp.h>

using host::CupsFailure;
using test_support::Direction;
using test_support::FaultProxy;
using test_support::PassedMessage;
using test_support::ProxyFault;

namespace {

class QueueWithoutHoldTest : public PrintingTest {
protected:
    /// Prints over a server with these faults whose queue knows "no-hold" only.
    Outcome printOver(const Faults &faults, const host::JobTicket &job)
    {
        const FaultyServer faulty(cupsd.port(), faults);
        const auto port = static_cast<quint16>(faulty.address().section(u':', 1).toUInt());
        const FaultProxy proxy(
            port,
            {.kind = ProxyFault::Kind::Forge, .message = queueAnswer(), .forgery = descriptionWithoutHold()});
        address = proxy.address();
        Outcome outcome = print(job, serverAt(address));
        EXPECT_TRUE(proxy.hasStruck());
        return outcome;
    }

    std::string message(const Outcome &outcome) const
    {
        return outcome.error ? outcome.error->message.toStdString() : std::string("sent");
    }

    QString address;

private:
    /// Which message of a job's traffic is the description of the queue.
    int queueAnswer()
    {
        const FaultProxy proxy(cupsd.port());
        cupsd.pause(QStringLiteral("tape"));
        const Outcome outcome = print(ticket(), serverAt(proxy.address()));
        cupsd.run(QStringLiteral("cancel"), {QStringLiteral("-a")});
        cupsd.resume(QStringLiteral("tape"));
        EXPECT_TRUE(outcome.jobId);
        const std::vector<PassedMessage> messages = proxy.messages();
        for (std::size_t i = 0; i < messages.size(); ++i) {
            const bool isDescription = messages[i].operation == IPP_OP_GET_PRINTER_ATTRIBUTES &&
                                       messages[i].startLine.endsWith("200 OK");
            if (isDescription && messages[i].direction == Direction::ToClient)
                return static_cast<int>(i);
        }
        ADD_FAILURE() << "the queue is not asked for";
        return 0;
    }

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
    const Outcome outcome =
        printOver({.loseAnswerTo = IPP_OP_SEND_DOCUMENT, .isGoneAfterwards = true}, ticket());
    ASSERT_TRUE(outcome.error);
    EXPECT_EQ(outcome.error->kind, CupsFailure::OutcomeUnknown) << message(outcome);
    const int job = cupsd.waitForDocuments(1).back().job;
    EXPECT_TRUE(outcome.error->message.contains(
        QStringLiteral("Job tape-%1 on the print server \"%2\" may have been printed").arg(job).arg(address)))
        << message(outcome);
}

TEST_F(QueueWithoutHoldTest, AJobThatTheServerHasIsSent)
{
    const Outcome outcome = printOver({.loseAnswerTo = IPP_OP_SEND_DOCUMENT}, ticket());
    ASSERT_TRUE(outcome.jobId) << message(outcome);
    EXPECT_EQ(cupsd.waitForDocuments(1).back().job, *outcome.jobId);
}

TEST_F(QueueWithoutHoldTest, AJobThatLacksADocumentIsCanceled)
{
    const Outcome outcome = printOver({.loseAnswerTo = IPP_OP_SEND_DOCUMENT}, ticketOfTwo());
    ASSERT_TRUE(outcome.error);
    EXPECT_EQ(outcome.error->kind, CupsFailure::Unreachable) << message(outcome);
    expectNothingWaits();
}
