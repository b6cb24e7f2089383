// SPDX-License-Identifier: Apache-2.0
// The sample printers are PPDs as a maker would ship them: whole, translated, and what they promise.
#include "LocalizedPpd.h"

#include <host/base/Length.h>
#include <tests/support/PpdBuilder.h>
#include <tests/support/Waiting.h>

#include <QProcess>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <set>
#include <span>

using test_support::PpdPointer;

namespace {

struct SamplePrinter {
    const char *file;
    std::set<std::string> keywords;
    bool paperLabels;
    bool autoCutHasOwnBox;
    const char *defaultPaper;
    QStringList languages;
};

const std::vector<SamplePrinter> &samplePrinters()
{
    static const std::vector<SamplePrinter> printers = {
        {"kvelland-lx900.ppd",
         {test_support::panelKeywords.begin(), test_support::panelKeywords.end()},
         false,
         true,
         "24x60mm",
         {"de", "fr", "ja"}},
        {"kvelland-lx300.ppd",
         {"KvCutLabel", "KvAutoTapeCut", "KvHalfCut", "KvMirror"},
         false,
         false,
         "12x50mm",
         {"de"}},
        {"kvelland-dz500.ppd",
         {"KvCutLabel", "KvAutoTapeCut", "KvCutAtEnd", "KvMirror"},
         true,
         false,
         "62x100mm",
         {"de"}},
    };
    return printers;
}

QString path(const SamplePrinter &printer)
{
    return QStringLiteral(KV_SOURCE_DIR "/resources/ppd/") + QString::fromLatin1(printer.file);
}

PpdPointer openMarked(const SamplePrinter &printer)
{
    PpdPointer ppd(ppdOpenFile(qPrintable(path(printer))));
    EXPECT_TRUE(ppd) << printer.file;
    if (ppd)
        ppdMarkDefaults(ppd.get());
    return ppd;
}

std::span<ppd_size_t> sizes(const PpdPointer &ppd)
{
    return {ppd->sizes, static_cast<std::size_t>(ppd->num_sizes)};
}

std::span<ppd_choice_t> choices(const ppd_option_t &option)
{
    return {option.choices, static_cast<std::size_t>(option.num_choices)};
}

/// All options of all groups.
std::vector<const ppd_option_t *> allOptions(const PpdPointer &ppd)
{
    std::vector<const ppd_option_t *> options;
    for (const ppd_group_t &group : std::span(ppd->groups, static_cast<std::size_t>(ppd->num_groups))) {
        for (const ppd_option_t &option :
             std::span(group.options, static_cast<std::size_t>(group.num_options)))
            options.push_back(&option);
    }
    return options;
}

bool isMarked(const PpdPointer &ppd, const char *keyword, const char *choice)
{
    return ppdIsMarked(ppd.get(), keyword, choice) == 1;
}

} // namespace

