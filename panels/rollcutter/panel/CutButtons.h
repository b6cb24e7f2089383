// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PanelTexts.h"

#include <rollcutter/rules/CutGroup.h>

#include <functional>
#include <optional>
#include <vector>

class QButtonGroup;
class QGroupBox;
class QRadioButton;
class QVBoxLayout;

namespace rollcutter {

class IntervalBox;

/// Called when the user has made these choices.
using ChoicesHook = std::function<void(const PDEChoices &choices)>;

/// The ways to cut of one group as radio buttons, with a field for the number of labels between two cuts. No
/// widget itself: each class of widgets costs time when the bundle is loaded.
class CutButtons {
public:
    /// Buttons for the group, which must outlive the object. The hook is called with the choices of the
    /// setting that the user chooses.
    CutButtons(const CutGroup &group, const QString &title, const PanelTexts &texts, ChoicesHook chosen);

    /// The box with the buttons. Owned by its parent; the layout that it is added to gives it one.
    QGroupBox *box() const { return m_box; }

    /// Shows the current setting of the group; no button is checked if there is none. The reason why the
    /// number cannot be changed is the tool tip of its field; absent if it can.
    void showChoices(const PrinterOptions &options, const std::optional<QString> &intervalReason);

private:
    struct Button {
        QRadioButton *widget;
        std::size_t setting;
    };

    void addButton(QVBoxLayout *layout, std::size_t setting, const PanelTexts &texts);
    IntervalBox *makeInterval(const PanelTexts &texts);
    bool isShownBy(const Button &button, std::size_t setting) const;
    void choose(std::size_t setting);

    const CutGroup &m_group;
    ChoicesHook m_chosen;
    QGroupBox *m_box;
    QButtonGroup *m_buttons;
    std::vector<Button> m_entries;
    /// Null if the printer has no intervals.
    IntervalBox *m_interval = nullptr;
};

} // namespace rollcutter
