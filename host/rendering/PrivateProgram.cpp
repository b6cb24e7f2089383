// SPDX-License-Identifier: Apache-2.0
#include "PrivateProgram.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace host {
inline namespace rendering {

QString privateProgram(const QString &name)
{
    const QDir programs(QCoreApplication::applicationDirPath());
    QString built = QDir::cleanPath(programs.filePath(QStringLiteral("../lib/") + name));
    if (QFileInfo::exists(built))
        return built;
    return QDir::cleanPath(programs.filePath(QStringLiteral(KV_PRIVATE_LIBRARIES))) + u'/' + name;
}

} // namespace rendering
} // namespace host
