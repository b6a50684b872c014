// Clipping of polygons and segments against the box (0, 0)-(10, 10). Expected points are worked
// out by hand in the comments, with crossing parameters t chosen so the results are exact in
// binary.

#include "draw/clip/Clip.h"

#include <gtest/gtest.h>

#include <algorithm>
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

// Fills the slots after a figure, so that a write past the result shows.
constexpr XY kUnused{-777.25, 555.5};

enum class Clip { polygon, segment };

// A caller's point array: the figure, then `room` unused slots for a result that grows.
template <typename P> struct Figure {
    Figure(const std::vector<XY>& figure, std::size_t room)
        : count(static_cast<unsigned short>(figure.size())) {
        for (const XY& p : figure) {
            points.push_back(P{p.x, p.y});
        }
        points.resize(figure.size() + room, P{kUnused.x, kUnused.y});
    }
    std::vector<XY> all() const {
        std::vector<XY> xy;
        for (const P& p : points) {
            xy.push_back(xyOf(p));
        }
        return xy;
    }
    std::vector<XY> result() const {
        std::vector<XY> xy = all();
        xy.resize(count);
        return xy;
    }
    int clip(Clip kind) {
        r2box box(0, 0, 10, 10);
        return kind == Clip::polygon ? ::polyclip(points.data(), &count, &box)
                                     : ::lineclip(points.data(), &count, &box);
    }

    std::vector<P> points;
    unsigned short count;
};

struct PointTypeNames {
    template <typename P> static std::string GetName(int) {
        return std::is_same_v<P, wxycoord> ? "wxycoord" : "RPoint2D";
    }
};

using PointTypes = ::testing::Types<wxycoord, RPoint2D>;
template <typename P> class ClipTest : public ::testing::Test {};
TYPED_TEST_SUITE(ClipTest, PointTypes, PointTypeNames);

