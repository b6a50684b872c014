#include "host/RPoly.h"

#include <algorithm>
#include <cmath>

RPoint2D RPoly::GetPoint(int i) const {
    return (i >= 1 && i <= GetNPoint()) ? m_vertices[static_cast<size_t>(i - 1)] : RPoint2D();
}

RPoint2D* RPoly::GetPPoint(int i) {
    return (i >= 1 && i <= GetNPoint()) ? &m_vertices[static_cast<size_t>(i - 1)] : nullptr;
}

RPoint2D RPoly::GetLastPoint() const {
    return m_vertices.empty() ? RPoint2D() : m_vertices.back();
}

void RPoly::Remove(int i) {
    if (i >= 1 && i <= GetNPoint()) {
        m_vertices.erase(m_vertices.begin() + (i - 1));
    }
}

double RPoly::GetMinX() const {
    return seisplot::ExtentOf(m_vertices).minX;
}
double RPoly::GetMaxX() const {
    return seisplot::ExtentOf(m_vertices).maxX;
}
double RPoly::GetMinY() const {
    return seisplot::ExtentOf(m_vertices).minY;
}
double RPoly::GetMaxY() const {
    return seisplot::ExtentOf(m_vertices).maxY;
}

CPoint* RPoly::GetNPoly(double sx, double sy, CPoint offset) const {
    if (m_vertices.empty()) {
        return nullptr;
    }
    auto* points = new CPoint[m_vertices.size()];
    for (size_t i = 0; i < m_vertices.size(); ++i) {
        points[i] = CPoint(offset.x + static_cast<int>(std::lround(m_vertices[i].GetX() * sx)),
                           offset.y + static_cast<int>(std::lround(m_vertices[i].GetY() * sy)));
    }
    return points;
}
