// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class QWidget;

namespace platform {
inline namespace controls {

/// A message that must be read before the work goes on.
struct Alert {
    QString messageText;
    QString informativeText;
    QString buttonTitle;

    /// Shows the alert above the window of the given widget (null: above the active window) and
    /// returns when the user has closed it. Modal: the main thread waits.
    void runModal(QWidget *above) const;
};

} // namespace controls
} // namespace platform
