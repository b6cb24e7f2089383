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

enum class CupsFailure {
    Unreachable,   ///< no connection: no such host, nobody listening, no encryption
    Silent,        ///< it took the connection or the request and does not answer
    Untrusted,     ///< its certificate is not verified, or it is another one than before
    NotAuthorized, ///< it wants a password, or another one
    NotFound,      ///< it has no such queue or job
    Refused,       ///< it answered with another error
    BadDocument,   ///< a document cannot be read
    Cancelled,     ///< given up on request
    OutcomeUnknown ///< a job may be left on the server, or printed: the message says which
};
using CupsError = Failure<CupsFailure>;

enum class Encryption {
    IfRequested, ///< when the server, CUPS_ENCRYPTION or client.conf says so
    Required,
};

/// Which CUPS server is asked, and how. A value: every thread that talks to the server has its own copy.
struct CupsServer {
    /// "host", "host:port" or the path of a local socket, as the programs of CUPS take it after -h;
    /// nothing for the one of CUPS_SERVER, client.conf or the local machine.
    std::optional<QString> address;
    Encryption encryption = Encryption::IfRequested;
    /// The user for whom jobs are printed; nothing for CUPS_USER or who is logged in.
    std::optional<QString> user;
    /// How long a server may be silent before it is given up.
    std::chrono::milliseconds timeout{10000};
    /// What the silence is measured by.
    std::function<std::chrono::steady_clock::time_point()> clock = std::chrono::steady_clock::now;
    /// Asks the user for a password, on the main thread; without one, whatever needs a password fails.
    PasswordHandler askPassword;
    /// What the user has answered; shared by all copies, so that nobody is asked twice.
    std::shared_ptr<PasswordMemory> passwords = std::make_shared<PasswordMemory>();
    /// Asks the user, on the main thread, what the connection to another machine may do; without one, the
    /// answer is no.
    TrustHandler askTrust;
    /// What the user has answered; shared by all copies.
    std::shared_ptr<TrustMemory> trust = std::make_shared<TrustMemory>();
    /// The folder with the certificates that the user trusts; nothing for libcups's own, which all programs
    /// on libcups read.
    std::optional<QString> certificates;

    /// Begins a new action of the user: what the user has refused before may be asked for again.
    void forgetRefusals() const;

    /// "host:port" or the path of the socket, for messages and as a name for what is kept of it. Asks no
    /// network.
    QString displayName() const;
};

} // namespace host
