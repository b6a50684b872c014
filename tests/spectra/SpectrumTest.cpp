#include "spectra/Spectrum.h"
#include "records/ReportBanner.h"
#include "support/ArchiveBytes.h"
#include "support/ReportText.h"

#include <gtest/gtest.h>

#include <string>

using namespace seisplot::test;

namespace {

Spectrum Filled() {
    double T[] = {0.0, 0.5, 2.0};
    double sa[] = {0.25, 0.625, 0.1};
    Spectrum s(3, T, sa);
    s.SetName("EC8 A");
    s.Select(3);
    s.Select(500);
    CString explanation("envelope of 7 records");
    s.SetExplanation(explanation);
    s.SetType(Spectrum::kAcceleration);
    s.SetDamp(0.07);
    s.SetBehavior(1.0);
    return s;
}

const std::string kTitle =
    "#                                   Spectrum data                              #";
const std::string kRule(49, '-');

} // namespace

// ---- archive ----

TEST(SpectrumTest, ArchiveFormAndRoundTrip) {
    // Unnamed, no views, version 102, explanation "---", type 0, damping 0.05, behaviour 1.5,
    // then a curve without name, views or points, of unit kinds 9 and 9, without axis names.
    Spectrum fresh;
    StreamBuilder expected;
    expected.Text("").Word(0).Word(102).Text("---").Byte(0).Double(0.05).Double(1.5);
    expected.Text("").Word(0).Word(1).Byte(9).Byte(9).Text("").Text("").Dword(0).Dword(0);
    EXPECT_EQ(StoreObject(fresh), expected.bytes());
    Spectrum back = Filled();
    EXPECT_EQ(LoadObject(expected.bytes(), back), 0u);
    EXPECT_EQ(StoreObject(back), expected.bytes());

    // Every field of a filled spectrum differs from the default: read into a default one, it
    // stores the same bytes again.
    Spectrum s = Filled();
    const Bytes bytes = StoreObject(s);
    Spectrum filled;
    EXPECT_EQ(LoadObject(bytes, filled), 0u);
    EXPECT_EQ(StoreObject(filled), bytes);
    EXPECT_EQ(filled.Curve[1].GetY(), 0.625);
}

TEST(SpectrumTest, Version101HasNoBehaviourFactor) {
    // Name "old" with view 3, version 101, explanation, type 1, damping 0.07, and straight
    // after it the curve (two points).
    StreamBuilder b;
    b.Text("old").Word(1).Word(3).Word(101).Text("from 101").Byte(1).Double(0.07);
    b.Text("").Word(0).Word(1).Byte(9).Byte(9).Text("T").Text("Sv").Dword(2);
    b.Double(0.1).Double(12.5).Double(1.0).Double(80.0).Dword(0);
    Spectrum s;
    s.SetBehavior(4.0);
    EXPECT_EQ(LoadObject(b.bytes(), s), 0u);
    EXPECT_EQ(s.GetBehavior(), 4.0); // kept
    EXPECT_EQ(s.GetExplanation(), "from 101");
    EXPECT_EQ(s.GetDamp(), 0.07);
    ASSERT_EQ(s.Curve.GetNP(), 2);
    EXPECT_EQ(s.Curve[1].GetY(), 80.0);

    // Written again, it is a version-102 spectrum with the behaviour factor.
    StreamBuilder head;
    head.Text("old").Word(1).Word(3).Word(102).Text("from 101").Byte(1).Double(0.07).Double(4.0);
    const Bytes again = StoreObject(s);
    ASSERT_GT(again.size(), head.bytes().size());
    EXPECT_EQ(Bytes(again.begin(), again.begin() + static_cast<long>(head.bytes().size())),
              head.bytes());
}

TEST(SpectrumTest, CopiesAreDeepAndCarryTheCurrentVersion) {
    Spectrum s = Filled();
    const Bytes bytes = StoreObject(s);
    s.SpectrumVersion = 101;
    Spectrum copy(s);
    EXPECT_EQ(StoreObject(copy), bytes);
    copy.Curve[0].SetY(9.0);
    EXPECT_EQ(s.Curve[0].GetY(), 0.25);
    Spectrum assigned;
    const Spectrum result = (assigned = s);
    EXPECT_EQ(StoreObject(assigned), bytes);
    EXPECT_EQ(result.GetExplanation(), "envelope of 7 records");
    assigned = assigned;
    EXPECT_EQ(assigned.Curve.GetNP(), 3);

    CVector T(2);
    CVector sd(3);
    T[1] = 1.5;
    sd[1] = 30.0;
    Spectrum fromVectors(T, sd);
    ASSERT_EQ(fromVectors.Curve.GetNP(), 2); // the shorter vector
    EXPECT_EQ(fromVectors.Curve[1].GetY(), 30.0);
    EXPECT_EQ(fromVectors.Curve.XUnit, seisplot::UnitKind::PureNumber);

    CObject* made = CRuntimeClass::CreateObject("Spectrum");
    ASSERT_NE(made, nullptr);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CSelObject)));
    EXPECT_STREQ(made->GetRuntimeClass()->m_lpszClassName, "Spectrum");
    delete made;
}

// ---- report ----

TEST(SpectrumTest, ReportHeadingFollowsTheKind) {
    const double T[] = {10.5, 0.02};
    const double v[] = {0.25, 1234.5678};
    Spectrum s(2, const_cast<double*>(T), const_cast<double*>(v));
    s.SetName("odd");
    s.SetDamp(0.1);
    const struct {
        unsigned char type;
        std::string heading; // with the column titles; none for an unknown kind
    } cases[] = {
        {Spectrum::kDisplacement, "Displacement Response Spectrum at  0.100 damping\n" + kRule +
                                      "\n\n\nPeriod (s)    Dis. (mm)\n\n"},
        {Spectrum::kVelocity, "Velocity Response Spectrum at  0.100 damping\n" + kRule +
                                  "\n\n\nPeriod (s)    Vel. (mm/sec)\n\n"},
        {Spectrum::kAcceleration, "Acceleration Response Spectrum at  0.100 damping\n" + kRule +
                                      "\n\n\nPeriod (s)    Acc. (g)\n\n"},
        {7, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(static_cast<int>(c.type));
        s.SetType(c.type);
        const std::string report = Banner(kTitle) + "\n\nIdentifier:     odd\n\n\n" + kRule + "\n" +
                                   c.heading + "  10.500      0.250\n" +
                                   "   0.020    1234.568\n\n\n\n";
        // The report is appended to what the text holds.
        CString text("kept\n");
        EXPECT_EQ(s.DoReport(text), 0);
        EXPECT_EQ(s.DoReport(text), 0);
        EXPECT_EQ(text.str(), "kept\n" + report + report);
    }
}
