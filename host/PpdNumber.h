// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QSizeF>

namespace host {

/// A number as PPDs and jobs have it, whatever the user's language, to four decimals: "12.5".
QByteArray ppdNumber(double number);

/// The name of a paper of free size, given in points: "Custom.36x50mm".
QByteArray customPaperName(const QSizeF &points);

} // namespace host
