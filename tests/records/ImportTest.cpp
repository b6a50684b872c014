#include "platform/core/ScriptedUserInterface.h"
#include "records/Accelerogram.h"
#include "records/ImportFiles.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using seisplot::ScriptedUserInterface;
using seisplot::test::TempDir;

namespace {

// An ITACA header of 13 lines, the given extra lines, USER5, then `data` lines.
std::string Itaca(const std::string& headers, const std::string& data) {
    return "EVENT_NAME: ACME_2016_10_30.r2d.rac.acc.RA\nEVENT_ID: EMSC-20161030_0000029\n"
           "EVENT_DATE_YYYYMMDD: 20161030\nEVENT_TIME_HHMMSS: 064017\n"
           "EVENT_LATITUDE_DEGREE: 42.8322\nEVENT_LONGITUDE_DEGREE: 13.1107\n"
           "EVENT_DEPTH_KM: 9.2\nMAGNITUDE_W: 6.5\nMAGNITUDE_L: 6.1\n"
           "EPICENTRAL_DISTANCE_KM: 11.3\nDATA_TYPE: ACCELERATION\nNDATA: 4\n"
           "SAMPLING_INTERVAL_S: 0.005\n" +
           headers + "USER5: last user line\n" + data;
}

const std::string kOnes = "0.0\n1\n1\n1\n";

class ImportTest : public testing::Test {
protected:
    ImportTest() : m_scope(m_ui) {}

    // Writes `content` to a file `name` and reads it into m_record.
    int ReadAsc(const char* name, const std::string& content, int quiet = 1) {
        return m_record.ReadASC(quiet, name, m_dir.Write(name, content).c_str());
    }
    int ReadText(const char* name, const std::string& content, Units& units, int quiet = 1) {
        return m_record.ReadTXTPLT(quiet, name, m_dir.Write(name, content).c_str(), units);
    }

    ScriptedUserInterface m_ui;
    seisplot::ScopedUserInterface m_scope;
    TempDir m_dir;
    Accelerogram m_record;
};

} // namespace

TEST_F(ImportTest, TwoColumnFiles) {
    // Comment lines of every kind, a blank line, a single number and CRLF are skipped.
    Units metres;
    metres.SetL(1000.0); // m/s²
    ASSERT_EQ(ReadText("steady.txt",
                       "# synthetic\n$ c\n% c\n\\ c\n& c\n\n0.00 0.0\n0.01   9.81\n0.02\t-4.905\n"
                       "12.5\n0.03 2.0\r\n",
                       metres, 0),
              0);
    ASSERT_EQ(m_record.Record.GetNP(), 4);
    EXPECT_EQ(m_record.Record[1].GetY(), 9810.0);
    EXPECT_EQ(m_record.Record[3].GetX(), 0.03);
    // PGA 9.81 m/s² = 1 g; the last step 0.01 s.
    const char* summary = "PGA=   1.000  NP= 4  dT=  0.0100  Tmin =   0.000  Tmax=   0.030";
    EXPECT_EQ(m_record.Explanation, summary);
    EXPECT_EQ(m_ui.MessageTexts(), std::vector<CString>{summary});
    EXPECT_EQ(m_record.FileIdentifier, "steady.txt");
    EXPECT_EQ(m_record.Record.XUnit, seisplot::UnitKind::Time);
    EXPECT_EQ(m_record.Record.YUnit, seisplot::UnitKind::Acceleration);

    // The last sample moved to 0.035 s: the step is no longer constant. Quiet: no summary.
    Units mm;
    mm.SetL(1.0);
    ASSERT_EQ(ReadText("uneven.plt", "0.00 1\n0.01 1\n0.02 1\n0.035 1\n", mm), 0);
    EXPECT_EQ(m_record.Explanation,
              "PGA=   0.000  NP= 4  dT= varying  Tmin =   0.000  Tmax=   0.035");
    EXPECT_EQ(m_ui.Messages().size(), 1u);

    // Without units the importer asks for them.
    m_ui.Clear();
    const std::string cm = m_dir.Write("cm.txt", "0 0\n0.5 98.1\n1.0 -49.05\n");
    m_ui.QueueUnits({true, {{"Length", "cm"}}});
    ASSERT_EQ(m_record.ReadTXTPLT(1, "cm.txt", cm.c_str()), 0);
    EXPECT_EQ(m_ui.MessageTexts(),
              std::vector<CString>{"Set the units to be used to read from file"});
    EXPECT_EQ(m_ui.UnitQuestions().size(), 1u);
    EXPECT_EQ(m_record.GetPga(), 0.1); // 98.1 cm/s²

    m_ui.Clear();
    EXPECT_EQ(m_record.ReadTXTPLT(0, "none.txt", m_dir.Path("none.txt").c_str(), mm), 1);
    EXPECT_EQ(m_ui.MessageTexts(), std::vector<CString>{"Unable to open text file"});

    // A file without a readable line imports as an empty record.
    EXPECT_EQ(ReadText("empty.txt", "# nothing here\n\n", mm), 0);
    EXPECT_EQ(m_record.Record.GetNP(), 0);
    EXPECT_EQ(m_record.Explanation.Find("NP= 0  dT=  0.0000"), 14);
}

