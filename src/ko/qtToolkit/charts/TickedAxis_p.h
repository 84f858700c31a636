// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_CHARTS_TICKEDAXIS_P_H
#define KO_QTTOOLKIT_CHARTS_TICKEDAXIS_P_H

#include <ko/qtToolkit/charts/AxisNotifier.h>
#include <ko/qtToolkit/charts/AxisTicker.h>
#include <ko/qtToolkit/charts/CartesianChartAxis_p.h>

#include <QBrush>
#include <QtCharts/private/qabstractaxis_p.h>
#include <QtCharts/private/qchart_p.h>

namespace ko::qtToolkit::charts {

/**
 * \brief What the library's own axes keep beside Qt Charts' state: the ticker, the minor
 *        labels' settings and whether overlapping labels are hidden, with the range and label
 *        format the ticker works on.
 */
class KO_QTTOOLKIT_EXPORT TickedAxisState
{
public:
    virtual ~TickedAxisState();

    virtual double minimum() const = 0;
    virtual double maximum() const = 0;
    virtual QString labelFormat() const = 0;

    void setTicker(AxisTicker *ticker) { currentTicker = ticker ? ticker : &defaultTicker; }

    /// Stores \a visible; whether it changed.
    bool setMinorLabelsVisible(bool visible)
    {
        if (minorLabelsVisible == visible)
            return false;
        minorLabelsVisible = visible;
        return true;
    }

    /// Stores \a color; whether it changed.
    bool setMinorLabelsColor(const QColor &color)
    {
        if (minorLabelsBrush.color() == color)
            return false;
        minorLabelsBrush.setColor(color);
        return true;
    }

    /// The axis's notifier, made on first use as a child of \a axis.
    AxisNotifier *notifier(QObject *axis);

    /// Stores \a hide and signals a change through the notifier, if one was made.
    void setHideOverlappingLabels(bool hide);

    AxisTicker defaultTicker;
    AxisTicker *currentTicker = &defaultTicker;
    bool minorLabelsVisible = true;
    QBrush minorLabelsBrush = QtCharts::QChartPrivate::defaultBrush();
    bool hideOverlappingLabels = false;
    AxisNotifier *axisNotifier = nullptr;
};

/**
 * \brief The private part of LinearAxis and LogarithmicAxis: Qt Charts' private part
 *        \a QtAxisPrivate of their base class \a QtAxis, the TickedAxisState, and the library's
 *        own drawing element in place of Qt's.
 */
template<typename QtAxisPrivate, typename QtAxis>
class TickedAxisPrivate : public QtAxisPrivate, public TickedAxisState
{
public:
    using QtAxisPrivate::QtAxisPrivate;

    void initializeGraphics(QGraphicsItem *parent) override
    {
        this->m_item.reset(createAxisElement(this->q_ptr, this->m_chart->chartType(), parent));
        QtCharts::QAbstractAxisPrivate::initializeGraphics(parent);
    }

    double minimum() const override { return axis()->min(); }
    double maximum() const override { return axis()->max(); }
    QString labelFormat() const override { return axis()->labelFormat(); }

private:
    const QtAxis *axis() const { return static_cast<const QtAxis *>(this->q_ptr); }
};

/// The ticker and minor-label state of \a axis when it is one of the library's own axes (a
/// LinearAxis or a LogarithmicAxis, FrequencyAxis included); null for any other axis.
KO_QTTOOLKIT_EXPORT TickedAxisState *tickedAxisState(const QtCharts::QAbstractAxis &axis);

} // namespace ko::qtToolkit::charts

#endif
