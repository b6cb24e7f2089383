// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "WalkedDialog.h"

class QLineEdit;
class QSpinBox;

namespace dialogwalk {

/// Pages and copies.
struct PageFields {
    explicit PageFields(const WalkedDialog &dialog);

    QSpinBox *copies;
    QCheckBox *collate;
    QLineEdit *pages;
    QCheckBox *lastFirst;
};

} // namespace dialogwalk
