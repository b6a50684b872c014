#include "host/CurveColl.h"
#include "support/ArchiveBytes.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

using namespace seisplot::test;

namespace {

PCurve Ramp() {
    // (0, 0) (1, 10) (2, 30) (4, -10)
    const double x[] = {0.0, 1.0, 2.0, 4.0};
    const double y[] = {0.0, 10.0, 30.0, -10.0};
    return PCurve(4, x, y);
}

} // namespace

TEST(CurveTest, InterpolatesBetweenNeighboursAndHoldsTheEnds) {
    const PCurve c = Ramp();
    EXPECT_EQ(c.GetY(0.5), 5.0);
    EXPECT_EQ(c.GetY(1.0), 10.0);
    EXPECT_EQ(c.GetY(1.25), 15.0);
    EXPECT_EQ(c.GetY(3.0), 10.0); // halfway from 30 to -10
    EXPECT_EQ(c.GetY(-1.0), 0.0);
    EXPECT_EQ(c.GetY(4.0), -10.0);
    EXPECT_EQ(c.GetY(9.0), -10.0);
    EXPECT_EQ(PCurve().GetY(1.0), 0.0);
    const double one[] = {2.0};
    const double seven[] = {7.0};
    EXPECT_EQ(PCurve(1, one, seven).GetY(-5.0), 7.0);

    // 1001 points of y = x² on [0, 10]: a hinted lookup walking forward in steps that skip
    // points, then back, matches the search from scratch.
    PCurve square;
    for (int i = 0; i <= 1000; ++i) {
        square.AddPoint(i * 0.01, i * 0.01 * i * 0.01);
    }
    int hint = 0;
    for (double x = -0.5; x < 10.5; x += 0.0237) {
        EXPECT_EQ(square.GetY(x, &hint), square.GetY(x)) << x;
        EXPECT_GE(hint, 0);
        EXPECT_LE(hint, 999);
    }
    EXPECT_EQ(hint, 999); // the last segment
    EXPECT_EQ(square.GetY(0.015, &hint), square.GetY(0.015));
    EXPECT_EQ(hint, 1);
    int wild = 123456;
    EXPECT_EQ(square.GetY(5.005, &wild), square.GetY(5.005));
    EXPECT_EQ(wild, 500);
}

TEST(CurveTest, ExtremesAndPointAccess) {
    PCurve c = Ramp();
    EXPECT_EQ((std::vector<double>{c.GetMinX(), c.GetMaxX(), c.GetMinY(), c.GetMaxY()}),
              (std::vector<double>{0.0, 4.0, -10.0, 30.0}));
    EXPECT_EQ(c.GetPoint(2).GetY(), 10.0); // from 1
    EXPECT_EQ(c[2].GetY(), 30.0);          // from 0
    // Sizing keeps the leading points and adds points at the origin.
    c.GetPColl().IncreaseStruct(6);
    EXPECT_EQ(c[3].GetY(), -10.0);
    EXPECT_EQ(c[5].GetX(), 0.0);
    c.GetPColl().IncreaseStruct(4);
    c.RemovePoint(1);
    EXPECT_EQ(c.GetNP(), 3);
    EXPECT_EQ(c.GetPoint(1).GetX(), 1.0);
    c.Clear();
    EXPECT_EQ(c.GetMaxY(), 0.0);

    CVector x(3);
    CVector y(2);
    x[1] = 2.0;
    y(2) = 6.0;
    const PCurve fromVectors(x, y); // as many pairs as the shorter vector has
    EXPECT_EQ(fromVectors.GetNP(), 2);
    EXPECT_EQ(fromVectors.GetPoint(2).GetX(), 2.0);
    EXPECT_EQ(fromVectors.GetPoint(2).GetY(), 6.0);
}

