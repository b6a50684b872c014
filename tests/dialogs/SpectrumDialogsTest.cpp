// The spectrum dialogs: the editor's fields, scaling and pick; the envelope dialog's lists,
// check patterns, run (and its cancellation), rating, track, renames, removals and report.

#include "DialogFixture.h"
#include "dialogs/spectra/EnvelopeSpectra.h"
#include "dialogs/spectra/SpectrumEditor.h"
#include "platform/core/StringTable.h"
#include "records/AccelerogramColl.h"
#include "support/TempDir.h"

#include <QPushButton>
#include <QTimer>

#include <cmath>
#include <fstream>
#include <sstream>

using seisplot::DialogHandle;

namespace {

// Editor controls
constexpr int kList = 14760, kScale = 14761, kDamping = 14762, kExplanation = 14763;
constexpr int kUpdate = 14764, kBehavior = 14765, kApply = 14766, kPreview = 14692;
// Envelope controls
constexpr int kRecords = 14680, kModes = 14740, kSpectra = 14745, kRun = 14743, kTrack = 14759;
constexpr int kRegularGrid = 14734, kMaxPeriod = 14739, kStep = 14735, kName = 14752;
constexpr int kChangeName = 14753, kRemove = 14746, kRating = 14755, kReport = 14703;

Spectrum Named(const char* name, std::vector<double> ordinates) {
    Spectrum s;
    s.SetName(name);
    for (size_t k = 0; k < ordinates.size(); ++k) {
        s.Curve.AddPoint(0.1 * static_cast<double>(k), ordinates[k]);
    }
    return s;
}

Accelerogram Record(const char* identifier, double amplitude, double frequency) {
    std::vector<double> t(300), a(300);
    for (size_t i = 0; i < t.size(); ++i) {
        t[i] = 0.01 * static_cast<double>(i);
        a[i] = amplitude * 9810.0 * std::sin(2.0 * M_PI * frequency * t[i]);
    }
    Accelerogram r(static_cast<int>(t.size()), t.data(), a.data());
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

struct SpectrumDialogsTest : seisplot::test::DialogFixture {
    seisplot::test::TempDir dir;
};

} // namespace

TEST_F(SpectrumDialogsTest, TheEditorScalesAndEditsTheCopyAndPicksOne) {
    SpectrumColl spectra;
    spectra.AddSpectrum(Named("first", {0.3, 0.5}));
    spectra.AddSpectrum(Named("second", {0.2, 0.4}));
    spectra.Select(1, 1);
    Units units;
    dialogs.Expect(14510, [](DialogHandle& d) {
        EXPECT_EQ(d.Caption(), "Spectra management");
        EXPECT_EQ(d.Lines(kList), (std::vector<CString>{"first", "second"}));
        d.Type(kScale, "2");
        d.Click(kApply);
        d.Click(kApply); // twice scales twice
        EXPECT_TRUE(d.Cancel());
    });
    EXPECT_EQ(spectra.GetData(&units), 1);
    EXPECT_EQ(spectra.GetP(1)->Curve[0].GetY(), 0.3); // Cancel discards the scaling

    dialogs.Expect(14510, [](DialogHandle& d) {
        d.Type(kScale, "0");
        d.Click(kApply); // refused
        d.Type(kScale, "2");
        d.Click(kApply);
        d.Type(kBehavior, "3.9");
        d.SelectLine(kList, 1); // not updated: lost
        EXPECT_EQ(d.Text(kBehavior), "1.5");
        d.Type(kBehavior, "4");
        d.Type(kDamping, "1.5");
        d.Click(kUpdate); // refused
        d.Type(kDamping, "0.1");
        d.Type(kExplanation, "a new site");
        d.Click(kUpdate);
        EXPECT_TRUE(d.Ok());
    });
    EXPECT_EQ(spectra.GetData(&units), 0);
    EXPECT_EQ(ui.MessageTexts(), (std::vector<CString>{"Please enter a number between 1e-07 and "
                                                       "1000000000.",
                                                       "Please enter a number between 0 and 1."}));
    EXPECT_EQ(spectra.GetP(1)->Curve[0].GetY(), 0.6);
    EXPECT_EQ(spectra.GetP(1)->GetBehavior(), 1.5);
    const Spectrum& second = *spectra.GetP(2);
    EXPECT_EQ(second.GetBehavior(), 4.0);
    EXPECT_EQ(second.GetDamp(), 0.1);
    EXPECT_EQ(second.GetExplanation(), "a new site");
    EXPECT_FALSE(spectra.GetP(1)->IsSelected(1));
    EXPECT_TRUE(second.IsSelected(1));

    SpectrumColl empty;
    dialogs.Expect(14510, [](DialogHandle& d) {
        EXPECT_EQ(d.Text(kBehavior), "0");
        EXPECT_EQ(d.Text(kDamping), "0.05");
        EXPECT_TRUE(d.Ok());
    });
    EXPECT_EQ(empty.GetData(&units), 0);
    EXPECT_EQ(empty.GetSpectrumNum(), 0u);
}

TEST_F(SpectrumDialogsTest, TheEnvelopeDialogListsPatternsAndModesAndRunsAsTheLibraryDoes) {
    AccelerogramColl records;
    for (int i = 1; i <= 7; ++i) {
        CString id;
        id.Format("R%d", i);
        records.AddAccelerogram(Record(id, 0.05 * i, 1.0 + 0.5 * i));
    }
    double periods[] = {0.5, 0.25};
    double shares[] = {0.6, 0.1, 0.0, 0.05, 0.7, 0.02};
    Units units;
    SpectrumColl spectra;
    const auto checks = [](DialogHandle& d) {
        std::vector<int> lines;
        for (int i = 0; i < 7; ++i) {
            if (d.LineChecked(kRecords, i)) {
                lines.push_back(i);
            }
        }
        return lines;
    };
    dialogs.Expect(14509, [&](DialogHandle& d) {
        EXPECT_EQ(d.Caption(), "Envelope spectrum");
        EXPECT_EQ(d.Lines(kRecords)[6], "    7 - R7");
        EXPECT_EQ(checks(d), (std::vector<int>{0, 1, 2, 3, 4, 5, 6}));
        // The texts keep their line feed; the list shows each on one line.
        auto& dialog = dynamic_cast<ManageSpectra&>(d.Dialog());
        EXPECT_EQ(dialog.ModeTexts,
                  (std::vector<CString>{
                      "Mode=    1  Period=  0.500  %X= 60.000  %Y= 10.000  %Z=  0.000\n",
                      "Mode=    2  Period=  0.250  %X=  5.000  %Y= 70.000  %Z=  2.000\n"}));
        EXPECT_EQ(d.Lines(kModes)[1],
                  "Mode=    2  Period=  0.250  %X=  5.000  %Y= 70.000  %Z=  2.000 ");
        d.Click(14792);
        EXPECT_EQ(checks(d), (std::vector<int>{0, 3, 6}));
        d.Click(14795);
        EXPECT_EQ(checks(d), (std::vector<int>{0, 1, 3, 4, 6}));
        d.Click(14794);
        EXPECT_EQ(checks(d), (std::vector<int>{2, 5}));
        d.Click(14757);
        d.CheckLine(kRecords, 1, true);
        d.CheckLine(kRecords, 4, true);
        d.Click(14742); // no mode
        d.CheckLine(kModes, 1, true);
        d.Click(kRun); // at 0 and the second mode's period
        d.Click(kRegularGrid);
        d.Type(kMaxPeriod, "1");
        d.Type(kStep, "0.25");
        d.Click(kRun);
        EXPECT_EQ(d.Lines(kSpectra).size(), 2u);
        EXPECT_EQ(d.Selection(kSpectra), 0);
        EXPECT_TRUE(d.Ok());
    });
    ASSERT_EQ(spectra.GetData(&records, 2, periods, shares, &units), 0);
    EXPECT_EQ(ui.MessageTexts(), (std::vector<CString>{"OK!", "OK!"}));

    // The same two runs, straight through the library.
    SpectrumColl expected;
    PCurve track;
    std::vector<bool> checked{false, true, false, false, true, false, false};
    EnvelopeCriteria criteria;
    EnvelopeModes modes{{0.5, 0.25}, {}, {false, true}};
    seisplot::ScriptedUserInterface quiet;
    {
        seisplot::ScopedUserInterface scope(quiet);
        ComputeEnvelopeSpectrum(criteria, records, checked, modes, expected, track, nullptr);
        criteria.PeriodSource = EnvelopeCriteria::RegularGrid;
        criteria.MaxPeriod = 1.0;
        criteria.PeriodStep = 0.25;
        ComputeEnvelopeSpectrum(criteria, records, checked, modes, expected, track, nullptr);
    }
    ASSERT_EQ(spectra.GetSpectrumNum(), 2u);
    for (unsigned long s = 1; s <= 2; ++s) {
        const PCurve& got = spectra.GetP(s)->Curve;
        const PCurve& want = expected.GetP(s)->Curve;
        EXPECT_EQ(spectra.GetP(s)->GetName(), expected.GetP(s)->GetName());
        ASSERT_EQ(got.GetNP(), want.GetNP());
        for (int k = 0; k < got.GetNP(); ++k) {
            EXPECT_EQ(got[k].GetX(), want[k].GetX());
            EXPECT_EQ(got[k].GetY(), want[k].GetY());
        }
    }
    EXPECT_EQ(spectra.GetP(1)->Curve.GetNP(), 2);
    EXPECT_EQ(spectra.GetP(2)->Curve.GetNP(), 5);
}

TEST_F(SpectrumDialogsTest, SpectraAreRatedRenamedRemovedAndReportedAndARunCanBeCancelled) {
    AccelerogramColl records;
    records.AddAccelerogram(Record("R1", 0.2, 2.0));
    records.GetP(1)->User2 = "kept";
    double period = 0.3;
    double shares[] = {1.0, 0.0, 0.0};
    Units units;
    SpectrumColl spectra;
    spectra.AddSpectrum(Named("older", {0.25, 0.6, 0.3}));
    const std::string report = dir.Path("spectrum.txt");
    ui.QueueFiles({report.c_str()});
    CString reportText;
    dialogs.Expect(14509, [&](DialogHandle& d) {
        auto& dialog = dynamic_cast<ManageSpectra&>(d.Dialog());
        d.Click(kRegularGrid);
        d.Type(kMaxPeriod, "0.5");
        d.Type(kStep, "0.1");
        d.Click(kRun);
        EXPECT_GT(dialog.Track.GetNP(), 0);
        d.SelectLine(kSpectra, 1);
        EXPECT_EQ(d.Text(kRating), MatchEc8SoilClasses(*dialog.Spectra.GetP(2)).Verdict);
        d.Type(kName, "site A");
        d.Click(kChangeName);
        EXPECT_EQ(d.Lines(kSpectra)[1], "    2 site A");
        EXPECT_EQ(d.Selection(kSpectra), 0); // back to the first line
        dialogs.Expect(14503, [](DialogHandle& shown) {
            EXPECT_EQ(shown.Text(14630), "Track of signals");
            EXPECT_TRUE(shown.Cancel());
        });
        d.Click(kTrack);
        d.Click(kRemove); // the first spectrum: the track stays
        EXPECT_GT(dialog.Track.GetNP(), 0);
        dialog.Spectra.GetP(1)->DoReport(reportText);
        EXPECT_EQ(dialog.Spectra.GetP(1)->GetName(), "site A");
        d.Click(kReport);
        d.Click(kRemove); // the latest run's: the track goes with it
        EXPECT_EQ(dialog.Track.GetNP(), 0);
        d.Click(kTrack); // nothing to show
        // Cancel while a run works: the click reaches the run at its first heartbeat.
        QTimer::singleShot(0, [&] { d.Click(IDCANCEL); });
        d.Click(kRun);
        EXPECT_TRUE(d.Lines(kSpectra).empty());
        EXPECT_FALSE(d.Ended());
        dialogs.Expect(14508, [](DialogHandle& info) {
            EXPECT_EQ(info.Text(14732), ""); // the user texts are not shown
            info.Type(14713, "6.1");
            EXPECT_TRUE(info.Ok());
        });
        d.Click(14686);
        EXPECT_TRUE(d.Cancel());
    });
    EXPECT_EQ(spectra.GetData(&records, 1, &period, shares, &units), 1);
    EXPECT_EQ(spectra.GetSpectrumNum(), 1u); // Cancel: the host's spectra as they were
    EXPECT_EQ(records.GetP(1)->Mw, 6.1);     // the records are edited in place
    EXPECT_EQ(records.GetP(1)->User2, "kept");
    EXPECT_EQ(ui.MessageTexts(), std::vector<CString>{"OK!"});
    EXPECT_EQ(FileText(report), std::string(reportText.GetString()));
    EXPECT_EQ(ui.Processes(), std::vector<CString>{("notepad.exe " + report).c_str()});

    // Without records or modes the dialog says so and its lists stay empty.
    ManageSpectra bare;
    dialogs.Expect(14509, [](DialogHandle& d) {
        EXPECT_TRUE(d.Lines(kRecords).empty());
        EXPECT_TRUE(d.Cancel());
    });
    bare.DoModal();
    ManageSpectra noModes;
    noModes.Records = &records;
    dialogs.Expect(14509, [](DialogHandle& d) {
        EXPECT_TRUE(d.Lines(kModes).empty());
        d.Click(kRun);
        EXPECT_TRUE(d.Cancel());
    });
    noModes.DoModal();
    const std::vector<CString> messages = ui.MessageTexts();
    EXPECT_EQ(std::vector<CString>(messages.end() - 3, messages.end()),
              (std::vector<CString>{"No accelerogram list", "No mode list",
                                    seisplot::LoadLibraryString(14845)}));
}
