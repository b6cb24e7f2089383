// SPDX-License-Identifier: Apache-2.0
#include "KvprintTest.h"
#include "Terminal.h"

#include <tests/samples/SamplePdf.h>
#include <tests/servers/FaultyServer.h>

#include <QFile>

#include <csignal>

#include <cups/ipp.h>

class KvprintPasswords : public KvprintTest {
protected:
    KvprintPasswords() { addSampleQueue(QStringLiteral("tape"), QStringLiteral("kvelland-lx900")); }

    /// kvprint with a document on standard input, its results in the file "out".
    Terminal start() const
    {
        return Terminal(
            {QStringLiteral("/bin/sh"), QStringLiteral("-c"),
             QStringLiteral("exec \"$1\" --no-dialog -h \"$2\" -U anna -d tape - <\"$3\" >\"$4\""),
             QStringLiteral("sh"), QStringLiteral(KV_PROGRAM), locked.address(), picture(),
             folder.filePath(QStringLiteral("out"))},
            kvprint.environment);
    }
    QByteArray results() const
    {
        QFile out(folder.filePath(QStringLiteral("out")));
        EXPECT_TRUE(out.open(QIODevice::ReadOnly));
        return out.readAll();
    }

    const FaultyServer locked{cupsd.port(), {.credentials = "anna:se cret-\xc3\xa4"}};
};

TEST_F(KvprintPasswords, AreAskedForOnTheTerminal)
{
    Terminal terminal = start();
    terminal.waitFor("anna");
    // A slip of the fingers is put right: the erase key takes whole characters, Ctrl-U all.
    terminal.type("wrong\x15se cret-\xc3\xa4x\xc3\xb6\x7f\x7f\n");
    EXPECT_EQ(terminal.end(), 0) << terminal.shown().toStdString();
    EXPECT_FALSE(terminal.shown().contains("cret")) << terminal.shown().toStdString();
    EXPECT_TRUE(results().startsWith("request id is tape-")) << results().toStdString();
    recorded(1);
}

TEST_F(KvprintPasswords, MayBeTypedAgain)
{
    Terminal terminal = start();
    terminal.waitFor("anna");
    terminal.type("wrong\n");
    terminal.waitFor("is wrong");
    terminal.waitFor("anna");
    terminal.type("se cret-\xc3\xa4\n");
    EXPECT_EQ(terminal.end(), 0) << terminal.shown().toStdString();
    recorded(1);
}

TEST_F(KvprintPasswords, AreAskedForThreeTimesAtMost)
{
    Terminal terminal = start();
    for (int attempt = 1; attempt <= 3; ++attempt) {
        terminal.waitFor("anna");
        terminal.type("wrong\n");
    }
    terminal.waitFor("does not accept the password");
    EXPECT_EQ(terminal.end(), 1) << terminal.shown().toStdString();
    EXPECT_EQ(results(), QByteArray());
    EXPECT_TRUE(jobStates().isEmpty());
}

TEST_F(KvprintPasswords, NeedNotBeGiven)
{
    for (const char *key : {"\x03", "\x04"}) {
        Terminal terminal = start();
        terminal.waitFor("anna");
        terminal.type(key);
        terminal.waitFor("requires a password");
        EXPECT_EQ(terminal.end(), 1) << terminal.shown().toStdString();
        EXPECT_EQ(results(), QByteArray());
    }
    EXPECT_TRUE(jobStates().isEmpty());
}

TEST_F(KvprintPasswords, AreNotWaitedForAfterASignal)
{
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        Terminal terminal = start();
        terminal.waitFor("anna");
        terminal.signal(number);
        terminal.waitFor("Stopped by a signal");
        EXPECT_EQ(terminal.end(), 128 + number) << terminal.shown().toStdString();
    }
    EXPECT_TRUE(jobStates().isEmpty());
}

TEST_F(KvprintPasswords, AreNotWaitedForWithoutATerminal)
{
    const QStringList server{QStringLiteral("-h"), locked.address(), QStringLiteral("-U"),
                             QStringLiteral("anna")};
    expectError(server + QStringList{QStringLiteral("-d"), QStringLiteral("tape"), picture()},
                {QStringLiteral("requires a password"), QStringLiteral("anna")});
    const Outcome list = kvprint.run(server + QStringList{QStringLiteral("--list")});
    EXPECT_EQ(list.status, 1);
    EXPECT_TRUE(list.error.contains("requires a password")) << list;
}

