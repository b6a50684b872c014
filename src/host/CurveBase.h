#pragma once
// What a function curve (PCurve) and a free polyline (PMCurve) share: a title (the name),
// the unit kind and name of each axis, and the points.
//
// Archive form: the selectable part; a 16-bit version (1); x and y unit kinds (bytes); x and
// y axis names (strings); the number of points (32-bit) and each point's x and y (doubles);
// then the number of points that carry a name or a selection (32-bit), each as its index
// (32-bit, from 0) followed by its selectable part.

#include "host/RPoint2DColl.h"
#include "host/UnitKind.h"

namespace seisplot {

class CurveBase : public CSelObject {
public:
    CurveBase() = default;
    CurveBase(const CurveBase& other) = default;
    CurveBase& operator=(const CurveBase& other);
    ~CurveBase() override = default;

    void Serialize(CArchive& ar) override;

    int GetNP() const { return m_points.GetPointNum(); }
    // A copy of point i (from 1).
    RPoint2D GetPoint(int i) const { return m_points.GetPoint(i); }
    RPoint2D& operator[](int i) { return m_points[i]; }
    const RPoint2D& operator[](int i) const { return m_points[i]; }
    RPoint2DColl& GetPColl() { return m_points; }
    const RPoint2DColl& GetPColl() const { return m_points; }

    void AddPoint(double x, double y) { m_points.AddPoint(x, y); }
    // Removes every point; title, unit kinds and axis names stay.
    void Clear() { m_points.Clear(); }

    // Extremes over the points; 0.0 for a curve without points.
    double GetMinX() const;
    double GetMaxX() const;
    double GetMinY() const;
    double GetMaxY() const;

    UnitKind XUnit = UnitKind::PureNumber;
    UnitKind YUnit = UnitKind::PureNumber;
    CString XName;
    CString YName;

protected:
    RPoint2DColl m_points;

private:
    static constexpr WORD kVersion = 1;
};

} // namespace seisplot
