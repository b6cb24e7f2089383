// SPDX-License-Identifier: Apache-2.0
// The ticket: what would be sent now, whatever the panel has not saved yet.
#include <host/setup/JobReport.h>
#include <host/setup/JobSummary.h>
#include <host/setup/SetupJob.h>
#include <tests/support/PpdBuilder.h>

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>

using host::PrinterSetup;
using host::Ticket;
using test_support::PpdBuilder;

namespace {

using Choices = std::map<QByteArray, QByteArray>;

class TicketTest : public testing::Test {
protected:
    std::unique_ptr<PrinterSetup> open(const QString &path, const host::SetupRequest &requested = {}) const
    {
        auto ppd = host::PpdFile::open(path);
        if (!ppd)
            qFatal("%s", qPrintable(ppd.error().message));
        return std::make_unique<PrinterSetup>(host::Destination(), std::move(ppd).value(), requested,
                                              host::PanelSource{QStringLiteral(KV_BINARY_DIR "/bin"), {}});
    }
    std::unique_ptr<PrinterSetup> sample(const char *name, const host::SetupRequest &requested = {}) const
    {
        return open(QStringLiteral(KV_SOURCE_DIR "/resources/ppd/%1.ppd").arg(QLatin1String(name)),
                    requested);
    }
    std::unique_ptr<PrinterSetup> make(const PpdBuilder &ppd) const
    {
        const QString path = folder.filePath(QStringLiteral("printer.ppd"));
        EXPECT_TRUE(ppd.writeTo(path));
        return open(path);
    }

    Ticket ticketOf(const PrinterSetup &setup) const { return ticketFor(setup, *document.value(), draft); }

    /// What the job carries for the panel's options.
    Choices cutOptions(const PrinterSetup &setup) const
    {
        Choices choices;
        for (const host::JobOption &option : ticketOf(setup).job.options) {
            if (option.name.startsWith("Kv") && option.isSent)
                choices[option.name] = option.value;
        }
        return choices;
    }

    host::CutPlan planOf(const PrinterSetup &setup) const
    {
        const Ticket ticket = ticketOf(setup);
        const host::LabelRenderer renderer(*document.value(), ticket.paper->size);
        return makePlan(ticket, *document.value(), renderer);
    }

    static Choices marks(const PrinterSetup &setup)
    {
        Choices marked;
        for (const QString &keyword : setup.claimedKeywords())
            marked[keyword.toUtf8()] = setup.ppd().markedChoice(keyword).value_or(QString()).toUtf8();
        return marked;
    }

    static QCheckBox *box(const PrinterSetup &setup, const char *name)
    {
        return setup.panels().front()->view()->findChild<QCheckBox *>(QLatin1String(name));
    }
    static void click(QCheckBox *box) { QTest::mouseClick(box, Qt::LeftButton, {}, {5, box->height() / 2}); }

    static QComboBox *presets(const PrinterSetup &setup)
    {
        return setup.panels().front()->view()->findChild<QComboBox *>();
    }
    /// Walks to the preset by keyboard, as the panel hears of it.
    static void choosePreset(PrinterSetup &setup, int index)
    {
        walkToPreset(setup, index);
        setup.notePanelInput();
    }
    static void walkToPreset(const PrinterSetup &setup, int index)
    {
        QComboBox *const list = presets(setup);
        const Qt::Key key = index > list->currentIndex() ? Qt::Key_Down : Qt::Key_Up;
        while (list->currentIndex() != index)
            QTest::keyClick(list, key);
    }

    static void choosePaper(PrinterSetup &setup, const QByteArray &name)
    {
        const auto paper = setup.ppd().paper(name);
        ASSERT_TRUE(paper) << name.constData();
        setup.choosePaper(*paper);
    }

    QTemporaryDir folder;
    const host::Result<std::unique_ptr<host::LabelDocument>, host::DocumentError> document =
        host::LabelDocument::open(QStringLiteral(KV_SOURCE_DIR "/resources/documents/labels.pdf"));
    host::JobRequest draft{{}, QStringLiteral("title"), {{0, 1, 2}, 2, host::Collate::Yes}};
};

} // namespace

