// SPDX-License-Identifier: Apache-2.0

#include <host/documents/LabelDocument.h>
#include <host/documents/StandardInput.h>
#include <tests/samples/InputFrom.h>
#include <tests/samples/SampleImages.h>
#include <tests/samples/SamplePdf.h>

#include <QDir>

#include <gtest/gtest.h>

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>

using host::DocumentErrorKind;
using host::LabelDocument;

namespace {

/// Points the temporary files of the code under test to a folder of their own.
class DocumentKinds : public testing::Test {
protected:
    DocumentKinds() { qputenv("TMPDIR", QFile::encodeName(temporary.path({}))); }
    ~DocumentKinds() override { qunsetenv("TMPDIR"); }

    std::unique_ptr<LabelDocument> open(const QStringList &names) const
    {
        auto document = LabelDocument::open(names);
        if (!document)
            qFatal("%s", qPrintable(document.error().message));
        return std::move(document).value();
    }

    QString write(const char *name, const QByteArray &content) const
    {
        return sandbox.write(QString::fromUtf8(name), content);
    }

    Sandbox sandbox;
    Sandbox temporary;
};

void expectSize(const LabelDocument &document, int page, QSizeF points, const char *what)
{
    EXPECT_NEAR(document.pageSize(page).width(), points.width(), 0.015) << what;
    EXPECT_NEAR(document.pageSize(page).height(), points.height(), 0.015) << what;
}

QColor colorAt(const LabelDocument &document, double x, double y, int page = 0)
{
    const QImage image = document.render(page, {400, 400});
    return image.pixelColor(static_cast<int>(x * 400), static_cast<int>(y * 400));
}

/// The only image of a PDF, and its page.
struct EmbeddedImage {
    explicit EmbeddedImage(const QString &path)
    {
        pdf.processFile(QFile::encodeName(path).constData());
        const std::vector<QPDFPageObjectHelper> pages = QPDFPageDocumentHelper(pdf).getAllPages();
        EXPECT_EQ(pages.size(), 1U);
        page = pages.front().getObjectHandle();
        image = QPDFPageObjectHelper(page).getImages().begin()->second;
    }

    qint64 number(const char *key) { return image.getDict().getKey(key).getIntValue(); }
    std::string name(const char *key) { return image.getDict().getKey(key).getName(); }

    QPDF pdf;
    QPDFObjectHandle page;
    QPDFObjectHandle image;
};

QByteArray bytesOf(const std::shared_ptr<Buffer> &buffer)
{
    return {reinterpret_cast<const char *>(buffer->getBuffer()), static_cast<qsizetype>(buffer->getSize())};
}

void expectColor(const QColor &color, const QColor &expected, const char *what)
{
    EXPECT_NEAR(color.red(), expected.red(), 6) << what;
    EXPECT_NEAR(color.green(), expected.green(), 6) << what;
    EXPECT_NEAR(color.blue(), expected.blue(), 6) << what;
}

} // namespace

TEST_F(DocumentKinds, AreToldByContentNotByName)
{
    const auto document = open(
        {write("a.png", pdfWithPageBoxes({"[0 0 72 36]"})), write("b.pdf", encoded(corners(40, 20), "png")),
         write("c.svg", encoded(corners(40, 20), "jpeg")), write("d.jpeg", svg(R"(width="40" height="20")")),
         write("e", "some line before it\n" + pdfWithPageBoxes({"[0 0 72 36]"}))});
    ASSERT_EQ(document->pageCount(), 5);
    for (int page = 0; page < 5; ++page)
        EXPECT_NEAR(document->pageSize(page).width() / document->pageSize(page).height(), 2.0, 1e-3) << page;
}

