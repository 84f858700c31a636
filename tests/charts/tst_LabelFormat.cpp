// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include "ko/qtToolkit/charts/LabelFormat_p.h"

#include <QTest>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>

using ko::qtToolkit::charts::LabelFormat;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

// Values where a hand-written formatter is most likely to go wrong: signed zeros, halfway cases
// that are exact in binary and ones that only look halfway in decimal, the edges of the 64-bit
// digit range, the extremes of doubles and the non-finite values.
QVector<double> edgeValues()
{
    QVector<double> values{0.0,        0.125,      0.375,      0.625,       2.5,
                           3.5,        0.5,        1.5,        0.05,        0.005,
                           0.0005,     1.005,      2.675,      9.995,       99.995,
                           0.045,      0.1,        0.2,        0.3,         1.0 / 3.0,
                           2.0 / 3.0,  1e-7,       4.5e-10,    5e-10,       5.5e-10,
                           5e-324,     DBL_MIN,    DBL_MAX,    1e15,        9e15,
                           1e17,       1e18,       9e18,       9.2e18,      1e19,
                           123456.789, 999.9999999, 999999.5,  4503599627370495.5,
                           9007199254740992.0,     9007199254740994.0,      9223372036854775808.0,
                           infinity,   notANumber};
    const int count = values.size();
    for (int i = 0; i < count; ++i)
        values.append(-values[i]);
    for (const double value : {0.005, 0.125, 2.5, 1.005, 1e15}) {
        values.append(std::nextafter(value, 0.0));
        values.append(std::nextafter(value, infinity));
    }
    return values;
}

// Seeded: decades from 1e-25 to 1e20, raw bit patterns (subnormals, NaN payloads, everything),
// decimal halves and binary fractions that are exactly halfway at some precision.
QVector<double> randomValues(int count)
{
    std::mt19937_64 random(20240611);
    std::uniform_real_distribution<double> exponent(-25.0, 20.0);
    std::uniform_int_distribution<int> decimals(0, 9);
    QVector<double> values;
    values.reserve(count);
    for (int i = 0; i < count; ++i) {
        double value = 0.0;
        switch (i % 4) {
        case 0:
            value = std::pow(10.0, exponent(random));
            break;
        case 1: {
            const std::uint64_t bits = random();
            std::memcpy(&value, &bits, sizeof value);
            break;
        }
        case 2:
            value = (double(random() % 2000000) + 0.5) / std::pow(10.0, decimals(random));
            break;
        default:
            value = double(random() % 4000000) / double(1 << (random() % 20));
            break;
        }
        values.append(i % 8 < 4 ? value : -value);
    }
    return values;
}

QString printfText(const QByteArray &format, double value)
{
    return LabelFormat(format).applyThroughPrintf(value);
}

} // namespace

class tst_LabelFormat : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fastPathFormats_data();
    void fastPathFormats();
    void fastPathMatchesPrintf_data();
    void fastPathMatchesPrintf();
    void printfFormats_data();
    void printfFormats();
    void throughPrintfIsAsprintf();
};

void tst_LabelFormat::fastPathFormats_data()
{
    QTest::addColumn<QByteArray>("format");

    QTest::newRow("no decimals") << QByteArrayLiteral("%.0f");
    QTest::newRow("one decimal") << QByteArrayLiteral("%.1f");
    QTest::newRow("two decimals, the default") << QByteArrayLiteral("%.2f");
    QTest::newRow("three decimals") << QByteArrayLiteral("%.3f");
    QTest::newRow("five decimals") << QByteArrayLiteral("%.5f");
    QTest::newRow("nine decimals") << QByteArrayLiteral("%.9f");
    QTest::newRow("no precision means six") << QByteArrayLiteral("%f");
    QTest::newRow("two-digit precision") << QByteArrayLiteral("%.09f");
    QTest::newRow("two-digit zero precision") << QByteArrayLiteral("%.00f");
    QTest::newRow("long double length letter") << QByteArrayLiteral("%.2lf");
    QTest::newRow("percent after") << QByteArrayLiteral("%.1f%%");
    QTest::newRow("unit after") << QByteArrayLiteral("%.2f Hz");
    QTest::newRow("text before and after") << QByteArrayLiteral("gain %.1f dB");
    QTest::newRow("UTF-8 around") << QByteArrayLiteral("\xE2\x89\x88%.1f\xC2\xB0" "C");
    QTest::newRow("broken UTF-8 split by percents")
        << QByteArrayLiteral("\xC3%%\xA9%.2f\xC3%%");
    QTest::newRow("integer") << QByteArrayLiteral("%d");
    QTest::newRow("integer as i") << QByteArrayLiteral("%i");
    QTest::newRow("long integer") << QByteArrayLiteral("%ld");
    QTest::newRow("long long integer") << QByteArrayLiteral("%lld");
    QTest::newRow("integer with text and percents") << QByteArrayLiteral("a%%b%dc");
}

