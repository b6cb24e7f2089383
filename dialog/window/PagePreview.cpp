// SPDX-License-Identifier: Apache-2.0
#include "PagePreview.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QToolButton>
#include <QVBoxLayout>

namespace dialog {
inline namespace window {

PagePreview::PagePreview(const host::LabelDocument &document, QWidget *parent)
    : QWidget(parent)
    , m_document(document)
    , m_canvas(new QWidget(this))
    , m_previous(new QToolButton(this))
    , m_next(new QToolButton(this))
    , m_number(new QLabel(this))
    , m_note(new QLabel(tr("The page is larger than the label and is shrunk to fit."), this))
{
    m_canvas->setMinimumSize(200, 120);
    m_canvas->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_canvas->installEventFilter(this);
    const bool rightToLeft = layoutDirection() == Qt::RightToLeft;
    m_previous->setArrowType(rightToLeft ? Qt::RightArrow : Qt::LeftArrow);
    m_previous->setAccessibleName(tr("Previous page"));
    m_previous->setToolTip(m_previous->accessibleName());
    m_next->setArrowType(rightToLeft ? Qt::LeftArrow : Qt::RightArrow);
    m_next->setAccessibleName(tr("Next page"));
    m_next->setToolTip(m_next->accessibleName());
    m_note->setWordWrap(true);
    m_note->setAlignment(Qt::AlignCenter);

    auto *const buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_previous);
    buttons->addWidget(m_number);
    buttons->addWidget(m_next);
    buttons->addStretch();
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_canvas);
    layout->addWidget(m_note);
    layout->addLayout(buttons);
    connect(m_previous, &QToolButton::clicked, this, [this] { go(m_page - 1); });
    connect(m_next, &QToolButton::clicked, this, [this] { go(m_page + 1); });
}

void PagePreview::setRenderer(const host::LabelRenderer &renderer)
{
    m_renderer = &renderer;
    if (!m_pictures || m_pictures->layout() != renderer.layout()) {
        m_pictures = renderer.makePictures();
        if (m_pictures)
            connect(m_pictures.get(), &host::LabelPictures::drawn, this, [this] {
                showNote();
                m_canvas->update();
            });
    }
    go(m_page);
}

void PagePreview::go(int page)
{
    m_page = page;
    m_previous->setEnabled(page > 0);
    m_next->setEnabled(page + 1 < m_document.pageCount());
    m_number->setText(tr("Page %1 of %2").arg(page + 1).arg(m_document.pageCount()));
    m_canvas->setAccessibleName(m_number->text());
    showNote();
    m_isComplete = false;
    m_canvas->update();
}

void PagePreview::showNote()
{
    m_note->setVisible(m_renderer && m_renderer->shrinks(m_page));
}

bool PagePreview::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_canvas || event->type() != QEvent::Paint)
        return QWidget::eventFilter(watched, event);
    if (m_renderer)
        paintLabel(m_canvas);
    return true;
}

void PagePreview::paintLabel(QPaintDevice *device)
{
    const QSizeF label = m_renderer->labelSize();
    const QSizeF room(m_canvas->width() - 16.0, m_canvas->height() - 16.0);
    const double scale = qMin(room.width() / label.width(), room.height() / label.height());
    if (scale <= 0.0)
        return;
    QRectF area(QPointF(), label * scale);
    area.moveCenter(QRectF(m_canvas->rect()).center());
    QPainter painter(device);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    paintPicture(painter, area, scale * m_canvas->devicePixelRatioF());
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(area);
}

void PagePreview::paintPicture(QPainter &painter, const QRectF &area, double pixelsPerMillimetre)
{
    if (!m_pictures) {
        painter.drawImage(area, m_renderer->render(m_page, pixelsPerMillimetre));
        m_isComplete = true;
        return;
    }
    m_pictures->show({m_page}, pixelsPerMillimetre);
    m_isComplete = m_pictures->isComplete();
    if (const QImage *const picture = m_pictures->picture(m_page))
        painter.drawImage(area, *picture);
    else
        painter.fillRect(area, Qt::white);
}

} // namespace window
} // namespace dialog
