// SPDX-License-Identifier: Apache-2.0
// A random walk through print dialogs with mouse, keys and accessibility: whatever is done, everything that
// the dialog shows is what it would send, what it sends is what the printer receives, and what was chosen
// stays chosen. KV_DIALOG_WALK_SEED repeats a walk, KV_DIALOG_WALK_STEPS makes it longer,
// KV_DIALOG_WALK_QUEUE keeps it on one queue.
#include "Walk.h"

#include "Dice.h"

#include <gtest/gtest.h>

#include <iostream>
#include <random>

namespace {

using namespace dialogwalk;

std::uint64_t numberFromEnvironment(const char *name, std::uint64_t otherwise)
{
    bool ok = false;
    const auto number = qEnvironmentVariable(name).toULongLong(&ok);
    return ok ? number : otherwise;
}

/// Some step. What costs a queue's description or a dialog is rarer.
Step randomStep(walk::Dice &dice)
{
    static constexpr std::pair<Action, int> weights[] = {
        {Action::ClickBox, 12},
        {Action::ToggleBoxBySpaceBar, 6},
        {Action::ToggleBoxByAccessibility, 6},
        {Action::PickPreset, 8},
        {Action::StepPresetByKey, 6},
        {Action::StepCount, 4},
        {Action::StepCountByKey, 3},
        {Action::TypeCount, 4},
        {Action::SetCountByAccessibility, 3},
        {Action::PickPaper, 10},
        {Action::StepPaperByKey, 5},
        {Action::TurnToPage, 12},
        {Action::ChangeBoxByTimer, 4},
        {Action::OperateRoll, 20},
        {Action::PickQueue, 4},
        {Action::PickOption, 4},
        {Action::StepOptionByKey, 4},
        {Action::PressRemedy, 8},
        {Action::TypeCopies, 2},
        {Action::StepCopies, 3},
        {Action::ClickCollate, 2},
        {Action::ClickLastFirst, 2},
        {Action::TypePages, 4},
        {Action::ReplacePpd, 1},
        {Action::Reopen, 1},
    };
    int all = 0;
    for (const auto &[action, weight] : weights)
        all += weight;
    int place = dice.below(static_cast<std::size_t>(all));
    for (const auto &[action, weight] : weights) {
        place -= weight;
        if (place < 0)
            return {action, static_cast<std::uint32_t>(dice.below(1U << 20))};
    }
    return {};
}

void report(WalkedServer &server, const Walk &walk, const Fault &found, std::uint64_t seed,
            std::uint64_t step)
{
    const int tries = static_cast<int>(numberFromEnvironment("KV_DIALOG_WALK_TRIES", 60));
    const auto [episode, fault] = shortest(server, walk.episode(), found, tries);
    ADD_FAILURE() << fault.text().toStdString() << "\n-- at first, after " << found.steps.size()
                  << " steps:\n"
                  << found.disagreements.join(u'\n').toStdString() << "\nThis is step " << step
                  << " of the walk; repeat it with KV_DIALOG_WALK_SEED=" << seed;
}

TEST(DialogWalk, WhatIsShownIsWhatIsSentAndWhatIsChosenStays)
{
    const std::uint64_t seed = numberFromEnvironment("KV_DIALOG_WALK_SEED", std::random_device{}());
    const auto steps = numberFromEnvironment("KV_DIALOG_WALK_STEPS", 2000);
    std::cout << "KV_DIALOG_WALK_SEED=" << seed << " KV_DIALOG_WALK_STEPS=" << steps << std::endl;
    walk::Dice dice(seed);
    WalkedServer server;
    Walk walk(server);
    std::optional<Fault> fault = walk.begin(server.destinations().constFirst());
    std::uint64_t step = 0;
    while (!fault && step < steps) {
        ++step;
        const bool prints = step % 10 == 0;
        const Step next = randomStep(dice);
        fault = walk.go(prints ? Step{Action::Print, next.number} : next);
        if (!fault && step % 100 == 0)
            fault = walk.checkRecords();
    }
    if (!fault)
        fault = walk.checkRecords();
    if (fault)
        report(server, walk, *fault, seed, step);
}

} // namespace
