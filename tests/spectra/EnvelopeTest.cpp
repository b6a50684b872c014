#include "spectra/Envelope.h"
#include "platform/core/FailureInjection.h"
#include "platform/core/ScriptedUserInterface.h"
#include "support/ArchiveBytes.h"
#include "support/SampledRecord.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

using seisplot::test::StoreObject;

namespace {

const double kPi = 2.0 * std::asin(1.0);

// A horizontal or vertical record of 10 s at 100 Hz: a decaying mix of two tones.
Accelerogram Record(const char* file, const char* event, double angle, int vertical, double scale) {
    Accelerogram r = seisplot::test::SampledRecord(1001, 0.01, [=](double t) {
        return scale * std::exp(-0.3 * t) *
               (std::sin(2 * kPi * 1.7 * t) + 0.5 * std::sin(2 * kPi * 4.1 * t + angle));
    });
    r.FileIdentifier = file;
    r.Identifier = file;
    r.EventId = event;
    r.AngleWE = angle;
    r.IsVertical = vertical;
    return r;
}

struct Scenario {
    seisplot::ScriptedUserInterface ui;
    seisplot::ScopedUserInterface scope{ui};
    AccelerogramColl records;
    std::vector<bool> checked;
    EnvelopeModes modes;
    SpectrumColl spectra;
    PCurve track;
    EnvelopeCriteria criteria;

    void Add(const Accelerogram& r, bool check = true) {
        records.AddAccelerogram(r);
        checked.push_back(check);
    }
    EnvelopeOutcome Go(CProgressCtrl* progress = nullptr, unsigned threads = 2) {
        return ComputeEnvelopeSpectrum(criteria, records, checked, modes, spectra, track, progress,
                                       threads);
    }
    std::vector<CString> Messages() const { return ui.MessageTexts(); }
    void Grid(double maxPeriod, double step) {
        criteria.PeriodSource = EnvelopeCriteria::RegularGrid;
        criteria.MaxPeriod = maxPeriod;
        criteria.PeriodStep = step;
    }
};

class Recorder : public EnvelopeProgress {
public:
    int steps = 0;
    int heartbeats = 0;
    bool cancel = false;
    bool Cancelled() override { return cancel; }
    void Heartbeat() override { ++heartbeats; }

protected:
    void Changed() override { ++steps; }
};

} // namespace

TEST(EnvelopeTest, RunTitleKeepsItsFieldWidths) {
    EnvelopeCriteria c;
    EXPECT_EQ(EnvelopeRunTitle(c), "Structural Modes - Complete Envelope - Damping  0.050");
    c.PeriodSource = EnvelopeCriteria::RegularGrid;
    c.Statistic = EnvelopeCriteria::PercentileEnvelope;
    c.Percentile = 84.0;
    EXPECT_EQ(EnvelopeRunTitle(c), "Generic - Envelope  84.000 percentile - Damping  0.050");
    c.Percentile = 100.0;
    c.Damping = 0.0;
    EXPECT_EQ(EnvelopeRunTitle(c), "Generic - Envelope 100.000 percentile - Damping  0.000");
}

TEST(EnvelopeTest, CompleteEnvelopeOverARegularGridOnAnyNumberOfThreads) {
    const auto setUp = [](Scenario& r) {
        r.Add(Record("a", "E1", 0.0, 0, 1000.0));
        r.Add(Record("b", "E2", 0.0, 0, 3000.0), false);
        r.Add(Record("c", "E3", 0.0, 0, 2000.0));
        r.Grid(1.0, 0.25);
    };
    Scenario run;
    setUp(run);
    Recorder progress;
    ASSERT_EQ(run.Go(&progress, 4), EnvelopeOutcome::Added);
    EXPECT_EQ(run.Messages(), std::vector<CString>{"OK!"});
    ASSERT_EQ(run.spectra.GetSpectrumNum(), 1u);
    Spectrum& s = *run.spectra.GetP(1);
    EXPECT_EQ(s.GetName(), "Generic - Complete Envelope - Damping  0.050");
    EXPECT_EQ(s.GetType(), 2);
    EXPECT_EQ(s.GetDamp(), 0.05);
    EXPECT_EQ(
        (std::vector<CString>{s.Curve.GetName(), s.Curve.XName, s.Curve.YName, run.track.GetName(),
                              run.track.XName, run.track.YName}),
        (std::vector<CString>{"Envelope Spectrum (2 signals)", "Period T (sec)", "Se,a(T) [g]",
                              "Track of signals", "T (sec)", "Accelerogram #"}));
    EXPECT_EQ(s.Curve.XUnit, seisplot::UnitKind::Time);
    EXPECT_EQ(s.Curve.YUnit, seisplot::UnitKind::PureNumber);
    ASSERT_EQ(s.Curve.GetNP(), 5); // 0, 0.25, 0.5, 0.75, 1.0
    Accelerogram& c = *run.records.GetP(3);
    for (int j = 0; j < 5; ++j) {
        const double T = 0.25 * j;
        EXPECT_EQ(s.Curve[j].GetX(), T);
        double expected = c.GetPga();
        if (T > 0.0) {
            c.GetAccSpectrum(0.05, T, &expected);
        }
        EXPECT_EQ(s.Curve[j].GetY(), expected) << T; // c is twice a: always the larger
        EXPECT_EQ(run.track[j].GetY(), 3.0);         // its record number
    }
    // One thread gives the same spectrum and track.
    Scenario oneThread;
    setUp(oneThread);
    ASSERT_EQ(oneThread.Go(nullptr, 1), EnvelopeOutcome::Added);
    EXPECT_EQ(StoreObject(s), StoreObject(*oneThread.spectra.GetP(1)));
    EXPECT_EQ(StoreObject(run.track), StoreObject(oneThread.track));
    int lower = -1;
    int upper = -1;
    progress.GetRange(lower, upper);
    EXPECT_EQ(upper, 5);
    EXPECT_EQ(progress.GetPos(), 0);
    EXPECT_GE(progress.steps, 5 + 3); // range, step position, five steps, final position
}

