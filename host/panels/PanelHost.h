// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DialogState.h"
#include "PanelGuard.h"
#include "PanelSettings.h"

#include <host/printer/PpdForPanels.h>
#include <protocol/PDEPlugIn.h>

#include <functional>
#include <memory>

namespace host {
inline namespace panels {

/// The callback object of one bundle's panels: it offers the session, settings, paper, printer and PPD of the
/// dialog, and it is the only way in which these panels change a printer option. Each bundle has its own, so
/// that a change is reported to the panels of all other bundles, but not to those of its origin.
class PanelHost : public PDEPluginCallback13_v400_, public OptionListener {
public:
    /// Makes the callback object for panels of the dialog with this state. The state is shared.
    explicit PanelHost(std::shared_ptr<DialogState> state);
    ~PanelHost() override;
    PanelHost(const PanelHost &) = delete;
    PanelHost &operator=(const PanelHost &) = delete;

    /// Sets the panels that were made with this object. Changes from other sources are reported to them as
    /// long as they exist. Does not take part in the ownership of the panels.
    void setPanels(const PDEPanelList &panels);
    /// Sets the guard under which changes are reported to the panels; null, as initially, for none.
    void setGuard(std::shared_ptr<PanelGuard> guard) { m_guard = std::move(guard); }
    /// Restricts the panels to the options with these keywords: other changes that they request are ignored.
    /// Initially, they may change all options.
    void restrictTo(const QStringList &keywords) { m_keywords = keywords; }
    /// Reports a change from another source to these panels.
    void optionChanged(const std::optional<QString> &keyword, const std::optional<QString> &choice) override;

    /// Runs the function, which calls these panels, and returns the changes that they request meanwhile,
    /// without carrying them out: nothing is marked, recorded or reported to other panels, and no hook is
    /// called. Each keyword is listed once, with the choice that was requested last.
    PDEChoices collect(const std::function<void()> &ask);

    /// Sets the function that is called for every change that a panel requests, before it is carried out; may
    /// be empty.
    void setWillChangeHook(std::function<void(const QString &, const std::optional<QString> &)> hook);
    /// Sets the function that is called after a panel's change has been marked, recorded and reported; may be
    /// empty.
    void setDidChangeHook(std::function<void()> hook) { m_didChange = std::move(hook); }
    /// Sets the function that is called when a panel's view has changed its size. If it is empty,
    /// respondsToPanelViewDidResize() returns false: the dialog does not follow the sizes of its panels.
    void setPanelViewDidResizeHook(std::function<void()> hook) { m_didResize = std::move(hook); }

    /// The callback protocol; see PDEPluginCallback13_v400_. All handles are owned by the dialog's state.
    PMPrintSession printSession() const override { return m_state->session(); }
    PMPrintSettings printSettings() const override { return m_state->settings(); }
    PMPageFormat pageFormat() const override { return m_state->pageFormat(); }
    ::PMPrinter PMPrinter() const override { return m_state->printer(); }
    ppd_file_t *ppdFile() const override { return PpdForPanels::handle(m_state->ppd()); }
    void willChangePPDOptionKeyValue(const QString &key, const std::optional<QString> &choice) override;
    bool respondsToPanelViewDidResize() const override { return static_cast<bool>(m_didResize); }
    void panelViewDidResize() override;

private:
    std::shared_ptr<DialogState> m_state;
    std::vector<std::weak_ptr<PDEPanel>> m_panels;
    /// Null without a guard.
    std::shared_ptr<PanelGuard> m_guard;
    /// The keywords of the options that the panels may change; absent if all.
    std::optional<QStringList> m_keywords;
    /// Receives the requested changes during collect(); null otherwise.
    PDEChoices *m_collected = nullptr;
    std::function<void(const QString &, const std::optional<QString> &)> m_willChange;
    std::function<void()> m_didChange;
    std::function<void()> m_didResize;
};

} // namespace panels
} // namespace host
