#include "draw/clip/Clip.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

namespace {

struct Vec {
    double x;
    double y;
};

Vec operator-(Vec a, Vec b) {
    return {a.x - b.x, a.y - b.y};
}
double dot(Vec a, Vec b) {
    return a.x * b.x + a.y * b.y;
}

// Point access, so that one implementation serves both point types.
Vec get(const wxycoord& p) {
    return {p.x, p.y};
}
Vec get(const RPoint2D& p) {
    return {p.GetX(), p.GetY()};
}
void put(wxycoord& p, Vec v) {
    p.x = v.x;
    p.y = v.y;
}
void put(RPoint2D& p, Vec v) {
    p.SetX(v.x);
    p.SetY(v.y);
}

// A clip edge: a point on it and its outward normal.
struct Edge {
    Vec point;
    Vec normal;
};

// The four edges in the order they are clipped against: bottom, right, top, left.
std::array<Edge, 4> edgesOf(const r2box& box) {
    const double midX = (box.xmin + box.xmax) / 2;
    const double midY = (box.ymin + box.ymax) / 2;
    return {{{{midX, box.ymin}, {0, -1}},
             {{box.xmax, midY}, {1, 0}},
             {{midX, box.ymax}, {0, 1}},
             {{box.xmin, midY}, {-1, 0}}}};
}

enum class Verdict { outside, inside, needsClipping };

// Decides from the bounding box of the first n points whether the figure can be left as it is.
template <typename Point> Verdict quickTest(const Point* points, std::size_t n, const r2box& box) {
    const Vec first = get(points[0]);
    double minX = first.x;
    double maxX = first.x;
    double minY = first.y;
    double maxY = first.y;
    for (std::size_t i = 1; i < n; ++i) {
        const Vec p = get(points[i]);
        minX = std::min(minX, p.x);
        maxX = std::max(maxX, p.x);
        minY = std::min(minY, p.y);
        maxY = std::max(maxY, p.y);
    }
    // Touching an edge of the box is neither a reject nor a reason to clip.
    if (box.xmin > maxX || minX > box.xmax || box.ymin > maxY || minY > box.ymax) {
        return Verdict::outside;
    }
    if (maxX > box.xmax || box.xmin > minX || maxY > box.ymax || box.ymin > minY) {
        return Verdict::needsClipping;
    }
    return Verdict::inside;
}

enum class Shape { open, closed };

// Where q -> p crosses the edge.
Vec intersection(Vec q, Vec p, const Edge& edge) {
    const double t = dot(edge.point - q, edge.normal) / dot(p - q, edge.normal);
    return {q.x + t * (p.x - q.x), q.y + t * (p.y - q.y)};
}

// One pass against one edge: reads n points and collects the result in out, its size in
// produced. False when the result does not fit in out (the pass stops there).
template <typename Point>
bool clipAgainst(const Point* points, std::size_t n, const Edge& edge, Shape shape,
                 std::span<Vec> out, std::size_t& produced) {
    enum class Side { none, inside, outside };
    produced = 0;
    bool fits = true;
    auto emit = [&](Vec v) {
        if (produced == out.size()) {
            fits = false;
        } else {
            out[produced++] = v;
        }
    };

    Side previous = Side::none;
    Vec previousPoint{0, 0};
    // step: the next point of the outline; closing: the return to the first point, which
    // is not emitted a second time.
    auto step = [&](Vec p, bool closing) {
        const bool outside = dot(p - edge.point, edge.normal) > 0;
        if (outside) {
            if (previous == Side::inside) {
                emit(intersection(previousPoint, p, edge));
            }
        } else {
            if (previous == Side::outside) {
                emit(intersection(previousPoint, p, edge));
            }
            if (!closing) {
                emit(p);
            }
        }
        previous = outside ? Side::outside : Side::inside;
        previousPoint = p;
    };

    for (std::size_t i = 0; i < n && fits; ++i) {
        step(get(points[i]), false);
    }
    if (shape == Shape::closed && n > 0 && fits) {
        step(get(points[0]), true);
    }
    return fits;
}

template <typename Point, std::size_t Capacity>
int clip(Point* points, unsigned short* count, std::size_t quickCount, std::size_t n,
         const r2box& box, Shape shape) {
    if (quickCount == 0) {
        return 1;
    }
    switch (quickTest(points, quickCount, box)) {
    case Verdict::outside:
        return 1;
    case Verdict::inside:
        return 0;
    case Verdict::needsClipping:
        break;
    }

    std::array<Vec, Capacity> buffer{};
    for (const Edge& edge : edgesOf(box)) {
        std::size_t produced = 0;
        if (!clipAgainst(points, n, edge, shape, std::span<Vec>(buffer), produced)) {
            *count = 0;
            return 1;
        }
        for (std::size_t i = 0; i < produced; ++i) {
            put(points[i], buffer[i]);
        }
        n = produced;
        *count = static_cast<unsigned short>(produced);
    }
    return n == 0 ? 1 : 0;
}

constexpr std::size_t kPolygonBuffer = 100;
constexpr std::size_t kSegmentBuffer = 2;

template <typename Point> int clipPolygon(Point* points, unsigned short* count, r2box* box) {
    const std::size_t n = *count;
    // The first look reads three points, four for a quadrilateral.
    const std::size_t quickCount = n == 4 ? 4 : std::min<std::size_t>(n, 3);
    return clip<Point, kPolygonBuffer>(points, count, quickCount, n, *box, Shape::closed);
}

template <typename Point> int clipSegment(Point* points, unsigned short* count, r2box* box) {
    return clip<Point, kSegmentBuffer>(points, count, 2, 2, *box, Shape::open);
}

} // namespace

int polyclip(wxycoord* points, unsigned short* count, r2box* box) {
    return clipPolygon(points, count, box);
}

int polyclip(RPoint2D* points, unsigned short* count, r2box* box) {
    return clipPolygon(points, count, box);
}

int lineclip(wxycoord* points, unsigned short* count, r2box* box) {
    return clipSegment(points, count, box);
}

int lineclip(RPoint2D* points, unsigned short* count, r2box* box) {
    return clipSegment(points, count, box);
}
