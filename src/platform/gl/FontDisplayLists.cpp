// Font display lists from the fonts the GDI text draws with: the same face mapping and the
// same Symbol-face letters, glyph bitmaps painted by Qt, glyph outlines from Qt's paths
// tessellated by GLU into the lists.

#include "platform/gl/FontDisplayLists.h"

#include "platform/gdi/CDC.h"
#include "platform/gdi/FontEngine_p.h"
#include "platform/gl/BitmapGlyphs_p.h"

#include <GL/gl.h>
#include <GL/glu.h>

#include <QFontMetricsF>
#include <QPainterPath>

#include <array>
#include <cstdlib>
#include <deque>

namespace {

using seisplot::QtFontOf;
using seisplot::QtTextOf;

// Outlines are taken at this many pixels to the em and scaled down to one em: Qt's curve
// flattening then follows them to within about a thousandth of an em.
constexpr double kOutlineEm = 1000.0;

LOGFONTA SelectedFont(HDC dc) {
    return dc->GetCurrentFont()->Attributes();
}

// The font's height in device pixels: negative the em, positive the character cell; 0 the
// device's default, 12 points.
int PixelHeight(HDC dc, const LOGFONTA& font) {
    if (font.lfHeight == 0) {
        return dc->GetDeviceCaps(LOGPIXELSY) / 6;
    }
    CSize size(0, font.lfHeight);
    dc->LPtoDP(&size);
    return font.lfHeight < 0 ? -std::abs(size.cy) : std::abs(size.cy);
}

// A GLU tessellator that writes filled triangles into the display list being compiled.
class OutlineTessellator {
public:
    OutlineTessellator() : m_tess(gluNewTess()) {
        gluTessCallback(m_tess, GLU_TESS_BEGIN, reinterpret_cast<_GLUfuncptr>(&glBegin));
        gluTessCallback(m_tess, GLU_TESS_VERTEX, reinterpret_cast<_GLUfuncptr>(&glVertex3dv));
        gluTessCallback(m_tess, GLU_TESS_END, reinterpret_cast<_GLUfuncptr>(&glEnd));
        gluTessCallback(m_tess, GLU_TESS_COMBINE_DATA, reinterpret_cast<_GLUfuncptr>(&Combine));
        // With edge flags the tessellator gives separate triangles, each edge marked as on the
        // outline or inside: no fans, which Mesa's list compiler loses memory over when two
        // follow each other, and in GL_LINE mode a glyph shows its outline alone.
        gluTessCallback(m_tess, GLU_TESS_EDGE_FLAG, reinterpret_cast<_GLUfuncptr>(&glEdgeFlag));
        gluTessProperty(m_tess, GLU_TESS_WINDING_RULE, GLU_TESS_WINDING_NONZERO);
        gluTessNormal(m_tess, 0.0, 0.0, 1.0);
    }
    ~OutlineTessellator() { gluDeleteTess(m_tess); }
    OutlineTessellator(const OutlineTessellator&) = delete;
    OutlineTessellator& operator=(const OutlineTessellator&) = delete;

    // The contours of `path` (pixels, y down), scaled to ems with y up.
    void Fill(const QPainterPath& path) {
        const QList<QPolygonF> contours = path.toSubpathPolygons();
        if (contours.isEmpty()) {
            return;
        }
        gluTessBeginPolygon(m_tess, &m_vertices);
        for (const QPolygonF& contour : contours) {
            gluTessBeginContour(m_tess);
            // A closed subpath repeats its first point at the end.
            const qsizetype n = contour.size() > 1 && contour.first() == contour.last()
                                    ? contour.size() - 1
                                    : contour.size();
            for (qsizetype i = 0; i < n; ++i) {
                auto& v = m_vertices.emplace_back(std::array<GLdouble, 3>{
                    contour[i].x() / kOutlineEm, -contour[i].y() / kOutlineEm, 0.0});
                gluTessVertex(m_tess, v.data(), v.data());
            }
            gluTessEndContour(m_tess);
        }
        gluTessEndPolygon(m_tess);
        m_vertices.clear();
    }

private:
    using Vertices = std::deque<std::array<GLdouble, 3>>;

