// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/charts/GraphicsLineItem_p.h>

#include <QPainter>

namespace ko::qtToolkit::charts {

QRectF GraphicsLineItem::boundingRect() const
{
    const QLineF currentLine = line();
    const QPen currentPen = pen();
    if (!m_boundsKnown || currentLine != m_boundedLine || currentPen != m_boundedPen) {
        m_bounds = QGraphicsLineItem::boundingRect();
        m_boundedLine = currentLine;
        m_boundedPen = currentPen;
        m_boundsKnown = true;
    }
    return m_bounds;
}

void GraphicsLineItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    painter->setRenderHint(QPainter::Antialiasing, false);
    QGraphicsLineItem::paint(painter, option, widget);
}

} // namespace ko::qtToolkit::charts
