// SPDX-License-Identifier: Apache-2.0
// kvpanel as a program: reads lines and writes lines.
#include <tests/support/PpdBuilder.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

const QString program = QStringLiteral(KV_BINARY_DIR "/bin/kvpanel");

struct Outcome {
    int status = -1;
    QList<QJsonObject> replies;
    QByteArray errors;
};

Outcome run(const QByteArray &input, const QStringList &arguments = {})
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QLatin1String(variable));
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForStarted());
    process.write(input);
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished(60000));
    Outcome outcome;
    outcome.status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    for (const QByteArray &line : process.readAllStandardOutput().split('\n')) {
        if (!line.isEmpty())
            outcome.replies.append(QJsonDocument::fromJson(line).object());
    }
    outcome.errors = process.readAllStandardError();
    return outcome;
}

} // namespace

TEST(Kvpanel, AnswersLineByLineAndEndsWithItsInput)
{
    const Outcome outcome = run("{\"op\":\"names\"}\n\n   \n[1]\nnot json\n\xff\xfe\n{\"op\":\"view\"}");
    EXPECT_EQ(outcome.status, 0);
    ASSERT_EQ(outcome.replies.size(), 5) << "blank lines have no reply, a last line without an end has one";
    for (const QJsonObject &reply : outcome.replies) {
        EXPECT_EQ(reply.value("ok"), false);
        EXPECT_FALSE(reply.value("error").toString().isEmpty());
    }
}

TEST(Kvpanel, NeedsNoDisplayAndFindsTheBundleBesideIt)
{
    const QTemporaryDir folder;
    const QString ppd = folder.filePath(QStringLiteral("printer.ppd"));
    ASSERT_TRUE(test_support::PpdBuilder().allOptions().writeTo(ppd));
    const Outcome outcome =
        run("{\"op\":\"open\",\"ppd\":\"" + ppd.toUtf8() + "\"}\n{\"op\":\"view\"}\n{\"op\":\"state\"}\n");
    EXPECT_EQ(outcome.status, 0);
    ASSERT_EQ(outcome.replies.size(), 3);
    EXPECT_EQ(outcome.replies[0].value("panels"), 1);
    EXPECT_EQ(outcome.replies[1].value("view"), true);
    EXPECT_TRUE(outcome.replies[2].contains(QStringLiteral("state")));
}

TEST(Kvpanel, AMissingBundleIsAnErrorThatNamesIt)
{
    const QTemporaryDir folder;
    const QString ppd = folder.filePath(QStringLiteral("printer.ppd"));
    ASSERT_TRUE(test_support::PpdBuilder().writeTo(ppd));
    const Outcome outcome = run("{\"op\":\"open\",\"ppd\":\"" + ppd.toUtf8() + "\"}\n",
                                {QStringLiteral("--bundle"), folder.path()});
    EXPECT_EQ(outcome.status, 0);
    ASSERT_EQ(outcome.replies.size(), 1);
    EXPECT_TRUE(outcome.replies[0].value("error").toString().contains(folder.path()));
}

TEST(Kvpanel, AnOldSystemDoesNotLoadThePlugIn)
{
    const QTemporaryDir folder;
    const QString ppd = folder.filePath(QStringLiteral("printer.ppd"));
    ASSERT_TRUE(test_support::PpdBuilder().writeTo(ppd));
    const QByteArray open = "{\"op\":\"open\",\"ppd\":\"" + ppd.toUtf8() + "\",\"systemVersion\":";
    Outcome outcome = run(open + "[10,4,11]}\n{\"op\":\"names\"}\n" + open + "[11,0,0]}\n");
    ASSERT_EQ(outcome.replies.size(), 3);
    EXPECT_EQ(outcome.replies[0].value("ok"), true);
    EXPECT_EQ(outcome.replies[0].value("loaded"), false);
    EXPECT_EQ(outcome.replies[0].value("panels"), QJsonValue());
    EXPECT_EQ(outcome.replies[1].value("ok"), false);
    EXPECT_EQ(outcome.replies[2].value("loaded"), false) << "the version is asked once per process";
    outcome = run(open + "[10,5,null]}\n");
    EXPECT_EQ(outcome.replies.value(0).value("loaded"), true);
    outcome = run(open + "[null,null,null]}\n");
    EXPECT_EQ(outcome.replies.value(0).value("loaded"), false);
}

TEST(Kvpanel, LinesOfSixteenMebibytesAreTakenLongerOnesRefused)
{
    const qsizetype limit = qsizetype(16) << 20;
    QByteArray longest = "{\"op\":\"nonsense\",\"filler\":\"";
    longest.append(QByteArray(limit - longest.size() - 2, 'x')).append("\"}");
    ASSERT_EQ(longest.size(), limit);
    const Outcome outcome = run(longest + '\n' + longest + " \n{\"op\":\"names\"}\n");
    EXPECT_EQ(outcome.status, 0);
    ASSERT_EQ(outcome.replies.size(), 3);
    EXPECT_TRUE(outcome.replies[0].value("error").toString().contains(QStringLiteral("nonsense")));
    EXPECT_TRUE(outcome.replies[1].value("error").toString().contains(QStringLiteral("longer")));
    EXPECT_TRUE(outcome.replies[2].value("error").toString().contains(QStringLiteral("nothing is open")));
}

TEST(Kvpanel, RepliesBeforeTheNextRequestIsWritten)
{
    QProcess process;
    process.start(program, {});
    ASSERT_TRUE(process.waitForStarted());
    for (int round = 0; round < 3; ++round) {
        process.write("{\"op\":\"names\"}\n");
        while (!process.canReadLine())
            ASSERT_TRUE(process.waitForReadyRead(10000));
        EXPECT_TRUE(process.readLine().contains("nothing is open"));
    }
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished());
}

TEST(Kvpanel, ExplainsItselfAndRefusesStrangeArguments)
{
    EXPECT_EQ(run({}, {QStringLiteral("--help")}).status, 0);
    EXPECT_EQ(run({}, {QStringLiteral("--version")}).status, 0);
    const Outcome outcome = run({}, {QStringLiteral("requests.jsonl")});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.errors.contains("requests.jsonl"));
    EXPECT_EQ(run({}, {QStringLiteral("--no-such-option")}).status, 1);
}
