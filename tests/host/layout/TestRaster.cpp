// SPDX-License-Identifier: Apache-2.0
// What is shown is what is printed: the raster that a driver gets of a job from CUPS's filters is the label
// as the strip draws it.
#include "LaidOutFixture.h"

#include <host/labels/LabelDrawing.h>

#include <cups/raster.h>

#include <QProcess>
#include <QTransform>

#include <cmath>
#include <unistd.h>

namespace {

constexpr int dotsPerInch = 180;
constexpr double dotsPerMillimetre = dotsPerInch / host::millimetresPerInch;

/// A corner, two bars and a thin line: any turn, mirroring or shift makes another picture.
QByteArray marks(double width, double height)
{
    const auto box = [](double x, double y, double w, double h) {
        return QByteArray::number(x) + ' ' + QByteArray::number(y) + ' ' + QByteArray::number(w) + ' ' +
               QByteArray::number(h) + " re f\n";
    };
    return "0 g\n" + box(0.15 * width, 0.82 * height, 0.3 * width, 0.1 * height) +
           box(0.15 * width, 0.2 * height, 0.1 * width, 0.5 * height) +
           box(0.4 * width, 0.2 * height, 0.45 * width, 0.05 * height) +
           box(0.6 * width, 0.5 * height, 0.004 * width, 0.3 * height);
}

RawPage page(double width, double height, const QByteArray &entries = {})
{
    return {"/MediaBox [0 0 " + QByteArray::number(width) + ' ' + QByteArray::number(height) + "] " + entries,
            marks(width, height)};
}

struct Row {
    const char *name;
    /// The pages; empty for the sample document.
    std::vector<RawPage> pages;
    host::Scaling scaling = host::Scaling::ShrinkLarge;
    host::Turning turning = host::Turning::Automatic;
    host::Alignment along = host::Alignment::Center;
    bool isMirrored = false;
};

void PrintTo(const Row &row, std::ostream *out)
{
    *out << row.name;
}

const Row rows[] = {
    {"sampleLabels", {}},
    {"paper", {page(68.03, 170.08)}},
    {"mirrored", {page(68.03, 170.08)}, {}, {}, {}, true},
    {"onItsSide", {page(170.08, 68.03)}},
    {"mirroredOnItsSide", {page(170.08, 68.03)}, {}, {}, {}, true},
    {"rotated90", {page(170.08, 68.03, "/Rotate 90")}},
    {"rotated180", {page(68.03, 170.08, "/Rotate 180")}},
    {"rotated270", {page(68.03, 170.08, "/Rotate 270")}},
    {"a4", {page(595, 842)}},
    {"a4AmongLabels", {page(68.03, 170.08), page(595, 842), page(170.08, 68.03)}},
    {"small", {page(40, 60)}},
    {"smallAtTheEnd", {page(40, 60)}, {}, {}, host::Alignment::End},
    {"fitted", {page(40, 60)}, host::Scaling::Fit},
    {"filled", {page(40, 60)}, host::Scaling::Fill},
    {"actualSize", {page(100, 300)}, host::Scaling::ActualSize},
    {"landscape", {page(170.08, 68.03)}, {}, host::Turning::CounterClockwise},
    {"upsideDown", {page(68.03, 170.08)}, {}, host::Turning::UpsideDown},
    {"cropped",
     {{"/MediaBox [0 0 300 400] /CropBox [100 100 168.03 270.08]",
       "1 0 0 1 100 100 cm " + marks(68.03, 170.08)}}},
    {"boxElsewhere", {{"/MediaBox [-20 -30 48.03 140.08]", "1 0 0 1 -20 -30 cm " + marks(68.03, 170.08)}}},
};

class RasterTest : public LaidOutFixture, public testing::WithParamInterface<Row> {
protected:
    host::PageLayout layout() const
    {
        host::PageLayout layout(sampleTape, sampleMargins);
        layout.scaling = GetParam().scaling;
        layout.turning = GetParam().turning;
        layout.along = GetParam().along;
        return layout;
    }

