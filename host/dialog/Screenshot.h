// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/OutputFiles.h>

#include <QString>

#include <optional>

class QWidget;

namespace dialog {

/// Saves a picture of the window as a PNG file, all of it or nothing. Nothing, or why it cannot be saved.
std::optional<host::OutputError> saveScreenshot(QWidget &window, const QString &path);

} // namespace dialog
