// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/Export.h>
#include <platform/PrintingServices.h>

#include <QString>

#include <cups/ppd.h>

#include <optional>

/// Dumps of the data that a panel works on. The names are fixed, see Trace.h.
// NOLINTBEGIN(bugprone-reserved-identifier)

/// Logs an option of the PPD with its first choice, one field a record, texts decoded in the system
/// encoding. A null PPD or keyword, or an option that the PPD does not hold, is told in one record.
///
/// The flags "conflicted" and "marked" are shown as the text that begins at the flag: empty while it is
/// off, and else the flag itself as a control character and the field that follows it in memory.
extern "C" KV_EXPORT void _PDELog_ppd_option_t(ppd_file_t *ppd, const char *keyword);

/// Writes the print settings as an XML property list to the file KvPDE_NAME.plist in the root folder,
/// whole or not at all. Null settings or an absent name write nothing, and neither does a process that
/// may not write there.
extern "C" KV_EXPORT void _PDELog_PMPrintSettings_WriteToFile(PMPrintSettings settings,
                                                              const std::optional<QString> &name);

// NOLINTEND(bugprone-reserved-identifier)
