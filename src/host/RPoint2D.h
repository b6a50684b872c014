#pragma once
// Points of the geometry library: wxycoord (a plain pair of doubles), RPoint2D (a selectable
// point in the plane) and RPoint3D (a selectable point in space).

#include "host/CSelObject.h"

#include <span>

struct wxycoord {
    double x;
    double y;
};

class RPoint2D : public CSelObject {
public:
    RPoint2D() = default;
    RPoint2D(double x, double y) : m_x(x), m_y(y) {}
    RPoint2D(const RPoint2D& other) = default;
    RPoint2D& operator=(const RPoint2D& other);
    ~RPoint2D() override = default;

    CRuntimeClass* GetRuntimeClass() const override;
    // The selectable part, then x and y.
    void Serialize(CArchive& ar) override;

    double GetX() const { return m_x; }
    double GetY() const { return m_y; }
    void SetX(double x) { m_x = x; }
    void SetY(double y) { m_y = y; }

    // Component-wise arithmetic; the results carry no name or selection.
    RPoint2D operator+(const RPoint2D& other) const {
        return RPoint2D(m_x + other.m_x, m_y + other.m_y);
    }
    RPoint2D operator-(const RPoint2D& other) const {
        return RPoint2D(m_x - other.m_x, m_y - other.m_y);
    }
    RPoint2D operator*(double factor) const { return RPoint2D(m_x * factor, m_y * factor); }
    RPoint2D operator/(double divisor) const { return RPoint2D(m_x / divisor, m_y / divisor); }
    // The distance between the two points.
    double operator^(const RPoint2D& other) const { return (*this - other).GetNorm(); }
    double GetNorm() const;

    static CRuntimeClass classRPoint2D;

private:
    double m_x = 0.0;
    double m_y = 0.0;
};

class RPoint3D : public CSelObject {
public:
    RPoint3D() = default;
    RPoint3D(double x, double y, double z) : m_x(x), m_y(y), m_z(z) {}
    RPoint3D(const RPoint3D& other) = default;
    RPoint3D& operator=(const RPoint3D& other);
    ~RPoint3D() override = default;

    CRuntimeClass* GetRuntimeClass() const override;
    void Serialize(CArchive& ar) override;

    // The three coordinates.
    void GetCoo(double& x, double& y, double& z) const {
        x = m_x;
        y = m_y;
        z = m_z;
    }
    void GetCoo(double coordinates[3]) const {
        GetCoo(coordinates[0], coordinates[1], coordinates[2]);
    }
    double GetX() const { return m_x; }
    double GetY() const { return m_y; }

    static CRuntimeClass classRPoint3D;

private:
    double m_x = 0.0;
    double m_y = 0.0;
    double m_z = 0.0;
};

namespace seisplot {

// The bounding box of some points; all 0.0 when there are none.
struct Extent {
    double minX = 0.0;
    double maxX = 0.0;
    double minY = 0.0;
    double maxY = 0.0;
};
Extent ExtentOf(std::span<const RPoint2D> points);

} // namespace seisplot
