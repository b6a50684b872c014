#include "platform/core/ScriptedUserInterface.h"
#include "records/Accelerogram.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <string>

using seisplot::ScriptedUserInterface;
using seisplot::test::TempDir;

namespace {

// An ITACA header with the given extra lines, then `data` lines.
std::string Itaca(const std::string& headers, const std::string& data) {
    return "EVENT_NAME: ACME_2016_10_30.r2d.rac.acc.RA\n"
           "EVENT_ID: EMSC-20161030_0000029\n"
           "EVENT_DATE_YYYYMMDD: 20161030\n"
           "EVENT_TIME_HHMMSS: 064017\n"
           "EVENT_LATITUDE_DEGREE: 42.8322\n"
           "EVENT_LONGITUDE_DEGREE: 13.1107\n"
           "EVENT_DEPTH_KM: 9.2\n"
           "MAGNITUDE_W: 6.5\n"
           "MAGNITUDE_L: 6.1\n"
           "EPICENTRAL_DISTANCE_KM: 11.3\n"
           "DATA_TYPE: ACCELERATION\n"
           "NDATA: 4\n"
           "SAMPLING_INTERVAL_S: 0.005\n" +
           headers + "USER5: last user line\n" + data;
}

class ImportTest : public testing::Test {
protected:
    ImportTest() : m_scope(m_ui) {}

    ScriptedUserInterface m_ui;
    seisplot::ScopedUserInterface m_scope;
    TempDir m_dir;
    Accelerogram m_record;
    Units m_units;
};

} // namespace

TEST_F(ImportTest, TwoColumnFileGivesPointsAndSummary) {
    const std::string path = m_dir.Write("steady.txt",
                                         "# synthetic\n"
                                         "$ comment\n"
                                         "% comment\n"
                                         "\\ comment\n"
                                         "& comment\n"
                                         "\n"
                                         "0.00 0.0\n"
                                         "0.01   9.81\n"
                                         "0.02\t-4.905\n"
                                         "12.5\n" // a single number: skipped
                                         "0.03 2.0\r\n");
    Units units;
    units.SetL(1000.0); // m/s²
    ASSERT_EQ(m_record.ReadTXTPLT(0, "steady.txt", path.c_str(), units), 0);
    ASSERT_EQ(m_record.Record.GetNP(), 4);
    EXPECT_EQ(m_record.Record[1].GetY(), 9810.0);
    EXPECT_EQ(m_record.Record[3].GetX(), 0.03);
    // PGA 9.81 m/s² = 1 g; the last step 0.01 s.
    const char* summary = "PGA=   1.000  NP= 4  dT=  0.0100  Tmin =   0.000  Tmax=   0.030";
    EXPECT_EQ(m_record.Explanation, summary);
    ASSERT_EQ(m_ui.Messages().size(), 1u);
    EXPECT_EQ(m_ui.Messages()[0].text, summary);
    EXPECT_EQ(m_record.Identifier, "steady.txt");
    EXPECT_EQ(m_record.FileIdentifier, "steady.txt");
    EXPECT_EQ(m_record.GetName(), "steady.txt");
    EXPECT_EQ(m_record.Record.GetName(), "steady.txt");
    EXPECT_EQ(m_record.Record.XName, "t");
    EXPECT_EQ(m_record.Record.YName, "a");
    EXPECT_EQ(m_record.Record.XUnit, 12);
    EXPECT_EQ(m_record.Record.YUnit, 10);

    // The last sample moved to 0.035 s: the step is no longer constant.
    const std::string uneven = m_dir.Write("uneven.plt", "0.00 1\n0.01 1\n0.02 1\n0.035 1\n");
    Units mm;
    mm.SetL(1.0);
    ASSERT_EQ(m_record.ReadTXTPLT(1, "uneven.plt", uneven.c_str(), mm), 0);
    EXPECT_EQ(m_record.Explanation,
              "PGA=   0.000  NP= 4  dT= varying  Tmin =   0.000  Tmax=   0.035");
    EXPECT_EQ(m_ui.Messages().size(), 1u); // quiet: no summary shown
}

