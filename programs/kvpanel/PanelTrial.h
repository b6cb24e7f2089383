// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "BreachList.h"

#include <host/panels/DialogState.h>
#include <host/panels/PanelHost.h>
#include <protocol/PDEPlugIn.h>

#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

/// What a call of the protocol may do.
struct CallRules {
    /// The dialog carries out the changes that the panel requests. Otherwise it only collects them, as it
    /// does when it reads what the panel would save, and the marks of the PPD must stay the same.
    bool carriesOut = false;
    /// The panel may request changes of options.
    bool mayRequest = false;
    /// The panel may open windows.
    bool mayOpenWindows = false;
};

/// The calls of the protocol by their rules: the dialog notifies the panel; the same without a user who could
/// answer a window; the panel saves; the dialog asks.
inline constexpr CallRules notifies{true, true, true};
inline constexpr CallRules notifiesQuietly{true, true, false};
inline constexpr CallRules saves{false, true, false};
inline constexpr CallRules asks{false, false, false};

/// One panel under check: calls it as a dialog does, and reports what every call must not do. Stands for the
/// dialog and for the window that the view is placed in.
class PanelTrial {
public:
    /// A trial of the panel, which must outlive it. The metadata's "Keywords" limit what the panel may claim.
    PanelTrial(PDEPanel &panel, PDEPlugInFactory &factory, std::shared_ptr<host::DialogState> dialog,
               std::shared_ptr<host::PanelHost> host, QStringList metadataKeywords, BreachList &breaches);
    /// Removes the view from the window, as the protocol promises to the panel.
    ~PanelTrial();
    PanelTrial(const PanelTrial &) = delete;
    PanelTrial &operator=(const PanelTrial &) = delete;

    /// Runs the function, which calls the panel. Returns the changes that the panel requested, each keyword
    /// once with its last choice; absent if the call threw an exception. Reports an exception, windows, marks
    /// and requests that the rules exclude, requests for options that the panel does not handle or choices
    /// that the PPD does not have, and a view that does not exist any more.
    std::optional<PDEChoices> call(const CallRules &rules, const std::function<void()> &function);

    /// Lets the panel save. Returns the choices that it saves; absent after an exception. Breaches belong to
    /// saveValuesAndReturnError(), whatever check needs the choices.
    std::optional<PDEChoices> save();
    /// Lets the panel restore its controls from the marks. Breaches belong to restoreValuesAndReturnError().
    void restore();

    /// Marks the choice, as another part of the dialog does, without notifying the panel.
    void mark(const QString &keyword, const QString &choice);

    /// Places the view in the window and shows it.
    void placeView(QWidget *view);
    /// The view; null before placeView() and after the panel has deleted it. Owned by the panel.
    QWidget *view() const { return m_view; }
    /// The window; it is never visible on the screen.
    QWidget &window() { return m_window; }

    /// The keywords that the panel handles; absent until setHandled() is called.
    void setHandled(const QStringList &keywords) { m_handled = keywords; }
    QStringList handled() const { return m_handled.value_or(QStringList()); }
    /// The names of the option's choices in the PPD; empty if the PPD does not have the option.
    QStringList choicesOf(const QString &keyword) const;
    /// Whether the PPD has the option and the choice, which may be a custom value.
    bool hasChoice(const QString &keyword, const QString &choice) const;

    /// The panel, its bundle's factory, the dialog's state, and what the metadata lists.
    PDEPanel &panel() const { return m_panel; }
    PDEPlugInFactory &factory() const { return m_factory; }
    host::DialogState &dialog() const { return *m_dialog; }
    const QStringList &metadataKeywords() const { return m_metadataKeywords; }
    /// Adds a breach of the current call.
    void report(const QString &expected, const QString &happened) { m_breaches.report(expected, happened); }

private:
    void checkRequests(const CallRules &rules, const PDEChoices &requested);
    void checkView();

    PDEPanel &m_panel;
    PDEPlugInFactory &m_factory;
    std::shared_ptr<host::DialogState> m_dialog;
    std::shared_ptr<host::PanelHost> m_host;
    QStringList m_metadataKeywords;
    BreachList &m_breaches;
    std::optional<QStringList> m_handled;
    QWidget m_window;
    QPointer<QWidget> m_view;
    bool m_isViewPlaced = false;
};

/// The choices as text, for messages: "KvMirror=ON KvHalfCut=OFF", or "no choice".
QString choicesText(const PDEChoices &choices);
