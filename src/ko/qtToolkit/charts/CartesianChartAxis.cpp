// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/charts/CartesianChartAxis_p.h>

#include <ko/qtToolkit/charts/AxisTicker.h>
#include <ko/qtToolkit/charts/ChartHelpers.h>
#include <ko/qtToolkit/charts/ChartHelpers_p.h>
#include <ko/qtToolkit/charts/EmptyPolarAxis_p.h>
#include <ko/qtToolkit/charts/GraphicsLineItem_p.h>
#include <ko/qtToolkit/charts/HorizontalAxis_p.h>
#include <ko/qtToolkit/charts/TickedAxis_p.h>
#include <ko/qtToolkit/charts/VerticalAxis_p.h>

#include <QGraphicsItemGroup>
#include <QGraphicsTextItem>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>
#include <QtCharts/private/abstractchartlayout_p.h>
#include <QtCharts/private/chartpresenter_p.h>

#include <algorithm>

namespace ko::qtToolkit::charts {

namespace {

constexpr qreal labelDocumentMargin = 0.5;
constexpr qreal minorLabelZValue = 3.0;
// Where a label item keeps the text it shows, to skip setting it again.
constexpr int shownTextKey = 0;
// Panning produces new label texts all the time; the remembered sizes are dropped now and then.
constexpr int maxRememberedLabelTexts = 1024;

GraphicsLineItem *createLine(QGraphicsItem *parent, const QPen &pen)
{
    auto *line = new GraphicsLineItem(parent);
    line->setPen(pen);
    return line;
}

QGraphicsTextItem *createLabel(QGraphicsItem *parent, const QtCharts::QAbstractAxis &axis, const QColor &color)
{
    auto *label = new QGraphicsTextItem(parent);
    label->document()->setDocumentMargin(labelDocumentMargin);
    // Its texts are replaced in place (see showLabelText()); nobody undoes a label.
    label->document()->setUndoRedoEnabled(false);
    label->setFont(axis.labelsFont());
    label->setDefaultTextColor(color);
    label->setRotation(axis.labelsAngle());
    return label;
}

// Qt drops the shaped text of a document's blocks once it has laid them out, and shapes it again
// at every paint; a label is painted far more often than its text changes.
void keepShapedText(const QTextDocument &document)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        block.layout()->setCacheEnabled(true);
}

// Whether \a text reads the same as HTML and as plain text: no markup, no entity, no white space
// that HTML folds or breaks lines at.
bool readsTheSameAsHtml(const QString &text)
{
    if (text.isEmpty() || text.front() == QLatin1Char(' ') || text.back() == QLatin1Char(' '))
        return false;
    QChar previous;
    for (const QChar c : text) {
        const bool space = c == QLatin1Char(' ');
        if ((space && previous == QLatin1Char(' ')) || (!space && (c.isSpace() || !c.isPrint()))
            || c == QLatin1Char('<') || c == QLatin1Char('>') || c == QLatin1Char('&'))
            return false;
        previous = c;
    }
    return true;
}

// Shows \a text, laid out \a textWidth wide, in \a label, which shows \a previous. Between two
// plain texts the text is replaced in place: it keeps the formats the first was given, which are
// those setHtml() gives any plain text, and the document is not built anew (half the cost of a
// label change). The label's document directly: QGraphicsTextItem::setHtml() also resets the
// text cursor and scrolls to it, which a label that cannot be edited never shows.
void showLabelText(QGraphicsTextItem &label, const QString &previous, const QString &text, qreal textWidth)
{
    // Setting the same width or text again would lay the document out again.
    const bool newWidth = label.textWidth() != textWidth;
    QTextDocument &document = *label.document();
    if (previous != text && readsTheSameAsHtml(previous) && readsTheSameAsHtml(text)) {
        // The new width goes into the same edit as the new text.
        QTextCursor cursor(&document);
        cursor.beginEditBlock();
        cursor.select(QTextCursor::Document);
        cursor.insertText(text);
        if (newWidth)
            label.setTextWidth(textWidth);
        cursor.endEditBlock();
        return;
    }
    if (newWidth)
        label.setTextWidth(textWidth);
    if (previous != text) {
        document.setHtml(text);
        keepShapedText(document);
    }
}

void setLinePen(const QList<QGraphicsItem *> &items, const QPen &pen)
{
    for (QGraphicsItem *item : items)
        static_cast<QGraphicsLineItem *>(item)->setPen(pen);
}

void setLineColor(const QList<QGraphicsItem *> &items, const QColor &color)
{
    for (QGraphicsItem *item : items) {
        auto *line = static_cast<QGraphicsLineItem *>(item);
        QPen pen = line->pen();
        pen.setColor(color);
        line->setPen(pen);
    }
}

// Between the axis edge and the label box: the tick mark's length for a horizontal axis, a little
// more for a vertical one.
constexpr qreal horizontalLabelGap = 4.0;
constexpr qreal verticalLabelGap = 6.0;
// Added to the room an axis asks for across it.
constexpr qreal minimumSizeMargin = 1.0;
constexpr qreal horizontalPreferredSizeMargin = 1.0;
constexpr qreal verticalPreferredSizeMargin = 2.0;

// Positions along an axis and across it, for either orientation: x and y for a horizontal axis,
// y and x for a vertical one. Lengths run along, thicknesses across.
struct Frame
{
    explicit Frame(Qt::Orientation orientation)
        : horizontal(orientation == Qt::Horizontal)
    {
    }

