#include "records/SpectrumPeaks.h"
#include "records/Accelerogram.h"
#include "records/OscillatorKernel.h"
#include "support/PlainDuhamel.h"
#include "support/SampledRecord.h"

#include <gtest/gtest.h>
#include <hwy/targets.h>

#include <cmath>
#include <functional>
#include <vector>

using seisplot::FlatRecord;
using seisplot::KernelPath;
using seisplot::PeriodSteps;

namespace {

const double kPi = 2.0 * std::asin(1.0);

double Motion(double t) {
    return 2000.0 * std::exp(-0.3 * t) *
           (std::sin(2.0 * kPi * 1.7 * t) + 0.5 * std::sin(2.0 * kPi * 6.1 * t + 0.3));
}

// Sampled from t0 at steps cycling through 6, 13, 0 and 9 ms: a varying step with a repeated
// time.
Accelerogram VaryingSteps(int n, double t0 = 0.0) {
    const double steps[] = {0.006, 0.013, 0.0, 0.009};
    std::vector<double> t(1, t0);
    std::vector<double> a(1, Motion(t0));
    for (int i = 1; i < n; ++i) {
        t.push_back(t.back() + steps[i % 4]);
        a.push_back(Motion(t.back()) + (steps[i % 4] == 0.0 ? 150.0 : 0.0));
    }
    return Accelerogram(n, t.data(), a.data());
}

// Each instruction set this processor has, then the scalar path; the process-wide settings
// are restored afterwards.
void ForEveryPath(const std::function<void(const char*)>& run) {
    for (const int64_t target : hwy::SupportedAndGeneratedTargets()) {
        hwy::SetSupportedTargetsForTest(target);
        seisplot::SetKernelPath(KernelPath::Simd);
        run(hwy::TargetName(target));
    }
    hwy::SetSupportedTargetsForTest(0);
    seisplot::SetKernelPath(KernelPath::Scalar);
    run("scalar");
    seisplot::SetKernelPath(KernelPath::Simd);
}

std::vector<PeriodSteps> StepsOf(const FlatRecord& record, const std::vector<double>& periods) {
    std::vector<PeriodSteps> steps;
    for (double T : periods) {
        PeriodSteps p{T, 0.0, 0};
        EXPECT_TRUE(seisplot::SpectrumSteps(record, T, p.h, p.n));
        steps.push_back(p);
    }
    return steps;
}

} // namespace

TEST(SpectrumPeaksTest, LanesFollowThePlainIntegralAcrossTheStepSwitch) {
    // The oscillator's time starts at 0: a record starting later holds its first value until
    // then, one starting earlier its last value after its end.
    const Accelerogram records[] = {seisplot::test::SampledRecord(601, 0.01, Motion, 0.25),
                                    VaryingSteps(801, -0.5)};
    for (const Accelerogram& r : records) {
        const FlatRecord flat(r.Record);
        // The step is the mean interval from T = 100 times it on, T/100 below: periods on
        // both sides of that switch, an odd count so that the last lanes stay empty.
        const double mean = (r.Record.GetMaxX() - r.Record.GetMinX()) / (r.Record.GetNP() - 1);
        const std::vector<PeriodSteps> periods =
            StepsOf(flat, {0.9 * mean, 0.05, 0.4, 99.0 * mean, 100.0 * mean, 101.0 * mean, 2.9});
        std::vector<double> plain;
        for (const PeriodSteps& p : periods) {
            plain.push_back(seisplot::test::PlainPeak(r, p.T, 0.05, p.h, p.n));
        }
        std::vector<double> scalar;
        ForEveryPath([&](const char* path) {
            std::vector<double> peaks(periods.size(), -1.0);
            seisplot::SpectrumPeaks(flat, 0.05, periods, peaks);
            for (size_t j = 0; j < periods.size(); ++j) {
                EXPECT_NEAR(peaks[j], plain[j], 1e-12 * plain[j])
                    << path << ", T " << periods[j].T << ", step " << periods[j].h;
            }
            // Every lane repeats the scalar arithmetic: the same bits on every path.
            if (scalar.empty()) {
                scalar = peaks;
            }
            EXPECT_EQ(peaks, scalar) << path;
        });
    }
}

