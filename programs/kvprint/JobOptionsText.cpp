// SPDX-License-Identifier: Apache-2.0
#include "JobOptionsText.h"

#include "CommandLine.h"

#include <cups/cups.h>

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTime>

#include <algorithm>
#include <iterator>

namespace programs {
inline namespace kvprint {

namespace {

struct JobWordsText {
    Q_DECLARE_TR_FUNCTIONS(programs::kvprint::CommandLine)
};

/// A keyword for the time at which a job is printed, and the options that allow it.
struct HoldWord {
    enum Place { Anywhere, LetterOnly, OptionOnly, WithJobOnly };
    const char *word;
    Place place;
};

// The keywords of lp and of RFC 8011, section 5.2.2.
constexpr HoldWord holdTexts[] = {
    {"hold", HoldWord::LetterOnly},      {"immediate", HoldWord::LetterOnly},
    {"indefinite", HoldWord::Anywhere},  {"no-hold", HoldWord::OptionOnly},
    {"day-time", HoldWord::Anywhere},    {"evening", HoldWord::Anywhere},
    {"night", HoldWord::Anywhere},       {"second-shift", HoldWord::Anywhere},
    {"third-shift", HoldWord::Anywhere}, {"weekend", HoldWord::Anywhere},
    {"resume", HoldWord::LetterOnly},    {"release", HoldWord::LetterOnly},
    {"restart", HoldWord::WithJobOnly},
};

bool isTime(const QString &value)
{
    return QTime::fromString(value, QStringLiteral("H:mm")).isValid() ||
           QTime::fromString(value, QStringLiteral("H:mm:ss")).isValid();
}

/// Parses the time from -H, or from the option, which allows fewer keywords.
ParseResult readHold(CommandLine &command, const QString &value, bool isLetter)
{
    QStringList accepted;
    for (const HoldWord &each : holdTexts) {
        if (isLetter ? each.place != HoldWord::OptionOnly
                     : each.place == HoldWord::Anywhere || each.place == HoldWord::OptionOnly)
            accepted.append(QString::fromLatin1(each.word));
    }
    if (!accepted.contains(value) && !isTime(value))
        return JobWordsText::tr("Invalid time \"%1\"; use HH:MM or HH:MM:SS (UTC), or one of: %2")
            .arg(value, accepted.join(QStringLiteral(", ")));
    command.settings.hold = value;
    // Before all other jobs; a later priority takes precedence.
    if (value == QStringLiteral("immediate"))
        command.settings.priority = 100;
    return {};
}

ParseResult parseHoldOption(CommandLine &command, const QString &value)
{
    return readHold(command, value, false);
}

ParseResult notOneOf(const QString &value, const QString &accepted)
{
    return JobWordsText::tr("Invalid value \"%1\"; use one of: %2").arg(value, accepted);
}

/// The keywords of an option and their values.
template<typename Meaning>
using Words = std::initializer_list<std::pair<const char *, Meaning>>;

/// Stores the value of the keyword.
template<typename Meaning>
ParseResult parseWord(const QString &value, Words<Meaning> words, std::optional<Meaning> &place)
{
    QStringList accepted;
    for (const auto &[word, meaning] : words) {
        if (value == QLatin1String(word)) {
            place = meaning;
            return {};
        }
        accepted.append(QString::fromLatin1(word));
    }
    return notOneOf(value, accepted.join(QStringLiteral(", ")));
}

ParseResult parseCollate(CommandLine &command, const QString &value)
{
    using host::Collate;
    return parseWord<Collate>(value, {{"true", Collate::Yes}, {"false", Collate::No}},
                              command.settings.collate);
}

ParseResult parseHandling(CommandLine &command, const QString &value)
{
    using host::Collate;
    return parseWord<Collate>(value,
                              {{"separate-documents-collated-copies", Collate::Yes},
                               {"separate-documents-uncollated-copies", Collate::No}},
                              command.settings.collate);
}

ParseResult parsePageSet(CommandLine &command, const QString &value)
{
    using host::PageSet;
    return parseWord<PageSet>(value, {{"all", PageSet::All}, {"odd", PageSet::Odd}, {"even", PageSet::Even}},
                              command.settings.pageSet);
}

ParseResult parseOrder(CommandLine &command, const QString &value)
{
    using host::PageOrder;
    return parseWord<PageOrder>(value, {{"normal", PageOrder::Normal}, {"reverse", PageOrder::Reverse}},
                                command.settings.order);
}

ParseResult parseOrientation(CommandLine &command, const QString &value)
{
    using host::Orientation;
    return parseWord<Orientation>(value,
                                  {{"3", Orientation::Portrait},
                                   {"4", Orientation::Landscape},
                                   {"5", Orientation::ReverseLandscape},
                                   {"6", Orientation::ReversePortrait},
                                   {"portrait", Orientation::Portrait},
                                   {"landscape", Orientation::Landscape},
                                   {"reverse-landscape", Orientation::ReverseLandscape},
                                   {"reverse-portrait", Orientation::ReversePortrait}},
                                  command.settings.orientation);
}

ParseResult parseLandscape(CommandLine &command, const QString &value)
{
    using host::Orientation;
    return parseWord<Orientation>(value, {{"true", Orientation::Landscape}, {"false", Orientation::Portrait}},
                                  command.settings.orientation);
}

ParseResult parseMedia(CommandLine &command, const QString &value)
{
    if (value.isEmpty())
        return JobWordsText::tr("it names no paper");
    command.paper = value.toUtf8();
    return {};
}

ParseResult parseScaling(CommandLine &command, const QString &value)
{
    command.settings.scaling = host::scalingFrom(value.toUtf8());
    if (!command.settings.scaling)
        return JobWordsText::tr("Invalid scaling \"%1\"; use auto, fit, fill or none").arg(value);
    return {};
}

ParseResult parseJobName(CommandLine &command, const QString &value)
{
    if (!value.isEmpty())
        command.title = value;
    return {};
}

/// The content type of a file for lp. Labels are shown and sent as PDF, and declared to the server as PDF.
ParseResult rejectFormat(CommandLine &, const QString &value)
{
    if (value == QStringLiteral("false") || value == QStringLiteral("application/pdf"))
        return {};
    return JobWordsText::tr("\"%1\" is not supported; documents are sent as PDF").arg(value);
}

/// Options with the same meaning as a letter or a name of the command line.
constexpr std::pair<const char *, ParseResult (*)(CommandLine &, const QString &)> settingOptions[] = {
    {"copies", parseCopies},
    {"page-ranges", parsePages},
    {"page-set", parsePageSet},
    {"outputorder", parseOrder},
    {"job-priority", parsePriority},
    {"job-hold-until", parseHoldOption},
    {"job-name", parseJobName},
    {"collate", parseCollate},
    {"multiple-document-handling", parseHandling},
    {"orientation-requested", parseOrientation},
    {"orientation", parseOrientation},
    {"landscape", parseLandscape},
    {host::scalingName, parseScaling},
    {"raw", rejectFormat},
    {"document-format", rejectFormat},
    {"PageSize", parseMedia},
    {"PageRegion", parseMedia},
    {"media", parseMedia},
};

/// Stores the choice; a later option replaces an earlier one.
void setOption(std::vector<host::JobChoice> &options, const QByteArray &name, const QByteArray &value)
{
    const auto same = std::find_if(options.begin(), options.end(),
                                   [&](const host::JobChoice &each) { return each.name == name; });
    if (same != options.end())
        same->value = value;
    else
        options.push_back({name, value, host::Origin::You});
}

ParseResult parseOption(CommandLine &command, const QByteArray &name, const QByteArray &value)
{
    const auto *const setting = std::find_if(std::begin(settingOptions), std::end(settingOptions),
                                             [&](const auto &row) { return name == row.first; });
    if (setting == std::end(settingOptions)) {
        setOption(command.options, name, value);
        return {};
    }
    ParseResult parsed = setting->second(command, QString::fromUtf8(value));
    if (!parsed)
        return QString::fromUtf8(name) + QStringLiteral(": ") + parsed.error();
    return parsed;
}

} // namespace

ParseResult parseCopies(CommandLine &command, const QString &value)
{
    bool isNumber = false;
    const int copies = value.toInt(&isNumber);
    if (!isNumber || copies < 1 || copies > host::maxCopies)
        return JobWordsText::tr("Invalid number of copies \"%1\"; use 1 to %2")
            .arg(value)
            .arg(host::maxCopies);
    command.settings.copies = copies;
    return {};
}

ParseResult parsePriority(CommandLine &command, const QString &value)
{
    bool isNumber = false;
    const int priority = value.toInt(&isNumber);
    if (!isNumber || priority < 1 || priority > 100)
        return JobWordsText::tr("Invalid priority \"%1\"; use 1 (last) to 100 (first)").arg(value);
    command.settings.priority = priority;
    return {};
}

ParseResult parseHold(CommandLine &command, const QString &value)
{
    return readHold(command, value, true);
}

ParseResult parsePages(CommandLine &command, const QString &value)
{
    if (const auto checked = host::checkPageRanges(value); !checked)
        return checked.error().message;
    command.settings.pageRanges = value;
    return {};
}

ParseResult parseDestination(CommandLine &command, const QString &value)
{
    const auto [queue, instance] = host::splitDestinationName(value);
    if (queue.isEmpty() || (instance && instance->isEmpty()))
        return JobWordsText::tr("Missing queue in \"%1\"; use QUEUE or QUEUE/INSTANCE").arg(value);
    command.destination = value;
    return {};
}

ParseResult parseJob(CommandLine &command, const QString &value)
{
    static const QRegularExpression form(QStringLiteral("^(?:(.+)-)?([0-9]{1,9})$"));
    const QRegularExpressionMatch match = form.match(value);
    const int job = match.captured(2).toInt();
    if (job < 1)
        return JobWordsText::tr("Invalid job \"%1\"; use its number, or QUEUE-NUMBER as in the request id")
            .arg(value);
    command.task = Task::ChangeJob;
    command.jobToChange = job;
    if (match.capturedLength(1) > 0)
        command.destination = match.captured(1);
    return {};
}

ParseResult parseOptions(CommandLine &command, const QString &value)
{
    cups_option_t *parsed = nullptr;
    const int count = cupsParseOptions(value.toUtf8().constData(), 0, &parsed);
    ParseResult result;
    for (int i = 0; i < count && result; ++i)
        result = parseOption(command, parsed[i].name, parsed[i].value);
    cupsFreeOptions(count, parsed);
    if (count == 0)
        return JobWordsText::tr("Missing option in \"%1\"; use NAME=VALUE").arg(value);
    return result;
}

bool holdNeedsJob(const QString &hold)
{
    return std::any_of(std::begin(holdTexts), std::end(holdTexts), [&](const HoldWord &each) {
        return each.place == HoldWord::WithJobOnly && hold == QLatin1String(each.word);
    });
}

} // namespace kvprint
} // namespace programs
