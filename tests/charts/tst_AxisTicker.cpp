// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/charts/AxisTicker.h>
#include <ko/qtToolkit/charts/CustomAxisTicker.h>
#include <ko/qtToolkit/charts/LogarithmicAxisTicker.h>

#include "TickerTestSupport.h"

#include <QTest>

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <iterator>
#include <limits>
#include <memory>
#include <random>

using ko::qtToolkit::charts::AxisTicker;
using ko::qtToolkit::charts::CustomAxisTicker;
using ko::qtToolkit::charts::LogarithmicAxisTicker;
using namespace tickerTest;

namespace {

// Subclasses that change nothing: generate() runs the overridable steps for them one by one,
// where for the library's own classes it places the sub-ticks within the range directly.
class SubclassedAxisTicker : public AxisTicker
{
};
class SubclassedLogarithmicAxisTicker : public LogarithmicAxisTicker
{
};
class SubclassedCustomAxisTicker : public CustomAxisTicker
{
};

// A ticker with a step of its own choosing, to put ranges between two ticks.
class FixedStepTicker : public AxisTicker
{
public:
    explicit FixedStepTicker(double step)
        : m_step(step)
    {
    }
    double computeTickStep(double, double) const override { return m_step; }

private:
    double m_step;
};

// The linear algorithm written down step by step without any limit, for ranges whose grid is
// small enough to build: the results of AxisTicker must be these wherever the grid stays sane.
struct Reference
{
    int tickCount = 3;
    double origin = 0.0;
    AxisTicker::TickStepStrategy strategy = AxisTicker::FineSteps;

    static double magnitudeOf(double input)
    {
        return std::pow(10.0, std::floor(std::log(input) / 2.302585092994046));
    }

    double step(double min, double max) const
    {
        const double raw = (max - min) / (tickCount + 1e-10);
        const double magnitude = magnitudeOf(raw);
        const double m = raw / magnitude;
        if (strategy == AxisTicker::FineSteps)
            return magnitude * (m <= 5.0 ? qint64(m * 2.0) * 0.5 : qint64(m * 0.5) * 2.0);
        const double candidates[] = {1.0, 2.0, 2.5, 5.0, 10.0};
        for (const double candidate : candidates) {
            if (!(candidate < m))
                return magnitude * candidate;
        }
        return magnitude * 10.0;
    }

    // Number of candidate ticks of the grid, as a double so that huge grids can be refused.
    double gridSize(double step, double min, double max) const
    {
        return std::trunc(std::ceil(max - origin) / step) - std::trunc(std::floor(min - origin) / step)
            + 3;
    }

    static int subTickCount(double step)
    {
        const double m = step / magnitudeOf(step);
        int i = int(m);
        const double f = m - i;
        if (f < 0.01 || 1.0 - f < 0.01) {
            if (1.0 - f < 0.01)
                ++i;
            const int counts[] = {4, 3, 2, 3, 4, 2, 6, 3, 2};
            return i >= 1 && i <= 9 ? counts[i - 1] : 1;
        }
        if (std::abs(f - 0.5) < 0.01) {
            const int counts[] = {2, 4, 4, 2, 4, 4, 2, 4, 4};
            return i >= 1 && i <= 9 ? counts[i - 1] : 1;
        }
        return 1;
    }

    static void trim(double min, double max, Values &ticks, bool keepOneOutlier)
    {
        int low = -1;
        for (int i = 0; i < ticks.size() && low < 0; ++i) {
            if (ticks[i] >= min)
                low = i;
        }
        int high = -1;
        for (int i = ticks.size() - 1; i >= 0 && high < 0; --i) {
            if (ticks[i] <= max)
                high = i;
        }
        if (low < 0 || high < 0) {
            ticks.clear();
            return;
        }
        int trimFront = low - (keepOneOutlier ? 1 : 0);
        int trimBack = (ticks.size() - 1 - high) - (keepOneOutlier ? 1 : 0);
        if (trimFront < 1 && trimBack < 1)
            return;
        trimFront = std::max(trimFront, 0);
        trimBack = std::max(trimBack, 0);
        ticks = ticks.mid(trimFront, ticks.size() - trimFront - trimBack);
    }

    Generated generate(double min, double max) const
    {
        const double tickStep = step(min, max);
        const qint64 first = qint64(std::floor(min - origin) / tickStep);
        const qint64 last = qint64(std::ceil(max - origin) / tickStep);
        const int count = int(last - first) + 3;
        Generated result;
        for (int k = 0; k < count; ++k)
            result.ticks.append(double(k + first - 1) * tickStep + origin);
        trim(min, max, result.ticks, true);
        if (!result.ticks.isEmpty()) {
            const int subTickCount = Reference::subTickCount(tickStep);
            for (int i = 1; i < result.ticks.size(); ++i) {
                const double subStep =
                    (result.ticks[i] - result.ticks[i - 1]) / (subTickCount + 1);
                for (int k = 1; k <= subTickCount; ++k)
                    result.subTicks.append(result.ticks[i - 1] + k * subStep);
            }
            trim(min, max, result.subTicks, false);
        }
        trim(min, max, result.ticks, false);
        return result;
    }
};

} // namespace

class tst_AxisTicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void settersStoreWithoutCheck();
    void tickCountRefusesNonPositive_data();
    void tickCountRefusesNonPositive();
    void tickCountWarningOncePerCall();

    void mantissa_data();
    void mantissa();
    void cleanMantissa_data();
    void cleanMantissa();
    void pickClosest_data();
    void pickClosest();
    void computeTickStep_data();
    void computeTickStep();
    void computeSubTickCount_data();
    void computeSubTickCount();
    void trimTicks_data();
    void trimTicks();

    void createTicksGrid_data();
    void createTicksGrid();
    void createSubTicks_data();
    void createSubTicks();

    void typicalRanges_data();
    void typicalRanges();
    void rangeEndsOnTicksKeepThem();
    void rangeBetweenTwoTicks();
    void tickOriginShiftsGrid();
    void stepMantissaRounding_data();
    void stepMantissaRounding();

    void generateLabelsClearsAndFills();
    void labelFormat_data();
    void labelFormat();
    void labelFormatIsPrintf();
    void labelFormatRefused_data();
    void labelFormatRefused();

    void degenerateRanges_data();
    void degenerateRanges();
    void narrowRangesStayBounded_data();
    void narrowRangesStayBounded();
    void hugeMagnitudes_data();
    void hugeMagnitudes();
    void tooManyTicksAreThinned_data();
    void tooManyTicksAreThinned();
    void stepBelowResolutionGivesNone();

    void matchesReferenceOnRandomRanges();
    void randomInputsKeepInvariants();
    void ownTickersMatchSubclasses_data();
    void ownTickersMatchSubclasses();
};

void tst_AxisTicker::defaults()
{
    const AxisTicker ticker;
    QCOMPARE(ticker.tickCount(), 3);
    QCOMPARE(ticker.tickOrigin(), 0.0);
    QCOMPARE(ticker.tickStepStrategy(), AxisTicker::FineSteps);
    QCOMPARE(int(AxisTicker::PreferredSteps), 0);
    QCOMPARE(int(AxisTicker::FineSteps), 1);
    QCOMPARE(ticker.tickLabel(7.0), QStringLiteral("7.00"));
    QCOMPARE(ticker.tickLabel(-0.126), QStringLiteral("-0.13"));
}

void tst_AxisTicker::settersStoreWithoutCheck()
{
    AxisTicker ticker;
    ticker.setTickCount(9);
    QCOMPARE(ticker.tickCount(), 9);
    ticker.setTickCount(std::numeric_limits<int>::max());
    QCOMPARE(ticker.tickCount(), std::numeric_limits<int>::max());

    ticker.setTickOrigin(-2.5);
    QCOMPARE(ticker.tickOrigin(), -2.5);
    ticker.setTickOrigin(notANumber);
    QVERIFY(std::isnan(ticker.tickOrigin()));
    ticker.setTickOrigin(infinity);
    QCOMPARE(ticker.tickOrigin(), infinity);

    ticker.setTickStepStrategy(AxisTicker::PreferredSteps);
    QCOMPARE(ticker.tickStepStrategy(), AxisTicker::PreferredSteps);
    ticker.setTickStepStrategy(static_cast<AxisTicker::TickStepStrategy>(7));
    QCOMPARE(int(ticker.tickStepStrategy()), 7);
    // Any strategy other than FineSteps rounds as PreferredSteps: 1.46 moves up to 2.
    ticker.setTickCount(5);
    COMPARE_DOUBLE(ticker.computeTickStep(0.0, 7.3), 2.0);
}

void tst_AxisTicker::tickCountRefusesNonPositive_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("zero") << 0;
    QTest::newRow("minus one") << -1;
    QTest::newRow("smallest int") << std::numeric_limits<int>::min();
}

