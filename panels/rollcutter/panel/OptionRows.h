// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <rollcutter/rules/RollRules.h>

#include <QWidget>

#include <functional>
#include <vector>

class QComboBox;

namespace rollcutter {

/// The options of the roll printer that are lists of choices: one labelled combo box each, with the texts of
/// the PPD.
class OptionRows : public QWidget {
    Q_OBJECT

public:
    /// Returns why an option cannot be changed, as a sentence; absent if it can.
    using Reason = std::function<std::optional<QString>(const QString &keyword)>;

    OptionRows(const RollRules &rules, const PrinterOptions &options);

    /// Shows the current choices. The reason is the tool tip of a disabled combo box.
    void showChoices(const PrinterOptions &options, const Reason &reason);

Q_SIGNALS:
    /// The user has chosen this choice of an option.
    void chosen(const PDEChoices &choices);

private:
    struct Row {
        QString keyword;
        QComboBox *box;
    };

    std::vector<Row> m_rows;
};

} // namespace rollcutter
