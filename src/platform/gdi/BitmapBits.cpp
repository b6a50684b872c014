#include "platform/gdi/BitmapBits.h"

#include "platform/gdi/CDC.h"
#include "platform/gdi/PixelImage_p.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <cstring>

namespace {

// A DIB row holds whole 32-bit words.
DWORD RowBytes(LONG width, int bitCount) {
    return static_cast<DWORD>((width * bitCount + 31) / 32 * 4);
}

} // namespace

int GetObject(HBITMAP bitmap, int size, void* info) {
    if (bitmap == nullptr || info == nullptr || size < static_cast<int>(sizeof(BITMAP))) {
        return 0;
    }
    return bitmap->GetBitmap(static_cast<BITMAP*>(info));
}

int GetDIBits(HDC dc, HBITMAP bitmap, UINT start, UINT lines, void* bits, BITMAPINFO* info,
              UINT usage) {
    if (dc == nullptr || bitmap == nullptr || bitmap->Pixels() == nullptr || info == nullptr ||
        usage != DIB_RGB_COLORS || info->bmiHeader.biSize < sizeof(BITMAPINFOHEADER)) {
        return 0;
    }
    const seisplot::PixelImage& pixels = *bitmap->Pixels();
    const QImage& image = pixels.image;
    BITMAPINFOHEADER& header = info->bmiHeader;
    if (bits == nullptr) {
        if (header.biBitCount != 0) {
            return 0;
        }
        header.biWidth = image.width();
        header.biHeight = image.height();
        header.biPlanes = 1;
        header.biBitCount = pixels.monochrome ? 1 : 32;
        header.biCompression = BI_RGB;
        header.biSizeImage = RowBytes(header.biWidth, header.biBitCount) * image.height();
        header.biClrUsed = 0;
        header.biClrImportant = 0;
        return image.height();
    }
    // The same pixels in another depth: a DIB of another size would be a stretch.
    if (header.biCompression != BI_RGB || (header.biBitCount != 24 && header.biBitCount != 32) ||
        header.biWidth != image.width() || std::abs(header.biHeight) != image.height()) {
        return 0;
    }
    const int height = image.height();
    const bool bottomUp = header.biHeight > 0;
    const int bytesPerPixel = header.biBitCount / 8;
    const DWORD stride = RowBytes(header.biWidth, header.biBitCount);
    const int last = static_cast<int>(std::min<UINT>(start + lines, static_cast<UINT>(height)));
    auto* out = static_cast<BYTE*>(bits);
    for (int row = static_cast<int>(start); row < last; ++row) {
        const uchar* scan = image.constScanLine(bottomUp ? height - 1 - row : row);
        BYTE* p = out + static_cast<std::ptrdiff_t>(row - static_cast<int>(start)) * stride;
        // The image's 0xFFRRGGBB pixels are already blue, green, red, 255 in memory.
        if (bytesPerPixel == 4 && std::endian::native == std::endian::little) {
            std::memcpy(p, scan, static_cast<std::size_t>(image.width()) * 4);
            continue;
        }
        const auto* line = reinterpret_cast<const QRgb*>(scan);
        for (int x = 0; x < image.width(); ++x, p += bytesPerPixel) {
            p[0] = static_cast<BYTE>(qBlue(line[x]));
            p[1] = static_cast<BYTE>(qGreen(line[x]));
            p[2] = static_cast<BYTE>(qRed(line[x]));
            if (bytesPerPixel == 4) {
                p[3] = 0xFF; // unused by the DIB; opaque to a reader that takes it for alpha
            }
        }
    }
    return std::max(0, last - static_cast<int>(start));
}

HDC CreateCompatibleDC(HDC dc) {
    auto* memory = new CDC;
    if (!memory->CreateCompatibleDC(dc)) {
        delete memory;
        return nullptr;
    }
    return memory;
}

BOOL DeleteDC(HDC dc) {
    delete dc;
    return dc != nullptr;
}
