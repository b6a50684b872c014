#pragma once
// Clipping of small polygons and of segments against an axis-parallel box, in world
// coordinates, before they are mapped to a device. Nothing is drawn here.
//
// Both functions work in place on the caller's points and answer 0 when something is left to
// draw (draw *count points) and 1 when nothing is.
//
// - A figure entirely inside the box (edges included) or entirely outside one side of it is
//   decided at once from its bounding box: points and count are left untouched. polyclip
//   decides this from its first three points, and from the fourth only when the count is
//   exactly 4; a longer polygon is still clipped as a whole when that first look asks for it.
// - Otherwise the figure is clipped against the bottom, right, top and left edges, in that
//   order; a point lying on an edge counts as inside. The points and the count are replaced
//   after each edge, so the final count may be 0 (result 1).
//
// polyclip treats the points as a closed polygon (meant for 3 or 4 points; with fewer than 3,
// only those present are read, and a count of 0 answers 1). Clipping a convex polygon of n
// points gives at most n + 4 points: the caller's array must have room for them. Only as many
// points as the clipping produces are written back, but their number cannot be checked
// against the caller's array, whose capacity is not known here.
//
// Each edge's result is collected in a buffer of 100 points. When one edge would produce
// more than 100 points, clipping stops there: the answer is 1 with *count set to 0, nothing
// is written beyond the buffer or past the caller's first 100 points, and the points keep
// the result of the edges already done (the input itself when the first edge overflows).
//
// lineclip clips the open segment points[0] -> points[1]; the count on entry is not read (a
// segment always has 2 points). The result keeps the segment's direction and has 2 points
// (possibly equal, when only an end point touches the box) or none.

#include "host/Boxes.h"
#include "host/RPoint2D.h"

int polyclip(wxycoord* points, unsigned short* count, r2box* box);
int polyclip(RPoint2D* points, unsigned short* count, r2box* box);

int lineclip(wxycoord* points, unsigned short* count, r2box* box);
int lineclip(RPoint2D* points, unsigned short* count, r2box* box);
