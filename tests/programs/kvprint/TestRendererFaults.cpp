// SPDX-License-Identifier: Apache-2.0
// The program with a renderer that does on some pages what a hostile PDF could make it do.

#include "KvprintTest.h"

#include <tests/faults/FaultyPages.h>
#include <tests/samples/SamplePdf.h>
#include <tests/samples/SamplePpd.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace {

struct RendererFaultRow {
    FaultyPage page;
    const char *reason;
};

/// A copy of the program beside a faulty renderer.
class KvprintRendererFaults : public KvprintTest, public testing::WithParamInterface<RendererFaultRow> {
protected:
    KvprintRendererFaults()
    {
        addSampleQueue(tape, QStringLiteral("kvelland-lx900"));
        const QDir copy(sandbox.path({}));
        EXPECT_TRUE(copy.mkpath("bin") && copy.mkpath("lib"));
        EXPECT_TRUE(QFile::copy(QStringLiteral(KV_PROGRAM), copy.filePath("bin/kvprint")));
        const QDir libraries(QStringLiteral(KV_BINARY_DIR "/lib"));
        for (const QString &name : libraries.entryList(QDir::Files)) {
            const bool isRenderer = name == QStringLiteral("kvprint-renderer");
            EXPECT_TRUE(
                QFile::link(isRenderer ? QStringLiteral(KV_FAULTY_RENDERER) : libraries.filePath(name),
                            copy.filePath("lib/" + name)));
        }
        const std::vector<SamplePage> pages(9, {QSizeF(170, 68), [](QPainter &painter) {
                                                    painter.fillRect(QRectF(20, 20, 20, 20), Qt::black);
                                                }});
        document = writePdf(sandbox, QStringLiteral("labels.pdf"), pages);
    }

    Outcome run(const QStringList &words) const
    {
        return kvprint.runOther(sandbox.path("bin/kvprint"), words + QStringList{document});
    }

    QStringList written() const { return QDir(output).entryList(QDir::Files); }

    Sandbox sandbox;
    QString ppd = sandbox.write(QStringLiteral("tape.ppd"), tapePpd());
    QString output = sandbox.path("out");
    QString document;
};

} // namespace

TEST_P(KvprintRendererFaults, CostThePageAndPrintNothingHalf)
{
    const QString page = QString::number(static_cast<int>(GetParam().page) + 1);
    // With a sound page before and after it.
    const QString range = "1," + page + ",9";
    const Outcome refused = run({"--ppd", ppd, "--output", output, "-P", range});
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.error.toStdString(),
              QStringLiteral("kvprint: Page %1 cannot be drawn, and the job cannot be printed: %2.\n")
                  .arg(page, QLatin1String(GetParam().reason))
                  .toStdString());
    EXPECT_EQ(written(), QStringList());

    const Outcome checked = run({"-d", tape, "-P", range, "--dry-run", "--json"});
    EXPECT_EQ(checked.status, 0) << checked;
    const QJsonArray notes = QJsonDocument::fromJson(checked.out)["preflight"].toArray();
    ASSERT_EQ(notes.size(), 1) << checked.out.toStdString();
    EXPECT_EQ(notes[0]["kind"], "cannot-be-drawn");
    EXPECT_EQ(notes[0]["pages"], QJsonArray{page.toInt()});
    EXPECT_EQ(notes[0]["remedy"], "page-ranges=1,9");

    const Outcome printed = run({"--ppd", ppd, "--output", output, "-P", "1,9"});
    EXPECT_EQ(printed.status, 0) << printed;
    EXPECT_FALSE(written().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Pages, KvprintRendererFaults,
    testing::Values(RendererFaultRow{FaultyPage::Crash, "the program that reads PDFs has crashed"},
                    RendererFaultRow{FaultyPage::Hang, "reading it takes too long"},
                    RendererFaultRow{FaultyPage::Memory, "the program that reads PDFs has crashed"},
                    RendererFaultRow{FaultyPage::Socket, "it attempts what no document may do"}));
