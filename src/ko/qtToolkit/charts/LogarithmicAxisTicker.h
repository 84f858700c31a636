// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_CHARTS_LOGARITHMICAXISTICKER_H
#define KO_QTTOOLKIT_CHARTS_LOGARITHMICAXISTICKER_H

#include <ko/qtToolkit/charts/AxisTicker.h>

#include <memory>

namespace ko::qtToolkit::charts {

class LogarithmicAxisTickerPrivate;

/**
 * \brief A ticker that places the major ticks at integer powers of a base, or of a power of the
 *        base, for axes drawn on a logarithmic scale.
 *
 * The exponent step n is chosen so that about tickCount() intervals span the range: the number of
 * powers of the base in the range, divided by tickCount(), rounded by cleanMantissa() with
 * tickStepStrategy() and truncated, and at least 1. The ticks are then the powers of base^n from
 * the last one at or below the range to the first one at or above it. subTickCount() sub-ticks are
 * spaced linearly between neighbouring ticks; with base 10 and 8 sub-ticks, those of the decade
 * 10 .. 100 are 20, 30, ..., 90. The tick origin is not used.
 *
 * A range touching or crossing zero yields no ticks and logs "Invalid range for logarithmic
 * axis" at every generate(). A base of 1 or below, or an infinite one, is stored but yields no
 * ticks (the powers would not grow). Powers beyond the double range end the ticks: one that
 * overflows stands as an infinite outlier, one that underflows as zero, and both are trimmed away
 * with the range. The limits of AxisTicker apply as well.
 */
class KO_QTTOOLKIT_EXPORT LogarithmicAxisTicker : public AxisTicker
{
public:
    /**
     * \brief Creates a ticker for base 10 with 8 sub-ticks between two major ticks.
     */
    LogarithmicAxisTicker();
    /// \brief Creates a ticker with the settings of \a other.
    LogarithmicAxisTicker(const LogarithmicAxisTicker &other);
    /// \brief Takes over the settings of \a other.
    LogarithmicAxisTicker &operator=(const LogarithmicAxisTicker &other);
    ~LogarithmicAxisTicker() override;

    /**
     * \brief The logarithm base; always greater than zero.
     */
    double base() const;
    /**
     * \brief Sets the logarithm base.
     *
     * A \a base of zero or less (or NaN) is refused with the warning
     * "log base has to be greater than zero" and the base is left unchanged.
     */
    void setBase(double base);

    /**
     * \brief The number of sub-ticks between two major ticks; never negative.
     */
    int subTickCount() const;
    /**
     * \brief Sets the number of sub-ticks between two major ticks; 0 gives none.
     *
     * A negative \a count is refused with the warning "sub tick count can't be negative" and the
     * count is left unchanged.
     */
    void setSubTickCount(int count);

    /**
     * \brief Always 1.0: createTicks() chooses its own exponent step.
     */
    double computeTickStep(double min, double max) const override;

    /**
     * \brief subTickCount(), whatever \a tickStep is.
     */
    int computeSubTickCount(double tickStep) const override;

    /**
     * \brief The powers of base^n around the range [\a min, \a max]; \a tickStep is ignored.
     *
     * For a range above zero, the powers from the largest one not above \a min (up to rounding)
     * to the first one not below \a max; for a range below zero, the negated powers from the one
     * at or below \a min to the first one at or above \a max. Empty, with the warning, for a
     * range touching or crossing zero; empty, silently, when base^n is not a finite number
     * greater than 1. When the ticks would be more than 500, n is multiplied by the smallest
     * factor that makes them fit.
     */
    QVector<double> createTicks(double tickStep, double min, double max) const override;

private:
    std::unique_ptr<LogarithmicAxisTickerPrivate> const d;
};

} // namespace ko::qtToolkit::charts

#endif