TEST_F(ImportTest, ItacaFileFillsTheRecord) {
    // Data in cm/s²: 981 cm/s² is 1 g. The first datum is kept as read.
    ASSERT_EQ(ReadAsc("IT.ACME.HNE.ASC",
                      Itaca("STREAM: HNE\nUNITS: cm/s^2\nEARTHQUAKE_BACKAZIMUTH_DEGREE: 30\n"
                            "USER1: one\n",
                            "0.000000\n981.0\n-490.5\n0.5\n"),
                      0),
              0);
    ASSERT_EQ(m_record.Record.GetNP(), 4);
    EXPECT_EQ(m_record.Record[1].GetY(), 9810.0);
    EXPECT_EQ(m_record.Record[2].GetY(), -4905.0);
    EXPECT_EQ(m_record.Record[3].GetX(), 0.015);
    const char* summary = "PGA=   1.000  NP= 4  dT=  0.0050  Tmin =   0.000  Tmax=   0.015";
    EXPECT_EQ(m_record.Explanation, summary);
    EXPECT_EQ(m_ui.MessageTexts(), std::vector<CString>{summary});
    EXPECT_EQ(m_record.EventName, ""); // a plain file does not store the event name
    EXPECT_EQ(m_record.EventId, "EMSC-20161030_0000029");
    EXPECT_EQ(m_record.EventDate, COleDateTime(2016, 10, 30, 0, 0, 0));
    EXPECT_EQ(m_record.EventTime, COleDateTime(1899, 12, 30, 6, 40, 17));
    const Accelerogram& r = m_record;
    EXPECT_EQ((std::vector<double>{r.Latitude, r.Longitude, r.HypocentralDepth, r.Mw, r.Ml,
                                   r.EpicentralDistance, r.Backazimuth, r.AngleWE}),
              (std::vector<double>{42.8322, 13.1107, 9.2, 6.5, 6.1, 11.3, 30.0, 0.0}));
    EXPECT_EQ(m_record.IsSynthetic, 0);
    EXPECT_EQ(m_record.IsVertical, 0);
    EXPECT_EQ(m_record.User1, "one");
    EXPECT_EQ(m_record.User5, "last user line");
    EXPECT_EQ(m_record.Identifier, "IT.ACME.HNE.ASC");
    EXPECT_EQ(m_record.GetName(), "IT.ACME.HNE.ASC");
}

