// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include "ChartTestSupport.h"

#include <ko/qtToolkit/charts/ChartHelpers.h>
#include <ko/qtToolkit/charts/ChartHelpers_p.h>

#include <QSignalSpy>
#include <QTest>
#include <QtCharts/QCategoryAxis>
#include <QtCharts/QLogValueAxis>
#include <QtCharts/QValueAxis>
#include <QtCharts/private/chartaxiselement_p.h>
#include <QtCharts/private/chartelement_p.h>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>

using namespace ko::qtToolkit::charts;
using ko::qtToolkit::test::TestChart;
using QtCharts::QAbstractAxis;
using QtCharts::QLogValueAxis;
using QtCharts::QValueAxis;

namespace {

// An axis that was in a chart long enough to get its orientation, and is in none now.
template<typename Axis>
std::unique_ptr<Axis> detachedAxis(Qt::Alignment alignment, double min, double max)
{
    QtCharts::QChart chart;
    auto *axis = new Axis;
    axis->setRange(min, max);
    chart.addAxis(axis, alignment);
    chart.removeAxis(axis);
    return std::unique_ptr<Axis>(axis);
}

// Runs \a call and counts the messages it logs.
template<typename Call>
int messagesLoggedBy(Call call)
{
    static int messages;
    messages = 0;
    const QtMessageHandler previous =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) { ++messages; });
    call();
    qInstallMessageHandler(previous);
    return messages;
}

// A refused pan or zoom leaves the range as it was, without a word; an accepted one changes it
// once.
template<typename Axis>
void checkRangeChange(Axis &axis, double expectedMin, double expectedMax, const std::function<void()> &call)
{
    const bool refused = axis.min() == expectedMin && axis.max() == expectedMax;
    QSignalSpy changes(&axis, &Axis::rangeChanged);
    QCOMPARE(messagesLoggedBy(call), 0);
    QCOMPARE(axis.min(), expectedMin);
    QCOMPARE(axis.max(), expectedMax);
    QCOMPARE(changes.count(), refused ? 0 : 1);
}

} // namespace

