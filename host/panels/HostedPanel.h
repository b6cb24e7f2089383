// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PanelGuard.h"
#include "PanelSession.h"
#include "PanelSettings.h"

#include <protocol/PDELabelStrip.h>

#include <QWidget>

#include <optional>

namespace host {
inline namespace panels {

/// A panel as the dialog sees it: the calls of the protocol with its optional interfaces, made under the
/// bundle's guard. After an error of the bundle, its panels answer like panels without options.
class HostedPanel {
public:
    /// The panel is one of the session's. Both are shared with the other panels of the bundle.
    HostedPanel(std::shared_ptr<PanelSession> session, std::shared_ptr<PDEPanel> panel,
                std::shared_ptr<PanelGuard> guard);
    ~HostedPanel();
    HostedPanel(const HostedPanel &) = delete;
    HostedPanel &operator=(const HostedPanel &) = delete;

    /// The callback object of the panel's bundle.
    PanelHost &host() const { return m_session->host(); }
    /// The guard of the panel's bundle.
    PanelGuard &guard() const { return *m_guard; }

    /// Asks the panel for the PPD keywords that it handles. Must be called before the panel's view is loaded:
    /// a panel writes its settings when it is asked for its keywords, and controls that are loaded but not
    /// filled yet would replace the marked choices of the PPD.
    QStringList askForKeywords();
    /// The keywords whose options the dialog leaves to this panel, as set by setKeywords().
    const QStringList &keywords() const { return m_keywords; }
    void setKeywords(const QStringList &keywords) { m_keywords = keywords; }

    /// The panel's view, which is loaded on the first call; null if it cannot be loaded or if the panel has
    /// deleted it. Owned by the panel.
    QWidget *view();
    /// The panel's title for the user.
    QString title() const;

    /// The calls of the protocol; see PDEPanel. restore() returns the reason if it fails.
    void willShow();
    void printWindowWillClose(QWidget *window);
    std::optional<QString> restore();
    void save();
    /// Returns what the panel would save, and whether it lets the job be printed. Runs the panel's save and
    /// check operations without carrying out the changes that they request, so that nothing changes and
    /// further calls return the same.
    PanelSettings settings() const;
    /// Returns the panel's lines of the summary for these choices; absent if it has none.
    std::optional<QVariantMap> summary(const PDEChoices &choices) const;
    /// The panel's help as plain text; absent if it has none.
    std::optional<QString> helpText() const;

    /// The choices that the panel's controls show; empty if it does not report them.
    PDEChoices shownChoices() const;
    /// Sets choices as if the user had made them; does nothing if the panel does not support it.
    void applyUserChoices(const PDEChoices &choices);
    /// What the choices do to the labels. If the panel does not report it, its options are assumed not to
    /// concern the cutting.
    PDEStripEffects stripEffects(const PDEChoices &choices, std::span<const PDELabel> labels) const;
    /// Why the control of the option is disabled; absent if it is not, or if the reason is not known.
    std::optional<QString> reasonForDisabled(const QString &keyword) const;

private:
    void readSettings(PanelSettings &settings) const;

    // Destroyed in reverse order: the panel before its bundle.
    std::shared_ptr<PanelGuard> m_guard;
    std::shared_ptr<PanelSession> m_session;
    std::shared_ptr<PDEPanel> m_panel;
    QStringList m_keywords;
};

} // namespace panels
} // namespace host
