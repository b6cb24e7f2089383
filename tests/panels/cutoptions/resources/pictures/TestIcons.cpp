// SPDX-License-Identifier: Apache-2.0
#include <QImage>
#include <QPainter>
#include <QSet>
#include <QSvgRenderer>

#include <gtest/gtest.h>

namespace {

QImage drawnIcon(const char *name, int size)
{
    QSvgRenderer renderer(QStringLiteral(KV_SOURCE_DIR "/resources/icons/") + QLatin1String(name));
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    return image;
}

/// The colours of the pixels that are fully opaque.
QSet<QRgb> opaqueColours(const QImage &image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) == 255)
                colours.insert(image.pixel(x, y));
        }
    }
    return colours;
}

} // namespace

TEST(Icons, applicationIconHasManyColoursOnAClearGround)
{
    const QImage icon = drawnIcon("org.kvprint.kvprint.svg", 128);
    EXPECT_GT(opaqueColours(icon).size(), 10);
    EXPECT_EQ(qAlpha(icon.pixel(0, 0)), 0);
    EXPECT_EQ(qAlpha(icon.pixel(127, 127)), 0);
}

// Desktops recolour symbolic icons, which only works when there is one colour.
TEST(Icons, symbolicIconHasOneColourOnAClearGround)
{
    const QImage icon = drawnIcon("org.kvprint.kvprint-symbolic.svg", 16);
    EXPECT_EQ(opaqueColours(icon), QSet<QRgb>{qRgb(0x2e, 0x34, 0x36)});
    EXPECT_EQ(qAlpha(icon.pixel(0, 0)), 0);
    EXPECT_EQ(qAlpha(icon.pixel(15, 15)), 0);
}
