#include "spectra/Envelope.h"
#include "platform/core/ScriptedUserInterface.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

const double kPi = 2.0 * std::asin(1.0);

// A horizontal or vertical record of 10 s at 100 Hz: a decaying mix of two tones.
Accelerogram Record(const char* file, const char* event, double angle, int vertical, double scale) {
    const int n = 1001;
    std::vector<double> t(n);
    std::vector<double> a(n);
    for (int i = 0; i < n; ++i) {
        t[i] = i * 0.01;
        a[i] = scale * std::exp(-0.3 * t[i]) *
               (std::sin(2 * kPi * 1.7 * t[i]) + 0.5 * std::sin(2 * kPi * 4.1 * t[i] + angle));
    }
    Accelerogram r(n, t.data(), a.data());
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
    c.PeriodSource = 1;
    c.Statistic = 1;
    c.Percentile = 84.0;
    EXPECT_EQ(EnvelopeRunTitle(c), "Generic - Envelope  84.000 percentile - Damping  0.050");
    c.Percentile = 100.0;
    c.Damping = 0.0;
    EXPECT_EQ(EnvelopeRunTitle(c), "Generic - Envelope 100.000 percentile - Damping  0.000");
}

TEST(EnvelopeTest, CompleteEnvelopeOverARegularGrid) {
    Scenario run;
    run.Add(Record("a", "E1", 0.0, 0, 1000.0));
    run.Add(Record("b", "E2", 0.0, 0, 3000.0), false);
    run.Add(Record("c", "E3", 0.0, 0, 2000.0));
    run.criteria.PeriodSource = 1;
    run.criteria.MaxPeriod = 1.0;
    run.criteria.PeriodStep = 0.25;
    Recorder progress;
    ASSERT_EQ(run.Go(&progress), EnvelopeOutcome::Added);
    ASSERT_EQ(run.spectra.GetSpectrumNum(), 1u);
    Spectrum& s = *run.spectra.GetP(1);
    EXPECT_EQ(s.GetName(), "Generic - Complete Envelope - Damping  0.050");
    EXPECT_EQ(s.GetType(), 2);
    EXPECT_EQ(s.GetDamp(), 0.05);
    EXPECT_EQ(s.Curve.GetName(), "Envelope Spectrum (2 signals)");
    EXPECT_EQ(s.Curve.XName, "Period T (sec)");
    EXPECT_EQ(s.Curve.YName, "Se,a(T) [g]");
    EXPECT_EQ(s.Curve.XUnit, 12);
    EXPECT_EQ(s.Curve.YUnit, 9);
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
    EXPECT_EQ(run.track.GetName(), "Track of signals");
    EXPECT_EQ(run.track.XName, "T (sec)");
    EXPECT_EQ(run.track.YName, "Accelerogram #");
    EXPECT_EQ(run.Messages(), std::vector<CString>{"OK!"});
    int lower = -1;
    int upper = -1;
    progress.GetRange(lower, upper);
    EXPECT_EQ(upper, 5);
    EXPECT_EQ(progress.GetPos(), 0);
    EXPECT_GE(progress.steps, 5 + 3); // range, step position, five steps, final position
}

TEST(EnvelopeTest, ThreadsDoNotChangeTheResult) {
    Scenario one;
    Scenario many;
    for (Scenario* run : {&one, &many}) {
        for (int i = 0; i < 5; ++i) {
            run->Add(Record("r", "E", 0.3 * i, 0, 500.0 + 300.0 * i * (i % 2 ? -1 : 1)));
        }
        run->criteria.PeriodSource = 1;
        run->criteria.MaxPeriod = 2.0;
        run->criteria.PeriodStep = 0.1;
        run->criteria.Statistic = 1;
        run->criteria.Percentile = 70.0;
    }
    ASSERT_EQ(one.Go(nullptr, 1), EnvelopeOutcome::Added);
    ASSERT_EQ(many.Go(nullptr, 4), EnvelopeOutcome::Added);
    const PCurve& a = one.spectra.GetP(1)->Curve;
    const PCurve& b = many.spectra.GetP(1)->Curve;
    ASSERT_EQ(a.GetNP(), 21);
    ASSERT_EQ(b.GetNP(), 21);
    for (int j = 0; j < 21; ++j) {
        EXPECT_EQ(a[j].GetY(), b[j].GetY()) << j;
    }
    EXPECT_EQ(one.track.GetNP(), 0); // a percentile run leaves no track
}

