// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <plugin/BasePDE.h>

#include <QLabel>

namespace test_support {

/// The least of panels: the base with a record of which hooks ran.
class TestPanel : public BasePDE13_v400_ {
public:
    static std::shared_ptr<TestPanel> initWithCallback(std::shared_ptr<PDEPluginCallback13_v400_> callback,
                                                       std::shared_ptr<const platform::Bundle> bundle)
    {
        auto panel = std::make_shared<TestPanel>();
        return panel->init(std::move(callback), std::move(bundle)) ? panel : nullptr;
    }

    void initSetTitleTexts() override { hooks.append(QStringLiteral("initSetTitleTexts")); }
    void initUI() override { hooks.append(QStringLiteral("initUI")); }
    void setValuesToKey() override { hooks.append(QStringLiteral("setValuesToKey")); }
    void setPDEItems() override { hooks.append(QStringLiteral("setPDEItems")); }
    void setPDEItems2() override { hooks.append(QStringLiteral("setPDEItems2")); }
    void updateMarkedSelections(ItemTypes items) override
    {
        hooks.append(QStringLiteral("updateMarkedSelections %1").arg(items));
    }
    void awakeFromNib() override { hooks.append(QStringLiteral("awakeFromNib")); }

    QStringList hooks;
    bool outletsConnect = true;

protected:
    bool connectOutlets(QWidget *, QString *error) override
    {
        *error = QStringLiteral("no outlet");
        return outletsConnect;
    }
};

} // namespace test_support