void tst_LabelFormat::fastPathFormats()
{
    // Every value, the edge cases and thousands of seeded random ones, gives the text of the
    // printf path.
    QFETCH(QByteArray, format);
    const LabelFormat label(format);
    QVERIFY(label.isValid());
    QVERIFY(label.hasFastPath());
    QVector<double> values = edgeValues();
    values += randomValues(20000);
    for (const double value : qAsConst(values)) {
        const QString fast = label.apply(value);
        const QString printf = label.applyThroughPrintf(value);
        if (fast != printf) {
            QFAIL(qPrintable(QStringLiteral("%1 of %2: \"%3\", printf gives \"%4\"")
                                 .arg(QString::fromUtf8(format))
                                 .arg(value, 0, 'g', 17)
                                 .arg(fast, printf)));
        }
    }
}

void tst_LabelFormat::fastPathMatchesPrintf_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("expected");

    QTest::newRow("negative zero has no sign") << QByteArrayLiteral("%.2f") << -0.0
                                               << QStringLiteral("0.00");
    QTest::newRow("negative value rounding to zero keeps its sign")
        << QByteArrayLiteral("%.2f") << -0.001 << QStringLiteral("-0.00");
    QTest::newRow("exact half rounds away from zero") << QByteArrayLiteral("%.2f") << 0.125
                                                      << QStringLiteral("0.13");
    QTest::newRow("negative exact half rounds away from zero")
        << QByteArrayLiteral("%.2f") << -0.125 << QStringLiteral("-0.13");
    QTest::newRow("exact half at no decimals") << QByteArrayLiteral("%.0f") << 2.5
                                               << QStringLiteral("3");
    QTest::newRow("decimal half below in binary") << QByteArrayLiteral("%.2f") << 1.005
                                                  << QStringLiteral("1.00");
    QTest::newRow("decimal half below in binary, 2.675") << QByteArrayLiteral("%.2f") << 2.675
                                                         << QStringLiteral("2.67");
    QTest::newRow("carry into a new digit") << QByteArrayLiteral("%.2f") << 99.995
                                            << QStringLiteral("100.00");
    QTest::newRow("smallest subnormal") << QByteArrayLiteral("%.9f") << 5e-324
                                        << QStringLiteral("0.000000000");
    QTest::newRow("huge value beyond the digit writer")
        << QByteArrayLiteral("%.2f") << 1e19 << QStringLiteral("10000000000000000000.00");
    QTest::newRow("largest double") << QByteArrayLiteral("%.0f") << DBL_MAX
                                    << printfText("%.0f", DBL_MAX);
    QTest::newRow("not a number") << QByteArrayLiteral("%.2f") << notANumber
                                  << QStringLiteral("nan");
    QTest::newRow("negative infinity") << QByteArrayLiteral("%.2f") << -infinity
                                       << QStringLiteral("-inf");
    QTest::newRow("no precision") << QByteArrayLiteral("%f") << 0.1
                                  << QStringLiteral("0.100000");
    QTest::newRow("text around") << QByteArrayLiteral("%.1f%% off") << 12.25
                                 << QStringLiteral("12.3% off");
    QTest::newRow("integer rounds halves away from zero") << QByteArrayLiteral("%d") << -2.5
                                                          << QStringLiteral("-3");
    QTest::newRow("integer of negative zero") << QByteArrayLiteral("%d") << -0.0
                                              << QStringLiteral("0");
    QTest::newRow("integer saturates") << QByteArrayLiteral("%d") << -1e300
                                       << QStringLiteral("-9223372036854775808");
    QTest::newRow("integer of NaN") << QByteArrayLiteral("%d") << notANumber
                                    << QStringLiteral("0");
}

