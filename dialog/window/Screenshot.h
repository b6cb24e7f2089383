// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/strip/OutputFiles.h>

#include <QImage>
#include <QString>

class QWidget;

namespace dialog {
inline namespace window {

/// Returns a picture of the window after everything that is drawn and measured in the background is complete.
/// Processes events until then.
QImage completePicture(QWidget &window);

/// Saves a complete picture of the window as a PNG file. An error leaves no incomplete file.
host::Result<void, host::OutputError> saveScreenshot(QWidget &window, const QString &path);

} // namespace window
} // namespace dialog
