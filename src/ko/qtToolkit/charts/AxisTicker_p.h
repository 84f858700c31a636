// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_CHARTS_AXISTICKER_P_H
#define KO_QTTOOLKIT_CHARTS_AXISTICKER_P_H

#include <QVector>

#include <algorithm>
#include <cmath>

namespace ko::qtToolkit::charts::tickLimits {

// Bounds on what a ticker allocates, whatever range a zooming user produces. An axis a few
// thousand pixels long could not show more ticks than this apart anyway.
constexpr int maximumTicks = 500;
constexpr int maximumSubTicks = 5000;

} // namespace ko::qtToolkit::charts::tickLimits

namespace ko::qtToolkit::charts {

/// How many ticks to step over for each one kept, so that \a count candidates, two of them
/// beyond the range, thin to at most tickLimits::maximumTicks with those two: 1 while they fit.
inline double thinningStride(double count)
{
    // Rounding the kept ones out to whole strides adds up to two at the ends.
    constexpr double room = tickLimits::maximumTicks - 5;
    return count <= tickLimits::maximumTicks ? 1.0 : std::ceil((count - 3) / room);
}

/// \a ticks thinned to at most tickLimits::maximumTicks: those whose index in the whole series,
/// \a firstIndex for the first of them, is a multiple of the stride, so that the kept ones stay
/// put while a range pans over the series; and the first and last tick as outliers where they
/// are not kept anyway.
inline QVector<double> thinnedTicks(const QVector<double> &ticks, qint64 firstIndex = 0)
{
    const double stride = thinningStride(ticks.size());
    if (stride <= 1.0)
        return ticks;
    const auto step = qint64(stride);
    const qint64 size = ticks.size();
    const qint64 start = ((-firstIndex) % step + step) % step;
    QVector<double> kept;
    if (start > 0)
        kept.append(ticks.first());
    for (qint64 i = start; i < size; i += step)
        kept.append(ticks[int(i)]);
    if ((size - 1 - start) % step != 0)
        kept.append(ticks.last());
    return kept;
}

} // namespace ko::qtToolkit::charts

#endif
