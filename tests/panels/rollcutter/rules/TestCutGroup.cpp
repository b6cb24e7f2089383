// SPDX-License-Identifier: Apache-2.0
// The ways to cut that a PPD offers, and the options that are shown beside them.
#include "RollPpds.h"

#include <rollcutter/rules/RollRules.h>

using namespace rollcutter;
using test_support::PpdBuilder;
using test_support::PpdPointer;

namespace {

QStringList stylesOf(const CutGroup &group)
{
    QStringList keys;
    for (const CutSetting &setting : group.settings()) {
        const QString key = QString::fromLatin1(cutStyleRow(setting.style).textKey);
        if (!keys.contains(key))
            keys.append(key);
    }
    return keys;
}

QStringList texts(std::initializer_list<const char *> names)
{
    QStringList list;
    for (const char *const name : names)
        list.append(QString::fromLatin1(name));
    return list;
}

} // namespace

TEST(CutGroup, OffersOnlyWhatThePpdCanExpress)
{
    const PpdPointer ppd = roll_ppds::openIntervalDriver();
    const auto groups = CutGroup::groupsOf(PrinterOptions(ppd.get()));
    ASSERT_EQ(groups.size(), 1U);
    EXPECT_EQ(groups[0].keywords(), texts({"inPrintMode", "inCutInterval"}));
    EXPECT_EQ(stylesOf(groups[0]),
              texts({"CUT_NEVER", "CUT_TEAR", "CUT_SOMEWHERE", "CUT_EVERY_LABEL", "CUT_EVERY_FEW"}));
    // 2 to 10 from the list, and up to 99 as custom values.
    ASSERT_EQ(groups[0].intervals().size(), 98U);
    EXPECT_EQ(groups[0].intervals().front(), 2);
    EXPECT_EQ(groups[0].intervals().back(), 99);
    const auto five = groups[0].find(CutStyle::EveryFew, 5);
    ASSERT_TRUE(five);
    EXPECT_EQ(groups[0].settings()[*five].choices,
              (PDEChoices{{QStringLiteral("inPrintMode"), QStringLiteral("Cut")},
                          {QStringLiteral("inCutInterval"), QStringLiteral("5")}}));
    const auto eleven = groups[0].find(CutStyle::EveryFew, 11);
    ASSERT_TRUE(eleven);
    EXPECT_EQ(groups[0].settings()[*eleven].choices.back().second, QStringLiteral("Custom.11"));
    EXPECT_FALSE(groups[0].find(CutStyle::EveryFew, 100));
    EXPECT_FALSE(groups[0].find(CutStyle::EachCopy, 0));
}

TEST(CutGroup, IntervalsThatDoNotReachThePrinterAreNotOffered)
{
    const PpdPointer ppd = roll_ppds::openCupsDriver("intelbar.ppd");
    const PrinterOptions options(ppd.get());
    const RollRules rules(options);
    ASSERT_EQ(rules.groups().size(), 1U);
    EXPECT_EQ(stylesOf(rules.groups()[0]), texts({"CUT_NEVER", "CUT_TEAR", "CUT_SOMEWHERE"}));
    for (const char *const keyword : {"inCutInterval", "inTearInterval", "inPrintRate"}) {
        EXPECT_FALSE(options.isSent(QString::fromLatin1(keyword))) << keyword;
        EXPECT_EQ(rules.disabledReason(QString::fromLatin1(keyword), options),
                  QStringLiteral("REASON_NOT_SENT"))
            << keyword;
    }
    EXPECT_FALSE(rules.disabledReason(QStringLiteral("inPrintDensity"), options));
}

