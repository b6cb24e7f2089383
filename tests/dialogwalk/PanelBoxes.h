// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "StripOracle.h"

#include <QCheckBox>

namespace platform {
inline namespace controls {
class PopUpButton;
class Stepper;
} // namespace controls
} // namespace platform

class QLineEdit;

namespace dialogwalk {

/// A switch of the panel: the option that its box stands for.
struct PanelSwitch {
    const char *box;
    const char *keyword;
};

/// The printer's cut panel as its user sees it: boxes, count and ready-made combinations.
class PanelBoxes {
public:
    /// The panel within the window; isShown() is false when there is none.
    explicit PanelBoxes(const QWidget *window);

    bool isShown() const { return m_count != nullptr; }
    /// The boxes that the printer has, by their place from top to bottom.
    std::vector<QCheckBox *> boxes() const;
    QCheckBox *box(const char *name) const;
    platform::PopUpButton *presets() const { return m_presets; }
    platform::Stepper *stepper() const { return m_stepper; }
    /// Hidden when the printer does not count labels.
    QLineEdit *count() const { return m_count; }
    bool hasCount() const;

    /// The option that the box sets; null for the box of the count where automatic cutting has its own box.
    static const char *keywordOf(const PanelBoxes &panel, const QCheckBox *box);
    /// The options of the job as boxes and count show them. Special tape is not cut, regardless of its boxes.
    OptionTexts saved() const;
    /// The same without the rule of special tape.
    OptionTexts chosen() const;
    /// What a ready-made combination makes of the boxes that there are.
    OptionTexts ofPreset(int tag) const;

private:
    const QWidget *m_window;
    platform::PopUpButton *m_presets = nullptr;
    platform::Stepper *m_stepper = nullptr;
    QLineEdit *m_count = nullptr;
};

/// What special tape makes of the other choices: off are those that would cut or mark it.
OptionTexts withSpecialTape(OptionTexts chosen);

} // namespace dialogwalk
