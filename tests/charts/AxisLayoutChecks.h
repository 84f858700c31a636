// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_TESTS_AXISLAYOUTCHECKS_H
#define KO_QTTOOLKIT_TESTS_AXISLAYOUTCHECKS_H

// Checks that HorizontalAxis and VerticalAxis share: one layout, read along the axis and across
// it. Each layout's test adds what only its orientation has (exact placements, the title).

#include "ChartTestSupport.h"

#include <ko/qtToolkit/charts/CartesianChartAxis_p.h>

#include <TestSupport.h>

#include <QTest>
#include <QtCharts/QAbstractAxis>
#include <QtCharts/private/chartpresenter_p.h>

#include <algorithm>

namespace ko::qtToolkit::test::axisLayout {

// Along the axis and across it: x and y for a horizontal axis, y and x for a vertical one.
struct Frame
{
    Qt::Orientation orientation;

    bool horizontal() const { return orientation == Qt::Horizontal; }
    qreal length(const QSizeF &size) const { return horizontal() ? size.width() : size.height(); }
    qreal thickness(const QSizeF &size) const { return horizontal() ? size.height() : size.width(); }
    QSizeF size(qreal along, qreal across) const { return horizontal() ? QSizeF(along, across) : QSizeF(across, along); }
    // What the preferred size adds across the axis: 1 px horizontally, 2 px vertically.
    qreal preferredMargin() const { return horizontal() ? 1.0 : 2.0; }
};

inline QRectF textRect(const QFont &font, const QString &text, qreal angle)
{
    return QtCharts::ChartPresenter::textBoundingRect(font, text, angle);
}

// The title's part of a size hint, across the axis: its height and 2 px above and below it.
inline qreal titleThickness(const QtCharts::QAbstractAxis &axis, const QString &text)
{
    if (axis.titleText().isEmpty() || !axis.isTitleVisible())
        return 0.0;
    return textRect(axis.titleFont(), text, 0.0).height() + 4.0;
}

// Rows: whether there is a title, whether it is visible, and the labels' angle.
inline void sizeHintRows()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("titleVisible");
    QTest::addColumn<int>("angle");
    QTest::newRow("no title") << "" << true << 0;
    QTest::newRow("title") << "Level" << true << 0;
    QTest::newRow("hidden title") << "Level" << false << 0;
    QTest::newRow("labels turned by 45") << "" << true << 45;
    QTest::newRow("labels turned by 90, title") << "Level" << true << 90;
}

inline void applySizeHintRow(QtCharts::QAbstractAxis &axis)
{
    QFETCH(QString, title);
    QFETCH(bool, titleVisible);
    QFETCH(int, angle);
    axis.setTitleText(title);
    axis.setTitleVisible(titleVisible);
    axis.setLabelsAngle(angle);
}

// Half the turned "..." along the axis; across it, the turned "...", the tick mark, the
// title's part and 1 px.
inline void checkMinimumSizeHint(const charts::CartesianChartAxis &element, QtCharts::QAbstractAxis &axis,
                                 const Frame &frame)
{
    applySizeHintRow(axis);
    const QRectF dots = textRect(fixedFont(), QStringLiteral("..."), axis.labelsAngle());
    const QSizeF expected = frame.size(frame.length(dots.size()) / 2.0, frame.thickness(dots.size()) + 4.0
                                           + titleThickness(axis, QStringLiteral("...")) + 1.0);
    QCOMPARE(element.sizeHint(Qt::MinimumSize), expected);
}

// Along the axis, half the longer of the first and last labels (major, then minor); across it,
// the thickest label, the tick mark, the title's part and the margin of the orientation.
inline void checkPreferredSizeHint(const charts::CartesianChartAxis &element, QtCharts::QAbstractAxis &axis,
                                   const Frame &frame)
{
    applySizeHintRow(axis);
    const QStringList labels = element.allLabels();
    QVERIFY(labels.size() > 2);
    const qreal angle = axis.labelsAngle();
    qreal thickest = 0.0;
    for (const QString &label : labels)
        thickest = std::max(thickest, frame.thickness(textRect(fixedFont(), label, angle).size()));
    const qreal first = frame.length(textRect(fixedFont(), labels.constFirst(), angle).size());
    const qreal last = frame.length(textRect(fixedFont(), labels.constLast(), angle).size());
    const QSizeF expected = frame.size(std::max(first, last) / 2.0, thickest + 4.0
                                           + titleThickness(axis, axis.titleText()) + frame.preferredMargin());
    QCOMPARE(element.sizeHint(Qt::PreferredSize), expected);
}

inline void labelRows()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("no title") << "";
    QTest::newRow("title") << "A rather long title";
}

// Without labels, half the title's width along the axis (none without a title), and across it
// the tick mark, the title's part and the margin.
inline void checkPreferredSizeHintWithoutLabels(const charts::CartesianChartAxis &element,
                                                QtCharts::QAbstractAxis &axis, const Frame &frame)
{
    QFETCH(QString, title);
    axis.setTitleText(title);
    QVERIFY(element.allLabels().isEmpty());
    const qreal titleLength = title.isEmpty() ? 0.0 : textRect(axis.titleFont(), title, 0.0).width();
    const QSizeF expected =
        frame.size(titleLength / 2.0, 4.0 + titleThickness(axis, title) + frame.preferredMargin());
    QCOMPARE(element.sizeHint(Qt::PreferredSize), expected);
}

inline void checkOtherSizeHints(const charts::CartesianChartAxis &element)
{
    QCOMPARE(element.sizeHint(Qt::MaximumSize), QSizeF(-1, -1));
    QCOMPARE(element.sizeHint(Qt::MinimumDescent), QSizeF(-1, -1));
}

// An element of one orientation asked to draw an axis aligned for the other: the labels get
// their texts but stay at (0, 0), and neither axis line nor tick marks are placed.
inline void checkOtherAlignmentLeavesItemsUnplaced(charts::CartesianChartAxis &element)
{
    QCOMPARE(lineAt(element.arrowGroup(), 0)->line(), QLineF());
    const QVector<Tick> ticks = ticksOf(&element);
    QVERIFY(!ticks.isEmpty());
    for (const Tick &tick : ticks) {
        QCOMPARE(tick.mark->line(), QLineF());
        QCOMPARE(tick.label->pos(), QPointF(0, 0));
        QVERIFY(!tick.label->toPlainText().isEmpty());
    }
}

} // namespace ko::qtToolkit::test::axisLayout

#endif
