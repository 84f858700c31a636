// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include "PanZoomChartView.h"

#include <ko/qtToolkit/charts/ChartHelpers.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace gallery {

namespace charts = ko::qtToolkit::charts;

namespace {

// Qt 6 renamed QMouseEvent::localPos() to position().
QPointF positionOf(const QMouseEvent &event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event.position();
#else
    return event.localPos();
#endif
}

} // namespace

PanZoomChartView::PanZoomChartView(QtCharts::QChart *chart, QtCharts::QAbstractAxis *horizontal,
                                   const AxisLimits &horizontalLimits, QtCharts::QAbstractAxis *vertical,
                                   const AxisLimits &verticalLimits, QWidget *parent)
    : QChartView(chart, parent)
    , m_horizontal(horizontal)
    , m_vertical(vertical)
    , m_horizontalLimits(horizontalLimits)
    , m_verticalLimits(verticalLimits)
{
    setRenderHint(QPainter::Antialiasing);
    setMouseTracking(true);
}

void PanZoomChartView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QChartView::mousePressEvent(event);
        return;
    }
    m_dragging = true;
    m_last = chartPoint(positionOf(*event));
    reportValuesAt(m_last);
    setCursor(Qt::ClosedHandCursor);
    event->accept();
}

void PanZoomChartView::mouseMoveEvent(QMouseEvent *event)
{
    const QPointF point = chartPoint(positionOf(*event));
    if (m_dragging) {
        // The value under the pointer stays under it: the axes move by what lies between the
        // last position and this one.
        charts::translate(*m_horizontal, charts::pixelToCoordDelta(*m_horizontal, m_last.x(), point.x()),
                          m_horizontalLimits.lowerBound, m_horizontalLimits.upperBound);
        charts::translate(*m_vertical, charts::pixelToCoordDelta(*m_vertical, m_last.y(), point.y()),
                          m_verticalLimits.lowerBound, m_verticalLimits.upperBound);
        m_last = point;
    }
    reportValuesAt(point);
    QChartView::mouseMoveEvent(event);
}

void PanZoomChartView::mouseReleaseEvent(QMouseEvent *event)
{
    if (!m_dragging) {
        QChartView::mouseReleaseEvent(event);
        return;
    }
    m_dragging = false;
    unsetCursor();
    event->accept();
}

void PanZoomChartView::wheelEvent(QWheelEvent *event)
{
    const QPointF point = chartPoint(event->position());
    const double factor = event->angleDelta().y() > 0 ? 0.8 : 1.25;
    charts::scale(*m_horizontal, charts::pixelToCoord(*m_horizontal, point.x()), factor,
                  m_horizontalLimits.minimumSpan, m_horizontalLimits.maximumMagnitude);
    charts::scale(*m_vertical, charts::pixelToCoord(*m_vertical, point.y()), factor, m_verticalLimits.minimumSpan,
                  m_verticalLimits.maximumMagnitude);
    reportValuesAt(point);
    event->accept();
}

QPointF PanZoomChartView::chartPoint(const QPointF &viewPoint) const
{
    return chart()->mapFromScene(mapToScene(viewPoint.toPoint()));
}

void PanZoomChartView::reportValuesAt(const QPointF &point)
{
    Q_EMIT pointed(charts::pixelToCoord(*m_horizontal, point.x()), charts::pixelToCoord(*m_vertical, point.y()));
}

QWidget *chartPage(PanZoomChartView *view, QWidget *control, const std::function<void()> &resetView)
{
    auto *reset = new QPushButton(QStringLiteral("Reset view"));
    QObject::connect(reset, &QPushButton::clicked, view, resetView);

    auto *controls = new QHBoxLayout;
    // The hint wraps rather than widen the page beyond the small panels.
    auto *hint = new QLabel(QStringLiteral("Drag the plot to pan, turn the wheel to zoom."));
    hint->setWordWrap(true);
    controls->addWidget(hint, 1);
    if (control)
        controls->addWidget(control);
    controls->addWidget(reset);

    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(view, 1);
    layout->addLayout(controls);
    return page;
}

} // namespace gallery
