// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/LevelMeter.h>

#include "LevelMeter_p.h"

#include <ko/qtToolkit/common/EventPosition_p.h>
#include <ko/qtToolkit/common/Numeric_p.h>

#include <QElapsedTimer>
#include <QImage>
#include <QVector>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace ko::qtToolkit::widget {

class LevelMeterPrivate;

// Takes the meter's presses while the clip latch is on: a tap, a press and a release on the
// meter, releases the latch. Watching rather than overriding keeps the meter's virtual table as
// applications were built against.
class ClipTapFilter : public QObject
{
public:
    explicit ClipTapFilter(LevelMeterPrivate *meter)
        : m_meter(meter)
    {
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    LevelMeterPrivate *const m_meter;
    // A press on the meter waits for its release.
    bool m_pressed = false;
};

// The colours of a meter's gradient along the meter, as QPainter paints them into an image of a
// given format: one per row for a gradient along the height, one per column for one along the
// width. They change only with the gradient and the size.
struct GradientPixels
{
    QImage::Format format = QImage::Format_Invalid;
    bool alongHeight = true;
    // A QVector rather than a std::vector: the standard library's templates, instantiated here,
    // would be exported with the library.
    QVector<QRgb> pixels;
};

class LevelMeterPrivate
{
public:
    explicit LevelMeterPrivate(LevelMeter *meter);

    QRect inner() const;
    LevelMapping mapping() const;
    int litLength(int value) const;
    int litLengthOf(float level) const;
    void updateBetween(int shorter, int longer);
    void showLevel();
    void valueChanged(int previous, int current);
    void updateOpaque();
    void followPeak(qint64 now);
    void holdPeakAt(float level, qint64 now);
    void updatePeakLine(float before);
    QRect peakLine() const;
    QRect clipCap() const;
    float effectiveClipLevel() const;
    void setClipped(bool clipped);
    const QColor &zoneColor(float level) const;
    bool isWashedOut() const;
    bool paintsOnlyOpaqueColors() const;
    const GradientPixels &gradientPixels(QImage::Format format) const;
    template <typename Canvas>
    void paint(Canvas &canvas, const QRect &area) const;

    LevelMeter *const q;
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

    bool peakHoldEnabled = false;
    int peakHoldTime = 1500;
    float peakDecayRate = 20.0f;
    // The held peak as it was when the last level arrived, at peakTime; it is held from
    // peakHeldSince for peakHoldTime, then falls (all in milliseconds of the meters' clock).
    float peak = -60.0f;
    qint64 peakTime = 0;
    qint64 peakHeldSince = 0;

    bool clipLatchEnabled = false;
    // Until set, the clip level is the maximum level, whatever that becomes.
    bool clipLevelSet = false;
    float clipLevel = 15.0f;
    bool clipped = false;
    std::unique_ptr<ClipTapFilter> clipTapFilter;
    LevelMeterNotifier *notifier = nullptr;

    // The value whose lit length the screen shows, or will show once the updates asked for are
    // painted.
    int shownValue;
    // Whether no stop of the gradient is translucent; follows the gradient.
    bool gradientOpaque = false;
    // Made on the first paint that needs them; emptied when the gradient is rebuilt, which also
    // sets their direction: the gradient was built for the orientation of its time.
    mutable GradientPixels gradientCache;
};

namespace {

// The one-pixel outline along the edge of \a rect. Filled rather than stroked: a pen costs far
// more than the few pixels it draws.
template <typename Canvas>
void fillOutline(Canvas &canvas, const QRect &rect, const QColor &color)
{
    if (rect.isEmpty())
        return;
    canvas.fill({rect.left(), rect.top(), rect.width(), 1}, color);
    if (rect.height() > 1)
        canvas.fill({rect.left(), rect.bottom(), rect.width(), 1}, color);
    if (rect.height() > 2) {
        canvas.fill({rect.left(), rect.top() + 1, 1, rect.height() - 2}, color);
        canvas.fill({rect.right(), rect.top() + 1, 1, rect.height() - 2}, color);
    }
}

// Paints a meter through QPainter, on whatever the meter is painted on.
class PainterCanvas
{
public:
    PainterCanvas(QWidget *meter, const QBrush &gradient)
        : m_painter(meter)
        , m_gradient(gradient)
    {
    }

