// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Passwords.h"
#include "Trust.h"

#include <host/base/Result.h>

#include <QByteArray>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace host {
inline namespace cups {
inline namespace server {

/// Why a request to a print server, or the operation that needs it, failed.
enum class CupsErrorKind {
    Unreachable,   ///< no connection: unknown host, connection rejected, no encryption
    Silent,        ///< the server accepted the connection or the request and does not respond
    Untrusted,     ///< its certificate is not verified, or differs from the trusted one
    NotAuthorized, ///< the server requires a password, or a different one
    NotFound,      ///< the server has no such queue or job
    Rejected,      ///< the server responded with another error
    BadDocument,   ///< a document cannot be read
    Canceled,      ///< canceled on request
    OutcomeUnknown ///< a job may be left on the server or printed; the message describes which
};
/// An error with its message for the user.
using CupsError = Failure<CupsErrorKind>;

/// When a connection is encrypted.
enum class Encryption {
    IfRequested, ///< if the server, CUPS_ENCRYPTION or client.conf requires it
    Required,
};

/// A CUPS server and how to connect to it. A value: each thread that uses the server has its own copy.
struct CupsServer {
    /// "host", "host:port" or the path of a local socket, in the syntax of the -h option of CUPS commands;
    /// absent for the server of CUPS_SERVER, client.conf or the local machine.
    std::optional<QString> address;
    Encryption encryption = Encryption::IfRequested;
    /// The user for whom jobs are printed; absent for CUPS_USER or the user who is logged in.
    std::optional<QString> user;
    /// How long a server may be silent before a request fails.
    std::chrono::milliseconds timeout{10000};
    /// The clock that measures this time.
    std::function<std::chrono::steady_clock::time_point()> clock = std::chrono::steady_clock::now;
    /// Asks the user for a password, on the main thread; if null, requests that require a password fail.
    PasswordHandler askPassword;
    /// The passwords that the user has entered; shared by all copies, so that the user is not asked twice.
    std::shared_ptr<PasswordMemory> passwords = std::make_shared<PasswordMemory>();
    /// Asks the user, on the main thread, whether to trust a certificate or to send a password unencrypted;
    /// if null, the answer is no.
    TrustHandler askTrust;
    /// The user's answers; shared by all copies.
    std::shared_ptr<TrustMemory> trust = std::make_shared<TrustMemory>();
    /// The folder of the certificates that the user trusts; absent for that of libcups, which all programs
    /// that use libcups read.
    std::optional<QString> certificates;

    /// Starts a new action of the user: the user may be asked again after declining.
    void resetRefusals() const;

    /// Returns "host:port" or the path of the socket, for messages and as the name of the server's cache.
    /// Does not use the network.
    QString displayName() const;
};

} // namespace server
} // namespace cups
} // namespace host
