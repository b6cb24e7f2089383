// SPDX-License-Identifier: Apache-2.0
#include "PanelSource.h"

#include <QCoreApplication>

namespace host {
inline namespace setup {

namespace {

struct PanelSourceText {
    Q_DECLARE_TR_FUNCTIONS(host::setup::PanelSource)
};

PanelError bundleError(const BundleError &error)
{
    const bool isBroken = error.kind == BundleErrorKind::ResourceMissing;
    return {isBroken ? PanelErrorKind::BrokenBundle : PanelErrorKind::NoPanel, error.message};
}

} // namespace

Result<ClaimedPanels, PanelError> PanelSource::panelsFor(const std::shared_ptr<DialogState> &state) const
{
    const Result<QString, BundleError> found = PanelBundle::find(folder);
    if (!found)
        return bundleError(found.error());
    Result<PanelBundle, BundleError> bundle = PanelBundle::load(found.value(), languages);
    if (!bundle)
        return bundleError(bundle.error());

    ClaimedPanels panels;
    auto host = std::make_shared<PanelHost>(state);
    // A panel sets the size of its view while the view is loaded, if the dialog handles the notification.
    host->setPanelViewDidResizeHook([] {});
    panels.session = std::make_unique<PanelSession>(std::move(bundle).value(), std::move(host));
    panels.keywords = panels.session->handledKeywords();
    PDEPanel *const panel = panels.session->firstPanel();
    if (!panel)
        return PanelError{
            PanelErrorKind::NoPanel,
            PanelSourceText::tr("The panel bundle \"%1\" could not create its panel").arg(found.value())};
    if (panels.keywords.isEmpty())
        return ClaimedPanels();
    if (!panel->panelView())
        return PanelError{
            PanelErrorKind::BrokenBundle,
            PanelSourceText::tr(
                "The panel of the bundle \"%1\" cannot be shown: its layout file cannot be used")
                .arg(found.value())};
    return panels;
}

} // namespace setup
} // namespace host
