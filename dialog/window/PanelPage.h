// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/panels/HostedPanel.h>

#include <QPointer>
#include <QWidget>

class QLayout;
class QScrollArea;

namespace dialog {
inline namespace options {
class ConflictNote;
} // namespace options
} // namespace dialog

namespace dialog {
inline namespace window {

/// Shows a bundle's panel, above it the conflicts of the panel's settings, and below it a button for its help
/// if the panel has any. The page lays out the view when it is shown for the first time: a page that stays
/// behind another one does not delay the opening of the dialog.
class PanelPage : public QWidget {
    Q_OBJECT

public:
    /// The panel is not owned and must outlive the page. Its view must be loaded already; the page shows the
    /// view without owning it. If the panel has deleted its view, the page is empty.
    PanelPage(host::HostedPanel &panel, QWidget *parent);
    /// Hides the view and removes it from the page.
    ~PanelPage() override;

    /// The panel that the page shows.
    host::HostedPanel &panel() const { return m_panel; }
    /// Adapts the page to the current size of the view.
    void fitView();
    /// Shows the sentences that describe conflicts above the panel; an empty list removes them.
    void setConflicts(const QStringList &sentences);
    /// The room that the view needs, even before the page is shown.
    QSize minimumSizeHint() const override;

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void addContents();
    void addHelp(QLayout *layout);
    QSize viewSize() const;
    void postLaidOut() const;

    host::HostedPanel &m_panel;
    /// Null when the panel has deleted it.
    QPointer<QWidget> m_view;
    QStringList m_conflicts;
    // Null until the page is first shown.
    QWidget *m_frame = nullptr;
    QScrollArea *m_scrolled = nullptr;
    ConflictNote *m_note = nullptr;
};

} // namespace window
} // namespace dialog