void tst_AxisTicker::tickCountRefusesNonPositive()
{
    QFETCH(int, count);
    AxisTicker ticker;
    ticker.setTickCount(7);
    QTest::ignoreMessage(QtWarningMsg, "tick count must be greater than zero");
    ticker.setTickCount(count);
    QCOMPARE(ticker.tickCount(), 7);
}

void tst_AxisTicker::tickCountWarningOncePerCall()
{
    AxisTicker ticker;
    MessageLog log;
    ticker.setTickCount(0);
    ticker.setTickCount(-1);
    ticker.setTickCount(4);
    QCOMPARE(log.messages(),
             QStringList({QStringLiteral("tick count must be greater than zero"),
                          QStringLiteral("tick count must be greater than zero")}));
    QCOMPARE(ticker.tickCount(), 4);
}

void tst_AxisTicker::mantissa_data()
{
    QTest::addColumn<double>("input");
    QTest::addColumn<double>("expected");
    QTest::addColumn<double>("magnitude");

    QTest::newRow("one") << 1.0 << 1.0 << 1.0;
    QTest::newRow("raw step of 0 .. 7.3 by 5") << 1.46 << 1.46 << 1.0;
    QTest::newRow("seven point three") << 7.3 << 7.3 << 1.0;
    QTest::newRow("tens") << 33.25 << 33.25 / 10.0 << 10.0;
    QTest::newRow("hundredths") << 0.0146 << 0.0146 / 0.01 << 0.01;
    QTest::newRow("tenth of 0.15") << 0.15 << 0.15 / 0.1 << 0.1;
    QTest::newRow("hundred") << 100.0 << 1.0 << 100.0;
    // ln(1000) / 2.302585092994046 is just below 3: the mantissa comes out as 10.
    QTest::newRow("thousand, logarithm just below 3") << 1000.0 << 10.0 << 100.0;
    QTest::newRow("1e15, logarithm just below 15") << 1e15 << 10.0 << 1e14;
    QTest::newRow("thousandth") << 0.001 << 1.0 << 0.001;
    QTest::newRow("largest double") << DBL_MAX << DBL_MAX / 1e308 << 1e308;
    QTest::newRow("smallest normal double") << DBL_MIN << DBL_MIN / 1e-308 << 1e-308;
    QTest::newRow("subnormal") << 3e-320 << 3e-320 / 1e-320 << 1e-320;
    QTest::newRow("power of ten underflows") << 5e-324 << notANumber << notANumber;
    QTest::newRow("zero") << 0.0 << notANumber << notANumber;
    QTest::newRow("negative zero") << -0.0 << notANumber << notANumber;
    QTest::newRow("negative") << -5.0 << notANumber << notANumber;
    QTest::newRow("NaN") << notANumber << notANumber << notANumber;
    QTest::newRow("infinity") << infinity << notANumber << notANumber;
    QTest::newRow("minus infinity") << -infinity << notANumber << notANumber;
}

void tst_AxisTicker::mantissa()
{
    QFETCH(double, input);
    QFETCH(double, expected);
    QFETCH(double, magnitude);
    double actualMagnitude = -1.0;
    COMPARE_DOUBLE(AxisTicker::mantissa(input, &actualMagnitude), expected);
    COMPARE_DOUBLE(actualMagnitude, magnitude);
    COMPARE_DOUBLE(AxisTicker::mantissa(input, nullptr), expected);
}

void tst_AxisTicker::cleanMantissa_data()
{
    QTest::addColumn<double>("input");
    QTest::addColumn<int>("strategy");
    QTest::addColumn<double>("expected");

    const int fine = AxisTicker::FineSteps;
    QTest::newRow("fine 1") << 1.0 << fine << 1.0;
    QTest::newRow("fine 1.46") << 1.46 << fine << 1.0;
    QTest::newRow("fine 1.49") << 1.49 << fine << 1.0;
    QTest::newRow("fine 1.5") << 1.5 << fine << 1.5;
    QTest::newRow("fine 1.99") << 1.99 << fine << 1.5;
    QTest::newRow("fine 2") << 2.0 << fine << 2.0;
    QTest::newRow("fine 3.33") << 3.33 << fine << 3.0;
    QTest::newRow("fine 4.99") << 4.99 << fine << 4.5;
    QTest::newRow("fine exactly 5") << 5.0 << fine << 5.0;
    QTest::newRow("fine 5.001 gives 4") << 5.001 << fine << 4.0;
    QTest::newRow("fine 5.5 gives 4") << 5.5 << fine << 4.0;
    QTest::newRow("fine 5.99") << 5.99 << fine << 4.0;
    QTest::newRow("fine 6") << 6.0 << fine << 6.0;
    QTest::newRow("fine 7.9") << 7.9 << fine << 6.0;
    QTest::newRow("fine 8") << 8.0 << fine << 8.0;
    QTest::newRow("fine 9.9 gives 8") << 9.9 << fine << 8.0;
    QTest::newRow("fine 33.33") << 33.33 << fine << 30.0;
    QTest::newRow("fine 0.18") << 0.18 << fine << 0.1 * 1.5;
    QTest::newRow("fine 0.99999999997") << 0.99999999997 << fine << 0.1 * 8.0;
    QTest::newRow("fine 0.15 (mantissa just below 1.5)") << 0.15 << fine << 0.1;
    QTest::newRow("fine 1000 (mantissa 10)") << 1000.0 << fine << 1000.0;
    QTest::newRow("fine 5.5e-7") << 5.5e-7 << fine << 1e-7 * 4.0;
    QTest::newRow("fine zero") << 0.0 << fine << 0.0;
    QTest::newRow("fine negative") << -3.0 << fine << notANumber;
    QTest::newRow("fine NaN") << notANumber << fine << notANumber;
    QTest::newRow("fine infinity") << infinity << fine << notANumber;

    const int preferred = AxisTicker::PreferredSteps;
    QTest::newRow("preferred 1") << 1.0 << preferred << 1.0;
    QTest::newRow("preferred 1.01 gives 2") << 1.01 << preferred << 2.0;
    QTest::newRow("preferred 1.46") << 1.46 << preferred << 2.0;
    QTest::newRow("preferred exactly 2") << 2.0 << preferred << 2.0;
    QTest::newRow("preferred 2.1 gives 2.5") << 2.1 << preferred << 2.5;
    QTest::newRow("preferred exactly 2.5") << 2.5 << preferred << 2.5;
    QTest::newRow("preferred 2.6 gives 5") << 2.6 << preferred << 5.0;
    QTest::newRow("preferred exactly 5") << 5.0 << preferred << 5.0;
    QTest::newRow("preferred 5.3 gives 10") << 5.3 << preferred << 10.0;
    QTest::newRow("preferred 9.99") << 9.99 << preferred << 10.0;
    QTest::newRow("preferred 146") << 146.0 << preferred << 200.0;
    QTest::newRow("preferred 0.0146") << 0.0146 << preferred << 0.01 * 2.0;
    QTest::newRow("preferred 7e300") << 7e300 << preferred << 1e300 * 10.0;
    QTest::newRow("preferred zero") << 0.0 << preferred << 0.0;
    QTest::newRow("preferred negative") << -1.0 << preferred << notANumber;
    QTest::newRow("preferred NaN") << notANumber << preferred << notANumber;
    QTest::newRow("other strategy value as preferred") << 1.01 << 2 << 2.0;
    QTest::newRow("negative strategy value as preferred") << 5.3 << -1 << 10.0;
}

void tst_AxisTicker::cleanMantissa()
{
    QFETCH(double, input);
    QFETCH(int, strategy);
    QFETCH(double, expected);
    COMPARE_DOUBLE(
        AxisTicker::cleanMantissa(input, static_cast<AxisTicker::TickStepStrategy>(strategy)),
        expected);
}

void tst_AxisTicker::pickClosest_data()
{
    QTest::addColumn<double>("target");
    QTest::addColumn<Values>("candidates");
    QTest::addColumn<double>("expected");

    const Values preferred{1.0, 2.0, 2.5, 5.0, 10.0};
    QTest::newRow("one candidate, target below") << -4.0 << Values{3.0} << 3.0;
    QTest::newRow("one candidate, target above") << 40.0 << Values{3.0} << 3.0;
    QTest::newRow("exact hit") << 2.0 << preferred << 2.0;
    QTest::newRow("exact hit on the first") << 1.0 << preferred << 1.0;
    QTest::newRow("exact hit on the last") << 10.0 << preferred << 10.0;
    QTest::newRow("just above a candidate rounds up") << 1.01 << preferred << 2.0;
    QTest::newRow("2.1 rounds up to 2.5") << 2.1 << preferred << 2.5;
    QTest::newRow("5.3 rounds up to 10") << 5.3 << preferred << 10.0;
    QTest::newRow("just below a candidate") << 4.99 << preferred << 5.0;
    QTest::newRow("below the first") << 0.5 << preferred << 1.0;
    QTest::newRow("above the last") << 12.0 << preferred << 10.0;
    QTest::newRow("two candidates") << 1.5 << Values{1.0, 100.0} << 100.0;
    QTest::newRow("no candidates") << 1.0 << Values{} << notANumber;
    QTest::newRow("NaN target") << notANumber << preferred << 1.0;
}

