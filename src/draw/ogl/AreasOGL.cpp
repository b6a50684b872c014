#include "draw/ogl/AreasOGL.h"

#include "draw/gdi/DeviceConventions.h"
#include "draw/ogl/GLDrawing_p.h"
#include "draw/ogl/LinesOGL.h"
#include "platform/core/UserInterface.h"
#include "platform/gl/CurrentDevice.h"

#include <GL/glu.h>

#include <array>
#include <cmath>
#include <numbers>
#include <optional>
#include <vector>

namespace {

using seisplot::ogl::SetColour;
using seisplot::ogl::SetLineWidth;
using seisplot::ogl::SetPolygonStyle;
using seisplot::ogl::Vertex;

constexpr int kFilled = 2;

void Quad(const CPoint& p1, const CPoint& p2) {
    glBegin(GL_QUADS);
    glVertex2i(p1.x, p1.y);
    glVertex2i(p2.x, p1.y);
    glVertex2i(p2.x, p2.y);
    glVertex2i(p1.x, p2.y);
    glEnd();
}

void Polygon(const CPoint* points, int count) {
    glBegin(GL_POLYGON);
    for (int i = 0; i < count; ++i) {
        Vertex(points[i]);
    }
    glEnd();
}

// The tessellator's callbacks: what it emits is drawn at once.
void TessBegin(GLenum type) {
    glBegin(type);
}

void TessVertex(void* data) {
    const auto* v = static_cast<const GLdouble*>(data);
    glVertex2d(v[0], v[1]);
}

void TessEnd() {
    glEnd();
}

void TessError(GLenum code) {
    CString text;
    text.Format("Tessellation error: %s", reinterpret_cast<const char*>(gluErrorString(code)));
    AfxMessageBox(text);
}

// One contour through a tessellator, its fill colour or outline set by the caller.
class PolygonTessellator {
public:
    PolygonTessellator(const CPoint* points, int count) : m_tess(gluNewTess()) {
        gluTessCallback(m_tess, GLU_TESS_BEGIN, reinterpret_cast<_GLUfuncptr>(&TessBegin));
        gluTessCallback(m_tess, GLU_TESS_VERTEX, reinterpret_cast<_GLUfuncptr>(&TessVertex));
        gluTessCallback(m_tess, GLU_TESS_END, reinterpret_cast<_GLUfuncptr>(&TessEnd));
        gluTessCallback(m_tess, GLU_TESS_ERROR, reinterpret_cast<_GLUfuncptr>(&TessError));
        gluTessProperty(m_tess, GLU_TESS_WINDING_RULE, GLU_TESS_WINDING_NONZERO);
        gluTessNormal(m_tess, 0.0, 0.0, 1.0);
        // Each vertex keeps its own storage until the tessellator is done with the polygon.
        m_vertices.reserve(static_cast<std::size_t>(std::max(count, 0)));
        for (int i = 0; i < count; ++i) {
            m_vertices.push_back(
                {static_cast<GLdouble>(points[i].x), static_cast<GLdouble>(points[i].y), 0.0});
        }
    }
    ~PolygonTessellator() { gluDeleteTess(m_tess); }
    PolygonTessellator(const PolygonTessellator&) = delete;
    PolygonTessellator& operator=(const PolygonTessellator&) = delete;

    // The filled area, or (boundary only) the line loops around it.
    void Draw(bool boundaryOnly) {
        gluTessProperty(m_tess, GLU_TESS_BOUNDARY_ONLY, boundaryOnly ? GL_TRUE : GL_FALSE);
        gluTessBeginPolygon(m_tess, nullptr);
        gluTessBeginContour(m_tess);
        for (auto& v : m_vertices) {
            gluTessVertex(m_tess, v.data(), v.data());
        }
        gluTessEndContour(m_tess);
        gluTessEndPolygon(m_tess);
    }

private:
    GLUtesselator* m_tess;
    std::vector<std::array<GLdouble, 3>> m_vertices;
};

int TessellatedPolygon(CPoint* points, int count, std::optional<unsigned long> fillColour,
                       unsigned long lineColour, int width, bool outline) {
    PolygonTessellator tessellator(points, count);
    if (fillColour) {
        SetColour(*fillColour);
        tessellator.Draw(false);
    }
    if (outline) {
        GLfloat saved = 1.0F;
        glGetFloatv(GL_LINE_WIDTH, &saved);
        SetLineWidth(width);
        SetColour(lineColour);
        tessellator.Draw(true);
        glLineWidth(saved);
    }
    return 0;
}

// The centre of a box, each coordinate truncated.
CPoint BoxCentre(const CPoint& p1, const CPoint& p2) {
    return CPoint(static_cast<int>((p1.x + p2.x) * 0.5), static_cast<int>((p1.y + p2.y) * 0.5));
}

} // namespace

int triangleOGL(unsigned long colour, unsigned char style, long x1, long y1, long x2, long y2,
                long x3, long y3) {
    SetColour(colour);
    SetPolygonStyle(style);
    glBegin(GL_TRIANGLES);
    glVertex2i(static_cast<GLint>(x1), static_cast<GLint>(y1));
    glVertex2i(static_cast<GLint>(x2), static_cast<GLint>(y2));
    glVertex2i(static_cast<GLint>(x3), static_cast<GLint>(y3));
    glEnd();
    return 0;
}

int rectangleOGL(const CPoint& p1, const CPoint& p2, unsigned long colour, int style) {
    SetColour(colour);
    SetPolygonStyle(style);
    Quad(p1, p2);
    return 0;
}

int rectangleOGL(unsigned long colour, int style, int x1, int y1, int x2, int y2) {
    return rectangleOGL(CPoint(x1, y2), CPoint(x2, y1), colour, style);
}

