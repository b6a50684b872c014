#pragma once
// The framework's integer point, size and rectangle (device or logical units).

#include "platform/core/Types.h"

struct POINT {
    LONG x;
    LONG y;
};

struct SIZE {
    LONG cx;
    LONG cy;
};

struct RECT {
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};

class CSize : public SIZE {
public:
    CSize() : SIZE{0, 0} {}
    CSize(int width, int height) : SIZE{width, height} {}
    bool operator==(const CSize& other) const { return cx == other.cx && cy == other.cy; }
    bool operator!=(const CSize& other) const { return !(*this == other); }
};

class CPoint : public POINT {
public:
    CPoint() : POINT{0, 0} {}
    CPoint(int px, int py) : POINT{px, py} {}
    CPoint(POINT point) : POINT(point) {}

    void Offset(int dx, int dy) {
        x += dx;
        y += dy;
    }
    CPoint operator+(const CPoint& other) const { return CPoint(x + other.x, y + other.y); }
    CPoint operator-(const CPoint& other) const { return CPoint(x - other.x, y - other.y); }
    CPoint operator+(const CSize& size) const { return CPoint(x + size.cx, y + size.cy); }
    CPoint operator-() const { return CPoint(-x, -y); }
    bool operator==(const CPoint& other) const { return x == other.x && y == other.y; }
    bool operator!=(const CPoint& other) const { return !(*this == other); }
};

class CRect : public RECT {
public:
    CRect() : RECT{0, 0, 0, 0} {}
    CRect(int l, int t, int r, int b) : RECT{l, t, r, b} {}
    CRect(const RECT& rect) : RECT(rect) {}
    CRect(CPoint topLeft, CPoint bottomRight)
        : RECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y} {}

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    CSize Size() const { return CSize(Width(), Height()); }
    bool IsRectEmpty() const { return Width() <= 0 || Height() <= 0; }
    void NormalizeRect();
    bool operator==(const CRect& other) const {
        return left == other.left && top == other.top && right == other.right &&
               bottom == other.bottom;
    }
    bool operator!=(const CRect& other) const { return !(*this == other); }
};

inline void CRect::NormalizeRect() {
    if (left > right) {
        const LONG t = left;
        left = right;
        right = t;
    }
    if (top > bottom) {
        const LONG t = top;
        top = bottom;
        bottom = t;
    }
}
