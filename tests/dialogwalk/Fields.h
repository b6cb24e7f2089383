// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "WalkedDialog.h"

class QComboBox;
class QListWidget;
class QLineEdit;
class QSpinBox;

namespace dialogwalk {

/// The list of papers that is shown.
class PaperRows {
public:
    explicit PaperRows(const WalkedDialog &dialog);

    bool isEmpty() const { return m_names.isEmpty(); }
    QListWidget *list() const { return m_list; }
    /// The PPD's name of the paper that is chosen in the list; absent for a free size.
    std::optional<QByteArray> current() const;
    /// The name of some paper, each kind being as likely: tape, die-cut, address, flag and heat-shrink.
    QByteArray someOfKind(std::uint32_t number) const;
    void click(const QByteArray &name) const;

private:
    QListWidget *m_list = nullptr;
    /// By their row in the list.
    QMap<int, QByteArray> m_names;
};

/// The lists of the page of options: those that are to be seen.
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

/// Pages and copies.
struct PageFields {
    explicit PageFields(const WalkedDialog &dialog);

    QSpinBox *copies;
    QCheckBox *collate;
    QLineEdit *pages;
    QCheckBox *lastFirst;
};

} // namespace dialogwalk
