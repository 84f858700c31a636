// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_TESTS_CHARTTESTSUPPORT_H
#define KO_QTTOOLKIT_TESTS_CHARTTESTSUPPORT_H

#include <ko/qtToolkit/charts/AxisTicker.h>
#include <ko/qtToolkit/charts/CartesianChartAxis_p.h>
#include <ko/qtToolkit/charts/ChartHelpers_p.h>

#include <QApplication>
#include <QGraphicsItemGroup>
#include <QGraphicsLineItem>
#include <QGraphicsScene>
#include <QGraphicsTextItem>
#include <QImage>
#include <QPainter>
#include <QTest>
#include <QtCharts/QAbstractAxis>
#include <QtCharts/QChart>
#include <QtCharts/QLineSeries>

namespace ko::qtToolkit::test {

/// A chart of a known size in a scene of its own, without legend, margins or animations, laid
/// out and rendered on request.
class TestChart
{
public:
    explicit TestChart(const QSizeF &size = QSizeF(800, 600), QtCharts::QChart *chart = new QtCharts::QChart)
        : m_chart(chart)
        , m_size(size)
    {
        m_scene.addItem(m_chart);
        m_chart->legend()->hide();
        m_chart->setAnimationOptions(QtCharts::QChart::NoAnimation);
        m_chart->setMargins(QMargins(10, 10, 10, 10));
        m_chart->resize(size);
    }

    QtCharts::QChart *chart() const { return m_chart; }

    /// Adds \a axis (taking ownership) at \a alignment.
    template<typename Axis>
    Axis *addAxis(Axis *axis, Qt::Alignment alignment)
    {
        m_chart->addAxis(axis, alignment);
        return axis;
    }

    /// A line series through \a points, attached to \a x and \a y.
    QtCharts::QLineSeries *addSeries(const QVector<QPointF> &points, QtCharts::QAbstractAxis *x,
                                     QtCharts::QAbstractAxis *y)
    {
        auto *series = new QtCharts::QLineSeries;
        series->replace(points);
        m_chart->addSeries(series);
        series->attachAxis(x);
        series->attachAxis(y);
        return series;
    }

    /// Runs the chart's pending layout passes.
    void layout()
    {
        QApplication::processEvents();
    }

    /// The drawing element of \a axis, as the class that drew it.
    template<typename Element>
    static Element *element(const QtCharts::QAbstractAxis &axis)
    {
        return dynamic_cast<Element *>(charts::axisElement(axis));
    }

    /// The chart rendered on white, one image pixel per scene unit.
    QImage render()
    {
        layout();
        QImage image(m_size.toSize(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        m_scene.render(&painter, QRectF(QPointF(), m_size), QRectF(QPointF(), m_size));
        return image;
    }

private:
    QGraphicsScene m_scene;
    QtCharts::QChart *m_chart;
    QSizeF m_size;
};

inline QGraphicsLineItem *lineAt(QGraphicsItemGroup *group, int index)
{
    return static_cast<QGraphicsLineItem *>(group->childItems().at(index));
}

inline QGraphicsTextItem *textAt(QGraphicsItemGroup *group, int index)
{
    return static_cast<QGraphicsTextItem *>(group->childItems().at(index));
}

/// One tick of an axis element with its grid line, tick mark and label.
struct Tick
{
    qreal value;
    QGraphicsLineItem *grid;
    QGraphicsLineItem *mark;
    QGraphicsTextItem *label;
};

/// The major ticks of \a element, then its minor ticks.
inline QVector<Tick> ticksOf(charts::CartesianChartAxis *element)
{
    QVector<Tick> ticks;
    for (int i = 0; i < element->majorTickValues().size(); ++i) {
        // The axis line comes first in the arrow group.
        ticks.append({element->majorTickValues().at(i), lineAt(element->gridGroup(), i),
                      lineAt(element->arrowGroup(), i + 1), textAt(element->labelGroup(), i)});
    }
    for (int j = 0; j < element->minorTickValues().size(); ++j) {
        ticks.append({element->minorTickValues().at(j), lineAt(element->minorGridGroup(), j),
                      lineAt(element->minorArrowGroup(), j),
                      static_cast<QGraphicsTextItem *>(element->minorLabelItems().at(j))});
    }
    return ticks;
}

/// A ticker that finds no tick at all.
class EmptyTicker : public charts::AxisTicker
{
public:
    QVector<double> createTicks(double, double, double) const override { return {}; }
};

/// Rows for a label limit that is the axis's whole room across less the 4 px tick mark: a label
/// that just fits, and one half a pixel too large, without a title and with a hidden one (neither
/// takes room). Columns: title, titleVisible, spare (px added to the exact room), truncated.
inline void addLabelRoomRows()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("titleVisible");
    QTest::addColumn<qreal>("spare");
    QTest::addColumn<bool>("truncated");
    QTest::newRow("no title, exact fit") << QString() << true << 0.0 << false;
    QTest::newRow("no title, half a pixel short") << QString() << true << -0.5 << true;
    QTest::newRow("hidden title, exact fit") << QStringLiteral("Level") << false << 0.0 << false;
    QTest::newRow("hidden title, half a pixel short") << QStringLiteral("Level") << false << -0.5 << true;
}

/// A ticker that gives every tick the same label.
class FixedLabelTicker : public charts::AxisTicker
{
public:
    QString text;
    QString tickLabel(double) const override { return text; }
};

} // namespace ko::qtToolkit::test

#endif
