// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include "TickedAxisChecks.h"

#include <ko/qtToolkit/charts/LogarithmicAxis.h>
#include <ko/qtToolkit/charts/LogarithmicAxisTicker.h>

using ko::qtToolkit::charts::LogarithmicAxis;
using namespace ko::qtToolkit::test;

class tst_LogarithmicAxis : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults() { checkDefaults<LogarithmicAxis>(); }
    void properties() { checkProperties<LogarithmicAxis>(); }
    void minorLabelsVisibleSignal() { checkMinorLabelsVisibleSignal<LogarithmicAxis>(); }
    void minorLabelsColorSignal() { checkMinorLabelsColorSignal<LogarithmicAxis>(); }
    void tickerIsNotOwned() { checkTickerIsNotOwned<LogarithmicAxis>(); }
    void tickerChangeWaitsForLayout() { checkTickerChangeWaitsForLayout<LogarithmicAxis>(1.0, 1000.0); }
    void elementByOrientation() { checkElementByOrientation<LogarithmicAxis>(); }
    void polarChartDrawsNothing() { checkPolarChartDrawsNothing<LogarithmicAxis>(1.0, 1000.0); }
    void hideOverlappingLabelsSignal() { checkHideOverlappingLabelsSignal<LogarithmicAxis>(); }
    void shrinkingHidesOverlappingLabels_data() { alignmentRows(); }
    void shrinkingHidesOverlappingLabels()
    {
        ko::qtToolkit::charts::LogarithmicAxisTicker ticker;
        checkShrinkingHidesOverlappingLabels(new LogarithmicAxis, 1.0, 10000.0, &ticker);
    }
    void hidingOffKeepsOverlappingLabels_data() { alignmentRows(); }
    void hidingOffKeepsOverlappingLabels()
    {
        ko::qtToolkit::charts::LogarithmicAxisTicker ticker;
        checkHidingOffKeepsOverlappingLabels(new LogarithmicAxis, 1.0, 10000.0, &ticker);
    }

    void isALogValueAxis()
    {
        LogarithmicAxis axis;
        QCOMPARE(axis.type(), QtCharts::QAbstractAxis::AxisTypeLogValue);
        QVERIFY(qobject_cast<QtCharts::QLogValueAxis *>(&axis));
    }

    void withoutTickerProducesPlainTicks()
    {
        TestChart chart;
        auto *axis = chart.addAxis(new LogarithmicAxis, Qt::AlignLeft);
        axis->setRange(1.0, 1000.0);
        chart.layout();
        auto *element = TestChart::element<ko::qtToolkit::charts::CartesianChartAxis>(*axis);
        // Linear steps of 300 with two sub-ticks each, not powers of ten.
        QCOMPARE(element->majorTickValues(), QVector<qreal>({300, 600, 900}));
        QCOMPARE(element->minorTickValues(), QVector<qreal>({100, 200, 400, 500, 700, 800, 1000}));
        QCOMPARE(element->labels(), QStringList({"300.00", "600.00", "900.00"}));
    }
};

QTEST_MAIN(tst_LogarithmicAxis)
#include "tst_LogarithmicAxis.moc"
