// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGET_LEVELMETER_H
#define KO_QTTOOLKIT_WIDGET_LEVELMETER_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QBrush>
#include <QColor>
#include <QProgressBar>

#include <memory>

namespace ko::qtToolkit::widget {

class LevelMeterNotifier;
class LevelMeterPrivate;

/**
 * \brief A bar meter for audio levels with three colour zones.
 *
 * The level is a float in its own range (-60 to +15 by default) and is mapped onto the
 * progress bar's integer range (minimum() to maximum(), QProgressBar's default unless the
 * application sets another). The meter paints itself completely: the low colour below the
 * medium threshold (-20 by default), the medium colour up to the high threshold (+10 by default)
 * and the high colour above it, with hard edges between the zones; the unlit part in the
 * background colour; a one-pixel grey frame. A muted meter is washed out and framed twice in
 * red; a disabled one is washed out with its normal frame.
 *
 * The colours run from the bottom of a vertical meter to its top. On a horizontal meter they
 * run from the right edge to the left while the bar grows from the left, so the high colour
 * lights first; this mirrored look is intended.
 *
 * The colour gradient is rebuilt on resize, on a threshold change and on a change of the low,
 * medium or high colour. A change of the level range alone leaves the zones where the old range
 * put them until then.
 *
 * Two additions, both off by default, serve a wall of meters on a console:
 * - Peak hold (setPeakHoldEnabled()) keeps the highest recent level as a 2-pixel line across the
 *   meter, in the colour of the zone the peak lies in. The line holds for peakHoldTime(), then
 *   falls at peakDecayRate() but never below the level. The meter has no timer: time is read from
 *   a monotonic clock as levels arrive, so the line moves with the levels it is fed.
 * - The clip latch (setClipLatchEnabled()) latches once a level reaches clipLevel() and shows a
 *   red cap at the meter's top (at its right end when horizontal) until resetClip() or a tap on
 *   the meter. Changes of the latch are signalled by notifier().
 *
 * \code
 * auto *meter = new LevelMeter(panel);
 * meter->setPeakHoldEnabled(true);
 * meter->setClipLatchEnabled(true);
 * QObject::connect(meter->notifier(), &LevelMeterNotifier::clippedChanged, clipLamp, &QWidget::setVisible);
 * // 30 to 60 times a second:
 * meter->setLevel(levelInDecibels);
 * \endcode
 */
class KO_QTTOOLKIT_EXPORT LevelMeter : public QProgressBar
{
    Q_OBJECT
    /// The lower end of the level range; see minimumLevel().
    Q_PROPERTY(float minimumLevel READ minimumLevel WRITE setMinimumLevel)
    /// The upper end of the level range; see maximumLevel().
    Q_PROPERTY(float maximumLevel READ maximumLevel WRITE setMaximumLevel)
    /// Where the medium colour starts; see mediumThresholdLevel().
    Q_PROPERTY(float mediumThresholdLevel READ mediumThresholdLevel WRITE setMediumThresholdLevel)
    /// Where the high colour starts; see highThresholdLevel().
    Q_PROPERTY(float highThresholdLevel READ highThresholdLevel WRITE setHighThresholdLevel)
    /// The level shown, in the level range; see level(). Not notified: the meter has no signals.
    Q_PROPERTY(float level READ level WRITE setLevel)
    /// Whether the meter is shown muted; see isMuted().
    Q_PROPERTY(bool isMuted READ isMuted WRITE setMuted)

public:
    /**
     * \brief A meter at level -60 in the range -60 to +15.
     * \param parent the parent widget, which owns the meter; may be null.
     */
    explicit LevelMeter(QWidget *parent = nullptr);
    ~LevelMeter() override;

    /// \brief The level, clamped to the level range when it was set.
    float level() const;
    /// \brief The lower end of the level range; -60 by default.
    float minimumLevel() const;
    /// \brief The upper end of the level range; +15 by default.
    float maximumLevel() const;
    /// \brief Where the medium colour starts; -20 by default.
    float mediumThresholdLevel() const;
    /// \brief Where the high colour starts; +10 by default.
    float highThresholdLevel() const;
    /// \brief Whether the meter is shown muted (washed out, framed twice in red).
    bool isMuted() const;

    /**
     * \brief Sets the level, clamped to the level range, and the progress bar's value mapped
     *        from it. When the lit length changes, the strip between the old and the new length
     *        is scheduled for repainting (with update(), not at once).
     *
     * A level that is not a number (NaN) counts as the minimum level.
     */
    void setLevel(float level);

    /**
     * \brief Sets both ends of the level range; ignored when \a minimum is greater than
     *        \a maximum. Neither the level nor the thresholds are clamped again.
     *
     * An end that is not finite is refused with a warning.
     */
    void setLevelRange(float minimum, float maximum);

    /// \brief Sets the lower end of the level range, raising the upper end to it if needed.
    ///
    /// A value that is not finite is refused with a warning.
    void setMinimumLevel(float minimum);

    /// \brief Sets the upper end of the level range, lowering the lower end to it if needed.
    ///
    /// A value that is not finite is refused with a warning.
    void setMaximumLevel(float maximum);

