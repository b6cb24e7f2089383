// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

/// A folder for one test's files, gone with the test.
class Sandbox {
public:
    Sandbox();

    /// Where a file of that name would lie.
    QString path(const QString &name) const { return m_folder.filePath(name); }
    /// Writes the file and answers its path.
    QString write(const QString &name, const QByteArray &content) const;
    /// What lies in the folder now, temporary files of writers included.
    QStringList entries() const;

private:
    QTemporaryDir m_folder;
};
