// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DialogState.h"
#include "PanelSettings.h"

#include <host/printer/PpdForPanels.h>
#include <protocol/PDEPlugIn.h>

#include <functional>
#include <memory>

namespace host {

/// The callback object that one bundle's panels are given: what they may ask of the dialog, and their
/// one way to change a printer option. There is one for each bundle, so that a change is told to
/// every other bundle's panels and not back to where it came from.
class PanelHost : public PDEPluginCallback13_v400_, public OptionListener {
public:
    /// For panels of the dialog that the state belongs to; shares the state.
    explicit PanelHost(std::shared_ptr<DialogState> state);
    ~PanelHost() override;
    PanelHost(const PanelHost &) = delete;
    PanelHost &operator=(const PanelHost &) = delete;

    /// The panels that were made with this object. They are told of changes from elsewhere as long as
    /// they live; this object does not keep them.
    void setPanels(const PDEPanelList &panels);
    /// Reports a change that was made elsewhere to these panels.
    void optionChanged(const std::optional<QString> &keyword, const std::optional<QString> &choice) override;

    /// Runs the function, which asks these panels something. What they want to change meanwhile is collected
    /// and not carried out: nothing is marked, recorded, or reported to other panels, and no hook is called.
    /// Each keyword once, with the choice that was asked for last.
    PDEChoices collect(const std::function<void()> &ask);

    /// Called for every change that a panel asks for, before it is carried out; may be empty.
    void setWillChangeHook(std::function<void(const QString &, const std::optional<QString> &)> hook);
    /// Called after a panel's change is marked, recorded and told; may be empty.
    void setDidChangeHook(std::function<void()> hook) { m_didChange = std::move(hook); }
    /// Called when a panel's view has changed its size. An empty function stands for a dialog that does
    /// not want to hear of it, and panels are then told so.
    void setPanelViewDidResizeHook(std::function<void()> hook) { m_didResize = std::move(hook); }

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
    /// Where changes are collected; null while they are carried out.
    PDEChoices *m_collected = nullptr;
    std::function<void(const QString &, const std::optional<QString> &)> m_willChange;
    std::function<void()> m_didChange;
    std::function<void()> m_didResize;
};

} // namespace host
