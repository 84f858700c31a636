// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_CHARTS_VERTICALAXIS_P_H
#define KO_QTTOOLKIT_CHARTS_VERTICALAXIS_P_H

#include <ko/qtToolkit/charts/CartesianChartAxis_p.h>

namespace ko::qtToolkit::charts {

/**
 * \brief The element of an axis at the left or right of a cartesian chart: the layout of
 *        CartesianChartAxis along y, labels 6 px beyond the axis edge and a title turned upright.
 */
class KO_QTTOOLKIT_EXPORT VerticalAxis : public CartesianChartAxis
{
    Q_OBJECT

public:
    /// The element of \a axis, with \a item as parent of all its items (neither is owned).
    VerticalAxis(QtCharts::QAbstractAxis *axis, QGraphicsItem *item);
    ~VerticalAxis() override;
};

} // namespace ko::qtToolkit::charts

#endif
