// Curve mixing: formulas over bound curves in the user's units, point by point; failures that
// add nothing; slots after a deletion; one curve's ordinates against another's.

#include "dialogs/curves/CurveMixing.h"
#include "DialogFixture.h"

#include <cmath>

using seisplot::DialogHandle;

namespace {

constexpr int kList = 14629, kDelete = 14653, kNewName = 14651, kFormula = 14664;
constexpr int kExecute = 14652, kVersus = 14665, kReferToY = 14673, kKinds = 14601;
constexpr int kSlotName[] = {14643, 14645, 14647};
constexpr int kSlotBind[] = {14644, 14646, 14654};
constexpr int kSlotVariable[] = {14658, 14659, 14660};

// n points (t, a·sin t + offset) with y a length and x a time.
template <class Curve> Curve Wave(const char* name, int n, double a, double offset) {
    Curve c;
    c.SetName(name);
    c.XUnit = seisplot::UnitKind::Time;
    c.YUnit = seisplot::UnitKind::Length;
    c.XName = "t";
    c.YName = name;
    for (int k = 0; k < n; ++k) {
        c.AddPoint(0.1 * k, a * std::sin(0.1 * k) + offset);
    }
    return c;
}

void Bind(DialogHandle& d, int slot, int line) {
    d.SelectLine(kList, line);
    d.Click(kSlotBind[slot]);
}

struct CurveMixingTest : seisplot::test::DialogFixture {};

} // namespace

TEST_F(CurveMixingTest, ExecuteCombinesBoundCurvesPointByPointInTheUsersUnits) {
    MixPCurve mix;
    mix.UnitSystem.SetL(10.0); // centimetres
    mix.Coll.AddPCurve(Wave<PCurve>("storey 2", 10, 35.0, 120.0));
    mix.Coll.AddPCurve(Wave<PCurve>("storey 1", 10, 20.0, 7.0));
    dialogs.Expect(14504, [&](DialogHandle& d) {
        EXPECT_EQ(d.Lines(kList), (std::vector<CString>{"storey 2", "storey 1"}));
        EXPECT_EQ(d.Lines(kKinds).size(), 9u);
        EXPECT_EQ(d.Selection(kKinds), 0); // Length
        Bind(d, 0, 0);
        Bind(d, 1, 1);
        EXPECT_EQ(d.Text(kSlotName[0]), "storey 2");
        EXPECT_EQ(d.Text(kSlotName[1]), "storey 1");
        d.Click(kReferToY);
        d.Type(kNewName, "drift");
        d.Type(kFormula, "(A - B) * 2");
        d.Click(kExecute);
        EXPECT_EQ(d.Lines(kList).back(), "drift");
        // On the abscissas, with C's empty slot counting 0 and a kind typed in the box
        // (no entry): the number as computed, unconverted.
        d.Click(14672);
        d.Type(kKinds, "seconds");
        d.Type(kNewName, "shifted");
        d.Type(kFormula, "A + C + 1");
        d.Click(kExecute);
        EXPECT_TRUE(d.Ok());
    });
    ASSERT_EQ(mix.DoModal(), IDOK);
    ASSERT_EQ(mix.Coll.GetPCurveNum(), 4);
    const PCurve& a = *mix.Coll.GetP(1);
    const PCurve& b = *mix.Coll.GetP(2);
    const PCurve& drift = *mix.Coll.GetP(3);
    EXPECT_EQ(drift.GetName(), "drift");
    EXPECT_EQ(drift.XName, "t");
    EXPECT_EQ(drift.YUnit, seisplot::UnitKind::Length);
    ASSERT_EQ(drift.GetNP(), 10);
    for (int k = 0; k < 10; ++k) {
        EXPECT_EQ(drift[k].GetX(), a[k].GetX());
        // Displayed in cm, combined, taken back to mm.
        const double expected = (a[k].GetY() / 10.0 - b[k].GetY() / 10.0) * 2 * 10.0;
        EXPECT_NEAR(drift[k].GetY(), expected, 1e-12 * std::fabs(expected) + 1e-12) << k;
    }
    const PCurve& shifted = *mix.Coll.GetP(4);
    EXPECT_EQ(shifted.XUnit, static_cast<seisplot::UnitKind>(0));
    for (int k = 0; k < 10; ++k) {
        EXPECT_DOUBLE_EQ(shifted[k].GetX(), a[k].GetX() + 1.0); // seconds are seconds
        EXPECT_EQ(shifted[k].GetY(), a[k].GetY());
    }
    EXPECT_TRUE(ui.Messages().empty());
}

