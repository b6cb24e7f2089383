// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/documents/LabelPictures.h>
#include <host/documents/LabelRenderer.h>

#include <QWidget>

#include <memory>

class QLabel;
class QToolButton;

namespace dialog {
inline namespace window {

/// One page of the document on its label, with buttons to go through the pages. With a page thread, the page
/// is drawn in the background, and is white until then.
class PagePreview : public QWidget {
    Q_OBJECT

public:
    /// The document is borrowed.
    PagePreview(const host::LabelDocument &document, QWidget *parent);

    /// Shows labels drawn by the renderer, which is borrowed until the next call. All renderers are of the
    /// document.
    void setRenderer(const host::LabelRenderer &renderer);
    /// Whether the page has been painted as it will stay.
    bool isComplete() const { return !isVisible() || !m_renderer || m_isComplete; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void go(int page);
    void showNote();
    void paintLabel(QPaintDevice *device);
    /// Paints the picture, or white as long as it is not there.
    void paintPicture(QPainter &painter, const QRectF &area, double pixelsPerMillimetre);

    const host::LabelDocument &m_document;
    const host::LabelRenderer *m_renderer = nullptr;
    /// Null when pages are drawn at once.
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
