// Drawing on the pixels of a bitmap or a window: every raster operation exact, thin lines
// without their end pixel, as the framework draws them.

#include "platform/gdi/CDC.h"
#include "platform/gdi/GuiApplication_p.h"
#include "platform/gdi/Painting_p.h"
#include "platform/gdi/PixelImage_p.h"
#include "platform/gdi/Surface_p.h"

#include <QRegion>

#include <cstdlib>
#include <cstring>

namespace seisplot {
namespace {

// The 16 binary raster operations: code − 1 is the truth table of (pen, destination).
QRgb Rop2(int code, QRgb pen, QRgb dst) {
    const unsigned t = static_cast<unsigned>(code - 1) & 0xF;
    const unsigned p = pen & 0xFFFFFF;
    const unsigned d = dst & 0xFFFFFF;
    unsigned r = 0;
    if (t & 1) {
        r |= ~p & ~d;
    }
    if (t & 2) {
        r |= ~p & d;
    }
    if (t & 4) {
        r |= p & ~d;
    }
    if (t & 8) {
        r |= p & d;
    }
    return 0xFF000000u | (r & 0xFFFFFF);
}

class ImageSurface final : public Surface {
public:
    ImageSurface(std::shared_ptr<PixelImage> pixels, int dpi)
        : m_pixels(std::move(pixels)), m_dpi(dpi) {
        EnsureGuiApplication();
    }

    DeviceCaps Caps() const override {
        DeviceCaps caps;
        caps.width = m_pixels->image.width();
        caps.height = m_pixels->image.height();
        caps.dpiX = caps.dpiY = m_dpi;
        caps.numColors = m_pixels->monochrome ? 2 : -1;
        return caps;
    }

    const PixelImage* Pixels() const override { return m_pixels.get(); }

    COLORREF GetPixel(CPoint p) const override {
        const QImage& image = m_pixels->image;
        if (!image.rect().contains(p.x, p.y)) {
            return CLR_INVALID;
        }
        const QRgb c = image.pixel(p.x, p.y);
        return RGB(qRed(c), qGreen(c), qBlue(c));
    }

    void Draw(const DrawCall& call, const DeviceClip& clip) override {
        if (clip.generation != m_regionGeneration) {
            m_region = ClipRegion(clip);
            m_regionGeneration = clip.generation;
            m_oneRect = m_region.rectCount() == 1;
            m_bounds = m_region.boundingRect();
        }
        const DeviceColours colours{m_pixels->monochrome};
        switch (call.op) {
        case DrawOp::SetPixel:
            Plot(call.device[0].x, call.device[0].y, colours(call.color).rgb(), R2_COPYPEN);
            return;
        case DrawOp::Blit:
            Blit(call);
            return;
        case DrawOp::Line:
            if (call.penDeviceWidth <= 1) {
                ThinLine(call, colours);
                return;
            }
            break;
        default:
            break;
        }
        if (call.rop2 == R2_COPYPEN || call.op == DrawOp::Text) {
            QPainter painter(&m_pixels->image);
            painter.setClipRegion(m_region);
            PaintCall(painter, call, colours);
        } else {
            PaintWithRop(call, colours);
        }
    }

private:
    QRegion ClipRegion(const DeviceClip& clip) const {
        if (!clip.active) {
            return QRegion(m_pixels->image.rect());
        }
        QRegion region;
        for (const CRect& r : clip.rects) {
            if (!r.IsRectEmpty()) {
                region += QRect(r.left, r.top, r.Width(), r.Height());
            }
        }
        return region & m_pixels->image.rect();
    }

    bool Visible(int x, int y) const {
        return m_oneRect ? m_bounds.contains(x, y) : m_region.contains(QPoint(x, y));
    }

    void Plot(int x, int y, QRgb colour, int rop) {
        if (!Visible(x, y)) {
            return;
        }
        auto* line = reinterpret_cast<QRgb*>(m_pixels->image.scanLine(y));
        QRgb c = rop == R2_COPYPEN ? colour : Rop2(rop, colour, line[x]);
        line[x] = m_pixels->monochrome ? MonochromeOf(c) : c;
    }

    // A one-pixel line from the first point up to, not including, the second; dashes and
    // dots by pixel count, their gaps in the background colour when the mode is OPAQUE.
    void ThinLine(const DrawCall& call, const DeviceColours& colours) {
        if (call.pen.style == PS_NULL) {
            return;
        }
        int x0 = call.device[0].x, y0 = call.device[0].y;
        const int x1 = call.device[1].x, y1 = call.device[1].y;
        const int dx = std::abs(x1 - x0), dy = -std::abs(y1 - y0);
        const int sx = x0 < x1 ? 1 : -1, sy = y0 < y1 ? 1 : -1;
        int err = dx + dy;
        const QRgb ink = colours(call.pen.color).rgb();
        const QRgb gap = colours(call.bkColor).rgb();
        const DashPattern dash = DashPatternOf(call.pen.style);
        for (int n = 0; x0 != x1 || y0 != y1; ++n) {
            if (n % dash.period < dash.on) {
                Plot(x0, y0, ink, call.rop2);
            } else if (call.bkMode == OPAQUE) {
                Plot(x0, y0, gap, call.rop2);
            }
            const int e2 = 2 * err;
            if (e2 >= dy) {
                err += dy;
                x0 += sx;
            }
            if (e2 <= dx) {
                err += dx;
                y0 += sy;
            }
        }
    }

