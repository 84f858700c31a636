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

} // namespace ko::qtToolkit::common

#endif
