// SPDX-License-Identifier: Apache-2.0
#include "ImageIcon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

namespace platform {
inline namespace images {

namespace {

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

QIcon iconFromImage(std::shared_ptr<const Image> image)
{
    return image ? QIcon(new ImageIconEngine(std::move(image))) : QIcon();
}

} // namespace images
} // namespace platform