    // A figure under a raster operation: painted alone on a clear layer, then every pixel
    // it covers is combined with the picture once.
    void PaintWithRop(const DrawCall& call, const DeviceColours& colours) {
        const QRect area = CallBounds(call) & m_bounds;
        if (area.isEmpty()) {
            return;
        }
        QImage layer(area.size(), QImage::Format_ARGB32);
        layer.fill(Qt::transparent);
        {
            QPainter painter(&layer);
            painter.translate(-area.topLeft());
            PaintCall(painter, call, colours);
        }
        for (int y = 0; y < layer.height(); ++y) {
            const auto* src = reinterpret_cast<const QRgb*>(layer.constScanLine(y));
            for (int x = 0; x < layer.width(); ++x) {
                if (qAlpha(src[x]) != 0) {
                    Plot(area.left() + x, area.top() + y, src[x], call.rop2);
                }
            }
        }
    }

    void Blit(const DrawCall& call) {
        QPoint at;
        const QImage piece = BlitPicture(call, at);
        // A copy into a colour picture clipped to one rectangle copies whole row spans.
        if (call.rop == SRCCOPY && !m_pixels->monochrome && m_oneRect) {
            const QRect target = QRect(at, piece.size()) & m_bounds;
            for (int y = target.top(); y <= target.bottom(); ++y) {
                std::memcpy(m_pixels->image.scanLine(y) + std::ptrdiff_t{4} * target.left(),
                            piece.constScanLine(y - at.y()) +
                                std::ptrdiff_t{4} * (target.left() - at.x()),
                            std::size_t{4} * static_cast<std::size_t>(target.width()));
            }
            return;
        }
        const int rop = call.rop == SRCINVERT ? R2_XORPEN : R2_COPYPEN;
        for (int y = 0; y < piece.height(); ++y) {
            const auto* src = reinterpret_cast<const QRgb*>(piece.constScanLine(y));
            for (int x = 0; x < piece.width(); ++x) {
                Plot(at.x() + x, at.y() + y, src[x], rop);
            }
        }
    }

    std::shared_ptr<PixelImage> m_pixels;
    int m_dpi;
    // The clip region in pixels, rebuilt only when the context's clip changes.
    static constexpr unsigned kNoRegion = ~0u;
    unsigned m_regionGeneration = kNoRegion;
    QRegion m_region;
    QRect m_bounds;
    bool m_oneRect = true;
};

} // namespace

std::shared_ptr<Surface> MakeImageSurface(std::shared_ptr<PixelImage> pixels, int dpi) {
    return std::make_shared<ImageSurface>(std::move(pixels), dpi);
}

std::shared_ptr<PixelImage> MakePixels(int width, int height, bool monochrome, COLORREF fill) {
    EnsureGuiApplication();
    auto pixels = std::make_shared<PixelImage>();
    pixels->image = QImage(width, height, QImage::Format_RGB32);
    pixels->monochrome = monochrome;
    const QColor colour = DeviceColours{monochrome}(fill);
    pixels->image.fill(colour);
    return pixels;
}

void LoadPixelRows(PixelImage& pixels, const void* rows, int bitsPerPixel) {
    QImage& image = pixels.image;
    const auto* bytes = static_cast<const unsigned char*>(rows);
    const int rowBytes = (image.width() * bitsPerPixel + 15) / 16 * 2;
    for (int y = 0; y < image.height(); ++y) {
        const unsigned char* row = bytes + static_cast<std::ptrdiff_t>(y) * rowBytes;
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (bitsPerPixel == 1) {
                line[x] = (row[x / 8] >> (7 - x % 8)) & 1 ? qRgb(255, 255, 255) : qRgb(0, 0, 0);
            } else {
                const unsigned char* p = row + x * (bitsPerPixel / 8); // blue, green, red
                line[x] = qRgb(p[2], p[1], p[0]);
            }
        }
    }
}

std::shared_ptr<PixelImage> CopyPixels(const PixelImage& pixels) {
    return std::make_shared<PixelImage>(pixels);
}

CSize PixelSize(const PixelImage& pixels) {
    return CSize(pixels.image.width(), pixels.image.height());
}

PictureBits BitsOf(const PixelImage& pixels) {
    const QImage& image = pixels.image;
    return {image.constBits(), image.width(), image.height(),
            static_cast<int>(image.bytesPerLine())};
}

bool IsMonochrome(const PixelImage& pixels) {
    return pixels.monochrome;
}

bool SavePixels(const PixelImage& pixels, const CString& path, const char* format) {
    EnsureGuiApplication();
    return pixels.image.save(QString::fromLocal8Bit(path.GetString()), format);
}

} // namespace seisplot