void tst_AxisTicker::pickClosest()
{
    QFETCH(double, target);
    QFETCH(Values, candidates);
    QFETCH(double, expected);
    COMPARE_DOUBLE(AxisTicker::pickClosest(target, candidates), expected);
}

void tst_AxisTicker::computeTickStep_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<int>("tickCount");
    QTest::addColumn<int>("strategy");
    QTest::addColumn<double>("expected");

    const int fine = AxisTicker::FineSteps;
    const int preferred = AxisTicker::PreferredSteps;
    QTest::newRow("0 .. 7.3 by 5, fine") << 0.0 << 7.3 << 5 << fine << 1.0;
    QTest::newRow("0 .. 7.3 by 5, preferred") << 0.0 << 7.3 << 5 << preferred << 2.0;
    QTest::newRow("0 .. 100 by 3") << 0.0 << 100.0 << 3 << fine << 30.0;
    QTest::newRow("0.23 .. 0.77 by 3") << 0.23 << 0.77 << 3 << fine << 0.1 * 1.5;
    // 3 / 3.0000000001: the 1e-10 pushes the raw step just below 1.
    QTest::newRow("0 .. 3 by 3") << 0.0 << 3.0 << 3 << fine << 0.1 * 8.0;
    QTest::newRow("zero width") << 5.0 << 5.0 << 3 << fine << 0.0;
    QTest::newRow("reversed") << 5.0 << 1.0 << 3 << fine << notANumber;
    QTest::newRow("NaN bound") << notANumber << 1.0 << 3 << fine << notANumber;
    QTest::newRow("infinite bound") << 0.0 << infinity << 3 << fine << notANumber;
    // The width overflows; the bounds are divided first.
    QTest::newRow("-1e308 .. 1e308") << -1e308 << 1e308 << 3 << fine << 1e307 * 6.0;
}

void tst_AxisTicker::computeTickStep()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(int, tickCount);
    QFETCH(int, strategy);
    QFETCH(double, expected);
    AxisTicker ticker;
    ticker.setTickCount(tickCount);
    ticker.setTickStepStrategy(static_cast<AxisTicker::TickStepStrategy>(strategy));
    COMPARE_DOUBLE(ticker.computeTickStep(min, max), expected);
}

void tst_AxisTicker::computeSubTickCount_data()
{
    QTest::addColumn<double>("step");
    QTest::addColumn<int>("expected");

    QTest::newRow("1") << 1.0 << 4;
    QTest::newRow("2") << 2.0 << 3;
    QTest::newRow("3") << 3.0 << 2;
    QTest::newRow("4") << 4.0 << 3;
    QTest::newRow("5") << 5.0 << 4;
    QTest::newRow("6") << 6.0 << 2;
    QTest::newRow("7") << 7.0 << 6;
    QTest::newRow("8") << 8.0 << 3;
    QTest::newRow("9") << 9.0 << 2;
    QTest::newRow("1.5") << 1.5 << 2;
    QTest::newRow("2.5") << 2.5 << 4;
    QTest::newRow("3.5") << 3.5 << 4;
    QTest::newRow("4.5") << 4.5 << 2;
    QTest::newRow("5.5") << 5.5 << 4;
    QTest::newRow("6.5") << 6.5 << 4;
    QTest::newRow("7.5") << 7.5 << 2;
    QTest::newRow("8.5") << 8.5 << 4;
    QTest::newRow("9.5") << 9.5 << 4;
    QTest::newRow("30") << 30.0 << 2;
    QTest::newRow("0.2") << 0.2 << 3;
    QTest::newRow("0.3 (mantissa just below 3)") << 0.3 << 2;
    QTest::newRow("2.5e-7") << 2.5e-7 << 4;
    QTest::newRow("1.995 counts as 2") << 1.995 << 3;
    QTest::newRow("2.005 counts as 2") << 2.005 << 3;
    QTest::newRow("9.995 counts as 10") << 9.995 << 1;
    QTest::newRow("2.505 counts as 2.5") << 2.505 << 4;
    QTest::newRow("1.3 is neither") << 1.3 << 1;
    QTest::newRow("2.52 is neither") << 2.52 << 1;
    QTest::newRow("1000 (mantissa 10)") << 1000.0 << 1;
    QTest::newRow("zero") << 0.0 << 1;
    QTest::newRow("negative") << -2.0 << 1;
    QTest::newRow("NaN") << notANumber << 1;
    QTest::newRow("infinity") << infinity << 1;
}

void tst_AxisTicker::computeSubTickCount()
{
    QFETCH(double, step);
    QFETCH(int, expected);
    QCOMPARE(AxisTicker().computeSubTickCount(step), expected);
}