    qreal along(const QPointF &point) const { return horizontal ? point.x() : point.y(); }
    qreal length(const QSizeF &size) const { return horizontal ? size.width() : size.height(); }
    qreal thickness(const QSizeF &size) const { return horizontal ? size.height() : size.width(); }
    qreal start(const QRectF &rect) const { return horizontal ? rect.left() : rect.top(); }
    qreal end(const QRectF &rect) const { return horizontal ? rect.right() : rect.bottom(); }
    qreal acrossStart(const QRectF &rect) const { return horizontal ? rect.top() : rect.left(); }
    qreal acrossEnd(const QRectF &rect) const { return horizontal ? rect.bottom() : rect.right(); }
    QPointF point(qreal along, qreal across) const
    {
        return horizontal ? QPointF(along, across) : QPointF(across, along);
    }
    QSizeF size(qreal along, qreal across) const { return horizontal ? QSizeF(along, across) : QSizeF(across, along); }
    QLineF line(qreal along1, qreal across1, qreal along2, qreal across2) const
    {
        return QLineF(point(along1, across1), point(along2, across2));
    }

    const bool horizontal;
};

// Where an axis lies beside the plot: its edge towards the plot, its far edge, and the direction
// away from the plot across the axis (-1 above or left of it, +1 below or right). An axis with
// an alignment that does not suit the orientation is not placed.
struct Side
{
    bool placed = false;
    qreal edge = 0.0;
    qreal farEdge = 0.0;
    qreal away = 0.0;
};

Side sideOf(const Frame &frame, const QtCharts::QAbstractAxis &axis, const QRectF &axisRect)
{
    const Qt::Alignment alignment = axis.alignment();
    const Qt::Alignment before = frame.horizontal ? Qt::AlignTop : Qt::AlignLeft;
    const Qt::Alignment after = frame.horizontal ? Qt::AlignBottom : Qt::AlignRight;
    const qreal start = frame.acrossStart(axisRect);
    const qreal end = frame.acrossEnd(axisRect);
    if (alignment == before)
        return {true, end, start, -1.0};
    if (alignment == after)
        return {true, start, end, 1.0};
    return {};
}

// The boxes of the labels kept so far, ordered by where they start along the axis. A new box is
// compared only with the kept boxes that start before it ends and, given the longest kept box,
// may reach it: one step or two per label, as labels follow each other along the axis.
class KeptLabelBoxes
{
public:
    explicit KeptLabelBoxes(Qt::Orientation orientation)
        : m_frame(orientation)
    {
    }

    // Keeps \a box unless it intersects a kept box; whether it was kept.
    bool keep(const QRectF &box)
    {
        const qreal start = m_frame.start(box);
        const qreal end = m_frame.end(box);
        const auto startsBefore = [this](const QRectF &kept, qreal value) { return m_frame.start(kept) < value; };
        const auto after = std::lower_bound(m_boxes.begin(), m_boxes.end(), end, startsBefore);
        for (auto it = after; it != m_boxes.begin();) {
            --it;
            if (m_frame.start(*it) + m_longest <= start)
                break;
            if (it->intersects(box))
                return false;
        }
        m_boxes.insert(std::lower_bound(m_boxes.begin(), after, start, startsBefore), box);
        m_longest = std::max(m_longest, end - start);
        return true;
    }

private:
    const Frame m_frame;
    QVector<QRectF> m_boxes;
    qreal m_longest = 0.0;
};

} // namespace

