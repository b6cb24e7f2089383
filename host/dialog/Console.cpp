// SPDX-License-Identifier: Apache-2.0
#include "Console.h"

#include <QCoreApplication>

namespace dialog {

void Console::complain(const QString &message) const
{
    error(QCoreApplication::applicationName() + QStringLiteral(": ") + message + u'\n');
}

} // namespace dialog
