#include "draw/ogl/SymbolsOGL.h"

#include "draw/gdi/DeviceConventions.h"
#include "draw/ogl/AreasOGL.h"
#include "draw/ogl/GLDrawing_p.h"
#include "platform/gdi/CDC.h"
#include "platform/gl/CurrentDevice.h"

namespace {

// A smooth point `size` / 10 millimetres across (in integers); the point size is put back.
void SmoothDot(unsigned long colour, const CPoint& at, int size) {
    GLfloat saved = 1.0F;
    glGetFloatv(GL_POINT_SIZE, &saved);
    glPointSize(static_cast<GLfloat>(MM2Pixels(size / 10)));
    glEnable(GL_POINT_SMOOTH);
    seisplot::ogl::SetColour(colour);
    glBegin(GL_POINTS);
    seisplot::ogl::Vertex(at);
    glEnd();
    glDisable(GL_POINT_SMOOTH);
    glPointSize(saved);
}

int Marker(HDC dc, unsigned long colour, unsigned char code, CPoint point, int size) {
    const int s = size * GetMM_Multiplier(dc);
    const int h = s / 2;
    const int x = point.x;
    const int y = point.y;
    const CPoint low(x - h, y - h);
    const CPoint high(x + h, y + h);
    switch (code) {
    case 1:
    case 10:
        rectangleOGL(low, high, colour, code == 1 ? 2 : 1);
        break;
    case 2:
    case 3:
        ellipseOGL(low, high, colour, code == 3 ? 2 : 1, 1);
        break;
    case 11:
    case 12: {
        const int base = static_cast<int>(y - 0.6 * h);
        const int apex = static_cast<int>(y + 1.2 * h);
        triangleOGL(colour, code == 12 ? 2 : 1, x - h, base, x + h, base, x, apex);
        break;
    }
    default: {
        CPoint dot;
        if (!seisplot::SymbolDotCentre(code, point, s, dot)) {
            break;
        }
        if (dc != nullptr && IsPrinting(dc)) {
            const int r = s / 20;
            ellipseOGL(CPoint(dot.x - r, dot.y - r), CPoint(dot.x + r, dot.y + r), colour, 2, 1);
        } else {
            SmoothDot(colour, dot, size);
        }
        break;
    }
    }
    return 0;
}

} // namespace

int SymbolOGL(unsigned long colour, unsigned char code, CPoint point, int size) {
    return Marker(wglGetCurrentDC(), colour, code, point, size);
}

int SymbolOGL(HDC& dc, unsigned long colour, unsigned char code, CPoint point, int size) {
    return Marker(dc, colour, code, point, size);
}
