// Line primitives: the rubber-band segment on pixels, mixline's dotted centre, layer_line's
// value classes and monochrome markers, and the spring's strokes.

#include "draw/gdi/Lines.h"

#include "support/DrawProbes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

using seisplot::RecordingDC;
using seisplot::RecordingDevice;
using seisplot::test::Canvas;
using seisplot::test::MetricDC;
using seisplot::test::Shapes;
using testing::ElementsAre;

namespace {

constexpr COLORREF kRed = 0x0000FF;
constexpr COLORREF kBlue = 0xFF0000;

} // namespace

TEST(Lines, RubberBandSegmentVanishesWhenDrawnTwice) {
    Canvas c(60, 40);
    c.Fill(CRect(0, 0, 30, 40), 0x336699);
    c.Fill(CRect(10, 10, 50, 25), 0x00C000);
    const auto before = c.Pixels();
    lineX(&c.dc, CPoint(3, 2), CPoint(55, 37));
    EXPECT_NE(c.Pixels(), before);
    lineX(&c.dc, CPoint(3, 2), CPoint(55, 37));
    EXPECT_EQ(c.Pixels(), before);

    lineX(&c.dc, CPoint(50, 5), CPoint(5, 30), 4, 0x00FF00);
    EXPECT_NE(c.Pixels(), before);
    lineX(&c.dc, CPoint(50, 5), CPoint(5, 30), 4, 0x00FF00);
    EXPECT_EQ(c.Pixels(), before);
}

TEST(Lines, MixlineDotsOnlyOnColourDevices) {
    Canvas colour(60, 20);
    mixline(&colour.dc, CPoint(0, 10), CPoint(60, 10), kRed, kBlue, 5);
    int red = 0, blue = 0;
    for (int x = 0; x < 60; ++x) {
        red += colour.dc.GetPixel(x, 10) == kRed;
        blue += colour.dc.GetPixel(x, 10) == kBlue;
        EXPECT_EQ(colour.dc.GetPixel(x, 8), kRed) << x; // the dots are one pixel wide
    }
    EXPECT_GT(blue, 10);
    EXPECT_GT(red, 10); // transparent gaps show the main line
    EXPECT_EQ(red + blue, 60);

    // Black main line, white dots: a monochrome device shows no dot.
    Canvas mono(60, 20, 0xFFFFFF, Canvas::Depth::Monochrome);
    mixline(&mono.dc, CPoint(0, 10), CPoint(60, 10), 0, 0xFFFFFF, 5);
    for (int x = 0; x < 60; ++x) {
        EXPECT_EQ(mono.dc.GetPixel(x, 10), 0u) << x;
    }
}

TEST(Lines, LayerLineColoursByValueClass) {
    unsigned long classes[8] = {11, 12, 13, 14, 15, 16, 17, 18};
    struct Case {
        unsigned char kind;
        double value;
        COLORREF colour;
    };
    const Case cases[] = {
        {1, 0.95, 15},       {1, 1.4, 18},        {1, 0.0, 11},        {1, 0.2, 12},
        {3, 0.9, 15},        {3, 0.8, 15},        {2, 100.0, 13},      {2, 280.0, 18},
        {1, -1.0, 0xC0C0C0}, {3, -1.0, 0xC0C0C0}, {1, -0.1, 0xC0C0C0}, {7, 0.5, 0xC0C0C0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << int{c.kind} << ", " << c.value);
        MetricDC dc(-1);
        EXPECT_EQ(layer_line(&dc, CPoint(0, 0), CPoint(1000, 0), c.value, c.kind, classes, 7), 0);
        ASSERT_EQ(dc.Calls().size(), 1u);
        EXPECT_EQ(dc.Calls()[0].pen, (seisplot::PenAttributes{PS_SOLID, 7, c.colour}));
    }
    MetricDC text(-1, MM_TEXT);
    EXPECT_EQ(layer_line(&text, CPoint(0, 0), CPoint(1000, 0), 0.5, 1, classes, 7), 0);
    EXPECT_TRUE(text.Calls().empty());
}

TEST(Lines, LayerLineMarkersOnMonochromeDevices) {
    const CPoint from(0, 0), to(1001, 501); // M = (500, 250)
    const auto draw = [&](double value, int mode = MM_HIMETRIC) {
        auto dc = std::make_unique<MetricDC>(2, mode);
        layer_line(dc.get(), from, to, value, 1, nullptr, 30);
        return dc;
    };
    auto open = draw(0.1); // class 1: the triangle's base 66 below M, its apex 133 above
    EXPECT_THAT(Shapes(*open), ElementsAre("L 0,0 1001,501", "P 434,184 566,184 500,383"));
    EXPECT_EQ(open->Calls()[0].pen, (seisplot::PenAttributes{PS_SOLID, 30, 0}));
    EXPECT_EQ(open->Calls()[1].pen, (seisplot::PenAttributes{PS_SOLID, 1, 0}));
    EXPECT_EQ(open->Calls()[1].brush.style, BS_NULL);
    EXPECT_EQ(draw(1.1)->Calls()[1].brush.style, BS_SOLID); // class 6: filled

    // Class 3: the 200-unit square and its diagonals in the caller's pen (the stock black).
    auto crossed = draw(0.5);
    EXPECT_THAT(Shapes(*crossed), ElementsAre("L 0,0 1001,501", "R 400,350 600,150",
                                              "L 400,150 600,350", "L 400,350 600,150"));
    EXPECT_EQ(crossed->Calls()[2].pen, seisplot::PenAttributes{});
    EXPECT_EQ(draw(1.3)->Calls()[1].brush.style, BS_SOLID); // class 7: filled square

    // Class 5: circle with an upright cross; class 8 filled; class 0 an open circle.
    EXPECT_THAT(Shapes(*draw(0.85)), ElementsAre("L 0,0 1001,501", "E 400,350 600,150",
                                                 "L 500,150 500,350", "L 400,250 600,250"));
    auto full = draw(2.0);
    EXPECT_THAT(Shapes(*full), ElementsAre("L 0,0 1001,501", "E 400,350 600,150"));
    EXPECT_EQ(full->Calls()[1].brush.style, BS_SOLID);
    EXPECT_EQ(draw(-0.5)->Calls()[1].brush.style, BS_NULL);

    // Tenths of a millimetre: a marker of 20 units.
    EXPECT_THAT(Shapes(*draw(0.1, MM_LOMETRIC)),
                ElementsAre("L 0,0 1001,501", "P 494,244 506,244 500,263"));
}

TEST(Lines, SpringStrokesAndTurningPoints) {
    MetricDC dc(-1);
    CPoint from(0, 0), to(1100, 0);
    EXPECT_EQ(linespr(&dc, from, to, 11.0, kRed, 3), 0);
    EXPECT_THAT(Shapes(dc),
                ElementsAre("L 100,-100 200,100", "L 300,-100 400,100", "L 500,-100 600,100",
                            "L 700,-100 800,100", "L 900,-100 1000,100", "L 200,100 300,-100",
                            "L 400,100 500,-100", "L 600,100 700,-100", "L 800,100 900,-100",
                            "L 0,0 100,-100", "L 1100,0 1000,100"));
    EXPECT_EQ(dc.Calls()[0].pen, (seisplot::PenAttributes{PS_SOLID, 3, kRed}));

    dc.Clear();
    EXPECT_EQ(linespr(&dc, from, from, 11.0, kRed, 3), 0);
    EXPECT_EQ(linespr(&dc, from, to, 0.0, kRed, 3), 0);
    EXPECT_TRUE(dc.Calls().empty());
}
