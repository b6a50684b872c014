#include "draw/gdi/Symbols.h"

#include "draw/gdi/Areas.h"

#include "support/DrawProbes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using seisplot::DrawOp;
using seisplot::RecordingDC;
using seisplot::RecordingDevice;
using seisplot::test::MetricDC;
using seisplot::test::Shapes;
using testing::ElementsAre;

namespace {

// The expected pieces of a profile quarter, drawn with the primitives they are made of.
struct Pieces {
    MetricDC dc;
    void Fill(int x1, int y1, int x2, int y2) { rectangle(&dc, 0x808080, 2, x1, y1, x2, y2); }
    void Taper(int x1, int y1, int x2, int y2, int x3, int y3) {
        triangle(&dc, 0x808080, 2, x1, y1, x2, y2, x3, y3);
    }
    void Quarter(unsigned char mode, int ax, int ay, int cx, int cy, int bx, int by) {
        quart_circl(&dc, mode, ax, ay, cx, cy, bx, by, 0x808080, 0xFFFFFF);
    }
};

} // namespace

TEST(SymbolsTest, MarkersAreSizedInMillimetres) {
    MetricDC dc;
    const CPoint at(1000, 2000);
    // Size 2: S = 200 units, h = 100.
    Symbol(&dc, 0x0000FF, 1, at, 2);
    Symbol(&dc, 0x0000FF, 10, at, 2);
    Symbol(&dc, 0x0000FF, 11, at, 2); // base 0.6h below, apex 1.2h above
    Symbol(&dc, 0x0000FF, 4, at, 2);  // (x - S/4, y + S/6)
    Symbol(&dc, 0x0000FF, 9, at, 2);  // (x + S/4, y - S/6)
    // The dots are single pixels ("?" in Shapes).
    EXPECT_THAT(Shapes(dc),
                ElementsAre("R 900,1900 1100,2100", "R 900,1900 1100,2100",
                            "P 900,1940 1100,1940 1000,2120", "? 950,2033", "? 1050,1967"));
    EXPECT_EQ(dc.Calls()[3].op, DrawOp::SetPixel);
    EXPECT_EQ(dc.Calls()[4].op, DrawOp::SetPixel);
    EXPECT_EQ(dc.Calls()[0].brush.style, BS_SOLID);
    EXPECT_EQ(dc.Calls()[0].brush.color, 0x0000FFu);
    EXPECT_EQ(dc.Calls()[1].brush.style, BS_NULL);
    EXPECT_EQ(dc.Calls()[3].color, 0x0000FFu);

    // On a printer a dot is a disc of radius S/20.
    MetricDC printer(RecordingDevice{.technology = DT_RASPRINTER, .printing = true});
    Symbol(&printer, 0x0000FF, 4, at, 2);
    EXPECT_THAT(Shapes(printer), ElementsAre("E 940,2023 960,2043"));
    EXPECT_EQ(printer.Calls()[0].brush.style, BS_SOLID);

    dc.Clear();
    Symbol(&dc, 0x0000FF, 13, at, 2);
    Symbol(&dc, 0x0000FF, 0, at, 2);
    EXPECT_TRUE(dc.Calls().empty());
    RecordingDC text; // MM_TEXT
    EXPECT_EQ(Symbol(&text, 0x0000FF, 1, at, 2), 0);
    EXPECT_TRUE(text.Calls().empty());
}

