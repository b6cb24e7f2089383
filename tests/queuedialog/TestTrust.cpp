// SPDX-License-Identifier: Apache-2.0
// What the window asks about connections to another machine, which is this one by its address on the network.
#include "QueueDialogFixture.h"

#include <dialog/job/PasswordDialog.h>
#include <dialog/job/TrustDialog.h>
#include <tests/samples/SamplePpd.h>
#include <tests/servers/FaultyServer.h>
#include <tests/support/NetworkAddress.h>

#include <QApplication>
#include <QLineEdit>

namespace {

/// A print dialog of its own, beside that of the fixture.
class OtherWindow {
public:
    OtherWindow(const QString &document, host::CupsServer server)
        : m_session(withQuestions(std::move(server)), QStringLiteral("tape"))
        , m_keeper(m_session, host::PanelSource{QStringLiteral(KV_BINARY_DIR "/bin"), {}}, {})
        , m_sender(m_session.server())
        , m_window(host::LabelDocument::open(QStringList{document}).value(), m_keeper, m_sender,
                   dialog::RequestedSettings())
    {
        m_window.show();
        m_session.start(host::Discovery::No);
    }
    bool isKnown() const
    {
        return waitUntil([this] { return m_session.chosen() && m_keeper.setup(); });
    }
    bool isParentOf(const QWidget *question) const { return question->parentWidget() == &m_window; }

private:
    host::CupsServer withQuestions(host::CupsServer server)
    {
        server.askTrust = [this](const host::TrustRequest &request) {
            dialog::askTrustWithDialog (&m_window)(request);
        };
        return server;
    }

    host::QueueSession m_session;
    host::SetupKeeper m_keeper;
    dialog::QueueSender m_sender;
    dialog::PrintDialog m_window;
};

class TrustDialogTest : public QueueDialogTest {
protected:
    static void SetUpTestSuite()
    {
        QueueDialogTest::SetUpTestSuite();
        cupsd->addQueue(QStringLiteral("tape"), tapePpd());
        host = test_support::networkAddress();
        if (!host.isEmpty())
            cupsd->configureForNetwork(host);
    }

    host::CupsServer encryptedServer() const
    {
        host::CupsServer server = serverAt(QStringLiteral("%1:%2").arg(host).arg(cupsd->port()));
        server.encryption = host::Encryption::Required;
        server.certificates = certificates.path();
        return withQuestions(server);
    }
    host::CupsServer withQuestions(host::CupsServer server) const
    {
        server.askTrust = [this](const host::TrustRequest &request) {
            dialog::askTrustWithDialog(window.get())(request);
        };
        return server;
    }

    template<typename Dialog>
    static Dialog *shown()
    {
        const auto find = [] {
            for (QWidget *const each : QApplication::topLevelWidgets()) {
                auto *const found = qobject_cast<Dialog *>(each);
                if (found && found->isVisible())
                    return found;
            }
            return static_cast<Dialog *>(nullptr);
        };
        EXPECT_TRUE(waitUntil([&] { return find() != nullptr; }));
        Dialog *const found = find();
        EXPECT_TRUE(found && QTest::qWaitForWindowActive(found, test_support::failureMilliseconds));
        return found;
    }
    template<typename Dialog>
    static QList<Dialog *> allShown()
    {
        QList<Dialog *> found;
        for (QWidget *const each : QApplication::topLevelWidgets()) {
            if (auto *const question = qobject_cast<Dialog *>(each); question && question->isVisible())
                found.append(question);
        }
        return found;
    }
    bool isKnown() const
    {
        return waitUntil([this] { return session->chosen() && isSettled(); });
    }

    QTemporaryDir certificates;
    inline static QString host;
};

} // namespace

TEST_F(TrustDialogTest, ACertificateIsTrustedByItsFingerprint)
{
    open(QStringLiteral("tape"), encryptedServer());
    const auto *const question = shown<dialog::TrustDialog>();
    ASSERT_TRUE(question);
    EXPECT_TRUE(question->text().contains(host)) << question->text().toStdString();
    // Four lines of eight bytes.
    const QRegularExpression fingerprint(
        QStringLiteral("\n(([0-9A-F]{2}:){8}\n){3}([0-9A-F]{2}:){7}[0-9A-F]{2}\n"));
    EXPECT_TRUE(question->informativeText().contains(fingerprint))
        << question->informativeText().toStdString();
    Hands::click(button(question, QStringLiteral("Trust")));
    EXPECT_TRUE(isKnown()) << told().toStdString();
    EXPECT_EQ(QDir(certificates.path()).entryList(QDir::Files).size(), 1);
    print();
}

