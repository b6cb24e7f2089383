// SPDX-License-Identifier: Apache-2.0
#include "BundleCatalog.h"

#include "BundleFolders.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>

#include <algorithm>

namespace host {
inline namespace panels {

namespace {

struct BundleCatalogText {
    Q_DECLARE_TR_FUNCTIONS(host::panels::BundleCatalog)
};

const QString bundlePattern = QStringLiteral("*.bundle");

/// The statement of a PPD that names a bundle. Its value is a name without a folder: a PPD may come from a
/// print server, which must not determine which file is loaded.
constexpr const char *bundleStatement = "kvPanelBundle";

/// Returns why the bundle must not be loaded: other users can change one of its files. Absent if it can be
/// loaded.
std::optional<QString> untrustedPart(const QString &bundle)
{
    if (std::optional<QString> reason = untrustedReason(bundle))
        return reason;
    QDirIterator parts(bundle, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System,
                       QDirIterator::Subdirectories);
    while (parts.hasNext()) {
        if (std::optional<QString> reason = untrustedReason(parts.next()))
            return reason;
    }
    return std::nullopt;
}

bool isNamedBy(const PpdFile &ppd, const BundleDescription &bundle)
{
    return ppd.values(bundleStatement).contains(bundle.name);
}

} // namespace

void BundleCatalog::addBundle(const QString &folder, bool isTrusted)
{
    const std::optional<QString> reason = isTrusted ? std::nullopt : untrustedPart(folder);
    if (reason) {
        m_skipped.append(
            BundleCatalogText::tr("The panel bundle \"%1\" is not used: %2.").arg(folder, *reason));
        return;
    }
    Result<BundleDescription, BundleError> described = PanelBundle::describe(folder);
    if (!described) {
        m_skipped.append(described.error().message);
        return;
    }
    if (std::ranges::find(m_bundles, described.value().name, &BundleDescription::name) == m_bundles.end())
        m_bundles.push_back(std::move(described).value());
}

void BundleCatalog::addFolder(const QString &folder, bool isTrusted)
{
    const QStringList names = QDir(folder).entryList({bundlePattern}, QDir::Dirs, QDir::Name);
    const std::optional<QString> reason =
        isTrusted || names.isEmpty() ? std::nullopt : untrustedReason(folder);
    if (reason) {
        m_skipped.append(
            BundleCatalogText::tr("The panel bundles in \"%1\" are not used: %2.").arg(folder, *reason));
        return;
    }
    for (const QString &name : names)
        addBundle(QDir(folder).filePath(name), isTrusted);
}

BundleCatalog BundleCatalog::installed()
{
    BundleCatalog catalog;
    for (const BundleFolder &folder : bundleFolders())
        catalog.addFolder(folder.path, folder.isOfProgram);
    return catalog;
}

Result<BundleCatalog, BundleError> BundleCatalog::inFolder(const QString &folder)
{
    const QFileInfo info(folder);
    if (!info.exists())
        return PanelBundle::error(BundleErrorKind::Missing, folder,
                                  BundleCatalogText::tr("there is no such folder"));
    if (!info.isDir())
        return PanelBundle::error(BundleErrorKind::NotABundle, folder,
                                  BundleCatalogText::tr("it is not a folder"));
    const QString path = QDir::cleanPath(info.absoluteFilePath());
    const QStringList contained = QDir(path).entryList({bundlePattern}, QDir::Dirs, QDir::Name);
    BundleCatalog catalog;
    catalog.addFolder(path, true);
    if (!catalog.m_bundles.empty())
        return catalog;
    Result<BundleDescription, BundleError> described =
        PanelBundle::describe(contained.isEmpty() ? path : QDir(path).filePath(contained.front()));
    if (!described)
        return described.error();
    catalog.m_bundles.push_back(std::move(described).value());
    return catalog;
}

std::vector<BundleDescription> BundleCatalog::bundlesFor(const PpdFile &ppd) const
{
    std::vector<BundleDescription> found;
    std::ranges::copy_if(m_bundles, std::back_inserter(found), [&](const BundleDescription &bundle) {
        return std::ranges::any_of(bundle.keywords,
                                   [&](const QString &keyword) { return ppd.hasOption(keyword); });
    });
    std::stable_partition(found.begin(), found.end(),
                          [&](const BundleDescription &bundle) { return isNamedBy(ppd, bundle); });
    return found;
}

} // namespace panels
} // namespace host