TEST_F(TicketTest, AskingChangesNothingAndGivesTheSameAgain)
{
    const auto setup = sample("kvelland-lx900");
    choosePreset(*setup, presets(*setup)->count() - 1);
    click(box(*setup, "mHalfCutChkBx"));
    const Choices before = marks(*setup);
    const auto recorded = setup->state().recorded().pairs();
    int reported = 0;
    setup->setDidChangeHook([&] { ++reported; });
    const Ticket first = ticketOf(*setup);
    const Ticket second = ticketOf(*setup);
    EXPECT_EQ(first.job.options, second.job.options);
    EXPECT_EQ(first.panel, second.panel);
    EXPECT_EQ(first.strip, second.strip);
    EXPECT_EQ(marks(*setup), before);
    EXPECT_EQ(setup->state().recorded().pairs(), recorded);
    EXPECT_EQ(reported, 0);
}

TEST_F(TicketTest, WhatTheFiltersMirrorIsShownMirrored)
{
    const host::JobChoice mirror{"mirror", "true", host::Origin::You};
    const host::JobChoice printers{"KvMirror", "ON", host::Origin::You};
    EXPECT_FALSE(ticketOf(*sample("kvelland-lx900")).strip.mirror);
    EXPECT_TRUE(ticketOf(*sample("kvelland-lx900", {{mirror}})).strip.mirror);
    EXPECT_TRUE(ticketOf(*sample("kvelland-lx900", {{printers}})).strip.mirror);
    EXPECT_FALSE(ticketOf(*sample("kvelland-lx900", {{mirror, printers}})).strip.mirror);
}

TEST_F(TicketTest, DocumentsAreLaidOutOnThePaperOfTheTicket)
{
    const host::JobChoice fitting{"print-scaling", "fit", host::Origin::You};
    const auto setup = sample("kvelland-lx900", {{fitting}});
    const Ticket ticket = ticketOf(*setup);
    ASSERT_TRUE(ticket.layout);
    EXPECT_EQ(ticket.layout->paper, ticket.paper->size);
    EXPECT_EQ(ticket.layout->margins, *ticket.paper->margins);
    EXPECT_EQ(ticket.layout->scaling, host::Scaling::Fit);
    ASSERT_EQ(ticket.job.documents.size(), 1U);
    EXPECT_EQ(ticket.job.documents[0].layout, ticket.layout);
    EXPECT_TRUE(ticket.job.documents[0].changesPages);
}

TEST_F(TicketTest, APresetIsInTheJobBeforeThePanelHasSavedIt)
{
    const auto setup = sample("kvelland-lx900");
    const Choices marked = marks(*setup);
    for (int index = 0; index < presets(*setup)->count(); ++index) {
        walkToPreset(*setup, index);
        EXPECT_EQ(marks(*setup), marked);
        const Choices sent = cutOptions(*setup);
        const bool special = box(*setup, "mSpecialTapeChkBx")->isChecked();
        const auto expected = [&](const char *name) {
            return QByteArray(box(*setup, name)->isChecked() && !special ? "ON" : "OFF");
        };
        EXPECT_EQ(sent.at("KvHalfCut"), expected("mHalfCutChkBx")) << index;
        EXPECT_EQ(sent.at("KvChainPrint"), expected("mChainPrintChkBx")) << index;
        const host::CutPlan plan = planOf(*setup);
        const auto isHalfCut = [](const host::PlannedLabel &label) { return label.end.halfCut; };
        const bool isCutInFull = sent.at("KvAutoTapeCut") == "ON";
        EXPECT_EQ(std::ranges::any_of(plan.labels(), isHalfCut), sent.at("KvHalfCut") == "ON" && !isCutInFull)
            << index;
    }
}

TEST_F(TicketTest, PresetsAndBoxesStayThroughVisitsAndPapersOnEveryPrinter)
{
    for (const char *const printer : {"kvelland-lx900", "kvelland-lx300", "kvelland-dz500"}) {
        const auto setup = sample(printer);
        const std::vector<host::PpdPaper> papers = setup->ppd().papers();
        const host::PpdPaper first = *setup->paper();
        for (int index = 0; index < presets(*setup)->count(); ++index) {
            choosePreset(*setup, index);
            if (QCheckBox *const mirror = box(*setup, "mMirrorPrintChkBx"); !mirror->isHidden())
                click(mirror);
            const Choices chosen = cutOptions(*setup);
            setup->announce(*setup->panels().front());
            EXPECT_EQ(cutOptions(*setup), chosen) << printer << " preset " << index;
            for (const host::PpdPaper &paper : papers) {
                setup->choosePaper(paper);
                setup->announce(*setup->panels().front());
                EXPECT_EQ(cutOptions(*setup) != chosen, !setup->replacedChoices().isEmpty())
                    << printer << " preset " << index << " on " << paper.name.constData();
                setup->choosePaper(first);
                EXPECT_EQ(cutOptions(*setup), chosen)
                    << printer << " preset " << index << " back from " << paper.name.constData();
            }
        }
    }
}

