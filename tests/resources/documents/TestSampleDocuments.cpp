// SPDX-License-Identifier: Apache-2.0
#include <host/base/Length.h>
#include <resources/documents/TestDocuments.h>
#include <tests/support/PpdBuilder.h>

#include <QFile>
#include <QImage>
#include <QPdfDocument>
#include <QPdfSelection>

#include <gtest/gtest.h>

#include <cstring>

using test_support::PpdPointer;

namespace {

constexpr double pointsPerMillimetre = host::Points(host::Millimetres(1.0)).number();

const QString samplePath = QStringLiteral(KV_SOURCE_DIR "/resources/documents/labels.pdf");

QString testDocument(const char *name)
{
    return QStringLiteral(KV_TEST_DATA "/documents/") + QString::fromLatin1(name);
}

/// What is printed on a page: the rectangle around all that is not white, in millimetres; empty on a
/// blank page.
QRectF inkOf(QPdfDocument &document, int page)
{
    constexpr double pixelsPerMillimetre = 10.0;
    const QSizeF size = document.pagePointSize(page) / pointsPerMillimetre;
    QImage image = document.render(page, (size * pixelsPerMillimetre).toSize());
    QRect ink;
    image = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (qAlpha(pixel) > 0 && qGray(pixel) < 128)
                ink = ink.united(QRect(x, y, 1, 1));
        }
    }
    return QRectF(QPointF(ink.topLeft()) / pixelsPerMillimetre, QSizeF(ink.size()) / pixelsPerMillimetre);
}

QString withoutBlanks(QString text)
{
    return text.removeIf([](QChar character) { return character.isSpace(); });
}

} // namespace

TEST(SampleLabels, AreAsLargeAsTheSampleTapePrintersStandardPaper)
{
    const PpdPointer ppd(ppdOpenFile(KV_SOURCE_DIR "/resources/ppd/kvelland-lx900.ppd"));
    ASSERT_TRUE(ppd);
    const ppd_option_t *const papers = ppdFindOption(ppd.get(), "PageSize");
    ASSERT_TRUE(papers);
    const ppd_size_t *const paper = ppdPageSize(ppd.get(), papers->defchoice);
    ASSERT_TRUE(paper);
    QPdfDocument document;
    ASSERT_EQ(document.load(samplePath), QPdfDocument::Error::None);
    ASSERT_EQ(document.pageCount(), 6);
    for (int page = 0; page < document.pageCount(); ++page) {
        EXPECT_NEAR(document.pagePointSize(page).width(), double{paper->width}, 0.01) << page;
        EXPECT_NEAR(document.pagePointSize(page).height(), double{paper->length}, 0.01) << page;
    }
}

TEST(SampleLabels, KeepInsideWhatThePrinterReaches)
{
    const PpdPointer ppd(ppdOpenFile(KV_SOURCE_DIR "/resources/ppd/kvelland-lx900.ppd"));
    ASSERT_TRUE(ppd);
    const ppd_size_t *const paper = ppdPageSize(ppd.get(), "24x60mm");
    ASSERT_TRUE(paper);
    const double top = double{paper->length} - double{paper->top};
    const QRectF reach(double{paper->left}, top, double{paper->right} - double{paper->left},
                       double{paper->top} - double{paper->bottom});
    const QRectF inMillimetres(reach.topLeft() / pointsPerMillimetre, reach.size() / pointsPerMillimetre);
    QPdfDocument document;
    ASSERT_EQ(document.load(samplePath), QPdfDocument::Error::None);
    for (int page = 0; page < document.pageCount(); ++page) {
        const QRectF ink = inkOf(document, page);
        EXPECT_FALSE(ink.isEmpty()) << page;
        EXPECT_TRUE(inMillimetres.contains(ink)) << page;
    }
}

TEST(SampleLabels, LeaveBlankBeforeAndBehindAndOnBothSides)
{
    QPdfDocument document;
    ASSERT_EQ(document.load(samplePath), QPdfDocument::Error::None);
    constexpr double much = 7.0;
    bool before = false;
    bool behind = false;
    bool both = false;
    bool neither = false;
    for (int page = 0; page < document.pageCount(); ++page) {
        const QRectF ink = inkOf(document, page);
        const bool blankBefore = ink.top() >= much;
        const bool blankBehind = 60.0 - ink.bottom() >= much;
        before = before || (blankBefore && !blankBehind);
        behind = behind || (blankBehind && !blankBefore);
        both = both || (blankBefore && blankBehind);
        neither = neither || (!blankBefore && !blankBehind);
    }
    EXPECT_TRUE(before);
    EXPECT_TRUE(behind);
    EXPECT_TRUE(both);
    EXPECT_TRUE(neither);
}