TEST_F(DocumentKinds, FormOneSequenceOfPages)
{
    const QString pdf = write("two.pdf", pdfWithPageBoxes({"[0 0 100 50]", "[0 0 60 50]"}));
    const QString png = write("one.png", encoded(corners(96, 96), "png"));
    const auto document = open({pdf, png, pdf});
    EXPECT_EQ(document->pageCounts(), (std::vector<int>{2, 1, 2}));
    EXPECT_EQ(document->pageCount(), 5);
    EXPECT_EQ(document->path(), pdf);
    EXPECT_EQ(document->title(), QStringLiteral("two.pdf and 2 more"));
    const double widths[] = {100, 60, 72, 100, 60};
    for (int page = 0; page < 5; ++page)
        EXPECT_NEAR(document->pageSize(page).width(), widths[page], 0.015) << page;
    const auto &files = document->files();
    ASSERT_EQ(files.size(), 3U);
    EXPECT_EQ(files[2].firstPage, 3);
    EXPECT_EQ(files[2].pageCount, 2);
    // A PDF is sent as it is, everything else as what was shown.
    EXPECT_EQ(files[0].pathToSend, pdf);
    EXPECT_NE(files[1].pathToSend, png);
    EXPECT_EQ(files[1].name, png);
    for (const host::DocumentFile &file : files)
        EXPECT_EQ(file.mimeType, QStringLiteral("application/pdf"));
    const auto sent = open({files[1].pathToSend});
    expectSize(*sent, 0, QSizeF(72, 72), "what is sent");
    EXPECT_EQ(sent->render(0, {96, 96}), document->render(2, {96, 96}));
}

