// SPDX-License-Identifier: Apache-2.0
// Bundles that misbehave: the setup reports them, goes on without them, and leaves their options to the
// dialog.
#include <host/setup/JobSummary.h>
#include <tests/support/PpdBuilder.h>

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QWidget>

#include <gtest/gtest.h>

#include <algorithm>

using host::BundleErrorKind;
using host::PrinterSetup;
using test_support::PpdBuilder;

namespace {

class BadPanelsTest : public testing::Test {
protected:
    void SetUp() override
    {
        stateBefore = qgetenv("XDG_STATE_HOME");
        qputenv("XDG_STATE_HOME", folder.path().toUtf8());
    }
    void TearDown() override
    {
        qunsetenv("KVTEST_TROUBLE");
        qputenv("XDG_STATE_HOME", stateBefore);
    }

    std::unique_ptr<PrinterSetup> make(const QByteArray &trouble) { return make(trouble, source); }

    std::unique_ptr<PrinterSetup> make(const QByteArray &trouble, const host::PanelSource &bundles)
    {
        qputenv("KVTEST_TROUBLE", trouble);
        const QString path = folder.filePath(QStringLiteral("printer.ppd"));
        EXPECT_TRUE(PpdBuilder().options({"KvTrouble", "Other"}).writeTo(path));
        auto opened = host::PpdFile::open(path);
        if (!opened)
            qFatal("%s", qPrintable(opened.error().message));
        return std::make_unique<PrinterSetup>(host::Destination(), std::move(opened).value(),
                                              host::SetupRequest(), bundles);
    }

    host::Ticket ticketOf(const PrinterSetup &setup) const
    {
        host::JobRequest request;
        request.pages.pages = {0, 1, 2};
        return ticketFor(setup, *document.value(), request);
    }

    const host::PanelSource source{QStringLiteral(KV_BINARY_DIR "/tests/bundles/trouble"), {}};
    QTemporaryDir folder;
    QByteArray stateBefore;
    const host::Result<std::unique_ptr<host::LabelDocument>, host::DocumentError> document =
        host::LabelDocument::open(QStringLiteral(KV_SOURCE_DIR "/resources/documents/labels.pdf"));
};

} // namespace

TEST_F(BadPanelsTest, WithoutTroubleThePanelIsUsed)
{
    const auto setup = make("");
    EXPECT_EQ(setup->panels().size(), 1U);
    EXPECT_TRUE(setup->panelErrors().empty());
    EXPECT_EQ(setup->panelNotices(), QStringList());
    EXPECT_EQ(setup->claimedKeywords(), QStringList{QStringLiteral("KvTrouble")});
    const host::Ticket ticket = ticketOf(*setup);
    ASSERT_TRUE(ticket.strip.ends);
    EXPECT_EQ(ticket.strip.ends->size(), 3U);
    EXPECT_EQ(ticket.panel.choice(QStringLiteral("KvTrouble")), QStringLiteral("ON"));
}

TEST_F(BadPanelsTest, AnExceptionInACallPutsTheBundleAside)
{
    for (const char *const call :
         {"createPlugIn", "initWithBundle", "PDEPanelsForType", "supportedPPDOptionKeys", "panelView",
          "restoreValuesAndReturnError", "willShow", "saveValuesAndReturnError", "shouldPrint"}) {
        for (const char *const kind : {"throw ", "throw number "}) {
            SCOPED_TRACE((QByteArray(kind) + call).toStdString());
            const auto setup = make(QByteArray(kind) + call);
            EXPECT_TRUE(setup->panels().empty());
            EXPECT_TRUE(setup->claimedKeywords().isEmpty());
            ASSERT_EQ(setup->panelErrors().size(), 1U);
            EXPECT_EQ(setup->panelErrors().front().kind, BundleErrorKind::Failed);
            EXPECT_TRUE(setup->panelErrors().front().message.contains(QStringLiteral("Trouble.bundle")));
            const host::Ticket ticket = ticketOf(*setup);
            EXPECT_FALSE(ticket.panel.error);
            EXPECT_FALSE(ticket.strip.ends) << "the cutting is not known";
        }
    }
}

TEST_F(BadPanelsTest, TheErrorQuotesTheException)
{
    const auto setup = make("throw willShow");
    ASSERT_EQ(setup->panelErrors().size(), 1U);
    const QString message = setup->panelErrors().front().message;
    EXPECT_TRUE(message.contains(QStringLiteral("\"willShow\": the sample error"))) << message.toStdString();
}

