#include "StructureDrawing.h"

#include "draw/font/SFont.h"
#include "draw/gdi/Areas.h"
#include "draw/gdi/Arrows.h"
#include "draw/gdi/DeviceConventions.h"
#include "draw/gdi/Symbols.h"
#include "draw/gdi/Text.h"
#include "draw/ogl/AreasOGL.h"
#include "draw/ogl/ArrowsOGL.h"
#include "draw/ogl/SymbolsOGL.h"
#include "draw/ogl/TextOGL.h"
#include "platform/gl/CurrentDevice.h"

#include <GL/gl.h>

#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

namespace seisplot::studio {
namespace {

constexpr unsigned long kSteel = 0xF0D8B0;
constexpr unsigned long kOutline = 0x602000;
constexpr unsigned long kDimension = 0x000000;
constexpr unsigned long kNode = 0x0000C0;
constexpr unsigned long kSupport = 0x006000;

// Labels: 10 points in DejaVu Sans; the OpenGL bitmap font takes the height in pixels.
SFont LabelFont(int height) {
    SFont font(height, 0x000000);
    std::strcpy(font.lfFaceName, "DejaVu Sans");
    return font;
}

// What the drawing needs of a back end.
class GdiPen {
public:
    explicit GdiPen(CDC* dc) : m_dc(dc) {}
    void Section(CPoint* points, int count) { polygon(m_dc, points, count, kSteel, kOutline, 30); }
    void Dimension(CPoint from, CPoint to) { Quote(m_dc, kDimension, from, to, 11); }
    void Load(CPoint at, CPoint direction) {
        ArwLine(m_dc, nullptr, at, direction, 1, 0x000000, 0x00D0FF);
    }
    void Marker(unsigned long colour, unsigned char code, CPoint at, int size) {
        Symbol(m_dc, colour, code, at, size);
    }
    // Centred on x, standing on y.
    void Label(const char* text, int x, int y) {
        OutTextCentered(m_dc, text, x, y, 0, LabelFont(10));
    }
    void Title(const char* text, int x, int y) {
        SFont font = LabelFont(14);
        font.Color = 0x303030;
        outx(m_dc, text, x, y, font, 0.0);
    }
    void Legend(const char* text, CPoint centre) { MixedRect(m_dc, 146, CString(text), centre, 9); }

private:
    CDC* m_dc;
};

class GLPen {
public:
    explicit GLPen(const StructureFonts& fonts) : m_fonts(fonts) {}
    void Section(CPoint* points, int count) { polygonTessOGL(points, count, kSteel, kOutline, 30); }
    void Dimension(CPoint from, CPoint to) { QuoteOGL(kDimension, from, to, 11); }
    void Load(CPoint at, CPoint direction) {
        ArwLineOGL(nullptr, at, direction, 1, 0x000000, 0x00D0FF);
        glPolygonMode(GL_FRONT_AND_BACK, GL_FILL); // the head's outline leaves GL_LINE
    }
    void Marker(unsigned long colour, unsigned char code, CPoint at, int size) {
        SymbolOGL(colour, code, at, size);
        glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    }
    // Bitmap text starts at its point: it is centred by its width as the device measures it.
    void Label(const char* text, int x, int y) {
        CDC* dc = wglGetCurrentDC();
        const LOGFONTA lf = LabelFont(kLabelPixels).GetFont();
        CFont font;
        font.CreateFontIndirect(&lf);
        const int mode = dc->SetMapMode(MM_TEXT);
        CFont* previous = dc->SelectObject(&font);
        const double width = Pixels2Logical(dc->GetTextExtent(CString(text)).cx);
        dc->SelectObject(previous);
        dc->SetMapMode(mode);
        OutTextCenteredOGL(m_fonts.labels, text, x - static_cast<int>(width / 2), y, 0x000000);
    }
    void Title(const char* text, int x, int y) {
        outxOGL(m_fonts.title, text, x, y, 0.0, m_fonts.titleSize, 0x303030);
    }
    void Legend(const char* text, CPoint centre) {
        MixedRectOGL(146, CString(text), centre, 9, m_fonts.labels);
    }

