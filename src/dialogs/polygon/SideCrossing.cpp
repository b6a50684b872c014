#include "dialogs/polygon/SideCrossing.h"

#include "host/Intersect.h"

#include <algorithm>
#include <vector>

namespace seisplot {
namespace {

struct Side {
    RPoint2D start;
    RPoint2D end;
    double minX;
    double minY;
    double maxX;
    double maxY;
};

// Sides whose bounding boxes are apart cannot meet: Intersect would answer 0 for them.
bool BoxesApart(const Side& p, const Side& q) {
    return p.maxX < q.minX || q.maxX < p.minX || p.maxY < q.minY || q.maxY < p.minY;
}

} // namespace

bool SidesCross(const RPoly& poly) {
    const int count = poly.GetNPoint();
    std::vector<Side> sides;
    sides.reserve(static_cast<size_t>(count));
    for (int i = 1; i <= count; ++i) {
        const RPoint2D a = poly.GetPoint(i);
        const RPoint2D b = poly.GetPoint(i % count + 1);
        sides.push_back({a, b, std::min(a.GetX(), b.GetX()), std::min(a.GetY(), b.GetY()),
                         std::max(a.GetX(), b.GetX()), std::max(a.GetY(), b.GetY())});
    }
    for (size_t i = 0; i < sides.size(); ++i) {
        for (size_t j = i + 1; j < sides.size(); ++j) {
            const Side& p = sides[i];
            const Side& q = sides[j];
            if (!BoxesApart(p, q) && Intersect(p.start, p.end, q.start, q.end) == 1) {
                return true;
            }
        }
    }
    return false;
}

} // namespace seisplot
