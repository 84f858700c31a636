// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_CHARTS_CARTESIANCHARTAXIS_P_H
#define KO_QTTOOLKIT_CHARTS_CARTESIANCHARTAXIS_P_H

#include <ko/qtToolkit/charts/QtChartsCompat_p.h>
#include <ko/qtToolkit/qtToolkit_export.h>

#include <QColor>
#include <QFont>
#include <QHash>
#include <QStringList>
#include <QVector>
#include <QtCharts/QChart>
#include <QtCharts/private/chartaxiselement_p.h>

class QGraphicsItemGroup;
class QGraphicsLineItem;
class QGraphicsTextItem;

namespace ko::qtToolkit::charts {

/**
 * \brief The graphics element that draws a LinearAxis or LogarithmicAxis in a cartesian chart.
 *
 * Tick values and labels come from the axis's ticker. Every major tick gets a tick mark, a grid
 * line and a label; every minor tick a tick mark, a minor grid line and a minor label, drawn
 * in the axis's minor labels colour and shown only while the axis's minor labels are visible.
 * Lines are GraphicsLineItem, so one-pixel lines stay crisp. Axis shades are never drawn.
 *
 * After each layout pass the grid and label groups hold one item per major tick and the arrow
 * group one more (the axis line, always its first child); the minor arrow, minor grid and
 * minor label groups hold one item per minor tick. The i-th item of a group belongs to the
 * i-th tick value.
 *
 * One layout places the items and answers the chart layout's size queries for both
 * orientations, in terms of along the axis and across it; HorizontalAxis and VerticalAxis
 * choose the orientation.
 */
class KO_QTTOOLKIT_EXPORT CartesianChartAxis : public QtCharts::ChartAxisElement
{
    Q_OBJECT

public:
    ~CartesianChartAxis() override;

    /// The room the axis needs across and along it; \a constraint is ignored.
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;

    QRectF gridGeometry() const override;
    void setGeometry(const QRectF &axis, const QRectF &grid) override;
    bool KO_CHARTAXISELEMENT_IS_EMPTY override;

    /// Axis values of the major ticks of the last layout pass.
    const QVector<qreal> &majorTickValues() const { return m_majorTickValues; }
    /// Axis values of the minor ticks of the last layout pass.
    const QVector<qreal> &minorTickValues() const { return m_minorTickValues; }

    /// The minor label texts currently shown.
    QStringList minorLabels() const { return m_minorLabels; }
    /// Replaces the minor label texts shown from the next placement of the items on; as
    /// ChartAxisElement::setLabels() does for the major labels.
    void setMinorLabels(const QStringList &labels) { m_minorLabels = labels; }

    /// The group of the minor labels, one QGraphicsTextItem per minor tick.
    QGraphicsItemGroup *minorLabelGroup() const { return m_minorLabelGroup; }
    QList<QGraphicsItem *> minorLabelItems() const;

    /// The major labels followed by the minor labels, freshly computed by the axis's ticker.
    QStringList allLabels() const;

    // Pen and colour changes of the axis; shades only ever restyle an empty group.
    void handleShadesBrushChanged(const QBrush &brush) override;
    void handleShadesPenChanged(const QPen &pen) override;
    void handleArrowPenChanged(const QPen &pen) override;
    void handleGridPenChanged(const QPen &pen) override;
    void handleMinorArrowPenChanged(const QPen &pen) override;
    void handleMinorGridPenChanged(const QPen &pen) override;
    void handleMinorGridLineColorChanged(const QColor &color) override;
    void handleGridLineColorChanged(const QColor &color) override;

    // The base's item groups, for the layouts and for inspecting a laid-out axis.
    using ChartAxisElement::arrowGroup;
    using ChartAxisElement::gridGroup;
    using ChartAxisElement::labelGroup;
    using ChartAxisElement::minorArrowGroup;
    using ChartAxisElement::minorGridGroup;
    using ChartAxisElement::shadeGroup;
    using ChartAxisElement::titleItem;

public Q_SLOTS:
    void handleVisibleChanged(bool visible);
    void handleMinorLabelsVisibleChanged(bool visible);
    void handleMinorLabelsColorChanged(QColor color);

protected:
    /**
     * \brief The element of \a axis lying in \a orientation, with \a item as parent of all
     *        its items.
     *
     * Neither pointer is owned. The element must be deleted before \a item.
     */
    CartesianChartAxis(Qt::Orientation orientation, QtCharts::QAbstractAxis *axis, QGraphicsItem *item);

    QVector<qreal> calculateLayout() const override;
    void updateLayout(AxisLayoutArgument layout) override;

    /// Shows the labels of the last tick computation and places every item.
    void updateGeometry() override;

private:
    /// Places the grid line, tick mark and label of the tick at axis value \a value, the label
    /// showing \a text within \a labelLimit; without \a labelItem, only the lines.
    void layoutTick(QGraphicsLineItem *gridItem, QGraphicsLineItem *tickItem, QGraphicsTextItem *labelItem,
                    const QString &text, qreal value, const QSizeF &labelLimit);

