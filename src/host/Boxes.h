#pragma once
// Rectangles of the geometry library: nbox with integer corners, r2box with double corners.

#include "host/RPoint2D.h"

// An integer rectangle with public corners (x0, y0) and (x1, y1).
class nbox {
public:
    nbox() = default;
    nbox(int ax0, int ay0, int ax1, int ay1) : x0(ax0), y0(ay0), x1(ax1), y1(ay1) {}

    int Idx() const { return x1 - x0; }
    int Idy() const { return y1 - y0; }
    double Ddx() const { return static_cast<double>(x1) - static_cast<double>(x0); }
    double Ddy() const { return static_cast<double>(y1) - static_cast<double>(y0); }

    int x0 = 0;
    int y0 = 0;
    int x1 = 0;
    int y1 = 0;
};

// A rectangle of doubles built from two opposite corners in any order; it keeps them as
// xmin, ymin, xmax, ymax.
class r2box {
public:
    r2box() = default;
    r2box(double ax, double ay, double bx, double by);
    r2box(const RPoint2D& a, const RPoint2D& b) : r2box(a.GetX(), a.GetY(), b.GetX(), b.GetY()) {}

    double xmin = 0.0;
    double ymin = 0.0;
    double xmax = 0.0;
    double ymax = 0.0;
};

inline r2box::r2box(double ax, double ay, double bx, double by)
    : xmin(ax < bx ? ax : bx), ymin(ay < by ? ay : by), xmax(ax < bx ? bx : ax),
      ymax(ay < by ? by : ay) {}
