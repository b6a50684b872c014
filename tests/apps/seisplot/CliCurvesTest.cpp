// Curve collections on the command line: spectra saved as collections, their listing, and new
// curves mixed from formulas.

#include "CliFixtures.h"

#include "host/CurveColl.h"
#include "host/UnitKind.h"

#include <gmock/gmock.h>

#include <cstdio>

using seisplot::UnitKind;
using seisplot::test::CliProcess;
using seisplot::test::CliResult;
using seisplot::test::EventSet;
using seisplot::test::ReadSet;
using testing::HasSubstr;

namespace {

template <class Collection> Collection ReadCollection(const std::string& path) {
    Collection collection;
    EXPECT_EQ(collection.ReadFromFile(path.c_str()), 0) << path;
    return collection;
}

TEST(CliCurves, SpectraSavedAsCollectionsListAndMix) {
    EventSet event;
    const std::string pcc = event.dir.Path("sa.pcc");
    CliResult r = event.Run({"spectrum", event.set, "2", "--damping-max", "0.1", "--damping-step",
                             "0.05", "--tmax", "1", "--dt", "0.1", "--pcc", pcc});
    ASSERT_EQ(r.status, 0) << r.err;
    AccelerogramColl records = ReadSet(event.set);
    PCurveColl saved = ReadCollection<PCurveColl>(pcc);
    ASSERT_EQ(saved.GetPCurveNum(), 2);
    const PCurve second = *saved.GetP(2); // a copy: the collection is read again below
    EXPECT_EQ(std::string(second.GetName().GetString()), "Damp =   0.100");
    EXPECT_EQ(std::string(second.XName.GetString()), "T (sec)");
    EXPECT_EQ(std::string(second.YName.GetString()), "Se(T) [g]");
    EXPECT_EQ(second.XUnit, UnitKind::Time);
    EXPECT_EQ(second.YUnit, UnitKind::PureNumber);
    PCurve expected;
    ASSERT_EQ(records.GetAccelerogram(2).GetAccSpectrum(0.1, 1.0 + 1e-8, 0.1, expected), 0);
    ASSERT_EQ(second.GetNP(), expected.GetNP());
    for (int i = 0; i < expected.GetNP(); ++i) {
        EXPECT_EQ(second[i].GetY(), expected[i].GetY()) << i;
    }

    // The listing: seconds and g are shown as held; a file gets CR LF lines.
    const std::string listing = event.dir.Path("listing.txt");
    r = event.Run({"curves", "show", pcc, "2", "-o", listing});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "Listing of curve 2 written to " + listing + "\n");
    const std::string text = CliProcess::Slurp(listing);
    char line[128];
    std::snprintf(line, sizeof line, "%5ld  %12.3le  %12.3le  %s\r\n", 4L, expected[3].GetX(),
                  expected[3].GetY(), "          ");
    EXPECT_THAT(text, HasSubstr(line));
    size_t lines = 0;
    for (size_t at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n", at + 2)) {
        ++lines;
    }
    EXPECT_EQ(lines, static_cast<size_t>(expected.GetNP()));
    r = event.Run({"curves", "show", pcc, "2", "--swap-axes"});
    std::snprintf(line, sizeof line, "%5ld  %12.3le  %12.3le  %s\n", 4L, expected[3].GetY(),
                  expected[3].GetX(), "          ");
    EXPECT_THAT(r.out, HasSubstr(line));

    const nlohmann::json list = event.Json({"curves", "list", pcc, "--json"});
    ASSERT_EQ(list["curves"].size(), 2u);
    EXPECT_EQ(list["curves"][0]["name"], "Damp =   0.050");
    EXPECT_EQ(list["curves"][0]["points"], expected.GetNP());
    EXPECT_EQ(list["curves"][0]["x_kind"], "time");
    EXPECT_EQ(list["curves"][0]["y_kind"], "number");

