// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/ListWidget.h>

#include <QtWidgets/private/qabstractitemview_p.h>

#include <QAbstractButton>
#include <QButtonGroup>
#include <QHash>

namespace ko::qtToolkit::widget {

class ListWidgetPrivate
{
public:
    explicit ListWidgetPrivate(ListWidget *owner)
        : owner(owner)
    {
    }

    void checkButtonOfRow(int row) const;
    void followClickedButton(QAbstractButton *button) const;
    void followCheckedButton(QAbstractButton *button, bool checked) const;

    ListWidget *const owner;
    QButtonGroup group;
    QHash<QAbstractButton *, QListWidgetItem *> items;
};

void ListWidgetPrivate::checkButtonOfRow(int row) const
{
    if (row < 0)
        return;
    if (auto *button = qobject_cast<QAbstractButton *>(owner->widget(row)))
        button->setChecked(true);
}

void ListWidgetPrivate::followCheckedButton(QAbstractButton *button, bool checked) const
{
    if (checked)
        owner->setCurrentRow(owner->QListWidget::row(items.value(button)));
}

void ListWidgetPrivate::followClickedButton(QAbstractButton *button) const
{
    // A button stays checked when no row, or a row without a button, becomes current; pressing
    // it then toggles nothing, but still makes its row current.
    if (button->isChecked())
        owner->setCurrentRow(owner->QListWidget::row(items.value(button)));
}

namespace {

// Qt keeps index widgets in the item view's editor registry: it deletes every registered widget
// whose row goes away, and lays out every registered widget, dead or alive. Taking a widget out
// of the registry lets it outlive its row, or its row outlive it.
// Qt does not export the type information of its private classes, which the undefined-behaviour
// sanitizer's check of the downcast would need.
#if defined(__GNUC__)
__attribute__((no_sanitize("vptr")))
#endif
void forgetIndexWidget(QAbstractItemView *view, QWidget *widget)
{
    auto *viewPrivate = static_cast<QAbstractItemViewPrivate *>(QObjectPrivate::get(view));
    const auto it = viewPrivate->editorIndexHash.find(widget);
    if (it != viewPrivate->editorIndexHash.end()) {
        viewPrivate->indexEditorHash.remove(it.value());
        viewPrivate->editorIndexHash.erase(it);
    }
    // A persistent widget that gains focus would make its (now invalid) index current.
    viewPrivate->persistent.remove(widget);
}

void releaseIndexWidget(QAbstractItemView *view, QWidget *widget)
{
    forgetIndexWidget(view, widget);
    widget->removeEventFilter(view);
}

// The list whose row \a button is, if any: a row's button lives in its list's viewport.
const ListWidget *listOf(QAbstractButton *button)
{
    const QWidget *viewport = button->parentWidget();
    const auto *list = viewport ? dynamic_cast<const ListWidget *>(viewport->parentWidget()) : nullptr;
    return list && list->row(button) >= 0 ? list : nullptr;
}

} // namespace

ListWidget::ListWidget(QWidget *parent)
    : QListWidget(parent)
    , d(std::make_unique<ListWidgetPrivate>(this))
{
    setSelectionMode(QAbstractItemView::SingleSelection);
    setFocusPolicy(Qt::NoFocus);
    connect(this, &QListWidget::currentRowChanged, this,
            [this](int row) { d->checkButtonOfRow(row); });
    connect(&d->group, qOverload<QAbstractButton *, bool>(&QButtonGroup::buttonToggled), this,
            [this](QAbstractButton *button, bool checked) { d->followCheckedButton(button, checked); });
    connect(&d->group, qOverload<QAbstractButton *>(&QButtonGroup::buttonClicked), this,
            [this](QAbstractButton *button) { d->followClickedButton(button); });
}

ListWidget::~ListWidget()
{
    // Qt deletes the rows and their buttons after this body has run, when the private part is
    // already gone; a change of the current row reported then must not reach it.
    disconnect(this, &QListWidget::currentRowChanged, this, nullptr);
}

void ListWidget::addItem(QAbstractButton *button)
{
    insertItem(-1, button);
}

void ListWidget::insertItem(int row, QAbstractButton *button)
{
    if (!button) {
        qWarning("ListWidget::addItem: cannot add null widget");
        return;
    }
    if (d->items.contains(button)) {
        qWarning("ListWidget::addItem: widget already in the list");
        return;
    }
    // Both lists would own it, and removing it from one would leave the other a dead row.
    if (listOf(button)) {
        qWarning("ListWidget::addItem: widget already in another list");
        return;
    }

    auto *item = new QListWidgetItem(this, QListWidgetItem::Type);
    item->setSizeHint(button->sizeHint());
    // The item already belongs to this view, which Qt's insertItem leaves where it was appended:
    // every new row is the last one.
    QListWidget::insertItem(row, item);

    setItemWidget(item, button);
    d->items.insert(button, item);
    d->group.addButton(button, -1);
    button->setFocusPolicy(Qt::NoFocus);
    // A button the application deletes itself leaves an empty row behind. Qt's item view would
    // keep the dead widget as the row's editor and use it at the next layout; forget it there
    // and here, so that its address may also be added again.
    connect(button, &QObject::destroyed, &d->group, [this, button] {
        forgetIndexWidget(this, button);
        d->items.remove(button);
    });
}

void ListWidget::removeItem(QAbstractButton *button)
{
    if (!button) {
        qWarning("ListWidget::removeItem: cannot remove null widget");
        return;
    }
    const auto it = d->items.constFind(button);
    if (it == d->items.cend()) {
        qWarning("ListWidget::addItem: widget not in the list");
        return;
    }

    const int buttonRow = QListWidget::row(it.value());
    d->items.erase(it);
    d->group.removeButton(button);
    delete takeItem(buttonRow);
}

QAbstractButton *ListWidget::takeItem(int row)
{
    auto *button = qobject_cast<QAbstractButton *>(widget(row));
    if (!button)
        return nullptr;

    releaseIndexWidget(this, button);
    delete QListWidget::takeItem(row);
    d->items.remove(button);
    d->group.removeButton(button);
    disconnect(button, &QObject::destroyed, &d->group, nullptr);
    return button;
}

QWidget *ListWidget::widget(int row) const
{
    return itemWidget(item(row));
}

int ListWidget::row(QAbstractButton *button) const
{
    return QListWidget::row(d->items.value(button));
}

void ListWidget::clear()
{
    QListWidget::clear();
    d->items.clear();
}

void ListWidget::instrument()
{
    const QString id = property("TestID").toString();
    // Without an identifier the empty one fills the row's marker and the row number finds none
    // left, so every button gets "Row.".
    const QString pattern = id.isNull() ? QStringLiteral("Row.%2") : QStringLiteral("%1.Row.%2");
    for (int i = 0; i < count(); ++i) {
        if (QWidget *rowWidget = widget(i))
            rowWidget->setProperty("TestID", pattern.arg(id).arg(i));
    }
}

} // namespace ko::qtToolkit::widget
