// SPDX-License-Identifier: Apache-2.0
#include <host/printer/Constraints.h>
#include <host/printer/PpdForPanels.h>
#include <tests/support/PpdBuilder.h>

#include <QTemporaryDir>

#include <cups/cups.h>
#include <gtest/gtest.h>

#include <random>

using host::Conflict;
using host::Constraints;
using host::PpdFile;
using host::Remedy;
using test_support::PpdBuilder;

namespace {

PpdFile openMarked(const PpdBuilder &builder)
{
    const QTemporaryDir folder;
    EXPECT_TRUE(builder.writeTo(folder.filePath(QStringLiteral("p.ppd"))));
    auto ppd = PpdFile::open(folder.filePath(QStringLiteral("p.ppd")));
    if (!ppd)
        qFatal("%s", qPrintable(ppd.error().message));
    ppd.value().markDefaults();
    return std::move(ppd).value();
}

void mark(PpdFile &ppd, std::initializer_list<std::pair<const char *, const char *>> choices)
{
    for (const auto &[keyword, choice] : choices)
        ppd.mark(QString::fromLatin1(keyword), QString::fromLatin1(choice));
}

QStringList sentences(const PpdFile &ppd)
{
    QStringList all;
    for (const Conflict &conflict : Constraints(ppd).conflicts())
        all.append(conflict.sentence());
    return all;
}

void apply(PpdFile &ppd, const Remedy &remedy)
{
    for (const Remedy::Change &change : remedy.changes)
        ppd.mark(change.keyword, change.choice);
}

PpdBuilder tape()
{
    return PpdBuilder()
        .options({"KvHalfCut", "KvMirror", "KvChainPrint", "KvCutAtEnd"})
        .text("KvMirror", "Mirror")
        .text("KvChainPrint", "Chain")
        .text("KvCutAtEnd", "End cut")
        .choices("KvMirror", {{"OFF", "No"}, {"ON", "Yes"}})
        .constraint("KvMirror", "ON", "PageSize", "24mm")
        .constraint("PageSize", "24mm", "KvMirror", "ON")
        .constraint("KvChainPrint", "", "KvCutAtEnd", "ON");
}

} // namespace

TEST(Constraints, AreToldInWordsThatNameBothSides)
{
    PpdFile ppd = openMarked(tape());
    EXPECT_TRUE(sentences(ppd).isEmpty());
    mark(ppd, {{"KvMirror", "ON"}});
    const std::vector<Conflict> conflicts = Constraints(ppd).conflicts();
    ASSERT_EQ(conflicts.size(), 1U);
    EXPECT_EQ(conflicts[0].sentence(), QStringLiteral("\"Mirror: Yes\" and \"%1: 24mm\" conflict.")
                                           .arg(ppd.optionText(QStringLiteral("PageSize"))));
    EXPECT_TRUE(conflicts[0].involves(QStringLiteral("KvMirror")));
    EXPECT_TRUE(conflicts[0].involves(QStringLiteral("PageSize")));
    EXPECT_FALSE(conflicts[0].involves(QStringLiteral("KvHalfCut")));
}

TEST(Constraints, AnEmptyChoiceMeansEveryChoiceButOff)
{
    PpdFile ppd = openMarked(tape());
    mark(ppd, {{"KvCutAtEnd", "ON"}});
    EXPECT_TRUE(sentences(ppd).isEmpty());
    mark(ppd, {{"KvChainPrint", "ON"}});
    EXPECT_EQ(sentences(ppd).size(), 1);
    mark(ppd, {{"KvChainPrint", "OFF"}});
    EXPECT_TRUE(sentences(ppd).isEmpty());
}

TEST(Constraints, TheRemedyNeverChangesThePaper)
{
    PpdFile ppd = openMarked(tape());
    mark(ppd, {{"KvMirror", "ON"}, {"KvChainPrint", "ON"}, {"KvCutAtEnd", "ON"}});
    const std::optional<Remedy> remedy = Constraints(ppd).remedy();
    ASSERT_TRUE(remedy);
    EXPECT_EQ(remedy->sentence(), QStringLiteral("Set \"Mirror\" to \"No\", set \"Chain\" to \"Off\""));
    apply(ppd, *remedy);
    EXPECT_EQ(ppdConflicts(host::PpdForPanels::handle(ppd)), 0);
    EXPECT_EQ(ppd.markedPaper()->name, "24mm");
    EXPECT_FALSE(Constraints(ppd).remedy());
}