class tst_ChartHelpers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void minimumSeriesZValueIsFour()
    {
        QCOMPARE(minimumSeriesZValue(), 4.0);
    }

    void seriesOutsideChartHasNoZValue()
    {
        QtCharts::QLineSeries series;
        QCOMPARE(seriesZValue(series), 0.0);
        QVERIFY(!seriesElement(series));
        setSeriesZValue(series, 9.0);
        QCOMPARE(seriesZValue(series), 0.0);

        // The call left nothing behind for a later chart item to pick up.
        TestChart chart;
        auto *owned = new QtCharts::QLineSeries;
        chart.chart()->addSeries(owned);
        QVERIFY(seriesZValue(*owned) != 9.0);
    }

    void seriesZValueInChart()
    {
        TestChart chart;
        auto *series = new QtCharts::QLineSeries;
        chart.chart()->addSeries(series);
        QVERIFY(seriesElement(*series));

        setSeriesZValue(*series, minimumSeriesZValue() + 2.5);
        QCOMPARE(seriesZValue(*series), 6.5);
        QCOMPARE(seriesElement(*series)->zValue(), 6.5);
    }

    void axisOutsideChartUsesUnitRectangle_data()
    {
        QTest::addColumn<Qt::Alignment>("alignment");
        QTest::addColumn<bool>("reverse");
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("pixel");
        // Plot rectangle (0, 0, 1, 1): x runs 0..1 to the right, y 1..0 upwards.
        QTest::newRow("horizontal middle") << Qt::Alignment(Qt::AlignBottom) << false << 5.0 << 0.5;
        QTest::newRow("horizontal quarter") << Qt::Alignment(Qt::AlignBottom) << false << 2.5 << 0.25;
        QTest::newRow("horizontal reversed") << Qt::Alignment(Qt::AlignTop) << true << 2.5 << 0.75;
        QTest::newRow("vertical quarter") << Qt::Alignment(Qt::AlignLeft) << false << 2.5 << 0.75;
        QTest::newRow("vertical reversed") << Qt::Alignment(Qt::AlignRight) << true << 2.5 << 0.25;
    }

    void axisOutsideChartUsesUnitRectangle()
    {
        QFETCH(Qt::Alignment, alignment);
        QFETCH(bool, reverse);
        QFETCH(double, value);
        QFETCH(double, pixel);

        const auto axis = detachedAxis<QValueAxis>(alignment, 0.0, 10.0);
        axis->setReverse(reverse);
        QVERIFY(!axisElement(*axis));
        QCOMPARE(coordToPixel(*axis, value), pixel);
        QCOMPARE(pixelToCoord(*axis, pixel), value);
    }

    void axisNeverInChartCountsAsVertical()
    {
        QValueAxis axis;
        axis.setRange(0.0, 10.0);
        QCOMPARE(coordToPixel(axis, 2.5), 0.75);
        QCOMPARE(pixelToCoord(axis, 0.75), 2.5);
    }

    void mappingInChart_data()
    {
        QTest::addColumn<bool>("logarithmic");
        QTest::addColumn<Qt::Alignment>("alignment");
        QTest::addColumn<bool>("reverse");
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("fraction"); // of the plot rectangle, from its value-minimum end

        QTest::newRow("linear bottom") << false << Qt::Alignment(Qt::AlignBottom) << false << 25.0 << 0.25;
        QTest::newRow("linear bottom reversed") << false << Qt::Alignment(Qt::AlignBottom) << true << 25.0 << 0.25;
        QTest::newRow("linear left") << false << Qt::Alignment(Qt::AlignLeft) << false << 80.0 << 0.8;
        QTest::newRow("linear left reversed") << false << Qt::Alignment(Qt::AlignLeft) << true << 80.0 << 0.8;
        QTest::newRow("linear below range") << false << Qt::Alignment(Qt::AlignBottom) << false << -50.0 << -0.5;
        QTest::newRow("log bottom") << true << Qt::Alignment(Qt::AlignBottom) << false << 10.0 << 1.0 / 3.0;
        QTest::newRow("log bottom reversed") << true << Qt::Alignment(Qt::AlignBottom) << true << 100.0 << 2.0 / 3.0;
        QTest::newRow("log right") << true << Qt::Alignment(Qt::AlignRight) << false << 100.0 << 2.0 / 3.0;
        QTest::newRow("log right reversed") << true << Qt::Alignment(Qt::AlignRight) << true << 10.0 << 1.0 / 3.0;
    }

    void mappingInChart()
    {
        QFETCH(bool, logarithmic);
        QFETCH(Qt::Alignment, alignment);
        QFETCH(bool, reverse);
        QFETCH(double, value);
        QFETCH(double, fraction);

        TestChart chart;
        QAbstractAxis *axis = nullptr;
        if (logarithmic) {
            auto *log = new QLogValueAxis;
            log->setRange(1.0, 1000.0);
            axis = log;
        } else {
            auto *linear = new QValueAxis;
            linear->setRange(0.0, 100.0);
            axis = linear;
        }
        axis->setReverse(reverse);
        chart.addAxis(axis, alignment);
        chart.layout();

        const QRectF plot = chart.chart()->plotArea();
        QVERIFY(plot.width() > 100.0 && plot.height() > 100.0);
        QCOMPARE(axisElement(*axis)->gridGeometry(), plot);

        const double f = reverse ? 1.0 - fraction : fraction;
        const double expected = axis->orientation() == Qt::Horizontal ? plot.left() + f * plot.width()
                                                                      : plot.bottom() - f * plot.height();
        QCOMPARE(coordToPixel(*axis, value), expected);
        QCOMPARE(pixelToCoord(*axis, expected), value);
    }

    void logarithmicValueOutsideDomain_data()
    {
        QTest::addColumn<Qt::Alignment>("alignment");
        QTest::addColumn<bool>("reverse");
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("edge");
        QTest::newRow("zero, bottom") << Qt::Alignment(Qt::AlignBottom) << false << 0.0 << "left";
        QTest::newRow("negative, bottom") << Qt::Alignment(Qt::AlignBottom) << false << -5.0 << "left";
        QTest::newRow("zero, bottom reversed") << Qt::Alignment(Qt::AlignBottom) << true << 0.0 << "right";
        QTest::newRow("zero, left") << Qt::Alignment(Qt::AlignLeft) << false << 0.0 << "bottom";
        QTest::newRow("zero, left reversed") << Qt::Alignment(Qt::AlignLeft) << true << 0.0 << "top";
    }

    void logarithmicValueOutsideDomain()
    {
        QFETCH(Qt::Alignment, alignment);
        QFETCH(bool, reverse);
        QFETCH(double, value);
        QFETCH(QString, edge);

        TestChart chart;
        auto *axis = chart.addAxis(new QLogValueAxis, alignment);
        axis->setRange(1.0, 1000.0);
        axis->setReverse(reverse);
        chart.layout();

        const QRectF plot = chart.chart()->plotArea();
        const double expected = edge == QLatin1String("left")    ? plot.left() - 200.0
                                : edge == QLatin1String("right") ? plot.right() + 200.0
                                : edge == QLatin1String("top")   ? plot.top() - 200.0
                                                                 : plot.bottom() + 200.0;
        QCOMPARE(coordToPixel(*axis, value), expected);
    }

    void logarithmicZeroOutsideChart()
    {
        const auto axis = detachedAxis<QLogValueAxis>(Qt::AlignBottom, 1.0, 1000.0);
        QCOMPARE(coordToPixel(*axis, 0.0), -200.0);
    }

    void otherAxisTypesPassThrough()
    {
        TestChart chart;
        // A category axis is a QValueAxis whose type is not AxisTypeValue.
        auto *axis = chart.addAxis(new QtCharts::QCategoryAxis, Qt::AlignBottom);
        axis->setRange(0.0, 10.0);
        axis->setLabelFormat(QStringLiteral("%.1f"));
        chart.layout();

        QCOMPARE(pixelToCoord(*axis, 123.5), 123.5);
        QCOMPARE(coordToPixel(*axis, 7.25), 7.25);
        QCOMPARE(pixelToCoordDelta(*axis, 300.0, 100.0), 0.0);

        translate(*axis, 5.0, -100.0, 100.0);
        scale(*axis, 5.0, 0.5, 1e-6, 1e6);
        QCOMPARE(axis->min(), 0.0);
        QCOMPARE(axis->max(), 10.0);

        QCOMPARE(formatLabel(*axis, 2.5, QStringLiteral("%.3f")), QStringLiteral("2.500"));
    }

    void pixelToCoordDeltaInChart()
    {
        TestChart chart;
        auto *x = chart.addAxis(new QValueAxis, Qt::AlignBottom);
        x->setRange(0.0, 100.0);
        auto *y = chart.addAxis(new QLogValueAxis, Qt::AlignLeft);
        y->setRange(1.0, 1000.0);
        chart.layout();

        const QRectF plot = chart.chart()->plotArea();
        // A quarter of the width is 25 units; a third of the height one decade.
        QCOMPARE(pixelToCoordDelta(*x, plot.left() + plot.width() * 0.5, plot.left() + plot.width() * 0.25), 25.0);
        QCOMPARE(pixelToCoordDelta(*y, plot.bottom() - plot.height() * 2.0 / 3.0, plot.bottom() - plot.height() / 3.0),
                 10.0);
    }

    void translateLinear_data()
    {
        QTest::addColumn<double>("min");
        QTest::addColumn<double>("max");
        QTest::addColumn<double>("delta");
        QTest::addColumn<double>("expectedMin");
        QTest::addColumn<double>("expectedMax");
        QTest::newRow("bounds are ignored") << 0.0 << 10.0 << 100.0 << 100.0 << 110.0;
        QTest::newRow("backwards") << 0.0 << 10.0 << -2.5 << -2.5 << 7.5;
        QTest::newRow("span too small") << 5.0 << 5.00000000001 << 1.0 << 5.0 << 5.00000000001;
        QTest::newRow("span too large") << -5e9 << 5e9 << 1.0 << -5e9 << 5e9;
        QTest::newRow("minimum too low") << -5e9 << 0.0 << -5e9 << -5e9 << 0.0;
        QTest::newRow("maximum too high") << 0.0 << 5e9 << 5e9 << 0.0 << 5e9;
        QTest::newRow("not finite") << 0.0 << 10.0 << std::numeric_limits<double>::infinity() << 0.0 << 10.0;
        QTest::newRow("not a number") << 0.0 << 10.0 << std::numeric_limits<double>::quiet_NaN() << 0.0 << 10.0;
    }

    void translateLinear()
    {
        QFETCH(double, min);
        QFETCH(double, max);
        QFETCH(double, delta);
        QFETCH(double, expectedMin);
        QFETCH(double, expectedMax);

        QValueAxis axis;
        axis.setRange(min, max);
        checkRangeChange(axis, expectedMin, expectedMax, [&] { translate(axis, delta, 0.0, 10.0); });
    }

    void translateLogarithmic_data()
    {
        QTest::addColumn<double>("delta");
        QTest::addColumn<double>("lowerBound");
        QTest::addColumn<double>("upperBound");
        QTest::addColumn<double>("expectedMin");
        QTest::addColumn<double>("expectedMax");
        QTest::newRow("within bounds") << 10.0 << 0.1 << 1000.0 << 10.0 << 100.0;
        QTest::newRow("down within bounds") << 0.5 << 0.1 << 1000.0 << 0.5 << 5.0;
        QTest::newRow("on the bounds") << 10.0 << 10.0 << 100.0 << 10.0 << 100.0;
        QTest::newRow("past upper bound") << 10.0 << 0.1 << 99.0 << 1.0 << 10.0;
        QTest::newRow("past lower bound") << 0.5 << 0.6 << 1000.0 << 1.0 << 10.0;
        QTest::newRow("sign flipped") << -1.0 << -1000.0 << 1000.0 << 1.0 << 10.0;
        QTest::newRow("maximum too high") << 1e9 << 0.0 << 1e12 << 1.0 << 10.0;
        QTest::newRow("span too small") << 1e-11 << 0.0 << 1000.0 << 1.0 << 10.0;
        QTest::newRow("not finite") << std::numeric_limits<double>::infinity() << 0.0 << 1e300 << 1.0 << 10.0;
        QTest::newRow("lower bound not a number") << 10.0 << std::numeric_limits<double>::quiet_NaN() << 1000.0 << 1.0 << 10.0;
        QTest::newRow("upper bound not a number") << 10.0 << 0.1 << std::numeric_limits<double>::quiet_NaN() << 1.0 << 10.0;
    }

    void translateLogarithmic()
    {
        QFETCH(double, delta);
        QFETCH(double, lowerBound);
        QFETCH(double, upperBound);
        QFETCH(double, expectedMin);
        QFETCH(double, expectedMax);

        QLogValueAxis axis;
        axis.setRange(1.0, 10.0);
        checkRangeChange(axis, expectedMin, expectedMax, [&] { translate(axis, delta, lowerBound, upperBound); });
    }

    void translateThroughPixels()
    {
        TestChart chart;
        auto *x = chart.addAxis(new QValueAxis, Qt::AlignBottom);
        x->setRange(0.0, 100.0);
        auto *y = chart.addAxis(new QLogValueAxis, Qt::AlignLeft);
        y->setRange(1.0, 1000.0);
        chart.layout();
        const QRectF plot = chart.chart()->plotArea();

        // Dragging the content to the right by a tenth of the width shows values ten lower.
        const double dragX = plot.width() / 10.0;
        translate(*x, pixelToCoordDelta(*x, plot.center().x(), plot.center().x() + dragX), -1e9, 1e9);
        QCOMPARE(x->min(), -10.0);
        QCOMPARE(x->max(), 90.0);

        // Dragging up by a third of the height moves a log axis one decade up.
        const double dragY = plot.height() / 3.0;
        translate(*y, pixelToCoordDelta(*y, plot.center().y(), plot.center().y() - dragY), 1e-6, 1e6);
        QCOMPARE(y->min(), 0.1);
        QCOMPARE(y->max(), 100.0);
    }

    void scaleLinear_data()
    {
        QTest::addColumn<double>("centre");
        QTest::addColumn<double>("factor");
        QTest::addColumn<double>("minimumSpan");
        QTest::addColumn<double>("maximumMagnitude");
        QTest::addColumn<double>("expectedMin");
        QTest::addColumn<double>("expectedMax");
        QTest::newRow("zoom in about the middle") << 5.0 << 0.5 << 1e-6 << 1e6 << 2.5 << 7.5;
        QTest::newRow("zoom out about the start") << 0.0 << 3.0 << 1e-6 << 1e6 << 0.0 << 30.0;
        QTest::newRow("about a point outside") << 20.0 << 2.0 << 1e-6 << 1e6 << -20.0 << 0.0;
        QTest::newRow("span at the minimum") << 5.0 << 0.1 << 1.0 << 1e6 << 0.0 << 10.0;
        QTest::newRow("span at the maximum magnitude") << 5.0 << 10.0 << 1e-6 << 100.0 << 0.0 << 10.0;
        QTest::newRow("end at minus the maximum magnitude") << 10.0 << 2.0 << 1e-6 << 10.0 << 0.0 << 10.0;
        QTest::newRow("end at the maximum magnitude") << 0.0 << 2.0 << 1e-6 << 20.0 << 0.0 << 10.0;
        QTest::newRow("mirrored") << 5.0 << -1.0 << 1e-6 << 1e6 << 0.0 << 10.0;
        QTest::newRow("not finite") << 5.0 << std::numeric_limits<double>::infinity() << 1e-6 << 1e300 << 0.0 << 10.0;
        QTest::newRow("collapsed, limits not a number") << 5.0 << 0.0 << std::numeric_limits<double>::quiet_NaN() << std::numeric_limits<double>::quiet_NaN() << 0.0 << 10.0;
        QTest::newRow("minimum span not a number") << 5.0 << 0.5 << std::numeric_limits<double>::quiet_NaN() << 1e6 << 0.0 << 10.0;
        QTest::newRow("maximum magnitude not a number") << 5.0 << 0.5 << 1e-6 << std::numeric_limits<double>::quiet_NaN() << 0.0 << 10.0;
        QTest::newRow("centre not a number") << std::numeric_limits<double>::quiet_NaN() << 0.5 << 1e-6 << 1e6 << 0.0 << 10.0;
    }

    void scaleLinear()
    {
        QFETCH(double, centre);
        QFETCH(double, factor);
        QFETCH(double, minimumSpan);
        QFETCH(double, maximumMagnitude);
        QFETCH(double, expectedMin);
        QFETCH(double, expectedMax);

        QValueAxis axis;
        axis.setRange(0.0, 10.0);
        checkRangeChange(axis, expectedMin, expectedMax,
                         [&] { scale(axis, centre, factor, minimumSpan, maximumMagnitude); });
    }

    void scaleLogarithmic_data()
    {
        QTest::addColumn<double>("min");
        QTest::addColumn<double>("max");
        QTest::addColumn<double>("centre");
        QTest::addColumn<double>("factor");
        QTest::addColumn<double>("minimumSpan");
        QTest::addColumn<double>("expectedMin");
        QTest::addColumn<double>("expectedMax");
        QTest::newRow("zoom in about a decade") << 1.0 << 100.0 << 10.0 << 0.5 << 1e-6 << std::sqrt(10.0)
                                                << 10.0 * std::sqrt(10.0);
        QTest::newRow("zoom out") << 10.0 << 100.0 << 10.0 << 2.0 << 1e-6 << 10.0 << 1000.0;
        QTest::newRow("span at the minimum") << 10.0 << 100.0 << 10.0 << 0.5 << 1000.0 << 10.0 << 100.0;
        QTest::newRow("minimum span not a number") << 10.0 << 100.0 << 10.0 << 0.5 << std::numeric_limits<double>::quiet_NaN() << 10.0 << 100.0;
        QTest::newRow("about zero") << 10.0 << 100.0 << 0.0 << 0.5 << 1e-6 << 10.0 << 100.0;
        // 0.5 to the power 2000 is zero in double: the new minimum is moved off zero.
        QTest::newRow("minimum reaches zero") << 0.5 << 1.0 << 1.0 << 2000.0 << 1e-6 << 0.001 << 1.0;
    }

    void scaleLogarithmic()
    {
        QFETCH(double, min);
        QFETCH(double, max);
        QFETCH(double, centre);
        QFETCH(double, factor);
        QFETCH(double, minimumSpan);
        QFETCH(double, expectedMin);
        QFETCH(double, expectedMax);

        QLogValueAxis axis;
        axis.setRange(min, max);
        checkRangeChange(axis, expectedMin, expectedMax, [&] { scale(axis, centre, factor, minimumSpan, 1e6); });
    }

    void logarithmicRangeKeptOffZero_data()
    {
        QTest::addColumn<double>("min");
        QTest::addColumn<double>("max");
        QTest::addColumn<double>("expectedMin");
        QTest::addColumn<double>("expectedMax");
        QTest::newRow("crossing zero, small negative part") << -0.5 << 20.0 << 0.001 << 20.0;
        QTest::newRow("crossing zero at minus one") << -1.0 << 20.0 << 0.001 << 20.0;
        QTest::newRow("crossing zero, small maximum") << -0.5 << 0.2 << 0.0002 << 0.2;
        QTest::newRow("crossing zero, large negative part") << -5.0 << 20.0 << -5.0 << -0.001;
        QTest::newRow("minimum at zero") << 0.0 << 20.0 << 0.001 << 20.0;
        QTest::newRow("minimum at zero, small maximum") << 0.0 << 0.5 << 0.0005 << 0.5;
        QTest::newRow("maximum at zero") << -20.0 << 0.0 << -20.0 << -0.001;
        QTest::newRow("maximum at zero, small minimum") << -0.5 << 0.0 << -0.5 << -0.0005;
        QTest::newRow("positive") << 2.0 << 20.0 << 2.0 << 20.0;
        QTest::newRow("negative") << -20.0 << -2.0 << -20.0 << -2.0;
    }

    void logarithmicRangeKeptOffZero()
    {
        QFETCH(double, min);
        QFETCH(double, max);
        QFETCH(double, expectedMin);
        QFETCH(double, expectedMax);

        const QPair<double, double> range = logarithmicRangeOffZero(min, max);
        QCOMPARE(range.first, expectedMin);
        QCOMPARE(range.second, expectedMax);
    }

    void formatLabelUsesAxisFormat_data()
    {
        QTest::addColumn<bool>("logarithmic");
        QTest::addColumn<QString>("axisFormat");
        QTest::addColumn<QString>("expected");
        QTest::newRow("linear with format") << false << "%.1f" << "2.5";
        QTest::newRow("linear without format") << false << "" << "2.500";
        QTest::newRow("log with format") << true << "%g Hz" << "2.5 Hz";
        QTest::newRow("log without format") << true << "" << "2.500";
    }

    void formatLabelUsesAxisFormat()
    {
        QFETCH(bool, logarithmic);
        QFETCH(QString, axisFormat);
        QFETCH(QString, expected);

        QValueAxis linear;
        QLogValueAxis log;
        linear.setLabelFormat(axisFormat);
        log.setLabelFormat(axisFormat);
        const QAbstractAxis &axis = logarithmic ? static_cast<QAbstractAxis &>(log) : linear;
        QCOMPARE(formatLabel(axis, 2.5, QStringLiteral("%.3f")), expected);
    }

    // The axis's format goes through the same check as a ticker's; a refused one gives way to
    // the default format, which is checked too.
    void formatLabelRefusesUnsafeFormats_data()
    {
        QTest::addColumn<bool>("logarithmic");
        QTest::addColumn<QString>("axisFormat");
        QTest::addColumn<QString>("defaultFormat");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<bool>("warns");
        QTest::newRow("integer and string") << false << "%d %s" << "%.2f" << "1.50" << false;
        QTest::newRow("writes through a pointer") << false << "%n" << "%.2f" << "1.50" << false;
        QTest::newRow("two conversions") << true << "%f %f" << "%.1f" << "1.5" << false;
        QTest::newRow("width from an argument") << false << "%*f" << "%.2f" << "1.50" << false;
        QTest::newRow("width of a thousand") << false << "%0999.999g" << "%.2f" << "1.50" << false;
        QTest::newRow("integer rounds the value") << false << "%d dB" << "%.2f" << "2 dB" << false;
        QTest::newRow("long integer reads 64 bits") << true << "%ld" << "%.2f" << "2" << false;
        QTest::newRow("refused default too") << false << "" << "%s" << "" << true;
        QTest::newRow("refused default after refused axis format") << false << "%n" << "%p" << "" << true;
    }

    void formatLabelRefusesUnsafeFormats()
    {
        QFETCH(bool, logarithmic);
        QFETCH(QString, axisFormat);
        QFETCH(QString, defaultFormat);
        QFETCH(QString, expected);
        QFETCH(bool, warns);

        QValueAxis linear;
        QLogValueAxis log;
        linear.setLabelFormat(axisFormat);
        log.setLabelFormat(axisFormat);
        const QAbstractAxis &axis = logarithmic ? static_cast<QAbstractAxis &>(log) : linear;
        if (warns) {
            QTest::ignoreMessage(QtWarningMsg,
                                 qPrintable(QStringLiteral("formatLabel: ignoring \"%1\": a label format takes at most "
                                                           "one floating-point or integer conversion")
                                                .arg(defaultFormat)));
        }
        QCOMPARE(formatLabel(axis, 1.5, defaultFormat), expected);
    }
};

QTEST_MAIN(tst_ChartHelpers)
#include "tst_ChartHelpers.moc"
