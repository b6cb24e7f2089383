// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QHash>
#include <QString>

namespace pictures {

/// The colour theme of a picture. Every picture is drawn in both: for windows with dark text on a light
/// background and with light text on a dark background.
enum class Theme { Light, Dark };

/// The colours of a theme in the form "#rrggbb", by the names that the parts use. Both themes have the same
/// names. Colours of the tape and its labels are almost equal, since tape is light in any theme; colours of
/// everything that is drawn on the window differ.
const QHash<QString, QString> &colours(Theme theme);

/// The typical window colour of the theme, as a background for the contact sheet.
QColor windowColour(Theme theme);

} // namespace pictures
