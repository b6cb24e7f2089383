// SPDX-License-Identifier: Apache-2.0
#include "JobLayout.h"

#include <algorithm>

namespace host {
inline namespace setup {

namespace {

constexpr const char *orientationName = "orientation-requested";

constexpr const char *fitNames[] = {"fit-to-page", "fitplot"};
constexpr const char *landscapeName = "landscape";
constexpr const char *positionName = "position";
constexpr const char *numberUpName = "number-up";

struct Position {
    const char *name;
    Alignment across;
    Alignment along;
};
constexpr Position positions[] = {
    {"top-left", Alignment::Start, Alignment::Start},  {"top", Alignment::Center, Alignment::Start},
    {"top-right", Alignment::End, Alignment::Start},   {"left", Alignment::Start, Alignment::Center},
    {"center", Alignment::Center, Alignment::Center},  {"right", Alignment::End, Alignment::Center},
    {"bottom-left", Alignment::Start, Alignment::End}, {"bottom", Alignment::Center, Alignment::End},
    {"bottom-right", Alignment::End, Alignment::End},
};

const JobOption *findOption(const std::vector<JobOption> &options, const QByteArray &name)
{
    const auto found = std::ranges::find(options, name, &JobOption::name);
    return found == options.end() ? nullptr : &*found;
}

/// Reads a switch as CUPS's filters do.
bool isOn(const std::vector<JobOption> &options, const char *name)
{
    const JobOption *const option = findOption(options, name);
    const QByteArray value = option ? option->value.toLower() : QByteArray();
    return value == "true" || value == "yes" || value == "on";
}

Scaling scalingOf(const std::vector<JobOption> &options)
{
    // The filters read "fit-to-page" first.
    for (const char *const name : fitNames) {
        if (isOn(options, name))
            return Scaling::Fit;
    }
    const JobOption *const option = findOption(options, scalingName);
    return option ? scalingFrom(option->value).value_or(Scaling::ShrinkLarge) : Scaling::ShrinkLarge;
}

Turning turningOf(const std::vector<JobOption> &options)
{
    const JobOption *const option = findOption(options, orientationName);
    const int orientation = option ? option->value.toInt() : 0;
    switch (orientation) {
    case static_cast<int>(Orientation::Portrait):
        if (option->origin != Origin::Ppd && option->origin != Origin::Queue)
            return Turning::Upright;
        break;
    case static_cast<int>(Orientation::Landscape):
        return Turning::CounterClockwise;
    case static_cast<int>(Orientation::ReverseLandscape):
        return Turning::Clockwise;
    case static_cast<int>(Orientation::ReversePortrait):
        return Turning::UpsideDown;
    default:
        break;
    }
    return isOn(options, landscapeName) ? Turning::CounterClockwise : Turning::Automatic;
}

} // namespace

PageLayout layoutOf(const PpdPaper &paper, const std::vector<JobOption> &options)
{
    PageLayout layout(paper.size, paper.margins.value_or(QMarginsF()));
    layout.scaling = scalingOf(options);
    layout.turning = turningOf(options);
    const JobOption *const position = findOption(options, positionName);
    for (const Position &each : positions) {
        if (position && position->value == each.name) {
            layout.across = each.across;
            layout.along = each.along;
        }
    }
    return layout;
}

void keepLaidOutPages(std::vector<JobOption> &options)
{
    const auto replace = [&](const char *name, const char *value) {
        const auto option = std::ranges::find(options, QByteArray(name), &JobOption::name);
        if (option != options.end() && option->value != value)
            *option = {name, value, Origin::Layout, true};
    };
    for (const char *const name : {fitNames[0], fitNames[1], landscapeName}) {
        if (isOn(options, name))
            replace(name, "false");
    }
    replace(positionName, "center");
    replace(numberUpName, "1");
    if (turningOf(options) != Turning::Automatic)
        replace(orientationName, "3");
    std::erase_if(options, [](const JobOption &option) { return option.name == scalingName; });
    options.push_back({scalingName, "none", Origin::Layout, true});
}

bool isMirroredByFilters(const std::vector<JobOption> &options)
{
    return isOn(options, "mirror");
}

} // namespace setup
} // namespace host