    void fill(const QRect &rect, const QColor &color) { m_painter.fillRect(rect, color); }
    void fillGradient(const QRect &rect) { m_painter.fillRect(rect, m_gradient); }

private:
    QPainter m_painter;
    const QBrush &m_gradient;
};

// The common part of \a a and \a b, empty when they do not meet. QRect::operator&() is not
// inline, and a meter's paint takes a dozen intersections.
QRect meet(const QRect &a, const QRect &b)
{
    return {QPoint(std::max(a.left(), b.left()), std::max(a.top(), b.top())),
            QPoint(std::min(a.right(), b.right()), std::min(a.bottom(), b.bottom()))};
}

// Sets \a count pixels from \a row on to \a pixel. A meter's rows are short, and a call to a
// general fill would cost more than the row: this writes four pixels a store, the last four
// overlapping the ones before when the count is not a multiple of four.
void fillRow(QRgb *row, int count, QRgb pixel)
{
    if (count < 4) {
        std::fill_n(row, count, pixel);
        return;
    }
    const QRgb four[4] = {pixel, pixel, pixel, pixel};
    QRgb *const lastFour = row + count - 4;
    for (; row < lastFour; row += 4)
        std::memcpy(row, four, sizeof four);
    std::memcpy(lastFour, four, sizeof four);
}

// Paints a meter by writing the pixels of the window's raster backing store. A meter is a few
// opaque rectangles whose pixels are known beforehand; writing them costs a fraction of beginning
// a QPainter on the backing store, which on a wall of meters every meter would do every frame.
// Only opaque paint is written, over a 32-bit image at one device pixel per pixel, so each pixel
// is exactly what QPainter would have given it.
class BackingStoreCanvas
{
public:
    // Whether \a device, the meter's paint is redirected to, is an image this canvas can write.
    static bool canWrite(const QPaintDevice *device)
    {
        if (device == nullptr || device->devType() != QInternal::Image)
            return false;
        const auto &image = static_cast<const QImage &>(*device);
        const QImage::Format format = image.format();
        // A shared image would detach on writing, and the backing store would not see the pixels.
        return (format == QImage::Format_RGB32 || format == QImage::Format_ARGB32
                || format == QImage::Format_ARGB32_Premultiplied)
            && image.devicePixelRatio() == 1.0 && image.isDetached();
    }

    // \a redirection is the offset of the meter's paint redirection: a meter's point p lies at
    // p - redirection in \a image. Only \a region, in the meter's coordinates, is written.
    BackingStoreCanvas(QImage &image, const QPoint &redirection, const QRegion &region,
                       const GradientPixels &gradient)
        : m_bits(image.bits())
        , m_stride(image.bytesPerLine())
        , m_offset(-redirection)
        , m_bounds(image.rect().translated(redirection))
        , m_region(region)
        , m_gradient(gradient)
    {
    }

    void fill(const QRect &rect, const QColor &color)
    {
        const QRgb pixel = color.rgba64().toArgb32();
        forEachRow(rect, [pixel](QRgb *row, int, int, int width) { fillRow(row, width, pixel); });
    }

    void fillGradient(const QRect &rect)
    {
        const QVector<QRgb> &pixels = m_gradient.pixels;
        if (m_gradient.alongHeight) {
            forEachRow(rect, [&pixels](QRgb *row, int y, int, int width) { fillRow(row, width, pixels[y]); });
        } else {
            forEachRow(rect, [&pixels](QRgb *row, int, int x, int width) {
                std::copy_n(pixels.constBegin() + x, width, row);
            });
        }
    }

private:
    // Calls \a write(row, y, x, width) for each row of \a rect within the region, with row
    // pointing at the image's pixel of the meter's (x, y).
    template <typename Write>
    void forEachRow(const QRect &rect, Write write)
    {
        for (const QRect &part : m_region) {
            const QRect area = meet(meet(rect, part), m_bounds);
            if (area.isEmpty())
                continue;
            uchar *row = m_bits + qsizetype(area.top() + m_offset.y()) * m_stride
                + qsizetype(area.left() + m_offset.x()) * qsizetype(sizeof(QRgb));
            for (int y = area.top(); y <= area.bottom(); ++y, row += m_stride)
                write(reinterpret_cast<QRgb *>(row), y, area.left(), area.width());
        }
    }

