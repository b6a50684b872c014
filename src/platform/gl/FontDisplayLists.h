#pragma once
// The windowing system's font services for OpenGL: the glyphs of the font selected into a
// device context turned into display lists, as bitmaps (drawn at the raster position with
// glBitmap) or as outlines (filled polygons one em high), each list moving on to where the
// next character starts.

#include "platform/gdi/GdiTypes.h"

using FLOAT = float;

struct POINTFLOAT {
    FLOAT x = 0.0F;
    FLOAT y = 0.0F;
};

// A glyph's measures in ems: its ink box, the box's upper-left corner from the origin, and the
// step to the next origin.
struct GLYPHMETRICSFLOAT {
    FLOAT gmfBlackBoxX = 0.0F;
    FLOAT gmfBlackBoxY = 0.0F;
    POINTFLOAT gmfptGlyphOrigin;
    FLOAT gmfCellIncX = 0.0F;
    FLOAT gmfCellIncY = 0.0F;
};
using LPGLYPHMETRICSFLOAT = GLYPHMETRICSFLOAT*;

inline constexpr int WGL_FONT_LINES = 0;
inline constexpr int WGL_FONT_POLYGONS = 1;

// The characters first to first + count - 1 of `dc`'s font as bitmaps into the lists from
// listBase on. Needs a current OpenGL context; FALSE without a device context.
BOOL wglUseFontBitmaps(HDC dc, DWORD first, DWORD count, DWORD listBase);
// The same characters as filled outlines (WGL_FONT_POLYGONS, flat: extrusion 0), one em high,
// curves followed closely (deviation 0) or to within `deviation` ems; `metrics` (may be null)
// receives count records. FALSE for another format or an extrusion.
BOOL wglUseFontOutlines(HDC dc, DWORD first, DWORD count, DWORD listBase, FLOAT deviation,
                        FLOAT extrusion, int format, LPGLYPHMETRICSFLOAT metrics);
