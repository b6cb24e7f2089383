// SPDX-License-Identifier: Apache-2.0
#include "Screenshot.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImageWriter>
#include <QWidget>

namespace dialog {

std::optional<host::OutputError> saveScreenshot(QWidget &window, const QString &path)
{
    // A text that wraps asks for its height when it has its width, and so on.
    for (int pass = 0; pass < 4; ++pass)
        QCoreApplication::processEvents();
    const QFileInfo target(path);
    host::OutputFiles files(target.path());
    files.write(target.fileName(), [&](QIODevice *device) {
        return QImageWriter(device, "png").write(window.grab().toImage());
    });
    return files.commit();
}

} // namespace dialog
