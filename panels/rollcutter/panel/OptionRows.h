// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CutButtons.h"

#include <rollcutter/rules/RollRules.h>

#include <vector>

class QComboBox;
class QFormLayout;

namespace rollcutter {

/// The options of the roll printer that are lists of choices: one labelled combo box each, with the texts of
/// the PPD.
class OptionRows {
public:
    /// Returns why an option cannot be changed, as a sentence; absent if it can.
    using Reason = std::function<std::optional<QString>(const QString &keyword)>;

    /// Rows for the options of the rules. The hook is called with the choice of the option that the user
    /// changes.
    OptionRows(const RollRules &rules, const PrinterOptions &options, const ChoicesHook &chosen);

    /// The rows. Owned by the layout that they are added to.
    QFormLayout *layout() const { return m_layout; }

    /// Shows the current choices. The reason is the tool tip of a disabled combo box.
    void showChoices(const PrinterOptions &options, const Reason &reason);

private:
    struct Row {
        QString keyword;
        QComboBox *box;
    };

    QFormLayout *m_layout;
    std::vector<Row> m_rows;
};

} // namespace rollcutter
