// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/charts/LogarithmicAxisTicker.h>

#include "TickerTestSupport.h"

#include <QTest>

#include <cfloat>
#include <cmath>
#include <limits>

using ko::qtToolkit::charts::AxisTicker;
using ko::qtToolkit::charts::LogarithmicAxisTicker;
using namespace tickerTest;

namespace {

const QString invalidRange = QStringLiteral("Invalid range for logarithmic axis");

// Sub-ticks spaced linearly between neighbouring ticks: previous + k × (next - previous) / (n + 1).
Values linearBetween(const Values &ticks, int count)
{
    Values subTicks;
    for (int i = 1; i < ticks.size(); ++i) {
        const double subStep = (ticks[i] - ticks[i - 1]) / (count + 1);
        for (int k = 1; k <= count; ++k)
            subTicks.append(ticks[i - 1] + k * subStep);
    }
    return subTicks;
}

Values within(const Values &values, double min, double max)
{
    Values result;
    for (const double value : values) {
        if (value >= min && value <= max)
            result.append(value);
    }
    return result;
}

bool relativelyClose(const Values &a, const Values &b)
{
    if (a.size() != b.size())
        return false;
    for (int i = 0; i < a.size(); ++i) {
        if (!(std::abs(a[i] - b[i]) <= 1e-12 * std::abs(b[i])))
            return false;
    }
    return true;
}

} // namespace

class tst_LogarithmicAxisTicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void baseRefusesNonPositive_data();
    void baseRefusesNonPositive();
    void subTickCountRefusesNegative();
    void subTickCountZeroGivesNone();
    void stepsIgnoreTheirArguments();

    void twentyToTwentyThousand();
    void ninePowersOfTen();
    void onePower();
    void insideOneDecade();
    void belowZeroMirrors();
    void rangeWithZero_data();
    void rangeWithZero();
    void otherBase();
    void tickCountAndStrategyChooseExponentStep();
    void labels();

    void degenerateBases_data();
    void degenerateBases();
    void doubleRangeEnds();
    void tooManyPowersAreThinned();
    void tooManySubTicksAreThinned();
};

void tst_LogarithmicAxisTicker::defaults()
{
    const LogarithmicAxisTicker ticker;
    QCOMPARE(ticker.base(), 10.0);
    QCOMPARE(ticker.subTickCount(), 8);
    QCOMPARE(ticker.tickCount(), 3);
    QCOMPARE(ticker.tickOrigin(), 0.0);
    QCOMPARE(ticker.tickStepStrategy(), AxisTicker::FineSteps);
    QCOMPARE(ticker.tickLabel(20.0), QStringLiteral("20.00"));
}

void tst_LogarithmicAxisTicker::baseRefusesNonPositive_data()
{
    QTest::addColumn<double>("base");
    QTest::newRow("zero") << 0.0;
    QTest::newRow("minus two") << -2.0;
    QTest::newRow("minus infinity") << -infinity;
    QTest::newRow("NaN") << notANumber;
}

void tst_LogarithmicAxisTicker::baseRefusesNonPositive()
{
    QFETCH(double, base);
    LogarithmicAxisTicker ticker;
    ticker.setBase(2.0);
    const Values before = ticker.createTicks(1.0, 1.0, 1000.0);
    QTest::ignoreMessage(QtWarningMsg, "log base has to be greater than zero");
    ticker.setBase(base);
    QCOMPARE(ticker.base(), 2.0);
    // The cached factor still belongs to base 2.
    COMPARE_VALUES(ticker.createTicks(1.0, 1.0, 1000.0), before);
    COMPARE_VALUES(before, (Values{1, 8, 64, 512, 4096}));
}

void tst_LogarithmicAxisTicker::subTickCountRefusesNegative()
{
    LogarithmicAxisTicker ticker;
    ticker.setSubTickCount(3);
    QTest::ignoreMessage(QtWarningMsg, "sub tick count can't be negative");
    ticker.setSubTickCount(-1);
    QCOMPARE(ticker.subTickCount(), 3);
    QTest::ignoreMessage(QtWarningMsg, "sub tick count can't be negative");
    ticker.setSubTickCount(std::numeric_limits<int>::min());
    QCOMPARE(ticker.subTickCount(), 3);
}

void tst_LogarithmicAxisTicker::subTickCountZeroGivesNone()
{
    LogarithmicAxisTicker ticker;
    ticker.setSubTickCount(0);
    QCOMPARE(ticker.subTickCount(), 0);
    const Generated result = generated(ticker, 20.0, 20000.0);
    COMPARE_VALUES(result.ticks, (Values{100, 1000, 10000}));
    COMPARE_VALUES(result.subTicks, Values{});
}

