// SPDX-License-Identifier: Apache-2.0
#include "Sandbox.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

Sandbox::Sandbox()
{
    EXPECT_TRUE(m_folder.isValid()) << m_folder.errorString().toStdString();
}

QString Sandbox::write(const QString &name, const QByteArray &content) const
{
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << file.errorString().toStdString();
    EXPECT_EQ(file.write(content), content.size());
    return path(name);
}

QStringList Sandbox::entries() const
{
    return QDir(m_folder.path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}