    // The image's pixels, written without QImage::scanLine(), which checks for sharing each time.
    uchar *const m_bits;
    const qsizetype m_stride;
    const QPoint m_offset;
    // The image's rectangle in the meter's coordinates.
    const QRect m_bounds;
    const QRegion &m_region;
    const GradientPixels &m_gradient;
};

qint64 monotonicMilliseconds()
{
    static const QElapsedTimer timer = [] {
        QElapsedTimer started;
        started.start();
        return started;
    }();
    return timer.elapsed();
}

LevelMeterClock meterClock = monotonicMilliseconds;

// The pixels of the clip cap along the meter: the latch shows as a red cap at the top end.
constexpr int clipCapLength = 4;
const QColor clipCapColor{0xff0000};
// Laid over a muted or disabled meter.
const QColor washColor{255, 255, 255, 128};

// Level ranges are arguments: one that is not finite is refused, as the mapping onto the bar
// would give NaN.
bool isFiniteLevel(const char *function, float level)
{
    if (std::isfinite(level))
        return true;
    qWarning("LevelMeter::%s: ignoring a level that is not finite", function);
    return false;
}

// QProgressBar::setValue() repaints at once, which would sync and flush the whole window for
// every meter of a wall. While this lives, that repaint is held back (QWidget::repaint() does
// nothing with updates disabled), and the meter asks for the strip that changed itself.
// Updates are enabled again without QWidget::setUpdatesEnabled(), which would schedule a
// repaint of the whole meter; they stay disabled when the application or the parent disabled
// them meanwhile.
class RepaintHeldBack
{
public:
    explicit RepaintHeldBack(QWidget *widget)
        : m_widget(widget)
        , m_held(widget->updatesEnabled())
    {
        if (m_held)
            m_widget->setAttribute(Qt::WA_UpdatesDisabled);
    }

    ~RepaintHeldBack()
    {
        if (!m_held || m_widget->testAttribute(Qt::WA_ForceUpdatesDisabled))
            return;
        const QWidget *parent = m_widget->isWindow() ? nullptr : m_widget->parentWidget();
        if (parent == nullptr || parent->updatesEnabled())
            m_widget->setAttribute(Qt::WA_UpdatesDisabled, false);
    }

