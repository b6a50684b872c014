#include "records/Accelerogram.h"
#include "support/PlainDuhamel.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

const double kPi = 2.0 * std::asin(1.0);

Accelerogram Sampled(double dt, int n, double (*f)(double)) {
    std::vector<double> t(static_cast<size_t>(n));
    std::vector<double> a(static_cast<size_t>(n));
    for (int i = 0; i < n; ++i) {
        t[static_cast<size_t>(i)] = i * dt;
        a[static_cast<size_t>(i)] = f(i * dt);
    }
    return Accelerogram(n, t.data(), a.data());
}

// A band-limited motion: a few incommensurate tones under a build-up and decay, in mm/s²,
// starting from zero.
double BandLimited(double t) {
    const double envelope = t / 4.0 * std::exp(1.0 - t / 4.0);
    return 2500.0 * envelope *
           (std::sin(2.0 * kPi * 1.3 * t) + 0.6 * std::sin(2.0 * kPi * 3.7 * t + 0.4) +
            0.3 * std::sin(2.0 * kPi * 0.45 * t + 1.1));
}

// Exact response to piecewise-linear forcing (Nigam and Jennings' recurrence) of
// u'' + 2ξωu' + ω²u = a(t), from rest, over the record's own samples; returns max |u| over
// the first `steps` steps.
double PiecewiseLinearPeak(const Accelerogram& r, double T, double xi, int steps) {
    const double w = 2.0 * kPi / T;
    const double q = std::sqrt(1.0 - xi * xi);
    const double wd = w * q;
    const double dt = r.Record[1].GetX() - r.Record[0].GetX();
    const double e = std::exp(-xi * w * dt);
    const double s = std::sin(wd * dt);
    const double c = std::cos(wd * dt);
    const double k = w * w;
    const double A = e * (xi / q * s + c);
    const double B = e * s / wd;
    const double C = (2 * xi / (w * dt) + e * (((1 - 2 * xi * xi) / (wd * dt) - xi / q) * s -
                                               (1 + 2 * xi / (w * dt)) * c)) /
                     k;
    const double D =
        (1 - 2 * xi / (w * dt) + e * ((2 * xi * xi - 1) / (wd * dt) * s + 2 * xi / (w * dt) * c)) /
        k;
    const double A1 = -e * (w / q * s);
    const double B1 = e * (c - xi / q * s);
    const double C1 = (-1 / dt + e * ((w / q + xi / (dt * q)) * s + c / dt)) / k;
    const double D1 = (1 - e * (xi / q * s + c)) / (k * dt);
    double u = 0.0;
    double v = 0.0;
    double peak = 0.0;
    for (int i = 0; i < steps; ++i) {
        const double p0 = r.Record[i].GetY();
        const double p1 = r.Record[i + 1].GetY();
        const double un = A * u + B * v + C * p0 + D * p1;
        v = A1 * u + B1 * v + C1 * p0 + D1 * p1;
        u = un;
        peak = std::max(peak, std::fabs(u));
    }
    return peak;
}

} // namespace

