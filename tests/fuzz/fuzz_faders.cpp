// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// Faders and meters: a Fader and a GenericDataFader dragged with any presses, moves and releases
// over any ranges and steps, data ranges and decimals set to anything, and a LevelMeter given any
// levels, level ranges, thresholds and progress-bar ranges, all of them painted. Rules: a drag
// grabs only the handle, follows the fine and coarse arithmetic from where it started and
// publishes its mode; values stay inside their ranges; what a widget shows is never NaN; a
// meter's level, thresholds and mappings stay inside its range.

#include "FuzzSupport.h"

#include <ko/qtToolkit/widget/Fader.h>
#include <ko/qtToolkit/widget/GenericDataFader.h>
#include <ko/qtToolkit/widget/LevelMeter.h>

#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QWheelEvent>

#include <algorithm>
#include <memory>

using namespace ko::qtToolkit;
using fuzz::show;

namespace {

// The handle's rectangle, found as the fader finds it.
template<typename Base>
class Probe : public Base
{
public:
    using Base::Base;

    QRect handle()
    {
        QStyleOptionSlider option;
        this->initStyleOption(&option);
        return this->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    }
};

using ProbeFader = Probe<widget::Fader>;
using ProbeDataFader = Probe<widget::GenericDataFader>;

// A drag as the fader is to see it, and what it must make of it.
class Drag
{
public:
    Drag(widget::Fader &fader, QRect (*handleOf)(widget::Fader &))
        : fader(fader)
        , handleOf(handleOf)
    {
    }

    void step(FuzzedDataProvider &data)
    {
        const bool enabled = fader.isEnabled();
        switch (data.ConsumeIntegralInRange<int>(0, 7)) {
        case 0:
        case 1: {
            // A press on the handle, next to it, or anywhere.
            const QRect handle = handleOf(fader);
            QPoint point = handle.center();
            if (data.ConsumeBool())
                point += QPoint(data.ConsumeIntegralInRange<int>(-30, 30), data.ConsumeIntegralInRange<int>(-30, 30));
            const Qt::MouseButton button = data.ConsumeIntegralInRange<int>(0, 4) == 0 ? Qt::RightButton : Qt::LeftButton;
            const QEvent::Type type = data.ConsumeBool() ? QEvent::MouseButtonPress : QEvent::MouseButtonDblClick;
            const int before = fader.value();
            QMouseEvent event(type, QPointF(point), button, button, Qt::NoModifier);
            QCoreApplication::sendEvent(&fader, &event);
            if (enabled && button == Qt::LeftButton && handle.contains(point)) {
                sliding = true;
                pressPosition = point;
                pressValue = before;
            }
            KO_FUZZ_CHECK(fader.value() == before, QStringLiteral("a press moved the fader from %1 to %2").arg(before).arg(fader.value()));
            break;
        }
        case 2:
        case 3:
        case 4: {
            const int reach = data.ConsumeBool() ? 200 : (1 << 30);
            const QPoint point = pressPosition + QPoint(data.ConsumeIntegralInRange<int>(-reach, reach),
                                                        data.ConsumeIntegralInRange<int>(-reach, reach));
            const int before = fader.value();
            QMouseEvent event(QEvent::MouseMove, QPointF(point), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&fader, &event);
            if (enabled && sliding)
                expectMove(point, before);
            else
                KO_FUZZ_CHECK(fader.value() == before, QStringLiteral("a move without a grab changed the value"));
            break;
        }
        case 5: {
            QMouseEvent event(QEvent::MouseButtonRelease, QPointF(pressPosition), Qt::LeftButton, Qt::NoButton,
                              Qt::NoModifier);
            QCoreApplication::sendEvent(&fader, &event);
            if (enabled) {
                sliding = false;
                mode = Mode::Undecided;
            }
            break;
        }
        case 6: {
            const int before = fader.value();
            QWheelEvent event(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, data.ConsumeBool() ? 120 : -120),
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&fader, &event);
            KO_FUZZ_CHECK(fader.value() == before, QStringLiteral("the wheel moved the fader"));
            break;
        }
        default:
            // The application changes the step in the middle of a drag, or disables the fader.
            if (data.ConsumeBool())
                fader.setSingleStep(data.ConsumeIntegralInRange<int>(0, data.ConsumeBool() ? 20 : INT_MAX));
            else
                fader.setEnabled(!fader.isEnabled());
            break;
        }
        KO_FUZZ_CHECK(fader.isSliding() == sliding, QStringLiteral("sliding is %1").arg(fader.isSliding()));
        const QVariant published = fader.property("class");
        const QVariant expected = mode == Mode::Fine     ? QVariant(QStringLiteral("fine"))
                                  : mode == Mode::Coarse ? QVariant(QStringLiteral("coarse"))
                                                         : QVariant();
        KO_FUZZ_CHECK(published == expected, QStringLiteral("class ") + published.toString());
        KO_FUZZ_CHECK(fader.value() >= fader.minimum() && fader.value() <= fader.maximum(),
                      QStringLiteral("value %1 outside %2 to %3").arg(fader.value()).arg(fader.minimum()).arg(fader.maximum()));
    }

private:
    enum class Mode { Undecided, Fine, Coarse };

