// SPDX-License-Identifier: Apache-2.0
// Which bundles are found, in which order, and which are skipped because other users can change them.
#include <host/panels/BundleCatalog.h>
#include <host/panels/BundleFolders.h>
#include <tests/samples/Sandbox.h>
#include <tests/support/PpdBuilder.h>

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <algorithm>

#include <sys/stat.h>

using host::BundleCatalog;
using host::BundleErrorKind;
using test_support::PpdBuilder;

namespace {

/// Sets environment variables for one test.
class Environment {
public:
    void set(const char *name, const QString &value)
    {
        m_before.emplace(m_before.begin(), name,
                         qEnvironmentVariableIsSet(name) ? std::optional(qgetenv(name)) : std::nullopt);
        qputenv(name, value.toUtf8());
    }
    ~Environment()
    {
        for (const auto &[name, value] : m_before) {
            if (value)
                qputenv(name, *value);
            else
                qunsetenv(name);
        }
    }

private:
    /// The values before, the last change first.
    std::vector<std::pair<const char *, std::optional<QByteArray>>> m_before;
};

class BundleCatalogTest : public testing::Test {
protected:
    void SetUp() override
    {
        environment.set("KVPRINT_PANELS", sandbox.path(QStringLiteral("own")));
        environment.set("XDG_DATA_DIRS", sandbox.path(QStringLiteral("system")));
        environment.set("XDG_DATA_HOME", sandbox.path(QStringLiteral("home")));
    }

    /// Copies the library of a test bundle into FOLDER/NAME.bundle.
    QString install(const QString &folder, const QString &name, const char *bundle = "good") const
    {
        const QString path = sandbox.path(folder) + u'/' + name + QStringLiteral(".bundle");
        EXPECT_TRUE(QDir().mkpath(path));
        const QString library = path + u'/' + name + QStringLiteral(".so");
        EXPECT_TRUE(QFile::copy(QStringLiteral(KV_BINARY_DIR "/tests/bundles/") + QLatin1String(bundle) +
                                    QStringLiteral("/KVLXDZOptions.bundle/KVLXDZOptions.so"),
                                library));
        chmodPath(library, 0644);
        chmodPath(path, 0755);
        chmodPath(sandbox.path(folder), 0755);
        return path;
    }

    static void chmodPath(const QString &path, mode_t mode)
    {
        ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), mode), 0) << path.toStdString();
    }

    host::PpdFile printer(const PpdBuilder &builder) const
    {
        const QString path = sandbox.path(QStringLiteral("printer.ppd"));
        EXPECT_TRUE(builder.writeTo(path));
        auto opened = host::PpdFile::open(path);
        if (!opened)
            qFatal("%s", qPrintable(opened.error().message));
        return std::move(opened).value();
    }

    static QStringList names(const std::vector<host::BundleDescription> &bundles)
    {
        QStringList names;
        for (const host::BundleDescription &bundle : bundles)
            names.append(bundle.name);
        return names;
    }

    const QStringList all{QStringLiteral("Own"), QStringLiteral("System"), QStringLiteral("Home")};
    Sandbox sandbox;
    Environment environment;
};

} // namespace

TEST_F(BundleCatalogTest, TheFoldersAreSearchedInTheirOrder)
{
    install(QStringLiteral("home/kvprint/panels"), QStringLiteral("Home"));
    install(QStringLiteral("system/kvprint/panels"), QStringLiteral("System"));
    install(QStringLiteral("own"), QStringLiteral("Own"));
    const BundleCatalog catalog = BundleCatalog::installed();
    QStringList found = names(catalog.bundles());
    found.removeIf([&](const QString &name) { return !all.contains(name); });
    EXPECT_EQ(found, all);
    EXPECT_EQ(catalog.skipped(), QStringList());
}

TEST_F(BundleCatalogTest, TheFirstOfTwoBundlesWithOneNameIsUsed)
{
    install(QStringLiteral("home/kvprint/panels"), QStringLiteral("Same"));
    const QString first = install(QStringLiteral("own"), QStringLiteral("Same"));
    const BundleCatalog catalog = BundleCatalog::installed();
    const auto &bundles = catalog.bundles();
    EXPECT_EQ(std::ranges::count(bundles, QStringLiteral("Same"), &host::BundleDescription::name), 1);
    EXPECT_EQ(std::ranges::find(bundles, QStringLiteral("Same"), &host::BundleDescription::name)->folder,
              first);
}

TEST_F(BundleCatalogTest, RelativeFoldersAreSkipped)
{
    environment.set("KVPRINT_PANELS", QStringLiteral("own:./other"));
    environment.set("XDG_DATA_HOME", QStringLiteral("home"));
    for (const host::BundleFolder &folder : host::bundleFolders())
        EXPECT_TRUE(QDir::isAbsolutePath(folder.path)) << folder.path.toStdString();
}

