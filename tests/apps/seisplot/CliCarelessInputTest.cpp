// The built program under hostile and careless input: work bounded before it starts, data
// refused or warned of with the file and row, inputs never destroyed, results as asked.

#include "CliFixtures.h"

#include <gmock/gmock.h>

#include <sys/stat.h>

using seisplot::test::CliResult;
using seisplot::test::EventSet;
using seisplot::test::ItacaText;
using seisplot::test::ReadSet;
using seisplot::test::TwoColumnText;
using testing::HasSubstr;

namespace {

const char* const kHelp = "Run 'seisplot ";

// Every row is refused with its status and exact first error line, and the set is untouched.
TEST(CliCareless, RefusalsNameTheCauseAndWriteNothing) {
    EventSet event;
    const auto& dir = event.dir;
    const std::string set = event.set;
    // The fourth datum (row 14: ten header lines come first) is not a number.
    std::string nan = ItacaText("EV2", "E", 100, 20);
    size_t at = nan.find("USER5:");
    for (int line = 0; line < 4; ++line) {
        at = nan.find('\n', at) + 1;
    }
    nan.replace(at, nan.find('\n', at) - at, "nan");
    std::string ndata = ItacaText("EV2", "E", 100, 20);
    ndata.replace(ndata.find("NDATA: 20"), 9, "NDATA: 0");
    const std::string reversed = "0.02 1\n0.01 2\n0.00 3\n";
    const std::string spectra = dir.Path("set.spc");
    ASSERT_EQ(
        event.Run({"envelope", set, "--tmax", "0.2", "--dt", "0.1", "--spectra", spectra}).status,
        0);
    const std::string joined = dir.Write("joined.acc", dir.Read("set.acc") + dir.Read("set.acc"));
    std::filesystem::create_directory(dir.Path("folder.txt"));
    const std::string bytes = dir.Read("set.acc");

    const struct {
        std::vector<std::string> args;
        int status;
        std::string message; // the first line of the error stream
    } rows[] = {
        {{"code", "ec8", "--ag", "0.25", "--soil", "C", "--tmax", "10", "--dt", "1e-9"},
         2,
         "--dt: '1e-9' is not a period step in s (0.0001 to 1)"},
        {{"spectrum", set, "1", "--damping-max", "0.5", "--damping-step", "1e-9"},
         2,
         "--damping-step 1e-09 up to --damping-max 0.5 asks for 500000000 dampings; at most 100"},
        {{"spectrum", set, "1", "--tmax", "100", "--dt", "0.0001"},
         2,
         "--tmax 100 with --dt 0.0001 asks for 1000001 periods; at most 32767 (a larger --dt or "
         "a smaller --tmax)"},
        {{"spectrum", set, "1", "--tmax", "1e9"},
         2,
         "--tmax: '1e9' is not a last period in s (0.1 to 100)"},
        {{"spectrum", set, "1", "--tmax", "inf"},
         2,
         "--tmax: 'inf' is not a last period in s (0.1 to 100)"},
        {{"report", set, "1", "--tmax", "1e9"},
         2,
         "--tmax: '1e9' is not a last period in s (0.1 to 100)"},
        {{"envelope", set, "--tmax", "1", "--dt", "0.1", "--percentile", "nan"},
         2,
         "--percentile: 'nan' is not a percentile (50 to 100)"},
        {{"envelope", set, "--tmax", "1", "--dt", "0.1", "--pairs", "--direction", "nan"},
         2,
         "--direction: 'nan' is not a finite number"},
        {{"rotate", set, "1", "--angle", "nan", "-o", dir.Path("r.acc")},
         2,
         "--angle: 'nan' is not a finite number"},
        {{"sinusoids", "--count", "10000", "--periods", "100", "--points", "10000", "-o",
          dir.Path("s.acc")},
         2,
         "--count 10000 records of --periods 100 times --points 10000 ask for 9999010000 points; "
         "at most 10000000"},
        {{"plot", set, "1", "-o", dir.Path("a.png"), "--size", "20000x20000"},
         2,
         "--size 20000x20000: give WIDTHxHEIGHT in pixels, each 100 to 8000"},
        {{"show", set, "0"}, 2, "N: '0' is not a number from 1"},
        {{"show", set, "4"}, 1, "there is no record 4 in " + set + " (it holds 3 records)"},
        {{"import", dir.Write("NAN.ASC", nan), "-o", set, "--append"},
         1,
         "cannot import " + dir.Path("NAN.ASC") +
             ": row 14: the datum must be a finite number, not nan; " + set + " left as it was"},
        {{"import", dir.Write("ZERO.ASC", ndata), "-o", set},
         1,
         "cannot import " + dir.Path("ZERO.ASC") +
             ": row 6: NDATA is 0; the number of data must be positive; " + set + " not written"},
        {{"import", dir.Write("back.txt", reversed), "-o", set, "--units", "m"},
         1,
         "cannot import " + dir.Path("back.txt") +
             ": row 2: the time 0.01 s does not come after 0.02 s of row 1; the times must "
             "increase; " +
             set + " not written"},
        {{"import", dir.Write("empty.txt", ""), "-o", set, "--units", "m"},
         1,
         "cannot import " + dir.Path("empty.txt") + ": it is empty; " + set + " not written"},
        {{"import", dir.Write("notes.txt", "# only a comment\n\n"), "-o", set, "--units", "m"},
         1,
         "cannot import " + dir.Path("notes.txt") + ": no line holds two numbers, a time and an " +
             "acceleration; " + set + " not written"},
        {{"import", dir.Write("commas.txt", "0.00,1.5\n0.01,1.7\n"), "-o", set, "--units", "m"},
         1,
         "cannot import " + dir.Path("commas.txt") + ": no line holds two numbers, a time and an " +
             "acceleration (the values must be separated by blanks, not commas); " + set +
             " not written"},
        {{"import", dir.Write("one.txt", "1.5\n1.7\n"), "-o", set, "--units", "m"},
         1,
         "cannot import " + dir.Path("one.txt") + ": no line holds two numbers, a time and an " +
             "acceleration; " + set + " not written"},
        {{"import", dir.Path("folder.txt"), "-o", set, "--units", "m"},
         1,
         "cannot import " + dir.Path("folder.txt") + ": it is a folder; " + set + " not written"},
        {{"import", dir.Path("EV_E.ASC"), "-o", dir.Path("EV_E.ASC")},
         2,
         "-o " + dir.Path("EV_E.ASC") + " is a record file this command reads; writing it would " +
             "destroy it (nothing written)"},
        {{"report", set, "1", "-o", set},
         2,
         "-o " + set + " is the record set this command reads; writing it would destroy it " +
             "(nothing written)"},
        {{"envelope", set, "--tmax", "1", "--dt", "0.1", "--plot", set + ".png", "--spectra", set},
         2,
         "--spectra " + set + " is the record set this command reads; writing it would destroy " +
             "it (nothing written)"},
        {{"list", joined},
         1,
         "cannot read the record set " + joined + ": " + std::to_string(bytes.size()) +
             " bytes follow its end (two files joined?)"},
        {{"list", spectra},
         1,
         "cannot read the record set " + spectra + ": it is a spectra archive"},
        {{"report-spectrum", set, "1"},
         1,
         "cannot read the spectra archive " + set + ": it is a record set"},
        {{"list", dir.Path("folder.txt")},
         1,
         "cannot read the record set " + dir.Path("folder.txt") + ": it is a folder"},
        {{"list", dir.Path("none.acc")},
         1,
         "cannot read the record set " + dir.Path("none.acc") + ": no such file"},
        {{"envelope", set, "--modes", dir.Path("empty.txt")},
         1,
         "cannot read the modes file " + dir.Path("empty.txt") + ": it is empty"},
    };
    for (const auto& row : rows) {
        const CliResult r = event.Run(row.args);
        EXPECT_EQ(r.status, row.status) << testing::PrintToString(row.args) << r.err;
        EXPECT_EQ(r.err.substr(0, r.err.find('\n')), "seisplot: " + row.message)
            << testing::PrintToString(row.args);
        EXPECT_EQ(r.out, "") << testing::PrintToString(row.args);
        if (row.status == 2) {
            EXPECT_THAT(r.err, HasSubstr(kHelp));
        }
        EXPECT_EQ(dir.Read("set.acc"), bytes) << testing::PrintToString(row.args);
    }
    EXPECT_EQ(dir.Read("EV_E.ASC"), ItacaText("EV1", "E", 200));
    for (const char* written : {"r.acc", "s.acc", "a.png", "set.acc.png"}) {
        EXPECT_FALSE(std::filesystem::exists(dir.Path(written))) << written;
    }
}

// What the importers skip or assume is told, and the record is what the file says.
TEST(CliCareless, ImportWarnsOfWhatItSkipsAndAssumes) {
    EventSet event;
    const auto& dir = event.dir;
    const std::string set = dir.Path("new.acc");
    std::string noUnits = ItacaText("EV2", "E", 100, 20);
    noUnits.erase(noUnits.find("UNITS:"), std::string("UNITS: cm/s^2\n").size());
    std::string text = TwoColumnText(200, 0.01, 100);
    text.insert(text.find("\n", text.find("\n") + 1) + 1, "header in the middle\n");
    std::string shifted;
    for (int i = 0; i < 200; ++i) {
        char line[64];
        std::snprintf(line, sizeof line, "%.4f %.6E\n", 30.0 + i * 0.01,
                      seisplot::test::Signal(i * 0.01, 100, 0.3));
        shifted += line;
    }
    const std::string plain = TwoColumnText(200, 0.01, 100);
    const std::string marked = "\xEF\xBB\xBF" + plain.substr(plain.find('\n') + 1);

    const CliResult r = event.Run({"import", dir.Write("NOUNITS.ASC", noUnits),
                                   dir.Write("text.txt", text), dir.Write("late.txt", shifted),
                                   dir.Write("bom.txt", marked), "-o", set, "--units", "cm"});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.err, "seisplot: warning: " + dir.Path("NOUNITS.ASC") +
                         ": no UNITS line; the data are taken as m/s^2\n"
                         "seisplot: warning: " +
                         dir.Path("text.txt") +
                         ": row 3 'header in the middle' is not two numbers and was skipped\n"
                         "seisplot: warning: " +
                         dir.Path("late.txt") +
                         ": the record starts at t = 30 s, not at 0; its spectra would miss its "
                         "start (--rebase-time starts it at 0)\n");
    AccelerogramColl records = ReadSet(set);
    ASSERT_EQ(records.GetAccelerogramNum(), 4u);
    EXPECT_EQ(records.GetAccelerogram(2).Record.GetNP(), 200);
    // The byte-order mark hides no sample: the first line is the sample at 0.
    const PCurve& bom = records.GetAccelerogram(4).Record;
    ASSERT_EQ(bom.GetNP(), 200);
    EXPECT_EQ(bom[0].GetX(), 0.0);
    EXPECT_EQ(bom[0].GetY(), records.GetAccelerogram(2).Record[0].GetY());

