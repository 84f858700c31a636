// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/charts/ChartHelpers.h>
#include <ko/qtToolkit/charts/ChartHelpers_p.h>

#include "LabelFormat_p.h"

#include <QtCharts/QLogValueAxis>
#include <QtCharts/QValueAxis>
#include <QtCharts/private/chartaxiselement_p.h>
#include <QtCharts/private/chartitem_p.h>
#include <QtCharts/private/qabstractaxis_p.h>
#include <QtCharts/private/qabstractseries_p.h>

#include <algorithm>
#include <cmath>

namespace ko::qtToolkit::charts {

namespace {

// Qt Charts keeps an axis's and a series's graphics behind their protected d_ptr; a member
// pointer taken through a derived class reaches it without being a friend.
struct AxisAccess : QtCharts::QAbstractAxis
{
    static QtCharts::QAbstractAxisPrivate *privateOf(const QtCharts::QAbstractAxis &axis)
    {
        return (axis.*(&AxisAccess::d_ptr)).data();
    }
};

struct SeriesAccess : QtCharts::QAbstractSeries
{
    static QtCharts::QAbstractSeriesPrivate *privateOf(const QtCharts::QAbstractSeries &series)
    {
        return (series.*(&SeriesAccess::d_ptr)).data();
    }
};

enum class Scale { Linear, Logarithmic, Other };

struct Range
{
    Scale scale = Scale::Other;
    double min = 0.0;
    double max = 0.0;
};

Range rangeOf(const QtCharts::QAbstractAxis &axis)
{
    if (axis.type() == QtCharts::QAbstractAxis::AxisTypeValue) {
        if (const auto *value = qobject_cast<const QtCharts::QValueAxis *>(&axis))
            return {Scale::Linear, value->min(), value->max()};
    } else if (axis.type() == QtCharts::QAbstractAxis::AxisTypeLogValue) {
        if (const auto *log = qobject_cast<const QtCharts::QLogValueAxis *>(&axis))
            return {Scale::Logarithmic, log->min(), log->max()};
    }
    return {};
}

void setRange(QtCharts::QAbstractAxis &axis, Scale scale, double min, double max)
{
    if (scale == Scale::Linear)
        static_cast<QtCharts::QValueAxis &>(axis).setRange(min, max);
    else
        static_cast<QtCharts::QLogValueAxis &>(axis).setRange(min, max);
}

QRectF plotRect(const QtCharts::QAbstractAxis &axis)
{
    if (const QtCharts::ChartAxisElement *element = axisElement(axis))
        return element->gridGeometry();
    return QRectF(0.0, 0.0, 1.0, 1.0);
}

bool isHorizontal(const QtCharts::QAbstractAxis &axis)
{
    return axis.orientation() == Qt::Horizontal;
}

// Whether a panned or zoomed range [min, max] may be applied: finite and ordered, its ends within
// (-maximumMagnitude, maximumMagnitude) and its span strictly between minimumSpan and
// maximumMagnitude. Every comparison is written so that NaN, in the range or in the limits,
// refuses it.
bool isAcceptableRange(double min, double max, double minimumSpan, double maximumMagnitude)
{
    const double span = std::abs(max - min);
    return std::isfinite(min) && std::isfinite(max) && min <= max && min > -maximumMagnitude
        && max < maximumMagnitude && span > minimumSpan && span < maximumMagnitude;
}

// The distance off the plot rectangle of values that a logarithmic axis cannot place.
constexpr double outOfDomainDistance = 200.0;

} // namespace

QtCharts::QAbstractAxisPrivate *axisPrivate(const QtCharts::QAbstractAxis &axis)
{
    return AxisAccess::privateOf(axis);
}

QtCharts::ChartAxisElement *axisElement(const QtCharts::QAbstractAxis &axis)
{
    return axisPrivate(axis)->axisItem();
}

QtCharts::ChartElement *seriesElement(const QtCharts::QAbstractSeries &series)
{
    return SeriesAccess::privateOf(series)->chartItem();
}

double boundedPixel(double pixel)
{
    constexpr double limit = 1e6;
    if (std::isnan(pixel))
        return -limit;
    return std::clamp(pixel, -limit, limit);
}

QPair<double, double> logarithmicRangeOffZero(double min, double max)
{
    constexpr double offZero = 0.001;
    if (min == 0.0) {
        min = std::min(max * offZero, offZero);
    } else if (max == 0.0) {
        max = std::max(min * offZero, -offZero);
    } else if (min < 0.0 && max > 0.0) {
        if (min * offZero >= -offZero)
            min = std::min(max * offZero, offZero);
        else
            max = -offZero;
    }
    return {min, max};
}

double minimumSeriesZValue()
{
    return 4.0;
}

double seriesZValue(const QtCharts::QAbstractSeries &series)
{
    const QtCharts::ChartElement *item = seriesElement(series);
    return item ? item->zValue() : 0.0;
}

void setSeriesZValue(QtCharts::QAbstractSeries &series, double z)
{
    if (QtCharts::ChartElement *item = seriesElement(series))
        item->setZValue(z);
}

double pixelToCoord(const QtCharts::QAbstractAxis &axis, double pixel)
{
    const Range range = rangeOf(axis);
    const QRectF rect = plotRect(axis);
    const bool horizontal = isHorizontal(axis);
    const bool reverse = axis.isReverse();

    if (range.scale == Scale::Linear) {
        // Pixel y grows downwards while values grow upwards.
        const double fraction = horizontal ? (pixel - rect.x()) / rect.width()
                                           : (rect.bottom() - pixel) / rect.height();
        const double span = range.max - range.min;
        return reverse ? range.max - fraction * span : range.min + fraction * span;
    }
    if (range.scale == Scale::Logarithmic) {
        const double ratio = range.max / range.min;
        if (horizontal) {
            return reverse ? range.max * std::pow(ratio, (rect.x() - pixel) / rect.width())
                           : range.min * std::pow(ratio, (pixel - rect.x()) / rect.width());
        }
        return reverse ? range.max * std::pow(ratio, (pixel - rect.bottom()) / rect.height())
                       : range.min * std::pow(ratio, (rect.bottom() - pixel) / rect.height());
    }
    return pixel;
}

double coordToPixel(const QtCharts::QAbstractAxis &axis, double value)
{
    const Range range = rangeOf(axis);
    const QRectF rect = plotRect(axis);
    const bool horizontal = isHorizontal(axis);
    const bool reverse = axis.isReverse();

    double fraction = 0.0;
    if (range.scale == Scale::Linear) {
        const double span = range.max - range.min;
        fraction = reverse ? (range.max - value) / span : (value - range.min) / span;
    } else if (range.scale == Scale::Logarithmic) {
        const bool inDomain = (value > 0.0 && range.max >= 0.0) || (value < 0.0 && range.max < 0.0);
        if (!inDomain) {
            // Below the minimum end when the axis is positive, above the maximum end when it is
            // negative; reversing the axis swaps the ends.
            const bool pastMinimum = range.max >= 0.0;
            const bool pastLowEdge = pastMinimum != reverse;
            if (horizontal)
                return pastLowEdge ? rect.x() - outOfDomainDistance
                                   : rect.x() + rect.width() + outOfDomainDistance;
            return pastLowEdge ? rect.bottom() + outOfDomainDistance : rect.y() - outOfDomainDistance;
        }
        const double decades = std::log(range.max / range.min);
        fraction = reverse ? std::log(range.max / value) / decades
                           : std::log(value / range.min) / decades;
    } else {
        return value;
    }
    return horizontal ? rect.x() + fraction * rect.width() : rect.bottom() - fraction * rect.height();
}

double pixelToCoordDelta(const QtCharts::QAbstractAxis &axis, double pixel1, double pixel2)
{
    switch (rangeOf(axis).scale) {
    case Scale::Logarithmic:
        // Panning a logarithmic axis multiplies its ends.
        return pixelToCoord(axis, pixel1) / pixelToCoord(axis, pixel2);
    case Scale::Linear:
        return pixelToCoord(axis, pixel1) - pixelToCoord(axis, pixel2);
    case Scale::Other:
        break;
    }
    return 0.0;
}

void translate(QtCharts::QAbstractAxis &axis, double delta, double lowerBound, double upperBound)
{
    const Range range = rangeOf(axis);
    double newMin = 0.0;
    double newMax = 0.0;
    if (range.scale == Scale::Logarithmic) {
        newMin = range.min * delta;
        newMax = range.max * delta;
    } else if (range.scale == Scale::Linear) {
        newMin = range.min + delta;
        newMax = range.max + delta;
    } else {
        return;
    }

    constexpr double limit = 1e10;
    constexpr double minimumSpan = 1e-10;
    if (!isAcceptableRange(newMin, newMax, minimumSpan, limit))
        return;
    // Only a logarithmic axis is held within the bounds: a linear axis may be panned freely.
    // Written so that NaN bounds refuse the pan.
    if (range.scale == Scale::Logarithmic && !(newMin >= lowerBound && newMax <= upperBound))
        return;
    setRange(axis, range.scale, newMin, newMax);
}

void scale(QtCharts::QAbstractAxis &axis, double centre, double factor, double minimumSpan,
           double maximumMagnitude)
{
    const Range range = rangeOf(axis);
    double newMin = 0.0;
    double newMax = 0.0;
    if (range.scale == Scale::Linear) {
        newMin = (range.min - centre) * factor + centre;
        newMax = (range.max - centre) * factor + centre;
    } else if (range.scale == Scale::Logarithmic) {
        newMin = centre * std::pow(range.min / centre, factor);
        newMax = centre * std::pow(range.max / centre, factor);
    } else {
        return;
    }

    if (!isAcceptableRange(newMin, newMax, minimumSpan, maximumMagnitude))
        return;
    if (range.scale == Scale::Logarithmic) {
        const QPair<double, double> offZero = logarithmicRangeOffZero(newMin, newMax);
        newMin = offZero.first;
        newMax = offZero.second;
    }
    setRange(axis, range.scale, newMin, newMax);
}

QString formatLabel(const QtCharts::QAbstractAxis &axis, double value, const QString &defaultFormat)
{
    QString format;
    const Range range = rangeOf(axis);
    if (range.scale == Scale::Linear)
        format = static_cast<const QtCharts::QValueAxis &>(axis).labelFormat();
    else if (range.scale == Scale::Logarithmic)
        format = static_cast<const QtCharts::QLogValueAxis &>(axis).labelFormat();
    // The axis's own format is refused at its layout already; here it gives way to the default.
    LabelFormat checked(format.toUtf8());
    if (format.isEmpty() || !checked.isValid())
        checked = LabelFormat(defaultFormat.toUtf8());
    if (!checked.isValid()) {
        qWarning("formatLabel: ignoring \"%s\": a label format takes at most one floating-point or "
                 "integer conversion",
                 defaultFormat.toUtf8().constData());
    }
    return checked.apply(value);
}

} // namespace ko::qtToolkit::charts
