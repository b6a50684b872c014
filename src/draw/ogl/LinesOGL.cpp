#include "draw/ogl/LinesOGL.h"

#include "draw/gdi/DeviceConventions.h"
#include "draw/ogl/GLDrawing_p.h"
#include "host/RPoint2D.h"
#include "platform/gl/CurrentDevice.h"

namespace {

using seisplot::ogl::SetColour;
using seisplot::ogl::SetLineWidth;
using seisplot::ogl::Vertex;

constexpr unsigned long kNoValueGrey = 0xC0C0C0;

void Vertex(const RPoint3D& p) {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    p.GetCoo(x, y, z);
    glVertex3d(x, y, z);
}

template <typename Point> void Segment(const Point& from, const Point& to) {
    glBegin(GL_LINES);
    Vertex(from);
    Vertex(to);
    glEnd();
}

template <typename Point>
int ColouredLine(const Point& from, const Point& to, unsigned long colour, int width) {
    SetColour(colour);
    SetLineWidth(width);
    Segment(from, to);
    glLineWidth(1.0F);
    return 0;
}

template <typename Point>
int MixedLine(const Point& from, const Point& to, unsigned long firstColour,
              unsigned long secondColour, int width) {
    SetLineWidth(width);
    glEnable(GL_LINE_STIPPLE);
    SetColour(firstColour);
    glLineStipple(1, 0x00FF);
    Segment(from, to);
    SetColour(secondColour);
    glLineStipple(1, 0xFF00);
    Segment(from, to);
    glDisable(GL_LINE_STIPPLE);
    glLineWidth(1.0F);
    return 0;
}

// The grey line of a missing value keeps its width.
template <typename Point> void NoValueLine(const Point& from, const Point& to, int width) {
    SetColour(kNoValueGrey);
    SetLineWidth(width);
    Segment(from, to);
}

// The caller's colours start at class 1; class 0 shows as a line without a value.
unsigned long ClassColour(int k, const unsigned long* classColours) {
    return k == 0 ? kNoValueGrey : classColours[k - 1];
}

bool MonochromeDevice() {
    const HDC dc = wglGetCurrentDC();
    return dc != nullptr && dc->IsMonochrome();
}

} // namespace

int lineOGL(const CPoint& from, const CPoint& to, unsigned long colour, int width) {
    return ColouredLine(from, to, colour, width);
}

int lineOGL(const RPoint3D& from, const RPoint3D& to, unsigned long colour, int width) {
    return ColouredLine(from, to, colour, width);
}

int lineOGL(const CPoint& from, const CPoint& to) {
    Segment(from, to);
    return 0;
}

int lineOGL(const RPoint3D& from, const RPoint3D& to) {
    Segment(from, to);
    return 0;
}

int lineXOGL(const CPoint& from, const CPoint& to, int width, unsigned long colour) {
    seisplot::ogl::Inverted([&] {
        SetColour(colour);
        SetLineWidth(width);
        Segment(from, to);
    });
    glLineWidth(1.0F);
    return 0;
}

int lineXOGL(const CPoint& from, const CPoint& to) {
    return lineXOGL(from, to, 1, 0xFFFF00);
}

int mixlineOGL(const CPoint& from, const CPoint& to, unsigned long firstColour,
               unsigned long secondColour, int width) {
    return MixedLine(from, to, firstColour, secondColour, width);
}

int mixlineOGL(const RPoint3D& from, const RPoint3D& to, unsigned long firstColour,
               unsigned long secondColour, int width) {
    return MixedLine(from, to, firstColour, secondColour, width);
}

int layer_lineOGL(const CPoint& from, const CPoint& to, double value, unsigned char kind,
                  unsigned long* classColours, int width) {
    if (value == -1.0) {
        NoValueLine(from, to, width);
        return 0;
    }
    const int k = seisplot::LayerValueClass(value, kind);
    if (!MonochromeDevice()) {
        return lineOGL(from, to, ClassColour(k, classColours), width);
    }
    lineOGL(from, to, 0, width);
    const CPoint middle(static_cast<int>((from.x + to.x) * 0.5),
                        static_cast<int>((from.y + to.y) * 0.5));
    seisplot::ogl::GLFigures figures;
    seisplot::DrawClassMarker(figures, k, middle, GetMM_Multiplier(wglGetCurrentDC()));
    return 0;
}

int layer_lineOGL(const RPoint3D& from, const RPoint3D& to, double value, unsigned char kind,
                  unsigned long* classColours, int width) {
    if (value == -1.0) {
        NoValueLine(from, to, width);
        return 0;
    }
    return lineOGL(from, to, ClassColour(seisplot::LayerValueClass(value, kind), classColours),
                   width);
}

int linesprOGL(CPoint& from, CPoint& to, double divisor, unsigned long colour, int width) {
    seisplot::ogl::GLFigures figures;
    seisplot::DrawSpring(figures, from, to, divisor, colour, width);
    return 0;
}
