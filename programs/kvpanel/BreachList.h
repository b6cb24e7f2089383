// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <utility>

/// The breaches of the panel protocol that a check has found, one line each, in the order in which they were
/// found. A breach that is found again, for another choice or paper, is listed once.
class BreachList {
public:
    /// Sets the call of the protocol that the next breaches belong to. Returns the one before.
    QString setCall(const QString &call) { return std::exchange(m_call, call); }

    /// Adds a breach of the current call: what the protocol expects, as a noun ("a view"), and what happened,
    /// as a sentence without a full stop ("it returned null").
    void report(const QString &expected, const QString &happened);

    /// Runs the function, which calls the bundle. Returns false, and adds a breach, if it throws an
    /// exception: an exception that leaves a panel ends the dialog.
    bool guard(const std::function<void()> &function);

    /// The breaches, one line each: "CALL: expected EXPECTED, but HAPPENED".
    const QStringList &lines() const { return m_lines; }

private:
    QString m_call;
    QStringList m_lines;
};
