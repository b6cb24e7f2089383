// SPDX-License-Identifier: Apache-2.0
#include "BundleCheck.h"

#include "PanelChecks.h"
#include "PanelTrial.h"

#include <host/panels/PanelHost.h>
#include <platform/Bundle.h>
#include <platform/NotificationCenter.h>

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QPluginLoader>

#include <algorithm>

namespace {

BundleCheckError noBundle(const QString &folder, const QString &reason)
{
    return {BundleCheckErrorKind::Bundle,
            QStringLiteral("Cannot open the panel bundle \"%1\": %2").arg(folder, reason)};
}

/// The state of a dialog for the printer as it is when the dialog opens.
std::shared_ptr<host::DialogState> dialogFor(host::PpdFile ppd)
{
    ppd.markDefaults();
    const std::optional<host::PpdPaper> paper = ppd.markedPaper();
    auto dialog = std::make_shared<host::DialogState>(std::move(ppd));
    if (paper)
        dialog->setPaper(
            platform::Paper{.name = QString::fromUtf8(paper->name), .height = paper->size.height()});
    return dialog;
}

} // namespace

BundleCheck::BundleCheck(QString folder, host::PpdFile ppd)
    : m_folder(std::move(folder))
    , m_dialog(dialogFor(std::move(ppd)))
{
}

host::Result<BundleCheckReport, BundleCheckError> BundleCheck::run(const QString &folder, const QString &ppd)
{
    auto opened = host::PpdFile::open(ppd);
    if (!opened)
        return BundleCheckError{BundleCheckErrorKind::Ppd, opened.error().message};
    const QFileInfo bundle(QDir::cleanPath(QFileInfo(folder).absoluteFilePath()));
    if (!bundle.isDir())
        return noBundle(folder, QStringLiteral("there is no such folder"));
    const QString library = bundle.completeBaseName() + QStringLiteral(".so");
    QPluginLoader loader(bundle.filePath() + u'/' + library);
    if (!QFileInfo(loader.fileName()).isFile())
        return noBundle(folder, QStringLiteral("it has no library %1").arg(library));
    loader.setLoadHints(loader.loadHints() | QLibrary::ResolveAllSymbolsHint);
    const QJsonObject metadata = loader.metaData();
    if (metadata.isEmpty())
        return noBundle(folder, loader.errorString());

    BundleCheck check(bundle.filePath(), std::move(opened).value());
    check.m_breaches.setCall(QStringLiteral("metadata"));
    check.checkMetadata(metadata.value(QStringLiteral("MetaData")).toObject());
    // A library for another version of the interface is not loaded, as in a dialog.
    if (check.checkInterface(metadata.value(QStringLiteral("IID")).toString())) {
        QObject *const factory = loader.instance();
        check.checkLibrary(qobject_cast<PDEPlugInFactory *>(factory), loader.errorString());
    }
    const auto isOfPrinter = [&](const QString &keyword) { return check.m_dialog->ppd().hasOption(keyword); };
    return BundleCheckReport{check.m_breaches.lines(), std::ranges::any_of(check.m_keywords, isOfPrinter)};
}

bool BundleCheck::checkInterface(const QString &identifier)
{
    const QString expected = QStringLiteral(PDEPlugInFactory_iid);
    if (identifier != expected)
        m_breaches.report(QStringLiteral("the interface \"%1\"").arg(expected),
                          QStringLiteral("the IID of the library is \"%1\"").arg(identifier));
    return identifier == expected;
}

void BundleCheck::checkMetadata(const QJsonObject &metadata)
{
    const QJsonValue keywords = metadata.value(QStringLiteral("Keywords"));
    for (const QJsonValue keyword : keywords.toArray()) {
        if (!keyword.isString())
            m_breaches.report(QStringLiteral("texts in \"Keywords\""), QStringLiteral("an element is none"));
        m_keywords.append(keyword.toString());
    }
    if (m_keywords.isEmpty())
        m_breaches.report(QStringLiteral("the list \"Keywords\" of PPD keywords"),
                          keywords.isUndefined() ? QStringLiteral("there is none")
                                                 : QStringLiteral("it is not a list or empty"));
    for (const QJsonValue name : metadata.value(QStringLiteral("Resources")).toArray()) {
        const QFileInfo file(m_folder + QStringLiteral("/Resources/") + name.toString());
        if (!file.isFile() || !file.isReadable())
            m_breaches.report(QStringLiteral("the files of \"Resources\""),
                              QStringLiteral("\"%1\" cannot be read").arg(name.toString()));
    }
}

