#include "draw/gdi/DeviceConventions.h"

#include "platform/core/ResourceModule.h"
#include "platform/gl/CurrentDevice.h"

#include <algorithm>
#include <cmath>
#include <limits>

unsigned long col[16] = {
    0x000000, 0xBF0000, 0x00BF00, 0xBFBF00, 0x0000BF, 0xBF00BF, 0x368798, 0x808080,
    0xC0C0C0, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF,
};

unsigned long cold[38] = {
    0x000096, 0x009600, 0x960000, 0x009696, 0x969600, 0x960096, 0x969696, 0x0000C8,
    0x00C800, 0xC80000, 0x00C8C8, 0xC8C800, 0xC800C8, 0xC8C8C8, 0x0000FA, 0x00FA00,
    0xE10000, 0x00FAFA, 0xFAFA00, 0xFA00FA, 0x00C896, 0xC80096, 0x0096C8, 0x9600C8,
    0xC89600, 0x96C800, 0x00FA96, 0xFA0096, 0x0096FA, 0x9600FA, 0xFA9600, 0x96FA00,
    0x00FAC8, 0xFA00C8, 0x00C8FA, 0xC800FA, 0xFAC800, 0xC8FA00,
};

namespace {

// The horizontal size of the current OpenGL device: pixels across and millimetres across.
struct GLDeviceWidth {
    double pixels = 0.0;
    double millimetres = 0.0;
};

GLDeviceWidth CurrentGLDeviceWidth() {
    HDC dc = wglGetCurrentDC();
    if (dc == nullptr) {
        return {};
    }
    return {static_cast<double>(static_cast<unsigned>(dc->GetDeviceCaps(HORZRES))),
            static_cast<double>(static_cast<unsigned>(dc->GetDeviceCaps(HORZSIZE)))};
}

// The pair palette read from 1: entry 0 is white, entry k is cold[k - 1].
unsigned long PairColour(int k) {
    return k == 0 ? col[15] : cold[k - 1];
}

} // namespace

void DrawInit() {
    seisplot::LinkResourceModule(seisplot::LibraryModule());
}

double MM2Pixels(double millimetres) {
    const GLDeviceWidth w = CurrentGLDeviceWidth();
    return w.millimetres == 0.0 ? 0.0 : w.pixels * millimetres / w.millimetres;
}

double Pixels2MM(double pixels) {
    const GLDeviceWidth w = CurrentGLDeviceWidth();
    return w.pixels == 0.0 ? 0.0 : w.millimetres * pixels / w.pixels;
}

double Logical2Pixels(double logical) {
    return MM2Pixels(logical / GetMM_Multiplier(wglGetCurrentDC()));
}

double Pixels2Logical(double pixels) {
    return GetMM_Multiplier(wglGetCurrentDC()) * Pixels2MM(pixels);
}

int IsPrinting(HDC dc) {
    const int technology = dc->GetDeviceCaps(TECHNOLOGY);
    return technology == DT_PLOTTER || technology == DT_RASPRINTER;
}

int GetMM_Multiplier(HDC) {
    return 100;
}

unsigned long torgb(int index) {
    return col[index];
}

void getcolors(unsigned long, unsigned long* first, unsigned long* second, unsigned short pair) {
    constexpr int count = 38;
    const int i = pair;
    if (i < count) {
        *first = PairColour(i);
        *second = PairColour(i + 1);
    } else if (i == count) {
        *first = PairColour(count);
        *second = PairColour(1);
    } else {
        const int m = i % count;
        int n = m + 2;
        if (n > count) {
            n = m - 36;
        }
        *first = PairColour(m);
        *second = PairColour(n);
    }
}

double find_conv(double dx, double dy, double a, double b, double c, double d) {
    if (dy / dx > b * d / a / c) {
        return b * d / dy;
    }
    return a * c / dx;
}

int rnd(double x) {
    if (std::isnan(x)) {
        return 0;
    }
    constexpr double low = std::numeric_limits<int>::min();
    constexpr double high = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(x >= 0.0 ? x + 0.5 : x - 0.5, low, high));
}

namespace seisplot {

int UnitsPerMillimetre(const CDC* dc) {
    switch (dc->GetMapMode()) {
    case MM_HIMETRIC:
        return 100;
    case MM_LOMETRIC:
        return 10;
    default:
        return 0;
    }
}

CRect SetUpClientArea(const CWnd* wnd, CDC* dc) {
    dc->SetMapMode(MM_HIMETRIC);
    CRect area;
    wnd->GetClientRect(&area);
    dc->DPtoLP(&area);
    dc->SetWindowOrg(0, -area.bottom);
    // Converted again under the new origin.
    wnd->GetClientRect(&area);
    dc->DPtoLP(&area);
    return area;
}

} // namespace seisplot
