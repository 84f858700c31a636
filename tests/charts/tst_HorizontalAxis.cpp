// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include "AxisLayoutChecks.h"
#include "ChartTestSupport.h"

#include <ko/qtToolkit/charts/ChartHelpers.h>
#include <ko/qtToolkit/charts/HorizontalAxis_p.h>
#include <ko/qtToolkit/charts/LinearAxis.h>

#include <TestSupport.h>

#include <QGraphicsItemGroup>
#include <QGraphicsTextItem>
#include <QTest>
#include <QtCharts/private/chartpresenter_p.h>

#include <algorithm>
#include <cmath>

using namespace ko::qtToolkit::charts;
using namespace ko::qtToolkit::test;
using QtCharts::ChartPresenter;

namespace {

const QRectF bottomAxisRect(0, 300, 800, 40);
const QRectF topAxisRect(0, 20, 800, 60);
const QRectF gridRect(60, 80, 700, 220);

// Labels every tick except the one at 30.
class GapTicker : public AxisTicker
{
public:
    QString tickLabel(double value) const override { return value == 30.0 ? QString() : AxisTicker::tickLabel(value); }
};

} // namespace

class tst_HorizontalAxis : public QObject
{
    Q_OBJECT

private:
    const axisLayout::Frame frame{Qt::Horizontal};
    TestChart *m_chart = nullptr;
    LinearAxis *m_axis = nullptr;

    // The element of a 0..100 axis at \a alignment, laid out by hand into \a axisRect and the
    // grid, as the chart layout would do it.
    HorizontalAxis *layOut(Qt::Alignment alignment, const QRectF &axisRect)
    {
        m_axis = m_chart->addAxis(new LinearAxis, alignment);
        m_axis->setRange(0.0, 100.0);
        m_axis->setLabelsFont(ko::qtToolkit::test::fixedFont());
        m_chart->layout();
        auto *element = TestChart::element<HorizontalAxis>(*m_axis);
        element->setGeometry(axisRect, gridRect);
        return element;
    }

private Q_SLOTS:
    void initTestCase()
    {
        ko::qtToolkit::test::useFixedFont();
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

    void bottomAxis()
    {
        HorizontalAxis *element = layOut(Qt::AlignBottom, bottomAxisRect);
        QCOMPARE(lineAt(element->arrowGroup(), 0)->line(), QLineF(60, 300, 760, 300));
        const QVector<Tick> ticks = ticksOf(element);
        QCOMPARE(ticks.size(), 11);
        for (const Tick &tick : ticks) {
            const qreal x = gridRect.left() + tick.value / 100.0 * gridRect.width();
            QCOMPARE(tick.grid->line(), QLineF(x, gridRect.top(), x, gridRect.bottom()));
            QCOMPARE(tick.mark->line(), QLineF(x, 300, x, 304));
            // The label box, as wide and high as its text, starts 4 px below the axis top and
            // is centred on the tick to the nearest whole pixel.
            const QRectF box = tick.label->boundingRect();
            QCOMPARE(tick.label->pos().y(), 304.0);
            QVERIFY(std::abs(tick.label->pos().x() + box.width() / 2.0 - x) <= 0.5);
            QCOMPARE(tick.label->pos().x(), std::round(tick.label->pos().x()));
        }
    }

    void topAxis()
    {
        HorizontalAxis *element = layOut(Qt::AlignTop, topAxisRect);
        QCOMPARE(lineAt(element->arrowGroup(), 0)->line(), QLineF(60, 80, 760, 80));
        for (const Tick &tick : ticksOf(element)) {
            const qreal x = coordToPixel(*m_axis, tick.value);
            QCOMPARE(tick.mark->line(), QLineF(x, 80, x, 76));
            // The label's bottom edge ends 4 px above the axis bottom.
            const QRectF box = tick.label->boundingRect();
            QCOMPARE(tick.label->pos().y(), std::round(80.0 - box.height() - 4.0));
            QVERIFY(std::abs(tick.label->pos().x() + box.width() / 2.0 - x) <= 0.5);
        }
    }

    void topAxisTitle()
    {
        HorizontalAxis *element = layOut(Qt::AlignTop, topAxisRect);
        m_axis->setTitleText(QStringLiteral("Frequency"));
        m_axis->setTitleFont(ko::qtToolkit::test::fixedFont(14));
        element->setGeometry(topAxisRect, gridRect);
        QGraphicsTextItem *title = element->titleItem();
        QCOMPARE(title->toPlainText(), QStringLiteral("Frequency"));
        QCOMPARE(title->pos().y(), 22.0);
        QCOMPARE(title->pos().x() + title->boundingRect().center().x(), gridRect.center().x());
    }

    void bottomAxisTitle()
    {
        HorizontalAxis *element = layOut(Qt::AlignBottom, bottomAxisRect);
        m_axis->setTitleText(QStringLiteral("Time"));
        element->setGeometry(QRectF(0, 300, 800, 60), gridRect);
        QGraphicsTextItem *title = element->titleItem();
        QCOMPARE(title->pos().y() + title->boundingRect().height(), 358.0);
        QCOMPARE(title->pos().x() + title->boundingRect().center().x(), gridRect.center().x());
    }

    void labelHeightLimit_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<bool>("titleVisible");
        QTest::addColumn<bool>("truncated");
        // Room for labels: 26 px without a title (30 - 4); with one, less the title and its
        // paddings, which leaves less than a line.
        QTest::newRow("no title") << "" << true << false;
        QTest::newRow("hidden title") << "Pressure" << false << false;
        QTest::newRow("title") << "Pressure" << true << true;
    }

