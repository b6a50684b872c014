#include "records/Accelerogram.h"
#include "support/PlainDuhamel.h"
#include "support/SampledRecord.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

using seisplot::test::SampledRecord;

namespace {

const double kPi = 2.0 * std::asin(1.0);

// A band-limited motion: a few incommensurate tones under a build-up and decay, in mm/s²,
// starting from zero.
double BandLimited(double t) {
    const double envelope = t / 4.0 * std::exp(1.0 - t / 4.0);
    return 2500.0 * envelope *
           (std::sin(2.0 * kPi * 1.3 * t) + 0.6 * std::sin(2.0 * kPi * 3.7 * t + 0.4) +
            0.3 * std::sin(2.0 * kPi * 0.45 * t + 1.1));
}

// Max |u| at the first `steps` samples after the start of u'' + 2ξωu' + ω²u = a(t), from
// rest, with a linear between samples: classical Runge-Kutta, eight substeps per sample
// (error about (ωh)⁴, far below the tolerances it is used with).
double RungeKuttaPeak(const Accelerogram& r, double T, double xi, int steps) {
    const double w = 2.0 * kPi / T;
    const double dt = r.Record[1].GetX() - r.Record[0].GetX();
    const double h = dt / 8.0;
    double u = 0.0;
    double v = 0.0;
    double peak = 0.0;
    for (int i = 0; i < steps; ++i) {
        const double a0 = r.Record[i].GetY();
        const double slope = (r.Record[i + 1].GetY() - a0) / dt;
        const auto acc = [&](double s, double uu, double vv) {
            return a0 + slope * s - 2.0 * xi * w * vv - w * w * uu;
        };
        for (double s = 0.0; s < dt - h / 2; s += h) {
            const double k1u = v, k1v = acc(s, u, v);
            const double k2u = v + h / 2 * k1v, k2v = acc(s + h / 2, u + h / 2 * k1u, k2u);
            const double k3u = v + h / 2 * k2v, k3v = acc(s + h / 2, u + h / 2 * k2u, k3u);
            const double k4u = v + h * k3v, k4v = acc(s + h, u + h * k3u, k4u);
            u += h / 6 * (k1u + 2 * k2u + 2 * k3u + k4u);
            v += h / 6 * (k1v + 2 * k2v + 2 * k3v + k4v);
        }
        peak = std::max(peak, std::fabs(u));
    }
    return peak;
}

} // namespace

TEST(OscillatorTest, StepAndRampFollowTheirClosedForms) {
    // A constant 981 mm/s²: the damped step response
    // u = a0/ω²·(1 − e^(−ξωt)(cos ωd·t + ξ/√(1−ξ²)·sin ωd·t)) peaks at t = π/ωd with
    // a0/ω²·(1 + e^(−ξπ/√(1−ξ²))) and settles on the static a0/ω².
    const double a0 = 981.0;
    Accelerogram step = SampledRecord(1001, 0.01, [](double) { return 981.0; });
    const double w1 = 2.0 * kPi; // T = 1 s
    for (double xi : {0.05, 0.2}) {
        for (int rule : {2, 3}) {
            SCOPED_TRACE(testing::Message() << "step, xi " << xi << " rule " << rule);
            PCurve resp;
            double umax = -1.0;
            ASSERT_EQ(step.DuhamelSimple(1.0, 1.0, xi, step.Record, resp, 0.01, 900, rule, &umax),
                      0);
            ASSERT_EQ(resp.GetNP(), 901);
            EXPECT_EQ(resp[0].GetY(), 0.0);
            EXPECT_NEAR(resp[900].GetX(), 9.0, 1e-12);
            // The record's value at time 0 is taken as zero, so the load is off by up to a0
            // over the first step: the peak moves by about ωh/6 ≈ 1 %.
            const double peak =
                a0 / (w1 * w1) * (1.0 + std::exp(-xi * kPi / std::sqrt(1 - xi * xi)));
            EXPECT_NEAR(umax, peak, 0.02 * peak);
            // That start-up error dies out with the free vibration (e^(−ξω·9 s) ≈ 1e-5 for
            // ξ = 0.2): what remains is the static response, to the rule's own error, about
            // (ωh)²/12 = 3.3e-4 for the trapezoid and far less for Simpson.
            if (xi == 0.2) {
                const double tolerance = (rule == 2 ? 5e-4 : 1e-4) * a0 / (w1 * w1);
                EXPECT_NEAR(resp[900].GetY(), a0 / (w1 * w1), tolerance);
            }
        }
    }

    // a = 100·t mm/s² starts from zero, so nothing is lost at the start. Exact response:
    // u = a0/ω²·(t − 2ξ/ω + e^(−ξωt)(2ξ/ω·cos ωd·t + (2ξ² − 1)/ωd·sin ωd·t)).
    Accelerogram ramp = SampledRecord(1001, 0.01, [](double t) { return 100.0 * t; });
    const double T = 0.8;
    const double xi = 0.05;
    const double w = 2.0 * kPi / T;
    const double wd = w * std::sqrt(1.0 - xi * xi);
    for (int rule : {2, 3}) {
        SCOPED_TRACE(testing::Message() << "ramp, rule " << rule);
        PCurve resp;
        double umax = 0.0;
        ASSERT_EQ(ramp.DuhamelSimple(1.0, T, xi, ramp.Record, resp, 0.008, 1200, rule, &umax), 0);
        double worst = 0.0;
        for (int i = 1; i <= 1200; ++i) {
            const double t = resp[i].GetX();
            const double exact =
                100.0 / (w * w) *
                (t - 2 * xi / w +
                 std::exp(-xi * w * t) *
                     (2 * xi / w * std::cos(wd * t) + (2 * xi * xi - 1) / wd * std::sin(wd * t)));
            worst = std::max(worst, std::fabs(resp[i].GetY() - exact));
        }
        // Against the largest response, 100·9.6/ω² ≈ 15.6 mm: the trapezoid errs by about
        // (ωh)²/12 = 3.3e-4 of it, Simpson by far less.
        EXPECT_LT(worst, (rule == 2 ? 5e-4 : 2e-5) * 100.0 * 9.6 / (w * w));
        EXPECT_NEAR(umax, resp[1200].GetY(), 1e-12 * umax);
    }
}

