// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/LabelRenderer.h>

#include <QWidget>

class QLabel;
class QToolButton;

namespace dialog {

/// One page of the document on its label, with buttons to go through the pages.
class PagePreview : public QWidget {
    Q_OBJECT

public:
    /// The document is borrowed.
    PagePreview(const host::LabelDocument &document, QWidget *parent);

    /// Shows labels drawn by the renderer, which is borrowed until the next call.
    void setRenderer(const host::LabelRenderer &renderer);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void go(int page);
    void paintLabel(QPaintDevice *device) const;

    const host::LabelDocument &m_document;
    const host::LabelRenderer *m_renderer = nullptr;
    int m_page = 0;
    QWidget *m_canvas;
    QToolButton *m_previous;
    QToolButton *m_next;
    QLabel *m_number;
    QLabel *m_note;
};

} // namespace dialog