    void expectMove(const QPoint &point, int before)
    {
        const bool horizontal = fader.orientation() == Qt::Horizontal;
        const qint64 dx = qint64(point.x()) - pressPosition.x();
        const qint64 dy = qint64(point.y()) - pressPosition.y();
        const qint64 along = horizontal ? -dx : dy;
        const qint64 across = horizontal ? dy : dx;
        const QString detail = QStringLiteral(" after a move by %1, %2 from %3 (step %4, range %5 to %6)")
                                   .arg(dx).arg(dy).arg(pressValue).arg(fader.singleStep())
                                   .arg(fader.minimum()).arg(fader.maximum());
        if (mode == Mode::Undecided) {
            // The move that decides the mode leaves the value alone.
            if (std::abs(along) >= 11)
                mode = Mode::Fine;
            else if (std::abs(across) >= 11)
                mode = Mode::Coarse;
            KO_FUZZ_CHECK(fader.value() == before, QStringLiteral("value %1").arg(fader.value()) + detail);
            return;
        }
        // The exact arithmetic, and the same with the raw value first held inside int.
        const qint64 raw = pressValue - along / std::max(1, fader.singleStep());
        const qint64 held = std::clamp<qint64>(raw, INT_MIN, INT_MAX);
        const auto clamped = [this](qint64 value) {
            return std::clamp<qint64>(value, fader.minimum(), fader.maximum());
        };
        qint64 expected = clamped(raw);
        qint64 alternative = expected;
        if (mode == Mode::Coarse) {
            expected = clamped(raw / 10 * 10);
            alternative = clamped(held / 10 * 10);
        }
        KO_FUZZ_CHECK(fader.value() == expected || fader.value() == alternative,
                      QStringLiteral("value %1, not %2").arg(fader.value()).arg(expected) + detail);
    }

    widget::Fader &fader;
    QRect (*handleOf)(widget::Fader &);
    bool sliding = false;
    Mode mode = Mode::Undecided;
    QPoint pressPosition;
    int pressValue = 0;
};

// A range QSlider itself can draw: one whose width fits in an int.
void setSliderRange(QSlider &slider, FuzzedDataProvider &data)
{
    int minimum = fuzz::consumeInt(data);
    int maximum = fuzz::consumeInt(data);
    if (maximum < minimum)
        std::swap(minimum, maximum);
    if (qint64(maximum) - minimum > INT_MAX)
        maximum = int(qint64(minimum) + INT_MAX);
    slider.setRange(minimum, maximum);
}

