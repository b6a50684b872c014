#include "spectra/Spectrum.h"
#include "records/ReportBanner.h"
#include "support/ArchiveBytes.h"

#include <gtest/gtest.h>

#include <string>

using seisplot::test::Bytes;
using seisplot::test::LoadObject;
using seisplot::test::StoreObject;
using seisplot::test::StreamBuilder;

namespace {

// The archive form of a curve without name, views or points, with the given unit kinds and
// axis names.
StreamBuilder& EmptyCurve(StreamBuilder& b, BYTE x, BYTE y, const char* xName, const char* yName) {
    return b.Text("").Word(0).Word(1).Byte(x).Byte(y).Text(xName).Text(yName).Dword(0);
}

Spectrum Filled() {
    const double T[] = {0.0, 0.5, 2.0};
    const double sa[] = {0.25, 0.625, 0.1};
    Spectrum s(3, const_cast<double*>(T), const_cast<double*>(sa));
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

const std::string kHashes(80, '#');
const std::string kBox = "#" + std::string(78, ' ') + "#";

std::string Banner(const std::string& title) {
    std::string banner = kHashes + "\n";
    for (int k = 0; k < 5; ++k) {
        banner += kBox + "\n";
    }
    banner += title + "\n";
    for (int k = 0; k < 6; ++k) {
        banner += kBox + "\n";
    }
    banner += "#  seisplot - ground motion records, response spectra and engineering plots    #\n"
              "#  seisplot developers                                                         #\n";
    return banner + kHashes + "\n";
}

const std::string kSpectrumTitle =
    "#                                   Spectrum data                              #";
const std::string kRule(49, '-');

} // namespace

// ---- archive ----

TEST(SpectrumTest, DefaultSpectrumArchiveFormAndRoundTrip) {
    Spectrum fresh;
    StreamBuilder expected;
    expected.Text("").Word(0).Word(102).Text("---").Byte(0).Double(0.05).Double(1.5);
    EmptyCurve(expected, 9, 9, "", "").Dword(0);
    EXPECT_EQ(StoreObject(fresh), expected.bytes());

    Spectrum back = Filled();
    EXPECT_EQ(LoadObject(expected.bytes(), back), 0u);
    EXPECT_EQ(back.GetName(), "");
    EXPECT_FALSE(back.IsAnySelected());
    EXPECT_EQ(back.GetExplanation(), "---");
    EXPECT_EQ(back.GetType(), 0);
    EXPECT_EQ(back.GetDamp(), 0.05);
    EXPECT_EQ(back.GetBehavior(), 1.5);
    EXPECT_EQ(back.Curve.GetNP(), 0);
    EXPECT_EQ(back.Curve.XUnit, 9);
    EXPECT_EQ(back.Curve.YUnit, 9);
}

TEST(SpectrumTest, FilledSpectrumReadsBackEveryFieldAndPoint) {
    Spectrum s = Filled();
    const Bytes bytes = StoreObject(s);
    Spectrum back;
    EXPECT_EQ(LoadObject(bytes, back), 0u);
    EXPECT_EQ(back.GetName(), "EC8 A");
    EXPECT_TRUE(back.IsSelected(3));
    EXPECT_TRUE(back.IsSelected(500));
    EXPECT_EQ(back.GetExplanation(), "envelope of 7 records");
    EXPECT_EQ(back.GetType(), Spectrum::kAcceleration);
    EXPECT_EQ(back.GetDamp(), 0.07);
    EXPECT_EQ(back.GetBehavior(), 1.0);
    ASSERT_EQ(back.Curve.GetNP(), 3);
    EXPECT_EQ(back.Curve[1].GetX(), 0.5);
    EXPECT_EQ(back.Curve[1].GetY(), 0.625);
    EXPECT_EQ(back.Curve[2].GetY(), 0.1);
    EXPECT_EQ(StoreObject(back), bytes);
}

TEST(SpectrumTest, Version101HasNoBehaviourFactor) {
    // Written by hand: name "old" with view 3, version 101, explanation, type 1, damping 0.07,
    // and straight after it the curve (two points).
    StreamBuilder b;
    b.Text("old").Word(1).Word(3).Word(101).Text("from 101").Byte(1).Double(0.07);
    b.Text("").Word(0).Word(1).Byte(9).Byte(9).Text("T").Text("Sv").Dword(2);
    b.Double(0.1).Double(12.5).Double(1.0).Double(80.0).Dword(0);

    Spectrum s;
    s.SetBehavior(4.0);
    EXPECT_EQ(LoadObject(b.bytes(), s), 0u);
    EXPECT_EQ(s.GetBehavior(), 4.0); // kept
    EXPECT_EQ(s.GetName(), "old");
    EXPECT_TRUE(s.IsSelected(3));
    EXPECT_EQ(s.GetExplanation(), "from 101");
    EXPECT_EQ(s.GetType(), 1);
    EXPECT_EQ(s.GetDamp(), 0.07);
    ASSERT_EQ(s.Curve.GetNP(), 2);
    EXPECT_EQ(s.Curve.YName, "Sv");
    EXPECT_EQ(s.Curve[0].GetY(), 12.5);
    EXPECT_EQ(s.Curve[1].GetX(), 1.0);

    // Written again, it is a version-102 spectrum with the behaviour factor.
    const Bytes again = StoreObject(s);
    const Bytes head = StreamBuilder()
                           .Text("old")
                           .Word(1)
                           .Word(3)
                           .Word(102)
                           .Text("from 101")
                           .Byte(1)
                           .Double(0.07)
                           .Double(4.0)
                           .bytes();
    ASSERT_GT(again.size(), head.size());
    EXPECT_EQ(Bytes(again.begin(), again.begin() + static_cast<long>(head.size())), head);
}

TEST(SpectrumTest, CopiesAreDeepAndCarryTheCurrentVersion) {
    Spectrum s = Filled();
    s.SpectrumVersion = 101;
    Spectrum copy(s);
    EXPECT_EQ(copy.SpectrumVersion, 102);
    EXPECT_EQ(StoreObject(copy), StoreObject(s));
    copy.Curve[0].SetY(9.0);
    EXPECT_EQ(s.Curve[0].GetY(), 0.25);

    Spectrum assigned;
    const Spectrum result = (assigned = s);
    EXPECT_EQ(StoreObject(assigned), StoreObject(s));
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
    EXPECT_EQ(fromVectors.Curve.XUnit, 9);

    EXPECT_STREQ(s.GetRuntimeClass()->m_lpszClassName, "Spectrum");
    EXPECT_EQ(s.GetRuntimeClass()->m_wSchema, 0u);
    CObject* made = CRuntimeClass::CreateObject("Spectrum");
    ASSERT_NE(made, nullptr);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CSelObject)));
    delete made;
}

