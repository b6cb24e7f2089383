// SPDX-License-Identifier: Apache-2.0
#include "SampleLabels.h"

#include <tests/samples/SamplePdf.h>

namespace dialogwalk {

SampleLabels::SampleLabels()
{
    // Lying, standing, blank, and small: each is laid on a label in another way.
    m_pages = {{QSizeF(60, 24), QRectF(10, 4, 30, 12)},
               {QSizeF(24, 50), QRectF(4, 5, 10, 20)},
               {QSizeF(60, 24), std::nullopt},
               {QSizeF(30, 9), QRectF(6, 2, 8, 4)}};
    std::vector<SamplePage> pages;
    for (const PageFacts &facts : m_pages) {
        const auto draw = [ink = facts.ink](QPainter &painter) {
            const double unit = mm;
            if (ink)
                painter.fillRect(QRectF(ink->topLeft() * unit, ink->size() * unit), Qt::black);
        };
        pages.push_back({facts.size * mm, draw});
    }
    m_path = writePdf(m_sandbox, QStringLiteral("labels.pdf"), pages);
}

} // namespace dialogwalk
