#include <ko/qtToolkit/widget/LevelMeter.h>

#include <ko/qtToolkit/common/Numeric_p.h>

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <limits>

namespace ko::qtToolkit::widget {

class LevelMeterPrivate
{
public:
    // The gradient is kept as a brush so that painting allocates nothing.
    QBrush gradient;
    QColor backgroundColor{0xbbbbbb};
    QColor lowColor{0x008000};
    QColor mediumColor{0xfa6500};
    QColor highColor{0xc82300};
    QColor frameColor{0x575757};
    QColor mutedFrameColor{0xff0000};
    float level = -60.0f;
    float minimumLevel = -60.0f;
    float maximumLevel = 15.0f;
    float mediumThresholdLevel = -20.0f;
    float highThresholdLevel = 10.0f;
    bool muted = false;
};

namespace {

// The one-pixel outline along the edge of \a rect. Filled rather than stroked: a pen costs far
// more than the few pixels it draws.
void fillOutline(QPainter &painter, const QRect &rect, const QColor &color)
{
    if (rect.isEmpty())
        return;
    painter.fillRect(rect.left(), rect.top(), rect.width(), 1, color);
    if (rect.height() > 1)
        painter.fillRect(rect.left(), rect.bottom(), rect.width(), 1, color);
    if (rect.height() > 2) {
        painter.fillRect(rect.left(), rect.top() + 1, 1, rect.height() - 2, color);
        painter.fillRect(rect.right(), rect.top() + 1, 1, rect.height() - 2, color);
    }
}

// Level ranges are arguments: one that is not finite is refused, as the mapping onto the bar
// would give NaN.
bool isFiniteLevel(const char *function, float level)
{
    if (std::isfinite(level))
        return true;
    qWarning("LevelMeter::%s: ignoring a level that is not finite", function);
    return false;
}

} // namespace

LevelMeter::LevelMeter(QWidget *parent)
    : QProgressBar(parent)
    , d(std::make_unique<LevelMeterPrivate>())
{
}

LevelMeter::~LevelMeter() = default;

float LevelMeter::level() const
{
    return d->level;
}

float LevelMeter::minimumLevel() const
{
    return d->minimumLevel;
}

float LevelMeter::maximumLevel() const
{
    return d->maximumLevel;
}

float LevelMeter::mediumThresholdLevel() const
{
    return d->mediumThresholdLevel;
}

float LevelMeter::highThresholdLevel() const
{
    return d->highThresholdLevel;
}

bool LevelMeter::isMuted() const
{
    return d->muted;
}

void LevelMeter::setLevel(float level)
{
    d->level = clampLevel(level);
    const int value = mapLevelToValue(d->level);
    if (value == this->value())
        return;
    // QProgressBar::setValue() repaints at once, which flushes the window for every meter of a
    // wall; with updates held back it schedules an update instead, and one paint pass serves
    // all meters that changed.
    const bool updates = updatesEnabled();
    if (updates)
        setUpdatesEnabled(false);
    setValue(value);
    if (updates)
        setUpdatesEnabled(true);
}

void LevelMeter::setLevelRange(float minimum, float maximum)
{
    if (!isFiniteLevel("setLevelRange", minimum) || !isFiniteLevel("setLevelRange", maximum))
        return;
    if (minimum > maximum || (minimum == d->minimumLevel && maximum == d->maximumLevel))
        return;
    d->minimumLevel = minimum;
    d->maximumLevel = maximum;
    update();
}

void LevelMeter::setMinimumLevel(float minimum)
{
    if (!isFiniteLevel("setMinimumLevel", minimum) || minimum == d->minimumLevel)
        return;
    d->maximumLevel = std::max(minimum, d->maximumLevel);
    d->minimumLevel = minimum;
    update();
}

void LevelMeter::setMaximumLevel(float maximum)
{
    if (!isFiniteLevel("setMaximumLevel", maximum) || maximum == d->maximumLevel)
        return;
    d->minimumLevel = std::min(maximum, d->minimumLevel);
    d->maximumLevel = maximum;
    update();
}

// The threshold and colour setters rebuild the gradient even when the value is unchanged: that
// is also how the zones follow a new level range.
void LevelMeter::setMediumThresholdLevel(float level)
{
    d->mediumThresholdLevel = clampLevel(level);
    d->highThresholdLevel = clampLevel(std::max(d->mediumThresholdLevel, d->highThresholdLevel));
    updateGradient();
}

void LevelMeter::setHighThresholdLevel(float level)
{
    d->highThresholdLevel = clampLevel(level);
    d->mediumThresholdLevel = clampLevel(std::min(d->highThresholdLevel, d->mediumThresholdLevel));
    updateGradient();
}

void LevelMeter::setMuted(bool muted)
{
    if (muted == d->muted)
        return;
    d->muted = muted;
    update();
}

void LevelMeter::setBackgroundColor(const QColor &color)
{
    if (color == d->backgroundColor)
        return;
    d->backgroundColor = color;
    update();
}

void LevelMeter::setLowColor(const QColor &color)
{
    d->lowColor = color;
    updateGradient();
}

void LevelMeter::setMediumColor(const QColor &color)
{
    d->mediumColor = color;
    updateGradient();
}

void LevelMeter::setHighColor(const QColor &color)
{
    d->highColor = color;
    updateGradient();
}

float LevelMeter::clampLevel(float level) const
{
    // A level that is not a number, a sensor's failure say, shows as silence.
    if (std::isnan(level))
        return d->minimumLevel;
    return std::max(std::min(level, d->maximumLevel), d->minimumLevel);
}

int LevelMeter::mapLevelToValue(float level) const
{
    const auto vmin = static_cast<float>(minimum());
    const auto vmax = static_cast<float>(maximum());
    float mapped = (vmax - vmin) * (level - d->minimumLevel) / (d->maximumLevel - d->minimumLevel) + vmin;
    // A level range near the limits of float overflows in the product, which double holds.
    if (std::isinf(mapped)) {
        mapped = float((double(vmax) - vmin) * (double(level) - d->minimumLevel)
                           / (double(d->maximumLevel) - d->minimumLevel)
                       + vmin);
    }
    const int value = common::truncatedToInt(mapped);
    // A level inside the level range maps inside the bar's range; single precision can round a
    // bar range near the int limits past its ends, where QProgressBar would ignore the value.
    if (level >= d->minimumLevel && level <= d->maximumLevel)
        return std::clamp(value, minimum(), maximum());
    return value;
}

float LevelMeter::mapLevelToPercentage(float level) const
{
    return (level - d->minimumLevel) / (d->maximumLevel - d->minimumLevel);
}

float LevelMeter::mapValueToPercentage(int value) const
{
    const auto vmin = static_cast<float>(minimum());
    const auto vmax = static_cast<float>(maximum());
    return (static_cast<float>(value) - vmin) / (vmax - vmin);
}

int LevelMeter::mapValueToPixels(int value) const
{
    const int extent = orientation() == Qt::Horizontal ? width() : height();
    return common::truncatedToInt(static_cast<float>(extent) * mapValueToPercentage(value));
}

void LevelMeter::updateGradient()
{
    // Position 0 is at the bottom of a vertical meter but at the right edge of a horizontal one.
    QLinearGradient gradient = orientation() == Qt::Vertical ? QLinearGradient(0, height() - 1, 0, 1)
                                                             : QLinearGradient(width() - 1, 0, 1, 0);
    const float range = d->maximumLevel - d->minimumLevel;
    const float medium = (d->mediumThresholdLevel - d->minimumLevel) / range;
    const float high = (d->highThresholdLevel - d->minimumLevel) / range;
    // Stops one float epsilon apart make hard edges; the gradient pads below the first stop and
    // above the last, which gives three flat zones.
    // A threshold at an end of the range puts a stop just beyond 0 or 1, which QGradient would
    // refuse with a warning at every rebuild: such stops are left out, to the same effect.
    const float epsilon = std::numeric_limits<float>::epsilon();
    const auto addStop = [&gradient](float position, const QColor &color) {
        if (position >= 0.0f && position <= 1.0f)
            gradient.setColorAt(position, color);
    };
    addStop(medium, d->lowColor);
    addStop(medium + epsilon, d->mediumColor);
    addStop(high - epsilon, d->mediumColor);
    addStop(high, d->highColor);
    d->gradient = QBrush(gradient);
    update();
}

void LevelMeter::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    const QRect whole = rect();
    const QRect inner = whole.adjusted(1, 1, -1, -1);
    const bool washedOut = d->muted || !isEnabled();
    const QColor &frameColor = d->muted ? d->mutedFrameColor : d->frameColor;
    // When nothing is translucent, one fill of the whole widget lays the frame and the inside is
    // painted over it, the gradient only where the bar is lit: the same pixels as gradient,
    // background and outline drawn one over the other, at a fraction of the cost.
    const bool opaque = !washedOut && d->gradient.isOpaque() && d->backgroundColor.alpha() == 255;
    if (opaque)
        painter.fillRect(whole, frameColor);
    if (!inner.isEmpty()) {
        // The lit length is measured on the whole widget; it is limited to the inner rectangle
        // here, so that a full bar leaves no unlit row and nothing spills onto the frame.
        const int pixels = mapValueToPixels(value());
        QRect lit = inner;
        QRect unlit = inner;
        if (orientation() == Qt::Vertical) {
            const int litHeight = std::clamp(pixels, 0, inner.height());
            unlit.setHeight(inner.height() - litHeight);
            lit.setTop(unlit.bottom() + 1);
        } else {
            const int litWidth = std::clamp(pixels, 0, inner.width());
            lit.setWidth(litWidth);
            unlit.setLeft(lit.right() + 1);
        }
        const QRect &gradientArea = opaque ? lit : inner;
        if (!gradientArea.isEmpty())
            painter.fillRect(gradientArea, d->gradient);
        if (!unlit.isEmpty())
            painter.fillRect(unlit, d->backgroundColor);
    }
    if (washedOut)
        painter.fillRect(whole, QColor(255, 255, 255, 128));
    if (!opaque) {
        fillOutline(painter, whole, frameColor);
        if (d->muted)
            fillOutline(painter, inner, frameColor);
    }
}

void LevelMeter::resizeEvent(QResizeEvent * /*event*/)
{
    updateGradient();
}

} // namespace ko::qtToolkit::widget
