// SPDX-License-Identifier: Apache-2.0
// What is sent of a document: the original pages, on pages of the paper's size.
#include "LaidOutFixture.h"

#include <host/documents/PdfPages.h>
#include <host/rendering/RendererProcess.h>

#include <QProcess>

namespace {

const host::PageLayout onTape(sampleTape, sampleMargins);

class LaidOutPdfTest : public LaidOutFixture {
protected:
    static QByteArray outputOf(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished(-1));
        EXPECT_EQ(process.exitCode(), 0) << qPrintable(program) << process.readAllStandardError().constData();
        return process.readAllStandardOutput();
    }

    /// The lines of a table without the columns that name objects, whose numbers change.
    static QList<QByteArray> rowsOf(const QByteArray &table, qsizetype columns)
    {
        QList<QByteArray> rows;
        for (const QByteArray &line : table.split('\n'))
            rows.append(line.simplified()
                            .split(' ')
                            .first(qMin(columns, line.simplified().split(' ').size()))
                            .join(' '));
        return rows;
    }

    static std::unique_ptr<host::PdfPages> pagesOf(const QString &path)
    {
        auto file = std::make_unique<QFile>(path);
        EXPECT_TRUE(file->open(QIODevice::ReadOnly));
        auto pages = host::PdfPages::open(std::move(file), std::make_shared<host::RendererProcess>());
        EXPECT_TRUE(pages) << qPrintable(path);
        return pages ? std::move(pages).value() : nullptr;
    }
};

TEST_F(LaidOutPdfTest, PagesOfThePaperAreSentByteForByte)
{
    const QString path = store(rawPdf({{"/MediaBox [0 0 68.03 170.08]"}, {"/MediaBox [0 0 68 170]"}}));
    layOut(path, onTape);
    EXPECT_EQ(laidOut, nullptr);
}

TEST_F(LaidOutPdfTest, EachPageHasTheSizeOfThePaper)
{
    const QString path = store(rawPdf({{"/MediaBox [0 0 68.03 170.08]"},
                                       {"/MediaBox [0 0 595 842] /Rotate 90 /UserUnit 1"},
                                       {"/MediaBox [10 10 40 60] /CropBox [15 15 30 50]"}}));
    const auto pages = pagesOf(layOut(path, onTape));
    ASSERT_NE(laidOut, nullptr);
    ASSERT_EQ(pages->pageCount(), 3);
    for (int page = 0; page < pages->pageCount(); ++page) {
        EXPECT_NEAR(pages->pageSize(page).width(), sampleTape.width(), 0.001) << page;
        EXPECT_NEAR(pages->pageSize(page).height(), sampleTape.height(), 0.001) << page;
    }
}

TEST_F(LaidOutPdfTest, InheritedBoxesAndRotationsCount)
{
    // The tree of pages has the box and the rotation.
    QByteArray pdf = rawPdf({{"", "0 g 0 0 10 10 re f"}});
    pdf.replace("/Type /Pages ", "/Type /Pages /MediaBox [0 0 170.08 68.03] /Rotate 90 ");
    const auto pages = pagesOf(layOut(store(pdf), onTape));
    ASSERT_NE(laidOut, nullptr);
    EXPECT_NEAR(pages->pageSize(0).height(), sampleTape.height(), 0.001);
    // A quarter turn clockwise moves the lower left corner to the upper left one.
    const QImage image = pages->render(0, QSize(68, 170));
    EXPECT_EQ(image.pixelColor(4, 4), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(4, 164), QColor(Qt::white));
}

TEST_F(LaidOutPdfTest, FontsAndImagesAreTheSame)
{
    const QString path = QStringLiteral(KV_SOURCE_DIR "/resources/documents/labels.pdf");
    host::PageLayout fitted = onTape;
    fitted.scaling = host::Scaling::Fit;
    const QString sent = layOut(path, fitted);
    ASSERT_NE(laidOut, nullptr);
    constexpr qsizetype fontColumns = 6;
    const QString pdffonts = QStringLiteral("pdffonts");
    EXPECT_EQ(rowsOf(outputOf(pdffonts, {sent}), fontColumns),
              rowsOf(outputOf(pdffonts, {path}), fontColumns));
    constexpr qsizetype imageColumns = 9;
    const QStringList list{QStringLiteral("-list")};
    const QString pdfimages = QStringLiteral("pdfimages");
    EXPECT_EQ(rowsOf(outputOf(pdfimages, list + QStringList{sent}), imageColumns),
              rowsOf(outputOf(pdfimages, list + QStringList{path}), imageColumns));
    EXPECT_EQ(outputOf(QStringLiteral("pdftotext"), {sent, QStringLiteral("-")}),
              outputOf(QStringLiteral("pdftotext"), {path, QStringLiteral("-")}));
    outputOf(QStringLiteral("qpdf"), {QStringLiteral("--check"), sent});
}

TEST_F(LaidOutPdfTest, AnnotationsThatArePrintedArePartOfThePage)
{
    const auto annotation = [](int flags) {
        return QByteArray("<< /Type /Annot /Subtype /Stamp /Rect [10 10 30 30] /F ") +
               QByteArray::number(flags) + " /AP << /N 11 0 R >> >>";
    };
    const QByteArray content = "0 g 0 0 20 20 re f";
    const QByteArray appearance = "<< /Type /XObject /Subtype /Form /BBox [0 0 20 20] /Length " +
                                  QByteArray::number(content.size()) + " >>\nstream\n" + content +
                                  "\nendstream";
    constexpr int print = 4;
    for (const int flags : {print, 0}) {
        const QByteArray pdf =
            rawPdf({{"/MediaBox [0 0 60 60] /Annots [10 0 R]"}}, {annotation(flags), appearance});
        host::PageLayout layout(QSizeF(60, 90));
        layout.along = host::Alignment::End;
        const auto pages = pagesOf(layOut(store(pdf), layout));
        ASSERT_NE(laidOut, nullptr);
        const QColor middle = pages->render(0, QSize(60, 90)).pixelColor(20, 70);
        EXPECT_EQ(middle, QColor(flags == print ? Qt::black : Qt::white)) << flags;
    }
}

TEST_F(LaidOutPdfTest, ADamagedDocumentIsAnError)
{
    const QString path = store("%PDF-1.4\nnothing");
    const auto result = host::layOutPdf(path, onTape, [] { return false; });
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().kind, host::DocumentErrorKind::Damaged);
    EXPECT_FALSE(result.error().reason.isEmpty());
}

TEST_F(LaidOutPdfTest, CancelingEndsTheProgram)
{
    const QString path = store(rawPdf({{"/MediaBox [0 0 595 842]"}}));
    const auto result = host::layOutPdf(path, onTape, [] { return true; });
    ASSERT_TRUE(result);
    EXPECT_EQ(result.value(), nullptr);
}

} // namespace
