// SPDX-License-Identifier: Apache-2.0
// Bundles, pictures and layout files.
#include <platform/Bundle.h>
#include <platform/ImageIcon.h>
#include <platform/LayoutLoader.h>
#include <platform/PngFile.h>
#include <platform/Stepper.h>

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPainter>
#include <QPalette>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using platform::Bundle;
using platform::Image;
using platform::LayoutLoader;

namespace {

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(bytes);
}

void writePicture(const QString &path, QSize size, QColor color)
{
    QImage picture(size, QImage::Format_ARGB32);
    picture.fill(color);
    ASSERT_TRUE(picture.save(path)) << path.toStdString();
}

QColor drawn(const Image &image, double pixelsPerPoint, const QPalette &palette)
{
    QImage canvas(QSize(10, 10) * pixelsPerPoint, QImage::Format_ARGB32_Premultiplied);
    canvas.setDevicePixelRatio(pixelsPerPoint);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    image.drawAtPoint(painter, QPointF(0, 0), palette);
    painter.end();
    return canvas.pixelColor(3, 3);
}

} // namespace

TEST(Bundle, FallsBackToEnglishAndThenToTheKey)
{
    const auto english =
        Bundle::open(QStringLiteral(KV_BINARY_DIR "/bin/KVLXDZOptions.bundle"), {QStringLiteral("en")});
    const auto swahili = Bundle::open(english->path(), {QStringLiteral("sw")});
    const auto austrian = Bundle::open(english->path(), {QStringLiteral("de_AT"), QStringLiteral("fr")});
    const auto german = Bundle::open(english->path(), {QStringLiteral("de")});
    const QString key = QStringLiteral("RS_HalfCut");
    EXPECT_NE(english->localizedStringForKey(key), key);
    EXPECT_EQ(swahili->localizedStringForKey(key), english->localizedStringForKey(key));
    EXPECT_EQ(swahili->language(), QStringLiteral("en"));
    EXPECT_EQ(austrian->language(), QStringLiteral("de"));
    EXPECT_EQ(austrian->localizedStringForKey(key), german->localizedStringForKey(key));
    EXPECT_NE(german->localizedStringForKey(key), english->localizedStringForKey(key));
    EXPECT_EQ(german->localizedStringForKey(QStringLiteral("RS_NoSuchKey")), QStringLiteral("RS_NoSuchKey"));
    EXPECT_EQ(german->localizedStringForKey(QString()), QString());
}

TEST(Bundle, NamesOnlyFilesThatExist)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("Resources")));
    const auto bundle = Bundle::open(folder.path(), {});
    EXPECT_FALSE(bundle->pathForLayout(QStringLiteral("OptionPDE")));
    EXPECT_FALSE(bundle->pathForImageResource(QStringLiteral("x")));
    writePicture(folder.filePath(QStringLiteral("Resources/x.png")), {2, 2}, Qt::red);
    EXPECT_EQ(bundle->pathForImageResource(QStringLiteral("x")),
              folder.filePath(QStringLiteral("Resources/x.png")));
    EXPECT_EQ(bundle->localizedStringForKey(QStringLiteral("k")), QStringLiteral("k"));
}

TEST(Image, RefusesWhatIsNoPicture)
{
    const QTemporaryDir folder;
    writeFile(folder.filePath(QStringLiteral("text.png")), "not a picture");
    EXPECT_EQ(Image::initWithContentsOfFile(folder.filePath(QStringLiteral("text.png"))), nullptr);
    EXPECT_EQ(Image::initWithContentsOfFile(folder.filePath(QStringLiteral("absent.png"))), nullptr);
}

