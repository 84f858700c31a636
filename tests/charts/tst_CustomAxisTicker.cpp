// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/charts/CustomAxisTicker.h>

#include "TickerTestSupport.h"

#include <QTest>

#include <cfloat>
#include <cmath>
#include <limits>

using ko::qtToolkit::charts::CustomAxisTicker;
using namespace tickerTest;

namespace {

void addTicks(CustomAxisTicker &ticker, const Values &values)
{
    for (const double value : values)
        ticker.addTick(value);
}

} // namespace

class tst_CustomAxisTicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void noTicksGiveNothing();
    void addingTwiceGivesOneTick();
    void ticksAreKeptSorted();
    void subTickCountRefusesNegative();

    void createTicks_data();
    void createTicks();
    void generate_data();
    void generate();

    void tickWithoutLabelIsEmpty();
    void labelsForTicksAndSubTicks();
    void labelOfComputedSubTickNeedsExactKey();
    void labelIsReplaced();
    void labelFormatIsNotUsed();

    void notANumberIsRefused();
    void infiniteTicksStayOutside();
    void degenerateRanges_data();
    void degenerateRanges();
    void tooManyTicksAreThinned();
};

void tst_CustomAxisTicker::defaults()
{
    const CustomAxisTicker ticker;
    QCOMPARE(ticker.subTickCount(), 0);
    QCOMPARE(ticker.computeTickStep(0.0, 100.0), 1.0);
    QCOMPARE(ticker.computeSubTickCount(1.0), 0);
    QVERIFY(ticker.tickLabel(10.0).isNull());
    QVERIFY(ticker.createTicks(1.0, -1e300, 1e300).isEmpty());
}

void tst_CustomAxisTicker::noTicksGiveNothing()
{
    CustomAxisTicker ticker;
    ticker.setSubTickCount(8);
    Values ticks{1};
    Values subTicks{2};
    ticker.generate(0.0, 100.0, ticks, subTicks);
    COMPARE_VALUES(ticks, Values{});
    COMPARE_VALUES(subTicks, Values{});
}

void tst_CustomAxisTicker::addingTwiceGivesOneTick()
{
    CustomAxisTicker ticker;
    ticker.addTick(10.0);
    ticker.addTick(10.0);
    COMPARE_VALUES(ticker.createTicks(1.0, 0.0, 100.0), Values{10});
    COMPARE_VALUES(generated(ticker, 0.0, 100.0).ticks, Values{10});
    // Zero and negative zero are the same value.
    ticker.addTick(0.0);
    ticker.addTick(-0.0);
    COMPARE_VALUES(ticker.createTicks(1.0, -1.0, 100.0), (Values{0, 10}));
}

void tst_CustomAxisTicker::ticksAreKeptSorted()
{
    CustomAxisTicker ticker;
    addTicks(ticker, {1000, 10, -5, 100, 20, 10});
    COMPARE_VALUES(ticker.createTicks(1.0, -10.0, 2000.0), (Values{-5, 10, 20, 100, 1000}));
}

void tst_CustomAxisTicker::subTickCountRefusesNegative()
{
    CustomAxisTicker ticker;
    ticker.setSubTickCount(8);
    QCOMPARE(ticker.subTickCount(), 8);
    QCOMPARE(ticker.computeSubTickCount(123.0), 8);
    QTest::ignoreMessage(QtWarningMsg, "sub tick count can't be negative");
    ticker.setSubTickCount(-1);
    QCOMPARE(ticker.subTickCount(), 8);
    ticker.setSubTickCount(0);
    QCOMPARE(ticker.subTickCount(), 0);
}

void tst_CustomAxisTicker::createTicks_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<Values>("expected");

    // Ticks 10, 100, 1000: those in range plus the nearest one on each side.
    QTest::newRow("20 .. 500") << 20.0 << 500.0 << Values{10, 100, 1000};
    QTest::newRow("ends on ticks") << 100.0 << 1000.0 << Values{10, 100, 1000};
    QTest::newRow("all ticks inside") << 0.0 << 2000.0 << Values{10, 100, 1000};
    QTest::newRow("first tick inside") << 5.0 << 50.0 << Values{10, 100};
    QTest::newRow("below every tick") << 1.0 << 5.0 << Values{10};
    QTest::newRow("above every tick") << 2000.0 << 3000.0 << Values{1000};
    QTest::newRow("between two ticks") << 30.0 << 70.0 << Values{10, 100};
    QTest::newRow("zero width on a tick") << 100.0 << 100.0 << Values{10, 100, 1000};
    QTest::newRow("reversed") << 500.0 << 20.0 << Values{};
    QTest::newRow("NaN bound") << notANumber << 500.0 << Values{};
    QTest::newRow("infinite bounds") << -infinity << infinity << Values{10, 100, 1000};
}

void tst_CustomAxisTicker::createTicks()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(Values, expected);
    CustomAxisTicker ticker;
    addTicks(ticker, {10, 100, 1000});
    COMPARE_VALUES(ticker.createTicks(1.0, min, max), expected);
    // The step is ignored.
    COMPARE_VALUES(ticker.createTicks(notANumber, min, max), expected);
}