TEST_F(ImportTest, TwoColumnFileAsksForUnitsAndReportsMissingFiles) {
    const std::string path = m_dir.Write("cm.txt", "0 0\n0.5 98.1\n1.0 -49.05\n");
    m_ui.QueueUnits({true, {{"Length", "cm"}}});
    ASSERT_EQ(m_record.ReadTXTPLT(1, "cm.txt", path.c_str()), 0);
    ASSERT_EQ(m_ui.Messages().size(), 1u);
    EXPECT_EQ(m_ui.Messages()[0].text, "Set the units to be used to read from file");
    EXPECT_EQ(m_ui.UnitQuestions().size(), 1u);
    EXPECT_EQ(m_record.Record[1].GetY(), 981.0); // 98.1 cm/s²
    EXPECT_EQ(m_record.GetPga(), 0.1);

    m_ui.Clear();
    EXPECT_EQ(m_record.ReadTXTPLT(0, "none.txt", m_dir.Path("none.txt").c_str(), m_units), 1);
    ASSERT_EQ(m_ui.MessageTexts(), std::vector<CString>{"Unable to open text file"});

    // A file without a readable line imports as an empty record.
    const std::string empty = m_dir.Write("empty.txt", "# nothing here\n\n");
    Units units;
    EXPECT_EQ(m_record.ReadTXTPLT(1, "empty.txt", empty.c_str(), units), 0);
    EXPECT_EQ(m_record.Record.GetNP(), 0);
    EXPECT_EQ(m_record.Explanation.Find("NP= 0  dT=  0.0000"), 14);
}

TEST_F(ImportTest, ItacaFileFillsTheRecord) {
    // Data in cm/s²: 981 cm/s² is 1 g. The first datum is kept as read.
    const std::string path = m_dir.Write(
        "IT.ACME.HNE.ASC",
        Itaca("STREAM: HNE\nUNITS: cm/s^2\nEARTHQUAKE_BACKAZIMUTH_DEGREE: 30\nUSER1: one\n",
              "0.000000\n981.0\n-490.5\n0.5\n"));
    ASSERT_EQ(m_record.ReadASC(0, "IT.ACME.HNE.ASC", path.c_str()), 0);
    ASSERT_EQ(m_record.Record.GetNP(), 4);
    EXPECT_EQ(m_record.Record[0].GetY(), 0.0);
    EXPECT_EQ(m_record.Record[1].GetY(), 9810.0);
    EXPECT_EQ(m_record.Record[2].GetY(), -4905.0);
    EXPECT_EQ(m_record.Record[3].GetX(), 0.015);
    EXPECT_EQ(m_record.GetPga(), 1.0);
    const char* summary = "PGA=   1.000  NP= 4  dT=  0.0050  Tmin =   0.000  Tmax=   0.015";
    EXPECT_EQ(m_record.Explanation, summary);
    EXPECT_EQ(m_ui.MessageTexts(), std::vector<CString>{summary});
    // A plain file does not store the event name.
    EXPECT_EQ(m_record.EventName, "");
    EXPECT_EQ(m_record.EventId, "EMSC-20161030_0000029");
    EXPECT_EQ(m_record.EventDate, COleDateTime(2016, 10, 30, 0, 0, 0));
    EXPECT_EQ(m_record.EventTime, COleDateTime(1899, 12, 30, 6, 40, 17));
    EXPECT_EQ(m_record.IsSynthetic, 0);
    EXPECT_EQ(m_record.Latitude, 42.8322);
    EXPECT_EQ(m_record.Longitude, 13.1107);
    EXPECT_EQ(m_record.HypocentralDepth, 9.2);
    EXPECT_EQ(m_record.Mw, 6.5);
    EXPECT_EQ(m_record.Ml, 6.1);
    EXPECT_EQ(m_record.EpicentralDistance, 11.3);
    EXPECT_EQ(m_record.Backazimuth, 30.0);
    EXPECT_EQ(m_record.AngleWE, 0.0);
    EXPECT_EQ(m_record.IsVertical, 0);
    EXPECT_EQ(m_record.User1, "one");
    EXPECT_EQ(m_record.User5, "last user line");
    EXPECT_EQ(m_record.Identifier, "IT.ACME.HNE.ASC");
    EXPECT_EQ(m_record.GetName(), "IT.ACME.HNE.ASC");
}

