// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CupsServer.h"

#include <cups/cups.h>

namespace host {

/// The settings that libcups keeps for each thread: server, encryption, user and password callback. A scope
/// sets them for the calling thread and, when it ends, puts back those of the scope around it, or libcups's
/// defaults. No other class sets them, so that no call of libcups meets a callback whose data no longer
/// exists.
///
/// A scope ends on the thread on which it began.
class CupsThreadScope {
public:
    /// The callback is called with data, which must outlive the scope, whenever the server requires a
    /// password; without a callback, libcups sends none and the request fails. libcups never asks on the
    /// terminal itself.
    explicit CupsThreadScope(const CupsServer &server, cups_password_cb2_t password = nullptr,
                             void *data = nullptr);
    ~CupsThreadScope();
    Q_DISABLE_COPY_MOVE(CupsThreadScope)

    /// Another user than the server's, in UTF-8: the one whose password was given.
    void setUser(const QByteArray &user);

private:
    void apply() const;

    CupsServer m_server;
    cups_password_cb2_t m_password;
    void *m_data;
};

} // namespace host
