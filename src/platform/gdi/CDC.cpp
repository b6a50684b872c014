#include "platform/gdi/CDC.h"

#include "platform/core/FailureInjection.h"
#include "platform/gdi/GuiApplication_p.h"
#include "platform/gdi/Surface_p.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <numbers>
#include <utility>

using seisplot::DrawCall;
using seisplot::DrawOp;

struct CDC::State {
    std::shared_ptr<seisplot::Surface> surface;
    bool memory = false;
    int memoryDpi = 96;
    CBitmap* bitmap = nullptr;

    int mapMode = MM_TEXT;
    CPoint windowOrg;
    CPoint viewportOrg;
    seisplot::DeviceClip clip;

    CPen* pen = CPen::FromStock(BLACK_PEN);
    seisplot::PenAttributes penAttributes;
    CBrush* brush = CBrush::FromStock(WHITE_BRUSH);
    seisplot::BrushAttributes brushAttributes{BS_SOLID, 0xFFFFFF, 0, nullptr};
    CFont* font = CFont::FromStock(SYSTEM_FONT);
    LOGFONTA fontAttributes = CFont::FromStock(SYSTEM_FONT)->Attributes();

    int rop2 = R2_COPYPEN;
    int bkMode = OPAQUE;
    COLORREF bkColor = 0xFFFFFF;
    COLORREF textColor = 0;
    UINT textAlign = TA_LEFT | TA_TOP | TA_NOUPDATECP;
    CPoint position;

    // What the surface is, read once when it is attached, and the scales of the mapping mode.
    seisplot::DeviceCaps caps;
    double scaleX = 1.0; // device pixels per logical unit
    double scaleY = 1.0; // negative where y points up
    // The call being resolved, kept so that its point lists are not allocated per call.
    mutable DrawCall call;

    const seisplot::DeviceCaps& Caps() const { return caps; }
    double ScaleX() const { return scaleX; }
    double ScaleY() const { return scaleY; }

    void Attach(std::shared_ptr<seisplot::Surface> to) {
        surface = std::move(to);
        caps = surface ? surface->Caps() : seisplot::DeviceCaps{};
        UpdateScales();
    }
    void UpdateScales() {
        const double units = mapMode == MM_LOMETRIC ? 254.0 : mapMode == MM_HIMETRIC ? 2540.0 : 0.0;
        scaleX = units == 0.0 ? 1.0 : caps.dpiX / units;
        scaleY = units == 0.0 ? 1.0 : -caps.dpiY / units;
    }
    void ClipChanged() {
        static std::atomic<unsigned> generations{0};
        clip.generation = ++generations;
    }
};

namespace {

LONG RoundToLong(double v) {
    return static_cast<LONG>(std::lround(v));
}

} // namespace

CDC::CDC() : m_state(std::make_unique<State>()) {}

CDC::CDC(std::shared_ptr<seisplot::Surface> surface) : CDC() {
    m_state->Attach(std::move(surface));
    m_bPrinting = m_state->Caps().printing;
}

CDC::~CDC() = default;

bool CDC::HasSurface() const {
    return m_state->surface != nullptr;
}

const std::shared_ptr<seisplot::Surface>& CDC::GetSurface() const {
    return m_state->surface;
}

BOOL CDC::CreateCompatibleDC(CDC* dc) {
    if (HasSurface() || seisplot::ShouldFail(seisplot::FailurePoint::MemoryContext)) {
        return FALSE;
    }
    *m_state = State{};
    m_state->memory = true;
    m_state->memoryDpi =
        dc != nullptr && dc->HasSurface() ? dc->m_state->Caps().dpiX : seisplot::ScreenDpi();
    m_state->bitmap = CBitmap::DefaultMemoryBitmap();
    m_state->Attach(seisplot::MakeImageSurface(m_state->bitmap->Pixels(), m_state->memoryDpi));
    return TRUE;
}

BOOL CDC::DeleteDC() {
    if (!HasSurface()) {
        return FALSE;
    }
    m_state->surface->Finish();
    *m_state = State{};
    return TRUE;
}

int CDC::GetDeviceCaps(int index) const {
    const auto caps = m_state->Caps();
    switch (index) {
    case HORZRES:
        return caps.width;
    case VERTRES:
        return caps.height;
    case HORZSIZE:
        return static_cast<int>(std::lround(caps.width * 25.4 / caps.dpiX));
    case VERTSIZE:
        return static_cast<int>(std::lround(caps.height * 25.4 / caps.dpiY));
    case LOGPIXELSX:
        return caps.dpiX;
    case LOGPIXELSY:
        return caps.dpiY;
    case NUMCOLORS:
        return caps.numColors;
    case BITSPIXEL:
        return caps.numColors == 2 ? 1 : 32;
    case TECHNOLOGY:
        return caps.technology;
    default:
        return 0;
    }
}

