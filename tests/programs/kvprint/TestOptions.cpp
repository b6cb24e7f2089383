// SPDX-License-Identifier: Apache-2.0
#include "KvprintTest.h"

#include <QFile>

#include <algorithm>
#include <random>

using test_support::panelKeywords;
using test_support::PpdPointer;
using test_support::RecordedDocument;

namespace {

/// An option with its choices, as a PPD spells them.
struct Option {
    QByteArray name;
    QByteArrayList choices;
    QByteArray defaultChoice;
};

bool isPanels(const QByteArray &name)
{
    return std::find(panelKeywords.begin(), panelKeywords.end(), name) != panelKeywords.end();
}

/// All options but the paper, read from the sample's own lines.
std::vector<Option> optionsOf(const QString &ppd)
{
    const QByteArray path = QFile::encodeName(QStringLiteral(KV_SOURCE_DIR "/resources/ppd/%1.ppd").arg(ppd));
    const PpdPointer file(ppdOpenFile(path.constData()));
    std::vector<Option> options;
    for (ppd_option_t *option = ppdFirstOption(file.get()); option; option = ppdNextOption(file.get())) {
        Option each{option->keyword, {}, option->defchoice};
        for (int i = 0; i < option->num_choices; ++i) {
            // That one stands for values of its own.
            if (qstrcmp(option->choices[i].choice, "Custom") != 0)
                each.choices.append(option->choices[i].choice);
        }
        if (each.name != "PageSize" && each.name != "PageRegion")
            options.push_back(each);
    }
    EXPECT_FALSE(options.empty());
    return options;
}

using Wishes = std::vector<std::pair<QByteArray, QByteArray>>;

QStringList wordsFor(const Wishes &requested)
{
    QStringList words;
    for (const auto &[name, choice] : requested)
        words += {QStringLiteral("-o"), QString::fromUtf8(name + '=' + choice)};
    return words;
}

} // namespace

class KvprintOptions : public KvprintTest, public testing::WithParamInterface<const char *> {
protected:
    KvprintOptions()
        : ppd(QString::fromLatin1(GetParam()))
        , options(optionsOf(ppd))
    {
        addSampleQueue(QStringLiteral("tape"), ppd);
    }

    /// Prints once for each; the filter must receive the requested values, or those that the program reports
    /// instead. Returns the outcomes of all rejected runs.
    std::vector<Outcome> check(const std::vector<Wishes> &all)
    {
        std::vector<QStringList> lists;
        for (const Wishes &requested : all)
            lists.push_back(
                QStringList{QStringLiteral("--no-dialog"), QStringLiteral("-d"), QStringLiteral("tape")} +
                wordsFor(requested) + QStringList{picture()});
        const std::vector<Outcome> outcomes = kvprint.runAll(lists);
        std::vector<Outcome> refused;
        for (const Outcome &outcome : outcomes) {
            if (outcome.status != 0)
                refused.push_back(outcome);
        }
        const auto jobs = recorded(outcomes.size() - refused.size());
        for (std::size_t i = 0; i < all.size(); ++i) {
            SCOPED_TRACE(qPrintable(wordsFor(all[i]).join(u' ')));
            if (outcomes[i].status == 0)
                checkJob(all[i], outcomes[i], jobs.value(outcomes[i].jobId()));
        }
        return refused;
    }

    void checkJob(Wishes expected, const Outcome &outcome, const RecordedDocument &job) const
    {
        for (const ReportedChange &change : toldChanges(outcome.error)) {
            EXPECT_TRUE(isPanels(change.name)) << outcome;
            const auto found = std::ranges::find(expected, std::pair(change.name, change.wanted));
            ASSERT_NE(found, expected.end()) << outcome;
            found->second = change.printed;
        }
        for (const auto &[name, choice] : expected) {
            const QByteArray arrived = job.option(name.constData());
            const auto option = std::ranges::find(options, name, &Option::name);
            // What the server does by itself need not be sent, unless a panel hands it over.
            const bool isNews = isPanels(name) || option->defaultChoice != choice;
            EXPECT_TRUE(arrived == choice || (arrived.isNull() && !isNews))
                << name.toStdString() << " is \"" << arrived.toStdString()
                << "\": " << job.optionText.toStdString() << "\n"
                << outcome;
        }
    }

    const QString ppd;
    const std::vector<Option> options;
};

INSTANTIATE_TEST_SUITE_P(Samples, KvprintOptions,
                         testing::Values("kvelland-lx300", "kvelland-lx900", "kvelland-dz500"));

TEST_P(KvprintOptions, EveryChoiceArrivesAlone)
{
    std::vector<Wishes> all;
    for (const Option &option : options) {
        // The many counts go with other choices, below.
        const qsizetype count = option.name == "KvCutLabel" ? 2 : option.choices.size();
        for (const QByteArray &choice : option.choices.first(count))
            all.push_back({{option.name, choice}});
    }
    const std::vector<Outcome> refused = check(all);
    for (const Outcome &outcome : refused)
        ADD_FAILURE() << outcome;
}

