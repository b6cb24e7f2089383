// SPDX-License-Identifier: Apache-2.0
#include "SampleImages.h"

#include <QBuffer>
#include <QImageWriter>
#include <QPainter>
#include <QtEndian>

#include <gtest/gtest.h>

namespace {

quint32 checkSum(const QByteArray &bytes)
{
    quint32 sum = 0xFFFFFFFF;
    for (const char byte : bytes) {
        sum ^= static_cast<uchar>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum & 1) != 0 ? (sum >> 1) ^ 0xEDB88320 : sum >> 1;
    }
    return ~sum;
}

QByteArray bigEndian(quint32 number)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

QByteArray chunk(const QByteArray &name, const QByteArray &content)
{
    return bigEndian(static_cast<quint32>(content.size())) + name + content +
           bigEndian(checkSum(name + content));
}

} // namespace

QImage corners(int width, int height, int dotsAcross, int dotsDown)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.setDotsPerMeterX(dotsAcross);
    image.setDotsPerMeterY(dotsDown);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.fillRect(0, 0, width / 2, height / 2, Qt::red);
    painter.fillRect(width / 2, 0, width / 2, height / 2, Qt::black);
    painter.fillRect(width / 2, height / 2, width / 2, height / 2, Qt::blue);
    return image;
}

QImage filled(const QColor &color)
{
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

QByteArray encoded(const QImage &image, const char *format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setQuality(95);
    EXPECT_TRUE(writer.write(image)) << writer.errorString().toStdString();
    return buffer.data();
}

QByteArray withoutResolution(QByteArray png)
{
    const qsizetype name = png.indexOf("pHYs");
    EXPECT_GT(name, 0);
    return png.remove(name - 4, 4 + 4 + 9 + 4);
}

QByteArray turnedJpeg(const QImage &image)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(95);
    writer.setTransformation(QImageIOHandler::TransformationRotate90);
    EXPECT_TRUE(writer.write(image.transformed(QTransform().rotate(-90))));
    return buffer.data();
}

QByteArray claimingPng(quint32 width, quint32 height)
{
    return QByteArray("\x89PNG\r\n\x1A\n") +
           chunk("IHDR", bigEndian(width) + bigEndian(height) + QByteArray("\x08\x02\0\0\0", 5)) +
           chunk("IDAT", qCompress(QByteArray(100, '\0')).mid(4)) + chunk("IEND", {});
}

QByteArray svg(const QByteArray &attributes, const QByteArray &content)
{
    return "<?xml version=\"1.0\"?>\n<!-- a drawing -->\n<svg xmlns=\"http://www.w3.org/2000/svg\" "
           "xmlns:xlink=\"http://www.w3.org/1999/xlink\" " +
           attributes + ">" + content + "</svg>\n";
}

QByteArray withDeclarations(const QByteArray &declarations, QByteArray svg)
{
    return svg.insert(svg.indexOf("<svg"), "<!DOCTYPE svg [" + declarations + "]>");
}

QByteArray inUtf16(const QByteArray &text)
{
    QByteArray bytes("\xFF\xFE");
    for (const char character : text) {
        bytes += character;
        bytes += '\0';
    }
    return bytes;
}