bool CDC::IsMonochrome() const {
    return HasSurface() && static_cast<WORD>(m_state->Caps().numColors) <= 2;
}

int CDC::SetMapMode(int mode) {
    const int previous = m_state->mapMode;
    if (mode == MM_TEXT || mode == MM_LOMETRIC || mode == MM_HIMETRIC) {
        m_state->mapMode = mode;
        m_state->UpdateScales();
    }
    return previous;
}
int CDC::GetMapMode() const {
    return m_state->mapMode;
}

CPoint CDC::SetWindowOrg(int x, int y) {
    return std::exchange(m_state->windowOrg, CPoint(x, y));
}
CPoint CDC::SetViewportOrg(int x, int y) {
    return std::exchange(m_state->viewportOrg, CPoint(x, y));
}

CPoint CDC::ToDevice(int x, int y) const {
    const State& s = *m_state;
    return CPoint(RoundToLong((x - s.windowOrg.x) * s.ScaleX()) + s.viewportOrg.x,
                  RoundToLong((y - s.windowOrg.y) * s.ScaleY()) + s.viewportOrg.y);
}

void CDC::LPtoDP(LPPOINT points, int count) const {
    for (int i = 0; i < count; ++i) {
        points[i] = ToDevice(points[i].x, points[i].y);
    }
}
void CDC::LPtoDP(LPRECT rect) const {
    LPtoDP(reinterpret_cast<LPPOINT>(rect), 2);
}
void CDC::LPtoDP(LPSIZE size) const {
    size->cx = RoundToLong(size->cx * std::abs(m_state->ScaleX()));
    size->cy = RoundToLong(size->cy * std::abs(m_state->ScaleY()));
}

void CDC::DPtoLP(LPPOINT points, int count) const {
    const State& s = *m_state;
    for (int i = 0; i < count; ++i) {
        points[i].x = RoundToLong((points[i].x - s.viewportOrg.x) / s.ScaleX()) + s.windowOrg.x;
        points[i].y = RoundToLong((points[i].y - s.viewportOrg.y) / s.ScaleY()) + s.windowOrg.y;
    }
}
void CDC::DPtoLP(LPRECT rect) const {
    DPtoLP(reinterpret_cast<LPPOINT>(rect), 2);
}
void CDC::DPtoLP(LPSIZE size) const {
    size->cx = RoundToLong(size->cx / std::abs(m_state->ScaleX()));
    size->cy = RoundToLong(size->cy / std::abs(m_state->ScaleY()));
}

namespace {

CRect Intersection(const CRect& a, const CRect& b) {
    CRect r(std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom));
    return r.IsRectEmpty() ? CRect() : r;
}

int RegionKind(const seisplot::DeviceClip& clip) {
    const auto filled = std::count_if(clip.rects.begin(), clip.rects.end(),
                                      [](const CRect& r) { return !r.IsRectEmpty(); });
    return filled == 0 ? NULLREGION : filled == 1 ? SIMPLEREGION : COMPLEXREGION;
}

} // namespace

int CDC::IntersectClipRect(int left, int top, int right, int bottom) {
    CRect r(ToDevice(left, top), ToDevice(right, bottom));
    r.NormalizeRect();
    auto& clip = m_state->clip;
    if (!clip.active) {
        const auto caps = m_state->Caps();
        clip = {true, {CRect(0, 0, caps.width, caps.height)}};
    }
    for (CRect& c : clip.rects) {
        c = Intersection(c, r);
    }
    m_state->ClipChanged();
    return RegionKind(clip);
}

int CDC::SelectClipRgn(CRgn* region) {
    if (region == nullptr) {
        m_state->clip = {};
        m_state->ClipChanged();
        return SIMPLEREGION;
    }
    if (region->GetSafeHandle() == nullptr) {
        return ERROR; // a region never made (or deleted) leaves the clip as it was
    }
    m_state->clip = {true, region->Rects()};
    m_state->ClipChanged();
    return RegionKind(m_state->clip);
}

