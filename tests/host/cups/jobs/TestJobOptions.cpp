// SPDX-License-Identifier: Apache-2.0
#include <host/cups/jobs/Finishings.h>
#include <host/cups/jobs/JobOptions.h>
#include <host/cups/jobs/LpCommand.h>
#include <tests/support/PpdBuilder.h>

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>

using host::Destination;
using host::JobChoice;
using host::JobOption;
using host::JobSettings;
using host::Origin;
using host::PpdFile;
using test_support::PpdBuilder;

namespace {

PpdFile openPpd(const PpdBuilder &builder)
{
    const QTemporaryDir folder;
    EXPECT_TRUE(builder.writeTo(folder.filePath(QStringLiteral("tape.ppd"))));
    auto ppd = PpdFile::open(folder.filePath(QStringLiteral("tape.ppd")));
    if (!ppd)
        qFatal("%s", qPrintable(ppd.error().message));
    return std::move(ppd).value();
}

PpdFile tapePrinter()
{
    return openPpd(PpdBuilder().options({"KvHalfCut", "KvMirror"}).defaultChoice("KvHalfCut", "ON"));
}

/// "NAME=VALUE origin" with a star for what is sent.
QStringList described(const std::vector<JobOption> &options)
{
    const char *const names[] = {"ppd", "queue", "user", "preset", "panel", "you"};
    QStringList all;
    for (const JobOption &option : options)
        all.append(QString::fromUtf8(option.name + '=' + option.value + ' ' +
                                     names[static_cast<int>(option.origin)] + (option.isSent ? "*" : "")));
    all.sort();
    return all;
}

QStringList list(std::initializer_list<const char *> texts)
{
    QStringList all;
    for (const char *text : texts)
        all.append(QString::fromUtf8(text));
    return all;
}

} // namespace

TEST(JobOptions, WithoutAnyChoiceOnlyThePaperIsSent)
{
    const PpdFile ppd = tapePrinter();
    EXPECT_EQ(described(makeJobOptions({}, &ppd, {}, {})),
              list({"KvHalfCut=ON ppd", "KvMirror=OFF ppd", "PageSize=24mm ppd*"}));
}

TEST(JobOptions, EveryLayerStandsOverTheOneBelow)
{
    struct Row {
        std::vector<host::NamedValue> queue;
        std::vector<host::NamedValue> user;
        std::vector<JobChoice> choices;
        const char *expected;
    };
    const Row rows[] = {
        {{}, {}, {}, "KvMirror=OFF ppd"},
        {{{"KvMirror", "ON"}}, {}, {}, "KvMirror=ON queue"},
        {{}, {{"KvMirror", "ON"}}, {}, "KvMirror=ON user*"},
        // The server does not know the values of lpoptions.
        {{}, {{"KvMirror", "OFF"}}, {}, "KvMirror=OFF user*"},
        {{}, {}, {{"KvMirror", "ON", Origin::You}}, "KvMirror=ON you*"},
        {{}, {}, {{"KvMirror", "ON", Origin::Preset}}, "KvMirror=ON preset*"},
        // Chosen, but no other than what the server does.
        {{}, {}, {{"KvMirror", "OFF", Origin::You}}, "KvMirror=OFF you"},
        {{{"KvMirror", "ON"}}, {}, {{"KvMirror", "ON", Origin::You}}, "KvMirror=ON you"},
        {{{"KvMirror", "ON"}}, {}, {{"KvMirror", "OFF", Origin::You}}, "KvMirror=OFF you*"},
        // The panel has set the value.
        {{}, {}, {{"KvMirror", "OFF", Origin::Panel}}, "KvMirror=OFF panel*"},
        // Changed back over the user's default: without the option, lp would print the default.
        {{}, {{"KvMirror", "ON"}}, {{"KvMirror", "OFF", Origin::You}}, "KvMirror=OFF you*"},
        // Changed and changed back.
        {{}, {}, {{"KvMirror", "ON", Origin::Preset}, {"KvMirror", "OFF", Origin::You}}, "KvMirror=OFF you*"},
    };
    const PpdFile ppd = tapePrinter();
    for (const Row &row : rows) {
        Destination destination;
        destination.queueOptions = row.queue;
        destination.userOptions = row.user;
        const QStringList options = described(makeJobOptions(destination, &ppd, row.choices, {}));
        EXPECT_TRUE(options.contains(QLatin1String(row.expected)))
            << qPrintable(options.join(u'\n')) << "\nwanted " << row.expected;
        EXPECT_EQ(options.size(), 3);
    }
}

