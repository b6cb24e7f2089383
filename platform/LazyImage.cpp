// SPDX-License-Identifier: Apache-2.0
#include "LazyImage.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

namespace platform {

namespace {

class ImageIconEngine : public QIconEngine {
public:
    explicit ImageIconEngine(LazyImage image)
        : m_image(std::move(image))
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const Image *const image = m_image.get();
        if (!image)
            return;
        constexpr double disabledOpacity = 0.35;
        painter->save();
        if (mode == QIcon::Disabled)
            painter->setOpacity(disabledOpacity);
        image->drawInRect(*painter, rect, QGuiApplication::palette());
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
    LazyImage m_image;
};

} // namespace

const Image *LazyImage::get() const
{
    if (!m_path.isEmpty())
        m_image = Image::initWithContentsOfFile(std::exchange(m_path, QString()));
    return m_image.get();
}

QIcon iconFromImage(LazyImage image)
{
    return QIcon(new ImageIconEngine(std::move(image)));
}

} // namespace platform