void tst_AxisTicker::trimTicks_data()
{
    QTest::addColumn<Values>("ticks");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<bool>("keepOneOutlier");
    QTest::addColumn<Values>("expected");

    const Values grid{-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
    QTest::newRow("grid of 0 .. 7.3, outliers kept")
        << grid << 0.0 << 7.3 << true << Values{-1, 0, 1, 2, 3, 4, 5, 6, 7, 8};
    QTest::newRow("grid of 0 .. 7.3, outliers dropped")
        << grid << 0.0 << 7.3 << false << Values{0, 1, 2, 3, 4, 5, 6, 7};
    QTest::newRow("all inside") << Values{1, 2, 3} << 0.0 << 4.0 << false << Values{1, 2, 3};
    QTest::newRow("all inside, outliers kept")
        << Values{1, 2, 3} << 0.0 << 4.0 << true << Values{1, 2, 3};
    QTest::newRow("ends on ticks") << Values{0, 1, 2, 3} << 1.0 << 2.0 << false << Values{1, 2};
    QTest::newRow("ends on ticks, outliers kept")
        << Values{0, 1, 2, 3} << 1.0 << 2.0 << true << Values{0, 1, 2, 3};
    QTest::newRow("one outlier per side")
        << Values{-3, -2, -1, 0, 1, 2, 3} << -0.5 << 0.5 << true << Values{-1, 0, 1};
    QTest::newRow("between two ticks, outliers kept")
        << Values{0, 10} << 3.0 << 7.0 << true << Values{0, 10};
    QTest::newRow("between two ticks") << Values{0, 10} << 3.0 << 7.0 << false << Values{};
    QTest::newRow("all below") << Values{0, 1, 2} << 5.0 << 7.0 << true << Values{};
    QTest::newRow("all above") << Values{10, 11} << 5.0 << 7.0 << true << Values{};
    QTest::newRow("empty") << Values{} << 0.0 << 1.0 << true << Values{};
    QTest::newRow("only the front trimmed")
        << Values{0, 1, 2, 3} << 1.5 << 9.0 << false << Values{2, 3};
    QTest::newRow("only the back trimmed")
        << Values{0, 1, 2, 3} << -9.0 << 1.5 << false << Values{0, 1};
    QTest::newRow("reversed range") << Values{0, 1, 2, 3} << 3.0 << 0.0 << false << Values{};
    QTest::newRow("reversed range, outliers kept")
        << Values{0, 1, 2, 3} << 3.0 << 0.0 << true << Values{};
    QTest::newRow("NaN bound") << Values{0, 1, 2} << notANumber << 3.0 << true << Values{};
}

void tst_AxisTicker::trimTicks()
{
    QFETCH(Values, ticks);
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(bool, keepOneOutlier);
    QFETCH(Values, expected);
    AxisTicker::trimTicks(min, max, ticks, keepOneOutlier);
    COMPARE_VALUES(ticks, expected);
}

void tst_AxisTicker::createTicksGrid_data()
{
    QTest::addColumn<double>("step");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("origin");
    QTest::addColumn<int>("firstIndex");
    QTest::addColumn<int>("count");

    // first = trunc(floor(min - origin) / step), last = trunc(ceil(max - origin) / step); the
    // grid runs from first - 1 to last + 1.
    QTest::newRow("0 .. 7.3 by 1") << 1.0 << 0.0 << 7.3 << 0.0 << -1 << 11;
    QTest::newRow("0.23 .. 0.77 by 0.15") << 0.1 * 1.5 << 0.23 << 0.77 << 0.0 << -1 << 9;
    QTest::newRow("-0.77 .. -0.23 by 0.15 (truncated toward zero)")
        << 0.1 * 1.5 << -0.77 << -0.23 << 0.0 << -7 << 9;
    QTest::newRow("0 .. 100 by 30") << 30.0 << 0.0 << 100.0 << 0.0 << -1 << 6;
    QTest::newRow("origin 0.5") << 1.0 << 0.0 << 3.0 << 0.5 << -2 << 7;
    QTest::newRow("zero width on a tick") << 1.0 << 2.0 << 2.0 << 0.0 << 1 << 3;
    // The grid from the floored and ceiled distances holds 63 ticks: still built.
    QTest::newRow("0 .. 0.05 by 0.0165") << 0.0165 << 0.0 << 0.05 << 0.0 << -1 << 63;
    // Here it would hold 65, or 3336: only the ticks around the range are created.
    QTest::newRow("0 .. 0.05 by 0.016") << 0.016 << 0.0 << 0.05 << 0.0 << -1 << 7;
    QTest::newRow("0 .. 0.001 by 0.0003") << 0.0003 << 0.0 << 0.001 << 0.0 << -1 << 7;
    QTest::newRow("0 .. 1e-12 by 3e-13") << 3e-13 << 0.0 << 1e-12 << 0.0 << -1 << 7;
    QTest::newRow("2 .. 2.5 by 0.125 in a grid of 4 .. 0")
        << 0.125 << -2.5 << -2.0 << 0.0 << -25 << 11;
}

void tst_AxisTicker::createTicksGrid()
{
    QFETCH(double, step);
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(double, origin);
    QFETCH(int, firstIndex);
    QFETCH(int, count);
    AxisTicker ticker;
    ticker.setTickOrigin(origin);
    Values expected;
    for (int k = 0; k < count; ++k)
        expected.append(double(qint64(firstIndex) + k) * step + origin);
    COMPARE_VALUES(ticker.createTicks(step, min, max), expected);
}

void tst_AxisTicker::createSubTicks_data()
{
    QTest::addColumn<int>("subTickCount");
    QTest::addColumn<Values>("ticks");
    QTest::addColumn<Values>("expected");

    QTest::newRow("four between 0 and 1 and between 1 and 2") << 4 << Values{0, 1, 2} << [] {
        Values values; // previous + k * (next - previous) / 5
        for (int i = 0; i < 2; ++i) {
            for (int k = 1; k <= 4; ++k)
                values.append(i + k * 0.2);
        }
        return values;
    }();
    QTest::newRow("three between -1 and 1")
        << 3 << Values{-1, 1} << Values{-0.5, 0, 0.5};
    QTest::newRow("linear between unequal ticks")
        << 8 << Values{10, 100} << Values{20, 30, 40, 50, 60, 70, 80, 90};
    QTest::newRow("none asked") << 0 << Values{0, 1} << Values{};
    QTest::newRow("negative count") << -3 << Values{0, 1} << Values{};
    QTest::newRow("one tick") << 4 << Values{1} << Values{};
    QTest::newRow("no ticks") << 4 << Values{} << Values{};
    QTest::newRow("5000 sub-ticks are allowed") << 5000 << Values{0, 5001} << [] {
        Values values;
        for (int k = 1; k <= 5000; ++k)
            values.append(k);
        return values;
    }();
    // Past the cap, as many per pair as fit, evenly spaced.
    QTest::newRow("5001 sub-ticks thin to 2500 a pair") << 2501 << Values{0, 1, 2} << [] {
        Values values;
        for (int i = 0; i < 2; ++i) {
            for (int k = 1; k <= 2500; ++k)
                values.append(i + k * (1.0 / 2501));
        }
        return values;
    }();
    QTest::newRow("largest count thins to 5000") << std::numeric_limits<int>::max() << Values{0, 1} << [] {
        Values values;
        for (int k = 1; k <= 5000; ++k)
            values.append(k * (1.0 / 5001));
        return values;
    }();
    // Neighbouring doubles leave no room in between.
    QTest::newRow("ticks one unit in the last place apart")
        << 3 << Values{1.0, std::nextafter(1.0, 2.0)} << Values{};
    QTest::newRow("ticks at both ends of the double range")
        << 1 << Values{-DBL_MAX, DBL_MAX} << Values{0.0};
    QTest::newRow("infinite outer ticks") << 1 << Values{-infinity, 0, infinity} << Values{};
}

void tst_AxisTicker::createSubTicks()
{
    QFETCH(int, subTickCount);
    QFETCH(Values, ticks);
    QFETCH(Values, expected);
    COMPARE_VALUES(AxisTicker().createSubTicks(subTickCount, ticks), expected);
}

void tst_AxisTicker::typicalRanges_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<int>("tickCount");
    QTest::addColumn<int>("strategy");
    QTest::addColumn<Values>("ticks");
    QTest::addColumn<Values>("subTicks");
    QTest::addColumn<QStringList>("labels");

    Values sevenTicks;
    Values sevenSubTicks;
    QStringList sevenLabels;
    for (int i = 0; i <= 7; ++i) {
        sevenTicks.append(i);
        sevenLabels.append(QStringLiteral("%1.00").arg(i));
        // (i + 1 - i) / 5 = 0.2 between i and i + 1; of the last interval only 7.2 is in range.
        for (int k = 1; k <= (i < 7 ? 4 : 1); ++k)
            sevenSubTicks.append(i + k * 0.2);
    }
    QCOMPARE(sevenSubTicks.size(), 29);
    QTest::newRow("0 .. 7.3 by 5, fine steps")
        << 0.0 << 7.3 << 5 << int(AxisTicker::FineSteps) << sevenTicks << sevenSubTicks
        << sevenLabels;
    QTest::newRow("0 .. 7.3 by 5, preferred steps")
        << 0.0 << 7.3 << 5 << int(AxisTicker::PreferredSteps) << Values{0, 2, 4, 6}
        << Values{0.5, 1, 1.5, 2.5, 3, 3.5, 4.5, 5, 5.5, 6.5, 7}
        << QStringList{QStringLiteral("0.00"), QStringLiteral("2.00"), QStringLiteral("4.00"),
                       QStringLiteral("6.00")};
    // 100 is a sub-tick of the outlier interval 90 .. 120.
    QTest::newRow("0 .. 100 by 3")
        << 0.0 << 100.0 << 3 << int(AxisTicker::FineSteps) << Values{0, 30, 60, 90}
        << Values{10, 20, 40, 50, 70, 80, 100}
        << QStringList{QStringLiteral("0.00"), QStringLiteral("30.00"), QStringLiteral("60.00"),
                       QStringLiteral("90.00")};
    QTest::newRow("0.23 .. 0.77 by 3")
        << 0.23 << 0.77 << 3 << int(AxisTicker::FineSteps) << Values{0.30, 0.45, 0.60, 0.75}
        << Values{0.25, 0.35, 0.40, 0.50, 0.55, 0.65, 0.70}
        << QStringList{QStringLiteral("0.30"), QStringLiteral("0.45"), QStringLiteral("0.60"),
                       QStringLiteral("0.75")};
}

void tst_AxisTicker::typicalRanges()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(int, tickCount);
    QFETCH(int, strategy);
    QFETCH(Values, ticks);
    QFETCH(Values, subTicks);
    QFETCH(QStringList, labels);

    AxisTicker ticker;
    ticker.setTickCount(tickCount);
    ticker.setTickStepStrategy(static_cast<AxisTicker::TickStepStrategy>(strategy));
    const Generated result = generated(ticker, min, max);
    QVERIFY2(nearlyEqual(result.ticks, ticks), qPrintable(describe(result.ticks)));
    QVERIFY2(nearlyEqual(result.subTicks, subTicks), qPrintable(describe(result.subTicks)));
    // Exactly the values of the documented arithmetic, not only close to them.
    const Generated reference = Reference{tickCount, 0.0, ticker.tickStepStrategy()}.generate(min, max);
    COMPARE_VALUES(result.ticks, reference.ticks);
    COMPARE_VALUES(result.subTicks, reference.subTicks);

    QStringList tickLabels;
    ticker.generateLabels(result.ticks, tickLabels);
    QCOMPARE(tickLabels, labels);
    QStringList subTickLabels;
    ticker.generateLabels(result.subTicks, subTickLabels);
    QCOMPARE(subTickLabels.size(), result.subTicks.size());
    for (int i = 0; i < subTicks.size(); ++i)
        QCOMPARE(subTickLabels.at(i), QString::number(subTicks.at(i), 'f', 2));
}

void tst_AxisTicker::rangeEndsOnTicksKeepThem()
{
    // Step 1.5: both ends lie on ticks and both comparisons are inclusive.
    const Generated result = generated(AxisTicker(), 0.0, 6.0);
    COMPARE_VALUES(result.ticks, (Values{0, 1.5, 3, 4.5, 6}));
    COMPARE_VALUES(result.subTicks, (Values{0.5, 1, 2, 2.5, 3.5, 4, 5, 5.5}));

    const Generated negative = generated(AxisTicker(), -6.0, 0.0);
    COMPARE_VALUES(negative.ticks, (Values{-6, -4.5, -3, -1.5, 0}));
    COMPARE_VALUES(negative.subTicks, (Values{-5.5, -5, -4, -3.5, -2.5, -2, -1, -0.5}));
}

