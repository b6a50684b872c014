// Text from font display lists, and the legend swatches, ring, bar and button faces drawn
// with the OpenGL twins.

#include "draw/ogl/TextOGL.h"

#include "draw/gdi/Figures_p.h"
#include "draw/ogl/AreasOGL.h"
#include "draw/ogl/GLDrawing_p.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <numbers>
#include <optional>

namespace {

using seisplot::ogl::SetColour;

GLsizei Length(const char* text) {
    return static_cast<GLsizei>(std::strlen(text));
}

// Bitmap text: the characters from the raster position on.
void BitmapText(int base, const char* text, int x, int y, unsigned long colour) {
    SetColour(colour);
    glRasterPos2i(x, y);
    glListBase(static_cast<GLuint>(base));
    glCallLists(Length(text), GL_UNSIGNED_BYTE, text);
}

// Outline text in a frame at (x, y) turned by `degrees` and scaled; `write` calls the lists.
template <typename Write>
void OutlineFrame(int x, int y, double degrees, double scale, unsigned long colour, Write write) {
    SetColour(colour);
    glPushMatrix();
    glTranslatef(static_cast<GLfloat>(x), static_cast<GLfloat>(y), 0.5F);
    glRotatef(static_cast<GLfloat>(degrees), 0.0F, 0.0F, 1.0F);
    glScalef(static_cast<GLfloat>(scale), static_cast<GLfloat>(scale), 1.0F);
    glPushAttrib(GL_LIST_BIT);
    write();
    glPopAttrib();
    glPopMatrix();
}

void OutlineText(int base, const char* text, int x, int y, double degrees, double scale,
                 unsigned long colour) {
    OutlineFrame(x, y, degrees, scale, colour, [&] {
        glListBase(static_cast<GLuint>(base));
        glCallLists(Length(text), GL_UNSIGNED_BYTE, text);
    });
}

// Each character from the symbol font's lists when its flag is set, else from the plain
// font's; the text is taken into a buffer of 200 bytes first.
void MixedCharacters(int plainBase, int symbolBase, const char* text, const char* flags) {
    char buffer[200] = {};
    std::strncpy(buffer, text, sizeof buffer - 1);
    for (GLsizei i = 0; i < Length(buffer); ++i) {
        glListBase(static_cast<GLuint>(flags[i] != 0 ? symbolBase : plainBase));
        glCallLists(1, GL_UNSIGNED_BYTE, &buffer[i]);
    }
}

double Degrees(double radians) {
    return radians * 180 / std::numbers::pi;
}

// A legend swatch of side S: the two halves, a white middle reaching `innerEighths` eighths of
// S either side of the centre and S/4 above and below it, the label and (when given) the
// number, in black.
void Swatch(unsigned long left, unsigned long right, const CString& label, CPoint centre, int size,
            int innerEighths, int base, std::optional<unsigned int> number, int numberBase) {
    const int s = size * 100;
    const CPoint a(centre.x - s / 2, centre.y - s / 2);
    const CPoint b(centre.x + s / 2, centre.y + s / 2);
    const int middle = (a.x + b.x) / 2;
    rectangleOGL(a, CPoint(middle, b.y), left, 2);
    rectangleOGL(CPoint(middle, a.y), b, right, 2);
    const int w = std::abs(b.x - a.x);
    const int h = std::abs(b.y - a.y);
    rectangleOGL(CPoint(centre.x - innerEighths * s / 8, centre.y - s / 4),
                 CPoint(centre.x + innerEighths * s / 8, centre.y + s / 4), 0xFFFFFF, 2);
    char firstNine[10] = {};
    std::strncpy(firstNine, label.GetString(), 9);
    BitmapText(base, firstNine, centre.x - w / 4, centre.y - h / 8, 0x000000);
    if (number) {
        char digits[12] = {};
        std::snprintf(digits, sizeof digits, "%u", *number);
        // On the lower coloured band, below the white middle.
        BitmapText(numberBase, digits, centre.x - w / 4, centre.y - 7 * h / 16, 0x000000);
    }
}

} // namespace

