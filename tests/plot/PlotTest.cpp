#include "plot/CurvePlot.h"

#include "platform/gdi/RecordingDC.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

using seisplot::DrawCall;
using seisplot::DrawOp;
using seisplot::RecordingDC;
using seisplot::RecordingDevice;
using testing::Contains;
using testing::Not;

namespace {

// A client area of 480 by 384 pixels at 96 dpi is 12700 by 10160 logical units: the box's
// centre is (6350, 5080) and 0.8 of its smaller side is 8128 units.
constexpr int kCentreX = 6350;
constexpr int kCentreY = 5080;
constexpr double kFilled = 8128.0;
constexpr int kAxisWidth = 50;
constexpr int kTickWidth = 25;
constexpr int kCurveWidth = 10;

PCurve CurveOf(std::vector<std::pair<double, double>> points) {
    PCurve curve;
    for (const auto& [x, y] : points) {
        curve.AddPoint(x, y);
    }
    return curve;
}

struct Plot {
    explicit Plot(RecordingDevice device = {}) : dc(device) { wnd.SetClientSize(480, 384); }

    void Draw(PCurve& curve, Units* units = nullptr, int current = 0, double hStep = 0.0,
              double vStep = 0.0) {
        DrawCurve(&curve, &wnd, &dc, 1, units, title, axis, labels, current, 0, 0, 1, 0xFF0000,
                  kCurveWidth, 0, 0, hStep, vStep);
    }
    std::vector<DrawCall> Lines(int width) const {
        std::vector<DrawCall> lines;
        std::copy_if(
            dc.Calls().begin(), dc.Calls().end(), std::back_inserter(lines),
            [&](const DrawCall& c) { return c.op == DrawOp::Line && c.pen.width == width; });
        return lines;
    }
    // The horizontal axis first, then the vertical one.
    DrawCall HAxis() const { return Lines(kAxisWidth).at(0); }
    DrawCall VAxis() const { return Lines(kAxisWidth).at(1); }
    std::vector<std::string> Texts() const {
        std::vector<std::string> texts;
        for (const DrawCall& c : dc.Calls()) {
            if (c.op == DrawOp::Text) {
                texts.emplace_back(c.text.GetString());
            }
        }
        return texts;
    }
    const DrawCall* Text(const std::string& text) const {
        for (const DrawCall& c : dc.Calls()) {
            if (c.op == DrawOp::Text && text == c.text.GetString()) {
                return &c;
            }
        }
        return nullptr;
    }
    std::vector<CPoint> DiscCentres(COLORREF colour) const {
        std::vector<CPoint> centres;
        for (const DrawCall& c : dc.Calls()) {
            if (c.op == DrawOp::Ellipse && c.brush.color == colour) {
                centres.emplace_back((c.logical[0].x + c.logical[1].x) / 2,
                                     (c.logical[0].y + c.logical[1].y) / 2);
            }
        }
        return centres;
    }

    RecordingDC dc;
    CWnd wnd;
    SFont title{14, 0};
    SFont axis{10, 0};
    SFont labels{8, 0};
};

// Where the value `at` lands when [low, high] fills 8128 units about the centre.
double Across(double at, double low, double high) {
    return kCentreX - kFilled / 2 + kFilled * (at - low) / (high - low);
}

} // namespace