void tst_CustomAxisTicker::generate_data()
{
    QTest::addColumn<Values>("tickValues");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<Values>("ticks");
    QTest::addColumn<Values>("subTicks");

    // Eight sub-ticks between neighbouring ticks, trimmed to the range like the ticks.
    QTest::newRow("20 .. 500 around decades")
        << Values{10, 100, 1000} << 20.0 << 500.0 << Values{100}
        << Values{20, 30, 40, 50, 60, 70, 80, 90, 200, 300, 400, 500};
    QTest::newRow("between two ticks") << Values{10, 100} << 30.0 << 70.0 << Values{}
                                       << Values{30, 40, 50, 60, 70};
    QTest::newRow("zero width on a tick")
        << Values{10, 100, 1000} << 100.0 << 100.0 << Values{100} << Values{};
    QTest::newRow("ends on ticks") << Values{10, 100, 1000} << 100.0 << 1000.0
                                   << Values{100, 1000}
                                   << Values{200, 300, 400, 500, 600, 700, 800, 900};
    QTest::newRow("below every tick") << Values{10, 100} << 1.0 << 5.0 << Values{} << Values{};
    QTest::newRow("above every tick") << Values{10, 100} << 200.0 << 300.0 << Values{}
                                      << Values{};
}

void tst_CustomAxisTicker::generate()
{
    QFETCH(Values, tickValues);
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(Values, ticks);
    QFETCH(Values, subTicks);
    CustomAxisTicker ticker;
    addTicks(ticker, tickValues);
    ticker.setSubTickCount(8);
    const Generated result = generated(ticker, min, max);
    COMPARE_VALUES(result.ticks, ticks);
    COMPARE_VALUES(result.subTicks, subTicks);
}

void tst_CustomAxisTicker::tickWithoutLabelIsEmpty()
{
    CustomAxisTicker ticker;
    addTicks(ticker, {10, 100});
    ticker.setTickLabel(100.0, QStringLiteral("100 Hz"));
    QStringList labels;
    ticker.generateLabels(generated(ticker, 0.0, 1000.0).ticks, labels);
    QCOMPARE(labels, QStringList({QString(), QStringLiteral("100 Hz")}));
    QVERIFY(labels.first().isEmpty());
    QVERIFY(ticker.tickLabel(10.0).isNull());
}

void tst_CustomAxisTicker::labelsForTicksAndSubTicks()
{
    // As a frequency scale does it: decades with labels, and labels for chosen sub-ticks.
    CustomAxisTicker ticker;
    addTicks(ticker, {10, 100, 1000});
    ticker.setSubTickCount(8);
    ticker.setTickLabel(10, QStringLiteral("10"));
    ticker.setTickLabel(100, QStringLiteral("100"));
    ticker.setTickLabel(1000, QStringLiteral("1k"));
    ticker.setTickLabel(20, QStringLiteral("20"));
    ticker.setTickLabel(50, QStringLiteral("50"));
    ticker.setTickLabel(200, QStringLiteral("200"));
    const Generated result = generated(ticker, 10.0, 1000.0);
    QStringList labels;
    ticker.generateLabels(result.ticks, labels);
    QCOMPARE(labels, QStringList({QStringLiteral("10"), QStringLiteral("100"), QStringLiteral("1k")}));
    ticker.generateLabels(result.subTicks, labels);
    QCOMPARE(labels.size(), 16);
    QCOMPARE(labels.at(0), QStringLiteral("20"));
    QCOMPARE(labels.at(1), QString());
    QCOMPARE(labels.at(3), QStringLiteral("50"));
    QCOMPARE(labels.at(8), QStringLiteral("200"));
    QCOMPARE(labels.at(9), QString());
}

void tst_CustomAxisTicker::labelOfComputedSubTickNeedsExactKey()
{
    // Between 0 and 1 the third of nine sub-ticks is 0 + 3 × 0.1 = 0.30000000000000004.
    CustomAxisTicker ticker;
    addTicks(ticker, {0, 1});
    ticker.setSubTickCount(9);
    ticker.setTickLabel(0.2, QStringLiteral("two"));
    ticker.setTickLabel(0.3, QStringLiteral("three"));
    const Generated result = generated(ticker, 0.0, 1.0);
    COMPARE_DOUBLE(result.subTicks.at(1), 0.2);
    COMPARE_DOUBLE(result.subTicks.at(2), 0.30000000000000004);
    QStringList labels;
    ticker.generateLabels(result.subTicks, labels);
    QCOMPARE(labels.at(1), QStringLiteral("two"));
    QCOMPARE(labels.at(2), QString());
    QCOMPARE(ticker.tickLabel(0.3), QStringLiteral("three"));
}

void tst_CustomAxisTicker::labelIsReplaced()
{
    CustomAxisTicker ticker;
    ticker.setTickLabel(20.0, QStringLiteral("twenty"));
    ticker.setTickLabel(20.0, QStringLiteral("20"));
    QCOMPARE(ticker.tickLabel(20.0), QStringLiteral("20"));
    ticker.setTickLabel(-0.0, QStringLiteral("zero"));
    QCOMPARE(ticker.tickLabel(0.0), QStringLiteral("zero"));
    ticker.setTickLabel(infinity, QStringLiteral("far"));
    QCOMPARE(ticker.tickLabel(infinity), QStringLiteral("far"));
}

