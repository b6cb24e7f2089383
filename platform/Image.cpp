// SPDX-License-Identifier: Apache-2.0
#include "Image.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>

namespace platform {

namespace {

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

} // namespace

Image::Image(QString path, QSize size)
    : m_path(std::move(path))
    , m_size(size)
{
}

std::shared_ptr<const Image> Image::initWithContentsOfFile(const QString &path)
{
    const QImageReader reader(path);
    const QSize size = reader.size();
    if (!size.isValid())
        return nullptr;
    return std::shared_ptr<const Image>(new Image(path, size));
}

QString Image::name() const
{
    return QFileInfo(m_path).completeBaseName();
}

QPixmap Image::pixmap(double pixelsPerPoint, const QPalette &palette) const
{
    const QFileInfo file(m_path);
    const QString stem = file.path() + u'/' + file.completeBaseName();
    const QStringList themes =
        isDark(palette) ? QStringList{QStringLiteral("-dark"), QString()} : QStringList{QString()};
    const QStringList densities =
        pixelsPerPoint > 1.0 ? QStringList{QStringLiteral("@2x"), QString()} : QStringList{QString()};
    for (const QString &theme : themes) {
        for (const QString &density : densities) {
            const QString variant = stem + theme + density + u'.' + file.suffix();
            QPixmap pixels;
            if (!QPixmapCache::find(variant, &pixels) && QFileInfo::exists(variant) && pixels.load(variant)) {
                pixels.setDevicePixelRatio(static_cast<double>(pixels.width()) / m_size.width());
                QPixmapCache::insert(variant, pixels);
            }
            if (!pixels.isNull())
                return pixels;
        }
    }
    return {};
}

void Image::drawAtPoint(QPainter &painter, QPointF origin, const QPalette &palette) const
{
    const QPixmap pixels = pixmap(painter.device()->devicePixelRatioF(), palette);
    if (!pixels.isNull())
        painter.drawPixmap(QRectF(origin, QSizeF(m_size)), pixels, QRectF(pixels.rect()));
}

void Image::drawInRect(QPainter &painter, const QRectF &rect, const QPalette &palette) const
{
    const QSizeF fitted = QSizeF(m_size).scaled(rect.size(), Qt::KeepAspectRatio);
    // Pixels as dense as the place has them: reading more takes four times as long.
    const double scale = fitted.width() / m_size.width();
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

} // namespace platform
