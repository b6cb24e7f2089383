// SPDX-License-Identifier: Apache-2.0

#include <host/cups/queues/QueueCache.h>
#include <host/cups/server/CupsServer.h>

#include <QCborArray>
#include <QCborValue>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

using host::Destination;
using host::QueueCache;

namespace {

/// The cache of a server that only this test names.
class QueueCacheTest : public testing::Test {
protected:
    static host::CupsServer server()
    {
        host::CupsServer server;
        server.address =
            QStringLiteral("cache.test:%1")
                .arg(QLatin1String(testing::UnitTest::GetInstance()->current_test_info()->name()));
        return server;
    }

    ~QueueCacheTest() override { QDir(cache.folder()).removeRecursively(); }

    static Destination queue(const QString &name)
    {
        Destination destination;
        destination.queue = name;
        destination.description = QStringLiteral("B\u00fcro %1").arg(name);
        destination.members = {QStringLiteral("one"), QStringLiteral("two")};
        destination.configured = 1'700'000'000;
        destination.state = host::QueueState::Paused;
        destination.stateReasons = {QStringLiteral("media-empty-error")};
        destination.queueOptions = {{"KvHalfCut", "ON"}};
        return destination;
    }

    /// Writes the list of destinations as the cache does.
    void writeList(const QByteArray &content) const
    {
        QFile file(cache.folder() + QStringLiteral("/queues.cbor"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }

    QueueCache cache{server()};
};

} // namespace

TEST_F(QueueCacheTest, IsEmptyAtFirstAndCreatesNothing)
{
    EXPECT_TRUE(cache.destinations().empty());
    EXPECT_FALSE(cache.last());
    EXPECT_FALSE(cache.ppdPath(QStringLiteral("tape")));
    EXPECT_FALSE(cache.ppdStamp(QStringLiteral("tape")));
    EXPECT_FALSE(QFileInfo::exists(cache.folder()));
}

TEST_F(QueueCacheTest, ReturnsWhatWasStored)
{
    std::vector<Destination> all{queue(QStringLiteral("tape")), queue(QStringLiteral("labels"))};
    all[1].instance = QStringLiteral("fine");
    cache.storeDestinations(all);
    cache.storeLast(all[1]);
    const QueueCache again(server());
    EXPECT_EQ(again.destinations(), all);
    EXPECT_EQ(again.last(), all[1]);
    cache.storeDestinations({});
    EXPECT_TRUE(again.destinations().empty());
    EXPECT_EQ(again.last(), all[1]) << "the last destination is stored on its own";
}

TEST_F(QueueCacheTest, IgnoresDamagedFilesAndThoseOfOtherVersions)
{
    const std::vector<Destination> all{queue(QStringLiteral("tape"))};
    cache.storeDestinations(all);
    const QByteArray good = QCborArray{1, all[0].toCbor()}.toCborValue().toCbor();
    writeList(good);
    ASSERT_EQ(cache.destinations(), all);
    const QByteArray rows[] = {
        "",
        "nonsense",
        good.chopped(1),
        QCborArray().toCborValue().toCbor(),
        QCborValue(1).toCbor(),
        QCborArray{2, all[0].toCbor()}.toCborValue().toCbor(),
        QCborArray{QStringLiteral("1"), all[0].toCbor()}.toCborValue().toCbor(),
        QCborArray{1, QStringLiteral("tape")}.toCborValue().toCbor(),
        QCborArray{1, QCborMap()}.toCborValue().toCbor(),
    };
    for (const QByteArray &row : rows) {
        writeList(row);
        EXPECT_TRUE(cache.destinations().empty()) << row.toHex().toStdString();
    }
    // A damaged entry does not hide the others.
    writeList(QCborArray{1, QCborMap(), all[0].toCbor()}.toCborValue().toCbor());
    EXPECT_EQ(cache.destinations(), all);
}

TEST_F(QueueCacheTest, KeepsThePpdWithTheDateOfTheServer)
{
    const QString name = QStringLiteral("tape");
    // 2001-09-09 01:46:40 UTC
    cache.storePpd(name, "*PPD-Adobe: \"4.3\"\n", 1'000'000'000);
    ASSERT_TRUE(cache.ppdPath(name));
    QFile file(*cache.ppdPath(name));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "*PPD-Adobe: \"4.3\"\n");
    EXPECT_EQ(cache.ppdStamp(name), QByteArray("Sun, 09 Sep 2001 01:46:40 GMT; length=18"));
    EXPECT_EQ(QueueCache::stamp(1'000'000'000, 18), cache.ppdStamp(name));
    // Replaced within the same second by a longer one.
    cache.storePpd(name, "*PPD-Adobe: \"4.3\"\n\n", 1'000'000'000);
    EXPECT_EQ(cache.ppdStamp(name), QByteArray("Sun, 09 Sep 2001 01:46:40 GMT; length=19"));
    cache.removePpd(name);
    cache.removePpd(name);
    EXPECT_FALSE(cache.ppdPath(name));
}

TEST_F(QueueCacheTest, NoNameOfAQueueLeavesTheFolderOrMeetsAnother)
{
    const QStringList names{QStringLiteral(".."),      QStringLiteral("a/b"),    QStringLiteral("a+2Fb"),
                            QStringLiteral("../tape"), QStringLiteral("a b"),    QStringLiteral("A B"),
                            QStringLiteral("%2e%2e"),  QStringLiteral("\u00fc"), QStringLiteral(".")};
    for (const QString &name : names)
        cache.storePpd(name, name.toUtf8(), 1'000'000'000);
    for (const QString &name : names) {
        const std::optional<QString> path = cache.ppdPath(name);
        ASSERT_TRUE(path) << name.toStdString();
        EXPECT_EQ(QFileInfo(*path).canonicalPath(), QFileInfo(cache.folder()).canonicalFilePath() + "/ppd");
        QFile file(*path);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(file.readAll(), name.toUtf8());
    }
}

TEST_F(QueueCacheTest, OnlyTheUserCanReadIt)
{
    cache.storeDestinations({queue(QStringLiteral("tape"))});
    cache.storeLast(queue(QStringLiteral("tape")));
    cache.storePpd(QStringLiteral("tape"), "*PPD-Adobe: \"4.3\"\n", 1'000'000'000);
    constexpr QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                          QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    int count = 0;
    QDirIterator each(cache.folder(), QDir::AllEntries | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    for (; each.hasNext(); ++count) {
        const QFileInfo entry(each.next());
        EXPECT_FALSE(entry.permissions() & others) << entry.filePath().toStdString();
    }
    EXPECT_EQ(count, 4) << "two lists, a folder and a PPD";
    EXPECT_FALSE(QFileInfo(cache.folder()).permissions() & others);
}

TEST_F(QueueCacheTest, ServersHaveFoldersOfTheirOwn)
{
    host::CupsServer other = server();
    other.address = *other.address + QStringLiteral("0");
    EXPECT_NE(QueueCache(other).folder(), cache.folder());
    cache.storeLast(queue(QStringLiteral("tape")));
    EXPECT_FALSE(QueueCache(other).last());
}
