// SPDX-License-Identifier: Apache-2.0
// Where each choice cuts, against a table made by hand: for 0 to 12 labels, as one copy and as several ones.
#include "RollPpds.h"

#include <rollcutter/rules/CutEffects.h>

using namespace rollcutter;
using test_support::PpdPointer;

namespace {

/// The labels of copies of documents, collated: "aab" are two labels of a first document and one of a second,
/// and a stroke ends a copy of the document, as in "aa|aa|b|b|".
std::vector<PDELabel> labelsOf(const std::string &job)
{
    std::vector<PDELabel> labels;
    for (std::size_t at = 0; at < job.size(); ++at) {
        if (job[at] == '|')
            continue;
        const bool endsCopy = at + 1 < job.size() && job[at + 1] == '|';
        const bool endsDocument = endsCopy && (at + 2 == job.size() || job[at + 2] != job[at]);
        labels.push_back({endsCopy, endsDocument});
    }
    return labels;
}

/// The full cuts as "--c": a letter for each label, c where it is cut off.
std::string cutsOf(const PDEStripEffects &effects)
{
    if (effects.cutting == PDECutting::NotConcerned)
        return "not concerned";
    if (effects.cutting == PDECutting::NotKnown)
        return effects.ends.empty() ? "not known" : "ends although not known";
    std::string cuts;
    for (const PDELabelEnd &end : effects.ends)
        cuts += end == PDELabelEnd{.fullCut = true} ? 'c' : end == PDELabelEnd{} ? '-' : '?';
    return cuts;
}

/// Two copies of a document with three labels, then one copy of a document with two.
const std::string jobOfTwoDocuments = "aaa|aaa|bb|";

/// A setting and its cuts in the job above.
struct CutCase {
    const char *choices;
    const char *cuts;
};

PDEChoices choicesOf(const char *text)
{
    PDEChoices choices;
    for (const QString &pair : QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts))
        choices.emplace_back(pair.section(u'=', 0, 0), pair.section(u'=', 1));
    return choices;
}

std::string cutsIn(ppd_file_t *ppd, const PDEChoices &choices, const std::string &job)
{
    const PrinterOptions options(ppd, choices);
    return cutsOf(cutEffects(CutGroup::groupsOf(options), options, labelsOf(job)));
}

void expectCuts(ppd_file_t *ppd, std::initializer_list<CutCase> cases)
{
    for (const CutCase &each : cases)
        EXPECT_EQ(cutsIn(ppd, choicesOf(each.choices), jobOfTwoDocuments), each.cuts) << each.choices;
}

} // namespace

TEST(CutTable, PrintModeWithIntervals)
{
    const PpdPointer ppd = roll_ppds::openIntervalDriver();
    expectCuts(ppd.get(), {
                              {"", "--------"},
                              {"inPrintMode=Standard inCutInterval=3", "--------"},
                              {"inPrintMode=Tear inTearInterval=2 inCutInterval=3", "--------"},
                              {"inPrintMode=Cut", "not known"},
                              {"inPrintMode=Cut inCutInterval=None", "not known"},
                              {"inPrintMode=Cut inCutInterval=1", "cccccccc"},
                              {"inPrintMode=Cut inCutInterval=2", "-c-c-c-c"},
                              {"inPrintMode=Cut inCutInterval=3", "--c--c--"},
                              {"inPrintMode=Cut inCutInterval=5", "----c---"},
                              {"inPrintMode=Cut inCutInterval=10", "--------"},
                              {"inPrintMode=Cut inCutInterval=Custom.4", "---c---c"},
                              {"inPrintMode=Cut inCutInterval=Custom.1", "cccccccc"},
                              {"inPrintMode=Cut inCutInterval=Custom.99", "--------"},
                              {"inPrintMode=Cut inCutInterval=Custom.100", "not known"},
                              {"inPrintMode=Unknown", "not known"},
                          });
}

TEST(CutTable, PrintModeWithIntervalsThatDoNotReachThePrinter)
{
    const PpdPointer ppd = roll_ppds::openCupsDriver("intelbar.ppd");
    expectCuts(ppd.get(), {
                              {"", "--------"},
                              {"inPrintMode=Tear inTearInterval=2", "--------"},
                              {"inPrintMode=Cut inCutInterval=1", "not known"},
                              {"inPrintMode=Cut inCutInterval=5", "not known"},
                          });
}

