#pragma once
// What a device context draws on. Each call arrives resolved: device coordinates, the pen,
// brush, raster operation, colours and font in force, and the clip region.

#include "platform/gdi/CWnd.h"
#include "platform/gdi/DrawCall.h"

#include <memory>

namespace seisplot {

struct PixelImage; // the pixels of a bitmap or window (PixelImage_p.h)

struct DeviceCaps {
    int width = 0; // pixels
    int height = 0;
    int dpiX = 96;
    int dpiY = 96;
    int numColors = -1; // -1: more than 256 colours; 2: monochrome
    int technology = DT_RASDISPLAY;
    bool printing = false;
};

// How a font draws, in device pixels.
struct FontMeasure {
    double ascent = 0.0;
    double descent = 0.0;
    double leading = 0.0;
    double averageWidth = 0.0;
    double maxWidth = 0.0;
    int emPixels = 0; // the size of the font's em
};

class Surface {
public:
    virtual ~Surface() = default;
    virtual DeviceCaps Caps() const = 0;
    // Text is measured by what draws it, so that a surface with fonts of its own measures
    // what it shows. The default measures Qt's fonts, as the painted surfaces draw them.
    virtual FontMeasure MeasureFont(const LOGFONTA& font, int pixelHeight) const;
    virtual double TextAdvance(const LOGFONTA& font, int pixelHeight, const CString& text) const;
    virtual void Draw(const DrawCall& call, const DeviceClip& clip) = 0;
    virtual COLORREF GetPixel(CPoint) const { return CLR_INVALID; }
    // The pixels, for surfaces that have them (a blit reads its source from here).
    virtual const PixelImage* Pixels() const { return nullptr; }
    virtual void NewPage() {}
    virtual void Finish() {}
};

// A surface drawing on the pixels of a bitmap or window.
std::shared_ptr<Surface> MakeImageSurface(std::shared_ptr<PixelImage> pixels, int dpi);

// Pixels are made by the raster surface that draws on them: `width` by `height` in `fill`,
// colour or monochrome (a monochrome picture only ever holds black and white).
std::shared_ptr<PixelImage> MakePixels(int width, int height, bool monochrome, COLORREF fill);
// Loads rows of `bitsPerPixel` (1, 24 or 32) per pixel, each row padded to 16 bits: one bit
// per pixel with 1 white, or blue, green, red bytes.
void LoadPixelRows(PixelImage& pixels, const void* rows, int bitsPerPixel);
std::shared_ptr<PixelImage> CopyPixels(const PixelImage& pixels);
CSize PixelSize(const PixelImage& pixels);
PictureBits BitsOf(const PixelImage& pixels);
bool IsMonochrome(const PixelImage& pixels);
// Writes the pixels to an image file: `format` "PNG", "BMP", ..., or by the name's extension
// when null.
bool SavePixels(const PixelImage& pixels, const CString& path, const char* format);

} // namespace seisplot