TEST(OscillatorTest, SinusoidReachesItsSteadyStateAmplitude) {
    // a = A·sin(Ωt) for 100 s; after the transient (time constant 1/(ξω) ≈ 1.6 s) the
    // amplitude is A/ω² / √((1 − r²)² + (2ξr)²) with r = Ω/ω, at and off resonance.
    const double T = 0.5;
    const double xi = 0.05;
    const double w = 2.0 * kPi / T;
    for (double ratio : {0.5, 1.0, 2.0}) {
        const double omega = ratio * w;
        Accelerogram r = SampledRecord(40001, 0.0025,
                                       [omega](double t) { return 1000.0 * std::sin(omega * t); });
        PCurve resp;
        double umax = 0.0;
        ASSERT_EQ(r.DuhamelSimple(1.0, T, xi, r.Record, resp, 0.0025, 39990, 3, &umax), 0);
        double late = 0.0;
        for (int i = 30000; i <= 39990; ++i) {
            late = std::max(late, std::fabs(resp[i].GetY()));
        }
        const double steady =
            1000.0 / (w * w) /
            std::sqrt(std::pow(1.0 - ratio * ratio, 2.0) + std::pow(2.0 * xi * ratio, 2.0));
        // Linear interpolation of the forcing and Simpson's rule each err by about
        // (Ωh)²/8 ≤ 2e-3 here; the peak is sampled to within (πh/period)²/2.
        EXPECT_NEAR(late, steady, 3e-3 * steady) << ratio;
    }
}

TEST(OscillatorTest, SpectrumAgreesWithIndependentIntegrals) {
    Accelerogram r = SampledRecord(4001, 0.005, BandLimited); // 20 s at 200 Hz
    for (double T : {0.5, 0.8, 1.5, 3.0}) {
        double sa = 0.0;
        ASSERT_EQ(r.GetAccSpectrum(0.05, T, &sa), 0);
        // The spectra integrate over the duration less one step: 3999 steps of 0.005 s.
        // Simpson's rule across the kinks of the piecewise-linear record errs by about
        // (ωh)²/12 relative, 3e-4 at T = 0.5 s.
        const double w = 2.0 * kPi / T;
        const double exact = w * w * RungeKuttaPeak(r, T, 0.05, 3999) / Accelerogram::kG;
        EXPECT_NEAR(sa, exact, 1e-3 * exact) << T;
    }
    // The fast path (recurrences for the phase, a walking lookup) against the plain integral.
    Accelerogram shorter = SampledRecord(1501, 0.01, BandLimited);
    for (double T : {0.02, 0.13, 0.7, 2.9}) {
        double sa = 0.0;
        ASSERT_EQ(shorter.GetAccSpectrum(0.05, T, &sa), 0);
        const double plain = seisplot::test::PlainSa(shorter, T, 0.05);
        EXPECT_NEAR(sa, plain, 1e-12 * plain) << T;
    }
}

