// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMarginsF>
#include <QRectF>
#include <QSizeF>
#include <QStringList>

#include <optional>

// The program that lays out PDFs is compiled as C++17, for the headers of libqpdf.

namespace host {
inline namespace layout {

/// How large a page is on the label; the names in comments are those of IPP's "print-scaling" (PWG 5100.13).
enum class Scaling {
    ShrinkLarge, ///< "auto": a page larger than the label is shrunk to the printable area
    Fit,         ///< "fit": shrunk or enlarged to the printable area
    Fill,        ///< "fill": fills the whole label; what does not fit on it is cut off
    ActualSize,  ///< "none": neither shrunk nor enlarged
};

/// How a page is turned on the label, seen with the edge of the label that leaves the printer first at the
/// top.
enum class Turning {
    Automatic,        ///< clockwise if the page is landscape and the label portrait, or the reverse
    Upright,          ///< not turned: IPP "orientation-requested" 3
    CounterClockwise, ///< landscape, 4
    Clockwise,        ///< reverse-landscape, 5
    UpsideDown,       ///< reverse-portrait, 6
};

/// Where a page lies that is smaller or larger than the label.
enum class Alignment { Start, Center, End };

/// The place of one page on a label.
struct PagePlacement {
    /// Clockwise quarter turns, 0 to 3.
    int quarterTurns = 0;
    double scale = 1.0;
    /// The area of the turned page, in points from the upper left corner of the label. It may be larger than
    /// the label.
    QRectF area;

    /// Whether the page is turned to its side.
    bool isOnSide() const { return quarterTurns % 2 != 0; }
};

/// The rule by which pages are laid out on one paper. The strip shows pages where this rule places them, and
/// the job contains pages of exactly the paper's size on which they lie there.
///
/// Lengths are in points. The paper is seen with the edge that leaves the printer first at the top.
struct PageLayout {
    /// A paper whose whole area is printable. Implicit: a size is the simplest layout.
    PageLayout(QSizeF paperSize = {}); // NOLINT(google-explicit-constructor)
    /// Margins that leave no printable area are ignored.
    PageLayout(QSizeF paperSize, const QMarginsF &unprintable);

    /// Width, across the tape, and length.
    QSizeF paper;
    /// What the printer cannot print at the edges (PPD "ImageableArea").
    QMarginsF margins;
    Scaling scaling = Scaling::ShrinkLarge;
    Turning turning = Turning::Automatic;
    /// Across the tape, from left to right, and along it, from top to bottom.
    Alignment across = Alignment::Center;
    Alignment along = Alignment::Center;

    /// The area that the printer can print, from the upper left corner of the paper.
    QRectF printableArea() const;
    /// Returns the place of a page of this size, as it is read. The size must not be empty.
    PagePlacement place(QSizeF page) const;
    /// Returns whether a page of this size, placed like this, is sent as it is: it fills the paper unscaled
    /// and upright. PDFs round sizes, often to whole points; half a point is no difference.
    bool isUnchanged(QSizeF page, const PagePlacement &placement) const;

    /// Returns the layout as arguments for a program, and the reverse; absent if the arguments are not a
    /// layout.
    QStringList arguments() const;
    static std::optional<PageLayout> fromArguments(const QStringList &arguments);

private:
    int quarterTurns(QSizeF page) const;
    double scaleFor(QSizeF turned) const;
};

bool operator==(const PageLayout &left, const PageLayout &right);
inline bool operator!=(const PageLayout &left, const PageLayout &right)
{
    return !(left == right);
}

} // namespace layout
} // namespace host
