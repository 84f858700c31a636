// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_CHARTS_FREQUENCYAXIS_H
#define KO_QTTOOLKIT_CHARTS_FREQUENCYAXIS_H

#include <ko/qtToolkit/charts/LogarithmicAxis.h>
#include <ko/qtToolkit/qtToolkit_export.h>

namespace ko::qtToolkit::charts {

/**
 * \brief A base-10 logarithmic axis for audio frequencies, 20 to 20000 by default, with
 *        major ticks at the powers of ten, eight minor ticks per decade and short labels
 *        ("100", "1k", "20k").
 *
 * All frequency axes share one CustomAxisTicker, created by the first frequency axis and kept
 * until the library is unloaded: ticker() returns the same object for every frequency axis,
 * and changing it changes all of them. Its ticks are 10, 100, 1000, 10000 and 100000; labels
 * exist for those and for 20, 40, 60 and 80 times each power of ten up to 80000. Beyond
 * 100000 there is no major tick.
 *
 * The axis has no signals or properties beyond those of LogarithmicAxis.
 */
class KO_QTTOOLKIT_EXPORT FrequencyAxis : public LogarithmicAxis
{
public:
    /// A frequency axis over 20 to 20000, owned by \a parent.
    explicit FrequencyAxis(QObject *parent = nullptr);
    ~FrequencyAxis() override;
};

} // namespace ko::qtToolkit::charts

#endif
