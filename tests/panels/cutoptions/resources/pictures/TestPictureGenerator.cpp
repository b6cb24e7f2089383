// SPDX-License-Identifier: Apache-2.0
// The program, run as the build runs it.
#include <resources/pictures/PictureSpec.h>
#include <tests/support/Waiting.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QSvgRenderer>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace pictures;

namespace {

struct Outcome {
    int status = -1;
    QString errors;
};

Outcome generate(const QStringList &arguments)
{
    QProcess program;
    program.start(QStringLiteral(KV_PICTURE_GENERATOR), arguments);
    if (!program.waitForFinished(test_support::failureMilliseconds) ||
        program.exitStatus() != QProcess::NormalExit)
        return {};
    return {program.exitCode(), QString::fromUtf8(program.readAllStandardError())};
}

class PictureGenerator : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(folder.isValid()); }

    QString path(const char *name) const { return folder.filePath(QString::fromLatin1(name)); }

    QTemporaryDir folder;
};

} // namespace

TEST_F(PictureGenerator, drawsTheSameFilesAgainIntoANewFolder)
{
    EXPECT_EQ(generate({QStringLiteral("--output"), path("new/pictures")}).status, 0);
    const QDir drawn(path("new/pictures"));
    const QStringList files = drawn.entryList(QDir::Files);
    EXPECT_EQ(static_cast<std::size_t>(files.size()), allPictures().size() * 4);
    for (const QString &file : files)
        EXPECT_EQ(QImage(drawn.filePath(file)), QImage(QStringLiteral(KV_PICTURE_FOLDER "/") + file))
            << qPrintable(file);
}

TEST_F(PictureGenerator, drawsAContactSheetWithARowForEachPicture)
{
    EXPECT_EQ(generate({QStringLiteral("--contact-sheet"), path("sheet.png")}).status, 0);
    const QImage sheet(path("sheet.png"));
    ASSERT_FALSE(sheet.isNull());
    const int rows = static_cast<int>(allPictures().size());
    EXPECT_EQ(sheet.height() % rows, 0);
    EXPECT_GE(sheet.height() / rows, 160);
    EXPECT_GE(sheet.width(), 2 * (184 + 368));
    EXPECT_EQ(sheet.pixelColor(0, 0), QColor(0xef, 0xef, 0xef));
    EXPECT_EQ(sheet.pixelColor(sheet.width() - 1, sheet.height() - 1), QColor(0x2b, 0x2b, 0x2b));
}

TEST_F(PictureGenerator, writesTheSvgThatThePicturesAreDrawnFrom)
{
    EXPECT_EQ(generate({QStringLiteral("--svg"), path("svg")}).status, 0);
    const QDir drawn(path("svg"));
    EXPECT_EQ(static_cast<std::size_t>(drawn.entryList(QDir::Files).size()), allPictures().size() * 2);
    for (const QString &file : drawn.entryList(QDir::Files))
        EXPECT_EQ(QSvgRenderer(drawn.filePath(file)).defaultSize(), QSize(184, 80)) << qPrintable(file);
}

TEST_F(PictureGenerator, saysWhichFolderCannotBeMade)
{
    QFile inTheWay(path("file"));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    const Outcome outcome = generate({QStringLiteral("--output"), path("file/pictures")});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.errors.contains(path("file/pictures"))) << qPrintable(outcome.errors);
}

TEST_F(PictureGenerator, saysWhichFileCannotBeWrittenAndLeavesNothingBehind)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("sheet.png")));
    const Outcome outcome = generate({QStringLiteral("--contact-sheet"), path("sheet.png")});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.errors.contains(path("sheet.png"))) << qPrintable(outcome.errors);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList());
}

TEST_F(PictureGenerator, refusesToDoNothing)
{
    const Outcome outcome = generate({});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.errors.contains(QStringLiteral("Nothing to do"))) << qPrintable(outcome.errors);
}
