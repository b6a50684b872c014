#include "platform/gdi/GdiObjects.h"

#include "platform/core/Exceptions.h"
#include "platform/gdi/CDC.h"
#include "platform/gdi/Surface_p.h"

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
    m_attributes = {BS_PATTERN, 0, 0, seisplot::CopyPixels(*bitmap->Pixels())};
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
    auto pixels = seisplot::MakePixels(width, height, bitsPerPixel == 1, 0x000000);
    if (bits != nullptr) {
        seisplot::LoadPixelRows(*pixels, bits, static_cast<int>(bitsPerPixel));
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
    const CSize size = seisplot::PixelSize(*m_pixels);
    info->bmWidth = size.cx;
    info->bmHeight = size.cy;
    info->bmPlanes = 1;
    info->bmBitsPixel = seisplot::IsMonochrome(*m_pixels) ? 1 : 32;
    return static_cast<int>(sizeof(BITMAP));
}

CBitmap* CBitmap::DefaultMemoryBitmap() {
    static CBitmap bitmap;
    static const bool made = [] {
        // Made directly: a stock object is neither counted nor subject to creation failures.
        bitmap.m_pixels = seisplot::MakePixels(1, 1, true, 0x000000);
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
