#include <ko/qtToolkit/charts/GraphicsLineItem_p.h>

#include <QGraphicsScene>
#include <QPainter>
#include <QSet>
#include <QTest>

using ko::qtToolkit::charts::GraphicsLineItem;

namespace {

// Renders \a item alone with an antialiasing painter, black on white.
QImage renderAntialiased(QGraphicsLineItem *item)
{
    QGraphicsScene scene(0, 0, 40, 40);
    item->setPen(QPen(Qt::black, 1.0));
    scene.addItem(item);
    QImage image(40, 40, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, true);
    scene.render(&painter, QRectF(0, 0, 40, 40), QRectF(0, 0, 40, 40));
    return image;
}

QSet<QRgb> colours(const QImage &image)
{
    QSet<QRgb> result;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            result.insert(image.pixel(x, y));
    }
    return result;
}

int darkRows(const QImage &image, int x)
{
    int rows = 0;
    for (int y = 0; y < image.height(); ++y) {
        if (qGray(image.pixel(x, y)) < 250)
            ++rows;
    }
    return rows;
}

} // namespace

class tst_GraphicsLineItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isALineItem()
    {
        GraphicsLineItem item(1.0, 2.0, 3.0, 4.0);
        QCOMPARE(item.line(), QLineF(1.0, 2.0, 3.0, 4.0));
        QCOMPARE(item.type(), int(QGraphicsLineItem::Type));
    }

    void horizontalLineCoversOneRow_data()
    {
        QTest::addColumn<bool>("ours");
        QTest::addColumn<int>("rows");
        // On a whole-pixel coordinate a smoothed one-pixel line is spread over two rows.
        QTest::newRow("GraphicsLineItem") << true << 1;
        QTest::newRow("QGraphicsLineItem") << false << 2;
    }

    void horizontalLineCoversOneRow()
    {
        QFETCH(bool, ours);
        QFETCH(int, rows);
        const QLineF line(5.0, 20.0, 35.0, 20.0);
        auto *item = ours ? new GraphicsLineItem(line) : new QGraphicsLineItem(line);
        const QImage image = renderAntialiased(item);
        QCOMPARE(darkRows(image, 20), rows);
    }

    void diagonalLineHasNoIntermediateShades()
    {
        const QImage image = renderAntialiased(new GraphicsLineItem(QLineF(3.0, 5.0, 37.0, 31.0)));
        QCOMPARE(colours(image), QSet<QRgb>({qRgb(0, 0, 0), qRgb(255, 255, 255)}));

        const QImage smoothed = renderAntialiased(new QGraphicsLineItem(QLineF(3.0, 5.0, 37.0, 31.0)));
        QVERIFY(colours(smoothed).size() > 2);
    }
};

QTEST_MAIN(tst_GraphicsLineItem)
#include "tst_GraphicsLineItem.moc"
