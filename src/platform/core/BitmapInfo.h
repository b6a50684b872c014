#pragma once
// The header of a device-independent bitmap (DIB): what a bitmap's bits hold, as both the
// drawing side (reading a bitmap's bits) and the movie side (a video stream's format) read it.
// 40 bytes, little-endian, as stored in files.

#include "platform/core/Types.h"

// Compression of a DIB: plain rows of blue, green, red (and a fourth byte at 32 bits per pixel).
inline constexpr DWORD BI_RGB = 0;

struct BITMAPINFOHEADER {
    DWORD biSize = 0; // 40
    LONG biWidth = 0;
    LONG biHeight = 0; // positive: rows stored bottom-up
    WORD biPlanes = 0;
    WORD biBitCount = 0;
    DWORD biCompression = 0;
    DWORD biSizeImage = 0;
    LONG biXPelsPerMeter = 0;
    LONG biYPelsPerMeter = 0;
    DWORD biClrUsed = 0;
    DWORD biClrImportant = 0;
};
static_assert(sizeof(BITMAPINFOHEADER) == 40);
