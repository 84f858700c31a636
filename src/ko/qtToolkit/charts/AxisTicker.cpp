// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/charts/AxisTicker.h>
#include <ko/qtToolkit/charts/CustomAxisTicker.h>
#include <ko/qtToolkit/charts/LogarithmicAxisTicker.h>

#include "AxisTicker_p.h"
#include "LabelFormat_p.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>
#include <limits>
#include <typeinfo>

namespace ko::qtToolkit::charts {

class AxisTickerPrivate
{
public:
    int tickCount = 3;
    double tickOrigin = 0.0;
    AxisTicker::TickStepStrategy tickStepStrategy = AxisTicker::FineSteps;
    // Checked once when set, so that each label only applies it.
    LabelFormat labelFormat{QByteArrayLiteral("%.2f")};
};

namespace {

constexpr double ln10 = 2.302585092994046;

// Tick indices are kept well inside the 64-bit range so that index arithmetic cannot overflow.
constexpr double largestTickIndex = 4611686018427387904.0; // 2^62

// Beyond this size the grid from the floored and ceiled distances is mostly ticks that trimming
// drops again; the ticks around the range are created instead.
constexpr int largestFlooredGrid = 64;

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

bool fitIndexRange(double first, double last)
{
    return std::abs(first) <= largestTickIndex && std::abs(last) <= largestTickIndex;
}

// The ticks (j × step + origin) for j = first .. last.
QVector<double> tickGrid(qint64 first, qint64 last, double step, double origin)
{
    const int count = int(last - first) + 1;
    QVector<double> ticks(count);
    for (int k = 0; k < count; ++k)
        ticks[k] = double(first + k) * step + origin;
    return ticks;
}

// What generate() can work with: strictly ascending and without NaN. Infinities can only stand
// at the ends and are trimmed away with the range.
bool isUsable(const QVector<double> &ticks)
{
    if (!ticks.isEmpty() && std::isnan(ticks.first()))
        return false;
    return std::adjacent_find(ticks.cbegin(), ticks.cend(),
                              [](double a, double b) { return !(a < b); })
        == ticks.cend();
}

// The library's own tickers, as opposed to subclasses an application derives from them: for these
// generate() knows that createSubTicks() is the one of this class. The type_info objects are
// compared by address, which is cheap; should a platform keep two copies of one, the general path
// is taken, with the same results.
bool hasOwnSubTicks(const std::type_info &type)
{
    return &type == &typeid(AxisTicker) || &type == &typeid(LogarithmicAxisTicker)
        || &type == &typeid(CustomAxisTicker);
}

// ... and generateLabels() that tickLabel() applies the label format.
bool hasFormattedLabels(const std::type_info &type)
{
    return &type == &typeid(AxisTicker) || &type == &typeid(LogarithmicAxisTicker);
}

// At most this many sub-ticks between each pair of \a tickCount ticks: fewer than asked when
// there would be more than an axis can show.
int fittingSubTickCount(int subTickCount, int tickCount)
{
    return int(std::min<qint64>(subTickCount, tickLimits::maximumSubTicks / (tickCount - 1)));
}

// Hands the sub-ticks between the ticks \a previous and \a next to \a take, ascending: previous +
// k × (next - previous) / (subTickCount + 1) for k = 1 .. subTickCount, leaving out a value that
// rounding puts on or beyond either tick or onto the sub-tick before it.
template<typename Take>
void subTicksBetween(double previous, double next, int subTickCount, Take &&take)
{
    const int intervals = subTickCount + 1;
    double subStep = (next - previous) / intervals;
    if (std::isinf(subStep)) { // ticks far apart at both ends of the double range
        subStep = next / intervals - previous / intervals;
    } else if (subStep > 0x1p-1000
               && subStep > std::max(std::abs(previous), std::abs(next)) * 0x1p-40) {
        // The step lies so far above the rounding error of these values (a few units of 2^-53
        // of the larger tick) that every sub-tick lands strictly above the one before and below
        // next: nothing to leave out.
        for (int k = 1; k <= subTickCount; ++k)
            take(previous + k * subStep);
        return;
    }
    // Where the step is below the resolution of doubles, rounding can put a sub-tick onto a tick
    // or onto its neighbour.
    double lowest = previous;
    for (int k = 1; k <= subTickCount; ++k) {
        const double subTick = previous + k * subStep;
        if (subTick > lowest && subTick < next) {
            take(subTick);
            lowest = subTick;
        }
    }
}

// \a values sized to \a size, reusing its buffer where that is not shared and large enough; the
// contents are to be overwritten.
double *overwritable(QVector<double> &values, int size)
{
    if (values.isDetached() && values.capacity() >= size)
        values.resize(size);
    else
        values = QVector<double>(size);
    return values.data();
}

// createSubTicks() of the ticks from \a first to \a last, then trimmed to [min, max], in one
// pass: the sub-ticks are ascending, so trimming them keeps exactly those within the range, and
// the pairs of ticks wholly outside it have none to keep.
void subTicksWithin(double min, double max, int subTickCount, const double *first,
                    const double *last, QVector<double> &subTicks)
{
    const int tickCount = int(last - first) + 1;
    if (subTickCount >= 1 && tickCount >= 2)
        subTickCount = fittingSubTickCount(subTickCount, tickCount);
    if (subTickCount < 1 || tickCount < 2) {
        overwritable(subTicks, 0);
        return;
    }
    double *const out = overwritable(subTicks, (tickCount - 1) * subTickCount);
    int count = 0;
    for (const double *tick = first + 1; tick <= last; ++tick) {
        const double previous = tick[-1];
        const double next = *tick;
        if (next <= min)
            continue;
        if (previous >= max)
            break;
        // The sub-ticks lie strictly between the two ticks.
        if (previous >= min && next <= max) {
            subTicksBetween(previous, next, subTickCount,
                            [&](double subTick) { out[count++] = subTick; });
        } else {
            subTicksBetween(previous, next, subTickCount, [&](double subTick) {
                if (subTick >= min && subTick <= max)
                    out[count++] = subTick;
            });
        }
    }
    subTicks.resize(count);
}

// Keeps ticks[first .. last] of the vector; both within it.
void keepSlice(QVector<double> &ticks, int first, int last)
{
    if (first == 0 && last == ticks.size() - 1)
        return;
    ticks.resize(last + 1);
    if (first > 0)
        ticks.remove(0, first);
}

// The ticks that lie in [min, max] of strictly ascending \a ticks: the first at or above min and
// the last at or below max. None lie there when first is past the end or last before the start.
struct TicksInRange
{
    int first;
    int last;
    bool none;
};

TicksInRange ticksInRange(const QVector<double> &ticks, double min, double max)
{
    const int size = ticks.size();
    int low = 0;
    while (low < size && !(ticks[low] >= min))
        ++low;
    int high = size - 1;
    while (high >= 0 && !(ticks[high] <= max))
        --high;
    return {low, high, low == size || high < 0};
}

} // namespace

AxisTicker::AxisTicker()
    : d(std::make_unique<AxisTickerPrivate>())
{
}

AxisTicker::AxisTicker(const AxisTicker &other)
    : d(std::make_unique<AxisTickerPrivate>(*other.d))
{
}

AxisTicker &AxisTicker::operator=(const AxisTicker &other)
{
    *d = *other.d;
    return *this;
}

AxisTicker::~AxisTicker() = default;

int AxisTicker::tickCount() const
{
    return d->tickCount;
}

void AxisTicker::setTickCount(int count)
{
    if (count <= 0) {
        qWarning("tick count must be greater than zero");
        return;
    }
    d->tickCount = count;
}

double AxisTicker::tickOrigin() const
{
    return d->tickOrigin;
}

void AxisTicker::setTickOrigin(double origin)
{
    d->tickOrigin = origin;
}

AxisTicker::TickStepStrategy AxisTicker::tickStepStrategy() const
{
    return d->tickStepStrategy;
}

void AxisTicker::setTickStepStrategy(TickStepStrategy strategy)
{
    d->tickStepStrategy = strategy;
}

void AxisTicker::setLabelFormat(const QString &format)
{
    // The axis element hands its format over at every layout.
    const QByteArray bytes = format.toUtf8();
    if (bytes == d->labelFormat.format())
        return;
    const LabelFormat checked(bytes);
    if (!checked.isValid()) {
        qWarning("AxisTicker::setLabelFormat: ignoring \"%s\": a label format takes at most one "
                 "floating-point or integer conversion",
                 bytes.constData());
        return;
    }
    d->labelFormat = checked;
}

void AxisTicker::generate(double min, double max, QVector<double> &ticks,
                          QVector<double> &subTicks) const
{
    if (!(min <= max) || !std::isfinite(min) || !std::isfinite(max)) {
        ticks.clear();
        subTicks.clear();
        return;
    }
    const double step = computeTickStep(min, max);
    ticks = createTicks(step, min, max);
    // The library's tickers thin their own ticks; this catches a subclass's.
    if (thinningStride(ticks.size()) > 1.0)
        ticks = thinnedTicks(ticks);
    if (!isUsable(ticks))
        ticks.clear();

    // What trimTicks() keeps of the strictly ascending ticks: from the first at or above min to
    // the last at or below max, with one outlier on each side for the sub-ticks.
    const int size = ticks.size();
    const TicksInRange inRange = ticksInRange(ticks, min, max);
    if (inRange.none) {
        ticks.clear();
        subTicks.clear();
        return;
    }
    const int low = inRange.first;
    const int high = inRange.last;
    const int firstOutlier = std::max(low - 1, 0);
    const int lastOutlier = std::min(high + 1, size - 1);
    const int subTickCount = computeSubTickCount(step);
    // One vector passed as both ticks and sub-ticks takes the general path, whose order of
    // writes decides what it ends up holding.
    if (hasOwnSubTicks(typeid(*this)) && &ticks != &subTicks) {
        const double *const data = ticks.constData();
        subTicksWithin(min, max, subTickCount, data + firstOutlier, data + lastOutlier, subTicks);
        if (low > high)
            ticks.clear(); // the range lies between two ticks
        else
            keepSlice(ticks, low, high);
    } else {
        keepSlice(ticks, firstOutlier, lastOutlier);
        subTicks = createSubTicks(subTickCount, ticks);
        trimTicks(min, max, subTicks, false);
        trimTicks(min, max, ticks, false);
    }
}

void AxisTicker::generateLabels(const QVector<double> &ticks, QStringList &labels) const
{
    // The list is reused rather than cleared: the axis passes the same one at every layout.
    const int count = ticks.size();
    if (labels.size() > count)
        labels.erase(labels.begin() + count, labels.end());
    labels.reserve(count);
    if (hasFormattedLabels(typeid(*this))) {
        // The labels of the last layout are overwritten in place, mostly without allocating.
        for (int i = 0; i < count; ++i) {
            if (i == labels.size())
                labels.append(QString());
            d->labelFormat.applyTo(ticks[i], labels[i]);
        }
        return;
    }
    for (int i = 0; i < count; ++i) {
        if (i < labels.size())
            labels[i] = tickLabel(ticks[i]);
        else
            labels.append(tickLabel(ticks[i]));
    }
}

double AxisTicker::computeTickStep(double min, double max) const
{
    const double divisor = d->tickCount + 1e-10;
    double rawStep = (max - min) / divisor;
    if (std::isinf(rawStep) && std::isfinite(min) && std::isfinite(max))
        rawStep = max / divisor - min / divisor;
    return cleanMantissa(rawStep, d->tickStepStrategy);
}

int AxisTicker::computeSubTickCount(double tickStep) const
{
    static constexpr int integerMantissaCounts[] = {4, 3, 2, 3, 4, 2, 6, 3, 2};
    static constexpr int halfMantissaCounts[] = {2, 4, 4, 2, 4, 4, 2, 4, 4};
    const double m = mantissa(tickStep, nullptr);
    if (!std::isfinite(m))
        return 1;
    // m lies in [1, 10] up to rounding, so the truncation fits an int.
    int integer = int(m);
    const double fraction = m - integer;
    if (fraction < 0.01 || 1.0 - fraction < 0.01) {
        if (1.0 - fraction < 0.01)
            ++integer;
        return integer >= 1 && integer <= 9 ? integerMantissaCounts[integer - 1] : 1;
    }
    if (std::abs(fraction - 0.5) < 0.01)
        return integer >= 1 && integer <= 9 ? halfMantissaCounts[integer - 1] : 1;
    return 1;
}

QString AxisTicker::tickLabel(double value) const
{
    return d->labelFormat.apply(value);
}

QVector<double> AxisTicker::createTicks(double tickStep, double min, double max) const
{
    if (!(tickStep > 0.0) || !std::isfinite(tickStep) || !(min <= max))
        return {};
    // floor and ceil act on the distances, not on the quotients: below a step of 1 this grid
    // reaches further out than needed and generate() trims it.
    const double first = std::trunc(std::floor(min - d->tickOrigin) / tickStep);
    const double last = std::trunc(std::ceil(max - d->tickOrigin) / tickStep);
    if (fitIndexRange(first, last) && last - first + 3 <= largestFlooredGrid)
        return tickGrid(qint64(first) - 1, qint64(last) + 1, tickStep, d->tickOrigin);
    // Narrow ranges would make that grid large, up to astronomically so. The ticks one step
    // beyond each end are all that trimming keeps of it, so only they are created.
    double below = std::floor((min - d->tickOrigin) / tickStep);
    double above = std::ceil((max - d->tickOrigin) / tickStep);
    if (!fitIndexRange(below, above))
        return {};
    // More ticks than an axis can show: every stride-th tick of the grid is kept, on multiples of
    // the stride so that the kept ticks stay put while the range pans.
    const double stride = thinningStride(above - below + 3);
    if (stride > 1.0) {
        below = std::floor(below / stride);
        above = std::ceil(above / stride);
        tickStep *= stride;
    }
    return tickGrid(qint64(below) - 1, qint64(above) + 1, tickStep, d->tickOrigin);
}

QVector<double> AxisTicker::createSubTicks(int subTickCount, const QVector<double> &ticks) const
{
    if (subTickCount < 1 || ticks.size() < 2)
        return {};
    // More sub-ticks than an axis can show: fewer between each pair of ticks, evenly spaced still.
    subTickCount = fittingSubTickCount(subTickCount, ticks.size());
    if (subTickCount < 1)
        return {};
    QVector<double> subTicks((ticks.size() - 1) * subTickCount);
    double *const out = subTicks.data();
    int count = 0;
    for (int i = 1; i < ticks.size(); ++i)
        subTicksBetween(ticks[i - 1], ticks[i], subTickCount,
                        [&](double subTick) { out[count++] = subTick; });
    subTicks.resize(count);
    return subTicks;
}

void AxisTicker::trimTicks(double min, double max, QVector<double> &ticks, bool keepOneOutlier)
{
    const int size = ticks.size();
    const TicksInRange inRange = ticksInRange(ticks, min, max);
    if (inRange.none) {
        ticks.clear();
        return;
    }
    const int low = inRange.first;
    const int high = inRange.last;
    const int outliers = keepOneOutlier ? 1 : 0;
    int trimFront = low - outliers;
    int trimBack = size - 1 - high - outliers;
    if (trimFront < 1 && trimBack < 1)
        return;
    trimFront = std::max(trimFront, 0);
    trimBack = std::max(trimBack, 0);
    if (trimFront + trimBack >= size) { // only for min > max
        ticks.clear();
        return;
    }
    ticks.resize(size - trimBack);
    ticks.remove(0, trimFront);
}

double AxisTicker::mantissa(double input, double *magnitude)
{
    double power = notANumber;
    double result = notANumber;
    if (input > 0.0 && std::isfinite(input)) {
        const double candidate = std::pow(10.0, std::floor(std::log(input) / ln10));
        if (candidate > 0.0) {
            power = candidate;
            result = input / power;
        }
    }
    if (magnitude)
        *magnitude = power;
    return result;
}

double AxisTicker::cleanMantissa(double input, TickStepStrategy strategy)
{
    if (input == 0.0)
        return 0.0;
    double magnitude = 0.0;
    const double m = mantissa(input, &magnitude);
    if (std::isnan(m))
        return notANumber;
    if (strategy == FineSteps) {
        // Above 5 the steps are 4, 6 and 8: a mantissa just above 5 gives 4, not 5.
        if (m <= 5.0)
            return magnitude * (std::trunc(m * 2.0) * 0.5);
        return magnitude * (std::trunc(m * 0.5) * 2.0);
    }
    static const QVector<double> preferredMantissas{1.0, 2.0, 2.5, 5.0, 10.0};
    return magnitude * pickClosest(m, preferredMantissas);
}

double AxisTicker::pickClosest(double target, const QVector<double> &candidates)
{
    if (candidates.isEmpty())
        return notANumber;
    // Rounds up on purpose: between two candidates the upper one wins, however close the lower.
    const auto upper = std::lower_bound(candidates.cbegin(), candidates.cend(), target);
    return upper == candidates.cend() ? candidates.last() : *upper;
}

} // namespace ko::qtToolkit::charts
