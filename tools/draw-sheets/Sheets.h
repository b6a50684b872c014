#pragma once
// The sheets draw_sheets renders; each fills the cells of one Sheet.

#include "GLSheet.h"
#include "Sheet.h"

namespace drawsheets {

// Every line and area primitive.
void DrawPrimitivesSheet(Sheet& sheet);
// Arrows, dimension lines, symbols, section quarters and text.
void DrawGlyphsSheet(Sheet& sheet);
// Their OpenGL twins, cell for cell.
void DrawGLPrimitivesSheet(GLSheet& sheet);
void DrawGLGlyphsSheet(GLSheet& sheet);

} // namespace drawsheets