TEST_F(DocumentKinds, LeaveNoTemporaryFile)
{
    const QString png = write("one.png", encoded(corners(96, 96), "png"));
    {
        const auto document = open({png, write("two.svg", svg(R"(width="40" height="20")"))});
        EXPECT_EQ(temporary.entries().size(), 2);
        const QFileInfo file(document->files()[0].pathToSend);
        EXPECT_EQ(file.permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    }
    EXPECT_TRUE(temporary.entries().isEmpty());
    const auto bad = LabelDocument::open(QStringList{png, write("bad.svg", "<svg><g>")});
    ASSERT_FALSE(bad);
    EXPECT_TRUE(bad.error().message.contains(QStringLiteral("bad.svg"))) << bad.error().message.toStdString();
    EXPECT_TRUE(temporary.entries().isEmpty());
}

TEST_F(DocumentKinds, SayWhenThereIsNoRoomForTemporaryFiles)
{
    qputenv("TMPDIR", "/proc");
    const auto document = LabelDocument::open(write("one.png", encoded(corners(96, 96), "png")));
    ASSERT_FALSE(document);
    EXPECT_EQ(document.error().kind, DocumentErrorKind::NotStored);
    EXPECT_TRUE(document.error().message.contains(QStringLiteral("/proc")));
}

TEST_F(DocumentKinds, NeedAName)
{
    const auto document = LabelDocument::open(QStringList());
    ASSERT_FALSE(document);
    EXPECT_EQ(document.error().kind, DocumentErrorKind::Missing);
}

TEST_F(DocumentKinds, ImagesAreAsLargeAsTheirResolutionSays)
{
    struct Row {
        const char *name;
        QByteArray content;
        QSizeF points;
    };
    const Row rows[] = {
        {"png that tells none", withoutResolution(encoded(corners(480, 240), "png")), {360, 180}},
        {"png, 300 dpi", encoded(corners(300, 600, 11811, 11811), "png"), QSizeF(300, 600) / 11.811 * mm},
        {"png, unequal", encoded(corners(200, 200, 4000, 8000), "png"), QSizeF(50, 25) * mm},
        {"jpeg, 203 dpi", encoded(corners(203, 406, 7992, 7992), "jpeg"), {72, 144}},
    };
    for (const Row &row : rows)
        expectSize(*open({sandbox.write(QStringLiteral("image"), row.content)}), 0, row.points, row.name);
}

TEST_F(DocumentKinds, ImagesComeOutAsTheyAre)
{
    struct Row {
        const char *name;
        QByteArray content;
    };
    const Row rows[] = {
        {"png", encoded(corners(40, 40), "png")},
        {"png with alpha", encoded(corners(40, 40).convertToFormat(QImage::Format_ARGB32), "png")},
        {"indexed png", encoded(corners(40, 40).convertToFormat(QImage::Format_Indexed8), "png")},
        {"deep png", encoded(corners(40, 40).convertToFormat(QImage::Format_RGBX64), "png")},
        {"jpeg", encoded(corners(40, 40), "jpeg")},
        {"turned jpeg", turnedJpeg(corners(40, 40))},
    };
    for (const Row &row : rows) {
        const auto document = open({sandbox.write(QStringLiteral("image"), row.content)});
        expectColor(colorAt(*document, 0.25, 0.25), Qt::red, row.name);
        expectColor(colorAt(*document, 0.75, 0.25), Qt::black, row.name);
        expectColor(colorAt(*document, 0.25, 0.75), Qt::white, row.name);
        expectColor(colorAt(*document, 0.75, 0.75), Qt::blue, row.name);
    }
}

TEST_F(DocumentKinds, JpegsAreEmbeddedUnchanged)
{
    for (const QImage::Format format : {QImage::Format_RGB32, QImage::Format_Grayscale8}) {
        const QByteArray jpeg = encoded(corners(30, 20, 11811, 11811).convertToFormat(format), "jpeg");
        const auto document = open({write("image", jpeg)});
        EmbeddedImage embedded(document->files()[0].pathToSend);
        EXPECT_EQ(embedded.name("/Filter"), "/DCTDecode");
        EXPECT_EQ(embedded.name("/ColorSpace"),
                  format == QImage::Format_RGB32 ? "/DeviceRGB" : "/DeviceGray");
        EXPECT_EQ(bytesOf(embedded.image.getRawStreamData()), jpeg);
    }
}

TEST_F(DocumentKinds, PngsLoseNoPixel)
{
    QImage image(31, 17, QImage::Format_RGB888);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixelColor(x, y, QColor(x * 8, y * 15, (x * y) % 256));
    }
    QByteArray rows;
    for (int y = 0; y < image.height(); ++y)
        rows.append(reinterpret_cast<const char *>(image.constScanLine(y)), qsizetype{3} * image.width());
    const auto document = open({write("image", withoutResolution(encoded(image, "png")))});
    EmbeddedImage embedded(document->files()[0].pathToSend);
    EXPECT_EQ(embedded.number("/Width"), image.width());
    EXPECT_EQ(embedded.number("/Height"), image.height());
    EXPECT_EQ(bytesOf(embedded.image.getStreamData()), rows);
    // At 96 dpi, 31 x 17 pixels are 23.25 x 12.75 points.
    EXPECT_EQ(embedded.page.getKey("/MediaBox").unparse(), "[ 0 0 23.2500 12.7500 ]");
}

TEST_F(DocumentKinds, WhatIsTransparentIsWhite)
{
    QImage image(20, 20, QImage::Format_ARGB32);
    image.fill(QColor(0, 0, 0, 0));
    image.setPixelColor(0, 0, QColor(0, 0, 0, 128));
    const auto document = open({sandbox.write(QStringLiteral("image"), encoded(image, "png"))});
    expectColor(colorAt(*document, 0.5, 0.5), Qt::white, "transparent");
    expectColor(colorAt(*document, 0.02, 0.02), QColor(127, 127, 127), "half transparent");
}

TEST_F(DocumentKinds, GreyJpegsStayGrey)
{
    QImage image(20, 20, QImage::Format_Grayscale8);
    image.fill(90);
    const auto document = open({sandbox.write(QStringLiteral("image"), encoded(image, "jpeg"))});
    expectColor(colorAt(*document, 0.5, 0.5), QColor(90, 90, 90), "grey");
}