void tst_AxisTicker::rangeBetweenTwoTicks()
{
    // Ticks at 0 and 10, with sub-ticks at 2, 4, 6 and 8 (step 10 gives four).
    const FixedStepTicker ticker(10.0);
    const Generated betweenSubTicks = generated(ticker, 4.1, 5.9);
    COMPARE_VALUES(betweenSubTicks.ticks, Values{});
    COMPARE_VALUES(betweenSubTicks.subTicks, Values{});

    // The two ticks around the range still carry the sub-ticks that fall within it.
    const Generated acrossSubTicks = generated(ticker, 3.0, 7.0);
    COMPARE_VALUES(acrossSubTicks.ticks, Values{});
    COMPARE_VALUES(acrossSubTicks.subTicks, (Values{4, 6}));

    // The same with the ticker's own step: 1.01 rounds up to a step of 2 (ticks at 0 and 2).
    AxisTicker preferred;
    preferred.setTickCount(1);
    preferred.setTickStepStrategy(AxisTicker::PreferredSteps);
    const Generated own = generated(preferred, 0.1, 1.11);
    COMPARE_VALUES(own.ticks, Values{});
    COMPARE_VALUES(own.subTicks, (Values{0.5, 1.0}));
}

void tst_AxisTicker::tickOriginShiftsGrid()
{
    AxisTicker ticker;
    ticker.setTickOrigin(0.5);
    COMPARE_VALUES(ticker.createTicks(1.0, 0.0, 3.0), (Values{-1.5, -0.5, 0.5, 1.5, 2.5, 3.5, 4.5}));
    // 0 .. 4 by 3 gives step 1.
    const Generated result = generated(ticker, 0.0, 4.0);
    COMPARE_VALUES(result.ticks, (Values{0.5, 1.5, 2.5, 3.5}));
    // Four sub-ticks 0.2 apart; two of the interval -0.5 .. 0.5 and two of 3.5 .. 4.5 are in
    // range.
    QCOMPARE(result.subTicks.size(), 2 + 3 * 4 + 2);
    COMPARE_DOUBLE(result.subTicks.first(), -0.5 + 3 * 0.2);
    COMPARE_DOUBLE(result.subTicks.last(), 3.5 + 2 * 0.2);

    ticker.setTickOrigin(-0.25);
    COMPARE_VALUES(generated(ticker, 0.0, 4.0).ticks, (Values{0.75, 1.75, 2.75, 3.75}));
}

void tst_AxisTicker::stepMantissaRounding_data()
{
    QTest::addColumn<double>("max");
    QTest::addColumn<int>("strategy");
    QTest::addColumn<double>("step");
    QTest::addColumn<Values>("ticks");

    // Tick count 2: the raw mantissa is just below half the width.
    QTest::newRow("preferred 1.01 gives 2")
        << 2.02 << int(AxisTicker::PreferredSteps) << 2.0 << Values{0, 2};
    QTest::newRow("preferred 5.3 gives 10")
        << 10.6 << int(AxisTicker::PreferredSteps) << 10.0 << Values{0, 10};
    QTest::newRow("fine 5.5 gives 4") << 11.0 << int(AxisTicker::FineSteps) << 4.0 << Values{0, 4, 8};
    QTest::newRow("fine 9.9 gives 8")
        << 19.8 << int(AxisTicker::FineSteps) << 8.0 << Values{0, 8, 16};
}

void tst_AxisTicker::stepMantissaRounding()
{
    QFETCH(double, max);
    QFETCH(int, strategy);
    QFETCH(double, step);
    QFETCH(Values, ticks);
    AxisTicker ticker;
    ticker.setTickCount(2);
    ticker.setTickStepStrategy(static_cast<AxisTicker::TickStepStrategy>(strategy));
    COMPARE_DOUBLE(ticker.computeTickStep(0.0, max), step);
    COMPARE_VALUES(generated(ticker, 0.0, max).ticks, ticks);
}

void tst_AxisTicker::generateLabelsClearsAndFills()
{
    const AxisTicker ticker;
    QStringList labels{QStringLiteral("stale"), QStringLiteral("entries")};
    ticker.generateLabels(Values{}, labels);
    QVERIFY(labels.isEmpty());

    labels = QStringList{QStringLiteral("stale")};
    ticker.generateLabels(Values{-1.5, 0, 2.345, 1e6}, labels);
    QCOMPARE(labels,
             QStringList({QStringLiteral("-1.50"), QStringLiteral("0.00"), QStringLiteral("2.35"),
                          QStringLiteral("1000000.00")}));

    ticker.generateLabels(Values{7, 8}, labels);
    QCOMPARE(labels, QStringList({QStringLiteral("7.00"), QStringLiteral("8.00")}));

    // A list shared with another one leaves that one as it was.
    const QStringList copy = labels;
    ticker.generateLabels(Values{9}, labels);
    QCOMPARE(labels, QStringList{QStringLiteral("9.00")});
    QCOMPARE(copy, QStringList({QStringLiteral("7.00"), QStringLiteral("8.00")}));
}

void tst_AxisTicker::labelFormat_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("expected");

    QTest::newRow("one decimal with unit")
        << QStringLiteral("%.1f Hz") << 2.26 << QStringLiteral("2.3 Hz");
    QTest::newRow("non-ASCII text") << QStringLiteral("%.0f \u00b5s") << 12.0
                                    << QStringLiteral("12 \u00b5s");
    QTest::newRow("exponent") << QStringLiteral("%+.3e") << 12345.678
                              << QStringLiteral("+1.235e+04");
    QTest::newRow("general") << QStringLiteral("%g") << 0.0001 << QStringLiteral("0.0001");
    QTest::newRow("width and zero padding") << QStringLiteral("%08.2f") << -3.5
                                            << QStringLiteral("-0003.50");
    QTest::newRow("percent sign") << QStringLiteral("%.0f%%") << 50.0 << QStringLiteral("50%");
    QTest::newRow("l length") << QStringLiteral("%lf") << 1.5 << QStringLiteral("1.500000");
    QTest::newRow("thousands grouping") << QStringLiteral("%'.0f") << 12345.0
                                        << QStringLiteral("12,345");
    QTest::newRow("no conversion") << QStringLiteral("tick") << 1.0 << QStringLiteral("tick");
    QTest::newRow("integer") << QStringLiteral("%d") << 42.0 << QStringLiteral("42");
    QTest::newRow("integer rounds to nearest") << QStringLiteral("%i s") << 2.9999999 << QStringLiteral("3 s");
    QTest::newRow("negative integer rounds half away from zero")
        << QStringLiteral("%d") << -2.5 << QStringLiteral("-3");
    QTest::newRow("integer beyond 32 bits") << QStringLiteral("%d") << 1e12 << QStringLiteral("1000000000000");
    QTest::newRow("integer beyond 64 bits saturates")
        << QStringLiteral("%ld") << 1e300 << QStringLiteral("9223372036854775807");
    QTest::newRow("integer of NaN") << QStringLiteral("%d") << notANumber << QStringLiteral("0");
    QTest::newRow("long long integer, padded") << QStringLiteral("%05lld") << 42.0 << QStringLiteral("00042");
    QTest::newRow("hexadecimal") << QStringLiteral("0x%X") << 255.0 << QStringLiteral("0xFF");
    QTest::newRow("two-digit width and precision") << QStringLiteral("%12.10f") << 0.5
                                                   << QStringLiteral("0.5000000000");
}

void tst_AxisTicker::labelFormat()
{
    QFETCH(QString, format);
    QFETCH(double, value);
    QFETCH(QString, expected);
    AxisTicker ticker;
    ticker.setLabelFormat(format);
    QCOMPARE(ticker.tickLabel(value), expected);
    QStringList labels;
    ticker.generateLabels(Values{value}, labels);
    QCOMPARE(labels, QStringList{expected});
}

void tst_AxisTicker::labelFormatIsPrintf()
{
    // Whatever shortcut formats a label, the text is the one of the printf-style format.
    std::mt19937_64 random(7);
    Values values{0.0,   -0.0,    0.5,     1.5,     2.5,      -2.5,     0.125,   1.005,
                  2.675, 1e-7,    -1e-7,   1e15,    1e21,     DBL_MAX,  -DBL_MAX, DBL_MIN,
                  5e-324, infinity, -infinity, notANumber, 123456.789, 0.045, 999.9999999};
    std::uniform_real_distribution<double> exponent(-20.0, 25.0);
    for (int i = 0; i < 2000; ++i)
        values.append((i % 2 ? -1.0 : 1.0) * std::pow(10.0, exponent(random)));
    AxisTicker ticker;
    for (const char *format : {"%.0f", "%.1f", "%.2f", "%.3f", "%.9f", "%.2e", "%g", "%.1f%%"}) {
        ticker.setLabelFormat(QString::fromLatin1(format));
        for (const double value : values)
            QCOMPARE(ticker.tickLabel(value), QString::asprintf(format, value));
    }
}

