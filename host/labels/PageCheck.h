// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PageThread.h"
#include <host/documents/LabelDocument.h>

#include <vector>

namespace host {
inline namespace labels {

/// Reads the sizes of a document's pages in the background, so that LabelDocument::checkForPrinting() does
/// not need to. Reads while nothing else must be drawn or measured, until a job waits for it.
class PageCheck : public QObject {
    Q_OBJECT

public:
    /// Document and thread are borrowed and belong together.
    PageCheck(const LabelDocument &document, PageThread &thread);

    /// Starts reading. Further calls do nothing.
    void start();
    /// Gives reading precedence over measuring: a job waits for the sizes.
    void hurry();
    bool isDone() const { return m_next == m_document.pageCount(); }

Q_SIGNALS:
    /// Emitted when all sizes are read.
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

} // namespace labels
} // namespace host
