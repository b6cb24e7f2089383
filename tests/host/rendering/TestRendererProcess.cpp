// SPDX-License-Identifier: Apache-2.0

#include <tests/faults/FaultyPages.h>

#include <host/rendering/RemotePdf.h>
#include <host/rendering/RendererProcess.h>
#include <host/rendering/SandboxSupport.h>
#include <tests/samples/RawPdf.h>
#include <tests/samples/SamplePdf.h>
#include <tests/samples/Sandbox.h>

#include <QPdfDocument>

#include <gtest/gtest.h>

#include <csignal>
#include <thread>

using host::RemotePdf;
using host::RendererProcess;
using host::RenderFault;

namespace {

constexpr QSize pictureSize(60, 90);

class RendererTest : public ::testing::Test {
protected:
    static std::shared_ptr<RendererProcess> faulty()
    {
        return std::make_shared<RendererProcess>(QStringLiteral(KV_FAULTY_RENDERER));
    }

    /// Writes eight pages that differ.
    QString writePages() const
    {
        std::vector<SamplePage> pages;
        for (int page = 0; page < 8; ++page) {
            pages.push_back({QSizeF(60 + page, 90), [page](QPainter &painter) {
                                 painter.fillRect(QRectF(10, 10 + page * 5, 20, 20), Qt::black);
                             }});
        }
        return writePdf(sandbox, QStringLiteral("pages.pdf"), pages);
    }

    std::unique_ptr<QFile> fileAt(const QString &place) const
    {
        auto file = std::make_unique<QFile>(place);
        EXPECT_TRUE(file->open(QIODevice::ReadOnly)) << place.toStdString();
        return file;
    }

    std::unique_ptr<RemotePdf> openPages(const std::shared_ptr<RendererProcess> &process) const
    {
        auto pdf = std::make_unique<RemotePdf>(process, fileAt(path));
        const auto count = pdf->open();
        EXPECT_TRUE(count && count.value() == 8);
        return pdf;
    }

    QImage expected(int page) const
    {
        QPdfDocument pdf(nullptr);
        EXPECT_EQ(pdf.load(path), QPdfDocument::Error::None);
        return pdf.render(page, pictureSize).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }

    Sandbox sandbox;
    QString path = writePages();
};

struct FaultRow {
    FaultyPage page;
    RenderFault fault;
};

class RendererFaults : public RendererTest, public ::testing::WithParamInterface<FaultRow> {};

} // namespace

TEST_F(RendererTest, DrawsThePagesAsTheLibraryDoes)
{
    const auto pdf = openPages(std::make_shared<RendererProcess>());
    const auto sizes = pdf->sizes(2, 3);
    ASSERT_TRUE(sizes);
    EXPECT_EQ(sizes.value(), (std::vector<QSizeF>{{62, 90}, {63, 90}, {64, 90}}));
    for (int page = 0; page < 8; ++page) {
        const auto drawn = pdf->draw(page, pictureSize);
        ASSERT_TRUE(drawn) << page;
        EXPECT_EQ(drawn.value(), expected(page)) << page;
    }
}

TEST_F(RendererTest, PicturesOutliveTheProcess)
{
    QImage drawn;
    {
        const auto pdf = openPages(std::make_shared<RendererProcess>());
        drawn = pdf->draw(3, pictureSize).value();
    }
    EXPECT_EQ(drawn, expected(3));
}

TEST_F(RendererTest, IsMissingWithoutTheProgram)
{
    RemotePdf pdf(std::make_shared<RendererProcess>(sandbox.path("none")), fileAt(path));
    const auto opened = pdf.open();
    ASSERT_FALSE(opened);
    EXPECT_EQ(opened.error(), RenderFault::Missing);
}

TEST_F(RendererTest, ReportsPdfsThatCannotBeRead)
{
    const struct {
        QByteArray content;
        RenderFault fault;
    } rows[] = {
        {{}, RenderFault::Damaged},
        {"%PDF-1.4\n%%EOF\n", RenderFault::Damaged},
        {pdfWithPageBoxes({"[0 0 10 10]"}, "secret"), RenderFault::PasswordNeeded},
    };
    const auto process = std::make_shared<RendererProcess>();
    for (const auto &row : rows) {
        RemotePdf pdf(process, fileAt(sandbox.write(QStringLiteral("document.pdf"), row.content)));
        const auto opened = pdf.open();
        ASSERT_FALSE(opened);
        EXPECT_EQ(opened.error(), row.fault);
    }
    EXPECT_EQ(process->generation(), 1);
}

