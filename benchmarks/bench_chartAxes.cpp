// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// One layout-and-render pass of an 800 x 600 chart with a linear and a logarithmic axis: the
// library's LinearAxis and LogarithmicAxis (with minor labels) against Qt Charts' QValueAxis and
// QLogValueAxis over the same ranges with the same major and minor ticks. Prints the time ratio
// ours / Qt, for a pass with unchanged ranges and for one that pans, and the number of graphics
// items each axis adds to the scene.

#include <ko/qtToolkit/charts/LinearAxis.h>
#include <ko/qtToolkit/charts/LogarithmicAxis.h>
#include <ko/qtToolkit/charts/LogarithmicAxisTicker.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QGraphicsLayout>
#include <QGraphicsScene>
#include <QImage>
#include <QPainter>
#include <QtCharts/QChart>
#include <QtCharts/QLineSeries>
#include <QtCharts/QLogValueAxis>
#include <QtCharts/QValueAxis>

#include <cmath>
#include <cstdio>
#include <map>
#include <memory>
#include <string>

namespace {

namespace charts = ko::qtToolkit::charts;

const QSize chartSize(800, 600);

// Both sides show 0, 20, ..., 100 with three minor ticks between, and the decades 1 to 1000
// with eight minor ticks in each.
charts::LogarithmicAxisTicker &decadeTicker()
{
    static charts::LogarithmicAxisTicker ticker;
    return ticker;
}

QtCharts::QAbstractAxis *createLinearAxis(bool ours)
{
    if (ours) {
        auto *axis = new charts::LinearAxis;
        axis->setRange(0.0, 100.0);
        axis->ticker()->setTickCount(4);
        return axis;
    }
    auto *axis = new QtCharts::QValueAxis;
    axis->setRange(0.0, 100.0);
    axis->setTickCount(6);
    axis->setMinorTickCount(3);
    return axis;
}

QtCharts::QAbstractAxis *createLogarithmicAxis(bool ours)
{
    if (ours) {
        auto *axis = new charts::LogarithmicAxis;
        axis->setRange(1.0, 1000.0);
        axis->setTicker(&decadeTicker());
        return axis;
    }
    auto *axis = new QtCharts::QLogValueAxis;
    axis->setRange(1.0, 1000.0);
    axis->setMinorTickCount(8);
    return axis;
}

// A chart in a scene of its own, with a series over both axes.
class Chart
{
public:
    Chart(QtCharts::QAbstractAxis *x, QtCharts::QAbstractAxis *y)
        : m_chart(new QtCharts::QChart)
        , m_x(x)
        , m_y(y)
    {
        m_scene.addItem(m_chart);
        m_chart->legend()->hide();
        m_chart->resize(chartSize);
        if (x)
            m_chart->addAxis(x, Qt::AlignBottom);
        if (y)
            m_chart->addAxis(y, Qt::AlignLeft);
        if (x && y) {
            auto *series = new QtCharts::QLineSeries;
            for (int i = 0; i <= 100; ++i)
                series->append(i, std::pow(10.0, i * 0.03));
            m_chart->addSeries(series);
            series->attachAxis(x);
            series->attachAxis(y);
        }
        QApplication::processEvents();
    }

    // Lays the chart out again, as a resize would, and paints it.
    void layoutAndRender(QImage &image)
    {
        m_chart->layout()->invalidate();
        m_chart->layout()->activate();
        render(image);
    }

    // Moves both axes to their \a shifted ranges or back, as a pan would, and paints the chart.
    void panAndRender(bool shifted, QImage &image)
    {
        m_x->setRange(shifted ? 7.0 : 0.0, shifted ? 107.0 : 100.0);
        m_y->setRange(shifted ? 1.5 : 1.0, shifted ? 1500.0 : 1000.0);
        layoutAndRender(image);
    }

    int itemCount() const { return m_scene.items().size(); }

private:
    void render(QImage &image)
    {
        image.fill(Qt::white);
        QPainter painter(&image);
        m_scene.render(&painter, QRectF(QPointF(), chartSize), QRectF(QPointF(), chartSize));
    }

