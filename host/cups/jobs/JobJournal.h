// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

namespace platform {
inline namespace files {
class TemporaryFile;
} // namespace files
} // namespace platform

namespace host {
inline namespace cups {
inline namespace jobs {

/// A job that a program sends or has started to send.
struct JobRecord {
    /// "host:port" or the path of a local socket, in the syntax of the -h option of CUPS commands.
    QString server;
    /// Whether the connection must be encrypted.
    bool encrypts = false;
    /// The user of the job; absent for libcups's default.
    std::optional<QString> user = {};
    QString queue;
    QString title;
    /// "urn:uuid:...", the identifier of the job on the server.
    QByteArray uuid;
    /// The server's number of the job; absent until the server has responded.
    std::optional<int> jobId = {};

    /// Returns a short unique name: the beginning of the UUID.
    QString identifier() const;
    /// Returns "QUEUE-NUMBER", as in lp, or identifier() if the number is absent.
    QString name() const;
};

/// The jobs that are being sent, in $XDG_STATE_HOME/kvprint/jobs: one file per job, which only the user can
/// read (0600, in folders of 0700), from before the job is created until its state is known. The file of a
/// program that has ended represents a job that may be left on a server.
class JobJournal {
public:
    /// Opens the journal in $XDG_STATE_HOME, or in ~/.local/state if that is not an absolute path. Creates no
    /// files.
    JobJournal();

    /// The jobs that ended programs have left.
    struct Left {
        /// Sorted by UUID.
        std::vector<JobRecord> jobs;
        /// A message for each file that could not be read and was removed.
        QStringList damages;
    };
    /// Returns the jobs whose programs have ended, and removes damaged files; files of running programs stay
    /// unchanged.
    Left left() const;
    /// Removes a job whose state is known.
    void remove(const JobRecord &record) const;

    /// The path of the journal.
    const QString &folder() const { return m_folder; }
    /// Returns the path of the job's file.
    QString path(const JobRecord &record) const;

private:
    QString m_folder;
};

/// The journal's file for the job that this program sends. The file remains if the program is killed.
class JobJournalEntry {
public:
    /// Writes the file. If it cannot be written, the job is sent without a record.
    explicit JobJournalEntry(JobRecord record);
    ~JobJournalEntry();
    JobJournalEntry(const JobJournalEntry &) = delete;
    JobJournalEntry &operator=(const JobJournalEntry &) = delete;

    /// Records the number of the job that the server has created.
    void setJobId(int jobId);
    /// Removes the file: the job was sent, canceled or rejected.
    void remove();

private:
    void write();

    JobJournal m_journal;
    JobRecord m_record;
    /// Locked while the job is being sent.
    std::unique_ptr<platform::TemporaryFile> m_file;
};

} // namespace jobs
} // namespace cups
} // namespace host
