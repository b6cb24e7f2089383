// SPDX-License-Identifier: Apache-2.0
// Certificates and passwords on connections to another machine, which is this one by its address on the
// network.
#include <host/cups/queues/DestinationList.h>
#include <host/cups/server/CupsConnection.h>
#include <tests/servers/FaultyServer.h>
#include <tests/servers/Servers.h>
#include <tests/support/NetworkAddress.h>
#include <tests/support/PpdBuilder.h>
#include <tests/support/PrivateCupsd.h>
#include <tests/support/Waiting.h>

#include <QSslCertificate>
#include <QSslConfiguration>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using host::CupsErrorKind;
using host::CupsServer;
using host::DestinationList;
using test_support::PrivateCupsd;
using test_support::waitUntil;

namespace {

/// The system trusts the certificate, as if its administrator had installed it.
class SystemCertificate {
public:
    explicit SystemCertificate(const QString &path)
    {
        QSslConfiguration trusting = m_usual;
        EXPECT_TRUE(trusting.addCaCertificates(path));
        QSslConfiguration::setDefaultConfiguration(trusting);
    }
    ~SystemCertificate() { QSslConfiguration::setDefaultConfiguration(m_usual); }
    SystemCertificate(const SystemCertificate &) = delete;
    SystemCertificate &operator=(const SystemCertificate &) = delete;

private:
    const QSslConfiguration m_usual = QSslConfiguration::defaultConfiguration();
};

/// Several questions to one server at once, each on a connection of its own.
class Questions {
public:
    Questions(const CupsServer &server, int count)
    {
        for (int i = 0; i < count; ++i) {
            m_lists.push_back(std::make_unique<DestinationList>(server));
            QObject::connect(m_lists.back().get(), &DestinationList::refreshed, [this] { ++refreshed; });
            QObject::connect(m_lists.back().get(), &DestinationList::failed,
                             [this](const host::CupsError &error) { errors.push_back(error); });
        }
    }
    void ask()
    {
        refreshed = 0;
        errors.clear();
        for (const auto &list : m_lists)
            list->refresh(host::Discovery::No);
        EXPECT_TRUE(waitUntil(
            [this] { return static_cast<std::size_t>(refreshed) + errors.size() == m_lists.size(); }));
    }

    int refreshed = 0;
    std::vector<host::CupsError> errors;

private:
    std::vector<std::unique_ptr<DestinationList>> m_lists;
};

class TrustTest : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        cupsd = std::make_unique<PrivateCupsd>();
        cupsd->addQueue(QStringLiteral("tape"), test_support::PpdBuilder().ppd());
        host = test_support::networkAddress();
        if (!host.isEmpty())
            cupsd->configureForNetwork(host);
    }
    static void TearDownTestSuite() { cupsd.reset(); }

    void SetUp() override
    {
        server = serverAt(QStringLiteral("%1:%2").arg(host).arg(cupsd->port()));
        server.encryption = host::Encryption::Required;
        server.certificates = folder.path();
        answerTrust(true);
    }

    void answerTrust(bool granted)
    {
        server.askTrust = [this, granted](const host::TrustRequest &request) {
            requests.push_back(request);
            granted ? request.grant() : request.reject();
        };
    }
    void answerPasswords(const QStringList &answers)
    {
        server.askPassword = [this, answers](const host::PasswordRequest &request) {
            const QString answer = answers.value(passwordPrompts.size(), answers.last());
            passwordPrompts.append(request.prompt());
            request.answer(QStringLiteral("anna"), answer);
        };
    }
    /// The list of destinations needs a password from now on.
    void lockDestinations() const
    {
        cupsd->configureForNetwork(
            host, "DefaultPolicy locked\n<Policy locked>\nJobPrivateValues none\n"
                  "SubscriptionPrivateValues none\n<Limit CUPS-Get-Printers>\nAuthType Basic\n"
                  "Require valid-user\nOrder deny,allow\nAllow all\n</Limit>\n"
                  "<Limit All>\nOrder deny,allow\nAllow all\n</Limit>\n</Policy>\n");
    }
    QStringList keptFiles() const { return QDir(folder.path()).entryList(QDir::Files); }

    inline static std::unique_ptr<PrivateCupsd> cupsd;
    QTemporaryDir folder;
    inline static QString host;
    CupsServer server;
    std::vector<host::TrustRequest> requests;
    QStringList passwordPrompts;
};

} // namespace

TEST_F(TrustTest, ACertificateIsAskedForOnceByAllConnections)
{
    Questions questions(server, 4);
    questions.ask();
    EXPECT_EQ(questions.refreshed, 4);
    ASSERT_EQ(requests.size(), 1U);
    EXPECT_EQ(requests[0].subject(), host::TrustRequest::Subject::Certificate);
    EXPECT_EQ(requests[0].server(), server.displayName());
    EXPECT_EQ(keptFiles(), QStringList{host + QStringLiteral(".crt")});
    // The next start of the program does not ask either.
    server.trust = std::make_shared<host::TrustMemory>();
    Questions later(server, 1);
    later.ask();
    EXPECT_EQ(later.refreshed, 1);
    EXPECT_EQ(requests.size(), 1U);
}

