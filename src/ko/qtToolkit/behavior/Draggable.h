// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_BEHAVIOR_DRAGGABLE_H
#define KO_QTTOOLKIT_BEHAVIOR_DRAGGABLE_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QPoint>
#include <QRect>

#include <memory>

class QWidget;

namespace ko::qtToolkit::behavior {

class DraggablePrivate;

/**
 * \brief Lets the user move a window by dragging it with the left button or a finger.
 *
 * A press on the widget itself (not on a child that takes the press) starts the drag; moves
 * without keyboard modifiers follow it; the release ends it. Presses and moves with a modifier
 * held are left alone. Mouse events are never consumed.
 *
 * When constrained, the widget stays inside constrainedRect() and constrainedOffset() remembers
 * where it was left, relative to the rectangle's top left; each Show places it there again.
 *
 * \warning Draggable consumes the widget's Show events (also when not constrained), so the
 *          widget's own showEvent() does not run; a QDialog, for instance, no longer centres
 *          itself over its parent.
 */
class KO_QTTOOLKIT_EXPORT Draggable
{
public:
    /**
     * \brief Makes \a widget draggable by filtering its events.
     *
     * The widget is not owned and must outlive this object.
     */
    explicit Draggable(QWidget &widget);
    ~Draggable();

    Draggable(const Draggable &) = delete;
    Draggable &operator=(const Draggable &) = delete;

    /// \brief Whether drags and Show keep the widget inside constrainedRect(); moves nothing.
    void setConstrained(bool constrained);
    /// \brief Whether the widget is kept inside constrainedRect(); false by default.
    bool constrained() const;

    /// \brief The rectangle, in global coordinates, the widget is kept in; moves nothing.
    void setConstrainedRect(const QRect &rect);
    /// \brief The rectangle the widget is kept in; a null rectangle by default.
    QRect constrainedRect() const;

    /// \brief Where the widget goes relative to constrainedRect()'s top left at the next Show.
    void setConstrainedOffset(const QPoint &offset);
    /// \brief The widget's last constrained position relative to constrainedRect()'s top left.
    QPoint constrainedOffset() const;

private:
    std::unique_ptr<DraggablePrivate> const d;
};

} // namespace ko::qtToolkit::behavior

#endif
