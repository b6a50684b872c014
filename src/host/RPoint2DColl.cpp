#include "host/RPoint2DColl.h"

#include <algorithm>

RPoint2D* RPoint2DColl::GetP(int i) {
    return (i >= 1 && i <= GetPointNum()) ? &m_points[static_cast<size_t>(i - 1)] : nullptr;
}

const RPoint2D* RPoint2DColl::GetP(int i) const {
    return (i >= 1 && i <= GetPointNum()) ? &m_points[static_cast<size_t>(i - 1)] : nullptr;
}

RPoint2D RPoint2DColl::GetPoint(int i) const {
    const RPoint2D* point = GetP(i);
    return point ? *point : RPoint2D();
}

void RPoint2DColl::IncreaseStruct(int n) {
    m_points.resize(static_cast<size_t>(std::max(n, 0)));
}

void RPoint2DColl::Reserve(int n) {
    if (n > 0) {
        m_points.reserve(static_cast<size_t>(n));
    }
}

void RPoint2DColl::RemovePoint(int i) {
    if (i >= 1 && i <= GetPointNum()) {
        m_points.erase(m_points.begin() + (i - 1));
    }
}

void RPoint2DColl::Select(int i, unsigned short layer) {
    if (RPoint2D* point = GetP(i)) {
        point->Select(layer);
    }
}

void RPoint2DColl::UnSelectAll(unsigned short layer) {
    for (RPoint2D& point : m_points) {
        point.Unselect(layer);
    }
}
