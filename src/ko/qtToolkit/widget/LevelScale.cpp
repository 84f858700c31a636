// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/LevelScale.h>

#include "LevelMeter_p.h"

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QPair>
#include <QVector>

#include <algorithm>
#include <cmath>

namespace ko::qtToolkit::widget {

namespace {

constexpr int majorMarkLength = 6;
constexpr int minorMarkLength = 3;
// Between a major mark and its label, and at least between two labels.
constexpr int labelGap = 2;
constexpr int minimumMinorSpacing = 4;

// The marks of one step: the multiples of \a step within [minimum, maximum].
template<typename Function>
void forEachMultiple(double step, float minimum, float maximum, Function function)
{
    const double first = std::ceil(double(minimum) / step - 1e-9);
    const double last = std::floor(double(maximum) / step + 1e-9);
    // A step too fine for the range would draw a mark on every pixel or worse; none is asked for.
    if (!(last - first < 10000.0))
        return;
    for (double i = first; i <= last; ++i)
        function(i * step);
}

} // namespace

class LevelScalePrivate
{
public:
    explicit LevelScalePrivate(LevelScale *scale)
        : q(scale)
    {
    }

    LevelMapping mapping() const { return {minimumLevel, maximumLevel, minimumValue, maximumValue}; }
    int length() const { return orientation == Qt::Vertical ? q->height() : q->width(); }
    int decimals(double step) const { return std::max(0, -int(std::floor(std::log10(step) + 1e-9))); }
    QString label(double level, double step) const;
    QRect labelRect(double level, double step, const QFontMetrics &metrics, bool keptInside) const;
    bool labelsFit(double step, const QFontMetrics &metrics) const;
    QVector<QPair<double, QRect>> shownLabels(double step, const QFontMetrics &metrics) const;
    double chooseMajorStep() const;

    LevelScale *const q;
    Qt::Orientation orientation = Qt::Vertical;
    float minimumLevel = -60.0f;
    float maximumLevel = 15.0f;
    int minimumValue = 0;
    int maximumValue = 100;
    bool mirrored = false;
};

QString LevelScalePrivate::label(double level, double step) const
{
    // Multiples of the step come out of floating point a hair off; zero must not read "-0".
    const double rounded = std::abs(level) < step * 1e-6 ? 0.0 : level;
    return QString::number(rounded, 'f', decimals(step));
}

// Where the label of \a level goes: beyond its major mark, centred on the mark along the scale,
// and moved inside the widget at its ends when \a keptInside.
QRect LevelScalePrivate::labelRect(double level, double step, const QFontMetrics &metrics, bool keptInside) const
{
    const QString text = label(level, step);
    const QSize size(metrics.horizontalAdvance(text), metrics.height());
    const int position = q->markPosition(float(level));
    const int across = majorMarkLength + labelGap;
    const auto inside = [keptInside](int start, int size, int length) {
        return keptInside ? std::clamp(start, 0, std::max(length - size, 0)) : start;
    };
    if (orientation == Qt::Vertical) {
        const int top = inside(position - size.height() / 2, size.height(), q->height());
        const int left = mirrored ? q->width() - across - size.width() : across;
        return {QPoint(left, top), size};
    }
    const int left = inside(position - size.width() / 2, size.width(), q->width());
    const int top = mirrored ? q->height() - across - size.height() : across;
    return {QPoint(left, top), size};
}

namespace {

bool overlap(const QRect &a, const QRect &b, Qt::Orientation orientation)
{
    const QRect widened = orientation == Qt::Vertical ? a.adjusted(0, -labelGap, 0, labelGap)
                                                      : a.adjusted(-labelGap, 0, labelGap, 0);
    return widened.intersects(b);
}

} // namespace

// Whether the labels of \a step, centred on their marks, keep apart.
bool LevelScalePrivate::labelsFit(double step, const QFontMetrics &metrics) const
{
    bool fit = true;
    QRect previous;
    forEachMultiple(step, minimumLevel, maximumLevel, [&](double level) {
        const QRect rect = labelRect(level, step, metrics, false);
        fit = fit && (previous.isNull() || !overlap(rect, previous, orientation));
        previous = rect;
    });
    return fit;
}

// The labels drawn for \a step, kept inside the widget. A label moved inward at an end of the
// scale that then crowds its neighbour is left out, rather than its neighbour.
QVector<QPair<double, QRect>> LevelScalePrivate::shownLabels(double step, const QFontMetrics &metrics) const
{
    QVector<QPair<double, QRect>> labels;
    forEachMultiple(step, minimumLevel, maximumLevel,
                    [&](double level) { labels.append({level, labelRect(level, step, metrics, true)}); });
    const auto crowds = [&](int index) {
        const QRect &rect = labels.at(index).second;
        return (index > 0 && overlap(rect, labels.at(index - 1).second, orientation))
            || (index + 1 < labels.size() && overlap(rect, labels.at(index + 1).second, orientation));
    };
    if (labels.size() > 1 && crowds(labels.size() - 1))
        labels.removeLast();
    if (labels.size() > 1 && crowds(0))
        labels.removeFirst();
    return labels;
}

// The smallest of 1, 2 and 5 times a power of ten whose labels keep apart; the whole range when
// even that of the range itself does not fit.
double LevelScalePrivate::chooseMajorStep() const
{
    const double range = double(maximumLevel) - double(minimumLevel);
    if (!(range > 0.0) || length() <= 0)
        return std::max(range, 1.0);
    const QFontMetrics metrics = q->fontMetrics();
    // No label is smaller than a pixel: steps finer than the range over the length are skipped.
    double magnitude = std::pow(10.0, std::floor(std::log10(range / length())));
    while (magnitude <= range * 10.0) {
        for (const double mantissa : {1.0, 2.0, 5.0}) {
            const double step = mantissa * magnitude;
            if (step * length() >= range && labelsFit(step, metrics))
                return step;
        }
        magnitude *= 10.0;
    }
    return magnitude;
}

LevelScale::LevelScale(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<LevelScalePrivate>(this))
{
}

LevelScale::~LevelScale() = default;

Qt::Orientation LevelScale::orientation() const
{
    return d->orientation;
}

void LevelScale::setOrientation(Qt::Orientation orientation)
{
    if (orientation == d->orientation)
        return;
    d->orientation = orientation;
    updateGeometry();
    update();
}

float LevelScale::minimumLevel() const
{
    return d->minimumLevel;
}

float LevelScale::maximumLevel() const
{
    return d->maximumLevel;
}

void LevelScale::setLevelRange(float minimum, float maximum)
{
    if (!std::isfinite(minimum) || !std::isfinite(maximum)) {
        qWarning("LevelScale::setLevelRange: ignoring a level that is not finite");
        return;
    }
    if (minimum > maximum || (minimum == d->minimumLevel && maximum == d->maximumLevel))
        return;
    d->minimumLevel = minimum;
    d->maximumLevel = maximum;
    updateGeometry();
    update();
}

int LevelScale::minimumValue() const
{
    return d->minimumValue;
}

int LevelScale::maximumValue() const
{
    return d->maximumValue;
}

void LevelScale::setValueRange(int minimum, int maximum)
{
    if (minimum >= maximum || (minimum == d->minimumValue && maximum == d->maximumValue))
        return;
    d->minimumValue = minimum;
    d->maximumValue = maximum;
    update();
}

bool LevelScale::isMirrored() const
{
    return d->mirrored;
}

void LevelScale::setMirrored(bool mirrored)
{
    if (mirrored == d->mirrored)
        return;
    d->mirrored = mirrored;
    update();
}

int LevelScale::markPosition(float level) const
{
    const float clamped = std::max(std::min(level, d->maximumLevel), d->minimumLevel);
    const LevelMapping mapping = d->mapping();
    const int length = d->length();
    const int lit = mapping.litLength(mapping.value(clamped), length);
    return d->orientation == Qt::Vertical ? length - 1 - lit : lit;
}

double LevelScale::majorStep() const
{
    return d->chooseMajorStep();
}

QSize LevelScale::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    const int across = majorMarkLength + labelGap;
    if (d->orientation == Qt::Horizontal)
        return {200, across + metrics.height()};
    // Room for the widest label of the usual steps.
    const int widest = std::max({metrics.horizontalAdvance(d->label(d->minimumLevel, 1.0)),
                                 metrics.horizontalAdvance(d->label(d->maximumLevel, 1.0)),
                                 metrics.horizontalAdvance(QStringLiteral("-00"))});
    return {across + widest + 1, 200};
}