TEST_F(TicketTest, WhatSpecialTapeMasksIsThereAgainWhenItIsOff)
{
    // The boxes of what special tape excludes stay as they are, greyed, and count again later.
    const auto setup = sample("kvelland-lx900");
    const auto visits = {std::function<void()>([&] { setup->announce(*setup->panels().front()); }),
                         std::function<void()>([&] {
                             const host::PpdPaper first = *setup->paper();
                             choosePaper(*setup, setup->ppd().papers().back().name);
                             setup->choosePaper(first);
                         }),
                         std::function<void()>([&] { setup->choose("PrintDensity", "Dark"); })};
    for (int index = 0; index < presets(*setup)->count(); ++index) {
        choosePreset(*setup, index);
        if (box(*setup, "mSpecialTapeChkBx")->isChecked())
            continue;
        const Choices chosen = cutOptions(*setup);
        for (const auto &visit : visits) {
            click(box(*setup, "mSpecialTapeChkBx"));
            const Choices special = cutOptions(*setup);
            EXPECT_EQ(special.at("KvChainPrint"), "OFF");
            visit();
            EXPECT_EQ(cutOptions(*setup), special) << "preset " << index;
            EXPECT_TRUE(setup->replacedChoices().isEmpty()) << "preset " << index;
            click(box(*setup, "mSpecialTapeChkBx"));
            EXPECT_EQ(cutOptions(*setup), chosen) << "preset " << index;
        }
    }
}

TEST_F(TicketTest, APaperThatExcludesAChoiceIsReportedAndTheNextPaperHasItAgain)
{
    const auto setup = make(PpdBuilder().allOptions().paper("HS6mm", 17, 170));
    // Without a box of its own the automatic cut follows the cut-every box.
    if (!box(*setup, "mCutEveryChkBx")->isChecked())
        click(box(*setup, "mCutEveryChkBx"));
    ASSERT_EQ(cutOptions(*setup).at("KvAutoTapeCut"), "ON");
    const QByteArray before = setup->paper()->name;
    choosePaper(*setup, "HS6mm");
    EXPECT_EQ(cutOptions(*setup).at("KvAutoTapeCut"), "OFF");
    ASSERT_EQ(setup->replacedChoices().size(), 1);
    EXPECT_TRUE(setup->replacedChoices().first().contains(QStringLiteral("cannot be \"On\"")))
        << setup->replacedChoices().first().toStdString();
    setup->announce(*setup->panels().front());
    EXPECT_EQ(cutOptions(*setup).at("KvAutoTapeCut"), "OFF");
    choosePaper(*setup, before);
    EXPECT_EQ(cutOptions(*setup).at("KvAutoTapeCut"), "ON");
    EXPECT_TRUE(setup->replacedChoices().isEmpty());
}

TEST_F(TicketTest, WhatThePanelSavesNotWhatIsMarkedDecidesAboutConflicts)
{
    const auto setup = make(PpdBuilder()
                                .allOptions()
                                .option("Other")
                                .constraint("KvHalfCut", "OFF", "Other", "ON")
                                .constraint("KvChainPrint", "ON", "Other", "ON"));
    setup->choose("Other", "ON");
    if (!box(*setup, "mHalfCutChkBx")->isChecked())
        click(box(*setup, "mHalfCutChkBx"));
    ASSERT_TRUE(ticketOf(*setup).conflicts.empty());
    // Special tape is saved without half cuts; their box and mark stay on.
    click(box(*setup, "mSpecialTapeChkBx"));
    ASSERT_EQ(marks(*setup).at("KvHalfCut"), "ON");
    const Ticket ticket = ticketOf(*setup);
    ASSERT_EQ(ticket.conflicts.size(), 1U);
    ASSERT_TRUE(ticket.remedy);
    setup->apply(*ticket.remedy);
    EXPECT_TRUE(ticketOf(*setup).conflicts.empty());
    EXPECT_EQ(cutOptions(*setup).at("KvSpecialTape"), "ON");
}

