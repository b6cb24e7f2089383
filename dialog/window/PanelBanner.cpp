// SPDX-License-Identifier: Apache-2.0
#include "PanelBanner.h"

#include <algorithm>

namespace dialog {
inline namespace window {

namespace {

bool isInterrupted(const host::BundleError &error)
{
    return error.kind == host::BundleErrorKind::Interrupted;
}

} // namespace

PanelBanner::PanelBanner(host::SetupKeeper &keeper, QWidget *parent)
    : Banner(parent)
    , m_keeper(keeper)
{
    // Loading the panels replaces the pages of the dialog, so the click ends first.
    connect(this, &Banner::remedyClicked, this, &PanelBanner::retry, Qt::QueuedConnection);
}

void PanelBanner::showSetup()
{
    const host::PrinterSetup *const setup = m_keeper.setup();
    const std::vector<host::BundleError> errors =
        setup ? setup->panelErrors() : std::vector<host::BundleError>();
    QStringList messages;
    if (!errors.empty())
        messages.append(tr("The printer's options are listed on the page \"Options\"."));
    for (const host::BundleError &error : errors)
        messages.insert(messages.size() - 1, error.message);
    if (setup)
        messages += setup->panelNotices();
    setMessage(messages.join(u' '),
               std::ranges::any_of(errors, isInterrupted) ? tr("Load It Again") : QString());
}

void PanelBanner::retry()
{
    const host::PrinterSetup *const setup = m_keeper.setup();
    for (const host::BundleError &error : setup ? setup->panelErrors() : std::vector<host::BundleError>()) {
        if (isInterrupted(error))
            host::PanelCallRecord::forget(error.folder);
    }
    m_keeper.reloadPanels();
}

} // namespace window
} // namespace dialog
