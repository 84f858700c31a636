#include <ko/qtToolkit/widget/LevelMeter.h>

#include <ko/qtToolkit/common/Numeric_p.h>

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <limits>

namespace ko::qtToolkit::widget {

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
    if (minimum > maximum || (minimum == m_minimumLevel && maximum == m_maximumLevel))
        return;
    m_minimumLevel = minimum;
    m_maximumLevel = maximum;
    update();
}

void LevelMeter::setMinimumLevel(float minimum)
{
    if (minimum == m_minimumLevel)
        return;
    m_maximumLevel = std::max(minimum, m_maximumLevel);
    m_minimumLevel = minimum;
    update();
}

void LevelMeter::setMaximumLevel(float maximum)
{
    if (maximum == m_maximumLevel)
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
    const float epsilon = std::numeric_limits<float>::epsilon();
    gradient.setColorAt(medium, m_lowColor);
    gradient.setColorAt(medium + epsilon, m_mediumColor);
    gradient.setColorAt(high - epsilon, m_mediumColor);
    gradient.setColorAt(high, m_highColor);
    m_gradient = QBrush(gradient);
    update();
}

void LevelMeter::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    const int w = width();
    const int h = height();
    const QRect inner(1, 1, w - 2, h - 2);
    if (!inner.isEmpty()) {
        painter.fillRect(inner, m_gradient);
        // The lit length is measured on the whole widget; it is limited here to the inner
        // rectangle, so that a full bar leaves no unlit row and nothing spills onto the frame.
        const int lit = mapValueToPixels(value());
        QRect unlit = inner;
        if (orientation() == Qt::Vertical)
            unlit.setHeight(std::clamp(inner.height() - lit, 0, inner.height()));
        else
            unlit.setLeft(inner.left() + std::clamp(lit, 0, inner.width()));
        if (!unlit.isEmpty())
            painter.fillRect(unlit, m_backgroundColor);
    }
    if (m_muted || !isEnabled())
        painter.fillRect(rect(), QColor(255, 255, 255, 128));
    painter.setPen(m_muted ? m_mutedFramePen : m_framePen);
    painter.drawRect(0, 0, w - 1, h - 1);
    if (m_muted)
        painter.drawRect(1, 1, w - 3, h - 3);
}

void LevelMeter::resizeEvent(QResizeEvent * /*event*/)
{
    updateGradient();
}

} // namespace ko::qtToolkit::widget
