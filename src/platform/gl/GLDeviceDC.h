#pragma once
// The device context of an OpenGL drawing, as wglGetCurrentDC answers it while the drawing's
// rendering context is current: its size and resolution (the unit conversions read them),
// and the fonts selected into it for the font display lists. Drawing through it with GDI
// calls draws nothing; OpenGL draws.

#include "platform/gdi/CDC.h"

namespace seisplot {

class GLDeviceDC : public CDC {
public:
    // A drawing `width` by `height` pixels at `dpi` dots per inch.
    GLDeviceDC(int width, int height, int dpi = 96);
};

} // namespace seisplot
