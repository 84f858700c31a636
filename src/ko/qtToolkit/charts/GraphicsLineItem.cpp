#include <ko/qtToolkit/charts/GraphicsLineItem_p.h>

#include <QPainter>

namespace ko::qtToolkit::charts {

void GraphicsLineItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    painter->setRenderHint(QPainter::Antialiasing, false);
    QGraphicsLineItem::paint(painter, option, widget);
}

} // namespace ko::qtToolkit::charts