TEST(EnvelopeTest, PercentileRankAndTrackTies) {
    // Five records whose PGAs are 0.1 ... 0.5 g; the grid is T = 0 alone (no mode checked),
    // so the values are the PGAs.
    const auto pgas = [](double percentile, int count) {
        Scenario run;
        for (int i = 1; i <= count; ++i) {
            double t[] = {0.0, 0.01};
            double a[] = {0.0, 981.0 * i};
            run.Add(Accelerogram(2, t, a));
        }
        run.criteria.Statistic = 1;
        run.criteria.Percentile = percentile;
        EXPECT_EQ(run.Go(), EnvelopeOutcome::Added);
        return run.spectra.GetP(1)->Curve[0].GetY() * 10.0;
    };
    // r = trunc((K + 1) − K·P/100): K = 20, P = 95 → 2; K = 10, P = 95 → 1; K = 10, P = 50 → 6.
    EXPECT_NEAR(pgas(95.0, 20), 19.0, 1e-12);
    EXPECT_NEAR(pgas(95.0, 10), 10.0, 1e-12);
    EXPECT_NEAR(pgas(50.0, 10), 5.0, 1e-12);
    EXPECT_NEAR(pgas(100.0, 7), 7.0, 1e-12);
    EXPECT_NEAR(pgas(50.0, 1), 1.0, 1e-12); // one signal: every percentile is its value

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
    run.criteria.SignalUse = 1;
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
    const char* angleMessage =
        "Error: 2 accelerograms selected having same event id, not Z, with angle difference != 90";
    const auto pairing = [](std::initializer_list<double> angles, std::vector<CString>& messages,
                            std::vector<int>& ids) {
        Scenario run;
        for (double angle : angles) {
            run.Add(Record("h.ASC", "E1", angle, 0, 500.0));
        }
        if (angles.size() % 2 != 0) {
            run.Add(Record("other.ASC", "E9", 0.0, 0, 500.0));
        }
        run.criteria.SignalUse = 1;
        const EnvelopeOutcome outcome = run.Go();
        messages = run.Messages();
        ids.clear();
        for (unsigned long i = 1; i <= run.records.GetAccelerogramNum(); ++i) {
            ids.push_back(run.records.GetP(i)->AnalysisId);
        }
        EXPECT_EQ(run.spectra.GetSpectrumNum(), outcome == EnvelopeOutcome::Added ? 1u : 0u);
        EXPECT_EQ(run.records.CountSelected(5), 0u);
        return outcome;
    };
    std::vector<CString> messages;
    std::vector<int> ids;
    // 90.005° is a right angle for pairing; the rotation itself asks for 0.001° and refuses.
    EXPECT_EQ(pairing({0.0, 90.005}, messages, ids), EnvelopeOutcome::Stopped);
    EXPECT_EQ(ids, (std::vector<int>{1, 1}));
    EXPECT_EQ(messages, std::vector<CString>{"Error the two accelerograms used as reference must "
                                             "have 90? angle difference"});
    EXPECT_EQ(pairing({0.0, 90.0005}, messages, ids), EnvelopeOutcome::Added);
    EXPECT_EQ(pairing({0.0, 90.02}, messages, ids), EnvelopeOutcome::Stopped);
    EXPECT_EQ(messages, std::vector<CString>{angleMessage});
    // Each later record is compared with the first only: −90° joins as well, three in a pair.
    EXPECT_EQ(pairing({0.0, 90.0, -90.0}, messages, ids), EnvelopeOutcome::Stopped);
    EXPECT_EQ(ids, (std::vector<int>{1, 1, 1, 2}));
    EXPECT_EQ(messages, std::vector<CString>{"Error: found 3 accelerograms marked with same "
                                             "analysis id, instead of 2. Check accelerograms and "
                                             "proper selections."});
    EXPECT_EQ(pairing({0.0, 90.0, 270.0}, messages, ids), EnvelopeOutcome::Stopped);
    EXPECT_EQ(messages, std::vector<CString>{angleMessage});

    // An odd count of checked records, and a vertical record left without a pair number.
    Scenario odd;
    odd.Add(Record("a", "E", 0.0, 0, 1.0));
    odd.criteria.SignalUse = 1;
    EXPECT_EQ(odd.Go(), EnvelopeOutcome::Stopped);
    EXPECT_EQ(odd.Messages(), std::vector<CString>{"Error to compose accelerograms the number of "
                                                   "selected accelerograms must be even"});
    Scenario vertical;
    vertical.Add(Record("e.ASC", "E", 0.0, 0, 1.0));
    vertical.Add(Record("n.ASC", "E", 90.0, 0, 1.0));
    vertical.Add(Record("z.ASC", "E", 0.0, 1, 1.0));
    vertical.Add(Record("w.ASC", "F", 0.0, 1, 1.0));
    vertical.criteria.SignalUse = 1;
    EXPECT_EQ(vertical.Go(), EnvelopeOutcome::Stopped);
    EXPECT_EQ(vertical.Messages(),
              std::vector<CString>{"Error accelerogram z.ASC is selected but no analysis id "
                                   "assigned. Check selection of accelerograms"});
    // Records of different events never pair: each is a pair of one.
    Scenario apart;
    apart.Add(Record("a", "E1", 0.0, 0, 1.0));
    apart.Add(Record("b", "E2", 90.0, 0, 1.0));
    apart.criteria.SignalUse = 1;
    EXPECT_EQ(apart.Go(), EnvelopeOutcome::Stopped);
    EXPECT_EQ(apart.Messages().back().Find("found 1 accelerograms"), 7);
}

TEST(EnvelopeTest, GridAndInputChecksComeFirst) {
    Scenario run;
    run.criteria.PeriodSource = 1;
    EXPECT_EQ(run.Go(), EnvelopeOutcome::Stopped); // step and maximum 0
    run.criteria.MaxPeriod = 1.0;
    run.criteria.PeriodStep = 0.5;
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
    run.criteria.MaxPeriod = 0.3;
    run.criteria.PeriodStep = 0.1;
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
    run.criteria.PeriodSource = 1;
    run.criteria.MaxPeriod = 4.0;
    run.criteria.PeriodStep = 0.01;
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