// ---- report ----

TEST(SpectrumTest, ReportOfAnEmptyAccelerationSpectrum) {
    Spectrum s;
    s.SetName("SA envelope");
    s.SetType(Spectrum::kAcceleration);
    CString text;
    EXPECT_EQ(s.DoReport(text), 0);
    EXPECT_EQ(text.str(), Banner(kSpectrumTitle) + "\n\nIdentifier:     SA envelope\n\n\n" + kRule +
                              "\nAcceleration Response Spectrum at  0.050 damping\n" + kRule +
                              "\n\n\nPeriod (s)    Acc. (g)\n\n\n\n\n");
}

TEST(SpectrumTest, ReportOfAnUnknownKindHasOnlyItsRows) {
    const double T[] = {10.5, 0.02};
    const double v[] = {0.25, 1234.5678};
    Spectrum s(2, const_cast<double*>(T), const_cast<double*>(v));
    s.SetName("odd");
    s.SetType(7);
    CString text("kept\n");
    EXPECT_EQ(s.DoReport(text), 0);
    const std::string report = Banner(kSpectrumTitle) + "\n\nIdentifier:     odd\n\n\n" + kRule +
                               "\n" + "  10.500      0.250\n" + "   0.020    1234.568\n" + "\n\n\n";
    EXPECT_EQ(text.str(), "kept\n" + report);
    EXPECT_EQ(s.DoReport(text), 0);
    EXPECT_EQ(text.str(), "kept\n" + report + report);
}

TEST(SpectrumTest, ReportHeadingsOfDisplacementAndVelocity) {
    const double T[] = {1.0};
    const double v[] = {-12.0};
    Spectrum s(1, const_cast<double*>(T), const_cast<double*>(v));
    s.SetName("S");
    s.SetDamp(0.1);
    const std::string head = Banner(kSpectrumTitle) + "\n\nIdentifier:     S\n\n\n" + kRule + "\n";
    const std::string tail = "\n   1.000    -12.000\n\n\n\n";

    CString displacement;
    s.DoReport(displacement);
    EXPECT_EQ(displacement.str(), head + "Displacement Response Spectrum at  0.100 damping\n" +
                                      kRule + "\n\n\nPeriod (s)    Dis. (mm)\n" + tail);
    s.SetType(Spectrum::kVelocity);
    CString velocity;
    s.DoReport(velocity);
    EXPECT_EQ(velocity.str(), head + "Velocity Response Spectrum at  0.100 damping\n" + kRule +
                                  "\n\n\nPeriod (s)    Vel. (mm/sec)\n" + tail);
}

TEST(SpectrumTest, BannerFramesAnyTitleLine) {
    const std::string title =
        "#                                Accelerogram data                             #";
    EXPECT_EQ(seisplot::ReportBanner(title.c_str()).str(), Banner(title));
}
