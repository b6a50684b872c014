// Closed figures: inverting figures on pixels, outlines, the checkerboard and hatch fills,
// the fillet's geometry, the polygon preview, and the state every primitive leaves behind.

#include "draw/gdi/Areas.h"

#include "draw/gdi/Lines.h"
#include "host/RPoly.h"

#include "support/DrawProbes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <optional>

using seisplot::RecordingDC;
using seisplot::RecordingDevice;
using seisplot::test::Canvas;
using seisplot::test::MetricDC;
using seisplot::test::Shapes;
using testing::ElementsAre;

namespace {

// The primitives' colour type (COLORREF is narrower here, which would make overloads ambiguous).
constexpr unsigned long kWhite = 0xFFFFFF;
constexpr unsigned long kRed = 0x0000FF;
constexpr unsigned long kGreen = 0x00FF00;
constexpr unsigned long kBlue = 0xFF0000;

} // namespace

TEST(Areas, InvertingFiguresVanishWhenDrawnTwice) {
    Canvas c(80, 60);
    c.Fill(CRect(0, 0, 40, 60), 0x336699);
    c.Fill(CRect(20, 15, 70, 45), 0x00C000);
    const auto before = c.Pixels();
    rectangleX(&c.dc, CPoint(5, 5), CPoint(60, 50));
    EXPECT_NE(c.Pixels(), before);
    rectangleX(&c.dc, CPoint(5, 5), CPoint(60, 50));
    EXPECT_EQ(c.Pixels(), before);

    c.dc.SetMapMode(MM_HIMETRIC); // 96 dpi: a 10 mm disc is about 38 pixels across
    const CPoint centre(1000, -800);
    EXPECT_EQ(DisplayROPCircle(&c.dc, centre, 10), 1);
    EXPECT_NE(c.Pixels(), before);
    EXPECT_EQ(DisplayROPCircle(&c.dc, centre, 10), 1);
    EXPECT_EQ(c.Pixels(), before);

    c.dc.SetMapMode(MM_TEXT);
    EXPECT_EQ(DisplayROPCircle(&c.dc, CPoint(40, 30), 10), 0);
    EXPECT_EQ(c.Pixels(), before);
    RecordingDC lometric;
    lometric.SetMapMode(MM_LOMETRIC);
    DisplayROPCircle(&lometric, CPoint(100, -100), 5); // radius 25 units
    EXPECT_THAT(Shapes(lometric), ElementsAre("E 75,-125 125,-75"));
}

TEST(Areas, TriangleOutlineLeavesItsInside) {
    Canvas c(40, 40, kGreen);
    triangle(&c.dc, kRed, 1, 2, 2, 37, 2, 20, 37);
    EXPECT_EQ(c.dc.GetPixel(20, 2), kRed);
    EXPECT_EQ(c.dc.GetPixel(20, 15), kGreen);
    triangle(&c.dc, kRed, 2, 2, 2, 37, 2, 20, 37);
    EXPECT_EQ(c.dc.GetPixel(20, 15), kRed);
}

TEST(Areas, CheckerboardPaintsHalfThePixelsInEachColour) {
    Canvas c(32, 24);
    c.dc.SetTextColor(0x111111);
    c.dc.SetBkColor(0x222222);
    CPoint square[] = {{3, 3}, {29, 3}, {29, 21}, {3, 21}};
    EXPECT_EQ(mixpolygon(&c.dc, square, 4, kGreen, kBlue, kRed, 1), 0);
    // Rows alternate 0x55 and 0xAA from the device origin: 0 bits take the pattern colour,
    // 1 bits the background colour, so the two colours alternate like a chessboard.
    int blue = 0, green = 0, other = 0;
    for (int y = 5; y < 20; ++y) {
        for (int x = 5; x < 28; ++x) {
            const COLORREF p = c.dc.GetPixel(x, y);
            const bool even = (x + y) % 2 == 0;
            blue += even && p == kBlue;
            green += !even && p == kGreen;
            other += p != (even ? kBlue : kGreen);
        }
    }
    EXPECT_EQ(other, 0);
    EXPECT_EQ(blue, 173); // 15 rows of 23 pixels: 345, the first one even
    EXPECT_EQ(green, 172);
    EXPECT_EQ(c.dc.GetPixel(3, 10), kRed);
    EXPECT_EQ(c.dc.GetTextColor(), 0x111111u);
    EXPECT_EQ(c.dc.GetBkColor(), 0x222222u);
}