CartesianChartAxis::CartesianChartAxis(Qt::Orientation orientation, QtCharts::QAbstractAxis *axis,
                                       QGraphicsItem *item)
    : ChartAxisElement(axis, item, false)
    , m_orientation(orientation)
    , m_minorLabelGroup(new QGraphicsItemGroup(item))
{
    // By signature, so that an axis without minor labels simply has no such signals.
    connect(axis, SIGNAL(visibleChanged(bool)), this, SLOT(handleVisibleChanged(bool)));
    connect(axis, SIGNAL(minorLabelsVisibleChanged(bool)), this, SLOT(handleMinorLabelsVisibleChanged(bool)));
    connect(axis, SIGNAL(minorLabelsColorChanged(QColor)), this, SLOT(handleMinorLabelsColorChanged(QColor)));
    // The base restyles the major labels only.
    connect(axis, &QtCharts::QAbstractAxis::labelsFontChanged, this, [this](const QFont &font) {
        for (QGraphicsItem *item : minorLabelItems())
            static_cast<QGraphicsTextItem *>(item)->setFont(font);
    });
    connect(axis, &QtCharts::QAbstractAxis::labelsAngleChanged, this, [this](int angle) {
        for (QGraphicsItem *item : minorLabelItems())
            item->setRotation(angle);
    });
    // Which labels overlap depends on the placed labels only: switching the hiding on or off, or
    // showing the labels again, needs no new layout pass.
    if (TickedAxisState *state = tickedAxisState(*axis)) {
        connect(state->notifier(axis), &AxisNotifier::hideOverlappingLabelsChanged, this,
                &CartesianChartAxis::updateLabelOverlaps);
    }
    connect(axis, &QtCharts::QAbstractAxis::labelsVisibleChanged, this, &CartesianChartAxis::updateLabelOverlaps);
    m_minorLabelGroup->setZValue(minorLabelZValue);
    m_minorLabelGroup->setVisible(axis->isVisible() && minorLabelsVisible());
}

CartesianChartAxis::~CartesianChartAxis()
{
    delete m_minorLabelGroup;
}

QRectF CartesianChartAxis::gridGeometry() const
{
    return m_gridRect;
}

void CartesianChartAxis::setGeometry(const QRectF &axis, const QRectF &grid)
{
    setAxisGeometry(axis);
    m_gridRect = grid;
    if (hasNothingToDraw()) {
        prepareGeometryChange();
        return;
    }
    QVector<qreal> layout = calculateLayout();
    updateLayout(layout);
}

bool CartesianChartAxis::KO_CHARTAXISELEMENT_IS_EMPTY
{
    return hasNothingToDraw();
}

bool CartesianChartAxis::hasNothingToDraw() const
{
    const QRectF axisRect = axisGeometry();
    const QRectF gridRect = gridGeometry();
    return axisRect.width() <= 0.0 || axisRect.height() <= 0.0 || gridRect.width() <= 0.0
           || gridRect.height() <= 0.0 || qFuzzyCompare(min(), max());
}

QList<QGraphicsItem *> CartesianChartAxis::minorLabelItems() const
{
    return m_minorLabelGroup->childItems();
}

QStringList CartesianChartAxis::allLabels() const
{
    QVector<qreal> ticks;
    QVector<qreal> subTicks;
    QStringList labels;
    QStringList subLabels;
    updateTicks(ticks, subTicks, labels, subLabels);
    return labels + subLabels;
}

void CartesianChartAxis::handleVisibleChanged(bool visible)
{
    m_minorLabelGroup->setVisible(visible && minorLabelsVisible());
    if (minorLabelsShown() && !m_minorLabelsLaidOut)
        layoutMinorLabels();
    updateLabelOverlaps();
}

void CartesianChartAxis::handleMinorLabelsVisibleChanged(bool visible)
{
    if (QtCharts::ChartPresenter *chartPresenter = presenter()) {
        QGraphicsLayoutItem::updateGeometry();
        chartPresenter->layout()->invalidate();
    }
    // The group is not a child of this element, so a hidden axis must keep it hidden itself.
    m_minorLabelGroup->setVisible(visible && axis()->isVisible());
    if (minorLabelsShown() && !m_minorLabelsLaidOut)
        layoutMinorLabels();
    updateLabelOverlaps();
}

