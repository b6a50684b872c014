#pragma once
// The studio's small structural drawing: the project's polygon as a section with its nodes,
// dimension lines, loads, supports, a legend and labels, drawn once through the GDI
// primitives and once through their OpenGL twins.

#include "host/RPoly.h"
#include "platform/gdi/CWnd.h"

namespace seisplot::studio {

// On the window's picture, through the GDI primitives.
void DrawStructure(CWnd& window, const RPoly& polygon, const char* title);

// The display-list fonts the OpenGL drawing writes with.
class StructureFonts {
public:
    // Built in the context (and with the device) current now; released in the same.
    StructureFonts();
    ~StructureFonts();
    StructureFonts(const StructureFonts&) = delete;
    StructureFonts& operator=(const StructureFonts&) = delete;

    int labels = 0; // bitmap
    int title = 0;  // outline
    double titleSize = 0.0;
};

// Into the current OpenGL context, whose projection shows the logical units 0 to `width` and
// 0 to `height`, y up, through the OpenGL twins.
void DrawStructureGL(int width, int height, const RPoly& polygon, const StructureFonts& fonts,
                     const char* title);

} // namespace seisplot::studio
