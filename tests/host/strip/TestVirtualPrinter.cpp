// SPDX-License-Identifier: Apache-2.0

#include <host/documents/PrintOrder.h>
#include <host/strip/OutputFiles.h>
#include <host/strip/StripPdf.h>
#include <host/strip/VirtualPrinter.h>
#include <tests/samples/SampleCuts.h>
#include <tests/samples/SamplePdf.h>
#include <tests/samples/SamplePpd.h>
#include <tests/support/SpecialFiles.h>

#include <QBuffer>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <cmath>

using host::Collate;
using host::LabelDocument;
using host::OutputErrorKind;
using host::VirtualPrinter;

using host::operator""_mm;

namespace {

class VirtualPrinterTest : public testing::Test {
protected:
    void SetUp() override
    {
        std::vector<SamplePage> pages;
        for (int page = 0; page < 3; ++page) {
            pages.push_back({QSizeF(60, 24) * mm, [page](QPainter &painter) {
                                 painter.fillRect(QRectF(10 * mm, 8 * mm, (20 + 5 * page) * mm, 8 * mm),
                                                  Qt::black);
                             }});
        }
        auto opened = LabelDocument::open(writePdf(sandbox, QStringLiteral("labels.pdf"), pages));
        ASSERT_TRUE(opened) << opened.error().message.toStdString();
        document = std::move(opened).value();
        paper = ppd.paper("W24H60").value();
        renderer = std::make_unique<host::LabelRenderer>(*document, paper.size);
    }

    /// Three labels, so often, cut as the default says.
    host::CutPlan plan(int copies = 1,
                       const SampleCuts &cuts = {.automaticCut = true, .cutAtEnd = true}) const
    {
        std::vector<host::LabelExtent> extents;
        for (int page = 0; page < document->pageCount(); ++page)
            extents.push_back(renderer->extent(page, host::MeasureBlank::No));
        const auto order = host::pageNumbers(host::printOrder({{0, 1, 2}}, copies, Collate::Yes));
        return host::CutPlan::make(effectsOn(order.size(), cuts), order, extents, 2.0_mm);
    }

    host::Result<void, host::OutputError> print(const host::CutPlan &printed, const QString &folder,
                                                const QImage &dialog = {}) const
    {
        return VirtualPrinter::print(strip(printed), QJsonObject{{"copies", 2}}, dialog, folder);
    }
    host::PrintedStrip strip(const host::CutPlan &printed) const
    {
        return {printed, *renderer, document->title(), ppd.printerName(), paper.text};
    }

    QByteArray read(const QString &name) const
    {
        QFile file(sandbox.path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        return file.readAll();
    }

    Sandbox sandbox;
    host::PpdFile ppd = openTapePpd(sandbox);
    std::unique_ptr<LabelDocument> document;
    host::PpdPaper paper;
    std::unique_ptr<host::LabelRenderer> renderer;
};

QImage picture()
{
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::red);
    return image;
}

/// The colour in the middle of a page of the strip's PDF at a place in millimetres from its top left.
class RenderedStrip {
public:
    explicit RenderedStrip(const QString &path)
    {
        auto opened = LabelDocument::open(path);
        EXPECT_TRUE(opened) << opened.error().message.toStdString();
        m_document = std::move(opened).value();
        const QSizeF size = m_document->pageSize(0);
        m_image = m_document->render(0, (size / mm * resolution).toSize());
    }

    QSizeF size() const { return m_document->pageSize(0) / mm; }
    int pageCount() const { return m_document->pageCount(); }
    /// How many columns are the colour of full cuts at the height.
    int columnsLike(const QColor &color, double y) const
    {
        // Narrower runs are edges where two other colours meet.
        constexpr int narrowest = 3;
        int columns = 0;
        int run = 0;
        for (int x = 0; x < m_image.width(); ++x) {
            const QColor here(m_image.pixel(x, static_cast<int>(y * resolution)));
            const bool like = std::abs(here.red() - color.red()) < 50 &&
                              std::abs(here.green() - color.green()) < 50 &&
                              std::abs(here.blue() - color.blue()) < 50;
            run = like ? run + 1 : 0;
            columns += run == narrowest ? 1 : 0;
        }
        return columns;
    }

private:
    static constexpr double resolution = 12.0;
    std::unique_ptr<LabelDocument> m_document;
    QImage m_image;
};

} // namespace

TEST_F(VirtualPrinterTest, LeavesStripJobAndDialog)
{
    const QString folder = sandbox.path(QStringLiteral("made/for/it"));
    const auto printed = print(plan(), folder, picture());
    ASSERT_TRUE(printed) << printed.error().message.toStdString();
    EXPECT_EQ(
        QDir(folder).entryList(QDir::Files, QDir::Name),
        (QStringList{QStringLiteral("dialog.png"), QStringLiteral("job.json"), QStringLiteral("strip.pdf")}));
    EXPECT_EQ(QImage(folder + QStringLiteral("/dialog.png")).size(), QSize(8, 8));
}

