// SPDX-License-Identifier: Apache-2.0
#include "PanelBundle.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QPluginLoader>

namespace host {
inline namespace panels {

namespace {

struct PanelBundleText {
    Q_DECLARE_TR_FUNCTIONS(host::panels::PanelBundle)
};

BundleError failure(BundleErrorKind kind, const QString &folder, const QString &reason)
{
    return {kind, PanelBundleText::tr("Cannot use the panel bundle \"%1\": %2").arg(folder, reason)};
}

QStringList standardFolders()
{
    const QDir programs(QCoreApplication::applicationDirPath());
    return {programs.filePath(PanelBundle::folderName),
            QDir::cleanPath(programs.filePath(QStringLiteral(KV_INSTALLED_BUNDLES))) + u'/' +
                PanelBundle::folderName};
}

QString libraryPath(const QString &folder)
{
    return folder + u'/' + QFileInfo(PanelBundle::folderName).completeBaseName() + QStringLiteral(".so");
}

/// Checks in the metadata of the library that it implements this host's version of the panel interface.
std::optional<BundleError> checkInterface(const QString &folder, const QJsonObject &metaData)
{
    const QString interface = metaData.value(QStringLiteral("IID")).toString();
    const QString stem = QStringLiteral(PDEPlugInFactory_iid_stem);
    if (!interface.startsWith(stem))
        return failure(BundleErrorKind::NotABundle, folder,
                       PanelBundleText::tr("its library contains no panels"));
    if (interface != QStringLiteral(PDEPlugInFactory_iid)) {
        const QString own = QStringLiteral(PDEPlugInFactory_iid).mid(stem.size());
        return failure(
            BundleErrorKind::WrongInterfaceVersion, folder,
            PanelBundleText::tr(
                "it was made for version %1 of the panel interface, and this program has version %2")
                .arg(interface.mid(stem.size()), own));
    }
    return std::nullopt;
}

/// Reports all missing files in one error, so that a broken installation can be repaired in one step.
std::optional<BundleError> checkResources(const QString &folder, const QJsonObject &metaData)
{
    const QJsonArray needed =
        metaData.value(QStringLiteral("MetaData")).toObject().value(QStringLiteral("Resources")).toArray();
    QStringList missing;
    for (const QJsonValue name : needed) {
        const QString path = folder + QStringLiteral("/Resources/") + name.toString();
        if (!QFileInfo(path).isFile() || !QFileInfo(path).isReadable())
            missing.append(QStringLiteral("Resources/") + name.toString());
    }
    if (missing.isEmpty())
        return std::nullopt;
    return failure(BundleErrorKind::ResourceMissing, folder,
                   PanelBundleText::tr("missing or unreadable: %1").arg(missing.join(QStringLiteral(", "))));
}

} // namespace

const QString PanelBundle::folderName = QStringLiteral("KVLXDZOptions.bundle");

Result<QString, BundleError> PanelBundle::find(const std::optional<QString> &folder)
{
    const QStringList candidates =
        folder ? QStringList{*folder + u'/' + folderName, *folder} : standardFolders();
    for (const QString &candidate : candidates) {
        if (QFileInfo(candidate).isDir())
            return QDir::cleanPath(QFileInfo(candidate).absoluteFilePath());
    }
    if (folder && QFileInfo::exists(*folder))
        return failure(BundleErrorKind::NotABundle, *folder, PanelBundleText::tr("it is not a folder"));
    if (folder)
        return failure(BundleErrorKind::Missing, *folder, PanelBundleText::tr("there is no such folder"));
    return BundleError{BundleErrorKind::Missing,
                       PanelBundleText::tr("Cannot find the panel bundle; searched %1")
                           .arg(candidates.join(QStringLiteral(", ")))};
}

Result<PanelBundle, BundleError> PanelBundle::load(const QString &folder, const QStringList &languages)
{
    const QString path = libraryPath(folder);
    if (!QFileInfo(path).isFile())
        return failure(BundleErrorKind::NotABundle, folder,
                       PanelBundleText::tr("it has no library %1").arg(QFileInfo(path).fileName()));
    QPluginLoader loader(path);
    const QJsonObject metaData = loader.metaData();
    if (metaData.isEmpty())
        return failure(BundleErrorKind::NotABundle, folder, loader.errorString());
    if (const std::optional<BundleError> error = checkInterface(folder, metaData))
        return *error;
    if (const std::optional<BundleError> error = checkResources(folder, metaData))
        return *error;

    PanelBundle bundle;
    bundle.m_factory = qobject_cast<PDEPlugInFactory *>(loader.instance());
    if (!bundle.m_factory)
        return failure(BundleErrorKind::NotABundle, folder, loader.errorString());
    bundle.m_resources = platform::Bundle::open(folder, languages);
    bundle.m_plugIn = bundle.m_factory->createPlugIn();
    if (!bundle.m_plugIn->initWithBundle(bundle.m_resources.get()))
        return failure(BundleErrorKind::Unusable, folder,
                       PanelBundleText::tr("it does not work on this system"));
    return bundle;
}

} // namespace panels
} // namespace host
