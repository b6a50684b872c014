#pragma once
// One drawing call of a device context, with the state it was drawn with: what every
// back end receives, and what the recording back end keeps for tests.

#include "platform/core/CString.h"
#include "platform/gdi/GdiObjects.h"

#include <vector>

namespace seisplot {

enum class DrawOp { Line, Polygon, Rectangle, Ellipse, Arc, Pie, SetPixel, Text, Blit };

struct DrawCall {
    DrawOp op = DrawOp::Line;
    std::vector<CPoint> logical; // the points as the caller gave them
    std::vector<CPoint> device;  // the same points in device pixels
    PenAttributes pen;
    int penDeviceWidth = 1; // the pen's width in pixels (at least 1)
    BrushAttributes brush;
    int mapMode = MM_TEXT;
    int rop2 = R2_COPYPEN;
    int bkMode = OPAQUE;
    COLORREF bkColor = 0xFFFFFF;
    COLORREF textColor = 0;
    COLORREF color = 0; // SetPixel's colour
    // Text: the string, its font, the font's height in pixels, the alignment and the angle
    // at which it runs, counter-clockwise as seen on the device, in degrees.
    CString text;
    LOGFONTA font;
    int fontPixelHeight = 0;
    UINT textAlign = 0;
    double textAngle = 0.0;
    // Blit: the raster operation and the source context (valid during the call only) and
    // rectangle (device pixels).
    DWORD rop = SRCCOPY;
    const CDC* source = nullptr;
    CRect sourceRect;
};

// The clip region in device pixels: when `active`, only the union of `rects` is drawn.
struct DeviceClip {
    bool active = false;
    std::vector<CRect> rects;
    unsigned generation = 0; // changes whenever the clip does, so surfaces may cache it
};

} // namespace seisplot