void tst_LogarithmicAxisTicker::stepsIgnoreTheirArguments()
{
    LogarithmicAxisTicker ticker;
    QCOMPARE(ticker.computeTickStep(20.0, 20000.0), 1.0);
    QCOMPARE(ticker.computeTickStep(notANumber, -5.0), 1.0);
    QCOMPARE(ticker.computeSubTickCount(1.0), 8);
    QCOMPARE(ticker.computeSubTickCount(2.5), 8);
    QCOMPARE(ticker.computeSubTickCount(notANumber), 8);
    ticker.setSubTickCount(4);
    QCOMPARE(ticker.computeSubTickCount(1.0), 4);
    COMPARE_VALUES(ticker.createTicks(123.0, 20.0, 20000.0),
                   ticker.createTicks(notANumber, 20.0, 20000.0));
}

void tst_LogarithmicAxisTicker::twentyToTwentyThousand()
{
    // Three powers across by 3: 0.99999999997 is cleaned to 0.8, so the exponent step is 1.
    const LogarithmicAxisTicker ticker;
    COMPARE_VALUES(ticker.createTicks(1.0, 20.0, 20000.0), (Values{10, 100, 1000, 10000, 100000}));

    const Generated result = generated(ticker, 20.0, 20000.0);
    COMPARE_VALUES(result.ticks, (Values{100, 1000, 10000}));
    Values subTicks;
    for (const double decade : {10.0, 100.0, 1000.0}) {
        for (int k = 2; k <= 9; ++k)
            subTicks.append(k * decade);
    }
    subTicks.append(20000);
    COMPARE_VALUES(result.subTicks, subTicks);

    QStringList labels;
    ticker.generateLabels(result.ticks, labels);
    QCOMPARE(labels, QStringList({QStringLiteral("100.00"), QStringLiteral("1000.00"),
                                  QStringLiteral("10000.00")}));
}

void tst_LogarithmicAxisTicker::ninePowersOfTen()
{
    // 9 / 3 has a mantissa just below 3, cleaned to 2.5: every second power of ten.
    const LogarithmicAxisTicker ticker;
    const Values created = ticker.createTicks(1.0, 0.001, 1e6);
    COMPARE_VALUES(created, (Values{0.0001, 0.01, 1, 100, 10000, 1000000}));

    const Generated result = generated(ticker, 0.001, 1e6);
    COMPARE_VALUES(result.ticks, (Values{0.01, 1, 100, 10000, 1000000}));
    const Values subTicks = within(linearBetween(created, 8), 0.001, 1e6);
    QCOMPARE(subTicks.size(), 5 * 8);
    COMPARE_VALUES(result.subTicks, subTicks);
    COMPARE_DOUBLE(result.subTicks.first(), 0.0001 + 1 * ((0.01 - 0.0001) / 9));
    COMPARE_DOUBLE(result.subTicks.last(), 10000 + 8 * ((1000000 - 10000) / 9.0));
}

void tst_LogarithmicAxisTicker::onePower()
{
    const Generated result = generated(LogarithmicAxisTicker(), 10.0, 100.0);
    COMPARE_VALUES(result.ticks, (Values{10, 100}));
    COMPARE_VALUES(result.subTicks, (Values{20, 30, 40, 50, 60, 70, 80, 90}));
}

void tst_LogarithmicAxisTicker::insideOneDecade()
{
    // No power lies in the range, but the powers around it carry the sub-ticks.
    const LogarithmicAxisTicker ticker;
    COMPARE_VALUES(ticker.createTicks(1.0, 20.0, 80.0), (Values{10, 100}));
    const Generated result = generated(ticker, 20.0, 80.0);
    COMPARE_VALUES(result.ticks, Values{});
    COMPARE_VALUES(result.subTicks, (Values{20, 30, 40, 50, 60, 70, 80}));
}

void tst_LogarithmicAxisTicker::belowZeroMirrors()
{
    const LogarithmicAxisTicker ticker;
    COMPARE_VALUES(ticker.createTicks(1.0, -20000.0, -20.0),
                   (Values{-100000, -10000, -1000, -100, -10}));
    const Generated result = generated(ticker, -20000.0, -20.0);
    COMPARE_VALUES(result.ticks, (Values{-10000, -1000, -100}));
    Values subTicks{-20000};
    for (const double decade : {1000.0, 100.0, 10.0}) {
        for (int k = 9; k >= 2; --k)
            subTicks.append(-k * decade);
    }
    COMPARE_VALUES(result.subTicks, subTicks);
}