    /// The sample printer with a driver that receives CUPS raster.
    QString rasterPpd()
    {
        QFile file(QStringLiteral(KV_SOURCE_DIR "/resources/ppd/kvelland-lx900.ppd"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        QByteArray ppd = file.readAll();
        ppd.replace("*cupsFilter2: \"application/pdf application/pdf 0 -\"\n", "");
        ppd.replace("\"application/pdf 0 -\"", "\"application/vnd.cups-raster 0 -\"");
        return store(ppd);
    }

    /// Runs the filters of a job. Returns the printable area of each label, in black and white.
    std::vector<QImage> printed(const QString &document)
    {
        QStringList arguments{QStringLiteral("-e"),
                              QStringLiteral("-p"),
                              rasterPpd(),
                              QStringLiteral("-m"),
                              QStringLiteral("printer/raster"),
                              QStringLiteral("-o"),
                              QStringLiteral("PageSize=24x60mm"),
                              QStringLiteral("-o"),
                              QStringLiteral("Resolution=180dpi"),
                              QStringLiteral("-o"),
                              QStringLiteral("print-scaling=none")};
        if (GetParam().isMirrored)
            arguments += {QStringLiteral("-o"), QStringLiteral("mirror")};
        const QString raster = sandbox.path(QStringLiteral("raster"));
        QProcess filters;
        filters.setStandardOutputFile(raster);
        filters.start(QStringLiteral(KV_CUPSFILTER), arguments + QStringList{document});
        EXPECT_TRUE(filters.waitForFinished(-1));
        EXPECT_EQ(filters.exitCode(), 0) << filters.readAllStandardError().constData();
        return pagesOf(raster);
    }

    static std::vector<QImage> pagesOf(const QString &raster)
    {
        QFile file(raster);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        std::vector<QImage> pages;
        cups_raster_t *const reader = cupsRasterOpen(file.handle(), CUPS_RASTER_READ);
        cups_page_header2_t header;
        while (reader && cupsRasterReadHeader2(reader, &header) != 0) {
            EXPECT_EQ(header.cupsBitsPerPixel, 1U);
            EXPECT_EQ(header.cupsColorSpace, CUPS_CSPACE_K);
            QImage image(static_cast<int>(header.cupsWidth), static_cast<int>(header.cupsHeight),
                         QImage::Format_Grayscale8);
            std::vector<unsigned char> line(header.cupsBytesPerLine);
            for (int y = 0; y < image.height(); ++y) {
                cupsRasterReadPixels(reader, line.data(), header.cupsBytesPerLine);
                for (int x = 0; x < image.width(); ++x) {
                    const bool isBlack = line[static_cast<std::size_t>(x) / 8] >> (7 - x % 8) & 1;
                    image.scanLine(y)[x] = isBlack ? 0 : 255;
                }
            }
            pages.push_back(image);
        }
        cupsRasterClose(reader);
        return pages;
    }

    /// The printable area of the label as the strip draws it, as it is on the paper.
    QImage shown(const host::LabelDocument &document, int page, QSize size) const
    {
        const host::LabelDrawing drawing(document, layout());
        const QImage strip = drawing.draw(page, dotsPerMillimetre);
        QImage label = strip.transformed(QTransform().rotate(90));
        if (GetParam().isMirrored)
            label = label.mirrored(true, false);
        const QPointF corner = layout().printableArea().topLeft() * (dotsPerInch / host::pointsPerInch);
        return label.copy(QRect(corner.toPoint(), size)).convertToFormat(QImage::Format_Grayscale8);
    }
};

bool isBlack(const QImage &image, int x, int y)
{
    return image.rect().contains(x, y) && image.constScanLine(y)[x] < 128;
}

/// Whether a pixel near this one is black, or white: lines are drawn a dot wider or narrower.
bool isNear(const QImage &image, int x, int y, bool black)
{
    for (int dy = -1; dy <= 1; ++dy) {
        for (int dx = -1; dx <= 1; ++dx) {
            if (image.rect().contains(x + dx, y + dy) && isBlack(image, x + dx, y + dy) == black)
                return true;
        }
    }
    return false;
}

TEST_P(RasterTest, IsTheLabelThatTheStripShows)
{
    const QString path = GetParam().pages.empty()
                             ? QStringLiteral(KV_SOURCE_DIR "/resources/documents/labels.pdf")
                             : store(rawPdf(GetParam().pages));
    const auto document = host::LabelDocument::open(path);
    ASSERT_TRUE(document) << qPrintable(document.error().message);
    const std::vector<QImage> labels = printed(layOut(path, layout()));
    ASSERT_EQ(labels.size(), static_cast<std::size_t>(document.value()->pageCount()));
    for (std::size_t index = 0; index < labels.size(); ++index) {
        const QImage &label = labels[index];
        const QImage strip = shown(*document.value(), static_cast<int>(index), label.size());
        int black = 0;
        int different = 0;
        int wrong = 0;
        for (int y = 0; y < label.height(); ++y) {
            for (int x = 0; x < label.width(); ++x) {
                const bool isPrinted = isBlack(label, x, y);
                const bool isShown = isBlack(strip, x, y);
                black += isPrinted ? 1 : 0;
                different += isPrinted != isShown ? 1 : 0;
                wrong += isPrinted != isShown && !isNear(strip, x, y, isPrinted) ? 1 : 0;
            }
        }
        const int all = label.width() * label.height();
        EXPECT_GT(black, all / 500) << index;
        // The filters print each dot that a shape touches, so that edges are up to a dot further out. In
        // small text, most dots are at edges, and gray is printed as a pattern of dots.
        const bool hasText = GetParam().pages.empty();
        EXPECT_LE(wrong, hasText ? all / 500 : 0) << index;
        EXPECT_LT(different, hasText ? all / 15 : all / 50) << index;
    }
}

INSTANTIATE_TEST_SUITE_P(Documents, RasterTest, testing::ValuesIn(rows),
                         [](const auto &row) { return std::string(row.param.name); });

} // namespace