void CartesianChartAxis::handleMinorLabelsColorChanged(QColor color)
{
    for (QGraphicsItem *item : minorLabelItems())
        static_cast<QGraphicsTextItem *>(item)->setDefaultTextColor(color);
}

QVector<qreal> CartesianChartAxis::calculateLayout() const
{
    updateTicks(m_majorTickValues, m_minorTickValues, m_pendingLabels, m_pendingMinorLabels);
    QVector<qreal> layout;
    layout.reserve(m_majorTickValues.size());
    for (const qreal value : qAsConst(m_majorTickValues))
        layout.append(tickPosition(value));
    return layout;
}

void CartesianChartAxis::updateLayout(AxisLayoutArgument layout)
{
    const int diff = m_majorTickValues.size() - gridItems().size();
    if (diff < 0)
        deleteItems(-diff);
    else
        createItems(diff);

    const int minorDiff = m_minorTickValues.size() - minorGridItems().size();
    if (minorDiff > 0)
        createMinorItems(minorDiff);
    else if (minorDiff < 0)
        deleteMinorItems(-minorDiff);

    QtCharts::AxisAnimation *axisAnimation = animation();
    if (!axisAnimation) {
        setLayout(layout);
        updateGeometry();
        return;
    }
    // The animation installs the layout and calls updateGeometry() as it runs.
    QtCharts::ChartPresenter *chartPresenter = presenter();
    switch (chartPresenter->state()) {
    case QtCharts::ChartPresenter::ShowState:
        axisAnimation->setAnimationType(QtCharts::AxisAnimation::DefaultAnimation);
        break;
    case QtCharts::ChartPresenter::ScrollUpState:
    case QtCharts::ChartPresenter::ScrollLeftState:
        axisAnimation->setAnimationType(QtCharts::AxisAnimation::MoveBackwordAnimation);
        break;
    case QtCharts::ChartPresenter::ScrollDownState:
    case QtCharts::ChartPresenter::ScrollRightState:
        axisAnimation->setAnimationType(QtCharts::AxisAnimation::MoveForwardAnimation);
        break;
    case QtCharts::ChartPresenter::ZoomInState:
        axisAnimation->setAnimationType(QtCharts::AxisAnimation::ZoomInAnimation);
        axisAnimation->setAnimationPoint(chartPresenter->statePoint());
        break;
    case QtCharts::ChartPresenter::ZoomOutState:
        axisAnimation->setAnimationType(QtCharts::AxisAnimation::ZoomOutAnimation);
        axisAnimation->setAnimationPoint(chartPresenter->statePoint());
        break;
    }
    axisAnimation->setValues(ChartAxisElement::layout(), layout);
    chartPresenter->startAnimation(axisAnimation);
}

void CartesianChartAxis::handleShadesBrushChanged(const QBrush &brush)
{
    for (QGraphicsItem *item : shadeItems())
        static_cast<QGraphicsRectItem *>(item)->setBrush(brush);
}

void CartesianChartAxis::handleShadesPenChanged(const QPen &pen)
{
    for (QGraphicsItem *item : shadeItems())
        static_cast<QGraphicsRectItem *>(item)->setPen(pen);
}

void CartesianChartAxis::handleArrowPenChanged(const QPen &pen)
{
    setLinePen(arrowItems(), pen);
}

void CartesianChartAxis::handleGridPenChanged(const QPen &pen)
{
    setLinePen(gridItems(), pen);
}

void CartesianChartAxis::handleMinorArrowPenChanged(const QPen &pen)
{
    setLinePen(minorArrowItems(), pen);
}

void CartesianChartAxis::handleMinorGridPenChanged(const QPen &pen)
{
    setLinePen(minorGridItems(), pen);
}

void CartesianChartAxis::handleMinorGridLineColorChanged(const QColor &color)
{
    setLineColor(minorGridItems(), color);
}

void CartesianChartAxis::handleGridLineColorChanged(const QColor &color)
{
    setLineColor(gridItems(), color);
}

