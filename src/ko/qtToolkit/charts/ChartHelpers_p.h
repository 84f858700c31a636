// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_CHARTS_CHARTHELPERS_P_H
#define KO_QTTOOLKIT_CHARTS_CHARTHELPERS_P_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QPair>
#include <ko/qtToolkit/charts/QtChartsCompat_p.h>

QT_CHARTS_BEGIN_NAMESPACE
class ChartAxisElement;
class QAbstractAxisPrivate;
class ChartElement;
class QAbstractAxis;
class QAbstractSeries;
QT_CHARTS_END_NAMESPACE

namespace ko::qtToolkit::charts {

/// Qt Charts' private part of \a axis.
KO_QTTOOLKIT_EXPORT QtCharts::QAbstractAxisPrivate *axisPrivate(const QtCharts::QAbstractAxis &axis);

/// The element that draws \a axis in its chart; null while the axis is in no chart.
KO_QTTOOLKIT_EXPORT QtCharts::ChartAxisElement *axisElement(const QtCharts::QAbstractAxis &axis);

/// The item that draws \a series in its chart; null while the series is in no chart.
KO_QTTOOLKIT_EXPORT QtCharts::ChartElement *seriesElement(const QtCharts::QAbstractSeries &series);

/// \a pixel within a million pixels of the origin, far off any screen, so that graphics items
/// and whole-pixel rounding can take it. A range spanning most of the doubles maps values beyond
/// that, a zero-width one gives NaN, which lands at the low end.
KO_QTTOOLKIT_EXPORT double boundedPixel(double pixel);

/// A zoomed logarithmic range [min, max] moved off zero. An end at zero becomes a thousandth
/// of the other end, at most 0.001 from zero. A range across zero is made positive in the same
/// way when its minimum is -1 or more, and negative (maximum -0.001) otherwise.
KO_QTTOOLKIT_EXPORT QPair<double, double> logarithmicRangeOffZero(double min, double max);

} // namespace ko::qtToolkit::charts

#endif