    /// Shows \a text in \a labelItem within \a labelLimit and places it at \a position along the
    /// axis, beside the axis edge.
    void layoutLabel(QGraphicsTextItem *labelItem, const QString &text, qreal position, const QSizeF &labelLimit);

    /// Lays out the minor labels that the last pass skipped while they were hidden.
    void layoutMinorLabels();

    /// Hides the labels that overlap labels kept before them while the axis asks for it, and
    /// shows them all again once it no longer does.
    void updateLabelOverlaps();
    /// Keeps the shown labels with text, major before minor, each in tick order, as long as their
    /// boxes intersect none kept before; hides the others.
    void hideOverlappingLabels();

    /// Places the title across the axis from the plot; what room it leaves for the labels of
    /// \a availableSpace.
    qreal layoutTitle(qreal availableSpace);

    /// Where the tick at axis value \a value lies along the axis, in chart coordinates; always
    /// a finite position that whole-pixel rounding can take, however wide or degenerate the range.
    qreal tickPosition(qreal value) const;

    /// Shows \a text in \a label, truncated to \a maxWidth x \a maxHeight; an empty text is
    /// shown as nothing. Returns the bounding rectangle of the truncated text (empty for an
    /// empty text).
    QRectF setLabelText(QGraphicsTextItem *label, const QString &text, qreal maxWidth,
                        qreal maxHeight) const;

    /// Whether the axis or its grid has no extent, or its range is a single value.
    bool hasNothingToDraw() const;

    /// Whether the axis has a title and shows it.
    bool isTitleShown() const;

    /// The bounding rectangle of \a text in the axis's labels font, turned by \a angle, as
    /// ChartPresenter::textBoundingRect() gives it; remembered, since laying out a text is the
    /// costly part of every layout pass and most labels keep their texts from pass to pass.
    /// Each pass or size query calls dropStaleLabelTexts() first.
    QRectF labelBoundingRect(const QString &text, qreal angle) const;

    void updateTicks(QVector<qreal> &ticks, QVector<qreal> &subTicks, QStringList &labels,
                     QStringList &subLabels) const;
    void createItems(int count);
    void deleteItems(int count);
    void createMinorItems(int count);
    void deleteMinorItems(int count);
    QColor minorLabelsColor() const;
    bool minorLabelsVisible() const;
    /// Whether the minor labels are shown: the axis is visible and so are its minor labels.
    bool minorLabelsShown() const;
    /// Forgets the measured and truncated texts when the labels font changed, or when there are
    /// too many of them.
    void dropStaleLabelTexts() const;

    // A label text turned by an angle and truncated to a width and height, and what it shows.
    // Panning moves the tick count back and forth, and with it the room of each label, so a text
    // is remembered for every room it was truncated to, not only the last.
    struct TruncationKey
    {
        QString text;
        qreal angle;
        qreal maxWidth;
        qreal maxHeight;
        bool operator==(const TruncationKey &other) const
        {
            return text == other.text && angle == other.angle && maxWidth == other.maxWidth
                   && maxHeight == other.maxHeight;
        }
        friend size_t qHash(const TruncationKey &key, size_t seed = 0)
        {
            return ::qHash(key.text, seed) ^ ::qHash(key.maxWidth, seed) ^ ::qHash(key.maxHeight, seed + 1)
                   ^ ::qHash(key.angle, seed + 2);
        }
    };
    struct Truncation
    {
        QString shown;
        QRectF rect;
    };

    const Qt::Orientation m_orientation;
    QGraphicsItemGroup *m_minorLabelGroup;
    QStringList m_minorLabels;
    QRectF m_gridRect;
    // The room of each minor label in the last pass, and whether that pass laid them out.
    QSizeF m_minorLabelLimit;
    bool m_minorLabelsLaidOut = true;
    // Whether some label is hidden for overlapping another.
    bool m_overlappingLabelsHidden = false;
    // Filled by calculateLayout(), which the base declares const.
    mutable QVector<qreal> m_majorTickValues;
    mutable QVector<qreal> m_minorTickValues;
    mutable QStringList m_pendingLabels;
    mutable QStringList m_pendingMinorLabels;
    // Measured and truncated label texts, for the labels font they were measured in.
    mutable QHash<QPair<QString, qreal>, QRectF> m_labelRects;
    mutable QHash<TruncationKey, Truncation> m_truncations;
    mutable QFont m_labelTextsFont;
};

/**
 * \brief The drawing element of a LinearAxis or LogarithmicAxis \a axis in a chart of type
 *        \a chartType, with \a parent as parent of its items.
 *
 * A cartesian chart gets a HorizontalAxis or VerticalAxis by the axis's orientation; any other
 * chart an EmptyPolarAxis, which draws nothing. The caller owns the element.
 */
KO_QTTOOLKIT_EXPORT QtCharts::ChartAxisElement *createAxisElement(QtCharts::QAbstractAxis *axis,
                                                                  QtCharts::QChart::ChartType chartType,
                                                                  QGraphicsItem *parent);

} // namespace ko::qtToolkit::charts

#endif