TEST(Areas, HatchGapsFollowTheBackgroundMode) {
    CPoint square[] = {{2, 2}, {38, 2}, {38, 38}, {2, 38}};
    const auto inside = [&](Canvas& c) {
        std::vector<COLORREF> colours;
        for (int y = 5; y < 35; ++y) {
            for (int x = 5; x < 35; ++x) {
                const COLORREF p = c.dc.GetPixel(x, y);
                if (std::find(colours.begin(), colours.end(), p) == colours.end()) {
                    colours.push_back(p);
                }
            }
        }
        std::sort(colours.begin(), colours.end());
        return colours;
    };
    Canvas opaque(40, 40);
    opaque.dc.SetBkColor(0x123456);
    EXPECT_EQ(hatchpolygon(&opaque.dc, square, 4, kGreen, kBlue, kRed, 1, HS_CROSS), 0);
    EXPECT_THAT(inside(opaque), ElementsAre(kGreen, kBlue));
    EXPECT_EQ(opaque.dc.GetBkColor(), 0x123456u);

    Canvas clear(40, 40);
    clear.dc.SetBkMode(TRANSPARENT);
    hatchpolygon(&clear.dc, square, 4, kGreen, kBlue, kRed, 1, HS_CROSS);
    EXPECT_THAT(inside(clear), ElementsAre(kBlue, kWhite));
}

TEST(Areas, FilletSwapsItsEndsAndFillsTheCornerSquare) {
    // Q (0, 0), A (0, 10), B (10, 0): the ends swap; the arc is about K (10, 10).
    MetricDC dc;
    EXPECT_EQ(quart_circl(&dc, 0, 0, 10, 0, 0, 10, 0, kRed, kWhite), 0);
    EXPECT_THAT(Shapes(dc), ElementsAre("R 0,0 10,10", "W 0,0 20,20 0,10 10,0"));
    EXPECT_EQ(dc.Calls()[0].brush.color, kRed);
    EXPECT_EQ(dc.Calls()[1].brush.color, kWhite);
    EXPECT_EQ(dc.Calls()[1].pen, (seisplot::PenAttributes{PS_SOLID, 10, kWhite}));
    dc.Clear();
    quart_circl(&dc, 0, 10, 0, 0, 0, 0, 10, kRed, kWhite); // already in turning order
    EXPECT_THAT(Shapes(dc), ElementsAre("R 0,0 10,10", "W 0,0 20,20 0,10 10,0"));

    // The bottom-right corner Q (20, 0): box from D (0, 20), square from the K-Q diagonal.
    dc.Clear();
    quart_circl(&dc, 0, 20, 10, 20, 0, 10, 0, kRed, kWhite);
    EXPECT_THAT(Shapes(dc), ElementsAre("R 10,0 20,10", "W 0,20 20,0 10,0 20,10"));
    dc.Clear();
    quart_circl(&dc, 1, 20, 10, 20, 0, 10, 0, kRed, kWhite);
    EXPECT_THAT(Shapes(dc), ElementsAre("W 0,20 20,0 10,0 20,10"));
    EXPECT_EQ(dc.Calls()[0].brush.color, kRed);
}

TEST(Areas, PolygonPensAndTwoColourEdges) {
    MetricDC dc;
    CPoint square[] = {{0, 0}, {100, 0}, {100, 100}, {0, 100}};
    polygon(&dc, square, 4, kBlue, kRed, 0);
    polygon(&dc, square, 4, kBlue, kRed, -1);
    polygon(&dc, square, 4, kRed, 5);
    ASSERT_EQ(dc.Calls().size(), 3u);
    EXPECT_EQ(dc.Calls()[0].pen.style, PS_NULL);
    EXPECT_EQ(dc.Calls()[1].pen.style, PS_NULL);
    EXPECT_EQ(dc.Calls()[0].brush.color, kBlue);
    EXPECT_EQ(dc.Calls()[2].brush.style, BS_NULL);

    // Each edge a solid line with a dotted centre, the closing edge last.
    dc.Clear();
    mixpolygon(&dc, square, 4, kRed, kBlue, 20, 1);
    EXPECT_THAT(Shapes(dc),
                ElementsAre("L 0,0 100,0", "L 0,0 100,0", "L 100,0 100,100", "L 100,0 100,100",
                            "L 100,100 0,100", "L 100,100 0,100", "L 0,100 0,0", "L 0,100 0,0"));
    EXPECT_EQ(dc.Calls()[1].pen, (seisplot::PenAttributes{PS_DOT, 1, kBlue}));
    dc.Clear();
    mixpolygon(&dc, square, 4, kRed, kBlue, 20, 2);
    EXPECT_EQ(dc.Calls().at(0).op, seisplot::DrawOp::Polygon);
    EXPECT_EQ(dc.Calls()[0].pen, (seisplot::PenAttributes{PS_SOLID, 1, kRed}));
    EXPECT_EQ(dc.Calls().size(), 9u);
    dc.Clear();
    EXPECT_EQ(mixpolygon(&dc, square, 0, kRed, kBlue, 20, 2), 0);
    EXPECT_TRUE(dc.Calls().empty());
}

