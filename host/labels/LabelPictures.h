// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PageThread.h"
#include <host/documents/LabelDocument.h>
#include <host/layout/PageLayout.h>

#include <QHash>
#include <QImage>

#include <vector>

namespace host {
inline namespace labels {

/// The pictures of the labels that a widget shows, drawn in the background. Also caches pictures that are no
/// longer visible, within a limit of memory.
class LabelPictures : public QObject {
    Q_OBJECT

public:
    /// Document and thread are borrowed and belong together.
    LabelPictures(const LabelDocument &document, PageThread &thread, const PageLayout &layout);

    /// The layout of all pages.
    const PageLayout &layout() const { return m_layout; }

    /// Sets the visible pages and the pixels per millimetre. Waiting pages that are no longer visible are
    /// not drawn, except for the few that the thread is drawing.
    void show(std::vector<int> pages, double pixelsPerMillimetre);
    /// Returns the whole label on a white background; null until it is drawn. While it is drawn at another
    /// resolution, returns the previous picture.
    const QImage *picture(int page) const;
    /// Returns whether all visible pages are drawn.
    bool isComplete() const { return m_missing.empty(); }

Q_SIGNALS:
    /// Emitted when visible pages have been drawn.
    void drawn();

private:
    struct Picture {
        QImage image;
        double resolution = 0.0;
    };
    struct Drawn {
        int page = 0;
        QImage image;
        QSizeF statedPageSize;
    };

    bool isDrawn(int page) const;
    void start();
    void store(const std::vector<Drawn> &results, double resolution);
    void dropUnseen();

    const LabelDocument &m_document;
    PageThread &m_thread;
    PageLayout m_layout;
    QHash<int, Picture> m_pictures;
    qint64 m_bytes = 0;
    double m_resolution = 0.0;
    std::vector<int> m_shown;
    std::vector<int> m_missing;
    bool m_isDrawing = false;
};

} // namespace labels
} // namespace host