TEST(CurvePlot, AxesStandWhereTheRangesPutThem) {
    {
        // All zero: both ranges become -10 ... 10 and the axes cross at the box's centre.
        Plot p;
        PCurve zero = CurveOf({{0, 0}, {0, 0}});
        p.Draw(zero);
        EXPECT_EQ(p.HAxis().logical[0].y, kCentreY);
        EXPECT_EQ(p.HAxis().logical[1].y, kCentreY);
        EXPECT_EQ(p.VAxis().logical[0].x, kCentreX);
        EXPECT_NEAR(p.HAxis().logical[0].x, kCentreX - 4064, 1);
        EXPECT_NEAR(p.HAxis().logical[1].x, kCentreX + 4064, 1);
    }
    {
        // 1 to 10: the range reaches zero, from -0.101·10 to 10 + 0.909; the axis stands at 0.
        Plot p;
        PCurve c = CurveOf({{1, 1}, {10, 2}});
        p.Draw(c);
        EXPECT_NEAR(p.VAxis().logical[0].x, Across(0.0, -1.01, 10.909), 1);
    }
    {
        // 5 to 10 (5 / 5 >= 0.75): the axis stands at the left edge 4.495.
        Plot p;
        PCurve c = CurveOf({{5, 1}, {10, 2}});
        p.Draw(c);
        EXPECT_EQ(p.VAxis().logical[0].x, p.HAxis().logical[0].x);
        EXPECT_NEAR(p.VAxis().logical[0].x, kCentreX - kFilled / 2, 1);
    }
    {
        // -10 to -5 (5 / 5 >= 0.75): the axis stands at the left edge -10.505, as for 5 to 10,
        // not at the right edge nearer to zero.
        Plot p;
        PCurve c = CurveOf({{-10, 1}, {-5, 2}});
        p.Draw(c);
        EXPECT_EQ(p.VAxis().logical[0].x, p.HAxis().logical[0].x);
        EXPECT_NEAR(p.VAxis().logical[0].x, kCentreX - kFilled / 2, 1);
    }
    {
        // -10 to -1: the right edge is -0.101 times the maximum, 0.101.
        Plot p;
        PCurve c = CurveOf({{-10, 1}, {-1, 2}});
        p.Draw(c);
        EXPECT_NEAR(p.VAxis().logical[0].x, Across(0.0, -10.909, 0.101), 1);
        EXPECT_NEAR(p.HAxis().logical[1].x - p.VAxis().logical[0].x, 0.101 * kFilled / 11.01, 1);
    }
    {
        // Constant y of 5: the vertical span becomes 100 (5 ± 50 over 8128 units), the
        // horizontal axis stands at 5 and the vertical axis gets no ticks.
        Plot p;
        PCurve c = CurveOf({{0, 5}, {10, 5}});
        p.Draw(c);
        const double sy = kFilled / 100.0;
        const int wy = static_cast<int>(kCentreY - 5 * sy);
        EXPECT_EQ(p.HAxis().logical[0].y, static_cast<int>(wy + 5 * sy));
        for (const DrawCall& tick : p.Lines(kTickWidth)) {
            EXPECT_EQ(tick.logical[0].x, tick.logical[1].x); // marks of the horizontal axis only
        }
        EXPECT_FALSE(p.Lines(kTickWidth).empty());
    }
}

TEST(CurvePlot, TicksSkipTheCrossingAndStopAfter99PerPass) {
    Plot p;
    PCurve c = CurveOf({{-10, -10}, {10, 10}});
    p.Draw(c);
    // Step 2 on -12.02 ... 12.02: 2 to 12 outward, -2 to -12 inward, nothing at 0.
    const double s = kFilled / 24.04;
    std::vector<int> xs;
    for (const DrawCall& tick : p.Lines(kTickWidth)) {
        if (tick.logical[0].x == tick.logical[1].x) {
            xs.push_back(tick.logical[0].x);
            EXPECT_EQ(tick.logical[0].y, kCentreY - 150);
            EXPECT_EQ(tick.logical[1].y, kCentreY + 150);
        }
    }
    ASSERT_EQ(xs.size(), 12u);
    EXPECT_EQ(xs[0], static_cast<int>(kCentreX + 2 * s));
    EXPECT_EQ(xs[1], static_cast<int>(xs[0] + 2 * s)); // each from the previous, truncated
    EXPECT_EQ(xs[6], static_cast<int>(kCentreX - 2 * s));
    EXPECT_THAT(xs, Not(Contains(kCentreX)));
    const std::vector<std::string> texts = p.Texts();
    EXPECT_THAT(texts, Contains("   2"));
    EXPECT_THAT(texts, Contains("  12"));
    EXPECT_THAT(texts, Contains(" -12"));
    EXPECT_THAT(texts, Not(Contains("   0")));
    const DrawCall* two = p.Text("   2");
    ASSERT_NE(two, nullptr);
    EXPECT_EQ(two->logical[0], CPoint(xs[0], kCentreY - 150)); // hanging below the axis

    // A step of 0.01 would need 1202 ticks each way: 99 on each side of the crossing.
    Plot tiny;
    tiny.Draw(c, nullptr, 0, 0.01, 0.01);
    int vertical = 0;
    for (const DrawCall& tick : tiny.Lines(kTickWidth)) {
        vertical += tick.logical[0].x == tick.logical[1].x;
    }
    EXPECT_EQ(vertical, 198);
    EXPECT_EQ(tiny.Lines(kTickWidth).size(), 396u);
}

