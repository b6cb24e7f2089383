// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/panels/PanelSession.h>

#include <QPointer>
#include <QWidget>

class QScrollArea;

namespace dialog {
inline namespace options {
class ConflictNote;
} // namespace options
} // namespace dialog

namespace dialog {
inline namespace window {

/// The page that shows a bundle's panel, and above it what is wrong with the panel's settings.
class PanelPage : public QWidget {
    Q_OBJECT

public:
    /// The panel is borrowed, and so is its view, which is given back when the page ends. The view must
    /// have been loaded.
    PanelPage(PDEPanel &panel, QWidget *parent);
    ~PanelPage() override;

    PDEPanel &panel() const { return m_panel; }
    /// Makes room for the view as it is now.
    void fitView();
    /// Shows these sentences above the panel; none takes them away.
    void setConflicts(const QStringList &sentences);

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void postLaidOut() const;

    PDEPanel &m_panel;
    /// Null once the panel has lost it.
    QPointer<QWidget> m_view;
    QWidget *m_frame;
    QScrollArea *m_scrolled;
    ConflictNote *m_note;
};

} // namespace window
} // namespace dialog