int CDC::GetClipBox(LPRECT rect) const {
    const auto caps = m_state->Caps();
    CRect box(0, 0, caps.width, caps.height);
    if (m_state->clip.active) {
        CRect bound;
        for (const CRect& c : m_state->clip.rects) {
            if (c.IsRectEmpty()) {
                continue;
            }
            bound = bound.IsRectEmpty()
                        ? c
                        : CRect(std::min(bound.left, c.left), std::min(bound.top, c.top),
                                std::max(bound.right, c.right), std::max(bound.bottom, c.bottom));
        }
        box = bound;
    }
    *rect = box;
    DPtoLP(rect);
    static_cast<CRect*>(rect)->NormalizeRect();
    return box.IsRectEmpty() ? NULLREGION : SIMPLEREGION;
}

CPen* CDC::SelectObject(CPen* pen) {
    if (pen == nullptr || pen->GetSafeHandle() == nullptr) {
        return nullptr;
    }
    m_state->penAttributes = pen->Attributes();
    return std::exchange(m_state->pen, pen);
}

CBrush* CDC::SelectObject(CBrush* brush) {
    if (brush == nullptr || brush->GetSafeHandle() == nullptr) {
        return nullptr;
    }
    m_state->brushAttributes = brush->Attributes();
    return std::exchange(m_state->brush, brush);
}

CFont* CDC::SelectObject(CFont* font) {
    if (font == nullptr || font->GetSafeHandle() == nullptr) {
        return nullptr;
    }
    m_state->fontAttributes = font->Attributes();
    return std::exchange(m_state->font, font);
}

CBitmap* CDC::SelectObject(CBitmap* bitmap) {
    if (!m_state->memory || bitmap == nullptr || bitmap->GetSafeHandle() == nullptr ||
        bitmap->Pixels() == nullptr) {
        return nullptr;
    }
    m_state->surface->Finish();
    m_state->Attach(seisplot::MakeImageSurface(bitmap->Pixels(), m_state->memoryDpi));
    return std::exchange(m_state->bitmap, bitmap);
}

CGdiObject* CDC::SelectObject(CGdiObject* object) {
    if (object == nullptr) {
        return nullptr;
    }
    switch (object->GetKind()) {
    case CGdiObject::Kind::Pen:
        return SelectObject(static_cast<CPen*>(object));
    case CGdiObject::Kind::Brush:
        return SelectObject(static_cast<CBrush*>(object));
    case CGdiObject::Kind::Font:
        return SelectObject(static_cast<CFont*>(object));
    case CGdiObject::Kind::Bitmap:
        return SelectObject(static_cast<CBitmap*>(object));
    case CGdiObject::Kind::Region:
        SelectClipRgn(static_cast<CRgn*>(object));
        return nullptr;
    }
    return nullptr;
}

CGdiObject* CDC::SelectStockObject(int index) {
    if (CPen* pen = CPen::FromStock(index)) {
        return SelectObject(pen);
    }
    if (CBrush* brush = CBrush::FromStock(index)) {
        return SelectObject(brush);
    }
    if (CFont* font = CFont::FromStock(index)) {
        return SelectObject(font);
    }
    return nullptr;
}

CPen* CDC::GetCurrentPen() const {
    return m_state->pen;
}
CBrush* CDC::GetCurrentBrush() const {
    return m_state->brush;
}
CFont* CDC::GetCurrentFont() const {
    return m_state->font;
}

int CDC::SetROP2(int mode) {
    return std::exchange(m_state->rop2, mode);
}
int CDC::GetROP2() const {
    return m_state->rop2;
}
int CDC::SetBkMode(int mode) {
    return std::exchange(m_state->bkMode, mode);
}
int CDC::GetBkMode() const {
    return m_state->bkMode;
}
COLORREF CDC::SetBkColor(COLORREF color) {
    return std::exchange(m_state->bkColor, color);
}
COLORREF CDC::GetBkColor() const {
    return m_state->bkColor;
}
COLORREF CDC::SetTextColor(COLORREF color) {
    return std::exchange(m_state->textColor, color);
}
COLORREF CDC::GetTextColor() const {
    return m_state->textColor;
}
UINT CDC::SetTextAlign(UINT flags) {
    return std::exchange(m_state->textAlign, flags);
}
UINT CDC::GetTextAlign() const {
    return m_state->textAlign;
}

int CDC::PenPixels(int width) const {
    return std::max(1, static_cast<int>(std::lround(width * std::abs(m_state->ScaleX()))));
}

int CDC::FontPixels(const LOGFONTA& font) const {
    // The stock font is a device font: its size (16 pixels on a 96 dpi screen, 12 points on
    // any device) does not follow the mapping mode.
    if (font.lfHeight == 0 || m_state->font == CFont::FromStock(SYSTEM_FONT)) {
        return std::max(1, m_state->Caps().dpiY / 6);
    }
    const int pixels = std::max(
        1, static_cast<int>(std::lround(std::abs(font.lfHeight) * std::abs(m_state->ScaleY()))));
    return font.lfHeight < 0 ? -pixels : pixels;
}

