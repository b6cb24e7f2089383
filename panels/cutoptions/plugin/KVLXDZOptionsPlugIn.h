// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <protocol/PDEPlugIn.h>

#include <functional>

/// The bundle's principal object: checks once that the system is recent enough, remembers the
/// bundle, and makes the cut-options panel when a print dialog asks for panels.
class KVLXDZOptions17_2PlugIn13_v400_ : public PDEPlugIn {
public:
    /// Makes the panel for one dialog; null when the panel refuses.
    using PanelMaker = std::function<std::shared_ptr<PDEPanel>(std::shared_ptr<PDEPluginCallback13_v400_>,
                                                               std::shared_ptr<const platform::Bundle>)>;

    /// Creates the principal object with the function that makes its panels.
    explicit KVLXDZOptions17_2PlugIn13_v400_(PanelMaker makePanel);

    /// Whether the system's version is 10.5 or later. Asked of the system once per process.
    static bool runningOnLeopardOrLater();
    /// Forgets the answer, so that the next question asks the system again.
    static void forgetSystemVersion();

    bool initWithBundle(const platform::Bundle *bundle) override;
    std::optional<PDEPanelList>
    PDEPanelsForType(const QString &type, std::shared_ptr<PDEPluginCallback13_v400_> hostInfo) override;

    /// The bundle that initWithBundle() was given, borrowed from the host; null before and when it refused.
    const platform::Bundle *bundle() const { return pluginBundle; }

private:
    PanelMaker m_makePanel;
    const platform::Bundle *pluginBundle = nullptr;
    std::optional<PDEPanelList> pdes;
};