TEST(JobOptions, NothingNamesAnotherPaperBesideTheExactOne)
{
    const PpdFile ppd = tapePrinter();
    Destination destination;
    destination.queueOptions = {{"media", "om_24mm_24x60mm"}};
    destination.userOptions = {{"media", "A4"}, {"PageRegion", "36mm"}};
    EXPECT_EQ(described(makeJobOptions(destination, &ppd, {{"PageSize", "36mm"}}, {})),
              list({"KvHalfCut=ON ppd", "KvMirror=OFF ppd", "PageSize=36mm you*"}));
    // A queue without PPD has no exact names.
    EXPECT_EQ(described(makeJobOptions(destination, nullptr, {}, {})),
              list({"PageRegion=36mm user*", "media=A4 user*"}));
}

TEST(JobOptions, AnEmptyChoiceIsSentToo)
{
    EXPECT_EQ(described(makeJobOptions(Destination(), nullptr, {{"job-note", ""}}, {})),
              list({"job-note= you*"}));
}

// As "lpadmin -o media-default=36mm" sets it: lp prints on that paper.
TEST(JobOptions, TheQueuesOwnPaperStandsOverThePpds)
{
    struct Row {
        std::vector<host::NamedValue> queue;
        std::vector<host::NamedValue> user;
        const char *expected;
        const char *marked;
    };
    const Row rows[] = {
        {{{"media", "36mm"}}, {}, "PageSize=36mm queue*", "36mm"},
        {{{"media", "24mm"}}, {}, "PageSize=24mm queue*", "24mm"},
        {{{"media", "36MM"}}, {}, "PageSize=24mm ppd*", "24mm"},
        {{{"media", "om_36mm_36x100mm"}}, {}, "PageSize=24mm ppd*", "24mm"},
        {{{"media", "nonsense"}}, {}, "PageSize=24mm ppd*", "24mm"},
        {{{"media", "36mm"}, {"PageSize", "62mm"}}, {}, "PageSize=62mm queue*", "62mm"},
        {{{"media", "36mm"}}, {{"PageSize", "62mm"}}, "PageSize=62mm user*", "62mm"},
        {{{"media", "36mm"}}, {{"PageSize", "24mm"}}, "PageSize=24mm user*", "24mm"},
    };
    for (const Row &row : rows) {
        PpdFile ppd = tapePrinter();
        Destination destination;
        destination.queueOptions = row.queue;
        destination.userOptions = row.user;
        const QStringList options = described(makeJobOptions(destination, &ppd, {}, {}));
        EXPECT_EQ(options, list({"KvHalfCut=ON ppd", "KvMirror=OFF ppd", row.expected}));
        markEffectiveDefaults(ppd, destination);
        EXPECT_EQ(ppd.markedPaper()->name, row.marked) << row.expected;
    }
}

TEST(JobOptions, SettingsGetTheNamesAndValuesOfLp)
{
    struct Row {
        JobSettings settings;
        QStringList expected;
    };
    using host::Collate;
    using host::Orientation;
    const auto hold = [](const char *text) { return JobSettings{.hold = QString::fromUtf8(text)}; };
    Destination destination;
    destination.queueOptions = {{"copies", "1"}, {"job-hold-until", "no-hold"}, {"job-priority", "50"}};
    const Row rows[] = {
        {{}, {}},
        {{.copies = 1}, {}},
        {{.copies = 3, .collate = Collate::No}, list({"collate=false you*", "copies=3 you*"})},
        {{.copies = 3, .collate = Collate::Yes}, list({"collate=true you*", "copies=3 you*"})},
        {{.collate = Collate::Yes}, list({"collate=true you*"})},
        {{.pageRanges = QStringLiteral("1-3, 5, 8-")}, list({"page-ranges=1-3,5,8- you*"})},
        {{.pageRanges = QStringLiteral("5,1-3,2")}, list({"page-ranges=1-3,5 you*"})},
        {{.pageRanges = QStringLiteral("  ")}, {}},
        {{.pageSet = host::PageSet::Odd}, list({"page-set=odd you*"})},
        {{.pageSet = host::PageSet::Even}, list({"page-set=even you*"})},
        {{.order = host::PageOrder::Reverse}, list({"outputorder=reverse you*"})},
        {{.order = host::PageOrder::Normal}, list({"outputorder=normal you*"})},
        {{.orientation = Orientation::Landscape}, list({"orientation-requested=4 you*"})},
        {{.priority = 99}, list({"job-priority=99 you*"})},
        {{.priority = 50}, {}},
        {hold("hold"), list({"job-hold-until=indefinite you*"})},
        {hold("22:30"), list({"job-hold-until=22:30 you*"})},
        {hold("resume"), {}},
        {hold("release"), {}},
        {hold("immediate"), list({"job-priority=100 you*"})},
        {{.hold = QStringLiteral("immediate"), .priority = 60}, list({"job-priority=60 you*"})},
    };
    for (const Row &row : rows) {
        QStringList sent = described(makeJobOptions(destination, nullptr, {}, row.settings));
        sent.removeIf([](const QString &each) { return !each.endsWith(u'*'); });
        EXPECT_EQ(sent, row.expected);
    }
}

