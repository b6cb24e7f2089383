// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QMap>
#include <QRectF>
#include <QStringList>

#include <optional>
#include <vector>

namespace dialogwalk {

/// Option texts of a job by their names, as a printer's filter reads them.
using OptionTexts = QMap<QByteArray, QByteArray>;

/// A page of the document as one reads it, in millimetres.
struct PageFacts {
    QSizeF size;
    /// What is printed on it; absent on a blank page.
    std::optional<QRectF> ink;
};

/// A paper of the PPD, in millimetres.
struct PaperFacts {
    double width = 0.0;
    double length = 0.0;
    double leadingMargin = 0.0;
    /// What the printer cannot print at the other edges.
    double endMargin = 0.0;
    double leftMargin = 0.0;
    double rightMargin = 0.0;
};

/// What a printer's description says of cuts and papers.
struct PrinterFacts {
    /// The cut options that the printer has.
    QStringList cutKeywords;
    /// Whether it has an option of CUPS's roll printers for cuts.
    bool hasRollCutter = false;
    QMap<QByteArray, PaperFacts> papers;

    /// Reads the lines of a PPD.
    static PrinterFacts of(const QByteArray &ppd);
};

/// A label of the strip and what happens after it.
struct ExpectedLabel {
    /// Counted from 0.
    int page = 0;
    /// Along the tape, in millimetres.
    double length = 0.0;
    bool fullCut = false;
    bool halfCut = false;
    bool cutMark = false;
    bool held = false;

    /// For example "2 60.0 FH": the page from 1, its length, and F, H, M and E for full cut, half cut, mark
    /// and held end.
    QString text() const;
};

/// The strip that a printer makes of a job, by the rules of cutting alone: nothing of the program's own
/// planning is used here.
struct ExpectedStrip {
    std::vector<ExpectedLabel> labels;
    /// In millimetres, the leading margin included.
    double tape = 0.0;
    QStringList sentences;
    bool areCutsKnown = false;

    int pieces() const;
    /// Labels, pieces, tape and sentences, to be shown when a comparison fails.
    QString text() const;
};

/// The strip of the pages with these options. Absent when the options name no paper of the printer.
std::optional<ExpectedStrip> expectedStrip(const OptionTexts &options, const PrinterFacts &printer,
                                           const std::vector<PageFacts> &pages);

/// Where two strips part, a line each; empty when they are the same. Lengths may differ by what a measured
/// blank is uncertain by.
QStringList differences(const ExpectedStrip &one, const ExpectedStrip &other);

} // namespace dialogwalk
