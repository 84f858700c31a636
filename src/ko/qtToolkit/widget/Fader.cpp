// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/Fader.h>

#include <ko/qtToolkit/common/EventPosition_p.h>

#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QVariant>

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <optional>

namespace ko::qtToolkit::widget {

class FaderPrivate : public QObject
{
public:
    enum class Mode { Undecided, Fine, Coarse };

    explicit FaderPrivate(Fader *fader);

    bool eventFilter(QObject *watched, QEvent *event) override;

    Fader *const q;
    QPoint pressPosition;
    int pressValue = 0;
    bool sliding = false;
    Mode mode = Mode::Undecided;
    // Unset while the default follows the minimum.
    std::optional<int> defaultValue;
    bool resetOnDoubleTap = false;
    Fader::DragMode dragMode = Fader::StepDrag;

private:
    bool press(QMouseEvent *event);
    int draggedValue(int along) const;
    int fullRangeValue(int along) const;
    void move(const QMouseEvent *event);
    void release();
    void setMode(Mode newMode);
};

namespace {

// A drag has to cover this many pixels along or across the fader before its mode is chosen.
constexpr int modeThreshold = 11;
constexpr int fineStep = 10;
constexpr int coarseStep = 5;
constexpr int coarseRounding = 10;
constexpr int faderWidth = 17;
// A full-range drag in coarse mode snaps to a step worth at least this many pixels.
constexpr int coarseSnapPixels = 10;

// The first of 10, 20, 50, 100, 200, 500, ... that is at least \a minimum: round numbers, so
// that a coarse drag over a data fader stops at round data values.
qint64 coarseSnapStep(double minimum)
{
    for (qint64 decade = coarseRounding;; decade *= 10) {
        for (const qint64 factor : {1, 2, 5}) {
            if (double(decade * factor) >= minimum)
                return decade * factor;
        }
    }
}

// \a value rounded to the nearest multiple of \a step, halves away from zero.
qint64 nearestMultiple(qint64 value, qint64 step)
{
    const qint64 half = step / 2;
    return value >= 0 ? (value + half) / step * step : -((-value + half) / step * step);
}

} // namespace

FaderPrivate::FaderPrivate(Fader *fader)
    : q(fader)
{
    q->installEventFilter(this);
}

bool FaderPrivate::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != q || q->testAttribute(Qt::WA_Disabled))
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return press(static_cast<QMouseEvent *>(event));
    case QEvent::MouseMove:
        move(static_cast<QMouseEvent *>(event));
        return false;
    case QEvent::MouseButtonRelease:
        release();
        return false;
    case QEvent::Wheel:
        // Consumed so that QSlider does not move, but ignored so that it goes on to the parent
        // widget. Qt 6 hands the event over accepted where Qt 5 had ignored it already.
        event->ignore();
        return true;
    default:
        return false;
    }
}

bool FaderPrivate::press(QMouseEvent *event)
{
    QStyleOptionSlider option;
    q->initStyleOption(&option);
    const QRect handle = q->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, q);
    const QPoint position(qRound(common::localPosition(*event).x()), qRound(common::localPosition(*event).y()));
    if (event->button() != Qt::LeftButton || !handle.contains(position)) {
        // Consumed so that QSlider does not jump to the press, but ignored so that it goes on
        // to the parent widget.
        event->ignore();
        return true;
    }
    if (event->type() == QEvent::MouseButtonDblClick && resetOnDoubleTap)
        q->setValue(q->defaultValue());
    pressPosition = position;
    pressValue = q->value();
    sliding = true;
    Q_EMIT q->slidingChanged(true);
    return true;
}

