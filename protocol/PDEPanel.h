// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/Export.h>

#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <optional>

class QWidget;

/// A page of options that a bundle adds to the print dialog.
///
/// The dialog calls a panel in this order: panelView(), supportedPPDOptionKeys() and
/// restoreValuesAndReturnError(); willShow() each time the panel's page is shown; summaryInfo() for the
/// summary; saveValuesAndReturnError() and shouldPrint() before a job; printWindowWillClose() at the end. All
/// calls are made on the main thread.
///
/// The dialog shows at every moment what would be printed. It therefore calls saveValuesAndReturnError() and
/// shouldPrint() after each input and does not always use their results. Neither function may open a window.
class KV_EXPORT PDEPanel {
public:
    virtual ~PDEPanel() = default;

    /// Returns the panel's view, which is loaded on the first call; null if its layout file cannot be loaded,
    /// in which case the next call tries again. The panel owns the view. The dialog places it in a window of
    /// the dialog and removes it from that window before either is destroyed.
    virtual QWidget *panelView() = 0;
    /// Returns the panel's title in the dialog, in the user's language.
    virtual QString panelName() = 0;
    /// Returns a name for the kind of panel, which is the same in every language.
    virtual QString panelKind() const = 0;
    /// Returns the PPD keywords that the panel handles; the dialog leaves these options to the panel. Returns
    /// std::nullopt if there are none.
    virtual std::optional<QStringList> supportedPPDOptionKeys() = 0;

    /// Called when the panel's page is shown. The panel fills and refreshes its controls.
    virtual void willShow() = 0;
    /// Called before the dialog closes. window is the dialog's window; may be null.
    virtual void printWindowWillClose(QWidget *window) = 0;
    /// Returns whether the dialog should hide the panel where it shows only the essential pages.
    virtual bool shouldHide() const = 0;
    /// Returns whether a job may be sent with these settings. Can be called at any time.
    virtual bool shouldPrint() = 0;
    /// Returns whether the dialog should offer help for the panel.
    virtual bool shouldShowHelp() const = 0;

    /// Called when another part of the dialog has changed a PPD option. An absent keyword or choice is
    /// ignored.
    virtual void PPDOptionKeyValueDidChange(const std::optional<QString> &key,
                                            const std::optional<QString> &choice) = 0;

    /// Sets the controls to the choices that are marked in the PPD. On failure, returns false and stores the
    /// reason in error, which may be null.
    virtual bool restoreValuesAndReturnError(QString *error) = 0;
    /// Passes the values of the controls to the dialog. On failure, returns false and stores the reason in
    /// error, which may be null.
    virtual bool saveValuesAndReturnError(QString *error) = 0;

    /// Returns the panel's lines for the dialog's summary: a map of titles to values, with the list of the
    /// titles in display order under PDESummaryDisplayOrderKey. Returns std::nullopt if the panel has no
    /// summary.
    virtual std::optional<QVariantMap> summaryInfo() = 0;
};

/// The key in summaryInfo() of the list of titles in display order.
inline const QString PDESummaryDisplayOrderKey = QStringLiteral("Summary Display Order");
