// SPDX-License-Identifier: Apache-2.0
// A random walk through print dialogs: the real panel, reached through its driver and real events, against a
// model of it. KV_WALK_SEED repeats a walk, KV_WALK_STEPS makes it longer.
#include "RandomPrinter.h"
#include "Shrinker.h"
#include "Walker.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <algorithm>
#include <iostream>
#include <random>

namespace {

using namespace walk;

std::uint64_t numberFromEnvironment(const char *name, std::uint64_t otherwise)
{
    bool ok = false;
    const auto number = qEnvironmentVariable(name).toULongLong(&ok);
    return ok ? number : otherwise;
}

/// Writes the episode's PPD and requests to files that outlive the test; returns the path of the requests.
QString keep(const Episode &episode, std::uint64_t seed)
{
    const QDir folder(KV_BINARY_DIR "/test-results");
    folder.mkpath(".");
    const auto name = folder.filePath(QStringLiteral("walk-%1").arg(seed));
    QFile ppd(name + ".ppd");
    if (ppd.open(QIODevice::WriteOnly))
        ppd.write(ppdOf(episode.printer));
    QFile requests(name + ".jsonl");
    if (requests.open(QIODevice::WriteOnly))
        requests.write(linesOf(episode, ppd.fileName()));
    return requests.fileName();
}

Episode shortestOf(Walker &walker, const Episode &failing)
{
    Shrinker shrinker([&walker](const Episode &episode) { return walker.run(episode).has_value(); });
    return shrinker.shrink(failing);
}

void reportShortest(Walker &walker, const Episode &failing, std::uint64_t seed)
{
    const auto shortest = shortestOf(walker, failing);
    const auto divergence = walker.run(shortest);
    const auto path = keep(shortest, seed);
    ADD_FAILURE() << "The panel departs from its model"
                  << (divergence ? " at request " + std::to_string(divergence->request + 1) : "") << ":\n"
                  << (divergence ? divergence->differences.join('\n').toStdString() : "") << "\n\n"
                  << linesOf(shortest, path.chopped(6) + ".ppd").toStdString() << "\nRepeat with kvpanel < "
                  << path.toStdString() << "\nor the whole walk with KV_WALK_SEED=" << seed;
}

/// The places that every walk of sufficient length visits.
QStringList placesToVisit()
{
    QStringList places;
    for (const char *op :
         {"open",          "view",    "willShow",  "restore", "save",      "shouldPrint",
          "supportedKeys", "summary", "names",     "click",   "type",      "step",
          "choosePreset",  "paper",   "ppdChange", "mark",    "keyWindow", "trackingAreasUpdated",
          "localized",     "tapeInfo"})
        places.append(QStringLiteral("op ") + op);
    for (const char *op : {"click", "type", "step", "choosePreset", "paper", "unheard"})
        places.append(QStringLiteral("refused ") + op);
    for (const char *event : {"willChange", "alert", "panelViewDidResize"})
        places.append(QStringLiteral("event ") + event);
    for (const char *paper : {"DC", "AV", "FL", "HS", "24", "no", "F", ""})
        places.append(QStringLiteral("paper ") + paper);
    for (int tag = 1; tag <= 16; ++tag)
        places.append(QStringLiteral("preset %1").arg(tag));
    for (int row = 0; row <= 9; ++row)
        places.append(QStringLiteral("rows %1").arg(row));
    places.append({"tape 0", "tape 1", "tape 2", "family DZ", "family LX", "picture SPMROnOff",
                   "picture SPMROnOn", "picture EveryEndMirrorOnOffOn", "picture EveryEndMirrorOffOnOn"});
    for (int bits = 0; bits < 16; ++bits) {
        QString name = "picture AHCM";
        for (const int letter : {8, 4, 2, 1})
            name += bits & letter ? "On" : "Off";
        places.append(name);
    }
    return places;
}

/// Walks the given number of steps, or until panel and model differ.
void walkAlong(Walker &walker, std::uint64_t seed, int steps)
{
    std::cout << "KV_WALK_SEED=" << seed << " KV_WALK_STEPS=" << steps << std::endl;
    Dice dice(seed);
    while (walker.steps() < steps) {
        Episode episode{randomPrinter(dice), {}};
        if (walker.explore(episode, 20 + dice.below(80), dice)) {
            reportShortest(walker, episode, seed);
            return;
        }
    }
}

TEST(PanelWalk, ThePanelDoesWhatItsModelDoes)
{
    Walker walker(KV_BINARY_DIR "/bin/KVLXDZOptions.bundle");
    walkAlong(walker, numberFromEnvironment("KV_WALK_SEED", std::random_device{}()),
              static_cast<int>(numberFromEnvironment("KV_WALK_STEPS", 20000)));
}

// Always the same walk, so that no run misses a place by bad luck.
TEST(PanelWalk, GoesEverywhere)
{
    Walker walker(KV_BINARY_DIR "/bin/KVLXDZOptions.bundle");
    walkAlong(walker, 1, 12000);
    EXPECT_EQ(walker.coverage().rarerThan(1, placesToVisit()), QStringList());
}

TEST(PanelWalk, FindsOutAModelThatIsToldALie)
{
    const auto reversed = [](model::PrinterDescription printer) {
        for (auto &option : printer.options) {
            if (option.keyword == "KvHalfCut")
                std::ranges::reverse(option.choices);
        }
        return printer;
    };
    model::PrinterDescription printer;
    for (const char *keyword : {"KvCutAtEnd", "KvHalfCut", "KvChainPrint"})
        printer.options.push_back(model::switchOption(keyword, keyword, false));
    Walker walker(KV_BINARY_DIR "/bin/KVLXDZOptions.bundle", reversed);
    Dice dice(1);
    Episode episode{printer, {}};
    ASSERT_TRUE(walker.explore(episode, 100, dice));
    const auto shortest = shortestOf(walker, episode);
    ASSERT_EQ(shortest.printer.options.size(), 1u);
    EXPECT_EQ(shortest.printer.options[0].keyword, "KvHalfCut");
    EXPECT_LE(shortest.requests.size(), 3);
    EXPECT_FALSE(walker.run({printer, {QJsonObject{{"op", "open"}}}}));
}

} // namespace
