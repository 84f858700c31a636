// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_COMMON_NUMERIC_P_H
#define KO_QTTOOLKIT_COMMON_NUMERIC_P_H

#include <climits>
#include <cmath>

namespace ko::qtToolkit::common {

/// \a x truncated toward zero. Values beyond the range of int saturate, and NaN gives 0, where a
/// plain conversion would be undefined.
inline int truncatedToInt(float x)
{
    if (std::isnan(x))
        return 0;
    // float(INT_MAX) rounds up to 2^31, so everything below it converts safely.
    if (x >= static_cast<float>(INT_MAX))
        return INT_MAX;
    if (x <= static_cast<float>(INT_MIN))
        return INT_MIN;
    return static_cast<int>(x);
}

/// \a x truncated toward zero into what a slider can paint. QStyle's slider arithmetic divides by
/// zero on a range spanning 2^31, so bounds saturate at half the int range, where any two are less
/// than INT_MAX apart.
inline int truncatedToSliderBound(float x)
{
    const int value = truncatedToInt(x);
    return value < INT_MIN / 2 ? INT_MIN / 2 : value > INT_MAX / 2 ? INT_MAX / 2 : value;
}

/// The most digits after the point worth showing of a double: beyond its 17 significant digits
/// they show only noise, and a number formatted with millions of them stops the application.
constexpr int maximumDecimals = 17;

/// \a decimals limited to 0 .. maximumDecimals.
inline int boundedDecimals(long long decimals)
{
    return decimals < 0 ? 0 : decimals > maximumDecimals ? maximumDecimals : int(decimals);
}

} // namespace ko::qtToolkit::common

#endif
