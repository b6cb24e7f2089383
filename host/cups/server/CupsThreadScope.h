// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CupsServer.h"

#include <cups/cups.h>

namespace host {
inline namespace cups {
inline namespace server {

/// Sets the libcups settings of the calling thread: server, encryption, user and password callback. The
/// destructor restores those of the enclosing scope, or libcups's defaults. No other class changes these
/// settings, so that libcups never calls a callback whose data no longer exists.
///
/// A scope must be destroyed on the thread that created it.
class CupsThreadScope {
public:
    /// libcups calls the callback with data whenever the server requires a password; data is borrowed and
    /// must outlive the scope. Without a callback, libcups sends no password and the request fails. libcups
    /// itself never prompts on the terminal.
    explicit CupsThreadScope(const CupsServer &server, cups_password_cb2_t password = nullptr,
                             void *data = nullptr);
    ~CupsThreadScope();
    Q_DISABLE_COPY_MOVE(CupsThreadScope)

    /// Sets another user than the server's, in UTF-8: the user whose password was entered.
    void setUser(const QByteArray &user);

private:
    void apply() const;

    CupsServer m_server;
    cups_password_cb2_t m_password;
    void *m_data;
};

} // namespace server
} // namespace cups
} // namespace host