TEST_F(VirtualPrinterTest, WritesTheJobForPrograms)
{
    ASSERT_TRUE(print(plan(2), sandbox.path(QStringLiteral("out"))));
    const QJsonObject json = QJsonDocument::fromJson(read(QStringLiteral("out/job.json"))).object();
    EXPECT_EQ(json, (QJsonObject{{"copies", 2}}));
}

TEST_F(VirtualPrinterTest, DrawsEveryCutOnTheStrip)
{
    const QColor fullCut(0xd6, 0x2b, 0x1f);
    const QColor halfCut(0xc4, 0x6a, 0x00);
    struct Row {
        SampleCuts cuts;
        int fullCuts;
        int halfCuts;
    };
    const Row rows[] = {
        {{.automaticCut = true}, 3, 0},
        {{.automaticCut = true, .labelsPerCut = 2, .halfCut = true}, 2, 1},
        {{.cutAtEnd = true, .halfCut = true}, 1, 2},
        {{}, 0, 0},
        {{.halfCut = true, .chainPrint = true}, 0, 2},
    };
    for (const Row &row : rows) {
        ASSERT_TRUE(print(plan(1, row.cuts), sandbox.path(QStringLiteral("out"))));
        const RenderedStrip strip(sandbox.path(QStringLiteral("out/strip.pdf")));
        // A full cut's line reaches below the tape and its backing, a half cut's marker stands above it.
        const double tapeBottom = strip.size().height() - 8.0 - 8.0 - 9.0 + 8.0;
        const double tapeTop = tapeBottom - 24.0;
        EXPECT_EQ(strip.columnsLike(fullCut, tapeBottom + 1.2), row.fullCuts);
        EXPECT_EQ(strip.columnsLike(halfCut, tapeTop - 1.5), row.halfCuts);
    }
}

TEST_F(VirtualPrinterTest, TheStripIsInItsTrueSize)
{
    ASSERT_TRUE(print(plan(4), sandbox.path(QStringLiteral("out"))));
    const RenderedStrip strip(sandbox.path(QStringLiteral("out/strip.pdf")));
    // Twelve labels of 60 mm and 2 mm of margin, eleven gaps of 7 mm, and what stands around them.
    EXPECT_NEAR(strip.size().width(), 12 * 60 + 2 + 11 * 7 + 2 + 26 + 2 * 8, 0.5);
}

