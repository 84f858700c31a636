// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/charts/FrequencyAxis.h>

#include <ko/qtToolkit/charts/CustomAxisTicker.h>

#include <memory>
#include <utility>

namespace ko::qtToolkit::charts {

namespace {

// Shared by every frequency axis from the first one's construction until unload.
std::unique_ptr<CustomAxisTicker> sharedTicker;

std::unique_ptr<CustomAxisTicker> createFrequencyTicker()
{
    auto ticker = std::make_unique<CustomAxisTicker>();
    ticker->setSubTickCount(8);
    for (double tick : {10.0, 100.0, 1000.0, 10000.0, 100000.0})
        ticker->addTick(tick);

    const std::pair<double, const char *> labels[] = {
        {10.0, "10"},       {20.0, "20"},       {40.0, "40"},       {60.0, "60"},       {80.0, "80"},
        {100.0, "100"},     {200.0, "200"},     {400.0, "400"},     {600.0, "600"},     {800.0, "800"},
        {1000.0, "1k"},     {2000.0, "2k"},     {4000.0, "4k"},     {6000.0, "6k"},     {8000.0, "8k"},
        {10000.0, "10k"},   {20000.0, "20k"},   {40000.0, "40k"},   {60000.0, "60k"},   {80000.0, "80k"},
        {100000.0, "100k"},
    };
    for (const auto &[value, label] : labels)
        ticker->setTickLabel(value, QString::fromLatin1(label));
    return ticker;
}

} // namespace

FrequencyAxis::FrequencyAxis(QObject *parent)
    : LogarithmicAxis(parent)
{
    setBase(10.0);
    setRange(20.0, 20000.0);
    if (!sharedTicker)
        sharedTicker = createFrequencyTicker();
    setTicker(sharedTicker.get());
}

FrequencyAxis::~FrequencyAxis() = default;

} // namespace ko::qtToolkit::charts