TEST(JobOptions, TheDocumentsFormatIsNoOptionOfTheJob)
{
    Destination destination;
    destination.userOptions = {{"raw", "true"}, {"document-format", "text/plain"}, {"fold", "true"}};
    EXPECT_EQ(described(makeJobOptions(destination, nullptr, {}, {})), list({"fold=true user*"}));
}

TEST(JobOptions, ChoicesThatAreFinishingsOfIppAreSentAsSuch)
{
    const PpdFile ppd = openPpd(PpdBuilder()
                                    .options({"KvMirror"})
                                    .option({.keyword = "CutMedia",
                                             .text = "Cut",
                                             .choices = {{"None", ""}, {"EndOfPage", ""}, {"Odd", ""}},
                                             .defaultChoice = "None"})
                                    .option({.keyword = "Fold",
                                             .text = "Fold",
                                             .choices = {{"None", ""}, {"Half", ""}},
                                             .defaultChoice = "None"})
                                    .raw("*cupsIPPFinishings 60/trim-after-pages: \"*CutMedia EndOfPage\"\n"
                                         "*cupsIPPFinishings 93/fold-half: \"*Fold Half\"\n"
                                         "*cupsIPPFinishings 99/both: \"*Fold Half *CutMedia EndOfPage\"\n"
                                         "*cupsIPPFinishings 98/odd: \"*Fold Half *CutMedia\"\n"
                                         "*cupsIPPFinishings x/odd: \"*Fold Half\"\n"
                                         "*cupsIPPFinishings 97/odd: \"Fold Half\"\n"));
    Destination destination;
    destination.queueOptions = {{"finishings", "3"}};
    const auto sent = [&](const std::vector<JobChoice> &choices, const Destination &to) -> QByteArray {
        const auto options = makeJobOptions(to, &ppd, choices, {});
        const auto found = std::ranges::find(options, QByteArray("finishings"), &JobOption::name);
        return found != options.end() && found->isSent ? found->value : QByteArray("(not sent)");
    };
    struct Row {
        std::vector<JobChoice> choices;
        const char *expected;
    };
    const Row rows[] = {
        {{}, "(not sent)"},
        {{{"KvMirror", "ON"}}, "(not sent)"},
        {{{"CutMedia", "EndOfPage"}}, "60"},
        {{{"CutMedia", "None", Origin::Panel}}, "3"},
        {{{"CutMedia", "Odd"}}, "3"},
        {{{"Fold", "Half"}}, "93"},
        {{{"Fold", "Half"}, {"CutMedia", "EndOfPage"}}, "60,93,99"},
        {{{"CutMedia", "EndOfPage"}, {"finishings", "62"}}, "62"},
    };
    for (const Row &row : rows) {
        EXPECT_EQ(sent(row.choices, destination), row.expected);
        EXPECT_EQ(sent(row.choices, {}), row.expected) << "a server that does not report a default";
    }
    Destination users = destination;
    users.userOptions = {{"finishings", "63"}};
    EXPECT_EQ(sent({{"CutMedia", "EndOfPage"}}, users), "60");
}