    // Where contours cross, the tessellator asks for a new vertex; it lives until the glyph is
    // done.
    static void Combine(const GLdouble coordinates[3], void* [4], const GLfloat[4], void** out,
                        void* data) {
        auto& vertex = static_cast<Vertices*>(data)->emplace_back(
            std::array<GLdouble, 3>{coordinates[0], coordinates[1], coordinates[2]});
        *out = vertex.data();
    }

    GLUtesselator* m_tess;
    Vertices m_vertices;
};

} // namespace

BOOL wglUseFontBitmaps(HDC dc, DWORD first, DWORD count, DWORD listBase) {
    if (dc == nullptr) {
        return FALSE;
    }
    const LOGFONTA font = SelectedFont(dc);
    const QFont qfont = seisplot::BitmapFont(font, PixelHeight(dc, font));
    // The bitmaps are read when each list is compiled: tightly packed rows, whatever the
    // caller's unpacking state.
    glPushClientAttrib(GL_CLIENT_PIXEL_STORE_BIT);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glPixelStorei(GL_UNPACK_ROW_LENGTH, 0);
    glPixelStorei(GL_UNPACK_SKIP_ROWS, 0);
    glPixelStorei(GL_UNPACK_SKIP_PIXELS, 0);
    glPixelStorei(GL_UNPACK_LSB_FIRST, GL_FALSE);
    glPixelStorei(GL_UNPACK_SWAP_BYTES, GL_FALSE);
    for (DWORD i = 0; i < count; ++i) {
        const seisplot::GlyphBitmap glyph =
            seisplot::RenderBitmapGlyph(qfont, font, static_cast<unsigned char>(first + i));
        glNewList(listBase + i, GL_COMPILE);
        // A glyph without ink still needs bits to point at, or the move is lost.
        static constexpr GLubyte none = 0;
        glBitmap(glyph.width, glyph.height, glyph.xOrigin, glyph.yOrigin, glyph.advance, 0.0F,
                 glyph.rows.empty() ? &none : glyph.rows.data());
        glEndList();
    }
    glPopClientAttrib();
    return TRUE;
}

BOOL wglUseFontOutlines(HDC dc, DWORD first, DWORD count, DWORD listBase, FLOAT /*deviation*/,
                        FLOAT extrusion, int format, LPGLYPHMETRICSFLOAT metrics) {
    if (dc == nullptr || format != WGL_FONT_POLYGONS || extrusion != 0.0F) {
        return FALSE;
    }
    const LOGFONTA font = SelectedFont(dc);
    const QFont qfont = QtFontOf(font, -static_cast<int>(kOutlineEm));
    const QFontMetricsF fontMetrics(qfont);
    OutlineTessellator tessellator;
    for (DWORD i = 0; i < count; ++i) {
        const char c = static_cast<char>(first + i);
        const QString text = QtTextOf(font, CString(&c, 1));
        QPainterPath path;
        path.addText(0.0, 0.0, qfont, text);
        const double advance = fontMetrics.horizontalAdvance(text) / kOutlineEm;

        glNewList(listBase + i, GL_COMPILE);
        tessellator.Fill(path);
        glTranslated(advance, 0.0, 0.0);
        glEndList();

        if (metrics != nullptr) {
            const QRectF ink = path.boundingRect();
            metrics[i] = {static_cast<FLOAT>(ink.width() / kOutlineEm),
                          static_cast<FLOAT>(ink.height() / kOutlineEm),
                          {static_cast<FLOAT>(ink.left() / kOutlineEm),
                           static_cast<FLOAT>(-ink.top() / kOutlineEm)},
                          static_cast<FLOAT>(advance),
                          0.0F};
        }
    }
    return TRUE;
}
