// SPDX-License-Identifier: Apache-2.0
// Connections to another machine: encryption, certificates, and passwords that others could read. The other
// machine is this one by its address on the network.
#include "KvprintTest.h"
#include "Terminal.h"

#include <tests/servers/FaultyServer.h>
#include <tests/support/NetworkAddress.h>

#include <QFile>
#include <QSslCertificate>

#include <unistd.h>

namespace {

/// Certificates that root trusts are saved for the whole machine: the program runs as an ordinary user.
const QStringList asOrdinaryUser =
    geteuid() == 0 ? QStringList{QStringLiteral("/usr/bin/setpriv"), QStringLiteral("--reuid=65534"),
                                 QStringLiteral("--regid=65534"), QStringLiteral("--clear-groups")}
                   : QStringList{QStringLiteral("/usr/bin/env")};

} // namespace

class KvprintTrust : public KvprintTest {
protected:
    static void SetUpTestSuite() { host = test_support::networkAddress(); }

    void SetUp() override
    {
        const QString home = folder.filePath(QStringLiteral("home"));
        QDir().mkpath(home + QStringLiteral("/.cups"));
        QDir().mkpath(folder.filePath(QStringLiteral("cache")));
        // The ordinary user's.
        const QFile::Permissions all = QFile::Permissions::fromInt(0x7777);
        for (const QString &path :
             {folder.path(), home, home + QStringLiteral("/.cups"), folder.filePath(QStringLiteral("cache"))})
            EXPECT_TRUE(QFile::setPermissions(path, all));
        addSampleQueue(QStringLiteral("tape"), QStringLiteral("kvelland-lx900"));
    }

    QStringList command(const QStringList &words) const
    {
        return asOrdinaryUser + QStringList{QStringLiteral(KV_PROGRAM)} + words;
    }
    Outcome run(const QStringList &words) const
    {
        const QStringList all = command(words);
        return kvprint.runOther(all.first(), all.mid(1));
    }
    QStringList encrypted() const
    {
        return {QStringLiteral("-E"), QStringLiteral("-h"), server(), QStringLiteral("--list")};
    }
    QStringList printing(const QString &address) const
    {
        return {QStringLiteral("--no-dialog"),
                QStringLiteral("-U"),
                QStringLiteral("anna"),
                QStringLiteral("-h"),
                address,
                QStringLiteral("-d"),
                QStringLiteral("tape"),
                picture()};
    }
    QString server() const { return QStringLiteral("%1:%2").arg(host).arg(cupsd.port()); }

    QByteArray fingerprint() const
    {
        QFile file(cupsd.certificatePath());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(file.fileName());
        return QSslCertificate(&file).digest(QCryptographicHash::Sha256).toHex(':').toUpper();
    }
    QString trustedFile() const { return folder.filePath(QStringLiteral("home/.cups/ssl/%1.crt").arg(host)); }
    void trust() const
    {
        Terminal terminal(command(encrypted()), kvprint.environment);
        terminal.waitFor("continue:");
        terminal.type("yes\n");
        EXPECT_EQ(terminal.end(), 0) << terminal.shown().toStdString();
        EXPECT_TRUE(terminal.shown().contains(fingerprint())) << terminal.shown().toStdString();
        EXPECT_TRUE(terminal.shown().contains(server().toUtf8())) << terminal.shown().toStdString();
    }
    void expectError(const QStringList &words, const QList<QByteArray> &parts) const
    {
        const Outcome outcome = run(words);
        EXPECT_EQ(outcome.status, 1) << outcome;
        EXPECT_EQ(outcome.out, QByteArray()) << outcome;
        for (const QByteArray &part : parts)
            EXPECT_TRUE(outcome.error.contains(part)) << part.toStdString() << "\n" << outcome;
    }

    inline static QString host;
};

TEST_F(KvprintTrust, AnUnknownCertificateIsAnErrorWithoutATerminal)
{
    cupsd.configureForNetwork(host);
    const Outcome outcome = run(encrypted());
    EXPECT_EQ(outcome.status, 1) << outcome;
    EXPECT_EQ(outcome.out, QByteArray());
    for (const QByteArray &part : {server().toUtf8(), fingerprint(), QByteArray("is not trusted: "),
                                   QByteArray("confirm it in the dialog or on a terminal")})
        EXPECT_TRUE(outcome.error.contains(part)) << part.toStdString() << "\n" << outcome;
    EXPECT_FALSE(QFile::exists(trustedFile()));
    // The same when the user's settings encrypt.
    kvprint.environment.insert(QStringLiteral("CUPS_ENCRYPTION"), QStringLiteral("Always"));
    expectError(printing(server()), {server().toUtf8(), fingerprint(), "is not trusted: "});
    EXPECT_TRUE(jobStates().isEmpty());
}

TEST_F(KvprintTrust, WhatIsTrustedOnTheTerminalIsRemembered)
{
    cupsd.configureForNetwork(host);
    trust();
    QFile kept(trustedFile());
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_EQ(QSslCertificate(&kept).digest(QCryptographicHash::Sha256).toHex(':').toUpper(), fingerprint());
    const Outcome again = run(encrypted());
    EXPECT_EQ(again.status, 0) << again;
    EXPECT_TRUE(again.out.contains("tape")) << again;
    const Outcome job = run(QStringList{QStringLiteral("-E")} + printing(server()));
    EXPECT_EQ(job.status, 0) << job;
    recorded(1);
}

