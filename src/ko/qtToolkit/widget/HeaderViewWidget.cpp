// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/HeaderViewWidget_p.h>

#include <ko/qtToolkit/widget/TableWidget.h>

namespace ko::qtToolkit::widget {

HeaderViewWidget::HeaderViewWidget(Qt::Orientation orientation, QWidget *parent)
    : QHeaderView(orientation, parent)
{
    connect(this, &QHeaderView::sectionResized, this,
            [this](int logicalIndex) { repositionFromVisualIndex(visualIndex(logicalIndex)); });
    connect(this, &QHeaderView::sectionMoved, this, [this](int, int oldVisualIndex, int newVisualIndex) {
        repositionFromVisualIndex(qMin(oldVisualIndex, newVisualIndex));
    });
}

HeaderViewWidget::~HeaderViewWidget() = default;

QSize HeaderViewWidget::sizeHint() const
{
    if (const auto *table = dynamic_cast<const TableWidget *>(parentWidget()))
        return table->headerSectionSize(orientation());
    return QHeaderView::sizeHint();
}

QWidget *HeaderViewWidget::sectionWidget(int section) const
{
    const auto it = sectionWidgets.find(section);
    if (it == sectionWidgets.end() || !it->second || it->second->parentWidget() != this)
        return nullptr;
    return it->second;
}

void HeaderViewWidget::setSectionWidget(int section, QWidget *widget)
{
    QWidget *previous = sectionWidget(section);
    if (previous != widget)
        delete previous;
    if (widget) {
        // A widget lives in one section at most.
        for (auto &entry : sectionWidgets) {
            if (entry.first != section && entry.second == widget)
                entry.second = nullptr;
        }
        if (widget->parentWidget() != this)
            widget->setParent(this);
    }
    sectionWidgets[section] = widget;
}

void HeaderViewWidget::clearSectionWidgets()
{
    for (const auto &entry : sectionWidgets) {
        if (entry.second && entry.second->parentWidget() == this)
            delete entry.second;
    }
    sectionWidgets.clear();
}

void HeaderViewWidget::repositionSectionWidgets()
{
    for (int section = 0; section < count(); ++section)
        placeSectionWidget(section);
}

void HeaderViewWidget::paintEvent(QPaintEvent *)
{
}

void HeaderViewWidget::showEvent(QShowEvent *event)
{
    for (int visual = 0; visual < count(); ++visual) {
        const int section = logicalIndex(visual);
        if (QWidget *widget = sectionWidget(section)) {
            placeSectionWidget(section);
            widget->show();
        }
    }
    QHeaderView::showEvent(event);
}

void HeaderViewWidget::placeSectionWidget(int section)
{
    QWidget *widget = sectionWidget(section);
    if (!widget)
        return;
    const int position = sectionViewportPosition(section);
    const int size = sectionSize(section);
    if (orientation() == Qt::Horizontal)
        widget->setGeometry(position, 0, size, height());
    else
        widget->setGeometry(0, position, width(), size);
}

// Sections before the first one that changed keep their place.
void HeaderViewWidget::repositionFromVisualIndex(int visualIndex)
{
    for (int visual = qMax(0, visualIndex); visual < count(); ++visual)
        placeSectionWidget(logicalIndex(visual));
}

} // namespace ko::qtToolkit::widget
