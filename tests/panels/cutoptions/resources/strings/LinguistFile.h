// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <map>

/// A Qt Linguist file as its translator left it.
struct LinguistFile {
    QString language;
    /// The names of the contexts, one for each in the file.
    QStringList contexts;
    /// Translations by source, for every message.
    std::map<QString, QString> translations;
    /// Sources that occur more than once.
    QStringList repeated;
    /// Sources whose translation is marked as anything: unfinished, vanished or obsolete.
    QStringList unfinished;
    /// Why the file could not be read; empty when it could.
    QString error;

    static LinguistFile read(const QString &path);
};