TEST(EnvelopeTest, PercentileRankAndTrackTies) {
    // K records whose PGAs are 0.1 ... K/10 g; the grid is T = 0 alone (no mode checked), so
    // the values are the PGAs. The rank from the top is r = trunc((K + 1) − K·P/100):
    // K = 20, P = 95 → 2; K = 10, P = 95 → 1; K = 10, P = 50 → 6.
    const auto tenthsOfG = [](double percentile, int count) {
        Scenario run;
        for (int i = 1; i <= count; ++i) {
            double t[] = {0.0, 0.01};
            double a[] = {0.0, 981.0 * i};
            run.Add(Accelerogram(2, t, a));
        }
        run.criteria.Statistic = EnvelopeCriteria::PercentileEnvelope;
        run.criteria.Percentile = percentile;
        EXPECT_EQ(run.Go(), EnvelopeOutcome::Added);
        return run.spectra.GetP(1)->Curve[0].GetY() * 10.0;
    };
    EXPECT_NEAR(tenthsOfG(95.0, 20), 19.0, 1e-12);
    EXPECT_NEAR(tenthsOfG(95.0, 10), 10.0, 1e-12);
    EXPECT_NEAR(tenthsOfG(50.0, 10), 5.0, 1e-12);
    EXPECT_NEAR(tenthsOfG(100.0, 7), 7.0, 1e-12);
    EXPECT_NEAR(tenthsOfG(50.0, 1), 1.0, 1e-12); // one signal: every percentile is its value

    // Two signals with the same maximum: the first one names the track point.
    Scenario tie;
    tie.Add(Record("x", "E1", 0.0, 0, 0.0)); // all zero
    tie.Add(Record("a", "E1", 0.0, 0, 1000.0));
    tie.Add(Record("b", "E2", 0.0, 0, 1000.0));
    tie.modes.Periods = {0.5, 0.3};
    tie.modes.Checked = {true, false};
    ASSERT_EQ(tie.Go(), EnvelopeOutcome::Added);
    ASSERT_EQ(tie.track.GetNP(), 2); // T = 0 and the checked mode
    EXPECT_EQ(tie.track[1].GetX(), 0.5);
    EXPECT_EQ(tie.track[0].GetY(), 2.0);
    EXPECT_EQ(tie.track[1].GetY(), 2.0);
    EXPECT_EQ(tie.spectra.GetP(1)->GetName(),
              "Structural Modes - Complete Envelope - Damping  0.050");
}

TEST(EnvelopeTest, PairsAreComposedAlongTheDirection) {
    Scenario run;
    run.Add(Record("N.ASC", "E1", 90.0, 0, 800.0)); // larger angle first: swapped
    run.Add(Record("Z.ASC", "E1", 0.0, 1, 900.0), false);
    run.Add(Record("E.ASC", "E1", 0.0, 0, 600.0));
    run.criteria.SignalUse = EnvelopeCriteria::ComposedPairs;
    run.criteria.Direction = 30.0;
    run.modes.Periods = {0.4};
    run.modes.Checked = {true};
    ASSERT_EQ(run.Go(), EnvelopeOutcome::Added);
    EXPECT_EQ(run.records.GetP(1)->AnalysisId, 1);
    EXPECT_EQ(run.records.GetP(3)->AnalysisId, 1);
    EXPECT_EQ(run.records.CountSelected(5), 0u); // the scratch flag is cleared
    Accelerogram composed;
    ASSERT_EQ(composed.Convert(run.records.GetP(3), run.records.GetP(1), 30.0), 0);
    double sa = 0.0;
    composed.GetAccSpectrum(0.05, 0.4, &sa);
    const PCurve& curve = run.spectra.GetP(1)->Curve;
    EXPECT_EQ(curve[0].GetY(), composed.GetPga());
    EXPECT_EQ(curve[1].GetY(), sa);
    EXPECT_EQ(run.track[1].GetY(), 1.0); // the pair's number
    EXPECT_EQ(curve.GetName(), "Envelope Spectrum (2 signals)");
}

