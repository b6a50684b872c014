#include "draw/gdi/DeviceFigures_p.h"

#include "draw/gdi/Areas.h"
#include "draw/gdi/Lines.h"

namespace seisplot {

int DeviceFigures::Line(const CPoint& from, const CPoint& to, unsigned long colour, int width) {
    return line(m_dc, from, to, colour, width);
}

void DeviceFigures::PlainLine(const CPoint& from, const CPoint& to) {
    line(m_dc, from, to);
}

int DeviceFigures::Triangle(unsigned long colour, unsigned char style, const CPoint& a,
                            const CPoint& b, const CPoint& c) {
    return triangle(m_dc, colour, style, a.x, a.y, b.x, b.y, c.x, c.y);
}

void DeviceFigures::EdgedTriangle(const CPoint& a, const CPoint& b, const CPoint& c,
                                  unsigned long line, unsigned long fill) {
    CPen pen;
    CBrush brush;
    if (!pen.CreatePen(PS_SOLID, 1, line) || !brush.CreateSolidBrush(fill)) {
        return;
    }
    CPen* oldPen = m_dc->SelectObject(&pen);
    CBrush* oldBrush = m_dc->SelectObject(&brush);
    const POINT corners[3] = {a, b, c};
    m_dc->Polygon(corners, 3);
    m_dc->SelectObject(oldPen);
    m_dc->SelectObject(oldBrush);
}

int DeviceFigures::Rectangle(const CPoint& p1, const CPoint& p2, unsigned long colour, int style) {
    return rectangle(m_dc, p1, p2, colour, style);
}

int DeviceFigures::Ellipse(const CPoint& p1, const CPoint& p2, unsigned long colour, int style,
                           int width) {
    return ellipse(m_dc, p1, p2, colour, style, width);
}

int DeviceFigures::Pie(const CPoint& p1, const CPoint& p2, const CPoint& p3, const CPoint& p4,
                       unsigned long colour, int style) {
    return pie(m_dc, p1, p2, p3, p4, colour, style);
}

} // namespace seisplot