TEST(SymbolsTest, ParallelFlangeQuarterRoundsAndMirrors) {
    // k = 10.5 puts several lengths on a half: t·k = 52.5 -> 53, (t + r)·k = 115.5 -> 116,
    // (b - rr)·k = 493.5 -> 494, (h - rr)·k = 52.5 -> 53; h·k = 84, (h + r)·k = 147.
    const double b = 50, t = 5, h = 8, r = 6, rr = 3, k = 10.5;
    MetricDC up;
    bootL_displ(&up, 2, 1000, 500, b, t, h, r, rr, k, 0x808080, 0xFFFFFF);
    Pieces want;
    want.Fill(1000, 500, 1053, 647);
    want.Fill(1053, 500, 1116, 584);
    want.Fill(1116, 500, 1494, 584);
    want.Fill(1494, 500, 1525, 553);
    want.Quarter(1, 1525, 553, 1525, 584, 1494, 584);
    // The fillet one unit clear of the stem and one unit under its far end.
    want.Quarter(0, 1054, 646, 1054, 584, 1116, 584);
    EXPECT_EQ(Shapes(up), Shapes(want.dc));

    // Orientation 0 mirrors about y = 500; the fillet's unit moves to the flange's level.
    MetricDC down;
    bootL_displ(&down, 0, 1000, 500, b, t, h, r, rr, k, 0x808080, 0xFFFFFF);
    Pieces mirrored;
    const auto m = [](int y) { return 1000 - y; };
    mirrored.Fill(1000, 500, 1053, m(647));
    mirrored.Fill(1053, 500, 1116, m(584));
    mirrored.Fill(1116, 500, 1494, m(584));
    mirrored.Fill(1494, 500, 1525, m(553));
    mirrored.Quarter(1, 1525, m(553), 1525, m(584), 1494, m(584));
    mirrored.Quarter(0, 1054, m(647), 1054, m(584) - 1, 1116, m(584) - 1);
    EXPECT_EQ(Shapes(down), Shapes(mirrored.dc));

    // Without taper the tapered quarter is the same outline plus a flat triangle.
    MetricDC flat;
    boot_displ(&flat, 1, 1000, 500, b, t, h, r, rr, 0.0, k, 0x808080, 0xFFFFFF);
    MetricDC parallel;
    bootL_displ(&parallel, 1, 1000, 500, b, t, h, r, rr, k, 0x808080, 0xFFFFFF);
    std::vector<std::string> shapes = Shapes(flat);
    ASSERT_EQ(shapes.size(), Shapes(parallel).size() + 1);
    EXPECT_EQ(shapes[3], "P 884,416 884,416 506,416");
    shapes.erase(shapes.begin() + 3);
    EXPECT_EQ(shapes, Shapes(parallel));
}

TEST(SymbolsTest, TaperedQuarterTowardsMinusX) {
    // d = (50 - 5 - 6 - 3)·0.14 / 2 = 2.52: the flange is 10.52 thick at the fillet, 5.48 at
    // the tip; k = 10, x mirrored about 1000.
    MetricDC got;
    boot_displ(&got, 3, 1000, 500, 50, 5, 8, 6, 3, 0.14, 10, 0x808080, 0xFFFFFF);
    Pieces want;
    want.Fill(1000, 500, 950, 665);
    want.Fill(950, 500, 890, 605);
    want.Fill(890, 500, 530, 555);
    want.Taper(890, 555, 890, 605, 530, 555);
    want.Fill(530, 500, 500, 525);
    want.Quarter(1, 500, 525, 500, 555, 530, 555);
    want.Quarter(0, 949, 664, 949, 605, 890, 605);
    EXPECT_EQ(Shapes(got), Shapes(want.dc));
}

TEST(SymbolsTest, TowerQuarter) {
    MetricDC got;
    tower_displ(&got, 1, 0, 0, 30, 20, 4, 1.0, 0x808080, 0xFFFFFF);
    Pieces want;
    want.Fill(0, 0, -20, -26);
    want.Fill(0, -26, -16, -30);
    want.Quarter(1, -16, -30, -20, -30, -20, -26);
    EXPECT_EQ(Shapes(got), Shapes(want.dc));

    // Without a corner radius the two rectangles make up the whole 20 by 30, and the corner
    // is a point.
    got.Clear();
    tower_displ(&got, 2, 0, 0, 30, 20, 0, 1.0, 0x808080, 0xFFFFFF);
    Pieces square;
    square.Fill(0, 0, 20, 30);
    square.Fill(0, 30, 20, 30);
    square.Quarter(1, 20, 30, 20, 30, 20, 30);
    EXPECT_EQ(Shapes(got), Shapes(square.dc));
}
