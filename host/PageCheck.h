// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LabelDocument.h"
#include "PageThread.h"

#include <vector>

namespace host {

/// Reads the sizes of a document's pages in the background, when nothing else is to be drawn or measured, so
/// that LabelDocument::checkForPrinting() has nothing left to read.
class PageCheck : public QObject {
    Q_OBJECT

public:
    /// Document and thread are borrowed and belong together.
    PageCheck(const LabelDocument &document, PageThread &thread);

    /// Begins, once.
    void start();
    bool isDone() const { return m_next == m_document.pageCount(); }

Q_SIGNALS:
    void done();

private:
    void readSizes();
    void store(const std::vector<QSizeF> &sizes);

    const LabelDocument &m_document;
    PageThread &m_thread;
    /// The first page whose size is not read.
    int m_next = 0;
    bool m_isStarted = false;
};

} // namespace host
