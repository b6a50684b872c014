#include "host/CurveFormula.h"

#include "host/VarMan.h"

#include <algorithm>
#include <string>
#include <vector>

namespace seisplot {

double ToDisplayedUnits(const Units& u, UnitKind kind, double v) {
    switch (kind) {
    case UnitKind::Length:
        return u.L_U(v);
    case UnitKind::Surface:
        return u.A_U(v);
    case UnitKind::Volume:
        return u.V_U(v);
    case UnitKind::LengthToTheFourth:
        return u.J_U(v);
    case UnitKind::Force:
        return u.F_U(v);
    case UnitKind::Moment:
        return u.M_U(v);
    case UnitKind::Stress:
        return u.St_U(v);
    case UnitKind::Acceleration:
        return u.Acc_U(v);
    case UnitKind::Velocity:
        return u.Vel_U(v);
    case UnitKind::Time:
        return u.T_U(v);
    default:
        return v;
    }
}

double ToInternalUnits(const Units& u, UnitKind kind, double v) {
    switch (kind) {
    case UnitKind::Length:
        return u.L_M(v);
    case UnitKind::Surface:
        return u.A_M(v);
    case UnitKind::Volume:
        return u.V_M(v);
    case UnitKind::LengthToTheFourth:
        return u.J_M(v);
    case UnitKind::Force:
        return u.F_M(v);
    case UnitKind::Moment:
        return u.M_M(v);
    case UnitKind::Stress:
        return u.St_M(v);
    case UnitKind::Acceleration:
        return u.Acc_M(v);
    case UnitKind::Velocity:
        return u.Vel_M(v);
    case UnitKind::Time:
        return u.T_M(v);
    default:
        return v;
    }
}

FormulaOutcome ApplyCurveFormula(const std::array<FormulaSlot, kFormulaSlots>& slots,
                                 const CString& formula, FormulaAxis axis, UnitKind resultKind,
                                 const Units& units, CurveBase& result) {
    const CurveBase* a = slots[0].curve;
    if (a == nullptr) {
        return FormulaOutcome::NoCurveA;
    }
    const int n = a->GetNP();
    for (const FormulaSlot& slot : slots) {
        if (slot.curve != nullptr && slot.curve->GetNP() < n) {
            return FormulaOutcome::TooFewPoints;
        }
    }
    const bool onX = axis == FormulaAxis::X;
    // Each variable's values, displayed, for every point; the formula over all of them at once.
    VarMan vars;
    std::vector<std::vector<double>> columns(slots.size());
    std::vector<double*> data;
    for (size_t s = 0; s < slots.size(); ++s) {
        std::vector<double>& column = columns[s];
        column.assign(static_cast<size_t>(std::max(n, 1)), 0.0);
        const CurveBase* curve = slots[s].curve;
        const UnitKind kind = curve == nullptr ? UnitKind{} : onX ? curve->XUnit : curve->YUnit;
        for (int k = 0; curve != nullptr && k < n; ++k) {
            const RPoint2D& point = (*curve)[k];
            column[static_cast<size_t>(k)] =
                ToDisplayedUnits(units, kind, onX ? point.GetX() : point.GetY());
        }
        vars.AddVar(slots[s].variable.GetString(), 0.0, static_cast<int>(kind));
        data.push_back(column.data());
    }
    std::string text = formula.GetString();
    VarMan::DeleteBlanks(text.data());
    std::vector<double> values(static_cast<size_t>(n));
    if (vars.EvaluateRows(text.c_str(), n, data, values.data()) != 0) {
        return FormulaOutcome::ExpressionError;
    }
    result.GetPColl().Reserve(result.GetNP() + n);
    for (int k = 0; k < n; ++k) {
        const double computed = ToInternalUnits(units, resultKind, values[static_cast<size_t>(k)]);
        const RPoint2D& kept = (*a)[k];
        if (onX) {
            result.AddPoint(computed, kept.GetY());
        } else {
            result.AddPoint(kept.GetX(), computed);
        }
    }
    return FormulaOutcome::Done;
}

} // namespace seisplot
