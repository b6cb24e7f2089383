// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/labels/LabelPictures.h>
#include <host/labels/LabelRenderer.h>

#include <QWidget>

#include <memory>

class QLabel;
class QToolButton;

namespace dialog {
inline namespace window {

/// Shows one page of the document on its label, with buttons for the previous and the next page. If the
/// renderer has a page thread, the page is drawn in the background and is white until then.
class PagePreview : public QWidget {
    Q_OBJECT

public:
    /// The document is not owned and must outlive the widget.
    PagePreview(const host::LabelDocument &document, QWidget *parent);

    /// Shows labels that this renderer draws. It must be a renderer of the document; it is not owned and must
    /// exist until the next call.
    void setRenderer(const host::LabelRenderer &renderer);
    /// Returns whether the final picture of the page has been painted, or nothing is to be painted.
    bool isComplete() const { return !isVisible() || !m_renderer || m_isComplete; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void go(int page);
    void showNote();
    void paintLabel(QPaintDevice *device);
    /// Paints the picture of the page, or white until it has been drawn.
    void paintPicture(QPainter &painter, const QRectF &area, double pixelsPerMillimetre);

    const host::LabelDocument &m_document;
    const host::LabelRenderer *m_renderer = nullptr;
    /// Null if pages are drawn synchronously.
    std::unique_ptr<host::LabelPictures> m_pictures;
    int m_page = 0;
    bool m_isComplete = false;
    QWidget *m_canvas;
    QToolButton *m_previous;
    QToolButton *m_next;
    QLabel *m_number;
    QLabel *m_note;
};

} // namespace window
} // namespace dialog
