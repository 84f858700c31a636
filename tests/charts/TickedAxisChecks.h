// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_TESTS_TICKEDAXISCHECKS_H
#define KO_QTTOOLKIT_TESTS_TICKEDAXISCHECKS_H

// Checks that LinearAxis and LogarithmicAxis share: both add the same ticker and minor label
// interface to their Qt base class.

#include "ChartTestSupport.h"

#include <ko/qtToolkit/charts/AxisNotifier.h>
#include <ko/qtToolkit/charts/AxisTicker.h>
#include <ko/qtToolkit/charts/CartesianChartAxis_p.h>
#include <ko/qtToolkit/charts/EmptyPolarAxis_p.h>
#include <ko/qtToolkit/charts/HorizontalAxis_p.h>
#include <ko/qtToolkit/charts/VerticalAxis_p.h>

#include <TestSupport.h>

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

template<typename Axis>
void checkHideOverlappingLabelsSignal()
{
    Axis axis;
    QVERIFY(!axis.hideOverlappingLabels());
    // The signal comes from the axis's notifier, one for the axis's life.
    charts::AxisNotifier *notifier = axis.notifier();
    QVERIFY(notifier != nullptr);
    QCOMPARE(axis.notifier(), notifier);
    QCOMPARE(notifier->parent(), &axis);
    QSignalSpy spy(notifier, &charts::AxisNotifier::hideOverlappingLabelsChanged);
    axis.setHideOverlappingLabels(false);
    QCOMPARE(spy.count(), 0);

    axis.setHideOverlappingLabels(true);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toBool(), true);
    QVERIFY(axis.hideOverlappingLabels());
    axis.setHideOverlappingLabels(true);
    QCOMPARE(spy.count(), 1);

    axis.setHideOverlappingLabels(false);
    QVERIFY(!axis.hideOverlappingLabels());
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(1).at(0).toBool(), false);
}

/// Rows for the overlap checks: one per side of the chart.
inline void alignmentRows()
{
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::newRow("bottom") << Qt::Alignment(Qt::AlignBottom);
    QTest::newRow("top") << Qt::Alignment(Qt::AlignTop);
    QTest::newRow("left") << Qt::Alignment(Qt::AlignLeft);
    QTest::newRow("right") << Qt::Alignment(Qt::AlignRight);
}

/// A label drawn by an axis element and its place in the order in which labels are kept.
struct OrderedLabel
{
    QGraphicsTextItem *item;
    bool major;
};

/// The labels with text of \a element in the order in which they are kept: the major labels, then
/// the minor labels, each in tick order.
inline QVector<OrderedLabel> labelsInKeepingOrder(charts::CartesianChartAxis *element)
{
    QVector<OrderedLabel> labels;
    const QVector<Tick> ticks = ticksOf(element);
    for (int i = 0; i < ticks.size(); ++i) {
        if (!ticks.at(i).label->toPlainText().isEmpty())
            labels.append({ticks.at(i).label, i < element->majorTickValues().size()});
    }
    return labels;
}

/// Checks that the shown labels of \a element do not overlap and that each hidden label overlaps
/// one kept before it; counts the hidden labels in \a hidden, and in \a minorHiddenByMajor those
/// minor labels that a shown major label hides.
inline void checkNoShownLabelsOverlap(charts::CartesianChartAxis *element, int *hidden, int *minorHiddenByMajor)
{
    const QVector<OrderedLabel> labels = labelsInKeepingOrder(element);
    for (int i = 0; i < labels.size(); ++i) {
        const QRectF box = labels.at(i).item->sceneBoundingRect();
        bool overlapsKept = false;
        bool overlapsKeptMajor = false;
        for (int k = 0; k < i; ++k) {
            if (labels.at(k).item->isVisible() && labels.at(k).item->sceneBoundingRect().intersects(box)) {
                overlapsKept = true;
                overlapsKeptMajor = overlapsKeptMajor || labels.at(k).major;
            }
        }
        const QString what = labels.at(i).item->toPlainText();
        if (labels.at(i).item->isVisible()) {
            QVERIFY2(!overlapsKept, qPrintable(QStringLiteral("shown label %1 overlaps another").arg(what)));
        } else {
            QVERIFY2(overlapsKept, qPrintable(QStringLiteral("label %1 is hidden for nothing").arg(what)));
            ++*hidden;
            if (!labels.at(i).major && overlapsKeptMajor)
                ++*minorHiddenByMajor;
        }
    }
}

/// Checks that every grid line and tick mark of \a element is there and shown.
inline void checkLinesStay(charts::CartesianChartAxis *element)
{
    const int majors = element->majorTickValues().size();
    const int minors = element->minorTickValues().size();
    QCOMPARE(element->gridGroup()->childItems().size(), majors);
    QCOMPARE(element->arrowGroup()->childItems().size(), majors + 1);
    QCOMPARE(element->minorGridGroup()->childItems().size(), minors);
    QCOMPARE(element->minorArrowGroup()->childItems().size(), minors);
    for (QGraphicsItemGroup *group : {element->gridGroup(), element->arrowGroup(), element->minorGridGroup(),
                                      element->minorArrowGroup()}) {
        for (QGraphicsItem *line : group->childItems())
            QVERIFY(line->isVisible());
    }
}