    RepaintHeldBack(const RepaintHeldBack &) = delete;
    RepaintHeldBack &operator=(const RepaintHeldBack &) = delete;

private:
    QWidget *const m_widget;
    const bool m_held;
};

// Strip ends are moved out to the lines of a grid of this pitch fixed in the window. Before
// painting, the backing store unites the update regions of all the widgets of a window into one
// region; strips that end at different heights side by side, as a wall of meters gives, cut that
// region into a band per distinct end, and uniting them costs more with every band. On the grid,
// the strips of a wall share their ends, and painting a few more rows costs far less. A finer grid
// leaves more bands to unite, a coarser one more rows to paint; 40 measured best for a wall.
constexpr int stripGridPitch = 40;

int gridLineAtOrBelow(int position)
{
    return position >= 0 ? position / stripGridPitch * stripGridPitch
                         : -((stripGridPitch - 1 - position) / stripGridPitch * stripGridPitch);
}

// Widens [first, last] to whole grid cells, with the grid offset by \a origin, within [low, high].
void widenToGrid(int &first, int &last, int origin, int low, int high)
{
    first = std::max(gridLineAtOrBelow(first + origin) - origin, low);
    last = std::min(gridLineAtOrBelow(last + origin) + stripGridPitch - 1 - origin, high);
}

} // namespace

LevelMeterPrivate::LevelMeterPrivate(LevelMeter *meter)
    : q(meter)
    , shownValue(meter->value())
{
}

QRect LevelMeterPrivate::inner() const
{
    return q->rect().adjusted(1, 1, -1, -1);
}

int LevelMapping::value(float level) const
{
    const auto vmin = static_cast<float>(minimumValue);
    const auto vmax = static_cast<float>(maximumValue);
    float mapped = (vmax - vmin) * (level - minimumLevel) / (maximumLevel - minimumLevel) + vmin;
    // A level range near the limits of float overflows in the product, which double holds.
    if (std::isinf(mapped)) {
        mapped = float((double(vmax) - vmin) * (double(level) - minimumLevel) / (double(maximumLevel) - minimumLevel)
                       + vmin);
    }
    const int value = common::truncatedToInt(mapped);
    // A level inside the level range maps inside the bar's range; single precision can round a
    // bar range near the int limits past its ends, where QProgressBar would ignore the value.
    if (level >= minimumLevel && level <= maximumLevel)
        return std::clamp(value, minimumValue, maximumValue);
    return value;
}

float LevelMapping::fraction(int value) const
{
    const auto vmin = static_cast<float>(minimumValue);
    const auto vmax = static_cast<float>(maximumValue);
    return (static_cast<float>(value) - vmin) / (vmax - vmin);
}

int LevelMapping::pixels(int value, int extent) const
{
    return common::truncatedToInt(static_cast<float>(extent) * fraction(value));
}

int LevelMapping::litLength(int value, int extent) const
{
    return std::clamp(pixels(value, extent), 0, std::max(extent - 2, 0));
}

LevelMeterClock setLevelMeterClock(LevelMeterClock clock)
{
    const LevelMeterClock previous = meterClock;
    meterClock = clock != nullptr ? clock : monotonicMilliseconds;
    return previous;
}

LevelMapping LevelMeterPrivate::mapping() const
{
    return {minimumLevel, maximumLevel, q->minimum(), q->maximum()};
}

// The lit length of \a value as painted: measured on the whole widget, limited to the inner
// rectangle.
int LevelMeterPrivate::litLength(int value) const
{
    if (inner().isEmpty())
        return 0;
    return mapping().litLength(value, q->orientation() == Qt::Vertical ? q->height() : q->width());
}

int LevelMeterPrivate::litLengthOf(float level) const
{
    return litLength(mapping().value(q->clampLevel(level)));
}

// Asks for a repaint of the inside between two lit lengths, widened to the window's grid.
void LevelMeterPrivate::updateBetween(int shorter, int longer)
{
    const QRect inside = inner();
    const QPoint origin = q->mapTo(q->window(), QPoint());
    if (q->orientation() == Qt::Vertical) {
        int top = inside.bottom() + 1 - longer;
        int bottom = inside.bottom() - shorter;
        widenToGrid(top, bottom, origin.y(), inside.top(), inside.bottom());
        q->update(QRect(QPoint(inside.left(), top), QPoint(inside.right(), bottom)));
    } else {
        int left = inside.left() + shorter;
        int right = inside.left() + longer - 1;
        widenToGrid(left, right, origin.x(), inside.left(), inside.right());
        q->update(QRect(QPoint(left, inside.top()), QPoint(right, inside.bottom())));
    }
}

// Asks for a repaint of what changed between the lit lengths of two values: the strip between
// them, widened to the window's grid, or nothing when both light the same pixels.
void LevelMeterPrivate::valueChanged(int previous, int current)
{
    if (previous != shownValue) {
        // The value was changed past setLevel(), with or without a repaint: what the screen
        // shows is not known.
        q->update();
    } else {
        const int from = litLength(previous);
        const int to = litLength(current);
        if (from != to)
            updateBetween(std::min(from, to), std::max(from, to));
    }
    shownValue = current;
}

// Sets the progress bar's value for the level.
void LevelMeterPrivate::showLevel()
{
    const int value = mapping().value(level);
    const int previous = q->value();
    if (value == previous)
        return;
    // valueChanged() is held back with the repaint and emitted once updates work again, so that
    // what a receiver asks to repaint is painted.
    const bool signalsWereBlocked = q->signalsBlocked();
    {
        const QSignalBlocker blocker(q);
        const RepaintHeldBack heldBack(q);
        q->setValue(value);
    }
    const int current = q->value();
    if (current == previous)
        return;
    valueChanged(previous, current);
    if (!signalsWereBlocked)
        Q_EMIT q->valueChanged(current);
}

// Lets the held peak fall for the time since the last level, then raises it to the level when
// that reached it, which holds it anew. The line is repainted where it moved.
void LevelMeterPrivate::followPeak(qint64 now)
{
    const float before = peak;
    const qint64 heldUntil = peakHeldSince + peakHoldTime;
    if (now > heldUntil) {
        const qint64 fallingSince = std::max(peakTime, heldUntil);
        if (now > fallingSince)
            peak -= peakDecayRate * static_cast<float>(now - fallingSince) / 1000.0f;
    }
    peakTime = now;
    if (!(peak > level))
        holdPeakAt(level, now);
    updatePeakLine(before);
}

// Asks for a repaint where the peak line was, for the peak \a before, and where it is now. The
// line is the last two lit pixels; it is repainted in place when it moved into another zone,
// whose colour it takes, without moving.
void LevelMeterPrivate::updatePeakLine(float before)
{
    const int from = litLengthOf(before);
    const int to = litLengthOf(peak);
    if (to != from)
        updateBetween(std::max(std::min(from, to) - 2, 0), std::max(from, to));
    else if (to > 0 && zoneColor(peak) != zoneColor(before))
        updateBetween(std::max(to - 2, 0), to);
}

void LevelMeterPrivate::holdPeakAt(float level, qint64 now)
{
    peak = level;
    peakTime = now;
    peakHeldSince = now;
}

// The peak line: the last two lit pixels of a bar lit up to the peak.
QRect LevelMeterPrivate::peakLine() const
{
    const int length = litLengthOf(peak);
    if (length == 0)
        return {};
    const QRect inside = inner();
    const int thickness = std::min(length, 2);
    if (q->orientation() == Qt::Vertical)
        return {inside.left(), inside.bottom() + 1 - length, inside.width(), thickness};
    return {inside.left() + length - thickness, inside.top(), thickness, inside.height()};
}

QRect LevelMeterPrivate::clipCap() const
{
    const QRect inside = inner();
    if (q->orientation() == Qt::Vertical)
        return {inside.left(), inside.top(), inside.width(), std::min(clipCapLength, inside.height())};
    const int length = std::min(clipCapLength, inside.width());
    return {inside.right() + 1 - length, inside.top(), length, inside.height()};
}

const QColor &LevelMeterPrivate::zoneColor(float level) const
{
    if (level >= highThresholdLevel)
        return highColor;
    return level > mediumThresholdLevel ? mediumColor : lowColor;
}

// Fills the meter within \a area (frame, lit zones, unlit part, peak line, clip cap, wash) on
// \a canvas, each fill over the ones before it.
template <typename Canvas>
void LevelMeterPrivate::paint(Canvas &canvas, const QRect &area) const
{
    const QRect whole = q->rect();
    const QRect inside = inner();
    const bool washedOut = isWashedOut();
    const QColor &outlineColor = muted ? mutedFrameColor : frameColor;
    if (!inside.isEmpty()) {
        const int pixels = litLength(q->value());
        QRect lit = inside;
        QRect unlit = inside;
        if (q->orientation() == Qt::Vertical) {
            unlit.setHeight(inside.height() - pixels);
            lit.setTop(unlit.bottom() + 1);
        } else {
            lit.setWidth(pixels);
            unlit.setLeft(lit.right() + 1);
        }
        // An opaque background covers the gradient completely, so the gradient is needed only
        // where the bar is lit; a translucent one is laid over it.
        const QRect gradientArea = meet(backgroundColor.alpha() == 255 ? lit : inside, area);
        if (!gradientArea.isEmpty())
            canvas.fillGradient(gradientArea);
        const QRect unlitArea = meet(unlit, area);
        if (!unlitArea.isEmpty())
            canvas.fill(unlitArea, backgroundColor);
        if (peakHoldEnabled) {
            const QRect line = meet(peakLine(), area);
            if (!line.isEmpty())
                canvas.fill(line, zoneColor(peak));
        }
        if (clipped) {
            const QRect cap = meet(clipCap(), area);
            if (!cap.isEmpty())
                canvas.fill(cap, clipCapColor);
        }
    }
    if (washedOut)
        canvas.fill(meet(whole, area), washColor);
    const auto within = [&area](const QRect &rect) { return !rect.isEmpty() && rect.contains(area); };
    if (!within(inside))
        fillOutline(canvas, whole, outlineColor);
    if (muted && !within(inside.adjusted(1, 1, -1, -1)))
        fillOutline(canvas, inside, outlineColor);
}

bool LevelMeterPrivate::isWashedOut() const
{
    return muted || !q->isEnabled();
}

// Whether everything the meter paints is opaque, its wash aside: the gradient, the background and
// the colour of the peak line.
bool LevelMeterPrivate::paintsOnlyOpaqueColors() const
{
    return !isWashedOut() && gradientOpaque && backgroundColor.alpha() == 255
        && (!peakHoldEnabled || zoneColor(peak).alpha() == 255);
}

const GradientPixels &LevelMeterPrivate::gradientPixels(QImage::Format format) const
{
    if (gradientCache.format != format) {
        const bool gradientAlongHeight = gradientCache.alongHeight;
        const int length = gradientAlongHeight ? q->height() : q->width();
        QImage line(gradientAlongHeight ? QSize(1, length) : QSize(length, 1), format);
        {
            QPainter painter(&line);
            painter.fillRect(line.rect(), gradient);
        }
        gradientCache.format = format;
        gradientCache.pixels.resize(length);
        for (int i = 0; i < length; ++i) {
            const auto *pixel = reinterpret_cast<const QRgb *>(line.constScanLine(gradientAlongHeight ? i : 0));
            gradientCache.pixels[i] = pixel[gradientAlongHeight ? 0 : i];
        }
    }
    return gradientCache;
}

bool ClipTapFilter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseButtonRelease)
        return QObject::eventFilter(watched, event);
    const auto *mouse = static_cast<QMouseEvent *>(event);
    // A disabled meter handles no events of its own, as any disabled widget.
    if (mouse->button() != Qt::LeftButton || !m_meter->q->isEnabled())
        return false;
    if (event->type() == QEvent::MouseButtonPress) {
        m_pressed = true;
        return true;
    }
    if (!m_pressed)
        return false;
    m_pressed = false;
    if (m_meter->q->rect().contains(common::localPosition(*mouse).toPoint()))
        m_meter->setClipped(false);
    return true;
}

