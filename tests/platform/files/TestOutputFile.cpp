// SPDX-License-Identifier: Apache-2.0
#include <platform/OutputFile.h>
#include <platform/PrivateFolder.h>
#include <tests/support/SpecialFiles.h>

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <memory>
#include <thread>

#include <poll.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/un.h>

using platform::OutputFile;
using test_support::FullDevice;
using test_support::makeFifo;
using test_support::OrdinaryUser;
using test_support::permissionsOf;
using test_support::statusOf;
using test_support::UmaskScope;

namespace {

constexpr char oldContent[] = "what was there";
constexpr char newContent[] = "what is written";

/// Every rule holds for root, who may do anything, as for others.
class OutputFileTest : public testing::TestWithParam<bool> {
protected:
    OutputFileTest()
    {
        if (GetParam())
            user = std::make_unique<OrdinaryUser>();
        folder = std::make_unique<QTemporaryDir>();
        EXPECT_TRUE(folder->isValid());
    }

    QString path(const char *name) const { return folder->filePath(QLatin1String(name)); }
    QString makeFile(const char *name) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(oldContent);
        return file.fileName();
    }
    QString makeLink(const char *name, const QString &target) const
    {
        EXPECT_EQ(::symlink(QFile::encodeName(target).constData(), QFile::encodeName(path(name)).constData()),
                  0);
        return path(name);
    }
    static QByteArray contentOf(const QString &path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
        return file.readAll();
    }
    QStringList entries() const
    {
        return QDir(folder->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }

    /// Writes the content; why it did not go well, or an empty text.
    static QString write(const QString &path, const QByteArray &content = newContent)
    {
        OutputFile file(path);
        const bool isWritten = file.write([&](QIODevice *device) {
            return device->write(content) == content.size();
        }) && file.commit();
        EXPECT_EQ(isWritten, file.errorString().isEmpty());
        return file.errorString();
    }
    /// Writing is refused with the words, and what is there stays.
    void expectError(const QString &path, const char *words) const
    {
        const struct stat before = statusOf(path);
        const QStringList entriesBefore = entries();
        EXPECT_EQ(write(path), QLatin1String(words)) << path.toStdString();
        EXPECT_EQ(statusOf(path).st_ino, before.st_ino) << path.toStdString();
        EXPECT_EQ(statusOf(path).st_mode, before.st_mode) << path.toStdString();
        EXPECT_EQ(entries(), entriesBefore);
    }

    std::unique_ptr<OrdinaryUser> user;
    std::unique_ptr<QTemporaryDir> folder;
};

/// Reads from a FIFO, which it opens at once.
class FifoReader {
public:
    explicit FifoReader(const QString &path)
        : m_descriptor(::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK)) // NOLINT
    {
        EXPECT_GE(m_descriptor, 0);
    }
    ~FifoReader() { close(); }
    FifoReader(const FifoReader &) = delete;
    FifoReader &operator=(const FifoReader &) = delete;

