// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/charts/EmptyPolarAxis_p.h>

#include <limits>

namespace ko::qtToolkit::charts {

EmptyPolarAxis::EmptyPolarAxis(QtCharts::QAbstractAxis *axis, QGraphicsItem *item)
    : PolarChartAxis(axis, item)
{
}

EmptyPolarAxis::~EmptyPolarAxis() = default;

qreal EmptyPolarAxis::preferredAxisRadius(const QSizeF &maxSize)
{
    Q_UNUSED(maxSize)
    // The polar layout takes the smallest radius any axis prefers.
    return std::numeric_limits<qreal>::max();
}

QSizeF EmptyPolarAxis::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    Q_UNUSED(which)
    Q_UNUSED(constraint)
    return QSizeF(0.0, 0.0);
}

// Without items there is nothing to restyle.
void EmptyPolarAxis::handleArrowPenChanged(const QPen &) {}
void EmptyPolarAxis::handleGridPenChanged(const QPen &) {}
void EmptyPolarAxis::handleMinorArrowPenChanged(const QPen &) {}
void EmptyPolarAxis::handleMinorGridPenChanged(const QPen &) {}
void EmptyPolarAxis::handleMinorGridLineColorChanged(const QColor &) {}
void EmptyPolarAxis::handleGridLineColorChanged(const QColor &) {}

QVector<qreal> EmptyPolarAxis::calculateLayout() const
{
    return {};
}

void EmptyPolarAxis::createItems(int count)
{
    Q_UNUSED(count)
}

void EmptyPolarAxis::createAxisLabels(const QVector<qreal> &layout)
{
    Q_UNUSED(layout)
}

void EmptyPolarAxis::updateMinorTickItems() {}

} // namespace ko::qtToolkit::charts
