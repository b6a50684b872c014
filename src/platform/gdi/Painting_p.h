#pragma once
// Drawing a resolved call with a QPainter: shared by the image and document surfaces.

#include "platform/gdi/DrawCall.h"

#include <QColor>
#include <QPainter>

namespace seisplot {

struct PixelImage;

inline QColor QtColorOf(COLORREF c) {
    return QColor(GetRValue(c), GetGValue(c), GetBValue(c));
}

// Colours as the device shows them: on a monochrome device only black and white.
struct DeviceColours {
    bool monochrome = false;
    QColor operator()(COLORREF c) const;
};

// The dashes of a one-pixel pen: `on` pixels drawn in every `period` (solid: 1 in 1).
struct DashPattern {
    int on;
    int period;
};
DashPattern DashPatternOf(int penStyle);

// The source picture of a blit as it lands: flipped where the two extents differ in sign and
// scaled to the destination's size, with `at` its top-left pixel (empty without a source).
QImage BlitPicture(const DrawCall& call, QPoint& at);

// Paints `call` (any operation but SetPixel and Blit) with plain copying.
void PaintCall(QPainter& painter, const DrawCall& call, const DeviceColours& colours);
// The device rectangle a figure call covers (empty when unknown).
QRect CallBounds(const DrawCall& call);

} // namespace seisplot
