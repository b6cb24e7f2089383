// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CutPlan.h"

#include <host/labels/LabelRenderer.h>

class QIODevice;

namespace host {
inline namespace strip {

/// A strip to be written as a PDF, with the texts of its heading.
struct PrintedStrip {
    /// Plan and renderer are not owned.
    const CutPlan &plan;
    const LabelRenderer &renderer;
    /// The names that the heading shows: of the document, of the printer and of the paper.
    QString document;
    QString printer;
    QString paper;
};

/// Writes the strip to the device as a PDF in its true size: labels and cuts, below a heading that describes
/// the job. A strip that exceeds the maximum length of a PDF page continues on the next page. Returns false
/// if the device cannot hold the whole PDF.
bool writeStripPdf(const PrintedStrip &strip, QIODevice *device);

} // namespace strip
} // namespace host
