// SPDX-License-Identifier: Apache-2.0
#include "SamplePdf.h"
#include "SamplePpd.h"

#include <host/OutputFiles.h>
#include <host/StripPdf.h>
#include <host/Units.h>
#include <host/VirtualPrinter.h>

#include <QBuffer>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <cmath>

using host::Collate;
using host::LabelDocument;
using host::OutputFailure;
using host::VirtualPrinter;

namespace {

constexpr double mm = host::pointsPerMillimetre;

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
        paper = state.ppd().paper("W24H60").value();
        renderer = std::make_unique<host::LabelRenderer>(*document, paper.size);
    }

    host::PrintJob job(int copies = 1) const
    {
        return {state, *document, *renderer, paper, {{0, 1, 2}, copies, Collate::Yes}};
    }

    QByteArray read(const QString &name) const
    {
        QFile file(sandbox.path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        return file.readAll();
    }

    Sandbox sandbox;
    host::DialogState state{openTapePpd(sandbox)};
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
    const auto error = VirtualPrinter::print(job(), picture(), folder);
    ASSERT_FALSE(error) << error->message.toStdString();
    EXPECT_EQ(
        QDir(folder).entryList(QDir::Files, QDir::Name),
        (QStringList{QStringLiteral("dialog.png"), QStringLiteral("job.json"), QStringLiteral("strip.pdf")}));
    EXPECT_EQ(QImage(folder + QStringLiteral("/dialog.png")).size(), QSize(8, 8));
}

TEST_F(VirtualPrinterTest, WritesTheJobForPrograms)
{
    state.changeOption(QStringLiteral("KvHalfCut"), QStringLiteral("OFF"), nullptr);
    state.changeOption(QStringLiteral("KvCutLabel"), QStringLiteral("2"), nullptr);
    ASSERT_FALSE(VirtualPrinter::print(job(2), {}, sandbox.path(QStringLiteral("out"))));
    const QJsonObject json = QJsonDocument::fromJson(read(QStringLiteral("out/job.json"))).object();
    EXPECT_EQ(json.value(QStringLiteral("printer")).toString(), QStringLiteral("Kvelland Tape 9"));
    EXPECT_EQ(json.value(QStringLiteral("copies")).toInt(), 2);
    EXPECT_EQ(json.value(QStringLiteral("pages")).toArray(), (QJsonArray{1, 2, 3}));
    EXPECT_EQ(json.value(QStringLiteral("options")).toArray(),
              (QJsonArray{QJsonObject{{"keyword", "PageSize"}, {"choice", "W24H60"}},
                          QJsonObject{{"keyword", "KvHalfCut"}, {"choice", "OFF"}},
                          QJsonObject{{"keyword", "KvCutLabel"}, {"choice", "2"}}}));
    const QJsonObject plan = json.value(QStringLiteral("plan")).toObject();
    EXPECT_EQ(plan.value(QStringLiteral("labels")).toArray().size(), 6);
    EXPECT_EQ(plan.value(QStringLiteral("pieces")).toArray().size(), 3);
    // Six labels of 60 mm, and the margin of 2 mm that the ImageableArea tells.
    EXPECT_EQ(plan.value(QStringLiteral("tapeUsed")).toDouble(), 362.0);
    EXPECT_EQ(json.value(QStringLiteral("paper")).toObject().value(QStringLiteral("width")).toDouble(), 24.0);
}

TEST_F(VirtualPrinterTest, CopiesOfSeveralDocumentsComeDocumentByDocument)
{
    auto opened = LabelDocument::open(QStringList{document->path(), document->path()});
    ASSERT_TRUE(opened) << opened.error().message.toStdString();
    const LabelDocument &both = *opened.value();
    const host::LabelRenderer rendered(both, paper.size);
    const host::PrintJob twice(state, both, rendered, paper, {{0, 1, 3}, 2, Collate::Yes});
    std::vector<int> pages;
    for (const host::PlannedLabel &label : twice.plan().labels())
        pages.push_back(label.page);
    EXPECT_EQ(pages, (std::vector<int>{0, 1, 0, 1, 3, 3}));
    const QJsonObject json = printJobJson(twice);
    EXPECT_EQ(json.value(QStringLiteral("document")).toString(), document->path());
    EXPECT_EQ(json.value(QStringLiteral("documents")).toArray(),
              (QJsonArray{document->path(), document->path()}));
}