TEST_F(BundleCatalogTest, WhatOtherUsersCanChangeIsSkipped)
{
    const QString bundle = install(QStringLiteral("own"), QStringLiteral("Own"));
    ASSERT_TRUE(QDir().mkpath(bundle + QStringLiteral("/Resources")));
    const QString text = bundle + QStringLiteral("/Resources/Text.qm");
    sandbox.write(QStringLiteral("own/Own.bundle/Resources/Text.qm"), "text");
    for (const QString &part :
         {sandbox.path(QStringLiteral("own")), bundle, bundle + QStringLiteral("/Own.so"),
          bundle + QStringLiteral("/Resources"), text}) {
        for (const mode_t writable : {mode_t(S_IWGRP), mode_t(S_IWOTH)}) {
            struct stat before = {};
            ASSERT_EQ(::stat(QFile::encodeName(part).constData(), &before), 0);
            chmodPath(text, 0644);
            chmodPath(bundle + QStringLiteral("/Resources"), 0755);
            chmodPath(part, (before.st_mode & 0755U) | writable);
            const BundleCatalog catalog = BundleCatalog::installed();
            EXPECT_FALSE(names(catalog.bundles()).contains(QStringLiteral("Own"))) << part.toStdString();
            ASSERT_EQ(catalog.skipped().size(), 1) << part.toStdString();
            EXPECT_TRUE(catalog.skipped().front().contains(u'"' + part + u'"'))
                << catalog.skipped().front().toStdString();
            chmodPath(part, before.st_mode & 0755U);
        }
    }
    EXPECT_TRUE(names(BundleCatalog::installed().bundles()).contains(QStringLiteral("Own")));
}

TEST_F(BundleCatalogTest, AFolderThatTheUserNamesIsUsedAsItIs)
{
    const QString bundle = install(QStringLiteral("shared"), QStringLiteral("Shared"));
    chmodPath(sandbox.path(QStringLiteral("shared")), 0777);
    const auto contained = BundleCatalog::inFolder(sandbox.path(QStringLiteral("shared")));
    ASSERT_TRUE(contained) << contained.error().message.toStdString();
    EXPECT_EQ(names(contained.value().bundles()), QStringList{QStringLiteral("Shared")});
    const auto itself = BundleCatalog::inFolder(bundle);
    ASSERT_TRUE(itself) << itself.error().message.toStdString();
    EXPECT_EQ(itself.value().bundles().front().folder, bundle);
}

TEST_F(BundleCatalogTest, AFolderWithoutABundleIsAnError)
{
    const auto missing = BundleCatalog::inFolder(sandbox.path(QStringLiteral("nowhere")));
    ASSERT_FALSE(missing);
    EXPECT_EQ(missing.error().kind, BundleErrorKind::Missing);
    const auto file = BundleCatalog::inFolder(sandbox.write(QStringLiteral("file"), "x"));
    ASSERT_FALSE(file);
    EXPECT_EQ(file.error().kind, BundleErrorKind::NotABundle);
    install(QStringLiteral("broken"), QStringLiteral("Broken"), "other_interface");
    const auto broken = BundleCatalog::inFolder(sandbox.path(QStringLiteral("broken")));
    ASSERT_FALSE(broken);
    EXPECT_TRUE(broken.error().message.contains(QStringLiteral("contains no panels")));
}

TEST_F(BundleCatalogTest, BundlesAreUsedForTheOptionsOfTheirMetadata)
{
    install(QStringLiteral("own"), QStringLiteral("First"));
    install(QStringLiteral("own"), QStringLiteral("Second"));
    const auto catalog = BundleCatalog::inFolder(sandbox.path(QStringLiteral("own")));
    ASSERT_TRUE(catalog);
    EXPECT_TRUE(catalog.value().bundlesFor(printer(PpdBuilder().option("Other"))).empty());
    EXPECT_EQ(names(catalog.value().bundlesFor(printer(PpdBuilder().option("KvMirror")))),
              (QStringList{QStringLiteral("First"), QStringLiteral("Second")}));
}

TEST_F(BundleCatalogTest, APpdPutsABundleFirstByItsNameOnly)
{
    install(QStringLiteral("own"), QStringLiteral("First"));
    const QString second = install(QStringLiteral("own"), QStringLiteral("Second"));
    const auto catalog = BundleCatalog::inFolder(sandbox.path(QStringLiteral("own")));
    ASSERT_TRUE(catalog);
    const auto order = [&](const QByteArray &named) {
        return names(catalog.value().bundlesFor(
            printer(PpdBuilder().option("KvMirror").attribute("kvPanelBundle", named))));
    };
    EXPECT_EQ(order("Second"), (QStringList{QStringLiteral("Second"), QStringLiteral("First")}));
    const QStringList usual{QStringLiteral("First"), QStringLiteral("Second")};
    EXPECT_EQ(order(second.toUtf8()), usual) << "a path is no name";
    EXPECT_EQ(order("Unknown"), usual);
}