TEST(EnvelopeTest, PairingStopsWithItsMessages) {
    struct In {
        const char* event;
        double angle;
        int vertical = 0;
    };
    const CString angle =
        "Error: 2 accelerograms selected having same event id, not Z, with angle difference != 90";
    const CString found = "accelerograms marked with same analysis id, instead of 2. Check "
                          "accelerograms and proper selections.";
    const struct {
        const char* why;
        std::vector<In> records;   // record k is in file rk.ASC
        CString message;           // "OK!": the run adds its spectrum
        std::vector<int> ids = {}; // empty: not looked at
    } cases[] = {
        // 90.005° is a right angle for pairing; the rotation itself asks for 0.001° and
        // refuses.
        {"pairing's right angle",
         {{"E1", 0.0}, {"E1", 90.005}},
         "Error the two accelerograms used as reference must have 90? angle difference",
         {1, 1}},
        {"rotation's right angle", {{"E1", 0.0}, {"E1", 90.0005}}, "OK!", {1, 1}},
        {"no right angle", {{"E1", 0.0}, {"E1", 90.02}}, angle},
        // Each later record is compared with the first only: −90° joins as well, three in a
        // pair.
        {"three in a pair",
         {{"E1", 0.0}, {"E1", 90.0}, {"E1", -90.0}, {"E9", 0.0}},
         "Error: found 3 " + found,
         {1, 1, 1, 2}},
        {"270 is no right angle", {{"E1", 0.0}, {"E1", 90.0}, {"E1", 270.0}, {"E9", 0.0}}, angle},
        {"odd count",
         {{"E", 0.0}},
         "Error to compose accelerograms the number of selected accelerograms must be even"},
        // A vertical record is left without a pair number.
        {"vertical",
         {{"E", 0.0}, {"E", 90.0}, {"E", 0.0, 1}, {"F", 0.0, 1}},
         "Error accelerogram r3.ASC is selected but no analysis id assigned. Check selection of "
         "accelerograms"},
        // Records of different events never pair: each is a pair of one.
        {"different events", {{"E1", 0.0}, {"E2", 90.0}}, "Error: found 1 " + found},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        Scenario run;
        for (const In& in : c.records) {
            CString file;
            file.Format("r%zu.ASC", run.checked.size() + 1);
            run.Add(Record(file.GetString(), in.event, in.angle, in.vertical, 500.0));
        }
        run.criteria.SignalUse = EnvelopeCriteria::ComposedPairs;
        const bool added = c.message == "OK!";
        EXPECT_EQ(run.Go(), added ? EnvelopeOutcome::Added : EnvelopeOutcome::Stopped);
        EXPECT_EQ(run.Messages(), std::vector<CString>{c.message});
        EXPECT_EQ(run.spectra.GetSpectrumNum(), added ? 1u : 0u);
        EXPECT_EQ(run.records.CountSelected(5), 0u);
        std::vector<int> ids;
        for (unsigned long i = 1; i <= run.records.GetAccelerogramNum() && !c.ids.empty(); ++i) {
            ids.push_back(run.records.GetP(i)->AnalysisId);
        }
        EXPECT_EQ(ids, c.ids);
    }
}

TEST(EnvelopeTest, GridAndInputChecksComeFirst) {
    Scenario run;
    run.Grid(0.0, 0.0);
    EXPECT_EQ(run.Go(), EnvelopeOutcome::Stopped);
    run.Grid(1.0, 0.5);
    EXPECT_EQ(run.Go(), EnvelopeOutcome::Stopped); // no record
    run.criteria.Damping = 1.0;
    EXPECT_EQ(run.Go(), EnvelopeOutcome::Stopped);
    EXPECT_EQ(run.Messages(),
              (std::vector<CString>{"Warning: maxT or dT null!",
                                    "Warning: there is no accelerogram selected!",
                                    "Error the damping must be at least 0 and less than 1 (100% "
                                    "of critical)"}));
    // A quotient just below a whole number gives one period fewer: 0.3/0.1 = 2.9999999999999996.
    run.criteria.Damping = 0.0; // computed with 1e-07, recorded as 0
    run.Grid(0.3, 0.1);
    run.Add(Record("a", "E", 0.0, 0, 100.0));
    ASSERT_EQ(run.Go(), EnvelopeOutcome::Added);
    const Spectrum& s = *run.spectra.GetP(1);
    EXPECT_EQ(s.Curve.GetNP(), 3);
    EXPECT_EQ(s.GetDamp(), 0.0);
    double sa = 0.0;
    run.records.GetP(1)->GetAccSpectrum(1e-07, s.Curve[2].GetX(), &sa);
    EXPECT_EQ(s.Curve[2].GetY(), sa);
}

