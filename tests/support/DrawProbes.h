#pragma once
// What the drawing tests look at: the pixels of a memory context, and the calls a recorder
// kept, each as its kind and logical points.

#include "platform/gdi/RecordingDC.h"

#include <string>
#include <vector>

namespace seisplot::test {

// A memory device context on a w by h bitmap filled with `background`: 32 bits a pixel, or
// one for a monochrome device.
struct Canvas {
    enum class Depth { Colour, Monochrome };

    CDC dc;
    CBitmap bitmap;
    CBitmap* previous = nullptr;
    int width;
    int height;

    Canvas(int w, int h, COLORREF background = 0xFFFFFF, Depth depth = Depth::Colour)
        : width(w), height(h) {
        dc.CreateCompatibleDC(nullptr);
        bitmap.CreateBitmap(w, h, 1, depth == Depth::Monochrome ? 1 : 32, nullptr);
        previous = dc.SelectObject(&bitmap);
        Fill(CRect(0, 0, w, h), background);
    }
    // Not a background: monochrome is asked for with Depth::Monochrome.
    Canvas(int w, int h, bool) = delete;
    ~Canvas() { dc.SelectObject(previous); }

    void Fill(const CRect& area, COLORREF colour) { dc.FillSolidRect(&area, colour); }

    // Every pixel, row by row (read in MM_TEXT whatever mode the test set).
    std::vector<COLORREF> Pixels() {
        const int mode = dc.SetMapMode(MM_TEXT);
        const CPoint origin = dc.SetWindowOrg(0, 0);
        std::vector<COLORREF> out;
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                out.push_back(dc.GetPixel(x, y));
            }
        }
        dc.SetWindowOrg(origin);
        dc.SetMapMode(mode);
        return out;
    }
};

// A recorder in a metric mapping mode, colour (-1) or monochrome (2).
struct MetricDC : seisplot::RecordingDC {
    explicit MetricDC(int numColors = -1, int mode = MM_HIMETRIC)
        : MetricDC(seisplot::RecordingDevice{1000, 1000, 96, numColors}, mode) {}
    explicit MetricDC(seisplot::RecordingDevice device, int mode = MM_HIMETRIC)
        : RecordingDC(device) {
        SetMapMode(mode);
    }
};

// Each call as a letter and its logical points, e.g. "L 0,0 1000,0": Line, Polygon, Rectangle,
// Ellipse, Arc (A), Pie (W).
inline std::vector<std::string> Shapes(const seisplot::RecordingDC& dc) {
    using seisplot::DrawOp;
    std::vector<std::string> shapes;
    for (const seisplot::DrawCall& call : dc.Calls()) {
        std::string s = call.op == DrawOp::Line        ? "L"
                        : call.op == DrawOp::Polygon   ? "P"
                        : call.op == DrawOp::Rectangle ? "R"
                        : call.op == DrawOp::Ellipse   ? "E"
                        : call.op == DrawOp::Arc       ? "A"
                        : call.op == DrawOp::Pie       ? "W"
                                                       : "?";
        for (const CPoint& p : call.logical) {
            s += ' ' + std::to_string(p.x) + ',' + std::to_string(p.y);
        }
        shapes.push_back(s);
    }
    return shapes;
}

} // namespace seisplot::test
