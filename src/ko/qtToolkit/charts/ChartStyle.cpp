// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/charts/ChartStyle.h>

#include <ko/qtToolkit/charts/TickedAxis_p.h>

#include <QGraphicsLayout>
#include <QtCharts/QChart>
#include <QtCharts/QLegend>

namespace ko::qtToolkit::charts::style {

namespace {

const QColor background(0x1a, 0x1a, 0x1a);
const QColor title(0xaa, 0xaa, 0xaa);
const QColor line(0x33, 0x33, 0x33);
const QColor minorGrid(0x22, 0x22, 0x22);
const QColor labels(0x99, 0x99, 0x99);
const QColor minorLabels(0x77, 0x77, 0x77);
const QColor legendLabels(0x8f, 0x8f, 0x91);

} // namespace

void applyTo(QtCharts::QChart *chart)
{
    if (!chart)
        return;
    chart->setMargins(QMargins(8, 8, 8, 8));
    chart->setBackgroundRoundness(0);
    chart->setBackgroundBrush(QBrush(background, Qt::SolidPattern));
    chart->setTitleBrush(QBrush(title, Qt::SolidPattern));
    chart->layout()->setContentsMargins(0, 0, 0, 0);
}

void applyTo(QtCharts::QAbstractAxis *axis)
{
    if (!axis)
        return;
    axis->setGridLinePen(QPen(line));
    axis->setGridLineVisible(true);
    axis->setLinePen(QPen(line));
    axis->setLineVisible(true);
    axis->setMinorGridLinePen(QPen(minorGrid));
    axis->setMinorGridLineVisible(true);
    axis->setLabelsColor(labels);

    // Only the library's own axes have minor labels; both set them through the same property.
    if (tickedAxisState(*axis))
        axis->setProperty("minorLabelsColor", minorLabels);

    QFont labelsFont;
    labelsFont.setPixelSize(10);
    axis->setLabelsFont(labelsFont);
    axis->setTitleFont(QFont());
}

void applyTo(QtCharts::QLegend *legend)
{
    if (!legend)
        return;
    legend->setVisible(false);
    legend->setLabelColor(legendLabels);
}

} // namespace ko::qtToolkit::charts::style
