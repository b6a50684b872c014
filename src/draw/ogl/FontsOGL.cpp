// Fonts as display lists. A font is handed out as the base of its lists only, so the library
// keeps how many lists each base has, per device (a device has one rendering context), and
// closing a font deletes exactly those.

#include "draw/font/SFont.h"
#include "draw/ogl/TextOGL.h"
#include "platform/gdi/CDC.h"
#include "platform/gl/CurrentDevice.h"
#include "platform/gl/FontDisplayLists.h"

#include <GL/gl.h>

#include <cmath>
#include <map>
#include <mutex>
#include <utility>

namespace {

constexpr int kBitmapLists = 128;
constexpr int kOutlineLists = 256;
constexpr BYTE kTrueTypeOnly = 7; // OUT_TT_ONLY_PRECIS
constexpr BYTE kAntialiased = 4;  // ANTIALIASED_QUALITY
constexpr double kPointInMillimetres = 0.35277777777777775;

class FontLists {
public:
    void Add(HDC dc, int base, int count) {
        const std::lock_guard lock(m_mutex);
        m_counts[{dc, base}] = count;
    }
    // The number of lists of the font, forgotten from now on; 0 for an unknown base.
    int Take(HDC dc, int base) {
        const std::lock_guard lock(m_mutex);
        const auto found = m_counts.find({dc, base});
        if (found == m_counts.end()) {
            return 0;
        }
        const int count = found->second;
        m_counts.erase(found);
        return count;
    }

private:
    std::mutex m_mutex;
    std::map<std::pair<HDC, int>, int> m_counts;
};

FontLists& Registry() {
    static FontLists lists;
    return lists;
}

// Creates the descriptor's font, selects it into the current device in MM_TEXT, builds
// `count` lists with `build` and puts the device back as it was.
template <typename Build> int MakeFont(const SFont& descriptor, int count, int* base, Build build) {
    *base = 0;
    const HDC dc = wglGetCurrentDC();
    if (dc == nullptr) {
        return 0;
    }
    LOGFONTA lf = descriptor.GetFont();
    lf.lfOutPrecision = kTrueTypeOnly;
    lf.lfQuality = kAntialiased;
    CFont font;
    font.CreateFontIndirect(&lf);
    const int previousMode = dc->SetMapMode(MM_TEXT);
    CFont* previousFont = dc->SelectObject(&font);
    const auto first = static_cast<int>(glGenLists(count));
    if (first != 0) {
        build(dc, static_cast<DWORD>(first));
        Registry().Add(dc, first, count);
        *base = first;
    }
    dc->SetMapMode(previousMode);
    dc->SelectObject(previousFont);
    return 0;
}

} // namespace

int InitializeFontOGL(SFont& font, int* base) {
    return MakeFont(font, kBitmapLists, base,
                    [](HDC dc, DWORD first) { wglUseFontBitmaps(dc, 0, kBitmapLists, first); });
}

int InitializeFontOGL(SFont& font, int* base, double* size) {
    *size = std::fabs(font.lfHeight * kPointInMillimetres) * 100;
    return MakeFont(font, kOutlineLists, base, [](HDC dc, DWORD first) {
        GLYPHMETRICSFLOAT metrics[kOutlineLists];
        wglUseFontOutlines(dc, 0, kOutlineLists, first, 0.0F, 0.0F, WGL_FONT_POLYGONS, metrics);
    });
}

int CloseFontOGL(int base) {
    const int count = Registry().Take(wglGetCurrentDC(), base);
    if (count > 0) {
        glDeleteLists(static_cast<GLuint>(base), count);
    }
    return 0;
}
