// SPDX-License-Identifier: Apache-2.0
#pragma once

class QLineEdit;

namespace textentry {

/// Lets layout files use what this folder offers. Called once by the bundle, before it loads a layout.
///
/// A layout file then names "PDETextField13_v400_" as a class of text field, and gives any text field a
/// formatter by dynamic properties:
///
///     formatterStyle              number, see TextStyle
///     formatterMaxLength          number, bytes in the system encoding
///     formatterMaxValue           number
///     formatterMinValue           number
///     formatterInvalidCharacters  string list
///     formatterFormat             string
///
/// One of them is enough; the others then have the values of a formatter that takes any text.
void registerWithLayoutLoader();

/// Attaches a formatter to the field if it has one of the properties. A property of a wrong type is
/// told in the log and passed over.
void attachFormatterFromProperties(QLineEdit *field);

} // namespace textentry
