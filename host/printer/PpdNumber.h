// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/base/Length.h>

#include <QByteArray>
#include <QSizeF>

#include <optional>

namespace host {
inline namespace printer {

/// Returns the number in the form of PPDs and job options, independent of the locale, rounded to four
/// decimals without trailing zeros: "12.5".
QByteArray ppdNumber(double number);

/// Parses a length in the form of PPDs and job options, for instance "12.5mm". A length without a unit is in
/// points; the units are those of the filters of the server: pt, in, ft, cm, mm, m. Absent for all other
/// text.
std::optional<Points> parseLength(const QByteArray &length);

/// Returns the number of millimetres with its unit, in the same form: "12.5mm".
QByteArray ppdLength(Points length);

/// Returns the name of a custom page size, given in points: "Custom.36x50mm".
QByteArray customPaperName(const QSizeF &points);
/// Parses the name of a custom page size, "Custom.WIDTHxLENGTH" with one unit for both as in
/// parseLength(), and returns the size in points. Absent for all other text: libcups would read an unknown
/// unit as points, and filters would print on a paper of that size.
std::optional<QSizeF> customPaperSize(const QByteArray &name);

} // namespace printer
} // namespace host
