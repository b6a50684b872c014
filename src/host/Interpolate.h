#pragma once
// Linear interpolation along points in increasing x, shared by every lookup of a curve's
// ordinate so that they all give the same double for the same x.

#include <algorithm>

namespace seisplot {

// The ordinate at x over n points read through x(i) and y(i) (i from 0): interpolated
// between the neighbouring points, the first or last ordinate outside their range, 0.0
// without points. The search starts at *hint (a point index) and leaves there the index of
// the segment's first point, so a walk through increasing x costs a step or two per call.
template <class X, class Y> double InterpolateAt(int n, X x, Y y, double at, int& hint) {
    if (n == 0) {
        return 0.0;
    }
    if (n == 1 || at <= x(0)) {
        hint = 0;
        return y(0);
    }
    if (at >= x(n - 1)) {
        hint = n - 2;
        return y(n - 1);
    }
    int k = std::clamp(hint, 0, n - 2);
    if (at < x(k)) {
        // A step back: find the segment again by halving, knowing x(0) < at < x(k).
        int low = 0;
        int high = k;
        while (high - low > 1) {
            const int mid = low + (high - low) / 2;
            (x(mid) <= at ? low : high) = mid;
        }
        k = low;
    }
    while (x(k + 1) < at) {
        ++k;
    }
    hint = k;
    const double x0 = x(k);
    const double x1 = x(k + 1);
    const double y0 = y(k);
    if (x1 == x0) {
        return y0;
    }
    return y0 + (at - x0) * (y(k + 1) - y0) / (x1 - x0);
}

} // namespace seisplot
