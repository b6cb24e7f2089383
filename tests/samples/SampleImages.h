// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QImage>

/// An image with four quarters: red, black, white and blue. The resolution is in dots a metre.
QImage corners(int width, int height, int dotsAcross = 3780, int dotsDown = 3780);
/// A small image of one colour.
QImage filled(const QColor &color);

/// The file that holds the image; the format is "png" or "jpeg".
QByteArray encoded(const QImage &image, const char *format);
/// The PNG without what tells its resolution.
QByteArray withoutResolution(QByteArray png);
/// A JPEG whose pixels lie on their side, and that says so.
QByteArray turnedJpeg(const QImage &image);
/// A PNG that claims to be that large and has no pixels.
QByteArray claimingPng(quint32 width, quint32 height);

/// An SVG with these attributes of its root element.
QByteArray svg(const QByteArray &attributes, const QByteArray &content = "<rect width='5' height='5'/>");
/// The SVG behind a document type with these declarations.
QByteArray withDeclarations(const QByteArray &declarations, QByteArray svg);
QByteArray inUtf16(const QByteArray &text);
