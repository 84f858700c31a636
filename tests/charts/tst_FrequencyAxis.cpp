// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include "TickedAxisChecks.h"

#include <ko/qtToolkit/charts/ChartStyle.h>
#include <ko/qtToolkit/charts/CustomAxisTicker.h>
#include <ko/qtToolkit/charts/FrequencyAxis.h>
#include <ko/qtToolkit/charts/LinearAxis.h>

#include <TestSupport.h>

#include <QGraphicsScene>
#include <QGraphicsTextItem>
#include <QTest>
#include <QtCharts/QChart>
#include <QtCharts/QChartView>
#include <QtCharts/QLineSeries>

using ko::qtToolkit::charts::AxisTicker;
using ko::qtToolkit::charts::FrequencyAxis;
using ko::qtToolkit::charts::LinearAxis;
using ko::qtToolkit::charts::LogarithmicAxis;

namespace {

QVector<double> decadeSubTicks(double decade, double upTo)
{
    QVector<double> values;
    for (int k = 2; k <= 9; ++k) {
        if (k * decade <= upTo)
            values << k * decade;
    }
    return values;
}

struct DrawnLabel
{
    QString text;
    QColor colour;
};

// The labels the chart shows, read from its scene: visible text items with text.
QVector<DrawnLabel> drawnLabels(QtCharts::QChartView &view)
{
    QVector<DrawnLabel> labels;
    const QList<QGraphicsItem *> items = view.scene()->items();
    for (QGraphicsItem *item : items) {
        auto *text = qgraphicsitem_cast<QGraphicsTextItem *>(item);
        if (text && text->isVisible() && !text->toPlainText().isEmpty())
            labels.append({text->toPlainText(), text->defaultTextColor()});
    }
    return labels;
}

QStringList textsOf(const QVector<DrawnLabel> &labels)
{
    QStringList texts;
    for (const DrawnLabel &label : labels)
        texts << label.text;
    return texts;
}

// A laid-out chart with a frequency axis at the bottom and a level axis at the left.
struct FrequencyChart
{
    QtCharts::QChartView view;
    QtCharts::QChart *chart = new QtCharts::QChart;
    FrequencyAxis *frequency = new FrequencyAxis;
    LinearAxis *level = new LinearAxis;

    // Wide enough that no label is truncated: each minor label may take the axis width divided
    // by the number of minor ticks, less 8 pixels.
    explicit FrequencyChart(double min = 20.0, double max = 20000.0, int width = 1000)
    {
        chart->setAnimationOptions(QtCharts::QChart::NoAnimation);
        chart->legend()->hide();
        auto *series = new QtCharts::QLineSeries;
        series->append(min, 0.0);
        series->append(max, 1.0);
        chart->addSeries(series);
        chart->addAxis(frequency, Qt::AlignBottom);
        chart->addAxis(level, Qt::AlignLeft);
        series->attachAxis(frequency);
        series->attachAxis(level);
        frequency->setRange(min, max);
        level->setRange(-10.0, 10.0);
        // The level axis draws no labels, so that every label on screen is the frequency axis's.
        level->setLabelsVisible(false);
        level->setMinorLabelsVisible(false);
        // setChart() releases the view's default chart without deleting it.
        QtCharts::QChart *defaultChart = view.chart();
        view.setChart(chart);
        delete defaultChart;
        view.resize(width, 400);
        view.show();
        QApplication::processEvents();
    }
};

} // namespace

