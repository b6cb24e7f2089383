// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/PrintSession.h>
#include <platform/PrintSettings.h>

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>

/// The printing services that a panel asks: what paper the dialog has chosen, what the job's settings
/// hold, where the printer is. Every function answers a status, 0 for success, and leaves its result
/// argument untouched when it fails.

namespace platform {
inline namespace system {

using Status = std::int32_t;

/// The status values used here, as printing services have always numbered them.
inline constexpr Status noError = 0;
inline constexpr Status keyNotFound = -9589;
inline constexpr Status invalidParameter = -50;

/// A paper as the dialog's page format holds it.
struct Paper {
    /// The paper's name in the printer's PPD, or nothing for a paper the PPD does not name.
    std::optional<QString> name;
    /// Height in points: for tape and rolls, the length of one label.
    double height = 0.0;
    /// What the query for the paper, for its name and for its height answer; other than 0 stands for
    /// a query that fails, as it does when a printer is gone.
    Status paperStatus = noError;
    Status nameStatus = noError;
    Status heightStatus = noError;
};

/// The page format of a dialog: its paper, or none.
struct PageFormat {
    std::optional<Paper> paper;
};

/// The selected printer.
struct Printer {
    /// The queue's device URI, for instance "usb://Maker/Model"; nothing when it cannot be asked.
    std::optional<QString> deviceURI;
};

} // namespace system
} // namespace platform

// The names under which panels know these; all are borrowed from the dialog.
using OSStatus = platform::Status;
using PMPaper = const platform::Paper *;
using PMPageFormat = platform::PageFormat *;
using PMPrintSettings = platform::PrintSettings *;
using PMPrintSession = platform::PrintSession *;
using PMPrinter = platform::Printer *;

/// The page format's paper; null, with success, when the format has none.
OSStatus PMGetPageFormatPaper(PMPageFormat format, PMPaper *paper);
/// The paper's name in the PPD; nothing, with success, when it has none.
OSStatus PMPaperGetPPDPaperName(PMPaper paper, std::optional<QString> *name);
/// The paper's height in points.
OSStatus PMPaperGetHeight(PMPaper paper, double *height);

/// The bytes stored under the key; platform::keyNotFound when there are none.
OSStatus PMPrintSettingsGetValue(PMPrintSettings settings, const QString &key, QByteArray *value);
/// The settings as an XML property list with the same keys.
OSStatus PMPrintSettingsCreateDataRepresentation(PMPrintSettings settings, QByteArray *data);
/// The number stored in the session under the key; platform::keyNotFound when there is none.
OSStatus PMSessionGetDataFromSession(PMPrintSession session, const QString &key, std::int32_t *value);

/// First and last page of the job, counted from 1. "locked" has no meaning here: nothing else changes
/// the page range while a panel runs.
OSStatus PMGetFirstPage(PMPrintSettings settings, std::uint32_t *first);
OSStatus PMSetFirstPage(PMPrintSettings settings, std::uint32_t first, bool locked);
OSStatus PMGetLastPage(PMPrintSettings settings, std::uint32_t *last);
OSStatus PMSetLastPage(PMPrintSettings settings, std::uint32_t last, bool locked);

/// The printer's device URI; platform::keyNotFound when it cannot be had.
OSStatus PMPrinterCopyDeviceURI(PMPrinter printer, QString *uri);
