// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CutPlan.h"

#include <host/documents/LabelRenderer.h>

class QIODevice;

namespace host {

/// A strip as it leaves the printer, with what stands above it.
struct PrintedStrip {
    /// Both are borrowed.
    const CutPlan &plan;
    const LabelRenderer &renderer;
    /// For people: what is printed, on which printer, on which paper.
    QString document;
    QString printer;
    QString paper;
};

/// Writes the strip as a PDF in its true size: labels, cuts and, above them, what the job is. A strip that is
/// longer than a PDF page may be continues on the next page. False when the device cannot hold all of it.
bool writeStripPdf(const PrintedStrip &strip, QIODevice *device);

} // namespace host