TEST(SampleLabels, HoldTextAsText)
{
    QPdfDocument document;
    ASSERT_EQ(document.load(samplePath), QPdfDocument::Error::None);
    const char *const texts[] = {"KV-10042",   "KV-10043", "CORE-SW1 / 24",
                                 "UPLINK 10G", "Paprika",  "Shichimi 七味"};
    for (int page = 0; page < document.pageCount(); ++page) {
        // A text that runs down the page comes out with line breaks within its words.
        const QString text = withoutBlanks(document.getAllText(page).text());
        EXPECT_TRUE(text.contains(withoutBlanks(QString::fromUtf8(texts[page]))))
            << page << text.toStdString();
    }
}

TEST(SampleLabels, CarryTheirFonts)
{
    QFile file(samplePath);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_GT(bytes.count("/Type /FontDescriptor"), 0);
    EXPECT_EQ(bytes.count("/Type /FontDescriptor"), bytes.count("/FontFile2 "));
    EXPECT_LT(bytes.size(), 100 * 1024) << "whole fonts instead of their used parts";
}

TEST(TestDocuments, AreGeneratedAlikeEveryTime)
{
    for (const documents::TestDocument &document : documents::testDocuments()) {
        QFile file(testDocument(qPrintable(document.name)));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(document.name);
        EXPECT_TRUE(file.readAll() == document.bytes)
            << qPrintable(document.name) << " differs from what kv_documentgen writes";
    }
}

TEST(TestDocuments, AreRefusedForTheReasonInTheirNames)
{
    struct Row {
        const char *name;
        QPdfDocument::Error error;
    };
    constexpr Row rows[] = {
        {"encrypted.pdf", QPdfDocument::Error::IncorrectPassword},
        {"truncated.pdf", QPdfDocument::Error::InvalidFileFormat},
        {"empty.pdf", QPdfDocument::Error::InvalidFileFormat},
        {"notpdf.pdf", QPdfDocument::Error::InvalidFileFormat},
    };
    for (const Row &row : rows) {
        QPdfDocument document;
        EXPECT_EQ(document.load(testDocument(row.name)), row.error) << row.name;
        EXPECT_EQ(document.pageCount(), 0) << row.name;
    }
}

TEST(TestDocuments, TheEncryptedOneOpensWithItsPassword)
{
    QPdfDocument document;
    document.setPassword(QStringLiteral("labels"));
    ASSERT_EQ(document.load(testDocument("encrypted.pdf")), QPdfDocument::Error::None);
    ASSERT_EQ(document.pageCount(), 1);
    EXPECT_FALSE(inkOf(document, 0).isEmpty());
}

TEST(TestDocuments, TheOneWithoutPagesHasNone)
{
    QPdfDocument document;
    document.load(testDocument("zero-pages.pdf"));
    EXPECT_EQ(document.pageCount(), 0);
}

TEST(TestDocuments, OnlyTheMiddleLabelIsBlank)
{
    QPdfDocument document;
    ASSERT_EQ(document.load(testDocument("blank-page.pdf")), QPdfDocument::Error::None);
    ASSERT_EQ(document.pageCount(), 3);
    EXPECT_FALSE(inkOf(document, 0).isEmpty());
    EXPECT_TRUE(inkOf(document, 1).isEmpty());
    EXPECT_FALSE(inkOf(document, 2).isEmpty());
}

TEST(TestDocuments, LengthsAreMixed)
{
    constexpr double lengths[] = {40.0, 60.0, 100.0, 25.0};
    QPdfDocument document;
    ASSERT_EQ(document.load(testDocument("mixed-lengths.pdf")), QPdfDocument::Error::None);
    ASSERT_EQ(document.pageCount(), 4);
    for (int page = 0; page < document.pageCount(); ++page) {
        const double length = lengths[page];
        EXPECT_NEAR(document.pagePointSize(page).height(), length * pointsPerMillimetre, 0.01) << page;
        EXPECT_NEAR(document.pagePointSize(page).width(), 24.0 * pointsPerMillimetre, 0.01) << page;
        // Marked from 4 mm behind the beginning to 4 mm before the end.
        const QRectF ink = inkOf(document, page);
        EXPECT_NEAR(ink.top(), 4.0, 0.2) << page;
        EXPECT_NEAR(ink.bottom(), length - 4.0, 0.2) << page;
    }
}