TEST(JobOptions, FinishingsOfIppAreChoicesOfThePpd)
{
    const PpdBuilder builder = PpdBuilder()
                                   .option({.keyword = "CutMedia",
                                            .text = "Cut",
                                            .choices = {{"None", ""}, {"EndOfPage", ""}, {"EndOfJob", ""}},
                                            .defaultChoice = "EndOfJob"})
                                   .option({.keyword = "Fold",
                                            .text = "Fold",
                                            .choices = {{"None", ""}, {"Half", ""}},
                                            .defaultChoice = "None"})
                                   .raw("*cupsIPPFinishings 60/trim-after-pages: \"*CutMedia EndOfPage\"\n"
                                        "*cupsIPPFinishings 63/trim-after-job: \"*CutMedia EndOfJob\"\n"
                                        "*cupsIPPFinishings 93/fold-half: \"*Fold Half\"\n");
    const PpdFile ppd = openPpd(builder);
    struct Row {
        const char *finishings;
        const char *choices;
    };
    const Row rows[] = {
        {"60", "CutMedia=EndOfPage"},
        {"trim-after-pages", "CutMedia=EndOfPage"},
        {"60,93", "CutMedia=EndOfPage Fold=Half"},
        {"93, trim-after-job", "Fold=Half CutMedia=EndOfJob"},
        {"3", "CutMedia=None Fold=None"},
        {"none", "CutMedia=None Fold=None"},
        {"4", ""},
        {"60,4", ""},
        {"", ""},
    };
    for (const Row &row : rows) {
        QByteArrayList choices;
        for (const host::NamedValue &choice : host::choicesOfFinishings(ppd, row.finishings))
            choices.append(choice.name + '=' + choice.value);
        EXPECT_EQ(choices.join(' '), row.choices) << row.finishings;
    }
    const auto names = [&](const std::vector<JobChoice> &choices) {
        QByteArrayList texts;
        for (const JobChoice &choice : host::withFinishingsAsChoices(ppd, choices))
            texts.append(choice.name + '=' + choice.value);
        return texts.join(' ');
    };
    EXPECT_EQ(names({{"finishings", "60"}, {"KvMirror", "ON"}}), "CutMedia=EndOfPage KvMirror=ON");
    EXPECT_EQ(names({{"finishings", "60"}, {"CutMedia", "None"}}), "CutMedia=None");
    EXPECT_EQ(names({{"finishings", "4"}, {"CutMedia", "None"}}), "finishings=4 CutMedia=None");
}

TEST(JobOptions, FinishingsThatAreDefaultsAreMarked)
{
    const auto marked = [](const char *queue, const char *user) {
        PpdFile file = openPpd(PpdBuilder()
                                   .option({.keyword = "CutMedia",
                                            .text = "Cut",
                                            .choices = {{"None", ""}, {"EndOfPage", ""}, {"EndOfJob", ""}},
                                            .defaultChoice = "EndOfJob"})
                                   .raw("*cupsIPPFinishings 60/trim-after-pages: \"*CutMedia EndOfPage\"\n"));
        Destination destination;
        destination.queueOptions = {{"finishings", queue}};
        if (*user)
            destination.userOptions = {{"finishings", user}};
        host::markEffectiveDefaults(file, destination);
        const QString choice = file.markedChoice(QStringLiteral("CutMedia")).value_or(QString());
        // What the job has agrees with what is marked.
        const auto options = makeJobOptions(destination, &file, {}, {});
        const auto found = std::ranges::find(options, QByteArray("CutMedia"), &JobOption::name);
        EXPECT_TRUE(found != options.end() && QString::fromUtf8(found->value) == choice && !found->isSent);
        return choice;
    };
    EXPECT_EQ(marked("3", ""), QStringLiteral("EndOfJob")) << "what every queue reports";
    EXPECT_EQ(marked("60", ""), QStringLiteral("EndOfPage"));
    EXPECT_EQ(marked("3", "60"), QStringLiteral("EndOfPage"));
    EXPECT_EQ(marked("60", "4"), QStringLiteral("EndOfPage")) << "a finishing that the PPD does not have";
}

TEST(JobOptions, SettingsStandOverTheUsersDefaults)
{
    Destination destination;
    destination.queueOptions = {{"copies", "2"}};
    destination.userOptions = {{"copies", "3"}, {"page-ranges", "2-3"}, {"collate", "true"}};
    const auto sent = [&](const JobSettings &settings) {
        return described(makeJobOptions(destination, nullptr, {}, settings));
    };
    EXPECT_EQ(sent({}), list({"collate=true user*", "copies=3 user*", "page-ranges=2-3 user*"}));
    EXPECT_EQ(sent({.copies = 2, .collate = host::Collate::No, .pageRanges = QString()}),
              list({"collate=false you*", "copies=2 you*", "page-ranges=1- you*"}));
}

TEST(JobOptions, MarksWhatAJobWouldHaveWithoutAnyChoice)
{
    PpdFile ppd = openPpd(PpdBuilder()
                              .options({"KvHalfCut", "KvMirror"})
                              .paper("Twin24", 68.0, 170.0)
                              .paper("24mm-again", 68.0, 170.0));
    Destination destination;
    destination.queueOptions = {{"KvMirror", "ON"}, {"copies", "1"}};
    destination.userOptions = {{"KvHalfCut", "ON"}, {"PageSize", "24mm-again"}};
    markEffectiveDefaults(ppd, destination);
    EXPECT_EQ(ppd.markedChoice(QStringLiteral("KvMirror")), QStringLiteral("ON"));
    EXPECT_EQ(ppd.markedChoice(QStringLiteral("KvHalfCut")), QStringLiteral("ON"));
    EXPECT_EQ(ppd.markedPaper()->name, "24mm-again");
}