TEST(CurvePlot, FrameAloneForACurveWithoutPoints) {
    Plot p;
    PCurve empty;
    p.Draw(empty);
    ASSERT_EQ(p.dc.Calls().size(), 2u);
    EXPECT_EQ(p.dc.Calls()[0].brush.color, 0xFFFFFFu);
    EXPECT_EQ(p.dc.Calls()[1].brush.style, BS_NULL);
    EXPECT_THAT(p.dc.Calls()[1].logical, testing::ElementsAre(CPoint(0, 0), CPoint(12700, 10160)));
}

TEST(CurvePlot, PrintingDrawsA200MillimetreSquare) {
    // An A4 page at 300 dpi: 200 mm are 2362 pixels, measured from the page's top left.
    Plot p(RecordingDevice{
        .width = 2480, .height = 3508, .dpi = 300, .technology = DT_RASPRINTER, .printing = true});
    PCurve c = CurveOf({{0, 0}, {1, 1}});
    c.SetName("Record 1");
    p.Draw(c);
    const DrawCall& frame = p.dc.Calls().at(0);
    EXPECT_THAT(frame.logical, testing::ElementsAre(CPoint(0, 0), CPoint(20000, 20000)));
    EXPECT_THAT(frame.device, testing::ElementsAre(CPoint(0, 2362), CPoint(2362, 0)));

    const DrawCall* title = p.Text("Record 1");
    ASSERT_NE(title, nullptr);
    EXPECT_EQ(title->logical[0], CPoint(10000, 0));
    // The credit line runs upward 1 mm inside the right edge, half way up.
    const DrawCall& credit = p.dc.Calls().back();
    EXPECT_THAT(std::string(credit.text.GetString()), testing::HasSubstr("seisplot"));
    EXPECT_EQ(credit.logical[0], CPoint(19900, 10000));
    EXPECT_EQ(credit.font.lfEscapement, -900);
}

TEST(CurvePlot, UnitKindsConvertValuesAndLabelTitles) {
    // x of the moment kind only listings convert stays as it is and has no unit label; y of
    // kind 10 (mm/s²) is shown in m/s² with its label. Range 0 ... 1000 steps by 100; -9.81
    // ... 9.81 by 2.
    PCurve c = CurveOf({{0, -9810}, {1000, 9810}});
    c.XUnit = seisplot::UnitKind::ListedMoment;
    c.YUnit = seisplot::UnitKind::Acceleration;
    c.XName = "time";
    c.YName = "acc";
    c.GetPColl().Select(2, 1);
    Units units; // metres, kilonewtons, seconds

    Plot p;
    p.Draw(c, &units);
    std::vector<std::string> texts = p.Texts();
    EXPECT_THAT(texts, Contains(" 100"));
    EXPECT_THAT(texts, Contains("1100"));
    EXPECT_THAT(texts, Contains("  10"));
    EXPECT_THAT(texts, Not(Contains("2000")));
    EXPECT_THAT(texts, Contains("(   1.00e+03,   9.81e+00)"));
    const DrawCall* x = p.Text("time");
    const DrawCall* y = p.Text(std::string("acc") + units.GetWrapAccString());
    ASSERT_NE(x, nullptr);
    ASSERT_NE(y, nullptr);
    EXPECT_EQ(x->logical[0], p.HAxis().logical[1]); // at the right end of the axis
    EXPECT_EQ(y->logical[0], p.VAxis().logical[1]); // at the top of the axis

    // Without units nothing is converted and no unit label is written.
    Plot bare;
    bare.Draw(c, nullptr);
    texts = bare.Texts();
    EXPECT_THAT(texts, Contains("2000"));
    EXPECT_THAT(texts, Contains("(   1.00e+03,   9.81e+03)"));
    EXPECT_THAT(texts, Contains("acc"));
}