TEST(OscillatorTest, SpectraLimitsAndGrid) {
    PCurve out;
    // A very stiff oscillator follows the ground: Sa tends to the PGA; at T = 0 it is the PGA.
    Accelerogram r = SampledRecord(1001, 0.01, BandLimited);
    double sa = 0.0;
    ASSERT_EQ(r.GetAccSpectrum(0.05, 0.002, &sa), 0);
    EXPECT_NEAR(sa, r.GetPga(), 2e-3 * r.GetPga());
    ASSERT_EQ(r.GetAccSpectrum(0.05, 0.0, &sa), 0);
    EXPECT_EQ(sa, r.GetPga());

    // Periods are accumulated: 0.1 + 0.1 + 0.1 exceeds 0.3, so 0.3 is not on the grid.
    ASSERT_EQ(r.GetAccSpectrum(0.05, 0.3, 0.1, out), 0);
    ASSERT_EQ(out.GetNP(), 3);
    EXPECT_EQ(out[2].GetX(), 0.2);
    EXPECT_EQ(out[0].GetY(), r.GetPga());
    ASSERT_EQ(r.GetAccSpectrum(0.05, 0.05, 0.1, out), 0); // Tmax below the step: (0, PGA)
    EXPECT_EQ(out.GetNP(), 1);

    PCurve dis;
    PCurve acc;
    PMCurve ads;
    ASSERT_EQ(r.GetDisSpectrum(0.05, 0.5, 0.25, dis), 0);
    ASSERT_EQ(r.GetAccSpectrum(0.05, 0.5, 0.25, acc), 0);
    ASSERT_EQ(r.GetADSpectrum(0.05, 0.5, 0.25, ads), 0);
    ASSERT_EQ(dis.GetNP(), 3);
    ASSERT_EQ(ads.GetNP(), 3);
    EXPECT_EQ(dis[0].GetY(), 0.0);
    // Accelerations in g are pure numbers; the ADS form plots displacement against mm/s².
    using enum seisplot::UnitKind;
    EXPECT_EQ((std::vector{acc.XUnit, acc.YUnit, dis.XUnit, dis.YUnit, ads.XUnit, ads.YUnit}),
              (std::vector{Time, PureNumber, Time, Length, Length, Acceleration}));
    EXPECT_EQ((std::vector<CString>{acc.XName, acc.YName, dis.YName, ads.XName}),
              (std::vector<CString>{"T", "Se,a(T) [g]", "Se,d(T)", "Se,d"}));
    EXPECT_EQ(ads[2].GetX(), dis[2].GetY());
    EXPECT_EQ(ads[2].GetY(), 9810.0 * acc[2].GetY());
    EXPECT_EQ(ads[0].GetY(), 9810.0 * r.GetPga());
    // Sd = Sa·g/ω² for the same peak displacement.
    const double w = 2.0 * kPi / 0.5;
    EXPECT_NEAR(dis[2].GetY(), acc[2].GetY() * 9810.0 / (w * w), 1e-12 * dis[2].GetY());
}

TEST(OscillatorTest, RefusalsLeaveTheOutputAsItWas) {
    Accelerogram r = SampledRecord(101, 0.01, BandLimited);
    Accelerogram single = SampledRecord(1, 0.01, BandLimited);
    PCurve out;
    out.AddPoint(7.0, 7.0);
    double sa = -1.0;
    for (double xi : {0.0, 1.0, 1.5}) {
        EXPECT_EQ(r.GetAccSpectrum(xi, 1.0, 0.1, out), 1) << xi;
        EXPECT_EQ(r.GetDisSpectrum(xi, 1.0, 0.1, out), 1) << xi;
        EXPECT_EQ(r.GetAccSpectrum(xi, 0.5, &sa), 1) << xi;
    }
    EXPECT_EQ(r.GetAccSpectrum(0.05, 1.0, 0.0, out), 1); // a step of zero never ends
    EXPECT_EQ(r.GetAccSpectrum(0.05, 1.0, -0.1, out), 1);
    EXPECT_EQ(r.GetAccSpectrum(0.05, -0.5, &sa), 1);
    EXPECT_EQ(single.GetAccSpectrum(0.05, 1.0, 0.1, out), 1);
    EXPECT_EQ(single.GetAccSpectrum(0.05, 0.5, &sa), 1);
    ASSERT_EQ(out.GetNP(), 1);
    EXPECT_EQ(out[0].GetX(), 7.0);
    EXPECT_EQ(sa, -1.0);

    PMCurve ads;
    ads.AddPoint(1.0, 1.0);
    EXPECT_EQ(r.GetADSpectrum(0.0, 1.0, 0.1, ads), 0);
    EXPECT_EQ(ads.GetNP(), 0);

    // Rule 4: cleared and sized to n + 1 points at the origin; umax not written.
    PCurve resp;
    resp.AddPoint(3.0, 3.0);
    double umax = -2.0;
    EXPECT_EQ(r.DuhamelSimple(1.0, 0.5, 0.05, r.Record, resp, 0.01, 10, 4, &umax), 1);
    EXPECT_EQ(resp.GetNP(), 11);
    EXPECT_EQ(resp[0].GetX(), 0.0);
    EXPECT_EQ(resp[10].GetY(), 0.0);
    EXPECT_EQ(umax, -2.0);
    // Mass 0: nothing touched.
    EXPECT_EQ(r.DuhamelSimple(0.0, 0.5, 0.05, r.Record, resp, 0.01, 3, 3, &umax), 1);
    EXPECT_EQ(resp.GetNP(), 11);
}
