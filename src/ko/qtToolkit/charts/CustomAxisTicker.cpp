// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/charts/CustomAxisTicker.h>

#include "AxisTicker_p.h"

#include <QMap>
#include <QtGlobal>

#include <algorithm>
#include <cmath>

namespace ko::qtToolkit::charts {

class CustomAxisTickerPrivate
{
public:
    QVector<double> ticks; // ascending, without duplicates
    QMap<double, QString> labels;
    int subTickCount = 0;
};

CustomAxisTicker::CustomAxisTicker()
    : d(std::make_unique<CustomAxisTickerPrivate>())
{
}

CustomAxisTicker::~CustomAxisTicker() = default;

void CustomAxisTicker::addTick(double value)
{
    if (std::isnan(value)) {
        qWarning("CustomAxisTicker::addTick: ignoring a tick that is not a number");
        return;
    }
    const auto position = std::lower_bound(d->ticks.begin(), d->ticks.end(), value);
    if (position != d->ticks.end() && *position == value)
        return;
    d->ticks.insert(position, value);
}

void CustomAxisTicker::setTickLabel(double value, const QString &label)
{
    if (std::isnan(value)) {
        qWarning("CustomAxisTicker::setTickLabel: ignoring a label for a value that is not a "
                 "number");
        return;
    }
    d->labels.insert(value, label);
}

int CustomAxisTicker::subTickCount() const
{
    return d->subTickCount;
}

void CustomAxisTicker::setSubTickCount(int count)
{
    if (count < 0) {
        qWarning("sub tick count can't be negative");
        return;
    }
    d->subTickCount = count;
}

double CustomAxisTicker::computeTickStep(double, double) const
{
    return 1.0;
}

int CustomAxisTicker::computeSubTickCount(double) const
{
    return d->subTickCount;
}

QString CustomAxisTicker::tickLabel(double value) const
{
    // A NaN key would compare equal to whatever the map's search meets first.
    if (std::isnan(value))
        return {};
    return d->labels.value(value);
}

QVector<double> CustomAxisTicker::createTicks(double, double min, double max) const
{
    if (!(min <= max))
        return {};
    const QVector<double> &ticks = d->ticks;
    const auto lower = std::lower_bound(ticks.cbegin(), ticks.cend(), min);
    const auto upper = std::upper_bound(lower, ticks.cend(), max);
    const auto start = lower == ticks.cbegin() ? lower : lower - 1;
    const auto stop = upper == ticks.cend() ? upper : upper + 1;
    QVector<double> result(int(stop - start));
    std::copy(start, stop, result.begin());
    if (result.size() <= tickLimits::maximumTicks)
        return result;
    return thinnedTicks(result, start - ticks.cbegin());
}

} // namespace ko::qtToolkit::charts
