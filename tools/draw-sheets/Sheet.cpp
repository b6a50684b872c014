#include "Sheet.h"

#include "draw/gdi/DeviceConventions.h"

#include "platform/gdi/CWnd.h"

#include <cmath>
#include <cstring>

namespace drawsheets {
namespace {

constexpr int kLabelHeight = 330; // logical units of the label's characters
constexpr int kMargin = 150;

} // namespace

CPoint Cell::At(double fx, double fy) const {
    return CPoint(left + static_cast<int>(std::lround(fx * Width())),
                  bottom + static_cast<int>(std::lround(fy * Height())));
}

int Cell::Across(double f) const {
    return static_cast<int>(std::lround(f * Width()));
}

Sheet::Sheet(int widthPixels, int heightPixels, int columns, int rows)
    : m_columns(columns), m_rows(rows), m_widthPixels(widthPixels), m_heightPixels(heightPixels) {
    m_dc.CreateCompatibleDC(nullptr);
    m_bitmap.CreateBitmap(widthPixels, heightPixels, 1, 32, nullptr);
    m_previousBitmap = m_dc.SelectObject(&m_bitmap);
    const CRect all(0, 0, widthPixels, heightPixels);
    m_dc.FillSolidRect(&all, 0xFFFFFF);

    m_dc.SetMapMode(MM_HIMETRIC);
    CSize size(widthPixels, heightPixels);
    m_dc.DPtoLP(&size);
    m_width = size.cx;
    m_height = size.cy;
    m_dc.SetWindowOrg(0, m_height); // the bottom-left corner is (0, 0)

    LOGFONT font;
    font.lfHeight = -kLabelHeight;
    font.lfWeight = FW_NORMAL;
    std::strcpy(font.lfFaceName, "DejaVu Sans");
    m_labelFont.CreateFontIndirect(&font);
}

Sheet::~Sheet() {
    m_dc.SelectObject(m_previousBitmap);
}

Cell Sheet::Next(const char* label) {
    Frame(m_next, label);
    return Place(m_next++);
}

Cell Sheet::Place(int index) const {
    const int w = m_width / m_columns;
    const int h = m_height / m_rows;
    const int left = index % m_columns * w;
    const int top = m_height - index / m_columns * h;
    return {left + kMargin, top - h + kMargin, left + w - kMargin,
            top - kMargin - 2 * kLabelHeight};
}

void Sheet::Frame(int index, const char* label) {
    const int w = m_width / m_columns;
    const int h = m_height / m_rows;
    const int left = index % m_columns * w;
    const int top = m_height - index / m_columns * h;

    CPen frame(PS_SOLID, 0, 0xC8C8C8);
    CPen* previousPen = m_dc.SelectObject(&frame);
    CGdiObject* previousBrush = m_dc.SelectStockObject(NULL_BRUSH);
    m_dc.Rectangle(left, top, left + w, top - h);
    m_dc.SelectObject(previousPen);
    m_dc.SelectObject(previousBrush);

    CFont* previousFont = m_dc.SelectObject(&m_labelFont);
    const int previousMode = m_dc.SetBkMode(TRANSPARENT);
    const COLORREF previousColour = m_dc.SetTextColor(0x303030);
    const UINT previousAlign = m_dc.SetTextAlign(TA_LEFT | TA_TOP);
    m_dc.TextOut(left + kMargin, top - kMargin / 2, CString(label));
    m_dc.SetTextAlign(previousAlign);
    m_dc.SetTextColor(previousColour);
    m_dc.SetBkMode(previousMode);
    m_dc.SelectObject(previousFont);
}

void Sheet::Paste(const Cell& cell, CDC& source, int widthPixels, int heightPixels) {
    CPoint corner(cell.left, cell.bottom);
    m_dc.LPtoDP(&corner);
    const int mode = m_dc.SetMapMode(MM_TEXT);
    const CPoint origin = m_dc.SetWindowOrg(0, 0);
    m_dc.BitBlt(corner.x, corner.y - heightPixels, widthPixels, heightPixels, &source, 0, 0,
                SRCCOPY);
    m_dc.SetWindowOrg(origin);
    m_dc.SetMapMode(mode);
}

void Sheet::Cover(const std::vector<COLORREF>& pixels) {
    // Blue, green, red and a pad byte a pixel, as a 32-bit bitmap holds them.
    std::vector<unsigned char> rows(pixels.size() * 4);
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        rows[4 * i] = GetBValue(pixels[i]);
        rows[4 * i + 1] = GetGValue(pixels[i]);
        rows[4 * i + 2] = GetRValue(pixels[i]);
    }
    CBitmap bitmap;
    bitmap.CreateBitmap(m_widthPixels, m_heightPixels, 1, 32, rows.data());
    CDC memory;
    memory.CreateCompatibleDC(&m_dc);
    CBitmap* previous = memory.SelectObject(&bitmap);
    Paste(Cell{0, 0, m_width, m_height}, memory, m_widthPixels, m_heightPixels);
    memory.SelectObject(previous);
}

int Sheet::Pixels(int logical) const {
    CSize size(logical, logical);
    m_dc.LPtoDP(&size);
    return size.cx;
}

bool Sheet::Save(const std::string& path) const {
    return seisplot::SaveBitmap(m_bitmap, CString(path.c_str()));
}

void Stripes(CDC& dc, const Cell& cell, double from) {
    const unsigned long colours[] = {torgb(11), torgb(14), torgb(8), torgb(10)};
    const int n = 8;
    const int x0 = cell.At(from, 0).x;
    const int w = (cell.right - x0) / n;
    for (int i = 0; i < n; ++i) {
        const CRect r(x0 + i * w, cell.top, x0 + (i + 1) * w, cell.bottom);
        dc.FillSolidRect(&r, colours[i % 4]);
    }
}

} // namespace drawsheets
