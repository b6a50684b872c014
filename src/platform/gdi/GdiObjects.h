#pragma once
// Pens, brushes, fonts, bitmaps and regions of the drawing framework.
//
// Each object holds its attributes by value and a device context copies them when the object
// is selected. As in the framework, an object must outlive its selection: a context hands the
// selected object back from SelectObject, and the caller selects it again. Every created
// object is counted until it is deleted, so tests can prove nothing leaks.

#include "platform/gdi/GdiTypes.h"

#include <memory>
#include <vector>

class CDC;

namespace seisplot {

struct PixelImage; // the pixels of a bitmap (private)

struct PenAttributes {
    int style = PS_SOLID;
    int width = 0; // logical units
    COLORREF color = 0;
    bool operator==(const PenAttributes&) const = default;
};

struct BrushAttributes {
    int style = BS_SOLID;
    COLORREF color = 0;
    int hatch = 0;
    std::shared_ptr<const PixelImage> pattern; // BS_PATTERN: 0 bits text colour, 1 bits background
};

// How many pens, brushes, fonts, bitmaps and regions are created and not yet deleted.
int LiveGdiObjects();

// Makes every object creation after the next `successes` ones fail, as when the system runs
// out of resources; a negative count makes creation succeed again.
void FailGdiCreationAfter(int successes);

} // namespace seisplot

class CGdiObject {
public:
    enum class Kind { Pen, Brush, Font, Bitmap, Region };

    CGdiObject(const CGdiObject&) = delete;
    CGdiObject& operator=(const CGdiObject&) = delete;
    virtual ~CGdiObject();

    Kind GetKind() const { return m_kind; }
    // Non-null once created (a stock object always is).
    const void* GetSafeHandle() const { return m_created ? this : nullptr; }
    BOOL DeleteObject();

protected:
    explicit CGdiObject(Kind kind) : m_kind(kind) {}
    // Claims a handle: false when creation fails or the object already holds one.
    bool Create();
    void MarkStock() { m_created = true, m_stock = true; }

private:
    Kind m_kind;
    bool m_created = false;
    bool m_stock = false;
};

class CPen : public CGdiObject {
public:
    CPen() : CGdiObject(Kind::Pen) {}
    // Throws CResourceException* when the pen cannot be created.
    CPen(int style, int width, COLORREF color);
    BOOL CreatePen(int style, int width, COLORREF color);
    const seisplot::PenAttributes& Attributes() const { return m_attributes; }
    static CPen* FromStock(int index);

private:
    seisplot::PenAttributes m_attributes;
};

class CBitmap;

class CBrush : public CGdiObject {
public:
    CBrush() : CGdiObject(Kind::Brush) {}
    explicit CBrush(COLORREF color); // throws CResourceException* on failure
    BOOL CreateSolidBrush(COLORREF color);
    BOOL CreateHatchBrush(int hatchStyle, COLORREF color);
    BOOL CreatePatternBrush(CBitmap* bitmap);
    const seisplot::BrushAttributes& Attributes() const { return m_attributes; }
    static CBrush* FromStock(int index);

private:
    seisplot::BrushAttributes m_attributes;
};

class CFont : public CGdiObject {
public:
    CFont() : CGdiObject(Kind::Font) {}
    BOOL CreateFontIndirect(const LOGFONTA* logFont);
    const LOGFONTA& Attributes() const { return m_attributes; }
    static CFont* FromStock(int index);

private:
    LOGFONTA m_attributes;
};

struct BITMAP {
    LONG bmWidth = 0;
    LONG bmHeight = 0;
    WORD bmPlanes = 0;
    WORD bmBitsPixel = 0;
};

class CBitmap : public CGdiObject {
public:
    CBitmap();
    ~CBitmap() override;
    // `bits` (may be null) holds rows of `bitsPerPixel` per pixel, each row padded to 16 bits.
    // One bit per pixel makes a monochrome bitmap (1 = white); 24 or 32 make a colour one.
    BOOL CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel, const void* bits);
    // A bitmap in the format of what `dc` draws on: monochrome for a monochrome device.
    BOOL CreateCompatibleBitmap(CDC* dc, int width, int height);
    int GetBitmap(BITMAP* info) const;
    const std::shared_ptr<seisplot::PixelImage>& Pixels() const { return m_pixels; }
    static CBitmap* DefaultMemoryBitmap(); // the 1-by-1 monochrome bitmap of a new memory DC

private:
    std::shared_ptr<seisplot::PixelImage> m_pixels;
};

class CRgn : public CGdiObject {
public:
    CRgn() : CGdiObject(Kind::Region) {}
    // Coordinates are device units.
    BOOL CreateRectRgn(int left, int top, int right, int bottom);
    const std::vector<CRect>& Rects() const { return m_rects; }

private:
    std::vector<CRect> m_rects;
};
