// SPDX-License-Identifier: Apache-2.0
// A network, or a server, that changes what passes: bytes that are inverted, doubled or exchanged, answers
// that come twice and answers that are forged. What is reported can be as wrong as the answers; no job is
// printed in part or twice, every run comes to an end, and the next job is printed.
#include "FaultSweepTest.h"

#include <cups/ipp.h>

using test_support::Direction;
using test_support::PassedMessage;
using test_support::ProxyFault;
using Kind = ProxyFault::Kind;

namespace {

class WrongBytesTest : public FaultSweepTest {
protected:
    static constexpr int documents = 3;

    void expectHarmless(const ProxyFault &fault, const PassedMessage &message)
    {
        SCOPED_TRACE(testing::Message()
                     << "fault " << static_cast<int>(fault.kind) << ", message " << fault.message << " ("
                     << message.startLine.toStdString() << "), operation "
                     << ippOpString(static_cast<ipp_op_t>(message.operation)) << ", byte " << fault.byte
                     << " of " << message.bytes << ": " << fault.forgery.left(40).toStdString());
        const Ending ending = printThrough(fault, documents);
        EXPECT_TRUE(ending.outcome.jobId || ending.outcome.error);
        expectNoPartialOrRepeatedPrint(ending, documents);
        ++endings[ending.outcome.jobId ? "reported as printed" : "reported as not printed or not known"];
    }

    template<typename Action>
    void atEachMessage(Action action)
    {
        const std::vector<PassedMessage> messages = trace(documents);
        for (std::size_t i = 0; i < messages.size(); ++i)
            action(static_cast<int>(i), messages[i]);
        const Ending next = printThrough({}, documents);
        EXPECT_TRUE(next.outcome.jobId);
        expectCorrectReport(next, documents);
    }

    void atARandomByte(Kind kind)
    {
        atEachMessage([&](int index, const PassedMessage &message) {
            const int byte = random(static_cast<int>(message.bytes) - 1);
            expectHarmless({.kind = kind, .message = index, .byte = byte}, message);
        });
    }
};

QByteArray ippAnswer(const QByteArray &message)
{
    return "HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\nContent-Length: " +
           QByteArray::number(message.size()) + "\r\n\r\n" + message;
}

/// Answers that no honest server gives: other statuses, a job of another number, and what is no answer at
/// all.
std::vector<QByteArray> forgeries()
{
    const QByteArray success("\x01\x01\x00\x00\x00\x00\x00\x01", 8);
    const QByteArray firstJob("\x02\x21\x00\x06job-id\x00\x04\x00\x00\x00\x01\x03", 17);
    const QByteArray endless("\x02\x21\x7f\xff", 4);
    const QByteArray empty = "Content-Length: 0\r\n\r\n";
    const QByteArray digest = "WWW-Authenticate: Digest realm=\"CUPS\", nonce=\"0\", qop=\"auth\"\r\n\r\n";
    return {
        "HTTP/1.1 500 Internal Server Error\r\nContent-Length: 0\r\n\r\n",
        "HTTP/1.1 401 Unauthorized\r\nWWW-Authenticate: Basic realm=\"CUPS\"\r\nContent-Length: 0\r\n\r\n",
        // Kerberos, without a ticket; and a scheme that does not exist.
        "HTTP/1.1 401 Unauthorized\r\nWWW-Authenticate: Negotiate\r\nContent-Length: 0\r\n\r\n",
        "HTTP/1.1 401 Unauthorized\r\nWWW-Authenticate: Unheard\r\nContent-Length: 0\r\n\r\n",
        "HTTP/1.1 401 Unauthorized\r\nContent-Length: 0\r\n" + digest,
        "HTTP/1.1 426 Upgrade Required\r\nConnection: Upgrade\r\nUpgrade: TLS/1.2\r\n" + empty,
        "HTTP/1.1 301 Moved Permanently\r\nLocation: http://127.0.0.1:9/\r\nContent-Length: 0\r\n\r\n",
        "HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n",
        "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nffffffff\r\nx",
        ippAnswer(success + '\x03'),
        ippAnswer(success + firstJob),
        ippAnswer(success + endless),
        QByteArray(3000, '\xff') + "\r\n\r\n",
    };
}

} // namespace

TEST_F(WrongBytesTest, Inverted)
{
    atARandomByte(Kind::Corrupt);
}

TEST_F(WrongBytesTest, Doubled)
{
    atARandomByte(Kind::Repeat);
}

TEST_F(WrongBytesTest, Exchanged)
{
    atARandomByte(Kind::Reorder);
}

TEST_F(WrongBytesTest, AnswersThatComeTwice)
{
    // Requests that come twice are two requests; only encryption keeps the network from repeating them.
    atEachMessage([&](int index, const PassedMessage &message) {
        if (message.direction == Direction::ToClient)
            expectHarmless({.kind = Kind::Replay, .message = index}, message);
    });
}

TEST_F(WrongBytesTest, ForgedAnswers)
{
    atEachMessage([&](int index, const PassedMessage &message) {
        if (message.direction == Direction::ToServer)
            return;
        for (const QByteArray &forgery : forgeries())
            expectHarmless({.kind = Kind::Forge, .message = index, .forgery = forgery}, message);
    });
}