TEST_F(BadPanelsTest, ALaterExceptionEndsThePanelWhenItIsDropped)
{
    for (const char *const call : {"stripEffects", "summaryInfo", "PPDOptionKeyValueDidChange"}) {
        SCOPED_TRACE(call);
        const auto setup = make("");
        // Saves the panel's choices.
        setup->announce(*setup->panels().front());
        int failed = 0;
        setup->setPanelFailedHook([&] { ++failed; });
        qputenv("KVTEST_TROUBLE", QByteArray("throw ") + call);
        const host::Ticket ticket = ticketOf(*setup);
        host::summarize(ticket, *setup, nullptr);
        setup->choose("Other", "ON");
        EXPECT_EQ(failed, 1);
        ASSERT_EQ(setup->panelFailures().size(), 1U);
        setup->dropFailedPanels();
        EXPECT_TRUE(setup->panels().empty());
        EXPECT_TRUE(setup->panelFailures().empty());
        EXPECT_EQ(setup->panelErrors().size(), 1U);
        EXPECT_EQ(setup->ppd().markedChoice(QStringLiteral("KvTrouble")), QStringLiteral("ON"))
            << "the marked choice stays";
        EXPECT_EQ(setup->ppd().markedChoice(QStringLiteral("Other")), QStringLiteral("ON"));
        setup->choose("KvTrouble", "OFF");
        EXPECT_EQ(setup->ppd().markedChoice(QStringLiteral("KvTrouble")), QStringLiteral("OFF"));
    }
}

TEST_F(BadPanelsTest, APanelControlsOnlyWhatItsMetadataList)
{
    const auto setup = make("claims everything");
    EXPECT_EQ(setup->claimedKeywords(), QStringList{QStringLiteral("KvTrouble")});
    ASSERT_EQ(setup->panelNotices().size(), 1);
    EXPECT_TRUE(setup->panelNotices().front().contains(QStringLiteral("PageSize")));
    EXPECT_TRUE(setup->panelNotices().front().contains(QStringLiteral("Other")));
    EXPECT_EQ(ticketOf(*setup).panel.choice(QStringLiteral("Other")), std::nullopt);
    EXPECT_EQ(setup->ppd().markedChoice(QStringLiteral("Other")), QStringLiteral("OFF"));
}

TEST_F(BadPanelsTest, TheFirstOfTwoBundlesWithTheSameOptionsIsUsed)
{
    // The bundle under its own name and under another one that comes before it.
    const QString library = QStringLiteral(KV_BINARY_DIR "/tests/bundles/trouble/Trouble.bundle/Trouble.so");
    for (const char *const name : {"Trouble", "Again"}) {
        const QString bundle = folder.filePath(QStringLiteral("both/%1.bundle/").arg(QLatin1String(name)));
        ASSERT_TRUE(QDir().mkpath(bundle));
        ASSERT_TRUE(QFile::copy(library, bundle + QLatin1String(name) + QStringLiteral(".so")));
    }
    const auto setup = make("", host::PanelSource{folder.filePath(QStringLiteral("both")), {}});
    EXPECT_TRUE(setup->panelErrors().empty());
    EXPECT_EQ(setup->panels().size(), 1U);
    EXPECT_EQ(setup->claimedKeywords(), QStringList{QStringLiteral("KvTrouble")});
    ASSERT_EQ(setup->panelNotices().size(), 1);
    const QString notice = setup->panelNotices().front();
    EXPECT_TRUE(notice.contains(QStringLiteral("\"Trouble\" does not control KvTrouble")))
        << notice.toStdString();
}

TEST_F(BadPanelsTest, AReplacedChoiceIsExplainedByThePanel)
{
    const auto setup = make("");
    // The panel always saves ON.
    setup->choose("KvTrouble", "OFF");
    ASSERT_EQ(setup->replacedChoices().size(), 1);
    EXPECT_TRUE(setup->replacedChoices().front().endsWith(QStringLiteral(" The sample reason.")))
        << setup->replacedChoices().front().toStdString();
}

TEST_F(BadPanelsTest, ABundleWithoutAPanelOrAViewIsReported)
{
    for (const char *const trouble : {"no panel", "no view"}) {
        const auto setup = make(trouble);
        EXPECT_TRUE(setup->panels().empty()) << trouble;
        ASSERT_EQ(setup->panelErrors().size(), 1U) << trouble;
        EXPECT_EQ(setup->panelErrors().front().kind, BundleErrorKind::Unusable) << trouble;
    }
}

TEST_F(BadPanelsTest, TooFewEndsMeanThatTheCuttingIsNotKnown)
{
    const auto setup = make("too few ends");
    EXPECT_FALSE(ticketOf(*setup).strip.ends);
}
