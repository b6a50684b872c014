#include "host/CurveBase.h"

namespace seisplot {
namespace {

// A point worth keeping beyond its coordinates.
bool IsMarked(const RPoint2D& p) {
    return !p.GetName().IsEmpty() || p.IsAnySelected();
}

} // namespace

CurveBase& CurveBase::operator=(const CurveBase& other) {
    if (this != &other) {
        AssignSelection(other);
        XUnit = other.XUnit;
        YUnit = other.YUnit;
        XName = other.XName;
        YName = other.YName;
        m_points = other.m_points;
    }
    return *this;
}

double CurveBase::GetMinX() const {
    return ExtentOf(m_points.Points()).minX;
}
double CurveBase::GetMaxX() const {
    return ExtentOf(m_points.Points()).maxX;
}
double CurveBase::GetMinY() const {
    return ExtentOf(m_points.Points()).minY;
}
double CurveBase::GetMaxY() const {
    return ExtentOf(m_points.Points()).maxY;
}

void CurveBase::Serialize(CArchive& ar) {
    CSelObject::Serialize(ar);
    if (ar.IsStoring()) {
        const int n = GetNP();
        ar << kVersion << static_cast<BYTE>(XUnit) << static_cast<BYTE>(YUnit) << XName << YName;
        ar << static_cast<DWORD>(n);
        std::vector<DWORD> marked;
        for (int i = 0; i < n; ++i) {
            const RPoint2D& p = m_points[i];
            ar << p.GetX() << p.GetY();
            if (IsMarked(p)) {
                marked.push_back(static_cast<DWORD>(i));
            }
        }
        ar << static_cast<DWORD>(marked.size());
        for (DWORD i : marked) {
            ar << i;
            m_points[static_cast<int>(i)].CSelObject::Serialize(ar);
        }
        return;
    }
    WORD version = 0;
    ar >> version;
    if (version != kVersion) {
        AfxThrowArchiveException(CArchiveException::badSchema, ar.m_strFileName);
    }
    BYTE xUnit = 0;
    BYTE yUnit = 0;
    DWORD n = 0;
    ar >> xUnit >> yUnit >> XName >> YName >> n;
    XUnit = static_cast<UnitKind>(xUnit);
    YUnit = static_cast<UnitKind>(yUnit);
    CheckCount(ar, n, 2 * sizeof(double));
    RPoint2DColl points;
    points.Reserve(static_cast<int>(n));
    for (DWORD i = 0; i < n; ++i) {
        double x = 0.0;
        double y = 0.0;
        ar >> x >> y;
        points.AddPoint(x, y);
    }
    DWORD marked = 0;
    ar >> marked;
    // Each marked point takes at least its index, an empty name and a view count.
    CheckCount(ar, marked, sizeof(DWORD) + 1 + sizeof(WORD));
    for (DWORD k = 0; k < marked; ++k) {
        DWORD i = 0;
        ar >> i;
        if (i >= n) {
            AfxThrowArchiveException(CArchiveException::badIndex, ar.m_strFileName);
        }
        points[static_cast<int>(i)].CSelObject::Serialize(ar);
    }
    m_points = std::move(points);
}

} // namespace seisplot