int rectangleOGL(const CPoint& p1, const CPoint& p2, unsigned long colour, int style, int width) {
    GLfloat saved = 1.0F;
    glGetFloatv(GL_LINE_WIDTH, &saved);
    SetLineWidth(width);
    rectangleOGL(p1, p2, colour, style);
    glLineWidth(saved);
    return 0;
}

int rectangleXOGL(const CPoint& p1, const CPoint& p2) {
    seisplot::ogl::Inverted([&] { Quad(p1, p2); });
    return 0;
}

int polygonOGL(CPoint* points, int count, unsigned long fillColour, unsigned long lineColour,
               int width) {
    glPolygonMode(GL_FRONT, GL_FILL);
    glEnable(GL_POLYGON_OFFSET_FILL);
    glPolygonOffset(1.0F, 1.0F);
    SetColour(fillColour);
    Polygon(points, count);
    SetLineWidth(width);
    glPolygonMode(GL_FRONT, GL_LINE);
    SetColour(lineColour);
    Polygon(points, count);
    return 0;
}

int polygonOGL(CPoint* points, int count, unsigned long colour, int width) {
    SetColour(colour);
    SetLineWidth(width);
    glPolygonMode(GL_FRONT, GL_LINE);
    Polygon(points, count);
    return 0;
}

int polygonTessOGL(CPoint* points, int count, unsigned long fillColour, unsigned long lineColour,
                   int width) {
    return TessellatedPolygon(points, count, fillColour, lineColour, width, width > 0);
}

int polygonTessOGL(CPoint* points, int count, unsigned long colour, int width) {
    return TessellatedPolygon(points, count, std::nullopt, colour, width, true);
}

int mixpolygonOGL(CPoint* points, int count, unsigned long firstColour, unsigned long secondColour,
                  int width, int style) {
    if (count <= 0) {
        return 0; // no edge to close
    }
    if (style == kFilled) {
        polygonOGL(points, count, firstColour, firstColour, -100);
    }
    for (int i = 0; i + 1 < count; ++i) {
        mixlineOGL(points[i], points[i + 1], firstColour, secondColour, width);
    }
    mixlineOGL(points[count - 1], points[0], firstColour, secondColour, width);
    return 0;
}

int ellipseOGL(const CPoint& p1, const CPoint& p2, unsigned long colour, int style, int width) {
    constexpr int segments = 36;
    const CPoint c = BoxCentre(p1, p2);
    const double rx = (p2.x - p1.x) * 0.5;
    const double ry = (p2.y - p1.y) * 0.5;
    SetColour(colour);
    SetPolygonStyle(style);
    if (style == kFilled) {
        glBegin(GL_TRIANGLE_FAN);
        Vertex(c);
    } else {
        SetLineWidth(width);
        glBegin(GL_LINE_LOOP);
    }
    for (int i = 0; i <= segments; ++i) {
        const double a = i * 2.0 * std::numbers::pi / segments;
        glVertex2d(c.x + rx * std::cos(a), c.y + ry * std::sin(a));
    }
    glEnd();
    return 0;
}

int ellipseOGL(const CPoint& p1, const CPoint& p2, unsigned long colour, int style) {
    return ellipseOGL(p1, p2, colour, style, 10);
}

int ellipseOGL(unsigned long colour, int style, int x1, int y1, int x2, int y2) {
    return ellipseOGL(CPoint(x1, y2), CPoint(x2, y1), colour, style, 10);
}

int pieOGL(const CPoint& p1, const CPoint& p2, const CPoint& p3, const CPoint& p4,
           unsigned long colour, int style) {
    constexpr int steps = 24;
    const CPoint c = BoxCentre(p1, p2);
    const double rx = std::abs(p2.x - p1.x) * 0.5;
    const double ry = std::abs(p2.y - p1.y) * 0.5;
    const double a1 = std::atan2(static_cast<double>(p3.y - c.y), static_cast<double>(p3.x - c.x));
    const double a2 = std::atan2(static_cast<double>(p4.y - c.y), static_cast<double>(p4.x - c.x));
    const double step = (a2 - a1) / steps;
    SetColour(colour);
    SetPolygonStyle(style);
    glBegin(GL_TRIANGLE_FAN);
    Vertex(c);
    for (int i = 0; i <= steps; ++i) {
        const double a = a1 + i * step;
        glVertex2d(c.x + rx * std::cos(a), c.y + ry * std::sin(a));
    }
    glEnd();
    return 0;
}

int pieOGL(unsigned long colour, int style, int x1, int y1, int x2, int y2, int x3, int y3, int x4,
           int y4) {
    return pieOGL(CPoint(x1, y1), CPoint(x2, y2), CPoint(x3, y3), CPoint(x4, y4), colour, style);
}

int ArcOGL(unsigned long colour, int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
    return pieOGL(CPoint(x1, y2), CPoint(x2, y1), CPoint(x3, y3), CPoint(x4, y4), colour, 1);
}

int quart_circlOGL(unsigned char mode, long ax, long ay, long cx, long cy, long bx, long by,
                   unsigned long firstColour, unsigned long secondColour) {
    seisplot::ogl::GLFigures figures;
    seisplot::DrawQuarterCircle(figures, mode, ax, ay, cx, cy, bx, by, firstColour, secondColour);
    return 0;
}

int DisplayROPCircleOGL(CPoint centre, int diameter) {
    const int r = diameter * GetMM_Multiplier(wglGetCurrentDC()) / 2;
    seisplot::ogl::Inverted([&] {
        ellipseOGL(CPoint(centre.x - r, centre.y - r), CPoint(centre.x + r, centre.y + r), 0x0000FF,
                   kFilled, 10);
    });
    return 1;
}
