// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PanelTexts.h"

#include <rollcutter/rules/CutGroup.h>

#include <QGroupBox>

#include <optional>
#include <vector>

class QButtonGroup;
class QRadioButton;
class QVBoxLayout;

namespace rollcutter {

class IntervalBox;

/// The ways to cut of one group as radio buttons, with a field for the number of labels between two cuts.
class CutButtons : public QGroupBox {
    Q_OBJECT

public:
    /// Buttons for the group, which must outlive the widget.
    CutButtons(const CutGroup &group, const QString &title, const PanelTexts &texts);

    /// Shows the current setting of the group; no button is checked if there is none. The reason why the
    /// number cannot be changed is the tool tip of its field; absent if it can.
    void showChoices(const PrinterOptions &options, const std::optional<QString> &intervalReason);

Q_SIGNALS:
    /// The user has chosen a setting, which consists of these choices.
    void chosen(const PDEChoices &choices);

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
    QButtonGroup *m_buttons;
    std::vector<Button> m_entries;
    /// Null if the printer has no intervals.
    IntervalBox *m_interval = nullptr;
};

} // namespace rollcutter
