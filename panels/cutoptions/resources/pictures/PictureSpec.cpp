// SPDX-License-Identifier: Apache-2.0
#include "PictureSpec.h"

#include <initializer_list>

namespace pictures {

namespace {

constexpr bool offAndOn[] = {false, true};

QString name(const char *prefix, std::initializer_list<bool> options)
{
    QString text = QString::fromLatin1(prefix);
    for (const bool on : options)
        text += on ? QStringLiteral("On") : QStringLiteral("Off");
    return text;
}

/// Returns a strip of three labels. The automatic cut alone cuts after each label. Together with half cut the
/// picture shows a full cut after every second label, since half cuts are only made where the tape is not cut
/// through.
PictureSpec tape(bool autoCut, bool halfCut, bool chain, bool mirror)
{
    const Border everyLabel = halfCut ? Border::HalfCut : autoCut ? Border::FullCut : Border::None;
    const Border everySecond = autoCut ? Border::FullCut : everyLabel;
    const Border end = autoCut && !chain ? Border::FullCut : Border::None;
    return {name("AHCM", {autoCut, halfCut, chain, mirror}),
            Stock::Tape,
            {everyLabel, everySecond, end},
            chain,
            mirror};
}

PictureSpec specialTape(bool mirror)
{
    return {name("SPMR", {true, mirror}),
            Stock::SpecialTape,
            {Border::None, Border::None, Border::None},
            false,
            mirror};
}

/// Returns a strip of two labels with a mark between them and at the end of the strip. None of these pictures
/// is mirrored.
PictureSpec markedTape(bool mark, bool chain)
{
    const Border border = mark ? Border::CutMark : Border::None;
    return {name("CTMR", {mark, chain, false}), Stock::MarkedTape, {border, border}, chain, false};
}

/// Returns a roll of two labels. A cut after every label includes the cut at the end, so only three
/// combinations exist.
PictureSpec labelRoll(bool every, bool end, bool mirror)
{
    const Border last = every || end ? Border::FullCut : Border::None;
    return {name("EveryEndMirror", {every, end, mirror}),
            Stock::LabelRoll,
            {every ? last : Border::None, last},
            false,
            mirror};
}

std::vector<PictureSpec> makeAll()
{
    std::vector<PictureSpec> all;
    for (const bool autoCut : offAndOn)
        for (const bool halfCut : offAndOn)
            for (const bool chain : offAndOn)
                for (const bool mirror : offAndOn)
                    all.push_back(tape(autoCut, halfCut, chain, mirror));
    for (const bool mirror : offAndOn)
        all.push_back(specialTape(mirror));
    for (const bool mark : {true, false})
        for (const bool chain : offAndOn)
            all.push_back(markedTape(mark, chain));
    for (const bool mirror : offAndOn) {
        all.push_back(labelRoll(false, false, mirror));
        all.push_back(labelRoll(false, true, mirror));
        all.push_back(labelRoll(true, false, mirror));
    }
    return all;
}

} // namespace

const std::vector<PictureSpec> &allPictures()
{
    static const std::vector<PictureSpec> all = makeAll();
    return all;
}

} // namespace pictures
