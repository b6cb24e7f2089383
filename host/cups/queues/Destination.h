// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QCborMap>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace host {

/// An option and its value as a job carries them, byte for byte.
struct NamedValue {
    QByteArray name;
    QByteArray value;

    bool operator==(const NamedValue &) const = default;
};

/// The option's value; null when the list does not have it.
const QByteArray *findValue(const std::vector<NamedValue> &values, const QByteArray &name);

/// What a queue is doing; the numbers are IPP's.
enum class QueueState { Unknown = 0, Ready = 3, Printing = 4, Paused = 5 };

/// A queue, a class of queues, or a user's named set of options for one of them, as it was when the server
/// was asked last.
struct Destination {
    QString queue;
    /// The name of the set of options; nothing for the queue itself.
    std::optional<QString> instance;
    /// For people.
    QString description;
    QString location;
    QString makeAndModel;
    /// Where the server sends its jobs; for discovered queues where they are.
    QString deviceUri;
    bool isClass = false;
    /// The queues of a class.
    QStringList members;
    /// Found on the network; the server gets a queue for it when it is used, and drops it when it is not.
    bool isDiscovered = false;
    /// Where jobs go that name no destination.
    bool isDefault = false;
    bool acceptsJobs = true;
    /// When the administrator changed the queue last, its PPD included, in seconds of the server's own clock;
    /// 0 when the server does not tell.
    qint64 configured = 0;

    QueueState state = QueueState::Unknown;
    /// IPP's keywords, "media-empty-error"; never "none".
    QStringList stateReasons;
    /// The server's own words.
    QString stateMessage;

    /// What the server adds to jobs by itself.
    std::vector<NamedValue> queueOptions;
    /// What the user's lpoptions add to this destination's jobs.
    std::vector<NamedValue> userOptions;

    /// "queue" or "queue/instance".
    QString name() const;

    QCborMap toCbor() const;
    /// Nothing for a map that is not one of toCbor().
    static std::optional<Destination> fromCbor(const QCborMap &map);

    bool operator==(const Destination &) const = default;
};

/// Whether both lead to one printer: under one queue name, at one address, or by the name under which it
/// announces itself on the network (DNS-SD), whatever protocol the address names.
bool isSamePrinter(const Destination &one, const Destination &other);

/// Splits "queue/instance" at its last slash, as lp does.
std::pair<QString, std::optional<QString>> splitDestinationName(const QString &name);

} // namespace host
