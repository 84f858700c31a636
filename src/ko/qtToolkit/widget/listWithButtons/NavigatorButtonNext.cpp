#include <ko/qtToolkit/widget/listWithButtons/NavigatorButtonNext.h>

#include <ko/qtToolkit/widget/listWithButtons/NavigatorButton_p.h>

#include <QScrollBar>
#include <QVariant>

namespace ko::qtToolkit::widget::listWithButtons {

NavigatorButtonNext::NavigatorButtonNext(const QString &testId, Direction direction, QScrollBar &scrollBar,
                                         QWidget *parent)
    : NavigatorButton(testId, scrollBar, makeDirectionSpecifics(direction), parent)
{
    setProperty("arrowType", QString::fromLatin1(arrowTypes(direction).next));
}

NavigatorButton::DirectionSpecifics NavigatorButtonNext::makeDirectionSpecifics(Direction direction)
{
    return {direction,
            [](QScrollBar &scrollBar) { scrollBar.triggerAction(QAbstractSlider::SliderSingleStepAdd); },
            [](QScrollBar &scrollBar) { return scrollBar.maximum(); }};
}

} // namespace ko::qtToolkit::widget::listWithButtons