    // Rebased, the late record has the spectrum of the same samples starting at 0.
    const std::string rebased = dir.Path("rebased.acc");
    const CliResult again = event.Run({"import", dir.Path("late.txt"), dir.Path("bom.txt"), "-o",
                                       rebased, "--units", "cm", "--rebase-time"});
    ASSERT_EQ(again.status, 0) << again.err;
    EXPECT_EQ(again.err, "");
    AccelerogramColl both = ReadSet(rebased);
    const PCurve& late = both.GetAccelerogram(1).Record;
    EXPECT_EQ(late[0].GetX(), 0.0);
    EXPECT_NEAR(late[199].GetX(), 1.99, 1e-12);
    EXPECT_THAT(std::string(both.GetAccelerogram(1).Explanation),
                HasSubstr("Tmin =   0.000  Tmax=   1.990"));
    const nlohmann::json a = event.Json({"spectrum", rebased, "1", "--tmax", "1", "--json"});
    const nlohmann::json b = event.Json({"spectrum", rebased, "2", "--tmax", "1", "--json"});
    ASSERT_EQ(a["curves"][0]["points"].size(), 101u);
    for (size_t i = 1; i < 101; i += 25) {
        EXPECT_NEAR(a["curves"][0]["points"][i]["sa_g"].get<double>(),
                    b["curves"][0]["points"][i]["sa_g"].get<double>(), 1e-9)
            << i;
        EXPECT_GT(a["curves"][0]["points"][i]["sa_g"].get<double>(), 0.001) << i;
    }
}

