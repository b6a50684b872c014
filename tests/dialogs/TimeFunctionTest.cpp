// The function of time: the points of every kind, the sampling of the sine and cosine kinds
// at the duration, curves read from files with their summaries, and the copy.

#include "dialogs/records/TimeFunction.h"
#include "DialogFixture.h"
#include "platform/core/FailureInjection.h"
#include "platform/ui/Clipboard.h"
#include "support/TempDir.h"

#include <cmath>

using seisplot::DialogHandle;

namespace {

constexpr int kFirstKind = 14768, kParameter1 = 14776, kDuration = 14783, kUpdate = 14784;
constexpr int kAddFromFile = 14691, kCopy = 14627;

using Points = std::vector<std::pair<double, double>>;

Points PointsOf(const PCurve& c) {
    Points p;
    for (int k = 0; k < c.GetNP(); ++k) {
        p.emplace_back(c[k].GetX(), c[k].GetY());
    }
    return p;
}

struct TimeFunctionTest : seisplot::test::DialogFixture {
    seisplot::test::TempDir dir;

    // The function built for `kind` with `parameters` (five texts) and `duration`.
    Points Built(int kind, std::vector<const char*> parameters, const char* duration) {
        GetTimeCurve dialog;
        dialogs.Expect(14519, [&](DialogHandle& d) {
            for (size_t i = 0; i < parameters.size(); ++i) {
                d.Type(kParameter1 + static_cast<int>(i), parameters[i]);
            }
            d.Type(kDuration, duration);
            d.Click(kFirstKind + kind);
            EXPECT_TRUE(d.Ok());
        });
        EXPECT_EQ(dialog.DoModal(), IDOK);
        EXPECT_EQ(dialog.Kind, kind);
        EXPECT_EQ(dialog.Function.XUnit, seisplot::UnitKind::Time);
        EXPECT_EQ(dialog.Function.YUnit, seisplot::UnitKind::PureNumber);
        EXPECT_EQ(dialog.Function.YName, "f(t)");
        return PointsOf(dialog.Function);
    }
};

} // namespace

TEST_F(TimeFunctionTest, EachKindGivesItsPointsInOrder) {
    GetTimeCurve preset;
    dialogs.Expect(14519, [](DialogHandle& d) {
        EXPECT_EQ(d.Caption(), "Function of Time");
        d.Type(kParameter1, "7"); // typed, never applied: Cancel reads nothing
        EXPECT_TRUE(d.Cancel());
    });
    EXPECT_EQ(preset.DoModal(), IDCANCEL);
    EXPECT_EQ(preset.Parameter1, 0.0);
    EXPECT_EQ(PointsOf(preset.Function),
              (Points{{0, 0}, {-1e-6, 0}, {0, 5}, {1, 5}, {1 + 1e-6, 0}, {50, 0}}));

    EXPECT_EQ(Built(1, {"10", "1"}, "50"), (Points{{0, 0}, {10 - 1e-6, 0}, {10, 1}, {50, 1}}));
    EXPECT_EQ(Built(1, {"30", "1"}, "50").back(), std::make_pair(60.0, 1.0));
    EXPECT_EQ(Built(2, {"2", "-3", "4"}, "5"),
              (Points{{0, 0}, {2 - 1e-6, 0}, {2, -3}, {4, -3}, {4 + 1e-6, 0}, {8, 0}}));
    EXPECT_EQ(Built(3, {"2", "1", "4"}, "20"), (Points{{0, 0}, {2, 0}, {4, 1}, {20, 1}}));
    EXPECT_EQ(Built(4, {"1", "2", "3", "4", "6"}, "5"),
              (Points{{0, 0}, {1, 0}, {3, 2}, {4, 2}, {6, 0}, {12, 0}}));
    // V1 = 0 refuses kinds 1 to 4, not the impulse; a period that is not positive refuses the
    // sine and the cosine.
    EXPECT_TRUE(Built(2, {"2", "0", "4"}, "5").empty());
    EXPECT_EQ(Built(0, {"1", "1", "0"}, "5").size(), 6u);
    EXPECT_TRUE(Built(6, {"0", "0", "0", "0"}, "5").empty());
    EXPECT_EQ(ui.MessageTexts(), (std::vector<CString>{"V1 must be != 0", "T must be > 0"}));
}