TEST(Constraints, WhatTheUserHasJustChosenStaysWhenAnythingElseHelps)
{
    PpdFile ppd = openMarked(tape());
    mark(ppd, {{"KvChainPrint", "ON"}, {"KvCutAtEnd", "ON"}});
    const auto remedy = Constraints(ppd).remedy({QStringLiteral("KvChainPrint")});
    ASSERT_TRUE(remedy);
    EXPECT_EQ(remedy->sentence(), QStringLiteral("Set \"End cut\" to \"Off\""));
    // Only the mirror can give way to the paper, chosen or not.
    PpdFile other = openMarked(tape());
    mark(other, {{"KvMirror", "ON"}});
    EXPECT_EQ(Constraints(other).remedy({QStringLiteral("KvMirror")})->changes[0].keyword,
              QStringLiteral("KvMirror"));
}

TEST(Constraints, ARemedyMayTakeSeveralStepsOrNotExist)
{
    // Off excludes A, A excludes B: only C is left for the second.
    PpdBuilder builder;
    builder.option({"First", "First", {{"X", ""}, {"Y", ""}}, "X"})
        .option({"Second", "Second", {{"A", ""}, {"B", ""}, {"C", ""}}, "A"})
        .constraint("First", "X", "Second", "A")
        .constraint("First", "X", "Second", "B")
        .constraint("First", "Y", "PageSize", "24mm");
    PpdFile ppd = openMarked(builder);
    const auto remedy = Constraints(ppd).remedy();
    ASSERT_TRUE(remedy);
    EXPECT_EQ(remedy->sentence(), QStringLiteral("Set \"Second\" to \"C\""));

    builder.constraint("First", "X", "Second", "C");
    PpdFile hopeless = openMarked(builder);
    EXPECT_EQ(sentences(hopeless).size(), 1);
    EXPECT_FALSE(Constraints(hopeless).remedy());
}

TEST(Constraints, ARemedyPrefersTheDefaultThenOffThenThePpdsOrder)
{
    PpdBuilder builder;
    builder.option({"Finish", "Finish", {{"Matt", ""}, {"Off", ""}, {"Gloss", ""}, {"Foil", ""}}, "Gloss"});
    const std::pair<const char *, const char *> rows[] = {
        {"Foil", "Gloss"}, {"Gloss", "Off"}, {"Off", "Matt"}};
    for (const auto &[excluded, instead] : rows) {
        builder.constraint("Finish", excluded, "PageSize", "24mm");
        PpdFile ppd = openMarked(builder);
        mark(ppd, {{"Finish", "Foil"}});
        const auto remedy = Constraints(ppd).remedy();
        ASSERT_TRUE(remedy) << excluded;
        EXPECT_EQ(remedy->sentence(), QStringLiteral("Set \"Finish\" to \"%1\"").arg(QLatin1String(instead)));
    }
}

TEST(Constraints, ConstraintsOfCupsMayHaveAnyNumberOfSides)
{
    PpdBuilder builder = PpdBuilder()
                             .options({"KvHalfCut", "KvMirror", "KvChainPrint"})
                             .raw("*cupsUIConstraints three: \"*KvHalfCut ON *KvMirror ON *KvChainPrint\"\n"
                                  "*cupsUIConstraints unknown: \"*KvHalfCut ON *Nobody Knows\"\n"
                                  "*cupsUIConstraints one: \"*KvMirror Maybe\"\n");
    PpdFile ppd = openMarked(builder);
    mark(ppd, {{"KvHalfCut", "ON"}, {"KvMirror", "ON"}});
    EXPECT_TRUE(sentences(ppd).isEmpty());
    mark(ppd, {{"KvChainPrint", "ON"}});
    ASSERT_EQ(Constraints(ppd).conflicts().size(), 1U);
    EXPECT_EQ(Constraints(ppd).conflicts()[0].sides.size(), 3U);
    EXPECT_EQ(Constraints(ppd).remedy()->changes.size(), 1U);
}

// A PPD may name every pair of its papers and settings.
TEST(Constraints, OfThousandsFindTheOneThatIsBroken)
{
    constexpr int choices = 40;
    PpdBuilder builder = PpdBuilder().foreignOptions(2, choices);
    QByteArray lines;
    for (int first = 2; first <= choices; ++first) {
        for (int second = 2; second <= choices; ++second)
            lines += "*UIConstraints: *Foreign1 Choice" + QByteArray::number(first) + " *Foreign2 Choice" +
                     QByteArray::number(second) + '\n';
    }
    PpdFile ppd = openMarked(builder.raw(lines));
    mark(ppd, {{"Foreign1", "Choice20"}, {"Foreign2", "Choice10"}});
    const Constraints constraints(ppd);
    EXPECT_EQ(constraints.conflicts().size(), 1U);
    EXPECT_EQ(constraints.remedy()->sentence(), QStringLiteral("Set \"Foreign1\" to \"Choice1\""));
}

