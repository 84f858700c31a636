// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_CHARTS_CUSTOMAXISTICKER_H
#define KO_QTTOOLKIT_CHARTS_CUSTOMAXISTICKER_H

#include <ko/qtToolkit/charts/AxisTicker.h>

#include <memory>

namespace ko::qtToolkit::charts {

class CustomAxisTickerPrivate;

/**
 * \brief A ticker whose major ticks are values the application adds one by one, labelled with
 *        texts the application assigns per value.
 *
 * subTickCount() sub-ticks are spaced linearly between neighbouring ticks. Labels may be set for
 * values that are not ticks, so that chosen sub-ticks are labelled too; a label is found only for
 * a value exactly equal to its key, and a sub-tick's value is computed as
 * previous + k × (next - previous) / (subTickCount() + 1). The tick count, origin, step strategy
 * and label format of AxisTicker are not used. Nothing removes ticks or labels.
 *
 * A range holding more than 500 ticks shows every n-th of the ticks added, counted from the
 * smallest, for the smallest n that fits; the other limits of AxisTicker apply as well.
 */
class KO_QTTOOLKIT_EXPORT CustomAxisTicker : public AxisTicker
{
public:
    /**
     * \brief Creates a ticker without ticks, without labels and without sub-ticks.
     */
    CustomAxisTicker();
    ~CustomAxisTicker() override;

    /**
     * \brief Adds a major tick at \a value; a value already present changes nothing.
     *
     * NaN cannot be ordered among the ticks: it is refused with a warning. Infinite values are
     * accepted but never lie within a range.
     */
    void addTick(double value);

    /**
     * \brief Sets or replaces the label of exactly \a value, which need not be a tick.
     *
     * A NaN \a value is refused with a warning.
     */
    void setTickLabel(double value, const QString &label);

    /**
     * \brief The number of sub-ticks between two neighbouring ticks; never negative.
     */
    int subTickCount() const;
    /**
     * \brief Sets the number of sub-ticks between two neighbouring ticks; 0 gives none.
     *
     * A negative \a count is refused with the warning "sub tick count can't be negative" and the
     * count is left unchanged.
     */
    void setSubTickCount(int count);

    /**
     * \brief Always 1.0: createTicks() does not use a step.
     */
    double computeTickStep(double min, double max) const override;

    /**
     * \brief subTickCount(), whatever \a tickStep is.
     */
    int computeSubTickCount(double tickStep) const override;

    /**
     * \brief The label set for a value exactly equal to \a value, or a null QString when there is
     *        none. The label format is not used.
     */
    QString tickLabel(double value) const override;

    /**
     * \brief The ticks within [\a min, \a max], ascending, with the nearest tick below \a min and
     *        the nearest above \a max where they exist; \a tickStep is ignored.
     *
     * Empty when min > max or when either bound is NaN. When the result would hold more than 500
     * ticks, only the ticks whose place in the whole ascending set is a multiple of the smallest
     * n that fits are kept, with the first and the last as outliers.
     */
    QVector<double> createTicks(double tickStep, double min, double max) const override;

private:
    Q_DISABLE_COPY(CustomAxisTicker)

    std::unique_ptr<CustomAxisTickerPrivate> const d;
};

} // namespace ko::qtToolkit::charts

#endif
