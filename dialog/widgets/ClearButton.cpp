// SPDX-License-Identifier: Apache-2.0
#include "ClearButton.h"

#include <QLineEdit>

namespace dialog {
inline namespace widgets {

void addClearButton(QLineEdit *field)
{
    const auto addWhenNeeded = [field] {
        if (!field->text().isEmpty())
            field->setClearButtonEnabled(true);
    };
    addWhenNeeded();
    QObject::connect(field, &QLineEdit::textChanged, field, addWhenNeeded);
}

} // namespace widgets
} // namespace dialog
