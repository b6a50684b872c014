#include "host/Intersect.h"

#include <algorithm>

namespace {

// The sign of the turn a → b → c: 1 to the left, -1 to the right, 0 on one line.
int Turn(const RPoint2D& a, const RPoint2D& b, const RPoint2D& c) {
    const double cross = (b.GetX() - a.GetX()) * (c.GetY() - a.GetY()) -
                         (b.GetY() - a.GetY()) * (c.GetX() - a.GetX());
    return (cross > 0.0) - (cross < 0.0);
}

bool Same(const RPoint2D& p, const RPoint2D& q) {
    return p.GetX() == q.GetX() && p.GetY() == q.GetY();
}

// p lies within the bounding box of a–b (p already known to be on the line a–b).
bool Within(const RPoint2D& a, const RPoint2D& b, const RPoint2D& p) {
    return std::min(a.GetX(), b.GetX()) <= p.GetX() && p.GetX() <= std::max(a.GetX(), b.GetX()) &&
           std::min(a.GetY(), b.GetY()) <= p.GetY() && p.GetY() <= std::max(a.GetY(), b.GetY());
}

// p lies on the segment a–b other than at its ends.
bool Inside(const RPoint2D& a, const RPoint2D& b, const RPoint2D& p) {
    return Turn(a, b, p) == 0 && Within(a, b, p) && !Same(a, p) && !Same(b, p);
}

} // namespace

int Intersect(const RPoint2D& a, const RPoint2D& b, const RPoint2D& c, const RPoint2D& d) {
    const int abc = Turn(a, b, c);
    const int abd = Turn(a, b, d);
    const int cda = Turn(c, d, a);
    const int cdb = Turn(c, d, b);
    if (abc * abd < 0 && cda * cdb < 0) {
        return 1;
    }
    // An end of one lying inside the other: a touch, or (on one line) an overlap.
    if (Inside(a, b, c) || Inside(a, b, d) || Inside(c, d, a) || Inside(c, d, b)) {
        return 1;
    }
    // The same segment twice overlaps all along.
    if ((Same(a, c) && Same(b, d)) || (Same(a, d) && Same(b, c))) {
        return Same(a, b) ? 0 : 1;
    }
    return 0;
}
