// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGET_LISTWITHBUTTONS_NAVIGATORBUTTONPREVIOUS_H
#define KO_QTTOOLKIT_WIDGET_LISTWITHBUTTONS_NAVIGATORBUTTONPREVIOUS_H

#include <ko/qtToolkit/widget/listWithButtons/NavigatorButton.h>

namespace ko::qtToolkit::widget::listWithButtons {

/**
 * \brief The navigator button that scrolls a list towards its minimum.
 *
 * Its "arrowType" is "left" for a horizontal list, "up" for a vertical one.
 * It is disabled at the scroll bar's minimum.
 */
class KO_QTTOOLKIT_EXPORT NavigatorButtonPrevious : public NavigatorButton
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
    NavigatorButtonPrevious(const QString &testId, Direction direction, QScrollBar &scrollBar,
                            QWidget *parent = nullptr);

    /**
     * \brief What a press does: step the scroll bar back by its single step (one row of a list
     *        scrolled per item); the limit is the scroll bar's minimum.
     */
    static DirectionSpecifics makeDirectionSpecifics(Direction direction);
};

} // namespace ko::qtToolkit::widget::listWithButtons

#endif
