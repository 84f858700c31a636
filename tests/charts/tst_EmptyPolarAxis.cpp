// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include "ChartTestSupport.h"

#include <ko/qtToolkit/charts/EmptyPolarAxis_p.h>
#include <ko/qtToolkit/charts/LinearAxis.h>
#include <ko/qtToolkit/charts/LogarithmicAxis.h>

#include <QTest>
#include <QtCharts/QPolarChart>
#include <QtCharts/QValueAxis>

#include <limits>

using namespace ko::qtToolkit::charts;
using namespace ko::qtToolkit::test;
using QtCharts::QPolarChart;

namespace {

// Texts and lines in the scene of \a chart: a drawn axis would add both.
QStringList textsOf(QtCharts::QChart *chart)
{
    QStringList texts;
    for (QGraphicsItem *item : chart->scene()->items()) {
        if (auto *text = qgraphicsitem_cast<QGraphicsTextItem *>(item)) {
            if (!text->toPlainText().isEmpty())
                texts.append(text->toPlainText());
        }
    }
    return texts;
}

int linesOf(QtCharts::QChart *chart)
{
    int count = 0;
    for (QGraphicsItem *item : chart->scene()->items()) {
        if (qgraphicsitem_cast<QGraphicsLineItem *>(item))
            ++count;
    }
    return count;
}

} // namespace

class tst_EmptyPolarAxis : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asksForNoRoom()
    {
        LinearAxis axis;
        QGraphicsRectItem root;
        EmptyPolarAxis element(&axis, &root);
        QCOMPARE(element.preferredAxisRadius(QSizeF(300, 200)), std::numeric_limits<qreal>::max());
        QCOMPARE(element.sizeHint(Qt::MinimumSize), QSizeF(0, 0));
        QCOMPARE(element.sizeHint(Qt::PreferredSize), QSizeF(0, 0));
        QCOMPARE(element.sizeHint(Qt::MaximumSize), QSizeF(0, 0));
    }

    void polarChartGetsIt()
    {
        TestChart chart(QSizeF(400, 400), new QPolarChart);
        auto *polar = static_cast<QPolarChart *>(chart.chart());
        auto *angular = new LinearAxis;
        auto *radial = new LogarithmicAxis;
        polar->addAxis(angular, QPolarChart::PolarOrientationAngular);
        polar->addAxis(radial, QPolarChart::PolarOrientationRadial);
        QVERIFY(TestChart::element<EmptyPolarAxis>(*angular));
        QVERIFY(TestChart::element<EmptyPolarAxis>(*radial));
    }

    void drawsNothingWhateverTheAxisDoes()
    {
        TestChart chart(QSizeF(400, 400), new QPolarChart);
        auto *polar = static_cast<QPolarChart *>(chart.chart());
        polar->setAnimationOptions(QtCharts::QChart::GridAxisAnimations);
        auto *angular = new LinearAxis;
        angular->setRange(0.0, 360.0);
        auto *radial = new LinearAxis;
        radial->setRange(0.0, 10.0);
        polar->addAxis(angular, QPolarChart::PolarOrientationAngular);
        polar->addAxis(radial, QPolarChart::PolarOrientationRadial);
        chart.addSeries({QPointF(0, 1), QPointF(180, 9)}, angular, radial);
        chart.render();
        QCOMPARE(linesOf(polar), 0);
        QCOMPARE(textsOf(polar), QStringList());

        radial->setTitleText(QStringLiteral("Distance"));
        radial->setLinePen(QPen(Qt::red));
        radial->setGridLinePen(QPen(Qt::blue));
        radial->setMinorGridLinePen(QPen(Qt::green));
        radial->setGridLineColor(Qt::cyan);
        radial->setMinorGridLineColor(Qt::yellow);
        radial->setShadesVisible(true);
        radial->setVisible(false);
        radial->setVisible(true);
        radial->setRange(2.0, 20.0);
        polar->zoomIn();
        polar->resize(500, 450);
        chart.render();
        QCOMPARE(linesOf(polar), 0);
        QCOMPARE(textsOf(polar), QStringList());
    }

    void qtAxesStillDrawn()
    {
        // A Qt axis beside ours keeps its own drawing, so the polar chart itself works.
        TestChart chart(QSizeF(400, 400), new QPolarChart);
        auto *polar = static_cast<QPolarChart *>(chart.chart());
        auto *angular = new QtCharts::QValueAxis;
        angular->setRange(0.0, 360.0);
        angular->setLabelFormat(QStringLiteral("%d deg"));
        polar->addAxis(angular, QPolarChart::PolarOrientationAngular);
        polar->addAxis(new LinearAxis, QPolarChart::PolarOrientationRadial);
        chart.render();
        QVERIFY(textsOf(polar).contains(QStringLiteral("90 deg")));
    }
};

QTEST_MAIN(tst_EmptyPolarAxis)
#include "tst_EmptyPolarAxis.moc"
