// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/listWithButtons/WidgetBase.h>

#include <ko/qtToolkit/widget/listWithButtons/NavigatorButtonNext.h>
#include <ko/qtToolkit/widget/listWithButtons/NavigatorButtonPrevious.h>

#include <QBoxLayout>
#include <QScrollBar>

namespace ko::qtToolkit::widget::listWithButtons {

namespace {

QScrollBar &scrollBarOf(ListWidget &list, Direction direction)
{
    return *(direction == Direction::Horizontal ? list.horizontalScrollBar() : list.verticalScrollBar());
}

} // namespace

class WidgetBasePrivate
{
public:
    QBoxLayout *boxLayout = nullptr;
    NavigatorButton *previousButton = nullptr;
    NavigatorButton *nextButton = nullptr;
};

WidgetBase::WidgetBase(const QString &testId, Direction direction, QWidget *parent)
    : ListWrapper(testId, parent)
    , d(std::make_unique<WidgetBasePrivate>())
{
    d->boxLayout = createLayout(direction);
    d->previousButton = new NavigatorButtonPrevious(testId + QLatin1String(".PrevButton"), direction,
                                                    scrollBarOf(*getList(), direction), this);
    d->nextButton = new NavigatorButtonNext(testId + QLatin1String(".NextButton"), direction,
                                            scrollBarOf(*getList(), direction), this);
    d->boxLayout->addWidget(d->previousButton);
    d->boxLayout->addWidget(getList());
    d->boxLayout->addWidget(d->nextButton);
    d->boxLayout->setContentsMargins(0, 0, 0, 0);
    d->boxLayout->setSpacing(0);
}

WidgetBase::~WidgetBase()
{
    // The list, and with it the scroll bar the buttons hold on to, belongs to the base class and
    // is destroyed before Qt deletes this widget's children: the buttons go first.
    delete d->previousButton;
    delete d->nextButton;
}

QBoxLayout *WidgetBase::createLayout(Direction direction)
{
    if (direction == Direction::Horizontal)
        return new QHBoxLayout(this);
    return new QVBoxLayout(this);
}

} // namespace ko::qtToolkit::widget::listWithButtons
