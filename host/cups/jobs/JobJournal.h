// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

namespace platform {
class TemporaryFile;
}

namespace host {

/// A job that a program is, or was, about to send.
struct JobRecord {
    /// "host:port" or the path of a local socket, as the programs of CUPS take it after -h.
    QString server;
    bool encrypts = false;
    /// The user of the job; nothing for libcups's own choice.
    std::optional<QString> user = {};
    QString queue;
    QString title;
    /// "urn:uuid:...", by which the server knows the job as well.
    QByteArray uuid;
    /// The server's number of the job; nothing until the server has answered.
    std::optional<int> jobId = {};

    /// A short name that no other job has: the beginning of the identifier.
    QString identifier() const;
    /// "QUEUE-NUMBER", as lp names jobs, or the identifier where the number is not known.
    QString name() const;
};

/// The jobs that are being sent, in $XDG_STATE_HOME/kvprint/jobs: one file for each, which only this user can
/// read (0600, in folders of 0700), from before the job is created until its fate is known. A file whose
/// program has ended stands for a job that may be left on a server.
class JobJournal {
public:
    JobJournal();

    struct Left {
        /// In the order of their identifiers.
        std::vector<JobRecord> jobs;
        /// A sentence for each file that could not be read and was removed.
        QStringList damages;
    };
    /// The jobs whose programs have ended; those of programs that still run are left alone.
    Left left() const;
    /// Removes a job whose fate is known.
    void remove(const JobRecord &record) const;

    const QString &folder() const { return m_folder; }
    QString path(const JobRecord &record) const;

private:
    QString m_folder;
};

/// The journal's file of the job that this program is sending; stays behind when the program is killed.
class JobJournalEntry {
public:
    /// Writes the file. Where it cannot be written, the job is sent all the same: it only is not remembered.
    explicit JobJournalEntry(JobRecord record);
    ~JobJournalEntry();
    JobJournalEntry(const JobJournalEntry &) = delete;
    JobJournalEntry &operator=(const JobJournalEntry &) = delete;

    /// The server has created the job.
    void setJobId(int jobId);
    /// The job's fate is known: sent, canceled or refused.
    void remove();

private:
    void write();

    JobJournal m_journal;
    JobRecord m_record;
    /// Locked as long as the job is being sent.
    std::unique_ptr<platform::TemporaryFile> m_file;
};

} // namespace host