TYPED_TEST(ClipTest, FiguresDecidedAtOnceAreLeftUntouched) {
    struct Case {
        const char* name;
        Clip kind;
        std::vector<XY> figure;
        int rejected;
    };
    const Case cases[] = {
        {"inside", Clip::polygon, {{1, 1}, {9, 1}, {5, 8}}, 0},
        {"vertex on xmax", Clip::polygon, {{2, 2}, {10, 5}, {2, 8}}, 0},
        {"vertex on each edge", Clip::polygon, {{5, 0}, {10, 5}, {5, 10}, {0, 5}}, 0},
        {"left", Clip::polygon, {{-5, 1}, {-1, 1}, {-3, 5}}, 1},
        {"right", Clip::polygon, {{11, 1}, {15, 1}, {13, 5}}, 1},
        {"below", Clip::polygon, {{1, -5}, {9, -5}, {5, -0.5}}, 1},
        {"above", Clip::polygon, {{1, 11}, {9, 11}, {5, 20}}, 1},
        // Five points: the first look reads only the first three, so (5,13) goes unseen...
        {"first three inside", Clip::polygon, {{1, 1}, {9, 1}, {9, 9}, {5, 13}, {1, 9}}, 0},
        // ...and so do the last two here, although they are inside.
        {"first three left", Clip::polygon, {{-5, 1}, {-1, 1}, {-1, 9}, {5, 9}, {5, 1}}, 1},
        {"segment edge to edge", Clip::segment, {{0, 5}, {10, 5}}, 0},
        {"segment above", Clip::segment, {{2, 11}, {8, 15}}, 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Figure<TypeParam> f(c.figure, 4);
        const auto before = f.all();
        EXPECT_EQ(f.clip(c.kind), c.rejected);
        EXPECT_EQ(f.count, c.figure.size());
        EXPECT_EQ(f.all(), before);
    }
}

TYPED_TEST(ClipTest, ClippedFiguresGetTheirCrossings) {
    struct Case {
        const char* name;
        Clip kind;
        std::vector<XY> figure;
        std::vector<XY> expected; // empty: rejected
    };
    const Case cases[] = {
        // A point on an edge is inside. The left pass keeps (-4,2)->(0,5) crossing at t = 1,
        // (0,5) itself, and (0,5)->(-4,8) crossing at t = 0.
        {"touching from outside",
         Clip::polygon,
         {{-4, 2}, {0, 5}, {-4, 8}},
         {{0, 5}, {0, 5}, {0, 5}}},
        // Counter-clockwise over the corner (10,10). right: A->B leaves at (10,6), C->D enters
        // at (10,14). top: (10,6)->(10,14) leaves at (10,10), closing D->A enters at (6,10).
        // Shoelace sum +24: still counter-clockwise.
        {"corner, counter-clockwise",
         Clip::polygon,
         {{6, 8}, {14, 4}, {14, 16}, {6, 12}},
         {{6, 8}, {10, 6}, {10, 10}, {6, 10}}},
        // The same clockwise: top starts outside at D, (10,14)->(10,6) enters at (10,10),
        // closing A->D leaves at (6,10). Shoelace sum -24.
        {"corner, clockwise",
         Clip::polygon,
         {{6, 12}, {14, 16}, {14, 4}, {6, 8}},
         {{10, 10}, {10, 6}, {6, 8}, {6, 10}}},
        // A quadrilateral's first look reads its fourth point. top: (9,9)->(5,13) leaves at
        // t = 1/4 -> (8,10); closing (5,13)->(1,1) enters at t = 3/12 -> (4,10).
        {"quadrilateral",
         Clip::polygon,
         {{1, 1}, {9, 1}, {9, 9}, {5, 13}},
         {{1, 1}, {9, 1}, {9, 9}, {8, 10}, {4, 10}}},
        // (17,1) among the first three: all five take part. right: (1,1)->(17,1) leaves at
        // (10,1), (17,1)->(9,9) enters at t = 7/8 -> (10,8). top: (9,9)->(5,13) leaves at
        // (8,10), (5,13)->(1,9) enters at t = 3/4 -> (2,10).
        {"five points",
         Clip::polygon,
         {{1, 1}, {17, 1}, {9, 9}, {5, 13}, {1, 9}},
         {{1, 1}, {10, 1}, {10, 8}, {9, 9}, {8, 10}, {2, 10}, {1, 9}}},
        // Bounding box overlaps, but the triangle lies beyond x + y = 22 and the corner is at
        // x + y = 20: after the right pass everything left has y > 10.
        {"triangle beside a corner", Clip::polygon, {{8, 14}, {14, 8}, {14, 14}}, {}},
        // Slope 1/5: y = 3 at x = 0, y = 5 at x = 10; the direction is kept.
        {"segment across", Clip::segment, {{-10, 1}, {30, 9}}, {{0, 3}, {10, 5}}},
        {"segment across, reversed", Clip::segment, {{30, 9}, {-10, 1}}, {{10, 5}, {0, 3}}},
        {"segment beside a corner", Clip::segment, {{8, 14}, {14, 8}}, {}},
        // (4,0) is on the edge: leaving at t = 0, or entering at t = 1 then (4,0) itself.
        {"segment down from the bottom edge", Clip::segment, {{4, 0}, {6, -4}}, {{4, 0}, {4, 0}}},
        {"segment up to the bottom edge", Clip::segment, {{6, -4}, {4, 0}}, {{4, 0}, {4, 0}}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Figure<TypeParam> f(c.figure, 4);
        EXPECT_EQ(f.clip(c.kind), c.expected.empty() ? 1 : 0);
        EXPECT_EQ(f.result(), c.expected);
        const auto all = f.all();
        for (std::size_t i = std::max(c.figure.size(), c.expected.size()); i < all.size(); ++i) {
            EXPECT_EQ(all[i], kUnused) << "slot " << i;
        }
    }
}

// n points: (1,1), (17,5) beyond the right edge, then n - 2 points on y = 9 from x = 9 down
// to x = 1. The right pass drops (17,5) and adds (1,1)->(17,5) at t = 9/16 -> (10,3.25) and
// (17,5)->(9,9) at t = 7/8 -> (10,8.5): n + 1 points. The other passes keep everything.
std::vector<XY> spike(std::size_t n) {
    std::vector<XY> figure{{1, 1}, {17, 5}};
    for (std::size_t k = 2; k < n; ++k) {
        figure.push_back({9 - 8.0 * static_cast<double>(k - 2) / static_cast<double>(n - 3), 9});
    }
    return figure;
}

TYPED_TEST(ClipTest, APassMayProduceAtMostOneHundredPoints) {
    // 99 points -> 100: fits.
    const auto fits = spike(99);
    std::vector<XY> expected{fits[0], {10, 3.25}, {10, 8.5}};
    expected.insert(expected.end(), fits.begin() + 2, fits.end());
    Figure<TypeParam> f(fits, 3);
    EXPECT_EQ(f.clip(Clip::polygon), 0);
    EXPECT_EQ(f.result(), expected);
    EXPECT_EQ(f.all()[100], kUnused);

    // 100 points -> 101 in the right pass: refused, and nothing is written.
    Figure<TypeParam> g(spike(100), 4);
    const auto before = g.all();
    EXPECT_EQ(g.clip(Clip::polygon), 1);
    EXPECT_EQ(g.count, 0);
    EXPECT_EQ(g.all(), before);

    // 150 points are no fault when the passes produce few: (1,9), 148 points on y = -3, (9,9).
    // bottom: (1,9)->(1,-3) leaves at (1,0); (9,-3)->(9,9) enters at (9,0).
    std::vector<XY> many{{1, 9}};
    for (int k = 0; k < 148; ++k) {
        many.push_back({1 + 8.0 * k / 147, -3});
    }
    many.push_back({9, 9});
    Figure<TypeParam> h(many, 0);
    EXPECT_EQ(h.clip(Clip::polygon), 0);
    EXPECT_EQ(h.result(), (std::vector<XY>{{1, 9}, {1, 0}, {9, 0}, {9, 9}}));
    // Only the four points of the result are written back.
    EXPECT_EQ(h.all()[4], many[4]);
}

} // namespace
