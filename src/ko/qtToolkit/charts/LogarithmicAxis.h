// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_CHARTS_LOGARITHMICAXIS_H
#define KO_QTTOOLKIT_CHARTS_LOGARITHMICAXIS_H

#include <ko/qtToolkit/charts/QtChartsNamespace.h>
#include <ko/qtToolkit/qtToolkit_export.h>

#include <QColor>
#include <QtCharts/QLogValueAxis>

namespace ko::qtToolkit::charts {

class AxisNotifier;
class AxisTicker;
class LogarithmicAxisPrivate;

/**
 * \brief The logarithmic counterpart of LinearAxis: a logarithmic value axis whose ticks, minor
 *        ticks and labels come from an exchangeable ticker, with a label at every minor tick.
 *
 * Everything LinearAxis says of its ticker, minor labels and drawing holds for this axis too.
 * Its default ticker is a plain AxisTicker; set a LogarithmicAxisTicker for ticks at the powers
 * of a base.
 */
class KO_QTTOOLKIT_EXPORT LogarithmicAxis : public QtCharts::QLogValueAxis
{
    Q_OBJECT
    /// Whether labels are shown at the minor ticks; see minorLabelsVisible().
    Q_PROPERTY(bool minorLabelsVisible READ minorLabelsVisible WRITE setMinorLabelsVisible NOTIFY minorLabelsVisibleChanged)
    /// The colour of the minor labels; see minorLabelsColor().
    Q_PROPERTY(QColor minorLabelsColor READ minorLabelsColor WRITE setMinorLabelsColor NOTIFY minorLabelsColorChanged)

public:
    /// An axis without ticker of its own, showing its minor labels.
    explicit LogarithmicAxis(QObject *parent = nullptr);
    /// Does not delete a ticker set with setTicker().
    ~LogarithmicAxis() override;

    /// \copydoc LinearAxis::setTicker()
    void setTicker(AxisTicker *ticker);
    /// \copydoc LinearAxis::ticker()
    AxisTicker *ticker() const;
    /// \copydoc LinearAxis::minorLabelsVisible() const
    bool minorLabelsVisible() const;
    /// \copydoc LinearAxis::setMinorLabelsVisible()
    void setMinorLabelsVisible(bool visible);
    /// \copydoc LinearAxis::minorLabelsColor() const
    QColor minorLabelsColor() const;
    /// \copydoc LinearAxis::setMinorLabelsColor()
    void setMinorLabelsColor(const QColor &color);
    /// \copydoc LinearAxis::hideOverlappingLabels()
    bool hideOverlappingLabels() const;
    /// \copydoc LinearAxis::setHideOverlappingLabels()
    void setHideOverlappingLabels(bool hide);
    /// \copydoc LinearAxis::notifier()
    AxisNotifier *notifier() const;

Q_SIGNALS:
    /// \copydoc LinearAxis::minorLabelsVisibleChanged()
    void minorLabelsVisibleChanged(bool visible);
    /// \copydoc LinearAxis::minorLabelsColorChanged()
    void minorLabelsColorChanged(const QColor &color);

private:
    Q_DECLARE_PRIVATE(LogarithmicAxis)
};

} // namespace ko::qtToolkit::charts

#endif