TEST(EnvelopeTest, ACancelledRunAddsNothing) {
    Scenario run;
    for (int i = 0; i < 3; ++i) {
        run.Add(Record("a", "E", 0.0, 0, 100.0));
    }
    run.Grid(4.0, 0.01);
    Recorder progress;
    progress.cancel = true;
    EXPECT_EQ(run.Go(&progress), EnvelopeOutcome::Cancelled);
    EXPECT_EQ(run.spectra.GetSpectrumNum(), 0u);
    EXPECT_EQ(run.track.GetNP(), 0);
    EXPECT_GE(progress.heartbeats, 1);
    EXPECT_EQ(progress.GetPos(), 0);
    EXPECT_TRUE(run.Messages().empty());
}

TEST(EnvelopeTest, Ec8RatingStopsAtTheFirstPeak) {
    Spectrum s;
    s.SetName("rated");
    s.SetDamp(0.05);
    // ag = 0.2. At T = 0 the classes start at 0.2·S·0.66666: 0.9·0.2 = 0.18 exceeds A's 0.133
    // and B's 0.1799982. The plateaus are 0.5 (A), 0.675 (B), 0.75 (C), 0.9 (D), 0.8 (E).
    s.Curve.AddPoint(0.0, 0.2);
    s.Curve.AddPoint(0.1, 0.6); // 0.54: within every plateau but A's
    s.Curve.AddPoint(0.2, 0.8); // the peak: 0.72, within C, D and E
    s.Curve.AddPoint(0.3, 0.8); // after the first peak: not rated
    s.Curve.AddPoint(3.0, 0.8); // would fail every class
    const Ec8Rating rating = MatchEc8SoilClasses(s);
    EXPECT_EQ(rating.Peak, 0.8);
    EXPECT_EQ(rating.PeakPeriod, 0.2);
    EXPECT_EQ(rating.Damping, 0.05);
    EXPECT_EQ(rating.Name, "rated");
    EXPECT_EQ(rating.Verdict, "Soil A:NO Soil B:NO Soil C:OK Soil D:OK Soil E:OK ");

    // A peak at the first point rates that point alone: ag = 1, 0.9 exceeds A's 0.66666 and
    // B's 0.899991; the later point (C's 0.625 at 1.5 s) is not looked at.
    Spectrum first;
    first.Curve.AddPoint(0.0, 1.0);
    first.Curve.AddPoint(1.5, 0.99);
    EXPECT_EQ(MatchEc8SoilClasses(first).Verdict,
              "Soil A:NO Soil B:NO Soil C:OK Soil D:OK Soil E:OK ");
}

TEST(EnvelopeTest, FailuresOnAnyThreadReachTheCallerAndAppendNothing) {
    struct Case {
        seisplot::FailurePoint point;
        int successes;
        bool memory; // CMemoryException, else CResourceException
    };
    // The second worker cannot start; the fourth point of the envelope cannot be added while
    // the workers still run.
    for (const Case& c : {Case{seisplot::FailurePoint::ThreadStart, 1, false},
                          Case{seisplot::FailurePoint::PointAddition, 3, true}}) {
        Scenario run;
        run.Add(Record("a", "E1", 0.0, 0, 1000.0));
        run.Add(Record("c", "E3", 0.0, 0, 2000.0));
        run.Grid(2.0, 0.05);
        run.spectra.AddSpectrum(Spectrum());
        const auto before = StoreObject(run.spectra);
        bool memory = false;
        bool resource = false;
        seisplot::FailAfter(c.point, c.successes);
        try {
            run.Go(nullptr, 2);
        } catch (CMemoryException* e) {
            memory = true;
            e->Delete();
        } catch (CResourceException* e) {
            resource = true;
            e->Delete();
        }
        seisplot::FailAfter(c.point, -1);
        EXPECT_EQ(memory, c.memory);
        EXPECT_EQ(resource, !c.memory);
        EXPECT_EQ(StoreObject(run.spectra), before);
        EXPECT_EQ(run.track.GetNP(), 0);
        EXPECT_TRUE(run.Messages().empty());
    }
}
