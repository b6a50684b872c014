#pragma once
// A picture sheet: a white image drawn in hundredths of a millimetre with y up from its
// bottom-left corner, split into a grid of labelled cells.

#include "platform/gdi/CDC.h"

#include <string>
#include <vector>

namespace drawsheets {

// The drawing area of one cell, in logical units, below its label.
struct Cell {
    int left = 0;
    int bottom = 0;
    int right = 0;
    int top = 0;

    int Width() const { return right - left; }
    int Height() const { return top - bottom; }
    // The point at fractions (fx, fy) of the area from its bottom-left corner.
    CPoint At(double fx, double fy) const;
    // A length as a fraction of the area's width.
    int Across(double f) const;
};

// Vertical stripes of four palette colours over the right part of `cell`, from fraction `from`:
// a busy background for the inverting primitives.
void Stripes(CDC& dc, const Cell& cell, double from);

class Sheet {
public:
    Sheet(int widthPixels, int heightPixels, int columns, int rows);
    ~Sheet();
    Sheet(const Sheet&) = delete;
    Sheet& operator=(const Sheet&) = delete;

    CDC& Dc() { return m_dc; }
    // Frames the next cell (left to right, top to bottom), writes `label` at its top and
    // returns the area below it.
    Cell Next(const char* label);
    // The area of cell `index` below its label, and its frame and label drawn.
    Cell Place(int index) const;
    void Frame(int index, const char* label);
    // Copies the whole picture of `source` (pixels, y down) to the bottom-left corner of `cell`.
    void Paste(const Cell& cell, CDC& source, int widthPixels, int heightPixels);
    // Covers the whole sheet with a picture of its size, rows from the top.
    void Cover(const std::vector<COLORREF>& pixels);
    // The size in pixels of a logical length.
    int Pixels(int logical) const;
    bool Save(const std::string& path) const;

private:
    CDC m_dc;
    CBitmap m_bitmap;
    CBitmap* m_previousBitmap = nullptr;
    CFont m_labelFont;
    int m_columns;
    int m_rows;
    int m_width; // logical
    int m_height;
    int m_widthPixels;
    int m_heightPixels;
    int m_next = 0;
};

} // namespace drawsheets
