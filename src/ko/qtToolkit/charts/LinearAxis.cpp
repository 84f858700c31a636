// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/charts/LinearAxis.h>

#include <ko/qtToolkit/charts/TickedAxis_p.h>

#include <QtCharts/private/qvalueaxis_p.h>

namespace ko::qtToolkit::charts {

class LinearAxisPrivate : public TickedAxisPrivate<QtCharts::QValueAxisPrivate, QtCharts::QValueAxis>
{
public:
    using TickedAxisPrivate::TickedAxisPrivate;
};

LinearAxis::LinearAxis(QObject *parent)
    : QValueAxis(*new LinearAxisPrivate(this), parent)
{
}

LinearAxis::~LinearAxis() = default;

void LinearAxis::setTicker(AxisTicker *ticker)
{
    d_func()->setTicker(ticker);
}

AxisTicker *LinearAxis::ticker() const
{
    return d_func()->currentTicker;
}

bool LinearAxis::minorLabelsVisible() const
{
    return d_func()->minorLabelsVisible;
}

void LinearAxis::setMinorLabelsVisible(bool visible)
{
    if (d_func()->setMinorLabelsVisible(visible))
        Q_EMIT minorLabelsVisibleChanged(visible);
}

QColor LinearAxis::minorLabelsColor() const
{
    return d_func()->minorLabelsBrush.color();
}

void LinearAxis::setMinorLabelsColor(const QColor &color)
{
    if (d_func()->setMinorLabelsColor(color))
        Q_EMIT minorLabelsColorChanged(color);
}

bool LinearAxis::hideOverlappingLabels() const
{
    return d_func()->hideOverlappingLabels;
}

void LinearAxis::setHideOverlappingLabels(bool hide)
{
    d_func()->setHideOverlappingLabels(hide);
}

AxisNotifier *LinearAxis::notifier() const
{
    return const_cast<LinearAxisPrivate *>(d_func())->notifier(const_cast<LinearAxis *>(this));
}

} // namespace ko::qtToolkit::charts