    /// What is in the FIFO, at least one byte.
    QByteArray read() const
    {
        pollfd input = {m_descriptor, POLLIN, 0};
        ::poll(&input, 1, -1);
        std::array<char, 4096> buffer = {};
        const ssize_t length = ::read(m_descriptor, buffer.data(), buffer.size());
        return {buffer.data(), length};
    }
    void waitUntilFull() const
    {
        const int capacity = ::fcntl(m_descriptor, F_GETPIPE_SZ); // NOLINT
        int filled = 0;
        while (filled < capacity && ::ioctl(m_descriptor, FIONREAD, &filled) == 0) // NOLINT
            std::this_thread::yield();
    }
    void close()
    {
        if (m_descriptor >= 0)
            ::close(std::exchange(m_descriptor, -1));
    }

private:
    int m_descriptor;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(AnyUser, OutputFileTest, testing::Bool(),
                         [](const auto &user) { return user.param ? "Ordinary" : "AsItRuns"; });

TEST_P(OutputFileTest, IsForThisUserOnlyWhateverTheUmask)
{
    for (const mode_t mask : {0000U, 0022U, 0277U, 0777U}) {
        const UmaskScope scope(mask);
        EXPECT_EQ(write(path("new")), QString());
        EXPECT_EQ(permissionsOf(path("new")), 0600U) << mask;
        EXPECT_EQ(contentOf(path("new")), newContent);
        ASSERT_TRUE(QFile::remove(path("new")));
    }
}

TEST_P(OutputFileTest, IsNotOpenToOthersWhileItIsWrittenEither)
{
    const UmaskScope scope(0);
    OutputFile file(path("new"));
    EXPECT_TRUE(file.write([&](QIODevice *) {
        EXPECT_EQ(entries().size(), 1);
        EXPECT_EQ(permissionsOf(folder->filePath(entries().value(0))), 0600U);
        return true;
    }));
}

TEST_P(OutputFileTest, ReplacesAFileWholeOrNotAtAll)
{
    const QString target = makeFile("file");
    {
        OutputFile abandoned(target);
        EXPECT_TRUE(abandoned.write([](QIODevice *device) { return device->write(newContent) > 0; }));
        EXPECT_EQ(contentOf(target), oldContent);
    }
    EXPECT_EQ(entries(), QStringList{QStringLiteral("file")});
    OutputFile incomplete(target);
    EXPECT_FALSE(incomplete.write([](QIODevice *) { return false; }));
    EXPECT_FALSE(incomplete.commit());
    EXPECT_EQ(contentOf(target), oldContent);
    EXPECT_EQ(entries(), QStringList{QStringLiteral("file")});
    EXPECT_EQ(write(target), QString());
    EXPECT_EQ(contentOf(target), newContent);
    EXPECT_EQ(entries(), QStringList{QStringLiteral("file")});
}

TEST_P(OutputFileTest, RemovesWhatAKilledProgramHasLeftBesideIt)
{
    makeFile(".kvprint-0123456789abcdef.tmp");
    makeFile("file");
    EXPECT_EQ(write(path("new")), QString());
    EXPECT_EQ(entries(), (QStringList{QStringLiteral("file"), QStringLiteral("new")}));
}

TEST_P(OutputFileTest, TakesATimeOfModification)
{
    const QDateTime modified = QDateTime::fromSecsSinceEpoch(1'000'000'000);
    OutputFile file(path("new"));
    ASSERT_TRUE(file.write([](QIODevice *device) { return device->write(newContent) > 0; }));
    ASSERT_TRUE(file.commit(modified));
    EXPECT_TRUE(file.hasCreatedFile());
    EXPECT_EQ(statusOf(path("new")).st_mtim.tv_sec, modified.toSecsSinceEpoch());
}

TEST_P(OutputFileTest, ADeviceIsWrittenToAndStays)
{
    const FullDevice full(path("full"));
    const QString device = full.path();
    expectError(device, strerror(ENOSPC));
    EXPECT_EQ(write(device, QByteArray()), QString()) << "nothing fits even into a full device";
    EXPECT_TRUE(S_ISCHR(statusOf(device).st_mode));
}

TEST_P(OutputFileTest, ALinkToADeviceIsWrittenThroughAndStays)
{
    // The process may become another user, who makes the link here.
    ASSERT_EQ(::chmod(QFile::encodeName(folder->path()).constData(), 0777), 0);
    const FullDevice full(path("full"));
    const QString device = full.path();
    const QString link = makeLink("link", device);
    expectError(link, strerror(ENOSPC));
    EXPECT_EQ(write(link, QByteArray()), QString());
    EXPECT_TRUE(S_ISLNK(statusOf(link).st_mode));
    EXPECT_TRUE(S_ISCHR(statusOf(device).st_mode));
}

TEST_P(OutputFileTest, AFifoIsWrittenToAndStays)
{
    makeFifo(path("fifo"));
    expectError(path("fifo"), "no program reads from it");
    const FifoReader reader(path("fifo"));
    OutputFile file(path("fifo"));
    ASSERT_TRUE(file.write([](QIODevice *device) { return device->write(newContent) > 0; }));
    ASSERT_TRUE(file.commit()) << file.errorString().toStdString();
    EXPECT_FALSE(file.hasCreatedFile());
    EXPECT_EQ(reader.read(), newContent);
    EXPECT_TRUE(S_ISFIFO(statusOf(path("fifo")).st_mode));
}

TEST_P(OutputFileTest, AReaderMayBeSlowerThanTheProgram)
{
    makeFifo(path("fifo"));
    const FifoReader reader(path("fifo"));
    const QByteArray content(1 << 20, 'x');
    QByteArray received;
    std::thread slow([&] {
        reader.waitUntilFull();
        // Nothing comes any more as soon as the FIFO is closed.
        for (QByteArray part = reader.read(); !part.isEmpty(); part = reader.read())
            received += part;
    });
    EXPECT_EQ(write(path("fifo"), content), QString());
    slow.join();
    EXPECT_EQ(received, content);
}

TEST_P(OutputFileTest, AReaderThatGoesIsAnErrorAndNoSignal)
{
    makeFifo(path("fifo"));
    FifoReader reader(path("fifo"));
    std::thread leaving([&] {
        reader.read();
        reader.close();
    });
    // More than a pipe holds.
    EXPECT_EQ(write(path("fifo"), QByteArray(4 << 20, 'x')), QLatin1String(strerror(EPIPE)));
    leaving.join();
}

TEST_P(OutputFileTest, LinksAreRefusedWhateverTheyLeadTo)
{
    makeFifo(path("fifo"));
    const FifoReader reader(path("fifo"));
    const QString targets[] = {makeFile("file"), path("nothing"), path("fifo"), folder->path()};
    for (const QString &target : targets) {
        const QString link = makeLink("link", target);
        expectError(link, "it is a symbolic link");
        ASSERT_TRUE(QFile::remove(link));
    }
    EXPECT_EQ(contentOf(path("file")), oldContent);
    EXPECT_FALSE(QFile::exists(path("nothing")));
}

TEST_P(OutputFileTest, FoldersAboveMayBeLinks)
{
    ASSERT_TRUE(QDir().mkdir(path("folder")));
    makeLink("link", path("folder"));
    EXPECT_EQ(write(path("link/new")), QString());
    EXPECT_EQ(contentOf(path("folder/new")), newContent);
}

TEST_P(OutputFileTest, FoldersSocketsAndBlockDevicesAreRefused)
{
    ASSERT_TRUE(QDir().mkdir(path("folder")));
    expectError(path("folder"), "it is a folder");
    expectError(path("folder/"), "it is a folder");

    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    const QByteArray name = QFile::encodeName(path("socket"));
    ASSERT_LT(static_cast<std::size_t>(name.size()), sizeof address.sun_path);
    std::copy(name.begin(), name.end(), std::begin(address.sun_path));
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    ASSERT_EQ(::bind(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    ::close(socket);
    expectError(path("socket"), "it is a socket");

    if (::mknod(QFile::encodeName(path("block")).constData(), S_IFBLK | 0600, makedev(7, 250)) == 0)
        expectError(path("block"), "it is a block device");
}

TEST_P(OutputFileTest, WhatComesMeanwhileIsNotReplaced)
{
    const QString target = makeFile("file");
    OutputFile file(path("new"));
    ASSERT_TRUE(file.write([](QIODevice *device) { return device->write(newContent) > 0; }));
    makeLink("new", target);
    EXPECT_FALSE(file.commit());
    EXPECT_EQ(file.errorString(), QStringLiteral("it is a symbolic link"));
    EXPECT_TRUE(S_ISLNK(statusOf(path("new")).st_mode));
    EXPECT_EQ(contentOf(target), oldContent);

    OutputFile other(path("other"));
    ASSERT_TRUE(other.write([](QIODevice *device) { return device->write(newContent) > 0; }));
    makeFifo(path("other"));
    EXPECT_FALSE(other.commit());
    EXPECT_FALSE(other.errorString().isEmpty());
    EXPECT_TRUE(S_ISFIFO(statusOf(path("other")).st_mode));
}

TEST_P(OutputFileTest, AFileThatMayNotBeWrittenToIsNotReplaced)
{
    const QString target = makeFile("file");
    ASSERT_EQ(::chmod(QFile::encodeName(target).constData(), 0400), 0);
    if (::geteuid() == 0) {
        EXPECT_EQ(write(target), QString()) << "root may write to any file";
        EXPECT_EQ(contentOf(target), newContent);
        return;
    }
    expectError(target, strerror(EACCES));
    EXPECT_EQ(contentOf(target), oldContent);
}

TEST_P(OutputFileTest, NamesThatNameNoFileAreRefused)
{
    expectError(QString(), strerror(ENOENT));
    expectError(path("no/such/folder"), strerror(ENOENT));
    expectError(path("no/"), strerror(ENOENT));
    const QString cut = path("cut");
    expectError(cut + QChar(QChar::Null) + QStringLiteral(".png"), strerror(EINVAL));
    EXPECT_EQ(entries(), QStringList());
}

TEST_P(OutputFileTest, FoldersAreMadeForThisUserOnly)
{
    for (const mode_t mask : {0000U, 0022U, 0777U}) {
        const UmaskScope scope(mask);
        const auto problem = platform::createPrivateFolders(path("a/b/../c/"));
        EXPECT_FALSE(problem) << problem->toStdString();
        for (const char *const made : {"a", "a/b", "a/c"})
            EXPECT_EQ(permissionsOf(path(made)), 0700U) << made << mask;
        QDir(path("a")).removeRecursively();
    }
    ASSERT_EQ(::chmod(QFile::encodeName(folder->path()).constData(), 0755), 0);
    EXPECT_FALSE(platform::createPrivateFolders(path("a")));
    EXPECT_EQ(permissionsOf(folder->path()), 0755U) << "a folder that is there stays as it is";
    makeFile("file");
    EXPECT_EQ(platform::createPrivateFolders(path("file")), QLatin1String(strerror(ENOTDIR)));
    EXPECT_EQ(platform::createPrivateFolders(path("file/below")), QLatin1String(strerror(ENOTDIR)));
}
