// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/charts/HorizontalAxis_p.h>

namespace ko::qtToolkit::charts {

HorizontalAxis::HorizontalAxis(QtCharts::QAbstractAxis *axis, QGraphicsItem *item)
    : CartesianChartAxis(Qt::Horizontal, axis, item)
{
}

HorizontalAxis::~HorizontalAxis() = default;

} // namespace ko::qtToolkit::charts