TEST(Image, ChoosesTheVariantForScreenAndTheme)
{
    const QTemporaryDir folder;
    writePicture(folder.filePath(QStringLiteral("p.png")), {10, 10}, Qt::red);
    writePicture(folder.filePath(QStringLiteral("p@2x.png")), {20, 20}, Qt::green);
    writePicture(folder.filePath(QStringLiteral("p-dark.png")), {10, 10}, Qt::blue);
    const auto image = Image::initWithContentsOfFile(folder.filePath(QStringLiteral("p.png")));
    ASSERT_TRUE(image);
    EXPECT_EQ(image->size(), QSize(10, 10));
    EXPECT_EQ(image->name(), QStringLiteral("p"));
    const QPalette light(Qt::lightGray);
    const QPalette dark(QColor(40, 40, 40));
    EXPECT_EQ(drawn(*image, 1.0, light), QColor(Qt::red));
    EXPECT_EQ(drawn(*image, 2.0, light), QColor(Qt::green));
    EXPECT_EQ(drawn(*image, 1.0, dark), QColor(Qt::blue));
    EXPECT_EQ(drawn(*image, 2.0, dark), QColor(Qt::blue))
        << "a dark picture of half the density beats a light one";
}

TEST(Image, IsWholeInMemoryOnceItIsMade)
{
    const QTemporaryDir folder;
    const auto path = [&folder](const char *name) { return folder.filePath(QLatin1String(name)); };
    writePicture(path("p.png"), {10, 10}, Qt::red);
    writePicture(path("p@2x.png"), {20, 20}, Qt::green);
    writePicture(path("p-dark.png"), {10, 10}, Qt::blue);
    writePicture(path("p-dark@2x.png"), {20, 20}, Qt::yellow);
    const auto image = Image::initWithContentsOfFile(path("p.png"));
    ASSERT_TRUE(image);
    writePicture(path("p.png"), {4, 4}, Qt::black);
    for (const char *name : {"p@2x.png", "p-dark.png", "p-dark@2x.png"})
        ASSERT_TRUE(QFile::remove(path(name)));
    const QPalette dark(QColor(40, 40, 40));
    EXPECT_EQ(image->size(), QSize(10, 10));
    EXPECT_EQ(drawn(*image, 1.0, QPalette(Qt::lightGray)), QColor(Qt::red));
    EXPECT_EQ(drawn(*image, 2.0, QPalette(Qt::lightGray)), QColor(Qt::green));
    EXPECT_EQ(drawn(*image, 1.0, dark), QColor(Qt::blue));
    EXPECT_EQ(drawn(*image, 2.0, dark), QColor(Qt::yellow));
    const auto replaced = Image::initWithContentsOfFile(path("p.png"));
    ASSERT_TRUE(replaced);
    EXPECT_EQ(replaced->size(), QSize(4, 4)) << "a picture that is made later is that of the new files";
}

TEST(Image, IsSharedAsLongAsItsFilesAreTheSame)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("p.png"));
    writePicture(path, {10, 10}, Qt::red);
    auto image = Image::initWithContentsOfFile(path);
    EXPECT_EQ(Image::initWithContentsOfFile(path), image);
    writePicture(folder.filePath(QStringLiteral("p-dark.png")), {10, 10}, Qt::blue);
    EXPECT_NE(Image::initWithContentsOfFile(path), image) << "a variant has come";
    QFile::remove(path);
    EXPECT_EQ(Image::initWithContentsOfFile(path), nullptr);
}

TEST(Image, ABrokenFileIsNoPicture)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("p.png"));
    const QString dense = folder.filePath(QStringLiteral("p@2x.png"));
    writePicture(path, {10, 10}, Qt::red);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    ASSERT_TRUE(platform::sizeOfIntactPng(whole));
    for (qsizetype length = 0; length < whole.size(); ++length)
        ASSERT_FALSE(platform::sizeOfIntactPng(whole.left(length))) << "cut off after " << length;
    for (qsizetype position = 0; position < whole.size(); ++position) {
        QByteArray flipped = whole;
        flipped[position] = static_cast<char>(flipped[position] ^ 0x10);
        ASSERT_FALSE(platform::sizeOfIntactPng(flipped)) << "a bit is wrong at " << position;
    }
    writeFile(path, whole.left(whole.size() / 2));
    EXPECT_EQ(Image::initWithContentsOfFile(path), nullptr);
    writeFile(path, whole);
    writeFile(dense, whole.left(whole.size() - 1));
    const auto image = Image::initWithContentsOfFile(path);
    ASSERT_TRUE(image);
    EXPECT_EQ(drawn(*image, 2.0, QPalette(Qt::lightGray)), QColor(Qt::red))
        << "a broken file for dense screens counts as missing";
}

