// SPDX-License-Identifier: Apache-2.0
#pragma once

// Prints Qt's strings as text in the messages of failed checks.
#include <QByteArray>
#include <QDebug>
#include <QString>
#include <QStringList>

#include <ostream>

QT_BEGIN_NAMESPACE

inline void PrintTo(const QString &text, std::ostream *stream)
{
    *stream << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray &bytes, std::ostream *stream)
{
    *stream << '"' << bytes.toStdString() << '"';
}

inline void PrintTo(const QStringList &list, std::ostream *stream)
{
    *stream << '[' << list.join(QStringLiteral(", ")).toStdString() << ']';
}

QT_END_NAMESPACE
