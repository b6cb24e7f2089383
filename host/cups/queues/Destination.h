// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QCborMap>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace host {
inline namespace cups {
inline namespace queues {

/// An option and its value, byte for byte as in a job.
struct NamedValue {
    QByteArray name;
    QByteArray value;

    bool operator==(const NamedValue &) const = default;
};

/// Returns the option's value, owned by the list; null if the list does not contain the option.
const QByteArray *findValue(const std::vector<NamedValue> &values, const QByteArray &name);

/// The state of a queue; the values are those of IPP's "printer-state", except Unknown.
enum class QueueState { Unknown = 0, Ready = 3, Printing = 4, Paused = 5 };

/// A queue, a class of queues, or a user's instance of one of them, in the state of the last query to the
/// server.
struct Destination {
    QString queue;
    /// The instance's name; absent for the queue itself.
    std::optional<QString> instance;
    /// The description for users.
    QString description;
    QString location;
    QString makeAndModel;
    /// The URI to which the server sends the queue's jobs; for discovered queues, the printer's URI.
    QString deviceUri;
    /// Whether the destination is a class of queues.
    bool isClass = false;
    /// The queues of a class.
    QStringList members;
    /// Found on the network. The server creates a queue for it when it is used, and removes the queue when it
    /// is not.
    bool isDiscovered = false;
    /// Whether jobs that name no destination go to this one.
    bool isDefault = false;
    /// Whether the destination accepts new jobs.
    bool acceptsJobs = true;
    /// When the administrator last changed the queue, including its PPD, in seconds of the server's clock; 0
    /// if the server does not report it.
    qint64 configured = 0;

    /// The state of the queue; Unknown until the server has reported it.
    QueueState state = QueueState::Unknown;
    /// IPP keywords such as "media-empty-error"; never "none".
    QStringList stateReasons;
    /// The server's message.
    QString stateMessage;

    /// The options that the server adds to jobs.
    std::vector<NamedValue> queueOptions;
    /// The options that the user's lpoptions add to jobs for this destination.
    std::vector<NamedValue> userOptions;

    /// Returns "queue" or "queue/instance".
    QString name() const;

    /// Returns the destination as a map for QueueCache.
    QCborMap toCbor() const;
    /// Reads a map that toCbor() returned. Returns no value if the map names no queue.
    static std::optional<Destination> fromCbor(const QCborMap &map);

    bool operator==(const Destination &) const = default;
};

/// Returns whether both destinations use the same printer: they have the same queue name, the same device
/// URI, or the same name on the network (DNS-SD), with any protocol.
bool isSamePrinter(const Destination &one, const Destination &other);

/// Splits "queue/instance" at the last slash, as lp does. Without a slash, the instance is absent.
std::pair<QString, std::optional<QString>> splitDestinationName(const QString &name);

} // namespace queues
} // namespace cups
} // namespace host
