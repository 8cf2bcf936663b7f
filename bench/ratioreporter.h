// SPDX-License-Identifier: MIT
// How does each operation compare with the plain implementation in the same run?
#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <vector>

/// Prints the console reporter's output, followed by a table of ratios of the medians of the
/// processor time of all threads.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override;
    void Finalize() override;

private:
    double median(const std::string &name) const;

    std::map<std::string, std::vector<double>> milliseconds; ///< of all repetitions, by name
};
