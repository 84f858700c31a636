// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// A frequency-response view as an audio panel shows it: a frequency axis and a level axis in dB
// in the library's dark chart style, with filter curves computed here. Drag to pan, turn the
// wheel to zoom; the readout follows the pointer or finger.

#include "GalleryPage.h"
#include "PanZoomChartView.h"

#include <ko/qtToolkit/charts/AxisTicker.h>
#include <ko/qtToolkit/charts/ChartStyle.h>
#include <ko/qtToolkit/charts/FrequencyAxis.h>
#include <ko/qtToolkit/charts/LinearAxis.h>

#include <QLabel>
#include <QtCharts/QLineSeries>

#include <cmath>
#include <functional>

namespace {

namespace charts = ko::qtToolkit::charts;

constexpr double levelMin = -30.0;
constexpr double levelMax = 12.0;

// Magnitude responses in dB of analog second-order sections, w = f / corner frequency.
double lowPassDb(double f, double corner)
{
    const double w = f / corner;
    return -10.0 * std::log10(1.0 + std::pow(w, 4));
}

double highPassDb(double f, double corner)
{
    const double w = f / corner;
    return 10.0 * std::log10(std::pow(w, 4) / (1.0 + std::pow(w, 4)));
}

double peakDb(double f, double centre, double gainDb, double q)
{
    const double w = f / centre;
    const double a = std::pow(10.0, gainDb / 40.0);
    const double real = (1.0 - w * w) * (1.0 - w * w);
    const double numerator = real + std::pow(w * a / q, 2);
    const double denominator = real + std::pow(w / (a * q), 2);
    return 10.0 * std::log10(numerator / denominator);
}

QtCharts::QLineSeries *responseCurve(const QString &name, const QColor &colour,
                                     const std::function<double(double)> &responseDb)
{
    auto *series = new QtCharts::QLineSeries;
    series->setName(name);
    series->setPen(QPen(colour, 2.0));
    const int points = 400;
    for (int i = 0; i <= points; ++i) {
        const double f = 10.0 * std::pow(10.0, 4.0 * i / points); // 10 Hz .. 100 kHz
        series->append(f, responseDb(f));
    }
    return series;
}

QString frequencyText(double hz)
{
    return hz >= 1000.0 ? QStringLiteral("%1 kHz").arg(hz / 1000.0, 0, 'f', 2)
                        : QStringLiteral("%1 Hz").arg(hz, 0, 'f', 0);
}

QWidget *createFrequencyResponsePage()
{
    auto *chart = new QtCharts::QChart;
    chart->setTitle(QStringLiteral("Channel EQ"));

    auto *frequency = new charts::FrequencyAxis;
    auto *level = new charts::LinearAxis;
    level->setRange(levelMin, levelMax);
    level->setLabelFormat(QStringLiteral("%.0f dB"));
    level->ticker()->setTickCount(4);
    chart->addAxis(frequency, Qt::AlignBottom);
    chart->addAxis(level, Qt::AlignLeft);

    const QList<QtCharts::QLineSeries *> curves{
        responseCurve(QStringLiteral("High-pass 80 Hz"), QColor(0x4f, 0xc3, 0xf7),
                      [](double f) { return highPassDb(f, 80.0); }),
        responseCurve(QStringLiteral("Presence +6 dB at 3 kHz"), QColor(0xff, 0xb7, 0x4d),
                      [](double f) { return peakDb(f, 3000.0, 6.0, 1.2); }),
        responseCurve(QStringLiteral("Low-pass 12 kHz"), QColor(0x81, 0xc7, 0x84),
                      [](double f) { return lowPassDb(f, 12000.0); }),
    };
    for (QtCharts::QLineSeries *curve : curves) {
        chart->addSeries(curve);
        curve->attachAxis(frequency);
        curve->attachAxis(level);
    }

    charts::style::applyTo(chart);
    charts::style::applyTo(frequency);
    charts::style::applyTo(level);
    charts::style::applyTo(chart->legend());

    auto *view = new gallery::PanZoomChartView(chart, frequency, {10.0, 100000.0, 1.0, 1e6}, level,
                                               {0.0, 0.0, 1.0, 200.0});
    view->setMinimumSize(480, 320);

    auto *readout = new QLabel(QStringLiteral("Touch the plot"));
    readout->setMinimumWidth(220);
    QObject::connect(view, &gallery::PanZoomChartView::pointed, readout, [readout](double hz, double db) {
        readout->setText(QStringLiteral("%1, %2 dB").arg(frequencyText(hz)).arg(db, 0, 'f', 1));
    });

    return gallery::chartPage(view, readout, [frequency, level] {
        frequency->setRange(20.0, 20000.0);
        level->setRange(levelMin, levelMax);
    });
}

const gallery::PageRegistration registration{11, QStringLiteral("Frequency response"), createFrequencyResponsePage};

} // namespace
