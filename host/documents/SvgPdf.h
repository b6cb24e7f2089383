// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DocumentError.h"

#include <QByteArray>

#include <optional>

class QIODevice;

namespace host {
inline namespace documents {

/// Writes a PDF whose one page is the SVG in its natural size: what its width and height say, else its view
/// box, else what it draws, a px being 1/96 inch.
std::optional<DocumentErrorReason> writeSvgPdf(const QByteArray &svg, QIODevice *pdf);

} // namespace documents
} // namespace host
