// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DocumentError.h"

#include <QByteArray>

class QIODevice;

namespace host {
inline namespace documents {

/// Writes a PDF to the device whose only page is the SVG in its natural size: the size that its width and
/// height state, otherwise the size of its view box, otherwise the size of what it draws. A px is 1/96 inch.
/// Returns an error if the SVG is damaged, refers to other files, or needs more time or memory than the
/// converter has, or if the device cannot hold the PDF. The device is not owned; what it contains after an
/// error is undefined.
Result<void, DocumentErrorReason> writeSvgPdf(const QByteArray &svg, QIODevice *pdf);

} // namespace documents
} // namespace host
