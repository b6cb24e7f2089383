// SPDX-License-Identifier: Apache-2.0
#include "Screenshot.h"

#include "PagePreview.h"
#include "StripPreview.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImageWriter>
#include <QWidget>

#include <algorithm>

namespace dialog {
inline namespace window {

namespace {

template<typename View>
bool areComplete(const QWidget &window)
{
    const auto *const itself = qobject_cast<const View *>(&window);
    return (!itself || itself->isComplete()) &&
           std::ranges::all_of(window.findChildren<const View *>(), &View::isComplete);
}

} // namespace

QImage completePicture(QWidget &window)
{
    // The layout needs several passes: the height of a wrapped text depends on its width.
    for (int pass = 0; pass < 4; ++pass)
        QCoreApplication::processEvents();
    QImage picture = window.grab().toImage();
    while (!areComplete<StripPreview>(window) || !areComplete<PagePreview>(window)) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        // Painting requests the missing pictures, even if the window is not visible on the screen.
        picture = window.grab().toImage();
    }
    return picture;
}

host::Result<void, host::OutputError> saveScreenshot(QWidget &window, const QString &path)
{
    const QImage picture = completePicture(window);
    const QFileInfo target(path);
    host::OutputFiles files(target.path());
    files.write(target.fileName(),
                [&](QIODevice *device) { return QImageWriter(device, "png").write(picture); });
    return files.commit();
}

} // namespace window
} // namespace dialog
