// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LabelDocument.h"
#include "PageThread.h"

#include <vector>

namespace host {
inline namespace documents {

/// Reads the sizes of a document's pages in the background, so that LabelDocument::checkForPrinting() has
/// nothing left to read. It reads when nothing else is to be drawn or measured, until a job waits for it.
class PageCheck : public QObject {
    Q_OBJECT

public:
    /// Document and thread are borrowed and belong together.
    PageCheck(const LabelDocument &document, PageThread &thread);

    /// Begins, once.
    void start();
    /// Reads before anything is measured from now on: a job waits for the sizes and for nothing else.
    void hurry();
    bool isDone() const { return m_next == m_document.pageCount(); }

Q_SIGNALS:
    void done();

private:
    void goOn();
    void readSizes();
    void store(int first, const std::vector<QSizeF> &sizes);

    const LabelDocument &m_document;
    PageThread &m_thread;
    /// The first page whose size is not read.
    int m_next = 0;
    bool m_isStarted = false;
    PageThread::Urgency m_urgency = PageThread::Urgency::Checked;
};

} // namespace documents
} // namespace host