TEST(Constraints, WhatIsInstalledIsNotChangedByARemedy)
{
    PpdFile ppd = openMarked(PpdBuilder()
                                 .options({"KvHalfCut"})
                                 .raw("*OpenGroup: InstallableOptions/Installed\n*OpenUI *Cutter/Cutter: "
                                      "Boolean\n*DefaultCutter: False\n"
                                      "*Cutter True/Yes: \"\"\n*Cutter False/No: \"\"\n*CloseUI: "
                                      "*Cutter\n*CloseGroup: InstallableOptions\n"
                                      "*UIConstraints: *Cutter False *KvHalfCut ON\n*UIConstraints: "
                                      "*KvHalfCut ON *Cutter False\n"));
    mark(ppd, {{"KvHalfCut", "ON"}});
    const auto remedy = Constraints(ppd).remedy({QStringLiteral("KvHalfCut")});
    ASSERT_TRUE(remedy);
    EXPECT_EQ(remedy->changes[0].keyword, QStringLiteral("KvHalfCut"));
}

// Whatever a PPD says: conflicts are found exactly when libcups finds some, and a remedy ends them all.
TEST(Constraints, AgreeWithLibcups)
{
    const unsigned seed = std::random_device{}();
    std::mt19937 dice(seed);
    const auto roll = [&](int sides) { return static_cast<int>(dice() % static_cast<unsigned>(sides)); };
    int withConflicts = 0;
    int withRemedy = 0;
    const PpdBuilder unconstrained = PpdBuilder().foreignOptions(6, 4).options({"KvHalfCut", "KvMirror"});
    const PpdFile plain = openMarked(unconstrained);
    for (int round = 0; round < 150; ++round) {
        PpdBuilder builder = unconstrained;
        const QByteArrayList names{"Foreign1", "Foreign2",  "Foreign3", "Foreign4", "Foreign5",
                                   "Foreign6", "KvHalfCut", "KvMirror", "PageSize"};
        const auto choice = [&](const QByteArray &name) {
            const ppd_option_t *const option =
                ppdFindOption(host::PpdForPanels::handle(plain), name.constData());
            return QByteArray(option->choices[roll(option->num_choices)].choice);
        };
        for (int i = roll(12); i > 0; --i) {
            const QByteArray &first = names[roll(9)];
            const QByteArray &second = names[roll(9)];
            if (first != second)
                builder.constraint(first, roll(4) ? choice(first) : QByteArray(), second, choice(second));
        }
        PpdFile ppd = openMarked(builder);
        for (const QByteArray &name : names)
            ppd.mark(QString::fromLatin1(name), QString::fromLatin1(choice(name)));
        const QByteArray paper = ppd.markedPaper()->name;
        const Constraints constraints(ppd);
        const bool conflicts = ppdConflicts(host::PpdForPanels::handle(ppd)) > 0;
        EXPECT_EQ(!constraints.conflicts().empty(), conflicts) << "seed " << seed << " round " << round;
        withConflicts += conflicts;
        const auto remedy = constraints.remedy();
        EXPECT_TRUE(conflicts || !remedy);
        if (!remedy)
            continue;
        ++withRemedy;
        apply(ppd, *remedy);
        EXPECT_EQ(ppdConflicts(host::PpdForPanels::handle(ppd)), 0) << "seed " << seed << " round " << round;
        EXPECT_EQ(ppd.markedPaper()->name, paper);
    }
    EXPECT_GT(withConflicts, 20) << "seed " << seed;
    EXPECT_GT(withRemedy, 20) << "seed " << seed;
}

TEST(Constraints, SentencesStandAtEveryOptionThatTheyAreAboutAndOnce)
{
    const auto side = [](const char *keyword) {
        const QString name = QString::fromLatin1(keyword);
        return host::ConflictSide{name, name, QStringLiteral("On")};
    };
    const std::vector<Conflict> conflicts = {{{side("A"), side("B")}},
                                             {{side("B"), side("C")}},
                                             {{side("A"), side("B")}},
                                             {{side("D"), side("D")}}};
    const QHash<QString, QStringList> found = host::sentencesByKeyword(conflicts);
    EXPECT_EQ(found.size(), 4);
    for (const char *const keyword : {"A", "B", "C", "D", "E"}) {
        const QString name = QString::fromLatin1(keyword);
        EXPECT_EQ(found.value(name), host::sentencesAbout({name}, conflicts)) << keyword;
    }
    EXPECT_EQ(found.value(QStringLiteral("B")).size(), 2);
}