TEST_F(KvprintPasswords, AreAskedForWhenOnlyTheDocumentNeedsOne)
{
    const FaultyServer guarded{cupsd.port(),
                               {.credentials = "anna:secret", .lockedOperation = IPP_OP_SEND_DOCUMENT}};
    for (const char *const keys : {"secret\n", "\x03"}) {
        Terminal terminal({QStringLiteral(KV_PROGRAM), QStringLiteral("--no-dialog"), QStringLiteral("-h"),
                           guarded.address(), QStringLiteral("-U"), QStringLiteral("anna"),
                           QStringLiteral("-d"), QStringLiteral("tape"), picture()},
                          kvprint.environment);
        terminal.waitFor("Password for");
        terminal.type(keys);
        const bool isGiven = keys[0] == 's';
        EXPECT_EQ(terminal.end(), isGiven ? 0 : 1) << terminal.shown().toStdString();
        EXPECT_EQ(terminal.shown().count("requires a password"), isGiven ? 0 : 1)
            << terminal.shown().toStdString();
    }
    recorded(1);
}

TEST_F(KvprintPasswords, MayBeWantedForPrintingOnly)
{
    cupsd.configure("<Policy locked>\nJobPrivateValues none\nSubscriptionPrivateValues none\n"
                    "<Limit Create-Job Print-Job>\nAuthType Basic\nRequire valid-user\n"
                    "Order deny,allow\nAllow all\n</Limit>\n"
                    "<Limit All>\nOrder deny,allow\nAllow all\n</Limit>\n</Policy>\n");
    cupsd.addQueue(QStringLiteral("locked"), samplePpd(QStringLiteral("kvelland-lx900")),
                   {QStringLiteral("-o"), QStringLiteral("printer-op-policy=locked")});
    expectError({QStringLiteral("-d"), QStringLiteral("locked"), picture()},
                {QStringLiteral("requires a password")});
}

namespace {

/// An encrypted document, its password typed on the terminal.
class KvprintDocumentPasswords : public KvprintTest {
protected:
    KvprintDocumentPasswords() { addSampleQueue(tape, QStringLiteral("kvelland-lx900")); }

    Terminal start() const
    {
        return Terminal(
            {QStringLiteral(KV_PROGRAM), QStringLiteral("--no-dialog"), QStringLiteral("-d"), tape, document},
            kvprint.environment);
    }

    QString document =
        file(QStringLiteral("secret.pdf"), pdfWithPageBoxes({"[0 0 68 170]"}, "s\xc3\xa4same"));
};

} // namespace

TEST_F(KvprintDocumentPasswords, AreAskedForOnTheTerminal)
{
    Terminal terminal = start();
    terminal.waitFor("secret.pdf");
    terminal.type("open\n");
    terminal.waitFor("The password is wrong.");
    terminal.waitFor("secret.pdf");
    terminal.type("s\xc3\xa4same\n");
    EXPECT_EQ(terminal.end(), 0) << terminal.shown().toStdString();
    EXPECT_FALSE(terminal.shown().contains("same")) << terminal.shown().toStdString();
    const auto documents = recorded(1);
    EXPECT_FALSE(documents.first().content.contains("/Encrypt"));
}

TEST_F(KvprintDocumentPasswords, AreAskedForThreeTimesAtMost)
{
    Terminal terminal = start();
    for (int round = 0; round < 3; ++round) {
        terminal.waitFor("secret.pdf");
        terminal.type("open\n");
    }
    EXPECT_EQ(terminal.end(), 1) << terminal.shown().toStdString();
    EXPECT_TRUE(terminal.shown().contains("it is encrypted and needs a password"))
        << terminal.shown().toStdString();
    EXPECT_TRUE(jobStates().isEmpty());
}

TEST_F(KvprintDocumentPasswords, WithoutATerminalTheDocumentIsAnError)
{
    expectError({QStringLiteral("--no-dialog"), QStringLiteral("-d"), tape, document},
                {document, QStringLiteral("it is encrypted and needs a password")});
}
