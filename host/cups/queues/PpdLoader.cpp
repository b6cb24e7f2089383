// SPDX-License-Identifier: Apache-2.0
#include "PpdLoader.h"

#include "DiscoveredQueue.h"
#include "QueueCache.h"

#include <host/cups/server/CupsConnection.h>
#include <platform/TemporaryFile.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace host {
inline namespace cups {
inline namespace queues {

namespace {

/// In bytes. Reading a file of this size takes some tens of milliseconds; hardly any PPD is larger.
constexpr qint64 maxSynchronousBytes = qint64{512} * 1024;

bool isLarge(const QString &path)
{
    return QFileInfo(path).size() > maxSynchronousBytes;
}

/// Returns the PPD; no value if it cannot be used.
std::optional<PpdFile> openIfUsable(const QString &path)
{
    Result<PpdFile, PpdError> ppd = PpdFile::open(path);
    return ppd ? std::optional(std::move(ppd).value()) : std::nullopt;
}

} // namespace

/// The result of a query: exactly one of a PPD, an error, "absent", or "unchanged".
struct PpdLoader::Outcome {
    std::shared_ptr<PpdFile> ppd;
    std::optional<CupsError> error;
    bool isAbsent = false;
    /// The stamp of the PPD; absent without a PPD.
    std::optional<QByteArray> stamp = {};
};

namespace {

/// Reads the PPD from its content by way of a file, which libcups requires: the cached file if it has the
/// same content, otherwise a temporary one, because the cache may not be writable or another program may have
/// replaced the file.
Result<PpdFile, PpdError> openContent(const QByteArray &content, const std::optional<QString> &cachePath)
{
    if (cachePath) {
        QFile file(*cachePath);
        if (file.open(QIODevice::ReadOnly) && file.readAll() == content)
            return PpdFile::open(*cachePath);
    }
    platform::TemporaryFile file(QDir::tempPath());
    if (!file.create() || file.write(content) != content.size() || !file.flush())
        return PpdError{PpdErrorKind::Unreadable, file.errorString()};
    return PpdFile::open(file.fileName());
}

} // namespace

PpdLoader::PpdLoader(CupsServer server, QObject *parent)
    : QObject(parent)
    , m_server(std::move(server))
{
}

std::optional<PpdFile> PpdLoader::cached(const QString &queue)
{
    const QueueCache cache(m_server);
    m_given.erase(queue);
    const std::optional<QString> path = cache.ppdPath(queue);
    if (!path || isLarge(*path))
        return std::nullopt;
    // Reads the stamp first: if the file is replaced in between, the server sends the new PPD again.
    const std::optional<QByteArray> stamp = cache.ppdStamp(queue);
    std::optional<PpdFile> ppd = openIfUsable(*path);
    if (ppd && stamp)
        m_given[queue] = *stamp;
    return ppd;
}

void PpdLoader::load(const Destination &destination, LargeCached largeCached)
{
    if (m_task)
        m_task->cancel();
    const auto known = m_given.find(destination.queue);
    const auto given = known == m_given.end() ? std::nullopt : std::optional(known->second);
    const int turn = ++m_turn;
    m_task = m_background.start(
        [this, server = m_server, destination, given, turn, largeCached](BackgroundTask &task) {
            std::optional<QByteArray> remembered;
            if (largeCached == LargeCached::Wanted)
                remembered = loadLargeCached(server, destination.queue, turn, task);
            const Outcome outcome = ask(server, destination, remembered ? remembered : given, task);
            if (!task.isCanceled()) // "this" is only used on the main thread, while it exists
                task.deliver([this, turn, queue = destination.queue, outcome] {
                    if (turn == m_turn)
                        report(queue, outcome);
                });
        });
}

std::optional<QByteArray> PpdLoader::loadLargeCached(const CupsServer &server, const QString &queue, int turn,
                                                     BackgroundTask &task)
{
    const QueueCache cache(server);
    const std::optional<QString> path = cache.ppdPath(queue);
    if (!path || !isLarge(*path))
        return std::nullopt;
    std::optional<QByteArray> stamp = cache.ppdStamp(queue);
    std::optional<PpdFile> ppd = openIfUsable(*path);
    if (!ppd || !stamp)
        return std::nullopt;
    // "this" is only used on the main thread, while the object exists.
    task.deliver([this, turn, queue, stamp = *stamp, known = std::make_shared<PpdFile>(*std::move(ppd))] {
        if (turn != m_turn)
            return;
        m_given[queue] = stamp;
        Q_EMIT remembered(queue, known);
    });
    return stamp;
}

PpdLoader::Outcome PpdLoader::ask(const CupsServer &server, const Destination &destination,
                                  const std::optional<QByteArray> &given, BackgroundTask &task)
{
    Result<CupsConnection, CupsError> connection = CupsConnection::open(server, task);
    if (!connection)
        return {nullptr, connection.error(), false};
    if (const Result<void, CupsError> made = ensureQueue(connection.value(), destination, task); !made)
        return {nullptr, made.error(), false};

    const QueueCache cache(server);
    const QString &queue = destination.queue;
    const auto file = connection.value().fetch(queueResource(queue) + ".ppd", given, PpdFile::maxTextSize);
    if (!file && file.error().kind == CupsErrorKind::NotFound) {
        cache.removePpd(queue);
        return {nullptr, std::nullopt, true};
    }
    if (!file)
        return {nullptr, file.error(), false};
    if (!file.value())
        return {};
    const QByteArray &content = file.value()->content;
    // A PPD without a date counts as older than any other, so that the server sends the next one.
    const qint64 modified = file.value()->modified.value_or(0);
    cache.storePpd(queue, content, modified);
    Result<PpdFile, PpdError> ppd = openContent(content, cache.ppdPath(queue));
    if (!ppd) {
        // Removes the PPD: the server may later have a better one with the same date.
        cache.removePpd(queue);
        return {nullptr, CupsError{CupsErrorKind::Rejected, ppd.error().message}, false};
    }
    return {std::make_shared<PpdFile>(std::move(ppd).value()), std::nullopt, false,
            QueueCache::stamp(modified, content.size())};
}

void PpdLoader::report(const QString &queue, const Outcome &outcome)
{
    if (outcome.stamp)
        m_given[queue] = *outcome.stamp;
    else if (outcome.isAbsent)
        m_given.erase(queue);
    if (outcome.ppd)
        Q_EMIT loaded(queue, outcome.ppd);
    else if (outcome.error)
        Q_EMIT failed(queue, *outcome.error);
    else if (outcome.isAbsent)
        Q_EMIT absent(queue);
    else
        Q_EMIT unchanged(queue);
}

} // namespace queues
} // namespace cups
} // namespace host
