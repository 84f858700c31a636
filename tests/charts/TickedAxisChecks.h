#ifndef KO_QTTOOLKIT_TESTS_TICKEDAXISCHECKS_H
#define KO_QTTOOLKIT_TESTS_TICKEDAXISCHECKS_H

// Checks that LinearAxis and LogarithmicAxis share: both add the same ticker and minor label
// interface to their Qt base class.

#include "ChartTestSupport.h"

#include <ko/qtToolkit/charts/AxisTicker.h>
#include <ko/qtToolkit/charts/CartesianChartAxis_p.h>
#include <ko/qtToolkit/charts/EmptyPolarAxis_p.h>
#include <ko/qtToolkit/charts/HorizontalAxis_p.h>
#include <ko/qtToolkit/charts/VerticalAxis_p.h>

#include <QGraphicsTextItem>
#include <QSignalSpy>
#include <QTest>
#include <QtCharts/QPolarChart>
#include <QtCharts/private/qchart_p.h>

namespace ko::qtToolkit::test {

/// A ticker that tells when it is deleted.
class WatchedTicker : public charts::AxisTicker
{
public:
    explicit WatchedTicker(bool *deleted)
        : m_deleted(deleted)
    {
    }
    ~WatchedTicker() override { *m_deleted = true; }

private:
    bool *m_deleted;
};

template<typename Axis>
void checkDefaults()
{
    Axis axis;
    QVERIFY(axis.minorLabelsVisible());
    QVERIFY(axis.ticker());
    QCOMPARE(axis.minorLabelsColor(), QtCharts::QChartPrivate::defaultBrush().color());
    QVERIFY(!charts::axisElement(axis));
}

template<typename Axis>
void checkProperties()
{
    Axis axis;
    const QMetaObject *meta = axis.metaObject();
    QCOMPARE(meta->propertyCount() - meta->propertyOffset(), 2);
    const QMetaProperty visible = meta->property(meta->indexOfProperty("minorLabelsVisible"));
    const QMetaProperty color = meta->property(meta->indexOfProperty("minorLabelsColor"));
    QVERIFY(visible.isValid() && visible.isWritable() && visible.hasNotifySignal());
    QVERIFY(color.isValid() && color.isWritable() && color.hasNotifySignal());
    QCOMPARE(visible.notifySignal().methodSignature(), QByteArray("minorLabelsVisibleChanged(bool)"));
    QCOMPARE(color.notifySignal().methodSignature(), QByteArray("minorLabelsColorChanged(QColor)"));
    QCOMPARE(meta->methodCount() - meta->methodOffset(), 2);

    QSignalSpy colorSpy(&axis, &Axis::minorLabelsColorChanged);
    QVERIFY(axis.setProperty("minorLabelsColor", QColor(Qt::green)));
    QCOMPARE(axis.property("minorLabelsColor").template value<QColor>(), QColor(Qt::green));
    QCOMPARE(colorSpy.count(), 1);
    QVERIFY(axis.setProperty("minorLabelsVisible", false));
    QCOMPARE(axis.property("minorLabelsVisible").toBool(), false);
}

template<typename Axis>
void checkMinorLabelsVisibleSignal()
{
    Axis axis;
    QSignalSpy spy(&axis, &Axis::minorLabelsVisibleChanged);
    axis.setMinorLabelsVisible(true);
    QCOMPARE(spy.count(), 0);

    axis.setMinorLabelsVisible(false);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toBool(), false);
    QVERIFY(!axis.minorLabelsVisible());

    axis.setMinorLabelsVisible(false);
    QCOMPARE(spy.count(), 1);
    axis.setMinorLabelsVisible(true);
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(1).at(0).toBool(), true);
}

