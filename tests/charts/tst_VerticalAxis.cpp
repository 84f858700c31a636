// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include "AxisLayoutChecks.h"
#include "ChartTestSupport.h"

#include <ko/qtToolkit/charts/ChartHelpers.h>
#include <ko/qtToolkit/charts/LogarithmicAxis.h>
#include <ko/qtToolkit/charts/VerticalAxis_p.h>

#include <TestSupport.h>

#include <QTest>
#include <QtCharts/private/chartpresenter_p.h>

#include <algorithm>
#include <cmath>

using namespace ko::qtToolkit::charts;
using namespace ko::qtToolkit::test;
using QtCharts::ChartPresenter;

namespace {

const QRectF leftAxisRect(0, 0, 60, 400);
const QRectF rightAxisRect(760, 0, 60, 400);
const QRectF gridRect(60, 20, 700, 360);

} // namespace

class tst_VerticalAxis : public QObject
{
    Q_OBJECT

private:
    const axisLayout::Frame frame{Qt::Vertical};
    TestChart *m_chart = nullptr;
    LogarithmicAxis *m_axis = nullptr;

    // The element of a 1..1000 axis at \a alignment, laid out by hand into \a axisRect and the
    // grid, as the chart layout would do it.
    VerticalAxis *layOut(Qt::Alignment alignment, const QRectF &axisRect)
    {
        m_axis = m_chart->addAxis(new LogarithmicAxis, alignment);
        m_axis->setRange(1.0, 1000.0);
        m_axis->setLabelsFont(fixedFont());
        m_chart->layout();
        auto *element = TestChart::element<VerticalAxis>(*m_axis);
        element->setGeometry(axisRect, gridRect);
        return element;
    }

private Q_SLOTS:
    void initTestCase()
    {
        useFixedFont();
    }

    void init()
    {
        m_chart = new TestChart;
    }

    void cleanup()
    {
        delete m_chart;
        m_chart = nullptr;
    }

    void leftAxis()
    {
        VerticalAxis *element = layOut(Qt::AlignLeft, leftAxisRect);
        QCOMPARE(lineAt(element->arrowGroup(), 0)->line(), QLineF(60, 20, 60, 380));
        const QVector<Tick> ticks = ticksOf(element);
        QCOMPARE(ticks.size(), 10);
        for (const Tick &tick : ticks) {
            const qreal y = gridRect.bottom() - std::log10(tick.value) / 3.0 * gridRect.height();
            QCOMPARE(tick.grid->line().y1(), y);
            QCOMPARE(tick.grid->line(), QLineF(gridRect.left(), y, gridRect.right(), y));
            QCOMPARE(tick.mark->line(), QLineF(56, y, 60, y));
            // A label box as wide as its text ends 6 px left of the axis edge, centred on the
            // tick to the nearest whole pixel.
            const QRectF box = tick.label->boundingRect();
            QCOMPARE(tick.label->pos().x(), std::round(54.0 - box.width()));
            QVERIFY(std::abs(tick.label->pos().y() + box.height() / 2.0 - y) <= 0.5);
            QCOMPARE(tick.label->pos().y(), std::round(tick.label->pos().y()));
        }
    }

    void rightAxis()
    {
        VerticalAxis *element = layOut(Qt::AlignRight, rightAxisRect);
        QCOMPARE(lineAt(element->arrowGroup(), 0)->line(), QLineF(760, 20, 760, 380));
        for (const Tick &tick : ticksOf(element)) {
            const qreal y = coordToPixel(*m_axis, tick.value);
            QCOMPARE(tick.mark->line(), QLineF(760, y, 764, y));
            QCOMPARE(tick.label->pos().x(), 766.0);
        }
    }

    void leftAxisTitle()
    {
        VerticalAxis *element = layOut(Qt::AlignLeft, leftAxisRect);
        m_axis->setTitleText(QStringLiteral("Level"));
        element->setGeometry(QRectF(0, 0, 80, 400), gridRect);
        QGraphicsTextItem *title = element->titleItem();
        QCOMPARE(title->toPlainText(), QStringLiteral("Level"));
        QCOMPARE(title->rotation(), 270.0);
        // Turned about its middle, it is centred on the grid vertically and its upright text
        // starts 2 px right of the axis's left edge.
        const QRectF box = title->sceneBoundingRect();
        QCOMPARE(box.center().y(), gridRect.center().y());
        QCOMPARE(box.left(), 2.0);
        QVERIFY(box.height() > box.width());
    }

    void rightAxisTitle()
    {
        VerticalAxis *element = layOut(Qt::AlignRight, rightAxisRect);
        m_axis->setTitleText(QStringLiteral("Level"));
        element->setGeometry(QRectF(760, 0, 80, 400), gridRect);
        const QRectF box = element->titleItem()->sceneBoundingRect();
        QCOMPARE(element->titleItem()->rotation(), 270.0);
        QCOMPARE(box.center().y(), gridRect.center().y());
        QCOMPARE(box.right(), 838.0);
    }

