#pragma once
// Whether two segments of a polygon meet.

#include "host/RPoint2D.h"

// Intersect(a, b, c, d) for the segments a–b and c–d:
//   1 when they cross, when an end of one touches the other away from that other's ends,
//     or when they overlap along a common line for more than a point;
//   0 when they are apart, or when all they share is one end point of each (two adjacent
//     sides of a polygon).
// Coordinates are compared exactly: no tolerance is applied.
int Intersect(const RPoint2D& a, const RPoint2D& b, const RPoint2D& c, const RPoint2D& d);
