// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGET_LISTWITHBUTTONS_WIDGETBASE_H
#define KO_QTTOOLKIT_WIDGET_LISTWITHBUTTONS_WIDGETBASE_H

#include <ko/qtToolkit/qtToolkit_export.h>
#include <ko/qtToolkit/widget/listWithButtons/Direction.h>
#include <ko/qtToolkit/widget/listWithButtons/ListWrapper.h>

#include <memory>

class QBoxLayout;

namespace ko::qtToolkit::widget::listWithButtons {

class NavigatorButton;
class WidgetBasePrivate;

/**
 * \brief A list framed by a previous and a next navigator button, in a row or a column.
 *
 * The buttons step the list's scroll bar in the given direction (horizontal or vertical) and are
 * disabled at its ends. Their "TestID"s are the list's identifier followed by ".PrevButton" and
 * ".NextButton". A list laid out horizontally also needs its items to flow from left to right
 * (QListView::setFlow() of getList()).
 */
class KO_QTTOOLKIT_EXPORT WidgetBase : public ListWrapper
{
    Q_OBJECT

public:
    /**
     * \brief Builds the list and its buttons, laid out without margins or spacing.
     * \param testId the list's "TestID" (see ListWrapper).
     * \param direction a row of previous button, list and next button for Direction::Horizontal,
     *        a column otherwise.
     * \param parent the parent widget, which owns this widget.
     */
    WidgetBase(const QString &testId, Direction direction, QWidget *parent = nullptr);
    ~WidgetBase() override;

protected:
    /**
     * \brief Installs a new box layout on this widget, which owns it.
     * \return a QHBoxLayout for Direction::Horizontal, a QVBoxLayout otherwise.
     */
    QBoxLayout *createLayout(Direction direction);

private:
    std::unique_ptr<WidgetBasePrivate> const d;
};

} // namespace ko::qtToolkit::widget::listWithButtons

#endif
