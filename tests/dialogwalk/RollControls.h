// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "WalkedDialog.h"

class QComboBox;
class QRadioButton;
class QSpinBox;

namespace dialogwalk {

/// The controls of the panel for roll printers, as its user sees them.
class RollControls {
public:
    /// The title of the panel's page.
    static QString tab();
    /// The lines that a PPD has more for these options: CutMedia with the finishings of a driverless printer,
    /// or a print mode with intervals.
    static QByteArray finishingLines();
    static QByteArray printModeLines();

    explicit RollControls(const WalkedDialog &dialog)
        : m_dialog(dialog)
    {
    }

    /// Operates one of the controls, whose page is in front; the options that this chooses.
    std::optional<OptionTexts> operate(std::uint32_t number) const;

    /// The first word of each line that the panel has in the summary of a job with these options.
    static QStringList summaryWords(const QByteArray &ppd, const OptionTexts &options);

private:
    OptionTexts press(QRadioButton *button) const;
    std::optional<OptionTexts> step(QSpinBox *interval, bool isUp) const;
    std::optional<OptionTexts> pick(QComboBox *list, int row) const;

    const WalkedDialog &m_dialog;
};

} // namespace dialogwalk