TEST_F(CurveMixingTest, AnOperationThatCannotCompleteAddsNothing) {
    MixPCurve mix;
    mix.Coll.AddPCurve(Wave<PCurve>("a", 10, 1.0, 0.0));
    mix.Coll.AddPCurve(Wave<PCurve>("short", 9, 1.0, 0.0));
    const std::string tooLong = "A" + std::string(298, ' '); // 299 characters
    dialogs.Expect(14504, [&](DialogHandle& d) {
        d.Type(kNewName, "r");
        const auto refused = [&](const char* formula) {
            d.Type(kFormula, formula);
            d.Click(kExecute);
            EXPECT_EQ(d.Lines(kList).size(), 2u) << formula;
        };
        refused("A"); // slot A empty
        Bind(d, 0, 0);
        refused("sqrt(0.25-A)"); // not a number from the fourth point on
        refused("A+");           // syntax
        refused("A+Z");          // unknown name
        d.Type(kSlotVariable[1], "");
        Bind(d, 1, 0);
        refused("A"); // B's variable has no name
        d.Type(kSlotVariable[1], "B");
        Bind(d, 1, 1);
        refused("A+B"); // B has fewer points than A
        d.Click(14667); // B's slot emptied
        EXPECT_EQ(d.Text(kSlotName[1]), "");
        refused(tooLong.c_str());
        d.Type(kNewName, "");
        refused("A"); // no name: silently nothing
        EXPECT_TRUE(d.Cancel());
    });
    EXPECT_EQ(mix.DoModal(), IDCANCEL);
    EXPECT_EQ(
        ui.MessageTexts(),
        (std::vector<CString>{"Bind a curve to A first", "Error processing expression",
                              "Error processing expression", "Error processing expression",
                              "Give a name to each variable relative to each curve (no "
                              "blanks).",
                              "Different number of points", "Enter no more than 298 characters."}));
}

TEST_F(CurveMixingTest, DeletingACurveFreesOnlyTheFirstSlotBoundToItAndLaterSlotsFollow) {
    MixPCurve mix;
    for (const char* name : {"one", "two", "three"}) {
        mix.Coll.AddPCurve(Wave<PCurve>(name, 3, 1.0, 0.0));
    }
    dialogs.Expect(14504, [&](DialogHandle& d) {
        Bind(d, 0, 1);
        Bind(d, 1, 1);
        Bind(d, 2, 2);
        d.SelectLine(kList, 1);
        d.Click(kDelete);
        EXPECT_EQ(d.Lines(kList), (std::vector<CString>{"one", "three"}));
        EXPECT_EQ(d.Selection(kList), 0);
        EXPECT_EQ(d.Text(kSlotName[0]), "");
        EXPECT_EQ(d.Text(kSlotName[1]), "two");
        EXPECT_EQ(d.Text(kSlotName[2]), "three");
        EXPECT_TRUE(d.Ok());
    });
    ASSERT_EQ(mix.DoModal(), IDOK);
    EXPECT_EQ(mix.CurveNumber[0], 0u);
    EXPECT_EQ(mix.CurveNumber[1], 2u); // kept: now the position of "three"
    EXPECT_EQ(mix.CurveNumber[2], 2u); // "three" moved down one place, its slot with it
    EXPECT_EQ(mix.Coll.GetPCurveNum(), 2);
}

TEST_F(CurveMixingTest, BAgainstAPlotsOrdinatesAndOnlyThePolylineDialogHasIt) {
    MixCurve mix;
    PMCurve a = Wave<PMCurve>("drift", 10, 2.0, 1.0);
    a.YUnit = seisplot::UnitKind::Length;
    PMCurve b = Wave<PMCurve>("shear", 10, 30.0, 0.0);
    b.YUnit = seisplot::UnitKind::Force;
    mix.Coll.AddPMCurve(a);
    mix.Coll.AddPMCurve(b);
    mix.Coll.AddPMCurve(Wave<PMCurve>("longer", 11, 1.0, 0.0));
    dialogs.Expect(14504, [&](DialogHandle& d) {
        d.Type(kNewName, "shear-drift");
        Bind(d, 0, 0);
        Bind(d, 1, 2);
        d.Click(kVersus);
        Bind(d, 1, 1);
        d.Click(kVersus);
        EXPECT_TRUE(d.Ok());
    });
    ASSERT_EQ(mix.DoModal(), IDOK);
    EXPECT_EQ(ui.MessageTexts(), std::vector<CString>{"Different number of points"});
    ASSERT_EQ(mix.Coll.GetPMCurveNum(), 4);
    const PMCurve& r = *mix.Coll.GetP(4);
    EXPECT_EQ(r.GetName(), "shear-drift");
    EXPECT_EQ(r.XName, "drift");
    EXPECT_EQ(r.YName, "shear");
    EXPECT_EQ(r.XUnit, seisplot::UnitKind::Length);
    EXPECT_EQ(r.YUnit, seisplot::UnitKind::Force);
    ASSERT_EQ(r.GetNP(), 10);
    for (int k = 0; k < 10; ++k) {
        EXPECT_EQ(r[k].GetX(), a[k].GetY());
        EXPECT_EQ(r[k].GetY(), b[k].GetY());
    }

    MixPCurve functions;
    functions.Coll.AddPCurve(Wave<PCurve>("a", 3, 1.0, 0.0));
    dialogs.Expect(14504, [&](DialogHandle& d) {
        Bind(d, 0, 0);
        Bind(d, 1, 0);
        d.Click(kVersus);
        EXPECT_EQ(d.Lines(kList).size(), 1u);
        EXPECT_TRUE(d.Cancel());
    });
    EXPECT_EQ(functions.DoModal(), IDCANCEL);
}
