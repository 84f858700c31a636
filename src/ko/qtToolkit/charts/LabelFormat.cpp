// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include "LabelFormat_p.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

namespace ko::qtToolkit::charts {

namespace {

// Two digits each: wider fields or more digits than this show nothing an axis label can use,
// and cost time in proportion.
constexpr int maximumWidthDigits = 2;
constexpr int maximumPrecisionDigits = 2;

// An integer label shows the value rounded to the nearest whole number (halves away from zero),
// within 64 bits.
qlonglong labelInteger(double value)
{
    constexpr double limit = 9223372036854775807.0;
    if (std::isnan(value))
        return 0;
    if (value >= limit)
        return std::numeric_limits<qlonglong>::max();
    if (value <= -limit)
        return std::numeric_limits<qlonglong>::min();
    return std::llround(value);
}

// The digit writers below fill a buffer this large at most: a sign, 19 digits before the point
// (the scaled value stays below 2^63), the point and up to 9 digits after it.
constexpr int digitBufferSize = 32;
constexpr int largestFastPrecision = 9;

// Writes the decimal digits of \a magnitude right-aligned ending at \a end, at least
// \a minimumDigits of them (zeros in front); returns the first digit written.
char *writeDigits(std::uint64_t magnitude, int minimumDigits, char *end)
{
    char *p = end;
    do {
        *--p = char('0' + magnitude % 10);
        magnitude /= 10;
        --minimumDigits;
    } while (magnitude != 0 || minimumDigits > 0);
    return p;
}

// "%d" of the label integer: the sign and the digits, written to \a out; returns their count.
int writeInteger(double value, char *out)
{
    const qlonglong integer = labelInteger(value);
    // The magnitude as unsigned, so that the most negative 64-bit integer has one too.
    const std::uint64_t magnitude =
        integer < 0 ? 0 - std::uint64_t(integer) : std::uint64_t(integer);
    char buffer[digitBufferSize];
    char *const end = buffer + digitBufferSize;
    char *first = writeDigits(magnitude, 1, end);
    if (integer < 0)
        *--first = '-';
    const int length = int(end - first);
    std::memcpy(out, first, size_t(length));
    return length;
}

#ifdef __SIZEOF_INT128__
using Wide = unsigned __int128;

// "%.<precision>f" of \a value as Qt's asprintf writes it: the exact binary value rounded to
// \a precision decimals, halves away from zero; a minus sign for every negative value, also
// one that rounds to zero, but none for negative zero. Returns the number of characters written
// to \a out, or -1 for a value it does not handle (NaN, infinities, and magnitudes whose scaled
// digits would not fit 63 bits), which the caller formats through asprintf instead.
int writeFixed(double value, int precision, char *out)
{
    static constexpr double powersOfTen[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};
    static constexpr std::uint32_t powersOfFive[] = {1,     5,      25,      125,      625,
                                                     3125,  15625,  78125,   390625,   1953125};
    const double magnitude = std::abs(value);
    // Also false for NaN. The product is rounded, but 9e18 lies far enough below 2^63.
    if (!(magnitude * powersOfTen[precision] < 9e18))
        return -1;

    // magnitude = mantissa × 2^exponent exactly, and magnitude × 10^precision =
    // mantissa × 5^precision × 2^(exponent + precision): an integer of at most 53 + 21 bits
    // times a power of two, rounded here without any floating-point error.
    std::uint64_t bits;
    std::memcpy(&bits, &magnitude, sizeof bits);
    const int biasedExponent = int(bits >> 52);
    std::uint64_t mantissa = bits & ((std::uint64_t(1) << 52) - 1);
    if (biasedExponent != 0)
        mantissa |= std::uint64_t(1) << 52;
    const int shift = (biasedExponent != 0 ? biasedExponent : 1) - 1075 + precision;
    const Wide scaled = Wide(mantissa) * powersOfFive[precision];
    std::uint64_t rounded;
    if (shift >= 0) {
        // An integer already; the check above keeps it below 2^63.
        rounded = std::uint64_t(scaled << shift);
    } else if (shift <= -127) {
        // scaled < 2^74, so the value is below 2^-53: it rounds to zero.
        rounded = 0;
    } else {
        const int down = -shift;
        const Wide truncated = scaled >> down;
        const Wide remainder = scaled - (truncated << down);
        const Wide half = Wide(1) << (down - 1);
        rounded = std::uint64_t(truncated) + (remainder >= half ? 1 : 0);
    }

    char buffer[digitBufferSize];
    char *const end = buffer + digitBufferSize;
    char *first = end;
    if (precision > 0) {
        for (int i = 0; i < precision; ++i) {
            *--first = char('0' + rounded % 10);
            rounded /= 10;
        }
        *--first = '.';
    }
    first = writeDigits(rounded, 1, first);
    if (value < 0.0)
        *--first = '-';
    const int length = int(end - first);
    std::memcpy(out, first, size_t(length));
    return length;
}
#else
int writeFixed(double, int, char *)
{
    return -1;
}
#endif

// The literal text of a piece of format without conversions, as asprintf shows it: each run
// between two '%' read as UTF-8, "%%" as '%'.
QString literalText(const char *begin, const char *end)
{
    QString text;
    const char *run = begin;
    for (const char *p = begin; p < end; ++p) {
        if (*p != '%')
            continue;
        text += QString::fromUtf8(run, int(p - run));
        text += QLatin1Char('%');
        ++p; // the second '%' of "%%"
        run = p + 1;
    }
    text += QString::fromUtf8(run, int(end - run));
    return text;
}

// The digit writers reproduce the rounding and the signs of the asprintf of the Qt they were
// built for; should a Qt format differently, its asprintf is used for every label instead.
bool digitWritersAgreeWithQt()
{
    static const bool agree = [] {
        char buffer[digitBufferSize];
        static const char *const formats[] = {"%.0f", "%.1f", "%.2f", "%.3f"};
        for (const double value : {0.0, -0.0, 0.125, -0.125, 0.375, 2.5, -2.5, 0.5, -0.001,
                                   -0.005, 1.005, 2.675, 99.995, 123456.789, 5e-324, -1e15}) {
            for (int precision = 0; precision < 4; ++precision) {
                const int length = writeFixed(value, precision, buffer);
                if (length < 0
                    || QString::fromLatin1(buffer, length)
                        != QString::asprintf(formats[precision], value))
                    return false;
            }
            const int length = writeInteger(value, buffer);
            if (QString::fromLatin1(buffer, length)
                != QString::asprintf("%lld", labelInteger(value)))
                return false;
        }
        return true;
    }();
    return agree;
}

} // namespace

LabelFormat::LabelFormat(const QByteArray &format)
{
    const char *const begin = format.constData();
    const char *p = begin;
    const auto skipDigits = [&p] {
        int digits = 0;
        for (; *p >= '0' && *p <= '9'; ++p)
            ++digits;
        return digits;
    };
    int lengthBegin = 0;
    int lengthEnd = 0;
    Conversion conversion = Conversion::None;
    // Where the one conversion lies, and whether it is plain enough for the digit writers.
    const char *conversionBegin = nullptr;
    const char *conversionEnd = nullptr;
    bool plain = false;
    bool plainPrecision = true;
    int precision = -1; // none given
    while (*p) {
        if (*p++ != '%')
            continue;
        if (*p == '%') {
            ++p;
            continue;
        }
        if (conversion != Conversion::None)
            return;
        conversionBegin = p - 1;
        const char *const flags = p;
        while (*p && std::strchr("-+ #0'", *p))
            ++p;
        const bool hasFlags = p != flags;
        const int widthDigits = skipDigits();
        if (widthDigits > maximumWidthDigits)
            return;
        if (*p == '.') {
            ++p;
            const char *const digits = p;
            const int precisionDigits = skipDigits();
            if (precisionDigits > maximumPrecisionDigits)
                return;
            precision = 0;
            for (const char *digit = digits; digit < p; ++digit)
                precision = precision * 10 + (*digit - '0');
            // "%.f" means a precision of 6 to some Qt versions and of 0 to others: asprintf
            // decides.
            if (precisionDigits == 0)
                plainPrecision = false;
        }
        const char *length = p;
        while (*p == 'l' && p - length < 2)
            ++p;
        lengthBegin = int(length - begin);
        lengthEnd = int(p - begin);
        if (*p && p - length < 2 && std::strchr("eEfFgGaA", *p)) {
            conversion = Conversion::Floating;
            plain = *p == 'f' && !hasFlags && widthDigits == 0 && plainPrecision;
        } else if (*p && std::strchr("diuoxX", *p)) {
            conversion = Conversion::Integer;
            plain = (*p == 'd' || *p == 'i') && !hasFlags && widthDigits == 0 && precision < 0;
        } else {
            return;
        }
        ++p;
        conversionEnd = p;
    }
    m_conversion = conversion;
    m_format = format;
    if (conversion == Conversion::Integer)
        m_format.replace(lengthBegin, lengthEnd - lengthBegin, "ll");

    if (!plain || !digitWritersAgreeWithQt())
        return;
    if (conversion == Conversion::Integer) {
        m_fastPath = FastPath::Integer;
    } else {
        m_precision = precision < 0 ? 6 : precision;
        if (m_precision > largestFastPrecision)
            return;
        m_fastPath = FastPath::Fixed;
    }
    m_prefix = literalText(begin, conversionBegin);
    m_suffix = literalText(conversionEnd, p);
}

bool LabelFormat::isValid() const
{
    return m_conversion != Conversion::Invalid;
}

QByteArray LabelFormat::format() const
{
    return m_format;
}

bool LabelFormat::hasFastPath() const
{
    return m_fastPath != FastPath::None;
}

QString LabelFormat::apply(double value) const
{
    QString label;
    applyTo(value, label);
    return label;
}

void LabelFormat::applyTo(double value, QString &label) const
{
    if (m_fastPath != FastPath::None) {
        char digits[digitBufferSize];
        const int length = m_fastPath == FastPath::Fixed ? writeFixed(value, m_precision, digits)
                                                         : writeInteger(value, digits);
        if (length >= 0) {
            // QString::resize keeps an unshared buffer that is large enough.
            label.resize(m_prefix.size() + length + m_suffix.size());
            QChar *out = label.data();
            std::memcpy(static_cast<void *>(out), m_prefix.constData(),
                        size_t(m_prefix.size()) * sizeof(QChar));
            out += m_prefix.size();
            for (int i = 0; i < length; ++i)
                *out++ = QLatin1Char(digits[i]);
            std::memcpy(static_cast<void *>(out), m_suffix.constData(),
                        size_t(m_suffix.size()) * sizeof(QChar));
            return;
        }
    }
    label = applyThroughPrintf(value);
}

QString LabelFormat::applyThroughPrintf(double value) const
{
    const char *format = m_format.constData();
    switch (m_conversion) {
    case Conversion::Invalid:
        return {};
    case Conversion::Integer:
        return QString::asprintf(format, labelInteger(value));
    case Conversion::None:
    case Conversion::Floating:
        break;
    }
    return QString::asprintf(format, value);
}

} // namespace ko::qtToolkit::charts
