#include "spectra/Envelope.h"

#include "platform/core/CFileDialog.h"
#include "platform/core/StringTable.h"
#include "platform/core/UserInterface.h"
#include "platform/core/WorkerThreads.h"
#include "records/OscillatorKernel.h"
#include "records/SpectrumPeaks.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>

namespace {

constexpr unsigned short kPairView = 5;
constexpr UINT kNullGridMessage = 14844;
constexpr UINT kNoRecordMessage = 14845;
// The progress bar counts periods in a 16-bit range.
constexpr long kMostPeriods = 32767;

bool Stop(const char* message) {
    AfxMessageBox(message);
    return false;
}

// The periods of the run, in grid order; false after a message.
bool BuildGrid(const EnvelopeCriteria& c, const EnvelopeModes& modes, std::vector<double>& T) {
    T.clear();
    if (c.PeriodSource == EnvelopeCriteria::StructuralModes) {
        T.push_back(0.0);
        for (size_t m = 0; m < modes.Periods.size(); ++m) {
            if (m < modes.Checked.size() && modes.Checked[m]) {
                T.push_back(modes.Periods[m]);
            }
        }
    } else {
        if (c.PeriodStep == 0.0 || c.MaxPeriod == 0.0) {
            AfxMessageBox(kNullGridMessage);
            return false;
        }
        const double count = std::trunc(c.MaxPeriod / c.PeriodStep + 1.0);
        if (count > kMostPeriods) {
            return Stop("Error too many points in spectrum: at most 32767 periods");
        }
        const long n = count > 0.0 ? static_cast<long>(count) : 0;
        double period = 0.0;
        for (long i = 0; i < n; ++i) {
            T.push_back(period);
            period += c.PeriodStep;
        }
    }
    if (T.empty()) {
        return Stop("Error no points in spectrum");
    }
    if (static_cast<long>(T.size()) > kMostPeriods) {
        return Stop("Error too many points in spectrum: at most 32767 periods");
    }
    return true;
}

// Gives each pair of horizontal records of one event a pair number (AnalysisId); false after
// a message. View 5 marks the records already taken and is clear again afterwards.
bool PairRecords(AccelerogramColl& records, const std::vector<bool>& checked, long& pairCount) {
    const unsigned long count = records.GetAccelerogramNum();
    const auto isChecked = [&](unsigned long i) {
        return i - 1 < checked.size() && checked[i - 1];
    };
    records.UnSelectAll(kPairView);
    long pair = 0;
    for (unsigned long a = 1; a <= count; ++a) {
        Accelerogram& A = *records.GetP(a);
        if (!isChecked(a) || A.IsVertical != 0 || A.IsSelected(kPairView)) {
            continue;
        }
        A.Select(kPairView);
        A.AnalysisId = static_cast<std::int32_t>(++pair);
        for (unsigned long b = a + 1; b <= count; ++b) {
            Accelerogram& B = *records.GetP(b);
            if (!isChecked(b) || B.IsSelected(kPairView) || B.EventId != A.EventId ||
                B.IsVertical != 0) {
                continue;
            }
            const double d = std::fabs(std::fabs(A.AngleWE - B.AngleWE) - 90.0);
            if (d > 0.01) {
                records.UnSelectAll(kPairView);
                return Stop("Error: 2 accelerograms selected having same event id, not Z, with "
                            "angle difference != 90");
            }
            B.Select(kPairView);
            B.AnalysisId = static_cast<std::int32_t>(pair);
        }
    }
    records.UnSelectAll(kPairView);

    for (long p = 1; p <= pair; ++p) {
        long found = 0;
        for (unsigned long i = 1; i <= count; ++i) {
            if (!isChecked(i)) {
                continue;
            }
            const Accelerogram& r = *records.GetP(i);
            if (r.AnalysisId == 0) {
                CString text;
                text.Format("Error accelerogram %s is selected but no analysis id assigned. Check "
                            "selection of accelerograms",
                            r.GetFileIdentifier().GetString());
                AfxMessageBox(text);
                return false;
            }
            found += r.AnalysisId == p ? 1 : 0;
        }
        if (found != 2) {
            CString text;
            text.Format("Error: found %ld accelerograms marked with same analysis id, instead of "
                        "2. Check accelerograms and proper selections.",
                        found);
            AfxMessageBox(text);
            return false;
        }
    }
    pairCount = pair;
    return true;
}

// The signals of a run: the records themselves, or the pairs composed along the direction.
struct Signals {
    std::vector<const Accelerogram*> record; // signal k
    std::vector<long> number;                // its signal number
    std::vector<std::unique_ptr<Accelerogram>> composed;
};

bool ComposePairs(AccelerogramColl& records, const std::vector<bool>& checked, long pairs,
                  double direction, Signals& signals) {
    for (long p = 1; p <= pairs; ++p) {
        Accelerogram* found[2] = {nullptr, nullptr};
        long count = 0;
        for (unsigned long i = 1; i <= records.GetAccelerogramNum() && count < 2; ++i) {
            Accelerogram& r = *records.GetP(i);
            if (i - 1 < checked.size() && checked[i - 1] && r.AnalysisId == p &&
                r.IsVertical == 0) {
                found[count++] = &r;
            }
        }
        if (count < 2) {
            CString text;
            text.Format("Error: found %ld accelerograms marked with same analysis id, instead of "
                        "2. Check accelerograms and proper selections.",
                        count);
            AfxMessageBox(text);
            return false;
        }
        if (found[0]->AngleWE > found[1]->AngleWE) {
            std::swap(found[0], found[1]);
        }
        auto signal = std::make_unique<Accelerogram>();
        if (signal->Convert(found[0], found[1], direction) != 0) {
            return false; // the rotation has shown why
        }
        signals.record.push_back(signal.get());
        signals.number.push_back(p);
        signals.composed.push_back(std::move(signal));
    }
    return true;
}

// Periods of one signal a worker computes at once: enough that the oscillator kernel's lanes
// stay full while the longest of them runs (a run of 16 took half as long again as one of 64
// on the sample records), few enough that completed periods reach the caller steadily.
constexpr size_t kPeriodsPerTask = 64;

// The percentile of values sorted in descending order: the r-th largest, with
// r = trunc((K + 1) − K·P/100) kept within 1 ... K.
double Percentile(std::vector<double> values, double percentile) {
    std::sort(values.begin(), values.end(), std::greater<>());
    const double K = static_cast<double>(values.size());
    const long r = std::clamp(static_cast<long>((K + 1.0) - K * percentile / 100.0), 1L,
                              static_cast<long>(values.size()));
    return values[static_cast<size_t>(r - 1)];
}

// Evaluates every (period, signal) ordinate on worker threads, in period order, and hands
// each completed period to `done` on the calling thread. False when cancelled. A failure on
// any thread, a worker that cannot start included, stops every worker and reaches the caller
// as a framework exception.
class OrdinateRun {
public:
    // A damping of exactly 0 is computed as 1e-07.
    OrdinateRun(const std::vector<double>& T, const Signals& signals, double damping)
        : m_T(T), m_signals(signals), m_damping(damping == 0.0 ? 1e-07 : damping),
          m_values(T.size() * signals.record.size()), m_left(T.size()),
          m_tasks((T.size() + kPeriodsPerTask - 1) / kPeriodsPerTask * signals.record.size()) {
        for (auto& left : m_left) {
            left = static_cast<int>(signals.record.size());
        }
        m_flat.reserve(signals.record.size());
        for (const Accelerogram* signal : signals.record) {
            m_flat.emplace_back(signal->Record);
        }
    }

