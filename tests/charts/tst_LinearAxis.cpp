// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include "TickedAxisChecks.h"

#include <ko/qtToolkit/charts/LinearAxis.h>

using ko::qtToolkit::charts::LinearAxis;
using namespace ko::qtToolkit::test;

class tst_LinearAxis : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults() { checkDefaults<LinearAxis>(); }
    void properties() { checkProperties<LinearAxis>(); }
    void minorLabelsVisibleSignal() { checkMinorLabelsVisibleSignal<LinearAxis>(); }
    void minorLabelsColorSignal() { checkMinorLabelsColorSignal<LinearAxis>(); }
    void tickerIsNotOwned() { checkTickerIsNotOwned<LinearAxis>(); }
    void tickerChangeWaitsForLayout() { checkTickerChangeWaitsForLayout<LinearAxis>(0.0, 100.0); }
    void elementByOrientation() { checkElementByOrientation<LinearAxis>(); }
    void polarChartDrawsNothing() { checkPolarChartDrawsNothing<LinearAxis>(0.0, 100.0); }
    void hideOverlappingLabelsSignal() { checkHideOverlappingLabelsSignal<LinearAxis>(); }
    void shrinkingHidesOverlappingLabels_data() { alignmentRows(); }
    void shrinkingHidesOverlappingLabels()
    {
        ko::qtToolkit::charts::AxisTicker ticker;
        ticker.setTickCount(5);
        checkShrinkingHidesOverlappingLabels(new LinearAxis, 0.0, 1000.0, &ticker);
    }
    void hidingOffKeepsOverlappingLabels_data() { alignmentRows(); }
    void hidingOffKeepsOverlappingLabels()
    {
        ko::qtToolkit::charts::AxisTicker ticker;
        ticker.setTickCount(5);
        checkHidingOffKeepsOverlappingLabels(new LinearAxis, 0.0, 1000.0, &ticker);
    }

    void isAValueAxis()
    {
        LinearAxis axis;
        QCOMPARE(axis.type(), QtCharts::QAbstractAxis::AxisTypeValue);
        QVERIFY(qobject_cast<QtCharts::QValueAxis *>(&axis));
    }

    void defaultTickerTicks()
    {
        TestChart chart;
        auto *axis = chart.addAxis(new LinearAxis, Qt::AlignBottom);
        axis->setRange(0.0, 7.3);
        axis->ticker()->setTickCount(5);
        chart.layout();
        auto *element = TestChart::element<ko::qtToolkit::charts::CartesianChartAxis>(*axis);
        QCOMPARE(element->majorTickValues(), QVector<qreal>({0, 1, 2, 3, 4, 5, 6, 7}));
        QCOMPARE(element->minorTickValues().size(), 29);
        QCOMPARE(element->labels().constFirst(), QStringLiteral("0.00"));
    }

    // An integer format, as Qt's value axis takes it, labels whole numbers.
    void integerLabelFormat()
    {
        TestChart chart;
        auto *axis = chart.addAxis(new LinearAxis, Qt::AlignBottom);
        axis->setRange(0.0, 100.0);
        axis->setLabelFormat(QStringLiteral("%d ms"));
        chart.layout();
        auto *element = TestChart::element<ko::qtToolkit::charts::CartesianChartAxis>(*axis);
        QCOMPARE(element->labels(), QStringList({QStringLiteral("0 ms"), QStringLiteral("30 ms"),
                                                 QStringLiteral("60 ms"), QStringLiteral("90 ms")}));
        QCOMPARE(element->minorLabels().constFirst(), QStringLiteral("10 ms"));
    }
};

QTEST_MAIN(tst_LinearAxis)
#include "tst_LinearAxis.moc"