QSize LevelScale::minimumSizeHint() const
{
    const QSize hint = sizeHint();
    return d->orientation == Qt::Vertical ? QSize(hint.width(), 50) : QSize(50, hint.height());
}

void LevelScale::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    const QColor color = palette().color(QPalette::WindowText);
    const QFontMetrics metrics = fontMetrics();
    const bool vertical = d->orientation == Qt::Vertical;
    const int thickness = vertical ? width() : height();
    const auto drawMark = [&](float level, int markLength) {
        const int position = markPosition(level);
        const int from = d->mirrored ? thickness - markLength : 0;
        if (vertical)
            painter.fillRect(from, position, markLength, 1, color);
        else
            painter.fillRect(position, from, 1, markLength, color);
    };

    const double step = d->chooseMajorStep();
    const double mantissa = step / std::pow(10.0, std::floor(std::log10(step) + 1e-9));
    const double minorStep = step / (std::abs(mantissa - 2.0) < 1e-6 ? 4.0 : 5.0);
    const double range = double(d->maximumLevel) - double(d->minimumLevel);
    if (range > 0.0 && minorStep * d->length() / range >= minimumMinorSpacing) {
        forEachMultiple(minorStep, d->minimumLevel, d->maximumLevel,
                        [&](double level) { drawMark(float(level), minorMarkLength); });
    }
    painter.setPen(color);
    forEachMultiple(step, d->minimumLevel, d->maximumLevel, [&](double level) { drawMark(float(level), majorMarkLength); });
    const int alignment = int(d->mirrored && vertical ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
    for (const auto &[level, rect] : d->shownLabels(step, metrics))
        painter.drawText(rect, alignment, d->label(level, step));
}

void LevelScale::changeEvent(QEvent *event)
{
    // The step follows the font.
    if (event->type() == QEvent::FontChange)
        updateGeometry();
    QWidget::changeEvent(event);
}

} // namespace ko::qtToolkit::widget