float LevelMeterPrivate::effectiveClipLevel() const
{
    return clipLevelSet ? clipLevel : maximumLevel;
}

void LevelMeterPrivate::setClipped(bool latched)
{
    if (latched == clipped)
        return;
    clipped = latched;
    q->update(clipCap());
    if (notifier != nullptr)
        Q_EMIT notifier->clippedChanged(clipped);
}

// A meter whose gradient and background are opaque covers every pixel it has with opaque paint:
// the wash of a muted or disabled meter goes over the meter's own paint. Telling Qt so spares
// painting what lies behind the meter, and lets the backing store keep the meter's dirty region
// apart from the window's.
void LevelMeterPrivate::updateOpaque()
{
    q->setAttribute(Qt::WA_OpaquePaintEvent, gradientOpaque && backgroundColor.alpha() == 255);
}

LevelMeter::LevelMeter(QWidget *parent)
    : QProgressBar(parent)
    , d(std::make_unique<LevelMeterPrivate>(this))
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
    if (d->peakHoldEnabled)
        d->followPeak(meterClock());
    d->showLevel();
    // The level as given, not as clamped: a clip level above the maximum still catches it.
    if (d->clipLatchEnabled && level >= d->effectiveClipLevel())
        d->setClipped(true);
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

bool LevelMeter::isPeakHoldEnabled() const
{
    return d->peakHoldEnabled;
}

