#pragma once

#include <benchmark/benchmark.h>

/// Prints the median of each benchmark as a figure with its limit.
class FigureReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override { return true; }
    void ReportRuns(const std::vector<Run> &runs) override;
};