    bool Run(unsigned threads, EnvelopeProgress* progress,
             const std::function<void(size_t, const double*)>& done) {
        seisplot::WorkerThreads workers(seisplot::WorkerThreads::CountFor(threads, m_tasks),
                                        [this](std::stop_token stop) { Work(stop); });
        size_t next = 0; // first period not yet handed on
        bool cancelled = false;
        const size_t K = m_signals.record.size();
        std::unique_lock lock(m_mutex);
        while (next < m_T.size() && !workers.Failed()) {
            m_changed.wait_for(lock, std::chrono::milliseconds(100),
                               [&] { return m_left[next] == 0 || workers.Failed(); });
            lock.unlock();
            // `done` may raise; the workers are then stopped and joined on the way out.
            for (; next < m_T.size() && Completed(next); ++next) {
                done(next, &m_values[next * K]);
            }
            if (progress) {
                progress->Heartbeat();
                cancelled = progress->Cancelled();
            }
            lock.lock();
            if (cancelled) {
                break;
            }
        }
        lock.unlock();
        workers.RequestStop();
        workers.Join();
        return !cancelled;
    }

private:
    bool Completed(size_t period) {
        const std::lock_guard guard(m_mutex);
        return m_left[period] == 0;
    }

    // A task is a run of periods of one signal, in period order then signal order.
    void Work(const std::stop_token& stop) {
        const size_t K = m_signals.record.size();
        double sa[kPeriodsPerTask];
        while (!stop.stop_requested()) {
            const size_t task = m_nextTask.fetch_add(1);
            if (task >= m_tasks) {
                return;
            }
            const size_t first = task / K * kPeriodsPerTask;
            const size_t count = std::min(kPeriodsPerTask, m_T.size() - first);
            const size_t k = task % K;
            seisplot::AccelerationOrdinates(*m_signals.record[k], m_flat[k], m_damping,
                                            {&m_T[first], count}, {sa, count}, 1);
            for (size_t j = first; j < first + count; ++j) {
                m_values[j * K + k] = sa[j - first];
            }
            {
                const std::lock_guard guard(m_mutex);
                for (size_t j = first; j < first + count; ++j) {
                    --m_left[j];
                }
            }
            m_changed.notify_one();
        }
    }