void LevelMeter::setPeakHoldEnabled(bool enabled)
{
    if (enabled == d->peakHoldEnabled)
        return;
    d->peakHoldEnabled = enabled;
    if (enabled)
        d->holdPeakAt(d->level, meterClock());
    update();
}

float LevelMeter::peakLevel() const
{
    return d->peakHoldEnabled ? d->peak : d->level;
}

int LevelMeter::peakHoldTime() const
{
    return d->peakHoldTime;
}

void LevelMeter::setPeakHoldTime(int milliseconds)
{
    d->peakHoldTime = std::max(milliseconds, 0);
}

float LevelMeter::peakDecayRate() const
{
    return d->peakDecayRate;
}

void LevelMeter::setPeakDecayRate(float decibelsPerSecond)
{
    if (!(decibelsPerSecond >= 0.0f)) {
        qWarning("LevelMeter::setPeakDecayRate: ignoring a rate that is negative or not a number");
        return;
    }
    d->peakDecayRate = decibelsPerSecond;
}

void LevelMeter::resetPeak()
{
    if (!d->peakHoldEnabled)
        return;
    const float before = d->peak;
    d->holdPeakAt(d->level, meterClock());
    d->updatePeakLine(before);
}

bool LevelMeter::isClipLatchEnabled() const
{
    return d->clipLatchEnabled;
}

