// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_COMMON_EVENTPOSITION_P_H
#define KO_QTTOOLKIT_COMMON_EVENTPOSITION_P_H

#include <QMouseEvent>
#include <QPoint>
#include <QPointF>
#include <QtGlobal>

// Where a mouse event happened. Qt 6 replaced QMouseEvent's localPos() and globalPos() with
// position() and globalPosition(); these give the same values on both.
namespace ko::qtToolkit::common {

/// The position of \a event in the receiving widget, with sub-pixel precision.
inline QPointF localPosition(const QMouseEvent &event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event.position();
#else
    return event.localPos();
#endif
}

/// The position of \a event on the screen, in whole pixels.
inline QPoint globalPoint(const QMouseEvent &event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event.globalPosition().toPoint();
#else
    return event.globalPos();
#endif
}

} // namespace ko::qtToolkit::common

#endif
