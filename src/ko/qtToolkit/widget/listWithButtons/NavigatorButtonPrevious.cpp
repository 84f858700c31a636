// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/listWithButtons/NavigatorButtonPrevious.h>

#include <ko/qtToolkit/widget/listWithButtons/NavigatorButton_p.h>

namespace ko::qtToolkit::widget::listWithButtons {

NavigatorButtonPrevious::NavigatorButtonPrevious(const QString &testId, Direction direction, QScrollBar &scrollBar,
                                         QWidget *parent)
    : NavigatorButton(testId, scrollBar, makeDirectionSpecifics(direction), parent)
{
    setArrowType(this, arrowTypes(direction).previous);
}

NavigatorButton::DirectionSpecifics NavigatorButtonPrevious::makeDirectionSpecifics(Direction direction)
{
    return steppingSpecifics(direction, QAbstractSlider::SliderSingleStepSub);
}

} // namespace ko::qtToolkit::widget::listWithButtons
