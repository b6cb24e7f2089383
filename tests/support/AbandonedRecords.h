// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace test_support {

/// Changes the job records in the folder into those of a program that has ended, for jobs on the server at
/// the address; an empty address keeps the server. Returns the number of records.
inline int abandonRecords(const QString &folder, const QString &server = {})
{
    const QStringList names = QDir(folder).entryList({QStringLiteral("*.json")}, QDir::Files);
    for (const QString &name : names) {
        QFile file(folder + u'/' + name);
        if (!file.open(QIODevice::ReadWrite))
            continue;
        QJsonObject record = QJsonDocument::fromJson(file.readAll()).object();
        record.insert(QStringLiteral("started"), QStringLiteral("0"));
        if (!server.isEmpty())
            record.insert(QStringLiteral("server"), server);
        file.resize(0);
        file.seek(0);
        file.write(QJsonDocument(record).toJson());
    }
    return static_cast<int>(names.size());
}

} // namespace test_support