TEST(SpectrumPeaksTest, SpectraAreTheSameOnEveryPathAndThreadCount) {
    Accelerogram r = VaryingSteps(1201);
    struct Grid {
        double Tmax;
        double dT;
        int points; // with T = 0
    };
    // Eleven periods (lanes partly filled on the last pass), one period, none.
    const Grid grids[] = {{1.1, 0.1, 12}, {0.15, 0.1, 2}, {0.05, 0.1, 1}};
    for (const Grid& g : grids) {
        PCurve acc0;
        PCurve dis0;
        PMCurve ads0;
        ForEveryPath([&](const char* path) {
            for (unsigned threads : {1u, 2u}) {
                seisplot::SetSpectrumThreads(threads);
                PCurve acc;
                PCurve dis;
                PMCurve ads;
                ASSERT_EQ(r.GetAccSpectrum(0.05, g.Tmax, g.dT, acc), 0);
                ASSERT_EQ(r.GetDisSpectrum(0.05, g.Tmax, g.dT, dis), 0);
                ASSERT_EQ(r.GetADSpectrum(0.05, g.Tmax, g.dT, ads), 0);
                ASSERT_EQ(acc.GetNP(), g.points);
                if (acc0.GetNP() == 0) {
                    acc0 = acc;
                    dis0 = dis;
                    ads0 = ads;
                    // The single-period routine is the scalar kernel alone.
                    for (int k = 1; k < acc.GetNP(); ++k) {
                        double sa = 0.0;
                        ASSERT_EQ(r.GetAccSpectrum(0.05, acc[k].GetX(), &sa), 0);
                        EXPECT_EQ(acc[k].GetY(), sa) << acc[k].GetX();
                    }
                }
                for (int k = 0; k < g.points; ++k) {
                    SCOPED_TRACE(testing::Message()
                                 << path << ", " << threads << " threads, T " << acc[k].GetX());
                    EXPECT_EQ(acc[k].GetY(), acc0[k].GetY());
                    EXPECT_EQ(dis[k].GetY(), dis0[k].GetY());
                    EXPECT_EQ(ads[k].GetX(), ads0[k].GetX());
                    EXPECT_EQ(ads[k].GetY(), ads0[k].GetY());
                }
            }
        });
    }
    seisplot::SetSpectrumThreads(0);
}

TEST(SpectrumPeaksTest, WorkersShareLongPeriodsWithoutChangingThem) {
    // Short periods on a long record: enough steps to start every worker asked for.
    const Accelerogram r = seisplot::test::SampledRecord(6001, 0.005, Motion);
    const FlatRecord flat(r.Record);
    const std::vector<PeriodSteps> periods =
        StepsOf(flat, {0.011, 0.013, 0.017, 0.019, 0.023, 0.029, 0.031, 0.037, 0.041});
    std::vector<double> alone(periods.size());
    seisplot::SpectrumPeaks(flat, 0.05, periods, alone, 1);
    for (unsigned threads : {2u, 3u, 16u}) {
        std::vector<double> shared(periods.size(), -1.0);
        seisplot::SpectrumPeaks(flat, 0.05, periods, shared, threads);
        EXPECT_EQ(shared, alone) << threads;
    }
    // Against the scalar kernel, one period at a time.
    for (size_t j = 0; j < periods.size(); j += 4) {
        const PeriodSteps& p = periods[j];
        EXPECT_EQ(alone[j],
                  seisplot::IntegrateResponse(flat, {1.0, p.T, 0.05, p.h, p.n, 3}, nullptr))
            << p.T;
    }
}

TEST(SpectrumPeaksTest, OrdinatesAreThoseOfTheSinglePeriodRoutine) {
    Accelerogram r = VaryingSteps(901);
    const FlatRecord flat(r.Record);
    // The PGA at 0, nothing at a negative period, the rest in lanes (nine: one pass and a bit).
    const std::vector<double> periods = {0.0, -0.2, 0.013, 0.4, 0.9, 2.2, 0.05, 1.3, 3.1, 0.7};
    for (double xi : {0.05, 1e-07, 0.0, 1.0}) {
        std::vector<double> sa(periods.size(), -1.0);
        seisplot::AccelerationOrdinates(r, flat, xi, periods, sa);
        for (size_t j = 0; j < periods.size(); ++j) {
            double alone = 0.0;
            r.GetAccSpectrum(xi, periods[j], &alone); // leaves 0 where it refuses
            EXPECT_EQ(sa[j], alone) << "xi " << xi << ", T " << periods[j];
        }
    }
}