void CartesianChartAxis::updateGeometry()
{
    dropStaleLabelTexts();
    setLabels(m_pendingLabels);
    setMinorLabels(m_pendingMinorLabels);

    const Frame frame(m_orientation);
    const QRectF axisRect = axisGeometry();
    const QRectF gridRect = gridGeometry();
    const Side side = sideOf(frame, *axis(), axisRect);
    if (side.placed) {
        auto *axisLine = static_cast<QGraphicsLineItem *>(arrowItems().constFirst());
        axisLine->setLine(frame.line(frame.start(gridRect), side.edge, frame.end(gridRect), side.edge));
    }

    // The height for both orientations: a tall, narrow vertical axis does not truncate its
    // labels to its own width.
    qreal availableSpace = axisRect.height() - labelPadding();
    if (isTitleShown())
        availableSpace = layoutTitle(availableSpace);

    // Each label may take its share of the axis length, less a padding on either side.
    const auto labelLimit = [&](int tickCount) {
        const qreal share = tickCount > 0 ? frame.length(axisRect.size()) / tickCount - 2.0 * labelPadding() : 0.0;
        return frame.size(share, availableSpace);
    };
    const QSizeF majorLimit = labelLimit(m_majorTickValues.size());
    const QSizeF minorLimit = labelLimit(m_minorTickValues.size());

    const QList<QGraphicsItem *> grid = gridItems();
    const QList<QGraphicsItem *> arrows = arrowItems();
    const QList<QGraphicsItem *> labelItems = labelGroup()->childItems();
    const QStringList labelTexts = labels();
    for (int i = 0; i < m_majorTickValues.size(); ++i) {
        // The axis line is the first child of the arrow group.
        layoutTick(static_cast<QGraphicsLineItem *>(grid.at(i)), static_cast<QGraphicsLineItem *>(arrows.at(i + 1)),
                   static_cast<QGraphicsTextItem *>(labelItems.at(i)), labelTexts.at(i), m_majorTickValues.at(i),
                   majorLimit);
    }
    // Hidden minor labels are neither measured nor placed; showing them lays them out first.
    m_minorLabelLimit = minorLimit;
    m_minorLabelsLaidOut = minorLabelsShown();
    const QList<QGraphicsItem *> minorGrid = minorGridItems();
    const QList<QGraphicsItem *> minorArrows = minorArrowItems();
    const QList<QGraphicsItem *> minorLabelItems = this->minorLabelItems();
    for (int j = 0; j < m_minorTickValues.size(); ++j) {
        auto *label = m_minorLabelsLaidOut ? static_cast<QGraphicsTextItem *>(minorLabelItems.at(j)) : nullptr;
        layoutTick(static_cast<QGraphicsLineItem *>(minorGrid.at(j)),
                   static_cast<QGraphicsLineItem *>(minorArrows.at(j)), label, m_minorLabels.at(j),
                   m_minorTickValues.at(j), minorLimit);
    }
    updateLabelOverlaps();
}

qreal CartesianChartAxis::layoutTitle(qreal availableSpace)
{
    const Frame frame(m_orientation);
    const QRectF axisRect = axisGeometry();
    const QRectF gridRect = gridGeometry();
    QGraphicsTextItem *title = titleItem();

    availableSpace -= 2.0 * titlePadding();
    const qreal titleSpace = availableSpace - labelBoundingRect(QStringLiteral("..."), 0.0).height();
    // A vertical axis's title reads upwards: it is measured turned, and turned once placed.
    const qreal angle = frame.horizontal ? 0.0 : 90.0;
    const QSizeF limit = frame.size(frame.length(gridRect.size()), titleSpace);
    QRectF titleBoundingRect;
    title->setHtml(QtCharts::ChartPresenter::truncatedText(axis()->titleFont(), axis()->titleText(), angle,
                                                           limit.width(), limit.height(), titleBoundingRect));
    title->setTextWidth(frame.length(titleBoundingRect.size()));

    const QRectF r = title->boundingRect();
    const Side side = sideOf(frame, *axis(), axisRect);
    if (side.placed) {
        // The title's upright box starts titlePadding() inside the far edge of the axis; turning a
        // vertical title about its middle moves that box by half its length less half its height.
        const qreal thickness = r.height();
        const qreal boxStart = side.away < 0.0 ? side.farEdge + titlePadding() : side.farEdge - thickness - titlePadding();
        const qreal turnOffset = frame.horizontal ? 0.0 : r.width() / 2.0 - r.height() / 2.0;
        const qreal along = frame.along(gridRect.center()) - frame.along(r.center());
        title->setPos(frame.point(along, boxStart - turnOffset));
    }
    if (!frame.horizontal) {
        title->setTransformOriginPoint(r.center());
        title->setRotation(270.0);
    }
    return availableSpace - r.height();
}

