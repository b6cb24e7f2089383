// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/jobs/JobOptions.h>

#include <QByteArray>
#include <QStringList>

#include <optional>

namespace programs {
inline namespace kvprint {

/// The exit statuses of kvprint.
enum class ExitStatus {
    Printed = 0,
    Failed = 1,
    WrongUsage = 2,
    PrintedWithoutPanel = 3,
    Canceled = 4,
    /// Ended by a signal: 128 and its number, as in shells.
    HungUp = 129,
    Interrupted = 130,
    Terminated = 143,
};

/// Returns the exit status of a run that was ended by the signal.
inline ExitStatus statusOfSignal(int signal)
{
    return static_cast<ExitStatus>(128 + signal);
}

/// The task of a run.
enum class Task {
    Print,
    List,        ///< prints the destinations
    Summary,     ///< prints the summary of the dialog
    DryRun,      ///< prints what would be sent
    ChangeJob,   ///< changes a waiting job
    CancelLeft,  ///< cancels a job that a killed program has left on a print server
    ReleaseLeft, ///< releases such a job, which prints the documents that the server has
};

/// The parsed command line.
struct CommandLine {
    Task task = Task::Print;
    /// The documents in the order in which they are printed; "-" is standard input. For tasks with
    /// documents, an empty list stands for standard input, as with lp.
    QStringList documents;

    /// A PPD file without a queue: prints on the virtual printer. Not together with a destination or a
    /// server.
    std::optional<QString> ppd;
    /// "queue" or "queue/instance"; absent for the default destination.
    std::optional<QString> destination;
    /// "host", "host:port" or the path of a local socket; absent for the default of libcups.
    std::optional<QString> server;
    /// The user for whom is printed; absent for the default of libcups.
    std::optional<QString> user;
    /// Whether the connection must be encrypted.
    bool encrypt = false;

    /// The options of -o, each name once, without those that are stored in settings, paper and title.
    std::vector<host::JobChoice> options;
    /// The values of -n, -P, -H, -q, and of the options with the same meaning.
    host::JobSettings settings;
    /// The paper's name in the PPD, byte for byte.
    std::optional<QByteArray> paper;
    /// The title of the job.
    std::optional<QString> title;
    /// The number of the job for ChangeJob; its queue is the destination, if one is named.
    std::optional<int> jobToChange;
    /// The name or the identifier of the job for CancelLeft and ReleaseLeft.
    QString leftJob;
    /// Suppresses the message that a job was sent.
    bool quiet = false;
    /// The server sends the user a mail when the job is completed; then the run is also quiet, as with lp.
    bool mail = false;

    /// The paths of --bundle, --output and --screenshot.
    std::optional<QString> bundle;
    std::optional<QString> output;
    std::optional<QString> screenshot;
    /// Prints immediately, with the settings that the dialog would open with.
    bool noDialog = false;
    /// Sends the job despite conflicts and choices that the PPD does not have.
    bool force = false;
    bool json = false;
    /// Loads bundles again during whose calls an earlier program ended or was stopped.
    bool retryPanels = false;
};

} // namespace kvprint
} // namespace programs
