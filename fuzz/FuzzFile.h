// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

/// A folder of a fuzzer's own for what the program reads from files, in memory where the system has such a
/// place. It lasts as long as the program.
inline const QString &fuzzFolder()
{
    static const QTemporaryDir folder(
        (QDir(QStringLiteral("/dev/shm")).exists() ? QStringLiteral("/dev/shm") : QDir::tempPath()) +
        QStringLiteral("/kvprint-fuzz-XXXXXX"));
    static const QString path = folder.isValid() ? folder.path() : QString();
    return path;
}

/// Writes the file below fuzzFolder(), with the folders above it, and gives its path.
inline QString writeFuzzFile(const QString &name, const QByteArray &content)
{
    const QString path = fuzzFolder() + u'/' + name;
    QDir().mkpath(path.left(path.lastIndexOf(u'/')));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    return path;
}
