// SPDX-License-Identifier: Apache-2.0
#include "RollCutterFactory.h"

#include <rollcutter/panel/RollPanel.h>

namespace rollcutter {

namespace {

/// Makes one panel for each dialog.
class RollCutterPlugIn : public PDEPlugIn {
public:
    bool initWithBundle(const platform::Bundle *bundle) override
    {
        if (bundle)
            m_bundle = bundle->shared_from_this();
        return true;
    }

    std::optional<PDEPanelList> PDEPanelsForType(const QString &type,
                                                 std::shared_ptr<PDEPluginCallback13_v400_> hostInfo) override
    {
        if (type != PDEPrintDialogType)
            return PDEPanelList();
        return PDEPanelList{std::make_shared<RollPanel>(std::move(hostInfo), m_bundle)};
    }

private:
    std::shared_ptr<const platform::Bundle> m_bundle;
};

} // namespace

std::unique_ptr<PDEPlugIn> RollCutterFactory::createPlugIn()
{
    return std::make_unique<RollCutterPlugIn>();
}

} // namespace rollcutter
