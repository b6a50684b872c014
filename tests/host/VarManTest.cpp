// The expression library: what a formula evaluates to, and every way it can fail without
// touching the result.

#include "host/VarMan.h"
#include "host/CurveFormula.h"
#include "host/PCurve.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <numbers>
#include <string>

namespace {

// Evaluates `formula` over A = a, B = b (and `extra` after them); the status, the value.
std::pair<int, double> Evaluate(const char* formula, double a, double b,
                                const char* extra = nullptr) {
    VarMan vars;
    vars.AddVar("A", a, 1);
    vars.AddVar("B", b, 10);
    if (extra != nullptr) {
        vars.AddVar(extra, 0.0, 0);
    }
    std::string text = formula;
    char* cursor = text.data();
    Variable result("untouched", -7.0, 3);
    const int status = vars.expression(&cursor, &result);
    if (status != 0) {
        EXPECT_EQ(cursor, text.data());
        EXPECT_EQ(result.GetAsDouble(), -7.0);
        EXPECT_EQ(result.GetName(), "untouched");
    } else {
        EXPECT_EQ(cursor, text.data() + text.size());
    }
    return {status, result.GetAsDouble()};
}

} // namespace

TEST(VarManTest, FormulasFollowArithmeticOverTheVariables) {
    EXPECT_EQ(Evaluate("A-B", 10.5, 0.25), std::make_pair(0, 10.25));
    EXPECT_EQ(Evaluate("-A^2+B*3", 2.0, 4.0), std::make_pair(0, 8.0)); // -(A^2) + 12
    EXPECT_EQ(Evaluate("(A+B)/2", 3.0, 6.0), std::make_pair(0, 4.5));
    // The constants are the doubles nearest pi and e, not 12-decimal approximations.
    EXPECT_EQ(Evaluate("sqrt(A)*_pi", 16.0, 0.0), std::make_pair(0, 4.0 * std::numbers::pi));
    EXPECT_EQ(Evaluate("_e*B", 0.0, 3.0), std::make_pair(0, std::numbers::e * 3.0));
    EXPECT_EQ(Evaluate("A>B ? A : B", 1.0, 2.0), std::make_pair(0, 2.0));
    // The same formula again, with other values and then other names in another order: a
    // formula compiled for one set of names must not serve another.
    EXPECT_EQ(Evaluate("A-B", -1.0, 1.0), std::make_pair(0, -2.0));
    VarMan swapped;
    swapped.AddVar("B", 1.0, 0);
    swapped.AddVar("A", 5.0, 0);
    char formula[] = "A-B";
    char* cursor = formula;
    Variable result;
    ASSERT_EQ(swapped.expression(&cursor, &result), 0);
    EXPECT_EQ(result.GetAsDouble(), 4.0);
}

TEST(VarManTest, ErrorsAreNonZeroAndLeaveResultAndCursor) {
    for (const char* formula : {"A-", "A+C", "(A", "", "A,B", "A B", "1/0*0+A/0", "sqrt(-A)"}) {
        SCOPED_TRACE(formula);
        EXPECT_NE(Evaluate(formula, 1.0, 2.0).first, 0);
    }
    // A name given twice, or one the grammar cannot hold, makes every formula an error.
    EXPECT_NE(Evaluate("A+B", 1.0, 2.0, "A").first, 0);
    EXPECT_NE(Evaluate("A+B", 1.0, 2.0, "2x").first, 0);
    EXPECT_NE(Evaluate("A+B", 1.0, 2.0, "").first, 0);
    // A formula may name its result, as the mixing dialog's example does; it may not assign
    // to a variable, which would change a bound curve's value while it is evaluated.
    EXPECT_EQ(Evaluate("DriftX_Column123=(A-B)", 1.0, 2.0), std::make_pair(0, -1.0));
    EXPECT_EQ(Evaluate("A=B*3", 1.0, 2.0), std::make_pair(0, 6.0));
    EXPECT_EQ(Evaluate("(A<=B)+(A==B)+(A!=B)", 1.0, 2.0), std::make_pair(0, 2.0));
    for (const char* formula : {"B?A=1:2", "A+=1", "X=A=B", "=A", "A="}) {
        SCOPED_TRACE(formula);
        EXPECT_NE(Evaluate(formula, 1.0, 2.0).first, 0);
    }
    // After an error the same formula with good names works.
    EXPECT_EQ(Evaluate("A+B", 1.0, 2.0), std::make_pair(0, 3.0));
}

TEST(VarManTest, DeleteBlanksRemovesEveryBlankInPlace) {
    char text[] = " Drift X\t= (A -  B)\r\n";
    VarMan::DeleteBlanks(text);
    EXPECT_STREQ(text, "DriftX=(A-B)");
    char empty[] = "   ";
    VarMan::DeleteBlanks(empty);
    EXPECT_STREQ(empty, "");
}

TEST(VarManTest, CurveFormulasGiveEveryPointTheValueOfThePointByPointEvaluation) {
    const int n = 5000;
    PCurve a;
    PCurve b;
    a.XUnit = b.XUnit = seisplot::UnitKind::Time;
    a.YUnit = b.YUnit = seisplot::UnitKind::Length;
    for (int k = 0; k < n; ++k) {
        a.AddPoint(0.01 * k, 1000.0 * std::sin(0.01 * k));
        b.AddPoint(0.01 * k, 250.0 + k);
    }
    std::array<seisplot::FormulaSlot, seisplot::kFormulaSlots> slots{
        {{&a, "A"}, {&b, "B"}, {nullptr, "C"}, {nullptr, "D"}, {nullptr, "E"}, {nullptr, "F"}}};
    Units cm;
    cm.SetL(10.0);
    PCurve result;
    ASSERT_EQ(seisplot::ApplyCurveFormula(slots, "A^2 - B/3 + C", seisplot::FormulaAxis::Y,
                                          seisplot::UnitKind::Surface, cm, result),
              seisplot::FormulaOutcome::Done);
    ASSERT_EQ(result.GetNP(), n);
    for (int k = 0; k < n; k += 997) {
        VarMan vars;
        vars.AddVar("A", cm.L_U(a[k].GetY()), 1);
        vars.AddVar("B", cm.L_U(b[k].GetY()), 1);
        vars.AddVar("C", 0.0, 0);
        char formula[] = "A^2-B/3+C";
        char* cursor = formula;
        Variable value;
        ASSERT_EQ(vars.expression(&cursor, &value), 0);
        EXPECT_EQ(result[k].GetY(), cm.A_M(value.GetAsDouble())) << k; // cm² back to mm²
        EXPECT_EQ(result[k].GetX(), a[k].GetX());
    }
    // A value that is not finite at the last point: nothing is appended.
    b[n - 1].SetY(0.0);
    PCurve refused;
    EXPECT_EQ(seisplot::ApplyCurveFormula(slots, "A/B", seisplot::FormulaAxis::Y,
                                          seisplot::UnitKind::Length, cm, refused),
              seisplot::FormulaOutcome::ExpressionError);
    EXPECT_EQ(refused.GetNP(), 0);
}
