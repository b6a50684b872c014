// The record commands of the built program: import, list, show, rotate, sinusoids; the exit
// status and messages of bad usage and bad input; whole-or-nothing archive writes.

#include "CliFixtures.h"

#include "platform/core/ScriptedUserInterface.h"
#include "records/Sinusoids.h"

#include <gmock/gmock.h>

#include <iterator>
#include <sstream>

using seisplot::test::CliResult;
using seisplot::test::EventSet;
using seisplot::test::ItacaText;
using seisplot::test::ReadSet;
using seisplot::test::TempDir;
using seisplot::test::TwoColumnText;
using testing::HasSubstr;

namespace {

std::vector<std::string> Listing(const std::string& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

TEST(CliImport, ReadsEachKindAndListsWhatTheLibraryReads) {
    TempDir dir;
    const std::string asc = dir.Write("EV_E.ASC", ItacaText("EV1", "E", 200));
    const std::string txt = dir.Write("two.txt", TwoColumnText(501, 0.02, 300));
    const std::string set = dir.Path("set.acc");
    CliResult r =
        seisplot::test::RunCli({"import", asc, txt, "-o", set, "--units", "cm"}, dir.Path(""));
    ASSERT_EQ(r.status, 0) << r.err;

    // The same files read by the library directly.
    seisplot::ScriptedUserInterface ui;
    seisplot::ScopedUserInterface scope(ui);
    Accelerogram itaca;
    ASSERT_EQ(itaca.ReadASC(1, "EV_E.ASC", asc.c_str()), 0);
    Units units;
    units.SetUnit("cm");
    Accelerogram twoColumn;
    ASSERT_EQ(twoColumn.ReadTXTPLT(1, "two.txt", txt.c_str(), units), 0);
    EXPECT_EQ(r.out, "EV_E.ASC  " + std::string(itaca.Explanation) + "\ntwo.txt   " +
                         std::string(twoColumn.Explanation) + "\n" + set +
                         ": 2 records (2 imported, 0 skipped)\n");

    AccelerogramColl records = ReadSet(set);
    ASSERT_EQ(records.GetAccelerogramNum(), 2u);
    EXPECT_EQ(records.GetAccelerogram(2).Record.GetNP(), 501);
    EXPECT_DOUBLE_EQ(records.GetAccelerogram(2).Record[7].GetY(), twoColumn.Record[7].GetY());

    // list --json against the library's values of the records written.
    const nlohmann::json list =
        nlohmann::json::parse(seisplot::test::RunCli({"list", set, "--json"}, dir.Path("")).out);
    ASSERT_EQ(list["records"].size(), 2u);
    for (unsigned long i = 1; i <= 2; ++i) {
        const nlohmann::json& row = list["records"][i - 1];
        const Accelerogram& record = records.GetAccelerogram(i);
        EXPECT_EQ(row["identifier"], std::string(record.Identifier));
        EXPECT_DOUBLE_EQ(row["pga_g"].get<double>(), record.GetPga());
        EXPECT_EQ(row["points"], record.Record.GetNP());
    }
    EXPECT_NEAR(list["records"][0]["step_s"].get<double>(), 0.01, 1e-12);
    EXPECT_NEAR(list["records"][1]["duration_s"].get<double>(), 10.0, 1e-12);

    // The text table: number, identifier, PGA in g to four decimals, points, step, duration.
    r = seisplot::test::RunCli({"list", set}, dir.Path(""));
    std::istringstream lines(r.out);
    std::string line;
    for (int i = 0; i < 4; ++i) {
        std::getline(lines, line);
    }
    std::istringstream cells(line);
    std::vector<std::string> row{std::istream_iterator<std::string>(cells), {}};
    // Every number in full: the shortest text that reads back as the same double.
    const PCurve& east = records.GetAccelerogram(1).Record;
    const double duration = east.GetMaxX() - east.GetMinX();
    const std::vector<std::string> expected = {"1", "EV_E.ASC", "",  "1001", "",
                                               "",  "EV1",      "0", "-"};
    ASSERT_EQ(row.size(), expected.size());
    EXPECT_EQ(std::stod(row[2]), records.GetAccelerogram(1).GetPga());
    EXPECT_EQ(std::stod(row[4]), duration / 1000);
    EXPECT_EQ(std::stod(row[5]), duration);
    for (size_t c : {0, 1, 3, 6, 7, 8}) {
        EXPECT_EQ(row[c], expected[c]) << c;
    }

    // The same file again is skipped with the library's words, and the set is unchanged.
    r = seisplot::test::RunCli({"import", asc, "-o", set, "--append"}, dir.Path(""));
    EXPECT_EQ(r.status, 0);
    EXPECT_THAT(r.err, HasSubstr("seisplot: The accelerogram EV_E.ASC is already in the set and "
                                 "will NOT be added.\n"));
    EXPECT_EQ(ReadSet(set).GetAccelerogramNum(), 2u);
}

TEST(CliImport, FailuresLeaveTheSetAsItWas) {
    EventSet event;
    const std::string before = seisplot::test::CliProcess::Slurp(event.set);
    const auto unchanged = [&] {
        EXPECT_EQ(seisplot::test::CliProcess::Slurp(event.set), before);
        EXPECT_EQ(Listing(event.dir.Path("")),
                  (std::vector<std::string>{"EV_E.ASC", "EV_N.ASC", "EV_Z.ASC", "set.acc"}));
    };

    // Fewer data lines than NDATA: the importer's own message, status 1.
    std::string text = ItacaText("EV2", "E", 100, 50);
    text = text.substr(0, text.rfind("\n", text.size() - 2) + 1);
    const std::string shortFile = event.dir.Write("SHORT.ASC", text);
    CliResult r = event.Run({"import", shortFile, "-o", event.set, "--append"});
    EXPECT_EQ(r.status, 1);
    EXPECT_THAT(r.err, HasSubstr("seisplot: Error reading row "));
    EXPECT_THAT(r.err, HasSubstr("unable to read " + shortFile));
    std::filesystem::remove(shortFile);
    unchanged();

    const std::string header = event.dir.Write(
        "HEAD.ASC", "EVENT_ID: X\nNDATA: 3\nSAMPLING_INTERVAL_S: 0.01\nUNITS: cm/s^2\n");
    r = event.Run({"import", header, "-o", event.set});
    EXPECT_EQ(r.status, 1);
    EXPECT_THAT(r.err, HasSubstr("seisplot: Error no data read. First datum MUST be 0.000\n"));
    std::filesystem::remove(header);
    unchanged();

    // A two-column file without units, and no terminal to ask at.
    const std::string txt = event.dir.Write("two.txt", TwoColumnText(10, 0.01, 1));
    r = event.Run({"import", txt, "-o", event.set, "--append"});
    EXPECT_EQ(r.status, 1);
    EXPECT_THAT(r.err, HasSubstr("seisplot: the two-column file " + txt +
                                 " needs its units: give them with --units mm|cm|m|in\n"));
    std::filesystem::remove(txt);

    r = event.Run({"import", event.dir.Path("missing.ASC"), "-o", event.set});
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.err, "seisplot: cannot import " + event.dir.Path("missing.ASC") +
                         ": no such file; " + event.set + " not written\n");

    r = event.Run({"import", event.dir.Path("x.dat"), "-o", event.set});
    EXPECT_EQ(r.status, 1);
    EXPECT_THAT(r.err, HasSubstr("unrecognized file extension"));

    // A record archive that is not one.
    const std::string bogus = event.dir.Write("bogus.acc", "\x01\x00\x05");
    r = event.Run({"list", bogus});
    EXPECT_EQ(r.status, 1);
    EXPECT_THAT(r.err, HasSubstr("seisplot: cannot read the record set " + bogus + ": "));
    std::filesystem::remove(bogus);
    unchanged();
}

TEST(CliUsage, BadCommandLinesGiveStatusTwoAndSayWhy) {
    EventSet event;
    const struct {
        std::vector<std::string> args;
        const char* message;
    } cases[] = {
        {{}, "seisplot: A subcommand is required\nRun 'seisplot --help'"},
        {{"frobnicate"}, "seisplot: unknown command 'frobnicate'\n"},
        {{"list"}, "SET is required"},
        {{"show", event.set, "0"}, "Run 'seisplot show --help' for more information."},
        {{"import", "a.ASC", "-o", "b.acc", "--units", "ft"}, "--units"},
        {{"spectrum", event.set, "1", "--damping", "1"}, "is not a damping ratio"},
        {{"spectrum", event.set, "1", "--damping-max", "0.1"}, "--damping-max requires"},
        {{"spectrum", event.set, "1", "--kind", "vel"}, "--kind"},
        {{"code", "ntc", "--ag", "0.2", "--soil", "B"}, "the NTC spectrum needs --f0 and --tcs"},
        {{"code", "ec8", "--ag", "0.2", "--soil", "F"}, "--soil"},
        {{"envelope", event.set, "--records", "3-1", "--tmax", "1", "--dt", "0.1"},
         "the range '3-1' runs backwards"},
        {{"envelope", event.set}, "give the periods: --modes FILE, or --tmax T --dt S"},
        {{"envelope", event.set, "--modes", "m", "--tmax", "1", "--dt", "0.1"}, "excludes"},
        {{"envelope", event.set, "--tmax", "1", "--dt", "0.1", "--direction", "30"},
         "--direction requires --pairs"},
        {{"sinusoids", "--count", "0", "-o", "x.acc"}, "--count"},
        {{"rotate", event.set, "1"}, "--angle is required"},
        // The picture is checked before any work: a missing set is not reached.
        {{"plot", "missing.acc", "1", "-o", "a.jpg"},
         "seisplot: a.jpg: the picture must be a .png, .svg or .pdf file\n"},
        {{"envelope", "missing.acc", "--tmax", "1", "--dt", "0.1", "--plot", "a.png", "--size",
          "99x600"},
         "seisplot: --size 99x600: give WIDTHxHEIGHT in pixels, each 100 to 8000\n"},
    };
    for (const auto& c : cases) {
        const CliResult r = event.Run(c.args);
        EXPECT_EQ(r.status, 2) << testing::PrintToString(c.args) << r.err;
        EXPECT_THAT(r.err, HasSubstr(c.message)) << testing::PrintToString(c.args);
        EXPECT_EQ(r.out, "");
    }
    for (const char* command : {"import", "list", "show", "spectrum", "envelope", "code", "report",
                                "report-spectrum", "sinusoids", "rotate", "plot", "demo"}) {
        const CliResult r = event.Run({command, "--help"});
        EXPECT_EQ(r.status, 0) << command;
        EXPECT_THAT(r.out, HasSubstr(std::string("Usage: seisplot ") + command)) << command;
    }
}

TEST(CliRecords, PlotsArePicturesOfTheAskedKindAndSize) {
    EventSet event;
    const std::string png = event.dir.Path("record.png");
    CliResult r = event.Run({"plot", event.set, "2", "-o", png, "--size", "640x480"});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_THAT(r.out, HasSubstr("Plot of record 2 (EV_N.ASC) written to " + png));
    // The PNG signature, then the header chunk with the width and height (big-endian).
    const std::string bytes = event.dir.Read("record.png");
    ASSERT_GT(bytes.size(), 24u);
    EXPECT_EQ(bytes.substr(0, 8), "\x89PNG\r\n\x1a\n");
    EXPECT_EQ(bytes.substr(16, 8), std::string("\0\0\x02\x80\0\0\x01\xe0", 8));

    r = event.Run({"spectrum", event.set, "1", "--tmax", "1", "--dt", "0.1", "--plot",
                   event.dir.Path("sa.svg")});
    ASSERT_EQ(r.status, 0) << r.err;
    const std::string svg = event.dir.Read("sa.svg");
    EXPECT_THAT(svg, HasSubstr("viewBox=\"0 0 800 600\""));
    EXPECT_THAT(svg, HasSubstr("Acceleration response spectrum of EV_E.ASC, damping 5.0%"));

    r = event.Run(
        {"code", "ec8", "--ag", "0.25", "--soil", "B", "--plot", event.dir.Path("ec8.pdf")});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(event.dir.Read("ec8.pdf").substr(0, 5), "%PDF-");
}

TEST(CliRecords, ShowRotateAndSinusoidsMatchTheLibrary) {
    EventSet event;
    AccelerogramColl records = ReadSet(event.set);
    Accelerogram& east = records.GetAccelerogram(1);
    Accelerogram& north = records.GetAccelerogram(2);

    const nlohmann::json shown = event.Json({"show", event.set, "2", "--json"});
    EXPECT_EQ(shown["identifier"], "EV_N.ASC");
    EXPECT_EQ(shown["event_id"], "EV1");
    EXPECT_EQ(shown["event_date"], "2020-01-02");
    EXPECT_EQ(shown["event_time"], "03:04:05");
    EXPECT_EQ(shown["angle_we"], 90.0);
    EXPECT_DOUBLE_EQ(shown["pga_g"].get<double>(), north.GetPga());
    EXPECT_EQ(event.Json({"show", event.set, "3", "--json"})["vertical"], 1);
    CliResult r = event.Run({"show", event.set, "4"});
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.err, "seisplot: there is no record 4 in " + event.set + " (it holds 3 records)\n");

