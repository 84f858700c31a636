#ifndef KO_QTTOOLKIT_CHARTS_HORIZONTALAXIS_P_H
#define KO_QTTOOLKIT_CHARTS_HORIZONTALAXIS_P_H

#include <ko/qtToolkit/charts/CartesianChartAxis_p.h>

namespace ko::qtToolkit::charts {

/**
 * \brief The element of an axis at the top or bottom of a cartesian chart: places the axis line,
 *        the title and the items of every tick, and tells the chart layout how much room the
 *        axis needs.
 */
class KO_QTTOOLKIT_EXPORT HorizontalAxis : public CartesianChartAxis
{
    Q_OBJECT

public:
    /// The element of \a axis, with \a item as parent of all its items (neither is owned).
    HorizontalAxis(QtCharts::QAbstractAxis *axis, QGraphicsItem *item);
    ~HorizontalAxis() override;

    /// The room the axis needs; \a constraint is ignored.
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;

protected:
    void updateGeometry() override;
    void layoutTick(QGraphicsLineItem *gridItem, QGraphicsLineItem *tickItem, QGraphicsTextItem *labelItem,
                    const QString &text, qreal value, qreal maxWidth, qreal maxHeight) override;
};

} // namespace ko::qtToolkit::charts

#endif
