#include <ko/qtToolkit/widget/Fader.h>

#include <ko/qtToolkit/common/EventPosition_p.h>

#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QVariant>

#include <algorithm>
#include <climits>
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

private:
    bool press(QMouseEvent *event);
    int draggedValue(int along) const;
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
        q->setValue(draggedValue(along));
        break;
    case Mode::Coarse:
        q->setValue(draggedValue(along) / coarseRounding * coarseRounding);
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

} // namespace ko::qtToolkit::widget
