// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Sandbox.h"

#include <QPainter>
#include <QSizeF>

#include <functional>
#include <vector>

/// A page of a PDF made for a test: its size in points, and what to draw on it, in points from its top left.
struct SamplePage {
    QSizeF size;
    std::function<void(QPainter &)> draw;
};

/// Writes a PDF with the pages and answers its path.
QString writePdf(const Sandbox &sandbox, const QString &name, const std::vector<SamplePage> &pages);

/// A minimal PDF with these page boxes ("[0 0 10 10]"), written by hand, so that it can hold what no
/// writer writes; extra goes into the trailer.
QByteArray handWrittenPdf(const std::vector<QByteArray> &mediaBoxes, const QByteArray &extra = {});
