// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/listWithButtons/NavigatorButtonNext.h>

#include <ko/qtToolkit/widget/listWithButtons/NavigatorButton_p.h>

namespace ko::qtToolkit::widget::listWithButtons {

NavigatorButtonNext::NavigatorButtonNext(const QString &testId, Direction direction, QScrollBar &scrollBar,
                                         QWidget *parent)
    : NavigatorButton(testId, scrollBar, makeDirectionSpecifics(direction), parent)
{
    setArrowType(this, arrowTypes(direction).next);
}

NavigatorButton::DirectionSpecifics NavigatorButtonNext::makeDirectionSpecifics(Direction direction)
{
    return steppingSpecifics(direction, QAbstractSlider::SliderSingleStepAdd);
}

} // namespace ko::qtToolkit::widget::listWithButtons
