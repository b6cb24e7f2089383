// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cups/cups.h>

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>

namespace host {
inline namespace cups {
inline namespace server {

/// Returns whether the peer of the connection is this machine: a local socket or the loopback interface. Such
/// a connection cannot be read on the network, whether it is encrypted or not.
bool isToThisMachine(http_t *http);
/// Returns whether others on the network can read what is sent over the connection.
bool isReadable(http_t *http);

/// The certificate with which a print server has identified itself on an encrypted connection. libcups
/// encrypts without checking it.
class ServerCertificate {
public:
    /// Returns the certificate of the encrypted connection; no value if the server sent none.
    static std::optional<ServerCertificate> of(http_t *http);

    /// Returns the certificate itself, without those of its issuers, in DER.
    QByteArray der() const;
    /// Returns the SHA-256 fingerprint of the certificate in the usual form, "0A:1B:...".
    QString fingerprint() const { return fingerprintOf(der()); }
    /// Returns the same for a certificate in DER.
    static QString fingerprintOf(const QByteArray &der);

    /// Returns why the system's certificates do not verify the server's, as text; no value if they do.
    std::optional<QString> verificationError() const;
    /// Returns why client.conf does not allow the user to trust the certificate (ValidateCerts,
    /// TrustOnFirstUse, AllowAnyRoot, AllowExpiredCerts), as libcups's message; no value if it does.
    std::optional<QString> policyError() const;

    /// Returns the certificate that the user has trusted for this server, in DER; no value if there is none.
    /// If the folder is absent, it is the one in which libcups saves such certificates. There is one
    /// certificate per host name, as in all programs that use libcups: servers on several ports of a host
    /// need the same certificate.
    std::optional<QByteArray> trusted(const std::optional<QString> &folder) const;
    /// Saves the certificate as trusted for this server. Returns false if it cannot be written.
    bool save(const std::optional<QString> &folder) const;
    /// Returns the path of the file in which it is saved.
    QString path(const std::optional<QString> &folder) const;

private:
    struct ChainFree {
        void operator()(cups_array_t *chain) const { httpFreeCredentials(chain); }
    };
    using Chain = std::unique_ptr<cups_array_t, ChainFree>;

    ServerCertificate(Chain chain, QByteArray server);

    /// From the server's own certificate to that of the last issuer.
    Chain m_chain;
    /// The host name that was used to connect to the server.
    QByteArray m_server;
};

} // namespace server
} // namespace cups
} // namespace host