TEST(CutTable, PrintModeOfTheOtherDriver)
{
    const PpdPointer ppd = roll_ppds::openCupsDriver("zebra.ppd");
    expectCuts(ppd.get(), {
                              {"", "not known"},
                              {"zePrintMode=Saved", "not known"},
                              {"zePrintMode=Tear", "--------"},
                              {"zePrintMode=Peel", "--------"},
                              {"zePrintMode=Rewind", "--------"},
                              {"zePrintMode=Applicator", "--------"},
                              {"zePrintMode=Cutter", "cccccccc"},
                          });
}

TEST(CutTable, DriverlessFinishings)
{
    const PpdPointer ppd = roll_ppds::driverless().openMarked();
    expectCuts(ppd.get(), {
                              {"", "--------"},
                              {"CutMedia=None", "--------"},
                              {"CutMedia=Auto", "not known"},
                              {"CutMedia=EndOfPage", "cccccccc"},
                              {"CutMedia=EndOfSet", "--c--c-c"},
                              {"CutMedia=EndOfDoc", "-----c-c"},
                              {"CutMedia=EndOfJob", "-------c"},
                          });
}

TEST(CutTable, FinishingsByTheirNamesInIpp)
{
    const PpdPointer ppd = roll_ppds::cutMedia({{"None", ""},
                                                {"trim", ""},
                                                {"trim-after-pages", ""},
                                                {"trim-after-copies", ""},
                                                {"trim-after-documents", ""},
                                                {"trim-after-job", ""}})
                               .openMarked();
    expectCuts(ppd.get(), {
                              {"", "--------"},
                              {"CutMedia=trim", "not known"},
                              {"CutMedia=trim-after-pages", "cccccccc"},
                              {"CutMedia=trim-after-copies", "--c--c-c"},
                              {"CutMedia=trim-after-documents", "-----c-c"},
                              {"CutMedia=trim-after-job", "-------c"},
                          });
}

TEST(CutTable, CutMediaByName)
{
    const PpdPointer ppd = roll_ppds::cutMedia({{"None", ""},
                                                {"EndOfPage", ""},
                                                {"endofset", ""},
                                                {"EndOfFile", ""},
                                                {"EndOfDocument", ""},
                                                {"EndOfJob", ""},
                                                {"Every3", ""},
                                                {"4Labels", ""},
                                                {"1", ""},
                                                {"0", ""},
                                                {"2to5", ""},
                                                {"Slanted", ""}})
                               .openMarked();
    expectCuts(ppd.get(), {
                              {"CutMedia=None", "--------"},
                              {"CutMedia=EndOfPage", "cccccccc"},
                              {"CutMedia=endofset", "--c--c-c"},
                              {"CutMedia=EndOfFile", "-----c-c"},
                              {"CutMedia=EndOfDocument", "-----c-c"},
                              {"CutMedia=EndOfJob", "-------c"},
                              {"CutMedia=Every3", "--c--c--"},
                              {"CutMedia=4Labels", "---c---c"},
                              {"CutMedia=1", "cccccccc"},
                              {"CutMedia=0", "--------"},
                              {"CutMedia=2to5", "not known"},
                              {"CutMedia=Slanted", "not known"},
                          });
}

TEST(CutTable, BooleanCutMedia)
{
    const PpdPointer ppd = roll_ppds::cutMedia({{"False", "No"}, {"True", "Yes"}}, "Boolean").openMarked();
    expectCuts(ppd.get(), {{"", "--------"}, {"CutMedia=True", "cccccccc"}, {"CutMedia=False", "--------"}});
}

TEST(CutTable, TheNumberInThePostScriptCodeCountsMoreThanTheName)
{
    const PpdPointer ppd = test_support::PpdBuilder()
                               .raw("*OpenUI *CutMedia/Cut Media: PickOne\n*DefaultCutMedia: Zero\n"
                                    "*CutMedia Zero: \"<</CutMedia 0>>setpagedevice\"\n"
                                    "*CutMedia One: \"<</CutMedia 1>>setpagedevice\"\n"
                                    "*CutMedia Two: \"<</CutMedia 2 >> setpagedevice\"\n"
                                    "*CutMedia EndOfPage: \"<</CutMedia 3>>setpagedevice\"\n"
                                    "*CutMedia True: \"<</CutMedia 4>>setpagedevice\"\n"
                                    "*CutMedia EndOfJob: \"<</CutMedia 44>>setpagedevice\"\n"
                                    "*CloseUI: *CutMedia\n")
                               .openMarked();
    expectCuts(ppd.get(), {
                              {"", "--------"},
                              {"CutMedia=One", "-----c-c"},
                              {"CutMedia=Two", "-------c"},
                              {"CutMedia=EndOfPage", "--c--c-c"},
                              {"CutMedia=True", "cccccccc"},
                              {"CutMedia=EndOfJob", "-------c"},
                          });
}