TEST(CutGroup, ACutModeWithoutIntervalsLeavesTheIntervalToThePrinter)
{
    const PpdPointer ppd =
        PpdBuilder()
            .option(test_support::PpdOptionLines{
                .keyword = "inPrintMode", .text = "Mode", .choices = {{"Cut", ""}}, .defaultChoice = "Cut"})
            .openMarked();
    const auto groups = CutGroup::groupsOf(PrinterOptions(ppd.get()));
    ASSERT_EQ(groups.size(), 1U);
    EXPECT_EQ(stylesOf(groups[0]), texts({"CUT_SOMEWHERE"}));
    EXPECT_EQ(groups[0].current(PrinterOptions(ppd.get())), 0U);
}

TEST(CutGroup, UnknownChoicesKeepTheTextOfThePpd)
{
    const PpdPointer ppd =
        roll_ppds::cutMedia({{"Slanted", "At an angle"}, {"Wavy", "In waves"}}).openMarked();
    const auto groups = CutGroup::groupsOf(PrinterOptions(ppd.get()));
    ASSERT_EQ(groups.size(), 1U);
    ASSERT_EQ(groups[0].settings().size(), 2U);
    EXPECT_EQ(groups[0].settings()[1].style, CutStyle::Other);
    EXPECT_EQ(groups[0].settings()[1].text, QStringLiteral("In waves"));
}

TEST(CutGroup, AnOptionWithoutChoicesOffersNothing)
{
    const PpdPointer ppd =
        PpdBuilder().option("CutMedia").noChoices("CutMedia").noDefault("CutMedia").openMarked();
    const PrinterOptions options(ppd.get());
    const auto groups = CutGroup::groupsOf(options);
    ASSERT_EQ(groups.size(), 1U);
    EXPECT_TRUE(groups[0].settings().empty());
    EXPECT_FALSE(groups[0].current(options));
}

TEST(PrinterOptions, TheGivenChoiceCountsThenTheMarkThenTheDefault)
{
    const PpdPointer ppd = roll_ppds::openIntervalDriver();
    const QString interval = QStringLiteral("inCutInterval");
    EXPECT_EQ(PrinterOptions(ppd.get()).current(interval), QStringLiteral("None"));
    ppdMarkOption(ppd.get(), "inCutInterval", "3");
    EXPECT_EQ(PrinterOptions(ppd.get()).current(interval), QStringLiteral("3"));
    ppdMarkOption(ppd.get(), "inCutInterval", "Custom.42");
    EXPECT_EQ(PrinterOptions(ppd.get()).current(interval), QStringLiteral("Custom.42"));
    EXPECT_EQ(PrinterOptions(ppd.get(), {{interval, QStringLiteral("7")}}).current(interval),
              QStringLiteral("7"));
    EXPECT_EQ(PrinterOptions(ppd.get()).customRange(interval), std::pair(1, 99));
    EXPECT_FALSE(PrinterOptions(ppd.get()).customRange(QStringLiteral("inPrintMode")));
    EXPECT_FALSE(PrinterOptions(ppd.get()).current(QStringLiteral("NoSuchOption")));
}

TEST(PrinterOptions, ACustomNumberThatTheCodeLosesIsNotOffered)
{
    const PpdPointer ppd = roll_ppds::openCupsDriver("intelbar.ppd");
    EXPECT_FALSE(PrinterOptions(ppd.get()).customRange(QStringLiteral("inCutInterval")));
}