void FaderPrivate::move(const QMouseEvent *event)
{
    if (!sliding)
        return;
    const QPoint delta = event->pos() - pressPosition;
    const bool horizontal = q->orientation() == Qt::Horizontal;
    // Moving right or up raises the value.
    const int along = horizontal ? -delta.x() : delta.y();
    // The mode set the single step, but the application may change it during a drag: a step of
    // 0 counts as 1 rather than dividing by zero.
    switch (mode) {
    case Mode::Undecided: {
        const int across = horizontal ? delta.y() : delta.x();
        if (std::abs(along) >= modeThreshold)
            setMode(Mode::Fine);
        else if (std::abs(across) >= modeThreshold)
            setMode(Mode::Coarse);
        break;
    }
    case Mode::Fine:
        q->setValue(dragMode == Fader::FullRangeDrag ? fullRangeValue(along) : draggedValue(along));
        break;
    case Mode::Coarse:
        q->setValue(dragMode == Fader::FullRangeDrag ? fullRangeValue(along)
                                                     : draggedValue(along) / coarseRounding * coarseRounding);
        break;
    }
}

int FaderPrivate::draggedValue(int along) const
{
    // In 64 bits, saturated to int: a fader near INT_MIN or INT_MAX, as a data fader over an
    // unbounded range is, would overflow.
    const qint64 value = qint64(pressValue) - along / std::max(1, q->singleStep());
    return int(std::clamp<qint64>(value, INT_MIN, INT_MAX));
}

int FaderPrivate::fullRangeValue(int along) const
{
    // The pixels the handle can travel, measured as QSlider measures them for its own drags.
    QStyleOptionSlider option;
    q->initStyleOption(&option);
    const QRect groove = q->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, q);
    const QRect handle = q->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, q);
    const bool horizontal = q->orientation() == Qt::Horizontal;
    const int span = horizontal ? groove.width() - handle.width() : groove.height() - handle.height();
    const qint64 minimum = q->minimum();
    const qint64 maximum = q->maximum();
    if (span <= 0 || maximum <= minimum)
        return pressValue;

    // Relative to the grab, so that the value stays put until the finger moves; the ends of the
    // groove give the ends of the range exactly, whatever the rounding on the way.
    const double range = double(maximum - minimum);
    const qint64 raised = -qint64(along);
    const double travel = double(pressValue - minimum) * span / range + double(raised);
    if (travel <= 0)
        return int(minimum);
    if (travel >= span)
        return int(maximum);
    // Between the ends the finger has moved less than the span, so this stays within the range.
    qint64 value = pressValue + std::llround(double(raised) * range / span);
    if (mode == Mode::Coarse)
        value = nearestMultiple(value, coarseSnapStep(range * coarseSnapPixels / span));
    return int(std::clamp(value, minimum, maximum));
}

void FaderPrivate::release()
{
    // The single step of the drag stays as it is.
    setMode(Mode::Undecided);
    sliding = false;
    Q_EMIT q->slidingChanged(false);
}

void FaderPrivate::setMode(Mode newMode)
{
    if (newMode == mode)
        return;
    mode = newMode;
    switch (mode) {
    case Mode::Fine:
        q->setSingleStep(fineStep);
        q->setProperty("class", QStringLiteral("fine"));
        break;
    case Mode::Coarse:
        q->setSingleStep(coarseStep);
        q->setProperty("class", QStringLiteral("coarse"));
        break;
    case Mode::Undecided:
        q->setProperty("class", QVariant());
        break;
    }
    // Property selectors are evaluated when the style polishes the widget.
    q->style()->polish(q);
    q->repaint();
}

Fader::Fader(QWidget *parent)
    : Fader(Qt::Vertical, parent)
{
}

Fader::Fader(Qt::Orientation orientation, QWidget *parent)
    : QSlider(orientation, parent)
    , d(std::make_unique<FaderPrivate>(this))
{
    setFixedWidth(faderWidth);
    setFocusPolicy(Qt::NoFocus);
}

Fader::~Fader() = default;

bool Fader::isSliding() const
{
    return d->sliding;
}

int Fader::defaultValue() const
{
    return d->defaultValue.value_or(minimum());
}

void Fader::setDefaultValue(int value)
{
    d->defaultValue = value;
}

bool Fader::isResetOnDoubleTapEnabled() const
{
    return d->resetOnDoubleTap;
}

void Fader::setResetOnDoubleTapEnabled(bool enabled)
{
    d->resetOnDoubleTap = enabled;
}

Fader::DragMode Fader::dragMode() const
{
    return d->dragMode;
}

void Fader::setDragMode(DragMode mode)
{
    d->dragMode = mode;
}

} // namespace ko::qtToolkit::widget
