// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/TableWidget.h>

#include <ko/qtToolkit/widget/HeaderViewWidget_p.h>

namespace ko::qtToolkit::widget {

class TableWidgetPrivate : public QObject
{
public:
    explicit TableWidgetPrivate(TableWidget *table);

    HeaderViewWidget *header(Qt::Orientation orientation);
    QWidget *cornerWidget() const;
    void setTopLeftCornerWidget(QWidget *widget);
    void placeTopLeftCornerWidget();

    TableWidget *const table;
    HeaderViewWidget horizontalHeader;
    HeaderViewWidget verticalHeader;
    QPointer<QWidget> topLeftCornerWidget;
};

TableWidgetPrivate::TableWidgetPrivate(TableWidget *table)
    : table(table)
    , horizontalHeader(Qt::Horizontal, table)
    , verticalHeader(Qt::Vertical, table)
{
    table->setHorizontalHeader(&horizontalHeader);
    table->setVerticalHeader(&verticalHeader);
    // Placing the corner widget does nothing while there is none, so one connection serves all.
    connect(&horizontalHeader, &QHeaderView::geometriesChanged, this, [this] { placeTopLeftCornerWidget(); });
    connect(&verticalHeader, &QHeaderView::geometriesChanged, this, [this] { placeTopLeftCornerWidget(); });
}

HeaderViewWidget *TableWidgetPrivate::header(Qt::Orientation orientation)
{
    switch (orientation) {
    case Qt::Horizontal:
        return &horizontalHeader;
    case Qt::Vertical:
        return &verticalHeader;
    }
    return nullptr;
}

// Like the header widgets, the corner widget is the table's while the table is its parent.
QWidget *TableWidgetPrivate::cornerWidget() const
{
    return topLeftCornerWidget && topLeftCornerWidget->parentWidget() == table ? topLeftCornerWidget.data() : nullptr;
}

void TableWidgetPrivate::setTopLeftCornerWidget(QWidget *widget)
{
    QWidget *previous = cornerWidget();
    if (previous != widget)
        delete previous;
    table->setCornerButtonEnabled(widget != nullptr);
    topLeftCornerWidget = widget;
    if (!widget)
        return;
    if (widget->parentWidget() != table)
        widget->setParent(table);
    placeTopLeftCornerWidget();
}

void TableWidgetPrivate::placeTopLeftCornerWidget()
{
    if (QWidget *widget = cornerWidget())
        widget->setGeometry(0, 0, verticalHeader.width(), horizontalHeader.height());
}

TableWidget::TableWidget(QWidget *parent)
    : QTableWidget(parent)
    , d(std::make_unique<TableWidgetPrivate>(this))
{
}

TableWidget::~TableWidget() = default;

void TableWidget::setWidgetForHeaderSection(int section, Qt::Orientation orientation, QWidget *widget)
{
    HeaderViewWidget *header = d->header(orientation);
    if (!header)
        return;
    const QSize size = headerSectionSize(orientation);
    header->setDefaultSectionSize(orientation == Qt::Horizontal ? size.width() : size.height());
    header->setSectionWidget(section, widget);
}

QWidget *TableWidget::widgetForHeaderSection(int section, Qt::Orientation orientation) const
{
    const HeaderViewWidget *header = d->header(orientation);
    return header ? header->sectionWidget(section) : nullptr;
}

void TableWidget::setTopLeftCornerWidget(QWidget *widget)
{
    d->setTopLeftCornerWidget(widget);
}

QWidget *TableWidget::topLeftCornerWidget() const
{
    return d->cornerWidget();
}

void TableWidget::clear()
{
    d->horizontalHeader.clearSectionWidgets();
    d->verticalHeader.clearSectionWidgets();
    QTableWidget::clear();
}

void TableWidget::scrollContentsBy(int dx, int dy)
{
    QTableWidget::scrollContentsBy(dx, dy);
    if (dx != 0)
        d->horizontalHeader.repositionSectionWidgets();
    else
        d->verticalHeader.repositionSectionWidgets();
}

} // namespace ko::qtToolkit::widget
