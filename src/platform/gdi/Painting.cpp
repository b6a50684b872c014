#include "platform/gdi/Painting_p.h"

#include "platform/gdi/CDC.h"
#include "platform/gdi/FontEngine_p.h"
#include "platform/gdi/PixelImage_p.h"
#include "platform/gdi/Surface_p.h"

#include <QFontMetricsF>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace seisplot {

QColor DeviceColours::operator()(COLORREF c) const {
    const QColor q = QtColorOf(c);
    return monochrome ? QColor(MonochromeOf(q.rgb())) : q;
}

namespace {

// The framework's rectangle (x1, y1)-(x2, y2) in device pixels, normalised; its right and
// bottom edges lie outside the figure. A painter outlines a rectangle one pixel beyond its
// width, and fills it without a pen to its width: the frame is one pixel narrower, so an
// outline ends at x2 - 1 and a figure without a pen fills up to x2 - 2, as the framework does.
QRect FrameOf(const DrawCall& call) {
    const CPoint a = call.device[0];
    const CPoint b = call.device[1];
    return QRect(QPoint(std::min(a.x, b.x), std::min(a.y, b.y)),
                 QPoint(std::max(a.x, b.x) - 2, std::max(a.y, b.y) - 2));
}

QPen PenOf(const DrawCall& call, const DeviceColours& colours) {
    if (call.pen.style == PS_NULL) {
        return Qt::NoPen;
    }
    QPen pen(colours(call.pen.color));
    if (call.penDeviceWidth > 1) {
        // A wide pen is solid whatever its style, with round ends and joins.
        pen.setWidth(call.penDeviceWidth);
        pen.setCapStyle(Qt::RoundCap);
        pen.setJoinStyle(Qt::RoundJoin);
    } else {
        pen.setWidth(0);
        const DashPattern dash = DashPatternOf(call.pen.style);
        if (dash.on < dash.period) {
            pen.setDashPattern(
                {static_cast<qreal>(dash.on), static_cast<qreal>(dash.period - dash.on)});
        }
    }
    return pen;
}

QBrush BrushOf(const DrawCall& call, const DeviceColours& colours) {
    switch (call.brush.style) {
    case BS_SOLID:
        return QBrush(colours(call.brush.color));
    case BS_HATCHED: {
        static constexpr Qt::BrushStyle hatches[] = {Qt::HorPattern,   Qt::VerPattern,
                                                     Qt::FDiagPattern, Qt::BDiagPattern,
                                                     Qt::CrossPattern, Qt::DiagCrossPattern};
        const int h = call.brush.hatch;
        return QBrush(colours(call.brush.color), h >= 0 && h < 6 ? hatches[h] : Qt::HorPattern);
    }
    case BS_PATTERN: {
        if (call.brush.pattern == nullptr) {
            return Qt::NoBrush;
        }
        // A monochrome pattern paints its black bits in the text colour, its white bits in
        // the background colour.
        QImage tile = call.brush.pattern->image.copy();
        const QRgb text = colours(call.textColor).rgb();
        const QRgb back = colours(call.bkColor).rgb();
        for (int y = 0; y < tile.height(); ++y) {
            auto* line = reinterpret_cast<QRgb*>(tile.scanLine(y));
            for (int x = 0; x < tile.width(); ++x) {
                line[x] = qGray(line[x]) >= 128 ? back : text;
            }
        }
        return QBrush(tile);
    }
    default:
        return Qt::NoBrush;
    }
}

double AngleOf(const QPointF& centre, const CPoint& p) {
    return std::atan2(-(p.y - centre.y()), p.x - centre.x()) * 180.0 / std::numbers::pi;
}

void PaintText(QPainter& painter, const DrawCall& call, const DeviceColours& colours) {
    QFont font = QtFontOf(call.font, call.fontPixelHeight);
    if (colours.monochrome) {
        font.setStyleStrategy(QFont::NoAntialias);
    }
    const QString text = QtTextOf(call.font, call.text);
    const QFontMetricsF metrics(font);
    const double width = metrics.horizontalAdvance(text);
    double x = 0.0;
    if ((call.textAlign & TA_CENTER) == TA_CENTER) {
        x = -width / 2.0;
    } else if ((call.textAlign & TA_RIGHT) != 0) {
        x = -width;
    }
    double y = metrics.ascent(); // top
    if ((call.textAlign & TA_BASELINE) == TA_BASELINE) {
        y = 0.0;
    } else if ((call.textAlign & TA_BOTTOM) != 0) {
        y = -metrics.descent();
    }
    painter.save();
    painter.translate(call.device[0].x, call.device[0].y);
    painter.rotate(-call.textAngle);
    if (call.bkMode == OPAQUE) {
        painter.fillRect(
            QRectF(x, y - metrics.ascent(), width, metrics.ascent() + metrics.descent()),
            colours(call.bkColor));
    }
    painter.setFont(font);
    painter.setPen(colours(call.textColor));
    painter.drawText(QPointF(x, y), text);
    painter.restore();
}

} // namespace