template<typename Axis>
void checkMinorLabelsColorSignal()
{
    Axis axis;
    QSignalSpy spy(&axis, &Axis::minorLabelsColorChanged);
    axis.setMinorLabelsColor(axis.minorLabelsColor());
    QCOMPARE(spy.count(), 0);

    axis.setMinorLabelsColor(QColor(200, 30, 40));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).template value<QColor>(), QColor(200, 30, 40));
    QCOMPARE(axis.minorLabelsColor(), QColor(200, 30, 40));

    axis.setMinorLabelsColor(QColor(200, 30, 40));
    QCOMPARE(spy.count(), 1);
}

template<typename Axis>
void checkTickerIsNotOwned()
{
    bool deleted = false;
    {
        WatchedTicker ticker(&deleted);
        {
            Axis axis;
            charts::AxisTicker *defaultTicker = axis.ticker();
            axis.setTicker(&ticker);
            QCOMPARE(axis.ticker(), &ticker);
            axis.setTicker(nullptr);
            QCOMPARE(axis.ticker(), defaultTicker);
            axis.setTicker(&ticker);
        }
        // The axis is gone and left the ticker it was using alone.
        QVERIFY(!deleted);
    }
    QVERIFY(deleted);
}

template<typename Axis>
void checkTickerChangeWaitsForLayout(double min, double max)
{
    charts::AxisTicker coarse;
    coarse.setTickCount(1);

    TestChart chart;
    auto *axis = chart.addAxis(new Axis, Qt::AlignBottom);
    axis->setRange(min, max);
    chart.layout();
    auto *element = TestChart::element<charts::CartesianChartAxis>(*axis);
    QVERIFY(element);
    const QVector<qreal> before = element->majorTickValues();
    QVERIFY(before.size() > 1);

    axis->setTicker(&coarse);
    chart.layout();
    QCOMPARE(element->majorTickValues(), before);

    // The next layout pass asks the new ticker.
    chart.chart()->resize(700, 500);
    chart.layout();
    QVERIFY(element->majorTickValues().size() < before.size());
    axis->setTicker(nullptr);
}

template<typename Axis>
void checkElementByOrientation()
{
    TestChart chart;
    auto *x = chart.addAxis(new Axis, Qt::AlignTop);
    auto *y = chart.addAxis(new Axis, Qt::AlignRight);
    QVERIFY(TestChart::element<charts::HorizontalAxis>(*x));
    QVERIFY(TestChart::element<charts::VerticalAxis>(*y));

    // Moved to the other orientation, the axis gets the other element.
    chart.chart()->removeAxis(x);
    QVERIFY(!charts::axisElement(*x));
    chart.chart()->addAxis(x, Qt::AlignLeft);
    QVERIFY(TestChart::element<charts::VerticalAxis>(*x));
}

template<typename Axis>
void checkPolarChartDrawsNothing(double min, double max)
{
    TestChart chart(QSizeF(400, 400), new QtCharts::QPolarChart);
    auto *polar = static_cast<QtCharts::QPolarChart *>(chart.chart());
    auto *angular = new Axis;
    angular->setRange(min, max);
    auto *radial = new Axis;
    radial->setRange(min, max);
    polar->addAxis(angular, QtCharts::QPolarChart::PolarOrientationAngular);
    polar->addAxis(radial, QtCharts::QPolarChart::PolarOrientationRadial);
    chart.addSeries({QPointF(min, min), QPointF(max, max)}, angular, radial);
    const QImage image = chart.render();
    QVERIFY(!image.isNull());

    QVERIFY(TestChart::element<charts::EmptyPolarAxis>(*angular));
    QVERIFY(TestChart::element<charts::EmptyPolarAxis>(*radial));
    // No axis line, tick, grid line or label made it into the scene.
    for (QGraphicsItem *item : polar->scene()->items()) {
        QVERIFY(!qgraphicsitem_cast<QGraphicsLineItem *>(item));
        if (auto *text = qgraphicsitem_cast<QGraphicsTextItem *>(item))
            QVERIFY2(text->toPlainText().isEmpty(), qPrintable(text->toPlainText()));
    }
}

} // namespace ko::qtToolkit::test

#endif
