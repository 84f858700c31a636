#include "LabelFormat_p.h"

#include <cmath>
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
    while (*p) {
        if (*p++ != '%')
            continue;
        if (*p == '%') {
            ++p;
            continue;
        }
        if (conversion != Conversion::None)
            return;
        while (*p && std::strchr("-+ #0'", *p))
            ++p;
        if (skipDigits() > maximumWidthDigits)
            return;
        if (*p == '.') {
            ++p;
            if (skipDigits() > maximumPrecisionDigits)
                return;
        }
        const char *length = p;
        while (*p == 'l' && p - length < 2)
            ++p;
        lengthBegin = int(length - begin);
        lengthEnd = int(p - begin);
        if (*p && p - length < 2 && std::strchr("eEfFgGaA", *p))
            conversion = Conversion::Floating;
        else if (*p && std::strchr("diuoxX", *p))
            conversion = Conversion::Integer;
        else
            return;
        ++p;
    }
    m_conversion = conversion;
    m_format = format;
    if (conversion == Conversion::Integer)
        m_format.replace(lengthBegin, lengthEnd - lengthBegin, "ll");
}

bool LabelFormat::isValid() const
{
    return m_conversion != Conversion::Invalid;
}

QByteArray LabelFormat::format() const
{
    return m_format;
}

QString LabelFormat::apply(double value) const
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
    // "%.<digit>f" (the default "%.2f" among them) formats exactly as QString::number does, which
    // skips parsing the format again.
    if (m_format.size() == 4 && format[0] == '%' && format[1] == '.' && format[2] >= '0' && format[2] <= '9'
        && format[3] == 'f')
        return QString::number(value, 'f', format[2] - '0');
    return QString::asprintf(format, value);
}

} // namespace ko::qtToolkit::charts