TEST_F(TicketTest, ARemedyForAnOptionOfThePanelIsMadeOnItsControls)
{
    const auto setup =
        make(PpdBuilder().allOptions().option("Other").constraint("KvMirror", "ON", "Other", "ON"));
    click(box(*setup, "mMirrorPrintChkBx"));
    setup->choose("Other", "ON");
    const Ticket ticket = ticketOf(*setup);
    ASSERT_TRUE(ticket.remedy);
    setup->apply(*ticket.remedy);
    EXPECT_TRUE(ticketOf(*setup).conflicts.empty());
    EXPECT_FALSE(box(*setup, "mMirrorPrintChkBx")->isChecked());
    EXPECT_EQ(cutOptions(*setup).at("KvMirror"), "OFF");
}

TEST_F(TicketTest, TheSummaryIsAboutTheTicket)
{
    const auto setup = sample("kvelland-lx900");
    const auto line = [&](const QString &title) {
        const Ticket ticket = ticketOf(*setup);
        const host::CutPlan plan = planOf(*setup);
        for (const host::SummarySection &section : summarize(ticket, *setup, &plan)) {
            for (const auto &[name, value] : section.lines) {
                if (name == title)
                    return value;
            }
        }
        return QStringLiteral("(no such line)");
    };
    for (int index = 0; index < presets(*setup)->count(); ++index) {
        choosePreset(*setup, index);
        const bool half = cutOptions(*setup).at("KvHalfCut") == "ON";
        EXPECT_EQ(line(QStringLiteral("Half Cut")), half ? QStringLiteral("Yes") : QStringLiteral("No"))
            << "preset " << index;
        EXPECT_EQ(line(QStringLiteral("Cuts")).contains(QStringLiteral("Half cut")),
                  planOf(*setup).labels().front().end.halfCut)
            << "preset " << index;
    }
}

TEST_F(TicketTest, TheVirtualPrintersJobIsTheTicket)
{
    const auto setup = sample("kvelland-lx900");
    choosePreset(*setup, 0);
    const Ticket ticket = ticketOf(*setup);
    const QJsonObject json = printedJobJson(ticket, *document.value(), setup->ppd().path(), planOf(*setup));
    EXPECT_EQ(json.value(QStringLiteral("printer")).toString(), setup->ppd().printerName());
    EXPECT_EQ(json.value(QStringLiteral("ppd")).toString(),
              QFileInfo(setup->ppd().path()).absoluteFilePath());
    EXPECT_EQ(json.value(QStringLiteral("copies")).toInt(), 2);
    EXPECT_EQ(json.value(QStringLiteral("pages")).toArray(), (QJsonArray{1, 2, 3}));
    Choices choices;
    const QJsonArray options = json.value(QStringLiteral("options")).toArray();
    for (const auto &each : options) {
        if (each[QStringLiteral("keyword")].toString().startsWith(QStringLiteral("Kv")))
            choices[each[QStringLiteral("keyword")].toString().toUtf8()] =
                each[QStringLiteral("choice")].toString().toUtf8();
    }
    EXPECT_EQ(choices, cutOptions(*setup));
    EXPECT_EQ(json.value(QStringLiteral("options")).toArray().first(),
              (QJsonObject{{"keyword", "PageSize"}, {"choice", QString::fromUtf8(ticket.paper->name)}}));
    EXPECT_EQ(json.value(QStringLiteral("plan")).toObject().value(QStringLiteral("labels")).toArray().size(),
              6);
}

TEST_F(TicketTest, CopiesOfSeveralDocumentsComeDocumentByDocument)
{
    const auto setup = sample("kvelland-lx900");
    const QString path = document.value()->path();
    const auto both = host::LabelDocument::open(QStringList{path, path});
    ASSERT_TRUE(both);
    const int pages = document.value()->pageCount();
    draft.pages.pages = {0, 1, pages};
    const Ticket ticket = ticketFor(*setup, *both.value(), draft);
    const host::LabelRenderer renderer(*both.value(), ticket.paper->size);
    const host::CutPlan plan = makePlan(ticket, *both.value(), renderer);
    std::vector<int> order;
    for (const host::PlannedLabel &label : plan.labels())
        order.push_back(label.page);
    EXPECT_EQ(order, (std::vector<int>{0, 1, 0, 1, pages, pages}));
}

TEST_F(TicketTest, NothingIsKnownOfTheCutsWithoutAPpd)
{
    host::Destination destination;
    destination.queue = QStringLiteral("plain");
    const PrinterSetup setup(destination, std::nullopt, {}, {});
    const Ticket ticket = ticketOf(setup);
    EXPECT_FALSE(ticket.strip.ends);
    EXPECT_FALSE(ticket.paper);
    EXPECT_EQ(ticket.job.title, QStringLiteral("title"));
}
