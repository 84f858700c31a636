// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_CHARTS_AXISTICKER_H
#define KO_QTTOOLKIT_CHARTS_AXISTICKER_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

namespace ko::qtToolkit::charts {

class AxisTickerPrivate;

/**
 * \brief Computes the major ticks, the minor ticks (sub-ticks) and their labels for a value
 *        range of a chart axis.
 *
 * Major ticks lie at tickOrigin() + k × step for integer k, where the step is the range divided
 * by tickCount() and rounded to a readable value by tickStepStrategy(). Sub-ticks are spaced
 * linearly between neighbouring major ticks. generate() runs computeTickStep(), createTicks(),
 * computeSubTickCount() and createSubTicks(); subclasses replace some of these steps
 * (LogarithmicAxisTicker, CustomAxisTicker) and share generate(), generateLabels() and
 * createSubTicks().
 *
 * A ticker only holds its settings: generate() and the steps keep nothing between calls, so
 * changed settings take effect at the next generate().
 *
 * Degenerate and extreme ranges give defined results. generate() yields no ticks and no
 * sub-ticks when:
 * - min > max, or either bound is NaN or infinite;
 * - the tick step is not a positive finite number (a zero-width range for this ticker; the
 *   tickers with their own createTicks() still give the ticks that lie on a zero-width range);
 * - the integer tick indices would leave the 64-bit range, or the distance between a bound
 *   and the tick origin overflows;
 * - neighbouring ticks would not be distinct doubles (a step below the resolution of doubles at
 *   the range).
 * An axis cannot show more than 500 ticks and 5000 sub-ticks, so a setting that asks for more (a tick
 * count of a few hundred, a custom ticker with thousands of ticks) is thinned to fit instead:
 * every n-th tick is kept, the smallest n that fits, chosen on the whole series of ticks so that
 * the kept ones stay put while the range pans; and fewer sub-ticks, still evenly spaced, are
 * placed between each pair of ticks. createSubTicks() creates none that rounding would put on or
 * beyond one of its two ticks. Wherever none of these limits is reached the results are exactly
 * those described for each step.
 *
 * Not thread-safe for writing: one ticker may serve several threads only while nobody changes
 * its settings.
 */
class KO_QTTOOLKIT_EXPORT AxisTicker
{
public:
    /**
     * \brief How a raw step (range divided by the tick count) is rounded to a readable one.
     *
     * Any int converts to it; values other than FineSteps round as PreferredSteps.
     */
    enum TickStepStrategy : int {
        /// Step mantissas 1, 2, 2.5, 5 and 10: the raw mantissa moves up to the next of these.
        PreferredSteps = 0,
        /// Step mantissas 1, 1.5, ..., 5 (multiples of 0.5), and 4, 6 or 8 above 5.
        FineSteps = 1
    };

    /**
     * \brief Creates a ticker with tick count 3, tick origin 0, FineSteps and label format
     *        "%.2f".
     */
    AxisTicker();
    /// \brief Creates a ticker with the settings of \a other.
    AxisTicker(const AxisTicker &other);
    /// \brief Takes over the settings of \a other.
    AxisTicker &operator=(const AxisTicker &other);
    virtual ~AxisTicker();

    /**
     * \brief The wished number of tick intervals across the range; always greater than zero.
     */
    int tickCount() const;
    /**
     * \brief Sets the wished number of tick intervals.
     *
     * A \a count of zero or less is refused with the warning
     * "tick count must be greater than zero" and the count is left unchanged.
     */
    void setTickCount(int count);

    /**
     * \brief The value from which the ticks are counted: ticks lie at origin + k × step.
     */
    double tickOrigin() const;
    /**
     * \brief Sets the value from which the ticks are counted; stored as given.
     */
    void setTickOrigin(double origin);

    /**
     * \brief How the raw step is rounded to a readable one.
     */
    TickStepStrategy tickStepStrategy() const;
    /**
     * \brief Sets how the raw step is rounded; any value other than FineSteps rounds as
     *        PreferredSteps.
     */
    void setTickStepStrategy(TickStepStrategy strategy);

    /**
     * \brief Sets the printf-style format of the labels made by tickLabel().
     *
     * The format is kept as UTF-8. It may hold literal text, "%%" and at most one conversion,
     * with optional flags (-, +, space, #, 0, '), and a width and a precision of up to two
     * digits each:
     * - a floating-point conversion (e, E, f, F, g, G, a or A, optionally with l) shows the value;
     * - an integer conversion (d, i, u, o, x or X, optionally with l or ll), as a Qt value axis
     *   allows it, shows the value rounded to the nearest whole number (halves away from zero)
     *   within 64 bits.
     *
     * Any other format (for example "%s", "%n", "%*f", "%Lf" or two conversions) would read
     * arguments that are not there, and a wider field or more digits would take far longer to
     * format than an axis can show; it is refused with a warning and the previous format is
     * kept.
     */
    void setLabelFormat(const QString &format);

