// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <vector>

namespace pictures {

/// The medium of the labels.
enum class Stock {
    Tape,        ///< laminated tape
    MarkedTape,  ///< wide tape for printers that print cut marks
    SpecialTape, ///< woven tape, which must not be cut
    LabelRoll,   ///< die-cut paper labels on a roll
};

/// What follows a label on the strip.
enum class Border {
    None,    ///< nothing; the strip continues
    HalfCut, ///< the label layer is cut, the backing is not
    FullCut, ///< label and backing are cut
    CutMark, ///< a printed mark for cutting by hand
};

/// One picture: the name by which the preview finds it, and the strip that it shows.
struct PictureSpec {
    QString name;
    Stock stock = Stock::Tape;
    std::vector<Border> borders; ///< one after each label; the last is the end of the strip at the printer
    bool chain = false;          ///< the end stays in the printer for the next job
    bool mirror = false;
};

/// Returns all pictures of the panel, those for tape first. Names are unique.
const std::vector<PictureSpec> &allPictures();

} // namespace pictures
