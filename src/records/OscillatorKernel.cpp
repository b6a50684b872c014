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
    explicit ForwardLookup(const FlatRecord& record)
        : m_t(record.t.data()), m_a(record.a.data()), m_slope(record.slope.data()),
          m_last(static_cast<int>(record.t.size()) - 1) {}

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
    int m_k = 0;
};

template <int Rule, bool Store>
double Integrate(const FlatRecord& record, const OscillatorSteps& s, double* u) {
    const double twoPi = 4.0 * std::asin(1.0);
    const double omegaN = twoPi / s.T;
    const double omegaD = omegaN * std::sqrt(1.0 - s.xi * s.xi);
    const double F = s.h / Rule / omegaD / s.m;
    const double E = std::exp(-s.xi * omegaN * s.h);
    const double E2 = std::exp(-2.0 * s.xi * omegaN * s.h);
    const double delta = omegaD * s.h;
    const double cosDelta = std::cos(delta);
    const double sinDelta = std::sin(delta);
    const double fourE = 4.0 * E;

    ForwardLookup lookup(record);
    double t = 0.0;
    double theta = 0.0;
    double c = 1.0; // cos θ, sin θ of the current step
    double sn = 0.0;
    double umax = 0.0;
    // Steps i-1 and i-2; the ground acceleration at time 0 is taken as 0.
    double a1 = 0.0, c1 = 1.0, s1 = 0.0, A1 = 0.0, B1 = 0.0;
    double a2 = 0.0, c2 = 1.0, s2 = 0.0, A2 = 0.0, B2 = 0.0;
    for (int first = 1; first <= s.n; first += kAnchorSteps) {
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
    return umax;
}

} // namespace

double IntegrateResponse(const FlatRecord& record, const OscillatorSteps& s, double* u) {
    if (s.rule == 2) {
        return u ? Integrate<2, true>(record, s, u) : Integrate<2, false>(record, s, u);
    }
    return u ? Integrate<3, true>(record, s, u) : Integrate<3, false>(record, s, u);
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