TEST_P(KvprintOptions, EveryCountArrivesTogetherWithOtherChoices)
{
    const auto cuts = std::ranges::find(options, QByteArray("KvCutLabel"), &Option::name);
    ASSERT_NE(cuts, options.end());
    std::vector<Wishes> all;
    // Automatic cut is what the counts are about.
    for (qsizetype i = 0; i < cuts->choices.size(); ++i) {
        Wishes requested{{cuts->name, cuts->choices[i]}};
        for (const Option &option : options) {
            const bool excludesAnother = option.name == "MediaType";
            if (!isPanels(option.name) && !excludesAnother)
                requested.emplace_back(option.name, option.choices[i % option.choices.size()]);
        }
        all.push_back(requested);
    }
    const std::vector<Outcome> refused = check(all);
    for (const Outcome &outcome : refused)
        ADD_FAILURE() << outcome;
}

TEST_P(KvprintOptions, RandomCombinationsArriveAsTold)
{
    const unsigned seed = std::random_device()();
    RecordProperty("seed", static_cast<int>(seed));
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const auto below = [&](qsizetype limit) {
        return static_cast<qsizetype>(random() % static_cast<unsigned>(limit));
    };
    std::vector<Wishes> all;
    for (int i = 0; i < 40; ++i) {
        Wishes requested;
        for (const Option &option : options) {
            if (below(10) < (isPanels(option.name) ? 6 : 2))
                requested.emplace_back(option.name, option.choices[below(option.choices.size())]);
        }
        all.push_back(requested);
    }
    // Every error is a conflict and is reported as one.
    for (const Outcome &outcome : check(all)) {
        EXPECT_EQ(outcome.status, 1) << outcome;
        EXPECT_EQ(outcome.out, QByteArray()) << outcome;
        EXPECT_TRUE(outcome.error.contains(" conflict.")) << outcome;
    }
}

TEST_P(KvprintOptions, SeveralChoicesOfOneOptionArriveTogether)
{
    const bool hasOne = std::ranges::find(options, QByteArray("BeepWhen"), &Option::name) != options.end();
    const std::vector<Wishes> all =
        hasOne ? std::vector<Wishes>{{{"BeepWhen", "JobDone,CoverOpen"}}, {{"PrintDensity", "Custom.3"}}}
               : std::vector<Wishes>{{{"PrintDensity", "Custom.-5"}}};
    EXPECT_TRUE(check(all).empty());
}

TEST_F(KvprintTest, ThePanelsRulesHoldForTheCommandLine)
{
    addSampleQueue(QStringLiteral("tape"), QStringLiteral("kvelland-lx900"));
    const struct {
        QStringList options;
        std::vector<std::pair<const char *, const char *>> arrives;
        QStringList told;
    } rows[] = {
        {{}, {{"KvMirror", "OFF"}, {"KvSpecialTape", "OFF"}}, {}},
        {{QStringLiteral("KvMirror=ON")}, {{"KvMirror", "ON"}}, {}},
        {{QStringLiteral("KvSpecialTape=ON")},
         {{"KvSpecialTape", "ON"}, {"KvHalfCut", "OFF"}, {"KvAutoTapeCut", "OFF"}, {"KvCutAtEnd", "OFF"}},
         {}},
        {{QStringLiteral("KvSpecialTape=ON KvHalfCut=ON")},
         {{"KvSpecialTape", "ON"}, {"KvHalfCut", "OFF"}},
         {QStringLiteral("KvHalfCut")}},
        {{QStringLiteral("KvMirror=ON KvAutoTapeCut=ON KvCutLabel=7")},
         {{"KvMirror", "ON"}, {"KvAutoTapeCut", "ON"}, {"KvCutLabel", "7"}},
         {}},
    };
    for (const auto &row : rows) {
        QStringList words{QStringLiteral("-d"), QStringLiteral("tape")};
        for (const QString &option : row.options)
            words += {QStringLiteral("-o"), option};
        SCOPED_TRACE(qPrintable(words.join(u' ')));
        const std::size_t before = cupsd.documents().size();
        const Outcome outcome = print(words);
        ASSERT_EQ(outcome.status, 0) << outcome;
        const RecordedDocument job = recorded(before + 1).value(outcome.jobId());
        for (const auto &[name, choice] : row.arrives) {
            EXPECT_EQ(job.option(name), choice) << name << ": " << job.optionText.toStdString();
        }
        QStringList told;
        for (const ReportedChange &change : toldChanges(outcome.error))
            told.append(QString::fromUtf8(change.name));
        EXPECT_EQ(told, row.told) << outcome;
    }
}
