// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_CHARTS_LINEARAXIS_H
#define KO_QTTOOLKIT_CHARTS_LINEARAXIS_H

#include <ko/qtToolkit/charts/QtChartsNamespace.h>
#include <ko/qtToolkit/qtToolkit_export.h>

#include <QColor>
#include <QtCharts/QValueAxis>

namespace ko::qtToolkit::charts {

class AxisNotifier;
class AxisTicker;
class LinearAxisPrivate;

/**
 * \brief A value axis whose ticks, minor ticks and labels come from an exchangeable ticker, with
 *        a label at every minor tick.
 *
 * Add it to a QChart like any Qt Charts axis. At every layout pass its drawing element passes
 * a non-empty labelFormat() to the ticker, asks it for the major and minor ticks within
 * [min(), max()] and their labels, and draws a tick mark, grid line and label for each. The
 * minor labels have a visibility and a colour of their own. Axis shades are not drawn. On a
 * polar chart the axis is not drawn at all.
 *
 * Without a ticker of its own the axis uses a default-constructed AxisTicker.
 */
class KO_QTTOOLKIT_EXPORT LinearAxis : public QtCharts::QValueAxis
{
    Q_OBJECT
    /// Whether labels are shown at the minor ticks; see minorLabelsVisible().
    Q_PROPERTY(bool minorLabelsVisible READ minorLabelsVisible WRITE setMinorLabelsVisible NOTIFY minorLabelsVisibleChanged)
    /// The colour of the minor labels; see minorLabelsColor().
    Q_PROPERTY(QColor minorLabelsColor READ minorLabelsColor WRITE setMinorLabelsColor NOTIFY minorLabelsColorChanged)

public:
    /// An axis without ticker of its own, showing its minor labels.
    explicit LinearAxis(QObject *parent = nullptr);
    /// Does not delete a ticker set with setTicker().
    ~LinearAxis() override;

    /**
     * \brief Makes \a ticker compute the ticks and labels from the next layout pass on.
     *
     * The axis does not take ownership: \a ticker must outlive the axis, or be replaced before
     * it is deleted. A null \a ticker selects the axis's default ticker again. Does not
     * request a layout pass.
     */
    void setTicker(AxisTicker *ticker);
    /// The ticker in use; never null.
    AxisTicker *ticker() const;

    /// Whether labels are shown at the minor ticks; true by default.
    bool minorLabelsVisible() const;
    /// Shows or hides the minor labels; they stay hidden while the axis is hidden.
    void setMinorLabelsVisible(bool visible);

    /// The colour of the minor labels; by default that of Qt Charts' default brush.
    QColor minorLabelsColor() const;
    /// Gives the minor labels, shown ones included, the colour \a color.
    void setMinorLabelsColor(const QColor &color);

    /// Whether labels that would overlap other labels are hidden; false by default.
    bool hideOverlappingLabels() const;
    /**
     * \brief Hides, at every layout pass, each label that would overlap a label already kept.
     *
     * With \a hide true, labels are kept in this order: the major labels, then the minor labels,
     * each in tick order from the lower end of the range. A label whose box would intersect that
     * of a label kept before it is hidden; labels without text take no part. Tick marks and grid
     * lines stay. Labels the axis does not show (its labels or minor labels hidden) neither
     * hide nor are hidden. With \a hide false (the default) every label is shown, overlapping
     * or not, and the label width limit alone keeps them apart.
     *
     * Takes effect at once on a laid-out axis, and at every later layout pass. A change is
     * signalled by notifier().
     */
    void setHideOverlappingLabels(bool hide);

    /// The object that signals changes of hideOverlappingLabels(), made on first use and owned
    /// by the axis.
    AxisNotifier *notifier() const;

Q_SIGNALS:
    /// The minor labels were shown (\a visible true) or hidden; emitted only on change.
    void minorLabelsVisibleChanged(bool visible);
    /// The minor labels got the colour \a color; emitted only on change.
    void minorLabelsColorChanged(const QColor &color);

private:
    Q_DECLARE_PRIVATE(LinearAxis)
};

} // namespace ko::qtToolkit::charts

#endif
