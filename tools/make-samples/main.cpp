// make_samples: writes the synthetic ground-motion records bundled in data/samples.
//
//     make_samples OUTDIR
//
// Every record is computed, not measured: a sum of sinusoids whose amplitudes follow a
// Clough-Penzien spectrum (a Kanai-Tajimi soil filter with a high-pass filter against
// long-period drift), with random phases and frequencies between 0.3 and 15 Hz, multiplied by a
// Saragoni-Hart build-up and decay envelope, baseline-corrected so that the final velocity and
// displacement are zero, and scaled to a chosen peak ground acceleration.
//
// The output is the same byte for byte on every run: the random numbers come from our own
// splitmix64 generator with fixed seeds, and every number is written with snprintf. A summary
// of each file (samples, step, duration, PGA) is printed on standard output.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kGravityCm = 981.0; // cm/s² in one g, as the record library counts it
constexpr double kKmPerDegree = 111.195;

// splitmix64: small, well mixed, and the same everywhere.
class SplitMix64 {
public:
    explicit SplitMix64(std::uint64_t seed) : m_state(seed) {}

    std::uint64_t Next() {
        std::uint64_t z = (m_state += 0x9E3779B97F4A7C15ULL);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
        return z ^ (z >> 31);
    }
    // Uniform in [0, 1), 53 random bits.
    double Uniform() { return static_cast<double>(Next() >> 11) * 0x1.0p-53; }

private:
    std::uint64_t m_state;
};

// Clough-Penzien spectral shape: a Kanai-Tajimi soil filter (ground frequency and damping)
// followed by a second-order high-pass filter (filter frequency and damping).
struct SpectrumShape {
    double groundHz;
    double groundDamping;
    double filterHz;
    double filterDamping;

    double Density(double omega) const {
        const double wg = 2.0 * kPi * groundHz;
        const double wf = 2.0 * kPi * filterHz;
        const double w2 = omega * omega;
        const double soilNum =
            wg * wg * wg * wg + 4.0 * groundDamping * groundDamping * wg * wg * w2;
        const double soilDen =
            (wg * wg - w2) * (wg * wg - w2) + 4.0 * groundDamping * groundDamping * wg * wg * w2;
        const double highDen =
            (wf * wf - w2) * (wf * wf - w2) + 4.0 * filterDamping * filterDamping * wf * wf * w2;
        return (soilNum / soilDen) * (w2 * w2 / highDen);
    }
};

// Saragoni-Hart envelope (t/tp)^shape · exp(shape·(1 − t/tp)), which is 1 at the peak time tp,
// with a half-cosine taper over the last `taper` seconds of the record.
struct EnvelopeShape {
    double peakTime;
    double shape;
    double taper;

    double At(double t, double end) const {
        if (t <= 0.0) {
            return 0.0;
        }
        const double x = t / peakTime;
        double e = std::pow(x, shape) * std::exp(shape * (1.0 - x));
        if (t > end - taper) {
            const double u = std::min(1.0, (t - (end - taper)) / taper);
            e *= 0.5 * (1.0 + std::cos(kPi * u));
        }
        return e;
    }
};

struct MotionRecipe {
    std::uint64_t seed;
    SpectrumShape spectrum;
    EnvelopeShape envelope;
    double pgaG;         // target peak ground acceleration
    int components = 64; // sinusoids
    double lowHz = 0.3;  // band of the sinusoids
    double highHz = 15.0;
};

// Trapezoid weights of the time grid, for the integrals of the baseline correction.
std::vector<double> TrapezoidWeights(const std::vector<double>& t) {
    std::vector<double> w(t.size(), 0.0);
    for (size_t i = 1; i < t.size(); ++i) {
        const double h = 0.5 * (t[i] - t[i - 1]);
        w[i - 1] += h;
        w[i] += h;
    }
    return w;
}

