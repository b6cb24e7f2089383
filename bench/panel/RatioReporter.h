// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>

/// Shows each result beside its ratio to the floor of the same PPD: benchmarks are named
/// "what/printer", and the floor's "what" is "floor".
class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run> &runs) override;

    /// Prints the ratios of everything reported.
    void printRatios() const;

private:
    struct Result {
        std::string what;
        std::string printer;
        double microseconds;
    };
    std::vector<Result> m_results;
};
