// SPDX-License-Identifier: Apache-2.0
#include <host/setup/SetupJob.h>
#include <tests/support/PpdBuilder.h>

#include <QCheckBox>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>

using host::ChoiceErrorKind;
using host::JobChoice;
using host::Origin;
using host::PrinterSetup;
using host::SetupRequest;
using test_support::PpdBuilder;

namespace {

class PrinterSetupTest : public testing::Test {
protected:
    std::unique_ptr<PrinterSetup> make(const PpdBuilder &ppd, const SetupRequest &requested = {},
                                       const host::Destination &destination = {}) const
    {
        const QString path = folder.filePath(QStringLiteral("printer.ppd"));
        EXPECT_TRUE(ppd.writeTo(path));
        auto opened = host::PpdFile::open(path);
        if (!opened)
            qFatal("%s", qPrintable(opened.error().message));
        return std::make_unique<PrinterSetup>(destination, std::move(opened).value(), requested, source);
    }

    static const JobChoice *find(const PrinterSetup &setup, const QByteArray &name)
    {
        const auto found = std::ranges::find(setup.choices(), name, &JobChoice::name);
        return found == setup.choices().end() ? nullptr : &*found;
    }

    host::Ticket ticketOf(const PrinterSetup &setup) const { return ticketFor(setup, *document.value(), {}); }

    static QString marked(const PrinterSetup &setup, const char *keyword)
    {
        return setup.ppd().markedChoice(QLatin1String(keyword)).value_or(QStringLiteral("(none)"));
    }

    static QCheckBox *box(const PrinterSetup &setup, const char *name)
    {
        return setup.panels().front()->view()->findChild<QCheckBox *>(QLatin1String(name));
    }

    const host::PanelSource source{QStringLiteral(KV_BINARY_DIR "/bin"), {}};
    QTemporaryDir folder;
    const host::Result<std::unique_ptr<host::LabelDocument>, host::DocumentError> document =
        host::LabelDocument::open(QStringLiteral(KV_SOURCE_DIR "/resources/documents/labels.pdf"));
};

JobChoice requestedChoice(const char *name, const char *value)
{
    return {name, value, Origin::You};
}

} // namespace

TEST_F(PrinterSetupTest, WishesAreMarkedAndSeenByThePanel)
{
    const auto setup =
        make(PpdBuilder().allOptions(),
             {{requestedChoice("KvMirror", "ON"), requestedChoice("KvCutLabel", "7")}, "36mm"});
    ASSERT_FALSE(setup->panels().empty());
    EXPECT_EQ(setup->claimedKeywords().size(), 9);
    EXPECT_TRUE(setup->choiceErrors().empty());
    EXPECT_EQ(marked(*setup, "KvMirror"), QStringLiteral("ON"));
    EXPECT_EQ(marked(*setup, "PageSize"), QStringLiteral("36mm"));
    EXPECT_EQ(setup->paper()->name, QByteArray("36mm"));
    EXPECT_EQ(setup->state().paper()->name, QStringLiteral("36mm"));
    // Showing the panel again does not change it back.
    setup->announce(*setup->panels().front());
    EXPECT_TRUE(box(*setup, "mMirrorPrintChkBx")->isChecked());
    EXPECT_EQ(find(*setup, "KvMirror")->origin, Origin::You);
}

TEST_F(PrinterSetupTest, WhatThePrinterLacksIsRefusedByName)
{
    const auto setup = make(PpdBuilder().options({"KvMirror", "KvHalfCut"}),
                            {{requestedChoice("KvMirror", "SIDEWAYS"), requestedChoice("NoSuch", "ON"),
                              requestedChoice("KvHalfCut", "ON")},
                             "A4"});
    ASSERT_EQ(setup->choiceErrors().size(), 3U);
    EXPECT_EQ(setup->choiceErrors()[0].kind, ChoiceErrorKind::UnknownChoice);
    EXPECT_TRUE(setup->choiceErrors()[0].message.contains(QStringLiteral("\"SIDEWAYS\"")));
    EXPECT_EQ(setup->choiceErrors()[1].kind, ChoiceErrorKind::UnknownOption);
    EXPECT_TRUE(setup->choiceErrors()[1].message.contains(QStringLiteral("\"NoSuch\"")));
    EXPECT_EQ(setup->choiceErrors()[2].kind, ChoiceErrorKind::UnknownPaper);
    EXPECT_TRUE(setup->choiceErrors()[2].message.contains(QStringLiteral("\"A4\"")));
    EXPECT_EQ(setup->paper()->name, QByteArray("24mm"));
    EXPECT_EQ(marked(*setup, "KvHalfCut"), QStringLiteral("ON"));
    EXPECT_FALSE(find(*setup, "NoSuch"));
}

