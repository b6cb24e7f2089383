// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DocumentError.h"

#include <host/layout/PageLayout.h>
#include <platform/TemporaryFile.h>

#include <functional>
#include <memory>

namespace host {
inline namespace documents {

/// Writes a PDF whose pages have exactly the size of the paper, with the pages of the PDF at the path where
/// the layout places them. Text, fonts and images are not changed.
///
/// Returns a temporary file, or null if the pages already are as the layout places them and the document is
/// sent as it is. Waits until the program kvprint-layoutpdf has written it, a second for some ten thousand
/// pages; may be called on any thread. Ends the program and returns null if isCanceled returns true.
Result<std::unique_ptr<platform::TemporaryFile>, DocumentErrorReason>
layOutPdf(const QString &path, const PageLayout &layout, const std::function<bool()> &isCanceled);

} // namespace documents
} // namespace host
