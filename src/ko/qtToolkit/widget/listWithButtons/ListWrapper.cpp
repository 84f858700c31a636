// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/listWithButtons/ListWrapper.h>

#include <QVariant>

namespace ko::qtToolkit::widget::listWithButtons {

class ListWrapperPrivate
{
public:
    explicit ListWrapperPrivate(ListWrapper *q)
        : list(q)
    {
    }

    // Held by value: the list goes with this object, before QWidget deletes the wrapper's
    // children.
    ListWidget list;
};

ListWrapper::ListWrapper(const QString &testId, QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<ListWrapperPrivate>(this))
{
    setProperty("TestID", QString(testId + QLatin1String("Wrapper")));
    d->list.setProperty("TestID", testId);
    connect(&d->list, &QListWidget::currentRowChanged, this, &ListWrapper::currentRowChanged);
}

ListWrapper::~ListWrapper() = default;

void ListWrapper::addItem(QAbstractButton *button)
{
    d->list.addItem(button);
}

void ListWrapper::insertItem(int row, QAbstractButton *button)
{
    d->list.insertItem(row, button);
}

void ListWrapper::insertItem(int row, QListWidgetItem *item)
{
    d->list.QListWidget::insertItem(row, item);
}

void ListWrapper::removeItem(QAbstractButton *button)
{
    d->list.removeItem(button);
}

QAbstractButton *ListWrapper::takeItem(int row)
{
    return d->list.takeItem(row);
}

QListWidgetItem *ListWrapper::item(int row) const
{
    return d->list.item(row);
}

QWidget *ListWrapper::widget(int row) const
{
    return d->list.widget(row);
}

int ListWrapper::row(QAbstractButton *button) const
{
    return d->list.row(button);
}

int ListWrapper::count() const
{
    return d->list.count();
}

void ListWrapper::clear()
{
    d->list.clear();
}

void ListWrapper::instrument()
{
    d->list.instrument();
}

void ListWrapper::setCurrentRow(int row)
{
    d->list.setCurrentRow(row);
}

void ListWrapper::setSelectionMode(QAbstractItemView::SelectionMode mode)
{
    d->list.setSelectionMode(mode);
}

void ListWrapper::setDragDropMode(QAbstractItemView::DragDropMode mode)
{
    d->list.setDragDropMode(mode);
}

void ListWrapper::setItemDelegate(QAbstractItemDelegate *delegate)
{
    d->list.setItemDelegate(delegate);
}

void ListWrapper::setSpacing(int spacing)
{
    d->list.setSpacing(spacing);
}

ListWidget *ListWrapper::getList()
{
    return &d->list;
}

const ListWidget *ListWrapper::getList() const
{
    return &d->list;
}

} // namespace ko::qtToolkit::widget::listWithButtons
