// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGET_LISTWIDGET_H
#define KO_QTTOOLKIT_WIDGET_LISTWIDGET_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QListWidget>

#include <memory>

class QAbstractButton;

namespace ko::qtToolkit::widget {

class ListWidgetPrivate;

/**
 * \brief A single-choice list whose rows are buttons.
 *
 * Every row carries an application-supplied button as its item widget. The buttons form one
 * exclusive group, and the list's current row and the checked button follow each other: clicking
 * a row's button makes its row current, making a row current checks its button. Give the list
 * checkable buttons, unchecked when they are added: adding a button does not check or select
 * anything.
 *
 * The row operations below hide the QListWidget members of the same names (those are not
 * virtual); through a QListWidget pointer Qt's own versions are reached. The list takes no
 * keyboard focus and selects single rows.
 */
class KO_QTTOOLKIT_EXPORT ListWidget : public QListWidget
{
public:
    /**
     * \brief Builds an empty list.
     * \param parent the parent widget, which owns the list; may be null.
     */
    explicit ListWidget(QWidget *parent = nullptr);
    ~ListWidget() override;

    /**
     * \brief Adds a row carrying \a button as the last row.
     * \param button the row's button; the list takes ownership. A null button, or one already in
     *        the list, is refused with a warning.
     */
    void addItem(QAbstractButton *button);

    /**
     * \brief Adds a row carrying \a button; behaves exactly as addItem().
     *
     * The new row always becomes the last row, whatever \a row says.
     * \param row ignored.
     * \param button the row's button; the list takes ownership. A null button, or one already in
     *        the list, is refused with a warning that names addItem.
     */
    void insertItem(int row, QAbstractButton *button);

    /**
     * \brief Removes the row of \a button and deletes \a button.
     * \param button a button of this list; a null button, or one not in the list, is refused
     *        with a warning.
     */
    void removeItem(QAbstractButton *button);

    /**
     * \brief Removes \a row and hands its button back, undeleted.
     *
     * The button stays a child of the list's viewport until the caller re-parents or deletes it.
     * \return the row's button, now owned by the caller; null when \a row does not exist or
     *         carries no button, and then the list is left as it was.
     */
    QAbstractButton *takeItem(int row);

    /**
     * \brief The item widget of \a row.
     * \return the widget, or null when \a row does not exist or has no widget.
     */
    QWidget *widget(int row) const;

    /**
     * \brief The row of \a button.
     * \return the row number from 0, or -1 when \a button is not in the list.
     */
    int row(QAbstractButton *button) const;

    /**
     * \brief Removes all rows; their buttons are deleted once control returns to the event loop.
     */
    void clear();

    /**
     * \brief Gives every row's button its automation identifier.
     *
     * The button of row \e n gets the "TestID" "<list's TestID>.Row.<n>"; when the list has no
     * "TestID" every button gets "Row.". Identifiers are set once, at the call: call again after
     * adding rows or changing the list's identifier.
     */
    void instrument();

private:
    std::unique_ptr<ListWidgetPrivate> const d;
};

} // namespace ko::qtToolkit::widget

#endif
