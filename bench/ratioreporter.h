// SPDX-License-Identifier: MIT
// How does each piece of work compare with the plain form of the same work in the same run?
#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <vector>

/// Prints what the console reporter prints, and after it a table of ratios of the medians of the
/// processor time of all threads.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override;
    void Finalize() override;

private:
    double median(const std::string &name) const;

    std::map<std::string, std::vector<double>> milliseconds; ///< of every repetition, by name
};
