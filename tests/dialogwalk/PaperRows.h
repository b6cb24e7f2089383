// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "WalkedDialog.h"

class QListWidget;

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

} // namespace dialogwalk
