#include <ko/qtToolkit/widget/LevelMeter.h>

#include <ko/qtToolkit/common/Numeric_p.h>

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <limits>

namespace ko::qtToolkit::widget {

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
{
}

float LevelMeter::level() const
{
    return m_level;
}

float LevelMeter::minimumLevel() const
{
    return m_minimumLevel;
}

float LevelMeter::maximumLevel() const
{
    return m_maximumLevel;
}

float LevelMeter::mediumThresholdLevel() const
{
    return m_mediumThresholdLevel;
}

float LevelMeter::highThresholdLevel() const
{
    return m_highThresholdLevel;
}

bool LevelMeter::isMuted() const
{
    return m_muted;
}

void LevelMeter::setLevel(float level)
{
    m_level = clampLevel(level);
    const int value = mapLevelToValue(m_level);
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
    if (minimum > maximum || (minimum == m_minimumLevel && maximum == m_maximumLevel))
        return;
    m_minimumLevel = minimum;
    m_maximumLevel = maximum;
    update();
}

void LevelMeter::setMinimumLevel(float minimum)
{
    if (!isFiniteLevel("setMinimumLevel", minimum) || minimum == m_minimumLevel)
        return;
    m_maximumLevel = std::max(minimum, m_maximumLevel);
    m_minimumLevel = minimum;
    update();
}

void LevelMeter::setMaximumLevel(float maximum)
{
    if (!isFiniteLevel("setMaximumLevel", maximum) || maximum == m_maximumLevel)
        return;
    m_minimumLevel = std::min(maximum, m_minimumLevel);
    m_maximumLevel = maximum;
    update();
}

// The threshold and colour setters rebuild the gradient even when the value is unchanged: that
// is also how the zones follow a new level range.
void LevelMeter::setMediumThresholdLevel(float level)
{
    m_mediumThresholdLevel = clampLevel(level);
    m_highThresholdLevel = clampLevel(std::max(m_mediumThresholdLevel, m_highThresholdLevel));
    updateGradient();
}

void LevelMeter::setHighThresholdLevel(float level)
{
    m_highThresholdLevel = clampLevel(level);
    m_mediumThresholdLevel = clampLevel(std::min(m_highThresholdLevel, m_mediumThresholdLevel));
    updateGradient();
}

void LevelMeter::setMuted(bool muted)
{
    if (muted == m_muted)
        return;
    m_muted = muted;
    update();
}

void LevelMeter::setBackgroundColor(const QColor &color)
{
    if (color == m_backgroundColor)
        return;
    m_backgroundColor = color;
    update();
}

void LevelMeter::setLowColor(const QColor &color)
{
    m_lowColor = color;
    updateGradient();
}

void LevelMeter::setMediumColor(const QColor &color)
{
    m_mediumColor = color;
    updateGradient();
}

void LevelMeter::setHighColor(const QColor &color)
{
    m_highColor = color;
    updateGradient();
}

float LevelMeter::clampLevel(float level) const
{
    // A level that is not a number, a sensor's failure say, shows as silence.
    if (std::isnan(level))
        return m_minimumLevel;
    return std::max(std::min(level, m_maximumLevel), m_minimumLevel);
}

int LevelMeter::mapLevelToValue(float level) const
{
    const auto vmin = static_cast<float>(minimum());
    const auto vmax = static_cast<float>(maximum());
    return common::truncatedToInt((vmax - vmin) * (level - m_minimumLevel) / (m_maximumLevel - m_minimumLevel) + vmin);
}

float LevelMeter::mapLevelToPercentage(float level) const
{
    return (level - m_minimumLevel) / (m_maximumLevel - m_minimumLevel);
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
    const float range = m_maximumLevel - m_minimumLevel;
    const float medium = (m_mediumThresholdLevel - m_minimumLevel) / range;
    const float high = (m_highThresholdLevel - m_minimumLevel) / range;
    // Stops one float epsilon apart make hard edges; the gradient pads below the first stop and
    // above the last, which gives three flat zones.
    // A threshold at an end of the range puts a stop just beyond 0 or 1, which QGradient would
    // refuse with a warning at every rebuild: such stops are left out, to the same effect.
    const float epsilon = std::numeric_limits<float>::epsilon();
    const auto addStop = [&gradient](float position, const QColor &color) {
        if (position >= 0.0f && position <= 1.0f)
            gradient.setColorAt(position, color);
    };
    addStop(medium, m_lowColor);
    addStop(medium + epsilon, m_mediumColor);
    addStop(high - epsilon, m_mediumColor);
    addStop(high, m_highColor);
    m_gradient = QBrush(gradient);
    update();
}

void LevelMeter::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    const QRect whole = rect();
    const QRect inner = whole.adjusted(1, 1, -1, -1);
    const bool washedOut = m_muted || !isEnabled();
    const QColor &frameColor = m_muted ? m_mutedFrameColor : m_frameColor;
    // When nothing is translucent, one fill of the whole widget lays the frame and the inside is
    // painted over it, the gradient only where the bar is lit: the same pixels as gradient,
    // background and outline drawn one over the other, at a fraction of the cost.
    const bool opaque = !washedOut && m_gradient.isOpaque() && m_backgroundColor.alpha() == 255;
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
            painter.fillRect(gradientArea, m_gradient);
        if (!unlit.isEmpty())
            painter.fillRect(unlit, m_backgroundColor);
    }
    if (washedOut)
        painter.fillRect(whole, QColor(255, 255, 255, 128));
    if (!opaque) {
        fillOutline(painter, whole, frameColor);
        if (m_muted)
            fillOutline(painter, inner, frameColor);
    }
}

void LevelMeter::resizeEvent(QResizeEvent * /*event*/)
{
    updateGradient();
}

} // namespace ko::qtToolkit::widget
