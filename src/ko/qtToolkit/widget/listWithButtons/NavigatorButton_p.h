#ifndef KO_QTTOOLKIT_WIDGET_LISTWITHBUTTONS_NAVIGATORBUTTON_P_H
#define KO_QTTOOLKIT_WIDGET_LISTWITHBUTTONS_NAVIGATORBUTTON_P_H

#include <ko/qtToolkit/widget/listWithButtons/Direction.h>

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

} // namespace ko::qtToolkit::widget::listWithButtons

#endif
