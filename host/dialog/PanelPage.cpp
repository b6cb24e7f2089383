// SPDX-License-Identifier: Apache-2.0
#include "PanelPage.h"

#include <QLayout>

namespace dialog {

PanelPage::PanelPage(PDEPanel &panel, QWidget *parent)
    : QScrollArea(parent)
    , m_panel(panel)
    , m_view(panel.panelView())
    , m_frame(new QWidget)
{
    setFrameShape(QFrame::NoFrame);
    m_view->setParent(m_frame);
    m_view->move(0, 0);
    m_view->show();
    setWidget(m_frame);
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    fitView();
}

PanelPage::~PanelPage()
{
    m_view->hide();
    m_view->setParent(nullptr);
}

void PanelPage::fitView()
{
    // The panel lays its view out itself; the page only gives it the room it has taken.
    m_frame->setFixedSize(m_view->size());
    setMinimumSize(m_view->size() + QSize(2 * frameWidth(), 2 * frameWidth()));
}

} // namespace dialog