// The acceleration in cm/s² at the times `t` (t[0] = 0).
std::vector<double> Synthesize(const MotionRecipe& recipe, const std::vector<double>& t) {
    SplitMix64 random(recipe.seed);
    const int k = recipe.components;
    const double logLow = std::log(recipe.lowHz);
    const double logStep = (std::log(recipe.highHz) - logLow) / k;

    // One sinusoid per logarithmic band: frequency drawn inside the band, amplitude from the
    // spectral density times the band width, random phase.
    std::vector<double> omega(static_cast<size_t>(k));
    std::vector<double> amplitude(static_cast<size_t>(k));
    std::vector<double> phase(static_cast<size_t>(k));
    for (int j = 0; j < k; ++j) {
        const double lo = std::exp(logLow + j * logStep);
        const double hi = std::exp(logLow + (j + 1) * logStep);
        const double f = std::exp(logLow + (j + random.Uniform()) * logStep);
        const auto s = static_cast<size_t>(j);
        omega[s] = 2.0 * kPi * f;
        amplitude[s] = std::sqrt(2.0 * recipe.spectrum.Density(omega[s]) * 2.0 * kPi * (hi - lo));
        phase[s] = 2.0 * kPi * random.Uniform();
    }

    const double end = t.back();
    std::vector<double> envelope(t.size());
    std::vector<double> a(t.size());
    for (size_t i = 0; i < t.size(); ++i) {
        double sum = 0.0;
        for (size_t s = 0; s < omega.size(); ++s) {
            sum += amplitude[s] * std::cos(omega[s] * t[i] + phase[s]);
        }
        envelope[i] = recipe.envelope.At(t[i], end);
        a[i] = envelope[i] * sum;
    }

    // Baseline: subtract c1·e(t) + c2·e(t)·t/T so that the final velocity ∫a dt and the final
    // displacement ∫(T − t)·a dt are both zero. Both shapes vanish at the ends, so the record
    // still starts and ends at rest.
    const std::vector<double> w = TrapezoidWeights(t);
    double v0 = 0.0, d0 = 0.0, v1 = 0.0, d1 = 0.0, v2 = 0.0, d2 = 0.0;
    for (size_t i = 0; i < t.size(); ++i) {
        const double g1 = envelope[i];
        const double g2 = envelope[i] * t[i] / end;
        const double lever = end - t[i];
        v0 += w[i] * a[i];
        d0 += w[i] * lever * a[i];
        v1 += w[i] * g1;
        d1 += w[i] * lever * g1;
        v2 += w[i] * g2;
        d2 += w[i] * lever * g2;
    }
    const double det = v1 * d2 - v2 * d1;
    const double c1 = (v0 * d2 - v2 * d0) / det;
    const double c2 = (v1 * d0 - v0 * d1) / det;
    double peak = 0.0;
    for (size_t i = 0; i < t.size(); ++i) {
        a[i] -= c1 * envelope[i] + c2 * envelope[i] * t[i] / end;
        peak = std::max(peak, std::fabs(a[i]));
    }

    const double scale = recipe.pgaG * kGravityCm / peak;
    for (double& v : a) {
        v *= scale;
    }
    a[0] = 0.0; // exactly at rest at the first sample
    return a;
}

std::vector<double> UniformTimes(int n, double dt) {
    std::vector<double> t(static_cast<size_t>(n));
    for (int i = 0; i < n; ++i) {
        t[static_cast<size_t>(i)] = i * dt;
    }
    return t;
}

std::string Format(const char* format, double value) {
    char buffer[64];
    // + 0.0 turns a negative zero into zero, so no "-0.000000E+00" is written.
    std::snprintf(buffer, sizeof buffer, format, value + 0.0);
    return buffer;
}

std::string SeedText(std::uint64_t seed) {
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "0x%016llX", static_cast<unsigned long long>(seed));
    return buffer;
}

// What was written, read back from the written text, for the summary.
struct Written {
    std::string file;
    std::string kind;
    std::string units;
    size_t samples = 0;
    double step = 0.0; // 0 when the step varies
    double minStep = 0.0;
    double maxStep = 0.0;
    double duration = 0.0;
    double pgaG = 0.0;
    double pgaTime = 0.0;
};

void Measure(Written& out, const std::vector<double>& t, const std::vector<double>& a,
             double unitsPerG) {
    out.samples = a.size();
    out.duration = t.back() - t.front();
    out.minStep = 1e300;
    out.maxStep = 0.0;
    for (size_t i = 1; i < t.size(); ++i) {
        out.minStep = std::min(out.minStep, t[i] - t[i - 1]);
        out.maxStep = std::max(out.maxStep, t[i] - t[i - 1]);
    }
    double peak = 0.0;
    for (size_t i = 0; i < a.size(); ++i) {
        if (std::fabs(a[i]) > peak) {
            peak = std::fabs(a[i]);
            out.pgaTime = t[i];
        }
    }
    out.pgaG = peak / unitsPerG;
}

void WriteText(const std::filesystem::path& path, const std::string& text) {
    std::ofstream file(path, std::ios::binary);
    file << text;
    if (!file) {
        std::cerr << "make_samples: cannot write " << path << "\n";
        std::exit(1);
    }
}

struct Event {
    const char* name;
    const char* id;
    const char* date; // YYYYMMDD
    const char* time; // HHMMSS
    double latitude;
    double longitude;
    double depthKm;
    double mw;
    double ml;
};