TEST_F(TimeFunctionTest, SinesAreSampledAHundredTimesAPeriodUpToTheDuration) {
    // Samples at a running sum of T/100, with the value sin(2·pi·t) for A = B = fi = 0.
    const Points sine = Built(5, {"1", "0", "0", "0"}, "2");
    const double pi = 2.0 * std::asin(1.0);
    Points expected;
    for (double t = 0.0; t <= 2.0; t += 0.01) {
        expected.emplace_back(t, std::sin(2.0 * pi * t));
    }
    ASSERT_EQ(sine.size(), expected.size());
    for (size_t i = 0; i < sine.size(); ++i) {
        EXPECT_EQ(sine[i], expected[i]) << i;
    }
    // A step of exactly 1 s: a point at the duration is kept inside a block of 101 and left
    // out at a block's end.
    EXPECT_EQ(Built(6, {"100", "0", "0", "0"}, "50").size(), 51u);
    EXPECT_EQ(Built(6, {"100", "0", "0", "0"}, "101").size(), 101u);
    EXPECT_EQ(Built(6, {"100", "0", "0", "0"}, "101.5").size(), 102u);
    // The modulation: (1 + A·t)·cos(2·pi·t / ((1 + B·t)·T) + fi) at t = 1.
    const Points cosine = Built(6, {"100", "0.5", "2", "0.25"}, "1");
    EXPECT_EQ(cosine.at(1).second, (1.0 + 2.0) * std::cos(2.0 * pi / (1.25 * 100.0) + 0.5));
}

TEST_F(TimeFunctionTest, CurveFilesAreReadLineByLineWithTheirSummary) {
    const std::string uniform = dir.Write("uniform.txt", "# time value\n"
                                                         "\n"
                                                         "0.5  1.5\r\n"
                                                         "$ note\n"
                                                         "0.51 -3\n"
                                                         "7\n"
                                                         "0.52\t2\n");
    const std::string varying = dir.Write("varying.txt", "0 0\n0.01 1\n0.02 2\n0.04 1\n");
    const std::string comments = dir.Write("comments.txt", "# a\n# b\n");
    for (const std::string& path : {uniform, varying, comments, dir.Path("missing.txt")}) {
        ui.QueueFiles({path.c_str()});
    }
    GetTimeCurve dialog;
    dialogs.Expect(14519, [&](DialogHandle& d) {
        d.Click(kAddFromFile);
        EXPECT_EQ(PointsOf(dialog.Function).size(), 6u); // still the impulse
        d.Click(kFirstKind + 7);                         // generic: the curve read
        EXPECT_EQ(PointsOf(dialog.Function), (Points{{0.5, 1.5}, {0.51, -3}, {0.52, 2}}));
        d.Click(kAddFromFile); // read while generic: shown at once
        EXPECT_EQ(dialog.Function.GetNP(), 4);
        d.Click(kAddFromFile);
        EXPECT_EQ(dialog.Function.GetNP(), 0);
        d.Click(kAddFromFile);
        EXPECT_TRUE(d.Ok());
    });
    ASSERT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(
        ui.MessageTexts(),
        (std::vector<CString>{"Error reading row: ", "7",
                              "MAX=   3.000  NP= 3  dT=  0.0100  Tmin =   0.500  Tmax=   0.520",
                              "MAX=   2.000  NP= 4  dT= varying  Tmin =   0.000  Tmax=   0.040",
                              "MAX=   0.000  NP= 0  dT=  0.0000  Tmin = 1000000000000.000  Tmax= "
                              "-1000000000000.000",
                              "Unable to open text file"}));
    EXPECT_EQ(dialog.Loaded.GetName(), dir.Path("comments").c_str());
}

TEST_F(TimeFunctionTest, ACopyThatFailsLeavesTheClipboardAsTheStepLeftItUntilTheDialogGoes) {
    GetTimeCurve dialog;
    dialogs.Expect(14519, [](DialogHandle& d) {
        d.Click(kCopy);
        seisplot::FailAfter(seisplot::FailurePoint::ClipboardEmpty, 0);
        d.Click(kCopy);
        seisplot::FailAfter(seisplot::FailurePoint::ClipboardEmpty, -1);
        d.Click(kCopy); // still open from the failed copy
        EXPECT_TRUE(d.Ok());
    });
    dialog.DoModal();
    EXPECT_EQ(ui.MessageTexts(),
              (std::vector<CString>{"Failed to empty Clipboard", "Failed to open Clipboard"}));
    CWnd other;
    EXPECT_TRUE(OpenClipboard(&other));
    EXPECT_TRUE(CloseClipboard());
}
