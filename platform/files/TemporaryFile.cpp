// SPDX-License-Identifier: Apache-2.0
#include "TemporaryFile.h"

#include <QDirIterator>
#include <QRandomGenerator>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {
inline namespace files {

namespace {

constexpr int randomDigits = 16;

/// Returns the name of a hidden file, which users do not give to their files.
QString nameWith(const QString &random)
{
    return QStringLiteral(".kvprint-%1.tmp").arg(random);
}

QString randomName()
{
    return nameWith(QStringLiteral("%1").arg(QRandomGenerator::system()->generate64(), randomDigits, 16,
                                             QLatin1Char('0')));
}

/// Locks the file while the descriptor is open. Returns false if another program is removing the file.
bool claim(int descriptor)
{
    // On a file system without locks, removeLeftovers() cannot lock the file either and removes nothing.
    if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0)
        return errno != EWOULDBLOCK;
    struct stat status = {};
    return ::fstat(descriptor, &status) == 0 && status.st_nlink > 0;
}

bool isSame(const struct stat &one, const struct stat &other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

bool isOwnFile(const struct stat &status)
{
    return S_ISREG(status.st_mode) && status.st_uid == ::geteuid();
}

/// Removes the file unless the program that created it is still running.
void removeAbandoned(const QByteArray &name)
{
    struct stat found = {};
    // Checked before opening, because opening alone has side effects on some devices.
    if (::lstat(name.constData(), &found) != 0 || !isOwnFile(found))
        return;
    constexpr int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    const int descriptor = ::open(name.constData(), flags); // NOLINT
    if (descriptor < 0)
        return;
    struct stat opened = {};
    // The name is compared again under the lock: before that, the file may receive its final name, and
    // another file this one.
    if (::fstat(descriptor, &opened) == 0 && isOwnFile(opened) &&
        ::flock(descriptor, LOCK_EX | LOCK_NB) == 0 && ::lstat(name.constData(), &found) == 0 &&
        isSame(opened, found))
        ::unlink(name.constData());
    ::close(descriptor);
}

} // namespace

TemporaryFile::TemporaryFile(QString folder)
    : m_folder(std::move(folder))
{
}

TemporaryFile::~TemporaryFile()
{
    if (m_isTemporary)
        ::unlink(QFile::encodeName(m_path).constData());
}

bool TemporaryFile::fail(int error)
{
    setErrorString(qt_error_string(error));
    return false;
}

bool TemporaryFile::create()
{
    for (;;) {
        const QString path = m_folder + u'/' + randomName();
        const QByteArray name = QFile::encodeName(path);
        constexpr int flags = O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
        const int descriptor = ::open(name.constData(), flags, S_IRUSR | S_IWUSR); // NOLINT
        if (descriptor < 0 && errno == EEXIST)
            continue;
        if (descriptor < 0)
            return fail(errno);
        if (!claim(descriptor)) {
            ::close(descriptor);
            continue;
        }
        ::fchmod(descriptor, S_IRUSR | S_IWUSR); // the umask may have removed them
        m_path = path;
        m_isTemporary = true;
        return open(descriptor, QIODevice::ReadWrite, QFileDevice::AutoCloseHandle);
    }
}

bool TemporaryFile::moveTo(const QString &path)
{
    if (!flush())
        return false;
    // Without fsync(), the file may be empty under its final name after a power failure. Some file systems do
    // not support it.
    if (::fsync(handle()) != 0 && errno != EINVAL && errno != ENOTSUP)
        return fail(errno);
    if (::rename(QFile::encodeName(m_path).constData(), QFile::encodeName(path).constData()) != 0)
        return fail(errno);
    m_path = path;
    m_isTemporary = false;
    return true;
}

void TemporaryFile::removeLeftovers(const QString &folder)
{
    const QStringList names{nameWith(QString(randomDigits, u'?'))};
    QDirIterator files(folder, names, QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    while (files.hasNext())
        removeAbandoned(QFile::encodeName(files.next()));
}

} // namespace files
} // namespace platform