void fuzzFader(FuzzedDataProvider &data)
{
    ProbeFader fader(data.ConsumeBool() ? Qt::Vertical : Qt::Horizontal);
    fader.resize(17, data.ConsumeIntegralInRange<int>(0, 400));
    setSliderRange(fader, data);
    fader.setValue(fuzz::consumeInt(data));
    Drag drag(fader, [](widget::Fader &f) { return static_cast<ProbeFader &>(f).handle(); });
    const int steps = data.ConsumeIntegralInRange<int>(0, 40);
    for (int i = 0; i < steps && data.remaining_bytes() > 0; ++i) {
        if (data.ConsumeIntegralInRange<int>(0, 9) == 0)
            setSliderRange(fader, data);
        drag.step(data);
    }
    fader.grab();
}

void checkDataFader(ProbeDataFader &fader)
{
    const float minimum = fader.getMinimumData();
    const float maximum = fader.getMaximumData();
    const float value = fader.getData();
    // The fader shows its range as labels and its value as the handle.
    KO_FUZZ_CHECK(!std::isnan(minimum) && !std::isnan(maximum),
                  QStringLiteral("the fader shows the range ") + show(minimum) + QStringLiteral(" to ") + show(maximum));
    KO_FUZZ_CHECK(!std::isnan(value), QStringLiteral("the fader holds ") + show(value));
    const double scale = std::pow(10.0, double(fader.getNumberOfDecimals()));
    if (minimum <= maximum && std::abs(minimum * scale) <= fuzz::sliderLimit && std::abs(maximum * scale) <= fuzz::sliderLimit) {
        // The ends are truncated toward zero to whole units of the last decimal.
        const double slack = 1.0 / scale + 1e-6 * std::max({1.0, std::abs(double(minimum)), std::abs(double(maximum))});
        KO_FUZZ_CHECK(value >= minimum - slack && value <= maximum + slack,
                      QStringLiteral("the fader holds ") + show(value) + QStringLiteral(" outside ") + show(minimum)
                          + QStringLiteral(" to ") + show(maximum));
    }
}

void fuzzDataFader(FuzzedDataProvider &data)
{
    ProbeDataFader fader(data.ConsumeBool() ? Qt::Vertical : Qt::Horizontal);
    fader.resize(17, data.ConsumeIntegralInRange<int>(0, 400));
    Drag drag(fader, [](widget::Fader &f) { return static_cast<ProbeDataFader &>(f).handle(); });
    const int steps = data.ConsumeIntegralInRange<int>(0, 40);
    for (int i = 0; i < steps && data.remaining_bytes() > 0; ++i) {
        switch (data.ConsumeIntegralInRange<int>(0, 7)) {
        case 0:
            fader.setMinimumData(fuzz::consumeFloat(data));
            break;
        case 1:
            fader.setMaximumData(fuzz::consumeFloat(data));
            break;
        case 2:
            fader.setNumberOfDecimals(data.ConsumeIntegralInRange<int>(0, 3) == 0 ? data.ConsumeIntegral<unsigned>()
                                                                               : data.ConsumeIntegralInRange<unsigned>(0, 9));
            break;
        case 3:
            fader.setData(fuzz::consumeFloat(data));
            break;
        case 4:
            fader.grab();
            break;
        default:
            drag.step(data);
            break;
        }
        checkDataFader(fader);
    }
    fader.grab();
}

