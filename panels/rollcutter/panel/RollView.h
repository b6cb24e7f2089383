// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "OptionRows.h"
#include "PanelTexts.h"

#include <rollcutter/rules/RollRules.h>

#include <QWidget>

#include <vector>

namespace rollcutter {

class CutButtons;
class RollPreview;

/// The view of the panel: a preview, the ways to cut, and the other options of the roll.
class RollView : public QWidget {
    Q_OBJECT

public:
    /// The rules must outlive the view. The PPD's texts are read here once.
    RollView(const RollRules &rules, const PrinterOptions &options, const PanelTexts &texts);

    /// Shows the choices. The reasons explain disabled controls.
    void showChoices(const PrinterOptions &options, const OptionRows::Reason &reason);

Q_SIGNALS:
    /// The user has made these choices.
    void chosen(const PDEChoices &choices);

private:
    void addButtons(QLayout *layout);

    const RollRules &m_rules;
    PanelTexts m_texts;
    /// Null if the printer has no option for cuts.
    RollPreview *m_preview = nullptr;
    std::vector<CutButtons *> m_buttons;
    OptionRows *m_rows = nullptr;
};

} // namespace rollcutter