    void labelHeightLimit()
    {
        QFETCH(QString, title);
        QFETCH(bool, titleVisible);
        QFETCH(bool, truncated);

        HorizontalAxis *element = layOut(Qt::AlignBottom, bottomAxisRect);
        m_axis->setTitleText(title);
        m_axis->setTitleFont(ko::qtToolkit::test::fixedFont(14));
        m_axis->setTitleVisible(titleVisible);
        element->setGeometry(QRectF(0, 300, 800, 30), gridRect);
        const QString shown = textAt(element->labelGroup(), 1)->toPlainText();
        QCOMPARE(shown != QStringLiteral("30.00"), truncated);
    }

    void labelHeightLimitIsAxisHeightLessPadding_data()
    {
        // Labels may be as high as the axis less the tick mark's 4 px, and not a fraction more.
        addLabelRoomRows();
    }

    void labelHeightLimitIsAxisHeightLessPadding()
    {
        QFETCH(QString, title);
        QFETCH(bool, titleVisible);
        QFETCH(qreal, spare);
        QFETCH(bool, truncated);

        HorizontalAxis *element = layOut(Qt::AlignBottom, bottomAxisRect);
        m_axis->setTitleText(title);
        m_axis->setTitleVisible(titleVisible);
        const qreal labelHeight =
            ChartPresenter::textBoundingRect(ko::qtToolkit::test::fixedFont(), QStringLiteral("30.00"), 0.0).height();
        element->setGeometry(QRectF(0, 300, 800, labelHeight + 4.0 + spare), gridRect);
        QCOMPARE(element->labels().at(1), QStringLiteral("30.00"));
        QCOMPARE(textAt(element->labelGroup(), 1)->toPlainText() != QStringLiteral("30.00"), truncated);
    }

    void emptyLabelIsNotTruncated()
    {
        GapTicker ticker;
        HorizontalAxis *element = layOut(Qt::AlignBottom, bottomAxisRect);
        m_axis->setTicker(&ticker);
        element->setGeometry(bottomAxisRect, gridRect);
        QCOMPARE(element->labels().at(1), QString());
        QGraphicsTextItem *label = textAt(element->labelGroup(), 1);
        QCOMPARE(label->toPlainText(), QString());
        // Nothing was truncated, so the whole (empty) box counts as the height difference.
        QCOMPARE(label->pos().y(), std::round(304.0 - label->boundingRect().height() / 2.0));
        m_axis->setTicker(nullptr);
    }

    void labelWidthLimit_data()
    {
        QTest::addColumn<int>("tickCount");
        QTest::addColumn<qreal>("maxWidth");
        QTest::addColumn<bool>("truncated");
        // Each label may take 500 px / tick count - 8 px.
        QTest::newRow("ten ticks") << 9 << 42.0 << true;
        QTest::newRow("five ticks") << 4 << 92.0 << false;
    }