TEST(Image, OtherKindsOfFilesAreDecodedToBeChecked)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("p.bmp"));
    writePicture(path, {10, 10}, Qt::red);
    const auto image = Image::initWithContentsOfFile(path);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->size(), QSize(10, 10));
    EXPECT_EQ(drawn(*image, 1.0, QPalette(Qt::lightGray)), QColor(Qt::red));
    writeFile(path, "BM");
    EXPECT_EQ(Image::initWithContentsOfFile(path), nullptr);
}

TEST(ImageIcon, DrawsThePicture)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("p.png"));
    writePicture(path, {40, 20}, Qt::red);
    const QIcon icon = platform::iconFromImage(Image::initWithContentsOfFile(path));
    EXPECT_EQ(icon.pixmap(QSize(20, 10)).toImage().pixelColor(10, 5), QColor(Qt::red));
    EXPECT_TRUE(platform::iconFromImage(nullptr).isNull());
}

TEST(LayoutLoader, TellsWhatIsWrongWithTheFile)
{
    const QTemporaryDir folder;
    const QString absent = folder.filePath(QStringLiteral("absent.ui"));
    LayoutLoader::Result result = LayoutLoader::load(absent);
    EXPECT_EQ(result.view, nullptr);
    EXPECT_TRUE(result.error.contains(absent)) << result.error.toStdString();

    const QString broken = folder.filePath(QStringLiteral("broken.ui"));
    writeFile(broken, "<ui version=\"4.0\"><widget class=\"QWidget\"");
    result = LayoutLoader::load(broken);
    EXPECT_EQ(result.view, nullptr);
    EXPECT_TRUE(result.error.contains(broken)) << result.error.toStdString();
    EXPECT_GT(result.error.size(), broken.size() + 4) << "the reason is told";
}

TEST(LayoutLoader, MakesOurControlsRegisteredOnesAndCallsHooks)
{
    struct Special : QLineEdit {
        using QLineEdit::QLineEdit;
    };
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("panel.ui"));
    writeFile(path, R"(<ui version="4.0"><widget class="QWidget" name="view">
<property name="geometry"><rect><x>0</x><y>0</y><width>200</width><height>100</height></rect></property>
<widget class="Stepper" name="s"><property name="geometry"><rect><x>10</x><y>0</y><width>20</width><height>24</height></rect></property>
<property name="value"><number>7</number></property></widget>
<widget class="Special" name="t"><property name="marker" stdset="0"><string>here</string></property></widget>
</widget></ui>)");
    LayoutLoader::registerWidgetClass(QStringLiteral("Special"),
                                      [](QWidget *parent) { return new Special(parent); });
    QStringList seen;
    LayoutLoader::registerHook(QStringLiteral("test"), [&](QWidget *widget) {
        if (widget->property("marker").isValid())
            seen.append(widget->objectName() + widget->property("marker").toString());
    });
    LayoutLoader::Result result = LayoutLoader::load(path);
    LayoutLoader::registerHook(QStringLiteral("test"), [](QWidget *) {});
    ASSERT_TRUE(result.view) << result.error.toStdString();
    const auto *const stepper = result.view->findChild<platform::Stepper *>(QStringLiteral("s"));
    ASSERT_TRUE(stepper);
    EXPECT_EQ(stepper->value(), 7);
    EXPECT_NE(dynamic_cast<Special *>(result.view->findChild<QLineEdit *>(QStringLiteral("t"))), nullptr);
    EXPECT_EQ(seen, QStringList{QStringLiteral("there")});

    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    const LayoutLoader::Result mirrored = LayoutLoader::load(path);
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    EXPECT_EQ(mirrored.view->findChild<platform::Stepper *>()->x(), 170);
}
