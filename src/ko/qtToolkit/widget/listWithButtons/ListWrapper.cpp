#include <ko/qtToolkit/widget/listWithButtons/ListWrapper.h>

#include <QVariant>

namespace ko::qtToolkit::widget::listWithButtons {

ListWrapper::ListWrapper(const QString &testId, QWidget *parent)
    : QWidget(parent)
    , list(this)
{
    setProperty("TestID", QString(testId + QLatin1String("Wrapper")));
    list.setProperty("TestID", testId);
    connect(&list, &QListWidget::currentRowChanged, this, &ListWrapper::currentRowChanged);
}

ListWrapper::~ListWrapper() = default;

void ListWrapper::addItem(QAbstractButton *button)
{
    list.addItem(button);
}

void ListWrapper::insertItem(int row, QAbstractButton *button)
{
    list.insertItem(row, button);
}

void ListWrapper::insertItem(int row, QListWidgetItem *item)
{
    list.QListWidget::insertItem(row, item);
}

void ListWrapper::removeItem(QAbstractButton *button)
{
    list.removeItem(button);
}

QAbstractButton *ListWrapper::takeItem(int row)
{
    return list.takeItem(row);
}

QListWidgetItem *ListWrapper::item(int row) const
{
    return list.item(row);
}

QWidget *ListWrapper::widget(int row) const
{
    return list.widget(row);
}

int ListWrapper::row(QAbstractButton *button) const
{
    return list.row(button);
}

int ListWrapper::count() const
{
    return list.count();
}

void ListWrapper::clear()
{
    list.clear();
}

void ListWrapper::instrument()
{
    list.instrument();
}

void ListWrapper::setCurrentRow(int row)
{
    list.setCurrentRow(row);
}

void ListWrapper::setSelectionMode(QAbstractItemView::SelectionMode mode)
{
    list.setSelectionMode(mode);
}

void ListWrapper::setDragDropMode(QAbstractItemView::DragDropMode mode)
{
    list.setDragDropMode(mode);
}

void ListWrapper::setItemDelegate(QAbstractItemDelegate *delegate)
{
    list.setItemDelegate(delegate);
}

void ListWrapper::setSpacing(int spacing)
{
    list.setSpacing(spacing);
}

ListWidget *ListWrapper::getList()
{
    return &list;
}

const ListWidget *ListWrapper::getList() const
{
    return &list;
}

} // namespace ko::qtToolkit::widget::listWithButtons
