// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGET_LISTWITHBUTTONS_NAVIGATORBUTTONNEXT_H
#define KO_QTTOOLKIT_WIDGET_LISTWITHBUTTONS_NAVIGATORBUTTONNEXT_H

#include <ko/qtToolkit/widget/listWithButtons/NavigatorButton.h>

namespace ko::qtToolkit::widget::listWithButtons {

/**
 * \brief The navigator button that scrolls a list towards its maximum.
 *
 * Its "arrowType" is "right" for a horizontal list, "down" for a vertical one.
 * It is disabled at the scroll bar's maximum.
 */
class KO_QTTOOLKIT_EXPORT NavigatorButtonNext : public NavigatorButton
{
public:
    /**
     * \brief Builds the button for a list laid out in \a direction.
     * \param testId the button's "TestID".
     * \param direction the direction of the list.
     * \param scrollBar the list's scroll bar in that direction; not owned. The button follows
     *        the list's new scroll bar when the list replaces it (see NavigatorButton).
     * \param parent the parent widget, which owns the button.
     */
    NavigatorButtonNext(const QString &testId, Direction direction, QScrollBar &scrollBar,
                        QWidget *parent = nullptr);

    /**
     * \brief What a press does: step the scroll bar forward by its single step (one row of a list
     *        scrolled per item); the limit is the scroll bar's maximum.
     */
    static DirectionSpecifics makeDirectionSpecifics(Direction direction);
};

} // namespace ko::qtToolkit::widget::listWithButtons

#endif
