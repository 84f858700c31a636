// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include "ChartTestSupport.h"

#include <ko/qtToolkit/charts/AxisTicker.h>
#include <ko/qtToolkit/charts/CartesianChartAxis_p.h>
#include <ko/qtToolkit/charts/ChartHelpers.h>
#include <ko/qtToolkit/charts/CustomAxisTicker.h>
#include <ko/qtToolkit/charts/GraphicsLineItem_p.h>
#include <ko/qtToolkit/charts/HorizontalAxis_p.h>
#include <ko/qtToolkit/charts/LinearAxis.h>
#include <ko/qtToolkit/charts/LogarithmicAxis.h>
#include <ko/qtToolkit/charts/LogarithmicAxisTicker.h>
#include <ko/qtToolkit/charts/VerticalAxis_p.h>

#include <TestSupport.h>

#include <QGraphicsItemGroup>
#include <QGraphicsTextItem>
#include <QRegularExpression>
#include <QTest>
#include <QTextDocument>
#include <QtCharts/QValueAxis>
#include <QtCharts/private/axisanimation_p.h>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace ko::qtToolkit::charts;
using ko::qtToolkit::test::lineAt;
using ko::qtToolkit::test::textAt;
using ko::qtToolkit::test::TestChart;
using ko::qtToolkit::test::Tick;
using ko::qtToolkit::test::ticksOf;
using QtCharts::QAbstractAxis;

namespace {

QList<QGraphicsItem *> itemsOf(QGraphicsItemGroup *group)
{
    return group->childItems();
}

// Lays the element out again for the geometry it has, as the chart layout would.
void relayout(CartesianChartAxis *element)
{
    element->setGeometry(element->axisGeometry(), element->gridGeometry());
}

// The whole pixel in [from, to] farthest from all of \a lines.
int farthestFrom(const QVector<double> &lines, int from, int to)
{
    int best = from;
    double bestDistance = -1.0;
    for (int pixel = from; pixel <= to; ++pixel) {
        double distance = std::numeric_limits<double>::max();
        for (const double line : lines)
            distance = std::min(distance, std::abs(pixel + 0.5 - line));
        if (distance > bestDistance) {
            bestDistance = distance;
            best = pixel;
        }
    }
    return best;
}

// The item counts that the element keeps equal to its tick counts.
void verifyItemCounts(CartesianChartAxis *element)
{
    const int major = element->majorTickValues().size();
    const int minor = element->minorTickValues().size();
    QCOMPARE(itemsOf(element->gridGroup()).size(), major);
    QCOMPARE(itemsOf(element->labelGroup()).size(), major);
    QCOMPARE(itemsOf(element->arrowGroup()).size(), major + 1);
    QCOMPARE(itemsOf(element->minorArrowGroup()).size(), minor);
    QCOMPARE(itemsOf(element->minorGridGroup()).size(), minor);
    QCOMPARE(element->minorLabelItems().size(), minor);
    QCOMPARE(element->labels().size(), major);
    QCOMPARE(element->minorLabels().size(), minor);
    QVERIFY(itemsOf(element->shadeGroup()).isEmpty());
    for (QGraphicsItemGroup *group : {element->gridGroup(), element->arrowGroup(), element->minorArrowGroup(),
                                      element->minorGridGroup()}) {
        for (QGraphicsItem *item : group->childItems())
            QVERIFY(dynamic_cast<GraphicsLineItem *>(item));
    }
}

} // namespace

