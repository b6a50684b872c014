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

void RPoly::Serialize(CArchive& ar) {
    constexpr WORD kVersion = 1;
    if (ar.IsStoring()) {
        ar << kVersion << static_cast<DWORD>(m_vertices.size());
        for (const RPoint2D& v : m_vertices) {
            ar << v.GetX() << v.GetY();
        }
        return;
    }
    WORD version = 0;
    DWORD count = 0;
    ar >> version;
    if (version != kVersion) {
        AfxThrowArchiveException(CArchiveException::badSchema, ar.m_strFileName);
    }
    ar >> count;
    seisplot::CheckCount(ar, count, 2 * sizeof(double));
    std::vector<RPoint2D> read;
    read.reserve(count);
    for (DWORD i = 0; i < count; ++i) {
        double x = 0.0;
        double y = 0.0;
        ar >> x >> y;
        read.emplace_back(x, y);
    }
    m_vertices = std::move(read);
}