int DrawTextOGL(int base, const char* text, CPoint position, unsigned long colour) {
    BitmapText(base, text, position.x, position.y, colour);
    return 0;
}

int DrawTextOGL(int base, const char* text, CPoint position, unsigned long colour, double scale) {
    OutlineText(base, text, position.x, position.y, 0.0, scale, colour);
    return 0;
}

int OutTextCenteredOGL(int base, const char* text, int x, int y, unsigned long colour) {
    BitmapText(base, text, x, y, colour);
    return 0;
}

int OutTextCenteredOGL(int base, const char* text, int x, int y, double angle, double scale,
                       unsigned long colour) {
    OutlineText(base, text, x, y, angle, scale, colour);
    return 0;
}

int OutTextCenteredOGL(int plainBase, int symbolBase, const char* text, const char* symbolFlags,
                       int x, int y, unsigned long colour) {
    SetColour(colour);
    glRasterPos2i(x, y);
    MixedCharacters(plainBase, symbolBase, text, symbolFlags);
    return 0;
}

int OutTextCenteredOGL(int plainBase, int symbolBase, const char* text, const char* symbolFlags,
                       int x, int y, double angle, double scale, unsigned long colour) {
    OutlineFrame(x, y, angle, scale, colour,
                 [&] { MixedCharacters(plainBase, symbolBase, text, symbolFlags); });
    return 0;
}

int outxOGL(int base, const char* text, int x, int y, unsigned long colour) {
    BitmapText(base, text, x, y, colour);
    return 0;
}

int outxOGL(int base, const char* text, int x, int y, double angle, double scale,
            unsigned long colour) {
    OutlineText(base, text, x, y, Degrees(angle), scale, colour);
    return 0;
}

int outxROPOGL(int base, const char* text, int x, int y, unsigned long colour) {
    SetColour(colour);
    seisplot::ogl::Inverted([&] { outxOGL(base, text, x, y, colour); });
    return 0;
}

int outxROPOGL(int base, const char* text, int x, int y, double angle, double scale,
               unsigned long colour) {
    SetColour(colour);
    seisplot::ogl::Inverted([&] { outxOGL(base, text, x, y, angle, scale, colour); });
    return 0;
}

int draw_tempOGL(const CPoint& centre, unsigned long colour, int size) {
    seisplot::ogl::GLFigures figures;
    return seisplot::DrawTemp(figures, centre, colour, size);
}

int draw_barOGL(const CPoint& centre, int radius, double slope, double turn, int length) {
    seisplot::ogl::GLFigures figures;
    return seisplot::DrawBar(figures, centre, radius, slope, turn, length);
}

int buttonOGL(unsigned long faceColour, int /*unused*/, CRect rect) {
    seisplot::ogl::GLFigures figures;
    return seisplot::DrawButton(figures, faceColour, rect.left, rect.top, rect.right, rect.bottom);
}

int MixedRectOGL(unsigned int code, CString label, CPoint centre, int size, int base) {
    const auto [left, right] = seisplot::SwatchColours(code);
    Swatch(left, right, label, centre, size, 3, base, std::nullopt, 0);
    return 0;
}

int MixedRectOGL(unsigned int code, unsigned int number, CString label, CPoint centre, int size,
                 int base, int numberBase) {
    const auto [left, right] = seisplot::SwatchColours(code);
    Swatch(left, right, label, centre, size, 3, base, number, numberBase);
    return 0;
}

int FullRectOGL(unsigned int /*code*/, CString label, CPoint centre, int size, unsigned long colour,
                int base) {
    Swatch(colour, colour, label, centre, size, 2, base, std::nullopt, 0);
    return 0;
}

int FullRectOGL(unsigned int /*code*/, unsigned int number, CString label, CPoint centre, int size,
                unsigned long colour, int base, int numberBase) {
    Swatch(colour, colour, label, centre, size, 2, base, number, numberBase);
    return 0;
}
