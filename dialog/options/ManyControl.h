// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "OptionControl.h"

class QCheckBox;
class QGroupBox;

namespace dialog {
inline namespace options {

/// A check box for each choice of an option that may have several at once. A choice that means "none of them"
/// has no box: it is chosen when no other is.
class ManyControl : public OptionControl {
    Q_OBJECT

public:
    ManyControl(const host::PpdOption &option, QWidget *parent);

    void showMarked(const host::PpdOptions &options) override;

protected:
    QList<QWidget *> spoken() const override;

private:
    QByteArray value() const;

    std::vector<std::pair<QByteArray, QCheckBox *>> m_boxes;
    /// Empty when the PPD has no word for it.
    QByteArray m_none;
    QGroupBox *m_frame;
};

} // namespace options
} // namespace dialog
