#pragma once
// What the OpenGL twins share: colours, styles, widths, exclusive-or drawing, and the simple
// figures through which the composite glyphs draw (private to draw/ogl).

#include "draw/gdi/Figures_p.h"

#include <GL/gl.h>

namespace seisplot::ogl {

// Red from the low byte, green from the second, blue from the third.
inline void SetColour(unsigned long colour) {
    glColor3ub(static_cast<GLubyte>(colour & 0xFF), static_cast<GLubyte>((colour >> 8) & 0xFF),
               static_cast<GLubyte>((colour >> 16) & 0xFF));
}

// Style 2 fills both faces; any other style outlines them.
inline void SetPolygonStyle(int style) {
    glPolygonMode(GL_FRONT_AND_BACK, style == 2 ? GL_FILL : GL_LINE);
}

// A width in logical units, in pixels of the current device.
void SetLineWidth(int width);

template <typename Draw> void Inverted(Draw draw) {
    glEnable(GL_COLOR_LOGIC_OP);
    glLogicOp(GL_XOR);
    draw();
    glDisable(GL_COLOR_LOGIC_OP);
}

inline void Vertex(const CPoint& p) {
    glVertex2i(p.x, p.y);
}

class GLFigures final : public Figures {
public:
    int Line(const CPoint& from, const CPoint& to, unsigned long colour, int width) override;
    void PlainLine(const CPoint& from, const CPoint& to) override;
    int Triangle(unsigned long colour, unsigned char style, const CPoint& a, const CPoint& b,
                 const CPoint& c) override;
    // The filled triangle, then the same again outlined.
    void EdgedTriangle(const CPoint& a, const CPoint& b, const CPoint& c, unsigned long line,
                       unsigned long fill) override;
    int Rectangle(const CPoint& p1, const CPoint& p2, unsigned long colour, int style) override;
    int Ellipse(const CPoint& p1, const CPoint& p2, unsigned long colour, int style,
                int width) override;
    int Pie(const CPoint& p1, const CPoint& p2, const CPoint& p3, const CPoint& p4,
            unsigned long colour, int style) override;
};

} // namespace seisplot::ogl
