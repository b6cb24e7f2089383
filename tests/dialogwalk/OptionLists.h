// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "WalkedDialog.h"

class QComboBox;

namespace dialogwalk {

/// The visible lists of the page of options.
class OptionLists {
public:
    explicit OptionLists(const WalkedDialog &dialog)
        : m_dialog(dialog)
    {
    }

    /// Turns to some group and picks something there; the option with its new choice.
    std::optional<OptionTexts> pick(std::uint32_t number) const;
    /// Steps to the next or previous choice with the arrow keys.
    std::optional<OptionTexts> stepByKey(std::uint32_t number) const;

private:
    void turnToGroup(std::uint32_t number) const;
    std::vector<QComboBox *> lists() const;
    OptionTexts chosenIn(const QComboBox *list) const;

    const WalkedDialog &m_dialog;
};

} // namespace dialogwalk
