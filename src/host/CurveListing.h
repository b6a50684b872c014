#pragma once
// The listing of a curve's points, as the curve display dialog shows it and writes it to a
// file: one line per point, "%5ld  %12.3le  %12.3le  %s" and ten blanks (the point's number,
// its x and y in the user's units, its name); with the axes swapped the y value comes first.

#include "host/CurveBase.h"
#include "host/Units.h"

namespace seisplot {

// A listed value as the user reads it, by the unit kind of its axis: the units of curve
// formulas, and the moments that plots leave as held. Without units, as held.
double ListedValue(const Units* units, UnitKind kind, double value);

// Line k (from 1) of the listing of `curve`.
CString CurveListingLine(const CurveBase& curve, int k, const Units* units, bool swapAxes);

} // namespace seisplot
