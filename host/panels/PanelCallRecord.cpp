// SPDX-License-Identifier: Apache-2.0
#include "PanelCallRecord.h"

#include <host/base/OutOfMemory.h>
#include <platform/PrivateFolder.h>

#include <QDir>
#include <QFile>
#include <QUuid>

#include <algorithm>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <unistd.h>

namespace host {
inline namespace panels {

namespace {

/// The size of the file: the name of the call, a line feed, and the path of the bundle, which PATH_MAX limits
/// to 4095 bytes.
constexpr std::size_t fileSize = 8192;

const QString recordEnding = QStringLiteral(".call");

QString recordFolder()
{
    return platform::stateFolder() + QStringLiteral("/kvprint/panels");
}

/// Opens the file of a process that does not run any more; absent if it still runs.
std::optional<QByteArray> contentOfEndedProcess(const QString &path)
{
    constexpr int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    const int descriptor = ::open(QFile::encodeName(path).constData(), flags); // NOLINT
    if (descriptor < 0)
        return std::nullopt;
    const bool hasEnded = ::flock(descriptor, LOCK_SH | LOCK_NB) == 0;
    QByteArray content(static_cast<qsizetype>(fileSize), '\0');
    const ssize_t length = hasEnded ? ::read(descriptor, content.data(), fileSize) : -1;
    ::close(descriptor);
    if (!hasEnded || length < 0)
        return std::nullopt;
    return QByteArray(content.constData());
}

std::optional<InterruptedCall> callIn(const QByteArray &content, const QString &path)
{
    const qsizetype separator = content.indexOf('\n');
    if (separator <= 0)
        return std::nullopt;
    return InterruptedCall{QString::fromUtf8(content.mid(separator + 1)),
                           QString::fromLatin1(content.left(separator)), QFileInfo(path).lastModified()};
}

} // namespace

PanelCallRecord::PanelCallRecord() = default;

PanelCallRecord::~PanelCallRecord()
{
    if (char *const content = std::exchange(m_content, nullptr)) {
        ::munmap(content, fileSize);
        QFile::remove(m_path);
    }
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

PanelCallRecord &PanelCallRecord::ofProcess()
{
    static PanelCallRecord record;
    // A program that ends because memory has run out may do so in a call into a panel. That is not an error
    // of the panel.
    OutOfMemory::setEndHook([] {
        if (record.m_content)
            *record.m_content = '\0';
    });
    return record;
}

void PanelCallRecord::open()
{
    m_isOpen = true;
    if (platform::createPrivateFolders(recordFolder()))
        return;
    m_path = recordFolder() + u'/' + QUuid::createUuid().toString(QUuid::WithoutBraces) + recordEnding;
    constexpr int flags = O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    m_descriptor = ::open(QFile::encodeName(m_path).constData(), flags, 0600); // NOLINT
    if (m_descriptor < 0)
        return;
    // posix_fallocate() reserves the space, so that writing to the mapped memory cannot fail on a full disk.
    const bool isReady =
        ::flock(m_descriptor, LOCK_EX | LOCK_NB) == 0 && ::posix_fallocate(m_descriptor, 0, fileSize) == 0;
    void *const mapped =
        isReady ? ::mmap(nullptr, fileSize, PROT_READ | PROT_WRITE, MAP_SHARED, m_descriptor, 0) : MAP_FAILED;
    if (mapped == MAP_FAILED)
        QFile::remove(m_path);
    else
        m_content = static_cast<char *>(mapped);
}

QByteArray PanelCallRecord::current() const
{
    return m_content ? QByteArray(m_content) : QByteArray();
}

void PanelCallRecord::set(const QByteArray &content)
{
    if (!m_isOpen)
        open();
    if (!m_content)
        return;
    const std::size_t length = std::min(static_cast<std::size_t>(content.size()), fileSize - 1);
    std::memcpy(m_content, content.constData(), length);
    m_content[length] = '\0';
}

PanelCallRecord::Call::Call(PanelCallRecord &record, const QString &bundle, const char *name)
    : m_record(record)
    , m_outer(record.current())
{
    m_record.set(name + QByteArray("\n") + bundle.toUtf8());
}

PanelCallRecord::Call::~Call()
{
    m_record.set(m_outer);
}

std::vector<InterruptedCall> PanelCallRecord::interrupted()
{
    std::vector<InterruptedCall> calls;
    const QDir folder(recordFolder());
    for (const QString &name :
         folder.entryList({u'*' + recordEnding}, QDir::Files | QDir::NoSymLinks, QDir::Time)) {
        const QString path = folder.filePath(name);
        const std::optional<QByteArray> content = contentOfEndedProcess(path);
        if (!content)
            continue;
        const std::optional<InterruptedCall> call = callIn(*content, path);
        if (!call)
            QFile::remove(path);
        else if (std::ranges::find(calls, call->bundle, &InterruptedCall::bundle) == calls.end())
            calls.push_back(*call);
    }
    return calls;
}

void PanelCallRecord::forget(const QString &bundle)
{
    const QDir folder(recordFolder());
    for (const QString &name : folder.entryList({u'*' + recordEnding}, QDir::Files | QDir::NoSymLinks)) {
        const QString path = folder.filePath(name);
        const std::optional<QByteArray> content = contentOfEndedProcess(path);
        const std::optional<InterruptedCall> call = content ? callIn(*content, path) : std::nullopt;
        if (call && call->bundle == bundle)
            QFile::remove(path);
    }
}

void PanelCallRecord::forgetAll()
{
    for (const InterruptedCall &call : interrupted())
        forget(call.bundle);
}

} // namespace panels
} // namespace host
