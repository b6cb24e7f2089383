// SPDX-License-Identifier: Apache-2.0
// Which files a request may name.
#include "DriverFixture.h"

#include <tests/support/SpecialFiles.h>

#include <QDir>
#include <QImage>

#include <cerrno>

using test_support::FullDevice;
using test_support::makeFifo;
using test_support::permissionsOf;
using test_support::statusOf;
using test_support::UmaskScope;

namespace {

class PanelDriverFiles : public test_support::PanelDriverTest {
protected:
    void SetUp() override
    {
        PanelDriverTest::SetUp();
        show();
    }

    QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }
    /// Writing the picture there fails with the message, and the existing file stays.
    void expectError(const char *op, const QString &target, const char *words)
    {
        const struct stat before = statusOf(target);
        const QString error = errorOf(m_driver.handle({{"op", op}, {"path", target}}));
        EXPECT_TRUE(error.contains(target)) << op << error.toStdString();
        EXPECT_TRUE(error.contains(QLatin1String(words))) << op << error.toStdString();
        EXPECT_EQ(statusOf(target).st_ino, before.st_ino);
        EXPECT_EQ(statusOf(target).st_mode, before.st_mode);
    }
};

constexpr const char *operations[] = {"picture", "screenshot"};

} // namespace

TEST_F(PanelDriverFiles, PicturesAreForThisUserOnly)
{
    const UmaskScope scope(0);
    for (const char *const op : operations) {
        EXPECT_EQ(m_driver.handle({{"op", op}, {"path", path(op)}}).value("ok"), true);
        EXPECT_EQ(permissionsOf(path(op)), 0600U) << op;
        EXPECT_FALSE(QImage(path(op)).isNull()) << op;
    }
}

TEST_F(PanelDriverFiles, NothingButAFileIsReplacedByAPicture)
{
    makeFifo(path("fifo"));
    ASSERT_TRUE(QDir().mkdir(path("folder")));
    ASSERT_TRUE(QFile::link(m_ppd, path("link")));
    const qint64 size = QFileInfo(m_ppd).size();
    for (const char *const op : operations) {
        expectError(op, path("fifo"), "no program reads from it");
        expectError(op, path("folder"), "it is a folder");
        expectError(op, path("link"), "it is a symbolic link");
    }
    EXPECT_EQ(QFileInfo(m_ppd).size(), size);
}

TEST_F(PanelDriverFiles, APictureDoesNotReplaceADevice)
{
    const FullDevice device(path("full"));
    for (const char *const op : operations)
        expectError(op, device.path(), strerror(ENOSPC));
}

TEST_F(PanelDriverFiles, APathIsNotCutShort)
{
    const QString cut = path("cut.png");
    const QString rest = QChar(QChar::Null) + QStringLiteral(".png");
    for (const char *const op : operations) {
        EXPECT_EQ(errorOf(m_driver.handle({{"op", op}, {"path", cut + rest}})),
                  QStringLiteral("member \"path\" must be a path without U+0000"))
            << op;
    }
    EXPECT_FALSE(QFile::exists(cut));
    EXPECT_EQ(errorOf(open({{"ppd", m_ppd + rest}})),
              QStringLiteral("member \"ppd\" must be a path without U+0000"));
}
