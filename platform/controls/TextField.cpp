// SPDX-License-Identifier: Apache-2.0
#include "TextField.h"

namespace platform {
inline namespace controls {

TextField::TextField(QWidget *parent)
    : QLineEdit(parent)
{
}

void TextField::enterText(const QString &text)
{
    if (!isEnabled() || isReadOnly())
        return;
    selectAll();
    if (text.isEmpty())
        del();
    else
        insert(text);
}

} // namespace controls
} // namespace platform