void tst_AxisTicker::labelFormatRefused_data()
{
    QTest::addColumn<QString>("format");

    QTest::newRow("string conversion") << QStringLiteral("%s");
    QTest::newRow("pointer write") << QStringLiteral("%n");
    QTest::newRow("two conversions") << QStringLiteral("%.2f .. %.2f");
    QTest::newRow("width from an argument") << QStringLiteral("%*f");
    QTest::newRow("precision from an argument") << QStringLiteral("%.*f");
    QTest::newRow("long double") << QStringLiteral("%Lf");
    QTest::newRow("huge width") << QStringLiteral("%1000000000f");
    QTest::newRow("three-digit width and precision") << QStringLiteral("%0999.999g");
    QTest::newRow("three-digit width") << QStringLiteral("%100f");
    QTest::newRow("three-digit precision") << QStringLiteral("%.100f");
    QTest::newRow("lone percent at the end") << QStringLiteral("value %");
    QTest::newRow("character conversion") << QStringLiteral("%c");
    QTest::newRow("integer with three l") << QStringLiteral("%llld");
    QTest::newRow("double with ll") << QStringLiteral("%llf");
    QTest::newRow("integer and double") << QStringLiteral("%d %f");
}

void tst_AxisTicker::labelFormatRefused()
{
    QFETCH(QString, format);
    AxisTicker ticker;
    ticker.setLabelFormat(QStringLiteral("%.1f"));
    const QByteArray warning = "AxisTicker::setLabelFormat: ignoring \"" + format.toUtf8()
        + "\": a label format takes at most one floating-point or integer conversion";
    QTest::ignoreMessage(QtWarningMsg, warning.constData());
    ticker.setLabelFormat(format);
    QCOMPARE(ticker.tickLabel(2.24), QStringLiteral("2.2"));
}

void tst_AxisTicker::degenerateRanges_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");

    QTest::newRow("reversed") << 7.3 << 0.0;
    QTest::newRow("reversed by one unit in the last place") << std::nextafter(1.0, 2.0) << 1.0;
    QTest::newRow("zero width") << 5.0 << 5.0;
    QTest::newRow("zero width at zero") << 0.0 << 0.0;
    QTest::newRow("NaN min") << notANumber << 1.0;
    QTest::newRow("NaN max") << 0.0 << notANumber;
    QTest::newRow("both NaN") << notANumber << notANumber;
    QTest::newRow("infinite max") << 0.0 << infinity;
    QTest::newRow("infinite min") << -infinity << 0.0;
    QTest::newRow("whole line") << -infinity << infinity;
    QTest::newRow("infinite zero width") << infinity << infinity;
}

void tst_AxisTicker::degenerateRanges()
{
    QFETCH(double, min);
    QFETCH(double, max);
    const AxisTicker ticker;
    Values ticks{1, 2};
    Values subTicks{1.5};
    ticker.generate(min, max, ticks, subTicks);
    COMPARE_VALUES(ticks, Values{});
    COMPARE_VALUES(subTicks, Values{});
}

void tst_AxisTicker::narrowRangesStayBounded_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("origin");

    QTest::newRow("0 .. 1e-12") << 0.0 << 1e-12 << 0.0;
    QTest::newRow("0.5 .. 0.5 + 1e-9") << 0.5 << 0.5 + 1e-9 << 0.0;
    QTest::newRow("-1e-300 .. 1e-300") << -1e-300 << 1e-300 << 0.0;
    QTest::newRow("1 .. 1 + 1e-14") << 1.0 << 1.0 + 1e-14 << 0.0;
    QTest::newRow("1e15 .. 1e15 + 1") << 1e15 << 1e15 + 1 << 0.0;
    QTest::newRow("1e15 .. 1e15 + 1, origin 1e15") << 1e15 << 1e15 + 1 << 1e15;
    QTest::newRow("1e10 .. 1e10 + 1e-5") << 1e10 << 1e10 + 1e-5 << 0.0;
}

void tst_AxisTicker::narrowRangesStayBounded()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(double, origin);
    AxisTicker ticker;
    ticker.setTickOrigin(origin);
    const double step = ticker.computeTickStep(min, max);
    const Values candidates = ticker.createTicks(step, min, max);
    QVERIFY(candidates.size() <= 10);

    const Generated result = generated(ticker, min, max);
    // A step of about a third of the range gives three or four ticks, each on the grid.
    QVERIFY2(result.ticks.size() >= 3 && result.ticks.size() <= 4, qPrintable(describe(result.ticks)));
    for (const double tick : result.ticks) {
        QVERIFY(tick >= min && tick <= max);
        QVERIFY(candidates.contains(tick));
    }
    QVERIFY(!result.subTicks.isEmpty());
    for (const double subTick : result.subTicks) {
        QVERIFY(subTick >= min && subTick <= max);
        QVERIFY(!result.ticks.contains(subTick));
    }
    QVERIFY(std::is_sorted(result.subTicks.cbegin(), result.subTicks.cend()));
    QVERIFY(std::adjacent_find(result.subTicks.cbegin(), result.subTicks.cend())
            == result.subTicks.cend());
}

void tst_AxisTicker::hugeMagnitudes_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<int>("strategy");
    QTest::addColumn<Values>("ticks");

    const int fine = AxisTicker::FineSteps;
    const int preferred = AxisTicker::PreferredSteps;
    const double sixE307 = 1e307 * 6.0;
    QTest::newRow("-1e308 .. 1e308") << -1e308 << 1e308 << fine << Values{-sixE307, 0, sixE307};
    QTest::newRow("-1e308 .. 1e308, preferred")
        << -1e308 << 1e308 << preferred << Values{-1e308 * 1.0, 0, 1e308};
    QTest::newRow("whole double range")
        << -DBL_MAX << DBL_MAX << fine << Values{-1e308 * 1.0, 0, 1e308};
    // The step rounds up to 2e308, which is not a double.
    QTest::newRow("whole double range, preferred") << -DBL_MAX << DBL_MAX << preferred << Values{};
    // The outlier above 1.6e308 overflows to infinity; it is trimmed away with the range.
    QTest::newRow("1e308 .. 1.7e308") << 1e308 << 1.7e308 << fine
                                      << Values{1e307 * 2.0 * 5, 1e307 * 2.0 * 6, 1e307 * 2.0 * 7,
                                                1e307 * 2.0 * 8};
    QTest::newRow("-1.7e308 .. -1e308") << -1.7e308 << -1e308 << fine
                                        << Values{-1e307 * 2.0 * 8, -1e307 * 2.0 * 7,
                                                  -1e307 * 2.0 * 6, -1e307 * 2.0 * 5};
}

void tst_AxisTicker::hugeMagnitudes()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(int, strategy);
    QFETCH(Values, ticks);
    AxisTicker ticker;
    ticker.setTickStepStrategy(static_cast<AxisTicker::TickStepStrategy>(strategy));
    const Generated result = generated(ticker, min, max);
    COMPARE_VALUES(result.ticks, ticks);
    for (const double subTick : result.subTicks) {
        QVERIFY(std::isfinite(subTick));
        QVERIFY(subTick >= min && subTick <= max);
        QVERIFY(!result.ticks.contains(subTick));
    }
    QStringList labels;
    ticker.generateLabels(result.ticks, labels);
    QCOMPARE(labels.size(), result.ticks.size());
}

// An axis shows at most 500 ticks: a setting that asks for more keeps every n-th tick of its
// grid, the smallest n that fits, on multiples of n.
void tst_AxisTicker::tooManyTicksAreThinned_data()
{
    QTest::addColumn<int>("tickCount");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("step");     // of the ticks shown
    QTest::addColumn<int>("count");       // of the ticks shown

    QTest::newRow("well within: step 1, 403 candidates") << 300 << 400.0 << 1.0 << 401;
    QTest::newRow("at the cap: step 1, 500 candidates") << 400 << 497.0 << 1.0 << 498;
    QTest::newRow("just above: 501 candidates, every second") << 400 << 498.0 << 2.0 << 250;
    QTest::newRow("step 0.8, 503 candidates, every second") << 400 << 400.0 << 1.6 << 251;
    QTest::newRow("tick count 501: step 0.8, 630 candidates, every second") << 501 << 501.0 << 1.6 << 314;
}

