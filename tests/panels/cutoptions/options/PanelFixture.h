// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <options/OptionPDE.h>
#include <tests/support/PpdBuilder.h>
#include <tests/support/TestDialog.h>

#include <gtest/gtest.h>

#include <memory>

namespace test_support {

/// A cut-options panel in a test dialog, with the resources of the bundle as it was built.
class PanelTest : public testing::Test {
protected:
    using Change = TestDialog::Change;

    static std::shared_ptr<const platform::Bundle> bundle()
    {
        static const auto opened = platform::Bundle::open(
            QStringLiteral(KV_BINARY_DIR "/bin/KVLXDZOptions.bundle"), {QStringLiteral("en")});
        return opened;
    }

    /// A fresh dialog and panel for the printer. The paper is one that the PPD lists and no rule speaks of.
    void open(const PpdBuilder &builder, const char *paper = "24mm")
    {
        openWith(std::make_shared<TestDialog>(builder.openMarked()), paper);
    }

    void openWith(std::shared_ptr<TestDialog> printer, const char *paper = "24mm")
    {
        panel.reset();
        dialog = std::move(printer);
        dialog->setPaper(QLatin1String(paper));
        panel = OptionPDE13_v400_::initWithCallback(dialog, bundle());
        ASSERT_TRUE(panel);
    }

    /// As open(), with the view loaded and the panel shown and restored, as a dialog does.
    void show(const PpdBuilder &builder, const char *paper = "24mm")
    {
        open(builder, paper);
        showPanel();
    }

    void showPanel()
    {
        ASSERT_TRUE(panel->panelView());
        panel->restoreValuesAndReturnError(nullptr);
        panel->willShow();
        dialog->changes.clear();
    }

    /// The title of the row's selection, and of the cut-every box's; absent without a selection.
    std::optional<QString> selected(OptionKind kind) const { return titleOf(panel->selection(kind)); }
    std::optional<QString> cutEverySelected() const { return titleOf(panel->cutEveryAutoCutSelection()); }
    static std::optional<QString> titleOf(const PDEChoice *choice)
    {
        return choice ? choice->ppdTitle() : std::nullopt;
    }

    QCheckBox *box(OptionKind kind) const { return panel->checkBox(kind); }
    static bool isEnabled(const QWidget *control) { return control->isEnabledTo(control->parentWidget()); }
    bool isEnabled(OptionKind kind) const { return isEnabled(box(kind)); }

    static PpdBuilder everything() { return PpdBuilder().autoCutObjHidden().allOptions(); }

    static std::vector<Change> changes(std::initializer_list<std::pair<const char *, const char *>> pairs)
    {
        std::vector<Change> list;
        for (const auto &[keyword, choice] : pairs)
            list.emplace_back(QLatin1String(keyword), QLatin1String(choice));
        return list;
    }

    std::shared_ptr<TestDialog> dialog;
    std::shared_ptr<OptionPDE13_v400_> panel;
};

} // namespace test_support
