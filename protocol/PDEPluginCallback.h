// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/Export.h>
#include <platform/PrintingServices.h>

#include <QString>

#include <cups/ppd.h>

#include <optional>

/// The interface of a print dialog for its panels: gives access to the dialog's state, and is the only way in
/// which a panel changes a printer option. The host implements it; a panel holds it as long as the panel
/// exists.
///
/// The dialog owns the handles; they are valid as long as the callback object exists.
class KV_EXPORT PDEPluginCallback13_v400_ {
public:
    virtual ~PDEPluginCallback13_v400_() = default;

    /// Returns the dialog's print session; may be null.
    virtual PMPrintSession printSession() const = 0;
    /// Returns the job's current settings; null if the dialog has none.
    virtual PMPrintSettings printSettings() const = 0;
    /// Returns the current page format, which holds the chosen paper; may be null.
    virtual PMPageFormat pageFormat() const = 0;
    /// Returns the selected printer; may be null.
    virtual ::PMPrinter PMPrinter() const = 0;
    /// Returns the printer's PPD with its current marks, which is open as long as the panel exists; null if
    /// the printer has no PPD.
    virtual ppd_file_t *ppdFile() const = 0;

    /// Marks the choice of the option in the PPD and records it in the job's settings, as if the user had
    /// chosen it. An absent choice, which means that its keyword could not be read, changes nothing.
    virtual void willChangePPDOptionKeyValue(const QString &key, const std::optional<QString> &choice) = 0;

    /// Returns whether the dialog handles panelViewDidResize().
    virtual bool respondsToPanelViewDidResize() const { return false; }
    /// Updates the dialog's layout after the size of a panel's view has changed.
    virtual void panelViewDidResize() {}
};
