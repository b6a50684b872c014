#pragma once
// The framework's device context: the whole drawing state (mapping mode and origins, clip
// region, selected pen, brush, font and bitmap, raster operation, background mode and
// colour, text colour and alignment, current position) and the drawing calls.
//
// The context maps logical to device coordinates itself and hands every call, with the
// state resolved, to the surface it draws on: an image (memory contexts and windows), a
// document (PDF for printing, SVG) or a recorder (tests).

#include "platform/core/CString.h"
#include "platform/gdi/DrawCall.h"
#include "platform/gdi/GdiObjects.h"

#include <memory>

namespace seisplot {
class Surface;
}

class CDC {
public:
    CDC();
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;
    virtual ~CDC();

    // A memory context compatible with `dc` (null: the screen, at the resolution the primary
    // screen reports, 96 dots per inch without one). It draws on the bitmap selected into it,
    // at first a 1-by-1 monochrome one.
    BOOL CreateCompatibleDC(CDC* dc);
    BOOL DeleteDC();

    // Non-zero on a printer: the framework's own flag, set by printing contexts.
    BOOL IsPrinting() const { return m_bPrinting; }
    BOOL m_bPrinting = FALSE;
    int GetDeviceCaps(int index) const;
    bool IsMonochrome() const;

    // Mapping
    int SetMapMode(int mode);
    int GetMapMode() const;
    CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT point) { return SetWindowOrg(point.x, point.y); }
    CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT point) { return SetViewportOrg(point.x, point.y); }
    void LPtoDP(LPPOINT points, int count = 1) const;
    void LPtoDP(LPRECT rect) const;
    void LPtoDP(LPSIZE size) const;
    void DPtoLP(LPPOINT points, int count = 1) const;
    void DPtoLP(LPRECT rect) const;
    void DPtoLP(LPSIZE size) const;

    // Clipping (the region is kept in device units, as the framework does)
    int IntersectClipRect(int left, int top, int right, int bottom);
    int IntersectClipRect(LPCRECT rect) {
        return IntersectClipRect(rect->left, rect->top, rect->right, rect->bottom);
    }
    int SelectClipRgn(CRgn* region); // null removes the clip region
    int GetClipBox(LPRECT rect) const;

    // Objects: each returns what was selected before
    CPen* SelectObject(CPen* pen);
    CBrush* SelectObject(CBrush* brush);
    CFont* SelectObject(CFont* font);
    CBitmap* SelectObject(CBitmap* bitmap);
    CGdiObject* SelectObject(CGdiObject* object);
    CGdiObject* SelectStockObject(int index);
    CPen* GetCurrentPen() const;
    CBrush* GetCurrentBrush() const;
    CFont* GetCurrentFont() const;

    // Attributes: each returns the previous value
    int SetROP2(int mode);
    int GetROP2() const;
    int SetBkMode(int mode);
    int GetBkMode() const;
    COLORREF SetBkColor(COLORREF color);
    COLORREF GetBkColor() const;
    COLORREF SetTextColor(COLORREF color);
    COLORREF GetTextColor() const;
    UINT SetTextAlign(UINT flags);
    UINT GetTextAlign() const;

    // Lines and figures, in logical units
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    CPoint GetCurrentPosition() const;
    BOOL LineTo(int x, int y); // the end pixel is not drawn
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    BOOL Polygon(const POINT* points, int count);
    BOOL Rectangle(int x1, int y1, int x2, int y2);
    BOOL Rectangle(LPCRECT rect) {
        return Rectangle(rect->left, rect->top, rect->right, rect->bottom);
    }
    BOOL Ellipse(int x1, int y1, int x2, int y2);
    BOOL Ellipse(LPCRECT rect) { return Ellipse(rect->left, rect->top, rect->right, rect->bottom); }
    // Arcs and pies run counter-clockwise, as seen, from the radial through (x3, y3) to the
    // radial through (x4, y4) of the ellipse in the box (x1, y1)-(x2, y2).
    BOOL Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    void FillSolidRect(LPCRECT rect, COLORREF color);
    COLORREF SetPixel(int x, int y, COLORREF color);
    COLORREF SetPixel(POINT point, COLORREF color) { return SetPixel(point.x, point.y, color); }
    COLORREF GetPixel(int x, int y) const;
    COLORREF GetPixel(POINT point) const { return GetPixel(point.x, point.y); }

    // Text, in the selected font
    BOOL TextOut(int x, int y, LPCTSTR text, int count);
    BOOL TextOut(int x, int y, const CString& text) {
        return TextOut(x, y, text.GetString(), text.GetLength());
    }
    CSize GetTextExtent(LPCTSTR text, int count) const;
    CSize GetTextExtent(const CString& text) const {
        return GetTextExtent(text.GetString(), text.GetLength());
    }
    BOOL GetTextMetrics(TEXTMETRICA* metrics) const;

    // Block transfers from another context, SRCCOPY or SRCINVERT
    BOOL BitBlt(int x, int y, int width, int height, CDC* source, int xSrc, int ySrc, DWORD rop);
    BOOL StretchBlt(int x, int y, int width, int height, CDC* source, int xSrc, int ySrc,
                    int widthSrc, int heightSrc, DWORD rop);

    // Documents (printing contexts; others accept and ignore them)
    int StartDoc(LPCTSTR name);
    int StartPage();
    int EndPage();
    int EndDoc();

    // The surface this context draws on (for back ends and blits).
    const std::shared_ptr<seisplot::Surface>& GetSurface() const;

protected:
    // A context on `surface`, as printing, recording and window contexts make it.
    explicit CDC(std::shared_ptr<seisplot::Surface> surface);

private:
    struct State;
    bool HasSurface() const;
    CPoint ToDevice(int x, int y) const;
    // The call with the context's state, in a buffer the context reuses.
    seisplot::DrawCall& Resolve(seisplot::DrawOp op, std::initializer_list<CPoint> logical) const;
    seisplot::DrawCall& Resolve(seisplot::DrawOp op, const POINT* logical, std::size_t count) const;
    void Submit(const seisplot::DrawCall& call);
    int PenPixels(int width) const;
    int FontPixels(const LOGFONTA& font) const;

    std::unique_ptr<State> m_state;
};

// Win32's text-extent call on a context.
BOOL GetTextExtentPoint32(HDC dc, LPCSTR text, int count, LPSIZE size);