TEST(CutTable, TwoOptionsOfOnePrinterCutTogether)
{
    const PpdPointer ppd =
        roll_ppds::cutMedia({{"None", ""}, {"EndOfSet", ""}, {"Slanted", ""}})
            .option(test_support::PpdOptionLines{.keyword = "inPrintMode",
                                                 .text = "Print Mode",
                                                 .choices = {{"Standard", ""}, {"Cut", ""}},
                                                 .defaultChoice = "Standard"})
            .option(test_support::PpdOptionLines{.keyword = "inCutInterval",
                                                 .text = "Interval",
                                                 .choices = {{"1", ""}, {"2", ""}},
                                                 .defaultChoice = "2"})
            .openMarked();
    expectCuts(ppd.get(), {
                              {"", "--------"},
                              {"CutMedia=EndOfSet", "--c--c-c"},
                              {"inPrintMode=Cut", "-c-c-c-c"},
                              {"inPrintMode=Cut CutMedia=EndOfSet", "-ccc-c-c"},
                              {"inPrintMode=Cut CutMedia=Slanted", "not known"},
                          });
}

TEST(CutTable, APrinterWithoutAnOptionForCuts)
{
    const PpdPointer ppd = roll_ppds::openCupsDriver("dymo.ppd");
    expectCuts(ppd.get(), {{"", "not concerned"}, {"cupsDarkness=Light", "not concerned"}});
    EXPECT_EQ(cutsIn(nullptr, {}, jobOfTwoDocuments), "not concerned");
}

TEST(CutTable, EveryNumberOfLabelsAndCopies)
{
    const PpdPointer ppd = roll_ppds::driverless().openMarked();
    for (int perCopy = 0; perCopy <= 12; ++perCopy) {
        for (int copies = 1; copies <= 3; ++copies) {
            SCOPED_TRACE(std::to_string(copies) + " copies of " + std::to_string(perCopy));
            const std::string copy =
                perCopy == 0 ? "" : std::string(static_cast<std::size_t>(perCopy), 'a') + '|';
            const std::string cutCopy =
                perCopy == 0 ? "" : std::string(static_cast<std::size_t>(perCopy) - 1, '-') + 'c';
            std::string job;
            std::string afterCopies;
            for (int i = 0; i < copies; ++i) {
                job += copy;
                afterCopies += cutCopy;
            }
            std::string atEnd(afterCopies.size(), '-');
            if (!atEnd.empty())
                atEnd.back() = 'c';
            EXPECT_EQ(cutsIn(ppd.get(), choicesOf("CutMedia=None"), job), std::string(atEnd.size(), '-'));
            EXPECT_EQ(cutsIn(ppd.get(), choicesOf("CutMedia=EndOfPage"), job),
                      std::string(atEnd.size(), 'c'));
            EXPECT_EQ(cutsIn(ppd.get(), choicesOf("CutMedia=EndOfSet"), job), afterCopies);
            EXPECT_EQ(cutsIn(ppd.get(), choicesOf("CutMedia=EndOfDoc"), job), atEnd);
            EXPECT_EQ(cutsIn(ppd.get(), choicesOf("CutMedia=EndOfJob"), job), atEnd);
        }
    }
}

TEST(CutTable, EveryIntervalWithEveryNumberOfLabels)
{
    // Row n - 1: twelve labels with a cut after every n.
    constexpr const char *rows[] = {"cccccccccccc", "-c-c-c-c-c-c", "--c--c--c--c", "---c---c---c",
                                    "----c----c--", "-----c-----c", "------c-----", "-------c----",
                                    "--------c---", "---------c--"};
    const PpdPointer ppd = roll_ppds::openIntervalDriver();
    for (int interval = 1; interval <= 10; ++interval) {
        const QString choices = QStringLiteral("inPrintMode=Cut inCutInterval=%1").arg(interval);
        for (std::size_t count = 0; count <= 12; ++count) {
            const std::string row = std::string(rows[interval - 1]).substr(0, count);
            // The cutter counts on over copies.
            EXPECT_EQ(cutsIn(ppd.get(), choicesOf(choices.toLatin1().constData()), std::string(count, 'a')),
                      row);
            std::string singleCopies;
            for (std::size_t i = 0; i < count; ++i)
                singleCopies += "a|";
            EXPECT_EQ(cutsIn(ppd.get(), choicesOf(choices.toLatin1().constData()), singleCopies), row);
        }
    }
}
