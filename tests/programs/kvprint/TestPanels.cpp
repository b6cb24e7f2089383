// SPDX-License-Identifier: Apache-2.0
// Panels that end or block the program: the next start reports them and prints without them.
#include "KvprintTest.h"

#include <QDir>
#include <QProcess>

namespace {

const QString bundle = QStringLiteral(KV_BINARY_DIR "/tests/bundles/trouble");

class KvprintPanels : public KvprintTest {
protected:
    KvprintPanels()
    {
        const QString path = folder.filePath(QStringLiteral("trouble.ppd"));
        EXPECT_TRUE(test_support::PpdBuilder().options({"KvTrouble", "KvMirror"}).writeTo(path));
        words = {QStringLiteral("--no-dialog"),
                 QStringLiteral("--bundle"),
                 bundle,
                 QStringLiteral("--ppd"),
                 path,
                 QStringLiteral("--output"),
                 folder.filePath(QStringLiteral("out")),
                 samplePdf()};
    }

    Outcome runWith(const char *trouble, const QStringList &more = {})
    {
        QDir(folder.filePath(QStringLiteral("out"))).removeRecursively();
        kvprint.environment.insert(QStringLiteral("KVTEST_TROUBLE"), QLatin1String(trouble));
        return kvprint.run(more + words);
    }

    bool isPrinted() const { return QFile::exists(folder.filePath(QStringLiteral("out/job.json"))); }

    QStringList words;
};

} // namespace

TEST_F(KvprintPanels, APanelThatEndsTheProgramIsNotLoadedAgainUntilTheUserAgrees)
{
    for (const char *const call : {"createPlugIn", "panelView", "willShow", "stripEffects"}) {
        SCOPED_TRACE(call);
        EXPECT_NE(runWith((QByteArray("abort ") + call).constData()).status, 0);
        EXPECT_FALSE(isPrinted());
        for (int start = 0; start < 2; ++start) {
            const Outcome next = runWith("");
            EXPECT_EQ(next.status, 3) << next;
            EXPECT_TRUE(next.error.contains("Trouble.bundle")) << next;
            EXPECT_TRUE(next.error.contains("the program ended or was stopped")) << next;
            EXPECT_TRUE(isPrinted());
        }
        const Outcome agreed = runWith("", {QStringLiteral("--retry-panels")});
        EXPECT_EQ(agreed.status, 0) << agreed;
        EXPECT_EQ(runWith("").status, 0);
    }
}

TEST_F(KvprintPanels, APanelThatThrowsIsReportedAndTheJobIsPrinted)
{
    for (const char *const call : {"PDEPanelsForType", "willShow", "shouldPrint", "stripEffects"}) {
        const Outcome outcome = runWith((QByteArray("throw ") + call).constData());
        EXPECT_EQ(outcome.status, 3) << call << outcome;
        EXPECT_TRUE(outcome.error.contains("the sample error")) << call << outcome;
        EXPECT_TRUE(isPrinted()) << call;
    }
    EXPECT_EQ(runWith("").status, 0) << "an exception is not remembered";
}

TEST_F(KvprintPanels, AMissingBundleThatTheUserNamesIsReportedForEveryPrinter)
{
    const QString path = folder.filePath(QStringLiteral("plain.ppd"));
    ASSERT_TRUE(test_support::PpdBuilder().options({"Other"}).writeTo(path));
    const Outcome outcome =
        kvprint.run({QStringLiteral("--no-dialog"), QStringLiteral("--bundle"), QStringLiteral("/nowhere"),
                     QStringLiteral("--ppd"), path, QStringLiteral("--output"),
                     folder.filePath(QStringLiteral("out")), samplePdf()});
    EXPECT_EQ(outcome.status, 3) << outcome;
    EXPECT_TRUE(outcome.error.contains("/nowhere")) << outcome;
}

TEST_F(KvprintPanels, APanelThatBlocksTheProgramIsNotLoadedAgain)
{
    QProcess blocked;
    QProcessEnvironment environment = kvprint.environment;
    environment.insert(QStringLiteral("KVTEST_TROUBLE"), QStringLiteral("hang willShow"));
    blocked.setProcessEnvironment(environment);
    blocked.start(QStringLiteral(KV_BINARY_DIR "/bin/kvprint"), words);
    const QDir records(environment.value(QStringLiteral("XDG_STATE_HOME")) +
                       QStringLiteral("/kvprint/panels"));
    const auto isBlocked = [&] {
        const QStringList names = records.entryList({QStringLiteral("*.call")}, QDir::Files);
        QFile record(records.filePath(names.value(0)));
        return record.open(QIODevice::ReadOnly) && record.readAll().startsWith("willShow\n");
    };
    while (!isBlocked() && blocked.state() != QProcess::NotRunning)
        blocked.waitForFinished(20);
    ASSERT_NE(blocked.state(), QProcess::NotRunning);
    // While it runs, other programs use the panel.
    EXPECT_EQ(runWith("").status, 0);
    blocked.kill();
    blocked.waitForFinished(-1);
    const Outcome next = runWith("");
    EXPECT_EQ(next.status, 3) << next;
    EXPECT_TRUE(next.error.contains("\"willShow\"")) << next;
}
