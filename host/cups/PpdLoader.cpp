// SPDX-License-Identifier: Apache-2.0
#include "PpdLoader.h"

#include "CupsConnection.h"
#include "DiscoveredQueue.h"
#include "QueueCache.h"

#include <QFileInfo>

namespace host {

namespace {

/// Reading so much takes some tens of milliseconds. Hardly any printer's PPD is larger.
constexpr qint64 mostAtOnce = qint64{512} * 1024;

bool isLarge(const QString &path)
{
    return QFileInfo(path).size() > mostAtOnce;
}

/// The PPD; nothing when it cannot be used.
std::optional<PpdFile> openQuietly(const QString &path)
{
    Result<PpdFile, PpdError> ppd = PpdFile::open(path);
    return ppd ? std::optional(std::move(ppd).value()) : std::nullopt;
}

} // namespace

/// What came of asking: exactly one of a PPD, an error, "there is none", or nothing new.
struct PpdLoader::Outcome {
    std::shared_ptr<PpdFile> ppd;
    std::optional<CupsError> error;
    bool isAbsent = false;
};

PpdLoader::PpdLoader(CupsServer server, QObject *parent)
    : QObject(parent)
    , m_server(std::move(server))
{
}

std::optional<PpdFile> PpdLoader::cached(const QString &queue) const
{
    const std::optional<QString> path = QueueCache(m_server).ppdPath(queue);
    return path && !isLarge(*path) ? openQuietly(*path) : std::nullopt;
}

void PpdLoader::load(const Destination &destination, LargeCached largeCached)
{
    if (m_task)
        m_task->cancel();
    m_task = m_background.start([this, server = m_server, destination, largeCached](BackgroundTask &task) {
        const std::optional<QString> path = QueueCache(server).ppdPath(destination.queue);
        if (largeCached == LargeCached::Wanted && path && isLarge(*path)) {
            if (std::optional<PpdFile> ppd = openQuietly(*path))
                task.deliver(
                    [this, queue = destination.queue, known = std::make_shared<PpdFile>(*std::move(ppd))] {
                        Q_EMIT remembered(queue, known);
                    });
        }
        const Outcome outcome = ask(server, destination, task);
        if (!task.isCancelled()) // "this" is only used on the main thread, while it is there
            task.deliver([this, queue = destination.queue, outcome] { report(queue, outcome); });
    });
}

PpdLoader::Outcome PpdLoader::ask(const CupsServer &server, const Destination &destination,
                                  BackgroundTask &task)
{
    Result<CupsConnection, CupsError> connection = CupsConnection::open(server, task);
    if (!connection)
        return {nullptr, connection.error(), false};
    if (const std::optional<CupsError> error = ensureQueue(connection.value(), destination))
        return {nullptr, error, false};

    const QueueCache cache(server);
    const QString &queue = destination.queue;
    const auto file =
        connection.value().fetch(queueResource(queue) + ".ppd", cache.ppdStamp(queue), PpdFile::largestText);
    if (!file && file.error().kind == CupsFailure::NotFound) {
        cache.removePpd(queue);
        return {nullptr, std::nullopt, true};
    }
    if (!file)
        return {nullptr, file.error(), false};
    if (!file.value())
        return {};
    cache.storePpd(queue, file.value()->content, file.value()->modified);
    const std::optional<QString> path = cache.ppdPath(queue);
    Result<PpdFile, PpdError> ppd = PpdFile::open(path.value_or(queue));
    if (!ppd) {
        // Not kept: next time the server may have a better one that looks as old.
        cache.removePpd(queue);
        return {nullptr, CupsError{CupsFailure::Refused, ppd.error().message}, false};
    }
    return {std::make_shared<PpdFile>(std::move(ppd).value()), std::nullopt, false};
}

void PpdLoader::report(const QString &queue, const Outcome &outcome)
{
    if (outcome.ppd)
        Q_EMIT loaded(queue, outcome.ppd);
    else if (outcome.error)
        Q_EMIT failed(queue, *outcome.error);
    else if (outcome.isAbsent)
        Q_EMIT absent(queue);
    else
        Q_EMIT unchanged(queue);
}

} // namespace host
