#ifndef KO_QTTOOLKIT_CHARTS_AXISTICKER_P_H
#define KO_QTTOOLKIT_CHARTS_AXISTICKER_P_H

namespace ko::qtToolkit::charts::tickLimits {

// Bounds on what a ticker allocates, whatever range a zooming user produces. An axis a few
// thousand pixels long could not show more ticks than this apart anyway.
constexpr int maximumTicks = 500;
constexpr int maximumSubTicks = 5000;

} // namespace ko::qtToolkit::charts::tickLimits

#endif
