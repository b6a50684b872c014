#include "records/OscillatorKernel.h"

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
    slope.assign(static_cast<size_t>(std::max(n - 1, 0)), 0.0);
    for (size_t k = 0; k + 1 < t.size(); ++k) {
        const double dx = t[k + 1] - t[k];
        slope[k] = dx == 0.0 ? 0.0 : (a[k + 1] - a[k]) / dx;
    }
}

namespace {

// Walks the record through increasing times, interpolating linearly as PCurve::GetY does
// (holding the first and last values outside the record) with the search carried from one
// call to the next. The slopes are computed once per record, so a value may differ from
// GetY's in its last bit.
class ForwardLookup {
public:
    ForwardLookup(const FlatRecord& record, int cursor)
        : m_t(record.t.data()), m_a(record.a.data()), m_slope(record.slope.data()),
          m_last(static_cast<int>(record.t.size()) - 1), m_k(cursor) {}

    int Cursor() const { return m_k; }

    double At(double x) {
        if (m_last <= 0 || x <= m_t[0]) {
            return m_last < 0 ? 0.0 : m_a[0];
        }
        if (x >= m_t[m_last]) {
            return m_a[m_last];
        }
        // Sampled at about the record's own step, the walk moves on by one sample or none in
        // no predictable pattern: take that first step without a branch.
        m_k += m_t[m_k + 1] < x ? 1 : 0;
        while (m_t[m_k + 1] < x) {
            ++m_k;
        }
        return m_a[m_k] + (x - m_t[m_k]) * m_slope[m_k];
    }

private:
    const double* m_t;
    const double* m_a;
    const double* m_slope;
    int m_last;
    int m_k;
};

// Steps done + 1 ... n, from the state after step `done` (0 or the end of an anchor).
template <int Rule, bool Store>
double Integrate(const FlatRecord& record, const OscillatorSteps& s, double* u, int done,
                 OscillatorState& state) {
    const auto [twoPi, F, E, E2, fourE, delta, cosDelta, sinDelta] = MakeStepConstants(s);

    ForwardLookup lookup(record, state.cursor);
    double t = state.t;
    double theta = state.theta;
    double c = 1.0; // cos θ, sin θ of the current step
    double sn = 0.0;
    double umax = state.umax;
    // Steps i-1 and i-2.
    double a1 = state.a1, c1 = state.c1, s1 = state.s1, A1 = state.A1, B1 = state.B1;
    double a2 = state.a2, c2 = state.c2, s2 = state.s2, A2 = state.A2, B2 = state.B2;
    for (int first = done + 1; first <= s.n; first += kAnchorSteps) {
        const int last = std::min(s.n, first + kAnchorSteps - 1);
        for (int i = first; i <= last; ++i) {
            t += s.h;
            theta += delta;
            if (theta > twoPi) {
                theta -= twoPi;
            }
            if (i == first) {
                c = std::cos(theta);
                sn = std::sin(theta);
            } else {
                const double nc = c * cosDelta - sn * sinDelta;
                sn = sn * cosDelta + c * sinDelta;
                c = nc;
            }
            const double a = lookup.At(t);
            double A;
            double B;
            if constexpr (Rule == 2) {
                A = (a1 * c1 + A1) * E + a * c;
                B = (a1 * s1 + B1) * E + a * sn;
            } else {
                A = (A2 + a2 * c2) * E2 + fourE * a1 * c1 + a * c;
                B = (B2 + a2 * s2) * E2 + fourE * a1 * s1 + a * sn;
            }
            const double ui = F * (A * sn - B * c);
            umax = std::max(umax, std::fabs(ui));
            if constexpr (Store) {
                u[i - 1] = ui;
            }
            a2 = a1, c2 = c1, s2 = s1, A2 = A1, B2 = B1;
            a1 = a, c1 = c, s1 = sn, A1 = A, B1 = B;
        }
    }
    state = {t, theta, a1, c1, s1, A1, B1, a2, c2, s2, A2, B2, umax, lookup.Cursor()};
    return umax;
}

} // namespace

StepConstants MakeStepConstants(const OscillatorSteps& s) {
    StepConstants k{};
    k.twoPi = 4.0 * std::asin(1.0);
    const double omegaN = k.twoPi / s.T;
    const double omegaD = omegaN * std::sqrt(1.0 - s.xi * s.xi);
    k.F = s.h / s.rule / omegaD / s.m;
    k.E = std::exp(-s.xi * omegaN * s.h);
    k.E2 = std::exp(-2.0 * s.xi * omegaN * s.h);
    k.fourE = 4.0 * k.E;
    k.delta = omegaD * s.h;
    k.cosDelta = std::cos(k.delta);
    k.sinDelta = std::sin(k.delta);
    return k;
}

double IntegrateResponse(const FlatRecord& record, const OscillatorSteps& s, double* u) {
    OscillatorState state;
    if (s.rule == 2) {
        return u ? Integrate<2, true>(record, s, u, 0, state)
                 : Integrate<2, false>(record, s, u, 0, state);
    }
    return u ? Integrate<3, true>(record, s, u, 0, state)
             : Integrate<3, false>(record, s, u, 0, state);
}

double ContinueResponse(const FlatRecord& record, const OscillatorSteps& s, int done,
                        OscillatorState& state) {
    return s.rule == 2 ? Integrate<2, false>(record, s, nullptr, done, state)
                       : Integrate<3, false>(record, s, nullptr, done, state);
}

void SampleRecord(const FlatRecord& record, double h, int n, double* a) {
    ForwardLookup lookup(record, 0);
    double t = 0.0;
    for (int i = 0; i < n; ++i) {
        t += h;
        a[i] = lookup.At(t);
    }
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