    /**
     * \brief Sets the medium threshold, clamped to the level range; the high threshold is
     *        raised to it if needed.
     */
    void setMediumThresholdLevel(float level);

    /**
     * \brief Sets the high threshold, clamped to the level range; the medium threshold is
     *        lowered to it if needed.
     */
    void setHighThresholdLevel(float level);

    /// \brief Shows the meter muted or not.
    void setMuted(bool muted);

    /// \brief The colour of the unlit part; \#bbbbbb by default.
    void setBackgroundColor(const QColor &color);
    /// \brief The colour below the medium threshold; \#008000 by default.
    void setLowColor(const QColor &color);
    /// \brief The colour between the thresholds; \#fa6500 by default.
    void setMediumColor(const QColor &color);
    /// \brief The colour above the high threshold; \#c82300 by default.
    void setHighColor(const QColor &color);

    /// \brief \a level limited to the level range; the minimum wins over the maximum, and NaN
    ///        gives the minimum.
    float clampLevel(float level) const;

    /// \brief The progress bar value of \a level, truncated toward zero and not clamped.
    int mapLevelToValue(float level) const;

    /**
     * \brief Where \a level lies in the level range, as a fraction: 0 at the minimum, 1 at the
     *        maximum (not a percentage, despite the name).
     */
    float mapLevelToPercentage(float level) const;

    /// \brief Where \a value lies in the progress bar's range, as a fraction from 0 to 1.
    float mapValueToPercentage(int value) const;

    /**
     * \brief The length in pixels of the lit part for \a value, measured on the full height
     *        (vertical) or width (horizontal) of the widget and truncated toward zero.
     */
    int mapValueToPixels(int value) const;

    /// \brief Rebuilds the colour gradient from the thresholds, the colours and the size.
    void updateGradient();

    /// \brief Whether the meter holds and shows its peak; off by default.
    bool isPeakHoldEnabled() const;

    /**
     * \brief Switches peak hold on or off. Switched on, the peak starts at the current level
     *        and is held from then.
     */
    void setPeakHoldEnabled(bool enabled);

    /**
     * \brief The held peak as it was when the last level arrived, in the level range; the
     *        current level while peak hold is off.
     *
     * A level above the peak (or at it) raises the peak at once and holds it anew. After
     * peakHoldTime() the peak falls at peakDecayRate(), never below the level.
     */
    float peakLevel() const;

    /// \brief How long a peak is held before it falls, in milliseconds; 1500 by default.
    int peakHoldTime() const;

    /// \brief Sets how long a peak is held, in milliseconds; a negative time counts as 0.
    void setPeakHoldTime(int milliseconds);

    /// \brief How fast a peak falls after its hold time, in decibels (level units) per second;
    ///        20 by default.
    float peakDecayRate() const;

    /**
     * \brief Sets how fast a peak falls, in decibels per second. 0 keeps the peak until
     *        resetPeak(); a negative rate or NaN is refused with a warning.
     */
    void setPeakDecayRate(float decibelsPerSecond);

    /// \brief The peak becomes the current level, held from now. Nothing while peak hold is off.
    void resetPeak();

    /// \brief Whether a level at or above clipLevel() latches the clip cap; off by default.
    bool isClipLatchEnabled() const;

    /// \brief Switches the clip latch on or off; switched off, the latch is released.
    void setClipLatchEnabled(bool enabled);

    /**
     * \brief The level at and above which the latch engages: the maximum level, following it,
     *        until setClipLevel() is called.
     */
    float clipLevel() const;

    /**
     * \brief Sets the clip level. It is compared with each level as given to setLevel(), before
     *        clamping, so a clip level above the maximum level still catches levels above it.
     *        A level that is not finite is refused with a warning.
     */
    void setClipLevel(float level);

    /// \brief Whether the clip latch has engaged; always false while the latch is off.
    bool isClipped() const;

    /// \brief Releases the clip latch. A tap on the meter (a press and a release on it) does the same.
    void resetClip();

    /**
     * \brief The object that signals changes of the clip latch, made on first use and owned by
     *        the meter. The meter itself declares no signals of its own beyond QProgressBar's.
     */
    LevelMeterNotifier *notifier() const;

protected:
    /// \brief Paints the meter within the event's rectangle (frame, lit zones, unlit part, peak
    ///        line, clip cap) in place of QProgressBar's style: no text, no chunks.
    void paintEvent(QPaintEvent *event) override;
    /// \brief Rebuilds the colour gradient for the new size.
    void resizeEvent(QResizeEvent *event) override;

private:
    std::unique_ptr<LevelMeterPrivate> const d;
};

/**
 * \brief Signals the changes of a LevelMeter's clip latch; see LevelMeter::notifier().
 */
class KO_QTTOOLKIT_EXPORT LevelMeterNotifier : public QObject
{
    Q_OBJECT

public:
    ~LevelMeterNotifier() override;

Q_SIGNALS:
    /// \brief The latch engaged (\a clipped true) or was released; emitted only on change.
    void clippedChanged(bool clipped);

private:
    friend class LevelMeterPrivate;
    friend class LevelMeter;
    explicit LevelMeterNotifier(QObject *parent);
};

} // namespace ko::qtToolkit::widget

#endif
