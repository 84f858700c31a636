// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGET_LISTWITHBUTTONS_LISTWRAPPER_H
#define KO_QTTOOLKIT_WIDGET_LISTWITHBUTTONS_LISTWRAPPER_H

#include <ko/qtToolkit/qtToolkit_export.h>
#include <ko/qtToolkit/widget/ListWidget.h>

#include <QWidget>

#include <memory>

class QAbstractButton;
class QAbstractItemDelegate;
class QListWidgetItem;

namespace ko::qtToolkit::widget::listWithButtons {

class ListWrapperPrivate;

/**
 * \brief A widget that owns a ListWidget and forwards the list's operations.
 *
 * The wrapper installs no layout of its own: WidgetBase lays the list out between navigator
 * buttons.
 */
class KO_QTTOOLKIT_EXPORT ListWrapper : public QWidget
{
    Q_OBJECT

public:
    /**
     * \brief Builds the wrapper and its list.
     * \param testId the list's "TestID"; the wrapper's is \a testId followed by "Wrapper".
     * \param parent the parent widget, which owns the wrapper.
     */
    explicit ListWrapper(const QString &testId, QWidget *parent = nullptr);
    ~ListWrapper() override;

    /// \brief ListWidget::addItem(): \a button is owned by the list.
    void addItem(QAbstractButton *button);
    /// \brief ListWidget::insertItem(): the row is always appended; \a button is owned by the list.
    void insertItem(int row, QAbstractButton *button);
    /// \brief QListWidget::insertItem(): a plain row without button; \a item is owned by the list.
    void insertItem(int row, QListWidgetItem *item);
    /// \brief ListWidget::removeItem(): removes the row of \a button and deletes \a button.
    void removeItem(QAbstractButton *button);
    /// \brief ListWidget::takeItem(): removes \a row; its button, returned, belongs to the caller.
    QAbstractButton *takeItem(int row);
    /// \brief QListWidget::item(): the item of \a row, owned by the list, or null.
    QListWidgetItem *item(int row) const;
    /// \brief ListWidget::widget(): the item widget of \a row, or null.
    QWidget *widget(int row) const;
    /// \brief ListWidget::row(): the row of \a button, or -1.
    int row(QAbstractButton *button) const;
    /// \brief QListWidget::count(): the number of rows.
    int count() const;
    /// \brief ListWidget::clear(): removes all rows.
    void clear();
    /// \brief ListWidget::instrument(): gives the rows' buttons their "TestID".
    void instrument();
    /// \brief QListWidget::setCurrentRow(), which checks the row's button.
    void setCurrentRow(int row);
    /// \brief QAbstractItemView::setSelectionMode() of the list.
    void setSelectionMode(QAbstractItemView::SelectionMode mode);
    /// \brief QAbstractItemView::setDragDropMode() of the list.
    void setDragDropMode(QAbstractItemView::DragDropMode mode);
    /// \brief QAbstractItemView::setItemDelegate(): \a delegate is not owned by the list.
    void setItemDelegate(QAbstractItemDelegate *delegate);
    /// \brief QListView::setSpacing() of the list.
    void setSpacing(int spacing);

    /// \brief The list itself, owned by the wrapper.
    ListWidget *getList();
    /// \brief The list itself, owned by the wrapper.
    const ListWidget *getList() const;

Q_SIGNALS:
    /**
     * \brief The list's current row changed to \a row (-1: no current row).
     *
     * Relays QListWidget::currentRowChanged() of the list.
     */
    void currentRowChanged(int row);

private:
    std::unique_ptr<ListWrapperPrivate> const d;
};

} // namespace ko::qtToolkit::widget::listWithButtons

#endif