class tst_CartesianChartAxis : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        ko::qtToolkit::test::useFixedFont();
    }

    void metaObjectListsThreeSlots()
    {
        const QMetaObject &meta = CartesianChartAxis::staticMetaObject;
        QCOMPARE(meta.methodCount() - meta.methodOffset(), 3);
        const QList<QPair<QByteArray, QByteArray>> expected = {
            {"handleVisibleChanged(bool)", "visible"},
            {"handleMinorLabelsVisibleChanged(bool)", "visible"},
            {"handleMinorLabelsColorChanged(QColor)", "color"},
        };
        for (int i = 0; i < expected.size(); ++i) {
            const QMetaMethod method = meta.method(meta.methodOffset() + i);
            QCOMPARE(method.methodType(), QMetaMethod::Slot);
            QCOMPARE(method.methodSignature(), expected.at(i).first);
            QCOMPARE(method.parameterNames(), QList<QByteArray>({expected.at(i).second}));
        }
    }

    void invariantsAfterLayoutPasses_data()
    {
        QTest::addColumn<bool>("logarithmic");
        QTest::addColumn<Qt::Alignment>("alignment");
        QTest::newRow("linear bottom") << false << Qt::Alignment(Qt::AlignBottom);
        QTest::newRow("linear left") << false << Qt::Alignment(Qt::AlignLeft);
        QTest::newRow("log top") << true << Qt::Alignment(Qt::AlignTop);
        QTest::newRow("log right") << true << Qt::Alignment(Qt::AlignRight);
    }

    void invariantsAfterLayoutPasses()
    {
        QFETCH(bool, logarithmic);
        QFETCH(Qt::Alignment, alignment);

        TestChart chart;
        QAbstractAxis *axis = logarithmic ? static_cast<QAbstractAxis *>(new LogarithmicAxis) : new LinearAxis;
        chart.addAxis(axis, alignment);
        using Ranges = QList<QPair<double, double>>;
        const Ranges ranges = logarithmic ? Ranges{{1, 1000}, {2, 9}, {10, 100000}, {50, 60}, {1, 3}}
                                          : Ranges{{0, 100}, {0, 7.3}, {-1000, 1000}, {0.23, 0.77}, {0, 3}};
        auto *element = TestChart::element<CartesianChartAxis>(*axis);
        QVERIFY(element);
        QGraphicsItem *axisLine = nullptr;
        for (const auto &range : ranges) {
            axis->setRange(range.first, range.second);
            chart.layout();
            verifyItemCounts(element);
            if (QTest::currentTestFailed())
                return;
            QVERIFY(!element->majorTickValues().isEmpty());
            // The axis line is created once and stays the first child of the arrow group.
            if (!axisLine)
                axisLine = itemsOf(element->arrowGroup()).constFirst();
            QCOMPARE(itemsOf(element->arrowGroup()).constFirst(), axisLine);
            const QLineF line = static_cast<QGraphicsLineItem *>(axisLine)->line();
            QCOMPARE(line.length(), axis->orientation() == Qt::Horizontal ? chart.chart()->plotArea().width()
                                                                          : chart.chart()->plotArea().height());
        }
    }

    void growingAndShrinkingTickCount()
    {
        TestChart chart;
        auto *axis = chart.addAxis(new LinearAxis, Qt::AlignBottom);
        axis->setRange(0.0, 4.4);
        axis->ticker()->setTickCount(2);
        chart.layout();
        auto *element = TestChart::element<CartesianChartAxis>(*axis);
        QCOMPARE(element->majorTickValues(), QVector<qreal>({0, 2, 4}));
        QGraphicsItem *axisLine = itemsOf(element->arrowGroup()).constFirst();
        const QList<QGraphicsItem *> gridBefore = itemsOf(element->gridGroup());
        const QList<QGraphicsItem *> labelsBefore = itemsOf(element->labelGroup());
        const QList<QGraphicsItem *> ticksBefore = itemsOf(element->arrowGroup());

        axis->ticker()->setTickCount(4);
        relayout(element);
        QCOMPARE(element->majorTickValues(), QVector<qreal>({0, 1, 2, 3, 4}));
        verifyItemCounts(element);
        QCOMPARE(itemsOf(element->gridGroup()).mid(0, 3), gridBefore);
        QCOMPARE(itemsOf(element->labelGroup()).mid(0, 3), labelsBefore);
        QCOMPARE(itemsOf(element->arrowGroup()).mid(0, 4), ticksBefore);

        axis->ticker()->setTickCount(2);
        relayout(element);
        verifyItemCounts(element);
        QCOMPARE(itemsOf(element->gridGroup()), gridBefore);
        QCOMPARE(itemsOf(element->labelGroup()), labelsBefore);
        QCOMPARE(itemsOf(element->arrowGroup()), ticksBefore);
        QCOMPARE(itemsOf(element->arrowGroup()).constFirst(), axisLine);
    }

    void shadesNeverDrawn()
    {
        TestChart chart;
        auto *x = chart.addAxis(new LinearAxis, Qt::AlignBottom);
        x->setRange(0.0, 100.0);
        auto *y = chart.addAxis(new LogarithmicAxis, Qt::AlignLeft);
        y->setRange(1.0, 1000.0);
        const QImage plain = chart.render();

        for (QAbstractAxis *axis : {static_cast<QAbstractAxis *>(x), static_cast<QAbstractAxis *>(y)}) {
            axis->setShadesBrush(QBrush(Qt::red));
            axis->setShadesPen(QPen(Qt::blue));
            axis->setShadesVisible(true);
        }
        x->setRange(0.0, 50.0);
        x->setRange(0.0, 100.0);
        const QImage shaded = chart.render();
        QVERIFY(itemsOf(TestChart::element<CartesianChartAxis>(*x)->shadeGroup()).isEmpty());
        QVERIFY(itemsOf(TestChart::element<CartesianChartAxis>(*y)->shadeGroup()).isEmpty());
        QCOMPARE(shaded, plain);
    }

    void minorLabelsVisibility()
    {
        TestChart chart;
        auto *axis = chart.addAxis(new LinearAxis, Qt::AlignBottom);
        axis->setRange(0.0, 100.0);
        chart.layout();
        auto *element = TestChart::element<CartesianChartAxis>(*axis);
        QGraphicsItemGroup *group = element->minorLabelGroup();
        QVERIFY(group->isVisible());
        QCOMPARE(group->zValue(), 3.0);

        axis->setMinorLabelsVisible(false);
        QVERIFY(!group->isVisible());
        axis->setVisible(false);
        axis->setVisible(true);
        QVERIFY(!group->isVisible());

        axis->setMinorLabelsVisible(true);
        QVERIFY(group->isVisible());
        axis->setVisible(false);
        QVERIFY(!group->isVisible());
        // A hidden axis keeps its minor labels hidden whatever their own setting says.
        axis->setMinorLabelsVisible(false);
        axis->setMinorLabelsVisible(true);
        QVERIFY(!group->isVisible());
        axis->setVisible(true);
        QVERIFY(group->isVisible());
    }

    // Labels the axis does not show take no part in the hiding of overlapping labels, and the
    // labels that are shown again are sorted out at once, without a new layout pass.
    void overlapHidingLeavesLabelsNotShownAlone()
    {
        AxisTicker ticker;
        ticker.setTickCount(5);
        TestChart chart(QSizeF(160, 300));
        auto *axis = chart.addAxis(new LinearAxis, Qt::AlignBottom);
        axis->setRange(0.0, 1000.0);
        axis->setTicker(&ticker);
        axis->setHideOverlappingLabels(true);
        chart.layout();
        auto *element = TestChart::element<CartesianChartAxis>(*axis);
        // Which labels the hiding keeps: majors, then minors, each by its own flag.
        const auto kept = [&] {
            QVector<bool> state;
            for (const Tick &tick : ticksOf(element))
                state << tick.label->isVisibleTo(tick.label->parentItem());
            return state;
        };
        const int majors = element->majorTickValues().size();
        const QVector<bool> all = kept();
        QVERIFY(all.mid(majors).contains(false));

        // Without the major labels more minor labels find room.
        axis->setLabelsVisible(false);
        chart.layout();
        const QVector<bool> minorsOnly = kept();
        QVERIFY(!minorsOnly.mid(0, majors).contains(false));
        QVERIFY(minorsOnly.mid(majors).count(true) > all.mid(majors).count(true));
        axis->setLabelsVisible(true);
        QCOMPARE(kept(), all);

        // Without the minor labels the major labels are left as they were; the minor labels are not
        // touched.
        axis->setMinorLabelsVisible(false);
        chart.layout();
        QCOMPARE(kept().mid(0, majors), all.mid(0, majors));
        QVERIFY(!kept().mid(majors).contains(false));
        axis->setMinorLabelsVisible(true);
        QCOMPARE(kept(), all);

        axis->setVisible(false);
        chart.layout();
        axis->setVisible(true);
        QCOMPARE(kept(), all);

        // Switched off, every label shows again at once.
        axis->setHideOverlappingLabels(false);
        QVERIFY(!kept().contains(false));
    }

    // Hidden minor labels are left alone by layout passes; the moment they show again they are
    // what a full layout pass over the same geometry makes of them.
    void minorLabelsShownAgainAreUpToDate_data()
    {
        QTest::addColumn<bool>("hideAxis");
        QTest::newRow("minor labels hidden") << false;
        QTest::newRow("axis hidden") << true;
    }

    void minorLabelsShownAgainAreUpToDate()
    {
        QFETCH(bool, hideAxis);
        TestChart chart;
        auto *axis = chart.addAxis(new LinearAxis, Qt::AlignBottom);
        axis->setRange(0.0, 100.0);
        chart.layout();
        const auto show = [&](bool visible) {
            if (hideAxis)
                axis->setVisible(visible);
            else
                axis->setMinorLabelsVisible(visible);
        };
        show(false);
        axis->setRange(13.0, 57.0);
        axis->setLabelFormat(QStringLiteral("%.2f V"));
        chart.layout();
        show(true);

        auto *element = TestChart::element<CartesianChartAxis>(*axis);
        QVERIFY(element->minorLabelGroup()->isVisible());
        const auto snapshot = [&] {
            QStringList state;
            for (QGraphicsItem *item : element->minorLabelItems()) {
                const auto *label = static_cast<QGraphicsTextItem *>(item);
                QRectF rect = label->boundingRect();
                state << QStringLiteral("%1 at %2,%3 in %4 x %5")
                             .arg(label->toPlainText())
                             .arg(label->pos().x())
                             .arg(label->pos().y())
                             .arg(rect.width())
                             .arg(rect.height());
            }
            return state;
        };
        const QStringList shown = snapshot();
        QCOMPARE(shown.size(), element->minorTickValues().size());
        QVERIFY(shown.first().contains(QStringLiteral(" V")) || shown.first().contains(QStringLiteral("...")));
        element->setGeometry(element->axisGeometry(), element->gridGeometry());
        QCOMPARE(shown, snapshot());
    }

    // However a label's text changed, its document is the one setHtml() makes of the text.
    void labelDocumentsAreThoseOfTheirTexts_data()
    {
        QTest::addColumn<QString>("format");
        QTest::newRow("plain numbers") << QStringLiteral("%.1f");
        QTest::newRow("with a unit") << QStringLiteral("%.0f dB");
        QTest::newRow("markup") << QStringLiteral("<b>%.1f</b>");
        QTest::newRow("folded spaces") << QStringLiteral("%.2f  V");
        QTest::newRow("entity") << QStringLiteral("%.0f &amp; up");
    }

    void labelDocumentsAreThoseOfTheirTexts()
    {
        QFETCH(QString, format);
        TestChart chart(QSizeF(1600, 400));
        auto *axis = chart.addAxis(new LinearAxis, Qt::AlignBottom);
        axis->setMinorLabelsVisible(false);
        axis->ticker()->setTickCount(4);
        auto *element = TestChart::element<CartesianChartAxis>(*axis);
        const QVector<QPair<double, double>> ranges{{0.0, 10.0}, {3.0, 17.0}, {0.5, 2.0}, {-40.0, 40.0}, {3.0, 17.0}};
        for (int step = 0; step < ranges.size(); ++step) {
            // The format changes half way, between plain and marked-up texts for some rows.
            axis->setLabelFormat(step < 2 ? QStringLiteral("%.1f") : format);
            axis->setRange(ranges.at(step).first, ranges.at(step).second);
            chart.layout();
            const QStringList texts = element->labels();
            QCOMPARE(texts.size(), element->labelGroup()->childItems().size());
            for (int i = 0; i < texts.size(); ++i) {
                QGraphicsTextItem *label = textAt(element->labelGroup(), i);
                QGraphicsTextItem fresh;
                fresh.document()->setDocumentMargin(label->document()->documentMargin());
                fresh.setFont(label->font());
                fresh.setTextWidth(label->textWidth());
                fresh.setHtml(texts.at(i));
                QCOMPARE(label->document()->toHtml(), fresh.document()->toHtml());
                QCOMPARE(label->boundingRect(), fresh.boundingRect());
            }
        }
    }

    void minorLabelsStartHiddenOnHiddenAxis()
    {
        TestChart chart;
        auto *axis = new LinearAxis;
        axis->setVisible(false);
        chart.addAxis(axis, Qt::AlignBottom);
        QVERIFY(!TestChart::element<CartesianChartAxis>(*axis)->minorLabelGroup()->isVisible());

        auto *quiet = new LogarithmicAxis;
        quiet->setMinorLabelsVisible(false);
        chart.addAxis(quiet, Qt::AlignLeft);
        QVERIFY(!TestChart::element<CartesianChartAxis>(*quiet)->minorLabelGroup()->isVisible());
    }

    void minorLabelsColor()
    {
        TestChart chart;
        auto *axis = chart.addAxis(new LinearAxis, Qt::AlignBottom);
        axis->setRange(0.0, 10.0);
        axis->setLabelsColor(Qt::darkGray);
        chart.layout();
        auto *element = TestChart::element<CartesianChartAxis>(*axis);
        const int before = element->minorLabelItems().size();
        QVERIFY(before > 0);
        for (QGraphicsItem *item : element->minorLabelItems())
            QCOMPARE(static_cast<QGraphicsTextItem *>(item)->defaultTextColor(), axis->minorLabelsColor());

        axis->setMinorLabelsColor(Qt::red);
        for (QGraphicsItem *item : element->minorLabelItems())
            QCOMPARE(static_cast<QGraphicsTextItem *>(item)->defaultTextColor(), QColor(Qt::red));

        // More minor ticks: the new labels are red from the start.
        axis->ticker()->setTickCount(10);
        relayout(element);
        QVERIFY(element->minorLabelItems().size() > before);
        for (QGraphicsItem *item : element->minorLabelItems())
            QCOMPARE(static_cast<QGraphicsTextItem *>(item)->defaultTextColor(), QColor(Qt::red));

        // The labels colour is the major labels' only.
        axis->setLabelsColor(Qt::blue);
        QCOMPARE(textAt(element->labelGroup(), 0)->defaultTextColor(), QColor(Qt::blue));
        for (QGraphicsItem *item : element->minorLabelItems())
            QCOMPARE(static_cast<QGraphicsTextItem *>(item)->defaultTextColor(), QColor(Qt::red));
    }

    void labelItemsStyle_data()
    {
        QTest::addColumn<bool>("changedLater");
        QTest::newRow("set before the items exist") << false;
        QTest::newRow("changed afterwards") << true;
    }

    void labelItemsStyle()
    {
        QFETCH(bool, changedLater);

        TestChart chart;
        auto *axis = chart.addAxis(new LogarithmicAxis, Qt::AlignBottom);
        axis->setRange(1.0, 1000.0);
        axis->setMinorLabelsColor(Qt::magenta);
        const QFont font = ko::qtToolkit::test::fixedFont(11);
        if (changedLater)
            chart.layout();
        axis->setLabelsFont(font);
        axis->setLabelsAngle(30);
        chart.layout();
        auto *element = TestChart::element<CartesianChartAxis>(*axis);
        QVERIFY(!element->minorLabelItems().isEmpty());
        for (QGraphicsItem *item : itemsOf(element->labelGroup()) + element->minorLabelItems()) {
            auto *label = static_cast<QGraphicsTextItem *>(item);
            QCOMPARE(label->document()->documentMargin(), 0.5);
            QCOMPARE(label->font(), font);
            QCOMPARE(label->rotation(), 30.0);
            // Turned about its middle.
            QCOMPARE(label->transformOriginPoint(), label->boundingRect().center());
        }
    }

    void labelFormat_data()
    {
        QTest::addColumn<QString>("axisFormat");
        QTest::addColumn<QString>("firstLabel");
        QTest::newRow("empty keeps the ticker's") << "" << "0.0";
        QTest::newRow("set is passed on") << "%.3f V" << "0.000 V";
    }

    void labelFormat()
    {
        QFETCH(QString, axisFormat);
        QFETCH(QString, firstLabel);

        AxisTicker ticker;
        ticker.setLabelFormat(QStringLiteral("%.1f"));
        TestChart chart;
        auto *axis = chart.addAxis(new LinearAxis, Qt::AlignBottom);
        axis->setTicker(&ticker);
        axis->setLabelFormat(axisFormat);
        axis->setRange(0.0, 10.0);
        chart.layout();
        auto *element = TestChart::element<CartesianChartAxis>(*axis);
        QCOMPARE(element->labels().constFirst(), firstLabel);
        QCOMPARE(textAt(element->labelGroup(), 0)->toPlainText(), firstLabel);
        QStringList fromTicker;
        ticker.generateLabels({0.0}, fromTicker);
        QCOMPARE(fromTicker, QStringList(firstLabel));
        axis->setTicker(nullptr);
    }

    void labelTexts()
    {
        TestChart chart;
        auto *axis = chart.addAxis(new LinearAxis, Qt::AlignLeft);
        axis->setRange(0.0, 100.0);
        chart.layout();
        auto *element = TestChart::element<CartesianChartAxis>(*axis);
        QCOMPARE(element->labels(), QStringList({"0.00", "30.00", "60.00", "90.00"}));
        QCOMPARE(element->minorLabels(),
                 QStringList({"10.00", "20.00", "40.00", "50.00", "70.00", "80.00", "100.00"}));
        for (int i = 0; i < element->labels().size(); ++i)
            QCOMPARE(textAt(element->labelGroup(), i)->toPlainText(), element->labels().at(i));
        for (int j = 0; j < element->minorLabels().size(); ++j)
            QCOMPARE(static_cast<QGraphicsTextItem *>(element->minorLabelItems().at(j))->toPlainText(),
                     element->minorLabels().at(j));
        QCOMPARE(element->allLabels(), element->labels() + element->minorLabels());
    }

    // Minor labels set by hand stand until the next layout pass takes the ticker's again, as the
    // major labels do with setLabels().
    void setMinorLabelsHoldsUntilTheNextLayout()
    {
        TestChart chart;
        auto *axis = chart.addAxis(new LinearAxis, Qt::AlignBottom);
        axis->setRange(0.0, 100.0);
        chart.layout();
        auto *element = TestChart::element<CartesianChartAxis>(*axis);
        const QStringList fromTicker = element->minorLabels();
        const QStringList byHand{"a", "b", "c", "d", "e", "f", "g"};
        element->setMinorLabels(byHand);
        QCOMPARE(element->minorLabels(), byHand);
        element->setMinorLabels({});
        QCOMPARE(element->minorLabels(), QStringList());
        relayout(element);
        QCOMPARE(element->minorLabels(), fromTicker);
    }

    // A ticker asked for more ticks than an axis can show thins them: the axis stays readable.
    void tickCountPastTheCapStillShowsTicks_data()
    {
        QTest::addColumn<int>("tickCount");
        QTest::newRow("at the cap") << 497;
        QTest::newRow("just above the cap") << 501;
        QTest::newRow("far above the cap") << 100000;
    }

    void tickCountPastTheCapStillShowsTicks()
    {
        QFETCH(int, tickCount);
        AxisTicker ticker;
        ticker.setTickCount(tickCount);
        TestChart chart;
        auto *axis = chart.addAxis(new LinearAxis, Qt::AlignBottom);
        axis->setTicker(&ticker);
        axis->setRange(0.0, 497.0);
        chart.layout();
        auto *element = TestChart::element<CartesianChartAxis>(*axis);
        QVERIFY(element->majorTickValues().size() > 100);
        QVERIFY(element->majorTickValues().size() <= 500);
        QCOMPARE(element->labels().size(), element->majorTickValues().size());
        QCOMPARE(itemsOf(element->gridGroup()).size(), element->majorTickValues().size());
        QCOMPARE(element->labels().constFirst(), QStringLiteral("0.00"));
    }

    void allLabelsLeavesLayoutAlone()
    {
        TestChart chart;
        auto *axis = chart.addAxis(new LinearAxis, Qt::AlignBottom);
        axis->setRange(0.0, 100.0);
        chart.layout();
        auto *element = TestChart::element<CartesianChartAxis>(*axis);
        const QVector<qreal> major = element->majorTickValues();
        const QVector<qreal> minor = element->minorTickValues();

        axis->ticker()->setTickCount(1);
        QCOMPARE(element->allLabels(), QStringList({"0.00", "80.00", "20.00", "40.00", "60.00", "100.00"}));
        QCOMPARE(element->majorTickValues(), major);
        QCOMPARE(element->minorTickValues(), minor);
        QCOMPARE(element->labels(), QStringList({"0.00", "30.00", "60.00", "90.00"}));
    }

    void emptyGeometryChangesNothing_data()
    {
        QTest::addColumn<QRectF>("axisRect");
        QTest::addColumn<QRectF>("gridRect");
        QTest::newRow("axis without width") << QRectF(0, 550, 0, 40) << QRectF(50, 10, 700, 540);
        QTest::newRow("axis without height") << QRectF(0, 550, 800, 0) << QRectF(50, 10, 700, 540);
        QTest::newRow("grid without width") << QRectF(0, 550, 800, 40) << QRectF(50, 10, 0, 540);
        QTest::newRow("grid without height") << QRectF(0, 550, 800, 40) << QRectF(50, 10, 700, 0);
        QTest::newRow("grid of negative size") << QRectF(0, 550, 800, 40) << QRectF(50, 10, -700, 540);
    }

    void emptyGeometryChangesNothing()
    {
        QFETCH(QRectF, axisRect);
        QFETCH(QRectF, gridRect);

        TestChart chart;
        auto *axis = chart.addAxis(new LinearAxis, Qt::AlignBottom);
        axis->setRange(0.0, 100.0);
        chart.layout();
        auto *element = TestChart::element<CartesianChartAxis>(*axis);
        const QLineF grid = lineAt(element->gridGroup(), 1)->line();
        const QPointF label = textAt(element->labelGroup(), 1)->pos();

        element->setGeometry(axisRect, gridRect);
        QVERIFY(ko::qtToolkit::charts::isEmptyAxis(*element));
        QCOMPARE(element->axisGeometry(), axisRect);
        QCOMPARE(element->gridGeometry(), gridRect);
        QCOMPARE(lineAt(element->gridGroup(), 1)->line(), grid);
        QCOMPARE(textAt(element->labelGroup(), 1)->pos(), label);
    }

    void emptyRangeChangesNothing()
    {
        TestChart chart;
        auto *axis = chart.addAxis(new LinearAxis, Qt::AlignBottom);
        axis->setRange(0.0, 100.0);
        chart.layout();
        auto *element = TestChart::element<CartesianChartAxis>(*axis);
        const QLineF grid = lineAt(element->gridGroup(), 1)->line();
        const QVector<qreal> ticks = element->majorTickValues();

        axis->setRange(50.0, 50.0);
        chart.layout();
        QVERIFY(ko::qtToolkit::charts::isEmptyAxis(*element));
        relayout(element);
        QCOMPARE(element->majorTickValues(), ticks);
        QCOMPARE(lineAt(element->gridGroup(), 1)->line(), grid);
    }

    void axisOfAnotherClassHasNoTicks()
    {
        // A Qt value axis has neither a ticker nor minor label signals.
        QtCharts::QValueAxis axis;
        axis.setRange(0.0, 100.0);
        QGraphicsRectItem root;
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("^QObject::connect: No such signal .*minorLabelsVisibleChanged")));
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("^QObject::connect: No such signal .*minorLabelsColorChanged")));
        HorizontalAxis element(&axis, &root);
        QVERIFY(!element.minorLabelGroup()->isVisible());

        element.setGeometry(QRectF(0, 550, 800, 40), QRectF(50, 10, 700, 540));
        QVERIFY(element.majorTickValues().isEmpty());
        QVERIFY(element.minorTickValues().isEmpty());
        QVERIFY(element.allLabels().isEmpty());
        QCOMPARE(itemsOf(element.arrowGroup()).size(), 1);
        QVERIFY(itemsOf(element.gridGroup()).isEmpty());
    }

    void pensReachTheirItems()
    {
        TestChart chart;
        auto *axis = chart.addAxis(new LinearAxis, Qt::AlignBottom);
        axis->setRange(0.0, 100.0);
        chart.layout();
        auto *element = TestChart::element<CartesianChartAxis>(*axis);

        const QPen linePen(Qt::darkRed, 2.0);
        const QPen gridPen(Qt::darkGreen, 1.0, Qt::DotLine);
        const QPen minorGridPen(Qt::darkBlue, 1.0, Qt::DashLine);
        axis->setLinePen(linePen);
        axis->setGridLinePen(gridPen);
        axis->setMinorGridLinePen(minorGridPen);
        for (QGraphicsItem *item : itemsOf(element->arrowGroup()) + itemsOf(element->minorArrowGroup()))
            QCOMPARE(static_cast<QGraphicsLineItem *>(item)->pen(), linePen);
        for (QGraphicsItem *item : itemsOf(element->gridGroup()))
            QCOMPARE(static_cast<QGraphicsLineItem *>(item)->pen(), gridPen);
        for (QGraphicsItem *item : itemsOf(element->minorGridGroup()))
            QCOMPARE(static_cast<QGraphicsLineItem *>(item)->pen(), minorGridPen);

        axis->setGridLineColor(Qt::cyan);
        axis->setMinorGridLineColor(Qt::yellow);
        for (QGraphicsItem *item : itemsOf(element->gridGroup())) {
            const QPen pen = static_cast<QGraphicsLineItem *>(item)->pen();
            QCOMPARE(pen.color(), QColor(Qt::cyan));
            QCOMPARE(pen.style(), Qt::DotLine);
        }
        for (QGraphicsItem *item : itemsOf(element->minorGridGroup())) {
            const QPen pen = static_cast<QGraphicsLineItem *>(item)->pen();
            QCOMPARE(pen.color(), QColor(Qt::yellow));
            QCOMPARE(pen.style(), Qt::DashLine);
        }

        // Items made later take the axis's pens too.
        axis->setRange(0.0, 1000.0);
        axis->ticker()->setTickCount(8);
        relayout(element);
        for (QGraphicsItem *item : itemsOf(element->gridGroup()))
            QCOMPARE(static_cast<QGraphicsLineItem *>(item)->pen().color(), QColor(Qt::cyan));
        for (QGraphicsItem *item : itemsOf(element->minorArrowGroup()))
            QCOMPARE(static_cast<QGraphicsLineItem *>(item)->pen(), linePen);
    }

    void titleIsRestyledWithTheItems()
    {
        TestChart chart;
        auto *axis = chart.addAxis(new LinearAxis, Qt::AlignBottom);
        axis->setRange(0.0, 100.0);
        axis->setTitleText(QStringLiteral("Time"));
        axis->setTitleBrush(QBrush(Qt::darkMagenta));
        chart.layout();
        auto *element = TestChart::element<CartesianChartAxis>(*axis);
        QCOMPARE(element->titleItem()->toPlainText(), QStringLiteral("Time"));
        QCOMPARE(element->titleItem()->defaultTextColor(), QColor(Qt::darkMagenta));
    }

    void agreesWithChartMapping_data()
    {
        QTest::addColumn<bool>("logarithmic");
        QTest::addColumn<bool>("reverse");
        QTest::newRow("linear") << false << false;
        QTest::newRow("linear reversed") << false << true;
        QTest::newRow("log") << true << false;
        QTest::newRow("log reversed") << true << true;
    }

    void agreesWithChartMapping()
    {
        QFETCH(bool, logarithmic);
        QFETCH(bool, reverse);

        TestChart chart(QSizeF(731, 517));
        QAbstractAxis *x = nullptr;
        QAbstractAxis *y = nullptr;
        if (logarithmic) {
            auto *logX = new LogarithmicAxis;
            logX->setRange(20.0, 20000.0);
            auto *logY = new LogarithmicAxis;
            logY->setRange(0.5, 3000.0);
            x = logX;
            y = logY;
        } else {
            auto *linearX = new LinearAxis;
            linearX->setRange(-3.0, 17.0);
            auto *linearY = new LinearAxis;
            linearY->setRange(0.0, 7.3);
            x = linearX;
            y = linearY;
        }
        x->setReverse(reverse);
        y->setReverse(reverse);
        chart.addAxis(x, Qt::AlignBottom);
        chart.addAxis(y, Qt::AlignLeft);
        chart.layout();
        auto *elementX = TestChart::element<CartesianChartAxis>(*x);
        auto *elementY = TestChart::element<CartesianChartAxis>(*y);
        const QVector<qreal> ticksX = elementX->majorTickValues() + elementX->minorTickValues();
        const QVector<qreal> ticksY = elementY->majorTickValues() + elementY->minorTickValues();
        QVERIFY(ticksX.size() > 3 && ticksY.size() > 3);

        // A series whose points sit on the tick values of both axes.
        QVector<QPointF> points;
        for (int i = 0; i < std::max(ticksX.size(), ticksY.size()); ++i)
            points.append(QPointF(ticksX.at(i % ticksX.size()), ticksY.at(i % ticksY.size())));
        auto *series = chart.addSeries(points, x, y);
        chart.layout();

        const int majorX = elementX->majorTickValues().size();
        const int majorY = elementY->majorTickValues().size();
        for (int i = 0; i < points.size(); ++i) {
            const QPointF position = chart.chart()->mapToPosition(points.at(i), series);
            const int ix = i % ticksX.size();
            const int iy = i % ticksY.size();
            const QLineF gridX = ix < majorX ? lineAt(elementX->gridGroup(), ix)->line()
                                             : lineAt(elementX->minorGridGroup(), ix - majorX)->line();
            const QLineF gridY = iy < majorY ? lineAt(elementY->gridGroup(), iy)->line()
                                             : lineAt(elementY->minorGridGroup(), iy - majorY)->line();
            QVERIFY2(std::abs(position.x() - gridX.x1()) <= 0.5,
                     qPrintable(QStringLiteral("x %1: chart %2, grid %3").arg(points.at(i).x()).arg(position.x()).arg(gridX.x1())));
            QVERIFY2(std::abs(position.y() - gridY.y1()) <= 0.5,
                     qPrintable(QStringLiteral("y %1: chart %2, grid %3").arg(points.at(i).y()).arg(position.y()).arg(gridY.y1())));
        }
    }

    void animatedLayoutEndsInPlace()
    {
        TestChart chart;
        chart.chart()->setAnimationOptions(QtCharts::QChart::GridAxisAnimations);
        chart.chart()->setAnimationDuration(40);
        auto *axis = chart.addAxis(new LinearAxis, Qt::AlignBottom);
        axis->setRange(0.0, 100.0);
        auto *element = TestChart::element<CartesianChartAxis>(*axis);
        QVERIFY(element->animation());
        QTRY_COMPARE(itemsOf(element->gridGroup()).size(), 4);

        chart.chart()->zoomIn();
        QTRY_COMPARE(lineAt(element->gridGroup(), 0)->line().x1(), coordToPixel(*axis, element->majorTickValues().at(0)));
        QTRY_COMPARE(element->labels().constFirst(), formatLabel(*axis, element->majorTickValues().at(0), QStringLiteral("%.2f")));
        verifyItemCounts(element);
        chart.chart()->scroll(37.0, 0.0);
        QTRY_COMPARE(lineAt(element->gridGroup(), 0)->line().x1(), coordToPixel(*axis, element->majorTickValues().at(0)));
        verifyItemCounts(element);
    }

    // Every position a layout hands to an item is finite and far inside what whole-pixel
    // rounding can take, however the range overflows or collapses.
    void hostileRangesKeepItemsInPlace_data()
    {
        QTest::addColumn<Qt::Alignment>("alignment");
        QTest::addColumn<bool>("collapseDuringAnimation");
        QTest::newRow("bottom, range over most of the doubles") << Qt::Alignment(Qt::AlignBottom) << false;
        QTest::newRow("left, range over most of the doubles") << Qt::Alignment(Qt::AlignLeft) << false;
        QTest::newRow("bottom, range collapses while animated") << Qt::Alignment(Qt::AlignBottom) << true;
        QTest::newRow("left, range collapses while animated") << Qt::Alignment(Qt::AlignLeft) << true;
    }

    void hostileRangesKeepItemsInPlace()
    {
        QFETCH(Qt::Alignment, alignment);
        QFETCH(bool, collapseDuringAnimation);

        // Ticks at both ends of the double range, whatever the range: their distance overflows.
        CustomAxisTicker ticker;
        for (const double value : {-1e308, -1.0, 0.0, 1.0, 1e308})
            ticker.addTick(value);
        TestChart chart;
        auto *axis = chart.addAxis(new LinearAxis, alignment);
        axis->setTicker(&ticker);
        auto *element = TestChart::element<CartesianChartAxis>(*axis);
        if (collapseDuringAnimation) {
            chart.chart()->setAnimationOptions(QtCharts::QChart::GridAxisAnimations);
            chart.chart()->setAnimationDuration(1000);
            axis->setRange(-10.0, 10.0);
            chart.layout();
            QVERIFY(element->animation());
            QTRY_COMPARE(element->animation()->state(), QAbstractAnimation::Stopped);
            axis->setRange(0.0, 20.0);
            QTRY_COMPARE(element->animation()->state(), QAbstractAnimation::Running);
            axis->setRange(5.0, 5.0);
            QTRY_COMPARE(element->animation()->state(), QAbstractAnimation::Stopped);
        } else {
            axis->setRange(-1e308, 1e308);
            chart.layout();
        }
        QVERIFY(!ticksOf(element).isEmpty());

        constexpr qreal limit = 2e6;
        const auto inPlace = [limit](qreal position) { return std::isfinite(position) && std::abs(position) < limit; };
        for (const Tick &tick : ticksOf(element)) {
            const QLineF grid = tick.grid->line();
            QVERIFY2(inPlace(grid.x1()) && inPlace(grid.y1()) && inPlace(grid.x2()) && inPlace(grid.y2()),
                     qPrintable(QStringLiteral("tick %1: grid line %2,%3").arg(tick.value).arg(grid.x1()).arg(grid.y1())));
            const QPointF label = tick.label->pos();
            QVERIFY2(inPlace(label.x()) && inPlace(label.y()),
                     qPrintable(QStringLiteral("tick %1: label at %2,%3").arg(tick.value).arg(label.x()).arg(label.y())));
        }
        for (const qreal position : element->layout())
            QVERIFY(inPlace(position));
        chart.render();
    }

    void renderedImage()
    {
        LogarithmicAxisTicker decades;
        TestChart chart(QSizeF(640, 480));
        chart.chart()->setBackgroundBrush(Qt::white);
        auto *x = chart.addAxis(new LinearAxis, Qt::AlignBottom);
        x->setRange(0.0, 100.0);
        auto *y = chart.addAxis(new LogarithmicAxis, Qt::AlignLeft);
        y->setRange(1.0, 1000.0);
        y->setTicker(&decades);
        // Few enough minor ticks for their labels to fit between them.
        decades.setSubTickCount(2);
        const QColor gridColor(0, 0, 255);
        const QColor minorGridColor(0, 160, 0);
        const QColor minorLabelColor(230, 0, 0);
        for (QAbstractAxis *axis : {static_cast<QAbstractAxis *>(x), static_cast<QAbstractAxis *>(y)}) {
            axis->setLabelsFont(ko::qtToolkit::test::fixedFont());
            axis->setLabelsColor(Qt::black);
            axis->setGridLinePen(QPen(gridColor, 1.0));
            axis->setMinorGridLinePen(QPen(minorGridColor, 1.0));
            axis->setLinePen(QPen(Qt::black, 1.0));
        }
        x->setMinorLabelsColor(minorLabelColor);
        y->setMinorLabelsColor(minorLabelColor);
        const QImage image = chart.render();
        QVERIFY(image.save(ko::qtToolkit::test::artifactPath(QStringLiteral("charts_axes.png"))));

        const QRectF plot = chart.chart()->plotArea();
        auto *elementX = TestChart::element<CartesianChartAxis>(*x);
        auto *elementY = TestChart::element<CartesianChartAxis>(*y);
        using ko::qtToolkit::test::rgbAt;
        // One-pixel lines, drawn without smoothing: the pixel under the line has its pen's colour.
        // Probe each line where no line of the other axis crosses it.
        const auto pixelsOf = [](QAbstractAxis *axis, CartesianChartAxis *element) {
            QVector<double> pixels;
            for (const qreal value : element->majorTickValues() + element->minorTickValues())
                pixels.append(coordToPixel(*axis, value));
            return pixels;
        };
        const int middleY = farthestFrom(pixelsOf(y, elementY), int(plot.top()), int(plot.bottom()));
        const int middleX = farthestFrom(pixelsOf(x, elementX), int(plot.left()), int(plot.right()));
        // The axis lines lie on the plot's left and bottom edges: lines there are not probed.
        int probed = 0;
        const auto verifyLines = [&](QAbstractAxis *axis, const QVector<qreal> &values, const QColor &colour) {
            const bool vertical = axis->orientation() == Qt::Horizontal;
            for (const qreal value : values) {
                const double pixel = coordToPixel(*axis, value);
                const bool onEdge = vertical ? pixel < plot.left() + 1 || pixel > plot.right() - 1
                                             : pixel < plot.top() + 1 || pixel > plot.bottom() - 1;
                if (onEdge)
                    continue;
                QCOMPARE(vertical ? rgbAt(image, int(pixel), middleY) : rgbAt(image, middleX, int(pixel)), colour);
                ++probed;
            }
        };
        verifyLines(x, elementX->majorTickValues(), gridColor);
        verifyLines(x, elementX->minorTickValues(), minorGridColor);
        verifyLines(y, elementY->majorTickValues(), gridColor);
        verifyLines(y, elementY->minorTickValues(), minorGridColor);
        // x: 30, 60, 90 and 10 ... 80; y: 10, 100 and 4, 7, 40, 70, 400, 700.
        QCOMPARE(probed, 3 + 6 + 2 + 6);

        // Every minor label shows text in its own colour (red, softened at the glyph edges),
        // every major label none of it.
        const auto redPixels = [&image](const QRectF &box) {
            int count = 0;
            const QRect area = box.toAlignedRect().intersected(image.rect());
            for (int py = area.top(); py <= area.bottom(); ++py) {
                for (int px = area.left(); px <= area.right(); ++px) {
                    const QColor pixel = rgbAt(image, px, py);
                    if (pixel.red() > 150 && pixel.green() < 90 && pixel.blue() < 90)
                        ++count;
                }
            }
            return count;
        };
        QList<QRectF> minorBoxes;
        for (CartesianChartAxis *element : {elementX, elementY}) {
            for (QGraphicsItem *item : element->minorLabelItems()) {
                QVERIFY(redPixels(item->sceneBoundingRect()) > 5);
                minorBoxes.append(item->sceneBoundingRect());
            }
        }
        int checkedMajorLabels = 0;
        for (CartesianChartAxis *element : {elementX, elementY}) {
            for (QGraphicsItem *item : itemsOf(element->labelGroup())) {
                const QRectF box = item->sceneBoundingRect();
                // Labels are not kept apart: skip a major label that a minor one overlaps.
                if (std::any_of(minorBoxes.cbegin(), minorBoxes.cend(),
                                [&box](const QRectF &minor) { return minor.intersects(box); }))
                    continue;
                QCOMPARE(redPixels(box), 0);
                ++checkedMajorLabels;
            }
        }
        QVERIFY(checkedMajorLabels >= 4);
    }
};

QTEST_MAIN(tst_CartesianChartAxis)
#include "tst_CartesianChartAxis.moc"
