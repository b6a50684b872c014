#pragma once
// The Duhamel integral written out plainly, as a reference for the fast path: sine and cosine
// of the phase at every step, and the record searched from its start for every lookup.

#include "records/Accelerogram.h"

#include <cmath>
#include <vector>

namespace seisplot::test {

// Peak |u| over n Simpson steps of h for an oscillator of unit mass.
inline double PlainPeak(const Accelerogram& r, double T, double xi, double h, int n) {
    const double twoPi = 4.0 * std::asin(1.0);
    const double wn = twoPi / T;
    const double wd = wn * std::sqrt(1.0 - xi * xi);
    const double F = h / 3 / wd;
    const double E = std::exp(-xi * wn * h);
    const double E2 = std::exp(-2.0 * xi * wn * h);
    const size_t size = static_cast<size_t>(n) + 1;
    std::vector<double> a(size, 0.0), c(size, 1.0), s(size, 0.0), A(size, 0.0), B(size, 0.0);
    double t = 0.0;
    double theta = 0.0;
    double peak = 0.0;
    for (size_t i = 1; i < size; ++i) {
        t += h;
        theta += wd * h;
        if (theta > twoPi) {
            theta -= twoPi;
        }
        c[i] = std::cos(theta);
        s[i] = std::sin(theta);
        a[i] = r.Record.GetY(t);
        const double a2c = i >= 2 ? A[i - 2] + a[i - 2] * c[i - 2] : 0.0;
        const double a2s = i >= 2 ? B[i - 2] + a[i - 2] * s[i - 2] : 0.0;
        A[i] = a2c * E2 + 4.0 * E * a[i - 1] * c[i - 1] + a[i] * c[i];
        B[i] = a2s * E2 + 4.0 * E * a[i - 1] * s[i - 1] + a[i] * s[i];
        peak = std::max(peak, std::fabs(F * (A[i] * s[i] - B[i] * c[i])));
    }
    return peak;
}

// The plain spectral acceleration (g) at period T with the spectra's step and step count.
inline double PlainSa(const Accelerogram& r, double T, double xi) {
    const double duration = r.Record.GetMaxX() - r.Record.GetMinX();
    const double h = std::min(duration / (r.Record.GetNP() - 1), T / 100.0);
    const int n = static_cast<int>(std::trunc((duration - h) / h));
    const double w = 4.0 * std::asin(1.0) / T;
    return std::fabs(w * w * PlainPeak(r, T, xi, h, n)) / 9810.0;
}

} // namespace seisplot::test