TEST_F(PrinterSetupTest, ForcedWishesAreKeptAsTheyAre)
{
    SetupRequest requested{{requestedChoice("NoSuch", "ON")}, "A4"};
    requested.force = true;
    const auto setup = make(PpdBuilder().options({"KvMirror"}), requested);
    EXPECT_EQ(setup->choiceErrors().size(), 2U);
    ASSERT_TRUE(find(*setup, "NoSuch"));
    ASSERT_TRUE(find(*setup, "PageSize"));
    EXPECT_EQ(find(*setup, "PageSize")->value, QByteArray("A4"));
    // The labels are still shown on a paper that the printer has.
    EXPECT_EQ(setup->paper()->name, QByteArray("24mm"));
}

TEST_F(PrinterSetupTest, AClickOnThePanelIsRecordedAsThePanels)
{
    const auto setup = make(PpdBuilder().allOptions());
    EXPECT_FALSE(find(*setup, "KvMirror"));
    int heard = 0;
    setup->setDidChangeHook([&] { ++heard; });
    QTest::mouseClick(box(*setup, "mMirrorPrintChkBx"), Qt::LeftButton, {}, {5, 8});
    EXPECT_GT(heard, 0);
    ASSERT_TRUE(find(*setup, "KvMirror"));
    EXPECT_EQ(find(*setup, "KvMirror")->value, QByteArray("ON"));
    EXPECT_EQ(find(*setup, "KvMirror")->origin, Origin::Panel);
}

TEST_F(PrinterSetupTest, ThePanelsRulesHoldForWishesToo)
{
    const auto setup = make(PpdBuilder().allOptions(),
                            {{requestedChoice("KvSpecialTape", "ON"), requestedChoice("KvHalfCut", "ON")}});
    const host::Ticket ticket = ticketOf(*setup);
    EXPECT_FALSE(ticket.panel.error);
    const auto option = [&](const char *name) {
        return *std::ranges::find(ticket.job.options, QByteArray(name), &host::JobOption::name);
    };
    EXPECT_EQ(option("KvSpecialTape"), (host::JobOption{"KvSpecialTape", "ON", Origin::You, true}));
    EXPECT_EQ(option("KvHalfCut"), (host::JobOption{"KvHalfCut", "OFF", Origin::Panel, true}));
    ASSERT_EQ(setup->replacedChoices().size(), 1);
    EXPECT_TRUE(setup->replacedChoices().first().startsWith(QStringLiteral("\"Half Cut\" cannot be \"On\"")))
        << setup->replacedChoices().first().toStdString();
}

TEST_F(PrinterSetupTest, ARemedyEndsTheConflictAndLeavesThePaper)
{
    const PpdBuilder ppd = PpdBuilder()
                               .options({"KvMirror"})
                               .option("Other")
                               .constraint("KvMirror", "ON", "PageSize", "24mm")
                               .constraint("Other", "ON", "KvMirror", "ON");
    const auto setup = make(ppd);
    EXPECT_TRUE(ticketOf(*setup).conflicts.empty());
    setup->choose("Other", "ON");
    setup->choose("KvMirror", "ON");
    EXPECT_EQ(ticketOf(*setup).conflicts.size(), 2U);
    const auto remedy = ticketOf(*setup).remedy;
    ASSERT_TRUE(remedy);
    setup->apply(*remedy);
    EXPECT_TRUE(ticketOf(*setup).conflicts.empty());
    EXPECT_EQ(marked(*setup, "PageSize"), QStringLiteral("24mm"));
    // The paper rules it out, so not even the last choice can stay.
    EXPECT_EQ(marked(*setup, "KvMirror"), QStringLiteral("OFF"));
}

TEST_F(PrinterSetupTest, TheUsersDefaultsAreMarkedAndAFreePaperIsAmongThem)
{
    const QByteArray freeSizes =
        "*MaxMediaWidth: \"300\"\n*MaxMediaHeight: \"2835\"\n*HWMargins: 0 0 0 0\n"
        "*VariablePaperSize: True\n*CustomPageSize True: \"pop\"\n"
        "*ParamCustomPageSize Width: 1 points 10 300\n*ParamCustomPageSize Height: 2 points 10 2835\n";
    host::Destination destination;
    destination.queue = QStringLiteral("tape");
    destination.userOptions = {{"PageSize", "Custom.30x40mm"}, {"KvMirror", "ON"}};
    const auto setup = make(PpdBuilder().options({"KvMirror"}).raw(freeSizes), {}, destination);
    EXPECT_EQ(marked(*setup, "KvMirror"), QStringLiteral("ON"));
    ASSERT_TRUE(setup->paper());
    EXPECT_EQ(setup->paper()->name, QByteArray("Custom.30x40mm"));
    // No choice was made for this job.
    EXPECT_TRUE(setup->choices().empty());
}

