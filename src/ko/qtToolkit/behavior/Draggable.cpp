// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/behavior/Draggable.h>

#include <ko/qtToolkit/common/EventPosition_p.h>

#include <QEvent>
#include <QMouseEvent>
#include <QWidget>

#include <algorithm>

namespace ko::qtToolkit::behavior {

class DraggablePrivate : public QObject
{
public:
    explicit DraggablePrivate(QWidget &widget);

    bool eventFilter(QObject *watched, QEvent *event) override;

    bool mouseEvent(const QMouseEvent &event);
    void constrainedMove(const QPoint &target);
    QPoint clampedToRect(const QPoint &point) const;

    QWidget *widget;
    bool dragging = false;
    QPoint lastGlobalPosition;
    bool constrained = false;
    QRect constrainedRect;
    QPoint constrainedOffset;
};

DraggablePrivate::DraggablePrivate(QWidget &widget)
    : widget(&widget)
{
}

bool DraggablePrivate::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != widget)
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        return mouseEvent(static_cast<const QMouseEvent &>(*event));
    case QEvent::Show:
        // Consumed in both cases: the widget's own showEvent() would place it elsewhere (a
        // QDialog centres itself over its parent).
        if (constrained)
            constrainedMove(constrainedRect.topLeft() + constrainedOffset);
        return true;
    default:
        return false;
    }
}

bool DraggablePrivate::mouseEvent(const QMouseEvent &event)
{
    if (event.modifiers() != Qt::NoModifier)
        return false;
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        if (event.button() == Qt::LeftButton && widget->rect().contains(event.pos())) {
            lastGlobalPosition = common::globalPoint(event);
            dragging = true;
        }
        break;
    case QEvent::MouseButtonRelease:
        if (event.button() == Qt::LeftButton) {
            lastGlobalPosition = QPoint();
            dragging = false;
        }
        break;
    case QEvent::MouseMove:
        if (dragging) {
            constrainedMove(widget->pos() + (common::globalPoint(event) - lastGlobalPosition));
            lastGlobalPosition = common::globalPoint(event);
        }
        break;
    default:
        break;
    }
    return false;
}

QPoint DraggablePrivate::clampedToRect(const QPoint &point) const
{
    // The upper bound is applied last, so it wins when the rectangle is smaller than the widget.
    const int x = std::min(std::max(point.x(), constrainedRect.left()),
                           constrainedRect.right() - (widget->width() - 1));
    const int y = std::min(std::max(point.y(), constrainedRect.top()),
                           constrainedRect.bottom() - (widget->height() - 1));
    return {x, y};
}

void DraggablePrivate::constrainedMove(const QPoint &target)
{
    if (!constrained) {
        widget->move(target);
        return;
    }
    const QPoint position = clampedToRect(target);
    constrainedOffset = position - constrainedRect.topLeft();
    widget->move(position);
}

Draggable::Draggable(QWidget &widget)
    : d(std::make_unique<DraggablePrivate>(widget))
{
    widget.installEventFilter(d.get());
}

Draggable::~Draggable() = default;

void Draggable::setConstrained(bool constrained)
{
    d->constrained = constrained;
}

bool Draggable::constrained() const
{
    return d->constrained;
}

void Draggable::setConstrainedRect(const QRect &rect)
{
    d->constrainedRect = rect;
}

QRect Draggable::constrainedRect() const
{
    return d->constrainedRect;
}

void Draggable::setConstrainedOffset(const QPoint &offset)
{
    d->constrainedOffset = offset;
}

QPoint Draggable::constrainedOffset() const
{
    return d->constrainedOffset;
}

} // namespace ko::qtToolkit::behavior