DrawCall& CDC::Resolve(DrawOp op, std::initializer_list<CPoint> logical) const {
    return Resolve(op, logical.begin(), logical.size());
}

DrawCall& CDC::Resolve(DrawOp op, const POINT* logical, std::size_t count) const {
    const State& s = *m_state;
    DrawCall& call = s.call;
    call.op = op;
    call.logical.assign(logical, logical + count);
    call.device.clear();
    for (const CPoint& p : call.logical) {
        call.device.push_back(ToDevice(p.x, p.y));
    }
    call.pen = s.penAttributes;
    call.penDeviceWidth = PenPixels(s.penAttributes.width);
    call.brush = s.brushAttributes;
    call.mapMode = s.mapMode;
    call.rop2 = s.rop2;
    call.bkMode = s.bkMode;
    call.bkColor = s.bkColor;
    call.textColor = s.textColor;
    call.textAlign = s.textAlign;
    call.font = s.fontAttributes;
    call.text.Empty();
    call.fontPixelHeight = 0;
    call.textAngle = 0.0;
    call.color = 0;
    call.rop = SRCCOPY;
    call.source = nullptr;
    call.sourceRect = CRect();
    return call;
}

void CDC::Submit(const DrawCall& call) {
    if (HasSurface()) {
        m_state->surface->Draw(call, m_state->clip);
    }
}

CPoint CDC::MoveTo(int x, int y) {
    return std::exchange(m_state->position, CPoint(x, y));
}
CPoint CDC::GetCurrentPosition() const {
    return m_state->position;
}

BOOL CDC::LineTo(int x, int y) {
    Submit(Resolve(DrawOp::Line, {m_state->position, CPoint(x, y)}));
    m_state->position = CPoint(x, y);
    return HasSurface();
}

BOOL CDC::Polygon(const POINT* points, int count) {
    if (points == nullptr || count < 2) {
        return FALSE;
    }
    Submit(Resolve(DrawOp::Polygon, points, static_cast<std::size_t>(count)));
    return HasSurface();
}

BOOL CDC::Rectangle(int x1, int y1, int x2, int y2) {
    Submit(Resolve(DrawOp::Rectangle, {CPoint(x1, y1), CPoint(x2, y2)}));
    return HasSurface();
}

BOOL CDC::Ellipse(int x1, int y1, int x2, int y2) {
    Submit(Resolve(DrawOp::Ellipse, {CPoint(x1, y1), CPoint(x2, y2)}));
    return HasSurface();
}

BOOL CDC::Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
    Submit(Resolve(DrawOp::Arc, {CPoint(x1, y1), CPoint(x2, y2), CPoint(x3, y3), CPoint(x4, y4)}));
    return HasSurface();
}

BOOL CDC::Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
    Submit(Resolve(DrawOp::Pie, {CPoint(x1, y1), CPoint(x2, y2), CPoint(x3, y3), CPoint(x4, y4)}));
    return HasSurface();
}

void CDC::FillSolidRect(LPCRECT rect, COLORREF color) {
    DrawCall& call = Resolve(DrawOp::Rectangle,
                             {CPoint(rect->left, rect->top), CPoint(rect->right, rect->bottom)});
    // The whole rectangle but its right and bottom edges: a one-pixel outline in the same
    // colour covers what a fill without a pen leaves out.
    call.pen = {PS_SOLID, 0, color};
    call.penDeviceWidth = 1;
    call.brush = {BS_SOLID, color, 0, nullptr};
    call.rop2 = R2_COPYPEN;
    Submit(call);
}

COLORREF CDC::SetPixel(int x, int y, COLORREF color) {
    DrawCall& call = Resolve(DrawOp::SetPixel, {CPoint(x, y)});
    call.color = color;
    Submit(call);
    return HasSurface() ? color : CLR_INVALID;
}

COLORREF CDC::GetPixel(int x, int y) const {
    return HasSurface() ? m_state->surface->GetPixel(ToDevice(x, y)) : CLR_INVALID;
}

