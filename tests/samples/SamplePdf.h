// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Sandbox.h"

#include <host/base/Length.h>

#include <QPainter>
#include <QSizeF>

#include <functional>
#include <vector>

/// One millimetre in points.
inline constexpr double mm = host::Points(host::Millimetres(1.0)).number();

/// A page of a PDF for a test: its size in points, and a function that draws on it in points from the top
/// left.
struct SamplePage {
    QSizeF size;
    std::function<void(QPainter &)> draw;
};

/// Writes a PDF with the pages and returns its path.
QString writePdf(const Sandbox &sandbox, const QString &name, const std::vector<SamplePage> &pages);

/// A PDF of blank pages with these page boxes ("[0 0 10 10]"). It is encrypted if a password is given.
QByteArray pdfWithPageBoxes(const std::vector<QByteArray> &boxes, const QByteArray &password = {});
