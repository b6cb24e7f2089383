// SPDX-License-Identifier: Apache-2.0
#include "RatioReporter.h"

#include <cstdio>

void RatioReporter::ReportRuns(const std::vector<Run> &runs)
{
    ConsoleReporter::ReportRuns(runs);
    for (const Run &run : runs) {
        const std::string name = run.benchmark_name();
        const std::size_t slash = name.find('/');
        if (slash == std::string::npos || run.run_type != Run::RT_Iteration)
            continue;
        const double seconds = run.real_accumulated_time / static_cast<double>(run.iterations);
        m_results.push_back({name.substr(0, slash), name.substr(slash + 1), seconds * 1e6});
    }
}

void RatioReporter::printRatios() const
{
    std::map<std::string, double> floors;
    for (const Result &result : m_results) {
        if (result.what == "floor")
            floors[result.printer] = result.microseconds;
    }
    std::printf("\n%-28s %-22s %12s %10s\n", "what", "printer", "us", "x floor");
    for (const Result &result : m_results) {
        const auto floor = floors.find(result.printer);
        if (floor != floors.end())
            std::printf("%-28s %-22s %12.1f %10.3f\n", result.what.c_str(), result.printer.c_str(),
                        result.microseconds, result.microseconds / floor->second);
    }
}