TEST_F(TrustTest, ARefusedCertificateIsAskedForAgainByTheUsersNextAction)
{
    answerTrust(false);
    Questions questions(server, 2);
    questions.ask();
    ASSERT_EQ(questions.errors.size(), 2U);
    EXPECT_EQ(questions.errors[0].kind, CupsErrorKind::Untrusted);
    EXPECT_TRUE(questions.errors[0].message.contains(requests.at(0).fingerprint()));
    EXPECT_EQ(requests.size(), 1U);
    server.resetRefusals();
    questions.ask();
    EXPECT_EQ(requests.size(), 2U);
    EXPECT_EQ(keptFiles(), QStringList());
}

TEST_F(TrustTest, ACertificateThatTheSystemVerifiesIsNotAskedFor)
{
    answerTrust(false);
    Questions questions(server, 1);
    questions.ask();
    EXPECT_EQ(requests.size(), 1U);
    const SystemCertificate trusted(cupsd->certificatePath());
    server.resetRefusals();
    questions.ask();
    EXPECT_EQ(questions.refreshed, 1);
    EXPECT_EQ(requests.size(), 1U);
    EXPECT_EQ(keptFiles(), QStringList());
}

TEST_F(TrustTest, AVerifiedCertificateOfAnotherHostIsAskedFor)
{
    cupsd->configureForNetwork(host, "ServerName elsewhere.example\n");
    answerTrust(false);
    Questions questions(server, 1);
    questions.ask();
    const SystemCertificate trusted(cupsd->path(QStringLiteral("etc/ssl/elsewhere.example.crt")));
    server.resetRefusals();
    questions.ask();
    cupsd->configureForNetwork(host);
    ASSERT_EQ(requests.size(), 2U);
    EXPECT_TRUE(requests[0].reason().contains(QStringLiteral("self-signed")))
        << qPrintable(requests[0].reason());
    EXPECT_TRUE(requests[1].reason().startsWith(QStringLiteral("The host name did not match")))
        << qPrintable(requests[1].reason());
    EXPECT_EQ(keptFiles(), QStringList());
}

TEST_F(TrustTest, AVerifiedCertificateThatHasExpiredIsAskedFor)
{
    cupsd->useExpiredCertificate();
    const SystemCertificate trusted(cupsd->certificatePath());
    answerTrust(false);
    Questions questions(server, 1);
    questions.ask();
    cupsd->replaceCertificate();
    ASSERT_EQ(questions.errors.size(), 1U);
    EXPECT_TRUE(questions.errors[0].message.contains(QStringLiteral("expired")))
        << qPrintable(questions.errors[0].message);
}

TEST_F(TrustTest, ACertificateThatChangesWhileThePasswordIsAskedForIsSentNone)
{
    lockDestinations();
    server.askPassword = [this](const host::PasswordRequest &request) {
        passwordPrompts.append(request.prompt());
        cupsd->replaceCertificate();
        request.answer(QStringLiteral("anna"), QStringLiteral("secret"));
    };
    Questions questions(server, 1);
    questions.ask();
    cupsd->configureForNetwork(host);
    ASSERT_EQ(questions.errors.size(), 1U);
    EXPECT_EQ(passwordPrompts.size(), 1);
    EXPECT_EQ(questions.errors[0].kind, CupsErrorKind::Untrusted) << qPrintable(questions.errors[0].message);
    EXPECT_FALSE(cupsd->log().contains("as anna using")) << cupsd->log().toStdString();
}

TEST_F(TrustTest, AServerThatRequiresEncryptionGetsItBeforeThePassword)
{
    lockDestinations();
    server.encryption = host::Encryption::IfRequested;
    answerPasswords({QStringLiteral("wrong")});
    Questions questions(server, 1);
    questions.ask();
    cupsd->configureForNetwork(host);
    ASSERT_EQ(requests.size(), 1U);
    EXPECT_EQ(requests[0].subject(), host::TrustRequest::Subject::Certificate);
    EXPECT_EQ(passwordPrompts.size(), 3);
    ASSERT_EQ(questions.errors.size(), 1U);
    EXPECT_TRUE(questions.errors[0].message.contains(QStringLiteral("does not accept the password")))
        << qPrintable(questions.errors[0].message);
}