TEST_F(ImportTest, DataUnitsAreReadByTheirLeadingCharacters) {
    const struct {
        const char* units;
        double mmPerS2;
    } cases[] = {{"cm/s^2", 10.0},
                 {"mm/s^2", 1.0},
                 {"m/s^2", 1000.0},
                 {"In/S^2", 25.4},
                 {"CM/S^2 (corrected)", 10.0}};
    for (const auto& c : cases) {
        const std::string path =
            m_dir.Write("u.ASC", Itaca(std::string("UNITS: ") + c.units + "\n", "0.0\n2\n2\n2\n"));
        ASSERT_EQ(m_record.ReadASC(1, "u.ASC", path.c_str()), 0) << c.units;
        EXPECT_EQ(m_record.Record[1].GetY(), 2.0 * c.mmPerS2) << c.units;
    }
    m_ui.Clear();
    const std::string bad = m_dir.Write("bad.ASC", Itaca("UNITS: g\n", "0.0\n2\n2\n2\n"));
    EXPECT_EQ(m_record.ReadASC(1, "bad.ASC", bad.c_str()), 1);
    EXPECT_EQ(m_ui.MessageTexts(), std::vector<CString>{"Unknown unit"});
}

TEST_F(ImportTest, DirectionFollowsTheFileClass) {
    const struct {
        const char* name;
        double angle;
        int vertical;
        double firstSign;
        double laterSign;
        const char* eventName;
    } cases[] = {
        // radial: 90 − 30; transverse: 180 − 30
        {"X.RA", 60.0, 0, 1.0, 1.0, "ACME_2016_10_30"},
        {"X.TR", 150.0, 0, 1.0, 1.0, "ACME_2016_10_30.r2d.rac.acc.RA"},
        {"X.UP", 0.0, 1, 1.0, 1.0, "ACME_2016_10_30.r2d.rac.acc.RA"},
        // SEW inverts every datum; SNS only the first one
        {"X.SEW", 0.0, 0, -1.0, -1.0, "ACME_2016_10_30.r2d.rac.acc.RA"},
        {"x.sns", 90.0, 0, -1.0, 1.0, "ACME_2016_10_30.r2d.rac.acc.RA"},
    };
    for (const auto& c : cases) {
        // The first datum is nonzero, so its sign shows; the block starts after USER5.
        const std::string path = m_dir.Write(
            c.name, Itaca("UNITS: mm/s^2\nEARTHQUAKE_BACKAZIMUTH_DEGREE: 30\n", "5\n7\n7\n7\n"));
        Accelerogram r;
        ASSERT_EQ(r.ReadASC(1, c.name, path.c_str()), 0) << c.name;
        EXPECT_EQ(r.AngleWE, c.angle) << c.name;
        EXPECT_EQ(r.IsVertical, c.vertical) << c.name;
        EXPECT_EQ(r.Record[0].GetY(), 5.0 * c.firstSign) << c.name;
        EXPECT_EQ(r.Record[2].GetY(), 7.0 * c.laterSign) << c.name;
        EXPECT_EQ(r.EventName, c.eventName) << c.name;
        EXPECT_EQ(r.EventId, "EMSC-20161030_0000029") << c.name;
    }
    // A stream code that names no direction is reported in a plain file only.
    const std::string odd = m_dir.Write("odd.ASC", Itaca("STREAM: HNQ\n", "0.0\n1\n1\n1\n"));
    m_record.AngleWE = 45.0;
    ASSERT_EQ(m_record.ReadASC(1, "odd.ASC", odd.c_str()), 0);
    EXPECT_EQ(m_ui.MessageTexts().back(),
              "Unable to detect signal direction. File odd.ASC. Assumed WE");
    EXPECT_EQ(m_record.AngleWE, 0.0);
    // A later backazimuth line overrides the stream in a radial file.
    const std::string later = m_dir.Write(
        "late.RA", Itaca("STREAM: HNN\nEARTHQUAKE_BACKAZIMUTH_DEGREE: 100\n", "0.0\n1\n1\n1\n"));
    ASSERT_EQ(m_record.ReadASC(1, "late.RA", later.c_str()), 0);
    EXPECT_EQ(m_record.AngleWE, -10.0);
    const std::string vertical = m_dir.Write("z.ASC", Itaca("STREAM: HNZ\n", "0.0\n1\n1\n1\n"));
    ASSERT_EQ(m_record.ReadASC(1, "z.ASC", vertical.c_str()), 0);
    EXPECT_EQ(m_record.IsVertical, 1);
}

