// SPDX-License-Identifier: Apache-2.0

#include <host/documents/LabelDocument.h>
#include <host/documents/OpenedDocument.h>
#include <host/documents/PdfPages.h>
#include <host/labels/LabelDrawing.h>
#include <host/labels/LabelRenderer.h>
#include <host/labels/PageCheck.h>
#include <host/labels/PageThread.h>
#include <tests/samples/SampleImages.h>
#include <tests/samples/SamplePdf.h>

#include <QCoreApplication>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

using host::DocumentErrorKind;
using host::LabelDocument;

namespace {

struct Rejected {
    const char *name;
    QByteArray content;
    DocumentErrorKind kind;
};

void expectError(const Rejected &row)
{
    const Sandbox sandbox;
    const Sandbox temporary;
    qputenv("TMPDIR", QFile::encodeName(temporary.path({})));
    const QString path = sandbox.write(QStringLiteral("hostile"), row.content);
    const auto document = LabelDocument::open(path);
    EXPECT_TRUE(temporary.entries().isEmpty()) << row.name;
    qunsetenv("TMPDIR");
    ASSERT_FALSE(document) << row.name;
    EXPECT_EQ(document.error().kind, row.kind) << row.name << ": " << document.error().message.toStdString();
    EXPECT_TRUE(document.error().message.contains(path)) << row.name;
}

/// The peak memory of the program since it was started or resetPeakMemory() was called, in bytes.
qint64 peakMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    EXPECT_TRUE(status.open(QIODevice::ReadOnly));
    static const QRegularExpression line(QStringLiteral("VmHWM:\\s+(\\d+) kB"));
    return line.match(QString::fromLatin1(status.readAll())).captured(1).toLongLong() * 1024;
}

