// The record dialogs: the details and their ranges, the management of a set through GetData
// (every operation on the selected record and on the set, the spectra and the report), and
// the function of time.

#include "DialogFixture.h"
#include "dialogs/curves/CurveDisplay.h"
#include "dialogs/records/RecordDetails.h"
#include "dialogs/records/RecordManagement.h"
#include "platform/core/StringTable.h"
#include "records/AccelerogramColl.h"
#include "records/RecordReport.h"
#include "support/TempDir.h"

#include <cmath>
#include <fstream>
#include <sstream>

using seisplot::DialogHandle;

namespace {

constexpr int kList = 14680, kPga = 14681, kDuration = 14682, kExplanation = 14683;
constexpr int kRemove = 14684, kRename = 14685, kUpdate = 14686, kScale = 14687;
constexpr int kDuplicate = 14688, kScaleFactor = 14689, kName = 14690, kAddFile = 14691;
constexpr int kPreview = 14692, kAcceleration = 14693, kDampingStep = 14697;
constexpr int kAddFromSet = 14698, kAds = 14700, kSave = 14702, kReport = 14703;
constexpr int kSinusCount = 14705, kSinusAdd = 14708, kRemoveAll = 14711, kInfo = 14732;

// A record of n points, 0.01 s apart, peaking at `peak` g.
Accelerogram Record(const char* identifier, double peak, int n = 200) {
    std::vector<double> t(static_cast<size_t>(n)), a(static_cast<size_t>(n));
    for (int i = 0; i < n; ++i) {
        t[static_cast<size_t>(i)] = 0.01 * i;
        a[static_cast<size_t>(i)] = 0.5 * peak * 9810.0 * std::sin(0.3 * i);
    }
    a[10] = peak * 9810.0; // the peak, exactly
    Accelerogram r(n, t.data(), a.data());
    CString id = identifier;
    r.SetIdentifier(id);
    return r;
}

std::string FileText(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

CString Text(UINT id) {
    return seisplot::LoadLibraryString(id);
}

struct RecordDialogsTest : seisplot::test::DialogFixture {
    seisplot::test::TempDir dir;
};

} // namespace

TEST_F(RecordDialogsTest, DetailsAreCheckedFieldByFieldAndAnUnsetDateStaysUnset) {
    Accelerogram record = Record("E1", 0.1);
    record.EventDate.SetStatus(COleDateTime::null);
    record.EventTime.SetDateTime(2009, 4, 6, 1, 32, 39);
    record.User3 = "kept";
    AccData details;
    details.CopyFrom(record);
    dialogs.Expect(14508, [](DialogHandle& d) {
        EXPECT_EQ(d.Caption(), "Accelerogram details");
        EXPECT_EQ(d.Text(14727).Trim(), "");
        EXPECT_EQ(d.Text(14728), "01:32:39");
        d.Type(14719, "-180"); // rake
        d.Type(14721, "180");  // longitude
        d.Type(14736, "-725"); // back-azimuth: any number
        d.Type(14718, "91");   // dip
        d.Type(14713, "6.3");
        EXPECT_FALSE(d.Ok());
        EXPECT_EQ(d.FocusedControl(), 14718);
        d.Type(14718, "90");
        d.Click(14724); // synthetic
        d.Click(14726); // PSHA
        d.Click(14730); // Z dir
        EXPECT_TRUE(d.Ok());
    });
    ASSERT_EQ(details.DoModal(), IDOK);
    EXPECT_EQ(ui.MessageTexts(), std::vector<CString>{"Please enter a number between 0 and 90."});
    details.CopyTo(record);
    EXPECT_EQ(record.Rake, -180.0);
    EXPECT_EQ(record.Longitude, 180.0);
    EXPECT_EQ(record.Backazimuth, -725.0);
    EXPECT_EQ(record.Dip, 90.0);
    EXPECT_EQ(record.Mw, 6.3);
    EXPECT_EQ(record.IsSynthetic, 1);
    EXPECT_EQ(record.SyntheticKind, 1);
    EXPECT_EQ(record.IsVertical, 1);
    EXPECT_EQ(record.User3, "kept");
    EXPECT_EQ(record.EventDate.GetStatus(), COleDateTime::null);
    EXPECT_EQ(record.EventTime.GetHour(), 1);
    EXPECT_EQ(record.EventTime.GetSecond(), 39);
}

TEST_F(RecordDialogsTest, OperationsOnTheSelectedRecordAndOnTheSet) {
    AccelerogramColl records;
    records.AddAccelerogram(Record("E1", 0.1));
    records.AddAccelerogram(Record("E2", 0.2));
    Units units;
    ui.QueueAnswer(IDNO);  // Remove!: keep it
    ui.QueueAnswer(IDYES); // Remove!: remove it
    dialogs.Expect(14507, [&](DialogHandle& d) {
        EXPECT_EQ(d.Caption(), "Accelerograms Management");
        EXPECT_EQ(d.Lines(kList), (std::vector<CString>{"    1 - E1", "    2 - E2"}));
        EXPECT_EQ(d.Selection(kList), 0);
        EXPECT_EQ(d.Text(kPga), "0.1");
        EXPECT_EQ(d.Text(kDuration), "1.99");
        d.SelectLine(kList, 1);
        d.Type(kScaleFactor, "2");
        d.Click(kScale);
        EXPECT_EQ(d.Text(kPga), "0.4");
        EXPECT_EQ(d.Text(kDuration), "1.99");
        d.Type(kName, "E1"); // the same identifier as record 1: allowed here
        d.Click(kRename);
        d.Type(kExplanation, "north wall");
        d.Click(kUpdate);
        d.Click(kDuplicate);
        EXPECT_EQ(d.Lines(kList).back(), "    3 - E1- Copy - 3");
        EXPECT_EQ(d.Selection(kList), 2);
        dialogs.Expect(14508, [](DialogHandle& info) {
            EXPECT_EQ(info.Text(14712), "E1- Copy - 3");
            info.Type(14716, "12.5");
            EXPECT_TRUE(info.Ok());
        });
        d.Click(kInfo);
        d.Click(kRemove);
        EXPECT_EQ(d.Lines(kList).size(), 3u);
        d.Click(kRemove);
        EXPECT_EQ(d.Lines(kList).size(), 2u);
        EXPECT_EQ(d.Selection(kList), 1); // the new last line
        d.Type(kScaleFactor, "0");
        d.Click(kScale);
        d.Type(kScaleFactor, "1");
        EXPECT_TRUE(d.Ok());
    });
    ASSERT_EQ(records.GetData(&units), 0);
    EXPECT_EQ(ui.MessageTexts(),
              (std::vector<CString>{Text(14842), Text(14842),
                                    "Please enter a number between 1e-05 and 100000."}));
    ASSERT_EQ(records.GetAccelerogramNum(), 2u);
    const Accelerogram& second = *records.GetP(2);
    EXPECT_EQ(second.GetIdentifier(), "E1");
    EXPECT_EQ(second.GetExplanation(), "north wall");
    EXPECT_DOUBLE_EQ(second.GetPga(), 0.4);
    EXPECT_EQ(second.Record.GetPoint(7).GetY(), 2.0 * Record("x", 0.2).Record.GetPoint(7).GetY());

    // Cancel discards everything; removing every record shows an empty, outlined preview.
    dialogs.Expect(14507, [&](DialogHandle& d) {
        d.Click(kRemoveAll);
        EXPECT_TRUE(d.Lines(kList).empty());
        EXPECT_EQ(d.Text(kPga), "0");
        EXPECT_EQ(d.Text(kName), "");
        const seisplot::PictureBits preview = d.Picture(kPreview).Bits();
        const auto pixel = [&](int x, int y) {
            return reinterpret_cast<const unsigned*>(preview.data + y * preview.bytesPerLine)[x] &
                   0xFFFFFFu;
        };
        EXPECT_EQ(pixel(0, 0), 0u);
        EXPECT_EQ(pixel(preview.width / 2, preview.height / 2), 0xFFFFFFu);
        EXPECT_TRUE(d.Cancel());
    });
    EXPECT_EQ(records.GetData(&units), 1);
    EXPECT_EQ(records.GetAccelerogramNum(), 2u);

    // OK on an empty set chooses record 0.
    AccelerogramColl empty;
    ManageAccelerograms pick;
    pick.Records = &empty;
    pick.ChosenRecord = 9;
    dialogs.Expect(14507, [](DialogHandle& d) { EXPECT_TRUE(d.Ok()); });
    EXPECT_EQ(pick.DoModal(), IDOK);
    EXPECT_EQ(pick.ChosenRecord, 0u);
}

TEST_F(RecordDialogsTest, RecordsComeFromFilesArchivesAndTheGenerator) {
    AccelerogramColl records;
    records.AddAccelerogram(Record("SYNA_SY01_HNE.ASC", 0.1));
    AccelerogramColl archive;
    archive.AddAccelerogram(Record("A1", 0.1));
    archive.AddAccelerogram(Record("A2", 0.3));
    archive.AddAccelerogram(Record("SYNA_SY01_HNE.ASC", 0.1));
    CString archivePath = dir.Path("archive.acc").c_str();
    ASSERT_EQ(archive.WriteToFile(archivePath), 0);
    const std::string samples = SEISPLOT_SAMPLES_DIR;
    const CString saved = dir.Path("saved.acc").c_str();

    ui.QueueFiles({(samples + "/SYNA_SY01_HNE.ASC").c_str()}); // a name already in the set
    ui.QueueFiles({(samples + "/SYNA_SY01_HNN.ASC").c_str()});
    ui.QueueFiles({archivePath});
    ui.QueueAnswer(IDYES); // all of them: one clashes
    ui.QueueFiles({archivePath});
    ui.QueueAnswer(IDNO); // just one
    ui.QueueFiles({saved});
    Units units;
    dialogs.Expect(14507, [&](DialogHandle& d) {
        d.Click(kAddFile);
        EXPECT_EQ(d.Lines(kList).size(), 1u);
        d.Click(kAddFile);
        EXPECT_EQ(d.Lines(kList).back(), "    2 - SYNA_SY01_HNN.ASC");
        d.Click(kAddFromSet);
        EXPECT_EQ(d.Lines(kList).size(), 2u);
        dialogs.Expect(14507, [](DialogHandle& inner) {
            EXPECT_EQ(inner.Lines(kList).size(), 3u);
            inner.SelectLine(kList, 1);
            EXPECT_TRUE(inner.Ok());
        });
        d.Click(kAddFromSet);
        EXPECT_EQ(d.Lines(kList).back(), "    3 - A2");
        EXPECT_EQ(d.Selection(kList), 2);
        d.Type(kSinusCount, "3");
        d.Click(kSinusAdd);
        EXPECT_EQ(d.Lines(kList).size(), 6u);
        EXPECT_EQ(d.ProgressPosition(14710), 0);
        d.Click(kSave);
        EXPECT_TRUE(d.Ok());
    });
    ASSERT_EQ(records.GetData(&units), 0);
    EXPECT_EQ(ui.MessageTexts(),
              (std::vector<CString>{
                  "PGA=   0.210  NP= 8001  dT=  0.0050  Tmin =   0.000  Tmax=  40.000", Text(14841),
                  "PGA=   0.180  NP= 8001  dT=  0.0050  Tmin =   0.000  Tmax=  40.000", Text(14843),
                  Text(14841), "SYNA_SY01_HNE.ASC", Text(14843), "OK",
                  "File " + saved + " successufully saved onto disk"}));
    ASSERT_EQ(records.GetAccelerogramNum(), 6u);
    EXPECT_EQ(records.GetP(4)->GetIdentifier(), "SIN_PGA=   0.200(g)_Period=  0.025(sec)_NPTS=991");
    AccelerogramColl reread;
    CString path = saved;
    ASSERT_EQ(reread.ReadFromFile(path), 0);
    EXPECT_EQ(reread.GetAccelerogramNum(), 6u);
}

TEST_F(RecordDialogsTest, SpectraAtEveryDampingAndTheReport) {
    AccelerogramColl records;
    records.AddAccelerogram(Record("E1", 0.25, 400));
    Accelerogram reference = *records.GetP(1);
    const std::string report = dir.Path("report.txt");
    ui.QueueFiles({report.c_str()});
    Units units;
    dialogs.Expect(14507, [&](DialogHandle& d) {
        dialogs.Expect(14503, [&](DialogHandle& shown) {
            EXPECT_EQ(shown.Text(14630), "Spectrum: E1");
            EXPECT_EQ(shown.Lines(14629),
                      (std::vector<CString>{"Damp =   0.025", "Damp =   0.050"}));
            auto& display = dynamic_cast<PrintPCurve&>(shown.Dialog());
            for (int c = 1; c <= 2; ++c) {
                PCurve expected;
                reference.GetAccSpectrum(0.025 * c, 2.0, 0.1, expected);
                const PCurve& got = *display.Coll.GetP(c);
                ASSERT_EQ(got.GetNP(), expected.GetNP());
                for (int k = 0; k < got.GetNP(); ++k) {
                    EXPECT_EQ(got[k].GetY(), expected[k].GetY());
                }
                EXPECT_EQ(got.YName, "Se(T) [g]");
                EXPECT_EQ(got.XUnit, seisplot::UnitKind::Time);
            }
            EXPECT_TRUE(shown.Cancel());
        });
        d.Click(kAcceleration);
        dialogs.Expect(14503, [&](DialogHandle& shown) {
            auto& display = dynamic_cast<PrintPMCurve&>(shown.Dialog());
            ASSERT_EQ(display.Coll.GetPMCurveNum(), 2);
            EXPECT_EQ(display.Coll.GetP(1)->YName, "Se,a (m/s^2)");
            EXPECT_TRUE(shown.Cancel());
        });
        d.Click(kAds);
        d.Type(kDampingStep, "0.1"); // larger than the largest damping: nothing to plot
        dialogs.Expect(14503, [](DialogHandle& shown) {
            EXPECT_TRUE(shown.Lines(14629).empty());
            EXPECT_TRUE(shown.Cancel());
        });
        d.Click(kAcceleration);
        d.Type(kDampingStep, "0");
        d.Click(kAcceleration);
        d.Type(kDampingStep, "0.025");
        d.Click(kReport);
        dialogs.Expect(14503, [](DialogHandle& shown) {
            EXPECT_EQ(shown.Text(14630), "E1");
            EXPECT_EQ(shown.Lines(14629).size(), 1u);
            EXPECT_TRUE(shown.Cancel());
        });
        d.Click(kPreview);
        EXPECT_TRUE(d.Cancel());
    });
    EXPECT_EQ(records.GetData(&units), 1);
    EXPECT_EQ(ui.MessageTexts(),
              std::vector<CString>{"Please enter a number between 0.0001 and 1."});
    EXPECT_EQ(FileText(report), std::string(BuildRecordReport(reference, 2.0, 0.1).GetString()));
    EXPECT_EQ(ui.Processes(), std::vector<CString>{("notepad.exe " + report).c_str()});
}
