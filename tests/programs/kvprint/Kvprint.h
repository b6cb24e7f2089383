// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QStringList>

#include <optional>
#include <vector>

/// The outcome of one run of the program.
struct Outcome {
    /// -1 when it crashed or did not end in time.
    int status = -1;
    QByteArray out;
    QByteArray error;

    /// The number in "request id is QUEUE-NUMBER (...)"; 0 when there is no such line.
    int jobId() const;
};

/// Shows all of an outcome when a check fails.
std::ostream &operator<<(std::ostream &stream, const Outcome &outcome);

/// The built program, run as a script runs it: without a dialog, with pipes for its three streams.
class Kvprint {
public:
    /// For the server, "host:port", named by the environment.
    explicit Kvprint(const QString &server);

    /// Runs it with exactly these arguments. The input is the whole standard input.
    Outcome run(const QStringList &words, const QByteArray &input = {}) const;
    /// Runs it with each list of words, several at a time; the outcomes stand in the same order.
    std::vector<Outcome> runAll(const std::vector<QStringList> &lists) const;
    /// Runs another program in the same environment.
    Outcome runOther(const QString &program, const QStringList &words, const QByteArray &input = {}) const;

    /// Loads the library into programs before all others.
    void preload(const QString &library);

    /// For changes: what programs find in their environment.
    QProcessEnvironment environment;
};

/// A choice that the program reports to print differently than requested: name, requested, printed.
struct ReportedChange {
    QByteArray name;
    QByteArray wanted;
    QByteArray printed;
};
std::vector<ReportedChange> toldChanges(const QByteArray &error);