TEST_F(ImportTest, DatesWithoutDayMakeASyntheticRecord) {
    const std::string path =
        m_dir.Write("s.ASC", Itaca("EVENT_DATE_YYYYMMDD: 00000000\nEVENT_TIME_HHMMSS: 250000\n",
                                   "0.0\n1\n1\n1\n"));
    ASSERT_EQ(m_record.ReadASC(1, "s.ASC", path.c_str()), 0);
    EXPECT_EQ(m_record.EventDate, COleDateTime(1000, 1, 1, 0, 0, 0));
    EXPECT_EQ(m_record.IsSynthetic, 1);
    EXPECT_EQ(m_record.EventTime.GetStatus(), COleDateTime::invalid);

    const std::string feb30 =
        m_dir.Write("f.ASC", Itaca("EVENT_DATE_YYYYMMDD: 20150230\n", "0.0\n1\n1\n1\n"));
    ASSERT_EQ(m_record.ReadASC(1, "f.ASC", feb30.c_str()), 0);
    EXPECT_EQ(m_record.EventDate.GetStatus(), COleDateTime::invalid);
    EXPECT_EQ(m_record.IsSynthetic, 0);
}

TEST_F(ImportTest, MalformedItacaFilesReportTheRow) {
    // The header of Itaca() has 14 lines before the extra ones, USER5 being the last.
    const struct {
        const char* why;
        std::string content;
        const char* message;
        bool cleared;
    } cases[] = {
        {"more data announced than present", Itaca("", "0.0\n1\n2\n"), "Error reading row 18",
         true},
        {"a datum that is not a number", Itaca("", "0.0\n1\nabc\n3\n"), "Error reading row 17",
         true},
        {"an unreadable latitude", Itaca("EVENT_LATITUDE_DEGREE: north\n", "0.0\n1\n1\n1\n"),
         "Error reading row 14", true},
        {"a date without digits", Itaca("EVENT_DATE_YYYYMMDD: today\n", "0.0\n1\n1\n1\n"),
         "Error reading row 14", true},
        {"not an acceleration", Itaca("DATA_TYPE: VELOCITY\n", "0.0\n1\n1\n1\n"),
         "Not an acceleration signal", false},
        {"a header only", "NDATA: 3\nSAMPLING_INTERVAL_S: 0.01\n",
         "Error no data read. First datum MUST be 0.000", true},
        {"data before the count", "SAMPLING_INTERVAL_S: 0.01\n0.000\n1\n", "Error reading row 2",
         true},
        {"a step of zero", "NDATA: 2\nSAMPLING_INTERVAL_S: 0\n0.000\n1\n", "Error reading row 2",
         true},
    };
    for (const auto& c : cases) {
        m_ui.Clear();
        m_record.Record.Clear();
        m_record.Record.AddPoint(9.0, 9.0);
        const std::string path = m_dir.Write("bad.ASC", c.content);
        EXPECT_EQ(m_record.ReadASC(0, "bad.ASC", path.c_str()), 1) << c.why;
        EXPECT_EQ(m_ui.MessageTexts(), std::vector<CString>{c.message}) << c.why;
        if (c.cleared) {
            EXPECT_EQ(m_record.Record.GetNP(), 0) << c.why;
        }
    }
    m_ui.Clear();
    EXPECT_EQ(m_record.ReadASC(0, "x.ASC", m_dir.Path("missing.ASC").c_str()), 1);
    EXPECT_EQ(m_ui.MessageTexts(), std::vector<CString>{"Unable to open ASC file"});
}

