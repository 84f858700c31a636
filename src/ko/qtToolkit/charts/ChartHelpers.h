// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_CHARTS_CHARTHELPERS_H
#define KO_QTTOOLKIT_CHARTS_CHARTHELPERS_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QString>
#include <ko/qtToolkit/charts/QtChartsNamespace.h>

QT_CHARTS_BEGIN_NAMESPACE
class QAbstractAxis;
class QAbstractSeries;
QT_CHARTS_END_NAMESPACE

/**
 * \file
 * \brief Mapping between axis values and plot pixels, panning and zooming an axis, formatting a
 *        value like an axis, and stacking series.
 *
 * The functions work on any Qt Charts axis and choose their behaviour by its type():
 * QAbstractAxis::AxisTypeValue (a QValueAxis, such as LinearAxis) is linear,
 * QAbstractAxis::AxisTypeLogValue (a QLogValueAxis, such as LogarithmicAxis) is logarithmic.
 * Other axis types get the fallback documented with each function.
 *
 * Pixels are in the chart's item coordinates. The plot rectangle they refer to is the grid
 * geometry of the axis's graphics element; while the axis is in no chart, the rectangle
 * (0, 0, 1, 1) stands in for it. An axis counts as horizontal when its orientation() is
 * Qt::Horizontal and as vertical otherwise.
 */

namespace ko::qtToolkit::charts {

/**
 * \brief The lowest z-value that the library's series stacking uses.
 * \return 4.0
 */
KO_QTTOOLKIT_EXPORT double minimumSeriesZValue();

/**
 * \brief The z-value of the item that draws \a series in its chart.
 * \return 0.0 while the series is in no chart.
 */
KO_QTTOOLKIT_EXPORT double seriesZValue(const QtCharts::QAbstractSeries &series);

/**
 * \brief Sets the z-value of the item that draws \a series in its chart to \a z.
 *
 * Does nothing while the series is in no chart.
 */
KO_QTTOOLKIT_EXPORT void setSeriesZValue(QtCharts::QAbstractSeries &series, double z);

/**
 * \brief The axis value at a pixel position: x for a horizontal axis, y for a vertical one.
 * \return the value; for an axis that is neither linear nor logarithmic, \a pixel unchanged.
 */
KO_QTTOOLKIT_EXPORT double pixelToCoord(const QtCharts::QAbstractAxis &axis, double pixel);

/**
 * \brief The pixel position of an axis value; the inverse of pixelToCoord().
 *
 * On a logarithmic axis a value whose sign does not fit the axis cannot be placed: a value
 * of zero or below on an axis whose maximum is not negative is put 200 pixels beyond the
 * minimum end of the plot rectangle, a value of zero or above on an axis whose maximum is
 * negative 200 pixels beyond the maximum end.
 *
 * \return the pixel; for an axis that is neither linear nor logarithmic, \a value unchanged.
 */
KO_QTTOOLKIT_EXPORT double coordToPixel(const QtCharts::QAbstractAxis &axis, double value);

/**
 * \brief How far apart in axis terms two pixel positions are, as translate() expects it.
 * \return on a logarithmic axis the ratio of the values at \a pixel1 and \a pixel2, on a
 *         linear axis their difference, on any other axis 0.0.
 */
KO_QTTOOLKIT_EXPORT double pixelToCoordDelta(const QtCharts::QAbstractAxis &axis, double pixel1,
                                             double pixel2);

/**
 * \brief Pans the range of \a axis by \a delta.
 *
 * A linear axis moves by adding \a delta to both ends, a logarithmic axis by multiplying both
 * ends with it. The new range is applied only if both ends are finite and ordered, stay within
 * (-1e10, 1e10), and their distance lies strictly between 1e-10 and 1e10; a logarithmic axis
 * must in addition stay within [\a lowerBound, \a upperBound]. The bounds do not limit a
 * linear axis. A refused pan leaves the axis untouched and is not reported. Other axis types
 * are left alone.
 */
KO_QTTOOLKIT_EXPORT void translate(QtCharts::QAbstractAxis &axis, double delta, double lowerBound,
                                   double upperBound);

/**
 * \brief Zooms the range of \a axis by \a factor about the axis value \a centre.
 *
 * A linear axis scales the distance of each end from \a centre by \a factor; a logarithmic
 * axis raises the ratio of each end to \a centre to the power \a factor. The new range is
 * applied only if both ends are finite and ordered, stay within (-\a maximumMagnitude,
 * \a maximumMagnitude), and their distance lies strictly between \a minimumSpan and
 * \a maximumMagnitude. A logarithmic range that touches or crosses zero is first moved off
 * zero by a factor of 0.001. A refused zoom leaves the axis untouched and is not reported.
 * Other axis types are left alone.
 */
KO_QTTOOLKIT_EXPORT void scale(QtCharts::QAbstractAxis &axis, double centre, double factor,
                               double minimumSpan, double maximumMagnitude);

/**
 * \brief \a value formatted with the label format of \a axis.
 *
 * The format is the axis's labelFormat(), or \a defaultFormat when that is empty, when the
 * axis is neither linear nor logarithmic, or when an axis ticker would refuse it (see
 * AxisTicker::setLabelFormat()). It is a printf pattern that takes one number, such as "%.2f".
 * A refused \a defaultFormat gives an empty string and a warning.
 */
KO_QTTOOLKIT_EXPORT QString formatLabel(const QtCharts::QAbstractAxis &axis, double value,
                                        const QString &defaultFormat);

} // namespace ko::qtToolkit::charts

#endif