// Results as asked: the last period asked for is in every grid; rotate composes one event.
TEST(CliCareless, GridsEndAtTheLastPeriodAndRotationsStayWithinAnEvent) {
    EventSet event;
    const std::string other = event.dir.Write("EV2_E.ASC", ItacaText("EV2", "E", 120, 1001));
    ASSERT_EQ(event.Run({"import", other, "-o", event.set, "--append", "--quiet"}).status, 0);
    const nlohmann::json spectrum =
        event.Json({"spectrum", event.set, "1", "--tmax", "3", "--dt", "0.1", "--json"});
    ASSERT_EQ(spectrum["curves"][0]["points"].size(), 31u);
    EXPECT_NEAR(spectrum["curves"][0]["points"][30]["period_s"].get<double>(), 3.0, 1e-12);
    const nlohmann::json code = event.Json(
        {"code", "ec8", "--ag", "0.2", "--soil", "B", "--tmax", "3", "--dt", "0.1", "--json"});
    EXPECT_EQ(code["points"].size(), 31u);
    const nlohmann::json envelope = event.Json(
        {"envelope", event.set, "--records", "1", "--tmax", "3", "--dt", "0.1", "--json"});
    EXPECT_EQ(envelope["points"].size(), 31u);
    const CliResult report = event.Run({"report", event.set, "1"});
    EXPECT_THAT(report.out, HasSubstr("\n   2.000      "));

    const std::string rotated = event.dir.Path("rotated.acc");
    CliResult r = event.Run({"rotate", event.set, "1", "4", "--angle", "45", "-o", rotated});
    EXPECT_EQ(r.status, 2);
    EXPECT_EQ(r.err.substr(0, r.err.find('\n')),
              "seisplot: records 1 and 4 belong to different events ('EV1' and 'EV2'); give "
              "--force to compose them anyway");
    EXPECT_FALSE(std::filesystem::exists(rotated));
    r = event.Run({"rotate", event.set, "1", "4", "--angle", "45", "-o", rotated, "--force"});
    EXPECT_EQ(r.status, 1) << r.err; // both lie along WE: the rotation itself refuses them
    const std::string fine =
        event.dir.Write("EV1_FINE_N.ASC", ItacaText("EV1", "N", 120, 2001, 0.005));
    ASSERT_EQ(event.Run({"import", fine, "-o", event.set, "--append", "--quiet"}).status, 0);
    r = event.Run({"rotate", event.set, "1", "5", "--angle", "45", "-o", rotated});
    EXPECT_EQ(r.status, 2);
    EXPECT_EQ(r.err.substr(0, r.err.find('\n')),
              "seisplot: records 1 and 5 are not sampled alike (steps 0.01 s and 0.005 s); give "
              "--force to compose them anyway");
}