TEST(LpCommand, QuotesForTheShell)
{
    const std::pair<const char *, const char *> rows[] = {
        {"plain-1.5_x/@%+,:=", "plain-1.5_x/@%+,:="},
        {"", "''"},
        {"a b", "'a b'"},
        {"it's", "'it'\\''s'"},
        {"$HOME", "'$HOME'"},
        {"~", "'~'"},
        {"a\nb", "'a\nb'"},
        {"\\", "'\\'"},
        {"größe", "'größe'"},
        {"*", "'*'"},
    };
    for (const auto &[word, expected] : rows)
        EXPECT_EQ(host::shellWord(QString::fromUtf8(word)), QString::fromUtf8(expected));
}

TEST(LpCommand, SaysAllThatIsSentAndNothingElse)
{
    host::JobTicket ticket;
    ticket.destination.queue = QStringLiteral("tape");
    ticket.destination.instance = QStringLiteral("draft");
    ticket.title = QStringLiteral("Jars & lids");
    ticket.options = {{"PageSize", "A'B,C", Origin::You, true},
                      {"KvMirror", "OFF", Origin::Ppd, false},
                      {"copies", "2", Origin::You, true},
                      {"job-priority", "70", Origin::You, true},
                      {"job-hold-until", "night", Origin::You, true},
                      {"page-ranges", "1-3,5", Origin::You, true}};
    ticket.documents = {{QStringLiteral("/tmp/a b.pdf")}, {QStringLiteral("-n.pdf")}};
    host::CupsServer server;
    server.address = QStringLiteral("srv:8631");
    server.encryption = host::Encryption::Required;
    server.user = QStringLiteral("anna");
    const host::LpCommand command = lpCommand(server, ticket);
    EXPECT_EQ(command.line, QStringLiteral("lp -h srv:8631 -E -U anna -d tape/draft -t 'Jars & lids' "
                                           "-o 'PageSize=A\\'\\''B\\,C' -n 2 -q 70 -H night -P 1-3,5 "
                                           "-- '/tmp/a b.pdf' ./-n.pdf"));
    EXPECT_TRUE(command.differences.isEmpty());
}

TEST(LpCommand, TellsThatLpWouldSendAnImageItself)
{
    host::JobTicket ticket;
    ticket.documents = {{QStringLiteral("/tmp/made.pdf"), "application/pdf", QStringLiteral("-")},
                        {QStringLiteral("/tmp/a.pdf"), "application/pdf", QStringLiteral("/tmp/a.pdf")}};
    EXPECT_TRUE(lpCommand({}, ticket).differences.isEmpty());
    ticket.documents.push_back(
        {QStringLiteral("/tmp/made.pdf"), "application/pdf", QStringLiteral("/tmp/a.svg")});
    EXPECT_EQ(lpCommand({}, ticket).differences, list({"document-format"}));
}

TEST(LpCommand, TellsWhatLpTakesFromLpoptionsByItself)
{
    host::JobTicket ticket;
    ticket.destination.userOptions = {{"raw", "true"}, {"media", "A4"}, {"KvMirror", "ON"}};
    const host::LpCommand command = lpCommand({}, ticket);
    EXPECT_EQ(command.differences, list({"raw", "media"}));
    EXPECT_TRUE(command.differencesText()->endsWith(QStringLiteral("raw, media")));
    ticket.options = {{"media", "A4", Origin::UserDefault, true}};
    EXPECT_EQ(lpCommand({}, ticket).differences, list({"raw"}));
}

TEST(LpCommand, TellsWhatLpCannotSay)
{
    host::JobTicket ticket;
    ticket.options = {{"PageSize", "{A}", Origin::You, true},
                      {"notch", "True", Origin::You, true},
                      {"fold", "True", Origin::You, true}};
    EXPECT_EQ(lpCommand({}, ticket).differences, list({"PageSize", "notch"}));
}

TEST(JobTicket, FindsWhatFiltersWouldReadWrongly)
{
    const std::pair<const char *, bool> rows[] = {{"{", true},    {"{a", true},       {"{a{b}", true},
                                                  {"{a}", false}, {"{a{b}}{", false}, {"a{", false},
                                                  {"}", false},   {"", false}};
    for (const auto &[value, expected] : rows) {
        EXPECT_EQ(host::findUnsendable({{"PageSize", value, Origin::You, true}}) != nullptr, expected)
            << value;
        EXPECT_FALSE(host::findUnsendable({{"PageSize", value, Origin::You, false}}));
    }
}
