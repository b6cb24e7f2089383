// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cups/cups.h>

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>

namespace host {

/// Whether the other end of the connection is this machine: a local socket or the loopback interface. Such a
/// connection cannot be read on the network, encrypted or not.
bool isToThisMachine(http_t *http);
/// Whether others on the network can read what is sent over the connection.
bool isReadable(http_t *http);

/// The certificate by which a print server has identified itself when a connection was encrypted. libcups
/// encrypts without looking at it.
class ServerCertificate {
public:
    /// The one of the encrypted connection; nothing when the server sent none.
    static std::optional<ServerCertificate> of(http_t *http);

    /// The certificate itself, without those of its issuers, as DER.
    QByteArray der() const;
    /// SHA-256 of the certificate in the usual form, "0A:1B:...".
    QString fingerprint() const { return fingerprintOf(der()); }
    static QString fingerprintOf(const QByteArray &der);

    /// Why the system's certificates do not verify the server's, in words; nothing when they do.
    std::optional<QString> verificationError() const;
    /// Why client.conf does not let the user trust the certificate (ValidateCerts, TrustOnFirstUse,
    /// AllowAnyRoot, AllowExpiredCerts), in libcups's words; nothing when it does.
    std::optional<QString> policyError() const;

    /// The certificate that the user has trusted for this server, as DER; nothing when there is none. The
    /// folder is the one where libcups saves such certificates, unless another is named. There is one for
    /// each host name, as in all programs on libcups: servers on several ports of a host need the same
    /// certificate.
    std::optional<QByteArray> trusted(const std::optional<QString> &folder) const;
    /// Saves the certificate as trusted for this server. False when it cannot be written.
    bool save(const std::optional<QString> &folder) const;
    /// The file in which it is saved.
    QString path(const std::optional<QString> &folder) const;

private:
    struct ChainFree {
        void operator()(cups_array_t *chain) const { httpFreeCredentials(chain); }
    };
    using Chain = std::unique_ptr<cups_array_t, ChainFree>;

    ServerCertificate(Chain chain, QByteArray server);

    /// From the server's own certificate to that of the last issuer.
    Chain m_chain;
    /// The name by which the server was connected to.
    QByteArray m_server;
};

} // namespace host
