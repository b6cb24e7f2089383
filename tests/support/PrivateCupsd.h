// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ReservedPort.h"

#include <QByteArray>
#include <QHash>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <chrono>
#include <vector>

namespace test_support {

/// What the filter of a queue was given for one document of a job.
struct RecordedDocument {
    /// The arguments of every CUPS filter.
    int job = 0;
    QByteArray user;
    QByteArray title;
    QByteArray copies;
    /// As the filter got them, in one text.
    QByteArray optionText;
    /// The document's bytes.
    QByteArray content;

    /// The option's value as filters read it, "true" or "false" for a switch; a null array when the option
    /// was not given.
    QByteArray option(const char *name) const;
};

/// A CUPS server of the test's own: a real cupsd on a free port of the loopback interface, with its own
/// configuration and spool in a temporary folder. Its queues print to nowhere through a filter that keeps
/// what it was given. Runs as root and as an ordinary user; ends with the object, and with the test
/// program if that dies.
class PrivateCupsd {
public:
    /// Starts the server and waits until it answers. Fails the test when it cannot; check isRunning().
    PrivateCupsd();
    ~PrivateCupsd();
    PrivateCupsd(const PrivateCupsd &) = delete;
    PrivateCupsd &operator=(const PrivateCupsd &) = delete;

    bool isRunning() const { return m_process.state() == QProcess::Running; }
    quint16 port() const { return m_port.number(); }
    /// "127.0.0.1:PORT", as programs take it after -h.
    QString address() const { return m_port.address(); }
    /// A file or folder within the server's temporary folder.
    QString path(const QString &name) const { return m_folder.filePath(name); }

    /// Adds a queue with the PPD, or replaces the PPD of one; its filters are replaced by the recording one.
    /// Further arguments are lpadmin's.
    void addQueue(const QString &name, const QByteArray &ppd, const QStringList &arguments = {});
    /// Gives a queue that addQueue() has made another PPD. The server reports the times of changes in
    /// seconds, so this waits for the second after the queue's last change.
    void replacePpd(const QString &name, const QByteArray &ppd);
    /// Adds a queue without a PPD.
    void addRawQueue(const QString &name);
    void addClass(const QString &name, const QStringList &members);
    void removeQueue(const QString &name);
    /// Stops the queue from printing, or lets it print again; it takes jobs all the while.
    void pause(const QString &name, const QString &reason = QStringLiteral("Paused by the test"));
    void resume(const QString &name);
    /// Makes the queue refuse jobs.
    void reject(const QString &name, const QString &reason);

    /// While it is on, filters report an empty roll and wait.
    void setMediaEmpty(bool empty);

    /// While it is on, the server can write no file of more than some hundred kilobytes, as on a full disk.
    void setSpoolFull(bool full);

    /// What filters were given so far, in the order in which they finished.
    std::vector<RecordedDocument> documents() const;
    /// Removes what filters were given so far. To be called while nothing is printed.
    void forgetDocuments();
    /// Waits until so many documents have passed the filters. Fails the test when they do not.
    std::vector<RecordedDocument> waitForDocuments(std::size_t count);

    /// Starts the server anew with these lines at the end of its configuration, in place of earlier ones.
    void configure(const QByteArray &lines);

    /// Has the server listen on that address of this machine too, which it calls its name; lines as for
    /// configure().
    void configureForNetwork(const QString &host, const QByteArray &lines = {});
    /// Gives the server another certificate.
    void replaceCertificate();
    /// Gives the server, which was configured for a network, one that has expired.
    void useExpiredCertificate();
    /// Removes the server's certificate, so that it cannot encrypt.
    void removeCertificate();
    /// The certificate's file, for a server that was configured for a network and has been asked once to
    /// encrypt.
    QString certificatePath() const;

    /// Ends the server at once, as a crash would.
    void kill();
    /// Starts it again on the same port, with all its queues and jobs.
    void restart();

    /// Runs a program of CUPS ("lp", "lpstat") for this server and answers its standard output. Fails the
    /// test when it fails.
    QByteArray run(const QString &program, const QStringList &arguments) const;
    /// The end of the server's log, to be shown when a test fails.
    QByteArray log() const;

private:
    void writeConfiguration();
    void start();
    bool waitUntilReady();

    QTemporaryDir m_folder;
    QProcess m_process;
    ReservedPort m_port;
    QString m_networkName;
    /// When addQueue() was done with each queue, in seconds since 1970.
    QHash<QString, qint64> m_configured;
};

} // namespace test_support
