// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/FullTextToolTip_p.h>

#include <QEvent>
#include <QGestureEvent>
#include <QTapAndHoldGesture>
#include <QToolTip>
#include <QWidget>

namespace ko::qtToolkit::widget {

FullTextToolTip::FullTextToolTip(QWidget &widget)
    : widget(widget)
{
    widget.installEventFilter(this);
}

void FullTextToolTip::update(bool shortened, const QString &fullText)
{
    if (!own && !widget.toolTip().isEmpty())
        return;
    if (shortened == own && (!own || widget.toolTip() == fullText))
        return;

    setting = true;
    widget.setToolTip(shortened ? fullText : QString());
    setting = false;
    setOwn(shortened);
}

bool FullTextToolTip::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != &widget)
        return false;
    switch (event->type()) {
    case QEvent::ToolTipChange:
        if (!setting)
            setOwn(false);
        return false;
    case QEvent::Gesture: {
        auto *gestureEvent = static_cast<QGestureEvent *>(event);
        auto *hold = static_cast<QTapAndHoldGesture *>(gestureEvent->gesture(Qt::TapAndHoldGesture));
        if (!hold)
            return false;
        gestureEvent->accept(hold);
        if (own && hold->state() == Qt::GestureFinished)
            QToolTip::showText(hold->position().toPoint(), widget.toolTip(), &widget);
        return true;
    }
    default:
        return false;
    }
}

void FullTextToolTip::setOwn(bool on)
{
    if (own == on)
        return;
    own = on;
    // The gesture is grabbed only while there is a full text to show, so that a widget whose
    // text fits receives its events exactly as before.
    if (on)
        widget.grabGesture(Qt::TapAndHoldGesture);
    else
        widget.ungrabGesture(Qt::TapAndHoldGesture);
}

} // namespace ko::qtToolkit::widget
