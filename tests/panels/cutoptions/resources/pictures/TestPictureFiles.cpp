// SPDX-License-Identifier: Apache-2.0
// The files that the build puts into the bundle.
#include <resources/pictures/Drawing.h>
#include <resources/pictures/PictureSpec.h>

#include <QDir>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <map>

using namespace pictures;

namespace {

struct Variant {
    const char *suffix;
    int pixelsPerPoint;
    Theme theme;
};

constexpr Variant variants[] = {
    {"", 1, Theme::Light}, {"@2x", 2, Theme::Light}, {"-dark", 1, Theme::Dark}, {"-dark@2x", 2, Theme::Dark}};

// As small as the closed pop-up of the panel shows a picture.
constexpr QSize popUpButton(66, 29);

/// The file's pixels; Qt would take those of a file named @2x for half as large as they are.
QImage picture(const QString &name, const char *suffix)
{
    const QImage file(QStringLiteral(KV_PICTURE_FOLDER "/") + name + QLatin1String(suffix) +
                      QStringLiteral(".png"));
    QImage image = file.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(1);
    return image;
}

/// The picture on its theme's window, reduced to the size of the pop-up.
QImage reduced(const QString &name, const Variant &variant)
{
    const QImage image = picture(name, variant.suffix);
    QImage window(image.size(), QImage::Format_RGB32);
    window.fill(windowColour(variant.theme));
    QPainter(&window).drawImage(0, 0, image);
    return window.scaled(popUpButton, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// How many pixels of the two pictures differ so much that one sees it.
int visibleDifferences(const QImage &one, const QImage &other)
{
    constexpr int visible = 48; // of 255, in the sum over three channels
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            const int difference =
                std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
            count += difference >= visible ? 1 : 0;
        }
    }
    return count;
}

/// Whether all pixels along the picture's four edges are transparent.
bool hasClearFrame(const QImage &image)
{
    const int right = image.width() - 1;
    const int bottom = image.height() - 1;
    for (int x = 0; x <= right; ++x) {
        if (qAlpha(image.pixel(x, 0)) != 0 || qAlpha(image.pixel(x, bottom)) != 0)
            return false;
    }
    for (int y = 0; y <= bottom; ++y) {
        if (qAlpha(image.pixel(0, y)) != 0 || qAlpha(image.pixel(right, y)) != 0)
            return false;
    }
    return true;
}

} // namespace

TEST(PictureFiles, thereAreExactlyFourOfEachPicture)
{
    QStringList expected;
    for (const PictureSpec &spec : allPictures()) {
        for (const Variant &variant : variants)
            expected.append(spec.name + QLatin1String(variant.suffix) + QStringLiteral(".png"));
    }
    expected.sort();
    QStringList found =
        QDir(QStringLiteral(KV_PICTURE_FOLDER)).entryList({QStringLiteral("*.png")}, QDir::Files);
    found.sort();
    EXPECT_EQ(found.size(), 28 * 4);
    EXPECT_EQ(found, expected);
}

TEST(PictureFiles, haveTheExactNaturalSize)
{
    for (const PictureSpec &spec : allPictures()) {
        for (const Variant &variant : variants) {
            EXPECT_EQ(picture(spec.name, variant.suffix).size(), QSize(184, 80) * variant.pixelsPerPoint)
                << qPrintable(spec.name) << variant.suffix;
        }
    }
}

TEST(PictureFiles, areTransparentAllAroundAndReachNoEdge)
{
    for (const PictureSpec &spec : allPictures()) {
        for (const Variant &variant : variants)
            EXPECT_TRUE(hasClearFrame(picture(spec.name, variant.suffix)))
                << qPrintable(spec.name) << variant.suffix;
    }
}

TEST(PictureFiles, differByTheme)
{
    for (const PictureSpec &spec : allPictures()) {
        EXPECT_NE(picture(spec.name, ""), picture(spec.name, "-dark")) << qPrintable(spec.name);
        EXPECT_NE(picture(spec.name, "@2x"), picture(spec.name, "-dark@2x")) << qPrintable(spec.name);
    }
}

TEST(PictureFiles, canBeToldApartEvenInThePopUp)
{
    constexpr int enough = 40; // pixels of 66 by 29
    for (const Variant &variant : {variants[1], variants[3]}) {
        std::map<QString, QImage> images;
        for (const PictureSpec &spec : allPictures())
            images[spec.name] = reduced(spec.name, variant);
        for (auto one = images.begin(); one != images.end(); ++one) {
            for (auto other = std::next(one); other != images.end(); ++other) {
                EXPECT_GE(visibleDifferences(one->second, other->second), enough)
                    << qPrintable(one->first) << " and " << qPrintable(other->first) << variant.suffix;
            }
        }
    }
}

// A line between two rows of pixels would be drawn as two grey ones.
TEST(PictureFiles, haveASharpUpperEdgeOfTheTape)
{
    const QImage image = picture(QStringLiteral("AHCMOffOffOffOff"), "");
    constexpr int tapeTop = 24;
    const QRgb edge = QColor(colours(Theme::Light).value(QStringLiteral("tapeEdge"))).rgba();
    const QRgb tape = QColor(colours(Theme::Light).value(QStringLiteral("tape"))).rgba();
    for (int x = 10; x < 140; ++x) {
        EXPECT_EQ(qAlpha(image.pixel(x, tapeTop - 1)), 0) << x;
        EXPECT_EQ(image.pixel(x, tapeTop), edge) << x;
        EXPECT_EQ(image.pixel(x, tapeTop + 1), tape) << x;
    }
}