TEST_F(ImportTest, DataUnitsAreReadByTheirLeadingCharacters) {
    const struct {
        const char* units;
        double mmPerS2; // 0: refused
    } cases[] = {{"cm/s^2", 10.0},
                 {"mm/s^2", 1.0},
                 {"m/s^2", 1000.0},
                 {"In/S^2", 25.4},
                 {"CM/S^2 (corrected)", 10.0},
                 {"g", 0.0}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.units);
        m_ui.Clear();
        const int refused =
            ReadAsc("u.ASC", Itaca("UNITS: " + std::string(c.units) + "\n", "0.0\n2\n2\n2\n"));
        if (c.mmPerS2 == 0.0) {
            EXPECT_EQ(refused, 1);
            EXPECT_EQ(m_ui.MessageTexts(), std::vector<CString>{"Unknown unit"});
        } else {
            ASSERT_EQ(refused, 0);
            EXPECT_EQ(m_record.Record[1].GetY(), 2.0 * c.mmPerS2);
        }
    }
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
        // radial: 90 − 30; transverse: 180 − 30. Only a radial file shortens the event name.
        {"X.RA", 60.0, 0, 1.0, 1.0, "ACME_2016_10_30"},
        {"X.TR", 150.0, 0, 1.0, 1.0, "ACME_2016_10_30.r2d.rac.acc.RA"},
        {"X.UP", 0.0, 1, 1.0, 1.0, "ACME_2016_10_30.r2d.rac.acc.RA"},
        // SEW inverts every datum; SNS only the first one
        {"X.SEW", 0.0, 0, -1.0, -1.0, "ACME_2016_10_30.r2d.rac.acc.RA"},
        {"x.sns", 90.0, 0, -1.0, 1.0, "ACME_2016_10_30.r2d.rac.acc.RA"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        m_record = Accelerogram();
        // The first datum is nonzero, so its sign shows.
        ASSERT_EQ(ReadAsc(c.name, Itaca("UNITS: mm/s^2\nEARTHQUAKE_BACKAZIMUTH_DEGREE: 30\n",
                                        "5\n7\n7\n7\n")),
                  0);
        const Accelerogram& r = m_record;
        EXPECT_EQ(r.AngleWE, c.angle);
        EXPECT_EQ(r.IsVertical, c.vertical);
        EXPECT_EQ(r.Record[0].GetY(), 5.0 * c.firstSign);
        EXPECT_EQ(r.Record[2].GetY(), 7.0 * c.laterSign);
        EXPECT_EQ(r.EventName, c.eventName);
    }
    // A stream code that names no direction is reported in a plain file only.
    m_record.AngleWE = 45.0;
    ASSERT_EQ(ReadAsc("odd.ASC", Itaca("STREAM: HNQ\n", kOnes)), 0);
    EXPECT_EQ(m_ui.MessageTexts().back(),
              "Unable to detect signal direction. File odd.ASC. Assumed WE");
    EXPECT_EQ(m_record.AngleWE, 0.0);
    // A later backazimuth line overrides the stream in a radial file: 90 − 100.
    ASSERT_EQ(ReadAsc("late.RA", Itaca("STREAM: HNN\nEARTHQUAKE_BACKAZIMUTH_DEGREE: 100\n", kOnes)),
              0);
    EXPECT_EQ(m_record.AngleWE, -10.0);
    ASSERT_EQ(ReadAsc("z.ASC", Itaca("STREAM: HNZ\n", kOnes)), 0);
    EXPECT_EQ(m_record.IsVertical, 1);
}

TEST_F(ImportTest, DatesWithoutDayMakeASyntheticRecord) {
    ASSERT_EQ(ReadAsc("s.ASC",
                      Itaca("EVENT_DATE_YYYYMMDD: 00000000\nEVENT_TIME_HHMMSS: 250000\n", kOnes)),
              0);
    EXPECT_EQ(m_record.EventDate, COleDateTime(1000, 1, 1, 0, 0, 0));
    EXPECT_EQ(m_record.IsSynthetic, 1);
    EXPECT_EQ(m_record.EventTime.GetStatus(), COleDateTime::invalid);

    ASSERT_EQ(ReadAsc("f.ASC", Itaca("EVENT_DATE_YYYYMMDD: 20150230\n", kOnes)), 0);
    EXPECT_EQ(m_record.EventDate.GetStatus(), COleDateTime::invalid);
    EXPECT_EQ(m_record.IsSynthetic, 0);
}