void fuzzLevelMeter(FuzzedDataProvider &data)
{
    widget::LevelMeter meter;
    meter.setOrientation(data.ConsumeBool() ? Qt::Vertical : Qt::Horizontal);
    meter.resize(data.ConsumeIntegralInRange<int>(0, 300), data.ConsumeIntegralInRange<int>(0, 300));
    const int steps = data.ConsumeIntegralInRange<int>(0, 40);
    for (int i = 0; i < steps && data.remaining_bytes() > 0; ++i) {
        switch (data.ConsumeIntegralInRange<int>(0, 11)) {
        case 0:
        case 1: {
            const float level = fuzz::consumeFloat(data);
            meter.setLevel(level);
            const float min = meter.minimumLevel();
            const float max = meter.maximumLevel();
            KO_FUZZ_CHECK(meter.level() >= min && meter.level() <= max,
                          QStringLiteral("level ") + show(meter.level()) + QStringLiteral(" for ") + show(level));
            if (min < max && meter.maximum() > meter.minimum() && std::isfinite(max - min)) {
                const int value = meter.mapLevelToValue(meter.level());
                KO_FUZZ_CHECK(value >= meter.minimum() && value <= meter.maximum(),
                              QStringLiteral("level %1 mapped to %2, outside %3 to %4")
                                  .arg(show(meter.level())).arg(value).arg(meter.minimum()).arg(meter.maximum()));
                const float fraction = meter.mapLevelToPercentage(meter.level());
                KO_FUZZ_CHECK(fraction >= 0.0f && fraction <= 1.0f, QStringLiteral("fraction ") + show(fraction));
            }
            break;
        }
        case 2:
            meter.setLevelRange(fuzz::consumeFloat(data), fuzz::consumeFloat(data));
            break;
        case 3:
            meter.setMinimumLevel(fuzz::consumeFloat(data));
            break;
        case 4:
            meter.setMaximumLevel(fuzz::consumeFloat(data));
            break;
        case 5:
        case 6: {
            if (data.ConsumeBool())
                meter.setMediumThresholdLevel(fuzz::consumeFloat(data));
            else
                meter.setHighThresholdLevel(fuzz::consumeFloat(data));
            const float medium = meter.mediumThresholdLevel();
            const float high = meter.highThresholdLevel();
            KO_FUZZ_CHECK(meter.minimumLevel() <= medium && medium <= high && high <= meter.maximumLevel(),
                          QStringLiteral("thresholds ") + show(medium) + QStringLiteral(", ") + show(high)
                              + QStringLiteral(" in ") + show(meter.minimumLevel()) + QStringLiteral(" to ")
                              + show(meter.maximumLevel()));
            break;
        }
        case 7:
            meter.setRange(fuzz::consumeInt(data), fuzz::consumeInt(data));
            break;
        case 8:
            meter.setMuted(data.ConsumeBool());
            meter.setEnabled(data.ConsumeBool());
            break;
        case 9:
            meter.resize(data.ConsumeIntegralInRange<int>(0, 300), data.ConsumeIntegralInRange<int>(0, 300));
            break;
        case 10:
            meter.setLowColor(QColor::fromRgb(data.ConsumeIntegral<QRgb>()));
            break;
        default:
            meter.grab();
            break;
        }
        KO_FUZZ_CHECK(!std::isnan(meter.level()) && !std::isnan(meter.minimumLevel()) && !std::isnan(meter.maximumLevel()),
                      QStringLiteral("the meter shows level ") + show(meter.level()) + QStringLiteral(" in ")
                          + show(meter.minimumLevel()) + QStringLiteral(" to ") + show(meter.maximumLevel()));
        KO_FUZZ_CHECK(meter.minimumLevel() <= meter.maximumLevel(),
                      QStringLiteral("level range ") + show(meter.minimumLevel()) + QStringLiteral(" to ") + show(meter.maximumLevel()));
        if (meter.value() >= meter.minimum() && meter.maximum() > meter.minimum()) {
            const int extent = meter.orientation() == Qt::Horizontal ? meter.width() : meter.height();
            const int pixels = meter.mapValueToPixels(meter.value());
            KO_FUZZ_CHECK(pixels >= 0 && pixels <= extent, QStringLiteral("value %1 at %2 of %3 pixels").arg(meter.value()).arg(pixels).arg(extent));
        }
    }
    meter.grab();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    fuzz::createApplication();
    // "LevelMeter::setLevelRange: ignoring a level that is not finite" and kin, and the data
    // fader's refusal of NaN range ends.
    fuzz::expectWarnings({"LevelMeter::", "GenericDataFader::setM"});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    FuzzedDataProvider data(bytes, size);
    switch (data.ConsumeIntegralInRange<int>(0, 2)) {
    case 0:
        fuzzFader(data);
        break;
    case 1:
        fuzzDataFader(data);
        break;
    default:
        fuzzLevelMeter(data);
        break;
    }
    return 0;
}
