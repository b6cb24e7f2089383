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
    // A text that wraps asks for its height when it has its width, and so on.
    for (int pass = 0; pass < 4; ++pass)
        QCoreApplication::processEvents();
    QImage picture = window.grab().toImage();
    while (!areComplete<StripPreview>(window) || !areComplete<PagePreview>(window)) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        // Painting asks for what is still missing, even where the screen shows nothing of the window.
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
