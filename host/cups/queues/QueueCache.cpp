// SPDX-License-Identifier: Apache-2.0
#include "QueueCache.h"

#include <platform/OutputFile.h>
#include <platform/PrivateFolder.h>

#include <QCborArray>
#include <QDateTime>
#include <QFileInfo>
#include <QStandardPaths>

#include <cups/http.h>

namespace host {
inline namespace cups {
inline namespace queues {

namespace {

/// Incremented whenever the file format changes; files of other versions are not read.
constexpr int formVersion = 1;

/// Returns a file name that is unique for the text.
QString fileName(const QString &text)
{
    return QString::fromLatin1(text.toUtf8().toPercentEncoding({}, ".~")).replace(u'%', u'+');
}

/// Returns the cache folder of the program.
QString topFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
           QStringLiteral("/kvprint");
}

/// Creates the folder, which is inside the top folder, and removes the access of other users to it and the
/// folders above: the file names contain the servers and queues that the user prints on. Returns false if it
/// cannot be created.
bool prepareFolder(const QString &folder)
{
    if (platform::createPrivateFolders(folder))
        return false;
    const QString top = topFolder();
    for (QString each = folder; each.startsWith(top); each = QFileInfo(each).path())
        platform::restrictToUser(each);
    return true;
}

void write(const QString &path, const QByteArray &content, const QDateTime &modified)
{
    platform::OutputFile file(path);
    if (prepareFolder(QFileInfo(path).path()) &&
        file.write([&](QIODevice *device) { return device->write(content) == content.size(); }))
        file.commit(modified);
}

const QString allName = QStringLiteral("/queues.cbor");
const QString lastName = QStringLiteral("/last.cbor");

} // namespace

QueueCache::QueueCache(const CupsServer &server)
    : m_folder(topFolder() + QStringLiteral("/cups/") + fileName(server.displayName()))
{
}

std::vector<Destination> QueueCache::read(const QString &name) const
{
    QFile file(m_folder + name);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QCborParserError error;
    const QCborArray entries = QCborValue::fromCbor(file.readAll(), &error).toArray();
    if (error.error != QCborError::NoError || entries.isEmpty() || entries.first() != QCborValue(formVersion))
        return {};
    std::vector<Destination> destinations;
    for (qsizetype i = 1; i < entries.size(); ++i) {
        if (std::optional<Destination> destination = Destination::fromCbor(entries.at(i).toMap()))
            destinations.push_back(*std::move(destination));
    }
    return destinations;
}

void QueueCache::store(const QString &name, const std::vector<Destination> &destinations) const
{
    QCborArray entries{formVersion};
    for (const Destination &destination : destinations)
        entries.append(destination.toCbor());
    write(m_folder + name, entries.toCborValue().toCbor(), {});
}

std::vector<Destination> QueueCache::destinations() const
{
    return read(allName);
}

void QueueCache::storeDestinations(const std::vector<Destination> &destinations) const
{
    store(allName, destinations);
}

std::optional<Destination> QueueCache::last() const
{
    std::vector<Destination> destinations = read(lastName);
    return destinations.empty() ? std::nullopt : std::optional(std::move(destinations.front()));
}

void QueueCache::storeLast(const Destination &destination) const
{
    store(lastName, {destination});
}

QString QueueCache::ppdFileName(const QString &queue) const
{
    return m_folder + QStringLiteral("/ppd/") + fileName(queue) + QStringLiteral(".ppd");
}

std::optional<QString> QueueCache::ppdPath(const QString &queue) const
{
    const QString path = ppdFileName(queue);
    return QFileInfo::exists(path) ? std::optional(path) : std::nullopt;
}

std::optional<QByteArray> QueueCache::ppdStamp(const QString &queue) const
{
    const QFileInfo file(ppdFileName(queue));
    if (!file.exists())
        return std::nullopt;
    return stamp(file.lastModified().toSecsSinceEpoch(), file.size());
}

QByteArray QueueCache::stamp(qint64 modified, qint64 length)
{
    std::array<char, 64> date = {};
    httpGetDateString2(static_cast<time_t>(modified), date.data(), static_cast<int>(date.size()));
    return QByteArray(date.data()) + "; length=" + QByteArray::number(length);
}

void QueueCache::storePpd(const QString &queue, const QByteArray &content, qint64 modified) const
{
    write(ppdFileName(queue), content, QDateTime::fromSecsSinceEpoch(modified));
}

void QueueCache::removePpd(const QString &queue) const
{
    QFile::remove(ppdFileName(queue));
}

} // namespace queues
} // namespace cups
} // namespace host
