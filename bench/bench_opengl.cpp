// Speed of the OpenGL twins on Mesa's software renderer, into a 1024 by 768 headless picture:
// 100 000 short lines, 10 000 concave twelve-vertex polygons through the tessellator, the building
// of a bitmap and of an outline font, and a line of outline text. The renderer works on
// threads of its own, so the time is the wall clock's.

#include "draw/font/SFont.h"
#include "draw/ogl/AreasOGL.h"
#include "draw/ogl/LinesOGL.h"
#include "draw/ogl/TextOGL.h"
#include "platform/gl/HeadlessGLContext.h"

#include <GL/gl.h>
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstring>
#include <numbers>
#include <vector>

namespace {

// 1024 by 768 pixels at 96 dpi, in hundredths of a millimetre.
constexpr int kWidth = 27093;
constexpr int kHeight = 20320;

// The i-th of a sequence spread evenly over 0 to range - 1.
int Spread(int i, long long step, int range) {
    return static_cast<int>(i * step % range);
}

seisplot::HeadlessGLContext& Picture() {
    static seisplot::HeadlessGLContext gl(1024, 768);
    gl.MakeCurrent();
    gl.UseHimetric();
    return gl;
}

void Lines(benchmark::State& state) {
    Picture();
    constexpr int count = 100000;
    for (auto _ : state) {
        for (int i = 0; i < count; ++i) {
            // Members of a structural drawing: up to 5 mm long, every direction, all over
            // the picture.
            const CPoint from(Spread(i, 7919, kWidth), Spread(i, 104729, kHeight));
            const CPoint to(from.x + 500 - i % 1000, from.y + i % 500);
            lineOGL(from, to, 0x336699, 1);
        }
        glFinish();
    }
    state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(Lines)->Unit(benchmark::kMillisecond)->UseRealTime();

// A six-pointed star, 20 mm across, somewhere on the picture.
std::vector<CPoint> Star(int i) {
    const CPoint centre(1000 + (i * 7919) % (kWidth - 2000),
                        1000 + (i * 104729) % (kHeight - 2000));
    std::vector<CPoint> points;
    for (int k = 0; k < 12; ++k) {
        const double r = k % 2 == 0 ? 1000.0 : 500.0;
        const double a = k * std::numbers::pi / 6;
        points.emplace_back(centre.x + static_cast<int>(r * std::cos(a)),
                            centre.y + static_cast<int>(r * std::sin(a)));
    }
    return points;
}

void TessellatedPolygons(benchmark::State& state) {
    Picture();
    constexpr int count = 10000;
    std::vector<std::vector<CPoint>> stars;
    for (int i = 0; i < 64; ++i) {
        stars.push_back(Star(i));
    }
    for (auto _ : state) {
        for (int i = 0; i < count; ++i) {
            polygonTessOGL(stars[i % 64].data(), 12, 0x00C0FF, 0x000080, 20);
        }
        glFinish();
    }
    state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(TessellatedPolygons)->Unit(benchmark::kMillisecond)->UseRealTime();

SFont Font() {
    SFont font(12, 0);
    std::strcpy(font.lfFaceName, "DejaVu Sans");
    return font;
}

void BitmapFont(benchmark::State& state) {
    Picture();
    SFont font = Font();
    for (auto _ : state) {
        int base = 0;
        InitializeFontOGL(font, &base);
        CloseFontOGL(base);
    }
}
BENCHMARK(BitmapFont)->Unit(benchmark::kMillisecond)->UseRealTime();

void OutlineFont(benchmark::State& state) {
    Picture();
    SFont font = Font();
    for (auto _ : state) {
        int base = 0;
        double size = 0.0;
        InitializeFontOGL(font, &base, &size);
        CloseFontOGL(base);
    }
}
BENCHMARK(OutlineFont)->Unit(benchmark::kMillisecond)->UseRealTime();

// One 40-character line of 12-point outline text.
void OutlineText(benchmark::State& state) {
    Picture();
    SFont font = Font();
    int base = 0;
    double size = 0.0;
    InitializeFontOGL(font, &base, &size);
    for (auto _ : state) {
        DrawTextOGL(base, "Response spectrum, 5 % damping, EC8 soil", CPoint(1000, 10000), 0, size);
        glFinish();
    }
    state.SetItemsProcessed(state.iterations());
    CloseFontOGL(base);
}
BENCHMARK(OutlineText)->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace

BENCHMARK_MAIN();
