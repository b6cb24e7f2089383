// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "RendererProcess.h"

#include <QFile>
#include <QHash>
#include <QImage>
#include <QSizeF>

#include <memory>
#include <vector>

namespace host {
inline namespace rendering {

/// A PDF that the renderer reads. Opens it again when the renderer has ended, except to draw a page again
/// on which the renderer has failed. Pages are numbered from 0.
class RemotePdf {
public:
    /// Owns the file, which is open for reading. Several PDFs share a process.
    RemotePdf(std::shared_ptr<RendererProcess> process, std::unique_ptr<QFile> file);
    /// Closes the PDF in the renderer.
    ~RemotePdf();
    RemotePdf(const RemotePdf &) = delete;
    RemotePdf &operator=(const RemotePdf &) = delete;

    /// Opens the PDF and returns the number of its pages.
    Result<int, RenderFault> open();
    /// Reads the sizes of some pages in points, at most maxSizesPerReply. They may be empty or invalid.
    Result<std::vector<QSizeF>, RenderFault> sizes(int first, int count);
    /// Draws the page on a transparent background. The size is in pixels.
    Result<QImage, RenderFault> draw(int page, QSize size);

private:
    /// Sends a request about the open PDF.
    Result<RendererProcess::Answer, RenderFault> ask(RenderRequest request, int descriptor = -1);

    std::shared_ptr<RendererProcess> m_process;
    std::unique_ptr<QFile> m_file;
    quint32 m_document;
    /// The process in which the PDF is open; 0 while it is open in none.
    int m_generation = 0;
    /// The pages on which the renderer has failed.
    QHash<int, RenderFault> m_faults;
};

} // namespace rendering
} // namespace host
