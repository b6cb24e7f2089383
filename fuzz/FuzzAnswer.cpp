// SPDX-License-Identifier: Apache-2.0
// Answers of a print server, over a real connection. The first byte chooses what is asked, and whether the
// bytes are the IPP message of a well-formed HTTP answer or all that the server sends.
#include "FuzzInput.h"
#include "FuzzServer.h"

#include <host/cups/jobs/JobStatus.h>
#include <host/cups/queues/DestinationQuery.h>
#include <host/cups/server/CupsConnection.h>

namespace {

QByteArray httpAnswer(const QByteArray &message)
{
    return "HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\nContent-Length: " +
           QByteArray::number(message.size()) + "\r\n\r\n" + message;
}

template<typename Result>
void expectWords(const Result &result)
{
    if (!result && result.error().message.isEmpty())
        qFatal("refused without a word");
}

void ask(host::CupsConnection &connection, std::uint8_t question)
{
    constexpr int someJob = 7;
    constexpr qint64 maxBytes = 1024 * 1024;
    const QString queue = QStringLiteral("tape");
    switch (question) {
    case 0:
        expectWords(host::queryDestinations(connection));
        break;
    case 1:
        expectWords(host::queryDestination(connection, queue, QStringLiteral("long")));
        break;
    case 2:
        if (const auto job = host::queryJob(connection, queue, someJob))
            job.value().sentences();
        else
            expectWords(job);
        break;
    default:
        expectWords(connection.fetch("/printers/tape.ppd", {}, maxBytes));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static FuzzServer fuzzServer;
    FuzzInput input(data, size);
    const std::uint8_t kind = input.byte();
    const QByteArray rest = input.bytes(size);
    fuzzServer.setAnswer(kind % 2 == 0 ? httpAnswer(rest) : rest);
    host::CupsServer server;
    server.address = fuzzServer.address();
    host::BackgroundTask task;
    auto connection = host::CupsConnection::open(server, task);
    if (!connection)
        qFatal("no connection: %s", qPrintable(connection.error().message));
    ask(connection.value(), (kind / 2) % 4);
    return 0;
}
