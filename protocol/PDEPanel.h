// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/Export.h>

#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <optional>

class QWidget;

/// One page of options that a bundle adds to the print dialog.
///
/// The dialog calls a panel in this order: panelView(), supportedPPDOptionKeys(),
/// restoreValuesAndReturnError(), willShow() whenever the panel's page comes to the front,
/// summaryInfo() for the summary, saveValuesAndReturnError() and shouldPrint() before a job, and
/// printWindowWillClose() at the end. Everything happens on the main thread.
///
/// The dialog shows what would be printed at every moment. So it asks saveValuesAndReturnError() and
/// shouldPrint() after any input, and does not always carry out what they hand over. Neither may open a
/// window.
class KV_EXPORT PDEPanel {
public:
    virtual ~PDEPanel() = default;

    /// The panel's view, loaded on the first call; null when its layout file cannot be loaded, and the
    /// next call tries again. The panel owns it; the dialog shows it in a window of its own and takes it
    /// out of that window before either ends.
    virtual QWidget *panelView() = 0;
    /// The panel's title in the dialog, in the user's language.
    virtual QString panelName() = 0;
    /// A name for the kind of panel, the same in every language.
    virtual QString panelKind() const = 0;
    /// The PPD keywords that the panel takes care of, which the dialog then leaves to it; nothing for none.
    virtual std::optional<QStringList> supportedPPDOptionKeys() = 0;

    /// The panel's page comes to the front: fill and refresh its controls.
    virtual void willShow() = 0;
    /// The dialog is about to close.
    virtual void printWindowWillClose(QWidget *window) = 0;
    /// Whether the dialog should leave the panel out where it shows only the essential pages.
    virtual bool shouldHide() const = 0;
    /// Whether a job may be sent with these settings. Asked at any time.
    virtual bool shouldPrint() = 0;
    /// Whether the dialog should offer help for the panel.
    virtual bool shouldShowHelp() const = 0;

    /// Another part of the dialog changed a PPD option. An absent keyword or choice is ignored.
    virtual void PPDOptionKeyValueDidChange(const std::optional<QString> &key,
                                            const std::optional<QString> &choice) = 0;

    /// Reads the PPD's markings into the controls. False, with the reason in error (when given), on failure.
    virtual bool restoreValuesAndReturnError(QString *error) = 0;
    /// Hands the controls' values to the dialog. False, with the reason in error (when given), on failure.
    virtual bool saveValuesAndReturnError(QString *error) = 0;

    /// The panel's lines for the dialog's summary: title to value, and the order of the titles as a
    /// list under "Summary Display Order". Nothing when the panel has no summary.
    virtual std::optional<QVariantMap> summaryInfo() = 0;
};

/// The entry of summaryInfo() that holds the titles in display order.
inline const QString PDESummaryDisplayOrderKey = QStringLiteral("Summary Display Order");
