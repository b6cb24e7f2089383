// SPDX-License-Identifier: Apache-2.0
#include "JobSettings.h"

#include <QCoreApplication>

#include <algorithm>

namespace host {
inline namespace cups {
inline namespace jobs {

namespace {

struct JobSettingsText {
    Q_DECLARE_TR_FUNCTIONS(host::cups::jobs::JobSettings)
};

constexpr int maxPriority = 100;

/// Parses the value of a switch as lp(1) and the server's filters do.
std::optional<Collate> collateFrom(const QByteArray &value)
{
    for (const char *yes : {"true", "yes", "on", "separate-documents-collated-copies"}) {
        if (qstricmp(value.constData(), yes) == 0)
            return Collate::Yes;
    }
    return Collate::No;
}

void readDefault(JobSettings &settings, const NamedValue &option)
{
    if (option.name == "copies") {
        bool isNumber = false;
        const int copies = option.value.toInt(&isNumber);
        settings.copies = isNumber ? std::optional(copies) : std::nullopt;
    } else if (option.name == "collate" || option.name == "multiple-document-handling") {
        settings.collate = collateFrom(option.value);
    } else if (option.name == "page-ranges") {
        settings.pageRanges = QString::fromUtf8(option.value);
    } else if (option.name == "page-set") {
        settings.pageSet = option.value == "odd"    ? PageSet::Odd
                           : option.value == "even" ? PageSet::Even
                                                    : PageSet::All;
    } else if (option.name == "outputorder") {
        settings.order = option.value == "reverse" ? PageOrder::Reverse : PageOrder::Normal;
    }
}

QByteArray rangesValue(const QString &text)
{
    const QString ranges = canonicalPageRanges(text);
    // "page-ranges" has no value of its own for all pages.
    return ranges.isEmpty() ? "1-" : ranges.toUtf8();
}

QByteArray holdValue(const QString &hold)
{
    if (hold == QStringLiteral("hold"))
        return "indefinite";
    for (const char *now : {"immediate", "resume", "release"}) {
        if (hold == QLatin1String(now))
            return "no-hold";
    }
    return hold.toUtf8();
}

template<typename Value>
void fill(std::optional<Value> &requestedChoice, const std::optional<Value> &defaultValue)
{
    if (!requestedChoice)
        requestedChoice = defaultValue;
}

/// A scaling has one value that is sent, the first.
constexpr std::pair<const char *, Scaling> scalings[] = {
    {"auto", Scaling::ShrinkLarge}, {"auto-fit", Scaling::ShrinkLarge}, {"fit", Scaling::Fit},
    {"fill", Scaling::Fill},        {"none", Scaling::ActualSize},
};

} // namespace

std::optional<Scaling> scalingFrom(const QByteArray &value)
{
    for (const auto &[name, scaling] : scalings) {
        if (value == name)
            return scaling;
    }
    return std::nullopt;
}

QByteArray scalingValue(Scaling scaling)
{
    for (const auto &[name, each] : scalings) {
        if (each == scaling)
            return name;
    }
    return {};
}

std::vector<NamedValue> settingValues(const JobSettings &settings)
{
    std::vector<NamedValue> values;
    const auto add = [&](const char *name, const QByteArray &value) { values.push_back({name, value}); };
    if (settings.copies)
        add("copies", QByteArray::number(*settings.copies));
    if (settings.collate)
        add("collate", *settings.collate == Collate::Yes ? "true" : "false");
    if (settings.pageRanges)
        add("page-ranges", rangesValue(*settings.pageRanges));
    if (settings.pageSet)
        add("page-set", *settings.pageSet == PageSet::Odd    ? "odd"
                        : *settings.pageSet == PageSet::Even ? "even"
                                                             : "all");
    if (settings.order)
        add("outputorder", *settings.order == PageOrder::Reverse ? "reverse" : "normal");
    if (settings.orientation)
        add("orientation-requested", QByteArray::number(static_cast<int>(*settings.orientation)));
    if (settings.scaling)
        add(scalingName, scalingValue(*settings.scaling));
    if (settings.hold)
        add("job-hold-until", holdValue(*settings.hold));
    if (settings.priority || settings.hold == QStringLiteral("immediate"))
        add("job-priority", QByteArray::number(settings.priority.value_or(maxPriority)));
    return values;
}

JobSettings defaultPageSettings(const Destination &destination)
{
    JobSettings settings;
    for (const std::vector<NamedValue> *layer : {&destination.queueOptions, &destination.userOptions}) {
        for (const NamedValue &option : *layer)
            readDefault(settings, option);
    }
    return settings;
}

JobSettings withDefaults(JobSettings requested, const JobSettings &defaults)
{
    fill(requested.copies, defaults.copies);
    fill(requested.collate, defaults.collate);
    fill(requested.pageRanges, defaults.pageRanges);
    fill(requested.pageSet, defaults.pageSet);
    fill(requested.order, defaults.order);
    return requested;
}

Result<PageChoices, PageRangeError> choosePages(const JobSettings &requested, const JobSettings &defaults,
                                                const std::vector<int> &pageCounts)
{
    const JobSettings settings = withDefaults(requested, defaults);
    auto pages = parsePageRanges(settings.pageRanges.value_or(QString()), pageCounts,
                                 settings.pageSet.value_or(PageSet::All),
                                 requested.pageRanges ? PagesBeyond::Reject : PagesBeyond::Skip);
    if (!pages)
        return pages.error();
    const int copies = std::clamp(settings.copies.value_or(1), 1, maxCopies);
    if (pages.value().size() * static_cast<std::size_t>(copies) > maxLabels)
        return PageRangeError{
            PageRangeErrorKind::TooMany,
            JobSettingsText::tr("Cannot print the job: it has more than %1 labels").arg(maxLabels)};
    return PageChoices{std::move(pages).value(), copies, settings.collate.value_or(Collate::No),
                       settings.order.value_or(PageOrder::Normal)};
}

} // namespace jobs
} // namespace cups
} // namespace host
