// SPDX-License-Identifier: Apache-2.0
#include "Image.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QPainter>
#include <QPalette>

#include <sys/stat.h>

#include <algorithm>

namespace platform {
inline namespace images {

namespace {

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

/// Distinguishes a file from one that replaces it; all zero if there is no file.
struct FileIdentity {
    dev_t device = 0;
    ino_t node = 0;
    off_t size = 0;
    std::int64_t changedSeconds = 0;
    std::int64_t changedNanoseconds = 0;

    bool operator==(const FileIdentity &) const = default;
};

FileIdentity identityOf(const QString &path)
{
    struct stat found = {};
    if (::stat(QFile::encodeName(path).constData(), &found) != 0)
        return {};
    return {found.st_dev, found.st_ino, found.st_size, found.st_ctim.tv_sec, found.st_ctim.tv_nsec};
}

/// A picture that may be in use, and the identities of the files that it was read from.
struct Shared {
    std::array<FileIdentity, 4> files;
    std::weak_ptr<const Image> image;
};

/// The pictures in use by path. The pop-up's items and the preview show the same pictures.
QHash<QString, Shared> &sharedImages()
{
    static QHash<QString, Shared> images;
    return images;
}

} // namespace

Image::Image(QString name, const Paths &paths)
    : m_name(std::move(name))
{
    for (std::size_t index = 0; index < variantCount; ++index)
        m_variants[index] = ImageVariant(paths[index]);
}

std::shared_ptr<const Image> Image::initWithContentsOfFile(const QString &path)
{
    const QFileInfo file(path);
    const QString stem = file.path() + u'/' + file.completeBaseName();
    Paths paths;
    paths[slot(Theme::Light, Density::Single)] = path;
    paths[slot(Theme::Light, Density::Double)] = stem + QStringLiteral("@2x.") + file.suffix();
    paths[slot(Theme::Dark, Density::Single)] = stem + QStringLiteral("-dark.") + file.suffix();
    paths[slot(Theme::Dark, Density::Double)] = stem + QStringLiteral("-dark@2x.") + file.suffix();

    std::array<FileIdentity, variantCount> files;
    std::ranges::transform(paths, files.begin(), identityOf);
    const Shared known = sharedImages().value(path);
    if (std::shared_ptr<const Image> inUse = known.image.lock(); inUse && known.files == files)
        return inUse;
    std::shared_ptr<const Image> image(new Image(file.completeBaseName(), paths));
    if (image->size().isEmpty())
        return nullptr;
    sharedImages().removeIf([](const auto &entry) { return entry->image.expired(); });
    sharedImages().insert(path, {files, image});
    return image;
}

std::size_t Image::slot(Theme theme, Density density)
{
    return (theme == Theme::Dark ? 2U : 0U) + (density == Density::Double ? 1U : 0U);
}

QPixmap Image::pixmap(double pixelsPerPoint, const QPalette &palette) const
{
    const Density wanted = pixelsPerPoint > 1.0 ? Density::Double : Density::Single;
    for (const Theme theme : {Theme::Dark, Theme::Light}) {
        if (theme == Theme::Dark && !isDark(palette))
            continue;
        for (const Density density : {Density::Double, Density::Single}) {
            if (density == Density::Double && wanted == Density::Single)
                continue;
            if (const QPixmap &pixels = variant(theme, density).pixmap(); !pixels.isNull())
                return pixels;
        }
    }
    return {};
}

void Image::drawAtPoint(QPainter &painter, QPointF origin, const QPalette &palette) const
{
    const QPixmap pixels = pixmap(painter.device()->devicePixelRatioF(), palette);
    if (!pixels.isNull())
        painter.drawPixmap(QRectF(origin, QSizeF(size())), pixels, QRectF(pixels.rect()));
}

void Image::drawInRect(QPainter &painter, const QRectF &rect, const QPalette &palette) const
{
    const QSizeF fitted = QSizeF(size()).scaled(rect.size(), Qt::KeepAspectRatio);
    // The variant has the resolution of the target: reading the denser one takes four times as long.
    const double scale = fitted.width() / size().width();
    const QPixmap pixels = pixmap(scale * painter.device()->devicePixelRatioF(), palette);
    if (pixels.isNull())
        return;
    QRectF target(QPointF(), fitted);
    target.moveCenter(rect.center());
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(target, pixels, QRectF(pixels.rect()));
    painter.restore();
}

} // namespace images
} // namespace platform
