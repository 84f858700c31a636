// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/charts/LogarithmicAxis.h>

#include <ko/qtToolkit/charts/TickedAxis_p.h>

#include <QtCharts/private/qlogvalueaxis_p.h>

namespace ko::qtToolkit::charts {

class LogarithmicAxisPrivate : public TickedAxisPrivate<QtCharts::QLogValueAxisPrivate, QtCharts::QLogValueAxis>
{
public:
    using TickedAxisPrivate::TickedAxisPrivate;
};

LogarithmicAxis::LogarithmicAxis(QObject *parent)
    : QLogValueAxis(*new LogarithmicAxisPrivate(this), parent)
{
}

LogarithmicAxis::~LogarithmicAxis() = default;

void LogarithmicAxis::setTicker(AxisTicker *ticker)
{
    d_func()->setTicker(ticker);
}

AxisTicker *LogarithmicAxis::ticker() const
{
    return d_func()->currentTicker;
}

bool LogarithmicAxis::minorLabelsVisible() const
{
    return d_func()->minorLabelsVisible;
}

void LogarithmicAxis::setMinorLabelsVisible(bool visible)
{
    if (d_func()->setMinorLabelsVisible(visible))
        Q_EMIT minorLabelsVisibleChanged(visible);
}

QColor LogarithmicAxis::minorLabelsColor() const
{
    return d_func()->minorLabelsBrush.color();
}

void LogarithmicAxis::setMinorLabelsColor(const QColor &color)
{
    if (d_func()->setMinorLabelsColor(color))
        Q_EMIT minorLabelsColorChanged(color);
}

bool LogarithmicAxis::hideOverlappingLabels() const
{
    return d_func()->hideOverlappingLabels;
}

void LogarithmicAxis::setHideOverlappingLabels(bool hide)
{
    d_func()->setHideOverlappingLabels(hide);
}

AxisNotifier *LogarithmicAxis::notifier() const
{
    return const_cast<LogarithmicAxisPrivate *>(d_func())->notifier(const_cast<LogarithmicAxis *>(this));
}

} // namespace ko::qtToolkit::charts