TEST(CurvePlot, OnlyCurveSegmentsDiscsAndCurrentPoint) {
    RecordingDC dc;
    dc.SetMapMode(MM_HIMETRIC);
    dc.SetWindowOrg(0, 10000);
    SFont font(8, 0);
    CRect area(0, 10000, 10000, 0);
    PCurve c = CurveOf({{0, 0}, {10, 10}, {20, 0}});
    c.GetPColl().Select(3, 1);
    const auto draw = [&](PCurve& curve, int current, int invert) {
        dc.Clear();
        DrawOnlyCurve(&curve, nullptr, &dc, nullptr, font, current, invert, 1, 100.0, 50.0, area,
                      1000, 2000, 0x00FF00, 10);
    };
    const auto centres = [&](COLORREF colour) {
        std::vector<CPoint> found;
        for (const DrawCall& call : dc.Calls()) {
            if (call.op == DrawOp::Ellipse && call.brush.color == colour) {
                found.emplace_back((call.logical[0].x + call.logical[1].x) / 2,
                                   (call.logical[0].y + call.logical[1].y) / 2);
                EXPECT_EQ(call.logical[1].x - call.logical[0].x, colour == 0xFF0000 ? 20 : 26);
            }
        }
        return found;
    };
    using testing::ElementsAre;

    draw(c, 2, 0);
    EXPECT_THAT(centres(0xFF0000),
                ElementsAre(CPoint(1000, 2000), CPoint(2000, 2500), CPoint(3000, 2000)));
    EXPECT_THAT(centres(0x0000FF), ElementsAre(CPoint(3000, 2000)));
    EXPECT_THAT(centres(0x008000), ElementsAre(CPoint(2000, 2500)));
    CRect clip;
    dc.GetClipBox(&clip);
    EXPECT_NEAR(clip.right, 10000, 30); // the area, kept selected
    EXPECT_NEAR(clip.bottom, 10000, 30);

    // Exchanged: x is plotted upward.
    draw(c, 0, 1);
    EXPECT_THAT(centres(0xFF0000),
                ElementsAre(CPoint(1000, 2000), CPoint(2000, 2500), CPoint(1000, 3000)));
    EXPECT_TRUE(centres(0x008000).empty()); // current point 0

    draw(c, 4, 0); // a number beyond the last point marks nothing
    EXPECT_TRUE(centres(0x008000).empty());

    PCurve single = CurveOf({{1, 1}});
    draw(single, 0, 0);
    EXPECT_TRUE(dc.Calls().empty());
}

TEST(CurvePlot, PointMarkedInBothViewsWhenExchanged) {
    // Spans 3·10 and 3·20 fill 0.7 of 10160 units about the centre; (5, 5) lands at
    // 5 · 7112/30 and 5 · 7112/60 from it, and the other way round when exchanged.
    Plot p;
    PCurve c = CurveOf({{0, 0}, {10, 20}});
    RPoint2D point(5, 5);
    DrawPoint(&c, &p.wnd, &p.dc, point, nullptr, p.labels, 40, 0x0000FF, 1);
    const double big = 5 * 7112.0 / 30;
    const double small = 5 * 7112.0 / 60;
    EXPECT_THAT(p.DiscCentres(0x0000FF),
                testing::ElementsAre(
                    CPoint(static_cast<int>(kCentreX + small), static_cast<int>(kCentreY + big)),
                    CPoint(static_cast<int>(kCentreX + big), static_cast<int>(kCentreY + small))));
    EXPECT_THAT(p.Texts(), Contains("(   5.00e+00,   5.00e+00)"));
}

TEST(CurvePlot, AxesOfAPlotCarryMoreCurvesOntoIt) {
    // DrawOnlyCurve on the axes CurvePlotAxes gives draws the curve where DrawCurve drew it,
    // on a curve whose values are not centred on zero, in the user's units.
    PCurve curve = CurveOf({{2.0, 1500.0}, {5.0, -400.0}, {9.5, 2600.0}, {11.0, 900.0}});
    curve.XUnit = seisplot::UnitKind::Time;
    curve.YUnit = seisplot::UnitKind::Acceleration;
    Units units;
    Plot whole;
    whole.Draw(curve, &units);
    Plot overlay;
    CDC& dc = overlay.dc;
    seisplot::PlotAxes axes = CurvePlotAxes(&curve, &overlay.wnd, &dc, &units, 0);
    DrawOnlyCurve(&curve, &overlay.wnd, &dc, &units, overlay.labels, 0, 0, 0, axes.sx, axes.sy,
                  axes.area, axes.wx, axes.wy, 0xFF0000, kCurveWidth);
    const auto points = [](const std::vector<DrawCall>& lines) {
        std::vector<CPoint> found;
        for (const DrawCall& line : lines) {
            found.push_back(line.device[0]);
            found.push_back(line.device[1]);
        }
        return found;
    };
    ASSERT_EQ(overlay.Lines(kCurveWidth).size(), 3u);
    EXPECT_EQ(points(overlay.Lines(kCurveWidth)), points(whole.Lines(kCurveWidth)));
    EXPECT_EQ(axes.area, CRect(0, kCentreY * 2, kCentreX * 2, 0));
}
