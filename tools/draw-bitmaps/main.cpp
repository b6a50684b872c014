// draw_bitmaps <outdir>: draws the pictures of the polygon dialog's five side buttons, each
// raised (NAMEU) and pressed (NAMED), 48 x 48 pixels with at most 256 colours, as PNG files.
// Each shows the kind of side it adds: a side from the last vertex (black) to the new one
// (red), with what the user gives in blue.

#include <QDir>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <cstdio>
#include <numbers>

namespace {

constexpr int kSize = 48;
const QColor kFace(0xEC, 0xEC, 0xEC);
const QColor kPressedFace(0xD6, 0xD6, 0xD6);
const QColor kLight(Qt::white);
const QColor kShadow(0x9A, 0x9A, 0x9A);
const QColor kDarkShadow(0x40, 0x40, 0x40);
const QColor kSide(0x10, 0x10, 0x10);
const QColor kGiven(0x00, 0x4C, 0xC8);
const QColor kGuide(0x80, 0x80, 0x80);
const QColor kNewVertex(0xE0, 0x10, 0x10);

// The side every picture but the arc's shows, and the corner of its right triangle.
const QPointF kStart(7.5, 33.5);
const QPointF kEnd(29.5, 9.5);
const QPointF kCorner(kEnd.x(), kStart.y());

QFont LabelFont() {
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(11);
    font.setBold(true);
    return font;
}

void Dot(QPainter& p, QPointF at, const QColor& colour) {
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
    p.drawEllipse(at, 2.8, 2.8);
    p.setBrush(Qt::NoBrush);
}

void Line(QPainter& p, QPointF from, QPointF to, const QColor& colour) {
    p.setPen(QPen(colour, 2.0, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(from, to);
}

void Guide(QPainter& p, QPointF from, QPointF to) {
    QPen pen(kGuide, 1.0, Qt::CustomDashLine, Qt::FlatCap);
    pen.setDashPattern({2.0, 2.0});
    p.setPen(pen);
    p.drawLine(from, to);
}

void Label(QPainter& p, const QRectF& box, const QString& text) {
    p.setFont(LabelFont());
    p.setPen(kGiven);
    p.drawText(box, Qt::AlignCenter, text);
}

// The side from the last vertex (black) to the new one (red), in the colour of what is given.
void Side(QPainter& p, const QColor& colour) {
    Line(p, kStart, kEnd, colour);
    Dot(p, kStart, kSide);
    Dot(p, kEnd, kNewVertex);
}

// The angle of the side, measured from the horizontal through its start.
void Angle(QPainter& p) {
    const double degrees =
        std::atan2(kStart.y() - kEnd.y(), kEnd.x() - kStart.x()) * 180.0 / std::numbers::pi;
    p.setPen(QPen(kGiven, 1.5));
    const double r = 10.0;
    p.drawArc(QRectF(kStart.x() - r, kStart.y() - r, 2 * r, 2 * r), 0,
              static_cast<int>(degrees * 16.0));
    Label(p, QRectF(kStart.x() + 10.0, kStart.y() - 12.0, 10.0, 11.0), QStringLiteral("α"));
}

void DxDy(QPainter& p) {
    Line(p, kStart, kCorner, kGiven);
    Line(p, kCorner, kEnd, kGiven);
    Side(p, kSide);
    Label(p, QRectF(7.0, 35.0, 24.0, 10.0), QStringLiteral("dx"));
    Label(p, QRectF(30.0, 16.0, 16.0, 12.0), QStringLiteral("dy"));
}

void AngleDistance(QPainter& p) {
    Guide(p, kStart, kCorner + QPointF(8.0, 0.0));
    Angle(p);
    Side(p, kGiven);
    Label(p, QRectF(5.0, 9.0, 12.0, 12.0), QStringLiteral("d"));
}

void AngleDx(QPainter& p) {
    Guide(p, kCorner, kEnd);
    Line(p, kStart, kCorner, kGiven);
    Angle(p);
    Side(p, kSide);
    Label(p, QRectF(7.0, 35.0, 24.0, 10.0), QStringLiteral("dx"));
}

void AngleDy(QPainter& p) {
    Guide(p, kStart, kCorner + QPointF(8.0, 0.0));
    Line(p, kCorner, kEnd, kGiven);
    Angle(p);
    Side(p, kSide);
    Label(p, QRectF(30.0, 16.0, 16.0, 12.0), QStringLiteral("dy"));
}

// An arc of four segments about its centre, with the radius to its first vertex.
void Arc(QPainter& p) {
    const QPointF centre(11.5, 37.5);
    const double r = 27.0;
    p.setPen(QPen(kGiven, 1.5));
    p.drawLine(centre - QPointF(3.5, 0), centre + QPointF(3.5, 0));
    p.drawLine(centre - QPointF(0, 3.5), centre + QPointF(0, 3.5));
    Line(p, centre, centre + QPointF(r, 0.0), kGiven);
    QPainterPath path;
    QPointF vertices[5];
    for (int i = 0; i <= 4; ++i) {
        const double a = i * std::numbers::pi / 8.0;
        vertices[i] = centre + QPointF(r * std::cos(a), -r * std::sin(a));
        if (i == 0) {
            path.moveTo(vertices[i]);
        } else {
            path.lineTo(vertices[i]);
        }
    }
    p.setPen(QPen(kSide, 2.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawPath(path);
    for (int i = 0; i < 4; ++i) {
        Dot(p, vertices[i], kSide);
    }
    Dot(p, vertices[4], kNewVertex);
    Label(p, QRectF(18.0, 25.0, 12.0, 11.0), QStringLiteral("r"));
}

// A raised button, or a pressed one whose picture sits one pixel lower and to the right.
QImage Button(void (*draw)(QPainter&), bool pressed) {
    QImage image(kSize, kSize, QImage::Format_RGB32);
    image.fill(pressed ? kPressedFace : kFace);
    {
        QPainter p(&image);
        p.setRenderHint(QPainter::Antialiasing);
        p.setRenderHint(QPainter::TextAntialiasing);
        if (pressed) {
            p.translate(1.0, 1.0);
        }
        draw(p);
    }
    QPainter p(&image);
    const int last = kSize - 1;
    const QColor topLeftOuter = pressed ? kDarkShadow : kLight;
    const QColor topLeftInner = pressed ? kShadow : kFace;
    const QColor bottomRightOuter = pressed ? kLight : kDarkShadow;
    const QColor bottomRightInner = pressed ? kFace : kShadow;
    p.setPen(topLeftOuter);
    p.drawLine(0, 0, last - 1, 0);
    p.drawLine(0, 0, 0, last - 1);
    p.setPen(bottomRightOuter);
    p.drawLine(0, last, last, last);
    p.drawLine(last, 0, last, last);
    p.setPen(topLeftInner);
    p.drawLine(1, 1, last - 2, 1);
    p.drawLine(1, 1, 1, last - 2);
    p.setPen(bottomRightInner);
    p.drawLine(1, last - 1, last - 1, last - 1);
    p.drawLine(last - 1, 1, last - 1, last - 1);
    p.end();
    return image.convertToFormat(QImage::Format_Indexed8, Qt::ThresholdDither | Qt::AvoidDither);
}

struct Picture {
    const char* name;
    void (*draw)(QPainter&);
};

constexpr Picture kPictures[] = {
    {"XXDXDY", DxDy},    {"XXANDI", AngleDistance}, {"XXANDX", AngleDx},
    {"XXANDY", AngleDy}, {"XXARC1", Arc},
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: draw_bitmaps <outdir>\n");
        return 2;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QGuiApplication app(argc, argv);
    const QDir outdir(QString::fromLocal8Bit(argv[1]));
    outdir.mkpath(QStringLiteral("."));
    int failures = 0;
    for (const Picture& picture : kPictures) {
        for (const bool pressed : {false, true}) {
            const QString path = outdir.filePath(
                QStringLiteral("%1%2.png").arg(QLatin1String(picture.name), pressed ? "D" : "U"));
            const QImage image = Button(picture.draw, pressed);
            if (image.colorCount() > 256 || !image.save(path, "PNG")) {
                std::fprintf(stderr, "draw_bitmaps: cannot write %s\n", qPrintable(path));
                ++failures;
            } else {
                std::printf("%s\n", qPrintable(path));
            }
        }
    }
    return failures == 0 ? 0 : 1;
}
