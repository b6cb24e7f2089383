// SPDX-License-Identifier: Apache-2.0

#include <host/panels/PanelBundle.h>
#include <protocol/PDEUserChoices.h>
#include <tests/samples/Sandbox.h>
#include <tests/support/TestDialog.h>

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using host::BundleErrorKind;
using host::PanelBundle;

namespace {

const QString bundleName = QStringLiteral("KVLXDZOptions");

/// A bundle of tests/host/panels/bundles/, as the build left it.
QString bundleFolder(const char *name)
{
    return QStringLiteral(KV_BINARY_DIR "/tests/bundles/") + QLatin1String(name) +
           QStringLiteral("/KVLXDZOptions.bundle");
}

/// A copy of the bundle that has the given files, empty, in its Resources.
QString bundleWithFiles(const Sandbox &sandbox, const char *name, const QStringList &files)
{
    const QString folder = sandbox.path(QStringLiteral("KVLXDZOptions.bundle"));
    EXPECT_TRUE(QDir().mkpath(folder + QStringLiteral("/Resources")));
    EXPECT_TRUE(QFile::copy(bundleFolder(name) + QStringLiteral("/KVLXDZOptions.so"),
                            folder + QStringLiteral("/KVLXDZOptions.so")));
    for (const QString &file : files)
        sandbox.write(QStringLiteral("KVLXDZOptions.bundle/Resources/") + file, "content");
    return folder;
}

struct Refusal {
    const char *bundle;
    BundleErrorKind kind;
    const char *reason;
};

} // namespace

TEST(PanelBundle, LoadsABundleAndItsPanels)
{
    const auto bundle = PanelBundle::load(bundleFolder("good"), {});
    ASSERT_TRUE(bundle) << bundle.error().message.toStdString();
    EXPECT_EQ(bundle.value().inspection(), nullptr);
    EXPECT_EQ(bundle.value().resources().path(), bundleFolder("good"));
}

TEST(PanelBundle, AnotherMakersPanelAppliesTheUsersChoices)
{
    const auto bundle = PanelBundle::load(bundleFolder("good"), {});
    ASSERT_TRUE(bundle) << bundle.error().message.toStdString();
    const auto dialog =
        std::make_shared<test_support::TestDialog>(test_support::PpdBuilder().allOptions().openMarked());
    const auto panels = bundle.value().plugIn().PDEPanelsForType(PDEPrintDialogType, dialog);
    ASSERT_TRUE(panels && panels->size() == 1);
    auto *const choices = dynamic_cast<PDEUserChoices_v1 *>(panels->front().get());
    ASSERT_TRUE(choices) << "found by its class across the library's border";
    EXPECT_EQ(dynamic_cast<PDEChoiceSummary_v1 *>(panels->front().get()), nullptr);
    const PDEChoices mirrored{{QStringLiteral("KvMirror"), QStringLiteral("ON")}};
    choices->applyUserChoices(mirrored);
    EXPECT_EQ(dialog->changes, mirrored);
    choices->applyUserChoices(mirrored);
    choices->applyUserChoices({{QStringLiteral("KvMirror"), QStringLiteral("AUTO")},
                               {QStringLiteral("KvHalfCut"), QStringLiteral("OFF")}});
    EXPECT_EQ(dialog->changes, mirrored) << "what is set already, unknown or another panel's";
}

TEST(PanelBundle, RefusesOthersWithTheReason)
{
    const Refusal rows[] = {
        {"other_version", BundleErrorKind::WrongInterfaceVersion, "version 9"},
        {"other_interface", BundleErrorKind::NotABundle, "contains no panels"},
        {"missing_symbol", BundleErrorKind::NotABundle, "functionOfNoLibrary"},
        {"refusing", BundleErrorKind::Unusable, "does not work on this system"},
        {"needs_files", BundleErrorKind::ResourceMissing, "Resources/Layout.ui, Resources/Picture.png"},
    };
    for (const Refusal &row : rows) {
        const auto bundle = PanelBundle::load(bundleFolder(row.bundle), {});
        ASSERT_FALSE(bundle) << row.bundle;
        EXPECT_EQ(bundle.error().kind, row.kind) << row.bundle;
        EXPECT_TRUE(bundle.error().message.contains(bundleFolder(row.bundle)))
            << bundle.error().message.toStdString();
        EXPECT_TRUE(bundle.error().message.contains(QLatin1String(row.reason)))
            << bundle.error().message.toStdString();
    }
}

TEST(PanelBundle, NamesTheFilesThatAreMissing)
{
    const Sandbox sandbox;
    const QString folder = bundleWithFiles(sandbox, "needs_files", {QStringLiteral("Layout.ui")});
    const auto bundle = PanelBundle::load(folder, {});
    ASSERT_FALSE(bundle);
    EXPECT_TRUE(bundle.error().message.endsWith(QStringLiteral(": Resources/Picture.png")));

    sandbox.write(QStringLiteral("KVLXDZOptions.bundle/Resources/Picture.png"), "content");
    EXPECT_TRUE(PanelBundle::load(folder, {}));
}

TEST(PanelBundle, RefusesFoldersWithoutALoadableLibrary)
{
    const Sandbox sandbox;
    const QString folder = sandbox.path(QStringLiteral("KVLXDZOptions.bundle"));
    ASSERT_TRUE(QDir().mkpath(folder));
    const auto empty = PanelBundle::load(folder, {});
    ASSERT_FALSE(empty);
    EXPECT_EQ(empty.error().kind, BundleErrorKind::NotABundle);
    EXPECT_TRUE(empty.error().message.contains(QStringLiteral("KVLXDZOptions.so")));

    sandbox.write(QStringLiteral("KVLXDZOptions.bundle/KVLXDZOptions.so"), "no library at all");
    const auto rubbish = PanelBundle::load(folder, {});
    ASSERT_FALSE(rubbish);
    EXPECT_EQ(rubbish.error().kind, BundleErrorKind::NotABundle);
    EXPECT_TRUE(rubbish.error().message.contains(folder));
}

TEST(PanelBundle, FindsTheFolderItselfOrTheOneThatHoldsIt)
{
    const Sandbox sandbox;
    const QString folder = bundleWithFiles(sandbox, "good", {});
    EXPECT_EQ(PanelBundle::find(bundleName, folder).value(), folder);
    EXPECT_EQ(PanelBundle::find(bundleName, sandbox.path(QStringLiteral("."))).value(), folder);

    const auto missing = PanelBundle::find(bundleName, sandbox.path(QStringLiteral("nowhere")));
    ASSERT_FALSE(missing);
    EXPECT_EQ(missing.error().kind, BundleErrorKind::Missing);
    EXPECT_TRUE(missing.error().message.contains(QStringLiteral("nowhere")));

    const auto file = PanelBundle::find(bundleName, sandbox.write(QStringLiteral("file"), "x"));
    ASSERT_FALSE(file);
    EXPECT_EQ(file.error().kind, BundleErrorKind::NotABundle);
}

TEST(PanelBundle, SaysWhereItLookedWhenNothingWasAskedFor)
{
    // The test programs have no bundle beside them.
    const auto found = PanelBundle::find(bundleName, std::nullopt);
    ASSERT_FALSE(found);
    EXPECT_EQ(found.error().kind, BundleErrorKind::Missing);
    EXPECT_EQ(found.error().message.count(bundleName + QStringLiteral(".bundle")), 2)
        << found.error().message.toStdString();
}
