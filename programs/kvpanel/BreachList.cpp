// SPDX-License-Identifier: Apache-2.0
#include "BreachList.h"

#include <exception>

void BreachList::report(const QString &expected, const QString &happened)
{
    QString line = QStringLiteral("%1: expected %2, but %3").arg(m_call, expected, happened);
    // Texts of a bundle may contain line ends; a breach is one line.
    line = line.simplified();
    if (!m_lines.contains(line))
        m_lines.append(line);
}

bool BreachList::guard(const std::function<void()> &function)
{
    const QString expected = QStringLiteral("no exception");
    try {
        function();
        return true;
    } catch (const std::exception &error) {
        report(expected, QStringLiteral("it throws \"%1\"").arg(QString::fromLocal8Bit(error.what())));
    } catch (...) {
        report(expected, QStringLiteral("it throws an object that is no std::exception"));
    }
    return false;
}
