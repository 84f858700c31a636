// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_CHARTS_CHARTSTYLE_H
#define KO_QTTOOLKIT_CHARTS_CHARTSTYLE_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <ko/qtToolkit/charts/QtChartsNamespace.h>

QT_CHARTS_BEGIN_NAMESPACE
class QAbstractAxis;
class QChart;
class QLegend;
QT_CHARTS_END_NAMESPACE

/**
 * \brief The library's dark chart look, applied in code because the style sheet cannot reach
 *        Qt Charts' items.
 *
 * Each overload restyles only the object it is given (styling a chart leaves its axes and
 * legend alone) and ignores a null pointer. Applying a style twice gives the same result as
 * applying it once.
 */
namespace ko::qtToolkit::charts::style {

/**
 * \brief Dark background \#1a1a1a without rounded corners, title in \#aaaaaa, margins of 8 and a
 *        layout without contents margins.
 * \param chart not owned; null is ignored
 */
KO_QTTOOLKIT_EXPORT void applyTo(QtCharts::QChart *chart);

/**
 * \brief Grid and axis line \#333333, minor grid \#222222 (all shown), labels \#999999 in a
 *        10-pixel default font, and minor labels \#777777 on LinearAxis and LogarithmicAxis
 *        (other axis classes have no minor labels to colour).
 * \param axis not owned; null is ignored
 */
KO_QTTOOLKIT_EXPORT void applyTo(QtCharts::QAbstractAxis *axis);

/**
 * \brief Hides the legend and gives its labels the colour \#8f8f91.
 * \param legend not owned; null is ignored
 */
KO_QTTOOLKIT_EXPORT void applyTo(QtCharts::QLegend *legend);

} // namespace ko::qtToolkit::charts::style

#endif
