#ifndef KO_QTTOOLKIT_CHARTS_TICKEDAXIS_P_H
#define KO_QTTOOLKIT_CHARTS_TICKEDAXIS_P_H

#include <ko/qtToolkit/charts/AxisTicker.h>
#include <ko/qtToolkit/charts/CartesianChartAxis_p.h>

#include <QBrush>
#include <QtCharts/private/qabstractaxis_p.h>
#include <QtCharts/private/qchart_p.h>

namespace ko::qtToolkit::charts {

/**
 * \brief What LinearAxisPrivate and LogarithmicAxisPrivate add to Qt Charts' private part
 *        \a QtAxisPrivate of their base class: the ticker, the minor labels' settings, and the
 *        library's own drawing element in place of Qt's.
 */
template<typename QtAxisPrivate>
class TickedAxisPrivate : public QtAxisPrivate
{
public:
    using QtAxisPrivate::QtAxisPrivate;

    void initializeGraphics(QGraphicsItem *parent) override
    {
        this->m_item.reset(createAxisElement(this->q_ptr, this->m_chart->chartType(), parent));
        QtCharts::QAbstractAxisPrivate::initializeGraphics(parent);
    }

    void setTicker(AxisTicker *ticker) { currentTicker = ticker ? ticker : &defaultTicker; }

    /// Stores \a visible; whether it changed.
    bool setMinorLabelsVisible(bool visible)
    {
        if (minorLabelsVisible == visible)
            return false;
        minorLabelsVisible = visible;
        return true;
    }

    /// Stores \a color; whether it changed.
    bool setMinorLabelsColor(const QColor &color)
    {
        if (minorLabelsBrush.color() == color)
            return false;
        minorLabelsBrush.setColor(color);
        return true;
    }

    AxisTicker defaultTicker;
    AxisTicker *currentTicker = &defaultTicker;
    bool minorLabelsVisible = true;
    QBrush minorLabelsBrush = QtCharts::QChartPrivate::defaultBrush();
};

} // namespace ko::qtToolkit::charts

#endif
