// SPDX-License-Identifier: Apache-2.0
#include <tests/support/PpdBuilder.h>

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstring>

using test_support::PpdBuilder;
using test_support::PpdPointer;

namespace {

std::string value(const PpdPointer &ppd, const char *keyword)
{
    const ppd_attr_t *const attribute = ppdFindAttr(ppd.get(), keyword, nullptr);
    return attribute ? attribute->value : "(absent)";
}

} // namespace

TEST(PpdBuilder, GivesExactlyTheKeywordsOfTheMask)
{
    for (unsigned mask = 0; mask <= test_support::allPanelKeywords; ++mask) {
        const PpdPointer ppd = PpdBuilder().options(mask).open();
        ASSERT_TRUE(ppd) << mask;
        for (std::size_t bit = 0; bit < test_support::panelKeywords.size(); ++bit) {
            const ppd_option_t *const option = ppdFindOption(ppd.get(), test_support::panelKeywords[bit]);
            ASSERT_EQ(option != nullptr, (mask >> bit & 1U) != 0)
                << mask << ' ' << test_support::panelKeywords[bit];
        }
    }
}

TEST(PpdBuilder, OffOnOptionsAreOrderedOffOnAndDefaultToOff)
{
    const PpdPointer ppd = PpdBuilder().allOptions().openMarked();
    ASSERT_TRUE(ppd);
    for (const char *keyword : test_support::panelKeywords) {
        if (std::strcmp(keyword, "KvCutLabel") == 0)
            continue;
        const ppd_option_t *const option = ppdFindOption(ppd.get(), keyword);
        ASSERT_TRUE(option) << keyword;
        ASSERT_EQ(option->num_choices, 2) << keyword;
        EXPECT_STREQ(option->choices[0].choice, "OFF") << keyword;
        EXPECT_STREQ(option->choices[1].choice, "ON") << keyword;
        EXPECT_STREQ(ppdFindMarkedChoice(ppd.get(), keyword)->choice, "OFF") << keyword;
    }
}

TEST(PpdBuilder, CountsRunFromFirstToLast)
{
    const PpdPointer ppd = PpdBuilder().counts(5, 300).open();
    ASSERT_TRUE(ppd);
    const ppd_option_t *const option = ppdFindOption(ppd.get(), "KvCutLabel");
    ASSERT_TRUE(option);
    ASSERT_EQ(option->num_choices, 296);
    for (int index = 0; index < option->num_choices; ++index)
        ASSERT_EQ(option->choices[index].choice, std::to_string(index + 5));
    EXPECT_STREQ(option->defchoice, "5");
}

TEST(PpdBuilder, TellsTheFamilyAndTheHiddenFlag)
{
    EXPECT_EQ(value(PpdBuilder().open(), "KvTapeType"), "(absent)");
    EXPECT_EQ(value(PpdBuilder().paperLabels().open(), "KvTapeType"), "DZ");
    EXPECT_EQ(value(PpdBuilder().paperLabels().tape().open(), "KvTapeType"), "(absent)");
    EXPECT_EQ(value(PpdBuilder().open(), "KvAutoCutObjHidden"), "(absent)");
    EXPECT_EQ(value(PpdBuilder().autoCutObjHidden().open(), "KvAutoCutObjHidden"), "False");
    EXPECT_EQ(value(PpdBuilder().autoCutObjHidden("True").open(), "KvAutoCutObjHidden"), "True");
}

TEST(PpdBuilder, TextsAreBytesAndMayBeEmpty)
{
    const PpdPointer plain = PpdBuilder().text("KvMirror", "\xFF\xFEgarbled").open();
    ASSERT_TRUE(plain);
    EXPECT_STREQ(ppdFindOption(plain.get(), "KvMirror")->text, "\xFF\xFEgarbled");
    const PpdPointer empty = PpdBuilder().emptyText("KvMirror").open();
    ASSERT_TRUE(empty);
    EXPECT_STREQ(ppdFindOption(empty.get(), "KvMirror")->text, "");
}

TEST(PpdBuilder, AnOptionMayHaveNoChoicesAndNoDefault)
{
    const PpdPointer ppd = PpdBuilder().noChoices("KvHalfCut").noDefault("KvHalfCut").open();
    ASSERT_TRUE(ppd);
    const ppd_option_t *const option = ppdFindOption(ppd.get(), "KvHalfCut");
    ASSERT_TRUE(option);
    EXPECT_EQ(option->num_choices, 0);
    EXPECT_STREQ(option->defchoice, "");
}

TEST(PpdBuilder, PapersAreTheUsualOnesOrTheChosenOnes)
{
    const PpdPointer usual = PpdBuilder().defaultPaper("HS11mm").openMarked();
    ASSERT_TRUE(usual);
    EXPECT_EQ(static_cast<std::size_t>(usual->num_sizes), PpdBuilder::usualPapers().size());
    EXPECT_STREQ(ppdFindMarkedChoice(usual.get(), "PageSize")->choice, "HS11mm");
    const PpdPointer chosen = PpdBuilder().noPapers().paper("Strip", 34.0, 200.5).openMarked();
    ASSERT_TRUE(chosen);
    ASSERT_EQ(chosen->num_sizes, 1);
    EXPECT_STREQ(chosen->sizes[0].name, "Strip");
    EXPECT_FLOAT_EQ(chosen->sizes[0].width, 34.0F);
    EXPECT_FLOAT_EQ(chosen->sizes[0].length, 200.5F);
    EXPECT_EQ(PpdBuilder().noPapers().open()->num_sizes, 0);
}

TEST(PpdBuilder, ForeignOptionsAndConstraints)
{
    const PpdPointer ppd = PpdBuilder()
                               .allOptions()
                               .foreignOptions(191, 50)
                               .constraint("KvHalfCut", "ON", "KvSpecialTape", "ON")
                               .openMarked();
    ASSERT_TRUE(ppd);
    const ppd_option_t *const last = ppdFindOption(ppd.get(), "Foreign191");
    ASSERT_TRUE(last);
    EXPECT_EQ(last->num_choices, 50);
    EXPECT_EQ(ppdConflicts(ppd.get()), 0);
    ppdMarkOption(ppd.get(), "KvHalfCut", "ON");
    EXPECT_GT(ppdMarkOption(ppd.get(), "KvSpecialTape", "ON"), 0);
}

TEST(PpdBuilder, WritesTheFileOrNothing)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a printer.ppd"));
    ASSERT_TRUE(PpdBuilder().allOptions().writeTo(path));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), PpdBuilder().allOptions().ppd());
    EXPECT_FALSE(PpdBuilder().writeTo(folder.filePath(QStringLiteral("missing/a printer.ppd"))));
}
