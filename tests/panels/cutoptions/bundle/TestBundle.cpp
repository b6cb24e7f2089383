// SPDX-License-Identifier: Apache-2.0
// The bundle as a print dialog meets it: loaded at run time, known by the protocol alone.
#include <host/panels/BundleCatalog.h>
#include <host/panels/DialogState.h>
#include <host/panels/PanelSession.h>
#include <protocol/PDEPanelInspection.h>
#include <tests/support/PpdBuilder.h>

#include <QTemporaryDir>
#include <QWidget>

#include <gtest/gtest.h>

#include <dlfcn.h>

namespace {

const QString bundleFolder = QStringLiteral(KV_BINARY_DIR "/bin/KVLXDZOptions.bundle");

/// The bundle in a print dialog of a printer with all options.
class BundleTest : public testing::Test {
protected:
    void SetUp() override
    {
        const QTemporaryDir folder;
        const QString ppdPath = folder.filePath(QStringLiteral("printer.ppd"));
        ASSERT_TRUE(test_support::PpdBuilder().allOptions().writeTo(ppdPath));
        auto ppd = host::PpdFile::open(ppdPath);
        ASSERT_TRUE(ppd) << ppd.error().message.toStdString();
        auto bundle = host::PanelBundle::load(bundleFolder, {QStringLiteral("de")});
        ASSERT_TRUE(bundle) << bundle.error().message.toStdString();
        const auto state = std::make_shared<host::DialogState>(std::move(ppd).value());
        session.emplace(std::move(bundle).value(), std::make_shared<host::PanelHost>(state));
        panel = session->firstPanel();
        ASSERT_TRUE(panel);
        ASSERT_TRUE(panel->panelView());
        panel->restoreValuesAndReturnError(nullptr);
        panel->willShow();
        ASSERT_TRUE(session->bundle().inspection());
    }

    QJsonObject panelState() const { return session->bundle().inspection()->panelState(panel); }

    std::optional<host::PanelSession> session;
    PDEPanel *panel = nullptr;
};

} // namespace

TEST_F(BundleTest, AnswersThePrintDialogWithOnePanel)
{
    EXPECT_EQ(session->panels()->size(), 1U);
    EXPECT_NE(panel->panelName(), QStringLiteral("OP_PANEL_NAME"));
    EXPECT_EQ(panelState()["preview"].toObject()["picture"].toString(), QStringLiteral("AHCMOffOffOffOff"));
}

// The dialog loads the bundle for the keywords in its metadata, and leaves no other options to the panel.
TEST_F(BundleTest, ItsMetadataListsEachOptionOfThePanel)
{
    const auto described = host::PanelBundle::describe(bundleFolder);
    ASSERT_TRUE(described) << described.error().message.toStdString();
    QStringList listed = described.value().keywords;
    listed.sort();
    EXPECT_EQ(panelState()["marked"].toObject().keys(), listed);
}

TEST(Bundle, ExportsItsFunctionsByName)
{
    void *const library =
        dlopen(qPrintable(bundleFolder + QStringLiteral("/KVLXDZOptions.so")), RTLD_NOW | RTLD_LOCAL);
    ASSERT_TRUE(library) << dlerror();
    for (const char *name :
         {"GetTapeInfo", "GetTapeInfo2", "GetTapeInfo3", "GetTicketFromSession", "RoundDouble", "MiriToInch",
          "InchToMiri", "debugLog", "debugLogFd", "memoryCheck", "memoryCheckFd", "_PDEProlog", "_PDEEpilog",
          "_PDELog", "_PDELog_ppd_option_t", "_PDELog_PMPrintSettings_WriteToFile"})
        EXPECT_NE(dlsym(library, name), nullptr) << name;
    auto *const roundDouble = reinterpret_cast<long (*)(double)>(dlsym(library, "RoundDouble"));
    ASSERT_TRUE(roundDouble);
    EXPECT_EQ(roundDouble(-2.5), -3);
}
