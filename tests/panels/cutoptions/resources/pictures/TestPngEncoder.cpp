// SPDX-License-Identifier: Apache-2.0
#include <resources/pictures/PngEncoder.h>
#include <resources/pictures/Renderer.h>

#include <QBuffer>
#include <QFile>

#include <gtest/gtest.h>

namespace {

QImage drawnPicture()
{
    const QString path = QStringLiteral(KV_PICTURE_FOLDER "/AHCMOnOnOnOn@2x.png");
    return QImage(path).convertToFormat(QImage::Format_RGBA8888);
}

TEST(PngEncoder, keepsEveryPixelWithItsTransparency)
{
    const QImage picture = drawnPicture();
    ASSERT_FALSE(picture.isNull());
    const QImage decoded = QImage::fromData(pictures::encodedPng(picture), "png");
    EXPECT_EQ(decoded.convertToFormat(QImage::Format_RGBA8888), picture);
}

TEST(PngEncoder, makesDrawingsSmallerThanFilteredRowsDo)
{
    const QImage picture = drawnPicture();
    QBuffer filtered;
    filtered.open(QIODevice::WriteOnly);
    ASSERT_TRUE(picture.save(&filtered, "PNG"));
    EXPECT_LT(pictures::encodedPng(picture).size(), filtered.size() * 8 / 10);
}

TEST(PngEncoder, makesNothingOfANullImage)
{
    EXPECT_EQ(pictures::encodedPng(QImage()), QByteArray());
    EXPECT_FALSE(pictures::writePng(QImage(), QStringLiteral("picture.png")).isEmpty());
    EXPECT_FALSE(QFile::exists(QStringLiteral("picture.png")));
}

} // namespace