TEST_F(RendererTest, RejectsPagesAndSizesThatDoNotExist)
{
    const auto process = std::make_shared<RendererProcess>();
    const auto pdf = openPages(process);
    EXPECT_FALSE(pdf->sizes(7, 2));
    EXPECT_FALSE(pdf->sizes(-1, 1));
    EXPECT_FALSE(pdf->sizes(0, host::maxSizesPerReply + 1));
    EXPECT_FALSE(pdf->draw(8, pictureSize));
    EXPECT_FALSE(pdf->draw(0, {0, 10}));
    EXPECT_FALSE(pdf->draw(0, {100'000, 10}));
    EXPECT_TRUE(pdf->draw(0, pictureSize));
    EXPECT_EQ(process->generation(), 1);
}

TEST_F(RendererTest, SeveralPdfsShareAProcess)
{
    const auto process = std::make_shared<RendererProcess>();
    const auto first = openPages(process);
    {
        const auto second = openPages(process);
        EXPECT_TRUE(second->draw(0, pictureSize));
    }
    EXPECT_EQ(first->draw(1, pictureSize).value(), expected(1));
    EXPECT_EQ(process->generation(), 1);
}

TEST_F(RendererTest, StartsAgainAfterTheSystemHasEndedIt)
{
    const auto process = std::make_shared<RendererProcess>();
    const auto pdf = openPages(process);
    for (int time = 0; time < 3; ++time) {
        ASSERT_GT(process->processId(), 0);
        kill(process->processId(), SIGKILL);
        // Without being collected: kvprint notices the end at its next request.
        siginfo_t ended = {};
        EXPECT_EQ(waitid(P_PID, static_cast<id_t>(process->processId()), &ended, WEXITED | WNOWAIT), 0);
        EXPECT_EQ(pdf->draw(2, pictureSize).value(), expected(2));
    }
    EXPECT_EQ(process->generation(), 4);
}

TEST_F(RendererTest, ACanceledRequestEndsAtOnceAndNoOtherFollows)
{
    const auto process = faulty();
    const auto pdf = openPages(process);
    // Before or while the page is drawn, which never ends by itself.
    std::thread other([&] { process->cancel(); });
    const auto drawn = pdf->draw(static_cast<int>(FaultyPage::Hang), pictureSize);
    other.join();
    ASSERT_FALSE(drawn);
    EXPECT_EQ(drawn.error(), RenderFault::Canceled);
    EXPECT_EQ(process->processId(), 0);
    EXPECT_EQ(pdf->draw(0, pictureSize).error(), RenderFault::Canceled);
}

TEST_P(RendererFaults, CostThePageOnly)
{
    const auto process = faulty();
    const auto pdf = openPages(process);
    const int page = static_cast<int>(GetParam().page);
    const auto drawn = pdf->draw(page, pictureSize);
    ASSERT_FALSE(drawn);
    EXPECT_EQ(drawn.error(), GetParam().fault);
    EXPECT_EQ(process->processId(), 0);
    // The other pages are drawn by a new process, this page is not attempted again.
    EXPECT_EQ(pdf->draw(0, pictureSize).value(), expected(0));
    EXPECT_EQ(pdf->draw(page, pictureSize).error(), GetParam().fault);
    EXPECT_EQ(process->generation(), 2);
}

INSTANTIATE_TEST_SUITE_P(Pages, RendererFaults,
                         ::testing::Values(FaultRow{FaultyPage::Crash, RenderFault::Crashed},
                                           FaultRow{FaultyPage::Hang, RenderFault::TooLong},
                                           FaultRow{FaultyPage::Memory, RenderFault::Crashed},
                                           FaultRow{FaultyPage::Socket, RenderFault::Forbidden},
                                           FaultRow{FaultyPage::Process, RenderFault::Forbidden},
                                           FaultRow{FaultyPage::Exit, RenderFault::Crashed}));

TEST_F(RendererTest, AFileThatIsNotOpenCannotBeRead)
{
    const auto pdf = openPages(faulty());
    // The renderer ends if it can open the file.
    EXPECT_EQ(static_cast<bool>(pdf->draw(static_cast<int>(FaultyPage::File), pictureSize)),
              host::sandboxSupport().restrictsFiles);
}
