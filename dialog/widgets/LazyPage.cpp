// SPDX-License-Identifier: Apache-2.0
#include "LazyPage.h"

#include <QVBoxLayout>

namespace dialog {
inline namespace widgets {

LazyPage::LazyPage(Maker maker, QWidget *parent)
    : QWidget(parent)
    , m_maker(std::move(maker))
{
}

void LazyPage::showEvent(QShowEvent *event)
{
    if (const Maker maker = std::exchange(m_maker, nullptr)) {
        auto *const layout = new QVBoxLayout(this);
        layout->setContentsMargins({});
        QWidget *const content = maker(this);
        layout->addWidget(content);
        // The layout would show the content only after the page has been painted empty.
        content->show();
    }
    QWidget::showEvent(event);
}

} // namespace widgets
} // namespace dialog
