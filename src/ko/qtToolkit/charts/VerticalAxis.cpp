// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/charts/VerticalAxis_p.h>

namespace ko::qtToolkit::charts {

VerticalAxis::VerticalAxis(QtCharts::QAbstractAxis *axis, QGraphicsItem *item)
    : CartesianChartAxis(Qt::Vertical, axis, item)
{
}

VerticalAxis::~VerticalAxis() = default;

} // namespace ko::qtToolkit::charts
