// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LabelDocument.h"
#include "PageThread.h"

#include <QHash>
#include <QImage>
#include <QSizeF>

#include <vector>

namespace host {
inline namespace documents {

/// The pictures of the labels that one widget shows, drawn in the background. It keeps pictures that are out
/// of sight, too, as long as they need little memory.
class LabelPictures : public QObject {
    Q_OBJECT

public:
    /// The paper's width and length in points. Document and thread are borrowed and belong together.
    LabelPictures(const LabelDocument &document, PageThread &thread, QSizeF paper);

    QSizeF paper() const { return m_paper; }

    /// Sets the pages in sight and the pixels a millimetre. What was waiting and is out of sight is not drawn
    /// any more, apart from the few pages that the thread has in work.
    void show(std::vector<int> pages, double pixelsPerMillimetre);
    /// The whole label, white where the page has nothing; null while it is not drawn. While it is drawn with
    /// other pixels, the picture is the one with the old ones.
    const QImage *picture(int page) const;
    /// Whether all pages in sight are drawn.
    bool isComplete() const { return m_missing.empty(); }

Q_SIGNALS:
    /// Pages in sight have been drawn.
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
    QSizeF m_paper;
    QHash<int, Picture> m_pictures;
    qint64 m_bytes = 0;
    double m_resolution = 0.0;
    std::vector<int> m_shown;
    std::vector<int> m_missing;
    bool m_isDrawing = false;
};

} // namespace documents
} // namespace host
