#include "draw/gdi/DeviceConventions.h"
#include "draw/ogl/AreasOGL.h"
#include "draw/ogl/GLDrawing_p.h"
#include "draw/ogl/LinesOGL.h"

namespace seisplot::ogl {

void SetLineWidth(int width) {
    glLineWidth(static_cast<GLfloat>(Logical2Pixels(width)));
}

int GLFigures::Line(const CPoint& from, const CPoint& to, unsigned long colour, int width) {
    return lineOGL(from, to, colour, width);
}

void GLFigures::PlainLine(const CPoint& from, const CPoint& to) {
    lineOGL(from, to);
}

int GLFigures::Triangle(unsigned long colour, unsigned char style, const CPoint& a, const CPoint& b,
                        const CPoint& c) {
    return triangleOGL(colour, style, a.x, a.y, b.x, b.y, c.x, c.y);
}

void GLFigures::EdgedTriangle(const CPoint& a, const CPoint& b, const CPoint& c, unsigned long line,
                              unsigned long fill) {
    triangleOGL(fill, 2, a.x, a.y, b.x, b.y, c.x, c.y);
    triangleOGL(line, 1, a.x, a.y, b.x, b.y, c.x, c.y);
}

int GLFigures::Rectangle(const CPoint& p1, const CPoint& p2, unsigned long colour, int style) {
    return rectangleOGL(p1, p2, colour, style);
}

int GLFigures::Ellipse(const CPoint& p1, const CPoint& p2, unsigned long colour, int style,
                       int width) {
    return ellipseOGL(p1, p2, colour, style, width);
}

int GLFigures::Pie(const CPoint& p1, const CPoint& p2, const CPoint& p3, const CPoint& p4,
                   unsigned long colour, int style) {
    return pieOGL(p1, p2, p3, p4, colour, style);
}

} // namespace seisplot::ogl