TEST(Areas, PolygonPreviewFillsSeventyPercentOfTheButton) {
    // 192 by 96 pixels at 96 dpi: 5080 by 2540 units. A 10 by 10 square scales by
    // 0.7·2540/10 = 177.8 to 1778 units, from (1651, 381): pixels 62 to 130 across and,
    // y pointing up from the bottom edge, 14 to 82 down.
    const auto inked = [](CButton& button) {
        CDC* dc = button.GetDC();
        CRect client;
        button.GetClientRect(&client);
        CRect box(client.right, client.bottom, -1, -1);
        for (int y = 0; y < client.bottom; ++y) {
            for (int x = 0; x < client.right; ++x) {
                if (dc->GetPixel(x, y) != kWhite) {
                    box = CRect(std::min<int>(box.left, x), std::min<int>(box.top, y),
                                std::max<int>(box.right, x), std::max<int>(box.bottom, y));
                }
            }
        }
        button.ReleaseDC(dc);
        return box;
    };
    const auto near = [](const CRect& a, const CRect& b) {
        return std::abs(a.left - b.left) <= 1 && std::abs(a.top - b.top) <= 1 &&
               std::abs(a.right - b.right) <= 1 && std::abs(a.bottom - b.bottom) <= 1;
    };
    const int live = seisplot::LiveGdiObjects();
    CButton square;
    square.SetClientSize(192, 96);
    RPoly poly;
    poly.AddPoint(0, 0), poly.AddPoint(10, 0), poly.AddPoint(10, 10), poly.AddPoint(0, 10);
    DrawPoly(square, &poly, kRed, kBlue, 1);
    EXPECT_PRED2(near, inked(square), CRect(62, 14, 130, 82)) << inked(square).left;
    CDC* dc = square.GetDC();
    EXPECT_EQ(dc->GetPixel(96, 48), kBlue);
    square.ReleaseDC(dc);
    EXPECT_EQ(seisplot::LiveGdiObjects(), live);

    // A level segment scales as the square on it.
    CButton segment;
    segment.SetClientSize(192, 96);
    RPoly level;
    level.AddPoint(0, 0), level.AddPoint(10, 0);
    DrawPoly(segment, &level, kRed, kBlue, 1);
    EXPECT_PRED2(near, inked(segment), CRect(62, 48, 130, 48));

    CButton point;
    point.SetClientSize(192, 96);
    RPoly single;
    single.AddPoint(3, 4);
    DrawPoly(point, &single, kRed, kBlue, 1);
    EXPECT_EQ(inked(point), CRect(192, 96, -1, -1));
}

