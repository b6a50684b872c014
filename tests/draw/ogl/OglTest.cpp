// The OpenGL twins read back from a headless picture: dashes, pie sweeps, ellipse segments,
// tessellated fills, inverting drawing, fonts and the state each twin leaves.

#include "draw/font/SFont.h"
#include "draw/gdi/DeviceConventions.h"
#include "draw/ogl/AreasOGL.h"
#include "draw/ogl/LinesOGL.h"
#include "draw/ogl/TextOGL.h"
#include "platform/core/ScriptedUserInterface.h"

#include "GLTestCanvas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>
#include <numbers>
#include <string>
#include <vector>

using seisplot::test::Feedback;
using seisplot::test::GLCanvas;

namespace {

constexpr COLORREF kWhite = 0xFFFFFF;
constexpr COLORREF kRed = 0x0000FF;
constexpr COLORREF kBlue = 0xFF0000;
constexpr COLORREF kGreen = 0x00FF00;

SFont Face(int height) {
    SFont font(height, 0);
    std::strcpy(font.lfFaceName, "DejaVu Sans");
    return font;
}

// The ink of everything but white: leftmost, rightmost, lowest and highest y (up).
struct Ink {
    int left = 1 << 20;
    int right = -1;
    int bottom = 1 << 20;
    int top = -1;
};

Ink InkOf(const GLCanvas& c) {
    Ink ink;
    const std::vector<COLORREF> pixels = c.gl.Pixels();
    for (int row = 0; row < GLCanvas::kHeight; ++row) {
        for (int x = 0; x < GLCanvas::kWidth; ++x) {
            if (pixels[static_cast<std::size_t>(row * GLCanvas::kWidth + x)] != kWhite) {
                const int y = GLCanvas::kHeight - 1 - row;
                ink = {std::min(ink.left, x), std::max(ink.right, x), std::min(ink.bottom, y),
                       std::max(ink.top, y)};
            }
        }
    }
    return ink;
}

} // namespace

TEST(Ogl, MixlineAlternatesEightPixelDashesOfTheTwoColours) {
    GLCanvas c;
    mixlineOGL(CPoint(10, 40), CPoint(110, 40), kRed, kBlue, 1); // the end pixel stays out
    for (int x = 10; x < 110; ++x) {
        EXPECT_EQ(c.At(x, 40), (x - 10) / 8 % 2 == 0 ? kRed : kBlue) << "x " << x;
    }
    EXPECT_EQ(c.At(110, 40), kWhite);
}

TEST(Ogl, PieSweepsWhicheverWayItsAnglesGoAndFillsTheSameQuarter) {
    const CPoint low(40, 30), high(140, 130), east(140, 80), north(90, 130);
    GLCanvas forward;
    pieOGL(low, high, east, north, kRed, 2);
    GLCanvas backward;
    pieOGL(low, high, north, east, kRed, 2);
    EXPECT_EQ(forward.gl.Pixels(), backward.gl.Pixels());
    EXPECT_EQ(forward.At(110, 100), kRed);   // inside the upper-right quarter
    EXPECT_EQ(forward.At(70, 100), kWhite);  // upper left
    EXPECT_EQ(forward.At(110, 60), kWhite);  // lower right
    EXPECT_EQ(forward.At(135, 125), kWhite); // beyond the rim
}

TEST(Ogl, EllipseIsALoopOf36SegmentsOrAFanOf36Triangles) {
    GLCanvas c;
    const double cx = 100.5, cy = 75.5, rx = 60.0, ry = 40.0; // window coordinates
    const auto rim = [&](int i) {
        const double a = i * std::numbers::pi / 18;
        return std::pair{cx + rx * std::cos(a), cy + ry * std::sin(a)};
    };
    const auto near = [](double x, double y, std::pair<double, double> p) {
        return std::abs(x - p.first) < 1e-3 && std::abs(y - p.second) < 1e-3;
    };

    const std::vector<GLfloat> loop =
        Feedback([] { ellipseOGL(CPoint(40, 35), CPoint(160, 115), kRed, 1, 10); });
    int segments = 0;
    for (std::size_t i = 0; i < loop.size(); i += 5) {
        ASSERT_TRUE(loop[i] == GL_LINE_TOKEN || loop[i] == GL_LINE_RESET_TOKEN);
        if (loop[i + 1] == loop[i + 3] && loop[i + 2] == loop[i + 4]) {
            continue; // the repeated first vertex closes nothing more
        }
        EXPECT_TRUE(near(loop[i + 1], loop[i + 2], rim(segments)) &&
                    near(loop[i + 3], loop[i + 4], rim((segments + 1) % 36)))
            << "segment " << segments;
        ++segments;
    }
    EXPECT_EQ(segments, 36);

    const std::vector<GLfloat> fan =
        Feedback([] { ellipseOGL(CPoint(40, 35), CPoint(160, 115), kRed, 2, 10); });
    std::vector<bool> rimSeen(36, false);
    int triangles = 0;
    for (std::size_t i = 0; i < fan.size(); i += 8, ++triangles) {
        ASSERT_EQ(fan[i], GL_POLYGON_TOKEN);
        ASSERT_EQ(fan[i + 1], 3.0F);
        int centres = 0;
        for (int v = 0; v < 3; ++v) {
            const GLfloat x = fan[i + 2 + 2 * v], y = fan[i + 3 + 2 * v];
            centres += near(x, y, {cx, cy}) ? 1 : 0;
            for (int k = 0; k < 36; ++k) {
                rimSeen[static_cast<std::size_t>(k)] =
                    rimSeen[static_cast<std::size_t>(k)] || near(x, y, rim(k));
            }
        }
        EXPECT_EQ(centres, 1) << "triangle " << triangles;
    }
    EXPECT_EQ(triangles, 36);
    EXPECT_EQ(std::count(rimSeen.begin(), rimSeen.end(), true), 36);
}