    static constexpr int kLabelPixels = 14;

private:
    const StructureFonts& m_fonts;
};

// The section drawn by the polygon input when the project has none: an angle, 300 by 400 mm.
RPoly DefaultSection() {
    RPoly section;
    section.AddPoint(0, 0), section.AddPoint(300, 0), section.AddPoint(300, 60);
    section.AddPoint(60, 60), section.AddPoint(60, 400), section.AddPoint(0, 400);
    return section;
}

std::string Number(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.0f", value);
    return text;
}

// The drawing in `width` by `height` logical units, y up.
template <typename Pen>
void Draw(Pen& pen, int width, int height, const RPoly& project, const char* title) {
    const RPoly section = project.GetNPoint() >= 3 ? project : DefaultSection();
    const double dx = section.GetMaxX() - section.GetMinX();
    const double dy = section.GetMaxY() - section.GetMinY();
    if (dx <= 0.0 || dy <= 0.0) {
        return;
    }
    const double s = find_conv(dx, dy, 0.5, 0.5, width, height);
    const CPoint offset(static_cast<int>(width * 0.55 - (section.GetMinX() + dx / 2) * s),
                        static_cast<int>(height * 0.48 - (section.GetMinY() + dy / 2) * s));
    const std::unique_ptr<CPoint[]> points(section.GetNPoly(s, s, offset));
    const int n = section.GetNPoint();
    const int x0 = offset.x + static_cast<int>(section.GetMinX() * s);
    const int x1 = offset.x + static_cast<int>(section.GetMaxX() * s);
    const int y0 = offset.y + static_cast<int>(section.GetMinY() * s);
    const int y1 = offset.y + static_cast<int>(section.GetMaxY() * s);

    pen.Section(points.get(), n);
    for (int i = 0; i < n; ++i) {
        pen.Marker(kNode, 3, points[i], 1);
    }
    // The extents, a centimetre away from the section.
    pen.Dimension(CPoint(x0, y0 - 1000), CPoint(x1, y0 - 1000));
    pen.Label(Number(dx).c_str(), (x0 + x1) / 2, y0 - 900);
    pen.Dimension(CPoint(x0 - 1000, y0), CPoint(x0 - 1000, y1));
    pen.Label(Number(dy).c_str(), x0 - 1900, (y0 + y1) / 2);
    // Loads on the top, supports under the base.
    const int top = y1 + 100;
    for (int k = 0; k < 3; ++k) {
        const int x = x0 + (x1 - x0) * (k + 1) / 4;
        pen.Load(CPoint(x, top), CPoint(x, top - 1500));
    }
    for (const int x : {x0, x1}) {
        pen.Marker(kSupport, 12, CPoint(x, y0 - 240), 4);
    }
    pen.Legend("S275", CPoint(width - 900, height - 900));
    pen.Title(title, 400, height - 700);
}

} // namespace

void DrawStructure(CWnd& window, const RPoly& polygon, const char* title) {
    CDC* dc = window.GetDC();
    CRect client;
    window.GetClientRect(&client);
    dc->FillSolidRect(&client, 0xFFFFFF);
    const CRect area = SetUpClientArea(&window, dc);
    GdiPen pen(dc);
    Draw(pen, area.right, area.top, polygon, title);
    window.ReleaseDC(dc);
}

StructureFonts::StructureFonts() {
    SFont labelFont = LabelFont(GLPen::kLabelPixels);
    InitializeFontOGL(labelFont, &labels);
    SFont titleFont = LabelFont(14);
    InitializeFontOGL(titleFont, &title, &titleSize);
}

StructureFonts::~StructureFonts() {
    CloseFontOGL(labels);
    CloseFontOGL(title);
}

void DrawStructureGL(int width, int height, const RPoly& polygon, const StructureFonts& fonts,
                     const char* title) {
    GLPen pen(fonts);
    Draw(pen, width, height, polygon, title);
}

} // namespace seisplot::studio