    /**
     * \brief Computes the major ticks and the sub-ticks of the range [\a min, \a max].
     *
     * Replaces the contents of both vectors. \a ticks are ascending and lie within
     * [\a min, \a max]. \a subTicks are ascending, lie within [\a min, \a max] and strictly
     * between neighbouring major ticks, counting the major ticks just outside the range, so the
     * sub-ticks between a range end and the first or last visible major tick are present. Without
     * a major tick in or next to the range, \a subTicks is empty.
     */
    virtual void generate(double min, double max, QVector<double> &ticks,
                          QVector<double> &subTicks) const;

    /**
     * \brief Replaces \a labels with tickLabel() of each entry of \a ticks, in order: label i
     *        belongs to tick i.
     */
    virtual void generateLabels(const QVector<double> &ticks, QStringList &labels) const;

    /**
     * \brief The tick step for the range: cleanMantissa() of the range divided by
     *        (tickCount() + 1e-10).
     *
     * A zero-width range gives 0; a reversed range or a non-finite bound gives NaN. When the width
     * of the range overflows (for example -1e308 .. 1e308), each bound is divided by the count
     * before they are subtracted.
     */
    virtual double computeTickStep(double min, double max) const;

    /**
     * \brief The number of sub-ticks between two major ticks for \a tickStep.
     *
     * Taken from the step's mantissa: for mantissas near 1, 2, ..., 9 the counts are 4, 3, 2, 3,
     * 4, 2, 6, 3 and 2; for mantissas near 1.5, 2.5, ..., 9.5 they are 2, 4, 4, 2, 4, 4, 2, 4 and
     * 4 ("near" meaning within 0.01; a mantissa just below an integer counts as that integer).
     * Any other mantissa, one that rounds to 10, and a step that is not a positive finite number
     * give 1.
     */
    virtual int computeSubTickCount(double tickStep) const;

    /**
     * \brief The label of \a value: the label format applied to the value.
     */
    virtual QString tickLabel(double value) const;

    /**
     * \brief The candidate major ticks for the range, before generate() trims them.
     *
     * With first = trunc(floor(min - origin) / step) and last = trunc(ceil(max - origin) / step),
     * the ticks are (j × step + origin) for j from first - 1 to last + 1, ascending. Because floor
     * and ceil act on the distances and not on the quotients, steps below 1 give more ticks than
     * needed. When that grid would hold more than 64 ticks, or its indices would leave the 64-bit
     * range, only the ticks from one step below \a min to one step above \a max are created,
     * which gives the same result after trimming; when even those would be more than 500, only
     * every n-th of them is created, j a multiple of n, for the smallest n that fits. A step that
     * is not a positive finite number, min > max and a non-finite distance between a bound and the
     * origin give an empty result.
     */
    virtual QVector<double> createTicks(double tickStep, double min, double max) const;

    /**
     * \brief The sub-ticks between the neighbouring entries of \a ticks.
     *
     * For each pair (a, b) of neighbours, the values a + k × (b - a) / (\a subTickCount + 1) for
     * k = 1 .. \a subTickCount, ascending. Empty when \a subTickCount is below 1 or when \a ticks
     * has fewer than two entries. Where the result would exceed 5000 sub-ticks, as many per pair
     * are placed as fit, \a subTickCount being the most. A value that
     * rounding puts on or beyond a or b, or onto the sub-tick before it, is left out.
     */
    virtual QVector<double> createSubTicks(int subTickCount, const QVector<double> &ticks) const;

    /**
     * \brief Removes the ticks outside [\a min, \a max] from the sorted vector \a ticks.
     *
     * With \a keepOneOutlier, the nearest tick below \a min and the nearest above \a max stay.
     * When no tick is at or above \a min, or none at or below \a max, the vector is cleared; so
     * a range lying wholly between two ticks keeps both with \a keepOneOutlier and none without.
     * For min > max the parts to trim can overlap; the vector is then cleared.
     */
    static void trimTicks(double min, double max, QVector<double> &ticks, bool keepOneOutlier);

    /**
     * \brief The mantissa of \a input: \a input divided by 10 raised to floor(log10(input)).
     *
     * log10 is computed as ln(input) / 2.302585092994046, so a few exact powers of ten (1000,
     * 1e-3, ...) give a mantissa of 10 or just below 1. If \a magnitude is not null, the power of
     * ten is written to it (the pointer is not kept). For an input that is not a positive finite
     * number, or so small that its power of ten underflows, both are NaN.
     */
    static double mantissa(double input, double *magnitude);

    /**
     * \brief \a input rounded to a readable step: magnitude × cleaned mantissa.
     *
     * With FineSteps the mantissa m becomes trunc(2m) × 0.5 up to 5 and trunc(m / 2) × 2 above,
     * so mantissas just above 5 give 4. Otherwise it becomes pickClosest(m, {1, 2, 2.5, 5, 10}),
     * which rounds up. Zero gives 0; any other input that is not a positive finite number gives
     * NaN.
     */
    static double cleanMantissa(double input, TickStepStrategy strategy);

    /**
     * \brief The first of the ascending \a candidates that is not less than \a target, or the
     *        last candidate when all are less.
     *
     * Between two candidates the upper one is returned, however close \a target is to the lower
     * one. Empty \a candidates give NaN.
     */
    static double pickClosest(double target, const QVector<double> &candidates);

private:
    std::unique_ptr<AxisTickerPrivate> const d;
};

} // namespace ko::qtToolkit::charts

#endif