TEST_F(TrustTest, AnAnswerForOneServerIsNoneForAnother)
{
    server.encryption = host::Encryption::IfRequested;
    answerPasswords({QStringLiteral("secret")});
    for (int i = 1; i <= 2; ++i) {
        const FaultyServer guarded(cupsd->port(), {.credentials = "anna:secret", .host = host});
        server.address = guarded.address();
        Questions questions(server, 1);
        questions.ask();
        EXPECT_EQ(questions.refreshed, 1);
        ASSERT_EQ(requests.size(), static_cast<std::size_t>(i));
        EXPECT_EQ(requests.back().server(), guarded.address());
    }
}

TEST_F(TrustTest, APasswordForThePrinterIsSentEncrypted)
{
    server.encryption = host::Encryption::IfRequested;
    server.askTrust = nullptr;
    host::BackgroundTask task;
    auto connection = host::CupsConnection::open(server, task);
    ASSERT_TRUE(connection) << qPrintable(connection.error().message);
    const auto ask = [&](bool hasPassword) {
        host::IppPointer request = connection.value().newRequest(IPP_OP_CUPS_GET_PRINTERS);
        if (hasPassword)
            ippAddString(request.get(), IPP_TAG_JOB, IPP_TAG_TEXT, "auth-info", nullptr, "secret");
        return connection.value().exchange(std::move(request), "/");
    };
    EXPECT_TRUE(ask(false));
    const auto answer = ask(true);
    ASSERT_FALSE(answer);
    EXPECT_EQ(answer.error().kind, CupsErrorKind::Untrusted) << qPrintable(answer.error().message);
}

TEST_F(TrustTest, ThisMachineNeedsNoCertificate)
{
    server.address = cupsd->address();
    Questions questions(server, 1);
    questions.ask();
    EXPECT_EQ(questions.refreshed, 1);
    EXPECT_TRUE(requests.empty());
}

TEST_F(TrustTest, AKnownPasswordIsNotSentWhereOthersCanReadItEither)
{
    server.encryption = host::Encryption::IfRequested;
    answerTrust(false);
    answerPasswords({QStringLiteral("secret")});
    const FaultyServer near(cupsd->port(), {.credentials = "anna:secret"});
    server.address = near.address();
    Questions here(server, 1);
    here.ask();
    EXPECT_EQ(here.refreshed, 1);
    const FaultyServer far(cupsd->port(), {.credentials = "anna:secret", .host = host});
    server.address = far.address();
    Questions there(server, 2);
    there.ask();
    ASSERT_EQ(there.errors.size(), 2U);
    EXPECT_EQ(there.errors[0].kind, CupsErrorKind::NotAuthorized);
    EXPECT_EQ(far.passwordCount(), 0);
    ASSERT_EQ(requests.size(), 1U);
    EXPECT_EQ(requests[0].subject(), host::TrustRequest::Subject::ReadablePassword);
    EXPECT_EQ(passwordPrompts.size(), 1);
}

TEST_F(TrustTest, APasswordIsAskedForOnceByAllConnectionsAndServesARestartedServer)
{
    const FaultyServer guarded(cupsd->port(), {.credentials = "anna:secret"});
    server = serverAt(guarded.address());
    answerPasswords({QStringLiteral("secret")});
    Questions questions(server, 4);
    questions.ask();
    EXPECT_EQ(questions.refreshed, 4);
    EXPECT_EQ(passwordPrompts.size(), 1);
    cupsd->kill();
    cupsd->restart();
    questions.ask();
    EXPECT_EQ(questions.refreshed, 4);
    EXPECT_EQ(passwordPrompts.size(), 1);
}

TEST_F(TrustTest, AWrongPasswordIsAskedForThreeTimesAndThenNoMore)
{
    const FaultyServer guarded(cupsd->port(), {.credentials = "anna:secret"});
    server = serverAt(guarded.address());
    answerPasswords({QStringLiteral("wrong")});
    Questions questions(server, 1);
    questions.ask();
    ASSERT_EQ(questions.errors.size(), 1U);
    EXPECT_TRUE(questions.errors[0].message.contains(QStringLiteral("does not accept the password")))
        << qPrintable(questions.errors[0].message);
    ASSERT_EQ(passwordPrompts.size(), 3);
    EXPECT_FALSE(passwordPrompts[0].contains(QStringLiteral("is wrong")));
    EXPECT_TRUE(passwordPrompts[1].contains(QStringLiteral("is wrong")));
    EXPECT_TRUE(passwordPrompts[2].contains(QStringLiteral("is wrong")));
    // A rejected password is not sent again: the server may lock the user out.
    EXPECT_EQ(guarded.passwordCount(), 3);
    questions.ask();
    EXPECT_EQ(passwordPrompts.size(), 3);
    EXPECT_EQ(guarded.passwordCount(), 3);
    server.resetRefusals();
    answerPasswords({{}, {}, {}, QStringLiteral("secret")});
    Questions later(server, 1);
    later.ask();
    EXPECT_EQ(later.refreshed, 1);
    EXPECT_EQ(passwordPrompts.size(), 4);
}
