// Clipping of polygons and segments against the box (0, 0)-(10, 10). Every expected point is
// worked out by hand in the comments; the values are chosen so that each crossing parameter t
// is a power of two fraction and the results are exact in binary.

#include "draw/clip/Clip.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <iomanip>
#include <ostream>
#include <string>
#include <type_traits>
#include <vector>

namespace {

struct XY {
    double x;
    double y;
    friend bool operator==(const XY&, const XY&) = default;
};

void PrintTo(const XY& p, std::ostream* os) {
    *os << std::setprecision(17) << '(' << p.x << ", " << p.y << ')';
}

XY xyOf(const wxycoord& p) {
    return {p.x, p.y};
}
XY xyOf(const RPoint2D& p) {
    return {p.GetX(), p.GetY()};
}

template <typename P> P makePoint(XY p) {
    if constexpr (std::is_same_v<P, wxycoord>) {
        return wxycoord{p.x, p.y};
    } else {
        return RPoint2D(p.x, p.y);
    }
}

// Fills the slots after a figure, so that a write past the result shows.
constexpr XY kUnused{-777.25, 555.5};

// A caller's point array: the figure, then `room` unused slots for a result that grows.
template <typename P> struct Figure {
    Figure(const std::vector<XY>& figure, std::size_t room)
        : count(static_cast<unsigned short>(figure.size())) {
        for (const XY& p : figure) {
            points.push_back(makePoint<P>(p));
        }
        points.resize(figure.size() + room, makePoint<P>(kUnused));
    }

    // Every slot of the array.
    std::vector<XY> all() const {
        std::vector<XY> xy;
        for (const P& p : points) {
            xy.push_back(xyOf(p));
        }
        return xy;
    }
    // The points the caller would draw.
    std::vector<XY> result() const {
        std::vector<XY> xy = all();
        xy.resize(count);
        return xy;
    }
    XY at(std::size_t i) const { return xyOf(points[i]); }

    int polyclip(r2box& box) { return ::polyclip(points.data(), &count, &box); }
    int lineclip(r2box& box) { return ::lineclip(points.data(), &count, &box); }

    std::vector<P> points;
    unsigned short count;
};

r2box unitBox() {
    return r2box(0, 0, 10, 10);
}

struct PointTypeNames {
    template <typename P> static std::string GetName(int) {
        return std::is_same_v<P, wxycoord> ? "wxycoord" : "RPoint2D";
    }
};

using PointTypes = ::testing::Types<wxycoord, RPoint2D>;

template <typename P> class PolyclipTest : public ::testing::Test {};
TYPED_TEST_SUITE(PolyclipTest, PointTypes, PointTypeNames);

template <typename P> class LineclipTest : public ::testing::Test {};
TYPED_TEST_SUITE(LineclipTest, PointTypes, PointTypeNames);

// ---------------------------------------------------------------------------------------------
// polyclip

TYPED_TEST(PolyclipTest, FiguresInsideTheBoxEdgesIncludedAreLeftAsTheyAre) {
    r2box box = unitBox();
    const std::vector<std::vector<XY>> inside = {
        {{1, 1}, {9, 1}, {5, 8}},           // well inside
        {{2, 2}, {10, 5}, {2, 8}},          // one vertex exactly on xmax
        {{5, 0}, {10, 5}, {5, 10}, {0, 5}}, // a vertex on each of the four edges
    };
    for (const auto& figure : inside) {
        Figure<TypeParam> f(figure, 4);
        const auto before = f.all();
        EXPECT_EQ(f.polyclip(box), 0);
        EXPECT_EQ(f.count, figure.size());
        EXPECT_EQ(f.all(), before);
    }
}

TYPED_TEST(PolyclipTest, FiguresBesideTheBoxAreRejectedUntouched) {
    r2box box = unitBox();
    const std::vector<std::vector<XY>> beside = {
        {{-5, 1}, {-1, 1}, {-3, 5}},   // left
        {{11, 1}, {15, 1}, {13, 5}},   // right
        {{1, -5}, {9, -5}, {5, -0.5}}, // below
        {{1, 11}, {9, 11}, {5, 20}},   // above
    };
    for (const auto& figure : beside) {
        Figure<TypeParam> f(figure, 4);
        const auto before = f.all();
        EXPECT_EQ(f.polyclip(box), 1);
        EXPECT_EQ(f.count, 3);
        EXPECT_EQ(f.all(), before);
    }
}

TYPED_TEST(PolyclipTest, TouchingAnEdgeFromOutsideLeavesThePointOfContact) {
    // Only the vertex (0, 5) touches the left edge: not a reject, and since a point on the edge
    // is inside, the left pass keeps (-4,2)->(0,5) crossing at t = 1, (0,5) itself, and
    // (0,5)->(-4,8) crossing at t = 0: three copies of the contact point.
    r2box box = unitBox();
    Figure<TypeParam> f({{-4, 2}, {0, 5}, {-4, 8}}, 4);
    EXPECT_EQ(f.polyclip(box), 0);
    EXPECT_EQ(f.result(), (std::vector<XY>{{0, 5}, {0, 5}, {0, 5}}));
}

TYPED_TEST(PolyclipTest, QuadrilateralOverACornerGetsTheCornerInsertedInItsTurningSense) {
    r2box box = unitBox();
    {
        // Counter-clockwise A(6,8) B(14,4) C(14,16) D(6,12) over the corner (10,10).
        // bottom: all inside.
        // right:  A; A->B leaves at t = 4/8 -> (10,6); C->D enters at t = 4/8 -> (10,14); D.
        // top:    A, (10,6); (10,6)->(10,14) leaves at t = 4/8 -> (10,10); closing D->A
        //         enters at t = 2/4 -> (6,10).
        // left:   all inside.
        // Result (6,8) (10,6) (10,10) (6,10): shoelace sum -44 + 40 + 40 - 12 = 24 > 0, still
        // counter-clockwise, area 12.
        Figure<TypeParam> f({{6, 8}, {14, 4}, {14, 16}, {6, 12}}, 4);
        EXPECT_EQ(f.polyclip(box), 0);
        EXPECT_EQ(f.result(), (std::vector<XY>{{6, 8}, {10, 6}, {10, 10}, {6, 10}}));
        EXPECT_EQ(f.at(4), kUnused);
    }
    {
        // The same quadrilateral clockwise: D C B A.
        // right:  D; D->C leaves at (10,14); B->A enters at (10,6); A.
        // top:    D outside with nothing before it; (10,14)->(10,6) enters at (10,10); (10,6);
        //         A; closing A->D leaves at t = 2/4 -> (6,10).
        // Result (10,10) (10,6) (6,8) (6,10): shoelace sum -40 + 44 + 12 - 40 = -24, clockwise.
        Figure<TypeParam> f({{6, 12}, {14, 16}, {14, 4}, {6, 8}}, 4);
        EXPECT_EQ(f.polyclip(box), 0);
        EXPECT_EQ(f.result(), (std::vector<XY>{{10, 10}, {10, 6}, {6, 8}, {6, 10}}));
        EXPECT_EQ(f.at(4), kUnused);
    }
}

TYPED_TEST(PolyclipTest, TriangleBesideACornerComesOutEmpty) {
    // Bounding box (8,8)-(14,14) overlaps the box, but the triangle lies beyond x + y = 22 while
    // the corner has x + y = 20. After the right pass everything left has y > 10.
    r2box box = unitBox();
    Figure<TypeParam> f({{8, 14}, {14, 8}, {14, 14}}, 4);
    EXPECT_EQ(f.polyclip(box), 1);
    EXPECT_EQ(f.count, 0);
}

TYPED_TEST(PolyclipTest, FirstLookReadsTheFourthPointOnlyForAQuadrilateral) {
    r2box box = unitBox();
    {
        // Quadrilateral: the fourth point (5,13) is above the box, so it is clipped.
        // top: (1,1) (9,1) (9,9); (9,9)->(5,13) leaves at t = 1/4 -> (8,10); closing
        // (5,13)->(1,1) enters at t = 3/12 -> (4,10).
        Figure<TypeParam> f({{1, 1}, {9, 1}, {9, 9}, {5, 13}}, 4);
        EXPECT_EQ(f.polyclip(box), 0);
        EXPECT_EQ(f.result(), (std::vector<XY>{{1, 1}, {9, 1}, {9, 9}, {8, 10}, {4, 10}}));
    }
    {
        // The same outline with a fifth point: the first three are inside, so the polygon is
        // taken as inside although (5,13) is not.
        Figure<TypeParam> f({{1, 1}, {9, 1}, {9, 9}, {5, 13}, {1, 9}}, 4);
        const auto before = f.all();
        EXPECT_EQ(f.polyclip(box), 0);
        EXPECT_EQ(f.count, 5);
        EXPECT_EQ(f.all(), before);
    }
    {
        // Five points whose first three are wholly left: rejected, although the last two are
        // inside the box.
        Figure<TypeParam> f({{-5, 1}, {-1, 1}, {-1, 9}, {5, 9}, {5, 1}}, 4);
        const auto before = f.all();
        EXPECT_EQ(f.polyclip(box), 1);
        EXPECT_EQ(f.count, 5);
        EXPECT_EQ(f.all(), before);
    }
}

TYPED_TEST(PolyclipTest, FivePointPolygonIsClippedAsAWhole) {
    // (17,1) among the first three asks for clipping; all five points then take part.
    // bottom: all inside.
    // right:  (1,1); (1,1)->(17,1) leaves at t = 9/16 -> (10,1); (17,1)->(9,9) enters at
    //         t = 7/8 -> (10,8); (9,9) (5,13) (1,9).
    // top:    (1,1) (10,1) (10,8) (9,9); (9,9)->(5,13) leaves at t = 1/4 -> (8,10);
    //         (5,13)->(1,9) enters at t = 3/4 -> (2,10); (1,9).
    // left:   all inside.
    r2box box = unitBox();
    Figure<TypeParam> f({{1, 1}, {17, 1}, {9, 9}, {5, 13}, {1, 9}}, 4);
    EXPECT_EQ(f.polyclip(box), 0);
    EXPECT_EQ(f.result(),
              (std::vector<XY>{{1, 1}, {10, 1}, {10, 8}, {9, 9}, {8, 10}, {2, 10}, {1, 9}}));
    EXPECT_EQ(f.at(7), kUnused);
    EXPECT_EQ(f.at(8), kUnused);
}

// n points: (1,1), (17,5) beyond the right edge, then n - 2 points on y = 9 from x = 9 down
// to x = 1. The right pass keeps every point but (17,5) and adds the two crossings
// (1,1)->(17,5) at t = 9/16 -> (10,3.25) and (17,5)->(9,9) at t = 7/8 -> (10,8.5): n + 1
// points. The other passes keep everything.
std::vector<XY> spike(std::size_t n) {
    std::vector<XY> figure{{1, 1}, {17, 5}};
    for (std::size_t k = 2; k < n; ++k) {
        figure.push_back({9 - 8.0 * static_cast<double>(k - 2) / static_cast<double>(n - 3), 9});
    }
    return figure;
}

TYPED_TEST(PolyclipTest, APassMayProduceAtMostOneHundredPoints) {
    r2box box = unitBox();
    {
        // 99 points -> 100: fits.
        const auto figure = spike(99);
        std::vector<XY> expected{figure[0], {10, 3.25}, {10, 8.5}};
        expected.insert(expected.end(), figure.begin() + 2, figure.end());
        ASSERT_EQ(expected.size(), 100U);

        Figure<TypeParam> f(figure, 3);
        EXPECT_EQ(f.polyclip(box), 0);
        EXPECT_EQ(f.count, 100);
        EXPECT_EQ(f.result(), expected);
        for (std::size_t i = 100; i < 102; ++i) {
            EXPECT_EQ(f.at(i), kUnused) << "slot " << i;
        }
    }
    {
        // 100 points -> 101 in the right pass: refused. The bottom pass before it kept the
        // points as they were, and nothing past them is written.
        const auto figure = spike(100);
        Figure<TypeParam> f(figure, 4);
        const auto before = f.all();
        EXPECT_EQ(f.polyclip(box), 1);
        EXPECT_EQ(f.count, 0);
        EXPECT_EQ(f.all(), before);
    }
    {
        // 150 points is no fault in itself when the passes produce few: (1,9), then 148 points
        // on y = -3 from x = 1 to 9, then (9,9). The bottom pass gives (1,9); (1,9)->(1,-3)
        // leaves at t = 9/12 -> (1,0); (9,-3)->(9,9) enters at t = 3/12 -> (9,0); (9,9).
        std::vector<XY> figure{{1, 9}};
        for (int k = 0; k < 148; ++k) {
            figure.push_back({1 + 8.0 * k / 147, -3});
        }
        figure.push_back({9, 9});
        Figure<TypeParam> f(figure, 0);
        EXPECT_EQ(f.polyclip(box), 0);
        EXPECT_EQ(f.result(), (std::vector<XY>{{1, 9}, {1, 0}, {9, 0}, {9, 9}}));
        // Only the four points of the result are written back.
        EXPECT_EQ(f.at(4), figure[4]);
        EXPECT_EQ(f.at(149), figure[149]);
    }
}

// ---------------------------------------------------------------------------------------------
// lineclip

TYPED_TEST(LineclipTest, SegmentsDecidedAtOnceAreUntouched) {
    r2box box = unitBox();
    {
        // From the left edge to the right edge: inside.
        Figure<TypeParam> f({{0, 5}, {10, 5}}, 2);
        const auto before = f.all();
        EXPECT_EQ(f.lineclip(box), 0);
        EXPECT_EQ(f.count, 2);
        EXPECT_EQ(f.all(), before);
    }
    {
        // Above the box.
        Figure<TypeParam> f({{2, 11}, {8, 15}}, 2);
        const auto before = f.all();
        EXPECT_EQ(f.lineclip(box), 1);
        EXPECT_EQ(f.count, 2);
        EXPECT_EQ(f.all(), before);
    }
}

TYPED_TEST(LineclipTest, SegmentAcrossTheBoxKeepsItsDirection) {
    // (-10,1) -> (30,9), slope 1/5: y = 3 at x = 0 and y = 5 at x = 10.
    // right: leaves at t = 20/40 -> (10,5); left: (-10,1)->(10,5) enters at t = 10/20 -> (0,3).
    r2box box = unitBox();
    {
        Figure<TypeParam> f({{-10, 1}, {30, 9}}, 2);
        EXPECT_EQ(f.lineclip(box), 0);
        EXPECT_EQ(f.result(), (std::vector<XY>{{0, 3}, {10, 5}}));
        EXPECT_EQ(f.at(2), kUnused);
    }
    {
        Figure<TypeParam> f({{30, 9}, {-10, 1}}, 2);
        EXPECT_EQ(f.lineclip(box), 0);
        EXPECT_EQ(f.result(), (std::vector<XY>{{10, 5}, {0, 3}}));
    }
}

TYPED_TEST(LineclipTest, SegmentBesideACornerComesOutEmpty) {
    // (8,14) -> (14,8) lies on x + y = 22, beyond the corner (10,10); its bounding box overlaps
    // the box. The right pass leaves (8,14) -> (10,12), wholly above y = 10.
    r2box box = unitBox();
    Figure<TypeParam> f({{8, 14}, {14, 8}}, 2);
    EXPECT_EQ(f.lineclip(box), 1);
    EXPECT_EQ(f.count, 0);
}

TYPED_TEST(LineclipTest, SegmentFromTheBottomEdgeDownwardsShrinksToItsEndOnTheEdge) {
    r2box box = unitBox();
    {
        // (4,0) is on the edge, so inside; (4,0)->(6,-4) leaves at t = 0.
        Figure<TypeParam> f({{4, 0}, {6, -4}}, 2);
        EXPECT_EQ(f.lineclip(box), 0);
        EXPECT_EQ(f.result(), (std::vector<XY>{{4, 0}, {4, 0}}));
    }
    {
        // The other way: (6,-4)->(4,0) enters at t = 1, then (4,0) itself.
        Figure<TypeParam> f({{6, -4}, {4, 0}}, 2);
        EXPECT_EQ(f.lineclip(box), 0);
        EXPECT_EQ(f.result(), (std::vector<XY>{{4, 0}, {4, 0}}));
    }
}

} // namespace