BOOL CDC::TextOut(int x, int y, LPCTSTR text, int count) {
    if (text == nullptr || count < 0) {
        return FALSE;
    }
    const State& s = *m_state;
    const bool updateCp = (s.textAlign & TA_UPDATECP) != 0;
    DrawCall& call = Resolve(DrawOp::Text, {updateCp ? s.position : CPoint(x, y)});
    call.text = CString(text, count);
    call.fontPixelHeight = FontPixels(s.fontAttributes);
    // Escapement turns the text about its reference point; where y points up the turn
    // appears the other way round on the device.
    const double escapement = s.fontAttributes.lfEscapement / 10.0;
    call.textAngle = s.ScaleY() < 0 ? -escapement : escapement;
    Submit(call);
    if (updateCp && HasSurface()) {
        const double advance =
            s.surface->TextAdvance(s.fontAttributes, call.fontPixelHeight, call.text);
        const double a = call.textAngle * std::numbers::pi / 180.0;
        m_state->position.x += RoundToLong(advance * std::cos(a) / s.ScaleX());
        m_state->position.y += RoundToLong(-advance * std::sin(a) / s.ScaleY());
    }
    return HasSurface();
}

CSize CDC::GetTextExtent(LPCTSTR text, int count) const {
    if (!HasSurface() || text == nullptr) {
        return CSize(0, 0);
    }
    const State& s = *m_state;
    const int pixels = FontPixels(s.fontAttributes);
    const double width =
        s.surface->TextAdvance(s.fontAttributes, pixels, CString(text, std::max(0, count)));
    const seisplot::FontMeasure metrics = s.surface->MeasureFont(s.fontAttributes, pixels);
    const double height = metrics.ascent + metrics.descent;
    return CSize(RoundToLong(width / std::abs(s.ScaleX())),
                 RoundToLong(height / std::abs(s.ScaleY())));
}

BOOL CDC::GetTextMetrics(TEXTMETRICA* tm) const {
    if (tm == nullptr || !HasSurface()) {
        return FALSE;
    }
    const State& s = *m_state;
    const seisplot::FontMeasure metrics =
        s.surface->MeasureFont(s.fontAttributes, FontPixels(s.fontAttributes));
    const double sy = std::abs(s.ScaleY());
    const double sx = std::abs(s.ScaleX());
    tm->tmAscent = RoundToLong(metrics.ascent / sy);
    tm->tmDescent = RoundToLong(metrics.descent / sy);
    tm->tmHeight = tm->tmAscent + tm->tmDescent;
    tm->tmInternalLeading = std::max<LONG>(0, tm->tmHeight - RoundToLong(metrics.emPixels / sy));
    tm->tmExternalLeading = RoundToLong(metrics.leading / sy);
    tm->tmAveCharWidth = RoundToLong(metrics.averageWidth / sx);
    tm->tmMaxCharWidth = RoundToLong(metrics.maxWidth / sx);
    tm->tmWeight = s.fontAttributes.lfWeight == 0 ? FW_NORMAL : s.fontAttributes.lfWeight;
    tm->tmItalic = s.fontAttributes.lfItalic;
    tm->tmUnderlined = s.fontAttributes.lfUnderline;
    tm->tmStruckOut = s.fontAttributes.lfStrikeOut;
    tm->tmCharSet = s.fontAttributes.lfCharSet;
    return TRUE;
}

BOOL CDC::BitBlt(int x, int y, int width, int height, CDC* source, int xSrc, int ySrc, DWORD rop) {
    return StretchBlt(x, y, width, height, source, xSrc, ySrc, width, height, rop);
}

BOOL CDC::StretchBlt(int x, int y, int width, int height, CDC* source, int xSrc, int ySrc,
                     int widthSrc, int heightSrc, DWORD rop) {
    if (source == nullptr) {
        return FALSE;
    }
    DrawCall& call = Resolve(DrawOp::Blit, {CPoint(x, y), CPoint(x + width, y + height)});
    call.rop = rop;
    call.source = source;
    const CPoint a = source->ToDevice(xSrc, ySrc);
    const CPoint b = source->ToDevice(xSrc + widthSrc, ySrc + heightSrc);
    call.sourceRect = CRect(a.x, a.y, b.x, b.y);
    Submit(call);
    return HasSurface();
}

int CDC::StartDoc(LPCTSTR) {
    return HasSurface() ? 1 : -1;
}
int CDC::StartPage() {
    return HasSurface() ? 1 : -1;
}
int CDC::EndPage() {
    if (!HasSurface()) {
        return -1;
    }
    m_state->surface->NewPage();
    return 1;
}
int CDC::EndDoc() {
    if (!HasSurface()) {
        return -1;
    }
    m_state->surface->Finish();
    return 1;
}

BOOL GetTextExtentPoint32(HDC dc, LPCSTR text, int count, LPSIZE size) {
    if (dc == nullptr || size == nullptr) {
        return FALSE;
    }
    *size = dc->GetTextExtent(text, count);
    return TRUE;
}
