// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_CHARTS_GRAPHICSLINEITEM_P_H
#define KO_QTTOOLKIT_CHARTS_GRAPHICSLINEITEM_P_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QGraphicsLineItem>
#include <QPen>

namespace ko::qtToolkit::charts {

/**
 * \brief A line item that paints without antialiasing, so that one-pixel axis lines, tick marks
 *        and grid lines stay crisp.
 *
 * It also remembers its bounding rectangle: QGraphicsLineItem strokes the line's outline for
 * every call, and the scene asks several times per change and per paint, which made it the
 * largest single cost of panning a chart.
 */
class KO_QTTOOLKIT_EXPORT GraphicsLineItem : public QGraphicsLineItem
{
public:
    using QGraphicsLineItem::QGraphicsLineItem;

    /// QGraphicsLineItem's bounding rectangle, computed again only once line or pen changed.
    QRectF boundingRect() const override;

    /// Paints as QGraphicsLineItem does, with QPainter::Antialiasing switched off.
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    // The line and pen the remembered rectangle belongs to.
    mutable QLineF m_boundedLine;
    mutable QPen m_boundedPen;
    mutable QRectF m_bounds;
    mutable bool m_boundsKnown = false;
};

} // namespace ko::qtToolkit::charts

#endif
