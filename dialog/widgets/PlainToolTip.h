// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace dialog {
inline namespace widgets {

/// The text for a tool tip that shows it as it is: Qt takes what looks like HTML for HTML, and titles, PPDs
/// and print servers say whatever they like. Empty for no text.
inline QString plainToolTip(const QString &text)
{
    if (text.isEmpty())
        return {};
    return QStringLiteral("<qt>%1</qt>").arg(text.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>")));
}

} // namespace widgets
} // namespace dialog