TEST(PrinterOptions, AFieldThatALaterOptionSetsAgainIsNotSent)
{
    const auto ppdWith = [](const char *order, const char *otherOrder, const char *otherCode) {
        return PpdBuilder()
            .raw(QByteArray("*OpenUI *Speed/Speed: PickOne\n*OrderDependency: ") + order +
                 " *Speed\n*DefaultSpeed: 1\n*Speed 1: \"<</cupsRowFeed 1>>setpagedevice\"\n"
                 "*Speed 2: \"<</cupsRowFeed 2>>setpagedevice\"\n*CloseUI: *Speed\n"
                 "*OpenUI *Grid/Grid: PickOne\n*OrderDependency: " +
                 otherOrder + " *Grid\n*DefaultGrid: A\n*Grid A: \"" + otherCode +
                 "\"\n*Grid B: \"\"\n*CloseUI: *Grid\n")
            .openMarked();
    };
    struct Case {
        const char *order;
        const char *otherOrder;
        const char *otherCode;
        bool isSent;
    };
    const char *const same = "<</HWResolution[300 300]/cupsRowFeed 0>>setpagedevice";
    const Case cases[] = {
        {"20 DocumentSetup", "10 AnySetup", same, false},
        {"20 AnySetup", "10 AnySetup", same, true},
        {"10 AnySetup", "20 AnySetup", same, false},
        {"10 AnySetup", "10 AnySetup", same, true},
        {"10 AnySetup", "20 DocumentSetup", same, true},
        {"10 Prolog", "20 PageSetup", same, false},
        {"10 AnySetup", "20 ExitServer", same, true},
        {"20 DocumentSetup", "10 AnySetup", "<</cupsRowStep 0>>setpagedevice", true},
    };
    const QString speed = QStringLiteral("Speed");
    for (const Case &each : cases) {
        SCOPED_TRACE(std::string(each.order) + ", " + each.otherOrder + ": " + each.otherCode);
        const PpdPointer ppd = ppdWith(each.order, each.otherOrder, each.otherCode);
        EXPECT_EQ(PrinterOptions(ppd.get()).isSent(speed), each.isSent);
        EXPECT_TRUE(PrinterOptions(ppd.get(), {{QStringLiteral("Grid"), QStringLiteral("B")}}).isSent(speed));
    }
    EXPECT_FALSE(PrinterOptions(nullptr).isSent(speed));
}

TEST(RollRules, ListsTheOptionsThatThePpdHas)
{
    const auto keywordsOf = [](const char *driver) {
        const PpdPointer ppd = roll_ppds::openCupsDriver(driver);
        return RollRules(PrinterOptions(ppd.get())).keywords();
    };
    EXPECT_EQ(keywordsOf("zebra.ppd"), texts({"zePrintMode", "zeMediaTracking", "zeLabelTop",
                                              "zeTearOffPosition", "Darkness", "zePrintRate"}));
    EXPECT_EQ(keywordsOf("zebracpl.ppd"),
              texts({"zeMediaTracking", "zeTearOffPosition", "Darkness", "zePrintRate"}));
    EXPECT_EQ(keywordsOf("intelbar.ppd"),
              texts({"inPrintMode", "inTearInterval", "inCutInterval", "inPrintDensity", "inPrintRate"}));
    EXPECT_EQ(keywordsOf("dymo.ppd"), QStringList());
    EXPECT_EQ(keywordsOf("laserjet.ppd"), QStringList());
    EXPECT_EQ(RollRules(PrinterOptions(nullptr)).keywords(), QStringList());
}

TEST(RollRules, CommonOptionsAloneAreLeftToTheDialog)
{
    const auto keywordsOf = [](std::initializer_list<QByteArray> options, const QByteArray &raw = {}) {
        const PpdPointer ppd = PpdBuilder().options(options).raw(raw).openMarked();
        return RollRules(PrinterOptions(ppd.get())).keywords();
    };
    EXPECT_EQ(keywordsOf({"Darkness", "cupsDarkness", "print-darkness", "print-speed", "zePrintRate"}),
              QStringList());
    EXPECT_EQ(keywordsOf({"Darkness", "label-mode"}), texts({"label-mode", "Darkness"}));
    // The dialog has fields for custom values.
    EXPECT_EQ(keywordsOf({"Darkness", "label-mode"},
                         "*CustomDarkness True: \"\"\n*ParamCustomDarkness Level/Level: 1 int 10 90\n"),
              texts({"label-mode"}));
}

