#include <ko/qtToolkit/charts/VerticalAxis_p.h>

#include <QGraphicsLineItem>
#include <QGraphicsTextItem>
#include <QtCharts/private/chartpresenter_p.h>

#include <algorithm>

namespace ko::qtToolkit::charts {

namespace {
// Between the axis edge and the label box; wider than the tick mark on purpose.
constexpr qreal labelGap = 6.0;
} // namespace

VerticalAxis::VerticalAxis(QtCharts::QAbstractAxis *axis, QGraphicsItem *item)
    : CartesianChartAxis(axis, item)
{
}

VerticalAxis::~VerticalAxis() = default;

void VerticalAxis::updateGeometry()
{
    CartesianChartAxis::updateGeometry();

    const QRectF axisRect = axisGeometry();
    const QRectF gridRect = gridGeometry();
    const Qt::Alignment alignment = axis()->alignment();

    auto *axisLine = static_cast<QGraphicsLineItem *>(arrowItems().constFirst());
    if (alignment == Qt::AlignLeft)
        axisLine->setLine(axisRect.right(), gridRect.top(), axisRect.right(), gridRect.bottom());
    else if (alignment == Qt::AlignRight)
        axisLine->setLine(axisRect.left(), gridRect.top(), axisRect.left(), gridRect.bottom());

    // The labels' width limit is taken from the axis height, so that a tall, narrow axis does
    // not truncate its labels to its own width.
    qreal availableSpace = axisRect.height() - labelPadding();
    QGraphicsTextItem *title = titleItem();
    const QString titleText = axis()->titleText();
    if (isTitleShown()) {
        availableSpace -= 2.0 * titlePadding();
        const qreal minimumLabelHeight = labelBoundingRect(QStringLiteral("..."), 0.0).height();
        const qreal titleSpace = availableSpace - minimumLabelHeight;
        QRectF titleBoundingRect;
        title->setHtml(QtCharts::ChartPresenter::truncatedText(axis()->titleFont(), titleText, 90.0, titleSpace,
                                                               gridRect.height(), titleBoundingRect));
        title->setTextWidth(titleBoundingRect.height());

        const QRectF r = title->boundingRect();
        const qreal centreY = gridRect.center().y() - r.center().y();
        if (alignment == Qt::AlignLeft)
            title->setPos(axisRect.left() - r.width() / 2.0 + r.height() / 2.0 + titlePadding(), centreY);
        else if (alignment == Qt::AlignRight)
            title->setPos(axisRect.right() - r.width() / 2.0 - r.height() / 2.0 - titlePadding(), centreY);
        title->setTransformOriginPoint(r.center());
        title->setRotation(270.0);
        availableSpace -= r.height();
    }

    // Each label may take its share of the axis height, less a padding above and below.
    const auto labelHeight = [&axisRect, this](int tickCount) {
        return tickCount > 0 ? axisRect.height() / tickCount - 2.0 * labelPadding() : 0.0;
    };
    layoutTicks(QSizeF(availableSpace, labelHeight(majorTickValues().size())),
                QSizeF(availableSpace, labelHeight(minorTickValues().size())));
}

void VerticalAxis::layoutTick(QGraphicsLineItem *gridItem, QGraphicsLineItem *tickItem, QGraphicsTextItem *labelItem,
                              const QString &text, qreal value, qreal maxWidth, qreal maxHeight)
{
    const QRectF axisRect = axisGeometry();
    const QRectF gridRect = gridGeometry();
    const qreal y = tickPosition(value);
    gridItem->setLine(gridRect.left(), y, gridRect.right(), y);

    const QRectF labelRect = setLabelText(labelItem, text, maxWidth, maxHeight);
    const QRectF rect = labelItem->boundingRect();
    const qreal widthDiff = rect.width() - labelRect.width();
    const qreal labelY = y - rect.center().y();

    qreal labelX = 0.0;
    switch (axis()->alignment()) {
    case Qt::AlignLeft:
        labelX = axisRect.right() - labelRect.width() + widthDiff * 0.5 - labelGap;
        tickItem->setLine(axisRect.right() - labelPadding(), y, axisRect.right(), y);
        break;
    case Qt::AlignRight:
        labelX = axisRect.left() - widthDiff * 0.5 + labelGap;
        tickItem->setLine(axisRect.left(), y, axisRect.left() + labelPadding(), y);
        break;
    default:
        labelItem->setPos(0.0, 0.0);
        return;
    }
    // Whole pixels keep the text sharp.
    labelItem->setPos(qRound(labelX), qRound(labelY));
}

QSizeF VerticalAxis::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    Q_UNUSED(constraint)

    QSizeF titleSize(0.0, 0.0);
    const QString titleText = axis()->titleText();
    if (isTitleShown()) {
        // The title is turned upright, so its text height is the width it takes.
        if (which == Qt::MinimumSize) {
            const QRectF r =
                QtCharts::ChartPresenter::textBoundingRect(axis()->titleFont(), QStringLiteral("..."), 0.0);
            titleSize.setWidth(r.height() + 2.0 * titlePadding());
        } else if (which == Qt::PreferredSize || which == Qt::MaximumSize) {
            const QRectF r = QtCharts::ChartPresenter::textBoundingRect(axis()->titleFont(), titleText, 0.0);
            titleSize = QSizeF(r.height() + 2.0 * titlePadding(), r.width());
        }
    }

    switch (which) {
    case Qt::MinimumSize: {
        const QRectF r = labelBoundingRect(QStringLiteral("..."), axis()->labelsAngle());
        return QSizeF(titleSize.width() + r.width() + labelPadding() + 1.0, r.height() / 2.0);
    }
    case Qt::PreferredSize: {
        const QStringList labels = allLabels();
        qreal labelWidth = 0.0;
        qreal firstHeight = -1.0;
        qreal lastHeight = titleSize.height();
        for (int i = 0; i < labels.size(); ++i) {
            const QRectF r = labelBoundingRect(labels.at(i), axis()->labelsAngle());
            labelWidth = std::max(labelWidth, r.width());
            if (i == 0)
                firstHeight = r.height();
            lastHeight = r.height();
        }
        // Half a label may reach beyond the first or last tick; the chart layout reserves it.
        return QSizeF(titleSize.width() + labelWidth + labelPadding() + 2.0,
                      std::max(lastHeight, firstHeight) / 2.0);
    }
    default:
        return QSizeF(-1.0, -1.0);
    }
}

} // namespace ko::qtToolkit::charts
