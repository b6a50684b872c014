#pragma once
// The simple figures of a device context, for the composite glyphs (private to draw/gdi).

#include "draw/gdi/Figures_p.h"

class CDC;

namespace seisplot {

class DeviceFigures final : public Figures {
public:
    explicit DeviceFigures(CDC* dc) : m_dc(dc) {}
    int Line(const CPoint& from, const CPoint& to, unsigned long colour, int width) override;
    void PlainLine(const CPoint& from, const CPoint& to) override;
    int Triangle(unsigned long colour, unsigned char style, const CPoint& a, const CPoint& b,
                 const CPoint& c) override;
    void EdgedTriangle(const CPoint& a, const CPoint& b, const CPoint& c, unsigned long line,
                       unsigned long fill) override;
    int Rectangle(const CPoint& p1, const CPoint& p2, unsigned long colour, int style) override;
    int Ellipse(const CPoint& p1, const CPoint& p2, unsigned long colour, int style,
                int width) override;
    int Pie(const CPoint& p1, const CPoint& p2, const CPoint& p3, const CPoint& p4,
            unsigned long colour, int style) override;

private:
    CDC* m_dc;
};

} // namespace seisplot
