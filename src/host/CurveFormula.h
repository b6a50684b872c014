#pragma once
// A new curve from a formula over up to six curves, point by point: point k of every bound
// curve gives its variable's value for point k of the result. The formula computes the x or
// the y values, in the user's units (each curve's axis converted by its unit kind), and its
// value is taken back to internal units by the result's kind; the other coordinate is curve
// A's. An empty slot's variable is 0.

#include "host/CurveBase.h"
#include "host/Units.h"

#include <array>

namespace seisplot {

inline constexpr int kFormulaSlots = 6;

struct FormulaSlot {
    const CurveBase* curve = nullptr; // null: an empty slot
    CString variable;
};

enum class FormulaAxis { X, Y };

enum class FormulaOutcome {
    Done,
    NoCurveA,        // the first slot is empty
    TooFewPoints,    // a bound curve has fewer points than curve A
    ExpressionError, // the formula failed at some point
};

// A value as the user reads it, and back, by the unit kind of its axis; rotations, pure
// numbers and kinds without a unit are kept as they are.
double ToDisplayedUnits(const Units& units, UnitKind kind, double value);
double ToInternalUnits(const Units& units, UnitKind kind, double value);

// Appends the computed points to `result` (prepared by the caller: its name, kinds and axis
// names) only when every point could be computed.
FormulaOutcome ApplyCurveFormula(const std::array<FormulaSlot, kFormulaSlots>& slots,
                                 const CString& formula, FormulaAxis axis, UnitKind resultKind,
                                 const Units& units, CurveBase& result);

} // namespace seisplot
