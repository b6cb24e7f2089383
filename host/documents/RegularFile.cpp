// SPDX-License-Identifier: Apache-2.0
#include "RegularFile.h"

#include <QCoreApplication>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace host {
inline namespace documents {

namespace {

struct RegularFileText {
    Q_DECLARE_TR_FUNCTIONS(host::documents::LabelDocument)
};

FileStamp stampOf(const struct stat &status)
{
    return {status.st_dev, status.st_ino, status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

DocumentErrorReason systemError(int error)
{
    if (error == ENOENT || error == ENOTDIR)
        return {DocumentErrorKind::Missing, RegularFileText::tr("there is no such file")};
    return {DocumentErrorKind::Unreadable, qt_error_string(error)};
}

Result<void, DocumentErrorReason> checkStatus(int result, const struct stat &status)
{
    if (result != 0)
        return systemError(errno);
    if (!S_ISREG(status.st_mode))
        return DocumentErrorReason{DocumentErrorKind::NotAFile, RegularFileText::tr("it is not a file")};
    if (status.st_size == 0)
        return DocumentErrorReason{DocumentErrorKind::Empty, RegularFileText::tr("it is empty")};
    return {};
}

} // namespace

Result<RegularFile, DocumentErrorReason> openRegularFile(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat status = {};
    // Checked before opening, since opening some devices has an effect.
    if (const auto checked = checkStatus(::stat(name.constData(), &status), status); !checked)
        return checked.error();
    // A pipe may have taken the file's place meanwhile; without O_NONBLOCK, opening it would wait.
    const int descriptor = ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC); // NOLINT
    if (descriptor < 0)
        return systemError(errno);
    auto file = std::make_unique<QFile>();
    if (!file->open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(descriptor);
        return DocumentErrorReason{DocumentErrorKind::Unreadable, file->errorString()};
    }
    if (const auto checked = checkStatus(::fstat(descriptor, &status), status); !checked)
        return checked.error();
    return RegularFile{std::move(file), stampOf(status)};
}

std::optional<FileStamp> fileStamp(const QString &path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return std::nullopt;
    return stampOf(status);
}

std::optional<FileStamp> fileStamp(int descriptor)
{
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0)
        return std::nullopt;
    return stampOf(status);
}

} // namespace documents
} // namespace host