    QGraphicsScene m_scene;
    QtCharts::QChart *m_chart;
    QtCharts::QAbstractAxis *m_x;
    QtCharts::QAbstractAxis *m_y;
};

void layoutAndRender(benchmark::State &state, bool ours)
{
    Chart chart(createLinearAxis(ours), createLogarithmicAxis(ours));
    QImage image(chartSize, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        chart.layoutAndRender(image);
        benchmark::DoNotOptimize(image.constBits());
    }
}

void BM_LayoutAndRender_LibraryAxes(benchmark::State &state)
{
    layoutAndRender(state, true);
}
BENCHMARK(BM_LayoutAndRender_LibraryAxes)->Unit(benchmark::kMillisecond);

void BM_LayoutAndRender_QtChartsAxes(benchmark::State &state)
{
    layoutAndRender(state, false);
}
BENCHMARK(BM_LayoutAndRender_QtChartsAxes)->Unit(benchmark::kMillisecond);

// The same, with both ranges moving at every pass, so that ticks and labels change.
void panAndRender(benchmark::State &state, bool ours)
{
    Chart chart(createLinearAxis(ours), createLogarithmicAxis(ours));
    QImage image(chartSize, QImage::Format_ARGB32_Premultiplied);
    bool shifted = false;
    for (auto _ : state) {
        shifted = !shifted;
        chart.panAndRender(shifted, image);
        benchmark::DoNotOptimize(image.constBits());
    }
}

void BM_PanAndRender_LibraryAxes(benchmark::State &state)
{
    panAndRender(state, true);
}
BENCHMARK(BM_PanAndRender_LibraryAxes)->Unit(benchmark::kMillisecond);

void BM_PanAndRender_QtChartsAxes(benchmark::State &state)
{
    panAndRender(state, false);
}
BENCHMARK(BM_PanAndRender_QtChartsAxes)->Unit(benchmark::kMillisecond);

// How many graphics items one axis adds to a chart's scene.
int itemsPerAxis(QtCharts::QAbstractAxis *axis, Qt::Alignment alignment)
{
    const int without = Chart(nullptr, nullptr).itemCount();
    Chart chart(alignment == Qt::AlignBottom ? axis : nullptr, alignment == Qt::AlignLeft ? axis : nullptr);
    return chart.itemCount() - without;
}

// Console output as usual, keeping the mean time of each benchmark for the ratio.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.run_type == Run::RT_Iteration && !run.error_occurred)
                m_times[run.benchmark_name()] = run.GetAdjustedRealTime();
        }
        ConsoleReporter::ReportRuns(runs);
    }

    double time(const std::string &name) const
    {
        const auto it = m_times.find(name);
        return it == m_times.end() ? 0.0 : it->second;
    }

private:
    std::map<std::string, double> m_times;
};

} // namespace

int main(int argc, char **argv)
{
    // No display is needed to lay out and paint into an image.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);

    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();

    for (const char *pass : {"LayoutAndRender", "PanAndRender"}) {
        const double ours = reporter.time(std::string("BM_") + pass + "_LibraryAxes");
        const double qt = reporter.time(std::string("BM_") + pass + "_QtChartsAxes");
        if (ours > 0.0 && qt > 0.0)
            std::printf("%s time ratio library / Qt Charts: %.2f\n", pass, ours / qt);
    }
    std::printf("graphics items per axis: LinearAxis %d, QValueAxis %d, LogarithmicAxis %d, QLogValueAxis %d\n",
                itemsPerAxis(createLinearAxis(true), Qt::AlignBottom),
                itemsPerAxis(createLinearAxis(false), Qt::AlignBottom),
                itemsPerAxis(createLogarithmicAxis(true), Qt::AlignLeft),
                itemsPerAxis(createLogarithmicAxis(false), Qt::AlignLeft));
    return 0;
}