struct Station {
    const char* network;
    const char* code;
    const char* name;
    const char* siteClass;
    double epicentralKm;
    double backazimuth; // from the station towards the epicentre, degrees from north
};

// One ITACA ASCII component file.
struct Component {
    std::string fileName;
    std::string eventNameSuffix; // the rotated files carry their processing suffix
    std::string stream;
    std::string note; // USER2
};

Written WriteAsc(const std::filesystem::path& dir, const Event& event, const Station& station,
                 const Component& component, double dt, const std::vector<double>& data,
                 const std::string& seeds) {
    // The values as they will be read: the written text, parsed back.
    std::vector<std::string> lines(data.size());
    std::vector<double> values(data.size());
    for (size_t i = 0; i < data.size(); ++i) {
        lines[i] = Format("%.6E", data[i]);
        values[i] = std::strtod(lines[i].c_str(), nullptr);
    }
    const std::vector<double> t = UniformTimes(static_cast<int>(data.size()), dt);
    Written out;
    out.file = component.fileName;
    out.kind = "ITACA ASCII, stream " + component.stream;
    out.units = "cm/s^2";
    Measure(out, t, values, kGravityCm);
    out.step = dt;

    // The station lies at the epicentral distance, opposite the backazimuth.
    const double away = (station.backazimuth + 180.0) * kPi / 180.0;
    const double stationLat = event.latitude + station.epicentralKm * std::cos(away) / kKmPerDegree;
    const double stationLon =
        event.longitude + station.epicentralKm * std::sin(away) /
                              (kKmPerDegree * std::cos(event.latitude * kPi / 180.0));

    std::string text;
    auto line = [&text](const std::string& key, const std::string& value) {
        text += key;
        text += ' ';
        text += value;
        text += '\n';
    };
    line("EVENT_NAME:", std::string(event.name) + component.eventNameSuffix);
    line("EVENT_ID:", event.id);
    line("EVENT_DATE_YYYYMMDD:", event.date);
    line("EVENT_TIME_HHMMSS:", event.time);
    line("EVENT_LATITUDE_DEGREE:", Format("%.4f", event.latitude));
    line("EVENT_LONGITUDE_DEGREE:", Format("%.4f", event.longitude));
    line("EVENT_DEPTH_KM:", Format("%.1f", event.depthKm));
    line("MAGNITUDE_W:", Format("%.1f", event.mw));
    line("MAGNITUDE_L:", Format("%.1f", event.ml));
    line("NETWORK:", station.network);
    line("STATION_CODE:", station.code);
    line("STATION_NAME:", station.name);
    line("STATION_LATITUDE_DEGREE:", Format("%.4f", stationLat));
    line("STATION_LONGITUDE_DEGREE:", Format("%.4f", stationLon));
    line("SITE_CLASSIFICATION_EC8:", station.siteClass);
    line("EPICENTRAL_DISTANCE_KM:", Format("%.1f", station.epicentralKm));
    line("EARTHQUAKE_BACKAZIMUTH_DEGREE:", Format("%.1f", station.backazimuth));
    line("SAMPLING_INTERVAL_S:", Format("%.6f", dt));
    line("NDATA:", std::to_string(data.size()));
    line("DURATION_S:", Format("%.3f", out.duration));
    line("STREAM:", component.stream);
    line("UNITS:", "cm/s^2");
    line("DATA_TYPE:", "ACCELERATION");
    line("PGA_CM/S^2:", Format("%.6f", out.pgaG * kGravityCm));
    line("TIME_PGA_S:", Format("%.6f", out.pgaTime));
    line("USER1:", "synthetic record made by make_samples, not a recording of a real earthquake");
    line("USER2:", component.note);
    line("USER3:", seeds);
    line("USER4:", "Clough-Penzien spectrum, Saragoni-Hart envelope, baseline corrected");
    line("USER5:", "");
    for (const std::string& l : lines) {
        text += l;
        text += '\n';
    }
    WriteText(dir / component.fileName, text);
    return out;
}

