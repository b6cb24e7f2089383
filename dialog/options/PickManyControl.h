// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "OptionControl.h"

class QCheckBox;
class QGroupBox;

namespace dialog {
inline namespace options {

/// A check box for each choice of a PickMany option. The choice that means "none" has no check box: it is
/// chosen when no box is checked.
class PickManyControl : public OptionControl {
    Q_OBJECT

public:
    /// Creates the check boxes, all unchecked; showMarked() checks them.
    PickManyControl(const host::PpdOption &option, QWidget *parent);

    void showMarked(const host::PpdOptions &options) override;

protected:
    QList<QWidget *> spoken() const override;

private:
    QByteArray value() const;

    std::vector<std::pair<QByteArray, QCheckBox *>> m_boxes;
    /// The name of the choice that means "none"; absent if the PPD does not have one.
    std::optional<QByteArray> m_none;
    QGroupBox *m_frame;
};

} // namespace options
} // namespace dialog