    // A new curve from both: x from curve A, y the formula at each point; the run appends it.
    r = event.Run({"curves", "mix", pcc, "--bind", "A=1,B=2", "--formula", "(A - B) * 2", "--kind",
                   "number", "--name", "gap"});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "Curve 3 (gap, 11 points) added to " + pcc + "\n");
    saved = ReadCollection<PCurveColl>(pcc);
    ASSERT_EQ(saved.GetPCurveNum(), 3);
    const PCurve& gap = *saved.GetP(3);
    ASSERT_EQ(gap.GetNP(), expected.GetNP());
    for (int i = 0; i < gap.GetNP(); ++i) {
        const double a = (*saved.GetP(1))[i].GetY();
        EXPECT_EQ(gap[i].GetX(), (*saved.GetP(1))[i].GetX());
        EXPECT_DOUBLE_EQ(gap[i].GetY(), (a - second[i].GetY()) * 2) << i;
    }

    // A formula that does not parse, and a curve that is not there: status 1, file unchanged.
    const std::string before = CliProcess::Slurp(pcc);
    r = event.Run({"curves", "mix", pcc, "--bind", "A=1", "--formula", "A +"});
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.err, "seisplot: Error processing expression\n");
    r = event.Run({"curves", "mix", pcc, "--bind", "A=1,B=9", "--formula", "A"});
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.err, "seisplot: there is no curve 9 in " + pcc + " (it holds 3 curves)\n");
    EXPECT_EQ(CliProcess::Slurp(pcc), before);

    // Acceleration-displacement spectra are polylines, and only they go to a .pmc.
    r = event.Run({"spectrum", event.set, "2", "--tmax", "1", "--pmc", event.dir.Path("sa.pmc")});
    EXPECT_EQ(r.status, 2);
    EXPECT_THAT(r.err, HasSubstr("spectra of periods are function curves: give --pcc FILE.pcc"));
    const std::string pmc = event.dir.Path("ad.pmc");
    r = event.Run({"spectrum", event.set, "2", "--kind", "ads", "--tmax", "1", "--pmc", pmc});
    ASSERT_EQ(r.status, 0) << r.err;
    const PMCurveColl ad = ReadCollection<PMCurveColl>(pmc);
    ASSERT_EQ(ad.GetPMCurveNum(), 1);
    EXPECT_EQ(ad.GetP(1)->XUnit, UnitKind::Length);
    EXPECT_EQ(ad.GetP(1)->YUnit, UnitKind::Acceleration);
    EXPECT_EQ(std::string(ad.GetP(1)->YName.GetString()), "Se,a ");
}

TEST(CliCurves, BoundCurvesNeedAsManyPointsAsCurveA) {
    seisplot::test::TempDir dir;
    const std::string pcc = dir.Path("short.pcc");
    PCurveColl collection;
    PCurve longer;
    PCurve shorter;
    for (int i = 0; i < 3; ++i) {
        longer.AddPoint(i, 10.0 * i);
    }
    shorter.AddPoint(0, 1);
    shorter.AddPoint(1, 2);
    collection.AddPCurve(longer);
    collection.AddPCurve(shorter);
    ASSERT_EQ(collection.WriteToFile(pcc.c_str()), 0);

    CliResult r = seisplot::test::RunCli(
        {"curves", "mix", pcc, "--bind", "A=1,B=2", "--formula", "A+B"}, dir.Path(""));
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.err, "seisplot: Different number of points\n");
    // Curve A sets the count; a longer B is read up to it. Pure numbers are read as held, and
    // the sum, a length typed in cm, is held in mm.
    const std::string out = dir.Path("out.pcc");
    r = seisplot::test::RunCli({"curves", "mix", pcc, "--bind", "A=2,B=1", "--formula", "A+B",
                                "--kind", "length", "--units", "cm", "-o", out},
                               dir.Path(""));
    ASSERT_EQ(r.status, 0) << r.err;
    const PCurveColl mixed = ReadCollection<PCurveColl>(out);
    ASSERT_EQ(mixed.GetPCurveNum(), 3);
    ASSERT_EQ(mixed.GetP(3)->GetNP(), 2);
    EXPECT_DOUBLE_EQ((*mixed.GetP(3))[1].GetY(), (2.0 + 10.0) * 10.0);
    EXPECT_EQ(mixed.GetP(3)->YUnit, UnitKind::Length);
    EXPECT_EQ(ReadCollection<PCurveColl>(pcc).GetPCurveNum(), 2);
}

} // namespace
