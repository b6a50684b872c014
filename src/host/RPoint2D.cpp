#include "host/RPoint2D.h"

#include <algorithm>
#include <cmath>

CRuntimeClass RPoint2D::classRPoint2D{"RPoint2D", sizeof(RPoint2D), 0,
                                      &seisplot::CreateObjectOf<RPoint2D>,
                                      RUNTIME_CLASS(CSelObject)};
CRuntimeClass RPoint3D::classRPoint3D{"RPoint3D", sizeof(RPoint3D), 0,
                                      &seisplot::CreateObjectOf<RPoint3D>,
                                      RUNTIME_CLASS(CSelObject)};

CRuntimeClass* RPoint2D::GetRuntimeClass() const {
    return &classRPoint2D;
}
CRuntimeClass* RPoint3D::GetRuntimeClass() const {
    return &classRPoint3D;
}

RPoint2D& RPoint2D::operator=(const RPoint2D& other) {
    AssignSelection(other);
    m_x = other.m_x;
    m_y = other.m_y;
    return *this;
}

RPoint3D& RPoint3D::operator=(const RPoint3D& other) {
    AssignSelection(other);
    m_x = other.m_x;
    m_y = other.m_y;
    m_z = other.m_z;
    return *this;
}

double RPoint2D::GetNorm() const {
    return std::hypot(m_x, m_y);
}

void RPoint2D::Serialize(CArchive& ar) {
    CSelObject::Serialize(ar);
    if (ar.IsStoring()) {
        ar << m_x << m_y;
    } else {
        ar >> m_x >> m_y;
    }
}

void RPoint3D::Serialize(CArchive& ar) {
    CSelObject::Serialize(ar);
    if (ar.IsStoring()) {
        ar << m_x << m_y << m_z;
    } else {
        ar >> m_x >> m_y >> m_z;
    }
}

namespace seisplot {

Extent ExtentOf(std::span<const RPoint2D> points) {
    if (points.empty()) {
        return {};
    }
    Extent e{points[0].GetX(), points[0].GetX(), points[0].GetY(), points[0].GetY()};
    for (const RPoint2D& p : points.subspan(1)) {
        e.minX = std::min(e.minX, p.GetX());
        e.maxX = std::max(e.maxX, p.GetX());
        e.minY = std::min(e.minY, p.GetY());
        e.maxY = std::max(e.maxY, p.GetY());
    }
    return e;
}

} // namespace seisplot
