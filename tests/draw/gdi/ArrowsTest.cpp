#include "draw/gdi/Arrows.h"

#include "host/Boxes.h"

#include "support/DrawProbes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using seisplot::DrawCall;
using seisplot::test::MetricDC;
using seisplot::test::Shapes;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

namespace {} // namespace

TEST(ArrowsTest, QuoteHeadsAreThirtyDegreesOffWithTwiceTheHeightInY) {
    MetricDC dc;
    const CPoint from(0, 0);
    const CPoint to(1000, 0);
    // Along x: (trunc(100·cos 30°), trunc(200·sin 30°)) = (86, 99).
    Quote(&dc, 0x0000FF, from, to, 11);
    EXPECT_THAT(Shapes(dc), ElementsAre("L 0,0 1000,0", "L 914,-99 1000,0", "L 914,99 1000,0",
                                        "L 86,99 0,0", "L 86,-99 0,0"));
    EXPECT_EQ(dc.Calls()[1].pen, (seisplot::PenAttributes{PS_SOLID, 1, 0x0000FF}));

    dc.Clear();
    Quote(&dc, 0x0000FF, 0, 0, 1000, 0, 12); // single head, at `to`
    EXPECT_THAT(Shapes(dc), ElementsAre("L 0,0 1000,0", "L 914,-99 1000,0", "L 914,99 1000,0"));

    dc.Clear();
    Quote(&dc, 0, from, to, 0);
    EXPECT_THAT(Shapes(dc), ElementsAre("L 0,0 1000,0"));

    dc.Clear();
    EXPECT_EQ(Quote(&dc, 0, to, to, 11), 0);
    EXPECT_TRUE(dc.Calls().empty());

    seisplot::RecordingDC text; // MM_TEXT: no millimetres
    EXPECT_EQ(Quote(&text, 0, from, to, 11), 0);
    EXPECT_TRUE(text.Calls().empty());
}

TEST(ArrowsTest, ArrowAndDoubleArrowHeads) {
    MetricDC dc;
    Arrow(&dc, CPoint(0, 0), CPoint(1000, 0), 0x00FF00, 5);
    // The head is a fifth of the length long and a tenth of it to each side.
    EXPECT_THAT(Shapes(dc), ElementsAre("L 0,0 1000,0", "P 1000,0 800,-100 800,100"));
    EXPECT_EQ(dc.Calls()[0].pen.width, 5);
    EXPECT_EQ(dc.Calls()[1].brush.color, 0x00FF00u);

    dc.Clear();
    Arrow(&dc, CPoint(7, 7), CPoint(7, 7), 0, 1);
    EXPECT_TRUE(dc.Calls().empty());

    // Sixth of the length long, a sixteenth to each side; the second head 5 % behind:
    // legs end at trunc(1600 - 266.7) = 1333, the second tip at 1520, its legs at 1253.
    DArrow(&dc, CPoint(0, 0), CPoint(1600, 0), 0, 3);
    EXPECT_THAT(Shapes(dc),
                UnorderedElementsAre("L 0,0 1600,0", "L 1333,100 1600,0", "L 1333,-100 1600,0",
                                     "L 1253,100 1520,0", "L 1253,-100 1520,0"));
}

TEST(ArrowsTest, LoadArrowPlacementHeadsAndDecorations) {
    MetricDC dc;
    nbox view(0, 0, 5000, 5000);
    const CPoint a(0, 0);
    const CPoint b(600, 0);
    const int before = seisplot::LiveGdiObjects();

    // Style 0: open black head at A, the shaft running to B; half-width 600/16 = 37.5.
    ArwLine(&dc, &view, a, b, 0, 0x0000FF, 0x00FF00);
    EXPECT_THAT(Shapes(dc), ElementsAre("L 0,0 600,0", "L 0,0 100,37", "L 0,0 100,-37"));
    for (const DrawCall& call : dc.Calls()) {
        EXPECT_EQ(call.pen, (seisplot::PenAttributes{PS_SOLID, 10, 0x000000}));
    }

    // Style 1 ends at A with its body on the far side of B: from (-600, 0) to (0, 0).
    dc.Clear();
    ArwLine(&dc, &view, a, b, 1, 0x0000FF, 0x00FF00);
    EXPECT_THAT(Shapes(dc), ElementsAre("P 0,0 -100,37 -100,-37", "L -600,0 -100,0"));
    EXPECT_EQ(dc.Calls()[0].pen, (seisplot::PenAttributes{PS_SOLID, 1, 0x0000FF}));
    EXPECT_EQ(dc.Calls()[0].brush.color, 0x00FF00u);

    // Style 3 runs across A, from (-300, 0) to (300, 0), with a dot of radius 600/15 at A.
    dc.Clear();
    ArwLine(&dc, &view, a, b, 3, 0x0000FF, 0x00FF00);
    EXPECT_THAT(Shapes(dc),
                ElementsAre("P 300,0 200,37 200,-37", "L -300,0 200,0", "E -40,-40 40,40"));
    EXPECT_EQ(dc.Calls()[2].pen, (seisplot::PenAttributes{PS_SOLID, 10, 0x00FF00}));
    const std::vector<std::string> style3 = Shapes(dc);

    // Even styles add a second head behind the first; the shaft stops at its base.
    dc.Clear();
    ArwLine(&dc, &view, a, b, 8, 0x0000FF, 0x00FF00);
    EXPECT_THAT(Shapes(dc), ElementsAre("P 300,0 200,37 200,-37", "P 200,0 100,37 100,-37",
                                        "L -300,0 100,0", "R -40,-40 40,40"));

    // 9 is drawn as 3.
    dc.Clear();
    ArwLine(&dc, &view, a, b, 9, 0x0000FF, 0x00FF00);
    EXPECT_EQ(Shapes(dc), style3);

    // Off the axes the head stays square to the shaft: A to B = (480, 640), length 800,
    // half-width 50 along (0.8, -0.6); the head's base at a sixth, (-80, -106.7).
    dc.Clear();
    ArwLine(&dc, &view, a, CPoint(480, 640), 1, 0, 0);
    ASSERT_EQ(dc.Calls().size(), 2u);
    const std::vector<CPoint>& head = dc.Calls()[0].logical;
    ASSERT_EQ(head.size(), 3u);
    const CPoint& p = head[1].x > head[2].x ? head[1] : head[2];
    const CPoint& q = head[1].x > head[2].x ? head[2] : head[1];
    EXPECT_NEAR(p.x, -40, 1);
    EXPECT_NEAR(p.y, -136, 1);
    EXPECT_NEAR(q.x, -120, 1);
    EXPECT_NEAR(q.y, -76, 1);
    EXPECT_EQ(dc.Calls()[1].logical[0], CPoint(-480, -640));

    dc.Clear();
    ArwLine(&dc, &view, a, a, 3, 0, 0);
    EXPECT_TRUE(dc.Calls().empty());
    EXPECT_EQ(seisplot::LiveGdiObjects(), before);
}
