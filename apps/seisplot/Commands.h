#pragma once
// The subcommands of seisplot. Each has its options, a function that runs it and prints its
// results to `out` (so the demo can run it too), and a function that declares it on the
// command line. A run that cannot do its work throws CommandError.

#include "CommandLine.h"
#include "PlotFiles.h"

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace seisplot::cli {

// import FILE... -o SET.acc
struct ImportOptions {
    std::vector<std::string> files;
    std::string output;
    bool append = false;
    std::string units; // length unit of two-column files; empty: ask
    bool rebaseTime = false;
    bool quiet = false;
    FormatFlags format;
};
void RunImport(const ImportOptions& options, std::ostream& out);
void AddImportCommand(CLI::App& app, Action& action);

// list SET.acc, show SET.acc N
struct ListOptions {
    std::string set;
    FormatFlags format;
};
void RunList(const ListOptions& options, std::ostream& out);
struct ShowOptions {
    std::string set;
    unsigned long record = 0;
    FormatFlags format;
};
void RunShow(const ShowOptions& options, std::ostream& out);
// plot SET.acc N --plot FILE
struct RecordPlotOptions {
    std::string set;
    unsigned long record = 0;
    PlotOptions plot;
};
void RunRecordPlot(const RecordPlotOptions& options, std::ostream& out);
void AddRecordCommands(CLI::App& app, Action& action);

// sinusoids -o SET.acc, rotate SET.acc NX [NY] --angle DEG -o SET.acc
struct SinusoidOptions {
    unsigned long count = 100;
    double step = 0.025;
    unsigned long periods = 10;
    unsigned long points = 100;
    double amplitude = 0.2;
    std::string output;
    bool append = false;
};
void RunSinusoids(const SinusoidOptions& options, std::ostream& out);
struct RotateOptions {
    std::string set;
    unsigned long x = 0;
    std::optional<unsigned long> y;
    double angle = 0.0;
    std::string output;
    bool force = false; // compose records of different events or samplings
};
void RunRotate(const RotateOptions& options, std::ostream& out);
void AddGenerateCommands(CLI::App& app, Action& action);

// spectrum SET.acc N, code ec8|ntc
struct SpectrumOptions {
    std::string set;
    unsigned long record = 0;
    std::string kind = "acc";
    double damping = 0.05;
    std::optional<double> dampingMax;
    std::optional<double> dampingStep;
    double maxPeriod = 4.0;
    double periodStep = 0.01;
    PlotOptions plot;
    std::optional<std::string> curves; // --pcc or --pmc FILE: the spectra as a curve collection
    FormatFlags format;
};
void RunSpectrum(const SpectrumOptions& options, std::ostream& out);
struct CodeOptions {
    std::string code;
    double ag = 0.0;
    std::string soil;
    double st = 1.0;
    double xi = 0.05;
    double q = 1.0;
    std::optional<double> f0;
    std::optional<double> tcs;
    double maxPeriod = 4.0;
    double periodStep = 0.01;
    PlotOptions plot;
    FormatFlags format;
};
void RunCode(const CodeOptions& options, std::ostream& out);
void AddSpectrumCommands(CLI::App& app, Action& action);

// envelope SET.acc
struct EnvelopeOptions {
    std::string set;
    std::string records = "all";
    std::string modes;
    std::optional<double> maxPeriod;
    std::optional<double> periodStep;
    double damping = 0.05;
    bool pairs = false;
    double direction = 0.0;
    std::optional<double> percentile;
    std::string spectra;
    unsigned threads = 0;
    PlotOptions plot;
    FormatFlags format;
};
// What a successful run gives besides its printout.
struct EnvelopeSummary {
    std::string title;
    double peak = 0.0;
    double peakPeriod = 0.0;
    std::string verdict;
    unsigned long spectrumNumber = 0; // in the spectra archive; 0 without one
};
EnvelopeSummary RunEnvelope(const EnvelopeOptions& options, std::ostream& out);
void AddEnvelopeCommand(CLI::App& app, Action& action);

// report SET.acc N, report-spectrum FILE N
struct ReportOptions {
    std::string set;
    unsigned long number = 0;
    double maxPeriod = 2.0;
    double periodStep = 0.1;
    std::string output; // empty: the standard output
};
void RunRecordReport(const ReportOptions& options, std::ostream& out);
void RunSpectrumReport(const ReportOptions& options, std::ostream& out);
void AddReportCommands(CLI::App& app, Action& action);

// movie SET.acc N -o FILE.avi
struct MovieOptions {
    std::string set;
    unsigned long record = 0;
    std::string output;
    unsigned long fps = 25;
    std::string codec = "MPG4";
    std::string size = "800x600";
};
void RunMovie(const MovieOptions& options, std::ostream& out);
void AddMovieCommand(CLI::App& app, Action& action);

// curves list|show|plot|mix FILE.pcc|FILE.pmc: curve collections
struct CurvesOptions {
    std::string file;
    unsigned long curve = 0;       // show, plot
    std::string units = "m,kN,s";  // show, mix: the units values are read in
    bool swapAxes = false;         // show
    std::string output;            // show: the listing file; mix: another collection file
    PlotOptions plot;              // plot
    std::vector<std::string> bind; // mix: VAR=N, the first is curve A
    std::string formula;           // mix
    bool onX = false;              // mix: the formula computes x...
    bool onY = false;              // ...or y, the default
    std::string kind = "length";   // mix: the unit kind of the computed coordinate
    std::string name = "Unknown";  // mix: the new curve's name
    FormatFlags format;
};
void RunCurvesList(const CurvesOptions& options, std::ostream& out);
void RunCurvesShow(const CurvesOptions& options, std::ostream& out);
void RunCurvesPlot(const CurvesOptions& options, std::ostream& out);
void RunCurvesMix(const CurvesOptions& options, std::ostream& out);
void AddCurvesCommand(CLI::App& app, Action& action);

// demo [OUTDIR]
void AddDemoCommand(CLI::App& app, Action& action);

} // namespace seisplot::cli
