// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/strip/OutputFiles.h>

#include <QImage>
#include <QString>

class QWidget;

namespace dialog {
inline namespace window {

/// A picture of the window as it looks when all that is drawn and measured in the background is done; returns
/// then, and handles events meanwhile.
QImage completePicture(QWidget &window);

/// Saves a complete picture of the window as a PNG file. An error leaves no incomplete file.
host::Result<void, host::OutputError> saveScreenshot(QWidget &window, const QString &path);

} // namespace window
} // namespace dialog
