#include "plot/PlotMapping_p.h"

#include "draw/gdi/DeviceConventions.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace seisplot {

double DisplayValue(const Units* units, UnitKind kind, double value) {
    if (units == nullptr) {
        return value;
    }
    switch (kind) {
    case UnitKind::Length:
        return units->L_U(value);
    case UnitKind::Surface:
        return units->A_U(value);
    case UnitKind::Volume:
        return units->V_U(value);
    case UnitKind::LengthToTheFourth:
        return units->J_U(value);
    case UnitKind::Force:
        return units->F_U(value);
    case UnitKind::Moment:
        return units->M_U(value);
    case UnitKind::Stress:
        return units->Pr_U(value);
    case UnitKind::Acceleration:
        return units->Acc_U(value);
    case UnitKind::Velocity:
        return units->Vel_U(value);
    case UnitKind::Time:
        return units->T_U(value);
    default:
        return value; // rotations, pure numbers and unknown kinds
    }
}

CString UnitLabel(const Units* units, UnitKind kind) {
    if (kind == UnitKind::Rotation) {
        return "(rad)"; // fixed: it needs no unit system
    }
    if (units == nullptr) {
        return CString();
    }
    switch (kind) {
    case UnitKind::Length:
        return units->GetWrapLString();
    case UnitKind::Surface:
        return units->GetWrapAString();
    case UnitKind::Force:
        return units->GetWrapFString();
    case UnitKind::Moment:
        return units->GetWrapMString();
    case UnitKind::Acceleration:
        return units->GetWrapAccString();
    case UnitKind::Velocity:
        return units->GetWrapVelString();
    case UnitKind::Time:
        return units->GetWrapTiString();
    default:
        return CString();
    }
}

double DisplayedCurve::HSpan3() const {
    const double span =
        m_exchange ? m_curve.GetMaxY() - m_curve.GetMinY() : m_curve.GetMaxX() - m_curve.GetMinX();
    return Show(HKind(), 3.0 * std::fabs(span));
}

double DisplayedCurve::VSpan3() const {
    const double span =
        m_exchange ? m_curve.GetMaxX() - m_curve.GetMinX() : m_curve.GetMaxY() - m_curve.GetMinY();
    return Show(VKind(), 3.0 * std::fabs(span));
}

CRect SetUpDrawingArea(CWnd* wnd, CDC* dc) {
    dc->SetMapMode(MM_HIMETRIC);
    if (dc->IsPrinting()) {
        constexpr int side = 20000; // 200 mm whatever the paper
        dc->SetWindowOrg(0, side);
        return CRect(0, side, side, 0);
    }
    const CRect area = SetUpClientArea(wnd, dc);
    dc->IntersectClipRect(&area);
    return area;
}

int HalfWidth(const nbox& box) {
    return static_cast<unsigned short>(static_cast<LONGLONG>(box.Ddx())) / 2;
}

int HalfHeight(const nbox& box) {
    return static_cast<unsigned short>(static_cast<LONGLONG>(box.Ddy())) / 2;
}

LONG PlotMapping::Truncate(double v) {
    constexpr double low = std::numeric_limits<LONG>::min();
    constexpr double high = std::numeric_limits<LONG>::max();
    return std::isnan(v) ? 0 : static_cast<LONG>(std::clamp(v, low, high));
}

} // namespace seisplot
