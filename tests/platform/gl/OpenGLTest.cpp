// The headless context (software renderer, picture orientation) and the font display lists
// (the GDI text's faces, outlines one em high, text measured as the bitmap lists draw it).

#include "platform/gdi/GdiObjects.h"
#include "platform/gl/CurrentDevice.h"
#include "platform/gl/FontDisplayLists.h"
#include "platform/gl/HeadlessGLContext.h"

#include "support/TempDir.h"

#include <GL/gl.h>
#include <QImage>
#include <gtest/gtest.h>

#include <cstring>
#include <string>

using seisplot::HeadlessGLContext;

namespace {

LOGFONTA Face(const char* name, LONG height) {
    LOGFONTA lf;
    lf.lfHeight = height;
    std::strcpy(lf.lfFaceName, name);
    return lf;
}

} // namespace

TEST(HeadlessGL, SoftwareRendererAndPictureRowsFromTheTop) {
    HeadlessGLContext gl(40, 30);
    EXPECT_EQ(wglGetCurrentDC(), &gl.Device());
    EXPECT_NE(std::string(reinterpret_cast<const char*>(glGetString(GL_RENDERER))).find("llvmpipe"),
              std::string::npos);
    EXPECT_EQ(gl.Device().GetDeviceCaps(HORZRES), 40);
    EXPECT_EQ(gl.Pixel(0, 0), 0xFFFFFFu); // a fresh picture is white

    // The lower-left quarter in red, in the millimetre projection.
    gl.UseHimetric();
    glColor3ub(255, 0, 0);
    glRecti(0, 0, 20 * 2540 / 96, 15 * 2540 / 96);
    EXPECT_EQ(gl.Pixel(0, 29), 0x0000FFu);
    EXPECT_EQ(gl.Pixel(19, 15), 0x0000FFu);
    EXPECT_EQ(gl.Pixel(20, 15), 0xFFFFFFu);
    EXPECT_EQ(gl.Pixel(0, 14), 0xFFFFFFu);

    seisplot::test::TempDir dir;
    const std::string path = dir.Path("picture.png");
    ASSERT_TRUE(gl.Save(CString(path.c_str())));
    const QImage saved(QString::fromStdString(path));
    EXPECT_EQ(saved.pixel(0, 29) & 0xFFFFFF, 0xFF0000u);
    EXPECT_EQ(saved.pixel(0, 0) & 0xFFFFFF, 0xFFFFFFu);

    gl.DoneCurrent();
    EXPECT_EQ(wglGetCurrentDC(), nullptr);
}

TEST(FontDisplayLists, OutlinesAreOneEmHighInTheFaceTheGdiTextUses) {
    HeadlessGLContext gl(16, 16);
    CDC& dc = gl.Device();
    const auto metricsOf = [&](const char* face, char c) {
        CFont font;
        const LOGFONTA lf = Face(face, 12);
        font.CreateFontIndirect(&lf);
        CFont* previous = dc.SelectObject(&font);
        const GLuint base = glGenLists(1);
        GLYPHMETRICSFLOAT metrics;
        EXPECT_TRUE(wglUseFontOutlines(&dc, static_cast<unsigned char>(c), 1, base, 0.0F, 0.0F,
                                       WGL_FONT_POLYGONS, &metrics));
        glDeleteLists(base, 1);
        dc.SelectObject(previous);
        return metrics;
    };
    // Arial is drawn in Liberation Sans: H is 1479 of 2048 units wide and 1409 high.
    const GLYPHMETRICSFLOAT arialH = metricsOf("Arial", 'H');
    EXPECT_NEAR(arialH.gmfCellIncX, 1479.0 / 2048, 1e-3);
    EXPECT_NEAR(arialH.gmfBlackBoxY, 1409.0 / 2048, 2e-3);
    EXPECT_NEAR(arialH.gmfptGlyphOrigin.y, 1409.0 / 2048, 2e-3); // the top of the ink
    // An unknown face is DejaVu Sans, whose capitals are 1493 units high.
    EXPECT_NEAR(metricsOf("No Such Face", 'H').gmfBlackBoxY, 1493.0 / 2048, 2e-3);
    EXPECT_FALSE(wglUseFontOutlines(&dc, 'H', 1, 1, 0.0F, 0.0F, WGL_FONT_LINES, nullptr));
}

TEST(FontDisplayLists, TheDeviceMeasuresTextAsTheBitmapListsDrawIt) {
    HeadlessGLContext gl(200, 40);
    CDC& dc = gl.Device();
    CFont font;
    const LOGFONTA lf = Face("DejaVu Sans", 15);
    font.CreateFontIndirect(&lf);
    CFont* previous = dc.SelectObject(&font);
    const GLuint base = glGenLists(128);
    ASSERT_TRUE(wglUseFontBitmaps(&dc, 0, 128, base));

    glMatrixMode(GL_PROJECTION);
    glOrtho(0, 200, 0, 40, -1, 1);
    const char* text = "Wall 7, il.";
    glColor3ub(0, 0, 0);
    glRasterPos2i(10, 10);
    glListBase(base);
    glCallLists(static_cast<GLsizei>(std::strlen(text)), GL_UNSIGNED_BYTE, text);
    GLfloat raster[4] = {};
    glGetFloatv(GL_CURRENT_RASTER_POSITION, raster);
    EXPECT_FLOAT_EQ(raster[0] - 10.0F, static_cast<GLfloat>(dc.GetTextExtent(CString(text)).cx));
    EXPECT_GT(dc.GetTextExtent(CString(text)).cx, 50);
    EXPECT_NE(gl.Pixels(), std::vector<COLORREF>(200 * 40, 0xFFFFFF)); // something was drawn
    dc.SelectObject(previous);
    glDeleteLists(base, 128);
}
