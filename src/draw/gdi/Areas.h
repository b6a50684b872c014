#pragma once
// Closed figures: triangles, rectangles, polygons (plain, two-colour, checkerboard, hatched),
// ellipses, arcs, pies, the quarter-circle fillet, the rubber-band circle and the polygon
// preview of an owner-drawn button. Style 2 fills; any other style draws the outline.

#include "platform/gdi/CDC.h"
#include "platform/gdi/CWnd.h"

class RPoly;

int triangle(CDC* dc, unsigned long colour, unsigned char style, long x1, long y1, long x2, long y2,
             long x3, long y3);
int rectangle(CDC* dc, const CPoint& p1, const CPoint& p2, unsigned long colour, int style);
int rectangle(CDC* dc, unsigned long colour, int style, int x1, int y1, int x2, int y2);
int rectangleX(CDC* dc, const CPoint& p1, const CPoint& p2);
int polygon(CDC* dc, CPoint* points, int count, unsigned long fillColour, unsigned long lineColour,
            int width);
int polygon(CDC* dc, CPoint* points, int count, unsigned long colour, int width);
int mixpolygon(CDC* dc, CPoint* points, int count, unsigned long firstColour,
               unsigned long secondColour, int width, int style);
int mixpolygon(CDC* dc, CPoint* points, int count, unsigned long backgroundColour,
               unsigned long patternColour, unsigned long lineColour, int width);
int hatchpolygon(CDC* dc, CPoint* points, int count, unsigned long backgroundColour,
                 unsigned long hatchColour, unsigned long lineColour, int width, int hatchStyle);
int ellipse(CDC* dc, const CPoint& p1, const CPoint& p2, unsigned long colour, int style,
            int width);
int ellipse(CDC* dc, const CPoint& p1, const CPoint& p2, unsigned long colour, int style);
int ellipse(CDC* dc, unsigned long colour, int style, int x1, int y1, int x2, int y2);
int Arc(CDC* dc, unsigned long colour, int x1, int y1, int x2, int y2, int x3, int y3, int x4,
        int y4);
int pie(CDC* dc, const CPoint& p1, const CPoint& p2, const CPoint& p3, const CPoint& p4,
        unsigned long colour, int style);
int pie(CDC* dc, unsigned long colour, int style, int x1, int y1, int x2, int y2, int x3, int y3,
        int x4, int y4);
int quart_circl(CDC* dc, unsigned char mode, long ax, long ay, long cx, long cy, long bx, long by,
                unsigned long firstColour, unsigned long secondColour);
int DisplayROPCircle(CDC* dc, CPoint centre, int diameter);
void DrawPoly(CButton& button, RPoly* poly, unsigned long lineColour, unsigned long fillColour,
              int width);

class RPoint2D;

namespace seisplot {

// Where DrawPoly puts a polygon in a client area W x H logical units large, origin at the
// bottom-left corner: its bounding box, scaled to fill 70 % of the width or of the height,
// centred. A segment's box counts as the square on it.
struct PolygonPlacement {
    double scale = 0.0;
    CPoint offset;
    // The logical point of a vertex, as GetNPoly gives it.
    CPoint Map(const RPoint2D& vertex) const;
};
// False for an empty polygon, and for a point-like one unless `pointAsUnit` (its box is then
// taken as 1 x 1, so that the point shows at the centre).
bool PlacePolygon(const RPoly& poly, int width, int height, bool pointAsUnit,
                  PolygonPlacement& placement);

} // namespace seisplot