    // East at 0 and north at 90 degrees, turned to 90: the north record at the east's times.
    const std::string rotated = event.dir.Path("rotated.acc");
    r = event.Run({"rotate", event.set, "1", "2", "--angle", "90", "-o", rotated});
    ASSERT_EQ(r.status, 0) << r.err;
    AccelerogramColl after = ReadSet(rotated);
    ASSERT_EQ(after.GetAccelerogramNum(), 4u);
    const Accelerogram& turned = after.GetAccelerogram(4);
    EXPECT_EQ(std::string(turned.Identifier), "EV_E.ASC\"+\"EV_N.ASC");
    EXPECT_EQ(turned.AngleWE, 90.0);
    ASSERT_EQ(turned.Record.GetNP(), north.Record.GetNP());
    for (int i : {0, 1, 250, 1000}) {
        EXPECT_NEAR(turned.Record[i].GetY(), north.Record[i].GetY(), 1e-9 * 1962.0) << i;
        EXPECT_NEAR(turned.Record[i].GetX(), east.Record[i].GetX(), 1e-12);
    }
    // The wrong order is refused by the rotation with its message; nothing is written.
    const std::string refused = event.dir.Path("refused.acc");
    r = event.Run({"rotate", event.set, "2", "1", "--angle", "90", "-o", refused});
    EXPECT_EQ(r.status, 1);
    EXPECT_THAT(r.err, HasSubstr("seisplot: Error anglex must be < angley\n"));
    EXPECT_FALSE(std::filesystem::exists(refused));

    // Sinusoids appended to the set: the same records as the generator makes.
    r = event.Run({"sinusoids", "--count", "3", "--dt", "0.1", "--periods", "2", "--points", "5",
                   "--amplitude", "0.3", "-o", event.set, "--append"});
    ASSERT_EQ(r.status, 0) << r.err;
    AccelerogramColl expected;
    GenerateSinusoids(3, 0.1, 2, 5, 0.3, expected, nullptr);
    AccelerogramColl written = ReadSet(event.set);
    ASSERT_EQ(written.GetAccelerogramNum(), 6u);
    for (unsigned long k = 1; k <= 3; ++k) {
        const Accelerogram& got = written.GetAccelerogram(3 + k);
        EXPECT_EQ(std::string(got.Identifier), std::string(expected.GetAccelerogram(k).Identifier));
        ASSERT_EQ(got.Record.GetNP(), 9);
        EXPECT_DOUBLE_EQ(got.Record[3].GetY(), expected.GetAccelerogram(k).Record[3].GetY());
    }
    EXPECT_EQ(
        Listing(event.dir.Path("")),
        (std::vector<std::string>{"EV_E.ASC", "EV_N.ASC", "EV_Z.ASC", "rotated.acc", "set.acc"}));
}

} // namespace
