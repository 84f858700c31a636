// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_CHARTS_QTCHARTSNAMESPACE_H
#define KO_QTTOOLKIT_CHARTS_QTCHARTSNAMESPACE_H

/**
 * \file
 * \brief Lets `QtCharts::QChart` name Qt Charts' classes on every supported Qt.
 *
 * Qt Charts 5 declares its classes in the namespace QtCharts; Qt Charts 6 declares them in Qt's
 * own namespace and drops the QT_CHARTS_*_NAMESPACE macros. On Qt 6 this header defines the
 * macros again and gives QtCharts a using-declaration for each Qt Charts class the library's
 * headers name, so the same code compiles against both. On Qt 5 it only includes
 * `<QtCharts/QChartGlobal>`.
 */

#include <QtCharts/QChartGlobal>

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)

#ifndef QT_CHARTS_BEGIN_NAMESPACE
#define QT_CHARTS_BEGIN_NAMESPACE QT_BEGIN_NAMESPACE
#define QT_CHARTS_END_NAMESPACE QT_END_NAMESPACE
#endif

QT_BEGIN_NAMESPACE
class QAbstractAxis;
class QAbstractSeries;
class QCategoryAxis;
class QChart;
class QChartView;
class QLegend;
class QLineSeries;
class QLogValueAxis;
class QPolarChart;
class QValueAxis;
QT_END_NAMESPACE

namespace QtCharts {
using QT_PREPEND_NAMESPACE(QAbstractAxis);
using QT_PREPEND_NAMESPACE(QAbstractSeries);
using QT_PREPEND_NAMESPACE(QCategoryAxis);
using QT_PREPEND_NAMESPACE(QChart);
using QT_PREPEND_NAMESPACE(QChartView);
using QT_PREPEND_NAMESPACE(QLegend);
using QT_PREPEND_NAMESPACE(QLineSeries);
using QT_PREPEND_NAMESPACE(QLogValueAxis);
using QT_PREPEND_NAMESPACE(QPolarChart);
using QT_PREPEND_NAMESPACE(QValueAxis);
} // namespace QtCharts

#endif

#endif
