// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_CHARTS_EMPTYPOLARAXIS_P_H
#define KO_QTTOOLKIT_CHARTS_EMPTYPOLARAXIS_P_H

#include <ko/qtToolkit/charts/QtChartsCompat_p.h>
#include <ko/qtToolkit/qtToolkit_export.h>

#include <QtCharts/private/polarchartaxis_p.h>

namespace ko::qtToolkit::charts {

/**
 * \brief The element of a LinearAxis or LogarithmicAxis on a polar chart: it draws nothing.
 *
 * The library's axes are drawn on cartesian charts only. Qt Charts' presenter and polar layout
 * still expect every axis to have a polar element, so this one takes part in the layout without
 * asking for room and never creates an item.
 */
class KO_QTTOOLKIT_EXPORT EmptyPolarAxis : public QtCharts::PolarChartAxis
{
    Q_OBJECT

public:
    /// The element of \a axis, with \a item as parent of its (empty) groups; neither is owned.
    EmptyPolarAxis(QtCharts::QAbstractAxis *axis, QGraphicsItem *item);
    ~EmptyPolarAxis() override;

    /// Any radius the layout offers.
    qreal preferredAxisRadius(const QSizeF &maxSize) override;
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;

    void handleArrowPenChanged(const QPen &pen) override;
    void handleGridPenChanged(const QPen &pen) override;
    void handleMinorArrowPenChanged(const QPen &pen) override;
    void handleMinorGridPenChanged(const QPen &pen) override;
    void handleMinorGridLineColorChanged(const QColor &color) override;
    void handleGridLineColorChanged(const QColor &color) override;

protected:
    QVector<qreal> calculateLayout() const override;
    void createItems(int count) override;
    void createAxisLabels(const QVector<qreal> &layout) override;
    void updateMinorTickItems() override;
};

} // namespace ko::qtToolkit::charts

#endif
