// draw_sheets <outdir>: renders the picture sheets of the drawing primitives and of their
// OpenGL twins (drawn headless) into <outdir>, so that a person can look at what each
// primitive draws.

#include "Sheets.h"

#include <cstdio>
#include <filesystem>

namespace {

constexpr int kWidthPixels = 1600;
constexpr int kHeightPixels = 1000;

// A sheet drawn with GDI, or with OpenGL.
struct SheetKind {
    const char* file;
    int columns;
    int rows;
    void (*draw)(drawsheets::Sheet&);
    void (*drawGL)(drawsheets::GLSheet&);
};

// One line per sheet.
constexpr SheetKind kSheets[] = {
    {"primitives.png", 6, 4, drawsheets::DrawPrimitivesSheet, nullptr},
    {"glyphs.png", 5, 4, drawsheets::DrawGlyphsSheet, nullptr},
    {"primitives-opengl.png", 6, 4, nullptr, drawsheets::DrawGLPrimitivesSheet},
    {"glyphs-opengl.png", 5, 4, nullptr, drawsheets::DrawGLGlyphsSheet},
};

bool Render(const SheetKind& kind, const std::string& path) {
    if (kind.drawGL != nullptr) {
        drawsheets::GLSheet sheet(kWidthPixels, kHeightPixels, kind.columns, kind.rows);
        kind.drawGL(sheet);
        return sheet.Save(path);
    }
    drawsheets::Sheet sheet(kWidthPixels, kHeightPixels, kind.columns, kind.rows);
    kind.draw(sheet);
    return sheet.Save(path);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: draw_sheets <outdir>\n");
        return 2;
    }
    const std::filesystem::path outdir = argv[1];
    std::error_code error;
    std::filesystem::create_directories(outdir, error);
    int failures = 0;
    for (const SheetKind& kind : kSheets) {
        const std::string path = (outdir / kind.file).string();
        if (Render(kind, path)) {
            std::printf("%s\n", path.c_str());
        } else {
            std::fprintf(stderr, "draw_sheets: cannot write %s\n", path.c_str());
            ++failures;
        }
    }
    return failures == 0 ? 0 : 1;
}