QImage BlitPicture(const DrawCall& call, QPoint& at) {
    const PixelImage* source = call.source != nullptr && call.source->GetSurface()
                                   ? call.source->GetSurface()->Pixels()
                                   : nullptr;
    const CRect s = call.sourceRect;
    const QRect from(QPoint(std::min(s.left, s.right), std::min(s.top, s.bottom)),
                     QSize(std::abs(s.Width()), std::abs(s.Height())));
    const int dw = call.device[1].x - call.device[0].x;
    const int dh = call.device[1].y - call.device[0].y;
    if (source == nullptr || from.isEmpty() || dw == 0 || dh == 0) {
        return {};
    }
    at = QPoint(std::min(call.device[0].x, call.device[1].x),
                std::min(call.device[0].y, call.device[1].y));
    const bool flipX = (dw < 0) != (s.Width() < 0);
    const bool flipY = (dh < 0) != (s.Height() < 0);
    return source->image.copy(from)
        .convertToFormat(QImage::Format_RGB32)
        .mirrored(flipX, flipY)
        .scaled(std::abs(dw), std::abs(dh), Qt::IgnoreAspectRatio, Qt::FastTransformation);
}

DashPattern DashPatternOf(int penStyle) {
    switch (penStyle) {
    case PS_DASH:
        return {18, 24};
    case PS_DOT:
        return {3, 6};
    default:
        return {1, 1};
    }
}

QRect CallBounds(const DrawCall& call) {
    if (call.device.empty() || call.op == DrawOp::Text) {
        return {};
    }
    int l = call.device[0].x, r = l, t = call.device[0].y, b = t;
    const std::size_t n = call.op == DrawOp::Arc || call.op == DrawOp::Pie ? 2 : call.device.size();
    for (std::size_t i = 0; i < n; ++i) {
        l = std::min<int>(l, call.device[i].x);
        r = std::max<int>(r, call.device[i].x);
        t = std::min<int>(t, call.device[i].y);
        b = std::max<int>(b, call.device[i].y);
    }
    const int m = call.penDeviceWidth + 2;
    return QRect(QPoint(l - m, t - m), QPoint(r + m, b + m));
}

void PaintCall(QPainter& painter, const DrawCall& call, const DeviceColours& colours) {
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBackgroundMode(call.bkMode == OPAQUE ? Qt::OpaqueMode : Qt::TransparentMode);
    painter.setBackground(colours(call.bkColor));
    const QPen pen = PenOf(call, colours);
    switch (call.op) {
    case DrawOp::Line:
        painter.setPen(pen);
        painter.drawLine(QPoint(call.device[0].x, call.device[0].y),
                         QPoint(call.device[1].x, call.device[1].y));
        break;
    case DrawOp::Polygon: {
        QPolygon polygon;
        for (const CPoint& p : call.device) {
            polygon << QPoint(p.x, p.y);
        }
        painter.setPen(pen);
        painter.setBrush(BrushOf(call, colours));
        painter.drawPolygon(polygon, Qt::OddEvenFill);
        break;
    }
    case DrawOp::Rectangle:
        painter.setPen(pen);
        painter.setBrush(BrushOf(call, colours));
        painter.drawRect(FrameOf(call));
        break;
    case DrawOp::Ellipse:
        painter.setPen(pen);
        painter.setBrush(BrushOf(call, colours));
        painter.drawEllipse(FrameOf(call));
        break;
    case DrawOp::Arc:
    case DrawOp::Pie: {
        const QRect frame = FrameOf(call);
        const QPointF centre((call.device[0].x + call.device[1].x) / 2.0,
                             (call.device[0].y + call.device[1].y) / 2.0);
        const double start = AngleOf(centre, call.device[2]);
        double span = AngleOf(centre, call.device[3]) - start;
        while (span <= 0.0) {
            span += 360.0; // counter-clockwise; equal radials make the whole ellipse
        }
        const int a = static_cast<int>(std::lround(start * 16.0));
        const int s = static_cast<int>(std::lround(span * 16.0));
        painter.setPen(pen);
        if (call.op == DrawOp::Arc) {
            painter.setBrush(Qt::NoBrush);
            painter.drawArc(frame, a, s);
        } else {
            painter.setBrush(BrushOf(call, colours));
            painter.drawPie(frame, a, s);
        }
        break;
    }
    case DrawOp::Text:
        PaintText(painter, call, colours);
        break;
    case DrawOp::SetPixel:
    case DrawOp::Blit:
        break;
    }
}

} // namespace seisplot
