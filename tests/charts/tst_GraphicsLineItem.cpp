// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

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

    // The remembered bounding rectangle is QGraphicsLineItem's own, and follows every change of
    // line and pen.
    void boundingRectFollowsLineAndPen_data()
    {
        QTest::addColumn<QLineF>("line");
        QTest::addColumn<QPen>("pen");
        QTest::addColumn<QLineF>("nextLine");
        QTest::addColumn<QPen>("nextPen");
        const QPen thin(Qt::black, 1.0);
        QPen wideRound(Qt::red, 5.0);
        wideRound.setCapStyle(Qt::RoundCap);
        QPen dashedFlat(Qt::gray, 2.5, Qt::DashLine, Qt::FlatCap);
        QTest::newRow("grid line moved") << QLineF(10.5, 0.0, 10.5, 300.0) << thin << QLineF(17.25, 0.0, 17.25, 300.0) << thin;
        QTest::newRow("tick mark widened") << QLineF(0.0, 4.0, 5.0, 4.0) << thin << QLineF(0.0, 4.0, 5.0, 4.0) << wideRound;
        QTest::newRow("pen colour only") << QLineF(1.0, 2.0, 3.0, 4.0) << thin << QLineF(1.0, 2.0, 3.0, 4.0) << QPen(Qt::blue, 1.0);
        QTest::newRow("diagonal, dashed") << QLineF(-3.0, 7.0, 40.0, -2.0) << dashedFlat << QLineF(40.0, -2.0, -3.0, 7.0) << thin;
        QTest::newRow("cosmetic to wide") << QLineF(0.0, 0.0, 0.0, 0.0) << QPen(Qt::black, 0.0) << QLineF(2.0, 2.0, 9.0, 2.0) << wideRound;
        QTest::newRow("no pen") << QLineF(5.0, 5.0, 50.0, 60.0) << QPen(Qt::NoPen) << QLineF(5.0, 5.0, 50.0, 60.0) << dashedFlat;
    }

    void boundingRectFollowsLineAndPen()
    {
        QFETCH(QLineF, line);
        QFETCH(QPen, pen);
        QFETCH(QLineF, nextLine);
        QFETCH(QPen, nextPen);
        GraphicsLineItem ours(line);
        QGraphicsLineItem plain(line);
        ours.setPen(pen);
        plain.setPen(pen);
        QCOMPARE(ours.boundingRect(), plain.boundingRect());
        QCOMPARE(ours.boundingRect(), plain.boundingRect());

        ours.setLine(nextLine);
        plain.setLine(nextLine);
        QCOMPARE(ours.boundingRect(), plain.boundingRect());
        ours.setPen(nextPen);
        plain.setPen(nextPen);
        QCOMPARE(ours.boundingRect(), plain.boundingRect());
        QCOMPARE(ours.shape().boundingRect(), plain.shape().boundingRect());
    }
};

QTEST_MAIN(tst_GraphicsLineItem)
#include "tst_GraphicsLineItem.moc"
