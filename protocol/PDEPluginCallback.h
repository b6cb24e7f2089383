// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/Export.h>
#include <platform/PrintingServices.h>

#include <QString>

#include <cups/ppd.h>

#include <optional>

/// What a panel may ask of the print dialog that hosts it, and the one way in which it changes a
/// printer option. Implemented by the host; a panel holds it for its life.
///
/// The handles belong to the dialog and stay valid as long as the callback object does.
class KV_EXPORT PDEPluginCallback13_v400_ {
public:
    virtual ~PDEPluginCallback13_v400_() = default;

    /// The dialog's print session; may be null.
    virtual PMPrintSession printSession() const = 0;
    /// The job's settings as they are now; null when the dialog has none.
    virtual PMPrintSettings printSettings() const = 0;
    /// The page format, which holds the chosen paper, as it is now; may be null.
    virtual PMPageFormat pageFormat() const = 0;
    /// The selected printer; may be null.
    virtual ::PMPrinter PMPrinter() const = 0;
    /// The printer's PPD with its current markings, open as long as the panel lives; null without a PPD.
    virtual ppd_file_t *ppdFile() const = 0;

    /// Marks the choice of the option in the PPD and records it in the job's settings, as if the user
    /// had chosen it. An absent choice, one whose keyword could not be read, changes nothing.
    virtual void willChangePPDOptionKeyValue(const QString &key, const std::optional<QString> &choice) = 0;

    /// Whether the dialog wants to hear that a panel's view has changed its size.
    virtual bool respondsToPanelViewDidResize() const { return false; }
    /// Lays the dialog out anew after a panel's view has changed its size.
    virtual void panelViewDidResize() {}
};
