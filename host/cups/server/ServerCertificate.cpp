// SPDX-License-Identifier: Apache-2.0
#include "ServerCertificate.h"

#include <QCryptographicHash>
#include <QDir>
#include <QSslCertificate>
#include <QSslError>

#include <array>

#include <unistd.h>

namespace host {
inline namespace cups {
inline namespace server {

namespace {

QByteArray derOf(void *credential)
{
    const auto *const bytes = static_cast<http_credential_t *>(credential);
    return bytes ? QByteArray(static_cast<const char *>(bytes->data), static_cast<qsizetype>(bytes->datalen))
                 : QByteArray();
}

/// Returns null for libcups's own folder.
QByteArray folderArgument(const std::optional<QString> &folder)
{
    return folder ? folder->toLocal8Bit() : QByteArray();
}

const char *pointerTo(const QByteArray &folder)
{
    return folder.isNull() ? nullptr : folder.constData();
}

} // namespace

bool isToThisMachine(http_t *http)
{
    return httpAddrLocalhost(httpGetAddress(http)) != 0;
}

bool isReadable(http_t *http)
{
    return !httpIsEncrypted(http) && !isToThisMachine(http);
}

ServerCertificate::ServerCertificate(Chain chain, QByteArray server)
    : m_chain(std::move(chain))
    , m_server(std::move(server))
{
}

std::optional<ServerCertificate> ServerCertificate::of(http_t *http)
{
    cups_array_t *credentials = nullptr;
    httpCopyCredentials(http, &credentials);
    Chain chain(credentials);
    if (!chain || cupsArrayCount(chain.get()) == 0)
        return std::nullopt;
    std::array<char, HTTP_MAX_HOST> name = {};
    httpGetHostname(http, name.data(), static_cast<int>(name.size()));
    return ServerCertificate(std::move(chain), name.data());
}

QByteArray ServerCertificate::der() const
{
    return derOf(cupsArrayFirst(m_chain.get()));
}

QString ServerCertificate::fingerprintOf(const QByteArray &der)
{
    const QByteArray digest = QCryptographicHash::hash(der, QCryptographicHash::Sha256);
    return QString::fromLatin1(digest.toHex(':').toUpper());
}

std::optional<QString> ServerCertificate::verificationError() const
{
    QList<QSslCertificate> certificates;
    for (void *each = cupsArrayFirst(m_chain.get()); each; each = cupsArrayNext(m_chain.get()))
        certificates.append(QSslCertificate(derOf(each), QSsl::Der));
    QStringList errors;
    for (const QSslError &error : QSslCertificate::verify(certificates, QString::fromUtf8(m_server)))
        errors.append(error.errorString());
    errors.removeDuplicates();
    return errors.isEmpty() ? std::nullopt : std::optional(errors.join(QStringLiteral("; ")));
}

std::optional<QString> ServerCertificate::policyError() const
{
    switch (httpCredentialsGetTrust(m_chain.get(), m_server.constData())) {
    case HTTP_TRUST_OK:
    case HTTP_TRUST_RENEWED:
        return std::nullopt;
    default:
        return QString::fromUtf8(cupsLastErrorString());
    }
}

std::optional<QByteArray> ServerCertificate::trusted(const std::optional<QString> &folder) const
{
    cups_array_t *credentials = nullptr;
    httpLoadCredentials(pointerTo(folderArgument(folder)), &credentials, m_server.constData());
    const Chain chain(credentials);
    if (!chain || cupsArrayCount(chain.get()) == 0)
        return std::nullopt;
    return derOf(cupsArrayFirst(chain.get()));
}

bool ServerCertificate::save(const std::optional<QString> &folder) const
{
    return httpSaveCredentials(pointerTo(folderArgument(folder)), m_chain.get(), m_server.constData()) == 0;
}

QString ServerCertificate::path(const std::optional<QString> &folder) const
{
    // The same path as in libcups: root's certificates are those of the machine.
    const QString usual =
        getuid() == 0 ? QStringLiteral("/etc/cups/ssl") : QDir::homePath() + QStringLiteral("/.cups/ssl");
    QString file = QString::fromUtf8(m_server);
    for (QChar &letter : file) {
        const bool isPlain = letter.unicode() < 0x80 && letter.isLetterOrNumber();
        if (!isPlain && letter != u'-' && letter != u'.')
            letter = u'_';
    }
    return folder.value_or(usual) + u'/' + file + QStringLiteral(".crt");
}

} // namespace server
} // namespace cups
} // namespace host