/// Sets the peak memory to what the program uses now.
void resetPeakMemory()
{
    QFile references(QStringLiteral("/proc/self/clear_refs"));
    ASSERT_TRUE(references.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    ASSERT_EQ(references.write("5"), 1);
}

bool isWhite(const QImage &image)
{
    QImage white(image.size(), QImage::Format_RGB32);
    white.fill(Qt::white);
    return image == white;
}

/// Elements that use each other, twice each, so that the last one contains the first 2^levels times.
QByteArray nestedUses(int levels)
{
    QByteArray content = R"(<g id="u0"><rect width="1" height="1"/></g>)";
    for (int i = 1; i <= levels; ++i) {
        const QByteArray use = "<use xlink:href=\"#u" + QByteArray::number(i - 1) + "\"/>";
        content += "<g id=\"u" + QByteArray::number(i) + "\">" + use + use + "</g>";
    }
    return content;
}

/// Areas that are filled with a pattern that is slow to compute.
QByteArray noise(int areas)
{
    return R"(<filter id="f"><feTurbulence baseFrequency="0.5" numOctaves="9"/></filter>)" +
           QByteArray(R"svg(<rect width="40" height="40" filter="url(#f)"/>)svg").repeated(areas);
}

QByteArray entityBomb()
{
    QByteArray type = "<!ENTITY a \"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa\">";
    for (char name = 'b'; name < 'k'; ++name) {
        const char before = static_cast<char>(name - 1);
        type +=
            QByteArray("<!ENTITY ") + name + " \"" + (QByteArray("&") + before + ';').repeated(10) + "\">";
    }
    return withDeclarations(type, svg(R"(width="40" height="40")", "<text>&j;</text>"));
}

} // namespace

TEST(HostileDocuments, CutShortAnywhere)
{
    const std::pair<const char *, QByteArray> rows[] = {
        {"pdf", pdfWithPageBoxes({"[0 0 100 100]"})},
        {"png", encoded(corners(20, 10), "png")},
        {"jpeg", encoded(corners(200, 100), "jpeg")},
        {"svg", svg(R"(width="40" height="40")")},
    };
    const Sandbox sandbox;
    for (const auto &[name, content] : rows) {
        // Without the last bytes a PDF may still be whole; the other kinds are not.
        for (qsizetype length = content.size() - 12; length > 0; length -= 7) {
            const auto document =
                LabelDocument::open(sandbox.write(QStringLiteral("cut"), content.first(length)));
            if (document) {
                EXPECT_STREQ(name, "pdf") << length;
                continue;
            }
            EXPECT_TRUE(document.error().message.contains(sandbox.path(QStringLiteral("cut"))));
        }
    }
}

TEST(HostileDocuments, BytesTurnedAround)
{
    const QByteArray samples[] = {pdfWithPageBoxes({"[0 0 100 100]"}), encoded(corners(60, 40), "png"),
                                  encoded(corners(60, 40), "jpeg"),
                                  svg(R"(width="40" height="40" viewBox="0 0 4 4")", nestedUses(8))};
    const Sandbox sandbox;
    unsigned seed = 1;
    for (const QByteArray &sample : samples) {
        for (int round = 0; round < 150; ++round) {
            QByteArray content = sample;
            for (int i = 0; i < 3; ++i) {
                seed = seed * 1103515245 + 12345;
                content[static_cast<qsizetype>(seed >> 8) % content.size()] = static_cast<char>(seed >> 4);
            }
            // Whatever it is now: an error or a page.
            const auto document = LabelDocument::open(sandbox.write(QStringLiteral("turned"), content));
            if (document) {
                EXPECT_FALSE(document.value()->render(0, {50, 50}).isNull());
            }
        }
    }
}

TEST(HostileDocuments, Images)
{
    const Rejected rows[] = {
        {"60000 x 60000", claimingPng(60000, 60000), DocumentErrorKind::TooLarge},
        {"a million wide", claimingPng(1'000'000, 1'000), DocumentErrorKind::TooLarge},
        {"2 billion wide", claimingPng(0x7FFFFFFF, 1), DocumentErrorKind::Damaged},
        {"more than can be decoded", claimingPng(7'000, 6'000), DocumentErrorKind::TooLarge},
        {"no width", claimingPng(0, 10), DocumentErrorKind::Damaged},
        {"no pixels", claimingPng(100, 100), DocumentErrorKind::Damaged},
        {"a dot a metre", encoded(corners(100, 100, 1, 1), "png"), DocumentErrorKind::BadPage},
        {"too many dots a metre", encoded(corners(100, 100, 2'000'000'000, 3780), "png"),
         DocumentErrorKind::BadPage},
        {"only a head", encoded(corners(10, 10), "jpeg").first(20), DocumentErrorKind::Damaged},
    };
    ASSERT_NO_FATAL_FAILURE(resetPeakMemory());
    const qint64 before = peakMemory();
    ASSERT_GT(before, 0);
    for (const Rejected &row : rows)
        expectError(row);
    EXPECT_LT(peakMemory() - before, 512LL * 1024 * 1024);
}

TEST(HostileDocuments, ALargeImageIsPrinted)
{
    // Four metres of tape at 300 dots an inch.
    QImage image(280, 47244, QImage::Format_Grayscale8);
    image.setDotsPerMeterX(11811);
    image.setDotsPerMeterY(11811);
    image.fill(Qt::white);
    image.setPixelColor(0, image.height() - 1, Qt::black);
    const Sandbox sandbox;
    const auto document = LabelDocument::open(sandbox.write(QStringLiteral("long"), encoded(image, "png")));
    ASSERT_TRUE(document) << document.error().message.toStdString();
    EXPECT_NEAR(document.value()->pageSize(0).height(), 4000.0 * mm, 1.0);
    EXPECT_FALSE(isWhite(document.value()->render(0, {280, 4724})));
}

TEST(HostileDocuments, Svgs)
{
    const QByteArray box = R"(width="40" height="40")";
    const QByteArray innerSvg = svg(box, R"(<image xlink:href="/etc/hostname" width="9" height="9"/>)");
    const Rejected rows[] = {
        {"html", "<!DOCTYPE html><html><body/></html>", DocumentErrorKind::UnknownKind},
        {"no XML", "<<<", DocumentErrorKind::UnknownKind},
        {"two roots", svg(box) + svg(box).mid(svg(box).indexOf("<svg")), DocumentErrorKind::Damaged},
        {"zero wide", svg(R"(width="0" height="40")"), DocumentErrorKind::BadPage},
        {"less than nothing", svg(R"(width="-4" height="40")"), DocumentErrorKind::BadPage},
        {"nothing drawn", svg("", ""), DocumentErrorKind::BadPage},
        {"a view box of nothing", svg(R"(width="40" height="40" viewBox="0 0 0 0")"),
         DocumentErrorKind::BadPage},
        {"ten metres", svg(R"(width="10000mm" height="40")"), DocumentErrorKind::BadPage},
        {"enormous", svg(R"(width="1e30" height="1e30")"), DocumentErrorKind::BadPage},
        {"infinite", svg(R"(width="1e999" height="1e999")"), DocumentErrorKind::BadPage},
        {"enormous view box", svg(R"(viewBox="0 0 1e300 1e300")"), DocumentErrorKind::BadPage},
        {"a file", svg(box, R"(<image xlink:href="/etc/hostname" width="9" height="9"/>)"),
         DocumentErrorKind::NeedsOthers},
        {"a file by URL", svg(box, R"(<image href="file:///dev/zero" width="9" height="9"/>)"),
         DocumentErrorKind::NeedsOthers},
        {"the network", svg(box, R"(<image href="http://localhost/x.png" width="9" height="9"/>)"),
         DocumentErrorKind::NeedsOthers},
        {"another drawing", svg(box, R"(<use href="other.svg#a"/>)"), DocumentErrorKind::NeedsOthers},
        {"a style sheet",
         "<?xml-stylesheet href=\"/etc/hostname\" type=\"text/css\"?>" +
             svg(box).mid(svg(box).indexOf("<svg")),
         DocumentErrorKind::NeedsOthers},
        {"a file in a picture",
         svg(box, "<image href=\"data:image/png;base64," + innerSvg.toBase64() + "\" width='9' height='9'/>"),
         DocumentErrorKind::UnknownKind},
        {"an enormous picture",
         svg(box, "<image href=\"data:image/png;base64," + claimingPng(60000, 60000).toBase64() + "\"/>"),
         DocumentErrorKind::TooLarge},
        {"a file as entity",
         withDeclarations("<!ENTITY x SYSTEM \"file:///etc/hostname\">", svg(box, "<text>&x;</text>")),
         DocumentErrorKind::NeedsOthers},
        {"entities in entities", entityBomb(), DocumentErrorKind::Damaged},
        {"deep", svg(box, QByteArray("<g>").repeated(100'000) + QByteArray("</g>").repeated(100'000)),
         DocumentErrorKind::TooLarge},
        {"many", svg(box, QByteArray("<g/>").repeated(300'000)), DocumentErrorKind::TooLarge},
        {"a million uses", svg(box, nestedUses(20)), DocumentErrorKind::TooLarge},
        {"minutes of filters", svg(box, noise(2'000)), DocumentErrorKind::TooLarge},
    };
    for (const Rejected &row : rows)
        expectError(row);
}

TEST(HostileDocuments, SvgsThatAreDrawnInBoundedTime)
{
    const QByteArray box = R"(width="40" height="40")";
    const std::pair<const char *, QByteArray> rows[] = {
        {"uses of uses", svg(box, nestedUses(8))},
        {"uses itself",
         svg(box, R"(<g id="a"><use xlink:href="#b"/></g><g id="b"><use xlink:href="#a"/></g>)")},
        {"gradients in a ring",
         svg(box, "<linearGradient id='a' xlink:href='#b'/><linearGradient id='b' xlink:href='#a'/>"
                  "<rect width='9' height='9' fill='url(#a)'/>")},
        {"numbers without end",
         svg(box, R"(<rect x="-1e30" width="1e300" height="nan" rx="1e38"/>)"
                  R"(<path d="M 0 0 L 1e38 1e38 A 1e38 1e38 0 0 0 0 1" stroke="red"/>)")},
        {"the finest dashes", svg(box, R"(<path d="M0 0H40" stroke="red" stroke-dasharray="0.00001"/>)")},
        {"an enormous text", svg(box, R"(<text font-size="1e9">A</text>)")},
        {"a style from elsewhere",
         svg(box, R"svg(<style>@import url("/dev/zero");</style><rect width="9" height="9"/>)svg")},
    };
    const Sandbox sandbox;
    for (const auto &[name, content] : rows) {
        const auto document = LabelDocument::open(sandbox.write(QStringLiteral("drawing"), content));
        ASSERT_TRUE(document) << name << ": " << document.error().message.toStdString();
        EXPECT_EQ(document.value()->pageSize(0), QSizeF(40, 40) * pixel) << name;
        EXPECT_FALSE(document.value()->render(0, {60, 60}).isNull()) << name;
    }
}

TEST(HostileDocuments, PipesFoldersAndDevices)
{
    const Sandbox sandbox;
    const QString pipe = sandbox.path(QStringLiteral("pipe"));
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    const QString good = sandbox.write(QStringLiteral("good.pdf"), pdfWithPageBoxes({"[0 0 10 10]"}));
    for (const QString &path :
         {pipe, sandbox.path({}), QStringLiteral("/dev/zero"), QStringLiteral("/dev/tty")}) {
        const auto document = LabelDocument::open(QStringList{good, path});
        ASSERT_FALSE(document) << path.toStdString();
        EXPECT_EQ(document.error().kind, DocumentErrorKind::NotAFile)
            << document.error().message.toStdString();
        EXPECT_TRUE(document.error().message.contains(path));
    }
}

TEST(HostileDocuments, TenThousandPagesOpenAtOnce)
{
    const Sandbox sandbox;
    std::vector<QByteArray> boxes(10'000, "[0 0 100 100]");
    boxes[9'000] = "[0 0 100 28346]";
    boxes[9'001] = "[0 0 0 0.001]";
    const QString path = sandbox.write(QStringLiteral("many.pdf"), pdfWithPageBoxes(boxes));
    const auto document = LabelDocument::open(path);
    ASSERT_TRUE(document) << document.error().message.toStdString();
    EXPECT_EQ(document.value()->pageCount(), 10'000);
    EXPECT_EQ(document.value()->pageSize(9'999), QSizeF(100, 100));

    // Those behind the first are read in the background, the bad ones too.
    host::PageThread thread(*document.value());
    host::PageCheck check(*document.value(), thread);
    check.start();
    while (!check.isDone())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);

    // The bad pages can be shown, and are reported before anything is printed.
    const host::LabelRenderer renderer(*document.value(), QSizeF(68, 170));
    for (const int page : {9'000, 9'001})
        EXPECT_FALSE(renderer.render(page, 4.0).isNull());
    for (int time = 0; time < 2; ++time) {
        const auto checked = document.value()->checkForPrinting();
        ASSERT_FALSE(checked);
        EXPECT_EQ(checked.error().kind, DocumentErrorKind::BadPage);
        EXPECT_TRUE(checked.error().message.contains(QStringLiteral("page 9001 ")))
            << checked.error().message.toStdString();
    }
}

TEST(HostileDocuments, AFileThatShrinksOrChangesIsNotPrinted)
{
    const Sandbox sandbox;
    const QByteArray content = pdfWithPageBoxes(std::vector<QByteArray>(2'000, "[0 0 100 100]"));
    const QString other = sandbox.write(QStringLiteral("other.pdf"), pdfWithPageBoxes({"[0 0 10 10]"}));
    const std::function<void(const QString &)> changes[] = {
        [](const QString &path) { EXPECT_EQ(truncate(path.toLocal8Bit().constData(), 100), 0); },
        [](const QString &path) { EXPECT_EQ(truncate(path.toLocal8Bit().constData(), 0), 0); },
        [&](const QString &) {
            sandbox.write(QStringLiteral("changing.pdf"), QByteArray(content.size(), 'x'));
        },
        [&](const QString &path) {
            ASSERT_EQ(rename(other.toLocal8Bit().constData(), path.toLocal8Bit().constData()), 0);
        },
        [](const QString &path) { EXPECT_TRUE(QFile::remove(path)); },
    };
    for (const auto &change : changes) {
        const QString path = sandbox.write(QStringLiteral("changing.pdf"), content);
        const auto document = LabelDocument::open(path);
        ASSERT_TRUE(document) << document.error().message.toStdString();
        EXPECT_TRUE(document.value()->checkForPrinting());
        change(path);
        EXPECT_TRUE(isWhite(document.value()->render(1'900, {50, 50})));
        EXPECT_TRUE(document.value()->pageSize(1'950).isValid());
        const auto checked = document.value()->checkForPrinting();
        ASSERT_FALSE(checked);
        EXPECT_EQ(checked.error().kind, DocumentErrorKind::Changed);
        EXPECT_TRUE(checked.error().message.contains(path));
    }
}

TEST(HostileDocuments, PagesThatCannotBeDrawnAreReportedAndHaveAPlaceholder)
{
    const Sandbox sandbox;
    constexpr int bad = host::PdfPages::checkedAtOnce;
    QByteArray content = pdfWithPageBoxes(std::vector<QByteArray>(bad + 1, "[0 0 100 100]"));
    // The last page of the tree is an object that does not exist.
    const qsizetype kids = content.indexOf("/Kids");
    const qsizetype last = content.lastIndexOf(" 0 R", content.indexOf(']', kids));
    content.replace(last - 3, 3, "999");
    const auto document = LabelDocument::open(sandbox.write(QStringLiteral("hole.pdf"), content));
    ASSERT_TRUE(document) << document.error().message.toStdString();
    host::PageLayout layout;
    layout.paper = QSizeF(100, 100);
    const host::LabelDrawing drawing(*document.value(), layout);
    const host::LabelExtent extent = drawing.measure(bad);
    EXPECT_FALSE(extent.drawingFault.isEmpty());
    EXPECT_TRUE(extent.isMeasured);
    EXPECT_FALSE(isWhite(drawing.draw(bad, 4.0)));
    EXPECT_EQ(document.value()->drawingFault(bad), extent.drawingFault);
    EXPECT_TRUE(document.value()->drawingFault(0).isEmpty());
}
