// SPDX-License-Identifier: Apache-2.0
#include <ppd/PDEUtilsMethod13.h>
#include <tests/support/PpdBuilder.h>

#include <gtest/gtest.h>

using test_support::PpdBuilder;

namespace {

constexpr const char *keyword = "KvHalfCut";

std::unique_ptr<PDEChoiceList> choicesOf(ppd_file_t *ppd, const char *option = keyword)
{
    return PDEUtilsMethod13::arrayFromPPDOption(ppdFindOption(ppd, option));
}

} // namespace

TEST(PDEChoice, DescribesItsPlaceAmongTheChoices)
{
    const auto ppd =
        PpdBuilder().choices(keyword, {{"OFF", "Off"}, {"ON", "On"}, {"AUTO", "Auto"}}).openMarked();
    const auto choices = choicesOf(ppd.get());
    ASSERT_EQ(choices->size(), 3U);
    for (std::size_t index = 0; index < 3; ++index) {
        const PDEChoice &choice = *(*choices)[index];
        const QString expected =
            QStringLiteral("<PDEChoice 0x%1 userTitle:\"%2\" ppdTitle:\"%3\" marked:%4 choice:%5 of 3>")
                .arg(reinterpret_cast<quintptr>(&choice), 0, 16)
                .arg(*choice.userTitle(), *choice.ppdTitle(),
                     index == 0 ? QStringLiteral("YES") : QStringLiteral("NO"))
                .arg(index + 1);
        EXPECT_EQ(choice.description(), expected);
    }
}

TEST(PDEChoice, DescribesTextsThatLookLikePlaceholders)
{
    const auto ppd = PpdBuilder().choices(keyword, {{"OFF", "%1 of %7, %%"}, {"ON", "On"}}).open();
    const auto choices = choicesOf(ppd.get());
    ASSERT_EQ(choices->size(), 2U);
    const QString described = choices->front()->description();
    EXPECT_TRUE(described.endsWith(
        QStringLiteral(" userTitle:\"%1 of %7, %%\" ppdTitle:\"OFF\" marked:NO choice:1 of 2>")))
        << described.toStdString();
}

TEST(PDEChoice, KeepsTheTextsThatItHasDecoded)
{
    const auto ppd = PpdBuilder().option(keyword).open();
    const auto choices = choicesOf(ppd.get());
    const PDEChoice &choice = *choices->front();
    EXPECT_EQ(choice.userTitle()->constData(), choice.userTitle()->constData());
    EXPECT_EQ(&choice.ppdTitle(), &choice.ppdTitle());
    EXPECT_EQ(choice.ppdTitle(), QStringLiteral("OFF"));
    EXPECT_EQ(choice.choice(), &ppdFindOption(ppd.get(), keyword)->choices[0]);
}

TEST(PDEChoice, BytesThatAreNoTextHaveNoTitle)
{
    // libcups refuses such keywords when it reads a file; a record made otherwise may still hold them.
    ppd_choice_t record{};
    qstrncpy(record.choice, "\xc3\x9f", sizeof record.choice);
    qstrncpy(record.text,
             "Stra\xdf"
             "e",
             sizeof record.text);
    EXPECT_EQ(PDEChoice(&record).ppdTitle(), std::nullopt);
    EXPECT_EQ(PDEChoice(&record).userTitle(), std::nullopt);
}

TEST(PDEChoice, TheDefaultIsTheFilesNotTheMarking)
{
    const auto ppd = PpdBuilder().option(keyword).defaultChoice(keyword, "ON").openMarked();
    ppdMarkOption(ppd.get(), keyword, "OFF");
    const auto choices = choicesOf(ppd.get());
    EXPECT_FALSE((*choices)[0]->isDefaultChoice());
    EXPECT_TRUE((*choices)[1]->isDefaultChoice());
    EXPECT_EQ(PDEUtilsMethod13::findChoiceForString(std::nullopt, choices.get()), (*choices)[1].get());
    EXPECT_EQ(PDEUtilsMethod13::findChoiceForString(QStringLiteral("OFF"), choices.get()),
              (*choices)[0].get());
    EXPECT_EQ(PDEUtilsMethod13::findChoiceForString(QStringLiteral("off"), choices.get()), nullptr);
    EXPECT_EQ(PDEUtilsMethod13::findChoiceForString(QStringLiteral("OFF"), nullptr), nullptr);
}

TEST(PDEChoice, ListsFollowTheOption)
{
    EXPECT_EQ(PDEUtilsMethod13::arrayFromPPDOption(nullptr), nullptr);
    ppd_option_t option{};
    EXPECT_TRUE(PDEUtilsMethod13::arrayFromPPDOption(&option)->empty());
    option.num_choices = -1;
    EXPECT_TRUE(PDEUtilsMethod13::arrayFromPPDOption(&option)->empty());
    const auto ppd = PpdBuilder().counts(1, 300).open();
    const auto counts = choicesOf(ppd.get(), "KvCutLabel");
    ASSERT_EQ(counts->size(), 300U);
    EXPECT_EQ(counts->back()->ppdTitle(), QStringLiteral("300"));
}

TEST(PDEChoice, TheComparisonOfDefaultsCoversTheWholeKeyword)
{
    ppd_option_t option{};
    qstrncpy(option.defchoice, "10", sizeof option.defchoice);
    EXPECT_FALSE(isDefaultOfOption(&option, "1"));
    EXPECT_TRUE(isDefaultOfOption(&option, "10"));
}
