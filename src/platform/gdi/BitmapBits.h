#pragma once
// A bitmap's bits as a device-independent bitmap (DIB), the screen's size, and memory device
// contexts by handle: the calls with which code written for the framework reads the pixels of
// what it drew.

#include "platform/core/BitmapInfo.h"
#include "platform/gdi/GdiObjects.h"

// A bitmap handle: the bitmap itself.
using HBITMAP = CBitmap*;

struct RGBQUAD {
    BYTE rgbBlue = 0;
    BYTE rgbGreen = 0;
    BYTE rgbRed = 0;
    BYTE rgbReserved = 0;
};

struct BITMAPINFO {
    BITMAPINFOHEADER bmiHeader;
    RGBQUAD bmiColors[1];
};

inline constexpr UINT DIB_RGB_COLORS = 0;

// Fills `info` (a BITMAP of `size` bytes) with the bitmap's width, height, planes and bits per
// pixel (32 for a colour bitmap, 1 for a monochrome one); the bytes written, 0 on failure.
int GetObject(HBITMAP bitmap, int size, void* info);

// Without `bits`, and a header whose bit count is 0: fills the header with the bitmap's
// format (BI_RGB at its own depth, the image size of its rows). With `bits`: copies `lines`
// scan lines from scan line `start`, counted from the bottom, into `bits` as rows of blue,
// green, red (and 255 at 32 bits per pixel), bottom-up, each row padded to 4 bytes; the header
// must ask for BI_RGB at 24 or 32 bits per pixel. Returns the lines copied (for a query, the
// bitmap's height); 0 on failure. `dc` must be a device context.
int GetDIBits(HDC dc, HBITMAP bitmap, UINT start, UINT lines, void* bits, BITMAPINFO* info,
              UINT usage);

// A memory device context compatible with `dc` (null: the screen), to be deleted with DeleteDC;
// null when it cannot be made.
HDC CreateCompatibleDC(HDC dc);
BOOL DeleteDC(HDC dc);