    void tallNarrowAxisKeepsLongLabels()
    {
        VerticalAxis *element = layOut(Qt::AlignLeft, leftAxisRect);
        m_axis->setLabelFormat(QStringLiteral("%.1f kilopascal"));
        // Far narrower than the labels, but tall: the height sets the labels' width limit.
        element->setGeometry(QRectF(0, 0, 30, 400), gridRect);
        for (int i = 0; i < element->labels().size(); ++i) {
            const QString shown = textAt(element->labelGroup(), i)->toPlainText();
            QCOMPARE(shown, element->labels().at(i));
            QVERIFY(ChartPresenter::textBoundingRect(fixedFont(), shown, 0.0).width() > 30.0);
        }
    }

    void labelWidthLimitIsAxisHeightLessPadding_data()
    {
        // Labels may be as wide as the axis is high, less the tick mark's 4 px.
        addLabelRoomRows();
    }

    void labelWidthLimitIsAxisHeightLessPadding()
    {
        QFETCH(QString, title);
        QFETCH(bool, titleVisible);
        QFETCH(qreal, spare);
        QFETCH(bool, truncated);

        // A label much wider than the axis; each of the three ticks has ample height for it.
        FixedLabelTicker ticker;
        ticker.text = QStringLiteral("level in kilopascal");
        const qreal labelWidth = ChartPresenter::textBoundingRect(fixedFont(), ticker.text, 0.0).width();
        VerticalAxis *element = layOut(Qt::AlignLeft, leftAxisRect);
        m_axis->setTicker(&ticker);
        m_axis->setTitleText(title);
        m_axis->setTitleVisible(titleVisible);
        element->setGeometry(QRectF(0, 0, 30, labelWidth + 4.0 + spare), gridRect);
        QCOMPARE(element->majorTickValues().size(), 3);
        for (int i = 0; i < element->majorTickValues().size(); ++i)
            QCOMPARE(textAt(element->labelGroup(), i)->toPlainText() != ticker.text, truncated);
        m_axis->setTicker(nullptr);
    }

    void labelHeightLimit()
    {
        VerticalAxis *element = layOut(Qt::AlignLeft, leftAxisRect);
        m_axis->ticker()->setTickCount(20);
        m_axis->setRange(1.0, 1001.0);
        // Twenty labels on 200 px: 200 / 20 - 8 = 2 px each, less than a line of text.
        element->setGeometry(QRectF(0, 0, 60, 200), gridRect);
        QVERIFY(element->labels().size() >= 20);
        for (int i = 0; i < element->labels().size(); ++i)
            QVERIFY(textAt(element->labelGroup(), i)->toPlainText() != element->labels().at(i));
    }

    void otherAlignmentLeavesItemsUnplaced()
    {
        // An element of this orientation asked to draw an axis aligned for the other.
        m_axis = m_chart->addAxis(new LogarithmicAxis, Qt::AlignBottom);
        m_axis->setRange(1.0, 1000.0);
        m_chart->layout();
        QGraphicsRectItem root;
        VerticalAxis element(m_axis, &root);
        element.setGeometry(leftAxisRect, gridRect);
        axisLayout::checkOtherAlignmentLeavesItemsUnplaced(element);
    }

    void minimumSizeHint_data() { axisLayout::sizeHintRows(); }
    void minimumSizeHint()
    {
        const VerticalAxis *element = layOut(Qt::AlignLeft, leftAxisRect);
        axisLayout::checkMinimumSizeHint(*element, *m_axis, frame);
    }
    void preferredSizeHint_data() { axisLayout::sizeHintRows(); }
    void preferredSizeHint()
    {
        const VerticalAxis *element = layOut(Qt::AlignLeft, leftAxisRect);
        axisLayout::checkPreferredSizeHint(*element, *m_axis, frame);
    }

    void preferredSizeHintWithoutLabels_data() { axisLayout::labelRows(); }
    void preferredSizeHintWithoutLabels()
    {
        EmptyTicker ticker;
        VerticalAxis *element = layOut(Qt::AlignLeft, leftAxisRect);
        m_axis->setTicker(&ticker);
        axisLayout::checkPreferredSizeHintWithoutLabels(*element, *m_axis, frame);
        m_axis->setTicker(nullptr);
    }

    void otherSizeHints() { axisLayout::checkOtherSizeHints(*layOut(Qt::AlignLeft, leftAxisRect)); }

    void chartReservesRoomForLabels()
    {
        m_axis = m_chart->addAxis(new LogarithmicAxis, Qt::AlignLeft);
        m_axis->setRange(1.0, 1000.0);
        m_chart->layout();
        auto *element = TestChart::element<VerticalAxis>(*m_axis);
        const QRectF plot = m_chart->chart()->plotArea();
        QCOMPARE(element->gridGeometry(), plot);
        // The chart layout gives the axis whole pixels.
        const QRectF axisRect = element->axisGeometry();
        QVERIFY(std::abs(axisRect.right() - plot.left()) < 1.0);
        for (const Tick &tick : ticksOf(element)) {
            const QRectF box = tick.label->sceneBoundingRect();
            QVERIFY(box.right() <= axisRect.right() - 6.0 + 0.5);
            QVERIFY(box.left() >= 0.0);
        }
    }
};

QTEST_MAIN(tst_VerticalAxis)
#include "tst_VerticalAxis.moc"
