#include <ko/qtToolkit/widget/listWithButtons/NavigatorButton.h>

#include <QScrollBar>
#include <QVariant>

namespace ko::qtToolkit::widget::listWithButtons {

NavigatorButton::NavigatorButton(const QString &testId, QScrollBar &scrollBar, DirectionSpecifics specifics,
                                 QWidget *parent)
    : QPushButton(parent)
    , scrollBar(scrollBar)
    , specifics(std::move(specifics))
{
    setProperty("TestID", testId);
    setFocusPolicy(Qt::NoFocus);
    // The button spans the list's thickness; its length along the list comes from the style.
    if (this->specifics.direction == Direction::Horizontal)
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    else
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);

    connect(this, &QAbstractButton::clicked, this, [this] { this->specifics.scroll(this->scrollBar); });
    connect(&scrollBar, &QAbstractSlider::rangeChanged, this, &NavigatorButton::updateNavigator);
    connect(&scrollBar, &QAbstractSlider::valueChanged, this, &NavigatorButton::updateNavigator);
    updateNavigator();
}

NavigatorButton::~NavigatorButton() = default;

void NavigatorButton::updateNavigator()
{
    changeEnabledState();
    showOrHideNavigatorIfNeeded();
}

void NavigatorButton::changeEnabledState()
{
    setEnabled(scrollBar.value() != specifics.limit(scrollBar));
}

void NavigatorButton::showOrHideNavigatorIfNeeded()
{
    setVisible(!hideIfScrollBarWouldHide || scrollBar.minimum() != scrollBar.maximum());
}

void NavigatorButton::setHideIfScrollBarWouldHide(bool hide)
{
    hideIfScrollBarWouldHide = hide;
}

} // namespace ko::qtToolkit::widget::listWithButtons