    const std::vector<double>& m_T;
    const Signals& m_signals;
    const double m_damping;
    std::vector<double> m_values;
    std::vector<int> m_left; // ordinates still to compute, per period
    const size_t m_tasks;
    std::vector<seisplot::FlatRecord> m_flat; // of each signal
    std::atomic<size_t> m_nextTask{0};
    std::mutex m_mutex;
    std::condition_variable m_changed;
};

} // namespace

CString EnvelopeRunTitle(const EnvelopeCriteria& c) {
    CString title =
        c.PeriodSource == EnvelopeCriteria::StructuralModes ? "Structural Modes - " : "Generic - ";
    if (c.Statistic == EnvelopeCriteria::CompleteEnvelope) {
        title += "Complete Envelope - ";
    } else {
        title.AppendFormat("Envelope %7.3lf percentile - ", c.Percentile);
    }
    title.AppendFormat("Damping %6.3lf", c.Damping);
    return title;
}

EnvelopeOutcome ComputeEnvelopeSpectrum(const EnvelopeCriteria& criteria, AccelerogramColl& records,
                                        const std::vector<bool>& recordChecked,
                                        const EnvelopeModes& modes, SpectrumColl& spectra,
                                        PCurve& track, CProgressCtrl* progress, unsigned threads) {
    const CString title = EnvelopeRunTitle(criteria);
    track.Clear();
    track.SetName("Track of signals");
    track.XName = "T (sec)";
    track.YName = "Accelerogram #";
    track.XUnit = seisplot::UnitKind::Time;
    track.YUnit = seisplot::UnitKind::PureNumber;

    // The oscillator has no spectrum at or beyond critical damping.
    if (!(criteria.Damping < 1.0) || criteria.Damping < 0.0) {
        Stop("Error the damping must be at least 0 and less than 1 (100% of critical)");
        return EnvelopeOutcome::Stopped;
    }
    std::vector<double> T;
    if (!BuildGrid(criteria, modes, T)) {
        return EnvelopeOutcome::Stopped;
    }

    const unsigned long count = records.GetAccelerogramNum();
    long checkedCount = 0;
    for (unsigned long i = 1; i <= count; ++i) {
        checkedCount += (i - 1 < recordChecked.size() && recordChecked[i - 1]) ? 1 : 0;
    }
    if (checkedCount == 0) {
        AfxMessageBox(kNoRecordMessage);
        return EnvelopeOutcome::Stopped;
    }
    if (criteria.SignalUse == EnvelopeCriteria::ComposedPairs && checkedCount % 2 != 0) {
        Stop("Error to compose accelerograms the number of selected accelerograms must be even");
        return EnvelopeOutcome::Stopped;
    }

    Signals signals;
    if (criteria.SignalUse == EnvelopeCriteria::ComposedPairs) {
        long pairs = 0;
        if (!PairRecords(records, recordChecked, pairs) ||
            !ComposePairs(records, recordChecked, checkedCount / 2, criteria.Direction, signals)) {
            return EnvelopeOutcome::Stopped;
        }
    } else {
        for (unsigned long i = 1; i <= count; ++i) {
            if (i - 1 < recordChecked.size() && recordChecked[i - 1]) {
                signals.record.push_back(records.GetP(i));
                signals.number.push_back(static_cast<long>(i));
            }
        }
    }
    // A spectrum needs a record with at least two points over some duration.
    const bool anyPeriod = std::any_of(T.begin(), T.end(), [](double t) { return t != 0.0; });
    for (const Accelerogram* s : signals.record) {
        if (anyPeriod && !(s->Record.GetNP() >= 2 && s->Record.GetMaxX() > s->Record.GetMinX())) {
            CString text;
            text.Format("Error accelerogram %s has too few points for a spectrum",
                        s->GetFileIdentifier().GetString());
            AfxMessageBox(text);
            return EnvelopeOutcome::Stopped;
        }
    }

    Spectrum envelope;
    envelope.SetName(title);
    envelope.SetType(2);
    envelope.SetDamp(criteria.Damping);
    CString curveName;
    curveName.Format("Envelope Spectrum (%ld signals)", checkedCount);
    envelope.Curve.SetName(curveName);
    envelope.Curve.XName = "Period T (sec)";
    envelope.Curve.YName = "Se,a(T) [g]";
    envelope.Curve.XUnit = seisplot::UnitKind::Time;
    envelope.Curve.YUnit = seisplot::UnitKind::PureNumber;

    auto* heard = dynamic_cast<EnvelopeProgress*>(progress);
    if (progress) {
        progress->SetRange(0, static_cast<short>(T.size()));
        progress->SetStep(1);
        progress->SetPos(0);
    }
    const size_t K = signals.record.size();
    bool finished = false;
    try {
        CWaitCursor wait;
        OrdinateRun run(T, signals, criteria.Damping);
        finished = run.Run(threads, heard, [&](size_t j, const double* values) {
            if (progress) {
                progress->StepIt();
            }
            double value = 0.0;
            if (criteria.Statistic == EnvelopeCriteria::CompleteEnvelope) {
                long winner = signals.number.front();
                for (size_t k = 0; k < K; ++k) {
                    if (values[k] > value) {
                        value = values[k];
                        winner = signals.number[k];
                    }
                }
                track.AddPoint(T[j], static_cast<double>(winner));
            } else {
                value = Percentile(std::vector<double>(values, values + K), criteria.Percentile);
            }
            envelope.Curve.AddPoint(T[j], value);
        });
    } catch (...) {
        // A failed run leaves no half track behind.
        track.Clear();
        if (progress) {
            progress->SetPos(0);
        }
        throw;
    }
    if (progress) {
        progress->SetPos(0);
    }
    if (!finished) {
        track.Clear();
        return EnvelopeOutcome::Cancelled;
    }
    AfxMessageBox("OK!");
    spectra.AddSpectrum(envelope);
    return EnvelopeOutcome::Added;
}

Ec8Rating MatchEc8SoilClasses(Spectrum& spectrum) {
    Ec8Rating rating;
    const PCurve& c = spectrum.Curve;
    rating.Peak = c.GetMaxY();
    rating.Damping = spectrum.GetDamp();
    rating.Name = spectrum.GetName();
    const double ag = c.GetNP() > 0 ? c[0].GetY() : 0.0;
    const char* verdicts[5] = {"OK ", "OK ", "OK ", "OK ", "OK "};
    for (int i = 0; i < c.GetNP(); ++i) {
        const double T = c[i].GetX();
        const double y = c[i].GetY();
        for (int k = 0; k < 5; ++k) {
            double sk = 0.0;
            spectrum.GetSpettro_EC8(ag, rating.Damping, k, 1.0, T, 1.0, &sk);
            if (0.9 * y > sk) {
                verdicts[k] = "NO ";
            }
        }
        if (y == rating.Peak) {
            rating.PeakPeriod = T;
            break;
        }
    }
    const char* const names[5] = {"A", "B", "C", "D", "E"};
    for (int k = 0; k < 5; ++k) {
        rating.Verdict.AppendFormat("Soil %s:%s", names[k], verdicts[k]);
    }
    return rating;
}
