#include "records/AccelerogramColl.h"
#include "records/Sinusoids.h"
#include "support/ProgressRecorder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

using seisplot::test::ProgressRecorder;

TEST(SinusoidTest, DefaultSeriesIsAppendedWithNamesAndSamples) {
    AccelerogramColl records;
    Accelerogram existing;
    existing.Identifier = "kept";
    records.AddAccelerogram(existing);
    ProgressRecorder progress;
    GenerateSinusoids(100, 0.025, 10, 100, 0.2, records, &progress);
    ASSERT_EQ(records.GetAccelerogramNum(), 101UL);
    EXPECT_EQ(records.GetP(1)->Identifier, "kept");

    const Accelerogram& first = *records.GetP(2);
    EXPECT_EQ(first.GetName(), "SIN_PGA=   0.200(g)_Period=  0.025(sec)_NPTS=991");
    EXPECT_EQ(first.Identifier, "SIN_PGA=   0.200(g)_Period=  0.025(sec)_NPTS=991");
    EXPECT_EQ(first.Explanation, "Sinusoidal accelerogram, PGA   0.200 (g), T=  0.025 (sec)");
    EXPECT_EQ(first.FileIdentifier, "");
    EXPECT_EQ(first.IsSynthetic, 0);
    EXPECT_EQ(first.Record.XUnit, seisplot::UnitKind::Time);
    EXPECT_EQ(first.Record.YUnit, seisplot::UnitKind::Acceleration);
    EXPECT_EQ(records.GetP(3)->Identifier, "SIN_PGA=   0.200(g)_Period=  0.050(sec)_NPTS=991");
    EXPECT_EQ(records.GetP(101)->Explanation,
              "Sinusoidal accelerogram, PGA   0.200 (g), T=  2.500 (sec)");

    // Record 40 of the series has T = 1 s: 99 steps of 1/99 s per period, ten periods,
    // 1962 mm/s² peak, every period the same samples.
    const PCurve& curve = records.GetP(41)->Record;
    ASSERT_EQ(curve.GetNP(), 991);
    EXPECT_EQ(curve[0].GetX(), 0.0);
    EXPECT_EQ(curve[0].GetY(), 0.0);
    for (int p : {1, 25, 50, 98, 99, 100, 124, 500, 990}) {
        const int j = (p - 1) % 99 + 1; // position within its period
        EXPECT_NEAR(curve[p].GetY(), 1962.0 * std::sin(2.0 * std::numbers::pi * j / 99.0), 1e-9)
            << p;
        EXPECT_NEAR(curve[p].GetX(), p / 99.0, 1e-12) << p;
    }
    EXPECT_NEAR(records.GetP(101)->Record.GetMaxX(), 25.0, 1e-9); // ten periods of 2.5 s

    // The range first, then one step of 1 per record, then back to 0.
    ASSERT_EQ(progress.states.size(), 102U);
    EXPECT_EQ(progress.states[0], (ProgressRecorder::State{0, 100, 0}));
    for (int k = 1; k <= 100; ++k) {
        EXPECT_EQ(progress.states[static_cast<size_t>(k)], (ProgressRecorder::State{0, 100, k}));
    }
    EXPECT_EQ(progress.states.back().position, 0);
}

TEST(SinusoidTest, FewPointsPerPeriodAndRepeatedSeries) {
    // One point per period: each record is the origin alone.
    AccelerogramColl single;
    GenerateSinusoids(3, 0.5, 4, 1, 0.1, single, nullptr);
    ASSERT_EQ(single.GetAccelerogramNum(), 3UL);
    const PCurve& origin = single.GetP(3)->Record;
    ASSERT_EQ(origin.GetNP(), 1);
    EXPECT_EQ(origin[0].GetX(), 0.0);
    EXPECT_EQ(origin[0].GetY(), 0.0);
    EXPECT_EQ(single.GetP(3)->Identifier, "SIN_PGA=   0.100(g)_Period=  1.500(sec)_NPTS=1");

    // Two points per period: one sample at each period's end, where the sine vanishes.
    AccelerogramColl pairs;
    GenerateSinusoids(2, 0.4, 5, 2, 1.5, pairs, nullptr);
    ASSERT_EQ(pairs.GetAccelerogramNum(), 2UL);
    EXPECT_EQ(pairs.GetP(2)->Identifier, "SIN_PGA=   1.500(g)_Period=  0.800(sec)_NPTS=6");
    for (unsigned long k = 1; k <= 2; ++k) {
        const PCurve& c = pairs.GetP(k)->Record;
        ASSERT_EQ(c.GetNP(), 6);
        for (int i = 0; i <= 5; ++i) {
            EXPECT_NEAR(c[i].GetX(), i * 0.4 * static_cast<double>(k), 1e-12);
            EXPECT_NEAR(c[i].GetY(), 0.0, 1e-9);
        }
    }

    // A series generated twice repeats its names; a lookup finds the first.
    AccelerogramColl twice;
    GenerateSinusoids(4, 0.1, 2, 5, 0.3, twice, nullptr);
    GenerateSinusoids(4, 0.1, 2, 5, 0.3, twice, nullptr);
    ASSERT_EQ(twice.GetAccelerogramNum(), 8UL);
    for (unsigned long k = 1; k <= 4; ++k) {
        EXPECT_EQ(twice.GetP(k)->Identifier, twice.GetP(k + 4)->Identifier);
    }
    EXPECT_EQ(twice.FindAccelerogramName("SIN_PGA=   0.300(g)_Period=  0.200(sec)_NPTS=9"), 2UL);
}
