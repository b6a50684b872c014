#pragma once
// A picture sheet drawn by OpenGL: the cells of a Sheet, in the same place and the same
// logical units, drawn into a headless OpenGL picture; the frames and labels are added with
// GDI when it is saved, so that it reads like its GDI twin.

#include "Sheet.h"

#include "platform/gl/HeadlessGLContext.h"

#include <string>
#include <vector>

namespace drawsheets {

class GLSheet {
public:
    GLSheet(int widthPixels, int heightPixels, int columns, int rows);

    seisplot::HeadlessGLContext& Gl() { return m_gl; }
    // The area of the next cell below its label.
    Cell Next(const char* label);
    int Pixels(int logical) const { return m_sheet.Pixels(logical); }
    bool Save(const std::string& path);

private:
    Sheet m_sheet;
    seisplot::HeadlessGLContext m_gl;
    std::vector<std::string> m_labels;
};

// Stripes as Stripes draws them, in OpenGL.
void GLStripes(const Cell& cell, double from);

} // namespace drawsheets
