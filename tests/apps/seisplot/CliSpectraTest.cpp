// The spectrum commands of the built program: record spectra, code spectra, envelope runs with
// their archive, the reports, and Ctrl-C during a run.

#include "CliFixtures.h"

#include "platform/core/ScriptedUserInterface.h"
#include "records/RecordReport.h"
#include "spectra/Envelope.h"

#include <gmock/gmock.h>

#include <csignal>
#include <set>
#include <sstream>

using seisplot::test::CliResult;
using seisplot::test::EventSet;
using seisplot::test::ReadSet;
using testing::HasSubstr;

namespace {

SpectrumColl ReadSpectra(const std::string& path) {
    SpectrumColl spectra;
    CString file(path.c_str());
    spectra.ReadFromFile(file);
    return spectra;
}

TEST(CliSpectrum, OrdinatesAreTheRecordSpectra) {
    EventSet event;
    AccelerogramColl records = ReadSet(event.set);
    Accelerogram& record = records.GetAccelerogram(2);

    const nlohmann::json acc =
        event.Json({"spectrum", event.set, "2", "--damping-max", "0.1", "--damping-step", "0.05",
                    "--tmax", "1.5", "--dt", "0.05", "--json"});
    ASSERT_EQ(acc["curves"].size(), 2u);
    for (const auto& curve : acc["curves"]) {
        const double xi = curve["damping"].get<double>();
        PCurve expected;
        // The last period asked for is computed although 30 steps of 0.05 add up above 1.5.
        ASSERT_EQ(record.GetAccSpectrum(xi, 1.5 + 1e-8, 0.05, expected), 0);
        ASSERT_EQ(expected.GetNP(), 31);
        ASSERT_EQ(curve["points"].size(), static_cast<size_t>(expected.GetNP())) << xi;
        for (int i = 0; i < expected.GetNP(); ++i) {
            EXPECT_DOUBLE_EQ(curve["points"][i]["period_s"].get<double>(), expected[i].GetX());
            EXPECT_DOUBLE_EQ(curve["points"][i]["sa_g"].get<double>(), expected[i].GetY());
        }
    }
    EXPECT_NEAR(acc["curves"][1]["damping"].get<double>(), 0.10, 1e-15);

    // CSV: every number reads back as the double computed; the period is the grid's running
    // sum of steps and the ordinate the single-period spectral acceleration there, and the
    // step 0.0005 gives 2001 distinct periods.
    CliResult r = event.Run({"spectrum", event.set, "2", "--tmax", "1", "--dt", "0.1", "--csv"});
    ASSERT_EQ(r.status, 0) << r.err;
    std::istringstream lines(r.out);
    std::string line;
    std::getline(lines, line);
    EXPECT_EQ(line, "T (s),Sa (g) xi=0.05");
    double period = 0.0;
    for (int i = 0; i <= 7; ++i) {
        std::getline(lines, line);
        period += i > 0 ? 0.1 : 0.0;
    }
    double sa = 0.0;
    ASSERT_EQ(record.GetAccSpectrum(0.05, period, &sa), 0);
    const size_t comma = line.find(',');
    EXPECT_EQ(std::stod(line.substr(0, comma)), period) << line;
    EXPECT_EQ(std::stod(line.substr(comma + 1)), sa) << line;
    r = event.Run({"spectrum", event.set, "2", "--tmax", "1", "--dt", "0.0005", "--csv"});
    std::istringstream fine(r.out);
    std::set<std::string> periods;
    for (std::getline(fine, line); std::getline(fine, line);) {
        periods.insert(line.substr(0, line.find(',')));
    }
    EXPECT_EQ(periods.size(), 2001u);

    const nlohmann::json dis =
        event.Json({"spectrum", event.set, "2", "--kind", "dis", "--tmax", "1", "--json"});
    PCurve displacement;
    ASSERT_EQ(record.GetDisSpectrum(0.05, 1.0 + 1e-8, 0.01, displacement), 0);
    ASSERT_EQ(displacement.GetNP(), 101);
    ASSERT_EQ(dis["curves"][0]["points"].size(), static_cast<size_t>(displacement.GetNP()));
    EXPECT_DOUBLE_EQ(dis["curves"][0]["points"][80]["sd_mm"].get<double>(),
                     displacement[80].GetY());
}

TEST(CliCode, SpectraFollowTheCodeFormulas) {
    EventSet event;
    // EC8 soil A, ag 0.25 g, 5 %: 0.25·0.66666 at T = 0, the plateau 0.625, 0.625·0.25/T on
    // the descending branch, raised to 0.2·ag at 4 s.
    const nlohmann::json ec8 = event.Json(
        {"code", "ec8", "--ag", "0.25", "--soil", "a", "--tmax", "4", "--dt", "0.5", "--json"});
    ASSERT_EQ(ec8["points"].size(), 9u);
    EXPECT_DOUBLE_EQ(ec8["points"][0]["se_g"].get<double>(), 0.25 * 0.66666);
    EXPECT_DOUBLE_EQ(ec8["points"][1]["period_s"].get<double>(), 0.5);
    EXPECT_DOUBLE_EQ(ec8["points"][1]["se_g"].get<double>(), 0.625 * 0.25 / 0.5);
    EXPECT_DOUBLE_EQ(ec8["points"][2]["se_g"].get<double>(), 0.15625);
    EXPECT_DOUBLE_EQ(ec8["points"][8]["se_g"].get<double>(), 0.05);

    // NTC soil B, ag 0.2, F0 2.5, TC* 0.3 s: SS = 1.2, plateau ag·SS·F0 = 0.6 from TB to TC.
    const double tc = 1.10 * std::pow(0.3, -0.20) * 0.3;
    const nlohmann::json ntc =
        event.Json({"code", "ntc", "--ag", "0.2", "--soil", "B", "--f0", "2.5", "--tcs", "0.3",
                    "--tmax", "1", "--dt", "0.05", "--json"});
    EXPECT_EQ(ntc["soil"], "B");
    for (const auto& point : ntc["points"]) {
        const double t = point["period_s"].get<double>();
        if (t >= tc / 3 && t < tc) {
            EXPECT_NEAR(point["se_g"].get<double>(), 0.6, 1e-12) << t;
        } else if (t >= tc) {
            EXPECT_NEAR(point["se_g"].get<double>(), 0.6 * tc / t, 1e-12) << t;
        }
    }
}

TEST(CliEnvelope, RunsAreTheLibraryRunAndGoToTheArchive) {
    EventSet event;
    const std::string spectra = event.dir.Path("spectra.spc");

    // Pairs on a regular grid: the same run in the library gives the same points and track.
    const nlohmann::json pairs =
        event.Json({"envelope", event.set, "--records", "1-2", "--pairs", "--direction", "30",
                    "--tmax", "1", "--dt", "0.25", "--spectra", spectra, "--json"});
    AccelerogramColl records = ReadSet(event.set);
    EnvelopeCriteria criteria;
    criteria.PeriodSource = EnvelopeCriteria::RegularGrid;
    criteria.MaxPeriod = 1.0;
    criteria.PeriodStep = 0.25;
    criteria.SignalUse = EnvelopeCriteria::ComposedPairs;
    criteria.Direction = 30.0;
    SpectrumColl expected;
    PCurve track;
    {
        seisplot::ScriptedUserInterface ui;
        seisplot::ScopedUserInterface scope(ui);
        ASSERT_EQ(ComputeEnvelopeSpectrum(criteria, records, {true, true, false}, EnvelopeModes{},
                                          expected, track, nullptr),
                  EnvelopeOutcome::Added);
    }
    const PCurve& curve = expected.GetSpectrum(1).Curve;
    ASSERT_EQ(pairs["points"].size(), 5u);
    for (int i = 0; i < 5; ++i) {
        EXPECT_DOUBLE_EQ(pairs["points"][i]["period_s"].get<double>(), 0.25 * i);
        EXPECT_DOUBLE_EQ(pairs["points"][i]["sa_g"].get<double>(), curve[i].GetY());
        EXPECT_EQ(pairs["points"][i]["signal"], 1);
    }
    EXPECT_EQ(pairs["title"], "Generic - Complete Envelope - Damping  0.050");
    EXPECT_EQ(pairs["pairs"][0]["records"], nlohmann::json({1, 2}));
    const Ec8Rating rating = MatchEc8SoilClasses(expected.GetSpectrum(1));
    EXPECT_EQ(pairs["ec8"]["verdict"].get<std::string>() + " ", std::string(rating.Verdict));
    EXPECT_EQ(pairs["spectrum_number"], 1);

    // One record at the periods of a modes file (T = 0, then the modes in file order): every
    // percentile of one signal is that signal's spectral acceleration.
    const std::string modes = event.dir.Write(
        "s.modes", "# period X Y Z\n0.4 0.8 0.1 0\n\n  0.15 0.1 0.7 0.0  # second\n");
    const nlohmann::json single =
        event.Json({"envelope", event.set, "--records", "2", "--modes", modes, "--percentile", "84",
                    "--damping", "0.1", "--spectra", spectra, "--json"});
    ASSERT_EQ(single["points"].size(), 3u);
    const double periods[] = {0.0, 0.4, 0.15};
    for (int i = 0; i < 3; ++i) {
        double sa = 0.0;
        ASSERT_EQ(records.GetAccelerogram(2).GetAccSpectrum(0.1, periods[i], &sa), 0);
        EXPECT_DOUBLE_EQ(single["points"][i]["period_s"].get<double>(), periods[i]);
        EXPECT_DOUBLE_EQ(single["points"][i]["sa_g"].get<double>(), sa) << i;
        EXPECT_FALSE(single["points"][i].contains("signal"));
    }
    EXPECT_EQ(single["spectrum_number"], 2);
    SpectrumColl archive = ReadSpectra(spectra);
    ASSERT_EQ(archive.GetSpectrumNum(), 2u);
    EXPECT_EQ(std::string(archive.GetSpectrum(2).GetName()),
              "Structural Modes - Envelope  84.000 percentile - Damping  0.100");
    EXPECT_DOUBLE_EQ(archive.GetSpectrum(2).Curve[1].GetY(), single["points"][1]["sa_g"]);

    // A run the library stops, and a modes file with a bad line: status 1, archive untouched.
    const std::string before = seisplot::test::CliProcess::Slurp(spectra);
    CliResult r = event.Run({"envelope", event.set, "--records", "1-3", "--pairs", "--tmax", "1",
                             "--dt", "0.5", "--spectra", spectra});
    EXPECT_EQ(r.status, 1);
    EXPECT_THAT(r.err, HasSubstr("seisplot: Error to compose accelerograms the number of "
                                 "selected accelerograms must be even\n"));
    const std::string bad = event.dir.Write("bad.modes", "0.4 0.8 0.1 0\n0.2 0.5\n");
    r = event.Run({"envelope", event.set, "--modes", bad, "--spectra", spectra});
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.err, "seisplot: " + bad + ":2: expected 'period X Y Z', found '0.2 0.5'\n");
    EXPECT_EQ(seisplot::test::CliProcess::Slurp(spectra), before);
}

