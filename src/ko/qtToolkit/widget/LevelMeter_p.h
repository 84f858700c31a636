// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGET_LEVELMETER_P_H
#define KO_QTTOOLKIT_WIDGET_LEVELMETER_P_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QtGlobal>

namespace ko::qtToolkit::widget {

// How a level becomes pixels on a meter: the level range onto the progress bar's integer range,
// then the bar's value onto the meter's length. The meter and the scale beside it both map
// through this, so that a mark lies on the row where the meter's bar ends for its level.
struct LevelMapping
{
    float minimumLevel;
    float maximumLevel;
    int minimumValue;
    int maximumValue;

    // The bar value of \a level, truncated toward zero; clamped to the bar's range only when the
    // level lies in the level range.
    int value(float level) const;
    // Where \a value lies in the bar's range, as a fraction.
    float fraction(int value) const;
    // The lit length of \a value on a meter \a extent pixels long (its whole width or height),
    // truncated toward zero.
    int pixels(int value, int extent) const;
    // The lit length as painted: limited to the inside of the frame, \a extent - 2.
    int litLength(int value, int extent) const;
};

// The clock peak hold reads as levels arrive, in milliseconds of a monotonic clock.
using LevelMeterClock = qint64 (*)();

// Makes meters read \a clock, or the monotonic clock again when null; returns the clock they read
// before. For tests, which need time to pass on command.
KO_QTTOOLKIT_EXPORT LevelMeterClock setLevelMeterClock(LevelMeterClock clock);

} // namespace ko::qtToolkit::widget

#endif