void tst_CustomAxisTicker::labelFormatIsNotUsed()
{
    CustomAxisTicker ticker;
    ticker.setLabelFormat(QStringLiteral("%.1f"));
    QVERIFY(ticker.tickLabel(1.5).isNull());
}

void tst_CustomAxisTicker::notANumberIsRefused()
{
    CustomAxisTicker ticker;
    addTicks(ticker, {10, 100});
    QTest::ignoreMessage(QtWarningMsg,
                         "CustomAxisTicker::addTick: ignoring a tick that is not a number");
    ticker.addTick(std::numeric_limits<double>::quiet_NaN());
    COMPARE_VALUES(ticker.createTicks(1.0, 0.0, 1000.0), (Values{10, 100}));

    QTest::ignoreMessage(
        QtWarningMsg,
        "CustomAxisTicker::setTickLabel: ignoring a label for a value that is not a number");
    ticker.setTickLabel(notANumber, QStringLiteral("nothing"));
    ticker.setTickLabel(10.0, QStringLiteral("ten"));
    QVERIFY(ticker.tickLabel(notANumber).isNull());
    QCOMPARE(ticker.tickLabel(10.0), QStringLiteral("ten"));
}

void tst_CustomAxisTicker::infiniteTicksStayOutside()
{
    CustomAxisTicker ticker;
    addTicks(ticker, {-infinity, -DBL_MAX, 0, DBL_MAX, infinity});
    ticker.setSubTickCount(1);
    COMPARE_VALUES(ticker.createTicks(1.0, -1.0, 1.0), (Values{-DBL_MAX, 0, DBL_MAX}));
    const Generated result = generated(ticker, -DBL_MAX, DBL_MAX);
    COMPARE_VALUES(result.ticks, (Values{-DBL_MAX, 0, DBL_MAX}));
    // Halfway between the ends of the double range; none towards the infinite ticks.
    COMPARE_VALUES(result.subTicks, (Values{-DBL_MAX / 2, DBL_MAX / 2}));
}

void tst_CustomAxisTicker::degenerateRanges_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::newRow("reversed") << 500.0 << 20.0;
    QTest::newRow("NaN min") << notANumber << 500.0;
    QTest::newRow("NaN max") << 20.0 << notANumber;
    QTest::newRow("infinite") << -infinity << infinity;
}

void tst_CustomAxisTicker::degenerateRanges()
{
    QFETCH(double, min);
    QFETCH(double, max);
    CustomAxisTicker ticker;
    addTicks(ticker, {10, 100, 1000});
    ticker.setSubTickCount(8);
    const Generated result = generated(ticker, min, max);
    COMPARE_VALUES(result.ticks, Values{});
    COMPARE_VALUES(result.subTicks, Values{});
}

// An axis shows at most 500 ticks: more are thinned to every n-th of the whole set, the
// smallest n that fits, so that the kept ones stay put while the range pans.
void tst_CustomAxisTicker::tooManyTicksAreThinned()
{
    CustomAxisTicker ticker;
    for (int i = 0; i < 1000; ++i)
        ticker.addTick(i);
    ticker.setSubTickCount(1);
    // At the cap: 498 ticks in range and one beyond each end.
    QCOMPARE(ticker.createTicks(1.0, 1.0, 498.0).size(), 500);
    QCOMPARE(generated(ticker, 1.0, 498.0).ticks.size(), 498);
    // Just above: 501, so every second, counted from the first tick of the set.
    const Values thinned = ticker.createTicks(1.0, 1.0, 499.0);
    QCOMPARE(thinned.size(), 251);
    for (int i = 0; i < thinned.size(); ++i)
        QCOMPARE(thinned[i], 2.0 * i);
    // Panned by one: still the even ticks, with the nearest odd ones as outliers.
    const Generated panned = generated(ticker, 2.0, 500.0);
    QCOMPARE(panned.ticks.constFirst(), 2.0);
    QCOMPARE(panned.ticks.constLast(), 500.0);
    for (const double tick : panned.ticks)
        QCOMPARE(std::fmod(tick, 2.0), 0.0);
    // All of them: every third.
    const Generated all = generated(ticker, 0.0, 999.0);
    QCOMPARE(all.ticks.size(), 334);
    QCOMPARE(all.ticks.at(1), 3.0);
    QCOMPARE(all.subTicks.size(), 333);

    // Too many sub-ticks: 10 intervals of 1000 become 10 of 500, evenly spaced.
    ticker.setSubTickCount(1000);
    const Generated dense = generated(ticker, 0.0, 9.0);
    QCOMPARE(dense.ticks.size(), 10);
    QCOMPARE(dense.subTicks.size(), 9 * 500);
    QVERIFY(std::abs(dense.subTicks.constFirst() - 1.0 / 501.0) < 1e-12);
}

QTEST_APPLESS_MAIN(tst_CustomAxisTicker)
#include "tst_CustomAxisTicker.moc"
