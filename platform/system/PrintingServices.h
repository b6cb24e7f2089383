// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/PrintSession.h>
#include <platform/PrintSettings.h>

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>

/// The printing services for panels: the paper that is chosen in the dialog, the settings of the job, the
/// address of the printer. Every function returns a status, 0 for success, and leaves its result argument
/// unchanged on failure. A null object yields platform::invalidParameter.

namespace platform {
inline namespace system {

/// The status that a printing service returns; 0 for success.
using Status = std::int32_t;

/// The status values in use, with the numbers that they always have in printing services.
inline constexpr Status noError = 0;
inline constexpr Status keyNotFound = -9589;
inline constexpr Status invalidParameter = -50;

/// A paper in the dialog's page format.
struct Paper {
    /// The paper's name in the printer's PPD; absent for a paper that the PPD does not name.
    std::optional<QString> name;
    /// The height in points; for tape and rolls, the length of one label.
    double height = 0.0;
    /// The status of the queries for the paper, its name and its height. A value other than 0 makes the query
    /// fail, as it does for a printer that has been removed.
    Status paperStatus = noError;
    Status nameStatus = noError;
    Status heightStatus = noError;
};

/// The page format of a dialog: its paper, which may be absent.
struct PageFormat {
    std::optional<Paper> paper;
};

/// The selected printer.
struct Printer {
    /// The queue's device URI, for example "usb://Maker/Model"; absent if it cannot be determined.
    std::optional<QString> deviceURI;
};

} // namespace system
} // namespace platform

// The names that panels use for these types. The dialog owns the objects.
using OSStatus = platform::Status;
using PMPaper = const platform::Paper *;
using PMPageFormat = platform::PageFormat *;
using PMPrintSettings = platform::PrintSettings *;
using PMPrintSession = platform::PrintSession *;
using PMPrinter = platform::Printer *;

/// Returns the page format's paper, or, also with success, null if it has none.
OSStatus PMGetPageFormatPaper(PMPageFormat format, PMPaper *paper);
/// Returns the paper's name in the PPD, or, also with success, an absent name if it has none.
OSStatus PMPaperGetPPDPaperName(PMPaper paper, std::optional<QString> *name);
/// Returns the paper's height in points.
OSStatus PMPaperGetHeight(PMPaper paper, double *height);

/// Returns the bytes that are stored under the key; fails with platform::keyNotFound if there are none.
OSStatus PMPrintSettingsGetValue(PMPrintSettings settings, const QString &key, QByteArray *value);
/// Returns the settings as an XML property list with the same keys.
OSStatus PMPrintSettingsCreateDataRepresentation(PMPrintSettings settings, QByteArray *data);
/// Returns the number that is stored in the session under the key; fails with platform::keyNotFound if there
/// is none.
OSStatus PMSessionGetDataFromSession(PMPrintSession session, const QString &key, std::int32_t *value);

/// Return and set the first and the last page of the job, counted from 1. locked has no effect: nothing else
/// changes the page range while a panel runs.
OSStatus PMGetFirstPage(PMPrintSettings settings, std::uint32_t *first);
OSStatus PMSetFirstPage(PMPrintSettings settings, std::uint32_t first, bool locked);
OSStatus PMGetLastPage(PMPrintSettings settings, std::uint32_t *last);
OSStatus PMSetLastPage(PMPrintSettings settings, std::uint32_t last, bool locked);

/// Returns the printer's device URI; fails with platform::keyNotFound if it is absent.
OSStatus PMPrinterCopyDeviceURI(PMPrinter printer, QString *uri);
