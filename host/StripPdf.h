// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PrintJob.h"

class QIODevice;

namespace host {

/// Writes the strip of a job as a PDF in its true size: labels, cuts and, above them, what the job is. A
/// strip longer than a PDF page may be goes on on the next page. False when the device takes no more.
bool writeStripPdf(const PrintJob &job, QIODevice *device);

} // namespace host