TEST(CliEnvelope, CtrlCCancelsWithoutWriting) {
    seisplot::test::TempDir dir;
    const std::string set = dir.Path("long.acc");
    const std::string record = seisplot::test::ItacaText("EV9", "E", 100, 20001, 0.005);
    std::vector<std::string> args = {"import", "-o", set, "-q"};
    for (int i = 1; i <= 6; ++i) {
        args.push_back(dir.Write("LONG" + std::to_string(i) + "_E.ASC", record));
    }
    ASSERT_EQ(seisplot::test::RunCli(args, dir.Path("")).status, 0);
    const std::string spectra = dir.Path("spectra.spc");
    // 30001 periods of six 100 s records on one thread: many seconds of work, each ordinate a
    // small part of it.
    // The interrupt comes once the run shows its progress bar on the terminal.
    seisplot::test::CliProcess run(
        {"envelope", set, "--tmax", "15", "--dt", "0.0005", "--threads", "1", "--spectra", spectra},
        dir.Path(""), seisplot::test::CliProcess::ErrorStream::Terminal);
    ASSERT_TRUE(run.WaitForTerminal("envelope ["));
    ::kill(run.Pid(), SIGINT);
    const CliResult r = run.Wait();
    EXPECT_EQ(r.status, 1);
    // The terminal ends lines with a carriage return and a line feed.
    EXPECT_THAT(r.err, HasSubstr("seisplot: envelope cancelled; nothing written\r\n"));
    EXPECT_FALSE(std::filesystem::exists(spectra));
}

