// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class QWidget;

namespace platform {
inline namespace controls {

/// A message that the user must close before the program continues.
struct Alert {
    /// The message, its explanation, and the title of the only button.
    QString messageText;
    QString informativeText;
    QString buttonTitle;

    /// Shows the alert above the window of the given widget, or above the active window if above is null.
    /// Modal: the main thread waits until the user has closed the alert.
    void runModal(QWidget *above) const;
};

} // namespace controls
} // namespace platform
