// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_BENCHMARKS_FRAMETIMEREPORTER_H
#define KO_QTTOOLKIT_BENCHMARKS_FRAMETIMEREPORTER_H

#include <benchmark/benchmark.h>

#include <algorithm>
#include <limits>
#include <map>
#include <string>
#include <vector>

// Shows the runs as usual and keeps the fastest CPU time per iteration (a frame) of each
// benchmark; CPU time, since the machines that run these are often shared.
class FrameTimeReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &reports) override
    {
        for (const Run &run : reports) {
            if (run.run_type != Run::RT_Iteration || run.iterations == 0 || run.error_occurred)
                continue;
            const double seconds = run.cpu_accumulated_time / double(run.iterations);
            // Repetitions of a benchmark are one entry, whose fastest run counts.
            benchmark::BenchmarkName name = run.run_name;
            name.repetitions.clear();
            auto found = m_secondsPerFrame.find(name.str());
            if (found == m_secondsPerFrame.end())
                m_secondsPerFrame.emplace(name.str(), seconds);
            else
                found->second = std::min(found->second, seconds);
        }
        ConsoleReporter::ReportRuns(reports);
    }

    // Not a number when the benchmark did not run.
    double microsecondsPerFrame(const std::string &name) const
    {
        const auto found = m_secondsPerFrame.find(name);
        return found == m_secondsPerFrame.end() ? std::numeric_limits<double>::quiet_NaN() : found->second * 1e6;
    }

private:
    std::map<std::string, double> m_secondsPerFrame;
};

// Runs the benchmarks the command line selects through a FrameTimeReporter, then hands it to
// \a printComparison; the exit code for main().
template<typename PrintComparison>
int runBenchmarks(int &argc, char **argv, PrintComparison printComparison)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    FrameTimeReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    printComparison(reporter);
    return 0;
}

#endif
