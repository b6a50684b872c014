#include "host/CurveListing.h"

#include "host/CurveFormula.h"

#include <utility>

namespace seisplot {

double ListedValue(const Units* units, UnitKind kind, double value) {
    if (units == nullptr) {
        return value;
    }
    return kind == UnitKind::ListedMoment ? units->M_U(value)
                                          : ToDisplayedUnits(*units, kind, value);
}

CString CurveListingLine(const CurveBase& curve, int k, const Units* units, bool swapAxes) {
    const RPoint2D& point = curve[k - 1];
    double first = ListedValue(units, curve.XUnit, point.GetX());
    double second = ListedValue(units, curve.YUnit, point.GetY());
    if (swapAxes) {
        std::swap(first, second);
    }
    CString line;
    line.Format("%5ld  %12.3le  %12.3le  %s          ", static_cast<long>(k), first, second,
                point.GetName().GetString());
    return line;
}

} // namespace seisplot
