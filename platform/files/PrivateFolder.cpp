// SPDX-License-Identifier: Apache-2.0
#include "PrivateFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <sys/stat.h>

namespace platform {
inline namespace files {

namespace {

constexpr mode_t allPermissions = S_IRWXU | S_IRWXG | S_IRWXO;

/// Returns 0, or the errno value of the error.
int makeFolders(const QString &folder)
{
    const QByteArray name = QFile::encodeName(folder);
    int error = ::mkdir(name.constData(), S_IRWXU) == 0 ? 0 : errno;
    const QString above = QFileInfo(folder).path();
    if (error == ENOENT && above != folder) {
        error = makeFolders(above);
        if (error != 0)
            return error;
        error = ::mkdir(name.constData(), S_IRWXU) == 0 ? 0 : errno;
    }
    if (error == EEXIST)
        return QFileInfo(folder).isDir() ? 0 : ENOTDIR;
    if (error == 0)
        restrictToUser(folder); // the umask may have removed permissions of the user
    return error;
}

} // namespace

std::optional<QString> createPrivateFolders(const QString &folder)
{
    const int error = folder.isEmpty() ? ENOENT : makeFolders(folder);
    return error == 0 ? std::nullopt : std::optional(qt_error_string(error));
}

void restrictToUser(const QString &folder)
{
    const QByteArray name = QFile::encodeName(folder);
    struct stat status = {};
    if (::stat(name.constData(), &status) == 0 && (status.st_mode & allPermissions) != S_IRWXU)
        ::chmod(name.constData(), S_IRWXU);
}

QString stateFolder()
{
    const QString named = qEnvironmentVariable("XDG_STATE_HOME");
    return QDir::isAbsolutePath(named) ? named : QDir::homePath() + QStringLiteral("/.local/state");
}

} // namespace files
} // namespace platform
