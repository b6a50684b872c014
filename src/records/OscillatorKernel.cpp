#include "records/OscillatorKernel.h"

#include "host/Interpolate.h"
#include "host/PCurve.h"

#include <algorithm>
#include <climits>
#include <cmath>

namespace seisplot {

FlatRecord::FlatRecord(const PCurve& curve) {
    const int n = curve.GetNP();
    t.resize(static_cast<size_t>(n));
    a.resize(static_cast<size_t>(n));
    for (int i = 0; i < n; ++i) {
        t[static_cast<size_t>(i)] = curve[i].GetX();
        a[static_cast<size_t>(i)] = curve[i].GetY();
    }
}

double FlatRecord::At(double x, int& hint) const {
    return InterpolateAt(
        static_cast<int>(t.size()), [this](int i) { return t[static_cast<size_t>(i)]; },
        [this](int i) { return a[static_cast<size_t>(i)]; }, x, hint);
}

double IntegrateResponse(const FlatRecord& record, const OscillatorSteps& s, double* u) {
    const double twoPi = 4.0 * std::asin(1.0);
    const double omegaN = twoPi / s.T;
    const double omegaD = omegaN * std::sqrt(1.0 - s.xi * s.xi);
    const double F = s.h / s.rule / omegaD / s.m;
    const double E = std::exp(-s.xi * omegaN * s.h);
    const double E2 = std::exp(-2.0 * s.xi * omegaN * s.h);
    const double delta = omegaD * s.h;
    const double cosDelta = std::cos(delta);
    const double sinDelta = std::sin(delta);

    double t = 0.0;
    double theta = 0.0;
    double c = 1.0; // cos θ, sin θ of the current step
    double sn = 0.0;
    int hint = 0;
    double umax = 0.0;
    // Previous steps: index i-1 and i-2 (the ground acceleration at time 0 is taken as 0).
    double a1 = 0.0, c1 = 1.0, s1 = 0.0, A1 = 0.0, B1 = 0.0;
    double a2 = 0.0, c2 = 1.0, s2 = 0.0, A2 = 0.0, B2 = 0.0;
    for (int i = 1; i <= s.n; ++i) {
        t += s.h;
        theta += delta;
        if (theta > twoPi) {
            theta -= twoPi;
        }
        if (i % kAnchorSteps == 0) {
            c = std::cos(theta);
            sn = std::sin(theta);
        } else {
            const double nc = c * cosDelta - sn * sinDelta;
            sn = sn * cosDelta + c * sinDelta;
            c = nc;
        }
        const double a = record.At(t, hint);
        double A;
        double B;
        if (s.rule == 2) {
            A = (a1 * c1 + A1) * E + a * c;
            B = (a1 * s1 + B1) * E + a * sn;
        } else {
            A = (A2 + a2 * c2) * E2 + 4.0 * E * a1 * c1 + a * c;
            B = (B2 + a2 * s2) * E2 + 4.0 * E * a1 * s1 + a * sn;
        }
        const double ui = F * (A * sn - B * c);
        umax = std::max(umax, std::fabs(ui));
        if (u) {
            u[i - 1] = ui;
        }
        a2 = a1, c2 = c1, s2 = s1, A2 = A1, B2 = B1;
        a1 = a, c1 = c, s1 = sn, A1 = A, B1 = B;
    }
    return umax;
}

bool SpectrumSteps(const FlatRecord& record, double T, double& h, int& n) {
    const size_t np = record.t.size();
    if (np < 2) {
        return false;
    }
    const auto [least, greatest] = std::minmax_element(record.t.begin(), record.t.end());
    const double duration = *greatest - *least;
    const double mean = duration / static_cast<double>(np - 1);
    h = std::min(mean, T / 100.0);
    if (!(h > 0.0) || !std::isfinite(duration)) {
        return false;
    }
    const double steps = std::trunc((duration - h) / h);
    if (!(steps < static_cast<double>(INT_MAX))) {
        return false;
    }
    n = static_cast<int>(steps);
    return true;
}

} // namespace seisplot
