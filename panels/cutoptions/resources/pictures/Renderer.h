// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PictureSpec.h"
#include "Theme.h"

#include <QImage>
#include <QStringList>

#include <variant>

namespace pictures {

/// Why a picture could not be made: sentences that name the picture or file and the reason.
using Problems = QStringList;

/// The picture's SVG text.
std::variant<QString, Problems> composedSvg(const PictureSpec &spec, Theme theme);

/// The picture on a transparent ground, with that many pixels per point.
std::variant<QImage, Problems> rendered(const PictureSpec &spec, Theme theme, int pixelsPerPoint);

/// Writes NAME.png, NAME@2x.png, NAME-dark.png and NAME-dark@2x.png into the folder, each whole or not
/// at all. Answers what went wrong; empty when nothing did.
Problems writeVariants(const PictureSpec &spec, const QString &folder);

/// Writes the SVG of both themes, NAME.svg and NAME-dark.svg, into the folder, for looking at in a
/// drawing program. Answers what went wrong; empty when nothing did.
Problems writeSvgs(const PictureSpec &spec, const QString &folder);

/// Writes the image as PNG, whole or not at all. Answers what went wrong; empty when nothing did.
Problems writePng(const QImage &image, const QString &path);

} // namespace pictures