TEST(Areas, EveryPrimitiveLeavesTheContextAsFound) {
    CPoint pts[] = {{0, 0}, {500, 0}, {500, 400}, {0, 400}};
    const CPoint a(0, 0), b(800, 300);
    unsigned long classes[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    constexpr std::optional<int> kThrows;
    struct Primitive {
        const char* name;
        bool monochrome;
        std::function<int(CDC*)> draw;
        int drawn;
        std::optional<int> failed; // the result when no pen can be created
        bool drawsAnyway = false;  // draws with the caller's objects then
    };
    CPoint from(a), to(b);
    const Primitive primitives[] = {
        {"line", false, [&](CDC* dc) { return line(dc, a, b, kRed, 5); }, 0, kThrows},
        {"line current pen", false, [&](CDC* dc) { return line(dc, a, b); }, 0, 0, true},
        {"lineX", false, [&](CDC* dc) { return lineX(dc, a, b); }, 0, kThrows},
        {"mixline", false, [&](CDC* dc) { return mixline(dc, a, b, kRed, kBlue, 9); }, 0, kThrows},
        {"mixline mono", true, [&](CDC* dc) { return mixline(dc, a, b, 0, kWhite, 9); }, 0,
         kThrows},
        {"layer_line", false, [&](CDC* dc) { return layer_line(dc, a, b, 0.5, 1, classes, 5); }, 0,
         kThrows},
        {"layer_line none", false,
         [&](CDC* dc) { return layer_line(dc, a, b, -1.0, 1, classes, 5); }, 0, 1},
        {"layer_line marker", true,
         [&](CDC* dc) { return layer_line(dc, a, b, 0.5, 1, classes, 5); }, 0, 1},
        {"linespr", false, [&](CDC* dc) { return linespr(dc, from, to, 8.0, kRed, 3); }, 0,
         kThrows},
        {"triangle", false, [&](CDC* dc) { return triangle(dc, kRed, 2, 0, 0, 9, 0, 5, 9); }, 0, 0},
        {"rectangle", false, [&](CDC* dc) { return rectangle(dc, a, b, kRed, 2); }, 0, 1},
        {"rectangle outline", false, [&](CDC* dc) { return rectangle(dc, kRed, 1, 0, 0, 9, 9); }, 0,
         1},
        {"rectangleX", false, [&](CDC* dc) { return rectangleX(dc, a, b); }, 0, 0, true},
        {"polygon filled", false, [&](CDC* dc) { return polygon(dc, pts, 4, kRed, kBlue, 3); }, 0,
         1},
        {"polygon outline", false, [&](CDC* dc) { return polygon(dc, pts, 4, kRed, 3); }, 0, 1},
        {"mixpolygon", false, [&](CDC* dc) { return mixpolygon(dc, pts, 4, kRed, kBlue, 3, 2); }, 0,
         1},
        {"mixpolygon checkerboard", false,
         [&](CDC* dc) { return mixpolygon(dc, pts, 4, kRed, kBlue, kGreen, 3); }, 0, 1},
        {"hatchpolygon", false,
         [&](CDC* dc) { return hatchpolygon(dc, pts, 4, kRed, kBlue, kGreen, 3, HS_CROSS); }, 0, 1},
        {"ellipse", false, [&](CDC* dc) { return ellipse(dc, a, b, kRed, 2, 3); }, 0, 1},
        {"ellipse short", false, [&](CDC* dc) { return ellipse(dc, kRed, 1, 0, 0, 9, 9); }, 0, 1},
        {"Arc", false, [&](CDC* dc) { return Arc(dc, kRed, 0, 0, 9, 9, 9, 5, 0, 5); }, 0, 1},
        {"pie", false, [&](CDC* dc) { return pie(dc, kRed, 2, 0, 0, 9, 9, 9, 5, 0, 5); }, 0, 1},
        {"quart_circl", false,
         [&](CDC* dc) { return quart_circl(dc, 0, 0, 10, 0, 0, 10, 0, kRed, kBlue); }, 0, 0},
        {"DisplayROPCircle", false, [&](CDC* dc) { return DisplayROPCircle(dc, CPoint(0, 0), 5); },
         1, 0},
    };

    MetricDC warmUp; // the checkerboard brush lives for the whole process
    mixpolygon(&warmUp, pts, 4, kRed, kBlue, kGreen, 3);

    for (const Primitive& p : primitives) {
        SCOPED_TRACE(p.name);
        for (const bool failing : {false, true}) {
            MetricDC dc(p.monochrome ? 2 : -1);
            CPen pen(PS_DASH, 1, 0x010203);
            CBrush brush(0x040506);
            dc.SelectObject(&pen);
            dc.SelectObject(&brush);
            dc.SetROP2(R2_XORPEN);
            dc.SetBkColor(0x123456);
            dc.SetTextColor(0x654321);
            const int live = seisplot::LiveGdiObjects();

            seisplot::FailGdiCreationAfter(failing ? 0 : -1);
            // Primitives that construct their pens directly raise the framework's resource
            // exception when a pen cannot be made; the rest return their failure result.
            std::optional<int> result;
            bool raised = false;
            try {
                result = p.draw(&dc);
            } catch (CResourceException* e) {
                raised = true;
                e->Delete();
            }
            seisplot::FailGdiCreationAfter(-1);

            EXPECT_EQ(raised, failing && !p.failed) << failing;
            if (!raised) {
                EXPECT_EQ(result, failing ? *p.failed : p.drawn) << failing;
            }
            EXPECT_EQ(dc.Calls().empty(), failing && !p.drawsAnyway) << failing;
            EXPECT_EQ(dc.GetCurrentPen(), &pen);
            EXPECT_EQ(dc.GetCurrentBrush(), &brush);
            EXPECT_EQ(dc.GetROP2(), R2_XORPEN);
            EXPECT_EQ(dc.GetBkMode(), OPAQUE);
            EXPECT_EQ(dc.GetBkColor(), 0x123456u);
            EXPECT_EQ(dc.GetTextColor(), 0x654321u);
            EXPECT_EQ(seisplot::LiveGdiObjects(), live);
        }
    }
}
