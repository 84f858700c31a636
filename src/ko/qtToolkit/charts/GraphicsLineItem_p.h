#ifndef KO_QTTOOLKIT_CHARTS_GRAPHICSLINEITEM_P_H
#define KO_QTTOOLKIT_CHARTS_GRAPHICSLINEITEM_P_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QGraphicsLineItem>

namespace ko::qtToolkit::charts {

/**
 * \brief A line item that paints without antialiasing, so that one-pixel axis lines, tick marks
 *        and grid lines stay crisp.
 */
class KO_QTTOOLKIT_EXPORT GraphicsLineItem : public QGraphicsLineItem
{
public:
    using QGraphicsLineItem::QGraphicsLineItem;

    /// Paints as QGraphicsLineItem does, with QPainter::Antialiasing switched off.
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;
};

} // namespace ko::qtToolkit::charts

#endif
