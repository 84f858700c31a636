// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_TESTS_TICKERTESTSUPPORT_H
#define KO_QTTOOLKIT_TESTS_TICKERTESTSUPPORT_H

#include <ko/qtToolkit/charts/AxisTicker.h>

#include <TestSupport.h>

#include <QStringList>
#include <QTest>
#include <QVector>

#include <cmath>
#include <limits>

// Helpers shared by the tests of the tickers.
namespace tickerTest {

using Values = QVector<double>;

inline constexpr double infinity = std::numeric_limits<double>::infinity();
inline constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

// What the tickers promise to allocate at most.
inline constexpr int maximumTicks = 500;
inline constexpr int maximumSubTicks = 5000;

inline bool same(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

inline QString describe(double value)
{
    return QString::number(value, 'g', 17);
}

inline QString describe(const Values &values)
{
    QStringList parts;
    for (const double value : values)
        parts << describe(value);
    return QLatin1Char('{') + parts.join(QStringLiteral(", ")) + QLatin1Char('}');
}

inline bool nearlyEqual(const Values &a, const Values &b)
{
    if (a.size() != b.size())
        return false;
    for (int i = 0; i < a.size(); ++i) {
        if (std::abs(a[i] - b[i]) > 1e-12)
            return false;
    }
    return true;
}

using ko::qtToolkit::test::MessageLog;

struct Generated
{
    Values ticks;
    Values subTicks;
};

inline Generated generated(const ko::qtToolkit::charts::AxisTicker &ticker, double min, double max)
{
    Generated result;
    ticker.generate(min, max, result.ticks, result.subTicks);
    return result;
}

} // namespace tickerTest

// Exact comparisons of doubles (QCOMPARE compares them fuzzily); COMPARE_DOUBLE takes NaN as
// equal to NaN.
#define COMPARE_VALUES(actual, expected)                                                          \
    do {                                                                                          \
        const tickerTest::Values actualValues = (actual);                                         \
        const tickerTest::Values expectedValues = (expected);                                     \
        QVERIFY2(actualValues == expectedValues,                                                  \
                 qPrintable(QStringLiteral("\n   Actual:   %1\n   Expected: %2")                  \
                                .arg(tickerTest::describe(actualValues),                          \
                                     tickerTest::describe(expectedValues))));                     \
    } while (false)

#define COMPARE_DOUBLE(actual, expected)                                                          \
    do {                                                                                          \
        const double actualValue = (actual);                                                      \
        const double expectedValue = (expected);                                                  \
        QVERIFY2(tickerTest::same(actualValue, expectedValue),                                    \
                 qPrintable(QStringLiteral("actual %1, expected %2")                              \
                                .arg(tickerTest::describe(actualValue),                           \
                                     tickerTest::describe(expectedValue))));                      \
    } while (false)

#endif