void tst_AxisTicker::tooManyTicksAreThinned()
{
    QFETCH(int, tickCount);
    QFETCH(double, max);
    QFETCH(double, step);
    QFETCH(int, count);

    AxisTicker ticker;
    ticker.setTickCount(tickCount);
    const Generated result = generated(ticker, 0.0, max);
    QCOMPARE(result.ticks.size(), count);
    for (int i = 0; i < count; ++i)
        QVERIFY2(std::abs(result.ticks[i] - i * step) < 1e-9, qPrintable(describe(result.ticks)));
    QVERIFY(!result.subTicks.isEmpty());
    QVERIFY(result.subTicks.size() <= maximumSubTicks);
    QVERIFY(std::is_sorted(result.subTicks.cbegin(), result.subTicks.cend()));
    for (const double subTick : result.subTicks)
        QVERIFY(subTick > 0.0 && subTick <= max && !result.ticks.contains(subTick));

    // Panning keeps the kept ticks where they were.
    const Generated panned = generated(ticker, 3.5 * step, max + 3.5 * step);
    QVERIFY(std::abs(panned.ticks.constFirst() - result.ticks.at(4)) < 1e-9);

    // The largest count over the widest range still gives a readable axis.
    ticker.setTickCount(std::numeric_limits<int>::max());
    const Generated densest = generated(ticker, -1e300, 1e300);
    QVERIFY(!densest.ticks.isEmpty());
    QVERIFY(densest.ticks.size() <= maximumTicks);
    QVERIFY(std::is_sorted(densest.ticks.cbegin(), densest.ticks.cend()));
    QVERIFY(densest.subTicks.size() <= maximumSubTicks);
}

void tst_AxisTicker::stepBelowResolutionGivesNone()
{
    // Near 1e20 neighbouring doubles are 16384 apart: ticks 3000 apart cannot be told apart.
    const AxisTicker ticker;
    const Generated result = generated(ticker, 1e20, 1e20 + 1e4);
    QVERIFY(result.ticks.isEmpty());
    QVERIFY(result.subTicks.isEmpty());
    // Near -1e17 they are 16 apart: ticks 0.3 apart, counted from there, collapse.
    AxisTicker farOrigin;
    farOrigin.setTickOrigin(-1e17);
    QVERIFY(generated(farOrigin, 0.0, 1.0).ticks.isEmpty());

    // Tick indices beyond the 64-bit range: from an origin 1e300 away, or with a tick count of
    // 1000 across two neighbouring doubles.
    farOrigin.setTickOrigin(-1e300);
    QVERIFY(farOrigin.createTicks(0.3, 0.0, 1.0).isEmpty());
    QVERIFY(generated(farOrigin, 0.0, 1.0).ticks.isEmpty());
    AxisTicker dense;
    dense.setTickCount(1000);
    const Generated beyond = generated(dense, 1.0, std::nextafter(1.0, 2.0));
    QVERIFY(beyond.ticks.isEmpty());
    QVERIFY(beyond.subTicks.isEmpty());
    // The distance between a bound and the origin overflows.
    AxisTicker overflow;
    overflow.setTickOrigin(1e308);
    QVERIFY(overflow.createTicks(1e307, -1e308, -0.9e308).isEmpty());
}

void tst_AxisTicker::matchesReferenceOnRandomRanges()
{
    // Ranges whose documented grid is large (narrow ranges around all kinds of values) take the
    // shortcut of creating only the ticks around the range; the result must not change.
    std::mt19937_64 random(20240611);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    const auto logUniform = [&](double lowExponent, double highExponent) {
        return std::pow(10.0, lowExponent + (highExponent - lowExponent) * unit(random));
    };
    int compared = 0;
    int shortcuts = 0;
    for (int i = 0; i < 40000; ++i) {
        Reference reference;
        reference.tickCount = 1 + int(unit(random) * 12);
        reference.strategy = unit(random) < 0.5 ? AxisTicker::FineSteps : AxisTicker::PreferredSteps;
        reference.origin = unit(random) < 0.5 ? 0.0 : (unit(random) - 0.5) * logUniform(-3, 3);
        const double centre = (unit(random) < 0.5 ? -1 : 1) * logUniform(-4, 5);
        const double width = logUniform(-5, 3) * (unit(random) < 0.3 ? std::abs(centre) : 1.0);
        const double min = centre - width * unit(random);
        const double max = min + width;
        if (!(min < max))
            continue;
        const double step = reference.step(min, max);
        const double gridSize = reference.gridSize(step, min, max);
        if (!(gridSize <= 20000))
            continue;
        AxisTicker ticker;
        ticker.setTickCount(reference.tickCount);
        ticker.setTickStepStrategy(reference.strategy);
        ticker.setTickOrigin(reference.origin);
        const Generated expected = reference.generate(min, max);
        const Generated actual = generated(ticker, min, max);
        COMPARE_VALUES(actual.ticks, expected.ticks);
        COMPARE_VALUES(actual.subTicks, expected.subTicks);
        ++compared;
        if (gridSize > maximumTicks)
            ++shortcuts;
    }
    QVERIFY2(compared > 30000, qPrintable(QString::number(compared)));
    QVERIFY2(shortcuts > 5000, qPrintable(QString::number(shortcuts)));
}

namespace {

// Values from every corner of the double range, with the special ones often.
class RandomInput
{
public:
    explicit RandomInput(quint64 seed)
        : m_random(seed)
    {
    }

    double unit() { return m_unit(m_random); }
    int below(int bound) { return int(m_random() % quint64(bound)); }

    double special()
    {
        static const double values[] = {0.0,      -0.0,      1.0,       -1.0,     notANumber,
                                        infinity,      -infinity,      DBL_MAX,   -DBL_MAX, DBL_MIN,
                                        -DBL_MIN, 5e-324,    -5e-324,   1e308,    -1e308,
                                        1e15,     1e15 + 1,  1e-12,     0.5,      10.0,
                                        100.0,    1000.0,    20.0,      20000.0,  1e-300};
        return values[below(int(std::size(values)))];
    }

    double value()
    {
        const int kind = below(10);
        if (kind == 0)
            return special();
        const double sign = below(2) ? -1.0 : 1.0;
        if (kind <= 5)
            return sign * std::pow(10.0, -6.0 + 12.0 * unit());
        return sign * std::pow(10.0, -323.0 + 631.0 * unit());
    }

    // A range: mostly ordered, some narrow to the last bits, some reversed or special.
    std::pair<double, double> range()
    {
        const double min = value();
        switch (below(8)) {
        case 0:
            return {min, value()};
        case 1:
            return {min, min};
        case 2: {
            const double unitInLastPlace = std::nextafter(min, infinity) - min;
            return {min, min + (1 + below(2000)) * unitInLastPlace};
        }
        case 3:
            return {min, min + std::abs(min) * std::pow(10.0, -17.0 * unit())};
        case 4:
            return {min, min + std::pow(10.0, -15.0 + 20.0 * unit())};
        case 5:
            return {min, special()};
        default: {
            const double max = value();
            return {std::min(min, max), std::max(min, max)};
        }
        }
    }

private:
    std::mt19937_64 m_random;
    std::uniform_real_distribution<double> m_unit{0.0, 1.0};
};

// How many ranges gave ticks and sub-ticks: the random inputs must reach the interesting paths.
struct Coverage
{
    int ticks = 0;
    int subTicks = 0;
};

// Checks what generate() promises for one range and returns an empty string or the failure.
// Labels of huge and tiny values take long to format, so they are checked on request.
QString violation(const AxisTicker &ticker, double min, double max, bool checkLabels,
                  Coverage &coverage)
{
    Values ticks{42.0};
    Values subTicks{42.0};
    ticker.generate(min, max, ticks, subTicks);
    coverage.ticks += ticks.isEmpty() ? 0 : 1;
    coverage.subTicks += subTicks.isEmpty() ? 0 : 1;
    if (ticks.size() > maximumTicks || subTicks.size() > maximumSubTicks)
        return QStringLiteral("too many ticks");
    if (!(min <= max) || !std::isfinite(min) || !std::isfinite(max)) {
        if (!ticks.isEmpty() || !subTicks.isEmpty())
            return QStringLiteral("ticks for an unusable range");
        return {};
    }
    for (int i = 0; i < ticks.size(); ++i) {
        if (!(ticks[i] >= min && ticks[i] <= max))
            return QStringLiteral("tick %1 outside the range").arg(describe(ticks[i]));
        if (i > 0 && !(ticks[i - 1] < ticks[i]))
            return QStringLiteral("ticks not ascending");
    }
    for (int i = 0; i < subTicks.size(); ++i) {
        if (!(subTicks[i] >= min && subTicks[i] <= max))
            return QStringLiteral("sub-tick %1 outside the range").arg(describe(subTicks[i]));
        if (i > 0 && !(subTicks[i - 1] < subTicks[i]))
            return QStringLiteral("sub-ticks not ascending");
    }
    if (!subTicks.isEmpty()) {
        // Every sub-tick lies strictly between two neighbours of the ticks with their outliers.
        Values grid = ticker.createTicks(ticker.computeTickStep(min, max), min, max);
        AxisTicker::trimTicks(min, max, grid, true);
        for (const double tick : ticks) {
            if (!std::binary_search(grid.cbegin(), grid.cend(), tick))
                return QStringLiteral("tick %1 not on the grid").arg(describe(tick));
        }
        for (const double subTick : subTicks) {
            const auto above = std::upper_bound(grid.cbegin(), grid.cend(), subTick);
            if (above == grid.cbegin() || above == grid.cend() || !(*(above - 1) < subTick))
                return QStringLiteral("sub-tick %1 not between ticks").arg(describe(subTick));
        }
    }
    if (checkLabels) {
        QStringList labels{QStringLiteral("stale")};
        ticker.generateLabels(ticks, labels);
        if (labels.size() != ticks.size())
            return QStringLiteral("labels do not match the ticks");
        ticker.generateLabels(subTicks, labels);
        if (labels.size() != subTicks.size())
            return QStringLiteral("labels do not match the sub-ticks");
    }
    return {};
}

} // namespace

