#pragma once
// What the plot functions share: values shown in the user's units by their unit kind, the
// curve seen through an optional axis exchange, the drawing area, and the value-to-device
// mapping.

#include "host/Boxes.h"
#include "host/CurveBase.h"
#include "host/Units.h"
#include "platform/gdi/CDC.h"
#include "platform/gdi/CWnd.h"

namespace seisplot {

// An internal value of unit kind `kind` in the user's unit; unchanged without units.
double DisplayValue(const Units* units, UnitKind kind, double value);
// The label that follows an axis name for unit kind `kind`; empty when there is none.
CString UnitLabel(const Units* units, UnitKind kind);

// A curve as the plot shows it: values in the user's units, horizontal and vertical taken
// from y and x when exchanged.
class DisplayedCurve {
public:
    DisplayedCurve(const CurveBase& curve, const Units* units, bool exchange)
        : m_curve(curve), m_units(units), m_exchange(exchange) {}

    UnitKind HKind() const { return m_exchange ? m_curve.YUnit : m_curve.XUnit; }
    UnitKind VKind() const { return m_exchange ? m_curve.XUnit : m_curve.YUnit; }
    double H(const RPoint2D& p) const { return Show(HKind(), m_exchange ? p.GetY() : p.GetX()); }
    double V(const RPoint2D& p) const { return Show(VKind(), m_exchange ? p.GetX() : p.GetY()); }
    double HMin() const {
        return Show(HKind(), m_exchange ? m_curve.GetMinY() : m_curve.GetMinX());
    }
    double HMax() const {
        return Show(HKind(), m_exchange ? m_curve.GetMaxY() : m_curve.GetMaxX());
    }
    double VMin() const {
        return Show(VKind(), m_exchange ? m_curve.GetMinX() : m_curve.GetMinY());
    }
    double VMax() const {
        return Show(VKind(), m_exchange ? m_curve.GetMaxX() : m_curve.GetMaxY());
    }
    // Axis name followed directly by its unit label.
    CString HTitle() const { return Title(m_exchange ? m_curve.YName : m_curve.XName, HKind()); }
    CString VTitle() const { return Title(m_exchange ? m_curve.XName : m_curve.YName, VKind()); }
    // The spans of the curve's own extremes, converted: 3·|max − min| of each axis.
    double HSpan3() const;
    double VSpan3() const;

private:
    double Show(UnitKind kind, double v) const { return DisplayValue(m_units, kind, v); }
    CString Title(const CString& name, UnitKind kind) const {
        return name + UnitLabel(m_units, kind);
    }

    const CurveBase& m_curve;
    const Units* m_units;
    bool m_exchange;
};

// Sets MM_HIMETRIC and puts the logical origin at the lower left corner of the drawing area:
// the client area of `wnd` (clipped to it) or, when printing, a 200 mm square. Returns the
// area as left 0, bottom 0, right, top.
CRect SetUpDrawingArea(CWnd* wnd, CDC* dc);

// Half the box's width and height as its centre is computed: the sizes held in 16 bits.
int HalfWidth(const nbox& box);
int HalfHeight(const nbox& box);

// Displayed values to logical coordinates: (wx + u·sx, wy + w·sy), truncated toward zero.
struct PlotMapping {
    double sx;
    double sy;
    LONGLONG wx;
    LONGLONG wy;

    LONG X(double u) const { return Truncate(static_cast<double>(wx) + u * sx); }
    LONG Y(double w) const { return Truncate(static_cast<double>(wy) + w * sy); }
    CPoint At(double u, double w) const { return CPoint(X(u), Y(w)); }
    // Truncated toward zero; values beyond the 32-bit range stop at its ends, NaN gives 0.
    static LONG Truncate(double v);
};

} // namespace seisplot
