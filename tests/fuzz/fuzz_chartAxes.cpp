// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// The library's axes in a real chart: any ranges, reversal, label formats, tickers, chart sizes
// and animations, with pans, zooms and value/pixel mapping. Rules: a pan or zoom either applies
// exactly the range it computes, when that range passes its limits, or leaves the axis alone;
// mapping a value of the range gives a pixel of the plot and back the value; the laid-out ticks
// are ascending, inside the range and capped, and every item the axis draws sits at a finite
// place; a formatted label has a bounded length.

#include "FuzzSupport.h"

#include <ko/qtToolkit/charts/AxisTicker.h>
#include <ko/qtToolkit/charts/AxisTicker_p.h>
#include <ko/qtToolkit/charts/CartesianChartAxis_p.h>
#include <ko/qtToolkit/charts/ChartHelpers.h>
#include <ko/qtToolkit/charts/ChartHelpers_p.h>
#include <ko/qtToolkit/charts/CustomAxisTicker.h>
#include <ko/qtToolkit/charts/FrequencyAxis.h>
#include <ko/qtToolkit/charts/LinearAxis.h>
#include <ko/qtToolkit/charts/LogarithmicAxis.h>
#include <ko/qtToolkit/charts/LogarithmicAxisTicker.h>

#include <QGraphicsItemGroup>
#include <QGraphicsLineItem>
#include <QGraphicsScene>
#include <QGraphicsTextItem>
#include <QtCharts/QChart>
#include <QtCharts/QLineSeries>

#include <algorithm>

using namespace ko::qtToolkit;
using fuzz::show;
using QtCharts::QAbstractAxis;
using QtCharts::QLogValueAxis;
using QtCharts::QValueAxis;

