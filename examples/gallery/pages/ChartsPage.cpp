// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// Chart axes: a linear time axis and a logarithmic level axis whose ticks come from their
// tickers, with labels at the minor ticks. Drag the plot to pan, turn the wheel to zoom. Beside
// it, the same axes on a narrow chart hide the labels that would overlap.

#include "GalleryPage.h"
#include "PanZoomChartView.h"

#include <ko/qtToolkit/charts/AxisTicker.h>
#include <ko/qtToolkit/charts/LinearAxis.h>
#include <ko/qtToolkit/charts/LogarithmicAxis.h>
#include <ko/qtToolkit/charts/LogarithmicAxisTicker.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <QtCharts/QChartView>
#include <QtCharts/QLineSeries>

#include <cmath>

namespace {

namespace charts = ko::qtToolkit::charts;

constexpr double timeMin = 0.0;
constexpr double timeMax = 100.0;
constexpr double levelMin = 1.0;
constexpr double levelMax = 10000.0;

QtCharts::QLineSeries *createLevelSeries()
{
    auto *series = new QtCharts::QLineSeries;
    series->setName(QStringLiteral("Level"));
    for (int i = 0; i <= 400; ++i) {
        const double t = timeMax * i / 400.0;
        // Rising by a decade every 25 s, with a ripple.
        series->append(t, std::pow(10.0, t / 25.0) * (1.0 + 0.4 * std::sin(t / 2.0)) + 1.0);
    }
    return series;
}

// The level series on \a chart, over \a time at the bottom and \a level at the left.
void plotLevelOverTime(QtCharts::QChart *chart, charts::LinearAxis *time, charts::LogarithmicAxis *level)
{
    chart->addAxis(time, Qt::AlignBottom);
    chart->addAxis(level, Qt::AlignLeft);
    auto *series = createLevelSeries();
    chart->addSeries(series);
    series->attachAxis(time);
    series->attachAxis(level);
}

// A narrow chart of the same level over time, too narrow for every label its axes make: those
// that would overlap are hidden, major labels kept before minor ones.
QWidget *createNarrowChart(charts::LogarithmicAxisTicker *decades)
{
    auto *chart = new QtCharts::QChart;
    chart->legend()->hide();
    auto *time = new charts::LinearAxis;
    time->setRange(timeMin, timeMax);
    time->setLabelFormat(QStringLiteral("%.0f"));
    time->ticker()->setTickCount(3);
    time->setMinorLabelsColor(QColor(0x4a, 0x7a, 0xb5));
    time->setHideOverlappingLabels(true);
    auto *level = new charts::LogarithmicAxis;
    level->setTicker(decades);
    level->setRange(levelMin, levelMax);
    level->setLabelFormat(QStringLiteral("%g"));
    level->setMinorLabelsColor(QColor(0x4a, 0x7a, 0xb5));
    level->setHideOverlappingLabels(true);
    plotLevelOverTime(chart, time, level);

    auto *view = new QtCharts::QChartView(chart);
    view->setRenderHint(QPainter::Antialiasing);
    view->setFixedWidth(230);
    auto *hide = new QCheckBox(QStringLiteral("Hide overlapping"));
    hide->setChecked(true);
    QObject::connect(hide, &QCheckBox::toggled, time, &charts::LinearAxis::setHideOverlappingLabels);
    QObject::connect(hide, &QCheckBox::toggled, level, &charts::LogarithmicAxis::setHideOverlappingLabels);

    auto *box = new QGroupBox(QStringLiteral("Narrow"));
    auto *layout = new QVBoxLayout(box);
    layout->addWidget(view, 1);
    layout->addWidget(hide);
    return box;
}

QWidget *createChartsPage()
{
    auto *chart = new QtCharts::QChart;
    chart->legend()->hide();
    chart->setTitle(QStringLiteral("Level over time"));

    auto *time = new charts::LinearAxis;
    time->setRange(timeMin, timeMax);
    time->setTitleText(QStringLiteral("Time (s)"));
    time->setLabelFormat(QStringLiteral("%.0f"));
    time->ticker()->setTickCount(5);
    time->setMinorLabelsColor(QColor(0x4a, 0x7a, 0xb5));

    // Ticks at the powers of ten; axes never own their tickers, so this one lives as long as
    // the gallery.
    static charts::LogarithmicAxisTicker decades;
    // Each label gets an equal share of the axis height: few minor ticks leave room for theirs.
    decades.setSubTickCount(2);
    auto *level = new charts::LogarithmicAxis;
    level->setTicker(&decades);
    level->setRange(levelMin, levelMax);
    level->setTitleText(QStringLiteral("Level"));
    level->setLabelFormat(QStringLiteral("%g"));
    level->setMinorLabelsColor(QColor(0x4a, 0x7a, 0xb5));
    // On a small panel the plot is too narrow for every minor label; on the desktop none overlap.
    time->setHideOverlappingLabels(true);
    level->setHideOverlappingLabels(true);

    plotLevelOverTime(chart, time, level);

    auto *view = new gallery::PanZoomChartView(chart, time, {-1e9, 1e9, 0.5, 1e6}, level, {1e-3, 1e7, 1e-2, 1e7});
    view->setMinimumSize(480, 320);

    auto *minorLabels = new QCheckBox(QStringLiteral("Minor labels"));
    minorLabels->setChecked(true);
    QObject::connect(minorLabels, &QCheckBox::toggled, time, &charts::LinearAxis::setMinorLabelsVisible);
    QObject::connect(minorLabels, &QCheckBox::toggled, level, &charts::LogarithmicAxis::setMinorLabelsVisible);

    auto *page = new QWidget;
    auto *layout = new QHBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(gallery::chartPage(view, minorLabels,
                                         [time, level] {
                                             time->setRange(timeMin, timeMax);
                                             level->setRange(levelMin, levelMax);
                                         }),
                      1);
    layout->addWidget(createNarrowChart(&decades));
    return page;
}

const gallery::PageRegistration registration{10, QStringLiteral("Charts"), createChartsPage};

} // namespace
