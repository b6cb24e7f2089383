// SPDX-License-Identifier: Apache-2.0
// What each picture shows, row by row.
#include <resources/pictures/PictureSpec.h>

#include <gtest/gtest.h>

#include <map>
#include <ostream>

using namespace pictures;

namespace {

struct Row {
    const char *name;
    Stock stock;
    const char *borders; // . nothing, h half cut, F full cut, m cut mark; one after each label
    bool chain;
    bool mirror;
};

std::ostream &operator<<(std::ostream &stream, const Row &row)
{
    return stream << row.name;
}

constexpr Row rows[] = {
    {"AHCMOffOffOffOff", Stock::Tape, "...", false, false},
    {"AHCMOffOffOffOn", Stock::Tape, "...", false, true},
    {"AHCMOffOffOnOff", Stock::Tape, "...", true, false},
    {"AHCMOffOffOnOn", Stock::Tape, "...", true, true},
    {"AHCMOffOnOffOff", Stock::Tape, "hh.", false, false},
    {"AHCMOffOnOffOn", Stock::Tape, "hh.", false, true},
    {"AHCMOffOnOnOff", Stock::Tape, "hh.", true, false},
    {"AHCMOffOnOnOn", Stock::Tape, "hh.", true, true},
    {"AHCMOnOffOffOff", Stock::Tape, "FFF", false, false},
    {"AHCMOnOffOffOn", Stock::Tape, "FFF", false, true},
    {"AHCMOnOffOnOff", Stock::Tape, "FF.", true, false},
    {"AHCMOnOffOnOn", Stock::Tape, "FF.", true, true},
    {"AHCMOnOnOffOff", Stock::Tape, "hFF", false, false},
    {"AHCMOnOnOffOn", Stock::Tape, "hFF", false, true},
    {"AHCMOnOnOnOff", Stock::Tape, "hF.", true, false},
    {"AHCMOnOnOnOn", Stock::Tape, "hF.", true, true},
    {"SPMROnOff", Stock::SpecialTape, "...", false, false},
    {"SPMROnOn", Stock::SpecialTape, "...", false, true},
    {"CTMROnOffOff", Stock::MarkedTape, "mm", false, false},
    {"CTMROnOnOff", Stock::MarkedTape, "mm", true, false},
    {"CTMROffOffOff", Stock::MarkedTape, "..", false, false},
    {"CTMROffOnOff", Stock::MarkedTape, "..", true, false},
    {"EveryEndMirrorOffOffOff", Stock::LabelRoll, "..", false, false},
    {"EveryEndMirrorOffOnOff", Stock::LabelRoll, ".F", false, false},
    {"EveryEndMirrorOnOffOff", Stock::LabelRoll, "FF", false, false},
    {"EveryEndMirrorOffOffOn", Stock::LabelRoll, "..", false, true},
    {"EveryEndMirrorOffOnOn", Stock::LabelRoll, ".F", false, true},
    {"EveryEndMirrorOnOffOn", Stock::LabelRoll, "FF", false, true},
};

std::vector<Border> bordersFrom(const char *text)
{
    static const std::map<char, Border> letters{
        {'.', Border::None}, {'h', Border::HalfCut}, {'F', Border::FullCut}, {'m', Border::CutMark}};
    std::vector<Border> borders;
    for (; *text; ++text)
        borders.push_back(letters.at(*text));
    return borders;
}

std::vector<PictureSpec> named(const QString &name)
{
    std::vector<PictureSpec> found;
    for (const PictureSpec &spec : allPictures()) {
        if (spec.name == name)
            found.push_back(spec);
    }
    return found;
}

class PictureSpecRow : public testing::TestWithParam<Row> {};

TEST_P(PictureSpecRow, showsItsCombination)
{
    const Row &row = GetParam();
    const std::vector<PictureSpec> found = named(QString::fromLatin1(row.name));
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].stock, row.stock);
    EXPECT_EQ(found[0].borders, bordersFrom(row.borders));
    EXPECT_EQ(found[0].chain, row.chain);
    EXPECT_EQ(found[0].mirror, row.mirror);
}

INSTANTIATE_TEST_SUITE_P(All, PictureSpecRow, testing::ValuesIn(rows),
                         [](const testing::TestParamInfo<Row> &row) { return std::string(row.param.name); });

} // namespace

TEST(PictureSpec, hasNoOtherPictures)
{
    EXPECT_EQ(allPictures().size(), std::size(rows));
}

TEST(PictureSpec, endsUncutWheneverTheEndIsHeld)
{
    for (const PictureSpec &spec : allPictures()) {
        if (spec.chain) {
            EXPECT_NE(spec.borders.back(), Border::FullCut) << qPrintable(spec.name);
        }
    }
}

TEST(PictureSpec, neverEndsWithAHalfCut)
{
    for (const PictureSpec &spec : allPictures())
        EXPECT_NE(spec.borders.back(), Border::HalfCut) << qPrintable(spec.name);
}