TEST(SamplePrinters, PassTheCheckOfPrinterDescriptions)
{
    // The panel knows special papers by the first two letters of their names, which cannot be the names
    // that are usual for their sizes.
    const QRegularExpression specialPaper(
        QStringLiteral("^\\s+WARN\\s+Size \"(DC|AV|FL|HS)[^\"]*\" should be the Adobe standard name"));
    for (const SamplePrinter &printer : samplePrinters()) {
        QProcess check;
        check.start(QStringLiteral("cupstestppd"), {path(printer)});
        ASSERT_TRUE(check.waitForFinished(test_support::failureMilliseconds))
            << "cupstestppd (package cups-client): " << check.errorString().toStdString();
        const QStringList lines =
            QString::fromUtf8(check.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
        EXPECT_EQ(check.exitCode(), 0) << printer.file;
        ASSERT_FALSE(lines.isEmpty());
        EXPECT_TRUE(lines.first().endsWith(QStringLiteral(": PASS"))) << lines.first().toStdString();
        for (const QString &line : lines.mid(1))
            EXPECT_TRUE(specialPaper.match(line).hasMatch()) << line.toStdString();
    }
}

TEST(SamplePrinters, HaveExactlyTheirOptionsOfThePanel)
{
    for (const SamplePrinter &printer : samplePrinters()) {
        const PpdPointer ppd = openMarked(printer);
        ASSERT_TRUE(ppd);
        for (const char *keyword : test_support::panelKeywords)
            EXPECT_EQ(ppdFindOption(ppd.get(), keyword) != nullptr, printer.keywords.contains(keyword))
                << printer.file << ' ' << keyword;
    }
}

TEST(SamplePrinters, TellTheirFamilyAndTheAutoCutBox)
{
    for (const SamplePrinter &printer : samplePrinters()) {
        const PpdPointer ppd = openMarked(printer);
        ASSERT_TRUE(ppd);
        const ppd_attr_t *const family = ppdFindAttr(ppd.get(), "KvTapeType", nullptr);
        EXPECT_EQ(family && std::strcmp(family->value, "DZ") == 0, printer.paperLabels) << printer.file;
        const ppd_attr_t *const hidden = ppdFindAttr(ppd.get(), "KvAutoCutObjHidden", nullptr);
        EXPECT_EQ(hidden && std::strcmp(hidden->value, "False") == 0, printer.autoCutHasOwnBox)
            << printer.file;
    }
}

TEST(SamplePrinters, ChoicesAreOffThenOnAndCountsFromOneToNinetyNine)
{
    for (const SamplePrinter &printer : samplePrinters()) {
        const PpdPointer ppd = openMarked(printer);
        ASSERT_TRUE(ppd);
        for (const std::string &keyword : printer.keywords) {
            const ppd_option_t *const option = ppdFindOption(ppd.get(), keyword.c_str());
            ASSERT_TRUE(option) << keyword;
            std::vector<std::string> names;
            for (const ppd_choice_t &choice : choices(*option))
                names.emplace_back(choice.choice);
            if (keyword != "KvCutLabel") {
                EXPECT_EQ(names, (std::vector<std::string>{"OFF", "ON"})) << keyword;
                continue;
            }
            ASSERT_EQ(names.size(), 99U);
            for (std::size_t index = 0; index < names.size(); ++index)
                ASSERT_EQ(names[index], std::to_string(index + 1));
        }
    }
}

TEST(SamplePrinters, DefaultsAreMarkedAndDoNotConflict)
{
    for (const SamplePrinter &printer : samplePrinters()) {
        const PpdPointer ppd = openMarked(printer);
        ASSERT_TRUE(ppd);
        EXPECT_EQ(ppdConflicts(ppd.get()), 0) << printer.file;
        EXPECT_TRUE(isMarked(ppd, "PageSize", printer.defaultPaper)) << printer.file;
        for (const ppd_option_t *option : allOptions(ppd)) {
            if (std::strcmp(option->keyword, "PageRegion") == 0)
                continue; // one of the two page options is marked at a time
            EXPECT_TRUE(ppdFindMarkedChoice(ppd.get(), option->keyword)) << option->keyword;
        }
    }
}

TEST(SamplePrinters, PapersLieInsideTheirLimitsAndLeaveRoomToPrint)
{
    for (const SamplePrinter &printer : samplePrinters()) {
        const PpdPointer ppd = openMarked(printer);
        ASSERT_TRUE(ppd);
        ASSERT_EQ(ppd->variable_sizes, 1) << printer.file;
        for (const ppd_size_t &size : sizes(ppd)) {
            if (std::strcmp(size.name, "Custom") == 0)
                continue;
            EXPECT_GE(size.width, ppd->custom_min[0] - 0.01F) << size.name;
            EXPECT_LE(size.width, ppd->custom_max[0] + 0.01F) << size.name;
            EXPECT_GE(size.length, ppd->custom_min[1] - 0.01F) << size.name;
            EXPECT_LE(size.length, ppd->custom_max[1] + 0.01F) << size.name;
            EXPECT_LT(size.left, size.right) << size.name;
            EXPECT_LT(size.bottom, size.top) << size.name;
            EXPECT_GT(size.bottom, 0.0F) << size.name;
            EXPECT_LE(size.right, size.width) << size.name;
            EXPECT_LE(size.top, size.length) << size.name;
        }
        const ppd_size_t *const custom = ppdPageSize(ppd.get(), "Custom.12x75mm");
        ASSERT_TRUE(custom) << printer.file;
        EXPECT_NEAR(custom->length, host::Points(host::Millimetres(75.0)).number(), 0.01) << printer.file;
    }
}

TEST(SamplePrinters, TapePrintersHaveEveryKindOfTape)
{
    const PpdPointer ppd = openMarked(samplePrinters().front());
    ASSERT_TRUE(ppd);
    std::set<std::string> prefixes;
    std::set<int> tenthsOfMillimetres;
    for (const ppd_size_t &size : sizes(ppd)) {
        prefixes.insert(std::string(size.name).substr(0, 2));
        if (std::isdigit(static_cast<unsigned char>(size.name[0])))
            tenthsOfMillimetres.insert(static_cast<int>(std::lround(size.width / 72.0 * 254.0)));
    }
    for (const char *prefix : {"DC", "AV", "FL", "HS"})
        EXPECT_TRUE(prefixes.contains(prefix)) << prefix;
    EXPECT_EQ(tenthsOfMillimetres, (std::set<int>{35, 60, 90, 120, 180, 240, 360}));
}

TEST(SamplePrinters, TwoRollsOfOneSizeStayTwo)
{
    const PpdPointer ppd = openMarked(samplePrinters().back());
    ASSERT_TRUE(ppd);
    const ppd_size_t *const paper = ppdPageSize(ppd.get(), "DC29x90");
    const ppd_size_t *const film = ppdPageSize(ppd.get(), "DC29x90Film");
    ASSERT_TRUE(paper);
    ASSERT_TRUE(film);
    EXPECT_NE(paper, film);
    EXPECT_EQ(paper->width, film->width);
    EXPECT_EQ(paper->length, film->length);
    ppdMarkOption(ppd.get(), "PageSize", "DC29x90Film");
    EXPECT_TRUE(isMarked(ppd, "PageSize", "DC29x90Film"));
    EXPECT_FALSE(isMarked(ppd, "PageSize", "DC29x90"));
}

TEST(SamplePrinters, HaveAnOptionToPickSeveralOfAndOneWithAFreeNumber)
{
    for (const SamplePrinter *printer : {&samplePrinters().front(), &samplePrinters().back()}) {
        const PpdPointer ppd = openMarked(*printer);
        ASSERT_TRUE(ppd);
        const ppd_option_t *const several = ppdFindOption(ppd.get(), "BeepWhen");
        ASSERT_TRUE(several);
        EXPECT_EQ(several->ui, PPD_UI_PICKMANY);
        const ppd_cparam_t *const level =
            ppdFindCustomParam(ppdFindCustomOption(ppd.get(), "PrintDensity"), "Level");
        ASSERT_TRUE(level);
        EXPECT_EQ(level->type, PPD_CUSTOM_INT);
        EXPECT_EQ(level->minimum.custom_int, -5);
        EXPECT_EQ(level->maximum.custom_int, 5);
    }
}

namespace {

/// Two settings that the printer cannot have at once.
struct Conflict {
    std::size_t printer;
    const char *keyword;
    const char *choice;
    const char *otherKeyword;
    const char *otherChoice;
};

constexpr Conflict conflicts[] = {
    {0, "KvSpecialTape", "ON", "KvHalfCut", "ON"},       {0, "KvSpecialTape", "ON", "KvAutoTapeCut", "ON"},
    {0, "KvSpecialTape", "ON", "KvCutAtEnd", "ON"},      {0, "KvSpecialTape", "ON", "KvChainPrint", "ON"},
    {0, "KvSpecialTape", "ON", "KvCutMark", "ON"},       {0, "KvChainPrint", "ON", "KvCutAtEnd", "ON"},
    {0, "PageSize", "HS6x50", "KvAutoTapeCut", "ON"},    {0, "PageSize", "HS18x50", "KvHalfCut", "ON"},
    {0, "PageSize", "FL21x45", "KvHalfCut", "ON"},       {0, "PageSize", "FL21x45", "KvSpecialTape", "ON"},
    {1, "PageSize", "HS12x50", "KvAutoTapeCut", "ON"},   {1, "PageSize", "FL18x40", "KvHalfCut", "ON"},
    {2, "PageSize", "DC24Round", "KvAutoTapeCut", "ON"}, {2, "MediaType", "Film", "PrintPriority", "Speed"},
};

} // namespace

TEST(SamplePrinters, RefuseWhatTheBladesCannotDo)
{
    for (const Conflict &conflict : conflicts) {
        const PpdPointer ppd = openMarked(samplePrinters()[conflict.printer]);
        ASSERT_TRUE(ppd);
        ppdMarkOption(ppd.get(), "KvAutoTapeCut", "OFF");
        ASSERT_EQ(ppdMarkOption(ppd.get(), conflict.keyword, conflict.choice), 0) << conflict.keyword;
        EXPECT_GT(ppdMarkOption(ppd.get(), conflict.otherKeyword, conflict.otherChoice), 0)
            << conflict.keyword << ' ' << conflict.otherKeyword;
    }
}

TEST(SamplePrinters, ConflictsOfTheLargePrinterAreResolvedByTheOptionThatGivesWay)
{
    const PpdPointer ppd = openMarked(samplePrinters().front());
    ASSERT_TRUE(ppd);
    ppdMarkOption(ppd.get(), "KvHalfCut", "ON");
    int count = 0;
    cups_option_t *options = nullptr;
    ASSERT_EQ(cupsResolveConflicts(ppd.get(), "KvSpecialTape", "ON", &count, &options), 1);
    EXPECT_STREQ(cupsGetOption("KvHalfCut", count, options), "OFF");
    EXPECT_STREQ(cupsGetOption("KvAutoTapeCut", count, options), "OFF");
    EXPECT_STREQ(cupsGetOption("KvSpecialTape", count, options), "ON");
    cupsFreeOptions(count, options);
}

TEST(SamplePrinters, EveryLanguageHasATextForEveryOptionChoiceAndPaper)
{
    for (const SamplePrinter &printer : samplePrinters()) {
        for (const QString &language : printer.languages) {
            const PpdPointer ppd = openLocalized(path(printer), language.toLatin1() + ".UTF-8");
            ASSERT_TRUE(ppd);
            const auto translated = [&](const char *keyword, const char *choice) {
                const QByteArray name = language.toLatin1() + '.' + keyword;
                const ppd_attr_t *const text = ppdFindAttr(ppd.get(), name.constData(), choice);
                return text && text->text[0];
            };
            for (const ppd_option_t *option : allOptions(ppd)) {
                EXPECT_TRUE(translated("Translation", option->keyword)) << option->keyword;
                // Counts are figures in every language, and the free choice has a statement of its own.
                if (std::strcmp(option->keyword, "KvCutLabel") == 0)
                    continue;
                for (const ppd_choice_t &choice : choices(*option)) {
                    const bool free = std::strcmp(choice.choice, "Custom") == 0;
                    EXPECT_TRUE(free || translated(option->keyword, choice.choice))
                        << language.toStdString() << ' ' << option->keyword << ' ' << choice.choice;
                }
            }
        }
    }
}

TEST(SamplePrinters, GermanTextsComeOut)
{
    const PpdPointer ppd =
        openLocalized(QStringLiteral(KV_SOURCE_DIR "/resources/ppd/kvelland-lx900.ppd"), "de_DE.UTF-8");
    ASSERT_TRUE(ppd);
    ppd_option_t *const halfCut = ppdFindOption(ppd.get(), "KvHalfCut");
    ASSERT_TRUE(halfCut);
    EXPECT_STREQ(halfCut->text, "Halbschnitt");
    EXPECT_STREQ(ppdFindChoice(halfCut, "ON")->text, "Ein");
    EXPECT_STREQ(ppdFindOption(ppd.get(), "Resolution")->text, "Auflösung");
    ppd_option_t *const paper = ppdFindOption(ppd.get(), "PageSize");
    EXPECT_STREQ(ppdFindChoice(paper, "3.5x40mm")->text, "Band 3,5 mm × 40 mm");
    EXPECT_STREQ(ppdFindChoice(paper, "HS6x50")->text, "Schrumpfschlauch 6 mm × 50 mm");
}

TEST(SamplePrinters, JapaneseAndFrenchTextsComeOutToo)
{
    const QString path = QStringLiteral(KV_SOURCE_DIR "/resources/ppd/kvelland-lx900.ppd");
    const PpdPointer japanese = openLocalized(path, "ja_JP.UTF-8");
    ASSERT_TRUE(japanese);
    EXPECT_STREQ(ppdFindOption(japanese.get(), "KvHalfCut")->text, "ハーフカット");
    const PpdPointer french = openLocalized(path, "fr_FR.UTF-8");
    ASSERT_TRUE(french);
    EXPECT_STREQ(ppdFindOption(french.get(), "KvCutAtEnd")->text, "Couper à la fin");
}
