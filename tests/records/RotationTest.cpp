#include "platform/core/ScriptedUserInterface.h"
#include "records/Accelerogram.h"
#include "support/SampledRecord.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

Accelerogram Component(const char* id, double angle, int n, double dt, double scale) {
    Accelerogram r = seisplot::test::SampledRecord(n, dt, [scale, i = 0](double) mutable {
        const int k = i++;
        return scale * std::sin(0.37 * k) + 0.1 * k;
    });
    r.Identifier = id;
    r.FileIdentifier = CString(id) + ".ASC";
    r.AngleWE = angle;
    r.Mw = 6.0;
    r.EventId = "EV";
    return r;
}

class RotationTest : public testing::Test {
protected:
    RotationTest() : m_scope(m_ui) {}
    seisplot::ScriptedUserInterface m_ui;
    seisplot::ScopedUserInterface m_scope;
};

} // namespace

TEST_F(RotationTest, PairRotatesToAnyDirection) {
    Accelerogram x = Component("HNE", 0.0, 1000, 0.01, 100.0);
    Accelerogram y = Component("HNN", 90.0, 800, 0.0125, -70.0); // other times: interpolated
    Accelerogram out;
    out.Backazimuth = 99.0;
    out.User1 = "kept";
    ASSERT_EQ(out.Convert(&x, &y, 45.0), 0);
    ASSERT_EQ(out.Record.GetNP(), 800); // the shorter of 1000 and 800
    for (int i : {0, 1, 57, 799}) {
        const double t = x.Record[i].GetX();
        EXPECT_EQ(out.Record[i].GetX(), t);
        const double expected = (x.Record[i].GetY() + y.Record.GetY(t)) * std::sqrt(0.5);
        EXPECT_NEAR(out.Record[i].GetY(), expected, 1e-12 * std::fabs(expected) + 1e-12);
    }
    EXPECT_EQ(out.Identifier, "HNE\"+\"HNN");
    EXPECT_EQ(out.FileIdentifier, "HNE.ASC\"+\"HNN.ASC");
    EXPECT_EQ(out.AngleWE, 45.0);
    EXPECT_EQ(out.Mw, 6.0);
    EXPECT_EQ(out.EventId, "EV");
    EXPECT_EQ(out.Backazimuth, 99.0);
    EXPECT_EQ(out.User1, "kept");

    // At 90° the result is the second component sampled at the first one's times.
    ASSERT_EQ(out.Convert(&x, &y, 90.0), 0);
    for (int i : {3, 400}) {
        EXPECT_NEAR(out.Record[i].GetY(), y.Record.GetY(x.Record[i].GetX()), 1e-9);
    }
    EXPECT_TRUE(m_ui.Messages().empty());
}

TEST_F(RotationTest, SingleComponentIsProjected) {
    Accelerogram y = Component("HNN", 90.0, 300, 0.01, 50.0);
    const double y123 = y.Record[123].GetY();
    Accelerogram out;
    ASSERT_EQ(out.Convert(nullptr, &y, 90.0), 0);
    ASSERT_EQ(out.Record.GetNP(), 300);
    EXPECT_EQ(out.Record[123].GetY(), y123);
    EXPECT_EQ(out.Identifier, "HNN\"converted\"");
    EXPECT_EQ(out.FileIdentifier, "HNN.ASC\"converted\"");
    ASSERT_EQ(out.Convert(nullptr, &y, 150.0), 0); // cos 60° = 0.5
    EXPECT_NEAR(out.Record[123].GetY(), 0.5 * y123, 1e-12);
    // The record rotating itself reads its own values before overwriting them.
    ASSERT_EQ(y.Convert(&y, nullptr, 270.0), 0);
    EXPECT_NEAR(y.Record[123].GetY(), -y123, 1e-9);
}

TEST_F(RotationTest, ChecksComeInOrderWithTheirMessages) {
    Accelerogram x = Component("X", 0.0, 10, 0.01, 1.0);
    Accelerogram y = Component("Y", 90.0, 10, 0.01, 1.0);
    Accelerogram out;
    EXPECT_EQ(out.Convert(nullptr, nullptr, 0.0), 1);
    EXPECT_EQ(out.Convert(&y, &x, 0.0), 1);
    y.AngleWE = 89.99;
    EXPECT_EQ(out.Convert(&x, &y, 0.0), 1);
    y.AngleWE = 89.9995; // within 0.001 of a right angle
    EXPECT_EQ(out.Convert(&x, &y, 0.0), 0);
    EXPECT_EQ(m_ui.MessageTexts(),
              (std::vector<CString>{
                  "Error no accelerograms to be converted", "Error anglex must be < angley",
                  "Error the two accelerograms used as reference must have 90? angle difference"}));
}
