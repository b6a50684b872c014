#include "host/Units.h"
#include "platform/core/ScriptedUserInterface.h"

#include <gtest/gtest.h>

TEST(UnitsTest, DefaultSystemIsMetresKilonewtonsSeconds) {
    const Units u;
    EXPECT_EQ(u.L_M(1.0), 1000.0);
    EXPECT_EQ(u.F_M(1.0), 1000.0);
    EXPECT_EQ(u.M_M(2.0), 2.0e6);     // kN·m in N·mm
    EXPECT_EQ(u.Acc_M(9.81), 9810.0); // m/s² in mm/s²
    EXPECT_EQ(u.Acc_U(9810.0), 9.81);
    EXPECT_EQ(u.Pr_U(1.0), 1000.0); // 1 N/mm² = 1 MPa = 1000 kN/m²
    EXPECT_EQ(u.J_U(1.0e12), 1.0);  // 1 m⁴ in mm⁴
    EXPECT_EQ(u.T_U(3.0), 3.0);
    EXPECT_STREQ(u.GetLString(), "m");
    EXPECT_STREQ(u.GetAccString(), "m/s^2");
    EXPECT_STREQ(u.GetWrapLString(), " [m]");
    EXPECT_STREQ(u.GetWrapMString(), " [kN*m]");
    EXPECT_STREQ(u.GetWrapTiString(), " [s]");
}

TEST(UnitsTest, LengthOfARecordFileSetsTheAccelerationFactor) {
    // The sizes an importer passes: cm, mm, m and in.
    const struct {
        double size;
        const char* label;
        double mmPerS2;
    } cases[] = {{10.0, "cm", 10.0}, {1.0, "mm", 1.0}, {1000.0, "m", 1000.0}, {25.4, "in", 25.4}};
    for (const auto& c : cases) {
        Units u;
        u.SetL(c.size);
        EXPECT_EQ(u.Acc_M(1.0), c.mmPerS2) << c.label;
        EXPECT_STREQ(u.GetLString(), c.label);
        EXPECT_EQ(std::string(u.GetAccString()), std::string(c.label) + "/s^2");
    }
    Units odd;
    odd.SetL(2.5);
    EXPECT_STREQ(odd.GetLString(), "2.5 mm");
    odd.SetL(0.0); // refused
    EXPECT_EQ(odd.GetL(), 2.5);
}

TEST(UnitsTest, ResetAsksTheChosenQuantitiesAndAppliesTheAnswer) {
    seisplot::ScriptedUserInterface ui;
    seisplot::ScopedUserInterface installed(ui);
    Units u;
    ui.QueueUnits({true, {{"Length", "cm"}, {"Force", "lbf"}}});
    EXPECT_EQ(u.Reset(nullptr, 1, 0, 1, 0), 0);
    ASSERT_EQ(ui.UnitQuestions().size(), 1u);
    const seisplot::UnitQuestion& q = ui.UnitQuestions()[0];
    ASSERT_EQ(q.quantities.size(), 3u);
    EXPECT_EQ(q.quantities[0].name, "Length");
    EXPECT_TRUE(q.quantities[0].ask);
    EXPECT_FALSE(q.quantities[1].ask);
    EXPECT_TRUE(q.quantities[2].ask);
    EXPECT_EQ(q.quantities[0].labels[static_cast<size_t>(q.quantities[0].current)], "m");
    // Length changed; the force was not asked, so the pick for it is ignored.
    EXPECT_EQ(u.Acc_M(1.0), 10.0);
    EXPECT_EQ(u.F_M(1.0), 1000.0);

    ui.QueueUnits({false, {{"Length", "in"}}});
    EXPECT_EQ(u.Reset(nullptr, 1, 0, 1, 0), 1);
    EXPECT_STREQ(u.GetLString(), "cm");

    EXPECT_TRUE(u.SetUnit("ft"));
    EXPECT_EQ(u.L_M(1.0), 304.8);
    EXPECT_FALSE(u.SetUnit("furlong"));
}