/// A chart with \a axis (range \a min .. \a max, the fixed labels font, \a ticker unless null) at
/// \a alignment, laid out at full size.
template<typename Axis>
Axis *addOverlapAxis(TestChart &chart, Axis *axis, Qt::Alignment alignment, double min, double max,
                     charts::AxisTicker *ticker)
{
    chart.addAxis(axis, alignment);
    axis->setRange(min, max);
    axis->setLabelsFont(fixedFont());
    if (ticker)
        axis->setTicker(ticker);
    chart.layout();
    return axis;
}

/// Shrinks a chart with \a axis along the axis, step by step from 600 to 80 px: with the hiding of
/// overlapping labels on, no two shown labels overlap at any step, each hidden label overlaps one
/// kept before it (major labels first), and the tick marks and grid lines stay.
template<typename Axis>
void checkShrinkingHidesOverlappingLabels(Axis *axis, double min, double max, charts::AxisTicker *ticker = nullptr)
{
    QFETCH(Qt::Alignment, alignment);
    const bool horizontal = alignment == Qt::AlignBottom || alignment == Qt::AlignTop;
    TestChart chart(QSizeF(600, 600));
    addOverlapAxis(chart, axis, alignment, min, max, ticker);
    axis->setHideOverlappingLabels(true);
    auto *element = TestChart::element<charts::CartesianChartAxis>(*axis);
    QVERIFY(element);
    const int majors = element->majorTickValues().size();
    const int minors = element->minorTickValues().size();
    QVERIFY(majors > 1 && minors > 1);

    int hidden = 0;
    int minorHiddenByMajor = 0;
    for (int length = 600; length >= 80; length -= 40) {
        chart.chart()->resize(horizontal ? QSizeF(length, 600) : QSizeF(600, length));
        chart.layout();
        QCOMPARE(element->majorTickValues().size(), majors);
        QCOMPARE(element->minorTickValues().size(), minors);
        checkLinesStay(element);
        if (QTest::currentTestFailed())
            return;
        const int hiddenBefore = hidden;
        checkNoShownLabelsOverlap(element, &hidden, &minorHiddenByMajor);
        if (QTest::currentTestFailed()) {
            qWarning("at %d px", length);
            return;
        }
        // Each label with text is kept or hidden, nothing else.
        QVERIFY(labelsInKeepingOrder(element).size() > hidden - hiddenBefore);
    }
    // The steps did get the labels into each other's way, majors over minors among them.
    QVERIFY(hidden > 0);
    QVERIFY(minorHiddenByMajor > 0);
}

/// Hiding overlapping labels is off by default and leaves an axis as it draws without it:
/// overlapping labels stay, and switching the hiding on and off again restores every pixel. While
/// it is on, only pixels inside hidden labels change.
template<typename Axis>
void checkHidingOffKeepsOverlappingLabels(Axis *axis, double min, double max, charts::AxisTicker *ticker = nullptr)
{
    QFETCH(Qt::Alignment, alignment);
    const bool horizontal = alignment == Qt::AlignBottom || alignment == Qt::AlignTop;
    // Small enough along the axis for labels to overlap.
    const QSizeF size = horizontal ? QSizeF(160, 300) : QSizeF(300, 160);
    TestChart chart(size);
    addOverlapAxis(chart, axis, alignment, min, max, ticker);
    QVERIFY(!axis->hideOverlappingLabels());
    auto *element = TestChart::element<charts::CartesianChartAxis>(*axis);
    QVERIFY(element);

    const QImage before = chart.render();
    const QVector<OrderedLabel> labels = labelsInKeepingOrder(element);
    bool overlapping = false;
    for (int i = 0; i < labels.size(); ++i) {
        QVERIFY(labels.at(i).item->isVisible());
        const QRectF box = labels.at(i).item->sceneBoundingRect();
        for (int k = 0; k < i; ++k)
            overlapping = overlapping || labels.at(k).item->sceneBoundingRect().intersects(box);
    }
    QVERIFY(overlapping);

    // Switching it on hides labels at once, without a new layout pass.
    axis->setHideOverlappingLabels(true);
    QVector<QRect> hiddenBoxes;
    for (const OrderedLabel &label : labels) {
        if (!label.item->isVisible())
            hiddenBoxes.append(label.item->sceneBoundingRect().toAlignedRect().adjusted(-1, -1, 1, 1));
    }
    QVERIFY(!hiddenBoxes.isEmpty());
    const QImage hiding = chart.render();
    QVERIFY(hiding != before);
    for (int y = 0; y < before.height(); ++y) {
        for (int x = 0; x < before.width(); ++x) {
            if (hiding.pixel(x, y) == before.pixel(x, y))
                continue;
            const bool inHiddenLabel = std::any_of(hiddenBoxes.cbegin(), hiddenBoxes.cend(),
                                                   [&](const QRect &box) { return box.contains(x, y); });
            QVERIFY2(inHiddenLabel, qPrintable(QStringLiteral("pixel %1, %2 changed").arg(x).arg(y)));
        }
    }

    axis->setHideOverlappingLabels(false);
    for (const OrderedLabel &label : labels)
        QVERIFY(label.item->isVisible());
    QCOMPARE(chart.render(), before);
}

} // namespace ko::qtToolkit::test

#endif