TEST_F(TrustDialogTest, ARefusedCertificateCanBeTrustedAfterAll)
{
    open(QStringLiteral("tape"), encryptedServer());
    // The Return key presses the button that rejects the certificate.
    auto *const question = shown<dialog::TrustDialog>();
    ASSERT_TRUE(question);
    Hands::press(question, Qt::Key_Return);
    EXPECT_TRUE(waitUntil([this] { return told().contains(QStringLiteral("is not trusted")); }));
    EXPECT_EQ(session->chosen(), std::nullopt);
    EXPECT_EQ(state(), QStringLiteral("The print server is not trusted."));
    EXPECT_TRUE(QDir(certificates.path()).entryList(QDir::Files).isEmpty());
    Hands::click(button(QStringLiteral("Try again")));
    const auto *const again = shown<dialog::TrustDialog>();
    ASSERT_TRUE(again);
    Hands::click(button(again, QStringLiteral("Trust")));
    EXPECT_TRUE(isKnown()) << told().toStdString();
    EXPECT_EQ(told(), QString());
}

TEST_F(TrustDialogTest, APasswordThatOthersCanReadIsSentWhenTheUserAgrees)
{
    const FaultyServer guarded(cupsd->port(), {.credentials = "ann:secret", .host = host});
    host::CupsServer server = withQuestions(serverAt(guarded.address()));
    server.user = QStringLiteral("ann");
    open(QStringLiteral("tape"), server);
    auto *const question = shown<dialog::TrustDialog>();
    ASSERT_TRUE(question);
    EXPECT_TRUE(question->text().contains(guarded.address())) << question->text().toStdString();
    Hands::press(question, Qt::Key_Escape);
    EXPECT_TRUE(waitUntil([this] { return told().contains(QStringLiteral("not encrypted")); }));
    EXPECT_EQ(guarded.passwordCount(), 0);
    EXPECT_EQ(passwordQuestions, 0);
    Hands::click(button(QStringLiteral("Try again")));
    const auto *const again = shown<dialog::TrustDialog>();
    ASSERT_TRUE(again);
    Hands::click(button(again, QStringLiteral("Send anyway")));
    auto *const password = shown<dialog::PasswordDialog>();
    ASSERT_TRUE(password);
    Hands::typeInto(password->findChildren<QLineEdit *>().at(1), QStringLiteral("secret"));
    Hands::press(password, Qt::Key_Return);
    EXPECT_TRUE(isKnown()) << told().toStdString();
    EXPECT_EQ(printed().user, "ann");
    EXPECT_EQ(passwordQuestions, 1);
}

TEST_F(TrustDialogTest, TwoWindowsOnOneServerAskOnce)
{
    const host::CupsServer server = encryptedServer();
    open(QStringLiteral("tape"), server);
    const OtherWindow other(documentPath, server);
    const auto *const question = shown<dialog::TrustDialog>();
    ASSERT_TRUE(question);
    EXPECT_EQ(allShown<dialog::TrustDialog>().size(), 1);
    Hands::click(button(question, QStringLiteral("Trust")));
    EXPECT_TRUE(isKnown()) << told().toStdString();
    EXPECT_TRUE(other.isKnown());
    EXPECT_TRUE(allShown<dialog::TrustDialog>().isEmpty());
}

TEST_F(TrustDialogTest, TwoWindowsOnTwoServersAskEachOnItsOwn)
{
    open(QStringLiteral("tape"), encryptedServer());
    const auto *const first = shown<dialog::TrustDialog>();
    ASSERT_TRUE(first);
    // Another host to the program, with its own certificates.
    const QTemporaryDir otherCertificates;
    host::CupsServer otherServer = encryptedServer();
    otherServer.trust = std::make_shared<host::TrustMemory>();
    otherServer.certificates = otherCertificates.path();
    const OtherWindow other(documentPath, otherServer);
    EXPECT_TRUE(waitUntil([] { return allShown<dialog::TrustDialog>().size() == 2; }));
    // The question of a window that is closed goes with it; the other window's stays.
    close();
    EXPECT_TRUE(waitUntil([] { return allShown<dialog::TrustDialog>().size() == 1; }));
    const auto *const second = shown<dialog::TrustDialog>();
    ASSERT_TRUE(second);
    EXPECT_TRUE(other.isParentOf(second));
    Hands::click(button(second, QStringLiteral("Trust")));
    EXPECT_TRUE(other.isKnown());
    EXPECT_TRUE(QDir(certificates.path()).entryList(QDir::Files).isEmpty());
}