TEST(Ogl, TessellatedConcavePolygonFillsOnlyItsOwnArea) {
    // An L: a 100 by 30 foot and a 30 by 70 upright, 5100 pixel centres inside.
    CPoint l[] = {{20, 20}, {120, 20}, {120, 50}, {50, 50}, {50, 120}, {20, 120}};
    GLCanvas c;
    polygonTessOGL(l, 6, kBlue, kRed, 0);
    EXPECT_EQ(c.Count(kBlue), 5100);
    EXPECT_EQ(c.Count(kRed), 0);
    EXPECT_EQ(c.At(100, 100), kWhite); // the notch

    GLCanvas outlined;
    polygonTessOGL(l, 6, kBlue, kRed, 200);
    EXPECT_EQ(outlined.At(85, 20), kRed);
    EXPECT_EQ(outlined.At(50, 85), kRed);
    EXPECT_EQ(outlined.At(35, 35), kBlue);
    EXPECT_EQ(outlined.At(100, 100), kWhite);
}

TEST(Ogl, TessellationErrorIsShownAndTheDrawingGoesOn) {
    seisplot::ScriptedUserInterface ui;
    seisplot::ScopedUserInterface scope(ui);
    GLCanvas c;
    CPoint bowTie[] = {{20, 20}, {120, 120}, {120, 20}, {20, 120}};
    EXPECT_EQ(polygonTessOGL(bowTie, 4, kBlue, kRed, 0), 0);
    EXPECT_THAT(ui.MessageTexts(), testing::Contains(CString("Tessellation error: need combine "
                                                             "callback")));
}

TEST(Ogl, InvertingTwinsDrawnTwiceRestoreThePicture) {
    GLCanvas c;
    c.Fill(0, 0, 70, 150, 0x336699);
    c.Fill(70, 0, 140, 150, kGreen);
    const std::vector<COLORREF> before = c.gl.Pixels();
    int base = 0;
    SFont font = Face(16);
    InitializeFontOGL(font, &base);
    const std::vector<std::function<void()>> twins = {
        [] { lineXOGL(CPoint(10, 10), CPoint(190, 140), 300, kRed); },
        [] { lineXOGL(CPoint(10, 140), CPoint(190, 10)); },
        [] {
            glColor3ub(200, 100, 50);
            rectangleXOGL(CPoint(30, 30), CPoint(170, 120));
        },
        [] { DisplayROPCircleOGL(CPoint(100, 75), 20); },
        [&] { outxROPOGL(base, "XOR text", 20, 60, kWhite); },
    };
    for (std::size_t i = 0; i < twins.size(); ++i) {
        twins[i]();
        EXPECT_NE(c.gl.Pixels(), before) << "twin " << i;
        twins[i]();
        EXPECT_EQ(c.gl.Pixels(), before) << "twin " << i;
    }
    EXPECT_FALSE(glIsEnabled(GL_COLOR_LOGIC_OP));
    CloseFontOGL(base);
}

TEST(Ogl, TextStartsAtThePointInBothFontKinds) {
    SFont font = Face(20);
    {
        GLCanvas c;
        int base = 0;
        InitializeFontOGL(font, &base);
        OutTextCenteredOGL(base, "L", 50, 40, 0);
        const Ink ink = InkOf(c);
        EXPECT_EQ(ink.bottom, 40); // the baseline
        EXPECT_GE(ink.left, 50);
        EXPECT_LE(ink.left, 52); // the letter's left bearing
        CloseFontOGL(base);
    }
    {
        GLCanvas c;
        int base = 0;
        double size = 0.0;
        InitializeFontOGL(font, &base, &size);
        EXPECT_NEAR(size, 20 * 25.4 / 72 * 100, 1e-9);
        OutTextCenteredOGL(base, "L", 50, 40, 0.0, 30.0, 0);
        const Ink ink = InkOf(c);
        EXPECT_NEAR(ink.bottom, 40, 1);
        EXPECT_GE(ink.left, 50);
        EXPECT_LE(ink.left, 54);
        // DejaVu Sans capitals are 1493/2048 of the em high.
        EXPECT_NEAR(ink.top - ink.bottom + 1, 30 * 1493.0 / 2048, 1.0);
        CloseFontOGL(base);
    }
    SFont twelve(12, 0);
    GLCanvas c;
    int base = 0;
    double size = 0.0;
    InitializeFontOGL(twelve, &base, &size);
    EXPECT_NEAR(size, 423.33, 0.005);
    CloseFontOGL(base);
}