TEST(CliReports, TextsAreTheLibraryReports) {
    EventSet event;
    AccelerogramColl records = ReadSet(event.set);
    CliResult r = event.Run({"report", event.set, "1", "--tmax", "1", "--dt", "0.25"});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, std::string(BuildRecordReport(records.GetAccelerogram(1), 1.0, 0.25)));
    EXPECT_THAT(r.out, HasSubstr("   1.000      "));

    const std::string file = event.dir.Path("report.txt");
    r = event.Run({"report", event.set, "3", "-o", file});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(seisplot::test::CliProcess::Slurp(file),
              std::string(BuildRecordReport(records.GetAccelerogram(3), 2.0 + 1e-7, 0.1)));

    const std::string spectra = event.dir.Path("spectra.spc");
    ASSERT_EQ(
        event.Run({"envelope", event.set, "--tmax", "0.5", "--dt", "0.1", "--spectra", spectra})
            .status,
        0);
    r = event.Run({"report-spectrum", spectra, "1"});
    ASSERT_EQ(r.status, 0) << r.err;
    CString text;
    ReadSpectra(spectra).GetSpectrum(1).DoReport(text);
    EXPECT_EQ(r.out, std::string(text));
    r = event.Run({"report-spectrum", spectra, "2"});
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.err, "seisplot: there is no spectrum 2 in " + spectra + " (it holds 1 spectrum)\n");
}

} // namespace
