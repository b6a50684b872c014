#pragma once
// What a device context draws on. Each call arrives resolved: device coordinates, the pen,
// brush, raster operation, colours and font in force, and the clip region.

#include "platform/gdi/DrawCall.h"

#include <QFont>

namespace seisplot {

struct PixelImage;

struct DeviceCaps {
    int width = 0; // pixels
    int height = 0;
    int dpiX = 96;
    int dpiY = 96;
    int numColors = -1; // -1: more than 256 colours; 2: monochrome
    int technology = DT_RASDISPLAY;
    bool printing = false;
};

class Surface {
public:
    virtual ~Surface() = default;
    virtual DeviceCaps Caps() const = 0;
    virtual void Draw(const DrawCall& call, const DeviceClip& clip) = 0;
    virtual COLORREF GetPixel(CPoint) const { return CLR_INVALID; }
    // The pixels, for surfaces that have them (a blit reads its source from here).
    virtual const PixelImage* Pixels() const { return nullptr; }
    virtual void NewPage() {}
    virtual void Finish() {}
};

// The Qt font for a logical font `pixelHeight` pixels high (face fallback included).
QFont QtFontOf(const LOGFONTA& font, int pixelHeight);
// The text as the font shows it: the "Symbol" face turns letters into Greek letters.
QString QtTextOf(const LOGFONTA& font, const CString& text);

// Dots per inch of the screen: what the primary screen says, 96 without one.
int ScreenDpi();

// A surface drawing on the pixels of a bitmap or window.
std::shared_ptr<Surface> MakeImageSurface(std::shared_ptr<PixelImage> pixels, int dpi);

} // namespace seisplot