TEST_F(DocumentKinds, SvgsAreAsLargeAsTheySay)
{
    struct Row {
        const char *attributes;
        QSizeF points;
    };
    const Row rows[] = {
        {R"(width="400" height="200")", QSizeF(400, 200) * pixel},
        {R"(width="400px" height="200px" viewBox="0 0 4 2")", QSizeF(400, 200) * pixel},
        {R"(width="60mm" height="24mm")", QSizeF(60, 24) * mm},
        {R"(width="6cm" height="2.4cm" viewBox="0 0 600 240")", QSizeF(60, 24) * mm},
        {R"(width="2in" height="72pt")", {144, 72}},
        {R"(width="12pc" height="80Q")", {144, 20 * mm}},
        {R"(width="1e2" height=" 2e2 ")", QSizeF(100, 200) * pixel},
        {R"(viewBox="10,20 , 300 150")", QSizeF(300, 150) * pixel},
        {R"(width="100%" height="100%" viewBox="0 0 300 150")", QSizeF(300, 150) * pixel},
        {R"(width="60mm" viewBox="0 0 300 150")", QSizeF(60, 30) * mm},
        {R"(height="60mm" viewBox="0 0 300 150")", QSizeF(120, 60) * mm},
        // What it draws: a square of 80.
        {"", QSizeF(80, 80) * pixel},
    };
    for (const Row &row : rows) {
        const QByteArray content = svg(row.attributes, R"(<rect width="80" height="80"/>)");
        expectSize(*open({sandbox.write(QStringLiteral("drawing"), content)}), 0, row.points, row.attributes);
    }
}

