// SPDX-License-Identifier: Apache-2.0

#include <host/rendering/SandboxSupport.h>
#include <programs/sandbox/Sandbox.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>

namespace {

/// How an attempt ends: with an exit status, or with a signal.
struct Ending {
    bool isSignal = false;
    int number = 0;

    bool operator==(const Ending &) const = default;
};

constexpr Ending succeeds{false, 0};
constexpr Ending refused{false, 1};
constexpr Ending ended{true, SIGSYS};

std::ostream &operator<<(std::ostream &out, const Ending &ending)
{
    return out << (ending.isSignal ? "signal " : "status ") << ending.number;
}

struct AttemptRow {
    const char *attempt;
    /// The path that is attempted, in the folder of the test.
    const char *path;
    Ending expected;
};

class SandboxTest : public ::testing::Test {
protected:
    SandboxTest()
    {
        QDir(m_folder.path()).mkdir(QStringLiteral("readable"));
        for (const char *const name : {"secret", "readable/font"}) {
            QFile file(path(name));
            EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write("content") == 7);
        }
    }

    QString path(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)); }

    /// Runs the attempt, on a kernel without a facility if one is named.
    Ending attempt(const char *name, const char *at, const char *without = nullptr) const
    {
        QStringList command{QStringLiteral(KV_ATTEMPT), QString::fromLatin1(name), path("readable"),
                            path(at)};
        if (without)
            command = QStringList{QStringLiteral(KV_OLDER_KERNEL), QString::fromLatin1(without)} + command;
        QProcess process;
        process.start(command.takeFirst(), command);
        EXPECT_TRUE(process.waitForFinished(-1));
        return {process.exitStatus() == QProcess::CrashExit, process.exitCode()};
    }

    QTemporaryDir m_folder;
};

class SandboxAttempts : public SandboxTest, public ::testing::WithParamInterface<AttemptRow> {};

const AttemptRow rows[] = {
    {"nothing", "secret", succeeds},
    {"read", "readable/font", succeeds},
    {"read", "secret", refused},
    {"read", "readable/../secret", refused},
    {"read", "readable/none", refused},
    {"write", "readable/font", refused},
    {"write", "secret", refused},
    {"create", "new", refused},
    {"create", "readable/new", refused},
    {"truncate", "readable/font", refused},
    {"make-folder", "readable/new", refused},
    {"remove", "readable/font", ended},
    {"rename", "readable/font", ended},
    {"change-mode", "readable/font", refused},
    {"socket", "secret", ended},
    {"local-socket", "secret", ended},
    {"fork", "secret", ended},
    {"execute", "secret", ended},
    {"kill-parent", "secret", ended},
    {"trace-parent", "secret", ended},
    {"raise-limit", "secret", refused},
    {"limit-of-parent", "secret", refused},
    {"thread", "secret", succeeds},
#ifndef KV_SANITIZED
    // AddressSanitizer needs more addresses than the limit, and ends the process where malloc() fails.
    {"memory", "secret", refused},
#endif
    {"some-memory", "secret", succeeds},
    {"time", "secret", {true, SIGKILL}},
    {"abort", "secret", {true, SIGABRT}},
};

} // namespace

TEST_P(SandboxAttempts, AllowsOnlyWhatReadingADocumentNeeds)
{
    const AttemptRow &row = GetParam();
    // Only Landlock keeps the process from reading a file that exists.
    const bool isReadable = QLatin1String(row.attempt) == QLatin1String("read") &&
                            QFile::exists(path(row.path)) && !host::sandboxSupport().restrictsFiles;
    EXPECT_EQ(attempt(row.attempt, row.path), isReadable ? succeeds : row.expected);
    EXPECT_TRUE(QFile::exists(path("readable/font")));
    EXPECT_EQ(QFile(path("readable/font")).size(), 7);
}

TEST_F(SandboxTest, WithoutLandlockTheOtherRestrictionsApply)
{
    EXPECT_EQ(attempt("socket", "secret", "landlock"), ended);
    EXPECT_EQ(attempt("write", "secret", "landlock"), refused);
    EXPECT_EQ(attempt("read", "secret", "landlock"), succeeds);
    EXPECT_EQ(attempt("time", "secret", "landlock"), (Ending{true, SIGKILL}));
}

TEST_F(SandboxTest, WithoutSeccompTheOtherRestrictionsApply)
{
    EXPECT_EQ(attempt("socket", "secret", "seccomp"), succeeds);
    EXPECT_EQ(attempt("read", "secret", "seccomp"),
              host::sandboxSupport().restrictsFiles ? refused : succeeds);
    EXPECT_EQ(attempt("time", "secret", "seccomp"), (Ending{true, SIGKILL}));
}

INSTANTIATE_TEST_SUITE_P(Attempts, SandboxAttempts, ::testing::ValuesIn(rows), [](const auto &row) {
    QString name = QLatin1String(row.param.attempt) + u'_' + QLatin1String(row.param.path);
    name.removeIf([](QChar letter) { return !letter.isLetter() && letter != u'_'; });
    return QString::number(row.index).toStdString() + '_' + name.toStdString();
});

TEST(FontFolders, AreThoseOfTheSystemAndTheUser)
{
    const std::vector<std::string> folders = programs::fontFolders();
    for (const char *const folder : {"/usr/share/fonts", "/etc/fonts"})
        EXPECT_NE(std::ranges::find(folders, folder), folders.end()) << folder;
    const std::string inHome = qgetenv("HOME").toStdString() + "/.fonts";
    EXPECT_NE(std::ranges::find(folders, inHome), folders.end()) << inHome;
    // No folder contains others that hold no fonts.
    for (const std::string &folder : folders)
        EXPECT_NE(folder.find("font"), std::string::npos) << folder;
}