// A two-column file: time in s, acceleration in `units` (cm/s^2 or m/s^2).
Written WriteTwoColumn(const std::filesystem::path& dir, const std::string& fileName,
                       const std::string& description, const std::vector<double>& t,
                       const std::vector<double>& accelerationCm, const std::string& units,
                       const char* timeFormat, std::uint64_t seed) {
    const double perCm = units == "m/s^2" ? 0.01 : 1.0;
    std::vector<double> values(t.size());
    std::string body;
    for (size_t i = 0; i < t.size(); ++i) {
        const std::string time = Format(timeFormat, t[i]);
        const std::string value = Format("%.6E", accelerationCm[i] * perCm);
        values[i] = std::strtod(value.c_str(), nullptr);
        body += time;
        body += "  ";
        body += value;
        body += '\n';
    }
    Written out;
    out.file = fileName;
    out.kind = "two columns";
    out.units = units;
    Measure(out, t, values, kGravityCm * perCm);
    out.step = out.maxStep - out.minStep < 1e-9 ? out.minStep : 0.0;

    std::string text;
    text += "# Synthetic ground acceleration made by make_samples; not a recording of a real "
            "earthquake.\n";
    text += "# " + description + "\n";
    text += "# Clough-Penzien spectrum, Saragoni-Hart envelope, baseline corrected, seed " +
            SeedText(seed) + ".\n";
    text += "# Units: time in s, acceleration in " + units + ".\n";
    text += "# " + std::to_string(t.size()) + " samples, PGA " + Format("%.4f", out.pgaG) +
            " g at " + Format("%.4f", out.pgaTime) + " s.\n";
    text += "# time  acceleration\n";
    text += body;
    WriteText(dir / fileName, text);
    return out;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: make_samples OUTDIR\n";
        return 2;
    }
    const std::filesystem::path dir = argv[1];
    std::error_code error;
    std::filesystem::create_directories(dir, error);
    if (error) {
        std::cerr << "make_samples: cannot create " << dir << ": " << error.message() << "\n";
        return 1;
    }

    std::vector<Written> written;

    // Event A: a moderate shallow event recorded near the source on firm ground, 200 samples
    // per second for 40 s. Its horizontal pair is also written rotated to radial and
    // transverse, with its vertical as the matching up component.
    {
        const Event event{"SYNTHETIC_VALLE_FITTIZIA",
                          "SYN.20170412.0309",
                          "20170412",
                          "030912",
                          43.0127,
                          12.8741,
                          9.8,
                          5.6,
                          5.4};
        const Station station{"XX", "SY01", "SYNTHETIC STATION ONE", "B (synthetic)", 18.4, 212.0};
        const double dt = 0.005;
        const std::vector<double> t = UniformTimes(8001, dt);
        const SpectrumShape horizontal{2.5, 0.6, 0.25, 0.6};
        const SpectrumShape vertical{6.0, 0.5, 0.35, 0.6};
        const MotionRecipe e{0x5EED0A01ULL, horizontal, {5.0, 1.0, 1.0}, 0.21};
        const MotionRecipe n{0x5EED0A02ULL, horizontal, {5.0, 1.0, 1.0}, 0.18};
        const MotionRecipe z{0x5EED0A03ULL, vertical, {4.0, 1.0, 1.0}, 0.09};
        const std::vector<double> ae = Synthesize(e, t);
        const std::vector<double> an = Synthesize(n, t);
        const std::vector<double> az = Synthesize(z, t);
        written.push_back(WriteAsc(dir, event, station,
                                   {"SYNA_SY01_HNE.ASC", "", "HNE", "east-west component"}, dt, ae,
                                   "seed " + SeedText(e.seed)));
        written.push_back(WriteAsc(dir, event, station,
                                   {"SYNA_SY01_HNN.ASC", "", "HNN", "north-south component"}, dt,
                                   an, "seed " + SeedText(n.seed)));
        written.push_back(WriteAsc(dir, event, station,
                                   {"SYNA_SY01_HNZ.ASC", "", "HNZ", "vertical component"}, dt, az,
                                   "seed " + SeedText(z.seed)));

        // Radial (towards the epicentre) and transverse, from the east and north components.
        const double b = station.backazimuth * kPi / 180.0;
        std::vector<double> radial(t.size());
        std::vector<double> transverse(t.size());
        for (size_t i = 0; i < t.size(); ++i) {
            radial[i] = ae[i] * std::sin(b) + an[i] * std::cos(b);
            transverse[i] = -ae[i] * std::cos(b) + an[i] * std::sin(b);
        }
        written.push_back(WriteAsc(
            dir, event, station,
            {"SYNA_SY01_HNR.RA", ".r2d.rac.acc.RA", "HNR",
             "radial component, HNE and HNN rotated by the backazimuth"},
            dt, radial, "seeds " + SeedText(e.seed) + " (HNE) and " + SeedText(n.seed) + " (HNN)"));
        written.push_back(
            WriteAsc(dir, event, station,
                     {"SYNA_SY01_HNT.TR", ".l2d.tac.acc.TR", "HNT",
                      "transverse component, HNE and HNN rotated by the backazimuth"},
                     dt, transverse,
                     "seeds " + SeedText(e.seed) + " (HNE) and " + SeedText(n.seed) + " (HNN)"));
        written.push_back(WriteAsc(dir, event, station,
                                   {"SYNA_SY01_HNZ.UP", ".r2d.zac.acc.UP", "HNZ",
                                    "up component, the same data as SYNA_SY01_HNZ.ASC"},
                                   dt, az, "seed " + SeedText(z.seed)));
    }

    // Event B: a larger, more distant event on softer ground, 100 samples per second for 50 s.
    {
        const Event event{"SYNTHETIC_PIANA_IMMAGINARIA",
                          "SYN.20190926.1744",
                          "20190926",
                          "174403",
                          41.6873,
                          14.2216,
                          14.5,
                          6.1,
                          5.9};
        const Station station{"XX", "SY02", "SYNTHETIC STATION TWO", "C (synthetic)", 42.0, 47.0};
        const double dt = 0.01;
        const std::vector<double> t = UniformTimes(5001, dt);
        const SpectrumShape horizontal{1.5, 0.5, 0.2, 0.6};
        const SpectrumShape vertical{4.5, 0.5, 0.3, 0.6};
        const MotionRecipe e{0x5EED0B01ULL, horizontal, {9.0, 1.5, 1.5}, 0.07};
        const MotionRecipe n{0x5EED0B02ULL, horizontal, {9.0, 1.5, 1.5}, 0.085};
        const MotionRecipe z{0x5EED0B03ULL, vertical, {7.0, 1.2, 1.5}, 0.055};
        written.push_back(WriteAsc(dir, event, station,
                                   {"SYNB_SY02_HNE.ASC", "", "HNE", "east-west component"}, dt,
                                   Synthesize(e, t), "seed " + SeedText(e.seed)));
        written.push_back(WriteAsc(dir, event, station,
                                   {"SYNB_SY02_HNN.ASC", "", "HNN", "north-south component"}, dt,
                                   Synthesize(n, t), "seed " + SeedText(n.seed)));
        written.push_back(WriteAsc(dir, event, station,
                                   {"SYNB_SY02_HNZ.ASC", "", "HNZ", "vertical component"}, dt,
                                   Synthesize(z, t), "seed " + SeedText(z.seed)));
    }

    // Two-column records: one at a constant step in cm/s^2, one at a slightly varying step
    // (0.0075 s ± 4 %) in m/s^2.
    {
        const MotionRecipe recipe{0x5EED0C01ULL, {3.0, 0.6, 0.25, 0.6}, {4.0, 1.0, 1.0}, 0.32};
        const std::vector<double> t = UniformTimes(6001, 0.005);
        written.push_back(WriteTwoColumn(
            dir, "synthetic_constant_step.txt",
            "Horizontal component, constant step 0.005 s (200 samples per second), 30 s.", t,
            Synthesize(recipe, t), "cm/s^2", "%.4f", recipe.seed));
    }
    {
        const MotionRecipe recipe{0x5EED0D01ULL, {2.0, 0.6, 0.25, 0.6}, {6.0, 2.0, 1.5}, 0.12};
        // Times as written (six decimals), so the motion is evaluated where it is read.
        std::vector<double> t{0.0};
        double time = 0.0;
        for (int i = 0; time < 25.0; ++i) {
            time += 0.0075 * (1.0 + 0.04 * std::sin(2.0 * kPi * i / 700.0));
            t.push_back(std::strtod(Format("%.6f", time).c_str(), nullptr));
        }
        written.push_back(WriteTwoColumn(
            dir, "synthetic_varying_step.plt",
            "Horizontal component, step varying smoothly between 0.0072 and 0.0078 s, 25 s.", t,
            Synthesize(recipe, t), "m/s^2", "%.6f", recipe.seed));
    }

    std::printf("%-28s %-26s %-7s %6s %-17s %9s %8s %8s\n", "file", "kind", "units", "NP",
                "step (s)", "duration", "PGA (g)", "at (s)");
    for (const Written& w : written) {
        char step[64];
        if (w.step > 0.0) {
            std::snprintf(step, sizeof step, "%.4f", w.step);
        } else {
            std::snprintf(step, sizeof step, "%.6f-%.6f", w.minStep, w.maxStep);
        }
        std::printf("%-28s %-26s %-7s %6zu %-17s %9.3f %8.4f %8.3f\n", w.file.c_str(),
                    w.kind.c_str(), w.units.c_str(), w.samples, step, w.duration, w.pgaG,
                    w.pgaTime);
    }
    return 0;
}