TEST_F(ImportTest, HostileInputEndsInAMessageNotACrash) {
    // A count of two billion with three data lines fails at the end of the file, having
    // stored only what was there.
    const std::string huge =
        m_dir.Write("huge.ASC", "NDATA: 2000000000\nSAMPLING_INTERVAL_S: 0.01\n0.000\n1\n2\n");
    EXPECT_EQ(m_record.ReadASC(1, "huge.ASC", huge.c_str()), 1);
    EXPECT_EQ(m_ui.MessageTexts().back(), "Error reading row 6");

    std::string garbage;
    for (int i = 0; i < 20000; ++i) {
        garbage += static_cast<char>((i * 7919) % 256);
    }
    const std::string binary = m_dir.Write("garbage.ASC", garbage);
    EXPECT_EQ(m_record.ReadASC(1, "garbage.ASC", binary.c_str()), 1);
    const std::string binaryText = m_dir.Write("garbage.txt", garbage);
    Units units;
    EXPECT_EQ(m_record.ReadTXTPLT(1, "garbage.txt", binaryText.c_str(), units), 0);

    // A line far longer than any buffer, and CRLF line ends with non-ASCII text.
    const std::string longLine = m_dir.Write(
        "long.ASC", "USER1: " + std::string(1 << 20, 'x') +
                        "\r\nNDATA: 2\r\nSAMPLING_INTERVAL_S: 0.01\r\nUSER5: \xC3\xA0\r\n"
                        "0.000\r\n5.0\r\n");
    EXPECT_EQ(m_record.ReadASC(1, "long.ASC", longLine.c_str()), 0);
    EXPECT_EQ(m_record.User1.GetLength(), 1 << 20);
    EXPECT_EQ(m_record.User5, "\xC3\xA0");
    EXPECT_EQ(m_record.Record.GetNP(), 2);
}

TEST_F(ImportTest, PickingAFileDispatchesOnItsExtension) {
    const std::string asc = m_dir.Write("pick.RA", Itaca("", "0.0\n1\n1\n1\n"));
    m_ui.QueueFiles({CString(asc.c_str())});
    ASSERT_EQ(m_record.ReadFromFile(1), 0);
    EXPECT_EQ(m_record.Identifier, "pick.RA");
    ASSERT_EQ(m_ui.FileRequests().size(), 1u);
    EXPECT_TRUE(m_ui.FileRequests()[0].open);
    EXPECT_EQ(m_ui.FileRequests()[0].filter,
              "ITACA Ascii ASC (*.asc)|*.asc|Ascii TXT (*.txt)|*.txt|ITACA Ascii ASC (*.RA)|*.RA|"
              "ITACA Ascii ASC (*.TR)|*.TR|ITACA Ascii ASC (*.UP)|*.UP|Ascii PLT (*.plt)|*.plt|"
              "All file extensions (*.*)|*.*||");
    EXPECT_EQ(m_ui.FileRequests()[0].defaultExtension, "*.txt; *.plt");

    const std::string other = m_dir.Write("pick.dat", "0 0\n");
    m_ui.QueueFiles({CString(other.c_str())});
    EXPECT_EQ(m_record.ReadFromFile(1), 1);
    EXPECT_EQ(m_ui.MessageTexts().back(), "Unrecognized file extension");

    m_ui.QueueCancelFiles();
    EXPECT_EQ(m_record.ReadFromFile(1), 1);

    const std::string txt = m_dir.Write("pick.TXT", "0 1\n1 2\n");
    m_ui.QueueFiles({CString(txt.c_str())});
    m_ui.QueueUnits({true, {{"Length", "mm"}}});
    ASSERT_EQ(m_record.ReadFromFile(1), 0);
    EXPECT_EQ(m_record.Record[1].GetY(), 2.0);
}
