#include "draw/ogl/ArrowsOGL.h"

#include "draw/gdi/DeviceConventions.h"
#include "draw/ogl/GLDrawing_p.h"
#include "platform/gl/CurrentDevice.h"

int QuoteOGL(unsigned long colour, const CPoint& from, const CPoint& to, unsigned char style) {
    seisplot::ogl::GLFigures figures;
    return seisplot::DrawQuote(figures, GetMM_Multiplier(wglGetCurrentDC()), colour, from, to,
                               style);
}

int QuoteOGL(unsigned long colour, int x1, int y1, int x2, int y2, unsigned char style) {
    return QuoteOGL(colour, CPoint(x1, y1), CPoint(x2, y2), style);
}

int ArrowOGL(const CPoint& tail, const CPoint& tip, unsigned long colour, int width) {
    seisplot::ogl::GLFigures figures;
    return seisplot::DrawArrow(figures, tail, tip, colour, width);
}

int DArrowOGL(const CPoint& tail, const CPoint& tip, unsigned long colour, int width) {
    seisplot::ogl::GLFigures figures;
    return seisplot::DrawDArrow(figures, tail, tip, colour, width);
}

int ArwLineOGL(nbox* /*view*/, const CPoint& at, const CPoint& direction, unsigned char style,
               unsigned long lineColour, unsigned long fillColour) {
    seisplot::ogl::GLFigures figures;
    return seisplot::DrawArwLine(figures, at, direction, style, lineColour, fillColour);
}