TEST_F(ImportTest, MalformedItacaFilesReportTheRow) {
    // Itaca() has 14 header lines when given no extra ones, USER5 being the last.
    const struct {
        std::string content;
        const char* message;
    } cases[] = {
        {Itaca("", "0.0\n1\n2\n"), "Error reading row 18"},      // fewer data than announced
        {Itaca("", "0.0\n1\nabc\n3\n"), "Error reading row 17"}, // a datum not a number
        {Itaca("EVENT_LATITUDE_DEGREE: north\n", kOnes), "Error reading row 14"},
        {Itaca("EVENT_DATE_YYYYMMDD: today\n", kOnes), "Error reading row 14"},
        {Itaca("DATA_TYPE: VELOCITY\n", kOnes), "Not an acceleration signal"},
        {"NDATA: 3\nSAMPLING_INTERVAL_S: 0.01\n", "Error no data read. First datum MUST be 0.000"},
        {"SAMPLING_INTERVAL_S: 0.01\n0.000\n1\n", "Error reading row 2"}, // data before count
        {"NDATA: 2\nSAMPLING_INTERVAL_S: 0\n0.000\n1\n", "Error reading row 2"}, // step 0
        // Two billion announced, three data lines: it fails at the end of the file.
        {"NDATA: 2000000000\nSAMPLING_INTERVAL_S: 0.01\n0.000\n1\n2\n", "Error reading row 6"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << "case " << &c - cases);
        m_ui.Clear();
        m_record.Record.Clear();
        m_record.Record.AddPoint(9.0, 9.0);
        EXPECT_EQ(ReadAsc("bad.ASC", c.content, 0), 1);
        EXPECT_EQ(m_ui.MessageTexts(), std::vector<CString>{c.message});
        EXPECT_EQ(m_record.Record.GetNP(), 0);
    }
    m_ui.Clear();
    EXPECT_EQ(m_record.ReadASC(0, "x.ASC", m_dir.Path("missing.ASC").c_str()), 1);
    EXPECT_EQ(m_ui.MessageTexts(), std::vector<CString>{"Unable to open ASC file"});
}

TEST_F(ImportTest, LongLinesCrlfAndNonAsciiText) {
    // A line far longer than any buffer, and CRLF line ends with non-ASCII text.
    EXPECT_EQ(
        ReadAsc("long.ASC", "USER1: " + std::string(1 << 20, 'x') +
                                "\r\nNDATA: 2\r\nSAMPLING_INTERVAL_S: 0.01\r\nUSER5: \xC3\xA0\r\n"
                                "0.000\r\n5.0\r\n"),
        0);
    EXPECT_EQ(m_record.User1.GetLength(), 1 << 20);
    EXPECT_EQ(m_record.User5, "\xC3\xA0");
    EXPECT_EQ(m_record.Record.GetNP(), 2);
}

TEST_F(ImportTest, PickingAFileDispatchesOnItsExtension) {
    const std::string asc = m_dir.Write("pick.RA", Itaca("", kOnes));
    m_ui.QueueFiles({CString(asc.c_str())});
    ASSERT_EQ(m_record.ReadFromFile(1), 0);
    EXPECT_EQ(m_record.Identifier, "pick.RA");
    ASSERT_EQ(m_ui.FileRequests().size(), 1u);
    EXPECT_TRUE(m_ui.FileRequests()[0].open);
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

TEST(RecordFileKindTest, NameEndsAndWholeExtensionsTellTheReader) {
    using seisplot::RecordFileKind;
    struct Case {
        const char* name;
        RecordFileKind byName;
        const char* extension;
        RecordFileKind byExtension;
    };
    const Case cases[] = {
        {"dir/x.asc", RecordFileKind::Itaca, "asc", RecordFileKind::Itaca},
        {"X.TXT", RecordFileKind::TwoColumn, "TXT", RecordFileKind::TwoColumn}, // not "TR"
        {"a.plt", RecordFileKind::TwoColumn, "Plt", RecordFileKind::TwoColumn},
        {"FOORA", RecordFileKind::Itaca, "", RecordFileKind::Unknown}, // the end, no dot
        {"a.xra", RecordFileKind::Itaca, "xra", RecordFileKind::Unknown},
        {"b.Tr", RecordFileKind::Itaca, "Tr", RecordFileKind::Itaca},
        {"c.sns", RecordFileKind::Itaca, "sns", RecordFileKind::Itaca},
        {"d.SEW", RecordFileKind::Itaca, "SEW", RecordFileKind::Itaca},
        {"e.up", RecordFileKind::Itaca, "up", RecordFileKind::Itaca},
        {"f.dat", RecordFileKind::Unknown, "dat", RecordFileKind::Unknown},
        {"", RecordFileKind::Unknown, "A", RecordFileKind::Unknown},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(seisplot::RecordFileKindOf(c.name), c.byName) << c.name;
        EXPECT_EQ(seisplot::RecordFileKindOfExtension(c.extension), c.byExtension) << c.extension;
    }
}
