// SPDX-License-Identifier: Apache-2.0
// What grows with the options and the constraints of a PPD, up to the maximum of each: opening it, which is
// libcups's part, the options of a job, the conflicts and their sentences.

#include <host/cups/jobs/JobOptions.h>
#include <host/printer/Constraints.h>
#include <host/printer/PpdCounts.h>
#include <tests/samples/OptionsPpd.h>

#include <benchmark/benchmark.h>

namespace {

/// Each option excludes those behind it, with the choices that are the defaults.
QByteArray constrainedPpd(int constraints)
{
    constexpr int options = 1000;
    QByteArray text = largeOptionsPpd(options, 2);
    for (int i = 0; i < constraints; ++i)
        text += "*UIConstraints: *Option" + QByteArray::number(i % options) + " C0 *Option" +
                QByteArray::number((i % options + 1 + i / options) % options) + " C0\n";
    return text;
}

void openWithOptions(benchmark::State &state)
{
    const Sandbox sandbox;
    const QByteArray text = largeOptionsPpd(static_cast<int>(state.range(0)), 2);
    for ([[maybe_unused]] auto iteration : state)
        benchmark::DoNotOptimize(openPpd(sandbox, text));
    state.SetComplexityN(state.range(0));
}
// The largest PPD also has the two options of the paper.
BENCHMARK(openWithOptions)
    ->ArgName("options")
    ->Arg(625)
    ->Arg(1250)
    ->Arg(2500)
    ->Arg(host::PpdCounts::maxOptions - 2)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

void optionsOfAJob(benchmark::State &state)
{
    const Sandbox sandbox;
    const host::PpdFile ppd = openPpd(sandbox, largeOptionsPpd(static_cast<int>(state.range(0)), 2));
    for ([[maybe_unused]] auto iteration : state)
        benchmark::DoNotOptimize(host::makeJobOptions({}, &ppd, {}, {}));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(optionsOfAJob)
    ->ArgName("options")
    ->Arg(625)
    ->Arg(1250)
    ->Arg(2500)
    ->Arg(host::PpdCounts::maxOptions - 2)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

void conflicts(benchmark::State &state)
{
    const Sandbox sandbox;
    const host::PpdFile ppd = openPpd(sandbox, constrainedPpd(static_cast<int>(state.range(0))));
    const host::Constraints constraints(ppd);
    for ([[maybe_unused]] auto iteration : state)
        benchmark::DoNotOptimize(constraints.conflicts());
    state.SetComplexityN(state.range(0));
}
BENCHMARK(conflicts)
    ->ArgName("constraints")
    ->RangeMultiplier(10)
    ->Range(100, host::PpdCounts::maxConstraints)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

void sentencesOfConflicts(benchmark::State &state)
{
    const Sandbox sandbox;
    const host::PpdFile ppd = openPpd(sandbox, constrainedPpd(static_cast<int>(state.range(0))));
    const std::vector<host::Conflict> found = host::Constraints(ppd).conflicts();
    for ([[maybe_unused]] auto iteration : state)
        benchmark::DoNotOptimize(host::sentencesByKeyword(found));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(sentencesOfConflicts)
    ->ArgName("constraints")
    ->RangeMultiplier(10)
    ->Range(100, host::PpdCounts::maxConstraints)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

} // namespace

BENCHMARK_MAIN();