TEST(OscillatorTest, ConstantAccelerationSettlesOnTheStaticResponse) {
    // A constant 981 mm/s² (0.1 g): the damped step response
    // u = a0/ω²·(1 − e^(−ξωt)(cos ωd·t + ξ/√(1−ξ²)·sin ωd·t)) peaks at t = π/ωd with
    // a0/ω²·(1 + e^(−ξπ/√(1−ξ²))) and settles on the static a0/ω².
    const double a0 = 981.0;
    Accelerogram r = Sampled(0.01, 1001, [](double) { return 981.0; });
    const double T = 1.0;
    const double w = 2.0 * kPi / T;
    for (double xi : {0.05, 0.2}) {
        for (int rule : {2, 3}) {
            PCurve resp;
            double umax = -1.0;
            ASSERT_EQ(r.DuhamelSimple(1.0, T, xi, r.Record, resp, 0.01, 900, rule, &umax), 0);
            ASSERT_EQ(resp.GetNP(), 901);
            EXPECT_EQ(resp[0].GetX(), 0.0);
            EXPECT_EQ(resp[0].GetY(), 0.0);
            EXPECT_NEAR(resp[900].GetX(), 9.0, 1e-12);
            // The record's value at time 0 is taken as zero, so the load is off by up to a0
            // over the first step: the peak moves by about ωh/6 ≈ 1 %.
            const double peak =
                a0 / (w * w) * (1.0 + std::exp(-xi * kPi / std::sqrt(1.0 - xi * xi)));
            EXPECT_NEAR(umax, peak, 0.02 * peak) << xi << " " << rule;
            // That start-up error dies out with the free vibration (e^(−ξω·9 s) ≈ 1e-5 for
            // ξ = 0.2): what remains is the static response, to the rule's own error, about
            // (ωh)²/12 = 3.3e-4 for the trapezoid and far less for Simpson.
            if (xi == 0.2) {
                const double tolerance = rule == 2 ? 5e-4 : 1e-4;
                EXPECT_NEAR(resp[900].GetY(), a0 / (w * w), tolerance * a0 / (w * w)) << rule;
            }
        }
    }
}

TEST(OscillatorTest, RampFollowsTheClosedForm) {
    // a = 100·t mm/s² starts from zero, so nothing is lost at the start. Exact response:
    // u = a0/ω²·(t − 2ξ/ω + e^(−ξωt)(2ξ/ω·cos ωd·t + (2ξ² − 1)/ωd·sin ωd·t)).
    Accelerogram r = Sampled(0.01, 1001, [](double t) { return 100.0 * t; });
    const double T = 0.8;
    const double xi = 0.05;
    const double w = 2.0 * kPi / T;
    const double wd = w * std::sqrt(1.0 - xi * xi);
    for (int rule : {2, 3}) {
        PCurve resp;
        double umax = 0.0;
        ASSERT_EQ(r.DuhamelSimple(1.0, T, xi, r.Record, resp, 0.008, 1200, rule, &umax), 0);
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
        const double scale = 100.0 * 9.6 / (w * w);
        EXPECT_LT(worst, (rule == 2 ? 5e-4 : 2e-5) * scale) << rule;
        EXPECT_NEAR(umax, resp[1200].GetY(), 1e-12 * umax);
    }
}