    void labelWidthLimit()
    {
        QFETCH(int, tickCount);
        QFETCH(qreal, maxWidth);
        QFETCH(bool, truncated);

        HorizontalAxis *element = layOut(Qt::AlignBottom, bottomAxisRect);
        m_axis->setRange(0.0, tickCount + 0.001);
        m_axis->ticker()->setTickCount(tickCount);
        m_axis->setLabelFormat(QStringLiteral("%.1f mm/s"));
        element->setGeometry(QRectF(0, 300, 500, 40), gridRect);
        QCOMPARE(element->majorTickValues().size(), tickCount + 1);

        const QFont font = ko::qtToolkit::test::fixedFont();
        for (int i = 0; i < element->labels().size(); ++i) {
            const QString full = element->labels().at(i);
            const QString shown = textAt(element->labelGroup(), i)->toPlainText();
            const qreal fullWidth = ChartPresenter::textBoundingRect(font, full, 0.0).width();
            QCOMPARE(shown == full, fullWidth <= maxWidth);
            QCOMPARE(shown != full, truncated);
            // Shortened to exactly that width (the height limit is the 40 px axis less 4 px).
            QRectF truncatedRect;
            QCOMPARE(shown, ChartPresenter::truncatedText(font, full, 0.0, maxWidth, 36.0, truncatedRect));
            if (shown != full)
                QVERIFY(shown.endsWith(QStringLiteral("...")));
        }
    }

    // Panning moves a label's room back and forth; each layout shows the text truncated for the
    // room it has then, however often the same text was truncated for another room before.
    void labelRoomChangingBackAndForth_data()
    {
        QTest::addColumn<QVector<qreal>>("axisWidths");
        QTest::newRow("narrow, wide, narrow") << QVector<qreal>{500.0, 900.0, 500.0, 900.0};
        QTest::newRow("shrinking then growing") << QVector<qreal>{900.0, 500.0, 300.0, 500.0, 900.0};
        QTest::newRow("same room twice") << QVector<qreal>{300.0, 300.0, 700.0, 300.0};
    }

    void labelRoomChangingBackAndForth()
    {
        QFETCH(QVector<qreal>, axisWidths);
        HorizontalAxis *element = layOut(Qt::AlignBottom, bottomAxisRect);
        m_axis->setRange(0.0, 9.001);
        m_axis->ticker()->setTickCount(9);
        m_axis->setLabelFormat(QStringLiteral("%.1f mm/s"));
        const QFont font = ko::qtToolkit::test::fixedFont();
        for (const qreal width : axisWidths) {
            element->setGeometry(QRectF(0, 300, width, 40), gridRect);
            const qreal maxWidth = width / 10.0 - 8.0;
            for (int i = 0; i < element->labels().size(); ++i) {
                QRectF expectedRect;
                const QString expected = ChartPresenter::truncatedText(font, element->labels().at(i), 0.0, maxWidth,
                                                                       36.0, expectedRect);
                QGraphicsTextItem *label = textAt(element->labelGroup(), i);
                QCOMPARE(label->toPlainText(), expected);
                QCOMPARE(label->boundingRect().width(),
                         ChartPresenter::textBoundingRect(font, expected, 0.0).width());
            }
        }
    }

    // Measured texts are remembered per labels font: after a font change every label and the
    // size hint are measured in the new font.
    void labelsFontChangeMeasuresAgain_data()
    {
        QTest::addColumn<int>("pointSize");
        QTest::newRow("larger") << 20;
        QTest::newRow("smaller") << 7;
    }

    void labelsFontChangeMeasuresAgain()
    {
        QFETCH(int, pointSize);
        HorizontalAxis *element = layOut(Qt::AlignBottom, bottomAxisRect);
        const QSizeF before = element->sizeHint(Qt::PreferredSize);
        const QFont font = ko::qtToolkit::test::fixedFont(pointSize);
        m_axis->setLabelsFont(font);
        element->setGeometry(bottomAxisRect, gridRect);
        const QSizeF after = element->sizeHint(Qt::PreferredSize);
        QVERIFY(after.height() != before.height());
        QCOMPARE(after.height() - before.height(),
                 ChartPresenter::textBoundingRect(font, QStringLiteral("100.00"), 0.0).height()
                     - ChartPresenter::textBoundingRect(ko::qtToolkit::test::fixedFont(), QStringLiteral("100.00"), 0.0).height());
        for (int i = 0; i < element->labels().size(); ++i) {
            QGraphicsTextItem *label = textAt(element->labelGroup(), i);
            QCOMPARE(label->textWidth(), ChartPresenter::textBoundingRect(font, label->toPlainText(), 0.0).width());
        }
    }

