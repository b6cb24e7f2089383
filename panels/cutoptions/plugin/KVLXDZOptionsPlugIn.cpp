// SPDX-License-Identifier: Apache-2.0
#include "KVLXDZOptionsPlugIn.h"

#include <platform/SystemVersion.h>

namespace {

std::optional<bool> &checkedVersion()
{
    static std::optional<bool> recentEnough;
    return recentEnough;
}

} // namespace

KVLXDZOptions17_2PlugIn13_v400_::KVLXDZOptions17_2PlugIn13_v400_(PanelMaker makePanel)
    : m_makePanel(std::move(makePanel))
{
}

bool KVLXDZOptions17_2PlugIn13_v400_::runningOnLeopardOrLater()
{
    if (checkedVersion())
        return *checkedVersion();
    // A query that fails leaves the number of the last system that is too old.
    std::int32_t major = 10;
    std::int32_t minor = 4;
    std::int32_t bugFix = 0;
    Gestalt("sys1", &major);
    Gestalt("sys2", &minor);
    Gestalt("sys3", &bugFix);
    checkedVersion() = major >= 11 || (major == 10 && minor >= 5);
    return *checkedVersion();
}

void KVLXDZOptions17_2PlugIn13_v400_::forgetSystemVersion()
{
    checkedVersion().reset();
}

bool KVLXDZOptions17_2PlugIn13_v400_::initWithBundle(const platform::Bundle *bundle)
{
    if (!runningOnLeopardOrLater())
        return false;
    pluginBundle = bundle;
    return true;
}

std::optional<PDEPanelList>
KVLXDZOptions17_2PlugIn13_v400_::PDEPanelsForType(const QString &type,
                                                  std::shared_ptr<PDEPluginCallback13_v400_> hostInfo)
{
    pdes.emplace();
    if (type != PDEPrintDialogType)
        return pdes;
    const std::shared_ptr<const platform::Bundle> shared =
        pluginBundle ? pluginBundle->shared_from_this() : nullptr;
    if (std::shared_ptr<PDEPanel> panel = m_makePanel(std::move(hostInfo), shared))
        pdes->push_back(std::move(panel));
    if (pdes->empty())
        pdes.reset();
    return pdes;
}