TEST_F(VirtualPrinterTest, DrawsEveryCutOnTheStrip)
{
    const QColor fullCut(0xd6, 0x2b, 0x1f);
    const QColor halfCut(0xc4, 0x6a, 0x00);
    struct Row {
        std::vector<std::pair<const char *, const char *>> choices;
        int fullCuts;
        int halfCuts;
    };
    const Row rows[] = {
        {{}, 3, 0},
        {{{"KvCutLabel", "2"}}, 2, 1},
        {{{"KvAutoTapeCut", "OFF"}}, 1, 2},
        {{{"KvAutoTapeCut", "OFF"}, {"KvHalfCut", "OFF"}, {"KvCutAtEnd", "OFF"}}, 0, 0},
        {{{"KvAutoTapeCut", "OFF"}, {"KvChainPrint", "ON"}}, 0, 2},
        {{{"KvSpecialTape", "ON"}}, 0, 0},
    };
    for (const Row &row : rows) {
        host::DialogState own(openTapePpd(sandbox));
        for (const auto &[keyword, choice] : row.choices)
            own.changeOption(QLatin1String(keyword), QLatin1String(choice), nullptr);
        const host::PrintJob printed(own, *document, *renderer, paper, {{0, 1, 2}, 1, Collate::Yes});
        ASSERT_FALSE(VirtualPrinter::print(printed, {}, sandbox.path(QStringLiteral("out"))));
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
    ASSERT_FALSE(VirtualPrinter::print(job(4), {}, sandbox.path(QStringLiteral("out"))));
    const RenderedStrip strip(sandbox.path(QStringLiteral("out/strip.pdf")));
    // Twelve labels of 60 mm and 2 mm of margin, eleven gaps of 7 mm, and what stands around them.
    EXPECT_NEAR(strip.size().width(), 12 * 60 + 2 + 11 * 7 + 2 + 26 + 2 * 8, 0.5);
}

TEST_F(VirtualPrinterTest, AStripLongerThanAPdfPageGoesOnOnTheNext)
{
    ASSERT_FALSE(VirtualPrinter::print(job(60), {}, sandbox.path(QStringLiteral("out"))));
    const RenderedStrip strip(sandbox.path(QStringLiteral("out/strip.pdf")));
    EXPECT_EQ(strip.pageCount(), 3);
    EXPECT_LE(strip.size().width(), 5080.0);
    // However often a page is printed, its picture is in the file once.
    EXPECT_LT(QFile(sandbox.path(QStringLiteral("out/strip.pdf"))).size(), 400'000);
}

TEST_F(VirtualPrinterTest, SaysWhenItCannotWrite)
{
    const QString file = sandbox.write(QStringLiteral("file"), "x");
    const auto onFile = VirtualPrinter::print(job(), {}, file);
    ASSERT_TRUE(onFile);
    EXPECT_EQ(onFile->kind, OutputFailure::NoFolder);
    EXPECT_TRUE(onFile->message.contains(file)) << onFile->message.toStdString();

    const auto under = VirtualPrinter::print(job(), {}, file + QStringLiteral("/under"));
    ASSERT_TRUE(under);
    EXPECT_EQ(under->kind, OutputFailure::NoFolder);
    EXPECT_EQ(read(QStringLiteral("file")), "x");
}

TEST_F(VirtualPrinterTest, LeavesNothingWhenOneFileCannotBePlaced)
{
    const QString folder = sandbox.path(QStringLiteral("out"));
    ASSERT_TRUE(QDir().mkpath(folder + QStringLiteral("/job.json")));
    const auto error = VirtualPrinter::print(job(), picture(), folder);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->kind, OutputFailure::NotWritten);
    EXPECT_TRUE(error->message.contains(QStringLiteral("job.json"))) << error->message.toStdString();
    EXPECT_EQ(QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{QStringLiteral("job.json")});
}

TEST_F(VirtualPrinterTest, SaysWhenTheDiskIsFull)
{
    // The device that is always full.
    QFile full(QStringLiteral("/dev/full"));
    ASSERT_TRUE(full.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    writeStripPdf(job(), &full);
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
        const auto error = files.commit();
        ASSERT_TRUE(error);
        EXPECT_TRUE(error->message.contains(QStringLiteral("a/b/c/two")));
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
    EXPECT_FALSE(files.commit());
    EXPECT_TRUE(QFile::exists(sandbox.path(QStringLiteral("out/one"))));
    EXPECT_TRUE(QFile::exists(sandbox.path(QStringLiteral("out/two"))));
}

TEST(VirtualPrinter, EveryJobGetsAFolderOfItsOwn)
{
    const QString first = VirtualPrinter::freshFolder();
    ASSERT_TRUE(QDir().mkpath(first));
    const QString second = VirtualPrinter::freshFolder();
    EXPECT_NE(first, second);
    EXPECT_FALSE(QFileInfo::exists(second));
}
