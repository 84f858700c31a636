// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_CHARTS_HORIZONTALAXIS_P_H
#define KO_QTTOOLKIT_CHARTS_HORIZONTALAXIS_P_H

#include <ko/qtToolkit/charts/CartesianChartAxis_p.h>

namespace ko::qtToolkit::charts {

/**
 * \brief The element of an axis at the top or bottom of a cartesian chart: the layout of
 *        CartesianChartAxis along x, labels 4 px beyond the axis edge.
 */
class KO_QTTOOLKIT_EXPORT HorizontalAxis : public CartesianChartAxis
{
    Q_OBJECT

public:
    /// The element of \a axis, with \a item as parent of all its items (neither is owned).
    HorizontalAxis(QtCharts::QAbstractAxis *axis, QGraphicsItem *item);
    ~HorizontalAxis() override;
};

} // namespace ko::qtToolkit::charts

#endif
