#include "GLSheet.h"

#include "draw/gdi/DeviceConventions.h"

#include <GL/gl.h>

namespace drawsheets {

GLSheet::GLSheet(int widthPixels, int heightPixels, int columns, int rows)
    : m_sheet(widthPixels, heightPixels, columns, rows), m_gl(widthPixels, heightPixels) {
    m_gl.UseHimetric();
}

Cell GLSheet::Next(const char* label) {
    m_labels.emplace_back(label);
    return m_sheet.Place(static_cast<int>(m_labels.size()) - 1);
}

bool GLSheet::Save(const std::string& path) {
    m_sheet.Cover(m_gl.Pixels());
    for (std::size_t i = 0; i < m_labels.size(); ++i) {
        m_sheet.Frame(static_cast<int>(i), m_labels[i].c_str());
    }
    return m_sheet.Save(path);
}

void GLStripes(const Cell& cell, double from) {
    const unsigned long colours[] = {torgb(11), torgb(14), torgb(8), torgb(10)};
    const int n = 8;
    const int x0 = cell.At(from, 0).x;
    const int w = (cell.right - x0) / n;
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    for (int i = 0; i < n; ++i) {
        const unsigned long c = colours[i % 4];
        glColor3ub(GetRValue(c), GetGValue(c), GetBValue(c));
        glRecti(x0 + i * w, cell.bottom, x0 + (i + 1) * w, cell.top);
    }
}

} // namespace drawsheets
