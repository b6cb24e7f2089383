// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/jobs/JobOptions.h>

#include <QByteArray>
#include <QStringList>

#include <optional>

namespace programs {
inline namespace kvprint {

/// The statuses with which kvprint ends.
enum class ExitStatus {
    Printed = 0,
    Failed = 1,
    WrongUsage = 2,
    PrintedWithoutPanel = 3,
    Canceled = 4,
    /// Ended by a signal: 128 and its number, as shells say it.
    HungUp = 129,
    Interrupted = 130,
    Terminated = 143,
};

inline ExitStatus statusOfSignal(int signal)
{
    return static_cast<ExitStatus>(128 + signal);
}

/// What a run of the program is for.
enum class Task {
    Print,
    List,        ///< tells the destinations
    Summary,     ///< tells what the dialog's summary shows
    DryRun,      ///< does everything but sending
    ChangeJob,   ///< changes a job that waits
    CancelLeft,  ///< cancels a job that a killed program has left on a print server
    ReleaseLeft, ///< prints what a server has of such a job
};

/// What kvprint was asked to do.
struct CommandLine {
    Task task = Task::Print;
    /// In the order in which they are printed; "-" is standard input. Empty stands for standard input too, as
    /// with lp, where the task is about documents at all.
    QStringList documents;

    /// A PPD file without a queue: prints on the virtual printer. Never together with a destination or a
    /// server.
    std::optional<QString> ppd;
    /// "queue" or "queue/instance"; nothing for the default one.
    std::optional<QString> destination;
    /// "host", "host:port" or the path of a local socket; nothing for libcups's own choice.
    std::optional<QString> server;
    /// For whom is printed; nothing for libcups's own choice.
    std::optional<QString> user;
    /// Whether the connection must be encrypted.
    bool encrypt = false;

    /// The options of -o, each name once, without those that settings, paper and title take up.
    std::vector<host::JobChoice> options;
    /// What -n, -P, -H and -q say, and the options of the same meaning.
    host::JobSettings settings;
    /// The paper's name in the PPD, byte for byte.
    std::optional<QByteArray> paper;
    /// The job's name.
    std::optional<QString> title;
    /// The number of the job that ChangeJob is about; its queue is the destination, if one was named.
    std::optional<int> jobToChange;
    /// The name or the identifier of the job that CancelLeft and ReleaseLeft are about.
    QString leftJob;
    /// Without the message that a job was sent.
    bool quiet = false;
    /// The user wants to be told by mail when the job is over; quiet then, as lp is.
    bool mail = false;

    std::optional<QString> bundle;
    std::optional<QString> output;
    std::optional<QString> screenshot;
    /// Print at once, as a person would who opens the dialog and presses Print.
    bool noDialog = false;
    /// Send in spite of choices that the PPD does not have, and of conflicts.
    bool force = false;
    bool json = false;
};

} // namespace kvprint
} // namespace programs