TEST_F(KvprintTrust, OnlyYesTrusts)
{
    cupsd.configureForNetwork(host);
    for (const char *const keys : {"no\n", "y\n", "\n", "yes\x15no\n", "\x03", "\x04"}) {
        Terminal terminal(command(encrypted()), kvprint.environment);
        terminal.waitFor("continue:");
        terminal.type(keys);
        terminal.waitFor("is not trusted: ");
        EXPECT_EQ(terminal.end(), 1) << terminal.shown().toStdString();
    }
    EXPECT_FALSE(QFile::exists(trustedFile()));
}

TEST_F(KvprintTrust, AChangedCertificateIsAnErrorThatNamesBoth)
{
    cupsd.configureForNetwork(host);
    trust();
    const QByteArray before = fingerprint();
    cupsd.replaceCertificate();
    const Outcome outcome = run(encrypted());
    const QByteArray now = fingerprint();
    EXPECT_NE(now, before);
    EXPECT_EQ(outcome.status, 1) << outcome;
    for (const QByteArray &part : {server().toUtf8(), before, now, trustedFile().toUtf8()})
        EXPECT_TRUE(outcome.error.contains(part)) << part.toStdString() << "\n" << outcome;
    // The program does not ask about it either: to trust it, the user follows the error message.
    Terminal terminal(command(encrypted()), kvprint.environment);
    EXPECT_EQ(terminal.end(), 1);
    EXPECT_FALSE(terminal.shown().contains("continue:")) << terminal.shown().toStdString();
    EXPECT_TRUE(QFile::remove(trustedFile()));
    trust();
}

TEST_F(KvprintTrust, TheAdministratorsSettingsHold)
{
    // Another name than the one by which the server is asked.
    cupsd.configureForNetwork(host, "ServerName elsewhere.example\n");
    for (const char *const setting : {"TrustOnFirstUse no\n", "AllowAnyRoot no\n", "ValidateCerts yes\n"}) {
        file(QStringLiteral("home/.cups/client.conf"), setting);
        Terminal terminal(command(encrypted()), kvprint.environment);
        EXPECT_EQ(terminal.end(), 1) << setting;
        EXPECT_TRUE(terminal.shown().contains("cannot be trusted")) << terminal.shown().toStdString();
    }
    EXPECT_FALSE(QFile::exists(trustedFile()));
}

TEST_F(KvprintTrust, AnExpiredCertificateMayBeTrustedIfTheSettingsAllowIt)
{
    cupsd.configureForNetwork(host);
    cupsd.useExpiredCertificate();
    for (const bool isAllowed : {false, true}) {
        file(QStringLiteral("home/.cups/client.conf"),
             isAllowed ? "AllowExpiredCerts yes\n" : "AllowExpiredCerts no\n");
        if (isAllowed) {
            trust();
            continue;
        }
        expectError(encrypted(), {server().toUtf8(), fingerprint(), "cannot be trusted", "expired"});
        EXPECT_FALSE(QFile::exists(trustedFile()));
    }
    // A certificate that was trusted before is rejected when the settings change.
    file(QStringLiteral("home/.cups/client.conf"), "AllowExpiredCerts no\n");
    expectError(encrypted(), {"cannot be trusted", "expired"});
}

TEST_F(KvprintTrust, EncryptionThatIsRequiredIsUsedOrNothingIsSent)
{
    cupsd.removeCertificate();
    const FaultyServer refusing(cupsd.port(), {.rejectsEncryption = true});
    const FaultyServer breaking(cupsd.port(), {});
    for (const FaultyServer *const without : {&refusing, &breaking}) {
        const QString address = without->address();
        expectError({QStringLiteral("-E"), QStringLiteral("-h"), address, QStringLiteral("--list")},
                    {address.toUtf8()});
        expectError(QStringList{QStringLiteral("-E")} + printing(address), {address.toUtf8()});
        EXPECT_EQ(without->requestCount(), 0);
    }
    EXPECT_TRUE(jobStates().isEmpty());
}

TEST_F(KvprintTrust, APasswordThatOthersCanReadIsNotSentUnasked)
{
    cupsd.configureForNetwork(host);
    const FaultyServer locked(cupsd.port(), {.credentials = "anna:secret", .host = host});
    expectError(printing(locked.address()),
                {locked.address().toUtf8(), "anna", "not encrypted", "confirm the question"});
    Terminal terminal(command(printing(locked.address())), kvprint.environment);
    terminal.waitFor(locked.address().toUtf8().constData());
    terminal.waitFor("continue:");
    terminal.type("no\n");
    terminal.waitFor("not encrypted");
    EXPECT_EQ(terminal.end(), 1) << terminal.shown().toStdString();
    EXPECT_FALSE(terminal.shown().contains("Password for")) << terminal.shown().toStdString();
    EXPECT_EQ(locked.passwordCount(), 0);
    EXPECT_GT(locked.rejectedCount(), 0);
}

TEST_F(KvprintTrust, APasswordThatOthersCanReadIsSentWhenTheUserAgrees)
{
    cupsd.configureForNetwork(host);
    const FaultyServer locked(cupsd.port(), {.credentials = "anna:secret", .host = host});
    Terminal terminal(command(printing(locked.address())), kvprint.environment);
    terminal.waitFor("continue:");
    terminal.type("YES\n");
    terminal.waitFor("Password for");
    terminal.type("secret\n");
    EXPECT_EQ(terminal.end(), 0) << terminal.shown().toStdString();
    EXPECT_EQ(terminal.shown().count("is not encrypted"), 1) << terminal.shown().toStdString();
    recorded(1);
}
