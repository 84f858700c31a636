// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/charts/TickedAxis_p.h>

#include <ko/qtToolkit/charts/ChartHelpers_p.h>
#include <ko/qtToolkit/charts/LinearAxis.h>
#include <ko/qtToolkit/charts/LogarithmicAxis.h>

#include <QtCharts/private/qlogvalueaxis_p.h>
#include <QtCharts/private/qvalueaxis_p.h>

namespace ko::qtToolkit::charts {

TickedAxisState::~TickedAxisState() = default;

AxisNotifier *TickedAxisState::notifier(QObject *axis)
{
    if (axisNotifier == nullptr)
        axisNotifier = new AxisNotifier(axis);
    return axisNotifier;
}

void TickedAxisState::setHideOverlappingLabels(bool hide)
{
    if (hideOverlappingLabels == hide)
        return;
    hideOverlappingLabels = hide;
    if (axisNotifier != nullptr)
        Q_EMIT axisNotifier->hideOverlappingLabelsChanged(hide);
}

AxisNotifier::AxisNotifier(QObject *parent)
    : QObject(parent)
{
}

AxisNotifier::~AxisNotifier() = default;

TickedAxisState *tickedAxisState(const QtCharts::QAbstractAxis &axis)
{
    // Both of the library's axis classes keep a TickedAxisPrivate as Qt Charts' private part.
    QtCharts::QAbstractAxisPrivate *d = axisPrivate(axis);
    if (axis.type() == QtCharts::QAbstractAxis::AxisTypeValue && qobject_cast<const LinearAxis *>(&axis))
        return static_cast<TickedAxisPrivate<QtCharts::QValueAxisPrivate, QtCharts::QValueAxis> *>(d);
    if (axis.type() == QtCharts::QAbstractAxis::AxisTypeLogValue && qobject_cast<const LogarithmicAxis *>(&axis))
        return static_cast<TickedAxisPrivate<QtCharts::QLogValueAxisPrivate, QtCharts::QLogValueAxis> *>(d);
    return nullptr;
}

} // namespace ko::qtToolkit::charts