void tst_LogarithmicAxisTicker::rangeWithZero_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::newRow("min zero") << 0.0 << 100.0;
    QTest::newRow("max zero") << -5.0 << 0.0;
    QTest::newRow("zero width at zero") << 0.0 << 0.0;
    QTest::newRow("crossing zero") << -1.0 << 1.0;
    QTest::newRow("negative zero") << -0.0 << 1.0;
}

void tst_LogarithmicAxisTicker::rangeWithZero()
{
    QFETCH(double, min);
    QFETCH(double, max);
    const LogarithmicAxisTicker ticker;
    // Logged again at every layout.
    for (int layout = 0; layout < 2; ++layout) {
        QTest::ignoreMessage(QtWarningMsg, qPrintable(invalidRange));
        Values ticks{1};
        Values subTicks{2};
        ticker.generate(min, max, ticks, subTicks);
        COMPARE_VALUES(ticks, Values{});
        COMPARE_VALUES(subTicks, Values{});
    }
    QTest::ignoreMessage(QtWarningMsg, qPrintable(invalidRange));
    COMPARE_VALUES(ticker.createTicks(1.0, min, max), Values{});
}

void tst_LogarithmicAxisTicker::otherBase()
{
    // log2(1000) / 3 = 3.32 is cleaned to 3: powers of 8.
    LogarithmicAxisTicker ticker;
    ticker.setBase(2.0);
    QCOMPARE(ticker.base(), 2.0);
    const Values created = ticker.createTicks(1.0, 1.0, 1000.0);
    COMPARE_VALUES(created, (Values{1, 8, 64, 512, 4096}));
    const Generated result = generated(ticker, 1.0, 1000.0);
    COMPARE_VALUES(result.ticks, (Values{1, 8, 64, 512}));
    COMPARE_VALUES(result.subTicks, within(linearBetween(created, 8), 1.0, 1000.0));
}

void tst_LogarithmicAxisTicker::tickCountAndStrategyChooseExponentStep()
{
    // 20 powers by 2: the mantissa just below 10 gives 8 with fine steps, 10 with preferred ones.
    LogarithmicAxisTicker ticker;
    ticker.setTickCount(2);
    const Values fine = ticker.createTicks(1.0, 1e-10, 1e10);
    QVERIFY2(relativelyClose(fine, Values{1e-16, 1e-8, 1, 1e8, 1e16}), qPrintable(describe(fine)));

    ticker.setTickStepStrategy(AxisTicker::PreferredSteps);
    const Values preferred = ticker.createTicks(1.0, 1e-10, 1e10);
    QVERIFY2(relativelyClose(preferred, Values{1e-10, 1, 1e10}), qPrintable(describe(preferred)));

    // Many intervals: every power.
    ticker.setTickCount(100);
    QCOMPARE(ticker.createTicks(1.0, 1e-10, 1e10).size(), 21);
}

void tst_LogarithmicAxisTicker::labels()
{
    LogarithmicAxisTicker ticker;
    ticker.setLabelFormat(QStringLiteral("%g"));
    const Generated result = generated(ticker, 20.0, 20000.0);
    QStringList labels{QStringLiteral("stale")};
    ticker.generateLabels(result.ticks, labels);
    QCOMPARE(labels, QStringList({QStringLiteral("100"), QStringLiteral("1000"),
                                  QStringLiteral("10000")}));
    ticker.generateLabels(result.subTicks, labels);
    QCOMPARE(labels.size(), result.subTicks.size());
    QCOMPARE(labels.first(), QStringLiteral("20"));
    QCOMPARE(labels.last(), QStringLiteral("20000"));
}

void tst_LogarithmicAxisTicker::degenerateBases_data()
{
    QTest::addColumn<double>("base");
    QTest::addColumn<bool>("ticks");
    // A base of 1 makes the cached factor infinite; below 1 the powers shrink.
    QTest::newRow("one") << 1.0 << false;
    QTest::newRow("one half") << 0.5 << false;
    QTest::newRow("smallest double") << 5e-324 << false;
    QTest::newRow("infinity") << infinity << false;
    // Close to 1 the exponent step grows instead: about e^2 per tick.
    QTest::newRow("just above one") << 1 + 1e-15 << true;
    QTest::newRow("huge") << 1e300 << true;
}