void BundleCheck::checkLibrary(PDEPlugInFactory *factory, const QString &error)
{
    m_breaches.setCall(QStringLiteral("loading of the library"));
    if (!factory) {
        m_breaches.report(QStringLiteral("an object with the interface PDEPlugInFactory"),
                          QStringLiteral("there is none: %1").arg(error));
        return;
    }
    const std::size_t observers = platform::NotificationCenter::defaultCenter().observerCount();
    const std::shared_ptr<const platform::Bundle> resources =
        platform::Bundle::open(m_folder, {QStringLiteral("en")});
    m_breaches.setCall(QStringLiteral("createPlugIn"));
    std::unique_ptr<PDEPlugIn> plugIn;
    if (!m_breaches.guard([&] { plugIn = factory->createPlugIn(); }))
        return;
    if (!plugIn) {
        m_breaches.report(QStringLiteral("a principal object"), QStringLiteral("it returns null"));
        return;
    }
    m_breaches.setCall(QStringLiteral("initWithBundle"));
    bool isUsable = true;
    if (m_breaches.guard([&] { isUsable = plugIn->initWithBundle(resources.get()); }) && isUsable)
        checkPanels(*factory, *plugIn);
    if (!isUsable)
        m_breaches.report(QStringLiteral("a bundle that works on this system"),
                          QStringLiteral("it returns false"));

    m_breaches.setCall(QStringLiteral("destruction"));
    plugIn.reset();
    const bool isPanelLeft =
        std::ranges::any_of(m_panels, [](const auto &panel) { return !panel.expired(); });
    if (isPanelLeft)
        m_breaches.report(QStringLiteral("that the panels are destroyed with the principal object"),
                          QStringLiteral("a panel is left"));
    if (!isPanelLeft && std::ranges::any_of(m_views, [](const auto &view) { return !view.isNull(); }))
        m_breaches.report(QStringLiteral("that a panel destroys its view"), QStringLiteral("a view is left"));
    if (platform::NotificationCenter::defaultCenter().observerCount() > observers)
        m_breaches.report(QStringLiteral("that a panel removes its observers of notifications"),
                          QStringLiteral("an observer is left"));
}

void BundleCheck::checkPanels(PDEPlugInFactory &factory, PDEPlugIn &plugIn)
{
    const auto host = std::make_shared<host::PanelHost>(m_dialog);
    host->setPanelViewDidResizeHook([] {});
    const PDEPanelList panels = makePanels(plugIn, host);
    host->setPanels(panels);
    for (const std::shared_ptr<PDEPanel> &panel : panels) {
        m_panels.push_back(panel);
        checkPanel(*panel, factory, host);
    }
}

PDEPanelList BundleCheck::makePanels(PDEPlugIn &plugIn, const std::shared_ptr<host::PanelHost> &host)
{
    m_breaches.setCall(QStringLiteral("PDEPanelsForType"));
    std::optional<PDEPanelList> panels;
    m_breaches.guard([&] { panels = plugIn.PDEPanelsForType(QStringLiteral("an unknown type"), host); });
    if (!panels || !panels->empty())
        m_breaches.report(QStringLiteral("an empty list for an unknown type"),
                          panels ? QStringLiteral("there are panels") : QStringLiteral("there is no list"));
    panels.reset();
    if (!m_breaches.guard([&] { panels = plugIn.PDEPanelsForType(PDEPrintDialogType, host); }))
        return {};
    if (!panels || panels->empty())
        m_breaches.report(QStringLiteral("panels for the print dialog"), QStringLiteral("there are none"));
    if (panels && std::erase(*panels, nullptr) > 0)
        m_breaches.report(QStringLiteral("panels in the list"), QStringLiteral("one is null"));
    return panels.value_or(PDEPanelList());
}

void BundleCheck::checkPanel(PDEPanel &panel, PDEPlugInFactory &factory,
                             const std::shared_ptr<host::PanelHost> &host)
{
    PanelTrial trial(panel, factory, m_dialog, host, m_keywords, m_breaches);
    for (const panel_checks::PanelCheck &check : panel_checks::all()) {
        if (check.needsView && !trial.view())
            continue;
        m_breaches.setCall(QString::fromLatin1(check.call));
        check.run(trial);
        if (trial.view() && !std::ranges::count(m_views, QPointer<QWidget>(trial.view())))
            m_views.emplace_back(trial.view());
    }
}
