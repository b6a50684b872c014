#include "platform/gl/BitmapGlyphs_p.h"

#include "platform/gdi/FontEngine_p.h"

#include <QFontMetrics>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace seisplot {
namespace {

QString CharacterText(const LOGFONTA& font, unsigned char code) {
    const char c = static_cast<char>(code);
    return QtTextOf(font, CString(&c, 1));
}

} // namespace

QFont BitmapFont(const LOGFONTA& font, int pixelHeight) {
    QFont qfont = QtFontOf(font, pixelHeight);
    qfont.setStyleStrategy(QFont::NoAntialias);
    return qfont;
}

int BitmapAdvance(const QFont& qfont, const LOGFONTA& font, unsigned char code) {
    return static_cast<int>(
        std::lround(QFontMetricsF(qfont).horizontalAdvance(CharacterText(font, code))));
}

GlyphBitmap RenderBitmapGlyph(const QFont& qfont, const LOGFONTA& font, unsigned char code) {
    GlyphBitmap glyph;
    glyph.advance = static_cast<float>(BitmapAdvance(qfont, font, code));
    // The character is painted on a canvas with room for overhangs on every side, then cut to
    // its ink.
    const QFontMetrics metrics(qfont);
    const int pad = metrics.height();
    const int baseline = pad + metrics.ascent();
    QImage canvas(static_cast<int>(glyph.advance) + 2 * pad, metrics.height() + 2 * pad,
                  QImage::Format_Grayscale8);
    canvas.fill(0);
    {
        QPainter painter(&canvas);
        painter.setFont(qfont);
        painter.setPen(Qt::white);
        painter.drawText(QPoint(pad, baseline), CharacterText(font, code));
    }
    int left = canvas.width();
    int right = -1;
    int top = canvas.height();
    int bottom = -1;
    for (int y = 0; y < canvas.height(); ++y) {
        const uchar* row = canvas.constScanLine(y);
        for (int x = 0; x < canvas.width(); ++x) {
            if (row[x] >= 128) {
                left = std::min(left, x);
                right = std::max(right, x);
                top = std::min(top, y);
                bottom = std::max(bottom, y);
            }
        }
    }
    if (right < 0) {
        return glyph; // no ink: a space moves on and draws nothing
    }
    glyph.width = right - left + 1;
    glyph.height = bottom - top + 1;
    // The canvas row just above the baseline lands on the raster position's row.
    glyph.xOrigin = static_cast<float>(pad - left);
    glyph.yOrigin = static_cast<float>(bottom - baseline + 1);
    const int bytesPerRow = (glyph.width + 7) / 8;
    glyph.rows.assign(static_cast<std::size_t>(bytesPerRow * glyph.height), 0);
    for (int r = 0; r < glyph.height; ++r) {
        const uchar* row = canvas.constScanLine(bottom - r);
        for (int i = 0; i < glyph.width; ++i) {
            if (row[left + i] >= 128) {
                glyph.rows[static_cast<std::size_t>(r * bytesPerRow + i / 8)] |=
                    static_cast<std::uint8_t>(0x80U >> (i % 8));
            }
        }
    }
    return glyph;
}

} // namespace seisplot
