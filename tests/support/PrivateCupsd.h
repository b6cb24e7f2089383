// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ReservedPort.h"

#include <QByteArray>
#include <QHash>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <chrono>
#include <ctime>
#include <vector>

namespace test_support {

/// What the filter of a queue received for one document of a job.
struct RecordedDocument {
    /// The arguments of every CUPS filter.
    int job = 0;
    QByteArray user;
    QByteArray title;
    QByteArray copies;
    /// As the filter received them, in one text.
    QByteArray optionText;
    /// The document's bytes.
    QByteArray content;

    /// Returns the option's value as filters read it, "true" or "false" for a switch; a null array when the
    /// option is absent.
    QByteArray option(const char *name) const;
};

/// A CUPS server of the test's own: a real cupsd on a free port of the loopback interface, with its own
/// configuration and spool in a temporary folder. Its queues discard the output; their filter records what it
/// receives. Runs as root and as an ordinary user. The server ends with the object, and with the test program
/// if that crashes.
class PrivateCupsd {
public:
    /// Starts the server and waits until it answers. Fails the test on error; check isRunning().
    PrivateCupsd();
    ~PrivateCupsd();
    PrivateCupsd(const PrivateCupsd &) = delete;
    PrivateCupsd &operator=(const PrivateCupsd &) = delete;

    bool isRunning() const { return m_process.state() == QProcess::Running; }
    quint16 port() const { return m_port.number(); }
    /// "127.0.0.1:PORT", as programs take it after -h.
    QString address() const { return m_port.address(); }
    /// Returns the path of a file or folder in the server's temporary folder.
    QString path(const QString &name) const { return m_folder.filePath(name); }

    /// Adds a queue with the PPD, or replaces the PPD of one; its filters are replaced by the recording one.
    /// The further arguments are passed to lpadmin.
    void addQueue(const QString &name, const QByteArray &ppd, const QStringList &arguments = {});
    /// Replaces the PPD of a queue that addQueue() has added. The server reports the times of changes in
    /// seconds, so this waits for the second after the queue's last change.
    void replacePpd(const QString &name, const QByteArray &ppd);
    /// Adds a queue without a PPD.
    void addRawQueue(const QString &name);
    void addClass(const QString &name, const QStringList &members);
    void removeQueue(const QString &name);
    /// Pauses or resumes printing; the queue accepts jobs in both states.
    void pause(const QString &name, const QString &reason = QStringLiteral("Paused by the test"));
    void resume(const QString &name);
    /// Makes the queue reject jobs.
    void reject(const QString &name, const QString &reason);

    /// While set, filters report an empty roll and wait.
    void setMediaEmpty(bool empty);

    /// While set, the server cannot write files larger than some hundred kilobytes, as on a full disk.
    void setSpoolFull(bool full);

    /// Returns what the filters have received so far, in the order in which they finished.
    std::vector<RecordedDocument> documents() const;
    /// Removes the records of the filters. Must not be called while a job prints.
    void clearDocuments();
    /// Waits until count documents have passed the filters. Fails the test on timeout.
    std::vector<RecordedDocument> waitForDocuments(std::size_t count);

    /// Restarts the server with these lines at the end of its configuration, replacing earlier ones.
    void configure(const QByteArray &lines);

    /// Makes the server also listen on the address of this machine and use it as its name; lines as for
    /// configure().
    void configureForNetwork(const QString &host, const QByteArray &lines = {});
    /// Replaces the server's certificate.
    void replaceCertificate();
    /// Replaces the certificate of a server configured for a network with an expired one.
    void useExpiredCertificate();
    /// Removes the server's certificate, so that it cannot encrypt.
    void removeCertificate();
    /// Returns the path of the certificate of a server that was configured for a network and has encrypted a
    /// connection before.
    QString certificatePath() const;

    /// Ends the server immediately, like a crash.
    void kill();
    /// Starts it again on the same port, with all its queues and jobs.
    void restart();

    /// Runs a program of CUPS ("lp", "lpstat") for this server and returns its standard output. Fails the
    /// test when the program fails.
    QByteArray run(const QString &program, const QStringList &arguments) const;
    /// Returns the end of the server's log, to be printed when a test fails.
    QByteArray log() const;

private:
    void writeConfiguration();
    void start();
    bool waitUntilReady();

    QTemporaryDir m_folder;
    QProcess m_process;
    ReservedPort m_port;
    QString m_networkName;
    /// When addQueue() finished for each queue, in seconds since 1970.
    QHash<QString, std::time_t> m_configured;
};

} // namespace test_support
