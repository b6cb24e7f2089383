// SPDX-License-Identifier: Apache-2.0
#include <host/panels/PanelCallRecord.h>
#include <tests/samples/Sandbox.h>

#include <QDir>

#include <gtest/gtest.h>

#include <csignal>

#include <sys/wait.h>
#include <unistd.h>

using host::PanelCallRecord;

namespace {

const QString bundle = QStringLiteral("/opt/panels/Sample.bundle");

class PanelCallRecordTest : public testing::Test {
protected:
    void SetUp() override
    {
        before = qgetenv("XDG_STATE_HOME");
        qputenv("XDG_STATE_HOME", sandbox.path(QStringLiteral("state")).toUtf8());
    }
    void TearDown() override { qputenv("XDG_STATE_HOME", before); }

    /// Runs the function in a process of its own, which a signal then ends.
    template<typename Function>
    static void inKilledProcess(Function &&function)
    {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            function();
            ::raise(SIGKILL);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status));
    }

    QStringList files() const
    {
        return QDir(sandbox.path(QStringLiteral("state/kvprint/panels"))).entryList(QDir::Files);
    }

    Sandbox sandbox;
    QByteArray before;
};

} // namespace

TEST_F(PanelCallRecordTest, ACallDuringWhichTheProcessEndsIsReported)
{
    inKilledProcess([] {
        auto *const record = new PanelCallRecord;
        new PanelCallRecord::Call(*record, bundle, "willShow");
    });
    const auto calls = PanelCallRecord::interrupted();
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(calls.front().bundle, bundle);
    EXPECT_EQ(calls.front().call, QStringLiteral("willShow"));
    EXPECT_EQ(PanelCallRecord::interrupted().size(), 1U) << "it stays until the user agrees";
    PanelCallRecord::forget(QStringLiteral("/opt/panels/Other.bundle"));
    EXPECT_EQ(PanelCallRecord::interrupted().size(), 1U);
    PanelCallRecord::forget(bundle);
    EXPECT_TRUE(PanelCallRecord::interrupted().empty());
    EXPECT_EQ(files(), QStringList());
}

TEST_F(PanelCallRecordTest, TheInnermostCallIsNamed)
{
    inKilledProcess([] {
        auto *const record = new PanelCallRecord;
        new PanelCallRecord::Call(*record, QStringLiteral("/outer"), "saveValuesAndReturnError");
        {
            const PanelCallRecord::Call ended(*record, QStringLiteral("/ended"), "summaryInfo");
        }
        new PanelCallRecord::Call(*record, bundle, "PPDOptionKeyValueDidChange");
    });
    const auto calls = PanelCallRecord::interrupted();
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(calls.front().bundle, bundle);
}

TEST_F(PanelCallRecordTest, AProcessThatEndsBetweenCallsLeavesNothing)
{
    inKilledProcess([] {
        auto *const record = new PanelCallRecord;
        const PanelCallRecord::Call ended(*record, bundle, "willShow");
    });
    EXPECT_EQ(files().size(), 1);
    EXPECT_TRUE(PanelCallRecord::interrupted().empty());
    EXPECT_EQ(files(), QStringList());
    {
        PanelCallRecord record;
        const PanelCallRecord::Call call(record, bundle, "willShow");
    }
    EXPECT_EQ(files(), QStringList());
}

TEST_F(PanelCallRecordTest, ACallOfARunningProcessIsNotReported)
{
    PanelCallRecord record;
    const PanelCallRecord::Call call(record, bundle, "willShow");
    EXPECT_TRUE(PanelCallRecord::interrupted().empty());
    EXPECT_EQ(files().size(), 1);
    PanelCallRecord::forgetAll();
    EXPECT_EQ(files().size(), 1) << "the file of a running process stays";
}

TEST_F(PanelCallRecordTest, WithoutAStateFolderNothingIsRecorded)
{
    sandbox.write(QStringLiteral("state"), "a file");
    PanelCallRecord record;
    const PanelCallRecord::Call call(record, bundle, "willShow");
    EXPECT_TRUE(PanelCallRecord::interrupted().empty());
}

TEST_F(PanelCallRecordTest, DamagedAndForeignFilesAreNoCalls)
{
    ASSERT_TRUE(QDir().mkpath(sandbox.path(QStringLiteral("state/kvprint/panels"))));
    sandbox.write(QStringLiteral("state/kvprint/panels/empty.call"), "");
    sandbox.write(QStringLiteral("state/kvprint/panels/half.call"), "willShow");
    sandbox.write(QStringLiteral("state/kvprint/panels/long.call"), QByteArray(100'000, 'x'));
    sandbox.write(QStringLiteral("state/kvprint/panels/notes.txt"), "willShow\n/x");
    EXPECT_TRUE(PanelCallRecord::interrupted().empty());
    EXPECT_EQ(files(), QStringList{QStringLiteral("notes.txt")});
}
