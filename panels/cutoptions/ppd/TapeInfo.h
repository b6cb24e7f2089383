// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/Export.h>
#include <platform/PrintingServices.h>

#include <QString>

#include <cups/ppd.h>

#include <cstdint>
#include <optional>

/// What a paper's name and origin tell about the tape, which decides which cut options make sense.
enum TapeKind : std::int32_t {
    /// An ordinary paper of the PPD, or one about which nothing is known.
    TapeKindPlain = 0,
    /// A paper of the PPD whose name begins with "DC", "AV" or "FL": die-cut, address and flag labels,
    /// whose length is fixed by the material.
    TapeKindFixedLength = 1,
    /// A paper that the PPD does not name; its name, if it has one, came with the print settings.
    TapeKindUnlisted = 2,
};

/// The chosen paper as the panel needs it.
struct TapeInfo {
    /// Length in millimetres, from the paper's height; 100 until a height other than 0 is known.
    double length = 100.0;
    std::int32_t kind = TapeKindPlain;
    /// The paper's name in the PPD or, for a paper without one, the name from the print settings.
    std::optional<QString> paperName;
};

/// The page range of the job; both 0 until read.
struct PageRangeInfo {
    std::int32_t firstPage = 0;
    std::int32_t lastPage = 0;
};

extern "C" {

/// Fills the record from the dialog's page format and the PPD's page sizes. Answers 0, or the status
/// of the printing service that failed; the record then keeps what was filled until then. A paper
/// that is missing or has no name is no failure. The session is not used; a null PPD is one
/// without page sizes.
KV_EXPORT OSStatus GetTapeInfo(PMPrintSession session, PMPrintSettings settings, PMPageFormat format,
                               ppd_file_t *ppd, TapeInfo *info);

/// Fills the record's paper name from the ticket that the printer's other software leaves in the print
/// settings: a property list whose entry "LxPaperName2" is the name. Nothing when there is no ticket or it
/// cannot be read. Always answers 0.
KV_EXPORT OSStatus GetTapeInfo2(PMPrintSession session, PMPrintSettings settings, TapeInfo *info);

/// Reads the number that the session holds under the key. Answers 0, or -30891, leaving the value
/// untouched, when there is none.
KV_EXPORT OSStatus GetTicketFromSession(PMPrintSession session, const QString &key, std::int32_t *value);

/// Reads the job's page range and writes it back unlocked. Answers the status of the last printing
/// service called.
KV_EXPORT OSStatus GetTapeInfo3(PMPrintSettings settings, PageRangeInfo *info);

/// The nearest integer, halves away from zero.
KV_EXPORT long RoundDouble(double value);
/// Millimetres to inches, and back, by the same constant.
KV_EXPORT double MiriToInch(double millimetres);
KV_EXPORT double InchToMiri(double inches);

} // extern "C"

/// The key in the print settings under which the printer's other software leaves its ticket.
inline const QString PrintSettingsTicketKey = QStringLiteral("com.tarvick.print.PrintSettingsTicket.LxE5");

/// The PPD name of the page format's paper as bytes in UTF-8, at most 255 of them; empty when there is
/// none. This is what papers are told apart by: the PPD's names are compared byte for byte.
QByteArray ppdPaperName(PMPageFormat format);
