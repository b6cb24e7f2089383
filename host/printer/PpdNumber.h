// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QSizeF>

#include <optional>

namespace host {

/// A number as PPDs and jobs have it, whatever the user's language, to four decimals: "12.5".
QByteArray ppdNumber(double number);

/// A length as PPDs and jobs have it, "12.5mm", in points. Without a unit it is in points; the units are
/// those of the server's filters: pt, in, ft, cm, mm, m. Nothing for anything else.
std::optional<double> lengthInPoints(const QByteArray &length);

/// The name of a paper of free size, given in points: "Custom.36x50mm".
QByteArray customPaperName(const QSizeF &points);
/// The size, in points, that the name of a paper of free size says: "Custom.WIDTHxLENGTH", with a unit for
/// both as lengthInPoints() has them. Nothing for anything else: libcups would take any unit that it does not
/// know for points, and filters would print on a paper of that size.
std::optional<QSizeF> customPaperSize(const QByteArray &name);

} // namespace host