// Writes go through links to their target, keep its permissions and refuse what they must
// not replace.
TEST(CliCareless, WritesRespectLinksPermissionsAndSpecialFiles) {
    EventSet event;
    const auto& dir = event.dir;
    const std::string target = dir.Path("target.acc");
    std::filesystem::copy_file(event.set, target);
    ::chmod(target.c_str(), 0600);
    const std::string link = dir.Path("link.acc");
    std::filesystem::create_symlink("target.acc", link);
    const std::string more = dir.Write("EV2_E.ASC", ItacaText("EV2", "E", 120));

    CliResult r = event.Run({"import", more, "-o", link, "--append", "--quiet"});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(ReadSet(target).GetAccelerogramNum(), 4u);
    struct stat status {};
    ASSERT_EQ(::stat(target.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0600u);

    ::chmod(target.c_str(), 0444);
    const std::string before = dir.Read("target.acc");
    r = event.Run({"sinusoids", "--count", "2", "-o", link});
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.err, "seisplot: cannot write " + link + ": it is read-only\n");
    EXPECT_EQ(dir.Read("target.acc"), before);

    const std::string fifo = dir.Path("pipe.acc");
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0644), 0);
    r = event.Run({"sinusoids", "--count", "2", "-o", fifo});
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.err, "seisplot: cannot write " + fifo + ": it is not a regular file\n");
    EXPECT_TRUE(std::filesystem::is_fifo(fifo));
}

} // namespace
