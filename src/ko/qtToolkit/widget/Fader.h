// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGET_FADER_H
#define KO_QTTOOLKIT_WIDGET_FADER_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QSlider>

#include <memory>

namespace ko::qtToolkit::widget {

class FaderPrivate;

/**
 * \brief A slider for touch screens: the handle must be grabbed, and drags are relative.
 *
 * A press on the groove does not move the handle: a press outside the handle is ignored and
 * goes on to the parent widget, so a scrolling list or area under the fader can take it. The
 * wheel never moves a fader (the wheel event goes on to the parent).
 *
 * The value follows the distance dragged from the point where the handle was grabbed. The first
 * 11 pixels of a drag choose the speed: moving along the fader first selects fine mode, one unit
 * for every 10 pixels; moving across it first selects coarse mode, one unit for every 5 pixels,
 * shown in steps of 10. The mode lasts until the button is released and is published to the
 * style sheet as the dynamic property "class" ("fine" or "coarse", absent otherwise), so a rule
 * such as "ko--qtToolkit--widget--Fader[class=fine]::handle:vertical" can restyle the handle
 * while it is dragged.
 *
 * Fine mode sets the single step to 10 and coarse mode to 5; the step is not restored after the
 * drag, so singleStep() keeps the value of the last drag.
 *
 * The fader is 17 pixels wide whatever its orientation (also when horizontal) and takes no
 * keyboard focus. A disabled fader handles no events of its own.
 *
 * Two behaviours are off unless switched on: a double tap (or double click) on the handle can
 * reset the fader to its default value (setResetOnDoubleTapEnabled()), and a drag can cover the
 * whole range over the length of the groove (setDragMode() with FullRangeDrag), for faders whose
 * range holds far more values than the groove has pixels.
 */
class KO_QTTOOLKIT_EXPORT Fader : public QSlider
{
    Q_OBJECT
    /// Whether the handle is held; see isSliding(). Notified by slidingChanged().
    Q_PROPERTY(bool isSliding READ isSliding NOTIFY slidingChanged)

public:
    /**
     * \brief How far a drag moves the value.
     *
     * In both modes a drag must start on the handle, and the first 11 pixels choose between fine
     * mode (moving along the fader first) and coarse mode (moving across it first).
     */
    enum DragMode {
        /// One unit for every 10 pixels in fine mode; in coarse mode one unit for every 5 pixels,
        /// shown in steps of 10. The default.
        StepDrag,
        /// The length of the groove covers the whole range, so the handle stays under the finger:
        /// dragging it from one end of the groove to the other sweeps the minimum to the maximum.
        /// Fine mode follows the finger to the nearest value; coarse mode snaps to multiples of a
        /// coarse step, the first of 10, 20, 50, 100, 200, 500, 1000, ... that is at least 10
        /// pixels' worth of the range. A finger at or beyond an end of the groove gives that end
        /// of the range in both modes.
        FullRangeDrag
    };

    /**
     * \brief A vertical fader.
     * \param parent the parent widget, which owns the fader; may be null.
     */
    explicit Fader(QWidget *parent = nullptr);

    /**
     * \brief A fader with the given \a orientation.
     * \param orientation Qt::Vertical (as the default constructor) or Qt::Horizontal; the fader
     *        is 17 pixels wide either way.
     * \param parent the parent widget, which owns the fader; may be null.
     */
    explicit Fader(Qt::Orientation orientation, QWidget *parent = nullptr);

    ~Fader() override;

    /**
     * \brief Whether the handle is held: true from a left press on the handle to the next
     *        release of any mouse button.
     */
    bool isSliding() const;

    /**
     * \brief The value a double tap on the handle resets the fader to, when
     *        isResetOnDoubleTapEnabled() is true.
     *
     * Until setDefaultValue() is called this is minimum(), and follows the minimum when the range
     * changes. A value set explicitly is kept as it is, also when a later range excludes it: it is
     * clamped to the range only when it is applied, as setValue() clamps, so a range that grows
     * back makes it reachable again.
     */
    int defaultValue() const;

    /**
     * \brief Sets the value a double tap on the handle resets the fader to.
     *
     * The value is stored as given, even outside the range (see defaultValue()); it does not
     * change the fader's value.
     */
    void setDefaultValue(int value);

    /// \brief Whether a double tap or double click on the handle resets the value; false by default.
    bool isResetOnDoubleTapEnabled() const;

    /**
     * \brief Switches resetting on a double tap on or off.
     *
     * When on, a double tap or double click with the left button on the handle sets the value to
     * defaultValue(), clamped to the range; valueChanged() follows as for any change of the value.
     * The handle is then held as after any press on it, so a drag that follows goes on from the
     * default value. A double tap beside the handle does nothing and goes on to the parent widget,
     * as any press there does.
     */
    void setResetOnDoubleTapEnabled(bool enabled);

    /// \brief How far a drag moves the value; StepDrag by default.
    DragMode dragMode() const;

    /**
     * \brief Sets how far a drag moves the value.
     *
     * FullRangeDrag suits faders whose range is far larger than their length in pixels: over a
     * range of 0 to 5000, StepDrag needs 25000 pixels of dragging to sweep it in coarse mode
     * and 50000 in fine mode. A change during a
     * drag applies from the next move on. Fine and coarse mode set the single step and the
     * dynamic property "class" in either drag mode.
     */
    void setDragMode(DragMode mode);

Q_SIGNALS:
    /**
     * \brief Emitted with true when the handle is grabbed, and with false at every mouse button
     *        release the fader receives, also when no grab happened before it.
     */
    void slidingChanged(bool isSliding);

private:
    friend class FaderPrivate;
    std::unique_ptr<FaderPrivate> const d;
};

} // namespace ko::qtToolkit::widget

#endif
