// SPDX-License-Identifier: Apache-2.0
#include "JobJournal.h"

#include <platform/PrivateFolder.h>
#include <platform/TemporaryFile.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUuid>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace host {
inline namespace cups {
inline namespace jobs {

namespace {

struct JobJournalText {
    Q_DECLARE_TR_FUNCTIONS(host::cups::jobs::JobJournal)
};

const QByteArray uuidPrefix = "urn:uuid:";
const QString recordEnding = QStringLiteral(".json");

QByteArray contentOf(const QString &path)
{
    constexpr qint64 maxBytes = 65536;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(maxBytes) : QByteArray();
}

QString bootIdentifier()
{
    return QString::fromLatin1(contentOf(QStringLiteral("/proc/sys/kernel/random/boot_id")).trimmed());
}

/// Returns the start time of the process in clock ticks since the system was started; empty if there is no
/// such process.
QString startOf(qint64 pid)
{
    // The twentieth field after the program's name, which may contain any character.
    constexpr int startField = 19;
    const QByteArray status = contentOf(QStringLiteral("/proc/%1/stat").arg(pid));
    const qsizetype endOfName = status.lastIndexOf(')');
    return QString::fromLatin1(status.mid(endOfName + 2).split(' ').value(startField));
}

QJsonObject toJson(const JobRecord &record)
{
    QJsonObject json{
        {QStringLiteral("server"), record.server},
        {QStringLiteral("encrypts"), record.encrypts},
        {QStringLiteral("queue"), record.queue},
        {QStringLiteral("title"), record.title},
        {QStringLiteral("uuid"), QString::fromLatin1(record.uuid)},
    };
    if (record.user)
        json.insert(QStringLiteral("user"), *record.user);
    if (record.jobId)
        json.insert(QStringLiteral("job"), *record.jobId);
    // The process number alone may belong to another process when the file is read.
    const qint64 pid = QCoreApplication::applicationPid();
    json.insert(QStringLiteral("pid"), pid);
    json.insert(QStringLiteral("started"), startOf(pid));
    json.insert(QStringLiteral("boot"), bootIdentifier());
    return json;
}

std::optional<JobRecord> fromJson(const QJsonObject &json)
{
    JobRecord record;
    record.server = json.value(QStringLiteral("server")).toString();
    record.encrypts = json.value(QStringLiteral("encrypts")).toBool();
    record.queue = json.value(QStringLiteral("queue")).toString();
    record.title = json.value(QStringLiteral("title")).toString();
    record.uuid = json.value(QStringLiteral("uuid")).toString().toLatin1();
    if (json.contains(QStringLiteral("user")))
        record.user = json.value(QStringLiteral("user")).toString();
    if (const int jobId = json.value(QStringLiteral("job")).toInt(); jobId > 0)
        record.jobId = jobId;
    const bool isWhole = !record.server.isEmpty() && !record.queue.isEmpty() &&
                         record.uuid.startsWith(uuidPrefix) &&
                         !QUuid::fromString(QLatin1String(record.uuid.mid(uuidPrefix.size()))).isNull();
    return isWhole ? std::optional(record) : std::nullopt;
}

bool isProgramRunning(const QJsonObject &json)
{
    const qint64 pid = json.value(QStringLiteral("pid")).toInteger();
    const QString start = startOf(pid);
    return !start.isEmpty() && start == json.value(QStringLiteral("started")).toString() &&
           bootIdentifier() == json.value(QStringLiteral("boot")).toString();
}

/// Returns whether a program has locked the file, including a program on another computer with the same
/// folder.
bool isLocked(const QString &path)
{
    constexpr int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    const int descriptor = ::open(QFile::encodeName(path).constData(), flags); // NOLINT
    if (descriptor < 0)
        return false;
    const bool isLocked = ::flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    ::close(descriptor);
    return isLocked;
}

} // namespace

QString JobRecord::identifier() const
{
    constexpr qsizetype length = 8;
    return QString::fromLatin1(uuid.mid(uuidPrefix.size(), length));
}

QString JobRecord::name() const
{
    return jobId ? QStringLiteral("%1-%2").arg(queue, QString::number(*jobId)) : identifier();
}

JobJournal::JobJournal()
    : m_folder(platform::stateFolder() + QStringLiteral("/kvprint/jobs"))
{
}

QString JobJournal::path(const JobRecord &record) const
{
    return m_folder + u'/' + QString::fromLatin1(record.uuid.mid(uuidPrefix.size())) + recordEnding;
}

JobJournal::Left JobJournal::left() const
{
    Left left;
    platform::TemporaryFile::removeLeftovers(m_folder);
    const QDir folder(m_folder);
    for (const QString &name :
         folder.entryList({u'*' + recordEnding}, QDir::Files | QDir::NoSymLinks, QDir::Name)) {
        const QString path = folder.filePath(name);
        if (isLocked(path))
            continue;
        const QJsonObject json = QJsonDocument::fromJson(contentOf(path)).object();
        std::optional<JobRecord> record = fromJson(json);
        // Removing the record would remove another job's file.
        if (record && this->path(*record) != path)
            record.reset();
        if (!record && QFile::remove(path))
            left.damages.append(JobJournalText::tr("The record \"%1\" of an interrupted job was damaged and "
                                                   "has been removed. Check your queues for a held job.")
                                    .arg(path));
        if (record && !isProgramRunning(json))
            left.jobs.push_back(*record);
    }
    return left;
}

void JobJournal::remove(const JobRecord &record) const
{
    QFile::remove(path(record));
}

JobJournalEntry::JobJournalEntry(JobRecord record)
    : m_record(std::move(record))
{
    write();
}

JobJournalEntry::~JobJournalEntry() = default;

void JobJournalEntry::setJobId(int jobId)
{
    m_record.jobId = jobId;
    write();
}

void JobJournalEntry::remove()
{
    m_journal.remove(m_record);
    m_file.reset();
}

void JobJournalEntry::write()
{
    if (platform::createPrivateFolders(m_journal.folder()))
        return;
    platform::restrictToUser(m_journal.folder());
    platform::restrictToUser(QFileInfo(m_journal.folder()).path());
    const QByteArray content = QJsonDocument(toJson(m_record)).toJson();
    auto file = std::make_unique<platform::TemporaryFile>(m_journal.folder());
    // Replaces the earlier file as a whole, so that one of the two remains if the program is killed now.
    if (file->create() && file->write(content) == content.size() && file->moveTo(m_journal.path(m_record)))
        m_file = std::move(file);
}

} // namespace jobs
} // namespace cups
} // namespace host