TEST(Ogl, ClosingAFontFreesAllItsListsAndNoOther) {
    GLCanvas c;
    SFont font = Face(12);
    int bitmap = 0;
    int outline = 0;
    double size = 0.0;
    InitializeFontOGL(font, &bitmap);
    InitializeFontOGL(font, &outline, &size);
    const GLuint other = glGenLists(1);
    glNewList(other, GL_COMPILE);
    glEndList();
    const auto lists = [](int base, int count) {
        int n = 0;
        for (int i = 0; i < count; ++i) {
            n += glIsList(static_cast<GLuint>(base + i)) ? 1 : 0;
        }
        return n;
    };
    ASSERT_EQ(lists(bitmap, 128), 128);
    ASSERT_EQ(lists(outline, 256), 256);

    EXPECT_EQ(CloseFontOGL(bitmap), 0);
    EXPECT_EQ(lists(bitmap, 128), 0);
    EXPECT_EQ(lists(outline, 256), 256);
    EXPECT_TRUE(glIsList(other));

    // Another context numbers its lists from 1 again: closing there leaves this one's alone.
    {
        GLCanvas second;
        int base = 0;
        InitializeFontOGL(font, &base);
        CloseFontOGL(outline);
        EXPECT_EQ(lists(outline, 256), 0);
        CloseFontOGL(base);
    }
    c.gl.MakeCurrent();
    EXPECT_EQ(lists(outline, 256), 256);
    CloseFontOGL(outline);
    EXPECT_EQ(lists(outline, 256), 0);
    CloseFontOGL(static_cast<int>(other)); // not a font: nothing to release
    EXPECT_TRUE(glIsList(other));
}

TEST(Ogl, EachTwinLeavesLineWidthPolygonModeAndLogicOperationAsDocumented) {
    GLCanvas c;
    CPoint square[] = {{10, 10}, {60, 10}, {60, 60}, {10, 60}};
    const GLfloat wide = static_cast<GLfloat>(Logical2Pixels(300));
    struct Case {
        const char* name;
        std::function<void()> draw;
        GLfloat width; // 0: the width found (2.5)
        GLint front;
        GLint back;
    };
    const Case cases[] = {
        {"lineOGL", [] { lineOGL(CPoint(0, 0), CPoint(50, 50), kRed, 300); }, 1.0F, GL_FILL,
         GL_FILL},
        {"lineXOGL", [] { lineXOGL(CPoint(0, 0), CPoint(50, 50), 300, kRed); }, 1.0F, GL_FILL,
         GL_FILL},
        {"mixlineOGL", [] { mixlineOGL(CPoint(0, 0), CPoint(50, 50), kRed, kBlue, 300); }, 1.0F,
         GL_FILL, GL_FILL},
        {"layer_lineOGL -1",
         [] { layer_lineOGL(CPoint(0, 0), CPoint(50, 50), -1.0, 1, nullptr, 300); }, wide, GL_FILL,
         GL_FILL},
        {"triangleOGL 1", [] { triangleOGL(kRed, 1, 0, 0, 50, 0, 0, 50); }, 0.0F, GL_LINE, GL_LINE},
        {"rectangleOGL width", [] { rectangleOGL(CPoint(0, 0), CPoint(50, 50), kRed, 1, 300); },
         0.0F, GL_LINE, GL_LINE},
        {"polygonOGL", [&] { polygonOGL(square, 4, kRed, kBlue, 300); }, wide, GL_LINE, GL_FILL},
        {"polygonTessOGL", [&] { polygonTessOGL(square, 4, kRed, kBlue, 300); }, 0.0F, GL_FILL,
         GL_FILL},
        {"ellipseOGL 1", [] { ellipseOGL(CPoint(0, 0), CPoint(50, 50), kRed, 1, 300); }, wide,
         GL_LINE, GL_LINE},
        {"DisplayROPCircleOGL", [] { DisplayROPCircleOGL(CPoint(50, 50), 5); }, 0.0F, GL_FILL,
         GL_FILL},
    };
    for (const Case& k : cases) {
        glLineWidth(2.5F);
        glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
        glDisable(GL_POLYGON_OFFSET_FILL);
        k.draw();
        GLfloat width = 0.0F;
        glGetFloatv(GL_LINE_WIDTH, &width);
        GLint modes[2] = {};
        glGetIntegerv(GL_POLYGON_MODE, modes);
        EXPECT_FLOAT_EQ(width, k.width == 0.0F ? 2.5F : k.width) << k.name;
        EXPECT_EQ(modes[0], k.front) << k.name;
        EXPECT_EQ(modes[1], k.back) << k.name;
        EXPECT_FALSE(glIsEnabled(GL_COLOR_LOGIC_OP)) << k.name;
        EXPECT_FALSE(glIsEnabled(GL_LINE_STIPPLE)) << k.name;
        EXPECT_EQ(glIsEnabled(GL_POLYGON_OFFSET_FILL), k.name == std::string("polygonOGL"))
            << k.name;
        EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR)) << k.name;
    }
}