TEST(OscillatorTest, SinusoidReachesItsSteadyStateAmplitude) {
    // a = A·sin(Ωt) for 100 s; after the transient (time constant 1/(ξω) ≈ 1.6 s) the
    // amplitude is A/ω² / √((1 − r²)² + (2ξr)²) with r = Ω/ω.
    const double T = 0.5;
    const double xi = 0.05;
    const double w = 2.0 * kPi / T;
    for (double ratio : {0.5, 1.0, 2.0}) {
        static double omega;
        omega = ratio * w;
        Accelerogram r =
            Sampled(0.0025, 40001, [](double t) { return 1000.0 * std::sin(omega * t); });
        PCurve resp;
        double umax = 0.0;
        const double h = 0.0025;
        ASSERT_EQ(r.DuhamelSimple(1.0, T, xi, r.Record, resp, h, 39990, 3, &umax), 0);
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

TEST(OscillatorTest, SpectrumAgreesWithTheExactPiecewiseLinearSolution) {
    Accelerogram r = Sampled(0.005, 4001, BandLimited); // 20 s at 200 Hz
    const double xi = 0.05;
    for (double T : {0.5, 0.8, 1.5, 3.0}) {
        double sa = 0.0;
        ASSERT_EQ(r.GetAccSpectrum(xi, T, &sa), 0);
        // The spectra integrate over the duration less one step: 3999 steps of 0.005 s.
        const double w = 2.0 * kPi / T;
        const double exact = w * w * PiecewiseLinearPeak(r, T, xi, 3999) / Accelerogram::kG;
        // Simpson's rule across the kinks of the piecewise-linear record errs by about
        // (ωh)²/12 relative, 3e-4 at T = 0.5 s.
        EXPECT_NEAR(sa, exact, 1e-3 * exact) << T;
    }
}

TEST(OscillatorTest, FastPathMatchesThePlainIntegral) {
    Accelerogram r = Sampled(0.01, 1501, BandLimited);
    for (double T : {0.02, 0.13, 0.7, 2.9}) {
        double sa = 0.0;
        ASSERT_EQ(r.GetAccSpectrum(0.05, T, &sa), 0);
        const double plain = seisplot::test::PlainSa(r, T, 0.05);
        EXPECT_NEAR(sa, plain, 1e-12 * plain) << T;
    }
}

TEST(OscillatorTest, SpectraLimitsAndGrid) {
    // Zero record: every ordinate 0, the first point (0, PGA = 0).
    Accelerogram zero = Sampled(0.01, 501, [](double) { return 0.0; });
    PCurve out;
    ASSERT_EQ(zero.GetAccSpectrum(0.05, 1.0, 0.25, out), 0);
    ASSERT_EQ(out.GetNP(), 5);
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(out[i].GetY(), 0.0);
    }
    EXPECT_EQ(out.XUnit, 12);
    EXPECT_EQ(out.YUnit, 9);
    EXPECT_EQ(out.XName, "T");
    EXPECT_EQ(out.YName, "Se,a(T) [g]");

    // A very stiff oscillator follows the ground: Sa tends to the PGA.
    Accelerogram r = Sampled(0.01, 1001, BandLimited);
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
    // Tmax below the step: only (0, PGA).
    ASSERT_EQ(r.GetAccSpectrum(0.05, 0.05, 0.1, out), 0);
    EXPECT_EQ(out.GetNP(), 1);

    PCurve dis;
    ASSERT_EQ(r.GetDisSpectrum(0.05, 0.5, 0.25, dis), 0);
    ASSERT_EQ(dis.GetNP(), 3);
    EXPECT_EQ(dis[0].GetY(), 0.0);
    EXPECT_EQ(dis.YUnit, 1);
    EXPECT_EQ(dis.YName, "Se,d(T)");
    PCurve acc;
    ASSERT_EQ(r.GetAccSpectrum(0.05, 0.5, 0.25, acc), 0);
    PMCurve ads;
    ASSERT_EQ(r.GetADSpectrum(0.05, 0.5, 0.25, ads), 0);
    ASSERT_EQ(ads.GetNP(), 3);
    EXPECT_EQ(ads[2].GetX(), dis[2].GetY());
    EXPECT_EQ(ads[2].GetY(), 9810.0 * acc[2].GetY());
    EXPECT_EQ(ads[0].GetY(), 9810.0 * r.GetPga());
    EXPECT_EQ(ads.XName, "Se,d");
    EXPECT_EQ(ads.YUnit, 10);
    // Sd = Sa·g/ω² for the same peak displacement.
    const double w = 4.0 * std::asin(1.0) / 0.5;
    EXPECT_NEAR(dis[2].GetY(), acc[2].GetY() * 9810.0 / (w * w), 1e-12 * dis[2].GetY());
}

TEST(OscillatorTest, RefusalsLeaveTheOutputAsItWas) {
    Accelerogram r = Sampled(0.01, 101, BandLimited);
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
    Accelerogram single = Sampled(0.01, 1, BandLimited);
    EXPECT_EQ(single.GetAccSpectrum(0.05, 1.0, 0.1, out), 1);
    EXPECT_EQ(single.GetAccSpectrum(0.05, 0.5, &sa), 1);
    ASSERT_EQ(out.GetNP(), 1);
    EXPECT_EQ(out[0].GetX(), 7.0);
    EXPECT_EQ(sa, -1.0);

    PMCurve ads;
    ads.AddPoint(1.0, 1.0);
    EXPECT_EQ(r.GetADSpectrum(0.0, 1.0, 0.1, ads), 0);
    EXPECT_EQ(ads.GetNP(), 0);
    EXPECT_EQ(ads.XName, "Se,d");

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
    EXPECT_EQ(r.Record.GetNP(), 101);
}
