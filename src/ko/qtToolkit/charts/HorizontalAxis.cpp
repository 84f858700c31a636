#include <ko/qtToolkit/charts/HorizontalAxis_p.h>

#include <QGraphicsLineItem>
#include <QGraphicsTextItem>
#include <QtCharts/private/chartpresenter_p.h>

#include <algorithm>

namespace ko::qtToolkit::charts {

HorizontalAxis::HorizontalAxis(QtCharts::QAbstractAxis *axis, QGraphicsItem *item)
    : CartesianChartAxis(axis, item)
{
}

HorizontalAxis::~HorizontalAxis() = default;

void HorizontalAxis::updateGeometry()
{
    CartesianChartAxis::updateGeometry();

    const QRectF axisRect = axisGeometry();
    const QRectF gridRect = gridGeometry();
    const Qt::Alignment alignment = axis()->alignment();

    auto *axisLine = static_cast<QGraphicsLineItem *>(arrowItems().constFirst());
    if (alignment == Qt::AlignTop)
        axisLine->setLine(gridRect.left(), axisRect.bottom(), gridRect.right(), axisRect.bottom());
    else if (alignment == Qt::AlignBottom)
        axisLine->setLine(gridRect.left(), axisRect.top(), gridRect.right(), axisRect.top());

    qreal availableSpace = axisRect.height() - labelPadding();
    QGraphicsTextItem *title = titleItem();
    const QString titleText = axis()->titleText();
    if (isTitleShown()) {
        availableSpace -= 2.0 * titlePadding();
        const qreal minimumLabelHeight = labelBoundingRect(QStringLiteral("..."), 0.0).height();
        const qreal titleSpace = availableSpace - minimumLabelHeight;
        QRectF titleBoundingRect;
        title->setHtml(QtCharts::ChartPresenter::truncatedText(axis()->titleFont(), titleText, 0.0, gridRect.width(),
                                                               titleSpace, titleBoundingRect));
        title->setTextWidth(titleBoundingRect.width());

        titleBoundingRect = title->boundingRect();
        const qreal centreX = gridRect.center().x() - titleBoundingRect.center().x();
        if (alignment == Qt::AlignTop)
            title->setPos(centreX, axisRect.top() + titlePadding());
        else if (alignment == Qt::AlignBottom)
            title->setPos(centreX, axisRect.bottom() - titleBoundingRect.height() - titlePadding());
        availableSpace -= titleBoundingRect.height();
    }

    // Each label may take its share of the axis width, less a padding on either side.
    const auto labelWidth = [&axisRect, this](int tickCount) {
        return tickCount > 0 ? axisRect.width() / tickCount - 2.0 * labelPadding() : 0.0;
    };
    layoutTicks(QSizeF(labelWidth(majorTickValues().size()), availableSpace),
                QSizeF(labelWidth(minorTickValues().size()), availableSpace));
}

void HorizontalAxis::layoutTick(QGraphicsLineItem *gridItem, QGraphicsLineItem *tickItem, QGraphicsTextItem *labelItem,
                                const QString &text, qreal value, qreal maxWidth, qreal maxHeight)
{
    const QRectF axisRect = axisGeometry();
    const QRectF gridRect = gridGeometry();
    const qreal x = tickPosition(value);
    gridItem->setLine(x, gridRect.top(), x, gridRect.bottom());

    const QRectF labelRect = setLabelText(labelItem, text, maxWidth, maxHeight);
    const QRectF rect = labelItem->boundingRect();
    const qreal heightDiff = rect.height() - labelRect.height();

    qreal labelY = 0.0;
    switch (axis()->alignment()) {
    case Qt::AlignTop:
        labelY = axisRect.bottom() - labelRect.height() + heightDiff * 0.5 - labelPadding();
        tickItem->setLine(x, axisRect.bottom(), x, axisRect.bottom() - labelPadding());
        break;
    case Qt::AlignBottom:
        labelY = axisRect.top() - heightDiff * 0.5 + labelPadding();
        tickItem->setLine(x, axisRect.top(), x, axisRect.top() + labelPadding());
        break;
    default:
        labelItem->setPos(0.0, 0.0);
        return;
    }
    // Whole pixels keep the text sharp.
    labelItem->setPos(qRound(x - rect.center().x()), qRound(labelY));
}

QSizeF HorizontalAxis::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    Q_UNUSED(constraint)

    QSizeF titleSize(0.0, 0.0);
    const QString titleText = axis()->titleText();
    if (isTitleShown()) {
        if (which == Qt::MinimumSize) {
            const QRectF r =
                QtCharts::ChartPresenter::textBoundingRect(axis()->titleFont(), QStringLiteral("..."), 0.0);
            titleSize.setHeight(r.height() + 2.0 * titlePadding());
        } else if (which == Qt::PreferredSize || which == Qt::MaximumSize) {
            const QRectF r = QtCharts::ChartPresenter::textBoundingRect(axis()->titleFont(), titleText, 0.0);
            titleSize = QSizeF(r.width(), r.height() + 2.0 * titlePadding());
        }
    }

    switch (which) {
    case Qt::MinimumSize: {
        const QRectF r = labelBoundingRect(QStringLiteral("..."), axis()->labelsAngle());
        return QSizeF(r.width() / 2.0, r.height() + labelPadding() + titleSize.height() + 1.0);
    }
    case Qt::PreferredSize: {
        const QStringList labels = allLabels();
        qreal labelHeight = 0.0;
        qreal firstWidth = -1.0;
        qreal lastWidth = titleSize.width();
        for (int i = 0; i < labels.size(); ++i) {
            const QRectF r = labelBoundingRect(labels.at(i), axis()->labelsAngle());
            labelHeight = std::max(labelHeight, r.height());
            if (i == 0)
                firstWidth = r.width();
            lastWidth = r.width();
        }
        // Half a label may reach beyond the first or last tick; the chart layout reserves it.
        return QSizeF(std::max(lastWidth, firstWidth) / 2.0, labelHeight + labelPadding() + titleSize.height() + 1.0);
    }
    default:
        return QSizeF(-1.0, -1.0);
    }
}

} // namespace ko::qtToolkit::charts
