// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QImage>

/// One pixel of an image without a resolution, in points.
inline constexpr double pixel = 72.0 / 96.0;

/// An image with four quarters: red, black, white and blue. The resolution is in dots per metre.
QImage corners(int width, int height, int dotsAcross = 3780, int dotsDown = 3780);
/// A small image of one colour.
QImage filled(const QColor &color);

/// Returns the image as the content of a file; the format is "png" or "jpeg".
QByteArray encoded(const QImage &image, const char *format);
/// Returns the PNG without its resolution (the pHYs chunk).
QByteArray withoutResolution(QByteArray png);
/// A JPEG whose pixels are stored rotated, with an orientation in its metadata.
QByteArray turnedJpeg(const QImage &image);
/// A PNG whose header declares this size, without any pixels.
QByteArray claimingPng(quint32 width, quint32 height);

/// An SVG whose root element has these attributes.
QByteArray svg(const QByteArray &attributes, const QByteArray &content = "<rect width='5' height='5'/>");
/// Returns the SVG preceded by a document type with these declarations.
QByteArray withDeclarations(const QByteArray &declarations, QByteArray svg);
QByteArray inUtf16(const QByteArray &text);