TEST(CurveTest, ArchiveKeepsEverythingIncludingPointMarks) {
    PMCurve c;
    c.SetName("polyline");
    c.XUnit = seisplot::UnitKind::Length;
    c.YUnit = seisplot::UnitKind::Acceleration;
    c.XName = "Se,d";
    c.YName = "Se,a";
    c.AddPoint(1.5, -2.0);
    c.AddPoint(3.0, 4.0);
    c.AddPoint(-1.0, 0.25);
    c.GetPColl().Select(3, 1);
    c[1].SetName("peak");
    const Bytes bytes = StoreObject(c);

    // Header: selectable part (name "polyline", no views), version 1, kinds, axis names,
    // count 3, then 48 bytes of coordinates, count of marked points 2, each with index and
    // selectable part.
    const size_t header = 1 + 8 + 2 + 2 + 1 + 1 + 5 + 5 + 4;
    ASSERT_EQ(bytes.size(), header + 48 + 4 + (4 + 5 + 2) + (4 + 1 + 2 + 2));
    EXPECT_EQ(bytes[11], 0x01); // version, low byte
    EXPECT_EQ(bytes[13], 1);    // x unit kind
    EXPECT_EQ(bytes[14], 10);   // y unit kind

    // Read over a curve with a point of its own, it stores the same bytes again.
    PMCurve back;
    back.AddPoint(9.0, 9.0);
    EXPECT_EQ(LoadObject(bytes, back), 0u);
    EXPECT_EQ(StoreObject(back), bytes);
    EXPECT_EQ(back[1].GetName(), "peak");
    EXPECT_NE(back[2].IsSelected(1), 0);
}

TEST(CurveTest, DamagedArchivesFailWithoutHugeAllocations) {
    // A point count of four billion in a stream of a few bytes fails at once.
    StreamBuilder huge;
    huge.Text("").Word(0).Word(1).Byte(12).Byte(10).Text("t").Text("a").Dword(0xFFFFFFFFu);
    huge.Double(1.0);
    PCurve c;
    EXPECT_EQ(ArchiveCause([&] { LoadObject(huge.bytes(), c); }), CArchiveException::endOfFile);

    // A marked-point index beyond the points is a format error.
    StreamBuilder badIndex;
    badIndex.Text("").Word(0).Word(1).Byte(9).Byte(9).Text("").Text("").Dword(1);
    badIndex.Double(0.0).Double(0.0).Dword(1).Dword(5).Text("").Word(0);
    EXPECT_EQ(ArchiveCause([&] { LoadObject(badIndex.bytes(), c); }), CArchiveException::badIndex);

    // Every truncation of a good stream fails cleanly.
    PCurve good = Ramp();
    good[0].Select(1);
    const Bytes full = StoreObject(good);
    for (size_t n = 0; n < full.size(); ++n) {
        const Bytes cut(full.begin(), full.begin() + static_cast<long>(n));
        EXPECT_EQ(ArchiveCause([&] { LoadObject(cut, c); }), CArchiveException::endOfFile) << n;
    }
}

TEST(CurveTest, CollectionsRoundTripThroughTheirFilesAndRefuseOthers) {
    PCurveColl coll;
    PCurve a = Ramp();
    a.SetName("a");
    PCurve b;
    b.SetName("b");
    coll.AddPCurve(a);
    coll.AddPCurve(b);
    EXPECT_EQ(coll.GetP(0), nullptr);
    EXPECT_EQ(coll.GetP(2)->GetName(), "b");

    seisplot::test::TempDir dir;
    const std::string pcc = dir.Path("a.pcc");
    ASSERT_EQ(coll.WriteToFile(pcc.c_str()), 0);
    PCurveColl back;
    ASSERT_EQ(back.ReadFromFile(pcc.c_str()), 0);
    ASSERT_EQ(back.GetPCurveNum(), 2);
    EXPECT_EQ(StoreObject(*back.GetP(1)), StoreObject(a));

    // A polyline collection does not read a function-curve file, and keeps what it had.
    PMCurveColl other;
    other.AddPMCurve(PMCurve());
    EXPECT_EQ(other.ReadFromFile(pcc.c_str()), 1);
    EXPECT_EQ(other.GetPMCurveNum(), 1);

    // A truncated file or a missing one leaves the collection as it was.
    std::filesystem::resize_file(pcc, std::filesystem::file_size(pcc) - 3);
    EXPECT_EQ(back.ReadFromFile(pcc.c_str()), 1);
    EXPECT_EQ(back.GetPCurveNum(), 2);
    std::filesystem::remove(pcc);
    EXPECT_EQ(back.ReadFromFile(pcc.c_str()), 1);
    EXPECT_EQ(back.GetPCurveNum(), 2);

    back.RemovePCurve(1);
    EXPECT_EQ(back.GetP(1)->GetName(), "b");
}
