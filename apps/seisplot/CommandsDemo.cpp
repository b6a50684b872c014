// demo: the typical road through the tool on the sample records, every result in a folder.

#include "Archives.h"
#include "AtomicFile.h"
#include "Commands.h"
#include "Errors.h"
#include "records/ImportFiles.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>

#ifndef SEISPLOT_SAMPLES_DIR
#define SEISPLOT_SAMPLES_DIR "data/samples"
#endif

namespace seisplot::cli {
namespace {

namespace fs = std::filesystem;

struct DemoOptions {
    std::string outDir = "out/demo";
};

fs::path SamplesFolder() {
    const char* fromEnvironment = std::getenv("SEISPLOT_SAMPLES");
    return fromEnvironment && *fromEnvironment ? fs::path(fromEnvironment)
                                               : fs::path(SEISPLOT_SAMPLES_DIR);
}

// The acceleration unit a two-column file names in its comment lines ("... acceleration in
// m/s^2"); cm when it names none.
std::string TwoColumnUnit(const fs::path& file) {
    std::ifstream in(file);
    std::string line;
    for (int row = 0; row < 50 && std::getline(in, line); ++row) {
        if (line.empty() || line[0] != '#') {
            continue;
        }
        const std::string marker = "acceleration in ";
        const size_t at = line.find(marker);
        if (at == std::string::npos) {
            continue;
        }
        const size_t start = at + marker.size();
        const std::string unit = line.substr(start, line.find("/s", start) - start);
        if (unit == "mm" || unit == "cm" || unit == "m" || unit == "in") {
            return unit;
        }
    }
    return "cm";
}

// Runs `write` on a text buffer and stores the text as `path`.
template <class Write> void ToFile(const fs::path& path, Write write) {
    std::ostringstream text;
    write(text);
    WriteTextFile(path.string(), text.str());
}

std::string Join(const std::vector<unsigned long>& numbers) {
    std::string text;
    for (unsigned long n : numbers) {
        text += (text.empty() ? "" : ",") + std::to_string(n);
    }
    return text;
}

void RunDemo(const DemoOptions& options, std::ostream& out) {
    const fs::path samples = SamplesFolder();
    if (!fs::is_directory(samples)) {
        Fail("the sample records are not in " + samples.string() +
             "; set SEISPLOT_SAMPLES to their folder");
    }
    const fs::path dir(options.outDir);
    std::error_code error;
    fs::create_directories(dir, error);
    if (error) {
        Fail("cannot make the folder " + dir.string() + ": " + error.message());
    }
    const std::string set = (dir / "records.acc").string();
    const std::string spectra = (dir / "spectra.spc").string();
    fs::remove(spectra, error);

    // 1. Import: the ITACA files, then the two-column files grouped by their unit.
    std::vector<std::string> itaca;
    std::map<std::string, std::vector<std::string>> twoColumn;
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(samples)) {
        if (entry.is_regular_file()) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    for (const fs::path& file : files) {
        switch (seisplot::RecordFileKindOf(file.string().c_str())) {
        case seisplot::RecordFileKind::Itaca:
            itaca.push_back(file.string());
            break;
        case seisplot::RecordFileKind::TwoColumn:
            twoColumn[TwoColumnUnit(file)].push_back(file.string());
            break;
        case seisplot::RecordFileKind::Unknown:
            break;
        }
    }
    if (itaca.empty() && twoColumn.empty()) {
        Fail("no record file in " + samples.string());
    }
    out << "seisplot demo on the samples in " << samples.string() << "\n\n";
    ToFile(dir / "import.txt", [&](std::ostream& text) {
        ImportOptions import;
        import.output = set;
        import.files = itaca;
        if (!itaca.empty()) {
            RunImport(import, text);
            import.append = true;
        }
        for (const auto& [unit, group] : twoColumn) {
            import.files = group;
            import.units = unit;
            RunImport(import, text);
            import.append = true;
        }
    });
    AccelerogramColl records;
    LoadRecordSet(set, records);
    const unsigned long count = records.GetAccelerogramNum();
    out << "1. Imported " << count << (count == 1 ? " record into " : " records into ") << set
        << " (summaries: " << (dir / "import.txt").string() << ")\n";

    // 2. List.
    ToFile(dir / "list.txt", [&](std::ostream& text) { RunList({set, {}}, text); });
    out << "2. Listed them in " << (dir / "list.txt").string() << ":\n\n";
    RunList({set, {}}, out);

    // 3. Spectra of the first record at 5% and 10% damping.
    SpectrumOptions spectrum;
    spectrum.set = set;
    spectrum.record = 1;
    spectrum.dampingMax = 0.10;
    spectrum.dampingStep = 0.05;
    spectrum.format.csv = true;
    spectrum.plot.file = (dir / "spectrum-1.png").string();
    ToFile(dir / "spectrum-1.csv", [&](std::ostream& text) { RunSpectrum(spectrum, text); });
    RecordPlotOptions recordPlot;
    recordPlot.set = set;
    recordPlot.record = 1;
    recordPlot.plot.file = (dir / "record-1.png").string();
    std::ostringstream plotted;
    RunRecordPlot(recordPlot, plotted);
    out << "\n3. Acceleration spectra of record 1 (" << records.GetAccelerogram(1).Identifier
        << ") at dampings 0.05 and 0.10: " << (dir / "spectrum-1.csv").string()
        << "\n   plotted in " << (dir / "record-1.png").string() << " (the record), "
        << (dir / "spectrum-1-xi0.050.png").string() << " and "
        << (dir / "spectrum-1-xi0.100.png").string() << '\n';

    // 4. Envelope over the horizontal pairs (east-west with north-south of each event).
    std::vector<unsigned long> pairRecords;
    std::vector<unsigned long> horizontal;
    for (unsigned long i = 1; i <= records.GetAccelerogramNum(); ++i) {
        const Accelerogram& r = records.GetAccelerogram(i);
        if (r.IsVertical != 0) {
            continue;
        }
        horizontal.push_back(i);
        if (!r.EventId.IsEmpty() && (r.AngleWE == 0.0 || r.AngleWE == 90.0)) {
            pairRecords.push_back(i);
        }
    }
    const auto report = [&](const char* step, const std::string& what, const fs::path& file,
                            const EnvelopeSummary& summary) {
        out << step << what << ": " << file.string() << ", spectrum " << summary.spectrumNumber
            << " of " << spectra << "\n   " << summary.title
            << Printf("\n   EC8 rating: peak %.4f g at T = %.3f s; ", summary.peak,
                      summary.peakPeriod)
            << summary.verdict << '\n';
    };
    EnvelopeOptions envelope;
    envelope.set = set;
    envelope.spectra = spectra;
    if (pairRecords.size() >= 2) {
        envelope.records = Join(pairRecords);
        envelope.pairs = true;
        envelope.direction = 30.0;
        envelope.maxPeriod = 3.0;
        envelope.periodStep = 0.02;
        envelope.plot.file = (dir / "envelope-pairs.png").string();
        EnvelopeSummary summary;
        ToFile(dir / "envelope-pairs.txt",
               [&](std::ostream& text) { summary = RunEnvelope(envelope, text); });
        report("4. ",
               "Envelope of the pairs of records " + envelope.records +
                   " along 30 degrees, T up to 3 s by 0.02 s",
               dir / "envelope-pairs.txt", summary);
        out << "   plotted in " << *envelope.plot.file << '\n';
    }

    // 5. The 84th percentile of the horizontal records at the periods of a structure.
    const fs::path modes = samples / "structure.modes";
    if (fs::exists(modes) && !horizontal.empty()) {
        envelope = EnvelopeOptions{};
        envelope.set = set;
        envelope.spectra = spectra;
        envelope.records = Join(horizontal);
        envelope.modes = modes.string();
        envelope.percentile = 84.0;
        EnvelopeSummary summary;
        ToFile(dir / "envelope-modes.txt",
               [&](std::ostream& text) { summary = RunEnvelope(envelope, text); });
        report("5. ",
               "84th percentile of the horizontal records " + envelope.records +
                   " at the periods of " + modes.filename().string(),
               dir / "envelope-modes.txt", summary);
    }

    // 6. The reports.
    ReportOptions recordReport;
    recordReport.set = set;
    recordReport.number = 1;
    recordReport.output = (dir / "record-1-report.txt").string();
    std::ostringstream ignored;
    RunRecordReport(recordReport, ignored);
    out << "6. Reports: " << recordReport.output;
    if (fs::exists(spectra)) {
        ReportOptions spectrumReport;
        spectrumReport.set = spectra;
        spectrumReport.number = 1;
        spectrumReport.output = (dir / "spectrum-1-report.txt").string();
        RunSpectrumReport(spectrumReport, ignored);
        out << ", " << spectrumReport.output;
    }
    out << "\n\nEverything is in " << dir.string() << '\n';
}

} // namespace

void AddDemoCommand(CLI::App& app, Action& action) {
    auto options = std::make_shared<DemoOptions>();
    CLI::App* command = app.add_subcommand(
        "demo", "Run the typical road on the sample records: import, list, spectra, two "
                "envelopes with their EC8 rating, plots of a record, its spectra and the "
                "envelope, and both reports");
    command->add_option("OUTDIR", options->outDir, "Folder for every result")
        ->capture_default_str();
    command->footer("The samples are read from " SEISPLOT_SAMPLES_DIR
                    " (the environment variable SEISPLOT_SAMPLES names another folder).");
    SetAction(*command, action, options, [](const DemoOptions& o) { RunDemo(o, std::cout); });
}

} // namespace seisplot::cli
