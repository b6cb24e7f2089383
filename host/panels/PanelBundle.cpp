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

const QString bundleEnding = QStringLiteral(".bundle");

QStringList standardFolders(const QString &bundle)
{
    const QDir programs(QCoreApplication::applicationDirPath());
    return {programs.filePath(bundle),
            QDir::cleanPath(programs.filePath(QStringLiteral(KV_INSTALLED_BUNDLES))) + u'/' + bundle};
}

QString libraryPath(const QString &folder)
{
    return folder + u'/' + QFileInfo(folder).completeBaseName() + QStringLiteral(".so");
}

QStringList textList(const QJsonObject &object, const QString &name)
{
    QStringList texts;
    for (const QJsonValue each : object.value(name).toArray())
        texts.append(each.toString());
    return texts;
}

/// Checks in the metadata of the library that it implements this host's version of the panel interface.
std::optional<BundleError> checkInterface(const BundleDescription &bundle)
{
    if (!bundle.otherVersion)
        return std::nullopt;
    const QString own =
        QStringLiteral(PDEPlugInFactory_iid).mid(QLatin1String(PDEPlugInFactory_iid_stem).size());
    return PanelBundle::error(
        BundleErrorKind::WrongInterfaceVersion, bundle.folder,
        PanelBundleText::tr(
            "it was made for version %1 of the panel interface, and this program has version %2")
            .arg(*bundle.otherVersion, own));
}

/// Reports all missing files in one error, so that a broken installation can be repaired in one step.
std::optional<BundleError> checkResources(const BundleDescription &bundle)
{
    QStringList missing;
    for (const QString &name : bundle.resources) {
        const QString path = bundle.folder + QStringLiteral("/Resources/") + name;
        if (!QFileInfo(path).isFile() || !QFileInfo(path).isReadable())
            missing.append(QStringLiteral("Resources/") + name);
    }
    if (missing.isEmpty())
        return std::nullopt;
    return PanelBundle::error(
        BundleErrorKind::ResourceMissing, bundle.folder,
        PanelBundleText::tr("missing or unreadable: %1").arg(missing.join(QStringLiteral(", "))));
}

} // namespace

BundleError PanelBundle::error(BundleErrorKind kind, const QString &folder, const QString &reason)
{
    return {{kind, PanelBundleText::tr("Cannot use the panel bundle \"%1\": %2").arg(folder, reason)},
            folder};
}

Result<QString, BundleError> PanelBundle::find(const QString &name, const std::optional<QString> &folder)
{
    const QString bundle = name + bundleEnding;
    const QStringList candidates =
        folder ? QStringList{*folder + u'/' + bundle, *folder} : standardFolders(bundle);
    for (const QString &candidate : candidates) {
        if (QFileInfo(candidate).isDir())
            return QDir::cleanPath(QFileInfo(candidate).absoluteFilePath());
    }
    if (folder && QFileInfo::exists(*folder))
        return error(BundleErrorKind::NotABundle, *folder, PanelBundleText::tr("it is not a folder"));
    if (folder)
        return error(BundleErrorKind::Missing, *folder, PanelBundleText::tr("there is no such folder"));
    return BundleError{
        {BundleErrorKind::Missing, PanelBundleText::tr("Cannot find the panel bundle; searched %1")
                                       .arg(candidates.join(QStringLiteral(", ")))},
        QString()};
}

Result<BundleDescription, BundleError> PanelBundle::describe(const QString &folder)
{
    const QString path = libraryPath(folder);
    if (!QFileInfo(path).isFile())
        return error(BundleErrorKind::NotABundle, folder,
                     PanelBundleText::tr("it has no library %1").arg(QFileInfo(path).fileName()));
    const QPluginLoader loader(path);
    const QJsonObject metaData = loader.metaData();
    if (metaData.isEmpty())
        return error(BundleErrorKind::NotABundle, folder, loader.errorString());
    const QString interface = metaData.value(QStringLiteral("IID")).toString();
    const QString stem = QStringLiteral(PDEPlugInFactory_iid_stem);
    if (!interface.startsWith(stem))
        return error(BundleErrorKind::NotABundle, folder,
                     PanelBundleText::tr("its library contains no panels"));
    const QJsonObject own = metaData.value(QStringLiteral("MetaData")).toObject();
    BundleDescription bundle{folder, QFileInfo(folder).completeBaseName(),
                             textList(own, QStringLiteral("Keywords"))};
    if (interface != QStringLiteral(PDEPlugInFactory_iid))
        bundle.otherVersion = interface.mid(stem.size());
    bundle.resources = textList(own, QStringLiteral("Resources"));
    return bundle;
}

Result<PanelBundle, BundleError> PanelBundle::load(const QString &folder, const QStringList &languages)
{
    const Result<BundleDescription, BundleError> described = describe(folder);
    if (!described)
        return described.error();
    return load(described.value(), languages);
}

Result<PanelBundle, BundleError> PanelBundle::load(const BundleDescription &description,
                                                   const QStringList &languages)
{
    if (const std::optional<BundleError> error = checkInterface(description))
        return *error;
    if (const std::optional<BundleError> error = checkResources(description))
        return *error;

    const QString &folder = description.folder;
    QPluginLoader loader(libraryPath(folder));
    // A function that no library has is an error now instead of the end of the program when it is called.
    loader.setLoadHints(loader.loadHints() | QLibrary::ResolveAllSymbolsHint);
    PanelBundle bundle;
    bundle.m_factory = qobject_cast<PDEPlugInFactory *>(loader.instance());
    if (!bundle.m_factory)
        return error(BundleErrorKind::NotABundle, folder, loader.errorString());
    bundle.m_resources = platform::Bundle::open(folder, languages);
    bundle.m_plugIn = bundle.m_factory->createPlugIn();
    if (!bundle.m_plugIn->initWithBundle(bundle.m_resources.get()))
        return error(BundleErrorKind::Unusable, folder,
                     PanelBundleText::tr("it does not work on this system"));
    return bundle;
}

} // namespace panels
} // namespace host