void CartesianChartAxis::layoutTick(QGraphicsLineItem *gridItem, QGraphicsLineItem *tickItem,
                                    QGraphicsTextItem *labelItem, const QString &text, qreal value,
                                    const QSizeF &labelLimit)
{
    const Frame frame(m_orientation);
    const QRectF gridRect = gridGeometry();
    const qreal position = tickPosition(value);
    gridItem->setLine(frame.line(position, frame.acrossStart(gridRect), position, frame.acrossEnd(gridRect)));
    if (labelItem)
        layoutLabel(labelItem, text, position, labelLimit);

    const Side side = sideOf(frame, *axis(), axisGeometry());
    if (!side.placed)
        return;
    // Horizontal tick marks run from the edge outwards, vertical ones left to right.
    const qreal markEnd = side.edge + side.away * labelPadding();
    if (frame.horizontal)
        tickItem->setLine(frame.line(position, side.edge, position, markEnd));
    else
        tickItem->setLine(frame.line(position, std::min(side.edge, markEnd), position, std::max(side.edge, markEnd)));
}

void CartesianChartAxis::layoutLabel(QGraphicsTextItem *labelItem, const QString &text, qreal position,
                                     const QSizeF &labelLimit)
{
    const Frame frame(m_orientation);
    const QRectF labelRect = setLabelText(labelItem, text, labelLimit.width(), labelLimit.height());
    const QRectF rect = labelItem->boundingRect();
    const Side side = sideOf(frame, *axis(), axisGeometry());
    if (!side.placed) {
        labelItem->setPos(0.0, 0.0);
        return;
    }
    // The label box lies the label gap beyond the axis edge, the part of the item's box that the
    // truncated text does not fill split evenly on both sides.
    const qreal gap = frame.horizontal ? horizontalLabelGap : verticalLabelGap;
    const qreal spare = frame.thickness(rect.size()) - frame.thickness(labelRect.size());
    const qreal across = side.away < 0.0 ? side.edge - frame.thickness(labelRect.size()) + spare * 0.5 - gap
                                         : side.edge - spare * 0.5 + gap;
    const qreal along = position - frame.along(rect.center());
    // Whole pixels keep the text sharp.
    labelItem->setPos(frame.point(qRound(along), qRound(across)));
}

void CartesianChartAxis::layoutMinorLabels()
{
    dropStaleLabelTexts();
    const QList<QGraphicsItem *> items = minorLabelItems();
    const int count = std::min({int(items.size()), int(m_minorTickValues.size()), int(m_minorLabels.size())});
    for (int j = 0; j < count; ++j) {
        layoutLabel(static_cast<QGraphicsTextItem *>(items.at(j)), m_minorLabels.at(j),
                    tickPosition(m_minorTickValues.at(j)), m_minorLabelLimit);
    }
    m_minorLabelsLaidOut = true;
}

void CartesianChartAxis::updateLabelOverlaps()
{
    const TickedAxisState *state = tickedAxisState(*axis());
    if (state && state->hideOverlappingLabels) {
        hideOverlappingLabels();
        return;
    }
    if (!m_overlappingLabelsHidden)
        return;
    for (QGraphicsItem *label : labelItems())
        label->setVisible(true);
    for (QGraphicsItem *label : minorLabelItems())
        label->setVisible(true);
    m_overlappingLabelsHidden = false;
}

void CartesianChartAxis::hideOverlappingLabels()
{
    KeptLabelBoxes kept(m_orientation);
    bool hidden = false;
    // A label the axis does not show, or one without text, neither hides another nor is hidden.
    const auto keepOrHide = [&](QGraphicsItem *label, bool shown) {
        const bool visible = !shown || label->data(shownTextKey).toString().isEmpty()
                             || kept.keep(label->sceneBoundingRect());
        label->setVisible(visible);
        hidden = hidden || !visible;
    };
    const bool majorShown = labelGroup()->isVisible();
    for (QGraphicsItem *label : labelItems())
        keepOrHide(label, majorShown);
    // Minor labels skipped while hidden are laid out before they are shown.
    const bool minorShown = m_minorLabelsLaidOut && m_minorLabelGroup->isVisible();
    for (QGraphicsItem *label : minorLabelItems())
        keepOrHide(label, minorShown);
    m_overlappingLabelsHidden = hidden;
}

