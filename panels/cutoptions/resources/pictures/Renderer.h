// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PictureSpec.h"
#include "Theme.h"

#include <QImage>
#include <QStringList>

#include <variant>

namespace pictures {

/// The errors of an operation: sentences that name the picture or file and the reason. Empty if the operation
/// succeeded.
using Errors = QStringList;

/// Returns the SVG text of the picture, or the errors of its parts.
std::variant<QString, Errors> composedSvg(const PictureSpec &spec, Theme theme);

/// Renders the picture on a transparent background with pixelsPerPoint pixels per point. Returns the errors
/// if it cannot be composed or is not valid SVG.
std::variant<QImage, Errors> rendered(const PictureSpec &spec, Theme theme, int pixelsPerPoint);

/// Writes NAME.png, NAME@2x.png, NAME-dark.png and NAME-dark@2x.png to the folder. Each file is written
/// completely or not at all. Continues with the other files after an error.
Errors writeVariants(const PictureSpec &spec, const QString &folder);

/// Writes the SVG of both themes, NAME.svg and NAME-dark.svg, to the folder, for inspection in a drawing
/// program. Each file is written completely or not at all.
Errors writeSvgs(const PictureSpec &spec, const QString &folder);

/// Writes the image as a PNG file, completely or not at all.
Errors writePng(const QImage &image, const QString &path);

} // namespace pictures
