// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// Tick generation as an axis runs it at every layout: ticks, sub-ticks and the tick labels, for
// fixed ranges and for a zoom sweep of 1000 ranges. With QCustomPlot available, its tickers run
// on the same ranges (QCPAxisTicker with the meet-tick-count strategy, QCPAxisTickerLog and
// QCPAxisTickerText for the custom ticks), and the ratio ours/peer of the CPU time per iteration
// is printed at the end. Measure with a release build, for example
//   bench_tickers --benchmark_repetitions=5
// (the ratios then compare the medians).

#include <ko/qtToolkit/charts/AxisTicker.h>
#include <ko/qtToolkit/charts/CustomAxisTicker.h>
#include <ko/qtToolkit/charts/LogarithmicAxisTicker.h>

#include <benchmark/benchmark.h>

#ifdef KO_HAVE_QCUSTOMPLOT
#include <qcustomplot.h>
#endif

#include <QLocale>
#include <QStringList>
#include <QVector>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace charts = ko::qtToolkit::charts;

namespace {

struct Range
{
    double min;
    double max;
};

using Ranges = std::vector<Range>;

// Zooming from 1000 units wide to a thousandth around a point off the grid, panning a little.
Ranges linearZoomSweep()
{
    Ranges ranges;
    for (int i = 0; i < 1000; ++i) {
        const double width = 1000.0 * std::pow(10.0, -6.0 * i / 999.0);
        const double centre = 123.456 + 0.01 * std::sin(i * 0.1);
        ranges.push_back({centre - 0.37 * width, centre + 0.63 * width});
    }
    return ranges;
}

// Zooming a frequency axis from 20 .. 20000 into a third of an octave around 1 kHz.
Ranges logarithmicZoomSweep()
{
    Ranges ranges;
    for (int i = 0; i < 1000; ++i) {
        const double t = i / 999.0;
        const double low = std::pow(10.0, std::log10(20.0) * (1 - t) + std::log10(891.0) * t);
        const double high = std::pow(10.0, std::log10(20000.0) * (1 - t) + std::log10(1122.0) * t);
        ranges.push_back({low, high});
    }
    return ranges;
}

// A frequency scale: decades and their halves as ticks, labels on the ticks and on chosen
// sub-ticks.
const std::vector<std::pair<double, const char *>> &frequencyTicks()
{
    static const std::vector<std::pair<double, const char *>> ticks{
        {10, "10"},       {20, "20"},   {50, "50"},   {100, "100"},  {200, "200"},
        {500, "500"},     {1000, "1k"}, {2000, "2k"}, {5000, "5k"},  {10000, "10k"},
        {20000, "20k"},   {50000, "50k"}, {100000, "100k"}};
    return ticks;
}

struct Case
{
    std::string name;
    Ranges ranges;
};

struct Results
{
    int ticks = 0;
    int subTicks = 0;
};

void setCounters(benchmark::State &state, const Results &results)
{
    state.counters["ticks"] = results.ticks;
    state.counters["subTicks"] = results.subTicks;
}

void runOurs(benchmark::State &state, const charts::AxisTicker &ticker, const Ranges &ranges)
{
    QVector<double> ticks;
    QVector<double> subTicks;
    QStringList labels;
    Results results;
    for (auto _ : state) {
        results = {};
        for (const Range &range : ranges) {
            ticker.generate(range.min, range.max, ticks, subTicks);
            ticker.generateLabels(ticks, labels);
            benchmark::DoNotOptimize(labels);
            results.ticks += ticks.size();
            results.subTicks += subTicks.size();
        }
    }
    setCounters(state, results);
}

#ifdef KO_HAVE_QCUSTOMPLOT
void runPeer(benchmark::State &state, QCPAxisTicker &ticker, const Ranges &ranges)
{
    const QLocale locale = QLocale::c();
    QVector<double> ticks;
    QVector<double> subTicks;
    QVector<QString> labels;
    Results results;
    for (auto _ : state) {
        results = {};
        for (const Range &range : ranges) {
            ticker.generate(QCPRange(range.min, range.max), locale, QLatin1Char('f'), 2, ticks,
                            &subTicks, &labels);
            benchmark::DoNotOptimize(labels);
            results.ticks += ticks.size();
            results.subTicks += subTicks.size();
        }
    }
    setCounters(state, results);
}
#endif

// CPU time per iteration of every finished run, by name, for the ratios at the end. With
// --benchmark_repetitions, the median of the repetitions is compared (also when only the
// aggregates are reported).
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.error_occurred)
                continue;
            if (run.run_type == Run::RT_Iteration)
                m_cpuTimes[run.run_name.str()].push_back(run.GetAdjustedCPUTime());
            else if (run.aggregate_name == "median")
                m_medians[run.run_name.str()] = run.GetAdjustedCPUTime();
        }
        ConsoleReporter::ReportRuns(runs);
    }

    void printRatios(const std::vector<std::string> &cases) const
    {
        std::printf("\nratio ours/peer (CPU time per iteration):\n");
        for (const std::string &name : cases) {
            const double ours = median("ours/" + name);
            const double peer = median("peer/" + name);
            if (ours > 0.0 && peer > 0.0)
                std::printf("  %-52s %6.2f\n", name.c_str(), ours / peer);
        }
    }

