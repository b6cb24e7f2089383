// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "OptionRows.h"
#include "PanelTexts.h"

#include <rollcutter/rules/RollRules.h>

#include <QWidget>

#include <memory>
#include <vector>

namespace rollcutter {

class RollPreview;

/// The view of the panel: a preview, the ways to cut, and the other options of the roll.
class RollView {
public:
    /// The rules must outlive the view. The PPD's texts are read here once. The hook is called with the
    /// choices that the user makes.
    RollView(const RollRules &rules, const PrinterOptions &options, const PanelTexts &texts,
             const ChoicesHook &chosen);

    /// The widget with all controls. Owned by this object.
    QWidget *widget() const { return m_widget.get(); }

    /// Shows the choices. The reasons explain disabled controls.
    void showChoices(const PrinterOptions &options, const OptionRows::Reason &reason);

private:
    void addButtons(QLayout *layout, const ChoicesHook &chosen);

    const RollRules &m_rules;
    PanelTexts m_texts;
    std::unique_ptr<QWidget> m_widget;
    /// Null if the printer has no option for cuts.
    RollPreview *m_preview = nullptr;
    std::vector<std::unique_ptr<CutButtons>> m_buttons;
    std::unique_ptr<OptionRows> m_rows;
};

} // namespace rollcutter
