// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/PanelSession.h>

#include <QScrollArea>

namespace dialog {

/// The page that shows a bundle's panel.
class PanelPage : public QScrollArea {
    Q_OBJECT

public:
    /// The panel is borrowed, and so is its view, which is given back when the page ends. The view must
    /// have been loaded.
    PanelPage(PDEPanel &panel, QWidget *parent);
    ~PanelPage() override;

    PDEPanel &panel() const { return m_panel; }
    /// Makes room for the view as it is now.
    void fitView();

private:
    PDEPanel &m_panel;
    QWidget *m_view;
    QWidget *m_frame;
};

} // namespace dialog
