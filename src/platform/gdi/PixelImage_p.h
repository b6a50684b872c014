#pragma once
// The pixels behind a CBitmap: a 32-bit image, and whether the bitmap is monochrome
// (then only black and white are ever written to it).

#include <QImage>

namespace seisplot {

struct PixelImage {
    QImage image; // Format_RGB32
    bool monochrome = false;
};

// What a monochrome device makes of a colour: white when it is light, else black.
inline QRgb MonochromeOf(QRgb c) {
    return qGray(c) >= 128 ? qRgb(255, 255, 255) : qRgb(0, 0, 0);
}

} // namespace seisplot
