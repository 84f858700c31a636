// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// Tick generation and labels of the three tickers, with any settings, ranges and label formats.
// Rules: major ticks and sub-ticks strictly ascending and inside [min, max], no sub-tick on a
// major tick, counts capped, one label per tick, labels of bounded length, custom tickers only
// show their own ticks and labels.

#include "FuzzSupport.h"

#include <ko/qtToolkit/charts/AxisTicker.h>
#include <ko/qtToolkit/charts/AxisTicker_p.h>
#include <ko/qtToolkit/charts/CustomAxisTicker.h>
#include <ko/qtToolkit/charts/LogarithmicAxisTicker.h>

#include <QMap>
#include <QSet>

#include <algorithm>
#include <memory>

using namespace ko::qtToolkit;
using fuzz::show;

namespace {

// Printf conversions, flags, widths and a few characters that printf parsers trip over.
constexpr char formatAlphabet[] = "%%%.-+ #0'123456789lldifFeEgGaAxXouscpn*$hLzjq";

// Ticks ascending and in range; sub-ticks too, and never on a major tick.
void checkTicks(double min, double max, const QVector<double> &ticks, const QVector<double> &subTicks)
{
    const QString range = QStringLiteral(" in [%1, %2]").arg(show(min), show(max));
    KO_FUZZ_CHECK(ticks.size() <= charts::tickLimits::maximumTicks,
                  QString::number(ticks.size()) + QStringLiteral(" ticks") + range);
    KO_FUZZ_CHECK(subTicks.size() <= charts::tickLimits::maximumSubTicks,
                  QString::number(subTicks.size()) + QStringLiteral(" sub-ticks") + range);
    for (const QVector<double> *values : {&ticks, &subTicks}) {
        for (int i = 0; i < values->size(); ++i) {
            const double value = values->at(i);
            KO_FUZZ_CHECK(min <= value && value <= max, QStringLiteral("tick ") + show(value) + range);
            if (i > 0) {
                KO_FUZZ_CHECK(values->at(i - 1) < value, QStringLiteral("ticks ") + show(values->at(i - 1))
                                                             + QStringLiteral(", ") + show(value) + range);
            }
        }
    }
    for (double subTick : subTicks) {
        KO_FUZZ_CHECK(!std::binary_search(ticks.cbegin(), ticks.cend(), subTick),
                      QStringLiteral("sub-tick on the major tick ") + show(subTick) + range);
    }
}

// One label per tick, each the ticker's own label of that tick, none absurdly long. A width and
// a precision of at most three digits each bound a label to a few hundred characters beyond the
// 309 digits of the largest double.
void checkLabels(const charts::AxisTicker &ticker, const QVector<double> &ticks, FuzzedDataProvider &data)
{
    // The list passed in is reused by the axis at every layout: start from a stale one.
    QStringList labels;
    for (int stale = data.ConsumeIntegralInRange<int>(0, 8); stale > 0; --stale)
        labels.append(QStringLiteral("stale"));
    ticker.generateLabels(ticks, labels);
    KO_FUZZ_CHECK(labels.size() == ticks.size(),
                  QStringLiteral("%1 labels for %2 ticks").arg(labels.size()).arg(ticks.size()));
    for (int i = 0; i < ticks.size(); ++i) {
        KO_FUZZ_CHECK(labels.at(i) == ticker.tickLabel(ticks.at(i)),
                      QStringLiteral("label ") + labels.at(i) + QStringLiteral(" of ") + show(ticks.at(i)));
        KO_FUZZ_CHECK(labels.at(i).size() <= 2400, QStringLiteral("a label of %1 characters").arg(labels.at(i).size()));
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    fuzz::expectWarnings({"tick count must be greater than zero", "AxisTicker::setLabelFormat: ignoring",
                          "log base has to be greater than zero", "sub tick count can't be negative",
                          "Invalid range for logarithmic axis", "CustomAxisTicker::addTick: ignoring",
                          "CustomAxisTicker::setTickLabel: ignoring"});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    FuzzedDataProvider data(bytes, size);

    std::unique_ptr<charts::AxisTicker> ticker;
    charts::CustomAxisTicker *custom = nullptr;
    QSet<double> customTicks;
    QMap<double, QString> customLabels;
    switch (data.ConsumeIntegralInRange<int>(0, 2)) {
    case 0:
        ticker = std::make_unique<charts::AxisTicker>();
        break;
    case 1: {
        auto log = std::make_unique<charts::LogarithmicAxisTicker>();
        log->setBase(fuzz::consumeDouble(data));
        log->setSubTickCount(data.ConsumeIntegralInRange<int>(-2, 12));
        ticker = std::move(log);
        break;
    }
    default: {
        auto owned = std::make_unique<charts::CustomAxisTicker>();
        custom = owned.get();
        custom->setSubTickCount(data.ConsumeIntegralInRange<int>(-2, 12));
        const int count = data.ConsumeIntegralInRange<int>(0, 12);
        for (int i = 0; i < count; ++i) {
            const double value = fuzz::consumeDouble(data);
            custom->addTick(value);
            if (!std::isnan(value))
                customTicks.insert(value);
            if (data.ConsumeBool()) {
                const QString label = QString::number(i);
                custom->setTickLabel(value, label);
                if (!std::isnan(value))
                    customLabels.insert(value, label);
            }
        }
        ticker = std::move(owned);
        break;
    }
    }
    ticker->setTickCount(fuzz::consumeInt(data));
    ticker->setTickOrigin(data.ConsumeBool() ? 0.0 : fuzz::consumeDouble(data));
    ticker->setTickStepStrategy(static_cast<charts::AxisTicker::TickStepStrategy>(data.ConsumeIntegralInRange<int>(-1, 2)));
    if (data.ConsumeBool())
        ticker->setLabelFormat(fuzz::consumeText(data, formatAlphabet, 16));

    const int ranges = data.ConsumeIntegralInRange<int>(1, 4);
    for (int r = 0; r < ranges && data.remaining_bytes() > 0; ++r) {
        double min = fuzz::consumeDouble(data);
        double max = data.ConsumeBool() ? min + std::abs(fuzz::consumeDouble(data)) : fuzz::consumeDouble(data);
        QVector<double> ticks{-1.0, 2.0}; // stale contents the call has to replace
        QVector<double> subTicks{3.0};
        ticker->generate(min, max, ticks, subTicks);
        checkTicks(min, max, ticks, subTicks);
        checkLabels(*ticker, ticks, data);
        checkLabels(*ticker, subTicks, data);
        if (custom) {
            for (double tick : ticks)
                KO_FUZZ_CHECK(customTicks.contains(tick), QStringLiteral("a major tick never added: ") + show(tick));
            for (double value : ticks + subTicks) {
                KO_FUZZ_CHECK(custom->tickLabel(value) == customLabels.value(value),
                              QStringLiteral("label of ") + show(value) + QStringLiteral(": ") + custom->tickLabel(value));
            }
        }
    }

    // The static steps, on any input.
    const double input = fuzz::consumeDouble(data);
    double magnitude = 0.0;
    const double mantissa = charts::AxisTicker::mantissa(input, &magnitude);
    // Subnormal inputs have too few digits for a power of ten to divide them exactly.
    if (!std::isnan(mantissa) && std::abs(input) >= DBL_MIN) {
        KO_FUZZ_CHECK(input > 0.0 && std::isfinite(input), QStringLiteral("mantissa of ") + show(input));
        KO_FUZZ_CHECK(mantissa > 0.999999 && mantissa < 10.00001,
                      QStringLiteral("mantissa ") + show(mantissa) + QStringLiteral(" of ") + show(input));
        KO_FUZZ_CHECK(magnitude > 0.0 && std::isfinite(magnitude), QStringLiteral("magnitude of ") + show(input));
    }
    for (auto strategy : {charts::AxisTicker::PreferredSteps, charts::AxisTicker::FineSteps}) {
        const double step = charts::AxisTicker::cleanMantissa(input, strategy);
        if (input > 0.0 && !std::isnan(step)) {
            KO_FUZZ_CHECK(step > 0.0 && step <= 2.0 * input && step >= 0.4 * input,
                          QStringLiteral("clean step ") + show(step) + QStringLiteral(" for ") + show(input));
        }
    }
    return 0;
}
