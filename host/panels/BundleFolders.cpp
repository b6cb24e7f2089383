// SPDX-License-Identifier: Apache-2.0
#include "BundleFolders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

namespace host {
inline namespace panels {

namespace {

struct BundleFoldersText {
    Q_DECLARE_TR_FUNCTIONS(host::panels::BundleFolders)
};

const QString folderInData = QStringLiteral("kvprint/panels");

QString installationFolder()
{
    const QDir programs(QCoreApplication::applicationDirPath());
    const QString installed = QDir::cleanPath(programs.filePath(QStringLiteral(KV_INSTALLED_BUNDLES)));
    // In a build tree, the bundles are beside the programs.
    return QFile::exists(installed) ? installed : programs.path();
}

/// Returns the absolute paths of a variable that lists folders; the default value is used if it is not set.
QStringList foldersOf(const char *variable, const QString &defaultValue)
{
    QStringList folders = qEnvironmentVariable(variable, defaultValue).split(u':', Qt::SkipEmptyParts);
    folders.removeIf([](const QString &each) { return !QDir::isAbsolutePath(each); });
    return folders;
}

QString dataHome()
{
    const QString home = qEnvironmentVariable("XDG_DATA_HOME");
    return QDir::isAbsolutePath(home) ? home : QDir::homePath() + QStringLiteral("/.local/share");
}

} // namespace

QList<BundleFolder> bundleFolders()
{
    QList<BundleFolder> folders;
    for (const QString &folder : foldersOf("KVPRINT_PANELS", QString()))
        folders.append({folder, false});
    folders.append({installationFolder(), true});
    for (const QString &folder : foldersOf("XDG_DATA_DIRS", QStringLiteral("/usr/local/share:/usr/share")))
        folders.append({QDir(folder).filePath(folderInData), false});
    folders.append({QDir(dataHome()).filePath(folderInData), false});
    return folders;
}

std::optional<QString> untrustedReason(const QString &path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return BundleFoldersText::tr("\"%1\" cannot be read").arg(path);
    if (status.st_uid != 0 && status.st_uid != ::geteuid())
        return BundleFoldersText::tr("\"%1\" belongs to another user").arg(path);
    if ((status.st_mode & (S_IWGRP | S_IWOTH)) != 0)
        return BundleFoldersText::tr("other users can write to \"%1\"; \"chmod go-w\" prevents it").arg(path);
    return std::nullopt;
}

} // namespace panels
} // namespace host