namespace {

constexpr char formatAlphabet[] = "%%%.-+ #0123456789lldifeEgGxsnk";

struct Range
{
    double min;
    double max;
};

bool isLogarithmic(const QAbstractAxis &axis)
{
    return axis.type() == QAbstractAxis::AxisTypeLogValue;
}

Range rangeOf(const QAbstractAxis &axis)
{
    if (isLogarithmic(axis))
        return {static_cast<const QLogValueAxis &>(axis).min(), static_cast<const QLogValueAxis &>(axis).max()};
    return {static_cast<const QValueAxis &>(axis).min(), static_cast<const QValueAxis &>(axis).max()};
}

void setRange(QAbstractAxis &axis, double min, double max)
{
    // Qt Charts' logarithmic axis has no guard of its own against an infinite end: with a series
    // attached, the axis and the chart's domain hand the range back and forth until the stack
    // runs out. That is Qt's to fix, so this target gives Qt's setter finite ends only.
    if (isLogarithmic(axis) && !(std::isfinite(min) && std::isfinite(max)))
        return;
    if (isLogarithmic(axis))
        static_cast<QLogValueAxis &>(axis).setRange(min, max);
    else
        static_cast<QValueAxis &>(axis).setRange(min, max);
}

QString describe(const QAbstractAxis &axis)
{
    const Range range = rangeOf(axis);
    return QStringLiteral(" on a %1 %2%3 axis %4 to %5")
        .arg(axis.orientation() == Qt::Horizontal ? QStringLiteral("horizontal") : QStringLiteral("vertical"),
             axis.isReverse() ? QStringLiteral("reversed ") : QString(),
             isLogarithmic(axis) ? QStringLiteral("logarithmic") : QStringLiteral("linear"), show(range.min),
             show(range.max));
}

// After a pan or zoom that computed [newMin, newMax] and judged it by \a valid: the axis holds
// the new range, or, when it was refused, the old one. Qt's logarithmic axis ignores ends at or
// below zero by itself, so there only a refused change is checked.
void checkRangeChange(const QAbstractAxis &axis, const Range &before, double newMin, double newMax, bool valid,
                      const QString &what)
{
    const Range after = rangeOf(axis);
    const bool unchanged = after.min == before.min && after.max == before.max;
    const QString detail = what + QStringLiteral(" computed %1 to %2, gave %3 to %4 from %5 to %6")
                                      .arg(show(newMin), show(newMax), show(after.min), show(after.max),
                                           show(before.min), show(before.max));
    if (!valid) {
        KO_FUZZ_CHECK(unchanged, QStringLiteral("refused, but ") + detail);
    } else if (!isLogarithmic(axis) || (newMin > 0.0 && before.min > 0.0)) {
        // Qt's axes take a change of an end by less than a part in 10^12 for none.
        const auto endFollows = [](double end, double computed, double old) {
            return end == computed || (end == old && qFuzzyCompare(computed, old));
        };
        KO_FUZZ_CHECK((endFollows(after.min, newMin, before.min) && endFollows(after.max, newMax, before.max))
                          || (unchanged && newMin == newMax),
                      QStringLiteral("accepted, but ") + detail);
    }
}

bool finite(const QPointF &point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

// The element's ticks and the places of everything it draws, after a layout.
void checkElement(const QAbstractAxis &axis, bool animated)
{
    auto *element = dynamic_cast<charts::CartesianChartAxis *>(charts::axisElement(axis));
    if (!element)
        return;
    const Range range = rangeOf(axis);
    const QVector<qreal> &major = element->majorTickValues();
    const QVector<qreal> &minor = element->minorTickValues();
    KO_FUZZ_CHECK(major.size() <= charts::tickLimits::maximumTicks && minor.size() <= charts::tickLimits::maximumSubTicks,
                  QStringLiteral("%1 ticks and %2 minor ticks").arg(major.size()).arg(minor.size()) + describe(axis));
    for (const QVector<qreal> *ticks : {&major, &minor}) {
        for (int i = 0; i < ticks->size(); ++i) {
            const double tick = ticks->at(i);
            KO_FUZZ_CHECK(i == 0 || ticks->at(i - 1) < tick, QStringLiteral("ticks not ascending at ") + show(tick) + describe(axis));
            // An animation lays out the range it moves through, and an empty element (no room,
            // or a range of zero width) keeps its last layout.
            if (!animated && !element->isEmpty())
                KO_FUZZ_CHECK(range.min <= tick && tick <= range.max, QStringLiteral("tick ") + show(tick) + describe(axis));
        }
    }
    for (QGraphicsItemGroup *group : {element->gridGroup(), element->arrowGroup(), element->minorGridGroup(),
                                      element->minorArrowGroup(), element->labelGroup(), element->minorLabelGroup()}) {
        if (!group)
            continue;
        for (QGraphicsItem *item : group->childItems()) {
            if (!item->isVisible())
                continue;
            KO_FUZZ_CHECK(finite(item->pos()), QStringLiteral("an item at a place that is not finite") + describe(axis));
            if (auto *line = dynamic_cast<QGraphicsLineItem *>(item)) {
                KO_FUZZ_CHECK(finite(line->line().p1()) && finite(line->line().p2()),
                              QStringLiteral("a line that is not finite") + describe(axis));
            }
        }
    }
}

// Value to pixel and back, for values of the range, where the range is one doubles can span.
void checkMapping(const QAbstractAxis &axis, double fraction)
{
    const Range range = rangeOf(axis);
    if (!(std::isfinite(range.min) && std::isfinite(range.max) && range.min < range.max))
        return;
    const QtCharts::ChartAxisElement *element = charts::axisElement(axis);
    const QRectF plot = element ? element->gridGeometry() : QRectF(0.0, 0.0, 1.0, 1.0);
    if (!(plot.width() >= 1.0 && plot.height() >= 1.0 && plot.width() < 1e6 && plot.height() < 1e6))
        return;
    double value = 0.0;
    if (isLogarithmic(axis)) {
        if (!(range.min > 0.0) || range.max / range.min < 1.0 + 1e-9 || !std::isfinite(range.max / range.min))
            return;
        value = range.min * std::pow(range.max / range.min, fraction);
    } else {
        const double span = range.max - range.min;
        if (!std::isfinite(span) || span < 1e-9 * std::max(std::abs(range.min), std::abs(range.max)))
            return;
        value = range.min + fraction * span;
    }
    value = std::clamp(value, range.min, range.max);
    const double pixel = charts::coordToPixel(axis, value);
    const QString detail = QStringLiteral("value %1 at pixel %2").arg(show(value), show(pixel)) + describe(axis);
    const bool horizontal = axis.orientation() == Qt::Horizontal;
    const double low = horizontal ? plot.left() : plot.top();
    const double high = horizontal ? plot.right() : plot.bottom();
    KO_FUZZ_CHECK(pixel >= low - 1e-6 * (high - low) && pixel <= high + 1e-6 * (high - low), detail);
    const double back = charts::pixelToCoord(axis, pixel);
    if (isLogarithmic(axis)) {
        KO_FUZZ_CHECK(std::abs(back / value - 1.0) < 1e-6, detail + QStringLiteral(", back ") + show(back));
    } else {
        const double tolerance = 1e-6 * (range.max - range.min) + 1e-12 * std::max(std::abs(range.min), std::abs(range.max));
        KO_FUZZ_CHECK(std::abs(back - value) <= tolerance, detail + QStringLiteral(", back ") + show(back));
    }
}

QAbstractAxis *makeAxis(int kind)
{
    switch (kind) {
    case 0:
        return new charts::LinearAxis;
    case 1:
        return new charts::LogarithmicAxis;
    default:
        return new charts::FrequencyAxis;
    }
}

void setTicker(QAbstractAxis &axis, charts::AxisTicker *ticker)
{
    if (auto *linear = qobject_cast<charts::LinearAxis *>(&axis))
        linear->setTicker(ticker);
    else if (auto *log = qobject_cast<charts::LogarithmicAxis *>(&axis))
        log->setTicker(ticker);
}

charts::AxisTicker *tickerOf(QAbstractAxis &axis)
{
    if (auto *linear = qobject_cast<charts::LinearAxis *>(&axis))
        return linear->ticker();
    return qobject_cast<charts::LogarithmicAxis *>(&axis)->ticker();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    fuzz::createApplication();
    fuzz::expectWarnings({"tick count must be greater than zero", "AxisTicker::setLabelFormat: ignoring",
                          "Invalid range for logarithmic axis", "log base has to be greater than zero",
                          "sub tick count can't be negative", "formatLabel: ignoring",
                          // Qt refusing a range this target sets directly.
                          "Ignored NaN, Inf, or -Inf value.", "Attempting to set invalid range"});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    FuzzedDataProvider data(bytes, size);

    // The tickers outlive the chart: an axis never owns the ticker it is given.
    charts::AxisTicker plainTicker;
    charts::LogarithmicAxisTicker logTicker;
    charts::CustomAxisTicker customTicker;
    for (double tick : {0.001, 1.0, 10.0, 1000.0, 1e6})
        customTicker.addTick(tick);
    customTicker.setSubTickCount(data.ConsumeIntegralInRange<int>(0, 9));
    charts::AxisTicker *const tickers[] = {nullptr, &plainTicker, &logTicker, &customTicker};

    QGraphicsScene scene;
    auto *chart = new QtCharts::QChart;
    scene.addItem(chart);
    const bool animated = data.ConsumeBool();
    chart->setAnimationOptions(animated ? QtCharts::QChart::AllAnimations : QtCharts::QChart::NoAnimation);
    if (data.ConsumeBool())
        chart->legend()->hide();
    chart->resize(data.ConsumeIntegralInRange<int>(0, 1200), data.ConsumeIntegralInRange<int>(0, 900));

    QAbstractAxis *axes[] = {makeAxis(data.ConsumeIntegralInRange<int>(0, 2)), makeAxis(data.ConsumeIntegralInRange<int>(0, 2))};
    chart->addAxis(axes[0], data.ConsumeBool() ? Qt::AlignBottom : Qt::AlignTop);
    chart->addAxis(axes[1], data.ConsumeBool() ? Qt::AlignLeft : Qt::AlignRight);
    if (data.ConsumeBool()) {
        auto *series = new QtCharts::QLineSeries;
        series->append({{1.0, 1.0}, {10.0, 100.0}, {1000.0, 20.0}});
        chart->addSeries(series);
        series->attachAxis(axes[0]);
        series->attachAxis(axes[1]);
    }
    KO_FUZZ_TRACE("chart %g x %g, animated %d; x: %s, y: %s\n", chart->size().width(), chart->size().height(), animated,
                  axes[0]->metaObject()->className(), axes[1]->metaObject()->className());
    fuzz::settle();

    const int operations = data.ConsumeIntegralInRange<int>(1, 24);
    for (int i = 0; i < operations && data.remaining_bytes() > 0; ++i) {
        const int which = data.ConsumeIntegralInRange<int>(0, 1);
        QAbstractAxis &axis = *axes[which];
        const char *const axisName = which == 0 ? "x" : "y";
        switch (data.ConsumeIntegralInRange<int>(0, 11)) {
        case 0: {
            const double min = fuzz::consumeDouble(data);
            const double max = data.ConsumeBool() ? min + std::abs(fuzz::consumeDouble(data)) : fuzz::consumeDouble(data);
            KO_FUZZ_TRACE("%s->setRange(%.17g, %.17g)\n", axisName, min, max);
            setRange(axis, min, max);
            break;
        }
        case 1:
            axis.setReverse(data.ConsumeBool());
            KO_FUZZ_TRACE("%s->setReverse(%d)\n", axisName, axis.isReverse());
            break;
        case 2: {
            const QString format = fuzz::consumeText(data, formatAlphabet, 12);
            KO_FUZZ_TRACE("%s->setLabelFormat(\"%s\")\n", axisName, qPrintable(format));
            if (isLogarithmic(axis))
                static_cast<QLogValueAxis &>(axis).setLabelFormat(format);
            else
                static_cast<QValueAxis &>(axis).setLabelFormat(format);
            break;
        }
        case 3: {
            charts::AxisTicker *ticker = data.PickValueInArray(tickers);
            KO_FUZZ_TRACE("%s->setTicker(%s)\n", axisName,
                          ticker == &plainTicker ? "plain" : ticker == &logTicker ? "logarithmic" : ticker ? "custom" : "nullptr");
            setTicker(axis, ticker);
            break;
        }
        case 4: {
            const int count = data.ConsumeBool() ? data.ConsumeIntegralInRange<int>(-1, 12) : fuzz::consumeInt(data);
            KO_FUZZ_TRACE("%s->ticker()->setTickCount(%d)\n", axisName, count);
            tickerOf(axis)->setTickCount(count);
            break;
        }
        case 5: {
            // A pan, from a drag between two pixels or by any amount.
            const Range before = rangeOf(axis);
            const double delta = data.ConsumeBool()
                                     ? charts::pixelToCoordDelta(axis, fuzz::consumeDouble(data), fuzz::consumeDouble(data))
                                     : fuzz::consumeDouble(data);
            const double lowerBound = data.ConsumeBool() ? -1e300 : fuzz::consumeDouble(data);
            const double upperBound = data.ConsumeBool() ? 1e300 : fuzz::consumeDouble(data);
            KO_FUZZ_TRACE("translate(%s, %.17g, %.17g, %.17g)\n", axisName, delta, lowerBound, upperBound);
            charts::translate(axis, delta, lowerBound, upperBound);
            const bool log = isLogarithmic(axis);
            const double newMin = log ? before.min * delta : before.min + delta;
            const double newMax = log ? before.max * delta : before.max + delta;
            const double span = std::abs(newMax - newMin);
            bool valid = std::isfinite(newMin) && std::isfinite(newMax) && newMin <= newMax && newMin > -1e10
                         && newMax < 1e10 && 1e-10 < span && span < 1e10;
            if (log)
                valid = valid && lowerBound <= newMin && newMax <= upperBound;
            checkRangeChange(axis, before, newMin, newMax, valid,
                             QStringLiteral("pan by %1 within %2 to %3").arg(show(delta), show(lowerBound), show(upperBound)));
            break;
        }
        case 6: {
            // A zoom about a centre.
            const Range before = rangeOf(axis);
            const double centre = fuzz::consumeDouble(data);
            const double factor = fuzz::consumeDouble(data);
            const double minimumSpan = data.ConsumeBool() ? 1e-10 : fuzz::consumeDouble(data);
            const double maximumMagnitude = data.ConsumeBool() ? 1e10 : fuzz::consumeDouble(data);
            KO_FUZZ_TRACE("scale(%s, %.17g, %.17g, %.17g, %.17g)\n", axisName, centre, factor, minimumSpan, maximumMagnitude);
            charts::scale(axis, centre, factor, minimumSpan, maximumMagnitude);
            const bool log = isLogarithmic(axis);
            double newMin = log ? centre * std::pow(before.min / centre, factor) : (before.min - centre) * factor + centre;
            double newMax = log ? centre * std::pow(before.max / centre, factor) : (before.max - centre) * factor + centre;
            const double span = std::abs(newMax - newMin);
            const bool valid = std::isfinite(newMin) && std::isfinite(newMax) && newMin <= newMax
                               && newMin > -maximumMagnitude && newMax < maximumMagnitude && minimumSpan < span
                               && span < maximumMagnitude;
            if (log) {
                const QPair<double, double> offZero = charts::logarithmicRangeOffZero(newMin, newMax);
                newMin = offZero.first;
                newMax = offZero.second;
            }
            checkRangeChange(axis, before, newMin, newMax, valid,
                             QStringLiteral("zoom about %1 by %2 (span %3 to %4)")
                                 .arg(show(centre), show(factor), show(minimumSpan), show(maximumMagnitude)));
            break;
        }
        case 7:
            checkMapping(axis, data.ConsumeFloatingPointInRange<double>(0.0, 1.0));
            break;
        case 8:
            chart->resize(data.ConsumeIntegralInRange<int>(0, 1200), data.ConsumeIntegralInRange<int>(0, 900));
            KO_FUZZ_TRACE("chart->resize(%g, %g)\n", chart->size().width(), chart->size().height());
            break;
        case 9: {
            const QString format = fuzz::consumeText(data, formatAlphabet, 12);
            KO_FUZZ_TRACE("formatLabel(%s, value, \"%s\")\n", axisName, qPrintable(format));
            const QString label = charts::formatLabel(axis, fuzz::consumeDouble(data), format);
            KO_FUZZ_CHECK(label.size() <= 2400, QStringLiteral("a label of %1 characters").arg(label.size()));
            break;
        }
        case 10:
            if (auto *linear = qobject_cast<charts::LinearAxis *>(&axis))
                linear->setMinorLabelsVisible(data.ConsumeBool());
            else
                static_cast<charts::LogarithmicAxis &>(axis).setMinorLabelsVisible(data.ConsumeBool());
            axis.setTitleText(data.ConsumeBool() ? QStringLiteral("Level") : QString());
            break;
        default:
            KO_FUZZ_TRACE("layout\n");
            fuzz::settle();
            checkElement(*axes[0], animated);
            checkElement(*axes[1], animated);
            break;
        }
    }
    fuzz::settle();
    checkElement(*axes[0], animated);
    checkElement(*axes[1], animated);
    return 0;
}
