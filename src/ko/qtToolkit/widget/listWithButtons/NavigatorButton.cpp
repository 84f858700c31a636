// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/listWithButtons/NavigatorButton.h>

#include <QAbstractScrollArea>
#include <QPointer>
#include <QScrollBar>
#include <QVariant>

namespace ko::qtToolkit::widget::listWithButtons {

class NavigatorButtonPrivate
{
public:
    NavigatorButtonPrivate(NavigatorButton *q, QScrollBar &scrollBar, NavigatorButton::DirectionSpecifics specifics);

    void follow(QScrollBar *bar);
    void followReplacement();
    bool hasRange() const;

    NavigatorButton *const q;
    NavigatorButton::DirectionSpecifics specifics;
    const Qt::Orientation orientation;
    // The scroll area whose scroll bar the button drives, if any: an area deletes its scroll bar
    // when the application gives it another one.
    QPointer<QAbstractScrollArea> area;
    QPointer<QScrollBar> scrollBar;
    bool hideIfScrollBarWouldHide = false;
};

NavigatorButtonPrivate::NavigatorButtonPrivate(NavigatorButton *q, QScrollBar &scrollBar,
                                               NavigatorButton::DirectionSpecifics specifics)
    : q(q)
    , specifics(std::move(specifics))
    , orientation(scrollBar.orientation())
{
    for (QObject *ancestor = scrollBar.parent(); ancestor && !area; ancestor = ancestor->parent())
        area = qobject_cast<QAbstractScrollArea *>(ancestor);
}

void NavigatorButtonPrivate::follow(QScrollBar *bar)
{
    scrollBar = bar;
    if (!bar)
        return;
    QObject::connect(bar, &QAbstractSlider::rangeChanged, q, &NavigatorButton::updateNavigator);
    QObject::connect(bar, &QAbstractSlider::valueChanged, q, &NavigatorButton::updateNavigator);
    // The area is half torn down when its own scroll bars go with it; it is asked for the new
    // one once the deletion is over.
    QObject::connect(bar, &QObject::destroyed, q,
                     [this] { QMetaObject::invokeMethod(q, [this] { followReplacement(); }, Qt::QueuedConnection); });
}

void NavigatorButtonPrivate::followReplacement()
{
    if (scrollBar)
        return;
    if (area)
        follow(orientation == Qt::Horizontal ? area->horizontalScrollBar() : area->verticalScrollBar());
    q->updateNavigator();
}

bool NavigatorButtonPrivate::hasRange() const
{
    return scrollBar && scrollBar->minimum() != scrollBar->maximum();
}

NavigatorButton::NavigatorButton(const QString &testId, QScrollBar &scrollBar, DirectionSpecifics specifics,
                                 QWidget *parent)
    : QPushButton(parent)
    , d(std::make_unique<NavigatorButtonPrivate>(this, scrollBar, std::move(specifics)))
{
    setProperty("TestID", testId);
    setFocusPolicy(Qt::NoFocus);
    // The button spans the list's thickness; its length along the list comes from the style.
    if (d->specifics.direction == Direction::Horizontal)
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    else
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);

    connect(this, &QAbstractButton::clicked, this, [this] {
        if (d->scrollBar)
            d->specifics.scroll(*d->scrollBar);
    });
    d->follow(&scrollBar);
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
    setEnabled(d->scrollBar && d->scrollBar->value() != d->specifics.limit(*d->scrollBar));
}

void NavigatorButton::showOrHideNavigatorIfNeeded()
{
    setVisible(!d->hideIfScrollBarWouldHide || d->hasRange());
}

void NavigatorButton::setHideIfScrollBarWouldHide(bool hide)
{
    d->hideIfScrollBarWouldHide = hide;
}

} // namespace ko::qtToolkit::widget::listWithButtons