void tst_LogarithmicAxisTicker::degenerateBases()
{
    QFETCH(double, base);
    QFETCH(bool, ticks);
    LogarithmicAxisTicker ticker;
    MessageLog log;
    ticker.setBase(base);
    QCOMPARE(ticker.base(), base);
    const Generated result = generated(ticker, 1.0, 1000.0);
    QCOMPARE(log.messages(), QStringList());
    QCOMPARE(!result.ticks.isEmpty() || !result.subTicks.isEmpty(), ticks);
    for (int i = 1; i < result.ticks.size(); ++i)
        QVERIFY(result.ticks[i - 1] < result.ticks[i]);
    for (const double subTick : result.subTicks)
        QVERIFY(subTick >= 1.0 && subTick <= 1000.0);
}

void tst_LogarithmicAxisTicker::doubleRangeEnds()
{
    const LogarithmicAxisTicker ticker;
    // Exponent step 2; the power after 1e308 overflows and stands as +inf outlier. (Repeated
    // multiplication leaves the powers a few units in the last place below 1e302, ...)
    const Values top = ticker.createTicks(1.0, 1e300, DBL_MAX);
    QCOMPARE(top.last(), infinity);
    const Generated topResult = generated(ticker, 1e300, DBL_MAX);
    QVERIFY2(relativelyClose(topResult.ticks, Values{1e302, 1e304, 1e306, 1e308}),
             qPrintable(describe(topResult.ticks)));
    QCOMPARE(topResult.subTicks.size(), 4 * 8);

    // Mirrored: the power at or below -DBL_MAX overflows and stands as -inf.
    const Values bottom = ticker.createTicks(1.0, -DBL_MAX, -1e300);
    QCOMPARE(bottom.first(), -infinity);
    const Generated bottomResult = generated(ticker, -DBL_MAX, -1e300);
    QVERIFY2(relativelyClose(bottomResult.ticks, Values{-1e308, -1e306, -1e304, -1e302, -1e300}),
             qPrintable(describe(bottomResult.ticks)));
    QVERIFY(bottomResult.subTicks.size() >= 4 * 8);

    // The power at or below the smallest double underflows: zero stands for it, so the
    // sub-ticks below the first tick are still there.
    const Values tiny = ticker.createTicks(1.0, 5e-324, 1e-300);
    QCOMPARE(tiny.first(), 0.0);
    const Generated tinyResult = generated(ticker, 5e-324, 1e-300);
    QVERIFY(!tinyResult.ticks.isEmpty());
    QVERIFY(tinyResult.subTicks.first() < tinyResult.ticks.first());
    QVERIFY(tinyResult.subTicks.first() > 0.0);
    QCOMPARE(tinyResult.ticks.last(), 1e-300);

    // The whole positive double range.
    const Generated whole = generated(ticker, 5e-324, DBL_MAX);
    QVERIFY(whole.ticks.size() >= 3);
    for (const double tick : whole.ticks)
        QVERIFY(std::isfinite(tick) && tick > 0.0);
}

// An axis shows at most 500 ticks: more powers become the powers of a larger factor.
void tst_LogarithmicAxisTicker::tooManyPowersAreThinned()
{
    LogarithmicAxisTicker ticker;
    ticker.setTickCount(std::numeric_limits<int>::max());
    // About 400 powers of ten fit (repeated multiplication may leave the ends just outside).
    QVERIFY(generated(ticker, 1e-200, 1e200).ticks.size() >= 399);
    // 601 powers of ten: every second, the powers of 100.
    const Generated all = generated(ticker, 1e-300, 1e300);
    QVERIFY(all.ticks.size() >= 300 && all.ticks.size() <= 301);
    for (const double tick : all.ticks) {
        const double exponent = std::round(std::log10(tick));
        QVERIFY2(std::fmod(exponent, 2.0) == 0.0, qPrintable(QString::number(tick)));
    }
    QVERIFY(!all.subTicks.isEmpty());
    QVERIFY(all.subTicks.size() <= maximumSubTicks);
}

void tst_LogarithmicAxisTicker::tooManySubTicksAreThinned()
{
    LogarithmicAxisTicker ticker;
    ticker.setSubTickCount(5000);
    QCOMPARE(generated(ticker, 10.0, 100.0).subTicks.size(), 5000);
    ticker.setSubTickCount(std::numeric_limits<int>::max());
    const Generated result = generated(ticker, 10.0, 100.0);
    COMPARE_VALUES(result.ticks, (Values{10, 100}));
    QCOMPARE(result.subTicks.size(), 5000);
}

QTEST_APPLESS_MAIN(tst_LogarithmicAxisTicker)
#include "tst_LogarithmicAxisTicker.moc"
