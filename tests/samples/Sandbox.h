// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

/// A temporary folder for the files of one test. The destructor removes it.
class Sandbox {
public:
    Sandbox();

    /// Returns the path of a file of that name in the folder; the file need not exist.
    QString path(const QString &name) const { return m_folder.filePath(name); }
    /// Writes the file and returns its path.
    QString write(const QString &name, const QByteArray &content) const;
    /// Returns the names of the entries of the folder, temporary files included.
    QStringList entries() const;

private:
    QTemporaryDir m_folder;
};
