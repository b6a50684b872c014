#pragma once
// RPoly: a closed polygon of the geometry library, its vertices numbered from 1.
//
// Archive form (Serialize): a 16-bit version (1), the number of vertices (32-bit), then each
// vertex's x and y (doubles). A failed read raises the archive's exception and leaves the
// polygon as it was.

#include "host/RPoint2D.h"
#include "platform/core/CArchive.h"
#include "platform/core/CPoint.h"

#include <vector>

class RPoly {
public:
    void AddPoint(double x, double y) { m_vertices.emplace_back(x, y); }
    void AddPoint(const RPoint2D& point) { m_vertices.push_back(point); }
    int GetNPoint() const { return static_cast<int>(m_vertices.size()); }
    // A copy of vertex i (from 1); the origin when there is none.
    RPoint2D GetPoint(int i) const;
    // Vertex i (from 1), or null.
    RPoint2D* GetPPoint(int i);
    // A copy of the last vertex; the origin for an empty polygon.
    RPoint2D GetLastPoint() const;
    // Removes vertex i (from 1); nothing happens when there is none.
    void Remove(int i);
    void Clear() { m_vertices.clear(); }

    // Extremes over the vertices; 0.0 for an empty polygon.
    double GetMinX() const;
    double GetMaxX() const;
    double GetMinY() const;
    double GetMaxY() const;

    // A new array of GetNPoint() device points offset + (x·sx, y·sy), each coordinate rounded
    // to the nearest integer; the caller frees it with delete[]. Null for an empty polygon.
    CPoint* GetNPoly(double sx, double sy, CPoint offset) const;

    void Serialize(CArchive& ar);

private:
    std::vector<RPoint2D> m_vertices;
};
