#include <ko/qtToolkit/widget/listWithButtons/NavigatorButtonPrevious.h>

#include <ko/qtToolkit/widget/listWithButtons/NavigatorButton_p.h>

#include <QScrollBar>
#include <QVariant>

namespace ko::qtToolkit::widget::listWithButtons {

NavigatorButtonPrevious::NavigatorButtonPrevious(const QString &testId, Direction direction, QScrollBar &scrollBar,
                                                 QWidget *parent)
    : NavigatorButton(testId, scrollBar, makeDirectionSpecifics(direction), parent)
{
    setProperty("arrowType", QString::fromLatin1(arrowTypes(direction).previous));
}

NavigatorButton::DirectionSpecifics NavigatorButtonPrevious::makeDirectionSpecifics(Direction direction)
{
    return {direction,
            [](QScrollBar &scrollBar) { scrollBar.triggerAction(QAbstractSlider::SliderSingleStepSub); },
            [](QScrollBar &scrollBar) { return scrollBar.minimum(); }};
}

} // namespace ko::qtToolkit::widget::listWithButtons
