// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/charts/LogarithmicAxisTicker.h>

#include "AxisTicker_p.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>
#include <limits>

namespace ko::qtToolkit::charts {

class LogarithmicAxisTickerPrivate
{
public:
    double base = 10.0;
    double logBaseFactor = 0.43429448190325176; // 1 / ln(base)
    int subTickCount = 8;
};

LogarithmicAxisTicker::LogarithmicAxisTicker()
    : d(std::make_unique<LogarithmicAxisTickerPrivate>())
{
}

LogarithmicAxisTicker::LogarithmicAxisTicker(const LogarithmicAxisTicker &other)
    : AxisTicker(other)
    , d(std::make_unique<LogarithmicAxisTickerPrivate>(*other.d))
{
}

LogarithmicAxisTicker &LogarithmicAxisTicker::operator=(const LogarithmicAxisTicker &other)
{
    AxisTicker::operator=(other);
    *d = *other.d;
    return *this;
}

LogarithmicAxisTicker::~LogarithmicAxisTicker() = default;

double LogarithmicAxisTicker::base() const
{
    return d->base;
}

void LogarithmicAxisTicker::setBase(double base)
{
    if (!(base > 0.0)) {
        qWarning("log base has to be greater than zero");
        return;
    }
    d->base = base;
    // Base 1 is accepted; its factor is infinite (and yields no ticks).
    const double logBase = std::log(base);
    d->logBaseFactor = logBase == 0.0 ? std::numeric_limits<double>::infinity() : 1.0 / logBase;
}

int LogarithmicAxisTicker::subTickCount() const
{
    return d->subTickCount;
}

void LogarithmicAxisTicker::setSubTickCount(int count)
{
    if (count < 0) {
        qWarning("sub tick count can't be negative");
        return;
    }
    d->subTickCount = count;
}

double LogarithmicAxisTicker::computeTickStep(double, double) const
{
    return 1.0;
}

int LogarithmicAxisTicker::computeSubTickCount(double) const
{
    return d->subTickCount;
}

QVector<double> LogarithmicAxisTicker::createTicks(double, double min, double max) const
{
    const bool positive = min > 0.0 && max > 0.0;
    if (!positive && !(min < 0.0 && max < 0.0)) {
        qWarning("Invalid range for logarithmic axis");
        return {};
    }
    // Below zero the ticks mirror those of the distances from zero.
    const double nearest = positive ? min : -max;
    const double farthest = positive ? max : -min;
    double logRatio = std::log(farthest / nearest);
    if (std::isinf(logRatio)) // the quotient left the double range
        logRatio = std::log(farthest) - std::log(nearest);
    const double decades = logRatio * d->logBaseFactor;
    const double exponentStep =
        std::trunc(cleanMantissa(decades / (tickCount() + 1e-10), tickStepStrategy()));
    // The comparison also turns NaN (from a base of 1 or below) into a step of 1.
    double powerStep = exponentStep >= 2.0 ? exponentStep : 1.0;
    // More powers than an axis can show: every stride-th is kept, the powers of a larger factor,
    // so that the kept ones stay put while the range pans.
    const double powers = logRatio / (powerStep * std::log(d->base)) + 3.0;
    if (powers > tickLimits::maximumTicks)
        powerStep *= thinningStride(powers);
    const double factor = std::pow(d->base, powerStep);
    if (!(factor > 1.0) || std::isinf(factor))
        return {};
    const double logFactor = std::log(factor);

    QVector<double> ticks;
    ticks.reserve(int(std::clamp(logRatio / logFactor + 3.0, 1.0,
                                 double(tickLimits::maximumTicks + 1))));
    if (positive) {
        const double exponent = std::floor(std::log(min) / logFactor);
        double tick = std::pow(factor, exponent);
        if (tick == 0.0) { // the power at or below min underflows: zero stands for it
            ticks.append(tick);
            tick = std::pow(factor, exponent + 1.0);
        }
        ticks.append(tick);
        while (max > tick && tick > 0.0) {
            tick *= factor;
            ticks.append(tick);
            if (ticks.size() > tickLimits::maximumTicks)
                return {};
        }
    } else {
        const double exponent = std::ceil(std::log(-min) / logFactor);
        double tick = -std::pow(factor, exponent);
        if (std::isinf(tick)) { // the power at or below min overflows: -inf stands for it
            ticks.append(tick);
            tick = -std::pow(factor, exponent - 1.0);
        }
        ticks.append(tick);
        while (max > tick && tick < 0.0) {
            tick /= factor;
            ticks.append(tick);
            if (ticks.size() > tickLimits::maximumTicks)
                return {};
        }
    }
    return ticks;
}

} // namespace ko::qtToolkit::charts
