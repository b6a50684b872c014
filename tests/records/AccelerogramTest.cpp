#include "records/Accelerogram.h"
#include "support/SampledRecord.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

using seisplot::test::RecordOf;

TEST(AccelerogramTest, ConstructorsSetTheDefaults) {
    const Accelerogram a;
    EXPECT_EQ(a.Identifier, "Unknown");
    EXPECT_EQ(a.RecordVersion, 104);
    EXPECT_EQ(a.Record.XUnit, seisplot::UnitKind::Time);
    EXPECT_EQ(a.Record.YUnit, seisplot::UnitKind::Acceleration);
    EXPECT_EQ(a.EventDate.m_dt, 0.0);
    EXPECT_EQ(a.EventDate.GetStatus(), COleDateTime::valid);
    EXPECT_EQ(a.EventTime.GetStatus(), COleDateTime::valid);

    CVector t(3, std::array<double, 3>{0.0, 0.5, 1.0}.data());
    CVector y(3, std::array<double, 3>{1.0, -2.0, 3.0}.data());
    const Accelerogram v(t, y);
    EXPECT_EQ(v.Record.GetNP(), 3);
    EXPECT_EQ(v.Record.GetPoint(2).GetY(), -2.0);
    EXPECT_EQ(v.Record.XUnit, seisplot::UnitKind::Time);
    EXPECT_EQ(v.Record.YUnit, seisplot::UnitKind::Acceleration);
}

TEST(AccelerogramTest, PeakGroundAccelerationIsTheLargerMagnitude) {
    EXPECT_EQ(RecordOf({100.0, 4905.0, -1000.0}).GetPga(), 0.5);
    EXPECT_EQ(RecordOf({100.0, 981.0, -2943.0}).GetPga(), 0.3);
    EXPECT_EQ(RecordOf({-981.0, -1962.0}).GetPga(), 0.2); // all negative
    EXPECT_EQ(RecordOf({981.0, 1962.0}).GetPga(), 0.2);   // all positive
    EXPECT_EQ(Accelerogram().GetPga(), 0.0);
}

TEST(AccelerogramTest, QuietTailStartsAfterTheLastLoudPoint) {
    const struct {
        const char* why;
        std::vector<double> samples; // at steps of 0.5 s
        double threshold;
        int point; // from 1
    } cases[] = {
        // 0.1 g = 981 mm/s²: points 2 and 4 are loud, the tail is points 5 and 6.
        {"loud inside", {0.0, 2000.0, 10.0, -1500.0, 500.0, -3.0}, 0.1, 5},
        {"last point loud: the tail is that point", {0.0, 10.0, 1500.0}, 0.1, 3},
        {"nothing loud: point 1", {5.0, -10.0, 3.0}, 0.1, 1},
        // 0.5 g = 4905 mm/s² exactly: a point at the threshold belongs to the tail.
        {"at the threshold", {9000.0, 4905.0, -4905.0}, 0.5, 2},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        Accelerogram r = RecordOf(c.samples, 0.5);
        double t = -1.0;
        int i = -1;
        EXPECT_EQ(r.GetTailStart(c.threshold, &t, &i), 0);
        EXPECT_EQ(i, c.point);
        EXPECT_EQ(t, 0.5 * (c.point - 1));
    }
    Accelerogram empty;
    double t = -1.0;
    int i = -1;
    EXPECT_EQ(empty.GetTailStart(0.1, &t, &i), 0);
    EXPECT_EQ(i, 0);
}