qreal CartesianChartAxis::tickPosition(qreal value) const
{
    return boundedPixel(coordToPixel(*axis(), value));
}

QSizeF CartesianChartAxis::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    Q_UNUSED(constraint)
    const Frame frame(m_orientation);

    // The title's part: across, its height and the paddings; along, its width.
    qreal titleAlong = 0.0;
    qreal titleAcross = 0.0;
    if (isTitleShown() && (which == Qt::MinimumSize || which == Qt::PreferredSize || which == Qt::MaximumSize)) {
        const QString text = which == Qt::MinimumSize ? QStringLiteral("...") : axis()->titleText();
        const QRectF r = QtCharts::ChartPresenter::textBoundingRect(axis()->titleFont(), text, 0.0);
        titleAcross = r.height() + 2.0 * titlePadding();
        if (which != Qt::MinimumSize)
            titleAlong = r.width();
    }

    dropStaleLabelTexts();
    const qreal angle = axis()->labelsAngle();
    switch (which) {
    case Qt::MinimumSize: {
        const QRectF r = labelBoundingRect(QStringLiteral("..."), angle);
        return frame.size(frame.length(r.size()) / 2.0,
                          frame.thickness(r.size()) + labelPadding() + titleAcross + minimumSizeMargin);
    }
    case Qt::PreferredSize: {
        const QStringList labels = allLabels();
        qreal thickest = 0.0;
        qreal firstLength = -1.0;
        qreal lastLength = titleAlong;
        for (int i = 0; i < labels.size(); ++i) {
            const QSizeF size = labelBoundingRect(labels.at(i), angle).size();
            thickest = std::max(thickest, frame.thickness(size));
            if (i == 0)
                firstLength = frame.length(size);
            lastLength = frame.length(size);
        }
        // Half a label may reach beyond the first or last tick; the chart layout reserves it.
        const qreal margin = frame.horizontal ? horizontalPreferredSizeMargin : verticalPreferredSizeMargin;
        return frame.size(std::max(lastLength, firstLength) / 2.0,
                          thickest + labelPadding() + titleAcross + margin);
    }
    default:
        return QSizeF(-1.0, -1.0);
    }
}

QRectF CartesianChartAxis::setLabelText(QGraphicsTextItem *label, const QString &text, qreal maxWidth,
                                        qreal maxHeight) const
{
    QRectF labelRect;
    QString shown;
    qreal textWidth = label->textWidth();
    if (!text.isEmpty()) {
        // As ChartPresenter::truncatedText(), which starts by measuring the whole text.
        const qreal angle = axis()->labelsAngle();
        labelRect = labelBoundingRect(text, angle);
        shown = text;
        if (labelRect.width() > maxWidth || labelRect.height() > maxHeight) {
            const TruncationKey key{text, angle, maxWidth, maxHeight};
            auto it = m_truncations.constFind(key);
            if (it == m_truncations.constEnd()) {
                Truncation truncation;
                truncation.shown = QtCharts::ChartPresenter::truncatedText(m_labelTextsFont, text, angle, maxWidth,
                                                                           maxHeight, truncation.rect);
                it = m_truncations.insert(key, truncation);
            }
            shown = it->shown;
            labelRect = it->rect;
        }
        textWidth = labelBoundingRect(shown, 0.0).width();
    }
    const QString previous = label->data(shownTextKey).toString();
    showLabelText(*label, previous, shown, textWidth);
    if (previous != shown)
        label->setData(shownTextKey, shown);
    // Rotation by the labels angle turns a label about its middle.
    const QPointF origin = label->boundingRect().center();
    if (label->transformOriginPoint() != origin)
        label->setTransformOriginPoint(origin);
    return labelRect;
}

bool CartesianChartAxis::isTitleShown() const
{
    return !axis()->titleText().isEmpty() && titleItem()->isVisible();
}

QRectF CartesianChartAxis::labelBoundingRect(const QString &text, qreal angle) const
{
    const QPair<QString, qreal> key(text, angle);
    auto it = m_labelRects.constFind(key);
    if (it == m_labelRects.constEnd())
        it = m_labelRects.insert(key, QtCharts::ChartPresenter::textBoundingRect(m_labelTextsFont, text, angle));
    return it.value();
}