TEST_F(DocumentKinds, SvgsAreDrawnInTheirPlace)
{
    struct Row {
        const char *what;
        QByteArray content;
    };
    // Each draws the right lower quarter in red, and nothing else.
    const Row rows[] = {
        {"px",
         svg(R"(width="100" height="100")", R"(<rect x="50" y="50" width="50" height="50" fill="red"/>)")},
        {"view box", svg(R"(width="90.5" height="90.5" viewBox="10 10 2 2")",
                         R"(<rect x="11" y="11" width="1" height="1" fill="red"/>)")},
        {"millimetres", svg(R"(width="40mm" height="40mm")",
                            R"(<rect x="20mm" y="2cm" width="20mm" height="20mm" fill="red"/>)")},
        {"px in millimetres", svg(R"(width="25.4mm" height="25.4mm")",
                                  R"(<rect x="48" y="48" width="48" height="48" fill="red"/>)")},
        {"style",
         svg(R"(width="100" height="100")",
             R"(<style>.a{fill:red}</style><rect class="a" x="50" y="50" width="50" height="50"/>)")},
        {"reference",
         svg(R"(width="100" height="100")", R"(<defs><rect id="r" width="50" height="50" fill="red"/></defs>)"
                                            R"(<use href="#r" x="50" y="50"/>)")},
        {"older reference",
         svg(R"(width="100" height="100")", R"(<defs><rect id="r" width="50" height="50" fill="red"/></defs>)"
                                            R"(<use xlink:href="#r" x="50" y="50"/>)")},
        {"entity", withDeclarations("<!ENTITY r \"red\">",
                                    svg(R"(width="100" height="100")",
                                        R"(<rect x="50" y="50" width="50" height="50" fill="&r;"/>)"))},
        {"picture", svg(R"(width="100" height="100")",
                        R"(<image x="50" y="50" width="50" height="50" href="data:image/png;base64,)" +
                            encoded(filled(Qt::red), "png").toBase64() + R"("/>)")},
        {"prefixes without declarations",
         R"(<svg width="100" height="100" a:b="c"><svg:g a:label="d">)"
         R"(<svg:rect x="50" y="50" width="50" height="50" fill="red"/></svg:g></svg>)"},
        {"mask", svg(R"(width="100" height="100")",
                     R"(<mask id="m"><rect x="50" y="50" width="50" height="50" fill="white"/></mask>)"
                     R"svg(<rect width="100" height="100" fill="red" mask="url(#m)"/>)svg")},
        {"two bytes a character", inUtf16(svg(R"(width="100" height="100")",
                                              R"(<rect x="50" y="50" width="50" height="50" fill="red"/>)"))},
    };
    for (const Row &row : rows) {
        const auto document = open({sandbox.write(QStringLiteral("drawing"), row.content)});
        for (const double x : {0.01, 0.47, 0.53, 0.99}) {
            for (const double y : {0.01, 0.47, 0.53, 0.99})
                expectColor(colorAt(*document, x, y), x > 0.5 && y > 0.5 ? Qt::red : Qt::white, row.what);
        }
    }
}

TEST_F(DocumentKinds, SvgsKeepTheirShape)
{
    const QByteArray square = R"(<rect width="10" height="10" fill="red"/>)";
    const auto kept = open({write("kept", svg(R"(width="40" height="20" viewBox="0 0 10 10")", square))});
    expectColor(colorAt(*kept, 0.1, 0.5), Qt::white, "beside it");
    expectColor(colorAt(*kept, 0.5, 0.5), Qt::red, "in the middle");
    const auto stretched = open(
        {write("stretched",
               svg(R"(width="40" height="20" viewBox="0 0 10 10" preserveAspectRatio="none")", square))});
    expectColor(colorAt(*stretched, 0.1, 0.5), Qt::red, "stretched");
}

TEST_F(DocumentKinds, StandardInputIsAnyOfThem)
{
    const QByteArray contents[] = {pdfWithPageBoxes({"[0 0 72 36]"}), encoded(corners(96, 48), "png"),
                                   encoded(corners(96, 48), "jpeg"), svg(R"(width="96" height="48")")};
    for (const QByteArray &content : contents) {
        const InputFrom input(content);
        const auto document =
            open({write("first.pdf", pdfWithPageBoxes({"[0 0 50 50]"})), QStringLiteral("-")});
        ASSERT_EQ(document->pageCount(), 2);
        EXPECT_EQ(document->files()[1].name, QStringLiteral("-"));
        EXPECT_TRUE(QFile::exists(document->files()[1].pathToSend));
        EXPECT_EQ(temporary.entries().size(), 1);
        EXPECT_NEAR(document->pageSize(1).height(), document->pageSize(1).width() / 2.0, 0.5);
    }
    EXPECT_TRUE(temporary.entries().isEmpty());
}

TEST_F(DocumentKinds, StandardInputIsCalledByItsName)
{
    struct Row {
        QStringList names;
        QByteArray content;
        DocumentErrorKind kind;
    };
    const QString input = QStringLiteral("-");
    const Row rows[] = {
        {{input}, "", DocumentErrorKind::Empty},
        {{input}, "Dear printer", DocumentErrorKind::UnknownKind},
        {{input}, "%PDF-1.4\n", DocumentErrorKind::Damaged},
        {{input, input}, pdfWithPageBoxes({"[0 0 72 36]"}), DocumentErrorKind::InputTaken},
    };
    for (const Row &row : rows) {
        const InputFrom from(row.content);
        const auto document = LabelDocument::open(row.names);
        ASSERT_FALSE(document);
        EXPECT_EQ(document.error().kind, row.kind) << document.error().message.toStdString();
        EXPECT_TRUE(document.error().message.contains(QStringLiteral("standard input")))
            << document.error().message.toStdString();
        EXPECT_TRUE(temporary.entries().isEmpty());
    }
}

TEST_F(DocumentKinds, StandardInputHasALimit)
{
    const InputFrom input(QByteArray(1000, 'x'));
    const auto file = host::readStandardInput(999);
    ASSERT_FALSE(file);
    EXPECT_EQ(file.error().kind, DocumentErrorKind::TooLarge);
    EXPECT_TRUE(temporary.entries().isEmpty());
}
