#include "records/Accelerogram.h"

#include <gtest/gtest.h>

namespace {

Accelerogram FromSamples(std::initializer_list<double> a, double dt = 0.01) {
    std::vector<double> t;
    std::vector<double> y(a);
    for (size_t i = 0; i < y.size(); ++i) {
        t.push_back(static_cast<double>(i) * dt);
    }
    return Accelerogram(static_cast<int>(y.size()), t.data(), y.data());
}

} // namespace

TEST(AccelerogramTest, ConstructorsSetTheDefaults) {
    const Accelerogram a;
    EXPECT_EQ(a.Identifier, "Unknown");
    EXPECT_EQ(a.RecordVersion, 104);
    EXPECT_EQ(a.Record.XUnit, 12);
    EXPECT_EQ(a.Record.YUnit, 10);
    EXPECT_EQ(a.Record.GetNP(), 0);
    EXPECT_EQ(a.EventDate.m_dt, 0.0);
    EXPECT_EQ(a.EventDate.GetStatus(), COleDateTime::valid);
    EXPECT_EQ(a.EventTime.GetStatus(), COleDateTime::valid);
    EXPECT_EQ(a.IsVertical, 0);
    EXPECT_EQ(a.AnalysisId, 0);
    EXPECT_TRUE(a.EventName.IsEmpty());

    CVector t(3, std::array<double, 3>{0.0, 0.5, 1.0}.data());
    CVector y(3, std::array<double, 3>{1.0, -2.0, 3.0}.data());
    const Accelerogram v(t, y);
    EXPECT_EQ(v.Record.GetNP(), 3);
    EXPECT_EQ(v.Record.GetPoint(2).GetY(), -2.0);
    EXPECT_EQ(v.Record.XUnit, 12);
    EXPECT_EQ(v.Record.YUnit, 10);
}

TEST(AccelerogramTest, CopyAndAssignmentCarryEveryField) {
    Accelerogram a = FromSamples({0.0, 981.0, -1962.0});
    a.SetName("name");
    a.Select(4);
    a.Identifier = "ID";
    a.FileIdentifier = "FILE.ASC";
    a.Explanation = "summary";
    a.Mw = 6.1;
    a.Ml = 5.9;
    a.EpicentralDistance = 12.5;
    a.HypocentralDepth = 8.0;
    a.Strike = 10.0;
    a.Dip = 20.0;
    a.Rake = 30.0;
    a.Latitude = 42.3;
    a.Longitude = 13.4;
    a.AngleWE = 90.0;
    a.Backazimuth = 200.0;
    a.IsVertical = 1;
    a.IsSynthetic = 1;
    a.SyntheticKind = 1;
    a.EventName = "event";
    a.EventId = "EV1";
    a.EventDate = COleDateTime(2009, 4, 6, 0, 0, 0);
    a.EventTime = COleDateTime(1899, 12, 30, 1, 32, 39);
    a.User1 = "u1";
    a.User5 = "u5";
    a.AnalysisId = 7;
    a.RecordVersion = 101; // not carried by either

    const auto expectSame = [&](const Accelerogram& b) {
        EXPECT_EQ(b.GetName(), "name");
        EXPECT_NE(b.IsSelected(4), 0);
        EXPECT_EQ(b.Identifier, "ID");
        EXPECT_EQ(b.FileIdentifier, "FILE.ASC");
        EXPECT_EQ(b.Explanation, "summary");
        EXPECT_EQ(b.Record.GetNP(), 3);
        EXPECT_EQ(b.Record.GetPoint(3).GetY(), -1962.0);
        EXPECT_EQ(b.Mw, 6.1);
        EXPECT_EQ(b.Ml, 5.9);
        EXPECT_EQ(b.EpicentralDistance, 12.5);
        EXPECT_EQ(b.HypocentralDepth, 8.0);
        EXPECT_EQ(b.Strike, 10.0);
        EXPECT_EQ(b.Dip, 20.0);
        EXPECT_EQ(b.Rake, 30.0);
        EXPECT_EQ(b.Latitude, 42.3);
        EXPECT_EQ(b.Longitude, 13.4);
        EXPECT_EQ(b.AngleWE, 90.0);
        EXPECT_EQ(b.Backazimuth, 200.0);
        EXPECT_EQ(b.IsVertical, 1);
        EXPECT_EQ(b.IsSynthetic, 1);
        EXPECT_EQ(b.SyntheticKind, 1);
        EXPECT_EQ(b.EventName, "event");
        EXPECT_EQ(b.EventId, "EV1");
        EXPECT_EQ(b.EventDate, a.EventDate);
        EXPECT_EQ(b.EventTime, a.EventTime);
        EXPECT_EQ(b.User1, "u1");
        EXPECT_EQ(b.User5, "u5");
        EXPECT_EQ(b.AnalysisId, 7);
    };
    const Accelerogram copied(a);
    expectSame(copied);
    EXPECT_EQ(copied.RecordVersion, 104);

    Accelerogram assigned;
    const Accelerogram returned = (assigned = a);
    expectSame(assigned);
    expectSame(returned);
    EXPECT_EQ(assigned.RecordVersion, 104);

    assigned = assigned; // self-assignment changes nothing
    expectSame(assigned);
}

TEST(AccelerogramTest, PeakGroundAccelerationIsTheLargerMagnitude) {
    EXPECT_EQ(FromSamples({100.0, 4905.0, -1000.0}).GetPga(), 0.5);
    EXPECT_EQ(FromSamples({100.0, 981.0, -2943.0}).GetPga(), 0.3);
    EXPECT_EQ(FromSamples({-981.0, -1962.0}).GetPga(), 0.2); // all negative
    EXPECT_EQ(FromSamples({981.0, 1962.0}).GetPga(), 0.2);   // all positive
    EXPECT_EQ(Accelerogram().GetPga(), 0.0);
}

TEST(AccelerogramTest, QuietTailStartsAfterTheLastLoudPoint) {
    double t = -1.0;
    int i = -1;
    // Threshold 0.1 g = 981 mm/s²: points 2 and 4 are loud; the tail is points 5 to 6.
    Accelerogram a = FromSamples({0.0, 2000.0, 10.0, -1500.0, 500.0, -3.0}, 0.5);
    EXPECT_EQ(a.GetTailStart(0.1, &t, &i), 0);
    EXPECT_EQ(i, 5);
    EXPECT_EQ(t, 2.0);

    // The last point above the threshold: the tail is the last point.
    Accelerogram loud = FromSamples({0.0, 10.0, 1500.0}, 0.5);
    EXPECT_EQ(loud.GetTailStart(0.1, &t, &i), 0);
    EXPECT_EQ(i, 3);
    EXPECT_EQ(t, 1.0);

    // No point above: point 1 and its time.
    Accelerogram quiet = FromSamples({5.0, -10.0, 3.0}, 0.5);
    EXPECT_EQ(quiet.GetTailStart(0.1, &t, &i), 0);
    EXPECT_EQ(i, 1);
    EXPECT_EQ(t, 0.0);

    // A point exactly at the threshold belongs to the tail (0.5 g = 4905 mm/s², exact).
    Accelerogram edge = FromSamples({9000.0, 4905.0, -4905.0}, 0.5);
    EXPECT_EQ(edge.GetTailStart(0.5, &t, &i), 0);
    EXPECT_EQ(i, 2);
    EXPECT_EQ(t, 0.5);

    Accelerogram empty;
    EXPECT_EQ(empty.GetTailStart(0.1, &t, &i), 0);
    EXPECT_EQ(i, 0);
}