TEST(RollRules, AnIntervalWithoutItsModeIsAList)
{
    const PpdPointer ppd = PpdBuilder().option("inCutInterval").option("inTearInterval").openMarked();
    const PrinterOptions options(ppd.get());
    const RollRules rules(options);
    EXPECT_TRUE(rules.groups().empty());
    EXPECT_EQ(rules.keywords(), texts({"inTearInterval", "inCutInterval"}));
    for (const QString &keyword : rules.keywords())
        EXPECT_FALSE(rules.disabledReason(keyword, options));
}

TEST(RollRules, OptionsWithoutEffectAreDisabledWithAReason)
{
    struct Case {
        /// Null for the driver with intervals.
        const char *driver;
        const char *mode;
        const char *choice;
        const char *interval;
        const char *keyword;
        const char *reason;
    };
    const Case cases[] = {
        {nullptr, "inPrintMode", "Standard", "None", "inCutInterval", "REASON_INTERVAL"},
        {nullptr, "inPrintMode", "Cut", "1", "inCutInterval", "REASON_INTERVAL"},
        {nullptr, "inPrintMode", "Cut", "2", "inCutInterval", nullptr},
        {nullptr, "inPrintMode", "Cut", "2", "inTearInterval", "REASON_TEAR_INTERVAL"},
        {nullptr, "inPrintMode", "Standard", "2", "inTearInterval", "REASON_TEAR_INTERVAL"},
        {nullptr, "inPrintMode", "Tear", "2", "inTearInterval", nullptr},
        {nullptr, "inPrintMode", "Tear", "2", "inPrintMode", nullptr},
        {"zebra.ppd", "zePrintMode", "Cutter", "", "zeTearOffPosition", "REASON_TEAR_POSITION"},
        {"zebra.ppd", "zePrintMode", "Tear", "", "zeTearOffPosition", nullptr},
        {"zebra.ppd", "zePrintMode", "Saved", "", "zeTearOffPosition", nullptr},
        {"zebra.ppd", "zePrintMode", "Cutter", "", "zeLabelTop", nullptr},
        {"zebra.ppd", "zePrintMode", "Cutter", "", "NoSuchOption", nullptr},
    };
    for (const Case &each : cases) {
        SCOPED_TRACE(std::string(each.choice) + ' ' + each.keyword);
        const PpdPointer ppd =
            each.driver ? roll_ppds::openCupsDriver(each.driver) : roll_ppds::openIntervalDriver();
        PDEChoices choices{{QString::fromLatin1(each.mode), QString::fromLatin1(each.choice)}};
        if (*each.interval)
            choices.emplace_back(QStringLiteral("inCutInterval"), QString::fromLatin1(each.interval));
        const PrinterOptions options(ppd.get(), choices);
        const auto reason = RollRules(options).disabledReason(QString::fromLatin1(each.keyword), options);
        EXPECT_EQ(reason.value_or(QString()), QString::fromLatin1(each.reason));
    }
}

TEST(RollRules, TheStripHasASentenceWhereCutsDoNotSayEverything)
{
    const PpdPointer ppd = roll_ppds::openCupsDriver("zebra.ppd");
    const std::pair<const char *, const char *> cases[] = {
        {"Saved", "STRIP_PRINTER_SETTING"},
        {"Tear", "STRIP_TEAR"},
        {"Peel", "STRIP_PEEL"},
        {"Rewind", "STRIP_REWIND"},
        {"Applicator", "STRIP_APPLICATOR"},
        {"Cutter", nullptr},
    };
    for (const auto &[choice, key] : cases) {
        const PrinterOptions options(ppd.get(),
                                     {{QStringLiteral("zePrintMode"), QString::fromLatin1(choice)}});
        const RollRules rules(options);
        const auto text = rules.stripText(options);
        EXPECT_EQ(text, key ? std::optional(QString::fromLatin1(key)) : std::nullopt) << choice;
        EXPECT_EQ(rules.isTorn(options), qstrcmp(choice, "Tear") == 0) << choice;
    }
}
