// SPDX-License-Identifier: Apache-2.0
#include <platform/TemporaryFile.h>
#include <tests/support/SpecialFiles.h>

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <csignal>
#include <thread>

#include <sys/wait.h>

using platform::TemporaryFile;
using test_support::OrdinaryUser;
using test_support::permissionsOf;
using test_support::statusOf;
using test_support::UmaskScope;

namespace {

class TemporaryFileTest : public testing::Test {
protected:
    QString path(const QString &name) const { return folder.filePath(name); }
    QStringList entries() const
    {
        return QDir(folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }
    void removeLeftovers() const { TemporaryFile::removeLeftovers(folder.path()); }
    /// Makes a file that all users can read and write.
    static void makeForAll(const QString &name)
    {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_TRUE(file.setPermissions(QFile::Permissions(0x6666)));
    }

    QTemporaryDir folder;
};

/// A program that has made a temporary file.
class Writer {
public:
    explicit Writer(const QString &folder)
    {
        std::array<int, 2> ends = {};
        EXPECT_EQ(::pipe(ends.data()), 0);
        m_process = ::fork();
        if (m_process == 0) {
            TemporaryFile file(folder);
            const char isMade = file.create() ? 1 : 0;
            if (::write(ends[1], &isMade, 1) == 1)
                ::pause();
            ::_exit(1);
        }
        char isMade = 0;
        EXPECT_EQ(::read(ends[0], &isMade, 1), 1);
        EXPECT_EQ(isMade, 1);
        ::close(ends[0]);
        ::close(ends[1]);
    }
    ~Writer() { kill(); }
    Writer(const Writer &) = delete;
    Writer &operator=(const Writer &) = delete;

    void kill()
    {
        if (m_process <= 0)
            return;
        ::kill(m_process, SIGKILL);
        ::waitpid(m_process, nullptr, 0);
        m_process = -1;
    }

private:
    pid_t m_process = -1;
};

} // namespace

TEST_F(TemporaryFileTest, IsForThisUserOnlyAndGoneWithTheObject)
{
    for (const mode_t mask : {0000U, 0022U, 0777U}) {
        const UmaskScope scope(mask);
        TemporaryFile file(folder.path());
        ASSERT_TRUE(file.create()) << file.errorString().toStdString();
        EXPECT_EQ(file.write("x"), 1);
        ASSERT_EQ(entries().size(), 1);
        EXPECT_EQ(path(entries().constFirst()), file.fileName());
        EXPECT_EQ(permissionsOf(file.fileName()), 0600U) << mask;
    }
    EXPECT_EQ(entries(), QStringList());
    TemporaryFile nowhere(path(QStringLiteral("no/such/folder")));
    EXPECT_FALSE(nowhere.create());
    EXPECT_EQ(nowhere.errorString(), QLatin1String(strerror(ENOENT)));
}

TEST_F(TemporaryFileTest, KeepsItsContentUnderItsFinalName)
{
    const QString target = path(QStringLiteral("final"));
    {
        TemporaryFile file(folder.path());
        ASSERT_TRUE(file.create());
        EXPECT_EQ(file.write("content"), 7);
        ASSERT_TRUE(file.moveTo(target));
        EXPECT_EQ(entries(), QStringList{QStringLiteral("final")});
    }
    removeLeftovers();
    QFile moved(target);
    ASSERT_TRUE(moved.open(QIODevice::ReadOnly));
    EXPECT_EQ(moved.readAll(), "content");
}

TEST_F(TemporaryFileTest, LeftOversGoWhenTheirProgramHasEnded)
{
    Writer running(folder.path());
    Writer killed(folder.path());
    EXPECT_EQ(entries().size(), 2);
    removeLeftovers();
    EXPECT_EQ(entries().size(), 2) << "both programs still run";
    killed.kill();
    EXPECT_EQ(entries().size(), 2);
    removeLeftovers();
    EXPECT_EQ(entries().size(), 1);
    running.kill();
    removeLeftovers();
    EXPECT_EQ(entries(), QStringList());
}

TEST_F(TemporaryFileTest, FilesOfOtherNamesAndOtherThingsStay)
{
    const char *const files[] = {".kvprint-0123456789abcde.tmp",   ".kvprint-0123456789abcdef0.tmp",
                                 ".kvprint-0123456789abcdef.pdf",  "kvprint-0123456789abcdef.tmp",
                                 ".kvprint-0123456789abcdef.tmp~", "labels.tmp"};
    for (const char *const name : files) {
        QFile file(path(QLatin1String(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    ASSERT_TRUE(QDir().mkdir(path(QStringLiteral(".kvprint-aaaaaaaaaaaaaaaa.tmp"))));
    test_support::makeFifo(path(QStringLiteral(".kvprint-bbbbbbbbbbbbbbbb.tmp")));
    ASSERT_TRUE(QFile::link(path(QStringLiteral("labels.tmp")),
                            path(QStringLiteral(".kvprint-cccccccccccccccc.tmp"))));
    const QStringList before = entries();
    removeLeftovers();
    EXPECT_EQ(entries(), before);
}

TEST_F(TemporaryFileTest, FilesOfOtherUsersStay)
{
    ASSERT_EQ(::chmod(QFile::encodeName(folder.path()).constData(), 0777), 0);
    const QString own = path(QStringLiteral(".kvprint-0000000000000000.tmp"));
    const QString given = path(QStringLiteral(".kvprint-1111111111111111.tmp"));
    makeForAll(own);
    makeForAll(given);
    const bool isRoot = ::geteuid() == 0;
    const uid_t other = isRoot ? OrdinaryUser::number : 0;
    const int result = ::chown(QFile::encodeName(given).constData(), other, ::getegid());
    ASSERT_EQ(result, isRoot ? 0 : -1) << "only root can make files of other users";
    removeLeftovers();
    EXPECT_EQ(entries(), isRoot ? QStringList{QFileInfo(given).fileName()} : QStringList())
        << "the user's own are gone, and no other";
    if (!isRoot)
        return;

    makeForAll(own);
    const OrdinaryUser user;
    removeLeftovers();
    EXPECT_EQ(entries(), QStringList{QFileInfo(own).fileName()}) << "the user's own is gone, and no other";
}

TEST_F(TemporaryFileTest, FilesInAFolderThatTheUserCannotWriteStay)
{
    const QByteArray name = QFile::encodeName(folder.path());
    ASSERT_EQ(::chmod(name.constData(), 0777), 0);
    {
        const OrdinaryUser user;
        makeForAll(path(QStringLiteral(".kvprint-0000000000000000.tmp")));
    }
    for (const mode_t mode : {0555U, 0777U}) {
        ASSERT_EQ(::chmod(name.constData(), mode), 0);
        const OrdinaryUser user;
        removeLeftovers();
        EXPECT_EQ(entries().isEmpty(), mode == 0777U);
    }
}

TEST_F(TemporaryFileTest, AreSafeFromOtherProgramsThatCleanUpMeanwhile)
{
    std::atomic<bool> isDone = false;
    std::thread cleaner([&] {
        while (!isDone)
            removeLeftovers();
    });
    constexpr int count = 300;
    for (int number = 0; number < count; ++number) {
        TemporaryFile file(folder.path());
        EXPECT_TRUE(file.create());
        EXPECT_TRUE(file.moveTo(path(QString::number(number)))) << file.errorString().toStdString();
    }
    isDone = true;
    cleaner.join();
    EXPECT_EQ(entries().size(), count);
}
