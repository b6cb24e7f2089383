// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QHash>
#include <QString>

namespace pictures {

/// Every picture is drawn twice: for windows with dark text on a light ground and the other way round.
enum class Theme { Light, Dark };

/// The colours of a theme as "#rrggbb" by the names that the parts use. Both themes name the same
/// ones. What lies on tape keeps its colours, as tape is light in any theme; what lies on the
/// window changes with it.
const QHash<QString, QString> &colours(Theme theme);

/// The usual window colour of the theme, for looking at the pictures on it.
QColor windowColour(Theme theme);

} // namespace pictures
