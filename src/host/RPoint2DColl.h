#pragma once
// RPoint2DColl: the points of a curve, in order. GetP, GetPoint, Select and RemovePoint count
// from 1; operator[] counts from 0.

#include "host/RPoint2D.h"
#include "platform/core/Exceptions.h"
#include "platform/core/FailureInjection.h"

#include <vector>

class RPoint2DColl {
public:
    int GetPointNum() const { return static_cast<int>(m_points.size()); }
    // The point numbered i (from 1), or null when there is none.
    RPoint2D* GetP(int i);
    const RPoint2D* GetP(int i) const;
    // A copy of point i (from 1); the origin when there is none.
    RPoint2D GetPoint(int i) const;
    RPoint2D& operator[](int i) { return m_points[static_cast<size_t>(i)]; }
    const RPoint2D& operator[](int i) const { return m_points[static_cast<size_t>(i)]; }
    std::span<const RPoint2D> Points() const { return m_points; }

    // Sizes the collection to exactly n points: points beyond n are dropped, new ones are at
    // the origin.
    void IncreaseStruct(int n);
    // Makes room for n points without changing the count.
    void Reserve(int n);
    void Add(const RPoint2D& point) {
        Grow();
        m_points.push_back(point);
    }
    void AddPoint(double x, double y) {
        Grow();
        m_points.emplace_back(x, y);
    }
    // Removes point i (from 1); nothing happens when there is none.
    void RemovePoint(int i);
    void Clear() { m_points.clear(); }

    // Marks of one layer (view) on point i (from 1), and on all points at once.
    void Select(int i, unsigned short layer);
    void UnSelectAll(unsigned short layer);

private:
    // Raises CMemoryException* where a test makes growth fail.
    static void Grow() {
        if (seisplot::ShouldFail(seisplot::FailurePoint::PointAddition)) {
            AfxThrowMemoryException();
        }
    }

    std::vector<RPoint2D> m_points;
};