void tst_AxisTicker::randomInputsKeepInvariants()
{
    RandomInput input(0x6b6f7174);
    AxisTicker linear;
    LogarithmicAxisTicker logarithmic;
    CustomAxisTicker custom;
    // Custom ticks: a frequency scale, more ticks than any range may hold, neighbouring doubles,
    // both ends of the double range and the infinities.
    for (const double value : {20.0, 50.0, 100.0, 200.0, 500.0, 1000.0, 2000.0, 5000.0, 20000.0})
        custom.addTick(value);
    for (int i = -600; i <= 600; ++i)
        custom.addTick(i * 0.001);
    for (const double value : {1.0, std::nextafter(1.0, 2.0), std::nextafter(1.0, 0.0), DBL_MAX,
                               -DBL_MAX, infinity, -infinity, 1e300, -1e-300, 5e-324})
        custom.addTick(value);

    const int tickCounts[] = {1, 2, 3, 4, 5, 7, 10, 50, 300, 1000, std::numeric_limits<int>::max()};
    const double origins[] = {0.0, 0.5, -3.25, 1e20, -1e300, notANumber, infinity};
    const double bases[] = {10.0, 2.0, 2.718281828459045, 1.0, 0.5, 1.0000001, 1 + 1e-15,
                            1e10, 1e300, infinity};
    const int subTickCounts[] = {0, 1, 4, 8, 100, 10000, std::numeric_limits<int>::max()};
    // Formats whose labels stay short whatever the magnitude.
    const QString formats[] = {QStringLiteral("%g"), QStringLiteral("%.3e Hz")};

    const AxisTicker *const tickers[] = {&linear, &logarithmic, &custom};
    Coverage coverage[3];
    MessageLog log(MessageLog::Distinct); // the logarithmic ticker warns about ranges with zero
    // Dense settings now thin to thousands of sub-ticks where they gave none: fewer inputs keep
    // the run short, and the tickers' fuzz target goes on from here.
    constexpr int inputs = 250000;
    for (int i = 0; i < inputs; ++i) {
        if (i % 64 == 0) {
            linear.setTickCount(tickCounts[input.below(int(std::size(tickCounts)))]);
            linear.setTickOrigin(input.below(4) ? 0.0 : origins[input.below(int(std::size(origins)))]);
            linear.setTickStepStrategy(static_cast<AxisTicker::TickStepStrategy>(input.below(3)));
            linear.setLabelFormat(formats[input.below(int(std::size(formats)))]);
            logarithmic.setTickCount(tickCounts[input.below(int(std::size(tickCounts)))]);
            logarithmic.setTickStepStrategy(
                static_cast<AxisTicker::TickStepStrategy>(input.below(2)));
            logarithmic.setBase(input.below(2) ? 10.0 : bases[input.below(int(std::size(bases)))]);
            logarithmic.setSubTickCount(subTickCounts[input.below(int(std::size(subTickCounts)))]);
            custom.setSubTickCount(subTickCounts[input.below(int(std::size(subTickCounts)))]);
        }
        const auto [min, max] = input.range();
        for (int t = 0; t < 3; ++t) {
            const QString failure = violation(*tickers[t], min, max, i % 128 == 0, coverage[t]);
            if (!failure.isEmpty()) {
                QFAIL(qPrintable(QStringLiteral("%1 for %2 .. %3 (input %4)")
                                     .arg(failure, describe(min), describe(max))
                                     .arg(i)));
            }
        }
    }
    // About half the ranges give linear ticks; fewer are above or below zero for the
    // logarithmic ticker or around the custom ticks.
    const Coverage least[] = {{75000, 75000}, {25000, 12500}, {20000, 7500}};
    for (int t = 0; t < 3; ++t) {
        QVERIFY2(coverage[t].ticks > least[t].ticks, qPrintable(QString::number(coverage[t].ticks)));
        QVERIFY2(coverage[t].subTicks > least[t].subTicks,
                 qPrintable(QString::number(coverage[t].subTicks)));
    }
    const QStringList messages = log.messages();
    for (const QString &message : messages)
        QCOMPARE(message, QStringLiteral("Invalid range for logarithmic axis"));
}

void tst_AxisTicker::ownTickersMatchSubclasses_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<int>("count"); // tick count, or sub tick count of the other tickers

    QTest::newRow("linear worked example") << "linear" << 0.0 << 7.3 << 5;
    QTest::newRow("linear fractions") << "linear" << 0.23 << 0.77 << 3;
    QTest::newRow("linear negative") << "linear" << -1234.5 << -0.001 << 7;
    QTest::newRow("linear across zero") << "linear" << -3.0 << 1e-9 << 4;
    QTest::newRow("linear ends on ticks") << "linear" << 0.0 << 100.0 << 3;
    QTest::newRow("linear zero width") << "linear" << 5.0 << 5.0 << 3;
    QTest::newRow("linear huge") << "linear" << -1e308 << 1e308 << 3;
    QTest::newRow("linear at the resolution of doubles") << "linear" << 1e16 << 1e16 + 64.0 << 5;
    QTest::newRow("linear just above the resolution") << "linear" << 1.0 << 1.0 + 1e-12 << 3;
    QTest::newRow("linear subnormal") << "linear" << 0.0 << 1e-310 << 3;
    QTest::newRow("linear many ticks") << "linear" << 0.0 << 1.0 << 400;
    QTest::newRow("logarithmic decades") << "logarithmic" << 20.0 << 20000.0 << 8;
    QTest::newRow("logarithmic inside a decade") << "logarithmic" << 20.0 << 80.0 << 8;
    QTest::newRow("logarithmic negative") << "logarithmic" << -5000.0 << -0.3 << 4;
    QTest::newRow("logarithmic wide") << "logarithmic" << 1e-300 << 1e300 << 9;
    QTest::newRow("logarithmic no sub-ticks") << "logarithmic" << 0.001 << 1e6 << 0;
    QTest::newRow("custom worked example") << "custom" << 20.0 << 500.0 << 8;
    QTest::newRow("custom between two ticks") << "custom" << 30.0 << 70.0 << 8;
    QTest::newRow("custom beyond the ticks") << "custom" << 2e5 << 3e5 << 8;
    QTest::newRow("custom around all ticks") << "custom" << 1.0 << 1e6 << 3;
}

void tst_AxisTicker::ownTickersMatchSubclasses()
{
    QFETCH(QString, kind);
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(int, count);
    std::unique_ptr<AxisTicker> own;
    std::unique_ptr<AxisTicker> subclassed;
    if (kind == QLatin1String("linear")) {
        own = std::make_unique<AxisTicker>();
        subclassed = std::make_unique<SubclassedAxisTicker>();
        own->setTickCount(count);
        subclassed->setTickCount(count);
    } else if (kind == QLatin1String("logarithmic")) {
        auto logarithmic = std::make_unique<LogarithmicAxisTicker>();
        auto other = std::make_unique<SubclassedLogarithmicAxisTicker>();
        logarithmic->setSubTickCount(count);
        other->setSubTickCount(count);
        own = std::move(logarithmic);
        subclassed = std::move(other);
    } else {
        auto custom = std::make_unique<CustomAxisTicker>();
        auto other = std::make_unique<SubclassedCustomAxisTicker>();
        for (const double tick : {10.0, 20.0, 50.0, 100.0, 200.0, 500.0, 1000.0, 1e5}) {
            custom->addTick(tick);
            other->addTick(tick);
        }
        custom->setSubTickCount(count);
        other->setSubTickCount(count);
        own = std::move(custom);
        subclassed = std::move(other);
    }
    Values ticks;
    Values subTicks;
    Values expectedTicks;
    Values expectedSubTicks;
    // Stale contents of a larger earlier range, to be overwritten.
    own->generate(min - 1000.0, max + 1000.0, ticks, subTicks);
    own->generate(min, max, ticks, subTicks);
    subclassed->generate(min, max, expectedTicks, expectedSubTicks);
    QCOMPARE(ticks, expectedTicks);
    QCOMPARE(subTicks, expectedSubTicks);
    QStringList labels{QStringLiteral("a stale label longer than any of these")};
    QStringList expectedLabels;
    own->generateLabels(subTicks, labels);
    subclassed->generateLabels(subTicks, expectedLabels);
    QCOMPARE(labels, expectedLabels);
}

QTEST_APPLESS_MAIN(tst_AxisTicker)
#include "tst_AxisTicker.moc"
