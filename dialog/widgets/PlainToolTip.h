// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace dialog {
inline namespace widgets {

/// Returns the text escaped for a tool tip that shows it unchanged. Qt interprets a tool tip that looks like
/// HTML as HTML, and the texts of titles, PPDs and print servers are arbitrary. Empty for an empty text.
inline QString plainToolTip(const QString &text)
{
    if (text.isEmpty())
        return {};
    return QStringLiteral("<qt>%1</qt>").arg(text.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>")));
}

} // namespace widgets
} // namespace dialog
