#include <ko/qtToolkit/charts/LogarithmicAxis.h>

#include <ko/qtToolkit/charts/AxisTicker.h>
#include <ko/qtToolkit/charts/CartesianChartAxis.h>

#include <QBrush>
#include <QtCharts/private/qchart_p.h>
#include <QtCharts/private/qlogvalueaxis_p.h>

namespace ko::qtToolkit::charts {

class LogarithmicAxisPrivate : public QtCharts::QLogValueAxisPrivate
{
public:
    explicit LogarithmicAxisPrivate(LogarithmicAxis *q)
        : QLogValueAxisPrivate(q)
    {
    }

    void initializeGraphics(QGraphicsItem *parent) override
    {
        Q_Q(LogarithmicAxis);
        m_item.reset(createAxisElement(q, m_chart->chartType(), parent));
        QAbstractAxisPrivate::initializeGraphics(parent);
    }

    AxisTicker defaultTicker;
    AxisTicker *currentTicker = &defaultTicker;
    bool minorLabelsVisible = true;
    QBrush minorLabelsBrush = QtCharts::QChartPrivate::defaultBrush();

    Q_DECLARE_PUBLIC(LogarithmicAxis)
};

LogarithmicAxis::LogarithmicAxis(QObject *parent)
    : QLogValueAxis(*new LogarithmicAxisPrivate(this), parent)
{
}

LogarithmicAxis::~LogarithmicAxis() = default;

void LogarithmicAxis::setTicker(AxisTicker *ticker)
{
    Q_D(LogarithmicAxis);
    d->currentTicker = ticker ? ticker : &d->defaultTicker;
}

AxisTicker *LogarithmicAxis::ticker() const
{
    Q_D(const LogarithmicAxis);
    return d->currentTicker;
}

bool LogarithmicAxis::minorLabelsVisible() const
{
    Q_D(const LogarithmicAxis);
    return d->minorLabelsVisible;
}

void LogarithmicAxis::setMinorLabelsVisible(bool visible)
{
    Q_D(LogarithmicAxis);
    if (d->minorLabelsVisible == visible)
        return;
    d->minorLabelsVisible = visible;
    Q_EMIT minorLabelsVisibleChanged(visible);
}

QColor LogarithmicAxis::minorLabelsColor() const
{
    Q_D(const LogarithmicAxis);
    return d->minorLabelsBrush.color();
}

void LogarithmicAxis::setMinorLabelsColor(const QColor &color)
{
    Q_D(LogarithmicAxis);
    if (d->minorLabelsBrush.color() == color)
        return;
    d->minorLabelsBrush.setColor(color);
    Q_EMIT minorLabelsColorChanged(color);
}

} // namespace ko::qtToolkit::charts
