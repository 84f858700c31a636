#include <ko/qtToolkit/charts/LinearAxis.h>

#include <ko/qtToolkit/charts/AxisTicker.h>
#include <ko/qtToolkit/charts/CartesianChartAxis.h>

#include <QBrush>
#include <QtCharts/private/qchart_p.h>
#include <QtCharts/private/qvalueaxis_p.h>

namespace ko::qtToolkit::charts {

class LinearAxisPrivate : public QtCharts::QValueAxisPrivate
{
public:
    explicit LinearAxisPrivate(LinearAxis *q)
        : QValueAxisPrivate(q)
    {
    }

    void initializeGraphics(QGraphicsItem *parent) override
    {
        Q_Q(LinearAxis);
        m_item.reset(createAxisElement(q, m_chart->chartType(), parent));
        QAbstractAxisPrivate::initializeGraphics(parent);
    }

    AxisTicker defaultTicker;
    AxisTicker *currentTicker = &defaultTicker;
    bool minorLabelsVisible = true;
    QBrush minorLabelsBrush = QtCharts::QChartPrivate::defaultBrush();

    Q_DECLARE_PUBLIC(LinearAxis)
};

LinearAxis::LinearAxis(QObject *parent)
    : QValueAxis(*new LinearAxisPrivate(this), parent)
{
}

LinearAxis::~LinearAxis() = default;

void LinearAxis::setTicker(AxisTicker *ticker)
{
    Q_D(LinearAxis);
    d->currentTicker = ticker ? ticker : &d->defaultTicker;
}

AxisTicker *LinearAxis::ticker() const
{
    Q_D(const LinearAxis);
    return d->currentTicker;
}

bool LinearAxis::minorLabelsVisible() const
{
    Q_D(const LinearAxis);
    return d->minorLabelsVisible;
}

void LinearAxis::setMinorLabelsVisible(bool visible)
{
    Q_D(LinearAxis);
    if (d->minorLabelsVisible == visible)
        return;
    d->minorLabelsVisible = visible;
    Q_EMIT minorLabelsVisibleChanged(visible);
}

QColor LinearAxis::minorLabelsColor() const
{
    Q_D(const LinearAxis);
    return d->minorLabelsBrush.color();
}

void LinearAxis::setMinorLabelsColor(const QColor &color)
{
    Q_D(LinearAxis);
    if (d->minorLabelsBrush.color() == color)
        return;
    d->minorLabelsBrush.setColor(color);
    Q_EMIT minorLabelsColorChanged(color);
}

} // namespace ko::qtToolkit::charts