TEST_F(VirtualPrinterTest, AStripLongerThanAPdfPageGoesOnOnTheNext)
{
    ASSERT_TRUE(print(plan(60), sandbox.path(QStringLiteral("out"))));
    const RenderedStrip strip(sandbox.path(QStringLiteral("out/strip.pdf")));
    EXPECT_EQ(strip.pageCount(), 3);
    EXPECT_LE(strip.size().width(), 5080.0);
    // However often a page is printed, its picture is in the file once.
    EXPECT_LT(QFile(sandbox.path(QStringLiteral("out/strip.pdf"))).size(), 400'000);
}

TEST_F(VirtualPrinterTest, SaysWhenItCannotWrite)
{
    const QString file = sandbox.write(QStringLiteral("file"), "x");
    const auto onFile = print(plan(), file);
    ASSERT_FALSE(onFile);
    EXPECT_EQ(onFile.error().kind, OutputErrorKind::NoFolder);
    EXPECT_TRUE(onFile.error().message.contains(file)) << onFile.error().message.toStdString();

    const auto under = print(plan(), file + QStringLiteral("/under"));
    ASSERT_FALSE(under);
    EXPECT_EQ(under.error().kind, OutputErrorKind::NoFolder);
    EXPECT_EQ(read(QStringLiteral("file")), "x");
}

TEST_F(VirtualPrinterTest, LeavesNothingWhenOneFileCannotBePlaced)
{
    const QString folder = sandbox.path(QStringLiteral("out"));
    ASSERT_TRUE(QDir().mkpath(folder + QStringLiteral("/job.json")));
    const auto printed = print(plan(), folder, picture());
    ASSERT_FALSE(printed);
    EXPECT_EQ(printed.error().kind, OutputErrorKind::NotWritten);
    EXPECT_TRUE(printed.error().message.contains(QStringLiteral("job.json")))
        << printed.error().message.toStdString();
    EXPECT_EQ(QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{QStringLiteral("job.json")});
}

TEST_F(VirtualPrinterTest, WhatIsPrintedIsForThisUserOnly)
{
    const test_support::UmaskScope scope(0);
    ASSERT_TRUE(print(plan(), sandbox.path(QStringLiteral("made/out")), picture()));
    for (const char *const folder : {"made", "made/out"})
        EXPECT_EQ(test_support::permissionsOf(sandbox.path(QLatin1String(folder))), 0700U) << folder;
    for (const char *const name : {"strip.pdf", "job.json", "dialog.png"})
        EXPECT_EQ(
            test_support::permissionsOf(sandbox.path(QStringLiteral("made/out/") + QLatin1String(name))),
            0600U)
            << name;
}

TEST_F(VirtualPrinterTest, FollowsNoLinks)
{
    const QString victim = sandbox.write(QStringLiteral("victim"), "x");
    const QString folder = sandbox.path(QStringLiteral("out"));
    ASSERT_TRUE(QDir().mkpath(folder));
    ASSERT_TRUE(QFile::link(victim, folder + QStringLiteral("/job.json")));
    const auto printed = print(plan(), folder);
    ASSERT_FALSE(printed);
    EXPECT_EQ(printed.error().kind, OutputErrorKind::NotWritten);
    EXPECT_TRUE(printed.error().message.contains(QStringLiteral("job.json\": it is a symbolic link")))
        << printed.error().message.toStdString();
    EXPECT_EQ(read(QStringLiteral("victim")), "x");
    EXPECT_EQ(QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{QStringLiteral("job.json")});
}

TEST_F(VirtualPrinterTest, SaysWhenTheDiskIsFull)
{
    // The device that is always full.
    QFile full(QStringLiteral("/dev/full"));
    ASSERT_TRUE(full.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    const host::CutPlan printed = plan();
    writeStripPdf(strip(printed), &full);
    EXPECT_NE(full.error(), QFileDevice::NoError);
}

TEST(OutputFiles, TakeBackFoldersAndFilesOfAFailedJob)
{
    const Sandbox sandbox;
    {
        host::OutputFiles files(sandbox.path(QStringLiteral("a/b/c")));
        files.write(QStringLiteral("one"), [](QIODevice *device) { return device->write("1") == 1; });
        files.write(QStringLiteral("two"), [](QIODevice *) { return false; });
        files.write(QStringLiteral("three"), [](QIODevice *) {
            ADD_FAILURE() << "nothing is written after a failure";
            return true;
        });
        const auto printed = files.commit();
        ASSERT_FALSE(printed);
        EXPECT_TRUE(printed.error().message.contains(QStringLiteral("a/b/c/two")));
    }
    EXPECT_TRUE(sandbox.entries().isEmpty()) << sandbox.entries().join(u' ').toStdString();
}

TEST(OutputFiles, AppearOnlyTogether)
{
    const Sandbox sandbox;
    host::OutputFiles files(sandbox.path(QStringLiteral("out")));
    files.write(QStringLiteral("one"), [](QIODevice *device) { return device->write("1") == 1; });
    EXPECT_FALSE(QFile::exists(sandbox.path(QStringLiteral("out/one"))));
    files.write(QStringLiteral("two"), [](QIODevice *device) { return device->write("2") == 1; });
    EXPECT_TRUE(files.commit());
    EXPECT_TRUE(QFile::exists(sandbox.path(QStringLiteral("out/one"))));
    EXPECT_TRUE(QFile::exists(sandbox.path(QStringLiteral("out/two"))));
}

TEST(OutputFiles, TakeBackNothingThatTheyHaveNotMade)
{
    const Sandbox sandbox;
    const QString fifo = sandbox.path(QStringLiteral("fifo"));
    test_support::makeFifo(fifo);
    const int reader = ::open(QFile::encodeName(fifo).constData(), O_RDONLY | O_NONBLOCK); // NOLINT
    ASSERT_GE(reader, 0);
    ASSERT_TRUE(QDir().mkdir(sandbox.path(QStringLiteral("later"))));
    host::OutputFiles files(sandbox.path(QStringLiteral(".")));
    files.write(QStringLiteral("fifo"), [](QIODevice *device) { return device->write("1") == 1; });
    files.write(QStringLiteral("later/file"), [](QIODevice *device) { return device->write("2") == 1; });
    ASSERT_TRUE(QDir().mkdir(sandbox.path(QStringLiteral("later/file"))));
    EXPECT_FALSE(files.commit());
    EXPECT_TRUE(S_ISFIFO(test_support::statusOf(fifo).st_mode));
    ::close(reader);
}

TEST(VirtualPrinter, EveryJobGetsAFolderOfItsOwn)
{
    const QString first = VirtualPrinter::unusedFolder();
    ASSERT_TRUE(QDir().mkpath(first));
    const QString second = VirtualPrinter::unusedFolder();
    EXPECT_NE(first, second);
    EXPECT_FALSE(QFileInfo::exists(second));
}
