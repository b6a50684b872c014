#pragma once
// The envelope spectrum of a set of records, and the rating of a spectrum against the EC8
// elastic spectra of the five soil classes: the computations behind the envelope dialog,
// usable without it.

#include "platform/core/CProgressCtrl.h"
#include "records/AccelerogramColl.h"
#include "spectra/SpectrumColl.h"

#include <vector>

// The settings of one run (the dialog's members, with a new dialog's defaults).
// The three choices are held as the numbers of the dialog's radio buttons.
struct EnvelopeCriteria {
    enum PeriodSourceCode {
        StructuralModes = 0, // the checked natural periods of the structure
        RegularGrid = 1,
    };
    enum SignalUseCode {
        EachRecord = 0,    // each checked record is a signal
        ComposedPairs = 1, // the horizontal records of an event composed in pairs
    };
    enum StatisticCode {
        CompleteEnvelope = 0, // the largest ordinate
        PercentileEnvelope = 1,
    };

    int PeriodSource = StructuralModes;
    double MaxPeriod = 0.0;  // s, last period of the regular grid
    double PeriodStep = 0.0; // s, step of the regular grid
    double Damping = 0.05;   // fraction of critical; a run refuses 1 or more
    int SignalUse = EachRecord;
    double Direction = 0.0; // degrees from W towards E, counter-clockwise: direction of a pair
    int Statistic = CompleteEnvelope;
    double Percentile = 95.0; // %, kept for a percentile envelope
};

// The structure's modes: M natural periods (s) and 3·M participation fractions (X, Y, Z of
// each mode, shown only), with one check state per mode.
struct EnvelopeModes {
    std::vector<double> Periods;
    std::vector<double> Shares;
    std::vector<bool> Checked;
};

// A progress bar that a run can also hear from while it works and that can stop it.
class EnvelopeProgress : public CProgressCtrl {
public:
    // Asked at least every 0.2 s; true ends the run without adding a spectrum.
    virtual bool Cancelled() { return false; }
    // Called at least every 0.2 s while the run works, on the thread that started it.
    virtual void Heartbeat() {}
};

enum class EnvelopeOutcome { Added, Stopped, Cancelled };

// The run title: "Generic - Envelope  84.000 percentile - Damping  0.050" and the like.
CString EnvelopeRunTitle(const EnvelopeCriteria& criteria);

// One run. Shows its own messages; on success shows "OK!" and appends the envelope spectrum
// to `spectra`. `track` is emptied and, for a complete envelope, gets the number of the
// signal that gave each maximum. Records are read, their AnalysisId written (pairs) and
// their selection flag of view 5 used as scratch. `recordChecked[i]` is the check state of
// record i + 1. `progress` may be null; when it is an EnvelopeProgress it is also told how
// the run goes and may cancel it. The ordinates are computed on `threads` threads (0: one
// per processor); the result is the same for any number. A memory failure or a worker that
// cannot start raises CMemoryException* or CResourceException* on the calling thread, with
// every worker stopped, nothing appended and the track empty.
EnvelopeOutcome ComputeEnvelopeSpectrum(const EnvelopeCriteria& criteria, AccelerogramColl& records,
                                        const std::vector<bool>& recordChecked,
                                        const EnvelopeModes& modes, SpectrumColl& spectra,
                                        PCurve& track, CProgressCtrl* progress,
                                        unsigned threads = 0);

struct Ec8Rating {
    double Peak = 0.0;       // largest ordinate
    double PeakPeriod = 0.0; // period of its first occurrence
    double Damping = 0.0;
    CString Name;
    CString Verdict; // "Soil A:OK Soil B:NO Soil C:OK Soil D:OK Soil E:OK "
};

// Rates a spectrum against the EC8 elastic spectra of soil classes A to E, anchored at its
// first ordinate, up to the first point of its peak.
Ec8Rating MatchEc8SoilClasses(Spectrum& spectrum);