class tst_FrequencyAxis : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        ko::qtToolkit::test::useFixedFont();
    }

    void defaults()
    {
        FrequencyAxis axis;
        QCOMPARE(axis.base(), 10.0);
        QCOMPARE(axis.min(), 20.0);
        QCOMPARE(axis.max(), 20000.0);
        QVERIFY(axis.minorLabelsVisible());
        QVERIFY(dynamic_cast<ko::qtToolkit::charts::CustomAxisTicker *>(axis.ticker()));
    }

    // Off as for any logarithmic axis: a frequency axis draws all its labels unless asked not to.
    void hideOverlappingLabelsIsOff()
    {
        FrequencyAxis axis;
        QVERIFY(!axis.hideOverlappingLabels());
    }

    void shrinkingHidesOverlappingLabels_data() { ko::qtToolkit::test::alignmentRows(); }
    void shrinkingHidesOverlappingLabels()
    {
        ko::qtToolkit::test::checkShrinkingHidesOverlappingLabels(new FrequencyAxis, 20.0, 20000.0);
    }

    void hidingOffKeepsOverlappingLabels_data() { ko::qtToolkit::test::alignmentRows(); }
    void hidingOffKeepsOverlappingLabels()
    {
        ko::qtToolkit::test::checkHidingOffKeepsOverlappingLabels(new FrequencyAxis, 20.0, 20000.0);
    }

    // Nothing of its own in the meta-object system: it is a LogarithmicAxis there.
    void metaObjectIsTheLogarithmicAxis()
    {
        FrequencyAxis axis;
        QCOMPARE(axis.metaObject(), &LogarithmicAxis::staticMetaObject);
        QVERIFY(qobject_cast<LogarithmicAxis *>(&axis));
    }

    void axesShareOneTicker()
    {
        auto *first = new FrequencyAxis;
        AxisTicker *ticker = first->ticker();
        delete first; // the ticker outlives the axis that created it
        FrequencyAxis second;
        FrequencyAxis third(&second);
        QCOMPARE(second.ticker(), ticker);
        QCOMPARE(third.ticker(), ticker);
    }

    void parentIsKept()
    {
        QObject owner;
        auto *axis = new FrequencyAxis(&owner);
        QCOMPARE(axis->parent(), &owner);
    }

    void ticksAtDefaultRange()
    {
        FrequencyAxis axis;
        QVector<double> ticks, subTicks;
        axis.ticker()->generate(axis.min(), axis.max(), ticks, subTicks);
        QCOMPARE(ticks, (QVector<double>{100.0, 1000.0, 10000.0}));
        QVector<double> expectedSubTicks = decadeSubTicks(10.0, 20000.0) + decadeSubTicks(100.0, 20000.0)
                                           + decadeSubTicks(1000.0, 20000.0) + decadeSubTicks(10000.0, 20000.0);
        QCOMPARE(subTicks, expectedSubTicks);
        QCOMPARE(subTicks.size(), 25);

        QStringList labels;
        axis.ticker()->generateLabels(ticks, labels);
        QCOMPARE(labels, (QStringList{QStringLiteral("100"), QStringLiteral("1k"), QStringLiteral("10k")}));
    }

    void subTickLabels_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("label");
        QTest::newRow("20") << 20.0 << QStringLiteral("20");
        QTest::newRow("30 has none") << 30.0 << QString();
        QTest::newRow("40") << 40.0 << QStringLiteral("40");
        QTest::newRow("50 has none") << 50.0 << QString();
        QTest::newRow("60") << 60.0 << QStringLiteral("60");
        QTest::newRow("70 has none") << 70.0 << QString();
        QTest::newRow("80") << 80.0 << QStringLiteral("80");
        QTest::newRow("90 has none") << 90.0 << QString();
        QTest::newRow("200") << 200.0 << QStringLiteral("200");
        QTest::newRow("400") << 400.0 << QStringLiteral("400");
        QTest::newRow("600") << 600.0 << QStringLiteral("600");
        QTest::newRow("800") << 800.0 << QStringLiteral("800");
        QTest::newRow("2000") << 2000.0 << QStringLiteral("2k");
        QTest::newRow("4000") << 4000.0 << QStringLiteral("4k");
        QTest::newRow("6000") << 6000.0 << QStringLiteral("6k");
        QTest::newRow("8000") << 8000.0 << QStringLiteral("8k");
        QTest::newRow("20000") << 20000.0 << QStringLiteral("20k");
        QTest::newRow("40000") << 40000.0 << QStringLiteral("40k");
        QTest::newRow("60000") << 60000.0 << QStringLiteral("60k");
        QTest::newRow("80000") << 80000.0 << QStringLiteral("80k");
        QTest::newRow("90000 has none") << 90000.0 << QString();
    }

    // Sub-ticks are computed as prev + k * (next - prev) / 9: they must hit the label keys.
    void subTickLabels()
    {
        QFETCH(double, value);
        QFETCH(QString, label);
        FrequencyAxis axis;
        QVector<double> ticks, subTicks;
        axis.ticker()->generate(10.0, 100000.0, ticks, subTicks);
        const int index = subTicks.indexOf(value);
        QVERIFY2(index >= 0, qPrintable(QString::number(value)));
        QStringList labels;
        axis.ticker()->generateLabels(subTicks, labels);
        QCOMPARE(labels.at(index), label);
    }

    void majorLabels_data()
    {
        QTest::addColumn<double>("min");
        QTest::addColumn<double>("max");
        QTest::addColumn<QStringList>("labels");
        QTest::newRow("default range") << 20.0 << 20000.0
                                       << QStringList{QStringLiteral("100"), QStringLiteral("1k"), QStringLiteral("10k")};
        QTest::newRow("up to 100k") << 20.0 << 100000.0
                                    << QStringList{QStringLiteral("100"), QStringLiteral("1k"), QStringLiteral("10k"),
                                                   QStringLiteral("100k")};
        QTest::newRow("beyond 100k has no tick above it")
            << 20.0 << 1000000.0
            << QStringList{QStringLiteral("100"), QStringLiteral("1k"), QStringLiteral("10k"), QStringLiteral("100k")};
        QTest::newRow("from 10") << 10.0 << 1000.0
                                 << QStringList{QStringLiteral("10"), QStringLiteral("100"), QStringLiteral("1k")};
    }

    void majorLabels()
    {
        QFETCH(double, min);
        QFETCH(double, max);
        QFETCH(QStringList, labels);
        FrequencyAxis axis;
        axis.setRange(min, max);
        QVector<double> ticks, subTicks;
        axis.ticker()->generate(axis.min(), axis.max(), ticks, subTicks);
        QStringList texts;
        axis.ticker()->generateLabels(ticks, texts);
        QCOMPARE(texts, labels);
    }

    // What a person sees: the label items of a chart laid out offscreen.
    void drawnLabelsAtDefaultRange()
    {
        FrequencyChart chart;
        const QStringList texts = textsOf(drawnLabels(chart.view));
        for (const char *text : {"100", "1k", "10k", "20", "40", "60", "80", "200", "400", "600", "800", "2k", "4k",
                                 "6k", "8k", "20k"}) {
            QVERIFY2(texts.count(QLatin1String(text)) == 1, text);
        }
        QVERIFY(!texts.contains(QStringLiteral("100k")));
        QVERIFY(!texts.contains(QStringLiteral("10")));
        QCOMPARE(texts.size(), 16);
    }

    void drawnLabelsUpTo100k()
    {
        FrequencyChart chart(20.0, 100000.0, 1800);
        const QStringList texts = textsOf(drawnLabels(chart.view));
        for (const char *text : {"100", "1k", "10k", "100k", "20", "80", "800", "8k", "20k", "40k", "60k", "80k"})
            QVERIFY2(texts.count(QLatin1String(text)) == 1, text);
        QCOMPARE(texts.size(), 20);
    }

    void drawnLabelsInTheDarkStyle()
    {
        FrequencyChart chart;
        ko::qtToolkit::charts::style::applyTo(chart.frequency);
        QApplication::processEvents();
        const QVector<DrawnLabel> labels = drawnLabels(chart.view);
        QVERIFY(!labels.isEmpty());
        for (const DrawnLabel &label : labels) {
            const bool major = label.text == QLatin1String("100") || label.text == QLatin1String("1k")
                               || label.text == QLatin1String("10k");
            QCOMPARE(label.colour, major ? QColor(0x99, 0x99, 0x99) : QColor(0x77, 0x77, 0x77));
        }
    }
};

QTEST_MAIN(tst_FrequencyAxis)
#include "tst_FrequencyAxis.moc"
