// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <vector>

namespace pictures {

/// What the labels are printed on.
enum class Stock {
    Tape,        ///< laminated tape
    MarkedTape,  ///< wide tape of printers that print cut marks
    SpecialTape, ///< woven tape, which no blade may touch
    LabelRoll,   ///< die-cut paper labels on a roll
};

/// What the printer leaves after a label.
enum class Border {
    None,    ///< the strip goes on
    HalfCut, ///< the label layer is cut, the backing holds
    FullCut, ///< label and backing are cut
    CutMark, ///< a printed mark, for cutting by hand
};

/// One picture: its name, by which the preview looks for it, and what the strip in it looks like.
struct PictureSpec {
    QString name;
    Stock stock = Stock::Tape;
    std::vector<Border> borders; ///< one after each label; the last is the strip's end at the printer
    bool chain = false;          ///< the end stays in the printer, for the next job
    bool mirror = false;
};

/// All pictures of the panel, those for tape first, each name once.
const std::vector<PictureSpec> &allPictures();

} // namespace pictures
