#include "platform/gdi/GdiObjects.h"

#include "platform/core/Exceptions.h"
#include "platform/gdi/CDC.h"
#include "platform/gdi/PixelImage_p.h"

#include <cstring>

namespace {

int g_live = 0;
int g_creationsLeft = -1; // negative: unlimited

} // namespace

namespace seisplot {

int LiveGdiObjects() {
    return g_live;
}

void FailGdiCreationAfter(int successes) {
    g_creationsLeft = successes;
}

} // namespace seisplot

CGdiObject::~CGdiObject() {
    DeleteObject();
}

bool CGdiObject::Create() {
    if (m_created || g_creationsLeft == 0) {
        return false;
    }
    if (g_creationsLeft > 0) {
        --g_creationsLeft;
    }
    m_created = true;
    ++g_live;
    return true;
}

BOOL CGdiObject::DeleteObject() {
    if (!m_created || m_stock) {
        return FALSE;
    }
    m_created = false;
    --g_live;
    return TRUE;
}

CPen::CPen(int style, int width, COLORREF color) : CGdiObject(Kind::Pen) {
    if (!CreatePen(style, width, color)) {
        AfxThrowResourceException();
    }
}

BOOL CPen::CreatePen(int style, int width, COLORREF color) {
    if (!Create()) {
        return FALSE;
    }
    m_attributes = {style, width, color};
    return TRUE;
}

CPen* CPen::FromStock(int index) {
    static CPen black, white, none;
    static const bool made = [] {
        for (CPen* p : {&black, &white, &none}) {
            p->MarkStock();
        }
        white.m_attributes.color = 0xFFFFFF;
        none.m_attributes.style = PS_NULL;
        return true;
    }();
    (void)made;
    switch (index) {
    case WHITE_PEN:
        return &white;
    case NULL_PEN:
        return &none;
    case BLACK_PEN:
        return &black;
    default:
        return nullptr;
    }
}

CBrush::CBrush(COLORREF color) : CGdiObject(Kind::Brush) {
    if (!CreateSolidBrush(color)) {
        AfxThrowResourceException();
    }
}

BOOL CBrush::CreateSolidBrush(COLORREF color) {
    if (!Create()) {
        return FALSE;
    }
    m_attributes = {BS_SOLID, color, 0, nullptr};
    return TRUE;
}

BOOL CBrush::CreateHatchBrush(int hatchStyle, COLORREF color) {
    if (!Create()) {
        return FALSE;
    }
    m_attributes = {BS_HATCHED, color, hatchStyle, nullptr};
    return TRUE;
}

BOOL CBrush::CreatePatternBrush(CBitmap* bitmap) {
    if (bitmap == nullptr || bitmap->Pixels() == nullptr || !Create()) {
        return FALSE;
    }
    // The brush keeps its own copy: the bitmap may change or go afterwards.
    m_attributes = {BS_PATTERN, 0, 0, std::make_shared<seisplot::PixelImage>(*bitmap->Pixels())};
    return TRUE;
}

CBrush* CBrush::FromStock(int index) {
    static CBrush white, black, none;
    static const bool made = [] {
        for (CBrush* b : {&white, &black, &none}) {
            b->MarkStock();
        }
        white.m_attributes.color = 0xFFFFFF;
        none.m_attributes.style = BS_NULL;
        return true;
    }();
    (void)made;
    switch (index) {
    case WHITE_BRUSH:
        return &white;
    case BLACK_BRUSH:
        return &black;
    case NULL_BRUSH:
        return &none;
    default:
        return nullptr;
    }
}

BOOL CFont::CreateFontIndirect(const LOGFONTA* logFont) {
    if (logFont == nullptr || !Create()) {
        return FALSE;
    }
    m_attributes = *logFont;
    m_attributes.lfFaceName[LF_FACESIZE - 1] = '\0';
    return TRUE;
}

int CFont::GetLogFont(LOGFONTA* logFont) const {
    if (logFont == nullptr || GetSafeHandle() == nullptr) {
        return 0;
    }
    *logFont = m_attributes;
    return static_cast<int>(sizeof(LOGFONTA));
}

CFont* CFont::FromStock(int index) {
    static CFont system;
    static const bool made = [] {
        system.MarkStock();
        system.m_attributes.lfHeight = 16;
        system.m_attributes.lfWeight = FW_BOLD;
        return true;
    }();
    (void)made;
    return index == SYSTEM_FONT ? &system : nullptr;
}

CBitmap::CBitmap() : CGdiObject(Kind::Bitmap) {}
CBitmap::~CBitmap() = default;

BOOL CBitmap::CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel,
                           const void* bits) {
    if (width <= 0 || height <= 0 || planes != 1 ||
        (bitsPerPixel != 1 && bitsPerPixel != 24 && bitsPerPixel != 32) || !Create()) {
        return FALSE;
    }
    auto pixels = std::make_shared<seisplot::PixelImage>();
    pixels->image = QImage(width, height, QImage::Format_RGB32);
    pixels->image.fill(Qt::black);
    pixels->monochrome = bitsPerPixel == 1;
    if (bits != nullptr) {
        const auto* bytes = static_cast<const unsigned char*>(bits);
        const int rowBytes = (width * static_cast<int>(bitsPerPixel) + 15) / 16 * 2;
        for (int y = 0; y < height; ++y) {
            const unsigned char* row = bytes + static_cast<std::ptrdiff_t>(y) * rowBytes;
            for (int x = 0; x < width; ++x) {
                QRgb c;
                if (bitsPerPixel == 1) {
                    c = (row[x / 8] >> (7 - x % 8)) & 1 ? qRgb(255, 255, 255) : qRgb(0, 0, 0);
                } else {
                    const int step = static_cast<int>(bitsPerPixel) / 8;
                    const unsigned char* p = row + x * step; // stored blue, green, red
                    c = qRgb(p[2], p[1], p[0]);
                }
                pixels->image.setPixel(x, y, c);
            }
        }
    }
    m_pixels = std::move(pixels);
    return TRUE;
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* dc, int width, int height) {
    const bool mono = dc != nullptr && dc->IsMonochrome();
    return CreateBitmap(width, height, 1, mono ? 1 : 32, nullptr);
}

int CBitmap::GetBitmap(BITMAP* info) const {
    if (info == nullptr || m_pixels == nullptr) {
        return 0;
    }
    info->bmWidth = m_pixels->image.width();
    info->bmHeight = m_pixels->image.height();
    info->bmPlanes = 1;
    info->bmBitsPixel = m_pixels->monochrome ? 1 : 32;
    return static_cast<int>(sizeof(BITMAP));
}

CBitmap* CBitmap::DefaultMemoryBitmap() {
    static CBitmap bitmap;
    static const bool made = [] {
        // Made directly: a stock object is neither counted nor subject to creation failures.
        auto pixels = std::make_shared<seisplot::PixelImage>();
        pixels->image = QImage(1, 1, QImage::Format_RGB32);
        pixels->image.fill(Qt::black);
        pixels->monochrome = true;
        bitmap.m_pixels = std::move(pixels);
        bitmap.MarkStock();
        return true;
    }();
    (void)made;
    return &bitmap;
}

BOOL CRgn::CreateRectRgn(int left, int top, int right, int bottom) {
    if (!Create()) {
        return FALSE;
    }
    CRect r(left, top, right, bottom);
    r.NormalizeRect();
    m_rects = {r};
    return TRUE;
}

BOOL CRgn::CreateRectRgnIndirect(const RECT* rect) {
    return rect != nullptr && CreateRectRgn(rect->left, rect->top, rect->right, rect->bottom);
}
