// SPDX-License-Identifier: Apache-2.0
#include "CutPlugIn.h"

#include "CutPanel.h"

namespace {

class CutPlugIn : public PDEPlugIn {
public:
    /// This panel has no resources, so it does not keep the bundle.
    bool initWithBundle(const platform::Bundle *) override { return true; }
    std::optional<PDEPanelList> PDEPanelsForType(const QString &type,
                                                 std::shared_ptr<PDEPluginCallback13_v400_> dialog) override
    {
        if (type != PDEPrintDialogType)
            return PDEPanelList();
        return PDEPanelList{std::make_shared<CutPanel>(std::move(dialog))};
    }
};

} // namespace

std::unique_ptr<PDEPlugIn> CutPlugInFactory::createPlugIn()
{
    return std::make_unique<CutPlugIn>();
}
