// The Duhamel recursion of IntegrateResponse (Simpson's rule, unit mass) with one period per
// SIMD lane, compiled for every instruction set Highway knows and chosen at run time.
//
// Each lane repeats the scalar arithmetic operation for operation: the same constants, the
// same running sums for time and phase, the cosine and sine evaluated by the C library at the
// same anchor steps and rotated in between, the record walked forward from the same cursor.
// Products and sums are written as separate Mul and Add (never MulAdd) and the file is
// compiled without contraction, so no fused multiply-add rounds differently.
//
// Each lane takes the next period from a shared queue, longest first, and only at an anchor
// step, so that all lanes evaluate cosine and sine together. Once the queue is empty and only a
// few lanes still work, those finish on the scalar kernel from where they stand: a pass over
// every lane would cost more.
//
// Periods that share their step with others (every period whose step is the record's mean
// interval) read the record from values sampled once for all of them by the same walk
// (SampleRecord): one gather a step instead of a walk of their own.

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "records/OscillatorLanes.cpp"
#include <hwy/foreach_target.h> // IWYU pragma: keep

#include <hwy/highway.h>

#include "records/OscillatorKernel.h"
#include "records/OscillatorLanes_p.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <utility>

HWY_BEFORE_NAMESPACE();
namespace seisplot {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

using D = hn::ScalableTag<double>;
using DI = hn::RebindToSigned<D>;
using V = hn::Vec<D>;
using VI = hn::Vec<DI>;

constexpr size_t kMostLanes = HWY_MAX_BYTES / sizeof(double);

// The state of every lane between two anchors, and what each lane multiplies by.
struct LaneState {
    HWY_ALIGN double x[kMostLanes];     // time of the current step
    HWY_ALIGN double theta[kMostLanes]; // phase of the current step
    // Steps i-1 and i-2: acceleration, cosine, sine and the two partial sums.
    HWY_ALIGN double a1[kMostLanes];
    HWY_ALIGN double c1[kMostLanes];
    HWY_ALIGN double s1[kMostLanes];
    HWY_ALIGN double A1[kMostLanes];
    HWY_ALIGN double B1[kMostLanes];
    HWY_ALIGN double a2[kMostLanes];
    HWY_ALIGN double c2[kMostLanes];
    HWY_ALIGN double s2[kMostLanes];
    HWY_ALIGN double A2[kMostLanes];
    HWY_ALIGN double B2[kMostLanes];
    HWY_ALIGN double umax[kMostLanes];
    // The record cursor: segment k, its start time and end time, start value and slope.
    HWY_ALIGN int64_t k[kMostLanes];
    HWY_ALIGN double tk[kMostLanes];
    HWY_ALIGN double tk1[kMostLanes];
    HWY_ALIGN double ak[kMostLanes];
    HWY_ALIGN double sk[kMostLanes];
    // Or the record sampled at the lane's steps: the index of the current step's value, 1 to
    // move on by (0 for a lane that walks), and 1.0 for a lane that reads samples.
    HWY_ALIGN int64_t sample[kMostLanes];
    HWY_ALIGN int64_t sampleStep[kMostLanes];
    HWY_ALIGN double sampled[kMostLanes];
    // Constants of the lane's period.
    HWY_ALIGN double h[kMostLanes];
    HWY_ALIGN double delta[kMostLanes];
    HWY_ALIGN double cosDelta[kMostLanes];
    HWY_ALIGN double sinDelta[kMostLanes];
    HWY_ALIGN double E2[kMostLanes];
    HWY_ALIGN double fourE[kMostLanes];
    HWY_ALIGN double F[kMostLanes];
    // Steps still to integrate, as a double for the comparison with the step number.
    HWY_ALIGN double left[kMostLanes];
    // Scratch for the anchors.
    HWY_ALIGN double cosine[kMostLanes];
    HWY_ALIGN double sine[kMostLanes];
};

// Puts period `steps` into lane l, at rest before its first step, reading the record from
// samples[first] on, or walking it itself when `first` is negative.
void StartLane(LaneState& s, size_t l, const FlatRecord& record, double xi,
               const PeriodSteps& steps, int64_t first) {
    const StepConstants k = MakeStepConstants({1.0, steps.T, xi, steps.h, steps.n, 3});
    s.x[l] = s.theta[l] = 0.0;
    s.a1[l] = s.s1[l] = s.A1[l] = s.B1[l] = 0.0;
    s.a2[l] = s.s2[l] = s.A2[l] = s.B2[l] = 0.0;
    s.c1[l] = s.c2[l] = 1.0;
    s.umax[l] = 0.0;
    s.k[l] = 0;
    s.tk[l] = record.t[0];
    s.tk1[l] = record.t[1];
    s.ak[l] = record.a[0];
    s.sk[l] = record.slope[0];
    s.sample[l] = first < 0 ? 0 : first - 1;
    s.sampleStep[l] = first < 0 ? 0 : 1;
    s.sampled[l] = first < 0 ? 0.0 : 1.0;
    if (first >= 0) {
        s.tk1[l] = HUGE_VAL; // never walks
    }
    s.h[l] = steps.h;
    s.delta[l] = k.delta;
    s.cosDelta[l] = k.cosDelta;
    s.sinDelta[l] = k.sinDelta;
    s.E2[l] = k.E2;
    s.fourE[l] = k.fourE;
    s.F[l] = k.F;
    s.left[l] = steps.n;
}

// A lane without a period: still, within the record's first segment, so that it neither walks
// nor holds the others back at the record's ends. Nothing of it is read.
void ParkLane(LaneState& s, size_t l, const FlatRecord& record) {
    StartLane(s, l, record, 0.0, {1.0, 0.0, 0}, -1);
    s.x[l] = 0.5 * (record.t[0] + record.t[1]);
    s.delta[l] = s.sinDelta[l] = s.E2[l] = s.fourE[l] = s.F[l] = 0.0;
    s.cosDelta[l] = 1.0;
}

// Whether every lane stays strictly within the record's first and last times over the next
// anchor: time only grows, so its first and last steps decide.
bool WithinRecord(const FlatRecord& record, const LaneState& s) {
    const D d;
    const V h = hn::Load(d, s.h);
    V last = hn::Load(d, s.x);
    const V first = hn::Add(last, h);
    for (int step = 0; step < kAnchorSteps; ++step) {
        last = hn::Add(last, h);
    }
    return hn::AllTrue(d, hn::And(hn::Gt(first, hn::Set(d, record.t.front())),
                                  hn::Lt(last, hn::Set(d, record.t.back()))));
}

// One anchor's worth of steps (kAnchorSteps) for every lane. With `Partial`, a lane stops
// raising its peak after its last step. `Walk` and `Sampled` say whether some lane walks the
// record or reads samples; with `Edges`, a walking lane may reach the record's first or last
// time, which hold the value outside.
template <bool Partial, bool Edges, bool Walk, bool Sampled>
HWY_NOINLINE void Anchor(const FlatRecord& record, const double* samples, LaneState& s) {
    const D d;
    const DI di;
    const size_t lanes = hn::Lanes(d);
    const double* HWY_RESTRICT t = record.t.data();
    const double* HWY_RESTRICT acc = record.a.data();
    const double* HWY_RESTRICT slope = record.slope.data();
    const size_t last = record.t.size() - 1;
    const V t0 = hn::Set(d, t[0]);
    const V tLast = hn::Set(d, t[last]);
    const V a0 = hn::Set(d, acc[0]);
    const V aLast = hn::Set(d, acc[last]);
    const V twoPi = hn::Set(d, 4.0 * std::asin(1.0));
    const VI one = hn::Set(di, 1);

    V x = hn::Load(d, s.x), theta = hn::Load(d, s.theta);
    V a1 = hn::Load(d, s.a1), c1 = hn::Load(d, s.c1), s1 = hn::Load(d, s.s1);
    V A1 = hn::Load(d, s.A1), B1 = hn::Load(d, s.B1);
    V a2 = hn::Load(d, s.a2), c2 = hn::Load(d, s.c2), s2 = hn::Load(d, s.s2);
    V A2 = hn::Load(d, s.A2), B2 = hn::Load(d, s.B2);
    V umax = hn::Load(d, s.umax);
    VI k = hn::Load(di, s.k);
    VI sample = hn::Load(di, s.sample);
    const VI sampleStep = hn::Load(di, s.sampleStep);
    const auto sampled = hn::Gt(hn::Load(d, s.sampled), hn::Zero(d));
    V tk = hn::Load(d, s.tk), tk1 = hn::Load(d, s.tk1), ak = hn::Load(d, s.ak),
      sk = hn::Load(d, s.sk);
    const V h = hn::Load(d, s.h), delta = hn::Load(d, s.delta);
    const V cosDelta = hn::Load(d, s.cosDelta), sinDelta = hn::Load(d, s.sinDelta);
    const V E2 = hn::Load(d, s.E2), fourE = hn::Load(d, s.fourE), F = hn::Load(d, s.F);
    const V left = hn::Load(d, s.left);
    V c = hn::Zero(d), sn = hn::Zero(d);

    for (int step = 0; step < kAnchorSteps; ++step) {
        x = hn::Add(x, h);
        theta = hn::Add(theta, delta);
        theta = hn::IfThenElse(hn::Gt(theta, twoPi), hn::Sub(theta, twoPi), theta);
        if (step == 0) {
            hn::Store(theta, d, s.cosine);
            for (size_t l = 0; l < lanes; ++l) {
                const double phase = s.cosine[l];
                s.cosine[l] = std::cos(phase);
                s.sine[l] = std::sin(phase);
            }
            c = hn::Load(d, s.cosine);
            sn = hn::Load(d, s.sine);
        } else {
            const V nc = hn::Sub(hn::Mul(c, cosDelta), hn::Mul(sn, sinDelta));
            sn = hn::Add(hn::Mul(sn, cosDelta), hn::Mul(c, sinDelta));
            c = nc;
        }

        V a = hn::Zero(d);
        if constexpr (Walk) {
            // The record at x: its first or last value outside it, else the segment the cursor
            // reaches by walking forward while the segment's end lies before x.
            const auto low = hn::Le(x, t0);
            const auto high = hn::Ge(x, tLast);
            const auto inside = hn::Not(hn::Or(low, high));
            auto move = hn::Lt(tk1, x);
            if constexpr (Edges) {
                move = hn::And(inside, move);
            }
            if (!hn::AllFalse(d, move)) {
                do {
                    k = hn::Sub(k, hn::VecFromMask(di, hn::RebindMask(di, move)));
                    tk = hn::IfThenElse(move, tk1, tk);
                    tk1 = hn::GatherIndex(d, t, hn::Add(k, one));
                    move = hn::Lt(tk1, x);
                    if constexpr (Edges) {
                        move = hn::And(inside, move);
                    }
                } while (!hn::AllFalse(d, move));
                ak = hn::GatherIndex(d, acc, k);
                sk = hn::GatherIndex(d, slope, k);
            }
            a = hn::Add(ak, hn::Mul(hn::Sub(x, tk), sk));
            if constexpr (Edges) {
                a = hn::IfThenElse(high, aLast, a);
                a = hn::IfThenElse(low, a0, a);
            }
        }
        if constexpr (Sampled) {
            sample = hn::Add(sample, sampleStep);
            const V read = hn::GatherIndex(d, samples, sample);
            a = Walk ? hn::IfThenElse(sampled, read, a) : read;
        }

        // A = (A2 + a2·c2)·E2 + 4E·a1·c1 + a·c, and B alike with the sines.
        const V A = hn::Add(
            hn::Add(hn::Mul(hn::Add(A2, hn::Mul(a2, c2)), E2), hn::Mul(hn::Mul(fourE, a1), c1)),
            hn::Mul(a, c));
        const V B = hn::Add(
            hn::Add(hn::Mul(hn::Add(B2, hn::Mul(a2, s2)), E2), hn::Mul(hn::Mul(fourE, a1), s1)),
            hn::Mul(a, sn));
        const V u = hn::Abs(hn::Mul(F, hn::Sub(hn::Mul(A, sn), hn::Mul(B, c))));
        auto higher = hn::Lt(umax, u);
        if constexpr (Partial) {
            higher = hn::And(higher, hn::Lt(hn::Set(d, static_cast<double>(step)), left));
        }
        umax = hn::IfThenElse(higher, u, umax);

        a2 = a1, c2 = c1, s2 = s1, A2 = A1, B2 = B1;
        a1 = a, c1 = c, s1 = sn, A1 = A, B1 = B;
    }

    hn::Store(x, d, s.x);
    hn::Store(theta, d, s.theta);
    hn::Store(a1, d, s.a1);
    hn::Store(c1, d, s.c1);
    hn::Store(s1, d, s.s1);
    hn::Store(A1, d, s.A1);
    hn::Store(B1, d, s.B1);
    hn::Store(a2, d, s.a2);
    hn::Store(c2, d, s.c2);
    hn::Store(s2, d, s.s2);
    hn::Store(A2, d, s.A2);
    hn::Store(B2, d, s.B2);
    hn::Store(umax, d, s.umax);
    hn::Store(k, di, s.k);
    hn::Store(sample, di, s.sample);
    hn::Store(tk, d, s.tk);
    hn::Store(tk1, d, s.tk1);
    hn::Store(ak, d, s.ak);
    hn::Store(sk, d, s.sk);
}

// Finishes lane l's period with the scalar kernel, from where the lane stands.
double FinishAlone(const FlatRecord& record, double xi, const PeriodSteps& p, const LaneState& s,
                   size_t l) {
    OscillatorState state{
        s.x[l],  s.theta[l], s.a1[l], s.c1[l], s.s1[l], s.A1[l],   s.B1[l],
        s.a2[l], s.c2[l],    s.s2[l], s.A2[l], s.B2[l], s.umax[l], static_cast<int>(s.k[l])};
    const int done = p.n - static_cast<int>(s.left[l]);
    return ContinueResponse(record, {1.0, p.T, xi, p.h, p.n, 3}, done, state);
}

using AnchorFunction = void (*)(const FlatRecord&, const double*, LaneState&);

// Anchor<Partial, Edges, Walk, Sampled>, indexed by those flags (1, 2, 4, 8).
template <size_t... I> constexpr auto AnchorTable(std::index_sequence<I...>) {
    return std::array<AnchorFunction, sizeof...(I)>{
        &Anchor<(I & 1) != 0, (I & 2) != 0, (I & 4) != 0, (I & 8) != 0>...};
}

void PeaksInLanes(const FlatRecord& record, double xi, PeriodQueue& queue, double* peaks) {
    static constexpr auto anchors = AnchorTable(std::make_index_sequence<16>());
    const size_t lanes = hn::Lanes(D());
    // A pass over every lane costs about what a quarter of them cost one by one.
    const size_t fewest = std::max<size_t>(1, lanes / 4);
    LaneState s{};
    size_t job[kMostLanes] = {};
    bool busy[kMostLanes] = {};
    bool drained = false;
    for (size_t l = 0; l < lanes; ++l) {
        ParkLane(s, l, record);
    }
    for (;;) {
        bool partial = false;
        bool walk = false;
        bool sampled = false;
        size_t working = 0;
        for (size_t l = 0; l < lanes; ++l) {
            if (busy[l] && s.left[l] <= 0.0) {
                peaks[job[l]] = s.umax[l];
                busy[l] = false;
                ParkLane(s, l, record);
            }
            while (!busy[l] && !drained) {
                drained = !queue.Take(job[l]);
                if (drained) {
                    break;
                }
                StartLane(s, l, record, xi, queue[job[l]], queue.FirstSample(job[l]));
                busy[l] = s.left[l] > 0.0;
                if (!busy[l]) {
                    peaks[job[l]] = 0.0; // no step at all
                    ParkLane(s, l, record);
                }
            }
            if (busy[l]) {
                ++working;
                partial = partial || s.left[l] < kAnchorSteps;
                (s.sampled[l] != 0.0 ? sampled : walk) = true;
            }
        }
        if (drained && working <= fewest && !sampled) {
            for (size_t l = 0; l < lanes; ++l) {
                if (busy[l]) {
                    peaks[job[l]] = FinishAlone(record, xi, queue[job[l]], s, l);
                }
            }
            return;
        }
        if (working == 0) {
            return;
        }
        const bool edges = walk && !WithinRecord(record, s);
        anchors[(partial ? 1 : 0) | (edges ? 2 : 0) | (walk ? 4 : 0) | (sampled ? 8 : 0)](
            record, queue.Samples(), s);
        for (size_t l = 0; l < lanes; ++l) {
            s.left[l] -= kAnchorSteps;
        }
    }
}

int64_t ThisTarget() {
    return HWY_TARGET;
}

size_t ThisLaneCount() {
    return hn::Lanes(D());
}

} // namespace HWY_NAMESPACE
} // namespace seisplot
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace seisplot {

HWY_EXPORT(PeaksInLanes);
HWY_EXPORT(ThisTarget);
HWY_EXPORT(ThisLaneCount);

void PeaksInLanes(const FlatRecord& record, double xi, PeriodQueue& queue, double* peaks) {
    HWY_DYNAMIC_DISPATCH(PeaksInLanes)(record, xi, queue, peaks);
}

const char* LanesTarget() {
    return hwy::TargetName(HWY_DYNAMIC_DISPATCH(ThisTarget)());
}

size_t LaneCount() {
    return HWY_DYNAMIC_DISPATCH(ThisLaneCount)();
}

} // namespace seisplot
#endif
