#pragma once
// The glyphs of a bitmap font, shared by the font services that build its display lists and
// the OpenGL device that measures its text (private to platform/gl).

#include "platform/gdi/GdiTypes.h"

#include <QFont>

#include <cstdint>
#include <vector>

namespace seisplot {

// The Qt font a bitmap font draws with: the logical font at `pixelHeight`, without
// antialiasing, since a glyph bitmap has one bit a pixel.
QFont BitmapFont(const LOGFONTA& font, int pixelHeight);
// Where a character moves the raster position: its advance in whole pixels.
int BitmapAdvance(const QFont& qfont, const LOGFONTA& font, unsigned char code);

// One character as glBitmap draws it: rows from the bottom, a bit a pixel from the most
// significant bit, each row a whole number of bytes; the origin's place in the bitmap.
struct GlyphBitmap {
    int width = 0;
    int height = 0;
    float xOrigin = 0.0F;
    float yOrigin = 0.0F;
    float advance = 0.0F;
    std::vector<std::uint8_t> rows;
};
GlyphBitmap RenderBitmapGlyph(const QFont& qfont, const LOGFONTA& font, unsigned char code);

} // namespace seisplot
