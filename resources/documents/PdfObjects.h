// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QList>
#include <QSizeF>

namespace documents {

/// A PDF file of the objects, numbered from 1; the first is the catalogue. More entries of the trailer may
/// be given.
QByteArray pdfFile(const QByteArrayList &objects, const QByteArray &trailerEntries = {});

/// A stream object's bytes.
QByteArray pdfStream(const QByteArray &content);

/// The PDF file with the sizes of its pages, in points, put in place of those it has, in their order in
/// the file. For files with a plain table of objects, as Qt writes them.
QByteArray withPageSizes(const QByteArray &pdf, const QList<QSizeF> &sizes);

} // namespace documents
