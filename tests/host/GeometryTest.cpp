#include "host/Boxes.h"
#include "host/Intersect.h"
#include "host/Mathp.h"
#include "host/RPoly.h"
#include "support/ArchiveBytes.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

RPoint2D P(double x, double y) {
    return RPoint2D(x, y);
}

} // namespace

TEST(IntersectTest, CrossingTouchingAndAdjacentSides) {
    // The two diagonals of the unit square cross at (0.5, 0.5).
    EXPECT_EQ(Intersect(P(0, 0), P(1, 1), P(1, 0), P(0, 1)), 1);
    // Parallel and apart.
    EXPECT_EQ(Intersect(P(0, 0), P(1, 0), P(0, 1), P(1, 1)), 0);
    // On one line but apart, and crossing lines whose segments stop short.
    EXPECT_EQ(Intersect(P(0, 0), P(1, 0), P(2, 0), P(3, 0)), 0);
    EXPECT_EQ(Intersect(P(0, 0), P(1, 0), P(2, -1), P(2, 1)), 0);

    // Adjacent sides sharing one vertex, at an angle and straight on: not a crossing.
    EXPECT_EQ(Intersect(P(0, 0), P(1, 0), P(1, 0), P(1, 1)), 0);
    EXPECT_EQ(Intersect(P(0, 0), P(1, 0), P(1, 0), P(2, 0)), 0);
    EXPECT_EQ(Intersect(P(1, 0), P(0, 0), P(1, 0), P(1, 1)), 0);

    // An end touching the other side away from its ends (a T): the polygon is not simple.
    EXPECT_EQ(Intersect(P(0, 0), P(2, 0), P(1, 0), P(1, 1)), 1);
    EXPECT_EQ(Intersect(P(1, 1), P(1, 0), P(0, 0), P(2, 0)), 1);
    // Sides folding back over each other, and the same side twice: they overlap.
    EXPECT_EQ(Intersect(P(0, 0), P(2, 0), P(2, 0), P(1, 0)), 1);
    EXPECT_EQ(Intersect(P(0, 0), P(2, 0), P(2, 0), P(0, 0)), 1);
}

TEST(GeometryTest, BoxesKeepTheirCornersInOrder) {
    const r2box box(5.0, -1.0, 2.0, 3.0);
    EXPECT_EQ(box.xmin, 2.0);
    EXPECT_EQ(box.ymin, -1.0);
    EXPECT_EQ(box.xmax, 5.0);
    EXPECT_EQ(box.ymax, 3.0);
    const nbox n(10, 20, 7, 50);
    EXPECT_EQ(n.Idx(), -3);
    EXPECT_EQ(n.Idy(), 30);
    EXPECT_EQ(n.Ddy(), 30.0);
}

TEST(GeometryTest, PointArithmeticAndDistance) {
    const RPoint2D a(1.0, 2.0);
    const RPoint2D b(4.0, 6.0);
    EXPECT_EQ((a + b).GetX(), 5.0);
    EXPECT_EQ((b - a).GetY(), 4.0);
    EXPECT_EQ((a * 3.0).GetY(), 6.0);
    EXPECT_EQ((b / 2.0).GetX(), 2.0);
    EXPECT_EQ(a ^ b, 5.0); // the 3-4-5 triangle
    EXPECT_EQ(RPoint2D(-3.0, 4.0).GetNorm(), 5.0);
}

TEST(GeometryTest, PolygonVerticesAndDevicePoints) {
    RPoly poly;
    EXPECT_EQ(poly.GetNPoly(1.0, 1.0, CPoint(0, 0)), nullptr);
    EXPECT_EQ(poly.GetLastPoint().GetX(), 0.0);
    poly.AddPoint(0.0, 0.0);
    poly.AddPoint(10.0, 0.0);
    poly.AddPoint(10.0, 5.0);
    poly.AddPoint(-2.5, 5.0);
    EXPECT_EQ(poly.GetNPoint(), 4);
    EXPECT_EQ(poly.GetMinX(), -2.5);
    EXPECT_EQ(poly.GetMaxY(), 5.0);
    EXPECT_EQ(poly.GetLastPoint().GetX(), -2.5);

    // offset (100, 200) + (x·1.5, y·-0.3): -2.5·1.5 = -3.75 rounds to -4; 5·-0.3 = -1.5 to -2.
    std::unique_ptr<CPoint[]> device(poly.GetNPoly(1.5, -0.3, CPoint(100, 200)));
    EXPECT_EQ(device[1], CPoint(115, 200));
    EXPECT_EQ(device[3], CPoint(96, 198));

    poly.Remove(2);
    poly.Remove(9); // no such vertex
    EXPECT_EQ(poly.GetNPoint(), 3);
    EXPECT_EQ(poly.GetPoint(2).GetY(), 5.0);
    ASSERT_NE(poly.GetPPoint(3), nullptr);
    EXPECT_EQ(poly.GetPPoint(4), nullptr);
}

TEST(MathpTest, KeepsSignificantDigits) {
    EXPECT_EQ(Mathp::TakeNDigit(0.012345, 2), 0.012);
    EXPECT_EQ(Mathp::TakeNDigit(1567.0, 2), 1600.0);
    EXPECT_EQ(Mathp::TakeNDigit(-1567.0, 2), -1600.0);
    EXPECT_EQ(Mathp::TakeNDigit(12345678.0, 3), 12300000.0);
    EXPECT_EQ(Mathp::TakeNDigit(0.35, 1), 0.4);    // halves away from zero
    EXPECT_EQ(Mathp::TakeNDigit(9.96, 2), 10.0);   // rounding up adds a digit
    EXPECT_EQ(Mathp::TakeNDigit(100.0, 2), 100.0); // an exact power of ten stays
    EXPECT_EQ(Mathp::TakeNDigit(0.3, 2), 0.3);
    EXPECT_EQ(Mathp::TakeNDigit(0.0, 2), 0.0);
}

TEST(GeometryTest, PolygonArchiveHoldsItsVerticesAndACutStreamChangesNothing) {
    RPoly square;
    square.AddPoint(0.0, 0.0);
    square.AddPoint(1.5, -2.0);
    const seisplot::test::Bytes bytes = seisplot::test::StoreObject(square);
    seisplot::test::StreamBuilder expected;
    expected.Word(1).Dword(2).Double(0.0).Double(0.0).Double(1.5).Double(-2.0);
    EXPECT_EQ(bytes, expected.bytes());
    // Every shorter stream raises end-of-file and leaves the polygon it was read into.
    for (size_t n = 0; n < bytes.size(); ++n) {
        RPoly kept;
        kept.AddPoint(9.0, 9.0);
        const seisplot::test::Bytes cut(bytes.begin(), bytes.begin() + static_cast<long>(n));
        EXPECT_EQ(seisplot::test::ArchiveCause([&] { seisplot::test::LoadObject(cut, kept); }),
                  CArchiveException::endOfFile)
            << n;
        ASSERT_EQ(kept.GetNPoint(), 1);
        EXPECT_EQ(kept.GetPoint(1).GetX(), 9.0);
    }
    RPoly back;
    EXPECT_EQ(seisplot::test::LoadObject(bytes, back), 0u);
    EXPECT_EQ(back.GetNPoint(), 2);
    EXPECT_EQ(back.GetPoint(2).GetY(), -2.0);
}
