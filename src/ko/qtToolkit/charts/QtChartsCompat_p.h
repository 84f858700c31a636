// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_CHARTS_QTCHARTSCOMPAT_P_H
#define KO_QTTOOLKIT_CHARTS_QTCHARTSCOMPAT_P_H

// What differs between Qt Charts 5 and 6 in the private classes the library builds on: their
// namespace (as QtChartsNamespace.h handles it for the public ones) and the signatures of
// ChartAxisElement's virtual functions.

#include <ko/qtToolkit/charts/QtChartsNamespace.h>

#include <QVector>

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)

QT_BEGIN_NAMESPACE
class AxisAnimation;
class ChartAxisElement;
class ChartElement;
class ChartPresenter;
class PolarChartAxis;
class QAbstractAxisPrivate;
class QAbstractSeriesPrivate;
class QChartPrivate;
class QLogValueAxisPrivate;
class QValueAxisPrivate;
QT_END_NAMESPACE

namespace QtCharts {
using QT_PREPEND_NAMESPACE(AxisAnimation);
using QT_PREPEND_NAMESPACE(ChartAxisElement);
using QT_PREPEND_NAMESPACE(ChartElement);
using QT_PREPEND_NAMESPACE(ChartPresenter);
using QT_PREPEND_NAMESPACE(PolarChartAxis);
using QT_PREPEND_NAMESPACE(QAbstractAxisPrivate);
using QT_PREPEND_NAMESPACE(QAbstractSeriesPrivate);
using QT_PREPEND_NAMESPACE(QChartPrivate);
using QT_PREPEND_NAMESPACE(QLogValueAxisPrivate);
using QT_PREPEND_NAMESPACE(QValueAxisPrivate);
} // namespace QtCharts

#endif

namespace ko::qtToolkit::charts {

/// The tick positions ChartAxisElement::updateLayout() is given: Qt Charts 5 hands a modifiable
/// vector, Qt Charts 6 a constant list.
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
using AxisLayoutArgument = const QList<qreal> &;
#else
using AxisLayoutArgument = QVector<qreal> &;
#endif

/// Whether the ChartAxisElement \a element has nothing to draw, by the query of this Qt Charts.
template<typename Element>
bool isEmptyAxis(Element &element)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return element.emptyAxis();
#else
    return element.isEmpty();
#endif
}

} // namespace ko::qtToolkit::charts

/// ChartAxisElement's query whether the axis has nothing to draw, as declared and defined by an
/// element: `bool isEmpty()` on Qt Charts 5, `bool emptyAxis() const` on Qt Charts 6.
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#define KO_CHARTAXISELEMENT_IS_EMPTY emptyAxis() const
#else
#define KO_CHARTAXISELEMENT_IS_EMPTY isEmpty()
#endif

#endif
