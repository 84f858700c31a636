// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/charts/ChartStyle.h>
#include <ko/qtToolkit/charts/FrequencyAxis.h>
#include <ko/qtToolkit/charts/LinearAxis.h>
#include <ko/qtToolkit/charts/LogarithmicAxis.h>

#include <QGraphicsLayout>
#include <QSignalSpy>
#include <QTest>
#include <QtCharts/QCategoryAxis>
#include <QtCharts/QChart>
#include <QtCharts/QLegend>
#include <QtCharts/QLogValueAxis>
#include <QtCharts/QValueAxis>

#include <memory>

namespace style = ko::qtToolkit::charts::style;
using ko::qtToolkit::charts::FrequencyAxis;
using ko::qtToolkit::charts::LinearAxis;
using ko::qtToolkit::charts::LogarithmicAxis;
using QtCharts::QAbstractAxis;

Q_DECLARE_METATYPE(QAbstractAxis *)

namespace {

QPen solidPen(int rgb)
{
    return QPen(QColor(QRgb(rgb)));
}

// Everything applyTo(axis) sets, as one comparable text.
QString axisLook(const QAbstractAxis &axis)
{
    QString look;
    QDebug(&look) << axis.gridLinePen() << axis.isGridLineVisible() << axis.linePen() << axis.isLineVisible()
                  << axis.minorGridLinePen() << axis.isMinorGridLineVisible() << axis.labelsColor()
                  << axis.labelsFont() << axis.titleFont() << axis.property("minorLabelsColor");
    return look;
}

} // namespace

class tst_ChartStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nullPointersAreIgnored()
    {
        style::applyTo(static_cast<QtCharts::QChart *>(nullptr));
        style::applyTo(static_cast<QAbstractAxis *>(nullptr));
        style::applyTo(static_cast<QtCharts::QLegend *>(nullptr));
        QVERIFY(true); // reaching this line is the test: nothing was dereferenced
    }

    void chart()
    {
        QtCharts::QChart chart;
        chart.setBackgroundRoundness(5);
        chart.layout()->setContentsMargins(3, 3, 3, 3);
        auto *axis = new LinearAxis;
        chart.addAxis(axis, Qt::AlignBottom);
        const QString axisBefore = axisLook(*axis);
        const bool legendVisible = chart.legend()->isVisible();

        style::applyTo(&chart);

        QCOMPARE(chart.margins(), QMargins(8, 8, 8, 8));
        QCOMPARE(chart.backgroundRoundness(), 0.0);
        QCOMPARE(chart.backgroundBrush(), QBrush(QColor(0x1a, 0x1a, 0x1a), Qt::SolidPattern));
        QCOMPARE(chart.titleBrush(), QBrush(QColor(0xaa, 0xaa, 0xaa), Qt::SolidPattern));
        qreal left, top, right, bottom;
        chart.layout()->getContentsMargins(&left, &top, &right, &bottom);
        QCOMPARE(QRectF(left, top, right, bottom), QRectF(0, 0, 0, 0));
        // The chart's axes and legend are styled on their own.
        QCOMPARE(axisLook(*axis), axisBefore);
        QCOMPARE(chart.legend()->isVisible(), legendVisible);
    }

    void axis_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<bool>("hasMinorLabels");
        QTest::newRow("LinearAxis") << QStringLiteral("linear") << true;
        QTest::newRow("LogarithmicAxis") << QStringLiteral("logarithmic") << true;
        QTest::newRow("FrequencyAxis") << QStringLiteral("frequency") << true;
        QTest::newRow("plain QValueAxis") << QStringLiteral("value") << false;
        QTest::newRow("plain QLogValueAxis") << QStringLiteral("log") << false;
        QTest::newRow("QCategoryAxis") << QStringLiteral("category") << false;
    }

    void axis()
    {
        QFETCH(QString, kind);
        QFETCH(bool, hasMinorLabels);
        std::unique_ptr<QAbstractAxis> axis;
        if (kind == QLatin1String("linear"))
            axis = std::make_unique<LinearAxis>();
        else if (kind == QLatin1String("logarithmic"))
            axis = std::make_unique<LogarithmicAxis>();
        else if (kind == QLatin1String("frequency"))
            axis = std::make_unique<FrequencyAxis>();
        else if (kind == QLatin1String("value"))
            axis = std::make_unique<QtCharts::QValueAxis>();
        else if (kind == QLatin1String("log"))
            axis = std::make_unique<QtCharts::QLogValueAxis>();
        else
            axis = std::make_unique<QtCharts::QCategoryAxis>();
        axis->setGridLineVisible(false);
        axis->setLineVisible(false);
        axis->setMinorGridLineVisible(false);
        QFont title;
        title.setPixelSize(31);
        axis->setTitleFont(title);

        style::applyTo(axis.get());

        QCOMPARE(axis->gridLinePen(), solidPen(0x333333));
        QCOMPARE(axis->gridLinePen().width(), 1);
        QCOMPARE(axis->gridLinePen().style(), Qt::SolidLine);
        QVERIFY(axis->isGridLineVisible());
        QCOMPARE(axis->linePen(), solidPen(0x333333));
        QVERIFY(axis->isLineVisible());
        QCOMPARE(axis->minorGridLinePen(), solidPen(0x222222));
        QVERIFY(axis->isMinorGridLineVisible());
        QCOMPARE(axis->labelsColor(), QColor(0x99, 0x99, 0x99));
        QCOMPARE(axis->labelsFont().pixelSize(), 10);
        QFont labels;
        labels.setPixelSize(10);
        QCOMPARE(axis->labelsFont(), labels);
        QCOMPARE(axis->titleFont(), QFont());

        const QVariant minorColour = axis->property("minorLabelsColor");
        QCOMPARE(minorColour.isValid(), hasMinorLabels);
        if (hasMinorLabels)
            QCOMPARE(minorColour.value<QColor>(), QColor(0x77, 0x77, 0x77));
    }

    void styledTwiceEqualsOnce()
    {
        LinearAxis once;
        LinearAxis twice;
        QSignalSpy colourChanges(&twice, &LinearAxis::minorLabelsColorChanged);
        style::applyTo(&once);
        style::applyTo(&twice);
        style::applyTo(&twice);
        QCOMPARE(axisLook(twice), axisLook(once));
        QCOMPARE(colourChanges.count(), 1);

        QtCharts::QChart chartOnce, chartTwice;
        style::applyTo(&chartOnce);
        style::applyTo(&chartTwice);
        style::applyTo(&chartTwice);
        QCOMPARE(chartTwice.margins(), chartOnce.margins());
        QCOMPARE(chartTwice.backgroundBrush(), chartOnce.backgroundBrush());
        QCOMPARE(chartTwice.backgroundRoundness(), chartOnce.backgroundRoundness());
        QCOMPARE(chartTwice.titleBrush(), chartOnce.titleBrush());

        style::applyTo(chartTwice.legend());
        style::applyTo(chartTwice.legend());
        QVERIFY(!chartTwice.legend()->isVisible());
        QCOMPARE(chartTwice.legend()->labelColor(), QColor(0x8f, 0x8f, 0x91));
    }

    void legend()
    {
        QtCharts::QChart chart;
        QVERIFY(chart.legend()->isVisible());
        style::applyTo(chart.legend());
        QVERIFY(!chart.legend()->isVisible());
        QCOMPARE(chart.legend()->labelColor(), QColor(0x8f, 0x8f, 0x91));
    }
};

QTEST_MAIN(tst_ChartStyle)
#include "tst_ChartStyle.moc"