private:
    double median(const std::string &name) const
    {
        const auto reported = m_medians.find(name);
        if (reported != m_medians.end())
            return reported->second;
        const auto found = m_cpuTimes.find(name);
        if (found == m_cpuTimes.end())
            return 0.0;
        std::vector<double> times = found->second;
        std::nth_element(times.begin(), times.begin() + times.size() / 2, times.end());
        return times[times.size() / 2];
    }

    std::map<std::string, std::vector<double>> m_cpuTimes;
    std::map<std::string, double> m_medians;
};


// The tickers of both sides, alive for the whole run: the benchmarks refer to them.
class Cases
{
public:
    void addOurs(const std::string &name, std::unique_ptr<charts::AxisTicker> ticker,
                 const Ranges &ranges)
    {
        benchmark::RegisterBenchmark(("ours/" + name).c_str(), runOurs, std::cref(*ticker),
                                     ranges);
        m_tickers.push_back(std::move(ticker));
        m_names.push_back(name);
    }

#ifdef KO_HAVE_QCUSTOMPLOT
    void addPeer(const std::string &name, const QSharedPointer<QCPAxisTicker> &ticker,
                 const Ranges &ranges)
    {
        benchmark::RegisterBenchmark(("peer/" + name).c_str(), runPeer, std::ref(*ticker),
                                     ranges);
        m_peers.push_back(ticker);
    }
#endif

    const std::vector<std::string> &names() const { return m_names; }

private:
    std::vector<std::unique_ptr<charts::AxisTicker>> m_tickers;
#ifdef KO_HAVE_QCUSTOMPLOT
    std::vector<QSharedPointer<QCPAxisTicker>> m_peers;
#endif
    std::vector<std::string> m_names;
};

void addLinear(Cases &cases, const std::string &name, const Ranges &ranges, int tickCount,
               charts::AxisTicker::TickStepStrategy strategy)
{
    auto ticker = std::make_unique<charts::AxisTicker>();
    ticker->setTickCount(tickCount);
    ticker->setTickStepStrategy(strategy);
    cases.addOurs(name, std::move(ticker), ranges);
#ifdef KO_HAVE_QCUSTOMPLOT
    QSharedPointer<QCPAxisTicker> peer(new QCPAxisTicker);
    peer->setTickCount(tickCount);
    peer->setTickStepStrategy(QCPAxisTicker::tssMeetTickCount);
    cases.addPeer(name, peer, ranges);
#endif
}

void addLogarithmic(Cases &cases, const std::string &name, const Ranges &ranges)
{
    cases.addOurs(name, std::make_unique<charts::LogarithmicAxisTicker>(), ranges);
#ifdef KO_HAVE_QCUSTOMPLOT
    QSharedPointer<QCPAxisTickerLog> peer(new QCPAxisTickerLog);
    peer->setLogBase(10.0);
    peer->setSubTickCount(8);
    peer->setTickCount(3);
    cases.addPeer(name, peer, ranges);
#endif
}

void addCustom(Cases &cases, const std::string &name, const Ranges &ranges)
{
    auto ticker = std::make_unique<charts::CustomAxisTicker>();
    ticker->setSubTickCount(8);
    for (const auto &[value, label] : frequencyTicks()) {
        ticker->addTick(value);
        ticker->setTickLabel(value, QString::fromLatin1(label));
    }
    cases.addOurs(name, std::move(ticker), ranges);
#ifdef KO_HAVE_QCUSTOMPLOT
    QSharedPointer<QCPAxisTickerText> peer(new QCPAxisTickerText);
    peer->setSubTickCount(8);
    for (const auto &[value, label] : frequencyTicks())
        peer->addTick(value, QString::fromLatin1(label));
    cases.addPeer(name, peer, ranges);
#endif
}

} // namespace

int main(int argc, char **argv)
{
    Cases cases;
    addLinear(cases, "linear 0 .. 7.3 by 5, fine steps", {{0.0, 7.3}}, 5,
              charts::AxisTicker::FineSteps);
    addLinear(cases, "linear 0 .. 7.3 by 5, preferred steps", {{0.0, 7.3}}, 5,
              charts::AxisTicker::PreferredSteps);
    addLinear(cases, "linear 0 .. 100 by 3", {{0.0, 100.0}}, 3, charts::AxisTicker::FineSteps);
    addLinear(cases, "linear 0.23 .. 0.77 by 3", {{0.23, 0.77}}, 3,
              charts::AxisTicker::FineSteps);
    addLinear(cases, "linear zoom sweep of 1000 ranges", linearZoomSweep(), 3,
              charts::AxisTicker::FineSteps);
    addLogarithmic(cases, "logarithmic 20 .. 20000", {{20.0, 20000.0}});
    addLogarithmic(cases, "logarithmic 0.001 .. 1e6", {{0.001, 1e6}});
    addLogarithmic(cases, "logarithmic zoom sweep of 1000 ranges", logarithmicZoomSweep());
    addCustom(cases, "custom 20 .. 500", {{20.0, 500.0}});
    addCustom(cases, "custom zoom sweep of 1000 ranges", logarithmicZoomSweep());

    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.printRatios(cases.names());
    benchmark::Shutdown();
    return 0;
}