    void labelWidthLimitIsExact_data()
    {
        QTest::addColumn<bool>("tooWide");
        QTest::newRow("as wide as the limit allows") << false;
        QTest::newRow("one narrow letter wider") << true;
    }

    void labelWidthLimitIsExact()
    {
        QFETCH(bool, tooWide);

        // Ten ticks on a 500 px wide axis: each label may be 500 / 10 - 8 = 42 px wide. Narrow
        // letters find the widest text within that to a few pixels.
        const QFont font = ko::qtToolkit::test::fixedFont();
        const auto width = [&font](const QString &text) {
            return ChartPresenter::textBoundingRect(font, text, 0.0).width();
        };
        QString fitting;
        while (width(fitting + QLatin1Char('l')) <= 42.0)
            fitting += QLatin1Char('l');
        QVERIFY(width(fitting + QLatin1Char('l')) < 46.0);

        FixedLabelTicker ticker;
        ticker.text = tooWide ? fitting + QLatin1Char('l') : fitting;
        ticker.setTickCount(9);
        HorizontalAxis *element = layOut(Qt::AlignBottom, bottomAxisRect);
        m_axis->setTicker(&ticker);
        m_axis->setRange(0.0, 9.001);
        element->setGeometry(QRectF(0, 300, 500, 40), gridRect);
        QCOMPARE(element->majorTickValues().size(), 10);
        for (int i = 0; i < element->majorTickValues().size(); ++i)
            QCOMPARE(textAt(element->labelGroup(), i)->toPlainText() != ticker.text, tooWide);
        m_axis->setTicker(nullptr);
    }

    void otherAlignmentLeavesItemsUnplaced()
    {
        // An element of this orientation asked to draw an axis aligned for the other.
        m_axis = m_chart->addAxis(new LinearAxis, Qt::AlignLeft);
        m_axis->setRange(0.0, 100.0);
        m_chart->layout();
        QGraphicsRectItem root;
        HorizontalAxis element(m_axis, &root);
        element.setGeometry(bottomAxisRect, gridRect);
        axisLayout::checkOtherAlignmentLeavesItemsUnplaced(element);
    }

    void minimumSizeHint_data() { axisLayout::sizeHintRows(); }
    void minimumSizeHint()
    {
        const HorizontalAxis *element = layOut(Qt::AlignBottom, bottomAxisRect);
        axisLayout::checkMinimumSizeHint(*element, *m_axis, frame);
    }
    void preferredSizeHint_data() { axisLayout::sizeHintRows(); }
    void preferredSizeHint()
    {
        const HorizontalAxis *element = layOut(Qt::AlignBottom, bottomAxisRect);
        axisLayout::checkPreferredSizeHint(*element, *m_axis, frame);
    }

    void preferredSizeHintWithoutLabels_data() { axisLayout::labelRows(); }
    void preferredSizeHintWithoutLabels()
    {
        EmptyTicker ticker;
        HorizontalAxis *element = layOut(Qt::AlignBottom, bottomAxisRect);
        m_axis->setTicker(&ticker);
        axisLayout::checkPreferredSizeHintWithoutLabels(*element, *m_axis, frame);
        m_axis->setTicker(nullptr);
    }

    void otherSizeHints() { axisLayout::checkOtherSizeHints(*layOut(Qt::AlignBottom, bottomAxisRect)); }

    void chartReservesRoomForLabels()
    {
        // In a real layout pass the labels of a bottom axis end inside the chart.
        m_axis = m_chart->addAxis(new LinearAxis, Qt::AlignBottom);
        m_axis->setRange(0.0, 100.0);
        m_chart->layout();
        auto *element = TestChart::element<HorizontalAxis>(*m_axis);
        const QRectF plot = m_chart->chart()->plotArea();
        QCOMPARE(element->gridGeometry(), plot);
        // The chart layout gives the axis whole pixels.
        const QRectF axisRect = element->axisGeometry();
        QVERIFY(std::abs(axisRect.top() - plot.bottom()) < 1.0);
        for (const Tick &tick : ticksOf(element)) {
            const QRectF box = tick.label->sceneBoundingRect();
            QVERIFY(box.top() >= axisRect.top() + 4.0 - 0.5);
            QVERIFY(box.bottom() <= m_chart->chart()->size().height());
            QVERIFY(box.left() >= 0.0 && box.right() <= m_chart->chart()->size().width());
        }
    }
};

QTEST_MAIN(tst_HorizontalAxis)
#include "tst_HorizontalAxis.moc"