void LevelMeter::setClipLatchEnabled(bool enabled)
{
    if (enabled == d->clipLatchEnabled)
        return;
    d->clipLatchEnabled = enabled;
    if (enabled) {
        d->clipTapFilter = std::make_unique<ClipTapFilter>(d.get());
        installEventFilter(d->clipTapFilter.get());
    } else {
        d->clipTapFilter.reset();
        d->setClipped(false);
    }
}

float LevelMeter::clipLevel() const
{
    return d->effectiveClipLevel();
}

void LevelMeter::setClipLevel(float level)
{
    if (!isFiniteLevel("setClipLevel", level))
        return;
    d->clipLevel = level;
    d->clipLevelSet = true;
}

bool LevelMeter::isClipped() const
{
    return d->clipped;
}

void LevelMeter::resetClip()
{
    d->setClipped(false);
}

LevelMeterNotifier *LevelMeter::notifier() const
{
    if (d->notifier == nullptr)
        d->notifier = new LevelMeterNotifier(const_cast<LevelMeter *>(this));
    return d->notifier;
}

void LevelMeter::setBackgroundColor(const QColor &color)
{
    if (color == d->backgroundColor)
        return;
    d->backgroundColor = color;
    d->updateOpaque();
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
    return d->mapping().value(level);
}

float LevelMeter::mapLevelToPercentage(float level) const
{
    return (level - d->minimumLevel) / (d->maximumLevel - d->minimumLevel);
}

float LevelMeter::mapValueToPercentage(int value) const
{
    return d->mapping().fraction(value);
}

int LevelMeter::mapValueToPixels(int value) const
{
    return d->mapping().pixels(value, orientation() == Qt::Horizontal ? width() : height());
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
    d->gradientOpaque = d->gradient.isOpaque();
    d->gradientCache.alongHeight = orientation() == Qt::Vertical;
    d->gradientCache.format = QImage::Format_Invalid;
    d->updateOpaque();
    update();
}

void LevelMeter::paintEvent(QPaintEvent *event)
{
    // Painted straight into the window's backing store when that is a raster image the meter
    // can write, and the paint is not shared with another painter (QWidget::render(), grab()).
    QPoint redirection;
    QPaintDevice *device = redirected(&redirection);
    if (sharedPainter() == nullptr && BackingStoreCanvas::canWrite(device) && d->paintsOnlyOpaqueColors()) {
        auto &image = static_cast<QImage &>(*device);
        BackingStoreCanvas canvas(image, redirection, event->region(), d->gradientPixels(image.format()));
        d->paint(canvas, event->rect());
        return;
    }
    PainterCanvas canvas(this, d->gradient);
    d->paint(canvas, event->rect());
}

void LevelMeter::resizeEvent(QResizeEvent * /*event*/)
{
    updateGradient();
}

LevelMeterNotifier::LevelMeterNotifier(QObject *parent)
    : QObject(parent)
{
}

LevelMeterNotifier::~LevelMeterNotifier() = default;

} // namespace ko::qtToolkit::widget