TEST_F(PrinterSetupTest, TheQueuesPaperIsShownUnlessTheUserHasAnother)
{
    const std::pair<const char *, const char *> rows[] = {
        {"sides", "36mm"},
        {"PageSize", "62mm"},
        {"media", "62mm"},
        {"PageRegion", "62mm"},
    };
    for (const auto &[users, expected] : rows) {
        host::Destination destination;
        destination.queueOptions = {{"media", "36mm"}};
        destination.userOptions = {{users, "62mm"}};
        const auto setup = make(PpdBuilder().options({"KvMirror"}), {}, destination);
        EXPECT_EQ(setup->paper()->name, expected);
        EXPECT_EQ(marked(*setup, "PageSize"), QLatin1String(expected));
    }
}

TEST_F(PrinterSetupTest, ADefaultPaperOfTheUsersThatThePrinterLacksIsRefused)
{
    host::Destination destination;
    destination.queueOptions = {{"media", "36mm"}};
    destination.userOptions = {{"PageSize", "Bogus"}};
    struct Row {
        SetupRequest requested;
        QStringList refused;
        const char *sent;
        Origin origin;
    };
    SetupRequest forced;
    forced.force = true;
    const QString bogus = QStringLiteral("\"Bogus\", which is your default (lpoptions)");
    const Row rows[] = {
        {{}, {bogus}, "36mm", Origin::Queue},
        {{{}, "62mm"}, {}, "62mm", Origin::You},
        {{{}, "A4"}, {QStringLiteral("\"A4\"")}, "36mm", Origin::Queue},
        {forced, {bogus}, "Bogus", Origin::UserDefault},
    };
    for (const Row &row : rows) {
        const auto setup = make(PpdBuilder().options({"KvMirror"}), row.requested, destination);
        ASSERT_EQ(setup->choiceErrors().size(), static_cast<std::size_t>(row.refused.size())) << row.sent;
        for (const QString &words : row.refused) {
            EXPECT_EQ(setup->choiceErrors()[0].kind, ChoiceErrorKind::UnknownPaper);
            EXPECT_TRUE(setup->choiceErrors()[0].message.contains(words))
                << setup->choiceErrors()[0].message.toStdString();
        }
        const host::JobTicket job = ticketOf(*setup).job;
        const auto paper = std::ranges::find(job.options, QByteArray("PageSize"), &host::JobOption::name);
        ASSERT_NE(paper, job.options.end());
        EXPECT_EQ(*paper, (host::JobOption{"PageSize", row.sent, row.origin, true})) << row.sent;
    }
}

TEST_F(PrinterSetupTest, ThePrintersChoicesAnnounceAPaperToThePanel)
{
    const auto setup = make(PpdBuilder().allOptions());
    EXPECT_TRUE(box(*setup, "mRemoveBlkSpaceChkBx")->isEnabled());
    setup->choosePaper(setup->ppd().paper("DC29x90").value());
    // Blank ends cannot be removed from die-cut labels.
    EXPECT_FALSE(box(*setup, "mRemoveBlkSpaceChkBx")->isEnabled());
    EXPECT_EQ(find(*setup, "PageSize")->value, QByteArray("DC29x90"));
    EXPECT_EQ(marked(*setup, "PageSize"), QStringLiteral("DC29x90"));
}

TEST_F(PrinterSetupTest, WithoutAPpdEverythingIsPassedOn)
{
    host::Destination destination;
    destination.queue = QStringLiteral("plain");
    const PrinterSetup setup(destination, std::nullopt, {{requestedChoice("Anything", "Goes")}, "A4"},
                             source);
    EXPECT_FALSE(setup.hasPpd());
    EXPECT_TRUE(setup.panels().empty());
    EXPECT_TRUE(setup.panelErrors().empty());
    EXPECT_FALSE(setup.paper());
    EXPECT_TRUE(ticketOf(setup).conflicts.empty());
    ASSERT_EQ(setup.choices().size(), 2U);
    EXPECT_EQ(setup.choices()[1].name, QByteArray("PageSize"));
    EXPECT_EQ(setup.printerText(), QStringLiteral("plain"));
}

TEST_F(PrinterSetupTest, APrinterWithoutCutOptionsHasNoPanelAndNoProblem)
{
    const auto setup = make(PpdBuilder().option("Other"));
    EXPECT_TRUE(setup->panels().empty());
    EXPECT_TRUE(setup->panelErrors().empty());
    EXPECT_EQ(setup->panelSettings(), host::PanelSettings());
}

TEST_F(PrinterSetupTest, ABundleThatIsNotThereIsAProblemToTell)
{
    const QString path = folder.filePath(QStringLiteral("printer.ppd"));
    ASSERT_TRUE(PpdBuilder().allOptions().writeTo(path));
    auto ppd = host::PpdFile::open(path);
    ASSERT_TRUE(ppd);
    const PrinterSetup setup({}, std::move(ppd).value(), {}, {QStringLiteral("/nowhere"), {}});
    ASSERT_EQ(setup.panelErrors().size(), 1U);
    EXPECT_EQ(setup.panelErrors().front().kind, host::BundleErrorKind::Missing);
    EXPECT_TRUE(setup.panelErrors().front().message.contains(QStringLiteral("/nowhere")));
    EXPECT_TRUE(setup.panels().empty());
}
