// SPDX-License-Identifier: Apache-2.0
#include "Image.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QIconEngine>
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

class ImageIconEngine : public QIconEngine {
public:
    explicit ImageIconEngine(std::shared_ptr<const Image> image)
        : m_image(std::move(image))
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        constexpr double disabledOpacity = 0.35;
        painter->save();
        if (mode == QIcon::Disabled)
            painter->setOpacity(disabledOpacity);
        m_image->drawInRect(*painter, rect, QGuiApplication::palette());
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap canvas(size);
        canvas.fill(Qt::transparent);
        QPainter painter(&canvas);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return canvas;
    }

    QIconEngine *clone() const override { return new ImageIconEngine(m_image); }

private:
    std::shared_ptr<const Image> m_image;
};

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
    const QPixmap pixels = pixmap(2.0, palette);
    if (pixels.isNull())
        return;
    QRectF target(QPointF(), fitted);
    target.moveCenter(rect.center());
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(target, pixels, QRectF(pixels.rect()));
    painter.restore();
}

QIcon iconFromImage(std::shared_ptr<const Image> image)
{
    return QIcon(new ImageIconEngine(std::move(image)));
}

} // namespace platform