void tst_LabelFormat::fastPathMatchesPrintf()
{
    QFETCH(QByteArray, format);
    QFETCH(double, value);
    QFETCH(QString, expected);
    const LabelFormat label(format);
    QVERIFY(label.hasFastPath());
    QCOMPARE(label.applyThroughPrintf(value), expected);
    QCOMPARE(label.apply(value), expected);
}

void tst_LabelFormat::printfFormats_data()
{
    QTest::addColumn<QByteArray>("format");

    QTest::newRow("width") << QByteArrayLiteral("%8.2f");
    QTest::newRow("left-aligned") << QByteArrayLiteral("%-8.2f");
    QTest::newRow("zero-padded") << QByteArrayLiteral("%08.2f");
    QTest::newRow("plus sign") << QByteArrayLiteral("%+.2f");
    QTest::newRow("space for the sign") << QByteArrayLiteral("% .2f");
    QTest::newRow("alternate form") << QByteArrayLiteral("%#.0f");
    QTest::newRow("thousands grouping") << QByteArrayLiteral("%'.2f");
    QTest::newRow("empty precision") << QByteArrayLiteral("%.f");
    QTest::newRow("ten decimals") << QByteArrayLiteral("%.10f");
    QTest::newRow("upper-case fixed") << QByteArrayLiteral("%.2F");
    QTest::newRow("general") << QByteArrayLiteral("%g");
    QTest::newRow("general with precision") << QByteArrayLiteral("%.3g");
    QTest::newRow("exponent") << QByteArrayLiteral("%.2e");
    QTest::newRow("hexadecimal floating point") << QByteArrayLiteral("%a");
    QTest::newRow("integer with width") << QByteArrayLiteral("%5d");
    QTest::newRow("integer with precision") << QByteArrayLiteral("%.3d");
    QTest::newRow("integer with plus sign") << QByteArrayLiteral("%+d");
    QTest::newRow("unsigned") << QByteArrayLiteral("%u");
    QTest::newRow("hexadecimal integer") << QByteArrayLiteral("%x");
    QTest::newRow("literal text only") << QByteArrayLiteral("Hz");
}

void tst_LabelFormat::printfFormats()
{
    // Formats the digit writers leave alone still format as printf does.
    QFETCH(QByteArray, format);
    const LabelFormat label(format);
    QVERIFY(label.isValid());
    QVERIFY(!label.hasFastPath());
    QVector<double> values = edgeValues();
    values += randomValues(200);
    for (const double value : qAsConst(values))
        QCOMPARE(label.apply(value), label.applyThroughPrintf(value));
}

void tst_LabelFormat::throughPrintfIsAsprintf()
{
    // The reference of the tests above is asprintf itself.
    const LabelFormat fixed(QByteArrayLiteral("%.3f"));
    const LabelFormat integer(QByteArrayLiteral("%d"));
    for (const double value : edgeValues()) {
        QCOMPARE(fixed.applyThroughPrintf(value), QString::asprintf("%.3f", value));
        QCOMPARE(integer.applyThroughPrintf(value),
                 QString::asprintf("%lld", static_cast<long long>(std::isnan(value) ? 0
                                   : value >= 9223372036854775807.0 ? LLONG_MAX
                                   : value <= -9223372036854775807.0 ? LLONG_MIN
                                   : std::llround(value))));
    }
}

QTEST_APPLESS_MAIN(tst_LabelFormat)
#include "tst_LabelFormat.moc"
