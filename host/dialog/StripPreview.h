// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/StripPainter.h>

#include <QAbstractScrollArea>

#include <optional>

namespace dialog {

/// The strip as it will leave the printer, with every cut, as large as the height allows. Longer strips
/// scroll, by the arrow keys too. It is spoken as the plan's words.
class StripPreview : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit StripPreview(QWidget *parent);

    /// Shows the plan; plan and renderer are borrowed until the next call or clear().
    void setPlan(const host::CutPlan &plan, const host::LabelRenderer &renderer);
    /// Shows nothing.
    void clear();
    /// The plan that is shown; null while there is none.
    const host::CutPlan *plan() const { return m_plan; }

    /// Paints only where the labels lie the next time, and all of it right afterwards, so that the
    /// window need not wait for the document's pages.
    void paintDraftFirst() { m_draftFirst = true; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void layOut();
    /// Pixels of one unit of the layout, by the font.
    double unitPixels() const;

    const host::CutPlan *m_plan = nullptr;
    const host::LabelRenderer *m_renderer = nullptr;
    std::optional<host::StripLayout> m_layout;
    double m_pixelsPerMillimetre = 1.0;
    bool m_draftFirst = false;
};

} // namespace dialog
