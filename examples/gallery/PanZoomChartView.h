// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_GALLERY_PANZOOMCHARTVIEW_H
#define KO_QTTOOLKIT_GALLERY_PANZOOMCHARTVIEW_H

#include <ko/qtToolkit/charts/QtChartsNamespace.h>

#include <QtCharts/QAbstractAxis>
#include <QtCharts/QChartView>

#include <functional>

namespace gallery {

/// How far a user may pan and zoom one axis.
struct AxisLimits
{
    double lowerBound;       ///< lowest value a pan may reach (logarithmic axes only)
    double upperBound;       ///< highest value a pan may reach (logarithmic axes only)
    double minimumSpan;      ///< narrowest range a zoom may reach
    double maximumMagnitude; ///< widest range, and largest bound, a zoom may reach
};

/**
 * A chart view whose horizontal and vertical axis pan while the plot is dragged and zoom about
 * the pointer when the wheel turns, through the library's axis helpers. It reports the axis
 * values under the pointer (or finger) as it moves.
 */
class PanZoomChartView : public QtCharts::QChartView
{
    Q_OBJECT

public:
    PanZoomChartView(QtCharts::QChart *chart, QtCharts::QAbstractAxis *horizontal, const AxisLimits &horizontalLimits,
                     QtCharts::QAbstractAxis *vertical, const AxisLimits &verticalLimits, QWidget *parent = nullptr);

Q_SIGNALS:
    /// The values of the horizontal and vertical axis under the pointer.
    void pointed(double horizontalValue, double verticalValue);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    QPointF chartPoint(const QPointF &viewPoint) const;
    void reportValuesAt(const QPointF &chartPoint);

    QtCharts::QAbstractAxis *m_horizontal;
    QtCharts::QAbstractAxis *m_vertical;
    AxisLimits m_horizontalLimits;
    AxisLimits m_verticalLimits;
    bool m_dragging = false;
    QPointF m_last;
};

/**
 * A gallery page: \a view above a row with the pan-and-zoom hint, \a control (optional) and a
 * "Reset view" button that calls \a resetView.
 */
QWidget *chartPage(PanZoomChartView *view, QWidget *control, const std::function<void()> &resetView);

} // namespace gallery

#endif
