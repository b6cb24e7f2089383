// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QImage>

namespace pictures {

/// Returns the image as a PNG file with 8-bit RGBA pixels, encoded so that drawings become as small as
/// possible: a dialog keeps the bytes of about ninety of them in memory. Empty if the image is null, libpng
/// reports an error or memory runs out.
///
/// The rows are not filtered: filters predict the next pixel of a photograph, but make equal pixels of a
/// drawing unequal. The PNG writer of Qt always filters, and its files are 40 % larger.
QByteArray encodedPng(const QImage &image);

} // namespace pictures