void CartesianChartAxis::dropStaleLabelTexts() const
{
    const QFont font = axis()->labelsFont();
    if (font != m_labelTextsFont || m_labelRects.size() + m_truncations.size() >= maxRememberedLabelTexts) {
        m_labelRects.clear();
        m_truncations.clear();
        m_labelTextsFont = font;
    }
}

void CartesianChartAxis::updateTicks(QVector<qreal> &ticks, QVector<qreal> &subTicks, QStringList &labels,
                                     QStringList &subLabels) const
{
    const TickedAxisState *state = tickedAxisState(*axis());
    if (!state) {
        ticks.clear();
        subTicks.clear();
        return;
    }
    AxisTicker *ticker = state->currentTicker;
    const QString format = state->labelFormat();
    if (!format.isEmpty())
        ticker->setLabelFormat(format);
    ticker->generate(state->minimum(), state->maximum(), ticks, subTicks);
    ticker->generateLabels(ticks, labels);
    ticker->generateLabels(subTicks, subLabels);
}

void CartesianChartAxis::createItems(int count)
{
    if (arrowItems().isEmpty())
        arrowGroup()->addToGroup(createLine(this, axis()->linePen()));

    // Setting the same font or colour again would lay the title out again.
    QGraphicsTextItem *title = titleItem();
    const QFont titleFont = axis()->titleFont();
    if (title->font() != titleFont)
        title->setFont(titleFont);
    const QColor titleColor = axis()->titleBrush().color();
    if (title->defaultTextColor() != titleColor)
        title->setDefaultTextColor(titleColor);
    // Setting an empty title again would rebuild the title's empty document on every pass.
    const QString titleText = axis()->titleText();
    if (!titleText.isEmpty() || !title->document()->isEmpty())
        title->setHtml(titleText);

    const QColor labelsColor = axis()->labelsBrush().color();
    for (int i = 0; i < count; ++i) {
        arrowGroup()->addToGroup(createLine(this, axis()->linePen()));
        gridGroup()->addToGroup(createLine(this, axis()->gridLinePen()));
        labelGroup()->addToGroup(createLabel(this, *axis(), labelsColor));
    }
}

void CartesianChartAxis::deleteItems(int count)
{
    QList<QGraphicsItem *> grid = gridItems();
    QList<QGraphicsItem *> labels = labelItems();
    QList<QGraphicsItem *> arrows = arrowItems();
    for (int i = 0; i < count; ++i) {
        delete grid.takeLast();
        delete labels.takeLast();
        delete arrows.takeLast();
    }
}

void CartesianChartAxis::createMinorItems(int count)
{
    const QColor color = minorLabelsColor();
    for (int i = 0; i < count; ++i) {
        minorArrowGroup()->addToGroup(createLine(this, axis()->linePen()));
        minorGridGroup()->addToGroup(createLine(this, axis()->minorGridLinePen()));
        m_minorLabelGroup->addToGroup(createLabel(this, *axis(), color));
    }
}

void CartesianChartAxis::deleteMinorItems(int count)
{
    QList<QGraphicsItem *> grid = minorGridItems();
    QList<QGraphicsItem *> labels = minorLabelItems();
    QList<QGraphicsItem *> arrows = minorArrowItems();
    for (int i = 0; i < count; ++i) {
        if (!grid.isEmpty())
            delete grid.takeLast();
        if (!labels.isEmpty())
            delete labels.takeLast();
        if (!arrows.isEmpty())
            delete arrows.takeLast();
    }
}

QColor CartesianChartAxis::minorLabelsColor() const
{
    const TickedAxisState *state = tickedAxisState(*axis());
    return state ? state->minorLabelsBrush.color() : axis()->labelsColor();
}

bool CartesianChartAxis::minorLabelsShown() const
{
    return axis()->isVisible() && minorLabelsVisible();
}

bool CartesianChartAxis::minorLabelsVisible() const
{
    const TickedAxisState *state = tickedAxisState(*axis());
    return state && state->minorLabelsVisible;
}

QtCharts::ChartAxisElement *createAxisElement(QtCharts::QAbstractAxis *axis, QtCharts::QChart::ChartType chartType,
                                              QGraphicsItem *parent)
{
    if (chartType != QtCharts::QChart::ChartTypeCartesian)
        return new EmptyPolarAxis(axis, parent);
    if (axis->orientation() == Qt::Horizontal)
        return new HorizontalAxis(axis, parent);
    return new VerticalAxis(axis, parent);
}

} // namespace ko::qtToolkit::charts
