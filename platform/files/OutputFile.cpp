// SPDX-License-Identifier: Apache-2.0
#include "OutputFile.h"

#include "BrokenPipeBlocker.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {
inline namespace files {

namespace {

struct OutputFileText {
    Q_DECLARE_TR_FUNCTIONS(platform::files::OutputFile)
};

/// Returns the reason why nothing is written to the object at the path; std::nullopt if it can be replaced or
/// written to.
std::optional<QString> rejectionReason(const struct stat &status)
{
    if (S_ISDIR(status.st_mode))
        return OutputFileText::tr("it is a folder");
    if (S_ISLNK(status.st_mode))
        return OutputFileText::tr("it is a symbolic link");
    if (S_ISSOCK(status.st_mode))
        return OutputFileText::tr("it is a socket");
    if (S_ISBLK(status.st_mode))
        return OutputFileText::tr("it is a block device");
    return std::nullopt;
}

} // namespace

OutputFile::OutputFile(QString path)
    : m_path(std::move(path))
{
}

bool OutputFile::reject(const QString &reason)
{
    m_error = reason;
    m_way = Way::Reject;
    m_file.reset();
    return false;
}

OutputFile::Way OutputFile::findWay()
{
    // For the system, the name would end at U+0000.
    if (m_path.isEmpty() || m_path.contains(QChar::Null)) {
        reject(qt_error_string(m_path.isEmpty() ? ENOENT : EINVAL));
        return Way::Reject;
    }
    const QByteArray name = QFile::encodeName(m_path);
    struct stat status = {};
    if (::lstat(name.constData(), &status) != 0) {
        // If the folder does not exist, creating the file fails with that error.
        if (errno == ENOENT && !QFileInfo(m_path).fileName().isEmpty())
            return Way::Replace;
        reject(qt_error_string(errno));
        return Way::Reject;
    }
    struct stat target = {};
    if (S_ISLNK(status.st_mode) && ::stat(name.constData(), &target) == 0 && S_ISCHR(target.st_mode))
        return Way::FollowLink;
    if (const std::optional<QString> reason = rejectionReason(status)) {
        reject(*reason);
        return Way::Reject;
    }
    if (!S_ISREG(status.st_mode))
        return Way::WriteThrough;
    // A write-protected file must not be replaced either.
    if (::faccessat(AT_FDCWD, name.constData(), W_OK, AT_EACCESS) == 0)
        return Way::Replace;
    reject(qt_error_string(errno));
    return Way::Reject;
}

bool OutputFile::write(const std::function<bool(QIODevice *)> &writer)
{
    m_way = findWay();
    if (m_way == Way::Reject)
        return false;
    if (m_way != Way::Replace) {
        m_buffer.open(QIODevice::WriteOnly);
        return writer(&m_buffer) || reject(m_buffer.errorString());
    }
    const QString folder = QFileInfo(m_path).path();
    TemporaryFile::removeLeftovers(folder);
    m_file = std::make_unique<TemporaryFile>(folder);
    if (m_file->create() && writer(m_file.get()) && m_file->error() == QFileDevice::NoError &&
        m_file->flush())
        return true;
    return reject(m_file->errorString());
}

bool OutputFile::commit(const QDateTime &modified)
{
    if (m_way == Way::Reject)
        return false;
    if (m_way != Way::Replace)
        return writeToDevice();
    // The object at the path may have changed since write().
    const Way way = findWay();
    if (way == Way::Reject)
        return false;
    if (way != Way::Replace)
        return reject(qt_error_string(EEXIST));
    if (modified.isValid())
        m_file->setFileTime(modified, QFileDevice::FileModificationTime);
    if (!m_file->moveTo(m_path))
        return reject(m_file->errorString());
    m_file.reset();
    m_hasCreatedFile = true;
    return true;
}

bool OutputFile::writeToDevice()
{
    // Without O_NONBLOCK, opening a FIFO blocks until it has a reader, possibly forever.
    const int flags =
        O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC | (m_way == Way::FollowLink ? 0 : O_NOFOLLOW);
    const int descriptor = ::open(QFile::encodeName(m_path).constData(), flags); // NOLINT
    if (descriptor < 0)
        return reject(errno == ENXIO ? OutputFileText::tr("no program reads from it")
                                     : qt_error_string(errno));
    struct stat status = {};
    const bool isDevice =
        ::fstat(descriptor, &status) == 0 &&
        (S_ISCHR(status.st_mode) || (S_ISFIFO(status.st_mode) && m_way == Way::WriteThrough));
    // The object at the path may have changed since write(). Opening it has not modified it.
    const bool isWritten = isDevice ? writeAll(descriptor) : reject(qt_error_string(EEXIST));
    const bool isClosed = ::close(descriptor) == 0;
    return isWritten && (isClosed || reject(qt_error_string(errno)));
}

bool OutputFile::writeAll(int descriptor)
{
    // Writing must block, because the reader may be slower than this program.
    ::fcntl(descriptor, F_SETFL, ::fcntl(descriptor, F_GETFL) & ~O_NONBLOCK); // NOLINT
    BrokenPipeBlocker silence;
    QByteArrayView left(m_buffer.data());
    while (!left.isEmpty()) {
        const ssize_t written = ::write(descriptor, left.data(), static_cast<std::size_t>(left.size()));
        if (written >= 0) {
            left = left.sliced(written);
            continue;
        }
        if (errno == EINTR)
            continue;
        const int error = errno;
        if (error == EPIPE)
            silence.raised();
        return reject(qt_error_string(error));
    }
    return true;
}

} // namespace files
} // namespace platform
