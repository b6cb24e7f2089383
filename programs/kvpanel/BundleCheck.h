// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "BreachList.h"

#include <host/base/Result.h>
#include <host/panels/DialogState.h>
#include <protocol/PDEPlugIn.h>

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <memory>
#include <vector>

namespace host {
inline namespace panels {
class PanelHost;
} // namespace panels
} // namespace host

/// What cannot be opened, so that nothing is checked.
enum class BundleCheckErrorKind {
    Bundle,
    Ppd,
};
using BundleCheckError = host::Failure<BundleCheckErrorKind>;

/// What a check has found.
struct BundleCheckReport {
    /// The breaches of the protocol, one line each; empty if there is none.
    QStringList breaches;
    /// Whether the PPD has an option with one of the bundle's keywords. Otherwise no dialog loads the bundle
    /// for this printer, and the checks of single options had nothing to check.
    bool isForPrinter = false;
};

/// Walks the panels of a bundle through their life with a printer's PPD and reports every breach of the panel
/// protocol.
///
/// It loads the bundle itself instead of using host::PanelBundle, which stops at the first error: each step
/// from the metadata to the destruction of the panels is a check here. Needs a QApplication.
class BundleCheck {
public:
    /// Checks the bundle in the folder with the PPD. Fails if the bundle or the PPD cannot be opened.
    static host::Result<BundleCheckReport, BundleCheckError> run(const QString &folder, const QString &ppd);

private:
    BundleCheck(QString folder, host::PpdFile ppd);

    bool checkInterface(const QString &identifier);
    void checkMetadata(const QJsonObject &metadata);
    void checkLibrary(PDEPlugInFactory *factory, const QString &error);
    void checkPanels(PDEPlugInFactory &factory, PDEPlugIn &plugIn);
    PDEPanelList makePanels(PDEPlugIn &plugIn, const std::shared_ptr<host::PanelHost> &host);
    void checkPanel(PDEPanel &panel, PDEPlugInFactory &factory, const std::shared_ptr<host::PanelHost> &host);

    QString m_folder;
    BreachList m_breaches;
    std::shared_ptr<host::DialogState> m_dialog;
    /// "Keywords" of the metadata.
    QStringList m_keywords;
    /// The panels and their views, to see whether they are destroyed in the end.
    std::vector<std::weak_ptr<PDEPanel>> m_panels;
    std::vector<QPointer<QWidget>> m_views;
};
