// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGET_LISTWITHBUTTONS_NAVIGATORBUTTON_P_H
#define KO_QTTOOLKIT_WIDGET_LISTWITHBUTTONS_NAVIGATORBUTTON_P_H

#include <ko/qtToolkit/widget/listWithButtons/Direction.h>
#include <ko/qtToolkit/widget/listWithButtons/NavigatorButton.h>

#include <QScrollBar>
#include <QStyle>
#include <QVariant>

namespace ko::qtToolkit::widget::listWithButtons {

// Values of the "arrowType" style hook, from which the style sheet draws a navigator button's
// arrow: one pair for each direction, shared by both kinds of button.
struct ArrowTypes
{
    const char *previous;
    const char *next;
};

constexpr ArrowTypes horizontalArrowTypes{"left", "right"};
constexpr ArrowTypes verticalArrowTypes{"up", "down"};

constexpr const ArrowTypes &arrowTypes(Direction direction)
{
    return direction == Direction::Horizontal ? horizontalArrowTypes : verticalArrowTypes;
}

// What the two kinds of navigator button share: a press triggers \a action, one single step
// towards one end of the scroll bar, and that end is the limit.
inline NavigatorButton::DirectionSpecifics steppingSpecifics(Direction direction,
                                                             QAbstractSlider::SliderAction action)
{
    const bool forward = action == QAbstractSlider::SliderSingleStepAdd;
    return {direction, [action](QScrollBar &scrollBar) { scrollBar.triggerAction(action); },
            [forward](QScrollBar &scrollBar) { return forward ? scrollBar.maximum() : scrollBar.minimum(); }};
}

// Gives \a button the arrow of its kind. The button was polished when it was first shown, in
// its base's constructor; a style sheet matches the new "arrowType" only once it is polished again.
inline void setArrowType(NavigatorButton *button, const char *arrowType)
{
    button->setProperty("arrowType", QString::fromLatin1(arrowType));
    button->style()->unpolish(button);
    button->style()->polish(button);
}

} // namespace ko::qtToolkit::widget::listWithButtons

#endif
