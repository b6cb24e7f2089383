// SPDX-License-Identifier: Apache-2.0
#include "CupsThreadScope.h"

#include <vector>

namespace host {
inline namespace cups {
inline namespace server {

namespace {

/// The scopes of the calling thread, from the outermost to the current one.
thread_local std::vector<const CupsThreadScope *> scopes;

const char *noPassword(const char *, http_t *, const char *, const char *, void *)
{
    return nullptr;
}

/// Restores the values that libcups reads from the environment and client.conf when it first needs them.
void applyDefaults()
{
    static const http_encryption_t defaultEncryption = [] {
        cupsSetServer(nullptr);
        return cupsEncryption();
    }();
    cupsSetServer(nullptr);
    cupsSetUser(nullptr);
    cupsSetEncryption(defaultEncryption);
    cupsSetPasswordCB2(noPassword, nullptr);
}

} // namespace

CupsThreadScope::CupsThreadScope(const CupsServer &server, cups_password_cb2_t password, void *data)
    : m_server(server)
    , m_password(password ? password : noPassword)
    , m_data(data)
{
    scopes.push_back(this);
    apply();
}

CupsThreadScope::~CupsThreadScope()
{
    std::erase(scopes, this);
    if (scopes.empty())
        applyDefaults();
    else
        scopes.back()->apply();
}

void CupsThreadScope::setUser(const QByteArray &user)
{
    m_server.user = QString::fromUtf8(user);
    cupsSetUser(user.constData());
}

void CupsThreadScope::apply() const
{
    applyDefaults();
    if (m_server.address)
        cupsSetServer(m_server.address->toUtf8().constData());
    if (m_server.encryption == Encryption::Required)
        cupsSetEncryption(HTTP_ENCRYPTION_REQUIRED);
    if (m_server.user)
        cupsSetUser(m_server.user->toUtf8().constData());
    cupsSetPasswordCB2(m_password, m_data);
}

} // namespace server
} // namespace cups
} // namespace host
